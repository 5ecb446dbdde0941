// SPDX-License-Identifier: MIT
#include "desktop/check/judgement_sign.h"

#include <QPainter>
#include <QPainterPath>

namespace velmor::desktop {

namespace judgement_sign_detail {

/// In a box from -1 to 1.
QPainterPath strokesOf(check::Judgement judgement)
{
    QPainterPath path;
    const auto line = [&path](double x1, double y1, double x2, double y2) {
        path.moveTo(x1, y1);
        path.lineTo(x2, y2);
    };
    switch (judgement) {
    case check::Judgement::agrees:
    case check::Judgement::met:
        path.moveTo(-0.6, 0.05);
        path.lineTo(-0.15, 0.5);
        path.lineTo(0.65, -0.5);
        break;
    case check::Judgement::differs: // not equal
        line(-0.6, -0.22, 0.6, -0.22);
        line(-0.6, 0.22, 0.6, 0.22);
        line(-0.3, 0.6, 0.3, -0.6);
        break;
    case check::Judgement::notReached: // an arrow that ends below its bar
        line(-0.6, -0.65, 0.6, -0.65);
        line(0.0, 0.65, 0.0, -0.25);
        path.moveTo(-0.3, 0.05);
        path.lineTo(0.0, -0.25);
        path.lineTo(0.3, 0.05);
        break;
    case check::Judgement::unexplained:
        path.moveTo(-0.35, -0.35);
        path.cubicTo(-0.35, -0.8, 0.4, -0.8, 0.4, -0.3);
        path.cubicTo(0.4, 0.0, 0.0, 0.0, 0.0, 0.3);
        line(0.0, 0.6, 0.0, 0.62);
        break;
    case check::Judgement::shown:
        path.addEllipse(QPointF(0, 0), 0.18, 0.18);
        break;
    case check::Judgement::missing:
        line(-0.4, 0.0, 0.4, 0.0);
        break;
    }
    return path;
}

} // namespace judgement_sign_detail

QColor judgementInk(check::Judgement judgement, const Inks& inks)
{
    switch (judgement) {
    case check::Judgement::agrees:
    case check::Judgement::met:
        return inks.accent;
    case check::Judgement::notReached:
    case check::Judgement::unexplained:
        return inks.warning;
    case check::Judgement::differs:
        return inks.ink;
    case check::Judgement::shown:
    case check::Judgement::missing:
        break;
    }
    return inks.quiet;
}

void paintJudgementSign(QPainter& painter, const QRectF& box, check::Judgement judgement, const Inks& inks)
{
    const double half = box.width() / 2.0;
    painter.save();
    painter.translate(box.center());
    painter.scale(half, half);
    painter.setPen(QPen(judgementInk(judgement, inks), 1.8 / half, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(judgement_sign_detail::strokesOf(judgement));
    painter.restore();
}

} // namespace velmor::desktop
