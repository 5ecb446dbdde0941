// SPDX-License-Identifier: MIT
#include "desktop/drawing/box_sign.h"

#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QPainterPath>

namespace velmor::desktop {

namespace box_sign {

using host::BoxIcon;

constexpr double field = 24.0; ///< the signs are drawn on a field of that side

/// Eight corners: the shape of the sign that stops at a crossing.
QPainterPath octagon()
{
    constexpr double reach = 10.4;
    constexpr double pi = 3.14159265358979;
    QPolygonF corners;
    for (int i = 0; i < 8; ++i) {
        const double angle = pi / 8.0 + i * pi / 4.0;
        corners.append({12.0 + reach * std::cos(angle), 12.0 + reach * std::sin(angle)});
    }
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    return path;
}

QPainterPath triangle()
{
    QPainterPath path(QPointF(12, 2.2));
    path.lineTo(23, 21.4);
    path.lineTo(1, 21.4);
    path.closeSubpath();
    return path;
}

QPainterPath circle()
{
    QPainterPath path;
    path.addEllipse(QPointF(12, 12), 10, 10);
    return path;
}

QPainterPath outlineOf(BoxIcon icon)
{
    return icon == BoxIcon::stop ? octagon() : icon == BoxIcon::warning ? triangle() : circle();
}

/// What stands inside, and the dot that belongs to it.
QPainterPath strokesOf(BoxIcon icon)
{
    QPainterPath path;
    switch (icon) {
    case BoxIcon::stop:
        path.moveTo(8.2, 8.2);
        path.lineTo(15.8, 15.8);
        path.moveTo(15.8, 8.2);
        path.lineTo(8.2, 15.8);
        break;
    case BoxIcon::warning:
        path.moveTo(12, 9);
        path.lineTo(12, 14.6);
        break;
    case BoxIcon::question:
        path.moveTo(8.8, 9.5);
        path.cubicTo(8.8, 5.2, 15.2, 5.2, 15.2, 9.3);
        path.cubicTo(15.2, 11.8, 12, 11.8, 12, 14.2);
        break;
    case BoxIcon::information:
        path.moveTo(12, 11);
        path.lineTo(12, 17.6);
        break;
    case BoxIcon::none:
        break;
    }
    return path;
}

QPointF dotOf(BoxIcon icon)
{
    return icon == BoxIcon::warning       ? QPointF(12, 17.9)
           : icon == BoxIcon::information ? QPointF(12, 7.2)
                                          : QPointF(12, 17.7);
}

} // namespace box_sign

void paintBoxSign(QPainter& painter, const QRectF& box, host::BoxIcon icon, const Inks& inks)
{
    using namespace box_sign;
    if (icon == BoxIcon::none)
        return;
    const bool warns = icon == BoxIcon::stop || icon == BoxIcon::warning;
    const QColor& ink = warns ? inks.warning : inks.accent;
    const double side = std::min(box.width(), box.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(box.center() - QPointF(side, side) / 2.0);
    painter.scale(side / field, side / field);
    painter.setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(warns ? inks.warningTint : inks.accentTint);
    painter.drawPath(outlineOf(icon));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ink, 1.9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(strokesOf(icon));
    if (icon != BoxIcon::stop) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        painter.drawEllipse(dotOf(icon), 1.3, 1.3);
    }
    painter.restore();
}

} // namespace velmor::desktop
