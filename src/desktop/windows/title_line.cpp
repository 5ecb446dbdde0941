// SPDX-License-Identifier: MIT
#include "desktop/windows/title_line.h"

#include <algorithm>

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include "desktop/drawing/texts.h"
#include "host/bitext.h"

namespace velmor::desktop {

namespace title_line_detail {

constexpr host::BiText closeText{.es = "Cerrar", .en = "Close"};
constexpr double lineShare = 1.75; ///< height of the line, by that of its letters
constexpr int smallestHeight = 24;

class CloseButton final : public QAbstractButton {
public:
    explicit CloseButton(QWidget* parent) : QAbstractButton(parent)
    {
        setFocusPolicy(Qt::NoFocus);
        setAttribute(Qt::WA_Hover);
    }
    const Inks* inks = nullptr;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        if (isDown() || underMouse())
            painter.fillRect(rect(), isDown() ? inks->warningTint : inks->buttonHover);
        painter.setRenderHint(QPainter::Antialiasing);
        const double arm = height() * 0.16;
        painter.setPen(QPen(underMouse() ? inks->warning : inks->ink, std::max(1.2, height() / 22.0), Qt::SolidLine,
                            Qt::RoundCap));
        const QPointF middle = QRectF(rect()).center();
        painter.drawLine(middle - QPointF(arm, arm), middle + QPointF(arm, arm));
        painter.drawLine(middle + QPointF(arm, -arm), middle + QPointF(-arm, arm));
    }
};

} // namespace title_line_detail

TitleLine::TitleLine(const Inks& inks, QWidget* parent)
    : QWidget(parent), inks_(&inks), close_(new title_line_detail::CloseButton(this))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    close_->setObjectName(QStringLiteral("close"));
    connect(close_, &QAbstractButton::clicked, this, [this] {
        if (closed)
            closed();
    });
    setInks(inks);
}

void TitleLine::setTitle(const QString& title)
{
    if (std::exchange(title_, title) != title)
        update();
}

void TitleLine::setInks(const Inks& inks)
{
    inks_ = &inks;
    static_cast<title_line_detail::CloseButton*>(close_)->inks = &inks;
    update();
}

void TitleLine::speak(bool english)
{
    const QString text = shown(english ? title_line_detail::closeText.en : title_line_detail::closeText.es);
    close_->setAccessibleName(text);
    close_->setToolTip(text);
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
    dragging_ = false;
    pressed_ = event->globalPosition().toPoint();
}

void TitleLine::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint at = event->globalPosition().toPoint();
    if (!held_ || (!dragging_ && (at - pressed_).manhattanLength() < QApplication::startDragDistance()))
        return;
    if (!dragged) {
        held_ = false;
        if (QWindow* moved = window()->windowHandle())
            moved->startSystemMove();
        return;
    }
    dragging_ = true;
    dragged(at);
}

void TitleLine::mouseReleaseEvent(QMouseEvent*)
{
    held_ = false;
    if (std::exchange(dragging_, false) && dropped)
        dropped();
}

void TitleLine::mouseDoubleClickEvent(QMouseEvent*)
{
    if (doubled)
        doubled();
}

} // namespace velmor::desktop
