// SPDX-License-Identifier: MIT
// One small function per symbol, in units of the grid: along its way from end to end and across it (to the right of an
// upright part drawn downwards, above a lying one drawn to the right).
#include "desktop/drawing/symbols.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velmor::desktop {

using host::GridPoint;
using host::Mark;
using host::Symbol;

namespace symbols {

constexpr double plateWeight = 2.6;
constexpr double groundWeight = 1.8;
constexpr double thinWeight = 1.0;

QPointF unitsOf(GridPoint point)
{
    return {static_cast<double>(point.x), static_cast<double>(point.y)};
}

/// A symbol's own axes on the canvas.
class Axes {
public:
    Axes(const Sketch& sketch, QPointF centreInUnits, QPointF direction)
        : sketch_(sketch), centre_(sketch.at(centreInUnits)), along_(direction), across_(direction.y(), -direction.x()),
          aligned_(direction.x() == 0.0 || direction.y() == 0.0)
    {}

    QPointF centre() const { return centre_; }
    QPointF at(double along, double across) const
    {
        return centre_ + along_ * length(along) + across_ * length(across);
    }
    /// A corner on the border of a pixel, for filled bars.
    QPointF border(double along, double across) const
    {
        return aligned_ ? centre_ + along_ * sketch_.edge(along) + across_ * sketch_.edge(across) : at(along, across);
    }
    double length(double units) const { return aligned_ ? sketch_.whole(units) : units * sketch_.unit(); }
    QPointF direction(double along, double across) const { return along_ * along + across_ * across; }

    QPainterPath shape(std::initializer_list<QPointF> corners) const
    {
        QPainterPath path;
        path.moveTo(at(corners.begin()->x(), corners.begin()->y()));
        std::for_each(corners.begin() + 1, corners.end(),
                      [&](QPointF corner) { path.lineTo(at(corner.x(), corner.y())); });
        path.closeSubpath();
        return path;
    }

    /// A bar across the axis: `along` its middle, `half` half its length, `thickness` in units.
    QPainterPath bar(double along, double half, double thickness) const
    {
        const double depth = sketch_.weight(thickness);
        const QPointF middle = at(along, 0.0);
        // The bar's faces lie on pixel borders: a lead's middle is half a pixel off when leads are odd.
        const bool shifted =
            aligned_ && sketch_.snaps() && std::fmod(depth, 2.0) != std::fmod(sketch_.leadWeight(), 2.0);
        const QPointF start = middle - along_ * (depth / 2.0 + (shifted ? 0.5 : 0.0));
        const QPointF reach = across_ * (aligned_ ? sketch_.edge(half) : half * sketch_.unit());
        QPainterPath path;
        path.moveTo(start - reach);
        path.lineTo(start + reach);
        path.lineTo(start + reach + along_ * depth);
        path.lineTo(start - reach + along_ * depth);
        path.closeSubpath();
        return path;
    }

private:
    const Sketch& sketch_;
    QPointF centre_;
    QPointF along_;
    QPointF across_;
    bool aligned_;
};

QPointF directionOf(const Mark& mark)
{
    const QPointF way = unitsOf(mark.to) - unitsOf(mark.from);
    const double length = std::hypot(way.x(), way.y());
    return length == 0.0 ? QPointF(0.0, 1.0) : way / length;
}

QPainterPath circleAt(QPointF centre, double radius)
{
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    return path;
}

QRectF boxBetween(const Sketch& sketch, const Mark& mark)
{
    return QRectF(sketch.at(unitsOf(mark.from)), sketch.at(unitsOf(mark.to))).normalized();
}

/// A filled head with a notch, its tip at `tip`, pointing along `direction` (a unit vector on the canvas).
QPainterPath arrowHead(QPointF tip, QPointF direction, double length, double width)
{
    const QPointF across(direction.y(), -direction.x());
    const QPointF tail = tip - direction * length;
    QPainterPath path;
    path.moveTo(tip);
    path.lineTo(tail + across * (width / 2.0));
    path.lineTo(tip - direction * (length * 0.72));
    path.lineTo(tail - across * (width / 2.0));
    path.closeSubpath();
    return path;
}

/// Everything a symbol's function needs.
struct Pen {
    Sketch& sketch;
    const Mark& mark;
    const Stroke& stroke;
    Axes axes;

    double weight(double units) const { return sketch.weight(units * stroke.factor()); }
    double bodyWeight() const { return stroke.heavy ? sketch.heavyWeight() : sketch.leadWeight(); }
    double curveWeight() const { return stroke.heavy ? sketch.heavyWeight() : sketch.curveWeight(); }
    void outline(const QPainterPath& path) const { sketch.stroke(Layer::outline, stroke.body, bodyWeight(), path); }
    /// Outlines that are round or slanted.
    void curve(const QPainterPath& path) const { sketch.stroke(Layer::outline, stroke.body, curveWeight(), path); }
    void wave(const QPainterPath& path) const { sketch.stroke(Layer::lead, stroke.body, curveWeight(), path); }
    void solid(const QPainterPath& path) const { sketch.fill(Layer::solid, stroke.body, path); }
    void line(double alongA, double acrossA, double alongB, double acrossB) const
    {
        sketch.stroke(Layer::lead, stroke.body, bodyWeight(), {axes.at(alongA, acrossA), axes.at(alongB, acrossB)});
    }
    void lead(QPointF from, QPointF to) const
    {
        sketch.stroke(Layer::lead, stroke.ink, sketch.leadWeight(), {from, to});
    }
    /// The leads from both ends to a body that reaches `half` to each side.
    void leads(double half) const
    {
        lead(sketch.at(unitsOf(mark.from)), axes.at(-half, 0.0));
        lead(axes.at(half, 0.0), sketch.at(unitsOf(mark.to)));
    }
};

Pen penFor(Sketch& sketch, const Mark& mark, const Stroke& stroke)
{
    const QPointF middle = (unitsOf(mark.from) + unitsOf(mark.to)) / 2.0;
    return {sketch, mark, stroke, Axes(sketch, middle, directionOf(mark))};
}

void drawWire(const Pen& pen)
{
    pen.lead(pen.sketch.at(unitsOf(pen.mark.from)), pen.sketch.at(unitsOf(pen.mark.to)));
}

void drawResistor(const Pen& pen)
{
    pen.leads(18.0);
    pen.outline(pen.axes.shape({{-18.0, -6.5}, {18.0, -6.5}, {18.0, 6.5}, {-18.0, 6.5}}));
}

void drawPreset(const Pen& pen)
{
    drawResistor(pen);
    const double unit = pen.sketch.unit();
    const QPointF direction(std::numbers::sqrt2 / 2.0, -std::numbers::sqrt2 / 2.0);
    const QPointF tip = pen.axes.centre() + direction * (19.0 * unit);
    const QPointF tail = pen.axes.centre() - direction * (19.0 * unit);
    pen.sketch.stroke(Layer::lead, pen.stroke.body, pen.weight(1.2), {tail, tip - direction * (5.0 * unit)});
    pen.solid(arrowHead(tip, direction, 7.5 * unit, 6.0 * unit));
}

void drawCapacitor(const Pen& pen)
{
    pen.leads(3.5);
    pen.solid(pen.axes.bar(-3.5, 13.0, plateWeight * pen.stroke.factor()));
    pen.solid(pen.axes.bar(3.5, 13.0, plateWeight * pen.stroke.factor()));
}

void drawPolarised(const Pen& pen)
{
    drawCapacitor(pen);
    const bool labelAcross = pen.mark.side != host::Side::left && pen.mark.side != host::Side::below;
    const double across = labelAcross ? -9.0 : 9.0;
    const double weight = pen.sketch.weight(1.2);
    pen.sketch.stroke(Layer::thin, pen.stroke.body, weight, {pen.axes.at(-13.5, across), pen.axes.at(-7.5, across)});
    pen.sketch.stroke(Layer::thin, pen.stroke.body, weight,
                      {pen.axes.at(-10.5, across - 3.0), pen.axes.at(-10.5, across + 3.0)});
}

void drawDiode(const Pen& pen)
{
    pen.leads(7.0);
    pen.curve(pen.axes.shape({{-7.0, -8.0}, {-7.0, 8.0}, {7.0, 0.0}}));
    pen.solid(pen.axes.bar(7.0, 8.5, 2.0 * pen.stroke.factor()));
}

void drawZener(const Pen& pen)
{
    drawDiode(pen);
    pen.line(7.0, 8.0, 3.0, 8.0);
    pen.line(7.0, -8.0, 11.0, -8.0);
}

void drawLed(const Pen& pen)
{
    drawDiode(pen);
    const double unit = pen.sketch.unit();
    for (const double along : {-4.0, 3.0}) {
        const QPointF direction = pen.axes.direction(-0.6, 0.8);
        const QPointF tail = pen.axes.at(along, 10.0);
        const QPointF tip = tail + direction * (12.0 * unit);
        pen.sketch.stroke(Layer::thin, pen.stroke.body, pen.weight(1.1), {tail, tip - direction * (3.0 * unit)});
        pen.solid(arrowHead(tip, direction, 5.0 * unit, 4.2 * unit));
    }
}

void drawGenerator(const Pen& pen)
{
    pen.leads(15.0);
    const double unit = pen.sketch.unit();
    const QPointF centre = pen.axes.centre();
    pen.curve(circleAt(centre, pen.axes.length(15.0)));
    QPainterPath wave;
    wave.moveTo(centre + QPointF(-8.5, 0.0) * unit);
    wave.cubicTo(centre + QPointF(-5.4, -11.4) * unit, centre + QPointF(-3.1, -11.4) * unit, centre);
    wave.cubicTo(centre + QPointF(3.1, 11.4) * unit, centre + QPointF(5.4, 11.4) * unit,
                 centre + QPointF(8.5, 0.0) * unit);
    pen.wave(wave);
}

void drawMeter(const Pen& pen)
{
    pen.leads(15.0);
    pen.curve(circleAt(pen.axes.centre(), pen.axes.length(15.0)));
}

void drawLoudspeaker(const Pen& pen)
{
    pen.leads(9.0);
    pen.outline(pen.axes.shape({{-9.0, -5.0}, {9.0, -5.0}, {9.0, 4.0}, {-9.0, 4.0}}));
    pen.curve(pen.axes.shape({{-9.0, 4.0}, {-17.0, 14.0}, {17.0, 14.0}, {9.0, 4.0}}));
}

/// `turns` bumps along the axis, from `start`, at `across`, each reaching `bulge` to one side.
QPainterPath winding(const Axes& axes, double half, int turns, double across, double bulge)
{
    QPainterPath path;
    path.moveTo(axes.at(-half, across));
    const double step = 2.0 * half / turns;
    for (int turn = 0; turn < turns; ++turn) {
        const double start = -half + step * turn;
        path.cubicTo(axes.at(start - step * 0.06, across + bulge * 1.32),
                     axes.at(start + step * 1.06, across + bulge * 1.32), axes.at(start + step, across));
    }
    return path;
}

void drawInductor(const Pen& pen)
{
    pen.leads(18.0);
    pen.wave(winding(pen.axes, 18.0, 4, 0.0, 6.5));
}

void drawTransformer(const Pen& pen)
{
    const auto& axes = pen.axes;
    pen.leads(20.0);
    // The secondary has axes of its own: its ends lie on the grid, where wires join them.
    const QPointF direction = directionOf(pen.mark);
    const QPointF beside = QPointF(direction.y(), -direction.x()) * 40.0;
    const QPointF from = unitsOf(pen.mark.from) + beside;
    const QPointF to = unitsOf(pen.mark.to) + beside;
    const Axes secondary(pen.sketch, (from + to) / 2.0, direction);
    pen.lead(pen.sketch.at(from), secondary.at(-20.0, 0.0));
    pen.lead(secondary.at(20.0, 0.0), pen.sketch.at(to));
    pen.wave(winding(axes, 20.0, 4, 0.0, 10.0));
    pen.wave(winding(secondary, 20.0, 4, 0.0, -10.0));
    pen.line(-22.0, 17.5, 22.0, 17.5);
    pen.line(-22.0, 22.5, 22.0, 22.5);
}

void drawBattery(const Pen& pen)
{
    pen.leads(3.5);
    pen.solid(pen.axes.bar(-3.5, 13.0, 1.5 * pen.stroke.factor()));
    pen.solid(pen.axes.bar(3.5, 6.5, 3.2 * pen.stroke.factor()));
}

void drawSwitch(const Pen& pen)
{
    const bool closed = pen.mark.symbol == Symbol::switchClosed;
    pen.leads(12.0);
    pen.line(-12.0, 0.0, closed ? 12.0 : 9.0, closed ? 0.0 : 11.0);
    for (const double along : {-12.0, 12.0})
        pen.sketch.outline(Layer::terminal, pen.stroke.body, pen.stroke.paper, pen.curveWeight(),
                           circleAt(pen.axes.at(along, 0.0), 2.6 * pen.sketch.unit()));
}

void drawTransistor(const Pen& pen)
{
    const Symbol symbol = pen.mark.symbol;
    const double unit = pen.sketch.unit();
    const bool mirrored = host::isMirrored(symbol);
    const QPointF base = unitsOf(pen.mark.from);
    // Along runs from the base into the transistor; upwards is always up on the paper.
    const Axes axes(pen.sketch, base, {mirrored ? -1.0 : 1.0, 0.0});
    const double up = mirrored ? -1.0 : 1.0;
    pen.curve(circleAt(axes.at(20.0, 0.0), axes.length(21.0)));
    pen.lead(axes.at(0.0, 0.0), axes.at(13.0, 0.0));
    pen.solid(axes.bar(13.0, 12.5, 3.0 * pen.stroke.factor()));
    for (const double side : {up, -up}) {
        const QPointF end = pen.sketch.at(
            unitsOf(side == up ? host::upperEnd(symbol, pen.mark.from) : host::lowerEnd(symbol, pen.mark.from)));
        const QPointF knee(end.x(), axes.at(30.0, side * 18.7).y());
        pen.sketch.stroke(Layer::lead, pen.stroke.body, pen.curveWeight(), {axes.at(13.0, side * 6.0), knee});
        pen.lead(knee, end);
    }
    const double side = host::isPnp(symbol) ? up : -up;
    const QPointF foot = axes.at(13.0, side * 6.0);
    const QPointF leg = axes.at(30.0, side * 18.7) - foot;
    const double length = std::hypot(leg.x(), leg.y());
    const QPointF way = leg / length;
    const QPointF tip = host::isPnp(symbol) ? foot + way * (length * 0.30) : foot + way * (length * 0.78);
    pen.solid(arrowHead(tip, host::isPnp(symbol) ? -way : way, 9.0 * unit, 7.0 * unit));
}

void drawGround(const Pen& pen)
{
    const Axes axes(pen.sketch, unitsOf(pen.mark.from), {0.0, 1.0});
    pen.lead(axes.at(0.0, 0.0), axes.at(10.0, 0.0));
    pen.solid(axes.bar(10.0, 12.0, groundWeight));
    pen.solid(axes.bar(14.5, 7.5, groundWeight));
    pen.solid(axes.bar(19.0, 3.0, groundWeight));
}

void drawSupply(const Pen& pen)
{
    const double down = pen.mark.symbol == Symbol::supplyUp ? 1.0 : -1.0;
    const Axes axes(pen.sketch, unitsOf(pen.mark.from), {0.0, down});
    pen.lead(axes.at(0.0, 0.0), axes.at(10.0, 0.0));
    pen.solid(axes.bar(0.0, 9.0, groundWeight * pen.stroke.factor()));
}

void drawNode(const Pen& pen)
{
    pen.sketch.fill(Layer::node, pen.stroke.body,
                    circleAt(pen.sketch.at(unitsOf(pen.mark.from)), 2.7 * pen.sketch.unit()));
}

void drawTerminal(const Pen& pen)
{
    pen.sketch.outline(Layer::terminal, pen.stroke.body, pen.stroke.paper, pen.curveWeight(),
                       circleAt(pen.sketch.at(unitsOf(pen.mark.from)), 3.2 * pen.sketch.unit()));
}

void drawArrow(const Pen& pen)
{
    const double unit = pen.sketch.unit();
    const QPointF from = pen.sketch.at(unitsOf(pen.mark.from));
    const QPointF to = pen.sketch.at(unitsOf(pen.mark.to));
    const QPointF direction = pen.axes.direction(1.0, 0.0);
    pen.sketch.stroke(Layer::thin, pen.stroke.body, pen.weight(1.2), {from, to - direction * (5.0 * unit)});
    pen.solid(arrowHead(to, direction, 8.0 * unit, 6.0 * unit));
}

void drawPointer(const Pen& pen)
{
    const QPointF to = pen.sketch.at(unitsOf(pen.mark.to));
    pen.sketch.stroke(Layer::thin, pen.stroke.body, pen.weight(thinWeight),
                      {pen.sketch.at(unitsOf(pen.mark.from)), to});
    pen.sketch.fill(Layer::node, pen.stroke.body, circleAt(to, 1.8 * pen.sketch.unit()));
}

void drawSine(const Pen& pen)
{
    const double sign = pen.mark.symbol == Symbol::sine ? 1.0 : -1.0;
    const QRectF box(pen.sketch.exactly(unitsOf(pen.mark.from)), pen.sketch.exactly(unitsOf(pen.mark.to)));
    const QPointF start(box.left(), box.center().y());
    // A cubic that follows a half period of a sine: its top lies at three quarters of its control points.
    const double step = box.width() / 2.0;
    const double rise = -sign * box.height() / 1.5;
    QPainterPath wave;
    wave.moveTo(start);
    wave.cubicTo(start + QPointF(step * 0.3642, rise), start + QPointF(step * 0.6358, rise),
                 start + QPointF(step, 0.0));
    wave.cubicTo(start + QPointF(step * 1.3642, -rise), start + QPointF(step * 1.6358, -rise),
                 start + QPointF(2.0 * step, 0.0));
    pen.wave(wave);
}

void drawPolyline(const Pen& pen)
{
    const bool filled = pen.mark.symbol == Symbol::fill;
    if (pen.mark.points.empty())
        return;
    QPainterPath path(pen.sketch.at(unitsOf(pen.mark.points.front())));
    for (const GridPoint& point : pen.mark.points.subspan(1))
        path.lineTo(pen.sketch.at(unitsOf(point)));
    if (filled) {
        path.closeSubpath();
        pen.solid(path);
    } else {
        pen.sketch.stroke(Layer::lead, pen.stroke.body, pen.bodyWeight(), path);
    }
}

void drawFrame(const Pen& pen)
{
    const QRectF box = boxBetween(pen.sketch, pen.mark);
    QPainterPath path;
    if (pen.mark.symbol == Symbol::circle) {
        path.addEllipse(box);
        pen.curve(path);
    } else if (pen.mark.symbol == Symbol::roundFrame) {
        path.addRoundedRect(box, 6.0 * pen.sketch.unit(), 6.0 * pen.sketch.unit());
        pen.sketch.outline(Layer::ground, pen.stroke.body, pen.stroke.paper, pen.weight(thinWeight), path);
    } else {
        path.addRect(box);
        const bool dashed = pen.mark.symbol == Symbol::dashedFrame;
        pen.sketch.stroke(dashed ? Layer::dashed : Layer::thin, pen.stroke.body, pen.weight(thinWeight), path);
    }
}

void drawOwnPictogram(const Pen& pen)
{
    drawPictogram(pen.sketch, pen.mark, pen.stroke);
}

// Texts are set with names and values.
void drawNothing(const Pen&) {}

enum class Form : std::uint8_t { other, twoEnded, transistor, pictogram };

struct SymbolRow {
    Symbol symbol;
    void (*draw)(const Pen&);
    Reach reach{};
    Form form = Form::other;
};

// clang-format off
constexpr SymbolRow rows[] = {
    // symbol               strokes           along, across  form
    {Symbol::wire,         drawWire,          {},            Form::other},
    {Symbol::node,         drawNode,          {2.7, 2.7},    Form::other},
    {Symbol::terminal,     drawTerminal,      {4.0, 4.0},    Form::other},
    {Symbol::resistor,     drawResistor,      {18.0, 6.5},   Form::twoEnded},
    {Symbol::preset,       drawPreset,        {18.0, 13.5},  Form::twoEnded},
    {Symbol::capacitor,    drawCapacitor,     {5.0, 13.0},   Form::twoEnded},
    {Symbol::polarised,    drawPolarised,     {5.0, 13.0},   Form::twoEnded},
    {Symbol::diode,        drawDiode,         {8.0, 8.5},    Form::twoEnded},
    {Symbol::npn,          drawTransistor,    {21.0, 21.0},  Form::transistor},
    {Symbol::pnp,          drawTransistor,    {21.0, 21.0},  Form::transistor},
    {Symbol::npnLeft,      drawTransistor,    {21.0, 21.0},  Form::transistor},
    {Symbol::ground,       drawGround,        {},            Form::other},
    {Symbol::supplyUp,     drawSupply,        {2.0, 9.0},    Form::other},
    {Symbol::supplyDown,   drawSupply,        {2.0, 9.0},    Form::other},
    {Symbol::generator,    drawGenerator,     {15.0, 15.0},  Form::twoEnded},
    {Symbol::loudspeaker,  drawLoudspeaker,   {17.0, 14.0},  Form::twoEnded},
    {Symbol::meter,        drawMeter,         {15.0, 15.0},  Form::twoEnded},
    {Symbol::transformer,  drawTransformer,   {22.0, 42.0},  Form::twoEnded},
    {Symbol::arrow,        drawArrow,         {},            Form::other},
    {Symbol::pointer,      drawPointer,       {},            Form::other},
    {Symbol::sine,         drawSine,          {},            Form::other},
    {Symbol::sineInverted, drawSine,          {},            Form::other},
    {Symbol::polyline,     drawPolyline,      {},            Form::other},
    {Symbol::fill,         drawPolyline,      {},            Form::other},
    {Symbol::frame,        drawFrame,         {},            Form::other},
    {Symbol::roundFrame,   drawFrame,         {},            Form::other},
    {Symbol::circle,       drawFrame,         {},            Form::other},
    {Symbol::text,         drawNothing,       {},            Form::other},
    {Symbol::label,        drawNothing,       {},            Form::other},
    {Symbol::pnpLeft,      drawTransistor,    {21.0, 21.0},  Form::transistor},
    {Symbol::zener,        drawZener,         {8.0, 8.5},    Form::twoEnded},
    {Symbol::led,          drawLed,           {8.0, 20.0},   Form::twoEnded},
    {Symbol::inductor,     drawInductor,      {18.0, 7.0},   Form::twoEnded},
    {Symbol::battery,      drawBattery,       {5.0, 13.0},   Form::twoEnded},
    {Symbol::switchOpen,   drawSwitch,        {14.0, 8.0},   Form::twoEnded},
    {Symbol::switchClosed, drawSwitch,        {14.0, 8.0},   Form::twoEnded},
    {Symbol::dashedFrame,  drawFrame,         {},            Form::other},
    {Symbol::page,         drawOwnPictogram,  {},            Form::pictogram},
    {Symbol::book,         drawOwnPictogram,  {},            Form::pictogram},
    {Symbol::calculator,   drawOwnPictogram,  {},            Form::pictogram},
    {Symbol::thermometer,  drawOwnPictogram,  {},            Form::pictogram},
    {Symbol::lamp,         drawOwnPictogram,  {},            Form::pictogram},
    {Symbol::question,     drawOwnPictogram,  {},            Form::pictogram},
    {Symbol::oscilloscope, drawOwnPictogram,  {},            Form::pictogram},
    {Symbol::multimeter,   drawOwnPictogram,  {},            Form::pictogram},
    {Symbol::butterfly,    drawOwnPictogram,  {},            Form::pictogram},
    {Symbol::door,         drawOwnPictogram,  {},            Form::pictogram},
    {Symbol::colourBands,  drawOwnPictogram,  {},            Form::pictogram},
};
// clang-format on

consteval bool eachInItsPlace()
{
    for (std::size_t i = 0; i < std::size(rows); ++i)
        if (rows[i].symbol != static_cast<Symbol>(i) || rows[i].draw == nullptr)
            return false;
    return std::size(rows) == static_cast<std::size_t>(Symbol::count);
}
static_assert(eachInItsPlace(), "every symbol has a row, in the order of the symbols");

const SymbolRow& rowOf(Symbol symbol)
{
    return rows[static_cast<std::size_t>(symbol)];
}

} // namespace symbols

bool isTransistor(Symbol symbol)
{
    return symbols::rowOf(symbol).form == symbols::Form::transistor;
}

bool isPictogram(Symbol symbol)
{
    return symbols::rowOf(symbol).form == symbols::Form::pictogram;
}

bool isTwoEnded(Symbol symbol)
{
    return symbols::rowOf(symbol).form == symbols::Form::twoEnded;
}

Reach reachOf(Symbol symbol)
{
    return symbols::rowOf(symbol).reach;
}

QRectF bodyOf(const Mark& mark)
{
    using symbols::unitsOf;
    const QPointF from = unitsOf(mark.from);
    const QPointF to = unitsOf(mark.to);
    const Reach reach = reachOf(mark.symbol);
    if (isTransistor(mark.symbol)) {
        const QPointF centre = from + QPointF(host::isMirrored(mark.symbol) ? -20.0 : 20.0, 0.0);
        return {centre - QPointF(21.0, 21.0), centre + QPointF(21.0, 21.0)};
    }
    if (isTwoEnded(mark.symbol)) {
        const QPointF way = symbols::directionOf(mark);
        const double across = std::abs(way.y()) * reach.across + std::abs(way.x()) * reach.along;
        const double down = std::abs(way.x()) * reach.across + std::abs(way.y()) * reach.along;
        const QPointF half(across, down);
        const QPointF centre = (from + to) / 2.0;
        return {centre - half, centre + half};
    }
    if (mark.symbol == Symbol::ground)
        return {from + QPointF(-12.0, 8.0), from + QPointF(12.0, 21.0)};
    if (!mark.points.empty()) {
        QRectF box(unitsOf(mark.points.front()), QSizeF(0.1, 0.1));
        for (const GridPoint& point : mark.points)
            box |= QRectF(unitsOf(point), QSizeF(0.1, 0.1));
        return box;
    }
    const bool spans = reach.across == 0.0 && mark.symbol != Symbol::text && mark.symbol != Symbol::label;
    if (spans)
        return QRectF(from, to).normalized();
    return {from - QPointF(reach.across, reach.along), from + QPointF(reach.across, reach.along)};
}

QRectF extentOf(const Mark& mark)
{
    const QSizeF speck(0.1, 0.1);
    QRectF box = bodyOf(mark) | QRectF(symbols::unitsOf(mark.from), speck);
    if (isTwoEnded(mark.symbol))
        box |= QRectF(symbols::unitsOf(mark.to), speck);
    if (isTransistor(mark.symbol))
        box |= QRectF(symbols::unitsOf(host::upperEnd(mark.symbol, mark.from)),
                      QSizeF(0.1, 2.0 * host::transistorReach.y));
    if (mark.symbol == Symbol::supplyUp)
        box.adjust(0.0, 0.0, 0.0, 10.0);
    if (mark.symbol == Symbol::supplyDown)
        box.adjust(0.0, -10.0, 0.0, 0.0);
    return box;
}

void drawSymbol(Sketch& sketch, const Mark& mark, const Stroke& stroke)
{
    symbols::rowOf(mark.symbol).draw(symbols::penFor(sketch, mark, stroke));
}

} // namespace velmor::desktop
