// SPDX-License-Identifier: MIT
// Copying a window and putting a copy into one.
#include "host/window_state.h"

#include <algorithm>
#include <bit>
#include <stdexcept>
#include <utility>

#include "host/state_change.h"
#include "host/text_store.h"

namespace velmor::host {

namespace window_state_detail {

bool sameBits(double one, double other)
{
    return std::bit_cast<std::uint64_t>(one) == std::bit_cast<std::uint64_t>(other);
}

void addNumber(const Window& window, const Key& key, WindowState& state)
{
    const double value = StateAccess::number(window, key);
    if (!sameBits(value, numberByTable(window.spec(), key)))
        state.numbers.push_back({key, value});
}

void addText(const Window& window, const Key& key, std::string_view value, WindowState& state)
{
    if (value != textByTable(window.spec(), key))
        state.texts.push_back({key, std::string(value)});
}

void addOwn(const Window& window, WindowState& state)
{
    std::uint16_t index = 0;
    for (const OwnView& view : StateAccess::own(window)) {
        state.own.push_back(view.rows);
        for (const OwnRow& row : view.rows) {
            const Key key{noControl, Attribute::own, index++};
            if (row.kind == OwnKind::text)
                addText(window, key, row.text(view.record), state);
            else
                addNumber(window, key, state);
        }
    }
}

template <class Kept>
auto place(std::vector<Kept>& list, const Key& key)
{
    return std::lower_bound(list.begin(), list.end(), key,
                            [](const Kept& kept, const Key& wanted) { return kept.key < wanted; });
}

template <class Kept>
const Kept* find(const std::vector<Kept>& list, const Key& key)
{
    const auto at = place(const_cast<std::vector<Kept>&>(list), key);
    return at == list.end() || at->key != key ? nullptr : &*at;
}

template <class Kept, class Value>
void put(std::vector<Kept>& list, const Key& key, const Value& value, bool asTable)
{
    const auto at = place(list, key);
    const bool there = at != list.end() && at->key == key;
    if (there && asTable)
        list.erase(at);
    else if (there)
        at->value = value;
    else if (!asTable)
        list.insert(at, Kept{key, typename std::decay_t<decltype(Kept::value)>(value)});
}

} // namespace window_state_detail

bool operator==(const KeptNumber& one, const KeptNumber& other)
{
    return one.key == other.key && window_state_detail::sameBits(one.value, other.value);
}

bool operator==(const WindowState& one, const WindowState& other)
{
    return one.spec == other.spec && one.numbers == other.numbers && one.texts == other.texts &&
           one.longTexts == other.longTexts;
}

double WindowState::number(const Key& key) const
{
    const KeptNumber* kept = window_state_detail::find(numbers, key);
    return kept == nullptr ? numberByTable(*spec, key) : kept->value;
}

std::string_view WindowState::text(const Key& key) const
{
    const KeptText* kept = window_state_detail::find(texts, key);
    return kept == nullptr ? textByTable(*spec, key) : kept->value;
}

void WindowState::set(const Key& key, double value)
{
    using namespace window_state_detail;
    put(numbers, key, value, sameBits(value, numberByTable(*spec, key)));
}

void WindowState::set(const Key& key, std::string_view value)
{
    window_state_detail::put(texts, key, value, value == textByTable(*spec, key));
}

const OwnRow& ownRow(const WindowState& state, std::uint16_t index)
{
    std::size_t left = index;
    for (const std::span<const OwnRow> rows : state.own) {
        if (left < rows.size())
            return rows[left];
        left -= rows.size();
    }
    throw std::logic_error("a state has no such value");
}

void copyRare(const Window& window, Handle control, WindowState& state)
{
    using namespace window_state_detail;
    if (!StateAccess::hasRare(window, control))
        return;
    std::vector<Attribute> numbers;
    std::vector<Attribute> texts;
    StateAccess::addRare(window, control, numbers, texts);
    for (const Attribute attribute : numbers)
        addNumber(window, {control, attribute}, state);
    for (const Attribute attribute : texts)
        addText(window, {control, attribute}, StateAccess::text(window, {control, attribute}), state);
}

namespace window_state_detail {

void copyControl(const Window& window, Handle control, WindowState& state)
{
    for (const Attribute attribute : commonNumbers())
        addNumber(window, {control, attribute}, state);
    addText(window, {control, Attribute::text}, window.text(control), state);
    addText(window, {control, Attribute::tag}, window.tag(control), state);
    copyRare(window, control, state);
}

} // namespace window_state_detail

WindowState copyOf(const Window& window)
{
    using namespace window_state_detail;
    WindowState state{.spec = &window.spec()};
    state.numbers.reserve(window.controlCount() * 2);
    state.texts.reserve(window.controlCount());
    for (std::size_t control = 0; control < window.controlCount(); ++control)
        copyControl(window, static_cast<Handle>(control), state);
    addText(window, {noControl, Attribute::caption}, window.caption(), state);
    for (const Attribute attribute : windowNumbers())
        addNumber(window, {noControl, attribute}, state);
    addOwn(window, state);
    return state;
}

// A new window is not always as its table says: an editor is made with captions in the language of the moment.
void putInto(Window& window, const WindowState& state)
{
    apply(window, difference(copyOf(window), state), Direction::forth);
    for (const LongText& text : state.longTexts) {
        TextStore& store = window.store(text.editor);
        store.setAll("");
        for (const std::string& slice : text.slices)
            store.replaceSelection(slice);
        store.select(text.selectionStart, text.selectionLength);
    }
}

LongTextCopy::LongTextCopy(Window& window, Handle editor)
    : window_(window), revision_(window.textRevision()), text_{.editor = editor}
{}

// Inside the program a line break is a line feed; a lone carriage return that somebody typed would not come back.
bool LongTextCopy::next()
{
    if (done_ || stale())
        return false;
    const TextStore& store = window_.store(text_.editor);
    std::string slice = store.slice(at_, LongText::sliceLength);
    if (slice.empty()) {
        done_ = true;
        text_.selectionStart = store.selectionStart();
        text_.selectionLength = store.selectionLength();
        return false;
    }
    at_ += LongText::sliceLength;
    std::replace(slice.begin(), slice.end(), '\r', '\n');
    text_.slices.push_back(std::move(slice));
    return true;
}

LongText LongTextCopy::take()
{
    return std::exchange(text_, {});
}

std::vector<LongText> longTextsOf(Window& window)
{
    std::vector<LongText> texts;
    for (const ControlRow& row : window.spec().controls) {
        if (row.kind != Kind::editor)
            continue;
        LongTextCopy copy(window, row.id);
        while (copy.next())
            continue;
        LongText text = copy.take();
        if (!text.slices.empty())
            texts.push_back(std::move(text));
    }
    return texts;
}

} // namespace velmor::host
