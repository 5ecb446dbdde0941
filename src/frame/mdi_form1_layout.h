// SPDX-License-Identifier: MIT
// The parts of the main window as a screen shows them, in twips, bar and panel side by side.
#pragma once

#include "host/window.h"

namespace velmor::main_window {

/// The circuit bar: two columns of buttons.
inline constexpr host::Place circuitBar{0, 0, 2400, 10125};
/// The welcome panel, whole: what stands there while no sheet is open.
inline constexpr host::Place welcomePanel{2400, 0, 17850, 10125};
/// The part of it that bears the page of a design: what may lie over the sheets while the mouse talks.
inline constexpr host::Place pageStrip{2400, 2900, 17850, 5000};

/// Place of each control within these parts.
host::Place shownPlaceOf(const host::Window& window, host::Handle control);

} // namespace velmor::main_window
