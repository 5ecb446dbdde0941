// SPDX-License-Identifier: MIT
#include "desktop/windows/title_line.h"

#include <algorithm>

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include "desktop/windows/close_button.h"
#include "desktop/windows/placing.h"

namespace velmor::desktop {

namespace title_line_detail {

constexpr double lineShare = 1.75; ///< height of the line, by that of its letters
constexpr int smallestHeight = 24;

} // namespace title_line_detail

TitleLine::TitleLine(const Inks& inks, QWidget* parent)
    : QWidget(parent), inks_(&inks), close_(new CloseButton(inks, this))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(close_, &QAbstractButton::clicked, this, [this] {
        if (closed)
            closed();
    });
}

void TitleLine::setTitle(const QString& title)
{
    if (std::exchange(title_, title) != title)
        update();
}

void TitleLine::setInks(const Inks& inks)
{
    inks_ = &inks;
    close_->setInks(inks);
    update();
}

void TitleLine::speak(bool english)
{
    close_->speak(english);
}

void TitleLine::setActive(bool active)
{
    if (std::exchange(active_, active) != active)
        update();
}

int TitleLine::wholeWidth() const
{
    return fontMetrics().horizontalAdvance(title_) + 3 * sizeHint().height();
}

QSize TitleLine::sizeHint() const
{
    using namespace title_line_detail;
    const int height = std::max(smallestHeight, static_cast<int>(fontMetrics().height() * lineShare));
    return {4 * height, height};
}

void TitleLine::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int edge = std::max(1, height() / 14);
    painter.fillRect(rect(), active_ ? inks_->accentTint : inks_->desk);
    painter.fillRect(QRect(0, 0, width(), edge), active_ ? inks_->accent : inks_->rule);
    const QRect label = rect().adjusted(height() / 2, edge, -close_->width(), 0);
    painter.setPen(active_ ? inks_->ink : inks_->quiet);
    painter.drawText(label, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                     fontMetrics().elidedText(title_, Qt::ElideRight, label.width()));
}

void TitleLine::resizeEvent(QResizeEvent*)
{
    const int edge = std::max(1, height() / 14);
    close_->setGeometry(width() - height() - height() / 4, edge, height() + height() / 4, height() - edge);
}

void TitleLine::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange)
        updateGeometry();
    QWidget::changeEvent(event);
}

void TitleLine::mousePressEvent(QMouseEvent* event)
{
    held_ = event->button() == Qt::LeftButton;
    pressed_ = event->globalPosition().toPoint();
}

void TitleLine::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint way = event->globalPosition().toPoint() - pressed_;
    if (!held_ || way.manhattanLength() < QApplication::startDragDistance())
        return;
    if (!parentWidget()->isWindow()) { // it lies inside a window, which moves its parts itself
        pressed_ = event->globalPosition().toPoint();
        QWidget& frame = *parentWidget();
        frame.move(insideRoom(frame.pos() + way, frame.size(), frame.parentWidget()->rect()));
        return;
    }
    held_ = false;
    if (QWindow* moved = window()->windowHandle())
        moved->startSystemMove();
}

void TitleLine::mouseReleaseEvent(QMouseEvent*)
{
    held_ = false;
}

} // namespace velmor::desktop
