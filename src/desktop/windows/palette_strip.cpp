// SPDX-License-Identifier: MIT
#include "desktop/windows/palette_strip.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include "desktop/drawing/plates.h"
#include "desktop/drawing/texts.h"
#include "desktop/windows/close_button.h"
#include "desktop/windows/placing.h"
#include "desktop/windows/sheet_view.h"

namespace velmor::desktop {

namespace palette_strip_detail {

constexpr double share = 0.8;     ///< of the size in its table: it is seen all the time
constexpr int margin = 3;         ///< logical pixels around the pictures
constexpr int edgeInHand = 2;     ///< of the line that says where the keyboard is
constexpr int dots = 5;           ///< of the grip, in two rows
constexpr double dotShare = 0.34; ///< from dot to dot, by the width of the grip
constexpr double radiusShare = 0.075;
constexpr double gripShare = 0.3;    ///< width of the grip, by the height of the pictures
constexpr double largestShare = 0.9; ///< of the panel, while it floats

} // namespace palette_strip_detail

PaletteStrip::PaletteStrip(Desk& desk, host::Window& model, QWidget* panel)
    : QWidget(panel), desk_(desk), view_(new SheetView(desk, model)), close_(new CloseButton(*desk.inks, this))
{
    setObjectName(shown(model.name()));
    view_->setParent(this);
    view_->canvas().setFocusPolicy(Qt::NoFocus); // a press on a picture leaves the keyboard where it is
    connect(close_, &QAbstractButton::clicked, this, [this] {
        if (this->model() != nullptr && !desk_.closing)
            desk_.engine->userClose(*this->model());
    });
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, const QWidget* now) {
        const bool inHand = now != nullptr && isAncestorOf(now);
        if (std::exchange(inHand_, inHand) != inHand)
            update();
    });
    panel->installEventFilter(this);
    speak();
}

host::Window* PaletteStrip::model() const
{
    return view_->model();
}

bool PaletteStrip::isShownInModel() const
{
    return model() != nullptr && model()->shown() && model()->windowState() != 1;
}

void PaletteStrip::speak()
{
    static_cast<CloseButton*>(close_)->speak(desk_.english());
    if (model() == nullptr)
        return;
    const QString title = shown(model()->caption()).simplified();
    setAccessibleName(title);
    setToolTip(shownTip(title));
}

void PaletteStrip::followWindow()
{
    if (model() == nullptr)
        return;
    speak();
    const host::Place design = view_->designOfTool();
    view_->canvas().setDesign(design);
    if (isHidden() == isShownInModel()) {
        setVisible(isShownInModel());
        raise();
        if (moved)
            moved();
    }
}

int PaletteStrip::gripWidth() const
{
    using namespace palette_strip_detail;
    const int forPictures = static_cast<int>(view_->wantedSize().height() * share * gripShare);
    return std::max({18, fontMetrics().height(), forPictures});
}

QSize PaletteStrip::contentSize() const
{
    return view_->wantedSize() * palette_strip_detail::share;
}

QSize PaletteStrip::floatingSize() const
{
    const int margin = palette_strip_detail::margin;
    const QSize most = parentWidget()->size() * palette_strip_detail::largestShare - QSize(3 * gripWidth(), 2 * margin);
    const QSize wanted = contentSize();
    const QSize content = wanted.width() > most.width() ? wanted.scaled(most, Qt::KeepAspectRatio) : wanted;
    return content + QSize(3 * gripWidth(), 2 * margin);
}

int PaletteStrip::restHeight() const
{
    return floatingSize().height();
}

void PaletteStrip::restIn(const QRect& strip)
{
    if (!floats_ && geometry() != strip)
        setGeometry(strip);
}

void PaletteStrip::floatAt(QPoint corner)
{
    const bool out = !std::exchange(floats_, true);
    const QSize size = floatingSize();
    setGeometry({insideRoom(corner, size, parentWidget()->rect()), size});
    raise();
    if (out && moved)
        moved();
}

void PaletteStrip::rest()
{
    if (!std::exchange(floats_, false))
        return;
    if (moved)
        moved();
    update();
}

void PaletteStrip::giveWayTo(const QRect& field)
{
    const QRect there(parentWidget()->mapFromGlobal(field.topLeft()), field.size());
    if (!floats_ || !isVisible() || dragging_ || !geometry().intersects(there))
        return;
    const QRect room = parentWidget()->rect();
    for (const QPoint at : {QPoint(x(), room.bottom()), QPoint(x(), 0), QPoint(room.right(), y()), QPoint(0, y())}) {
        const QPoint kept = insideRoom(at, size(), room);
        if (!QRect(kept, size()).intersects(there)) {
            move(kept);
            return;
        }
    }
}

void PaletteStrip::followControls()
{
    view_->bringUpToDate();
}

// Where it rests nothing lies over it; each raising would paint its pictures anew.
void PaletteStrip::bringToFront()
{
    if (floats_)
        raise();
}

void PaletteStrip::relabel()
{
    view_->relabel();
    speak();
}

void PaletteStrip::recolor()
{
    view_->recolor();
    static_cast<CloseButton*>(close_)->setInks(*desk_.inks);
    update();
}

void PaletteStrip::farewell()
{
    view_->forgetModel();
    hide();
    if (moved)
        moved();
    deleteLater();
}

void PaletteStrip::paintEvent(QPaintEvent*)
{
    using namespace palette_strip_detail;
    const Inks& inks = *desk_.inks;
    QPainter painter(this);
    painter.fillRect(rect(), inks.desk);
    if (floats_)
        fillFrame(painter, rect(), inHand_ ? edgeInHand : 1.0, overStrip_ || inHand_ ? inks.accent : inks.edge);
    else
        painter.fillRect(0, 0, width(), inHand_ ? edgeInHand : 1, inHand_ ? inks.accent : inks.rule);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(inHand_ ? inks.accent : inks.quiet);
    const QPointF middle(gripWidth() / 2.0, height() / 2.0);
    const double step = gripWidth() * dotShare;
    const double radius = gripWidth() * radiusShare;
    for (int i = 0; i < dots; ++i)
        for (const double side : {-0.5, 0.5})
            painter.drawEllipse(middle + QPointF(side, i - (dots - 1) / 2.0) * step, radius, radius);
}

void PaletteStrip::resizeEvent(QResizeEvent*)
{
    const int margin = palette_strip_detail::margin;
    const int grip = gripWidth();
    const int button = 2 * grip;
    close_->setGeometry(width() - button - 1, 1, button, std::min(button, height() - 2));
    const QRect room(grip, margin, width() - grip - button, height() - 2 * margin);
    QSize content = contentSize();
    if (content.width() > room.width() || content.height() > room.height())
        content.scale(room.size(), Qt::KeepAspectRatio);
    QRect box(QPoint(), content);
    box.moveCenter(room.center());
    view_->setGeometry(box);
}

// The panel may have become too small for a palette that floats.
bool PaletteStrip::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Resize && floats_)
        floatAt(pos());
    return QWidget::eventFilter(object, event);
}

void PaletteStrip::mousePressEvent(QMouseEvent* event)
{
    held_ = event->button() == Qt::LeftButton;
    pressed_ = event->position().toPoint();
}

void PaletteStrip::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint way = event->position().toPoint() - pressed_;
    if (held_ && (dragging_ || way.manhattanLength() >= QApplication::startDragDistance()))
        dragTo(mapToParent(event->position().toPoint()));
}

// The grip stays under the pointer; at the lower edge of the panel it would go back into the strip.
void PaletteStrip::dragTo(QPoint pointer)
{
    if (!std::exchange(dragging_, true) && !floats_) {
        const QSize size = floatingSize();
        pressed_.setX(std::clamp(pressed_.x(), 0, size.width() - 1));
        pressed_.setY(std::clamp(pressed_.y(), 0, size.height() - 1));
    }
    floatAt(pointer - pressed_);
    overStrip_ = pointer.y() >= parentWidget()->height() - height() / 2;
    update();
}

void PaletteStrip::mouseReleaseEvent(QMouseEvent*)
{
    held_ = false;
    const bool back = std::exchange(dragging_, false) && std::exchange(overStrip_, false);
    if (back)
        rest();
}

void PaletteStrip::mouseDoubleClickEvent(QMouseEvent*)
{
    if (floats_)
        rest();
    else
        floatAt(pos() - QPoint(0, height()));
}

} // namespace velmor::desktop
