// SPDX-License-Identifier: MIT
// Everything that the state of a window holds, as one list of attributes: of its controls, of itself, and its own values.
// Each is a number or a text that can be asked for, set, and told by the window's table where nothing has changed it.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "host/window.h"

namespace velmor::host {

enum class Attribute : std::uint8_t {
    // numbers of every control
    left,
    top,
    width,
    height,
    backColor,
    foreColor,
    fontSize,
    visible,
    enabled,
    checked,
    // numbers of few
    drawing, ///< the control whose drawing is borrowed
    selected,
    fontPoints,
    fontBold,
    fontItalic,
    fontUnderline,
    fontStrikeout,
    fontColor,
    // texts of every control
    text,
    tag,
    // texts of few
    asked,
    picture,
    fontName,
    items, ///< of a list; each is followed by a zero
    folder,
    // of the window
    caption,
    windowLeft,
    windowTop,
    windowWidth,
    windowHeight,
    normalLeft, ///< where it stands when it is neither minimised nor maximised
    normalTop,
    normalWidth,
    normalHeight,
    windowState,
    loaded,
    shown,
    everShown,
    defaultInstance,
    turn,        ///< place in the order of use, the last used highest; 0 for none
    current,     ///< it is the current window
    activeChild, ///< it is the active sheet or editor
    focus,
    own, ///< a value of the window's own
    count
};

/// How an attribute is written and what it may be.
enum class Form : std::uint8_t { flag, whole, number, control, text };

struct AttributeRow {
    Attribute id = Attribute::count;
    std::string_view name{};
    Form form = Form::whole;
    double low = 0.0; ///< of a number
    double high = 1.0;
    bool (*fits)(Kind) = nullptr; ///< kinds of control that may have it; null: any
    bool ofWindow = false;
};

const AttributeRow& attributeRow(Attribute attribute);
/// Null when there is none of that name.
const AttributeRow* attributeNamed(std::string_view name, bool ofWindow);

/// What a number or text of a state belongs to.
struct Key {
    Handle control = noControl; ///< noControl: the window
    Attribute attribute = Attribute::text;
    std::uint16_t own = 0; ///< of Attribute::own: which of the window's own values, counted over all its tables

    friend auto operator<=>(const Key&, const Key&) = default; // NOLINT(modernize-use-nullptr): a slip of clang-tidy 14
};

/// Attributes that every control has, and those of few controls which this one has.
std::span<const Attribute> commonNumbers();
std::span<const Attribute> commonTexts();
std::span<const Attribute> windowNumbers();

/// The row of an own value.
const OwnRow& ownRow(std::span<const OwnView> views, std::uint16_t index);

/// What a window of this table holds when nothing has changed it. Own values are 0 and empty.
double numberByTable(const WindowSpec& spec, const Key& key);
std::string_view textByTable(const WindowSpec& spec, const Key& key);

/// Reads and sets attributes. Setting notes the change for the screen, and runs no slot.
class StateAccess {
public:
    static std::span<const OwnView> own(const Window& window) { return window.own_; }
    static double number(const Window& window, const Key& key);
    static std::string text(const Window& window, const Key& key);
    static void setNumber(Window& window, const Key& key, double value);
    static void setText(Window& window, const Key& key, std::string_view value);
    /// Puts those of a control's attributes which few controls have behind those there, in their order.
    static void addRare(const Window& window, Handle control, std::vector<Attribute>& numbers,
                        std::vector<Attribute>& texts);
    static bool hasRare(const Window& window, Handle control);

private:
    static double numberOfWindow(const Window& window, const Key& key);
    static void setNumberOfWindow(Window& window, const Key& key, double value);
};

} // namespace velmor::host
