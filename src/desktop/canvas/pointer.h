// SPDX-License-Identifier: MIT
// The mouse over one canvas: presses, hovering, double clicks and drags become the engine's events. A left press counts
// when the button goes down; only on what can be dragged it waits to see whether a drag begins.
#pragma once

#include <QPoint>
#include <QPointer>

#include "host/control.h"

class QLabel;
class QMouseEvent;
class QWidget;

namespace velmor::desktop {

class Canvas;

class Pointer {
public:
    explicit Pointer(Canvas& canvas);
    ~Pointer();

    void pressed(QPoint point, const QMouseEvent& event);
    void doubleClicked(QPoint point, const QMouseEvent& event);
    void moved(QPoint point, Qt::MouseButtons buttons);
    void released(QPoint point, const QMouseEvent& event);
    void left();
    /// A mouse event of a real widget over the canvas. True when the widget must not have it.
    bool filtered(host::Handle control, QPoint point, QMouseEvent& event);
    /// Gives up a drag, as by Escape. True when there was one.
    bool cancelDrag();
    void forget();
    /// True while a press of the mouse brings the focus into that field: the caret goes where the pointer is.
    bool placesCaretIn(const QWidget& field) const;

private:
    void leftPress(host::Handle control, QPoint point, const QMouseEvent& event, bool second);
    void rightPress(host::Handle control, const QMouseEvent& event);
    void hover(host::Handle control);
    void startDrag();
    void dragTo(QPoint point);
    void dropAt(QPoint point);
    host::Handle dropTargetAt(QPoint point) const;

    Canvas& canvas_;
    QPointer<QLabel> picture_; ///< what is dragged, under the pointer
    QPoint pressedAt_;
    host::Handle hovered_ = host::noControl;
    host::Handle lastPressed_ = host::noControl;
    host::Handle held_ = host::noControl;     ///< draggable control with the button down on it
    host::Handle over_ = host::noControl;     ///< drop target under the drag
    host::Handle clicking_ = host::noControl; ///< text box being pressed
    int shift_ = 0;
    bool dragging_ = false;
    bool hoverKnown_ = false;
};

} // namespace velmor::desktop
