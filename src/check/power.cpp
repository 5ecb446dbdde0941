// SPDX-License-Identifier: MIT
// Every question is a run of the simulator with another drive.
#include "check/power.h"

#include <algorithm>
#include <cmath>
#include <future>
#include <utility>

#include "check/deck.h"
#include "check/readings.h"

namespace velmor::check {

namespace power_detail {

// A search asks for a dozen waves: each as short and as coarse as five harmonics allow.
constexpr int searchCycles = 4;
constexpr int searchSteps = 100;

constexpr double stepDown = 0.8; // of the drive, while the wave is not clean
constexpr double leastDrive = 0.03;
constexpr double mostDrive = 4;
constexpr int refinements = 2;

// A preset is turned from a twentieth of its value to three times that.
constexpr double leastTurn = 0.05;
constexpr double mostTurn = 3.0;
constexpr double turnStep = 0.05;

PowerPoint runAt(const Design& design, Simulator& simulator, double drive)
{
    const Orders orders{.bias = false,
                        .response = false,
                        .drift = false,
                        .drive = drive,
                        .cycles = searchCycles,
                        .stepsPerCycle = searchSteps};
    return powerPointOf(design, simulator.run(deckOf(design.circuit, orders)).plots, drive, searchCycles);
}

/// Two runs at once: waiting is what a run costs most.
std::pair<PowerPoint, PowerPoint> runBeside(const Design& design, Simulator& simulator, double one, double other)
{
    std::future<PowerPoint> beside = std::async(std::launch::async, [&] { return runAt(design, simulator, other); });
    PowerPoint first = runAt(design, simulator, one);
    return {first, beside.get()};
}

bool isClean(const PowerPoint& point)
{
    return point.distortion && *point.distortion <= cleanDistortion;
}

/// Where the column crosses the wanted value, between two rows; nothing when it does not.
Measured crossing(const Column& place, const Column& value, double wanted)
{
    for (std::size_t i = 1; i < place.values.size(); ++i) {
        const double before = value.values[i - 1].real() - wanted;
        const double after = value.values[i].real() - wanted;
        if ((before <= 0) == (after <= 0))
            continue;
        const double share = before / (before - after);
        return place.values[i - 1].real() + share * (place.values[i].real() - place.values[i - 1].real());
    }
    return std::nullopt;
}

/// Between two points of which the first is clean and the second is not: halved a few times, then along a straight line.
PowerPoint refined(const Design& design, Simulator& simulator, PowerPoint clean, PowerPoint unclean)
{
    for (int i = 0; i < refinements; ++i) {
        const PowerPoint middle = runAt(design, simulator, std::sqrt(clean.drive * unclean.drive));
        (isClean(middle) ? clean : unclean) = middle;
    }
    if (!unclean.distortion || !unclean.power || !unclean.supplied)
        return clean;
    const double share = (cleanDistortion - *clean.distortion) / (*unclean.distortion - *clean.distortion);
    const auto between = [share](double from, double to) { return from + share * (to - from); };
    return {.drive = between(clean.drive, unclean.drive),
            .power = between(*clean.power, *unclean.power),
            .distortion = cleanDistortion,
            .supplied = between(*clean.supplied, *unclean.supplied),
            .gain = clean.gain};
}

void setReading(Check& check, Quantity quantity, Measured value)
{
    for (Row& row : check.rows)
        if (row.quantity == quantity)
            row.simulated = value;
}

} // namespace power_detail

using namespace power_detail;

PowerPoint powerPointOf(const Design& design, const std::vector<Plot>& plots, double drive, int cycles)
{
    PowerPoint point{.drive = drive};
    const Plot* plot = plotOf(plots, "Transient Analysis");
    const Part* load = partOf(design.circuit, "RLw");
    const Part* supply = partOf(design.circuit, "Es");
    if (plot == nullptr || load == nullptr || supply == nullptr)
        return point;
    const Wave out = waveOf(*plot, "v(" + design.circuit.output + ")", waveFrequency, cycles);
    const Wave base = waveOf(*plot, "v(b)", waveFrequency, cycles);
    const Wave current = waveOf(*plot, "i(ves)", waveFrequency, cycles);
    if (out.values.empty() || current.values.empty())
        return point;
    const Harmonics harmonics = harmonicsOf(out);
    const double rest = mean(out);
    point.power = (meanProduct(out, out) - rest * rest) / load->value;
    point.distortion = distortion(harmonics);
    point.supplied = -mean(current) * supply->value;
    if (const double driven = harmonicsOf(base)[1]; driven > 0)
        point.gain = harmonics[1] / driven;
    return point;
}

Design trimmed(const Design& design, Simulator& simulator)
{
    const SheetTable& table = *design.table;
    const Part* preset = partOf(design.circuit, table.preset);
    const Part* supply = partOf(design.circuit, "Es");
    if (preset == nullptr || supply == nullptr)
        return design;
    const Orders orders{.bias = false,
                        .response = false,
                        .wave = false,
                        .drift = false,
                        .turned = preset,
                        .turnFrom = leastTurn * preset->value,
                        .turnTo = mostTurn * preset->value,
                        .turnStep = turnStep * preset->value};
    const Simulation simulation = simulator.run(deckOf(design.circuit, orders));
    const Plot* sweep = plotOf(simulation.plots, "DC transfer");
    const Column* middle = sweep == nullptr ? nullptr : sweep->column("v(" + std::string(table.middle) + ")");
    if (middle == nullptr)
        return design;
    const Measured turned = crossing(sweep->columns.front(), *middle, supply->value / 2);
    Design result = design;
    for (Part& part : result.circuit.parts)
        if (part.name == table.preset && turned)
            part.value = *turned;
    return result;
}

PowerPoint cleanPoint(const Design& design, Simulator& simulator, const PowerPoint& atCourse)
{
    PowerPoint point = atCourse;
    while (isClean(point) && point.drive < power_detail::mostDrive) {
        const PowerPoint higher = runAt(design, simulator, point.drive / stepDown);
        if (!isClean(higher))
            return refined(design, simulator, point, higher);
        point = higher;
    }
    while (!isClean(point) && point.drive > power_detail::leastDrive) {
        const PowerPoint unclean = point;
        auto [next, afterNext] =
            runBeside(design, simulator, unclean.drive * stepDown, unclean.drive * stepDown * stepDown);
        if (!next.distortion || !afterNext.distortion) // the simulator has failed: it would again
            return {};
        if (isClean(next))
            return refined(design, simulator, next, unclean);
        if (isClean(afterNext))
            return refined(design, simulator, afterNext, next);
        point = afterNext;
    }
    if (isClean(point))
        return point;
    // So faint a wave that is still bent: nothing comes out clean.
    return {.drive = point.drive, .power = 0, .distortion = point.distortion, .supplied = point.supplied};
}

void measurePower(Check& check, const Design& design, Simulator& simulator, const std::vector<Plot>& plots)
{
    const PowerPoint atCourse = powerPointOf(design, plots, 1, waveCycles);
    if (!atCourse.power)
        return;
    setReading(check, Quantity::Pout, atCourse.power);
    if (atCourse.supplied)
        setReading(check, Quantity::heat, *atCourse.supplied - *atCourse.power);
    const PowerPoint clean = cleanPoint(design, simulator, atCourse);
    setReading(check, Quantity::Pclean, clean.power);
    if (clean.power && clean.supplied && *clean.supplied > 0)
        setReading(check, Quantity::efficiency, 100 * *clean.power / *clean.supplied);
    if (rowOf(check, Quantity::Vg) != nullptr)
        setReading(check, Quantity::Vg, runAt(design, simulator, 0.5).gain);
}

} // namespace velmor::check
