// SPDX-License-Identifier: MIT
// Finds each quantity in the plots where it stands.
#include "check/readings.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include "check/deck.h"

namespace velmor::check {

namespace readings_detail {

constexpr double milliamperes = 1000;

std::string small(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

std::string nodeColumn(const std::string& node)
{
    return "v(" + small(node) + ")";
}

bool isTransistor(const Part& part)
{
    return part.kind == PartKind::npn || part.kind == PartKind::pnp;
}

/// The transistor of that number, from 1, in the order of the circuit; null when there are fewer.
const Part* transistorOf(const Circuit& circuit, std::size_t number)
{
    for (const Part& part : circuit.parts)
        if (isTransistor(part) && --number == 0)
            return &part;
    return nullptr;
}

std::string generatorName(const Circuit& circuit)
{
    for (const Part& part : circuit.parts)
        if (part.kind == PartKind::generator)
            return small(part.name.starts_with('V') ? part.name : "V" + part.name);
    return {};
}

Measured voltageOf(const Plot& point, const std::string& node)
{
    return node == "0" ? Measured(0.0) : pointOf(point, nodeColumn(node));
}

Measured collectorEmitter(const Circuit& circuit, const Plot& point)
{
    const Part* transistor = transistorOf(circuit, 1);
    if (transistor == nullptr)
        return std::nullopt;
    const Measured collector = voltageOf(point, transistor->from);
    const Measured emitter = voltageOf(point, transistor->emitter);
    return collector && emitter ? Measured(std::abs(*collector - *emitter)) : std::nullopt;
}

/// The drift of QIc from the lower to the upper temperature, %.
Measured driftOf(const Circuit& circuit, const Plot& sweep)
{
    const Measured cold = currentOf(circuit, sweep, circuit.drifting, 0);
    const Measured warm = currentOf(circuit, sweep, circuit.drifting, 1);
    if (!cold || !warm || *cold == 0)
        return std::nullopt;
    return 100 * (*warm - *cold) / *cold;
}

Measured biasReading(const Circuit& circuit, const std::vector<Plot>& plots, Quantity quantity)
{
    const Plot* point = plotOf(plots, "Operating Point");
    if (point == nullptr)
        return std::nullopt;
    if (quantity == Quantity::Vce)
        return collectorEmitter(circuit, *point);
    const auto number = static_cast<std::size_t>(quantity) - static_cast<std::size_t>(Quantity::QIc) + 1;
    const Measured current = currentOf(circuit, *point, number);
    return current ? Measured(*current * milliamperes) : std::nullopt;
}

Measured signalReading(const Design& design, const std::vector<Plot>& plots, Quantity quantity)
{
    const Plot* plot = plotOf(plots, "AC Analysis");
    if (plot == nullptr)
        return std::nullopt;
    const Circuit& circuit = design.circuit;
    if (quantity == Quantity::Zin)
        return inputImpedanceAt(*plot, small(circuit.input), generatorName(circuit), midBand);
    if (quantity == Quantity::Vg)
        return gainAt(responseOf(*plot, small(circuit.output), small(circuit.input)), midBand);
    const Response whole = responseOf(*plot, small(circuit.output), small(circuit.generator));
    if (quantity == Quantity::fL)
        return lowCorner(whole);
    if (quantity == Quantity::dBfo)
        return decibelAt(whole, design.fo);
    return gainAt(whole, midBand);
}

} // namespace readings_detail

using namespace readings_detail;

Measured currentOf(const Circuit& circuit, const Plot& point, std::size_t number, std::size_t row)
{
    const Part* transistor = transistorOf(circuit, number);
    if (transistor == nullptr)
        return std::nullopt;
    const Measured current = pointOf(
        point, "@" + small(transistor->name.starts_with('Q') ? transistor->name : "Q" + transistor->name) + "[ic]",
        row);
    return current ? Measured(std::abs(*current)) : std::nullopt;
}

Swing readSwing(const Design& design, const std::vector<Plot>& plots, double drive)
{
    Swing swing{.drive = drive};
    const Plot* plot = plotOf(plots, "Transient Analysis");
    if (plot == nullptr)
        return swing;
    swing.input = waveOf(*plot, nodeColumn(design.circuit.generator), waveFrequency, waveCycles);
    swing.output = waveOf(*plot, nodeColumn(design.circuit.output), waveFrequency, waveCycles);
    if (swing.output.values.empty())
        return swing;
    swing.harmonics = harmonicsOf(swing.output);
    swing.peakToPeak = peakToPeak(swing.output);
    swing.distortion = distortion(swing.harmonics);
    return swing;
}

Response readResponse(const Design& design, const std::vector<Plot>& plots)
{
    const Plot* plot = plotOf(plots, "AC Analysis");
    if (plot == nullptr)
        return {};
    Response response = responseOf(*plot, small(design.circuit.output), small(design.circuit.generator));
    while (!response.frequency.empty() && response.frequency.back() > midBand * 1.001) {
        response.frequency.pop_back();
        response.gain.pop_back();
    }
    return response;
}

Measured readingOf(const Design& design, const std::vector<Plot>& plots, const Swing& swing, Quantity quantity)
{
    switch (quantity) {
    case Quantity::Eopp:
        return swing.peakToPeak;
    case Quantity::THD:
        return swing.distortion;
    case Quantity::drift: {
        const Plot* sweep = plotOf(plots, "DC transfer");
        return sweep == nullptr ? std::nullopt : driftOf(design.circuit, *sweep);
    }
    case Quantity::Vg:
        // A small signal would see nothing but the crossover of a power stage.
        return design.table->stage == StageKind::other ? std::nullopt : signalReading(design, plots, quantity);
    case Quantity::Zin:
    case Quantity::fL:
    case Quantity::dBfo:
    case Quantity::output:
        return signalReading(design, plots, quantity);
    case Quantity::Pout:
    case Quantity::Pclean:
    case Quantity::efficiency:
    case Quantity::heat:
        return std::nullopt;
    default:
        return biasReading(design.circuit, plots, quantity);
    }
}

} // namespace velmor::check
