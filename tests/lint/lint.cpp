// SPDX-License-Identifier: MIT
// The rules about tables, and those that need a window.
#include "lint/lint.h"

#include <algorithm>
#include <set>

namespace velmor::lint {

namespace lint_detail {

using host::ControlRow;
using host::Handle;
using host::Kind;
using host::noControl;
using host::WindowSpec;

std::string quoted(std::string_view text)
{
    return "\"" + std::string(text) + "\"";
}

bool exists(const WindowSpec& window, Handle control)
{
    return control < window.controls.size();
}

std::string lower(std::string_view text)
{
    std::string folded(text);
    std::transform(folded.begin(), folded.end(), folded.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return folded;
}

bool hasSlot(const WindowSpec& window, Handle control, host::Event event)
{
    return std::any_of(window.slots.begin(), window.slots.end(),
                       [&](const host::SlotRow& row) { return row.control == control && row.event == event; });
}

/// Whether a control of this kind can ever receive the event.
bool receives(Kind kind, host::Event event)
{
    using host::Event;
    switch (event) {
    case Event::focus:
    case Event::lostFocus:
    case Event::key:
        return host::takesFocus(kind);
    case Event::timer:
        return kind == Kind::timer;
    case Event::menuOpen:
        return kind == Kind::menu;
    case Event::change:
        return kind == Kind::editor || kind == Kind::list || kind == Kind::field || kind == Kind::page;
    case Event::click:
        return kind != Kind::timer;
    case Event::doubleClick:
    case Event::mouseDown:
    case Event::mouseUp:
    case Event::hover:
    case Event::dragEnter:
    case Event::dragLeave:
    case Event::drop:
        return kind != Kind::timer && kind != Kind::menu;
    default:
        return false;
    }
}

/// Whether the window itself can ever receive the event.
bool windowReceives(host::Event event)
{
    using host::Event;
    switch (event) {
    case Event::focus:
    case Event::lostFocus:
    case Event::key:
    case Event::change:
    case Event::timer:
    case Event::menuOpen:
        return false;
    default:
        return true;
    }
}

} // namespace lint_detail

using namespace lint_detail;

Complaints handles(const WindowSpec& window)
{
    Complaints complaints;
    for (std::size_t i = 0; i < window.controls.size(); ++i) {
        const ControlRow& row = window.controls[i];
        if (row.id != i)
            complaints.push_back(quoted(row.name) + " stands in row " + std::to_string(i) + " with the handle " +
                                 std::to_string(row.id));
        if (row.parent != noControl && !exists(window, row.parent))
            complaints.push_back(quoted(row.name) + " lies in a control that does not exist");
    }
    return complaints;
}

Complaints names(const WindowSpec& window)
{
    Complaints complaints;
    std::set<std::string> seen;
    for (const ControlRow& row : window.controls)
        if (row.name.empty())
            complaints.push_back("row " + std::to_string(row.id) + " has no name");
        else if (!seen.insert(lower(row.name)).second)
            complaints.push_back(quoted(row.name) + " is there twice");
    return complaints;
}

Complaints slots(const WindowSpec& window)
{
    Complaints complaints;
    for (std::size_t i = 0; i < window.slots.size(); ++i) {
        const host::SlotRow& row = window.slots[i];
        const std::string where = "slot " + std::to_string(i);
        const auto earlier = std::span(window.slots).first(i);
        const bool takesAway = std::any_of(earlier.begin(), earlier.end(), [&row](const host::SlotRow& other) {
            return other.control == row.control && other.event == row.event && other.run != nullptr;
        });
        if (row.run == nullptr && !takesAway)
            complaints.push_back(where + " has no function and takes none away");
        if (row.control == noControl) {
            if (!windowReceives(row.event))
                complaints.push_back(where + " waits for an event that a window never gets");
        } else if (!exists(window, row.control)) {
            complaints.push_back(where + " belongs to a control that does not exist");
        } else if (!receives(window.controls[row.control].kind, row.event)) {
            complaints.push_back(where + " waits for an event that " + quoted(window.controls[row.control].name) +
                                 " never gets");
        }
    }
    return complaints;
}

Complaints tabOrder(const WindowSpec& window)
{
    Complaints complaints;
    std::set<Handle> seen;
    for (const Handle control : window.tabOrder)
        if (!exists(window, control))
            complaints.push_back("the tab order names a control that does not exist");
        else if (!host::takesFocus(window.controls[control].kind))
            complaints.push_back(quoted(window.controls[control].name) + " is in the tab order and takes no focus");
        else if (!seen.insert(control).second)
            complaints.push_back(quoted(window.controls[control].name) + " is in the tab order twice");
    return complaints;
}

Complaints shortcuts(const WindowSpec& window)
{
    Complaints complaints;
    std::set<std::string> seen;
    for (const host::ShortcutRow& row : window.shortcuts) {
        if (row.keys.empty())
            complaints.push_back("a shortcut has no key");
        else if (!seen.insert(lower(row.keys)).second)
            complaints.push_back("the key " + quoted(row.keys) + " is given twice");
        if (row.control != noControl && !exists(window, row.control))
            complaints.push_back("the key " + quoted(row.keys) + " belongs to a control that does not exist");
        if (row.target != noControl && !exists(window, row.target))
            complaints.push_back("the key " + quoted(row.keys) + " leads to a control that does not exist");
        if (row.action == host::KeyAction::run && !hasSlot(window, noControl, host::Event::shortcut))
            complaints.push_back("the key " + quoted(row.keys) + " runs a slot that is not there");
        if (row.meaning.es.empty() || row.meaning.en.empty())
            complaints.push_back("the key " + quoted(row.keys) + " lacks its meaning in a language");
    }
    return complaints;
}

Complaints parents(const WindowSpec& window)
{
    Complaints complaints;
    for (const ControlRow& row : window.controls) {
        if (!exists(window, row.parent))
            continue;
        const Kind parent = window.controls[row.parent].kind;
        if (row.kind == Kind::menu && parent != Kind::menu)
            complaints.push_back("the item " + quoted(row.name) + " hangs below no menu");
        if (row.kind != Kind::menu && parent != Kind::panel && parent != Kind::picture)
            complaints.push_back(quoted(row.name) + " lies in what is neither panel nor picture");
        Handle above = row.parent;
        for (std::size_t steps = 0; exists(window, above); above = window.controls[above].parent)
            if (++steps > window.controls.size()) {
                complaints.push_back(quoted(row.name) + " is its own ancestor");
                break;
            }
    }
    return complaints;
}

Complaints meanings(const host::Window& window)
{
    const WindowSpec& spec = window.spec();
    const auto keySays = [&spec](Handle control) {
        return std::any_of(spec.shortcuts.begin(), spec.shortcuts.end(), [&](const host::ShortcutRow& row) {
            return row.control == control && !row.meaning.es.empty() && !row.meaning.en.empty();
        });
    };
    Complaints complaints;
    for (const ControlRow& row : spec.controls) {
        const bool drawn = row.kind == Kind::picture || row.kind == Kind::image;
        const bool used =
            row.kind == Kind::field || row.kind == Kind::button || (drawn && hasSlot(spec, row.id, host::Event::click));
        const bool captioned = row.kind != Kind::field && !window.text(row.id).empty();
        if (row.meaning.es.empty() != row.meaning.en.empty())
            complaints.push_back(quoted(row.name) + " says what it is in one language only");
        else if (used && !captioned && row.meaning.es.empty() && !keySays(row.id))
            complaints.push_back(quoted(row.name) + " does not say what it is");
    }
    return complaints;
}

Complaints strokes(const WindowSpec& window, std::span<const Spot> spots)
{
    Complaints complaints;
    if (window.role != host::Role::sheet)
        return complaints;
    const auto told = [&](const ControlRow& row) {
        return std::any_of(spots.begin(), spots.end(), [&](const Spot& spot) {
            return host::sameName(spot.window, window.name) && host::sameName(spot.control, row.name);
        });
    };
    for (const ControlRow& row : window.controls) {
        const bool drawn = row.kind == Kind::line || row.kind == Kind::shape || row.kind == Kind::image;
        if (drawn && row.drawing.empty() && !told(row))
            complaints.push_back(quoted(row.name) + " draws nothing");
    }
    return complaints;
}

Complaints wholeWindow(const WindowSpec& window)
{
    Complaints complaints;
    if (window.name.empty())
        complaints.emplace_back("the window has no name");
    if (window.create == nullptr)
        complaints.emplace_back("nothing makes the window");
    if (window.place.width <= 0 || window.place.height <= 0)
        complaints.emplace_back("the window has no size");
    if (window.sheetTitle.es.empty() != window.sheetTitle.en.empty())
        complaints.emplace_back("the sheet's title is there in one language only");
    return complaints;
}

Complaints files(const WindowSpec& window, const sheets::SheetSpec& files)
{
    Complaints complaints;
    const auto look = [&](std::span<const sheets::FileLine> lines, std::string_view direction) {
        for (std::size_t i = 0; i < lines.size(); ++i)
            if (lines[i].control != noControl && !exists(window, lines[i].control))
                complaints.push_back("line " + std::to_string(i + 1) + " that is " + std::string(direction) +
                                     " names a control that does not exist");
        if (lines.empty())
            complaints.push_back("no line is " + std::string(direction));
    };
    look(files.written, "written");
    look(files.read, "read");
    if (files.filter.es.find('|') == std::string_view::npos || files.filter.en.find('|') == std::string_view::npos)
        complaints.emplace_back("a filter is missing or has no pattern");
    if (files.temperatureField != noControl && !exists(window, files.temperatureField))
        complaints.emplace_back("the temperature field does not exist");
    return complaints;
}

Complaints catalogue(host::Catalogue windows)
{
    Complaints complaints;
    std::set<std::string> seen;
    for (const WindowSpec* window : windows)
        if (!seen.insert(lower(window->name)).second)
            complaints.push_back("the window " + quoted(window->name) + " is there twice");
    if (windows.empty() || windows.front()->role != host::Role::mainWindow)
        complaints.emplace_back("the main window does not come first");
    return complaints;
}

} // namespace velmor::lint
