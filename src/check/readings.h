// SPDX-License-Identifier: MIT
// What the plots of one simulation say of each quantity of a design.
#pragma once

#include "check/check.h"

namespace velmor::check {

/// The value of a quantity in its own unit; nothing where the plots lack it.
Measured readingOf(const Design& design, const std::vector<Plot>& plots, const Swing& swing, Quantity quantity);

/// The quiescent collector current of the transistor of that number, from 1; A.
Measured currentOf(const Circuit& circuit, const Plot& point, std::size_t number, std::size_t row = 0);

/// Input and output wave; empty ones where the plots have none.
Swing readSwing(const Design& design, const std::vector<Plot>& plots, double drive);

/// Gain from the generator to the output, up to the middle of the band.
Response readResponse(const Design& design, const std::vector<Plot>& plots);

} // namespace velmor::check
