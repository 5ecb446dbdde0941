// SPDX-License-Identifier: MIT
#include "desktop/windows/tool_frame.h"

#include <utility>

#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

#include "desktop/drawing/plates.h"
#include "desktop/windows/placing.h"
#include "desktop/windows/title_line.h"

namespace velmor::desktop {

namespace tool_frame_detail {

constexpr QSize smallest(160, 100); ///< of one that lies inside

} // namespace tool_frame_detail

ToolFrame::ToolFrame(Desk& desk, QWidget* parent, Stands where)
    : QWidget(parent, where == Stands::inside ? Qt::Widget : Qt::Dialog | Qt::FramelessWindowHint), desk_(desk),
      title_(new TitleLine(*desk.inks, this))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(frame, frame, frame, frame);
    column->setSpacing(0);
    column->addWidget(title_);
    title_->setCursor(Qt::ArrowCursor); // the frame's arrows are its own
    setMouseTracking(true);
    title_->speak(desk.english());
    title_->closed = [this] { close(); };
    if (isInside()) {
        hide(); // a part of a window is shown with it otherwise
        parent->installEventFilter(this);
        look();
    }
}

void ToolFrame::hold(QWidget& inside)
{
    static_cast<QVBoxLayout*>(layout())->addWidget(&inside, 1);
    inside.setCursor(Qt::ArrowCursor);
}

QRect ToolFrame::room() const
{
    if (isInside())
        return {parentWidget()->mapToGlobal(QPoint(0, 0)), parentWidget()->size()};
    const QWidget* beside = parentWidget();
    const QScreen* screen = beside != nullptr ? beside->screen() : this->screen();
    return screen == nullptr ? QRect(0, 0, 1024, 768) : screen->availableGeometry();
}

QRect ToolFrame::onScreen() const
{
    return isInside() ? QRect(parentWidget()->mapToGlobal(pos()), size()) : frameGeometry();
}

void ToolFrame::moveOnScreen(QPoint corner)
{
    move(isInside() ? parentWidget()->mapFromGlobal(corner) : corner);
}

// What holds it may have become too small for the place where it stands, or has been turned to or left.
bool ToolFrame::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Resize && object == parent() && isInside())
        move(insideRoom(pos(), size(), parentWidget()->rect()));
    const bool turned = event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate;
    if (turned && object == parent() && isInside())
        look();
    return QWidget::eventFilter(object, event);
}

void ToolFrame::setInHand(bool inHand)
{
    if (std::exchange(inHand_, inHand) != inHand)
        look();
}

void ToolFrame::look()
{
    title_->setActive(isActive());
    update();
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
    if (event->type() == QEvent::ActivationChange)
        look();
}

void ToolFrame::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), desk_.inks->desk);
    fillFrame(painter, rect(), 1.0, isActive() ? desk_.inks->edge : desk_.inks->rule);
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
    const Qt::Edges edges = edgesAt(event->position().toPoint());
    held_ = isInside() && event->button() == Qt::LeftButton ? edges : Qt::Edges();
    pressed_ = event->globalPosition().toPoint();
    if (!isInside() && event->button() == Qt::LeftButton && windowHandle() != nullptr)
        windowHandle()->startSystemResize(edges);
}

void ToolFrame::drawEdges(QPoint way)
{
    QRect box = geometry();
    box.adjust(held_ & Qt::LeftEdge ? way.x() : 0, held_ & Qt::TopEdge ? way.y() : 0,
               held_ & Qt::RightEdge ? way.x() : 0, held_ & Qt::BottomEdge ? way.y() : 0);
    const QSize least = tool_frame_detail::smallest;
    if (box.width() >= least.width() && box.height() >= least.height())
        setGeometry(box & parentWidget()->rect());
}

void ToolFrame::mouseMoveEvent(QMouseEvent* event)
{
    if (held_ && (event->buttons() & Qt::LeftButton)) {
        const QPoint here = event->globalPosition().toPoint();
        drawEdges(here - std::exchange(pressed_, here));
        return;
    }
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
