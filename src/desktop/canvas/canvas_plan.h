// SPDX-License-Identifier: MIT
// What a window's tables say about mouse and repainting, worked out once for all windows of a kind. Knows no widgets.
#pragma once

#include <vector>

#include "host/window.h"

namespace velmor::desktop {

struct CanvasPlan {
    struct Entry {
        bool target = false;    ///< catches the mouse: takes the focus, has a mouse slot or is part of a drag
        bool clickable = false; ///< a click on it does something, so the pointer becomes a hand
        bool draggable = false; ///< a row of the shortcuts says where it may be dragged
        bool dropTarget = false;
        std::vector<host::Handle> seenBy; ///< controls that show this one's text, its being in hand or its being there
    };
    std::vector<Entry> entries;

    static const CanvasPlan& of(const host::WindowSpec& spec);
};

/// Painted or shown by a widget at a place; the rest are menus and timers.
bool hasPlace(host::Kind kind);

/// Visible itself and inside panels that are visible.
bool isShown(const host::Window& window, host::Handle control);

/// The control itself or one that lies in it.
bool liesIn(const host::WindowSpec& spec, host::Handle control, host::Handle panel);

/// "Rb1" of the drawing's "R_b1", "ΔQIc" of "/\\Q_Ic".
std::string plainSymbol(std::string_view symbol);

} // namespace velmor::desktop
