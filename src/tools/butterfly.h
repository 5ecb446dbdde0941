// SPDX-License-Identifier: MIT
// The butterfly of the small windows: an image that flies up to the right and flaps at each tick of a timer.
#pragma once

#include "host/window.h"

namespace velmor::butterfly {

/// The three images of a butterfly: the one that flies and the two drawings that it shows in turn.
struct Images {
    host::Handle main = host::noControl;
    host::Handle openWings = host::noControl;
    host::Handle closeWings = host::noControl;
};

inline constexpr int stepRight = 20; ///< twips at each tick
inline constexpr int stepUp = 5;
inline constexpr int interval = 100; ///< milliseconds

/// Moves the butterfly one step and flips its wings; out of sight it comes back to where its row places it.
void fly(host::Window& window, const Images& images, bool& wingsOpen);

namespace drawings {

// clang-format off
inline constexpr host::GridPoint upperLeft[]  = {{28, 24}, {20, 8}, {8, 2}, {2, 8}, {6, 20}, {28, 26}};
inline constexpr host::GridPoint upperRight[] = {{32, 24}, {40, 8}, {52, 2}, {58, 8}, {54, 20}, {32, 26}};
inline constexpr host::GridPoint lowerLeft[]  = {{28, 28}, {14, 26}, {8, 36}, {14, 46}, {24, 40}, {29, 30}};
inline constexpr host::GridPoint lowerRight[] = {{32, 28}, {46, 26}, {52, 36}, {46, 46}, {36, 40}, {31, 30}};
inline constexpr host::GridPoint foldedUp[]   = {{30, 26}, {34, 8}, {44, 2}, {46, 14}, {32, 28}};
inline constexpr host::GridPoint foldedLow[]  = {{30, 28}, {42, 28}, {44, 40}, {34, 44}, {30, 32}};
inline constexpr host::GridPoint leftFeeler[]  = {{29, 18}, {26, 10}, {22, 6}};
inline constexpr host::GridPoint rightFeeler[] = {{31, 18}, {34, 10}, {38, 6}};

inline constexpr host::Mark open[] = {
    {.symbol = host::Symbol::fill, .ink = host::Ink::accent, .points = upperLeft},
    {.symbol = host::Symbol::fill, .ink = host::Ink::accent, .points = upperRight},
    {.symbol = host::Symbol::fill, .ink = host::Ink::accent, .points = lowerLeft},
    {.symbol = host::Symbol::fill, .ink = host::Ink::accent, .points = lowerRight},
    {.symbol = host::Symbol::wire, .from = {30, 18}, .to = {30, 42}},
    {.symbol = host::Symbol::polyline, .points = leftFeeler},
    {.symbol = host::Symbol::polyline, .points = rightFeeler},
};
inline constexpr host::Mark closed[] = {
    {.symbol = host::Symbol::fill, .ink = host::Ink::accent, .points = foldedUp},
    {.symbol = host::Symbol::fill, .ink = host::Ink::accent, .points = foldedLow},
    {.symbol = host::Symbol::wire, .from = {30, 18}, .to = {30, 42}},
    {.symbol = host::Symbol::polyline, .points = leftFeeler},
    {.symbol = host::Symbol::polyline, .points = rightFeeler},
};
// clang-format on

} // namespace drawings

/// The two drawings, in a box of 60 x 50 u.
inline constexpr std::span<const host::Mark> openWings = drawings::open;
inline constexpr std::span<const host::Mark> closedWings = drawings::closed;

} // namespace velmor::butterfly
