// SPDX-License-Identifier: MIT
#include "desktop/canvas/pointer.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include "desktop/canvas/canvas.h"
#include "desktop/canvas/check_tile.h"
#include "desktop/canvas/field_edit.h"

namespace velmor::desktop {

using host::Handle;
using host::Kind;
using host::noControl;

namespace pointer_detail {

constexpr int hemOfPicture = 2;         ///< logical pixels that a frame reaches beyond its box
constexpr QPoint besidePointer(12, 10); ///< what is carried leaves the place under the pointer in view

int shiftOf(const QMouseEvent& event)
{
    int result = 0;
    if (event.modifiers() & Qt::ShiftModifier)
        result += 1;
    if (event.modifiers() & Qt::ControlModifier)
        result += 2;
    return result;
}

// Text boxes and lists are widgets that go on with the press themselves.
bool isTextOrList(Kind kind)
{
    return kind == Kind::field || kind == Kind::page || kind == Kind::editor || kind == Kind::list;
}

} // namespace pointer_detail

Pointer::Pointer(Canvas& canvas) : canvas_(canvas) {}

Pointer::~Pointer()
{
    delete picture_;
}

void Pointer::forget()
{
    delete picture_;
    dragging_ = false;
    held_ = noControl;
}

void Pointer::pressed(QPoint point, const QMouseEvent& event)
{
    if (canvas_.model() == nullptr || canvas_.desk().closing)
        return;
    const Handle control = canvas_.controlAt(point);
    if (canvas_.desk().touched)
        canvas_.desk().touched(&canvas_);
    if (canvas_.desk().turnTo) {
        QPointer<Canvas> alive(&canvas_);
        canvas_.desk().turnTo(*canvas_.model());
        if (!alive || canvas_.model() == nullptr)
            return;
    }
    if (event.button() == Qt::LeftButton && canvas_.checkTile().isAt(point))
        canvas_.checkTile().press();
    else if (event.button() == Qt::LeftButton)
        leftPress(control, point, event, false);
    else if (event.button() == Qt::RightButton)
        rightPress(control, event);
}

// The second press on the same thing is a double click where the window knows one, and one more click elsewhere.
void Pointer::doubleClicked(QPoint point, const QMouseEvent& event)
{
    if (canvas_.model() == nullptr || canvas_.desk().closing)
        return;
    if (event.button() == Qt::LeftButton && canvas_.checkTile().isAt(point))
        canvas_.checkTile().press();
    else if (event.button() == Qt::LeftButton)
        leftPress(canvas_.controlAt(point), point, event, true);
    else if (event.button() == Qt::RightButton)
        rightPress(canvas_.controlAt(point), event);
}

void Pointer::leftPress(Handle control, QPoint point, const QMouseEvent& event, bool second)
{
    QPointer<Canvas> alive(&canvas_);
    host::Window& model = *canvas_.model();
    host::Engine& engine = *canvas_.desk().engine;
    const bool isDouble = second && control == lastPressed_ && model.hasSlot(control, host::Event::doubleClick);
    lastPressed_ = control;
    pressedAt_ = point;
    shift_ = pointer_detail::shiftOf(event);
    if (isDouble) {
        engine.userDoubleClick(model, control, false);
        return;
    }
    if (control != noControl && canvas_.planOf(control).draggable) {
        held_ = control;
        return;
    }
    canvas_.setPressed(control);
    engine.userClick(model, control, shift_);
    if (alive && !(QApplication::mouseButtons() & Qt::LeftButton))
        canvas_.setPressed(noControl); // a box has swallowed the release
}

void Pointer::rightPress(Handle control, const QMouseEvent& event)
{
    canvas_.desk().engine->userPress(*canvas_.model(), control, host::Button::right, pointer_detail::shiftOf(event));
}

void Pointer::moved(QPoint point, Qt::MouseButtons buttons)
{
    if (canvas_.model() == nullptr)
        return;
    if (held_ != noControl && (buttons & Qt::LeftButton)) {
        if (!dragging_ && (point - pressedAt_).manhattanLength() >= QApplication::startDragDistance())
            startDrag();
        if (dragging_)
            dragTo(point);
        return;
    }
    hover(canvas_.controlAt(point));
    if (canvas_.model() != nullptr)
        canvas_.checkTile().hover(point);
}

// Once per change of control: slots show the same each time, so repeating them would only cost.
void Pointer::hover(Handle control)
{
    if (hoverKnown_ && control == hovered_)
        return;
    const bool enabled = control != noControl && canvas_.model()->enabled(control);
    canvas_.setHovered(enabled ? control : noControl);
    canvas_.setCursor(enabled && canvas_.planOf(control).clickable ? Qt::PointingHandCursor : Qt::ArrowCursor);
    if (!canvas_.desk().idle())
        return;
    hovered_ = control;
    hoverKnown_ = true;
    const Desk& desk = canvas_.desk();
    const host::Window& model = *canvas_.model();
    desk.engine->userHover(*canvas_.model(), control);
    if (desk.hovered && !desk.closing && desk.engine->isLoaded(&model))
        desk.hovered(model, control);
}

// Whoever comes back without a move, from a box that has closed, is no hand until it is known over what.
void Pointer::left()
{
    hoverKnown_ = false;
    if (!dragging_)
        canvas_.setCursor(Qt::ArrowCursor);
    canvas_.checkTile().leave();
    if (canvas_.model() != nullptr)
        canvas_.setHovered(noControl);
}

void Pointer::released(QPoint point, const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || canvas_.model() == nullptr)
        return;
    canvas_.setPressed(noControl);
    canvas_.checkTile().release();
    const Handle held = std::exchange(held_, noControl);
    if (dragging_) {
        held_ = held;
        dropAt(point);
        held_ = noControl;
    } else if (held != noControl) {
        canvas_.desk().engine->userClick(*canvas_.model(), held, shift_);
    }
}

void Pointer::startDrag()
{
    const int hem = pointer_detail::hemOfPicture;
    const QRect box = canvas_.boxInPixels(held_).adjusted(-hem, -hem, hem, hem);
    QPixmap drawing(box.size() * canvas_.devicePixelRatioF());
    drawing.setDevicePixelRatio(canvas_.devicePixelRatioF());
    drawing.fill(Qt::transparent);
    {
        QPainter painter(&drawing);
        painter.setOpacity(0.8);
        painter.translate(-box.topLeft());
        canvas_.paintOne(painter, held_, box);
    }
    picture_ = new QLabel(&canvas_);
    picture_->setPixmap(drawing);
    picture_->setAttribute(Qt::WA_TransparentForMouseEvents);
    picture_->setAttribute(Qt::WA_NoSystemBackground);
    picture_->resize(box.size());
    picture_->show();
    canvas_.setOffering(true);
    dragging_ = true;
    over_ = noControl;
    canvas_.setCursor(Qt::ClosedHandCursor);
}

Handle Pointer::dropTargetAt(QPoint point) const
{
    const Handle target = canvas_.controlAt(point);
    return target != noControl && target != held_ && canvas_.planOf(target).dropTarget ? target : noControl;
}

void Pointer::dragTo(QPoint point)
{
    if (picture_)
        picture_->move(point + pointer_detail::besidePointer);
    const Handle target = dropTargetAt(point);
    if (target == over_)
        return;
    host::Engine& engine = *canvas_.desk().engine;
    if (over_ != noControl)
        engine.userDragLeave(*canvas_.model(), held_, over_);
    over_ = target;
    canvas_.setHovered(target);
    canvas_.update();
    if (target != noControl && canvas_.model() != nullptr)
        engine.userDragEnter(*canvas_.model(), held_, target);
}

void Pointer::dropAt(QPoint point)
{
    const Handle target = dropTargetAt(point);
    const Handle source = held_;
    cancelDrag();
    if (target != noControl && canvas_.model() != nullptr)
        canvas_.desk().engine->userDrag(*canvas_.model(), source, target);
}

bool Pointer::placesCaretIn(const QWidget& field) const
{
    return clicking_ != noControl && canvas_.widgetOf(clicking_) == &field;
}

bool Pointer::cancelDrag()
{
    if (!std::exchange(dragging_, false))
        return false;
    delete picture_;
    held_ = noControl;
    over_ = noControl;
    canvas_.setOffering(false);
    canvas_.setHovered(noControl);
    canvas_.setCursor(Qt::ArrowCursor);
    return true;
}

bool Pointer::filtered(Handle control, QPoint point, QMouseEvent& event)
{
    host::Window& model = *canvas_.model();
    const Kind kind = model.row(control).kind;
    if (event.type() == QEvent::MouseMove) {
        moved(point, event.buttons());
        return dragging_;
    }
    if (event.type() == QEvent::MouseButtonRelease) {
        const bool dragged = dragging_;
        released(point, event);
        return dragged || event.button() != Qt::LeftButton;
    }
    if (event.button() == Qt::LeftButton) {
        QPointer<QWidget> widget(canvas_.widgetOf(control));
        clicking_ = control;
        if (event.type() == QEvent::MouseButtonDblClick)
            doubleClicked(point, event);
        else
            pressed(point, event);
        clicking_ = noControl;
        if (auto* field = dynamic_cast<FieldEdit*>(widget.data()))
            field->handTaken();
        // The engine was asked first; the text box has the press only if it then has the focus.
        return !widget || canvas_.model() == nullptr || !pointer_detail::isTextOrList(kind) || model.focus() != control;
    }
    if (event.button() == Qt::RightButton) {
        if (event.type() != QEvent::MouseButtonRelease)
            rightPress(control, event);
        return kind != Kind::editor;
    }
    return true; // the middle button would paste past the key filter
}

} // namespace velmor::desktop
