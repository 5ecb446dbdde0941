// SPDX-License-Identifier: MIT
// The table of attributes.
#include "host/state_attributes.h"

#include <algorithm>
#include <iterator>

namespace velmor::host {

namespace state_attributes_detail {

constexpr double farAway = 10'000'000; // twips
constexpr double darkest = -1;         // the look's own colour
constexpr double brightest = 0xFFFFFF;
constexpr double largestFont = 32767;
constexpr double manyItems = 10'000'000;
constexpr double manyWindows = 1'000'000;
constexpr std::int32_t lookColor = -1;

constexpr bool isField(Kind kind)
{
    return kind == Kind::field;
}
constexpr bool isEditor(Kind kind)
{
    return kind == Kind::editor;
}
constexpr bool isList(Kind kind)
{
    return kind == Kind::list;
}
constexpr bool hasText(Kind kind)
{
    return kind != Kind::editor;
}

using enum Attribute;

// clang-format off
constexpr AttributeRow rows[] = {
    // id               name            form           low       high         fits      of the window
    {left,            "left",         Form::whole,   -farAway, farAway,     nullptr,  false},
    {top,             "top",          Form::whole,   -farAway, farAway,     nullptr,  false},
    {width,           "width",        Form::whole,   -farAway, farAway,     nullptr,  false},
    {height,          "height",       Form::whole,   -farAway, farAway,     nullptr,  false},
    {backColor,       "backcolor",    Form::whole,   darkest,  brightest,   nullptr,  false},
    {foreColor,       "forecolor",    Form::whole,   darkest,  brightest,   nullptr,  false},
    {fontSize,        "fontsize",     Form::whole,   0,        largestFont, nullptr,  false},
    {visible,         "visible",      Form::flag,    0,        1,           nullptr,  false},
    {enabled,         "enabled",      Form::flag,    0,        1,           nullptr,  false},
    {checked,         "checked",      Form::flag,    0,        1,           nullptr,  false},
    {drawing,         "drawing",      Form::control, 0,        0,           nullptr,  false},
    {selected,        "selected",     Form::whole,   -1,       manyItems,   isList,   false},
    {fontPoints,      "fontpoints",   Form::number,  0,        largestFont, isEditor, false},
    {fontBold,        "bold",         Form::flag,    0,        1,           isEditor, false},
    {fontItalic,      "italic",       Form::flag,    0,        1,           isEditor, false},
    {fontUnderline,   "underline",    Form::flag,    0,        1,           isEditor, false},
    {fontStrikeout,   "strikeout",    Form::flag,    0,        1,           isEditor, false},
    {fontColor,       "fontcolor",    Form::whole,   darkest,  brightest,   isEditor, false},
    {text,            "text",         Form::text,    0,        0,           hasText,  false},
    {tag,             "tag",          Form::text,    0,        0,           nullptr,  false},
    {asked,           "asked",        Form::text,    0,        0,           isField,  false},
    {picture,         "picture",      Form::text,    0,        0,           nullptr,  false},
    {fontName,        "font",         Form::text,    0,        0,           isEditor, false},
    {items,           "items",        Form::text,    0,        0,           isList,   false},
    {folder,          "folder",       Form::text,    0,        0,           isList,   false},
    {caption,         "caption",      Form::text,    0,        0,           nullptr,  true},
    {windowLeft,      "left",         Form::whole,   -farAway, farAway,     nullptr,  true},
    {windowTop,       "top",          Form::whole,   -farAway, farAway,     nullptr,  true},
    {windowWidth,     "width",        Form::whole,   -farAway, farAway,     nullptr,  true},
    {windowHeight,    "height",       Form::whole,   -farAway, farAway,     nullptr,  true},
    {normalLeft,      "normalleft",   Form::whole,   -farAway, farAway,     nullptr,  true},
    {normalTop,       "normaltop",    Form::whole,   -farAway, farAway,     nullptr,  true},
    {normalWidth,     "normalwidth",  Form::whole,   -farAway, farAway,     nullptr,  true},
    {normalHeight,    "normalheight", Form::whole,   -farAway, farAway,     nullptr,  true},
    {windowState,     "windowstate",  Form::whole,   0,        2,           nullptr,  true},
    {loaded,          "loaded",       Form::flag,    0,        1,           nullptr,  true},
    {shown,           "shown",        Form::flag,    0,        1,           nullptr,  true},
    {everShown,       "evershown",    Form::flag,    0,        1,           nullptr,  true},
    {defaultInstance, "default",      Form::flag,    0,        1,           nullptr,  true},
    {turn,            "turn",         Form::whole,   0,        manyWindows, nullptr,  true},
    {current,         "current",      Form::flag,    0,        1,           nullptr,  true},
    {activeChild,     "active",       Form::flag,    0,        1,           nullptr,  true},
    {focus,           "focus",        Form::control, 0,        0,           nullptr,  true},
};
// clang-format on
static_assert(std::size(rows) == static_cast<std::size_t>(Attribute::own));

constexpr bool inOrder()
{
    for (std::size_t i = 0; i < std::size(rows); ++i)
        if (rows[i].id != static_cast<Attribute>(i))
            return false;
    return true;
}
static_assert(inOrder());

constexpr Attribute numbersOfAll[] = {left,      top,      width,   height,  backColor,
                                      foreColor, fontSize, visible, enabled, checked};
constexpr Attribute textsOfAll[] = {text, tag};
constexpr Attribute numbersOfWindow[] = {windowLeft, windowTop,   windowWidth,     windowHeight, normalLeft,
                                         normalTop,  normalWidth, normalHeight,    windowState,  loaded,
                                         shown,      everShown,   defaultInstance, focus};

} // namespace state_attributes_detail

const AttributeRow& attributeRow(Attribute attribute)
{
    using namespace state_attributes_detail;
    return rows[static_cast<std::size_t>(attribute)];
}

const AttributeRow* attributeNamed(std::string_view name, bool ofWindow)
{
    using namespace state_attributes_detail;
    const auto found = std::find_if(std::begin(rows), std::end(rows), [&](const AttributeRow& row) {
        return row.ofWindow == ofWindow && row.name == name;
    });
    return found == std::end(rows) ? nullptr : found;
}

std::span<const Attribute> commonNumbers()
{
    using namespace state_attributes_detail;
    return numbersOfAll;
}

std::span<const Attribute> commonTexts()
{
    using namespace state_attributes_detail;
    return textsOfAll;
}

std::span<const Attribute> windowNumbers()
{
    using namespace state_attributes_detail;
    return numbersOfWindow;
}

} // namespace velmor::host
