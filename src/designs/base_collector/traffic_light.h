// SPDX-License-Identifier: MIT
// The light that leads to the analysis page, in its three states: waiting, green, page open. Which lamp is lit says it
// too, not its colour alone. Counted from the corner of the button.
#pragma once

#include <array>

#include "host/drawing.h"

namespace velmor::base_collector::light {

namespace light_detail {

inline constexpr int row = 20;
inline constexpr int radius = 8;

/// The filled disc of a lamp, a little smaller than its rim.
template <int X>
inline constexpr std::array<host::GridPoint, 16> disc = [] {
    constexpr int around[16][2] = {{6, 0},  {6, 2},   {4, 4},   {2, 6},   {0, 6},  {-2, 6}, {-4, 4}, {-6, 2},
                                   {-6, 0}, {-6, -2}, {-4, -4}, {-2, -6}, {0, -6}, {2, -6}, {4, -4}, {6, -2}};
    std::array<host::GridPoint, 16> points{};
    for (std::size_t i = 0; i < points.size(); ++i)
        points[i] = {static_cast<std::int16_t>(X + around[i][0]), static_cast<std::int16_t>(row + around[i][1])};
    return points;
}();

constexpr host::Mark rim(int x)
{
    return {.symbol = host::Symbol::circle,
            .from = {static_cast<std::int16_t>(x - radius), static_cast<std::int16_t>(row - radius)},
            .to = {static_cast<std::int16_t>(x + radius), static_cast<std::int16_t>(row + radius)}};
}

template <int Lit>
constexpr std::array<host::Mark, 6> face(host::Ink ink, host::BiText caption)
{
    return {
        host::Mark{.symbol = host::Symbol::roundFrame, .from = {10, 8}, .to = {74, 32}},
        rim(22),
        rim(42),
        rim(62),
        host::Mark{.symbol = host::Symbol::fill, .ink = ink, .points = disc<Lit>},
        host::Mark{
            .symbol = host::Symbol::text, .from = {42, 41}, .note = caption, .side = host::Side::below, .size = 90}};
}

} // namespace light_detail

inline constexpr auto waiting = light_detail::face<22>(host::Ink::warning, {"Espere", "Wait"});
inline constexpr auto pageOpen = light_detail::face<42>(host::Ink::normal, {"Volver", "Back"});
inline constexpr auto green = light_detail::face<62>(host::Ink::accent, {"Análisis", "Analysis"});

} // namespace velmor::base_collector::light
