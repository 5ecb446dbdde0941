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

/// The two drawings, in a box of 60 x 50 u.
extern const std::span<const host::Mark> openWings;
extern const std::span<const host::Mark> closedWings;

} // namespace velmor::butterfly
