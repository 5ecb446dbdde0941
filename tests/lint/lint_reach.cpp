// SPDX-License-Identifier: MIT
// The rules about what a person reaches: what is used says what it is, and what the mouse alone would reach has a key.
#include <algorithm>
#include <set>

#include "lint/lint.h"

namespace velmor::lint {

namespace lint_reach_detail {

using host::ControlRow;
using host::Event;
using host::Handle;
using host::Kind;
using host::Role;
using host::WindowSpec;

std::string rowName(const ControlRow& row)
{
    return "\"" + std::string(row.name) + "\"";
}

/// The item that hangs below a menu is reached through it.
bool mouseAlone(const ControlRow& row)
{
    return !host::takesFocus(row.kind) && row.kind != Kind::menu;
}

bool hasOwnKey(const WindowSpec& window, Handle control, bool byHover)
{
    return std::any_of(window.shortcuts.begin(), window.shortcuts.end(), [&](const host::ShortcutRow& key) {
        const bool hovers = key.action == host::KeyAction::hover;
        return hovers == byHover && (key.control == control || key.target == control);
    });
}

bool excepted(std::span<const Spot> spots, const WindowSpec& window, const ControlRow& row)
{
    return std::any_of(spots.begin(), spots.end(), [&](const Spot& spot) {
        return host::sameName(spot.window, window.name) && host::sameName(spot.control, row.name);
    });
}

bool ofFrame(const WindowSpec& window)
{
    return window.role == Role::mainWindow || window.role == Role::palette;
}

} // namespace lint_reach_detail

using namespace lint_reach_detail;

Complaints symbols(const WindowSpec& window, std::span<const Spot> withoutSymbol)
{
    Complaints complaints;
    if (window.role != Role::sheet)
        return complaints;
    for (const ControlRow& row : window.controls) {
        const bool due = host::takesFocus(row.kind) || row.look == host::Look::toolButton;
        if (due && (row.meaning.es.empty() || row.meaning.en.empty()))
            complaints.push_back(rowName(row) + " does not say what it is");
        if (row.kind == Kind::field && !row.overlay && row.symbol.empty() && !excepted(withoutSymbol, window, row))
            complaints.push_back(rowName(row) + " has no symbol");
    }
    return complaints;
}

Complaints stayInside(const WindowSpec& window)
{
    Complaints complaints;
    if (window.role != Role::sheet)
        return complaints;
    for (const ControlRow& row : window.controls)
        if (row.place.left < 0 || row.place.top < 0 || row.place.left + row.place.width > window.place.width ||
            row.place.top + row.place.height > window.place.height)
            complaints.push_back(rowName(row) + " leaves the sheet");
    return complaints;
}

Complaints keysForTheMouse(const WindowSpec& window, std::span<const Spot> reachedOtherwise)
{
    Complaints complaints;
    if (window.role != Role::sheet && !ofFrame(window))
        return complaints;
    std::set<std::pair<Handle, bool>> seen;
    for (const host::SlotRow& slot : window.slots) {
        // On a sheet a key lets the pointer speak for the field in hand.
        const bool hover = slot.event == Event::hover && ofFrame(window);
        const bool pressed = slot.event == Event::click || slot.event == Event::mouseDown || slot.event == Event::drop;
        if (slot.control >= window.controls.size() || slot.run == nullptr || (!hover && !pressed))
            continue;
        const ControlRow& row = window.controls[slot.control];
        if (mouseAlone(row) && !excepted(reachedOtherwise, window, row) && !hasOwnKey(window, slot.control, hover) &&
            seen.insert({slot.control, hover}).second)
            complaints.push_back(rowName(row) + (hover ? " speaks" : " is reached") + " by the mouse alone");
    }
    return complaints;
}

} // namespace velmor::lint
