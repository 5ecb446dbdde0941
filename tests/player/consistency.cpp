// SPDX-License-Identifier: MIT
// The checks that follow every step of a play.
#include "player/consistency.h"

#include <cctype>
#include <memory>
#include <span>
#include <vector>

#include "sheets/design_sheet.h"

namespace velmor::player {

namespace consistency_detail {

using host::noControl;
using host::Window;

bool sixteenBitBoolean(std::int16_t value)
{
    return value == 0 || value == host::trueValue;
}

std::string faultOf(const Window& window)
{
    const host::Handle held = window.focus();
    if (held != noControl && held >= window.controlCount())
        return "the focus is on a control that is none";
    if (held != noControl && !window.canTakeFocus(held))
        return "the focus is on " + std::string(window.row(held).name) + ", which cannot hold it";
    if (window.windowState() < 0 || window.windowState() > 2)
        return "the window is neither normal, minimised nor maximised";
    const auto* sheet =
        window.role() == host::Role::sheet ? dynamic_cast<const sheets::DesignSheet*>(&window) : nullptr;
    if (sheet != nullptr && !(sixteenBitBoolean(sheet->OperCancelo()) && sixteenBitBoolean(sheet->modificado())))
        return "a boolean of the sheet is neither -1 nor 0";
    return {};
}

std::string faultOfCurrent(const host::Engine& engine)
{
    const Window* current = engine.current();
    if (current != nullptr && !engine.isLoaded(current))
        return "the current window is not loaded";
    if (current != nullptr && !current->shown() && current->role() != host::Role::mainWindow)
        return "the current window " + std::string(current->name()) + " is hidden";
    const Window* child = engine.activeChild();
    if (child != nullptr && !engine.isLoaded(child))
        return "the active child is not loaded";
    if (child != nullptr && (!child->shown() || !child->isChild()))
        return "the active child " + std::string(child->name()) + " is hidden, or no child";
    return {};
}

std::string faultOfValues(const host::ProgramValues& values)
{
    if (!sixteenBitBoolean(values.LanguageIsEnglish))
        return "the language is neither -1 nor 0";
    if (values.DecimalSeparator != "." && values.DecimalSeparator != ",")
        return "the decimal separator is \"" + values.DecimalSeparator + "\"";
    return {};
}

bool overlap(const host::Place& one, const host::Place& other)
{
    return one.left < other.left + other.width && other.left < one.left + one.width &&
           one.top < other.top + other.height && other.top < one.top + one.height;
}

struct SeenField {
    host::Handle field = noControl;
    host::Place place{};
};

std::vector<SeenField> visibleFields(const Window& window)
{
    std::vector<SeenField> fields;
    for (const host::ControlRow& row : window.spec().controls)
        if (row.kind == host::Kind::field && !row.overlay && window.visible(row.id))
            fields.push_back({row.id, host::shownPlace(window, row.id)});
    return fields;
}

/// Another default instance of the same window among those that were opened before it.
bool hasDefaultTwin(const Window& window, std::span<const std::unique_ptr<Window>> open)
{
    for (const std::unique_ptr<Window>& other : open) {
        if (other.get() == &window)
            return false;
        if (other->isDefaultInstance() && other->name() == window.name())
            return true;
    }
    return false;
}

std::string shortened(const std::string& text)
{
    return text.size() <= 80 ? text : text.substr(0, 80) + "...";
}

} // namespace consistency_detail

std::string engineFault(host::Engine& engine)
{
    using namespace consistency_detail;
    if (!engine.idle())
        return "an event is still under way or waiting";
    if (std::string fault = faultOfCurrent(engine); !fault.empty())
        return fault;
    if (std::string fault = faultOfValues(engine.values()); !fault.empty())
        return fault;
    for (const std::unique_ptr<Window>& window : engine.held()) {
        if (window->isDefaultInstance() && hasDefaultTwin(*window, engine.held()))
            return "two default instances of " + std::string(window->name());
        if (std::string fault = faultOf(*window); !fault.empty())
            return std::string(window->name()) + ": " + fault;
    }
    return {};
}

std::string textFault(host::Engine& engine)
{
    using namespace consistency_detail;
    for (const std::unique_ptr<Window>& window : engine.held())
        for (const host::Handle control : window->takeChanges()) {
            const std::string& text = window->text(control);
            const char* fault = !isUtf8(text)                        ? "is no UTF-8"
                                : namesNoNumber(text)                ? "shows a number that is none"
                                : text.size() > std::size_t{100'000} ? "grows without end"
                                                                     : nullptr;
            if (fault != nullptr)
                return std::string(window->name()) + "." + std::string(window->row(control).name) + " " + fault + ": " +
                       shortened(text);
        }
    return {};
}

std::string fieldFault(const host::Engine& engine)
{
    using namespace consistency_detail;
    for (const std::unique_ptr<Window>& window : engine.held()) {
        const std::vector<SeenField> fields = visibleFields(*window);
        for (std::size_t i = 0; i < fields.size(); ++i)
            for (std::size_t k = i + 1; k < fields.size(); ++k)
                if (overlap(fields[i].place, fields[k].place))
                    return std::string(window->name()) + ": " + std::string(window->row(fields[i].field).name) +
                           " is seen upon " + std::string(window->row(fields[k].field).name);
    }
    return {};
}

std::string SlotOrder::note(const host::Window& window, host::Handle control, host::Event event)
{
    using host::Event;
    const unsigned serial = window.serial();
    if (event == Event::load && !loaded_.insert(serial).second)
        return std::string(window.name()) + " loads twice";
    if (event != Event::load && !loaded_.contains(serial) && window.hasSlot(host::noControl, Event::load))
        return "a slot of " + std::string(window.name()) + " runs before it is loaded";
    const bool paired = (event == Event::focus && window.hasSlot(control, Event::lostFocus)) ||
                        (event == Event::lostFocus && window.hasSlot(control, Event::focus));
    if (!paired)
        return {};
    const bool inOrder =
        event == Event::focus ? focused_.insert({serial, control}).second : focused_.erase({serial, control}) == 1;
    if (inOrder)
        return {};
    return std::string(window.name()) + " " + std::string(window.row(control).name) +
           (event == Event::focus ? " gets the focus twice" : " loses a focus that it has not");
}

void SlotOrder::adopt(const host::Window& window)
{
    loaded_.insert(window.serial());
    std::erase_if(focused_, [&](const auto& held) { return held.first == window.serial(); });
    const host::Handle held = window.focus();
    if (held != host::noControl && window.hasSlot(held, host::Event::focus) &&
        window.hasSlot(held, host::Event::lostFocus))
        focused_.insert({window.serial(), held});
}

// Looked at after every event: no copies, and most letters end the look at once.
bool namesNoNumber(std::string_view text)
{
    const auto lower = [text](std::size_t at) { return static_cast<char>(text[at] | 0x20); };
    const auto isLetter = [text](std::size_t at) {
        return std::isalnum(static_cast<unsigned char>(text[at])) != 0 || (text[at] & 0x80) != 0;
    };
    for (std::size_t at = 0; at + 3 <= text.size(); ++at) {
        const bool inf = lower(at) == 'i' && lower(at + 1) == 'n' && lower(at + 2) == 'f';
        const bool nan = lower(at) == 'n' && lower(at + 1) == 'a' && lower(at + 2) == 'n';
        if ((inf || nan) && (at == 0 || !isLetter(at - 1)) && (at + 3 == text.size() || !isLetter(at + 3)))
            return true;
    }
    return false;
}

bool isUtf8(std::string_view text)
{
    std::size_t at = 0;
    while (at < text.size()) {
        const auto first = static_cast<unsigned char>(text[at]);
        const std::size_t length = first < 0x80 ? 1 : first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC2 ? 2 : 0;
        if (length == 0 || first > 0xF4 || at + length > text.size())
            return false;
        for (std::size_t i = 1; i < length; ++i)
            if ((static_cast<unsigned char>(text[at + i]) & 0xC0) != 0x80)
                return false;
        at += length;
    }
    return true;
}

} // namespace velmor::player
