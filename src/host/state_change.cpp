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

StepWatch::StepWatch(Window& window) : window_(window), last_(copyOf(window))
{
    window_.takeTouched();
    noteOwn();
}

// Most own values stay as they are: they are compared without being looked up.
void StepWatch::noteOwn()
{
    ownNumbers_.clear();
    for (const OwnView& view : StateAccess::own(window_))
        for (const OwnRow& row : view.rows)
            ownNumbers_.push_back(row.kind == OwnKind::text ? 0.0 : row.number(view.record));
}

StateChange StepWatch::step()
{
    StateChange change;
    addControls(window_.takeTouched(), change);
    addWindow(change);
    host::apply(last_, change, Direction::forth);
    noteOwn();
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
    host::apply(last_, change, direction);
    window_.takeTouched();
    noteOwn();
}

void StepWatch::addControls(const std::vector<Handle>& touched, StateChange& change) const
{
    using namespace state_change_detail;
    WindowState now{.spec = last_.spec};
    for (const Handle control : touched) {
        now.numbers.clear();
        now.texts.clear();
        copyControl(window_, control, now);
        compareNumbers(*last_.spec, about(last_.numbers, control), now.numbers, change);
        compareTexts(*last_.spec, about(last_.texts, control), now.texts, change);
    }
}

void StepWatch::addWindow(StateChange& change) const
{
    const auto sameBits = [](double one, double other) {
        return std::bit_cast<std::uint64_t>(one) == std::bit_cast<std::uint64_t>(other);
    };
    const auto number = [&](const Key& key, double now) {
        const double before = last_.number(key);
        if (!(KeptNumber{key, before} == KeptNumber{key, now}))
            change.numbers.push_back({key, before, now});
    };
    number({noControl, Attribute::focus}, window_.focus());
    std::uint16_t index = 0;
    for (const OwnView& view : StateAccess::own(window_))
        for (const OwnRow& row : view.rows) {
            const Key key{noControl, Attribute::own, index++};
            if (view.undo == Undo::leaves)
                continue;
            const double now = row.kind == OwnKind::text ? 0.0 : row.number(view.record);
            if (row.kind != OwnKind::text && sameBits(now, ownNumbers_[key.own]))
                continue;
            if (row.kind != OwnKind::text)
                number(key, now);
            else if (const std::string_view before = last_.text(key); before != row.text(view.record))
                change.texts.push_back({key, std::string(before), row.text(view.record)});
        }
}

} // namespace velmor::host
