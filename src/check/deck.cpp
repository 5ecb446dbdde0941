// SPDX-License-Identifier: MIT
// One line a part, then the orders.
#include "check/deck.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace velmor::check {

namespace deck_detail {

char letterOf(PartKind kind)
{
    switch (kind) {
    case PartKind::resistor:
        return 'R';
    case PartKind::capacitor:
        return 'C';
    case PartKind::sink:
        return 'I';
    case PartKind::npn:
    case PartKind::pnp:
        return 'Q';
    case PartKind::supply:
    case PartKind::generator:
        break;
    }
    return 'V';
}

/// The simulator goes by the first letter: one is put before a name that begins otherwise.
std::string nameOf(const Part& part)
{
    const char letter = letterOf(part.kind);
    return part.name.starts_with(letter) ? part.name : letter + part.name;
}

std::string generatorLine(const Part& part, const Circuit& circuit, const Orders& orders)
{
    const std::string peak = plainNumber(circuit.amplitude * orders.drive);
    return nameOf(part) + ' ' + part.from + ' ' + part.to + " DC 0 AC 1 SIN(0 " + peak + ' ' +
           plainNumber(waveFrequency) + ")\n";
}

std::string transistorLines(const Part& part)
{
    const std::string model = "model_" + part.name;
    return nameOf(part) + ' ' + part.from + ' ' + part.to + ' ' + part.emitter + ' ' + model + "\n.model " + model +
           (part.kind == PartKind::npn ? " NPN(BF=" : " PNP(BF=") + plainNumber(part.beta) +
           " IS=" + plainNumber(part.value) + ")\n";
}

std::string linesOf(const Part& part, const Circuit& circuit, const Orders& orders)
{
    if (part.kind == PartKind::generator)
        return generatorLine(part, circuit, orders);
    if (part.kind == PartKind::npn || part.kind == PartKind::pnp)
        return transistorLines(part);
    return nameOf(part) + ' ' + part.from + ' ' + part.to + ' ' + plainNumber(part.value) + '\n';
}

std::string savedCurrents(const Circuit& circuit)
{
    std::string line = ".save all";
    for (const Part& part : circuit.parts)
        if (part.kind == PartKind::npn || part.kind == PartKind::pnp)
            line += " @" + nameOf(part) + "[ic]";
    return line + '\n';
}

/// The first point that is written may come a step late, so it is asked for earlier.
std::string waveOrder(const Orders& orders)
{
    const double step = 1 / waveFrequency / orders.stepsPerCycle;
    return ".tran " + plainNumber(step) + ' ' + plainNumber(orders.settling + orders.cycles / waveFrequency) + ' ' +
           plainNumber(orders.settling - 2 * step) + ' ' + plainNumber(step) + '\n';
}

std::string ordersOf(const Circuit& circuit, const Orders& orders)
{
    const bool isDriven = std::any_of(circuit.parts.begin(), circuit.parts.end(),
                                      [](const Part& part) { return part.kind == PartKind::generator; });
    std::string lines = ".options reltol=1e-4\n" + savedCurrents(circuit);
    if (orders.bias)
        lines += ".op\n";
    if (orders.response && isDriven)
        lines += ".ac dec 50 0.01 1e6\n";
    if (orders.wave && isDriven)
        lines += waveOrder(orders);
    if (orders.drift && circuit.drift)
        lines += ".dc temp " + plainNumber(circuit.drift->from) + ' ' + plainNumber(circuit.drift->to) + ' ' +
                 plainNumber(circuit.drift->to - circuit.drift->from) + '\n';
    if (orders.turned != nullptr)
        lines += ".dc " + nameOf(*orders.turned) + ' ' + plainNumber(orders.turnFrom) + ' ' +
                 plainNumber(orders.turnTo) + ' ' + plainNumber(orders.turnStep) + '\n';
    return lines;
}

} // namespace deck_detail

std::string plainNumber(double value)
{
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::general, 10);
    return {digits.data(), end.ptr};
}

std::string deckOf(const Circuit& circuit, const Orders& orders)
{
    std::string deck = "* " + circuit.title + '\n';
    for (const std::string& assumption : circuit.assumed)
        deck += "* " + assumption + '\n';
    for (const Part& part : circuit.parts)
        deck += deck_detail::linesOf(part, circuit, orders);
    return deck + deck_detail::ordersOf(circuit, orders) + ".end\n";
}

} // namespace velmor::check
