// SPDX-License-Identifier: MIT
// The talkative mouse: what the buttons of the palette and of the circuit bar do to the main window's welcome panel,
// and how they open designs. Nothing here touches files; showing a page creates no window.
#pragma once

#include <cstddef>

#include "host/sheet_host.h"

namespace velmor::palette {

inline constexpr std::size_t designCount = 12;
/// Caption of `lblButton`, on the palette and on the bar.
inline constexpr host::BiText allDesigns{.es = "Todos", .en = "All"};

/// Turns the welcome panel into the page of a button, 0 to 11. Showing it again changes nothing.
void ShowDesignPage(host::SheetHost& host, std::size_t index);

/// What a click on a button does: a new sheet of that design, or the chooser `Form7` for button 11. Nothing for other
/// indices and for a window that the program does not have.
void OpenDesign(host::SheetHost& host, std::size_t index);

/// The palette's own way to the two sheets that `Form7` offers, `Form8` or `Form18`; unloads `Form7`.
void OpenVoltageFeedback(host::SheetHost& host, bool stable);

/// Back to the general page.
void ClearDesignPage(host::SheetHost& host);

/// What a click on `lblButton` does: brings a minimised main window back, else clears the panel away.
void ShowOrClearPanel(host::SheetHost& host);

/// The small notes on symbols, each with the page picture that it belongs to; with `Picture13` the poem.
void ShowNotes(host::SheetHost& host);

/// Shows `Picture13` with the poem in `Label1` and `Label21`.
void ShowPoem(host::SheetHost& host);

/// Colour of a marked button's shape: the desktop's highlight.
inline constexpr std::int32_t markingColor = 0xFFFFFF;

/// Marks one of the thirteen shapes from `firstShape` on, and none when `index` is beyond them.
void markShape(host::Window& window, host::Handle firstShape, std::size_t index);
inline constexpr std::size_t noShape = 99;

} // namespace velmor::palette
