// SPDX-License-Identifier: MIT
// The events that a window can have slots for, and the table rows that bind them.
#pragma once

#include <cstdint>
#include <type_traits>

#include "host/drawing.h"

namespace velmor::host {

class Window;

enum class Event : std::uint8_t {
    // of a control
    focus,
    lostFocus,
    click,
    doubleClick,
    mouseDown,
    mouseUp,
    hover,
    key,    ///< a key was pressed; the slot may replace it by 0
    change, ///< the text of an editor or the choice of a list changed (never raised for design fields)
    dragEnter,
    dragLeave,
    drop,
    timer,
    menuOpen, ///< a menu is about to open
    shortcut, ///< of a window: a key of its shortcut table that runs a deed of its own; `key` is the row's index
    // of a window (bound to noControl; click, doubleClick, mouseDown, mouseUp, hover and drop exist there too)
    load,
    activate,
    comeBack, ///< the active child is current again after a tool window
    repaint,
    resize,
    queryClose,
    unload,
    count
};

enum class Button : std::uint8_t { left = 1, right = 2, middle = 4 };

/// Why a window is asked whether it may close.
enum class CloseReason : std::uint8_t { button, code, programEnd };

/// What a slot is told. `control` is the one that the event is about.
struct EventArgs {
    Handle control = noControl;
    std::int16_t key = 0; ///< of `key`: in and out
    Button button = Button::left;
    int shift = 0;             ///< 1 Shift, 2 Ctrl, added
    Handle source = noControl; ///< of drag events: what is dragged
    bool cancel = false;       ///< of `queryClose`: set to refuse
    CloseReason reason = CloseReason::code;
};

using SlotFunction = void (*)(Window&, EventArgs&);

/// Binds one event of one control to a slot. Rows of a window's table, in any order.
struct SlotRow {
    Handle control = noControl;
    Event event = Event::click;
    SlotFunction run = nullptr;
};

namespace event_detail {
template <class Method>
struct ClassOf;
template <class Owner, class Result>
struct ClassOf<Result (Owner::*)()> {
    using Type = Owner;
};
template <class Owner, class Result>
struct ClassOf<Result (Owner::*)(EventArgs&)> {
    using Type = Owner;
};
} // namespace event_detail

/// Makes a table entry of a member function `void Owner::f()` or `void Owner::f(EventArgs&)`.
template <auto Method>
void slot(Window& window, EventArgs& args)
{
    using Owner = typename event_detail::ClassOf<decltype(Method)>::Type;
    auto& self = static_cast<Owner&>(window);
    if constexpr (std::is_invocable_v<decltype(Method), Owner&, EventArgs&>)
        (self.*Method)(args);
    else
        (self.*Method)();
}

} // namespace velmor::host
