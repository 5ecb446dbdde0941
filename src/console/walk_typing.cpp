// SPDX-License-Identifier: MIT
// From characters to keys, and from keys that were let through to text.
#include "console/walk_typing.h"

#include <optional>

#include "rules/code_page.h"

namespace velmor::console {

namespace walk_typing_detail {

using host::Handle;
using host::Kind;
using host::TextStore;
using host::Window;

constexpr std::int16_t tabKey = 9;
constexpr int largestCode = 255;
// Stands for every character beyond the code page: a key filter takes it as a letter, an editor lets it through.
constexpr std::int16_t letterBeyondCodePage = 255;

bool printable(char32_t character)
{
    constexpr char32_t firstPrintable = 32;
    constexpr char32_t deleteCharacter = 127;
    constexpr char32_t firstBehindControls = 160;
    return character >= firstPrintable && (character < deleteCharacter || character >= firstBehindControls);
}

// What a key writes; nothing for keys that only command.
std::optional<char32_t> characterOf(std::int16_t key)
{
    if (key < 0 || key > largestCode)
        return std::nullopt;
    const char32_t character = rules::windows1252Character(static_cast<unsigned char>(key));
    return printable(character) ? std::optional(character) : std::nullopt;
}

std::string withoutLastCharacter(std::string_view text)
{
    std::u32string characters = host::toCodePoints(text);
    if (!characters.empty())
        characters.pop_back();
    return host::toUtf8(characters);
}

void putIntoField(Walk& walk, Window& window, Handle field, std::int16_t key, std::optional<char32_t> character)
{
    std::string text = window.text(field);
    if (key == backspaceKey)
        text = withoutLastCharacter(text);
    else if (character)
        rules::appendUtf8(text, *character);
    walk.engine().userText(window, field, text);
}

// A standing selection is replaced; without one the end of the text is meant.
void putIntoEditor(Walk& walk, Window& window, Handle editor, std::int16_t key, std::optional<char32_t> character)
{
    TextStore& store = window.store(editor);
    std::string inserted;
    if (character)
        rules::appendUtf8(inserted, *character);
    else if (key == enterKey)
        inserted = "\n";
    else if (key == tabKey)
        inserted = "\t";
    else if (key != backspaceKey)
        return;
    if (store.selectionLength() == 0) {
        const std::size_t length = store.length();
        if (inserted.empty() && length == 0)
            return;
        store.select(length - (inserted.empty() ? 1 : 0), inserted.empty() ? 1 : 0);
    }
    store.replaceSelection(inserted);
    walk.engine().userEdited(window, editor);
}

void press(Walk& walk, std::int16_t key, std::optional<char32_t> typed)
{
    Window& window = walk.current();
    const Handle held = window.focus();
    const std::int16_t passed = walk.engine().userKey(window, key);
    if (passed == 0 || !walk.engine().isLoaded(&window))
        return;
    const std::optional<char32_t> character = passed == key ? typed : characterOf(passed);
    if (window.row(held).kind == Kind::field)
        putIntoField(walk, window, held, passed, character);
    else if (window.row(held).kind == Kind::editor)
        putIntoEditor(walk, window, held, passed, character);
}

void typeCharacter(Walk& walk, char32_t character)
{
    if (character == U'\n') {
        press(walk, enterKey, std::nullopt);
        return;
    }
    if (!printable(character)) {
        press(walk,
              character <= static_cast<char32_t>(largestCode) ? static_cast<std::int16_t>(character)
                                                              : letterBeyondCodePage,
              std::nullopt);
        return;
    }
    const std::optional<unsigned char> code = rules::windows1252Code(character);
    press(walk, code ? std::int16_t{*code} : letterBeyondCodePage, character);
}

} // namespace walk_typing_detail

void typeText(Walk& walk, std::string_view text)
{
    for (const char32_t character : host::toCodePoints(withLineFeeds(text)))
        walk_typing_detail::typeCharacter(walk, character);
}

void pressKey(Walk& walk, std::int16_t key)
{
    walk_typing_detail::press(walk, key, walk_typing_detail::characterOf(key));
}

void clearField(Walk& walk)
{
    using namespace walk_typing_detail;
    Window& window = walk.current();
    const Handle held = window.focus();
    if (held == host::noControl)
        return;
    if (window.row(held).kind == Kind::field) {
        walk.engine().userText(window, held, "");
    } else if (window.row(held).kind == Kind::editor && window.store(held).length() > 0) {
        window.store(held).select(0, window.store(held).length());
        window.store(held).replaceSelection("");
        walk.engine().userEdited(window, held);
    }
}

host::Handle editorOf(const host::Window& window)
{
    const host::Handle held = window.focus();
    if (held != host::noControl && window.row(held).kind == host::Kind::editor)
        return held;
    for (const host::ControlRow& row : window.spec().controls)
        if (row.kind == host::Kind::editor)
            return row.id;
    throw WalkError(std::string(window.name()) + " has no editor");
}

} // namespace velmor::console
