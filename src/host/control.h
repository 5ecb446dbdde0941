// SPDX-License-Identifier: MIT
// Controls as plain records: the row that a window's table holds, and the state that a window keeps of it.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/drawing.h"
#include "host/text_store.h"

namespace velmor::host {

enum class Kind : std::uint8_t {
    field,   ///< one-line text box; takes the focus
    page,    ///< text box of several lines, read-only; takes the focus
    editor,  ///< long text with its own store; takes the focus
    label,   ///< shows its caption
    panel,   ///< framed caption; may hold others
    button,  ///< command button; takes the focus
    picture, ///< picture box with a drawing and a caption; takes the focus
    image,   ///< drawing without focus
    option,  ///< option button (`checked`); takes the focus
    check,   ///< check box (`checked`); takes the focus
    list,    ///< list, file, folder or drive list; takes the focus
    line,    ///< part of a drawing
    shape,   ///< part of a drawing
    timer,   ///< fires while enabled
    menu,    ///< menu or menu item (`checked`)
};

/// How a label or panel is to look; the screen decides what that means.
enum class Look : std::uint8_t {
    plain,
    heading, ///< heading of a group
    prompt,  ///< the teacher's voice
    hint,    ///< what the next step wants
    lesson,  ///< a short page of the teacher, which begins at the top
    balloon, ///< name of the thing under the pointer
    note,    ///< small note about a field
    result,  ///< computed value on the drawing
    warning,
    title,
    paper,      ///< background sheet of the drawing
    toolButton, ///< picture or image that acts as a button
    group,      ///< panel behind a group of fields
    invisible,  ///< takes place in the model only; shows nothing by itself
    drawn,      ///< its text is drawn as the value of a mark; assistive technology finds it all the same
};

/// In twips (1/1440 inch), from the window's left top corner.
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    friend bool operator==(const Place&, const Place&) = default;
};

/// Where a field's symbol stands; with `part` the part beside the field bears it already.
enum class SymbolSide : std::uint8_t { left, above, part };

/// When a button, picture or image is the choice in force (a function, a mode, an option), and is to look chosen.
enum class Chosen : std::uint8_t {
    never,
    whenDisabled, ///< it is disabled because it is in force already, not because it is dead
    whenShown,    ///< it stands there only while it is in force
};

/// One row of a window's table: what a control is before anything happens.
struct ControlRow {
    Handle id = noControl;
    std::string_view name{}; ///< the program's own name; an element of an array bears its index, "mnuFile(2)"
    Kind kind = Kind::label;
    Place place{};
    std::string_view text{}; ///< stored text or caption
    bool visible = true;
    bool enabled = true;
    std::string_view symbol{}; ///< of a field: symbol of the quantity, "R_b1"
    std::string_view unit{};   ///< of a field: unit shown beside it
    BiText meaning{};          ///< of a field, button or picture: what it is, for tool tips and assistive technology
    SymbolSide symbolSide = SymbolSide::left;
    Look look = Look::plain;
    std::span<const Mark> drawing{};
    Handle parent = noControl; ///< of a menu item: its menu; of a control inside a panel: the panel
    std::string_view tag = "0";
    bool checked = false;
    bool overlay = false;               ///< lies above the fields (help boxes, grown panels)
    bool clickableWhenDisabled = false; ///< the mouse counts on it even when it is disabled
    Chosen chosen = Chosen::never;      ///< of what acts as a button
    Handle chosenUnless = noControl;    ///< while this control is visible, the choice is still open or another one
    std::int16_t fontSize = 8;          ///< points
    std::int32_t interval = 0;          ///< of a timer: milliseconds between two firings
    std::int32_t backColor = -1;        ///< 0xRRGGBB, -1 the look's own
};

/// True for the kinds that can hold the focus.
constexpr bool takesFocus(Kind kind)
{
    switch (kind) {
    case Kind::field:
    case Kind::page:
    case Kind::editor:
    case Kind::button:
    case Kind::picture:
    case Kind::option:
    case Kind::check:
    case Kind::list:
        return true;
    default:
        return false;
    }
}

/// Typeface of an editor's text.
struct Font {
    std::string name = "Courier New";
    double size = 10.0; ///< points
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeout = false;
    std::int32_t color = 0; ///< 0xRRGGBB
    friend bool operator==(const Font&, const Font&) = default;
};

/// State of one control. Plain data; only `Window` changes it, so that the screen hears of it.
struct Control {
    std::string text; ///< text of a field, caption of anything else
    std::string tag;
    Place place;
    std::int32_t backColor = -1; ///< 0xRRGGBB, -1 the look's own
    std::int32_t foreColor = -1;
    std::int16_t fontSize = 8;
    bool visible = true;
    bool enabled = true;
    bool checked = false;
    bool changed = false; ///< since the screen last looked
    bool touched = false; ///< since whoever follows the state last looked
};

} // namespace velmor::host
