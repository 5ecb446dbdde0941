// SPDX-License-Identifier: MIT
// The verdict on a row, in words: it agrees, it differs and why, or what was asked is not reached. Never that a formula is wrong.
#pragma once

#include "check/check.h"

namespace velmor::check {

/// A number for reading: three or four digits, at most two behind the point of decibels and per cent, no exponent, the unit behind
/// it; thousands of ohms as K.
std::string amountText(double value, std::string_view unit);

/// What a rung of the row's ladder does to the figure: dB of a gain, per cent of anything else, with its sign.
std::string stepText(const Row& row, std::size_t rung);

/// A judgement in a word or two.
const host::BiText& judgementText(Judgement judgement);

/// A reason where it begins a line: its first letter raised.
std::string sentence(std::string_view reason);

/// Judges a row of the check and says so in it.
void judge(Row& row, const Design& design, const Check& check);

} // namespace velmor::check
