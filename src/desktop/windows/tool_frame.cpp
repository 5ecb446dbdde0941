// SPDX-License-Identifier: MIT
#include "desktop/windows/tool_frame.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

#include "desktop/drawing/plates.h"
#include "desktop/windows/title_line.h"

namespace velmor::desktop {

ToolFrame::ToolFrame(Desk& desk, QWidget* mainWindow)
    : QWidget(mainWindow, Qt::Dialog | Qt::FramelessWindowHint), desk_(desk), title_(new TitleLine(*desk.inks, this))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(frame, frame, frame, frame);
    column->setSpacing(0);
    column->addWidget(title_);
    title_->setCursor(Qt::ArrowCursor); // the frame's arrows are its own
    setMouseTracking(true);
    title_->speak(desk.english());
    title_->closed = [this] { close(); };
}

void ToolFrame::hold(QWidget& inside)
{
    static_cast<QVBoxLayout*>(layout())->addWidget(&inside, 1);
    inside.setCursor(Qt::ArrowCursor);
}

QRect ToolFrame::room() const
{
    const QWidget* beside = parentWidget();
    const QScreen* screen = beside != nullptr ? beside->screen() : this->screen();
    return screen == nullptr ? QRect(0, 0, 1024, 768) : screen->availableGeometry();
}

void ToolFrame::speakInFrame()
{
    title_->speak(desk_.english());
}

void ToolFrame::recolorFrame()
{
    title_->setInks(*desk_.inks);
    update();
}

void ToolFrame::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange) {
        title_->setActive(isActiveWindow());
        update();
    }
}

void ToolFrame::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), desk_.inks->desk);
    fillFrame(painter, rect(), 1.0, isActiveWindow() ? desk_.inks->edge : desk_.inks->rule);
}

Qt::Edges ToolFrame::edgesAt(QPoint place) const
{
    const int reach = 2 * frame;
    Qt::Edges edges;
    edges.setFlag(Qt::LeftEdge, place.x() < reach);
    edges.setFlag(Qt::RightEdge, place.x() >= width() - reach);
    edges.setFlag(Qt::TopEdge, place.y() < reach);
    edges.setFlag(Qt::BottomEdge, place.y() >= height() - reach);
    return edges;
}

void ToolFrame::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && windowHandle() != nullptr)
        windowHandle()->startSystemResize(edgesAt(event->position().toPoint()));
}

void ToolFrame::mouseMoveEvent(QMouseEvent* event)
{
    const Qt::Edges edges = edgesAt(event->position().toPoint());
    const bool across = edges & (Qt::LeftEdge | Qt::RightEdge);
    const bool down = edges & (Qt::TopEdge | Qt::BottomEdge);
    const bool falling = edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge);
    setCursor(across && down ? (falling ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor)
              : across       ? Qt::SizeHorCursor
              : down         ? Qt::SizeVerCursor
                             : Qt::ArrowCursor);
}

} // namespace velmor::desktop
