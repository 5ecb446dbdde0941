// SPDX-License-Identifier: MIT
// Pictograms of tools, each drawn on a field of 24 by 24 that is stretched into its box.
#include "desktop/drawing/symbols.h"

#include <algorithm>
#include <cmath>

namespace velmor::desktop {

using host::Mark;
using host::Symbol;

namespace pictograms {

/// The field of 24 by 24, kept square in the middle of the mark's box.
class Field {
public:
    Field(Sketch& sketch, const Mark& mark, const Stroke& stroke) : sketch_(sketch), stroke_(stroke)
    {
        const QRectF box = bodyOf(mark);
        side_ = std::min(box.width(), box.height());
        corner_ = box.center() - QPointF(side_, side_) / 2.0;
        const double scale = side_ * sketch.unit() / 24.0;
        // Lines thin out with the picture, but never below a pixel nor above the drawing's own weight.
        weight_ = sketch.weight(std::min(1.5, 1.6 * side_ / 24.0) * stroke.factor());
        length_ = scale;
    }

    QPointF at(double x, double y) const { return sketch_.at(corner_ + QPointF(x, y) * (side_ / 24.0)); }
    double length(double units) const { return units * length_; }

    void line(std::initializer_list<QPointF> points) const
    {
        QPainterPath path = through(points);
        sketch_.stroke(Layer::lead, stroke_.body, weight_, path);
    }
    void shape(std::initializer_list<QPointF> points) const
    {
        QPainterPath path = through(points);
        path.closeSubpath();
        sketch_.stroke(Layer::lead, stroke_.body, weight_, path);
    }
    void solid(std::initializer_list<QPointF> points) const
    {
        QPainterPath path = through(points);
        path.closeSubpath();
        sketch_.fill(Layer::solid, stroke_.body, path);
    }
    void box(double left, double top, double right, double bottom, double radius = 0.0) const
    {
        QPainterPath path;
        path.addRoundedRect(QRectF(at(left, top), at(right, bottom)), length(radius), length(radius));
        sketch_.stroke(Layer::lead, stroke_.body, weight_, path);
    }
    void circle(double x, double y, double radius) const
    {
        QPainterPath path;
        path.addEllipse(at(x, y), length(radius), length(radius));
        sketch_.stroke(Layer::lead, stroke_.body, weight_, path);
    }
    void dot(double x, double y, double radius) const
    {
        QPainterPath path;
        path.addEllipse(at(x, y), length(radius), length(radius));
        sketch_.fill(Layer::solid, stroke_.body, path);
    }
    void curve(QPointF start, std::initializer_list<QPointF> controls) const
    {
        QPainterPath path(at(start.x(), start.y()));
        for (auto control = controls.begin(); controls.end() - control >= 3; control += 3)
            path.cubicTo(at(control[0].x(), control[0].y()), at(control[1].x(), control[1].y()),
                         at(control[2].x(), control[2].y()));
        sketch_.stroke(Layer::lead, stroke_.body, weight_, path);
    }

private:
    QPainterPath through(std::initializer_list<QPointF> points) const
    {
        QPainterPath path(at(points.begin()->x(), points.begin()->y()));
        std::for_each(points.begin() + 1, points.end(), [&](QPointF to) { path.lineTo(at(to.x(), to.y())); });
        return path;
    }

    Sketch& sketch_;
    const Stroke& stroke_;
    QPointF corner_;
    double side_ = 0.0;
    double weight_ = 0.0;
    double length_ = 0.0;
};

void page(const Field& field)
{
    field.shape({{5, 2}, {14, 2}, {19, 7}, {19, 22}, {5, 22}});
    field.line({{14, 2}, {14, 7}, {19, 7}});
    field.line({{8, 11}, {16, 11}});
    field.line({{8, 14.5}, {16, 14.5}});
    field.line({{8, 18}, {13, 18}});
}

void book(const Field& field)
{
    field.curve({12, 6}, {{10, 4}, {6, 3.5}, {2, 4}, {2, 4}, {2, 19}, {2, 19}, {6, 18.5}, {10, 19}, {12, 21}});
    field.curve({12, 6}, {{14, 4}, {18, 3.5}, {22, 4}, {22, 4}, {22, 19}, {22, 19}, {18, 18.5}, {14, 19}, {12, 21}});
    field.line({{12, 6}, {12, 21}});
}

void calculator(const Field& field)
{
    field.box(5, 2, 19, 22, 2);
    field.box(8, 5, 16, 9);
    for (const double y : {12.5, 15.5, 18.5})
        for (const double x : {8.5, 12.0, 15.5})
            field.dot(x, y, 1.0);
}

void thermometer(const Field& field)
{
    field.curve({10, 14}, {{10, 14}, {10, 4}, {10, 4}, {10, 1.4}, {14, 1.4}, {14, 4}, {14, 4}, {14, 14}, {14, 14}});
    field.circle(12, 18, 4.2);
    field.dot(12, 18, 2.2);
    field.line({{12, 18}, {12, 8}});
    field.line({{17, 5}, {19, 5}});
    field.line({{17, 8}, {19, 8}});
    field.line({{17, 11}, {19, 11}});
}

void lamp(const Field& field)
{
    field.curve({9.5, 17}, {{9.5, 14},
                            {6.5, 13},
                            {6.5, 9.5},
                            {6.5, 6.4},
                            {9, 4},
                            {12, 4},
                            {15, 4},
                            {17.5, 6.4},
                            {17.5, 9.5},
                            {17.5, 13},
                            {14.5, 14},
                            {14.5, 17}});
    field.line({{9.5, 17}, {14.5, 17}});
    field.line({{10, 19.5}, {14, 19.5}});
    field.line({{11, 22}, {13, 22}});
    field.line({{2, 9.5}, {3.5, 9.5}});
    field.line({{20.5, 9.5}, {22, 9.5}});
    field.line({{4.5, 3}, {5.5, 4}});
    field.line({{19.5, 3}, {18.5, 4}});
}

void question(const Field& field)
{
    field.circle(12, 12, 10);
    field.curve({8.8, 9.5}, {{8.8, 5.2}, {15.2, 5.2}, {15.2, 9.3}, {15.2, 11.8}, {12, 11.8}, {12, 14.5}});
    field.dot(12, 17.6, 1.2);
}

void oscilloscope(const Field& field)
{
    field.box(2, 4, 22, 20, 2);
    field.box(4.5, 6.5, 14.5, 15.5, 1);
    field.curve({5.5, 11}, {{7, 6}, {8, 6}, {9.5, 11}, {11, 16}, {12, 16}, {13.5, 11}});
    field.circle(18.2, 8.5, 1.6);
    field.circle(18.2, 13.5, 1.6);
    field.dot(7, 17.9, 0.8);
    field.dot(12, 17.9, 0.8);
}

void multimeter(const Field& field)
{
    field.box(5, 2, 19, 22, 2);
    field.box(7.5, 4.5, 16.5, 9);
    field.circle(12, 14.5, 3.2);
    field.line({{12, 14.5}, {14, 12.5}});
    field.dot(8, 19.6, 0.9);
    field.dot(12, 19.6, 0.9);
    field.dot(16, 19.6, 0.9);
}

void butterfly(const Field& field)
{
    for (const double side : {-1.0, 1.0}) {
        const auto x = [side](double across) { return 12.0 + side * across; };
        field.curve({x(0.4), 11}, {{x(3), 4}, {x(10), 1.5}, {x(10.5), 5}, {x(11), 9}, {x(7), 13}, {x(0.4), 12.5}});
        field.curve({x(0.4), 12.5},
                    {{x(5), 12.5}, {x(8.5), 15}, {x(7.5), 18.5}, {x(6.5), 21.5}, {x(2), 19}, {x(0.4), 14.5}});
        field.line({{x(0.3), 8.5}, {x(2.5), 4}});
    }
    field.line({{12, 8.5}, {12, 18.5}});
}

void door(const Field& field)
{
    field.line({{13, 3}, {4, 3}, {4, 21}, {13, 21}});
    field.line({{9, 12}, {20, 12}});
    field.line({{16, 8}, {20, 12}, {16, 16}});
}

void colourBands(const Field& field)
{
    field.line({{1, 12}, {4.5, 12}});
    field.line({{19.5, 12}, {23, 12}});
    field.box(4.5, 8, 19.5, 16, 2.5);
    field.solid({{7.5, 8}, {9.3, 8}, {9.3, 16}, {7.5, 16}});
    field.solid({{10.9, 8}, {12.7, 8}, {12.7, 16}, {10.9, 16}});
    field.solid({{15.4, 8}, {16.6, 8}, {16.6, 16}, {15.4, 16}});
}

struct PictogramRow {
    Symbol symbol;
    void (*draw)(const Field&);
};

// clang-format off
constexpr PictogramRow rows[] = {
    {Symbol::page,         page},
    {Symbol::book,         book},
    {Symbol::calculator,   calculator},
    {Symbol::thermometer,  thermometer},
    {Symbol::lamp,         lamp},
    {Symbol::question,     question},
    {Symbol::oscilloscope, oscilloscope},
    {Symbol::multimeter,   multimeter},
    {Symbol::butterfly,    butterfly},
    {Symbol::door,         door},
    {Symbol::colourBands,  colourBands},
};
// clang-format on

constexpr std::size_t placeOf(Symbol symbol)
{
    return static_cast<std::size_t>(symbol) - static_cast<std::size_t>(Symbol::page);
}

consteval bool eachInItsPlace()
{
    for (std::size_t i = 0; i < std::size(rows); ++i)
        if (placeOf(rows[i].symbol) != i)
            return false;
    return std::size(rows) == placeOf(Symbol::colourBands) + 1;
}
static_assert(eachInItsPlace(), "every pictogram has a row, in the order of the symbols");

} // namespace pictograms

void drawPictogram(Sketch& sketch, const Mark& mark, const Stroke& stroke)
{
    pictograms::rows[pictograms::placeOf(mark.symbol)].draw(pictograms::Field(sketch, mark, stroke));
}

} // namespace velmor::desktop
