// SPDX-License-Identifier: MIT
// Differences are found by going through two sorted lists at once.
#include "host/state_change.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <span>
#include <utility>

namespace velmor::host {

namespace state_change_detail {

/// Calls `differ(key, before, after)` for each key whose values differ; a null is the value of the table.
template <class Kept, class Differ>
void compare(std::span<const Kept> before, std::span<const Kept> after, Differ differ)
{
    auto one = before.begin();
    auto other = after.begin();
    while (one != before.end() || other != after.end()) {
        if (other == after.end() || (one != before.end() && one->key < other->key)) {
            differ(one->key, &one->value, nullptr);
            ++one;
        } else if (one == before.end() || other->key < one->key) {
            differ(other->key, nullptr, &other->value);
            ++other;
        } else {
            if (!(*one == *other))
                differ(one->key, &one->value, &other->value);
            ++one;
            ++other;
        }
    }
}

void compareNumbers(const WindowSpec& spec, std::span<const KeptNumber> before, std::span<const KeptNumber> after,
                    StateChange& change)
{
    compare(before, after, [&](const Key& key, const double* one, const double* other) {
        const double byTable = numberByTable(spec, key);
        change.numbers.push_back({key, one == nullptr ? byTable : *one, other == nullptr ? byTable : *other});
    });
}

void compareTexts(const WindowSpec& spec, std::span<const KeptText> before, std::span<const KeptText> after,
                  StateChange& change)
{
    compare(before, after, [&](const Key& key, const std::string* one, const std::string* other) {
        const std::string_view byTable = textByTable(spec, key);
        change.texts.push_back(
            {key, std::string(one == nullptr ? byTable : *one), std::string(other == nullptr ? byTable : *other)});
    });
}

/// What a sorted list says of one control.
template <class Kept>
std::span<const Kept> about(const std::vector<Kept>& list, Handle control)
{
    const auto from = std::lower_bound(list.begin(), list.end(), control,
                                       [](const Kept& kept, Handle wanted) { return kept.key.control < wanted; });
    auto to = from;
    while (to != list.end() && to->key.control == control)
        ++to;
    return {from, to};
}

void addNumber(const Key& key, double before, double now, StateChange& change)
{
    if (std::bit_cast<std::uint64_t>(before) != std::bit_cast<std::uint64_t>(now))
        change.numbers.push_back({key, before, now});
}

void addWhole(Handle control, Attribute attribute, std::int32_t before, std::int32_t now, StateChange& change)
{
    if (before != now)
        change.numbers.push_back({{control, attribute}, static_cast<double>(before), static_cast<double>(now)});
}

void addText(const Key& key, std::string_view before, std::string_view now, StateChange& change)
{
    if (before != now)
        change.texts.push_back({key, std::string(before), std::string(now)});
}

/// What every control has, as it is or as the table has it.
struct Face {
    std::string_view text;
    std::string_view tag;
    Place place;
    std::int32_t backColor;
    std::int32_t foreColor;
    std::int16_t fontSize;
    bool visible;
    bool enabled;
    bool checked;
    friend bool operator==(const Face&, const Face&) = default;
};

Face faceOf(const Control& control)
{
    return {control.text,     control.tag,     control.place,   control.backColor, control.foreColor,
            control.fontSize, control.visible, control.enabled, control.checked};
}

Face faceOf(const ControlRow& row)
{
    return {row.text, row.tag, row.place, row.backColor, -1, row.fontSize, row.visible, row.enabled, row.checked};
}

/// Of the attributes that few controls have.
bool isRare(const Key& key)
{
    if (key.control == noControl)
        return false;
    return (key.attribute >= Attribute::drawing && key.attribute <= Attribute::fontColor) ||
           (key.attribute >= Attribute::asked && key.attribute <= Attribute::folder);
}

void comparePlaces(Handle control, const Place& before, const Place& now, StateChange& change)
{
    addWhole(control, Attribute::left, before.left, now.left, change);
    addWhole(control, Attribute::top, before.top, now.top, change);
    addWhole(control, Attribute::width, before.width, now.width, change);
    addWhole(control, Attribute::height, before.height, now.height, change);
}

void compareFaces(Handle control, const Face& before, const Face& now, StateChange& change)
{
    if (!(before.place == now.place))
        comparePlaces(control, before.place, now.place, change);
    addWhole(control, Attribute::backColor, before.backColor, now.backColor, change);
    addWhole(control, Attribute::foreColor, before.foreColor, now.foreColor, change);
    addWhole(control, Attribute::fontSize, before.fontSize, now.fontSize, change);
    addWhole(control, Attribute::visible, before.visible, now.visible, change);
    addWhole(control, Attribute::enabled, before.enabled, now.enabled, change);
    addWhole(control, Attribute::checked, before.checked, now.checked, change);
    addText({control, Attribute::text}, before.text, now.text, change);
    addText({control, Attribute::tag}, before.tag, now.tag, change);
}

std::size_t heapOf(const std::string& text)
{
    return text.capacity() > std::string().capacity() ? text.capacity() + 1 : 0;
}

} // namespace state_change_detail

std::size_t StateChange::size() const
{
    std::size_t bytes =
        sizeof *this + numbers.capacity() * sizeof(ChangedNumber) + texts.capacity() * sizeof(ChangedText);
    for (const ChangedText& text : texts)
        bytes += state_change_detail::heapOf(text.before) + state_change_detail::heapOf(text.after);
    return bytes;
}

StateChange difference(const WindowState& before, const WindowState& after)
{
    StateChange change;
    state_change_detail::compareNumbers(*before.spec, before.numbers, after.numbers, change);
    state_change_detail::compareTexts(*before.spec, before.texts, after.texts, change);
    return change;
}

void apply(WindowState& state, const StateChange& change, Direction direction)
{
    const bool forth = direction == Direction::forth;
    for (const ChangedNumber& number : change.numbers)
        state.set(number.key, forth ? number.after : number.before);
    for (const ChangedText& text : change.texts)
        state.set(text.key, std::string_view(forth ? text.after : text.before));
}

void apply(Window& window, const StateChange& change, Direction direction)
{
    const bool forth = direction == Direction::forth;
    for (const ChangedNumber& number : change.numbers)
        StateAccess::setNumber(window, number.key, forth ? number.after : number.before);
    for (const ChangedText& text : change.texts)
        StateAccess::setText(window, text.key, forth ? text.after : text.before);
}

StepWatch::StepWatch(Window& window)
    : window_(window), place_(window.controlCount(), asTable), rare_{.spec = &window.spec()}
{
    using namespace state_change_detail;
    for (Handle control = 0; control < window.controlCount(); ++control) {
        if (!(faceOf(window.control(control)) == faceOf(window.row(control))))
            note(control);
        copyRare(window, control, rare_);
    }
    window_.takeTouched();
    noteWindow();
}

void StepWatch::note(Handle control)
{
    if (place_[control] == asTable) {
        place_[control] = static_cast<std::uint16_t>(controls_.size());
        controls_.push_back(window_.control(control));
    } else {
        controls_[place_[control]] = window_.control(control);
    }
}

void StepWatch::noteRare(const StateChange& change, Direction direction)
{
    using namespace state_change_detail;
    const bool forth = direction == Direction::forth;
    for (const ChangedNumber& number : change.numbers)
        if (isRare(number.key))
            rare_.set(number.key, forth ? number.after : number.before);
    for (const ChangedText& text : change.texts)
        if (isRare(text.key))
            rare_.set(text.key, std::string_view(forth ? text.after : text.before));
}

void StepWatch::noteWindow()
{
    focus_ = window_.focus();
    ownNumbers_.clear();
    ownTexts_.clear();
    for (const OwnView& view : StateAccess::own(window_))
        for (const OwnRow& row : view.rows) {
            const bool text = row.kind == OwnKind::text;
            ownNumbers_.push_back(text ? 0.0 : row.number(view.record));
            if (text)
                ownTexts_.push_back(row.text(view.record));
        }
}

StateChange StepWatch::step()
{
    StateChange change;
    const std::vector<Handle> touched = window_.takeTouched();
    addControls(touched, change);
    addWindow(change);
    for (const Handle control : touched)
        note(control);
    noteRare(change, Direction::forth);
    noteWindow();
    change.numbers.shrink_to_fit();
    change.texts.shrink_to_fit();
    return change;
}

StateChange StepWatch::pending() const
{
    StateChange change;
    addControls(window_.touched(), change);
    addWindow(change);
    return change;
}

void StepWatch::lead(const StateChange& change, Direction direction)
{
    host::apply(window_, change, direction);
    for (const Handle control : window_.takeTouched())
        note(control);
    noteRare(change, direction);
    noteWindow();
}

void StepWatch::addControls(const std::vector<Handle>& touched, StateChange& change) const
{
    using namespace state_change_detail;
    WindowState now{.spec = rare_.spec};
    for (const Handle control : touched) {
        const bool asInTable = place_[control] == asTable;
        const Face before = asInTable ? faceOf(window_.row(control)) : faceOf(controls_[place_[control]]);
        compareFaces(control, before, faceOf(window_.control(control)), change);
        addRare(control, now, change);
    }
}

void StepWatch::addRare(Handle control, WindowState& now, StateChange& change) const
{
    using namespace state_change_detail;
    const std::span<const KeptNumber> numbers = about(rare_.numbers, control);
    const std::span<const KeptText> texts = about(rare_.texts, control);
    if (numbers.empty() && texts.empty() && !StateAccess::hasRare(window_, control))
        return;
    now.numbers.clear();
    now.texts.clear();
    copyRare(window_, control, now);
    compareNumbers(*rare_.spec, numbers, now.numbers, change);
    compareTexts(*rare_.spec, texts, now.texts, change);
}

void StepWatch::addWindow(StateChange& change) const
{
    using namespace state_change_detail;
    addNumber({noControl, Attribute::focus}, focus_, window_.focus(), change);
    std::uint16_t index = 0;
    std::size_t texts = 0;
    for (const OwnView& view : StateAccess::own(window_))
        for (const OwnRow& row : view.rows) {
            const Key key{noControl, Attribute::own, index++};
            const bool text = row.kind == OwnKind::text;
            const std::size_t held = text ? texts++ : 0;
            if (view.undo == Undo::leaves)
                continue;
            if (text)
                addText(key, ownTexts_[held], row.text(view.record), change);
            else
                addNumber(key, ownNumbers_[key.own], row.number(view.record), change);
        }
}

} // namespace velmor::host
