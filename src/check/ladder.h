// SPDX-License-Identifier: MIT
// From the course's figure to the simulator's, one replaced simplification a rung, each with its reason. It knows no sheet.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "check/stage.h"
#include "host/bitext.h"

namespace velmor::check {

/// A rung as a table tells it.
struct RungRow {
    Truth truth = Truth::junction;
    host::BiText reason{}; ///< one or two sentences
};

struct Rung {
    double value = 0; ///< what the formula gives from here on
    host::BiText reason{};
};

struct Ladder {
    double start = 0; ///< the course's figure
    std::vector<Rung> rungs{};
    double measured = 0; ///< the simulator's

    double end() const { return rungs.empty() ? start : rungs.back().value; }
    /// What the last rung leaves unexplained, dB.
    double remainder() const;
    /// The rung that moves the figure most; null for a ladder without rungs.
    const Rung* highest() const;
    /// How far a rung moves the figure, dB; above 0 when upwards.
    double stepOf(std::size_t rung) const;
};

/// Above it a deck must be wrong: nothing is said of the design then.
inline constexpr double mostRemainder = 0.1; // dB

/// 20 log of the share of two amounts, dB; 0 where one is not above 0.
double decibel(double value, double reference);

/// `counted` is what the course does not leave out on this sheet.
Ladder climb(double start, const Stage& stage, double (*formula)(const Stage&, Truths), Truths counted,
             std::span<const RungRow> rows, double measured);

} // namespace velmor::check
