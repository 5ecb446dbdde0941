// SPDX-License-Identifier: MIT
// What the circuits of the power sheets share when a design is checked.
#pragma once

#include <array>

#include "check/sheet_table.h"

namespace velmor::power {

/// From volts peak to peak to volts r.m.s. of a sine.
inline constexpr double effective = 0.35355339059327;

inline constexpr check::Figure Vj{.scale = 0.6};

// clang-format off
inline constexpr host::BiText plainTransistors{"Transistores sin efecto Early ni capacidades, Vj 0.6 V",
                                               "Transistors without Early effect or capacitances, Vj 0.6 V"};
inline constexpr auto driverRungs = std::to_array<check::RungRow>({
    {check::Truth::middle,   {"el curso pone la salida justo en Es / 2; donde de verdad descansa, a RL le queda otra tensión.",
                              "the course puts the output exactly at Es / 2; where it really rests, RL is left with another voltage."}},
    {check::Truth::nextBase, {"el curso deja afuera la base de la salida, que toma su corriente de RL antes que Q1.",
                              "the course leaves out the base of the output, which takes its current from RL before Q1."}},
});
// clang-format on

} // namespace velmor::power
