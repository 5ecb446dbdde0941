// SPDX-License-Identifier: MIT
// Rules that every table of the program keeps. Each rule looks at one window and tells in words what breaks it; which
// windows there are, it does not know.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/engine.h"
#include "sheets/design_sheet.h"

namespace velmor::lint {

/// What breaks a rule, one sentence each; none when all is well.
using Complaints = std::vector<std::string>;

/// Each row stands at the index of its handle, and a control, a parent or a target named by a row is there.
Complaints handles(const host::WindowSpec& window);
/// Every control has a name, and no two have the same, capitals apart.
Complaints names(const host::WindowSpec& window);
/// Slots belong to controls that exist and can receive their event, and each has a function.
Complaints slots(const host::WindowSpec& window);
/// Controls named in the order of the Tab key take the focus, each once.
Complaints tabOrder(const host::WindowSpec& window);
/// Keys are given once, with a meaning in both languages, to controls that exist.
Complaints shortcuts(const host::WindowSpec& window);
/// Items hang below menus; whatever lies in something lies in a panel or picture. No control is its own ancestor.
Complaints parents(const host::WindowSpec& window);
/// A control to which a rule does not apply, for a reason that stands beside it.
struct Spot {
    std::string_view window;
    std::string_view control;
};
/// Every line, shape and image of a sheet has something to draw, but for the spots told.
Complaints strokes(const host::WindowSpec& window, std::span<const Spot> spots);
/// On a sheet whatever takes the focus and each tool button says what it is in both languages, and each field has its
/// symbol, but for the fields told.
Complaints symbols(const host::WindowSpec& window, std::span<const Spot> withoutSymbol);
/// Every control of a sheet lies inside it, seen or not.
Complaints stayInside(const host::WindowSpec& window);
/// Whatever a sheet, the main window or the palette does for the mouse on a control that takes no focus has a key too, but
/// for the controls told, which are reached in another way.
Complaints keysForTheMouse(const host::WindowSpec& window, std::span<const Spot> reachedOtherwise);
/// What belongs to the window as a whole: name, size, a function that makes it, a sheet's title in both languages.
Complaints wholeWindow(const host::WindowSpec& window);
/// The lines of the file name controls that exist, and both filters are there.
Complaints files(const host::WindowSpec& window, const sheets::SheetSpec& files);

/// Fields, and whatever a person may click that has no caption of its own, say what they are, in both languages: by
/// themselves or by their key.
Complaints meanings(const host::Window& window);
/// Strokes keep to the place of their control, texts close to it; values and fields that marks name exist.
Complaints marks(const host::Window& window);
/// Every field has a place, and it lies inside the window. Places are those that a screen shows.
Complaints places(const host::Window& window);

/// Two controls that lie on the same spot because they are never seen together. "Text*" is every name that begins so.
struct NeverTogether {
    std::string_view window;
    std::string_view one;
    std::string_view other;
};
/// No two fields lie upon each other, but for those told.
Complaints overlaps(const host::Window& window, std::span<const NeverTogether> exceptions);

/// No name stands twice in the catalogue, and the main window comes first.
Complaints catalogue(host::Catalogue windows);

} // namespace velmor::lint
