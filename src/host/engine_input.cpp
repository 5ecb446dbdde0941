// SPDX-License-Identifier: MIT
// Focus moves, mouse, keys and menus: what a person does in one window.
#include <algorithm>

#include "host/engine.h"

namespace velmor::host {

namespace engine_input_detail {

constexpr std::int16_t escapeKey = 27;

} // namespace engine_input_detail

std::vector<Handle> Engine::tabOrder(const Window& window)
{
    std::vector<Handle> order(window.spec().tabOrder.begin(), window.spec().tabOrder.end());
    for (const ControlRow& row : window.spec().controls)
        if (takesFocus(row.kind) && std::find(order.begin(), order.end(), row.id) == order.end())
            order.push_back(row.id);
    return order;
}

// A timer, the program or another window's event takes nothing out of the student's hand.
void Engine::takeInHand(const Window& window, bool escape)
{
    const Handle held = window.focus_;
    if (held != noControl && window.row(held).kind == Kind::field)
        inHand_ = {&window, held, escape, window.text(held)};
}

void Engine::noteAsked(Window& window, Handle left)
{
    if (inHand_.window != &window || inHand_.control != left)
        return;
    window.asked_[left] = inHand_.escape ? window.text(left) : inHand_.text;
    window.markTouched(left);
    inHand_ = {};
}

FocusMove Engine::moveFocus(Window& window, Handle target, bool force)
{
    if (window.gone_ || ended_)
        return FocusMove::refused;
    if (window.focus_ == target)
        return FocusMove::unchanged;
    if (!force && !window.canTakeFocus(target))
        return FocusMove::refused;
    const unsigned move = ++window.focusMoves_;
    const Handle old = window.focus_;
    const auto nameOf = [&](Handle control) {
        return control == noControl ? std::string("none") : std::string(window.row(control).name);
    };
    window.focus_ = noControl;
    if (old != noControl) {
        moment_ = Moment::stepEnds;
        noteAsked(window, old);
        window.markChanged(old);
        EventArgs args;
        run(window, old, Event::lostFocus, args);
        if (window.gone_ || ended_ || window.focusMoves_ != move)
            return FocusMove::superseded;
    }
    if (trace_)
        trace("focus " + std::string(window.name()) + " " + nameOf(old) + " -> " + nameOf(target));
    window.focus_ = target;
    if (target == noControl)
        return FocusMove::moved;
    window.markChanged(target);
    EventArgs args;
    run(window, target, Event::focus, args);
    return FocusMove::moved;
}

void Engine::firstFocus(Window& window)
{
    if (window.gone_ || window.focus_ != noControl)
        return;
    for (const Handle control : tabOrder(window)) {
        if (!window.canTakeFocus(control))
            continue;
        moveFocus(window, control);
        return;
    }
}

bool Engine::userFocus(Window& window, Handle control)
{
    if (ended_ || window.gone_ || !window.canTakeFocus(control))
        return false;
    outermost([this, &window, control] {
        if (!isLoaded(&window))
            return;
        takeInHand(window);
        moveFocus(window, control);
    });
    return true;
}

void Engine::userTab(Window& window, bool backwards)
{
    outermost([this, &window, backwards] {
        if (!isLoaded(&window))
            return;
        takeInHand(window);
        std::vector<Handle> order = tabOrder(window);
        if (backwards)
            std::reverse(order.begin(), order.end());
        const auto at = std::find(order.begin(), order.end(), window.focus_);
        if (at != order.end())
            std::rotate(order.begin(), at + 1, order.end());
        for (const Handle control : order)
            if (control != window.focus_ && window.canTakeFocus(control)) {
                moveFocus(window, control);
                return;
            }
    });
}

// Hover and right press work on a visible field that is disabled: prompts and help are for looking ahead.
bool Engine::mouseAllowed(const Window& window, Handle control) const
{
    if (control == noControl)
        return true;
    const ControlRow& row = window.row(control);
    return window.visible(control) && (window.enabled(control) || row.kind == Kind::field || row.clickableWhenDisabled);
}

// False when the click ends with the focus move: the old field's lost-focus slot sent the focus elsewhere.
bool Engine::pressMovesFocus(Window& window, Handle control)
{
    if (control == noControl || !takesFocus(window.row(control).kind))
        return true;
    const FocusMove move = moveFocus(window, control, true);
    if (window.gone_ || ended_)
        return false;
    const Kind kind = window.row(control).kind;
    const bool endsThere = kind == Kind::field || kind == Kind::page || kind == Kind::editor || kind == Kind::button;
    return move != FocusMove::superseded || !endsThere;
}

void Engine::mouseSlots(Window& window, Handle control, int shift)
{
    EventArgs args;
    args.shift = shift;
    run(window, control, Event::mouseDown, args);
    run(window, control, Event::mouseUp, args);
    if (window.gone_)
        return;
    if (control != noControl && window.row(control).kind == Kind::option) {
        for (const ControlRow& row : window.spec().controls)
            if (row.kind == Kind::option && row.parent == window.row(control).parent)
                window.setChecked(row.id, row.id == control);
    } else if (control != noControl && window.row(control).kind == Kind::check) {
        window.setChecked(control, !window.checked(control));
    }
    run(window, control, Event::click, args);
}

void Engine::userClick(Window& window, Handle control, int shift)
{
    outermost([this, &window, control, shift] {
        if (!isLoaded(&window))
            return;
        if (control != noControl &&
            (!window.visible(control) || (!window.enabled(control) && !window.row(control).clickableWhenDisabled)))
            return;
        takeInHand(window);
        moment_ = Moment::stepEnds;
        if (pressMovesFocus(window, control))
            mouseSlots(window, control, shift);
    });
}

void Engine::userDoubleClick(Window& window, Handle control, bool withClick)
{
    outermost([this, &window, control, withClick] {
        if (!isLoaded(&window))
            return;
        if (control != noControl && (!window.visible(control) || !window.enabled(control)))
            return;
        takeInHand(window);
        moment_ = Moment::stepEnds;
        if (withClick && pressMovesFocus(window, control))
            mouseSlots(window, control, 0);
        EventArgs args;
        run(window, control, Event::doubleClick, args);
    });
}

void Engine::userPress(Window& window, Handle control, Button button, int shift)
{
    outermost([this, &window, control, button, shift] {
        if (!isLoaded(&window) || !mouseAllowed(window, control))
            return;
        moment_ = Moment::stepEnds;
        if (button == Button::left) {
            if (control != noControl && !window.enabled(control))
                return;
            takeInHand(window);
            if (!pressMovesFocus(window, control))
                return;
        }
        EventArgs args;
        args.button = button;
        args.shift = shift;
        run(window, control, Event::mouseDown, args);
    });
}

void Engine::userHover(Window& window, Handle control)
{
    outermost([this, &window, control] {
        if (!isLoaded(&window) || !mouseAllowed(window, control))
            return;
        EventArgs args;
        run(window, control, Event::hover, args);
    });
}

std::int16_t Engine::userKey(Window& window, std::int16_t key)
{
    const Handle target = window.focus_;
    if (ended_ || depth_ > 0 || window.gone_ || target == noControl)
        return 0;
    std::int16_t passed = 0;
    outermost([&] {
        EventArgs args;
        args.key = key;
        takeInHand(window, key == engine_input_detail::escapeKey);
        run(window, target, Event::key, args);
        if (window.gone_ || window.focus_ != target)
            return;
        passed = args.key;
        if (window.row(target).kind == Kind::button && (key == 13 || key == 32))
            run(window, target, Event::click, args);
        else if (window.row(target).kind == Kind::picture && key == 32)
            mouseSlots(window, target, 0);
    });
    return passed;
}

void Engine::userText(Window& window, Handle control, std::string_view text)
{
    outermost([this, &window, control, held = std::string(text)] {
        if (!isLoaded(&window) || window.text(control) == held)
            return;
        window.setText(control, held);
        EventArgs args;
        run(window, control, Event::change, args);
    });
}

void Engine::userEdited(Window& window, Handle editor)
{
    outermost([this, &window, editor] {
        ++window.textRevision_;
        EventArgs args;
        if (isLoaded(&window))
            run(window, editor, Event::change, args);
    });
}

void Engine::userMenuOpens(Window& window, Handle menu)
{
    outermost([this, &window, menu] {
        EventArgs args;
        if (isLoaded(&window))
            run(window, menu, Event::menuOpen, args);
    });
}

void Engine::userMenu(Window& window, Handle item)
{
    outermost([this, &window, item] {
        if (!isLoaded(&window))
            return;
        takeInHand(window);
        moment_ = Moment::stepEnds;
        std::vector<Handle> path{item};
        while (window.row(path.back()).parent != noControl)
            path.push_back(window.row(path.back()).parent);
        EventArgs args;
        for (auto menu = path.rbegin(); menu != path.rend() && *menu != item; ++menu)
            run(window, *menu, Event::menuOpen, args);
        for (const Handle menu : path)
            if (window.gone_ || !window.enabled(menu) || !window.visible(menu))
                return;
        trace("menu " + std::string(window.row(item).name));
        run(window, item, Event::click, args);
    });
}

void Engine::userChoose(Window& window, Handle list, int index)
{
    outermost([this, &window, list, index] {
        if (!isLoaded(&window) || !window.canTakeFocus(list))
            return;
        takeInHand(window);
        moment_ = Moment::stepEnds;
        window.list(list).selected = index;
        window.listChanged(list);
        EventArgs args;
        run(window, list, Event::change, args);
    });
}

void Engine::userDragEnter(Window& window, Handle source, Handle target)
{
    outermost([this, &window, source, target] {
        EventArgs args;
        args.source = source;
        if (isLoaded(&window) && (target == noControl || window.visible(target)))
            run(window, target, Event::dragEnter, args);
    });
}

void Engine::userDragLeave(Window& window, Handle source, Handle target)
{
    outermost([this, &window, source, target] {
        EventArgs args;
        args.source = source;
        if (isLoaded(&window))
            run(window, target, Event::dragLeave, args);
    });
}

void Engine::userDrag(Window& window, Handle source, Handle target)
{
    outermost([this, &window, source, target] {
        const auto usable = [&](Handle control) {
            return control == noControl || (window.visible(control) && window.enabled(control));
        };
        if (!isLoaded(&window) || !usable(source) || !usable(target))
            return;
        takeInHand(window);
        moment_ = Moment::stepEnds;
        EventArgs args;
        args.source = source;
        run(window, target, Event::dragEnter, args);
        run(window, target, Event::drop, args);
    });
}

void Engine::userShortcut(Window& window, std::size_t row)
{
    if (ended_ || window.gone_)
        return;
    const ShortcutRow& bound = window.spec().shortcuts[row];
    Handle control = bound.control == noControl ? window.focus_ : bound.control;
    if (bound.action == KeyAction::click && bound.target != noControl && !window.visible(control))
        control = bound.target;
    switch (bound.action) {
    case KeyAction::click:
        return control != noControl && window.row(control).kind == Kind::menu ? userMenu(window, control)
                                                                              : userClick(window, control);
    case KeyAction::doubleClick:
        return userDoubleClick(window, control);
    case KeyAction::rightPress:
        return userPress(window, control, Button::right);
    case KeyAction::hover:
        return userHover(window, control);
    case KeyAction::dragTo:
        return userDrag(window, control, bound.target);
    case KeyAction::run:
        outermost([this, &window, row] {
            EventArgs args;
            args.key = static_cast<std::int16_t>(row);
            takeInHand(window);
            moment_ = Moment::stepEnds;
            if (isLoaded(&window))
                run(window, noControl, Event::shortcut, args);
        });
        return;
    }
}

void Engine::userTimer(Window& window, Handle timer)
{
    outermost([this, &window, timer] {
        EventArgs args;
        if (isLoaded(&window) && window.enabled(timer))
            run(window, timer, Event::timer, args);
    });
}

} // namespace velmor::host
