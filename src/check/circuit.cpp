// SPDX-License-Identifier: MIT
// What a circuit answers about its parts.
#include "check/circuit.h"

#include <cmath>

namespace velmor::check {

double saturationCurrent(double QIc, double Vj)
{
    return QIc / std::expm1(Vj / thermalVoltage);
}

const Part* partOf(const Circuit& circuit, std::string_view name)
{
    for (const Part& part : circuit.parts)
        if (part.name == name)
            return &part;
    return nullptr;
}

std::string impossiblePart(const Circuit& circuit)
{
    const auto isAmount = [](double value) { return std::isfinite(value) && value > 0; };
    bool isDriven = false;
    for (const Part& part : circuit.parts) {
        isDriven = isDriven || part.kind == PartKind::generator;
        const bool isTransistor = part.kind == PartKind::npn || part.kind == PartKind::pnp;
        if (part.kind != PartKind::generator && !isAmount(part.value))
            return part.name;
        if (isTransistor && !isAmount(part.beta))
            return "Beta";
    }
    return isAmount(circuit.amplitude) || !isDriven ? "" : "Ein";
}

} // namespace velmor::check
