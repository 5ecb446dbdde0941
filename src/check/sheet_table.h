// SPDX-License-Identifier: MIT
// What a sheet tells of itself so that its finished design can be checked: one table of rows, beside the sheet. Elements in ohm,
// farad, volt and ampere come out of its fields, captions and working numbers.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "check/circuit.h"
#include "check/ladder.h"
#include "check/quantity.h"
#include "check/stage.h"
#include "host/window.h"

namespace velmor::check {

inline constexpr double kilo = 1e3;
inline constexpr double milli = 1e-3;
inline constexpr double micro = 1e-6;

/// What the course's capacitors are meant to leave at fo: nine tenths of the gain; dB.
inline constexpr double courseLevelAtFo = -0.915;

/// A number of a sheet: that of a control's text, or one that the sheet holds, or plainly the scale; times the scale.
struct Figure {
    host::Handle control = host::noControl;
    double scale = 1;
    double (*held)(const host::Window&) = nullptr;
};

/// One of the working numbers of a sheet.
template <class Sheet, auto Member>
double heldBy(const host::Window& window)
{
    const auto& quantities = static_cast<const Sheet&>(window).quantities();
    return static_cast<double>((quantities.*Member).value());
}
/// Whether the design of a sheet stands finished.
template <class Sheet>
bool hasPassed(const host::Window& window)
{
    return static_cast<const Sheet&>(window).quantities().passed;
}

/// True while a row is part of the circuit.
struct Presence {
    host::Handle when = host::noControl;   ///< only while this control is visible
    host::Handle unless = host::noControl; ///< only while this one is hidden
    host::Handle norIf = host::noControl;  ///< and this one
};

struct PartRow {
    PartKind kind = PartKind::resistor;
    std::string_view name{};
    std::string_view from{};
    std::string_view to{};
    Figure value{};
    Presence presence{};
    bool mayLack = false; ///< not there while its value is 0
};

/// QIc in A and Vj in V make its IS.
struct TransistorRow {
    std::string_view name = "Q1";
    std::string_view collector = "c";
    std::string_view base = "b";
    std::string_view emitter = "e";
    Figure Beta{};
    Figure QIc{};
    Figure Vj{};
    bool isPnp = false;
};

struct QuantityRow {
    Quantity quantity = Quantity::QIc;
    host::Handle asked = host::noControl; ///< the field in which it is asked for
    double askedScale = 1;                ///< from the field's unit to that of the quantity
    Figure course{.scale = 0};            ///< in the unit of the quantity; a scale of 0: the course has none
    host::BiText reason{}; ///< why the simulator parts from it here; empty: for the reason that most have
};

struct SheetTable {
    std::string_view sheet{};
    StageKind stage = StageKind::other;
    std::span<const PartRow> parts{};
    std::span<const TransistorRow> transistors{};
    std::span<const QuantityRow> quantities{};
    Figure Ein{};                   ///< V r.m.s.: the input that the course worked out
    Figure fo{};                    ///< Hz
    Figure temperature{.scale = 0}; ///< degrees Celsius, up to which the current may drift; 0: not asked for
    // the ladders: what the course does count, and what it does not
    Truths gainCounted{};
    std::span<const RungRow> gainRungs{};
    Truths inputCounted{};
    std::span<const RungRow> inputRungs{};
    std::span<const RungRow> driverRungs{}; ///< of QIc, where Q1 drives a class A output
    std::span<const host::BiText> assumed{};
    bool (*passed)(const host::Window&) = nullptr;
    host::Handle grounded = host::noControl; ///< visible while the middle of Rb1 is grounded for the signal
    std::string_view output = "out";
    // class B: the preset that is turned until the middle stands at half the supply
    std::string_view preset{};
    std::string_view middle{};
    /// What the output transistors can carry: the driver's current times their Beta, A; a scale of 0: the course's question is another.
    Figure mostPeak{.scale = 0};
    std::size_t drifting = 1; ///< the transistor whose drift is asked for, from 1
};

/// The number that a caption or field holds: behind its "=" if it has one, where its first digit or sign stands.
double numberIn(std::string_view text);

double valueOf(const host::Window& window, const Figure& figure);

/// The circuit of the design as the sheet holds it.
Circuit circuitOf(const host::Window& window, const SheetTable& table);

/// Raises the voltage of a generator with a resistance of its own, so that Ein arrives at the input.
void driveThroughGenerator(Circuit& circuit, const Stage& stage);

/// The same in the numbers of the textbook; the true current is still that of the design.
Stage stageOf(const host::Window& window, const SheetTable& table, const Circuit& circuit);

} // namespace velmor::check
