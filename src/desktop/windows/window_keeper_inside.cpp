// SPDX-License-Identifier: MIT
// Tools inside the main window, where the desktop alone says where windows stand: which of them has the main window's keyboard.
#include <QApplication>
#include <QTimer>

#include "desktop/windows/sheet_view.h"
#include "desktop/windows/tool_window.h"
#include "desktop/windows/window_keeper.h"

namespace velmor::desktop {

/// The window that has the keyboard, or the tool that has it inside the main one.
QWidget* WindowKeeper::inFront() const
{
    QWidget* active = QApplication::activeWindow();
    return active != nullptr && active == main_ && inside_ && inside_->isVisible() ? inside_.data() : active;
}

void WindowKeeper::putInFront(QWidget& top)
{
    if (!main_ || (top.isWindow() && &top != main_)) {
        top.activateWindow();
        return;
    }
    const QWidget* before = inFront();
    takeInHand(&top == main_ ? nullptr : &top);
    if (!main_->isActiveWindow())
        main_->activateWindow();
    else if (before != inFront())
        QTimer::singleShot(0, this, [this] { windowActivated(); });
}

void WindowKeeper::takeInHand(QWidget* inside)
{
    if (inside_ == inside)
        return;
    if (auto* before = dynamic_cast<ToolWindow*>(inside_.data()))
        before->setInHand(false);
    inside_ = inside;
    if (auto* now = dynamic_cast<ToolWindow*>(inside))
        now->setInHand(true);
}

// A press, or a key, in a tool or beside it: there is no window manager that turns to what was pressed.
void WindowKeeper::touchedInside(const QWidget& canvas)
{
    ToolWindow* tool = nullptr;
    for (const auto& [window, frame] : frames_)
        if (auto* one = dynamic_cast<ToolWindow*>(frame);
            one != nullptr && one->isInside() && one->isAncestorOf(&canvas))
            tool = one;
    const bool others = tool == nullptr && canvas.window() != main_; // a window of its own has the keyboard by itself
    if (others || inside_ == tool)
        return;
    takeInHand(tool);
    host::Window* turnedTo = tool != nullptr ? tool->model() : desk_.engine->activeChild();
    if (tool != nullptr)
        tool->raise();
    if (turnedTo != nullptr && desk_.idle() && desk_.engine->current() != turnedTo)
        desk_.engine->userActivate(*turnedTo);
    postFocus();
}

// A press on a frame, a title or a scroll bar, of which the drawing does not hear, turns to the window it belongs to.
void WindowKeeper::pressedInside(QPoint place)
{
    const QWidget* pressed = main_->childAt(place);
    if (pressed == nullptr || desk_.closing)
        return;
    for (const auto& [window, frame] : frames_) {
        const auto* tool = dynamic_cast<ToolWindow*>(frame);
        const bool turnsTo = tool != nullptr ? tool->isInside() : window == desk_.engine->activeChild();
        if (turnsTo && (pressed == &frame->widget() || frame->widget().isAncestorOf(pressed)))
            return touched(&frame->view()->canvas());
    }
}

} // namespace velmor::desktop
