// SPDX-License-Identifier: MIT
#include "desktop/check/plot_paper.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>

#include "desktop/check/check_words.h"
#include "desktop/drawing/plates.h"
#include "desktop/drawing/typefaces.h"

namespace velmor::desktop {

namespace plot_paper_detail {

// In heights of the letters.
constexpr double leftMargin = 3.4;
constexpr double rightMargin = 1.6;
constexpr double topMargin = 1.9;
constexpr double bottomMargin = 1.9;
constexpr double numberAboveFoot = 0.55; ///< middle of the lowest number

QString plain(double value)
{
    return check_words::minus(QString::number(value, 'g', 4));
}

/// What stands behind the last comma is said elsewhere too, by the ink or in the table: it goes first where room is scarce.
QString fitting(const QString& text, const QFontMetricsF& letters, double width)
{
    const bool fits = letters.horizontalAdvance(text) <= width || !text.contains(QLatin1Char(','));
    return fits ? text : text.section(QLatin1Char(','), 0, -2);
}

} // namespace plot_paper_detail

using namespace plot_paper_detail;

double PlotAxis::shareOf(double value) const
{
    if (!logarithmic)
        return (value - from) / (to - from);
    return std::log(std::max(value, from * 1e-3) / from) / std::log(to / from);
}

double PlotAxis::valueAt(double share) const
{
    return logarithmic ? from * std::pow(to / from, share) : from + share * (to - from);
}

double niceBelow(double value)
{
    if (!(value > 0))
        return 1;
    const double decade = std::pow(10, std::floor(std::log10(value)));
    const double digit = value / decade * (1 + 1e-9);
    return decade * (digit >= 5 ? 5 : digit >= 2 ? 2 : 1);
}

std::vector<PlotTick> evenTicks(double from, double to, int wanted)
{
    double step = niceBelow((to - from) / std::max(1, wanted));
    while ((to - from) / step > wanted * 1.6)
        step = niceBelow(step * 2.5);
    std::vector<PlotTick> ticks;
    for (double i = std::ceil(from / step - 1e-9); i * step <= to + step * 1e-9; ++i)
        ticks.push_back({i * step, plain(i * step)});
    return ticks;
}

std::vector<PlotTick> decadeTicks(double from, double to)
{
    std::vector<PlotTick> ticks;
    for (double decade = std::pow(10, std::floor(std::log10(from) + 1e-9)); decade <= to * 1.001; decade *= 10)
        for (int digit = 1; digit < 10; ++digit) {
            const double place = digit * decade;
            if (place >= from * 0.999 && place <= to * 1.001)
                ticks.push_back({place, digit > 1       ? QString()
                                        : decade >= 999 ? QStringLiteral("%1k").arg(plain(decade / 1000))
                                                        : plain(decade)});
        }
    return ticks;
}

QString hertz(double frequency)
{
    return frequency >= 1000 ? check_words::amount(frequency / 1000, "kHz") : check_words::amount(frequency, "Hz");
}

QString volts(double voltage)
{
    return std::abs(voltage) < 0.1 ? check_words::amount(voltage * 1000, "mV") : check_words::amount(voltage, "V");
}

QRectF PlotPaper::fieldIn(const QRectF& room, double letters)
{
    return room.adjusted(leftMargin * letters, topMargin * letters, -rightMargin * letters, -bottomMargin * letters);
}

PlotPaper::PlotPaper(QPainter& painter, const QRectF& room, PlotAxis x, PlotAxis y, const PlotLook& look)
    : painter_(painter), room_(room), field_(fieldIn(room, look.letters)), x_(std::move(x)), y_(std::move(y)),
      look_(look)
{
    painter_.setRenderHint(QPainter::Antialiasing);
}

QPointF PlotPaper::at(double x, double y) const
{
    return {field_.left() + x_.shareOf(x) * field_.width(), field_.bottom() - y_.shareOf(y) * field_.height()};
}

void PlotPaper::paintTicksAcross() const
{
    for (const PlotTick& tick : x_.ticks) {
        const double x = at(tick.place, y_.from).x();
        painter_.setPen(QPen(look_.inks->rule, tick.text.isEmpty() ? 0.5 : 1.0));
        painter_.drawLine(QPointF(x, field_.top()), QPointF(x, field_.bottom()));
        painter_.setPen(look_.inks->quiet);
        painter_.drawText(QRectF(x - 40, field_.bottom() + 2, 80, 1.5 * look_.letters), Qt::AlignHCenter | Qt::AlignTop,
                          tick.text);
    }
}

// Beside its line; the lowest stands on the foot of the field, since below it stands the unit of what goes across.
QRectF PlotPaper::numberBox(const PlotTick& tick) const
{
    const double middle = std::min(at(x_.from, tick.place).y(), field_.bottom() - numberAboveFoot * look_.letters);
    return {room_.left(), middle - look_.letters, field_.left() - room_.left() - 5, 2 * look_.letters};
}

QRectF PlotPaper::unitBox() const
{
    return {room_.left(), field_.bottom() + 2, field_.left() - room_.left() - 1.4 * look_.letters, 1.5 * look_.letters};
}

void PlotPaper::paintTicksDown() const
{
    for (const PlotTick& tick : y_.ticks) {
        const double y = at(x_.from, tick.place).y();
        painter_.setPen(QPen(look_.inks->rule, 1.0));
        painter_.drawLine(QPointF(field_.left(), y), QPointF(field_.right(), y));
        painter_.setPen(look_.inks->quiet);
        painter_.drawText(numberBox(tick), Qt::AlignRight | Qt::AlignVCenter, tick.text);
    }
}

void PlotPaper::paintGround(const QString& title) const
{
    painter_.fillRect(field_, look_.inks->field);
    painter_.setFont(interfaceFont(look_.letters));
    paintTicksAcross();
    paintTicksDown();
    painter_.setPen(QPen(look_.inks->edge, 1.0));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(field_);
    painter_.setPen(look_.inks->quiet);
    painter_.drawText(unitBox(), Qt::AlignRight | Qt::AlignTop, x_.unit);
    const QRectF head(room_.left(), room_.top(), room_.width(), topMargin * look_.letters - 3);
    painter_.drawText(QRectF(head.left(), head.top(), field_.left() - room_.left() - 5, head.height()),
                      Qt::AlignRight | Qt::AlignBottom, y_.unit);
    painter_.setFont(interfaceFont(look_.letters, true));
    painter_.setPen(look_.inks->ink);
    painter_.drawText(QRectF(field_.left(), head.top(), room_.right() - field_.left(), head.height()),
                      Qt::AlignLeft | Qt::AlignBottom, title);
    painter_.setFont(interfaceFont(look_.letters));
}

void PlotPaper::paintCurve(std::span<const QPointF> points, const QColor& ink, double width) const
{
    QPolygonF line;
    for (const QPointF& point : points)
        line.append(at(point.x(), point.y()));
    painter_.save();
    painter_.setClipRect(field_);
    painter_.setBrush(Qt::NoBrush);
    painter_.setPen(QPen(ink, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter_.drawPolyline(line);
    painter_.restore();
}

void PlotPaper::paintLevel(double y, const QString& name, const QColor& ink, Edge edge, bool above) const
{
    const double height = at(x_.from, y).y();
    painter_.setPen(QPen(ink, 1.2, Qt::DashLine));
    painter_.drawLine(QPointF(field_.left(), height), QPointF(field_.right(), height));
    const double lines = 1.3 * look_.letters;
    const bool fitsAbove = height - lines - 1 >= field_.top();
    const QRectF room(field_.left() + 4, above && fitsAbove ? height - lines - 1 : height + 1, field_.width() - 8,
                      lines);
    const QString text = fitting(name, QFontMetricsF(interfaceFont(look_.letters)), room.width());
    const auto how = (edge == Edge::left ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter;
    QColor ground = look_.inks->field;
    ground.setAlphaF(0.8F);
    painter_.fillRect(painter_.boundingRect(room, how, text).adjusted(-2, 0, 2, 0), ground);
    painter_.setPen(ink);
    painter_.drawText(room, how, text);
}

void PlotPaper::paintPlace(double x, const QColor& ink) const
{
    const double across = at(x, y_.from).x();
    painter_.setPen(QPen(ink, 1.2, Qt::DashLine));
    painter_.drawLine(QPointF(across, field_.top()), QPointF(across, field_.bottom()));
}

void PlotPaper::paintDot(double x, double y, const QColor& ink) const
{
    if (y < y_.from || y > y_.to)
        return;
    painter_.setPen(QPen(look_.inks->field, 1.5));
    painter_.setBrush(ink);
    painter_.drawEllipse(at(x, y), 4.0, 4.0);
}

void PlotPaper::paintKeys(std::span<const PlotKey> keys) const
{
    const QFontMetricsF letters(interfaceFont(look_.letters));
    const double gap = look_.letters / 2;
    const double line = 1.35 * look_.letters;
    double widest = 0;
    for (const PlotKey& key : keys)
        widest = std::max(widest, letters.horizontalAdvance(key.text));
    const double sign = 1.9 * look_.letters;
    QRectF box(0, 0, std::min(widest + sign + gap, field_.width() - 2), line * static_cast<double>(keys.size()) + gap);
    box.moveBottomRight(field_.bottomRight() - QPointF(gap / 2, gap / 2));
    QColor ground = look_.inks->field;
    ground.setAlphaF(0.8F);
    painter_.fillRect(box, ground);
    double middle = box.top() + gap / 2 + line / 2;
    for (const PlotKey& key : keys) {
        paintKeySign(key, QPointF(box.left() + sign / 2, middle));
        painter_.setPen(key.sign == PlotKey::Sign::none ? key.ink : look_.inks->ink);
        const QRectF room(box.left() + sign, middle - line / 2, box.right() - box.left() - sign, line);
        painter_.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                          letters.elidedText(fitting(key.text, letters, room.width()), Qt::ElideRight, room.width()));
        middle += line;
    }
}

void PlotPaper::paintKeySign(const PlotKey& key, QPointF centre) const
{
    const double reach = 0.6 * look_.letters;
    painter_.setBrush(key.ink);
    if (key.sign == PlotKey::Sign::line) {
        painter_.setPen(QPen(key.ink, 2.2, Qt::SolidLine, Qt::RoundCap));
        painter_.drawLine(centre - QPointF(reach, 0), centre + QPointF(reach, 0));
    } else if (key.sign == PlotKey::Sign::dot) {
        painter_.setPen(Qt::NoPen);
        painter_.drawEllipse(centre, 4.0, 4.0);
    }
}

void PlotPaper::paintReading(double x, const QString& text) const
{
    const double across = at(x, y_.from).x();
    painter_.setPen(QPen(look_.inks->ink, 1.0));
    painter_.drawLine(QPointF(across, field_.top()), QPointF(across, field_.bottom()));
    const QFontMetricsF letters(interfaceFont(look_.letters));
    QRectF box(0, field_.top() + 4, letters.horizontalAdvance(text) + 12, 1.7 * look_.letters);
    box.moveLeft(across + 6 + box.width() > field_.right() ? across - 6 - box.width() : across + 6);
    box.moveLeft(std::max(box.left(), field_.left() + 2));
    paintPlate(painter_, box, {look_.inks->balloon, QColor(), 4.0, 0.0});
    painter_.setPen(look_.inks->onBalloon);
    painter_.drawText(box, Qt::AlignCenter, text);
}

void PlotPaper::paintVeil(const QString& text) const
{
    painter_.fillRect(field_.adjusted(1, 1, -1, -1), look_.inks->fieldOff);
    painter_.setPen(look_.inks->fieldOffInk);
    painter_.drawText(field_.adjusted(12, 6, -12, -6), Qt::AlignCenter | Qt::TextWordWrap, text);
}

} // namespace velmor::desktop
