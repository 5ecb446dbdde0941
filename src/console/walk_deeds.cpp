// SPDX-License-Identifier: MIT
// The commands that do something to the program, as a student or a program would.
#include <algorithm>
#include <limits>
#include <optional>

#include "console/sheet_access.h"
#include "console/verbs.h"
#include "console/walk_typing.h"
#include "host/state_change.h"

namespace velmor::console {

namespace deeds_detail {

using host::Handle;
using host::Window;

constexpr int large = std::numeric_limits<int>::max();

void start(Walk& walk, Words)
{
    walk.program().start(walk.engine());
}

void newSheet(Walk& walk, Words words)
{
    const host::WindowSpec& sheet = walk.specOf(words[0]);
    if (sheet.role != host::Role::sheet)
        throw WalkError(std::string(sheet.name) + " is no sheet");
    walk.program().newSheet(walk.engine(), sheet);
}

void window(Walk& walk, Words words)
{
    Window* wanted = walk.window(words[0]);
    if (wanted == nullptr)
        throw WalkError("the window " + inQuotes(words[0]) + " is not open");
    walk.engine().userActivate(*wanted);
}

Handle menuItem(const Window& window, std::string_view name)
{
    for (const host::ControlRow& row : window.spec().controls)
        if (row.kind == host::Kind::menu && host::sameName(row.name, name))
            return row.id;
    return host::noControl;
}

void menu(Walk& walk, Words words)
{
    Window* owner = &walk.current();
    if (menuItem(*owner, words[0]) == host::noControl)
        owner = &walk.engine().mainWindow();
    const Handle item = menuItem(*owner, words[0]);
    if (item == host::noControl)
        throw WalkError("unknown menu item " + inQuotes(words[0]));
    walk.engine().userMenu(*owner, item);
}

void focus(Walk& walk, Words words)
{
    walk.engine().userFocus(walk.current(), walk.control(walk.current(), words[0]));
}

void tab(Walk& walk, Words)
{
    walk.engine().userTab(walk.current());
}

void click(Walk& walk, Words words)
{
    walk.engine().userClick(walk.current(), walk.controlOrBackground(walk.current(), words[0]));
}

void doubleClick(Walk& walk, Words words)
{
    walk.engine().userDoubleClick(walk.current(), walk.controlOrBackground(walk.current(), words[0]));
}

void press(Walk& walk, Words words)
{
    const Handle control = walk.controlOrBackground(walk.current(), words[0]);
    if (words[1] != "left" && words[1] != "right")
        throw WalkError("unknown button " + inQuotes(words[1]));
    int shift = 0;
    for (const std::string& word : words.subspan(2)) {
        if (word != "shift" && word != "ctrl")
            throw WalkError("unknown key " + inQuotes(word));
        shift |= word == "shift" ? 1 : 2;
    }
    const host::Button button = words[1] == "left" ? host::Button::left : host::Button::right;
    walk.engine().userPress(walk.current(), control, button, shift);
}

void hover(Walk& walk, Words words)
{
    walk.engine().userHover(walk.current(), walk.controlOrBackground(walk.current(), words[0]));
}

void drag(Walk& walk, Words words)
{
    Window& place = walk.current();
    walk.engine().userDrag(place, walk.control(place, words[0]), walk.controlOrBackground(place, words[1]));
}

void type(Walk& walk, Words words)
{
    typeText(walk, words[0]);
}

void clear(Walk& walk, Words)
{
    clearField(walk);
}

void fill(Walk& walk, Words words)
{
    const Handle field = walk.control(walk.current(), words[0]);
    if (!walk.engine().userFocus(walk.current(), field))
        return;
    clearField(walk);
    typeText(walk, words[1]);
}

void enter(Walk& walk, Words)
{
    pressKey(walk, enterKey);
}

void esc(Walk& walk, Words)
{
    pressKey(walk, escapeKey);
}

void backspace(Walk& walk, Words)
{
    pressKey(walk, backspaceKey);
}

void key(Walk& walk, Words words)
{
    using Limits = std::numeric_limits<std::int16_t>;
    pressKey(walk, static_cast<std::int16_t>(wholeNumber(words[0], Limits::min(), Limits::max())));
}

void undo(Walk& walk, Words)
{
    walk.engine().userStep(host::Direction::back);
}

void redo(Walk& walk, Words)
{
    walk.engine().userStep(host::Direction::forth);
}

void select(Walk& walk, Words words)
{
    Window& place = walk.current();
    const Handle editor = editorOf(place);
    const auto from = static_cast<std::size_t>(wholeNumber(words[0], 0, large));
    place.store(editor).select(from, static_cast<std::size_t>(wholeNumber(words[1], 0, large)));
}

void tick(Walk& walk, Words words)
{
    Window& place = walk.current();
    const Handle timer = walk.control(place, words[0]);
    if (place.row(timer).kind != host::Kind::timer)
        throw WalkError(inQuotes(words[0]) + " is no timer");
    const int count = wholeNumber(words[1], 0, large);
    for (int i = 0; i < count && walk.engine().isLoaded(&place); ++i)
        walk.engine().userTimer(place, timer);
}

void setState(Walk& walk, int state)
{
    walk.engine().userState(walk.current(), state);
}

void minimise(Walk& walk, Words)
{
    setState(walk, 1);
}

void maximise(Walk& walk, Words)
{
    setState(walk, 2);
}

void restore(Walk& walk, Words)
{
    setState(walk, 0);
}

void close(Walk& walk, Words)
{
    walk.engine().userClose(walk.current());
}

void choose(Walk& walk, Words words)
{
    Window& place = walk.current();
    const Handle list = walk.control(place, words[0]);
    if (place.row(list).kind != host::Kind::list)
        throw WalkError(inQuotes(words[0]) + " is no list");
    const std::vector<std::string>& items = place.list(list).items;
    auto found = std::find(items.begin(), items.end(), words[1]);
    if (found == items.end())
        found = std::find_if(items.begin(), items.end(),
                             [&](const std::string& item) { return walk.screen().plain(item) == words[1]; });
    if (found == items.end())
        walk.fail(words[0] + " has no entry " + inQuotes(words[1]));
    else
        walk.engine().userChoose(place, list, static_cast<int>(found - items.begin()));
}

void set(Walk& walk, Words words)
{
    if (!host::sameName(words[0], "sheet.NombreArchivo"))
        throw WalkError("only sheet.NombreArchivo can be set");
    setSheetFile(walk.current(), words[1].empty() ? "" : walk.screen().resolved(words[1]).string());
}

void call(Walk& walk, Words words)
{
    callSheet(walk.engine(), walk.current(), words[0]);
}

// clang-format off
constexpr Verb table[] = {
    {"start",       VerbKind::preparation, 0, 0, start,       "nothing"},
    {"new",         VerbKind::deed,        1, 1, newSheet,    "SHEET"},
    {"window",      VerbKind::deed,        1, 1, window,      "NAME or NAME#K"},
    {"menu",        VerbKind::deed,        1, 1, menu,        "ITEM"},
    {"focus",       VerbKind::deed,        1, 1, focus,       "CONTROL"},
    {"tab",         VerbKind::deed,        0, 0, tab,         "nothing"},
    {"click",       VerbKind::deed,        1, 1, click,       "CONTROL"},
    {"doubleclick", VerbKind::deed,        1, 1, doubleClick, "CONTROL"},
    {"press",       VerbKind::deed,        2, 4, press,       "CONTROL left|right [shift] [ctrl]"},
    {"hover",       VerbKind::deed,        1, 1, hover,       "CONTROL"},
    {"drag",        VerbKind::deed,        2, 2, drag,        "SOURCE TARGET"},
    {"type",        VerbKind::deed,        1, 1, type,        "TEXT"},
    {"clear",       VerbKind::deed,        0, 0, clear,       "nothing"},
    {"fill",        VerbKind::deed,        2, 2, fill,        "CONTROL TEXT"},
    {"enter",       VerbKind::deed,        0, 0, enter,       "nothing"},
    {"esc",         VerbKind::deed,        0, 0, esc,         "nothing"},
    {"backspace",   VerbKind::deed,        0, 0, backspace,   "nothing"},
    {"key",         VerbKind::deed,        1, 1, key,         "CODE"},
    {"undo",        VerbKind::deed,        0, 0, undo,        "nothing"},
    {"redo",        VerbKind::deed,        0, 0, redo,        "nothing"},
    {"select",      VerbKind::deed,        2, 2, select,      "FROM LENGTH"},
    {"tick",        VerbKind::deed,        2, 2, tick,        "CONTROL COUNT"},
    {"minimise",    VerbKind::deed,        0, 0, minimise,    "nothing"},
    {"maximise",    VerbKind::deed,        0, 0, maximise,    "nothing"},
    {"restore",     VerbKind::deed,        0, 0, restore,     "nothing"},
    {"close",       VerbKind::deed,        0, 0, close,       "nothing"},
    {"choose",      VerbKind::deed,        2, 2, choose,      "CONTROL TEXT"},
    {"set",         VerbKind::deed,        2, 2, set,         "sheet.NombreArchivo PATH"},
    {"call",        VerbKind::deed,        1, 1, call,        "OPERATION"},
};
// clang-format on

} // namespace deeds_detail

std::span<const Verb> deeds()
{
    return deeds_detail::table;
}

} // namespace velmor::console
