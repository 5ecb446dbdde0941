// SPDX-License-Identifier: MIT
#include "desktop/program_icon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace velmor::desktop {

namespace program_icon_detail {

constexpr int drawnSize = 128;

void paintTransistor(QPainter& painter)
{
    const QColor ink(0x16, 0x18, 0x1d);
    painter.setPen(QPen(ink, 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(70, 64), 30, 30);
    painter.drawPolyline(QPolygonF({{58, 56}, {82, 43}, {82, 22}}));
    painter.drawPolyline(QPolygonF({{58, 72}, {82, 85}, {82, 106}}));
    painter.drawLine(QPointF(40, 64), QPointF(58, 64));
    painter.setPen(QPen(ink, 8, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QPointF(58, 46), QPointF(58, 82));
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawPolygon(QPolygonF({{79.5, 83.6}, {65.2, 82.4}, {71, 71.8}}));
}

void paintSignal(QPainter& painter)
{
    QPainterPath wave(QPointF(14, 64));
    wave.cubicTo(18, 51, 23, 51, 27, 64);
    wave.cubicTo(31, 77, 36, 77, 40, 64);
    painter.setPen(QPen(QColor(0x1f, 0x6f, 0xeb), 5, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(wave);
}

} // namespace program_icon_detail

QIcon programIcon()
{
    QPixmap pixmap(program_icon_detail::drawnSize, program_icon_detail::drawnSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0xc9, 0xc5, 0xb8), 2));
    painter.setBrush(QColor(0xfb, 0xfa, 0xf6));
    painter.drawRoundedRect(QRectF(8, 8, 112, 112), 20, 20);
    program_icon_detail::paintTransistor(painter);
    program_icon_detail::paintSignal(painter);
    painter.end();
    return QIcon(pixmap);
}

} // namespace velmor::desktop
