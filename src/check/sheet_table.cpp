// SPDX-License-Identifier: MIT
// Reads the rows of a table off a sheet.
#include "check/sheet_table.h"

#include <numbers>

#include "rules/numbers.h"

namespace velmor::check {

namespace sheet_table_detail {

bool isThere(const host::Window& window, const Presence& presence)
{
    const auto isHidden = [&](host::Handle control) { return control == host::noControl || !window.visible(control); };
    return (presence.when == host::noControl || window.visible(presence.when)) && isHidden(presence.unless) &&
           isHidden(presence.norIf);
}

Part partFrom(const host::Window& window, const PartRow& row)
{
    return {.kind = row.kind,
            .name = std::string(row.name),
            .from = std::string(row.from),
            .to = std::string(row.to),
            .value = valueOf(window, row.value)};
}

Part transistorFrom(const host::Window& window, const TransistorRow& row)
{
    return {.kind = row.isPnp ? PartKind::pnp : PartKind::npn,
            .name = std::string(row.name),
            .from = std::string(row.collector),
            .to = std::string(row.base),
            .emitter = std::string(row.emitter),
            .value = saturationCurrent(valueOf(window, row.QIc), valueOf(window, row.Vj)),
            .beta = valueOf(window, row.Beta)};
}

/// Parts of one name count together: a resistor in two halves is the sum.
double valueOf(const Circuit& circuit, std::string_view name)
{
    double sum = 0;
    for (const Part& part : circuit.parts)
        if (part.name == name || part.name == std::string(name) + "a" || part.name == std::string(name) + "b")
            sum += part.value;
    return sum;
}

/// What the current of the last transistor is divided by on its way to the collector of the first: its own Beta, and one more
/// than that of each between.
double outputBetaOf(const host::Window& window, const SheetTable& table)
{
    double product = 1;
    for (std::size_t i = 1; i < table.transistors.size(); ++i)
        product *= valueOf(window, table.transistors[i].Beta) + (i + 1 < table.transistors.size() ? 1 : 0);
    return product;
}

} // namespace sheet_table_detail

using namespace sheet_table_detail;

double numberIn(std::string_view text)
{
    const std::size_t equals = text.find('=');
    if (equals != std::string_view::npos)
        text.remove_prefix(equals + 1);
    const std::size_t first = text.find_first_of("0123456789.-");
    return first == std::string_view::npos ? 0 : rules::ParseLeadingNumber(text.substr(first));
}

double valueOf(const host::Window& window, const Figure& figure)
{
    if (figure.held != nullptr)
        return figure.held(window) * figure.scale;
    if (figure.control != host::noControl)
        return numberIn(window.text(figure.control)) * figure.scale;
    return figure.scale;
}

Circuit circuitOf(const host::Window& window, const SheetTable& table)
{
    Circuit circuit{.title = std::string(table.sheet), .output = std::string(table.output)};
    for (const PartRow& row : table.parts)
        if (isThere(window, row.presence) && !(row.mayLack && valueOf(window, row.value) == 0))
            circuit.parts.push_back(partFrom(window, row));
    for (const TransistorRow& row : table.transistors)
        circuit.parts.push_back(transistorFrom(window, row));
    for (const Part& part : circuit.parts)
        if (part.kind == PartKind::generator)
            circuit.generator = part.from;
    // A generator without resistance stands at the input itself.
    circuit.input = partOf(circuit, "Rg") == nullptr ? circuit.generator : "in";
    circuit.amplitude = valueOf(window, table.Ein) * std::numbers::sqrt2;
    circuit.drifting = table.drifting;
    if (const double T = valueOf(window, table.temperature); T > 0)
        circuit.drift = Temperatures{.to = T};
    for (const host::BiText& text : table.assumed)
        circuit.assumed.emplace_back(text.en);
    return circuit;
}

void driveThroughGenerator(Circuit& circuit, const Stage& stage)
{
    const Part* Rg = partOf(circuit, "Rg");
    const double Zin = inputOf(stage, allTruths());
    if (Rg != nullptr && Zin > 0)
        circuit.amplitude *= (Rg->value + Zin) / Zin;
}

Stage stageOf(const host::Window& window, const SheetTable& table, const Circuit& circuit)
{
    const double QIc = table.transistors.empty() ? 0 : valueOf(window, table.transistors.front().QIc);
    const auto currentOf = [&](std::size_t index) {
        return index < table.transistors.size() ? valueOf(window, table.transistors[index].QIc) : 0;
    };
    return {.kind = table.stage,
            .Beta = table.transistors.empty() ? 0 : valueOf(window, table.transistors.front().Beta),
            .designedQIc = QIc,
            .trueQIc = QIc,
            .RL = valueOf(circuit, "RL"),
            .RLw = valueOf(circuit, "RLw"),
            .Res = valueOf(circuit, "Res"),
            .otherRLw = valueOf(circuit, "RLwe"),
            .secondDesigned = currentOf(2),
            .secondTrue = currentOf(2),
            .followerTrue = currentOf(4),
            .secondRL = valueOf(circuit, "RL2"),
            .followerRes = valueOf(circuit, "Res1"),
            .Rb1 = valueOf(circuit, "Rb1"),
            .Rb2 = valueOf(circuit, "Rb2"),
            .supply = valueOf(circuit, "Es"),
            .outputBeta = outputBetaOf(window, table),
            .middleGrounded = table.grounded != host::noControl && window.visible(table.grounded)};
}

} // namespace velmor::check
