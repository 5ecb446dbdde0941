// SPDX-License-Identifier: MIT
#include "desktop/drawing/program_icon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace velmor::desktop {

namespace program_icon_detail {

constexpr double drawnSize = 128.0;
constexpr int sizes[] = {16, 24, 32, 48, 128};
constexpr double smallest = 32.0; ///< below it the lines keep more of their weight

void paintTransistor(QPainter& painter, double weight)
{
    const QPen lead(Qt::white, 7.0 * weight, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter.setPen(lead);
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(70, 64), 37, 37);
    painter.drawPolyline(QPolygonF({{56, 55}, {84, 38}, {84, 18}}));
    painter.drawPolyline(QPolygonF({{56, 73}, {84, 90}, {84, 110}}));
    painter.setPen(QPen(Qt::white, 10.0 * weight, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QPointF(56, 42), QPointF(56, 86));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawPolygon(QPolygonF({{82, 89}, {62, 86.5}, {70.5, 72.5}}));
}

void paintSignal(QPainter& painter, double weight)
{
    QPainterPath wave(QPointF(14, 64));
    wave.cubicTo(19, 47, 26, 47, 31, 64);
    wave.cubicTo(36, 81, 43, 81, 48, 64);
    wave.lineTo(54, 64);
    painter.setPen(QPen(QColor(0xff, 0xd1, 0x66), 7.0 * weight, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(wave);
}

} // namespace program_icon_detail

QPixmap programPicture(int size)
{
    using namespace program_icon_detail;
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / drawnSize, size / drawnSize);
    const double weight = size < smallest ? 1.25 : 1.0;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x1a, 0x5f, 0xb4));
    painter.drawRoundedRect(QRectF(4, 4, 120, 120), 26, 26);
    paintTransistor(painter, weight);
    paintSignal(painter, weight);
    return pixmap;
}

QIcon programIcon()
{
    QIcon icon;
    for (const int size : program_icon_detail::sizes)
        icon.addPixmap(programPicture(size));
    return icon;
}

} // namespace velmor::desktop
