// SPDX-License-Identifier: MIT
// How each attribute is read and set, and what it is by the window's table.
#include <stdexcept>
#include <utility>

#include "host/state_attributes.h"

namespace velmor::host {

namespace state_access_detail {

using enum Attribute;

constexpr std::int32_t lookColor = -1;
constexpr Attribute numbersOfFonts[] = {fontPoints, fontBold, fontItalic, fontUnderline, fontStrikeout, fontColor};

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

} // namespace state_access_detail

const OwnRow& ownRow(std::span<const OwnView> views, std::uint16_t index)
{
    using namespace state_access_detail;
    return *ownValue(views, index).second;
}

double numberByTable(const WindowSpec& spec, const Key& key)
{
    using namespace state_access_detail;
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
    using namespace state_access_detail;
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

double StateAccess::numberOfWindow(const Window& window, const Key& key)
{
    using namespace state_access_detail;
    switch (key.attribute) {
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
        return 0.0; // the engine's, see Engine::stateOf
    }
}

double StateAccess::number(const Window& window, const Key& key)
{
    using namespace state_access_detail;
    if (key.control == noControl)
        return numberOfWindow(window, key);
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
    default:
        return numberOf(heldOr(window.fonts_, key.control, plainFont), key.attribute);
    }
}

std::string StateAccess::text(const Window& window, const Key& key)
{
    using namespace state_access_detail;
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

void StateAccess::setNumberOfWindow(Window& window, const Key& key, double value)
{
    using namespace state_access_detail;
    const bool flag = value != 0.0;
    switch (key.attribute) {
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
        window.state_ = static_cast<int>(value);
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
        for (const Handle one : {std::exchange(window.focus_, static_cast<Handle>(value)), window.focus_})
            if (one != noControl)
                window.markChanged(one);
        return;
    case Attribute::own: {
        const auto [record, row] = ownValue(window.own_, key.own);
        return row->setNumber(record, value);
    }
    default:
        return; // the engine's, see Engine::open
    }
}

void StateAccess::setNumber(Window& window, const Key& key, double value)
{
    using namespace state_access_detail;
    if (key.control == noControl)
        return setNumberOfWindow(window, key, value);
    const Handle control = key.control;
    const bool flag = value != 0.0;
    const int whole = static_cast<int>(value); // of a font's points not used
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
    default:
        state_access_detail::setNumber(window.fonts_[control], key.attribute, value);
        return window.markChanged(control);
    }
}

void StateAccess::setText(Window& window, const Key& key, std::string_view value)
{
    using namespace state_access_detail;
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
    using namespace state_access_detail;
    return window.asked_.contains(control) || window.borrowedDrawings_.contains(control) ||
           window.pictures_.contains(control) || window.lists_.contains(control) || window.fonts_.contains(control);
}

void StateAccess::addRare(const Window& window, Handle control, std::vector<Attribute>& numbers,
                          std::vector<Attribute>& texts)
{
    using namespace state_access_detail;
    const bool hasFont = window.fonts_.contains(control);
    const bool hasList = window.lists_.contains(control);
    if (window.borrowedDrawings_.contains(control))
        numbers.push_back(drawing);
    if (hasList)
        numbers.push_back(selected);
    if (hasFont)
        numbers.insert(numbers.end(), std::begin(numbersOfFonts), std::end(numbersOfFonts));
    if (window.asked_.contains(control))
        texts.push_back(asked);
    if (window.pictures_.contains(control))
        texts.push_back(picture);
    if (hasFont)
        texts.push_back(fontName);
    if (hasList)
        texts.insert(texts.end(), {items, folder});
}

} // namespace velmor::host
