// SPDX-License-Identifier: MIT
// Counting and printing what was reached.
#include "player/coverage.h"

#include <iomanip>
#include <ostream>
#include <stdexcept>

namespace velmor::player {

Coverage::Coverage(host::Catalogue catalogue) : specs_(catalogue.begin(), catalogue.end())
{
    for (const host::WindowSpec* spec : specs_)
        for (const host::SlotRow& row : spec->slots)
            windows_[spec].all.insert({row.control, row.event});
}

void Coverage::slotRan(const host::Window& window, host::Handle control, host::Event event)
{
    last_ = &window.spec();
    lastSlot_ = {control, event};
    windows_[last_].reached.insert(lastSlot_);
}

void Coverage::boxShown(const host::MessageBox& box)
{
    if (last_ != nullptr)
        windows_[last_].boxes.insert("\"" + box.title + "\": \"" + box.text + "\"");
}

// Items hidden in the table; items and buttons that the load slot disabled.
void Coverage::leaveOut(const host::Window& window)
{
    const auto isOut = [&window](host::Handle control) {
        if (control == host::noControl)
            return false;
        const host::Kind kind = window.row(control).kind;
        if (kind == host::Kind::button)
            return window.row(control).enabled && !window.enabled(control);
        if (kind != host::Kind::menu)
            return false;
        return !window.enabled(control) || !window.row(control).visible;
    };
    WindowCoverage& coverage = windows_[&window.spec()];
    std::erase_if(coverage.all, [&](const SlotName& slot) { return isOut(slot.first); });
    std::erase_if(coverage.reached, [&](const SlotName& slot) { return isOut(slot.first); });
}

void Coverage::programFailed(const std::string& kind, const std::string& events)
{
    Failure& failure = failures_[lastSlot() + ": " + kind];
    if (++failure.count == 1)
        failure.events = events;
}

std::string Coverage::lastSlot() const
{
    return last_ == nullptr ? std::string("no slot") : slotTitle(*last_, lastSlot_);
}

bool Coverage::reached(const host::WindowSpec& window, const SlotName& slot) const
{
    const auto found = windows_.find(&window);
    return found != windows_.end() && found->second.reached.contains(slot);
}

const WindowCoverage& Coverage::of(std::string_view window) const
{
    for (const auto& [spec, coverage] : windows_)
        if (host::sameName(spec->name, window))
            return coverage;
    throw std::out_of_range("no such window");
}

std::vector<std::string> Coverage::shortOf(std::string_view onlyWindow) const
{
    std::vector<std::string> names;
    for (const host::WindowSpec* spec : specs_) {
        const auto found = windows_.find(spec);
        if (found == windows_.end() || found->second.enough())
            continue;
        if (onlyWindow.empty() || host::sameName(spec->name, onlyWindow))
            names.emplace_back(spec->name);
    }
    return names;
}

void Coverage::print(std::ostream& out, bool inDetail) const
{
    for (const host::WindowSpec* spec : specs_) {
        const auto found = windows_.find(spec);
        if (found == windows_.end())
            continue;
        const WindowCoverage& window = found->second;
        out << std::left << std::setw(14) << spec->name << window.reached.size() << " of " << window.all.size()
            << " slots, " << window.boxes.size() << " boxes" << (window.enough() ? "" : "  TOO FEW") << '\n';
        for (const SlotName& slot : window.all)
            if (!window.reached.contains(slot))
                out << "    not reached: " << slotTitle(*spec, slot) << '\n';
        if (inDetail)
            for (const std::string& box : window.boxes)
                out << "    box " << box << '\n';
    }
    out << "the program was left " << ends_ << " times";
    for (const auto& [where, failure] : failures_) {
        out << "\n    ended " << failure.count << " times in " << where;
        if (inDetail)
            out << ", the first time after" << failure.events;
    }
    out << '\n';
}

std::string_view eventName(host::Event event)
{
    static constexpr std::string_view names[] = {
        "focus",    "lostFocus", "click",     "doubleClick", "mouseDown",  "mouseUp",  "hover",    "key",
        "change",   "dragEnter", "dragLeave", "drop",        "timer",      "menuOpen", "shortcut", "load",
        "activate", "comeBack",  "repaint",   "resize",      "queryClose", "unload"};
    static_assert(std::size(names) == static_cast<std::size_t>(host::Event::count));
    return names[static_cast<std::size_t>(event)];
}

std::string slotTitle(const host::WindowSpec& window, const SlotName& slot)
{
    const std::string control =
        slot.first == host::noControl ? "" : " " + std::string(window.controls[slot.first].name);
    return std::string(window.name) + control + " " + std::string(eventName(slot.second));
}

} // namespace velmor::player
