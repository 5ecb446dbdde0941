// SPDX-License-Identifier: MIT
// Snapping and the order of the layers.
#include "desktop/drawing/sketch.h"

#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QPen>

#include "desktop/drawing/lettering.h"

namespace velmor::desktop {

namespace strokes {

// The same point of the sheet, counted from the corners of two controls, differs by the last bits of a double. Where grid
// lines fall just between two pixels, these bits must not decide: a little more than nothing tips the scales. No grid line
// of a window of whole pixels lies so close to the middle between two.
constexpr double tip = 0.000317;

double middleOfPixels(double exact, double phase)
{
    return std::floor(exact - phase + 0.5 + tip) + phase;
}

} // namespace strokes

Sketch::Sketch(double unit, QPointF origin, bool snaps) : origin_(origin), unit_(unit), snaps_(snaps) {}

double Sketch::weight(double units) const
{
    const double width = units * unit_;
    return snaps_ ? std::max(1.0, std::floor(width + 0.45)) : width;
}

double Sketch::curveWeight() const
{
    return snaps_ ? std::clamp(1.5 * unit_, leadWeight() - 0.3, leadWeight() + 0.4) : leadWeight();
}

double Sketch::heavyWeight() const
{
    return snaps_ ? leadWeight() + 2.0 * std::max(1.0, std::round(leadWeight() * 0.25)) : 1.6 * leadWeight();
}

double Sketch::phase() const
{
    return std::fmod(leadWeight(), 2.0) == 0.0 ? 0.0 : 0.5;
}

QPointF Sketch::at(QPointF point) const
{
    const QPointF exact = exactly(point);
    if (!snaps_)
        return exact;
    return {strokes::middleOfPixels(exact.x(), phase()), strokes::middleOfPixels(exact.y(), phase())};
}

double Sketch::whole(double length) const
{
    return snaps_ ? std::round(length * unit_) : length * unit_;
}

double Sketch::edge(double length) const
{
    const double exact = length * unit_;
    if (!snaps_)
        return exact;
    const double snapped = std::round(std::abs(exact) - phase()) + phase();
    return std::copysign(std::max(snapped, phase() == 0.0 ? 1.0 : 0.5), exact);
}

Trace& Sketch::traceFor(Layer layer, const QColor& color, const QColor& ground, double width)
{
    for (Trace& trace : traces_)
        if (trace.layer == layer && trace.color == color && trace.ground == ground && trace.width == width)
            return trace;
    traces_.push_back({layer, color, ground, width, {}, {}});
    traces_.back().path.setFillRule(Qt::WindingFill);
    return traces_.back();
}

void Sketch::stroke(Layer layer, const QColor& color, double width, const QPainterPath& path)
{
    traceFor(layer, color, QColor(), width).path.addPath(path);
}

// A lead of one or two pixels has ends as round as square.
bool Sketch::runsAlongPixels(double width, std::initializer_list<QPointF> points) const
{
    constexpr double widest = 3.0;
    if (!snaps_ || width > widest || width != std::floor(width))
        return false;
    const auto onGrid = [half = width / 2.0](double at) { return at - half == std::floor(at - half); };
    if (!std::all_of(points.begin(), points.end(),
                     [&](QPointF point) { return onGrid(point.x()) && onGrid(point.y()); }))
        return false;
    return std::adjacent_find(points.begin(), points.end(), [](QPointF one, QPointF next) {
               return one.x() != next.x() && one.y() != next.y();
           }) == points.end();
}

void Sketch::stroke(Layer layer, const QColor& color, double width, std::initializer_list<QPointF> points)
{
    Trace& trace = traceFor(layer, color, QColor(), width);
    if (layer != Layer::dashed && runsAlongPixels(width, points)) {
        const double half = width / 2.0;
        for (auto from = points.begin(), to = from + 1; to != points.end(); ++from, ++to)
            trace.bars.push_back(QRectF(*from, *to).normalized().adjusted(-half, -half, half, half).toRect());
        return;
    }
    QPainterPath& path = trace.path;
    path.moveTo(*points.begin());
    std::for_each(points.begin() + 1, points.end(), [&path](QPointF point) { path.lineTo(point); });
}

void Sketch::fill(Layer layer, const QColor& color, const QPainterPath& path)
{
    traceFor(layer, QColor(), color, 0.0).path.addPath(path);
}

void Sketch::outline(Layer layer, const QColor& color, const QColor& ground, double width, const QPainterPath& path)
{
    traceFor(layer, color, ground, width).path.addPath(path);
}

void Sketch::write(QPointF baseline, const QString& text, const QFont& font, const QColor& color)
{
    letterings_.push_back({snaps_ ? QPointF(baseline.x(), std::round(baseline.y())) : baseline, text, font, color});
}

namespace strokes {

QPen penOf(const Trace& trace)
{
    if (trace.width <= 0.0)
        return QPen(Qt::NoPen);
    const bool isOutline = trace.layer == Layer::outline;
    QPen pen(trace.color, trace.width, Qt::SolidLine, isOutline ? Qt::FlatCap : Qt::RoundCap,
             isOutline ? Qt::MiterJoin : Qt::RoundJoin);
    if (trace.layer == Layer::dashed) {
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern({5.0, 4.0});
    }
    return pen;
}

} // namespace strokes

void Sketch::paint(QPainter& painter) const
{
    std::vector<const Trace*> order;
    order.reserve(traces_.size());
    for (const Trace& trace : traces_)
        order.push_back(&trace);
    std::stable_sort(order.begin(), order.end(), [](auto* one, auto* other) { return one->layer < other->layer; });
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Trace* trace : order) {
        for (const QRect& bar : trace->bars)
            painter.fillRect(bar, trace->color);
        if (trace->path.isEmpty())
            continue;
        painter.setPen(strokes::penOf(*trace));
        painter.setBrush(trace->ground.isValid() ? QBrush(trace->ground) : QBrush(Qt::NoBrush));
        painter.drawPath(trace->path);
    }
    for (const Lettering& lettering : letterings_) {
        painter.setPen(lettering.color);
        writeLine(painter, lettering.baseline, lettering.text, lettering.font);
    }
}

} // namespace velmor::desktop
