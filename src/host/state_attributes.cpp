// SPDX-License-Identifier: MIT
// The table of attributes, and how each is read and set.
#include "host/state_attributes.h"

#include <algorithm>
#include <stdexcept>

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
constexpr Attribute numbersOfFonts[] = {fontPoints, fontBold, fontItalic, fontUnderline, fontStrikeout, fontColor};
constexpr Attribute numbersOfWindow[] = {windowLeft, windowTop,   windowWidth,     windowHeight, normalLeft,
                                         normalTop,  normalWidth, normalHeight,    windowState,  loaded,
                                         shown,      everShown,   defaultInstance, focus};

int& partOf(Place& place, Attribute first, Attribute part)
{
    switch (static_cast<int>(part) - static_cast<int>(first)) {
    case 0:
        return place.left;
    case 1:
        return place.top;
    case 2:
        return place.width;
    default:
        return place.height;
    }
}

int partOf(const Place& place, Attribute first, Attribute part)
{
    return partOf(const_cast<Place&>(place), first, part);
}

Place placeWith(Place place, Attribute first, Attribute part, double value)
{
    partOf(place, first, part) = static_cast<int>(value);
    return place;
}

double numberOf(const Font& font, Attribute attribute)
{
    switch (attribute) {
    case fontPoints:
        return font.size;
    case fontBold:
        return font.bold;
    case fontItalic:
        return font.italic;
    case fontUnderline:
        return font.underline;
    case fontStrikeout:
        return font.strikeout;
    default:
        return font.color;
    }
}

void setNumber(Font& font, Attribute attribute, double value)
{
    switch (attribute) {
    case fontPoints:
        font.size = value;
        break;
    case fontBold:
        font.bold = value != 0.0;
        break;
    case fontItalic:
        font.italic = value != 0.0;
        break;
    case fontUnderline:
        font.underline = value != 0.0;
        break;
    case fontStrikeout:
        font.strikeout = value != 0.0;
        break;
    default:
        font.color = static_cast<std::int32_t>(value);
    }
}

std::string joined(const std::vector<std::string>& entries)
{
    std::string all;
    for (const std::string& entry : entries)
        all.append(entry).push_back('\0');
    return all;
}

std::vector<std::string> apart(std::string_view all)
{
    std::vector<std::string> entries;
    for (std::size_t end = all.find('\0'); end != std::string_view::npos; end = all.find('\0')) {
        entries.emplace_back(all.substr(0, end));
        all.remove_prefix(end + 1);
    }
    return entries;
}

template <class Map>
const typename Map::mapped_type& heldOr(const Map& map, Handle control, const typename Map::mapped_type& otherwise)
{
    const auto held = map.find(control);
    return held == map.end() ? otherwise : held->second;
}

const Font plainFont{};
const ListState emptyList{};
const std::string nothing;

/// The record and the row of an own value.
std::pair<void*, const OwnRow*> ownValue(std::span<const OwnView> views, std::size_t index)
{
    for (const OwnView& view : views) {
        if (index < view.rows.size())
            return {view.record, &view.rows[index]};
        index -= view.rows.size();
    }
    throw std::logic_error("a window has no such value");
}

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

const OwnRow& ownRow(std::span<const OwnView> views, std::uint16_t index)
{
    using namespace state_attributes_detail;
    return *ownValue(views, index).second;
}

double numberByTable(const WindowSpec& spec, const Key& key)
{
    using namespace state_attributes_detail;
    const auto row = [&]() -> const ControlRow& { return spec.controls[key.control]; };
    switch (key.attribute) {
    case left:
    case top:
    case width:
    case height:
        return partOf(row().place, left, key.attribute);
    case backColor:
        return row().backColor;
    case foreColor:
        return lookColor;
    case fontSize:
        return row().fontSize;
    case visible:
        return row().visible;
    case enabled:
        return row().enabled;
    case checked:
        return row().checked;
    case selected:
        return emptyList.selected;
    case drawing:
    case focus:
        return noControl;
    case fontPoints:
    case fontBold:
    case fontItalic:
    case fontUnderline:
    case fontStrikeout:
    case fontColor:
        return numberOf(plainFont, key.attribute);
    default:
        return 0.0;
    }
}

std::string_view textByTable(const WindowSpec& spec, const Key& key)
{
    using namespace state_attributes_detail;
    switch (key.attribute) {
    case text:
        return spec.controls[key.control].text;
    case tag:
        return spec.controls[key.control].tag;
    case fontName:
        return plainFont.name;
    case caption:
        return spec.caption;
    default:
        return {};
    }
}

double StateAccess::number(const Window& window, const Key& key)
{
    using namespace state_attributes_detail;
    const auto control = [&]() -> const Control& { return window.controls_[key.control]; };
    switch (key.attribute) {
    case left:
    case top:
    case width:
    case height:
        return partOf(control().place, left, key.attribute);
    case backColor:
        return control().backColor;
    case foreColor:
        return control().foreColor;
    case fontSize:
        return control().fontSize;
    case visible:
        return control().visible;
    case enabled:
        return control().enabled;
    case checked:
        return control().checked;
    case drawing:
        return heldOr(window.borrowedDrawings_, key.control, noControl);
    case selected:
        return heldOr(window.lists_, key.control, emptyList).selected;
    case windowLeft:
    case windowTop:
    case windowWidth:
    case windowHeight:
        return partOf(window.place_, windowLeft, key.attribute);
    case normalLeft:
    case normalTop:
    case normalWidth:
    case normalHeight:
        return partOf(window.normalPlace_, normalLeft, key.attribute);
    case windowState:
        return window.state_;
    case loaded:
        return window.loaded_;
    case shown:
        return window.shown_;
    case everShown:
        return window.everShown_;
    case defaultInstance:
        return window.isDefault_;
    case focus:
        return window.focus_;
    case Attribute::own: {
        const auto [record, row] = ownValue(window.own_, key.own);
        return row->number(record);
    }
    default:
        return numberOf(heldOr(window.fonts_, key.control, plainFont), key.attribute);
    }
}

std::string StateAccess::text(const Window& window, const Key& key)
{
    using namespace state_attributes_detail;
    switch (key.attribute) {
    case Attribute::text:
        return window.controls_[key.control].text;
    case tag:
        return window.controls_[key.control].tag;
    case asked:
        return window.asked(key.control);
    case picture:
        return window.picture(key.control);
    case fontName:
        return heldOr(window.fonts_, key.control, plainFont).name;
    case items:
        return joined(heldOr(window.lists_, key.control, emptyList).items);
    case folder:
        return heldOr(window.lists_, key.control, emptyList).folder;
    case caption:
        return window.caption_;
    default: {
        const auto [record, row] = ownValue(window.own_, key.own);
        return row->text(record);
    }
    }
}

void StateAccess::setNumber(Window& window, const Key& key, double value)
{
    using namespace state_attributes_detail;
    const Handle control = key.control;
    const bool flag = value != 0.0;
    const int whole = static_cast<int>(key.attribute == Attribute::own || key.attribute == fontPoints ? 0.0 : value);
    switch (key.attribute) {
    case left:
    case top:
    case width:
    case height:
        return window.setPlaceOf(control, placeWith(window.placeOf(control), left, key.attribute, value));
    case backColor:
        return window.setBackColor(control, whole);
    case foreColor:
        return window.setForeColor(control, whole);
    case fontSize:
        return window.setFontSize(control, static_cast<std::int16_t>(whole));
    case visible:
        return window.setVisible(control, flag);
    case enabled:
        return window.setEnabled(control, flag);
    case checked:
        return window.setChecked(control, flag);
    case drawing:
        window.borrowedDrawings_.erase(control);
        if (whole != noControl)
            window.borrowedDrawings_[control] = static_cast<Handle>(whole);
        return window.markChanged(control);
    case selected:
        window.lists_[control].selected = whole;
        return window.markChanged(control);
    case windowLeft:
    case windowTop:
    case windowWidth:
    case windowHeight:
        return window.setPlace(placeWith(window.place_, windowLeft, key.attribute, value));
    case normalLeft:
    case normalTop:
    case normalWidth:
    case normalHeight:
        window.normalPlace_ = placeWith(window.normalPlace_, normalLeft, key.attribute, value);
        return;
    case windowState:
        window.state_ = whole;
        window.windowChanged_ = true;
        return;
    case loaded:
        window.loaded_ = flag;
        return;
    case shown:
        window.shown_ = flag;
        window.windowChanged_ = true;
        return;
    case everShown:
        window.everShown_ = flag;
        return;
    case defaultInstance:
        window.isDefault_ = flag;
        return;
    case focus:
        for (const Handle one : {std::exchange(window.focus_, static_cast<Handle>(whole)), window.focus_})
            if (one != noControl)
                window.markChanged(one);
        return;
    case Attribute::own: {
        const auto [record, row] = ownValue(window.own_, key.own);
        return row->setNumber(record, value);
    }
    case turn:
    case current:
    case activeChild:
        return; // the engine's, see Engine::open
    default:
        state_attributes_detail::setNumber(window.fonts_[control], key.attribute, value);
        return window.markChanged(control);
    }
}

void StateAccess::setText(Window& window, const Key& key, std::string_view value)
{
    using namespace state_attributes_detail;
    const Handle control = key.control;
    switch (key.attribute) {
    case Attribute::text:
        return window.setText(control, value);
    case tag:
        return window.setTag(control, value);
    case asked:
        window.asked_[control] = value;
        return window.markTouched(control);
    case picture:
        return window.setPicture(control, value);
    case fontName:
        window.fonts_[control].name = value;
        return window.markChanged(control);
    case items:
        window.lists_[control].items = apart(value);
        return window.markChanged(control);
    case folder:
        window.lists_[control].folder = value;
        return window.markChanged(control);
    case caption:
        return window.setCaption(value);
    default: {
        const auto [record, row] = ownValue(window.own_, key.own);
        return row->setText(record, value);
    }
    }
}

bool StateAccess::hasRare(const Window& window, Handle control)
{
    using namespace state_attributes_detail;
    return window.asked_.contains(control) || window.borrowedDrawings_.contains(control) ||
           window.pictures_.contains(control) || window.lists_.contains(control) || window.fonts_.contains(control);
}

void StateAccess::addRare(const Window& window, Handle control, std::vector<Attribute>& numbers,
                          std::vector<Attribute>& texts)
{
    using namespace state_attributes_detail;
    if (window.borrowedDrawings_.contains(control))
        numbers.push_back(drawing);
    if (window.asked_.contains(control))
        texts.push_back(asked);
    if (window.pictures_.contains(control))
        texts.push_back(picture);
    if (window.fonts_.contains(control)) {
        numbers.insert(numbers.end(), std::begin(numbersOfFonts), std::end(numbersOfFonts));
        texts.push_back(fontName);
    }
    if (window.lists_.contains(control)) {
        numbers.push_back(selected);
        texts.insert(texts.end(), {items, folder});
    }
}

} // namespace velmor::host
