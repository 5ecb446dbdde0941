// SPDX-License-Identifier: MIT
// The quantities that a check compares: their short names, units and meanings, and how far two values of one may part.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "host/bitext.h"

namespace velmor::check {

enum class Quantity : std::uint8_t {
    QIc,
    QIc2,
    QIc3,
    QIc4,
    QIc5,
    QIc6,
    QIc7,
    Vce,
    Vg,
    Zin,
    fL,
    dBfo,
    output,
    Eopp,
    THD,
    drift,
    Pout,
    Pclean,
    efficiency,
    heat,
    count,
};

/// How course and simulator are compared.
enum class Measure : std::uint8_t {
    share,      ///< within a tenth
    decibel,    ///< gains: within 1 dB
    difference, ///< levels that are decibels already: within 1 dB
    atMost,     ///< asked is the most it may be
    atLeast,    ///< asked is the least it must be
    shown,      ///< nothing to compare it with
};

struct QuantityText {
    Quantity quantity = Quantity::QIc;
    std::string_view name{}; ///< as a walk calls it
    std::string_view unit{};
    Measure measure = Measure::share;
    host::BiText meaning{};
};

/// One row each, in the order of the table that the student sees.
std::span<const QuantityText> quantityTexts();
const QuantityText& textOf(Quantity quantity);
/// Its sign in the letters of a report, which writes the drift so.
std::string_view reportedSignOf(Quantity quantity);
/// Without regard to capitals; nothing when there is no such quantity.
std::optional<Quantity> quantityNamed(std::string_view name);

} // namespace velmor::check
