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

/// The flap that comes next.
struct Wings {
    bool open = false;
};
inline constexpr auto wingsTable = host::everyMember<Wings>(host::own<&Wings::open>("wingsOpen"));

/// Moves the butterfly one step and flips its wings; out of sight it comes back to where its row places it.
void fly(host::Window& window, const Images& images, Wings& wings);

namespace drawings {

// clang-format off
inline constexpr host::GridPoint upperLeft[] = {
    {29, 25}, {27, 19}, {24, 13}, {20, 9}, {15, 5}, {10, 3}, {5, 3}, {3, 5}, {2, 8}, {3, 12}, {4, 17}, {7, 21},
    {10, 24}, {13, 25}, {16, 26}, {20, 27}, {23, 27}, {26, 27}, {29, 27}};
inline constexpr host::GridPoint upperRight[] = {
    {31, 25}, {33, 19}, {36, 13}, {40, 9}, {45, 5}, {50, 3}, {55, 3}, {57, 5}, {58, 8}, {57, 12}, {56, 17}, {53, 21},
    {50, 24}, {47, 25}, {44, 26}, {40, 27}, {37, 27}, {34, 27}, {31, 27}};
inline constexpr host::GridPoint lowerLeft[] = {
    {29, 28}, {25, 28}, {21, 28}, {17, 28}, {14, 28}, {10, 29}, {8, 31}, {7, 34}, {7, 38}, {9, 42}, {12, 44}, {15, 46},
    {18, 46}, {20, 45}, {23, 43}, {25, 40}, {26, 38}, {28, 34}, {29, 31}};
inline constexpr host::GridPoint lowerRight[] = {
    {31, 28}, {35, 28}, {39, 28}, {43, 28}, {46, 28}, {50, 29}, {52, 31}, {53, 34}, {53, 38}, {51, 42}, {48, 44},
    {45, 46}, {42, 46}, {40, 45}, {37, 43}, {35, 40}, {34, 38}, {32, 34}, {31, 31}};
inline constexpr host::GridPoint foldedUp[] = {
    {30, 26}, {31, 20}, {32, 15}, {34, 10}, {37, 6}, {41, 3}, {45, 2}, {46, 3}, {47, 6}, {46, 11}, {45, 16}, {43, 20},
    {40, 24}, {38, 25}, {37, 26}, {35, 27}, {33, 28}, {32, 28}, {30, 28}};
inline constexpr host::GridPoint foldedLow[] = {
    {30, 28}, {33, 28}, {36, 28}, {38, 28}, {41, 29}, {43, 30}, {44, 32}, {44, 35}, {44, 38}, {43, 41}, {41, 43},
    {39, 44}, {37, 44}, {35, 43}, {34, 41}, {32, 39}, {31, 37}, {31, 34}, {30, 31}};
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
