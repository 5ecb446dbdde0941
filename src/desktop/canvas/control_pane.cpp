// SPDX-License-Identifier: MIT
#include "desktop/canvas/control_pane.h"

#include <QAccessibleWidget>
#include <QPaintEvent>
#include <QPainter>

#include "desktop/canvas/canvas.h"
#include "desktop/drawing/texts.h"

namespace velmor::desktop {

namespace control_pane_detail {

QAccessible::Role roleOf(host::Kind kind, bool clickable)
{
    switch (kind) {
    case host::Kind::button:
    case host::Kind::picture:
        return QAccessible::PushButton;
    case host::Kind::image:
        return clickable ? QAccessible::PushButton : QAccessible::Graphic;
    case host::Kind::option:
        return QAccessible::RadioButton;
    case host::Kind::check:
        return QAccessible::CheckBox;
    default:
        return QAccessible::StaticText;
    }
}

// What a screen reader says and can press; the state is read from the model at the moment of asking.
class AccessiblePane final : public QAccessibleWidget {
public:
    explicit AccessiblePane(ControlPane* pane)
        : QAccessibleWidget(pane, pane->canvas().model() == nullptr
                                      ? QAccessible::StaticText
                                      : roleOf(pane->canvas().model()->row(pane->control()).kind,
                                               pane->canvas().planOf(pane->control()).clickable)),
          pane_(pane)
    {}

    QAccessible::State state() const override
    {
        QAccessible::State result = QAccessibleWidget::state();
        const host::Window* model = pane_->canvas().model();
        if (model == nullptr)
            return result;
        const host::Kind kind = model->row(pane_->control()).kind;
        result.focusable = host::takesFocus(kind);
        result.focused = model->focus() == pane_->control();
        result.disabled = !model->enabled(pane_->control());
        result.checkable = kind == host::Kind::option || kind == host::Kind::check;
        result.selectable = model->row(pane_->control()).chosen != host::Chosen::never;
        result.selected = host::isChosen(*model, pane_->control());
        result.checked = result.checkable && model->checked(pane_->control());
        return result;
    }

    QStringList actionNames() const override { return {pressAction()}; }

    void doAction(const QString& action) override
    {
        if (action == pressAction() && pane_->canvas().model() != nullptr)
            pane_->canvas().desk().engine->userClick(*pane_->canvas().model(), pane_->control());
    }

private:
    ControlPane* pane_;
};

QAccessibleInterface* accessiblePane(const QString&, QObject* object)
{
    auto* pane = dynamic_cast<ControlPane*>(object);
    return pane == nullptr ? nullptr : new AccessiblePane(pane);
}

} // namespace control_pane_detail

void tellAssistiveTechnology()
{
    static bool told = false;
    if (!std::exchange(told, true))
        QAccessible::installFactory(control_pane_detail::accessiblePane);
}

ControlPane::ControlPane(Canvas& canvas, host::Handle control, bool paints)
    : QWidget(&canvas), canvas_(canvas), control_(control), paints_(paints)
{
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_NoSystemBackground);
    setAttribute(Qt::WA_TransparentForMouseEvents, !paints);
    setMouseTracking(true);
}

void ControlPane::paintEvent(QPaintEvent* event)
{
    if (!paints_)
        return;
    QPainter painter(this);
    painter.translate(-pos());
    canvas_.paintOne(painter, control_, event->region().translated(pos()));
}

void ControlPane::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    canvas_.repaintControl(control_);
}

void ControlPane::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    canvas_.repaintControl(control_);
}

} // namespace velmor::desktop
