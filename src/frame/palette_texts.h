// SPDX-License-Identifier: MIT
// What the palette and the talkative mouse say: the page of each design, the poem and the symbol notes.
// Texts only; which of them shows, and when, is not known here.
#pragma once

#include "host/bitext.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace velmor::palette {

/// One button of the palette: what hovering it shows and what a click opens. `maxim` is empty where the button has
/// none; `sheetTitle` is empty where the window opened keeps its own title.
struct DesignPage {
    host::BiText text;
    host::BiText maxim;
    host::BiText hoverMainCaption;
    host::BiText hoverPaletteCaption;
    host::BiText sheetTitle;
    std::string_view sheet;
};

/// The pages of the buttons `imgButton(0)` to `imgButton(11)`, in this order.
extern const std::array<DesignPage, 12> designPages;

/// The poem that shows with `Picture13`: its first stanzas stand in `Label1`, the others in `Label21`.
struct Poem {
    host::BiText label1;
    host::BiText label21;
};

extern const Poem poem;

/// A small note on symbols that shows on the main window while the page of `button` is shown.
struct SymbolNote {
    std::string_view label;
    std::size_t button;
    host::BiText text;
};

extern const std::array<SymbolNote, 6> symbolNotes;

} // namespace velmor::palette
