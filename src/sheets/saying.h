// SPDX-License-Identifier: MIT
// What a sheet says, as rows: a text in a place, or a message box, by itself or when something happens to a field. Knows no
// sheet.
#pragma once

#include <cstdint>

#include "host/bitext.h"
#include "host/drawing.h"

namespace velmor::sheets {

/// The place of a text that is a message box.
inline constexpr host::Handle inBox = 0xFFFE;

/// What happens to a field when a row is said.
enum class When : std::uint8_t {
    named, ///< nothing: a slot tells the row by its name
    focus,
    click,
    empty,  ///< Enter in the empty field, which keeps the focus
    enter,  ///< the chain goes on
    escape, ///< the chain goes on after Esc, where that is said in other words than after Enter
    hover,
    lesson, ///< a short page about the field in hand, which its slot tells when there is room for it
};

/// One thing that a sheet says. Prompt rows stand in the sheet's table by field and moment; what a step says by itself is a
/// row of its own, with a name.
struct Saying {
    host::Handle about = host::noControl; ///< noControl: every field without a row of its own for this moment
    When when = When::named;
    host::Handle place = inBox; ///< whose text or caption it becomes
    host::BiText text{};        ///< empty in the language of the moment: the place stays as it is
    host::BiText title{};       ///< of a box
    int flags = 0;              ///< of a box
};

/// "Debe colocar una cifra..." / " Place a number...", the box of an empty field at Enter where the sheet names no other.
inline constexpr Saying placeANumber{.when = When::empty,
                                     .text = {.es = "Debe colocar una cifra...", .en = " Place a number..."},
                                     .title = {.es = "Error", .en = "Error"},
                                     .flags = 48};

} // namespace velmor::sheets
