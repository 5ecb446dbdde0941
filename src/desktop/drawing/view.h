// SPDX-License-Identifier: MIT
// How a window is looked at: scale, place, colours, language. Plain data handed to the painters.
#pragma once

#include <cstdint>

#include <QPointF>
#include <QRectF>

#include "desktop/drawing/palette_of_inks.h"
#include "host/control.h"

namespace velmor::desktop {

/// Twips in one unit u of the drawing grid.
inline constexpr double twipsPerUnit = 15.0;

struct View {
    double pixelsPerTwip = 1.0 / twipsPerUnit; ///< logical pixels; 1/15 is 100 %
    QPointF origin{}; ///< where the window's left top corner lies, in the painter's coordinates
    const Inks* inks = &lightInks();
    host::Handle hovered = host::noControl; ///< control under the pointer
    host::Handle pressed = host::noControl; ///< button held down
    host::Handle forward = host::noControl; ///< button that comes forward by itself
    double widest = 0.0;   ///< painter's coordinates: no box reaches further to the right; 0: as its table says
    QRectF exposed{};      ///< painter's coordinates; `paintWindow` leaves out what lies outside; empty: all
    bool forPrint = false; ///< no snapping to pixels, no focus, no hover
    bool pale = false;     ///< of a part that the chain has not reached, or a value on one: pale strokes, quiet letters
    bool onButton = false; ///< of a button's drawing: its letters are those of captions
    std::int16_t languageIsEnglish = 0;

    double pixelsPerUnit() const { return pixelsPerTwip * twipsPerUnit; }
};

} // namespace velmor::desktop
