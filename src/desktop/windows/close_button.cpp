// SPDX-License-Identifier: MIT
#include "desktop/windows/close_button.h"

#include <algorithm>

#include <QPainter>

#include "desktop/drawing/texts.h"
#include "host/bitext.h"

namespace velmor::desktop {

namespace close_button_detail {

constexpr host::BiText closeText{.es = "Cerrar", .en = "Close"};
constexpr double armShare = 0.16;
constexpr double weightShare = 1.0 / 22.0;

} // namespace close_button_detail

CloseButton::CloseButton(const Inks& inks, QWidget* parent) : QAbstractButton(parent), inks_(&inks)
{
    setObjectName(QStringLiteral("close"));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
}

void CloseButton::setInks(const Inks& inks)
{
    inks_ = &inks;
    update();
}

void CloseButton::speak(bool english)
{
    const QString text = shown(english ? close_button_detail::closeText.en : close_button_detail::closeText.es);
    setAccessibleName(text);
    setToolTip(text);
}

void CloseButton::paintEvent(QPaintEvent*)
{
    using namespace close_button_detail;
    QPainter painter(this);
    if (isDown() || underMouse())
        painter.fillRect(rect(), isDown() ? inks_->warningTint : inks_->buttonHover);
    painter.setRenderHint(QPainter::Antialiasing);
    const int side = std::min(width(), height());
    const double arm = side * armShare;
    painter.setPen(QPen(underMouse() ? inks_->warning : inks_->ink, std::max(1.2, side * weightShare), Qt::SolidLine,
                        Qt::RoundCap));
    const QPointF middle = QRectF(rect()).center();
    painter.drawLine(middle - QPointF(arm, arm), middle + QPointF(arm, arm));
    painter.drawLine(middle + QPointF(arm, -arm), middle + QPointF(-arm, arm));
}

} // namespace velmor::desktop
