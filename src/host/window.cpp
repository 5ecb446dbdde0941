// SPDX-License-Identifier: MIT
// State of a window's controls: setting it notes the change for whoever shows the window.
#include "host/window.h"

#include <utility>

#include "host/engine.h"
#include "host/step_history.h"

namespace velmor::host {

namespace window_detail {

char folded(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

} // namespace window_detail

bool sameName(std::string_view one, std::string_view other)
{
    if (one.size() != other.size())
        return false;
    // From behind: what is confused with "Text12" is "Text13".
    for (std::size_t at = one.size(); at-- > 0;)
        if (one[at] != other[at] && window_detail::folded(one[at]) != window_detail::folded(other[at]))
            return false;
    return true;
}

Window::Window(SheetHost& host, const WindowSpec& spec)
    : host_(host), spec_(spec), slots_(SlotIndex::of(spec)), caption_(spec.caption), place_(spec.place)
{
    controls_.reserve(spec.controls.size());
    for (const ControlRow& row : spec.controls) {
        Control& control = controls_.emplace_back();
        control.text = row.text;
        control.tag = row.tag;
        control.place = row.place;
        control.visible = row.visible;
        control.enabled = row.enabled;
        control.checked = row.checked;
        control.fontSize = row.fontSize;
        control.backColor = row.backColor;
    }
    normalPlace_ = place_;
}

Window::~Window() = default;

Handle Window::named(std::string_view controlName) const
{
    for (const ControlRow& candidate : spec_.controls)
        if (sameName(candidate.name, controlName))
            return candidate.id;
    return controlName.ends_with(')') ? noControl : named(std::string(controlName) + "(0)");
}

std::span<const Mark> Window::drawing(Handle control) const
{
    const auto borrowed = borrowedDrawings_.find(control);
    return row(borrowed == borrowedDrawings_.end() ? control : borrowed->second).drawing;
}

void Window::borrowDrawing(Handle control, Handle from)
{
    borrowedDrawings_[control] = from;
    markChanged(control);
}

const Font& Window::font(Handle editor)
{
    return fonts_[editor];
}

void Window::setFont(Handle editor, const Font& font)
{
    fonts_[editor] = font;
    controls_[editor].fontSize = static_cast<std::int16_t>(font.size);
    controls_[editor].foreColor = font.color;
    markChanged(editor);
}

const std::string& Window::picture(Handle control) const
{
    static const std::string none;
    const auto held = pictures_.find(control);
    return held == pictures_.end() ? none : held->second;
}

void Window::setPicture(Handle control, std::string_view path)
{
    pictures_[control] = path;
    markChanged(control);
}

const std::string& Window::asked(Handle field) const
{
    static const std::string nothing;
    const auto held = asked_.find(field);
    return held == asked_.end() ? nothing : held->second;
}

void Window::markTouched(Handle control)
{
    ++settings_;
    if (!std::exchange(controls_[control].touched, true))
        touched_.push_back(control);
}

void Window::markChanged(Handle control)
{
    markTouched(control);
    if (std::exchange(controls_[control].changed, true))
        return;
    changes_.push_back(control);
}

void Window::setText(Handle control, std::string_view text)
{
    if (row(control).kind == Kind::editor) {
        store(control).setAll(text);
        host_.engine().programEdited(*this, control);
        return;
    }
    if (controls_[control].text == text)
        return;
    controls_[control].text = text;
    markChanged(control);
}

void Window::setTag(Handle control, std::string_view tag)
{
    if (controls_[control].tag == tag)
        return;
    controls_[control].tag = tag;
    markTouched(control);
}

void Window::setVisible(Handle control, bool visible)
{
    if (std::exchange(controls_[control].visible, visible) != visible)
        markChanged(control);
}

void Window::setEnabled(Handle control, bool enabled)
{
    if (std::exchange(controls_[control].enabled, enabled) != enabled)
        markChanged(control);
}

void Window::setChecked(Handle control, bool checked)
{
    if (std::exchange(controls_[control].checked, checked) != checked)
        markChanged(control);
}

void Window::setPlaceOf(Handle control, const Place& place)
{
    if (controls_[control].place == place)
        return;
    controls_[control].place = place;
    markChanged(control);
}

void Window::setBackColor(Handle control, std::int32_t color)
{
    if (std::exchange(controls_[control].backColor, color) != color)
        markChanged(control);
}

void Window::setForeColor(Handle control, std::int32_t color)
{
    if (std::exchange(controls_[control].foreColor, color) != color)
        markChanged(control);
}

void Window::setFontSize(Handle control, std::int16_t points)
{
    if (std::exchange(controls_[control].fontSize, points) != points)
        markChanged(control);
}

TextStore& Window::store(Handle editor)
{
    std::unique_ptr<TextStore>& held = stores_[editor];
    if (!held)
        held = host_.screen().makeTextStore(*this, editor);
    return *held;
}

std::string Window::wholeText(Handle control)
{
    return row(control).kind == Kind::editor ? store(control).all() : text(control);
}

bool Window::canTakeFocus(Handle control) const
{
    return control < controls_.size() && takesFocus(row(control).kind) && visible(control) && enabled(control);
}

void Window::setCaption(std::string_view caption)
{
    if (caption_ == caption)
        return;
    caption_ = caption;
    ++otherStirrings_;
    windowChanged_ = true;
}

void Window::setPlace(const Place& place)
{
    if (place_ == place)
        return;
    place_ = place;
    ++otherStirrings_;
    windowChanged_ = true;
}

bool Window::hasSlot(Handle control, Event event) const
{
    return slots_.find(control, event) != nullptr;
}

bool Window::runSlot(Handle control, Event event, EventArgs& args)
{
    const SlotFunction function = slots_.find(control, event);
    if (function == nullptr)
        return false;
    ++otherStirrings_;
    args.control = control;
    function(*this, args);
    return true;
}

std::vector<Handle> Window::takeChanges()
{
    for (const Handle control : changes_)
        controls_[control].changed = false;
    return std::exchange(changes_, {});
}

std::vector<Handle> Window::takeTouched()
{
    for (const Handle control : touched_)
        controls_[control].touched = false;
    return std::exchange(touched_, {});
}

bool Window::takeWindowChanged()
{
    return std::exchange(windowChanged_, false);
}

Place shownPlace(const Window& window, Handle control)
{
    const auto place = window.spec().shownPlace;
    return place == nullptr ? window.placeOf(control) : place(window, control);
}

bool isChosen(const Window& window, Handle control)
{
    const ControlRow& row = window.row(control);
    switch (row.chosen) {
    case Chosen::whenDisabled:
        return !window.enabled(control);
    case Chosen::whenShown:
        return window.visible(control) && (row.chosenUnless == noControl || !window.visible(row.chosenUnless));
    case Chosen::never:
        break;
    }
    return false;
}

bool belongs(const Window& window, const GrowthRow& row)
{
    return (row.when == noControl || window.visible(row.when)) &&
           (row.unless == noControl || !window.visible(row.unless)) &&
           (row.norIf == noControl || !window.visible(row.norIf));
}

Tone toneOf(const Window& window, Handle control)
{
    for (const ValueRow& row : window.spec().values)
        if (row.value == control && window.visible(control) && toneOf(window, row.part) == Tone::pale)
            return Tone::pale;
    if (window.visible(control))
        return Tone::ink;
    for (const GrowthRow& row : window.spec().growth)
        if (row.part == control && belongs(window, row))
            return Tone::pale;
    return Tone::away;
}

SlotIndex::SlotIndex(const WindowSpec& spec) : byControl_(spec.controls.size() + 1)
{
    for (const SlotRow& bound : spec.slots) {
        const std::size_t at = bound.control == noControl ? spec.controls.size() : bound.control;
        byControl_[at][static_cast<std::size_t>(bound.event)] = bound.run;
    }
}

const SlotIndex& SlotIndex::of(const WindowSpec& spec)
{
    static std::map<const WindowSpec*, std::unique_ptr<SlotIndex>> indexes;
    std::unique_ptr<SlotIndex>& index = indexes[&spec];
    if (!index)
        index.reset(new SlotIndex(spec));
    return *index;
}

SlotFunction SlotIndex::find(Handle control, Event event) const
{
    const std::size_t at = control == noControl ? byControl_.size() - 1 : control;
    return byControl_[at][static_cast<std::size_t>(event)];
}

} // namespace velmor::host
