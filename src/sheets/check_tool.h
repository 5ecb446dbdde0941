// SPDX-License-Identifier: MIT
// The sixth tool of a sheet, the check of its design: the screen's own, in the place that the other five leave it and in their
// look. It is no control of the sheet, which knows nothing of it.
#pragma once

#include <array>

#include "sheets/tools.h"

namespace velmor::sheets {

namespace tools_detail {

// clang-format off
inline constexpr auto tick = std::to_array<host::GridPoint>({{34, 22}, {40, 28}, {51, 14}});
inline constexpr std::array checkFace{
    host::Mark{.symbol = host::Symbol::circle,   .from = {27, 6},  .to = {57, 36}},
    host::Mark{.symbol = host::Symbol::polyline, .from = {34, 22}, .to = {51, 14}, .points = tick},
    caption({.es = "Comprobar", .en = "Check"}),
};
// clang-format on

} // namespace tools_detail

inline constexpr host::Place checkPlace = tools_detail::place(5);
inline constexpr std::span<const host::Mark> checkFace = tools_detail::checkFace;
inline constexpr host::BiText checkMeaning{"Comprobar el diseño con el simulador",
                                           "Check the design with the simulator"};

} // namespace velmor::sheets
