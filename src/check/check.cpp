// SPDX-License-Identifier: MIT
// Takes a design off its sheet, lets it be simulated, and tells course and simulator apart.
#include "check/check.h"

#include <algorithm>
#include <cmath>

#include "check/deck.h"
#include "check/power.h"
#include "check/readings.h"
#include "check/verdict.h"

namespace velmor::check {

namespace check_detail {

constexpr double leastDrive = 0.1;
constexpr double mostDrive = 10;
constexpr double saturationVoltage = 0.2; // V

constexpr host::BiText asleep{
    "Espera: termine primero el diseño, hasta el último paso y sin avisos. Un diseño leído de un archivo se recorre "
    "otra vez.",
    "It waits: finish the design first, to its last step and without a warning. A design read from a file is walked "
    "through once more."};

/// What was asked in a field; nothing when nobody has left it.
Measured askedIn(const host::Window& sheet, const QuantityRow& row)
{
    if (row.asked == host::noControl || sheet.asked(row.asked).empty())
        return std::nullopt;
    return numberIn(sheet.asked(row.asked)) * row.askedScale;
}

Measured courseOf(const host::Window& sheet, const QuantityRow& row)
{
    if (row.course.scale == 0)
        return std::nullopt;
    return valueOf(sheet, row.course);
}

bool isSmallSignal(const Design& design)
{
    return design.table->stage != StageKind::other;
}

Ladder ladderOf(const Design& design, const Stage& stage, const Row& row)
{
    const SheetTable& table = *design.table;
    if (!row.course || !row.simulated)
        return {};
    if (row.quantity == Quantity::QIc && !table.driverRungs.empty())
        return climb(*row.course, stage, driverCurrentOf, {}, table.driverRungs, *row.simulated);
    if (!isSmallSignal(design))
        return {};
    if (row.quantity == Quantity::Vg)
        return climb(*row.course, stage, gainOf, table.gainCounted, table.gainRungs, *row.simulated);
    if (row.quantity == Quantity::Zin)
        return climb(*row.course, stage, inputOf, table.inputCounted, table.inputRungs, *row.simulated);
    return {};
}

Ceilings ceilingsOf(const Stage& stage, Measured Vce)
{
    // A follower swings over what its emitter sees.
    const double load = stage.kind == StageKind::follower ? beside(stage.Res, stage.RLw) : beside(stage.RL, stage.RLw);
    return {.known = stage.kind != StageKind::compound && stage.kind != StageKind::other,
            .cutOffAbove = stage.kind != StageKind::follower,
            .cutOff = stage.trueQIc * load,
            .saturation = std::max(0.0, Vce.value_or(0) - saturationVoltage)};
}

Words excuseOf(CheckEnd end)
{
    switch (end) {
    case CheckEnd::done:
        return {};
    case CheckEnd::impossible:
        return {"no se simula, porque su valor es cero o negativo.",
                "not simulated, because its value is zero or negative."};
    case CheckEnd::noSimulator:
        return {"No hay simulador: instale el paquete ngspice y compruebe otra vez.",
                "There is no simulator: install the package ngspice and check again."};
    case CheckEnd::failed:
        return {"El simulador terminó con una falla; vea los detalles.",
                "The simulator ended with a failure; see the details."};
    case CheckEnd::incomplete:
        return {"El simulador no dio todo lo pedido; lo que falta queda vacío.",
                "The simulator did not give all it was asked for; what is missing stays empty."};
    case CheckEnd::tooLong:
        return {"El simulador no terminó en cinco segundos y fue detenido.",
                "The simulator had not finished after five seconds and was ended."};
    case CheckEnd::stopped:
        return {"La comprobación se interrumpió.", "The check was interrupted."};
    case CheckEnd::tooMuch:
        return {"El simulador escribió más de lo que cabe y fue detenido.",
                "The simulator wrote more than there is room for and was ended."};
    }
    return {};
}

CheckEnd endOf(const Simulation& simulation)
{
    switch (simulation.end) {
    case SimulationEnd::done:
        return CheckEnd::done;
    case SimulationEnd::absent:
        return CheckEnd::noSimulator;
    case SimulationEnd::failed:
        return CheckEnd::failed;
    case SimulationEnd::tooLong:
        return CheckEnd::tooLong;
    case SimulationEnd::tooMuch:
        return CheckEnd::tooMuch;
    case SimulationEnd::stopped:
        return CheckEnd::stopped;
    }
    return CheckEnd::failed;
}

Preset presetOf(const Design& design, Run run)
{
    const Part* preset = partOf(design.circuit, design.table->preset);
    const Part* supply = partOf(design.circuit, "Es");
    if (preset == nullptr || supply == nullptr)
        return {};
    return {
        .name = preset->name, .run = run, .typed = preset->value, .simulated = preset->value, .supply = supply->value};
}

/// The design with its preset where the run wants it; its netlist says so.
Design setUp(Preset& preset, const Design& design, Simulator& simulator)
{
    if (!preset.isThere())
        return design;
    Design result = preset.run == Run::trimmed ? trimmed(design, simulator) : design;
    preset.simulated = partOf(result.circuit, preset.name)->value;
    result.circuit.assumed.push_back(presetWords(preset).en);
    return result;
}

void readPlots(Check& check, const Design& design, const std::vector<Plot>& plots, Simulator& simulator)
{
    check.response = readResponse(design, plots);
    check.swing = readSwing(design, plots, 1);
    for (Row& row : check.rows)
        row.simulated = readingOf(design, plots, check.swing, row.quantity);
    if (const Plot* point = plotOf(plots, "Operating Point"); point != nullptr && check.preset.isThere())
        check.preset.middle = pointOf(*point, "v(" + std::string(design.table->middle) + ")");
    if (rowOf(check, Quantity::Pout) != nullptr)
        measurePower(check, design, simulator, plots);
    const bool isWhole =
        std::all_of(check.rows.begin(), check.rows.end(), [](const Row& row) { return row.simulated.has_value(); });
    if (!isWhole)
        check.end = CheckEnd::incomplete;
}

void simulate(Check& check, const Design& design, Simulator& simulator)
{
    check.circuit = design.circuit;
    check.netlist = deckOf(design.circuit, {.response = isSmallSignal(design)});
    Simulation simulation = simulator.run(check.netlist);
    check.end = endOf(simulation);
    check.details = std::move(simulation.details);
    // What a failed run has written is not to be trusted.
    if (check.end == CheckEnd::done)
        readPlots(check, design, simulation.plots, simulator);
}

/// The ladders are climbed with the current that really flows.
void explain(Check& check, const Design& design)
{
    Stage stage = design.stage;
    const auto takeCurrent = [&check](double& current, Quantity quantity) {
        if (const Row* row = rowOf(check, quantity); row != nullptr && row->simulated)
            current = *row->simulated * milli;
    };
    takeCurrent(stage.trueQIc, Quantity::QIc);
    takeCurrent(stage.secondTrue, Quantity::QIc3);
    takeCurrent(stage.followerTrue, Quantity::QIc5);
    takeCurrent(stage.outputQIc, rowOf(check, Quantity::QIc2) == nullptr ? Quantity::QIc3 : Quantity::QIc2);
    const Row* Vce = rowOf(check, Quantity::Vce);
    if (Vce != nullptr) {
        stage.designedVce = Vce->course.value_or(0);
        stage.trueVce = Vce->simulated.value_or(0);
    }
    check.ceilings = ceilingsOf(stage, Vce == nullptr ? std::nullopt : Vce->simulated);
    for (Row& row : check.rows) {
        row.ladder = ladderOf(design, stage, row);
        judge(row, design, check);
    }
}

} // namespace check_detail

using namespace check_detail;

bool isAwake(const host::Window& sheet, const SheetTable& table)
{
    return table.passed(sheet);
}

const host::BiText& whyAsleep()
{
    return asleep;
}

Design designOf(const host::Window& sheet, const SheetTable& table)
{
    Design design{.table = &table,
                  .circuit = circuitOf(sheet, table),
                  .fo = valueOf(sheet, table.fo),
                  .mostPeak = valueOf(sheet, table.mostPeak)};
    design.stage = stageOf(sheet, table, design.circuit);
    driveThroughGenerator(design.circuit, design.stage);
    for (const QuantityRow& row : table.quantities)
        design.rows.push_back({row.quantity, askedIn(sheet, row), courseOf(sheet, row), row.reason});
    return design;
}

Check checkDesign(const Design& design, Simulator& simulator, Run run)
{
    Check check;
    for (const Expected& row : design.rows)
        check.rows.push_back({.quantity = row.quantity, .asked = row.asked, .course = row.course});
    check.preset = presetOf(design, run);
    check.circuit = design.circuit;
    check.netlist = deckOf(design.circuit, {});
    const std::string impossible = impossiblePart(design.circuit);
    if (impossible.empty()) {
        simulate(check, setUp(check.preset, design, simulator), simulator);
    } else {
        check.end = CheckEnd::impossible;
    }
    check.excuse = excuseOf(check.end);
    if (!impossible.empty())
        check.excuse = {impossible + ": " + check.excuse.es, impossible + ": " + check.excuse.en};
    explain(check, design);
    return check;
}

Design simulatedBy(const Check& check, Design design)
{
    design.circuit = check.circuit;
    return design;
}

Swing swingOf(const Design& design, Simulator& simulator, double drive)
{
    const double kept = std::clamp(drive, leastDrive, mostDrive);
    if (!impossiblePart(design.circuit).empty())
        return {.drive = kept};
    const std::string deck = deckOf(design.circuit, {.bias = false, .response = false, .drift = false, .drive = kept});
    return readSwing(design, simulator.run(deck).plots, kept);
}

const Row* rowOf(const Check& check, Quantity quantity)
{
    const auto found =
        std::find_if(check.rows.begin(), check.rows.end(), [&](const Row& row) { return row.quantity == quantity; });
    return found == check.rows.end() ? nullptr : &*found;
}

} // namespace velmor::check
