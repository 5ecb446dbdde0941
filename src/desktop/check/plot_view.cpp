// SPDX-License-Identifier: MIT
#include "desktop/check/plot_view.h"

#include <algorithm>
#include <cmath>

#include <QFontInfo>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace velmor::desktop {

namespace plot_view_detail {

constexpr double keyStep = 0.01; ///< of the width; five times that with Shift or Ctrl
constexpr double coarse = 5;
constexpr double lettersShare = 0.9; ///< of those of the window

} // namespace plot_view_detail

PlotView::PlotView(const char* name, std::unique_ptr<Plot> plot, const Inks& inks, QWidget* parent)
    : QWidget(parent), plot_(std::move(plot)), inks_(&inks)
{
    setObjectName(QLatin1String(name));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

PlotLook PlotView::look() const
{
    return {
        .inks = inks_, .letters = QFontInfo(font()).pixelSize() * plot_view_detail::lettersShare, .english = english_};
}

void PlotView::follow(bool english)
{
    english_ = english;
    setAccessibleName(plot_->name());
    setAccessibleDescription(plot_->sentence());
    update();
}

void PlotView::setInks(const Inks& inks)
{
    inks_ = &inks;
    update();
}

QString PlotView::reading() const
{
    return place_ ? plot_->reading(*place_) : QString();
}

void PlotView::read(std::optional<double> place)
{
    if (place)
        place = std::clamp(*place, 0.0, 1.0);
    if (place_ == place)
        return;
    place_ = place;
    const QString told = reading();
    setAccessibleDescription(told.isEmpty() ? plot_->sentence() : told);
    update();
}

void PlotView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), inks_->paper);
    plot_->paint(painter, rect(), look(), reading().isEmpty() ? std::nullopt : place_);
    if (!hasFocus())
        return;
    painter.setPen(QPen(inks_->accent, 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(PlotPaper::fieldIn(rect(), look().letters));
}

void PlotView::mouseMoveEvent(QMouseEvent* event)
{
    const QRectF field = PlotPaper::fieldIn(rect(), look().letters);
    const double share = (event->position().x() - field.left()) / field.width();
    read(field.contains(event->position()) ? std::optional(share) : std::nullopt);
}

void PlotView::leaveEvent(QEvent*)
{
    if (!hasFocus())
        read(std::nullopt);
}

void PlotView::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    read(std::nullopt);
}

void PlotView::keyPressEvent(QKeyEvent* event)
{
    using namespace plot_view_detail;
    const bool far = (event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier)) != 0;
    const double step = far ? keyStep * coarse : keyStep;
    const double here = place_.value_or(0.5);
    switch (event->key()) {
    case Qt::Key_Left:
        return read(here - step);
    case Qt::Key_Right:
        return read(here + step);
    case Qt::Key_Home:
        return read(0.0);
    case Qt::Key_End:
        return read(1.0);
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace velmor::desktop
