// SPDX-License-Identifier: MIT
// A finished design as a circuit: parts between named nodes, in ohm, farad, volt and ampere. It knows no sheet and no simulator.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmor::check {

/// VT at 27 degrees, V: what the simulated transistors have where the course says 25 mV.
inline constexpr double thermalVoltage = 0.025865;

enum class PartKind : std::uint8_t {
    resistor,  ///< ohm
    capacitor, ///< F
    supply,    ///< V, from plus to minus
    sink,      ///< A, drawn out of the first node into the second
    generator, ///< the signal; its value is no part of it
    npn,       ///< collector, base, emitter; the value is IS in A
    pnp,
};

struct Part {
    PartKind kind = PartKind::resistor;
    std::string name{};
    std::string from{}; ///< of a transistor: its collector
    std::string to{};   ///< its base
    std::string emitter{};
    double value = 0;
    double beta = 0;

    friend bool operator==(const Part&, const Part&) = default;
};

/// Two temperatures between which the quiescent current may drift, degrees Celsius.
struct Temperatures {
    double from = 20;
    double to = 75;

    friend bool operator==(const Temperatures&, const Temperatures&) = default;
};

struct Circuit {
    std::string title{}; ///< for the first line of the netlist
    std::vector<Part> parts{};
    std::string input = "in"; ///< behind the resistance of the generator
    std::string output = "out";
    std::string generator = "gen"; ///< the node of the generator; equal to `input` where that has no resistance
    double amplitude = 0;          ///< of the generator with the input that the course worked out, V peak
    std::optional<Temperatures> drift{};
    std::size_t drifting = 1;           ///< the transistor that is looked at then, from 1
    std::vector<std::string> assumed{}; ///< written into the netlist as comments

    friend bool operator==(const Circuit&, const Circuit&) = default;
};

/// IS of a transistor = QIc / (e^(Vj / VT) - 1), A from A and V: it then carries QIc at Vj.
double saturationCurrent(double QIc, double Vj);

/// The part of that name; null when the circuit has none.
const Part* partOf(const Circuit& circuit, std::string_view name);

/// Why a circuit is not simulated: the name of the first part whose value is zero, negative or no number; empty when all are in
/// order. A negative resistance may keep a simulator busy for ever, a negative divider even converges.
std::string impossiblePart(const Circuit& circuit);

} // namespace velmor::check
