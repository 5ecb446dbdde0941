// SPDX-License-Identifier: MIT
// What a drawing is before it meets the painter: paths collected by ink and weight, so that each is stroked once, and
// texts. Knows the pixel grid, not the symbols.
#pragma once

#include <vector>

#include <QColor>
#include <QFont>
#include <QPainterPath>
#include <QPointF>
#include <QString>

class QPainter;

namespace velmor::desktop {

/// From bottom to top.
enum class Layer { halo, ground, thin, dashed, lead, outline, solid, node, terminal };

/// A collected path and how it meets the paper.
struct Trace {
    Layer layer = Layer::lead;
    QColor color;
    QColor ground;      ///< filled with it before the stroke; invalid for none
    double width = 0.0; ///< 0: filled, not stroked
    QPainterPath path;
    std::vector<QRect> bars; ///< strokes along the rows and columns of the pixels, as what they cover
};

struct Lettering {
    QPointF baseline;
    QString text;
    QFont font;
    QColor color;
};

class Sketch {
public:
    /// `unit` is the length of one grid unit on the canvas, `origin` the canvas point of (0, 0). With `snaps` the canvas is
    /// the device's pixels and everything that can lies on them.
    Sketch(double unit, QPointF origin, bool snaps);

    double unit() const { return unit_; }
    bool snaps() const { return snaps_; }

    /// A grid point as the middle of a lead.
    QPointF at(QPointF point) const;
    /// A grid point, not rounded.
    QPointF exactly(QPointF point) const { return origin_ + point * unit_; }
    /// A length, in whole pixels: middle plus length is the middle of another lead.
    double whole(double length) const;
    /// A length from the middle of a lead to the border of a pixel, for filled shapes.
    double edge(double length) const;
    /// Width of a stroke: whole pixels, at least one.
    double weight(double units) const;
    double leadWeight() const { return weight(1.5); }
    /// Width for curves and slants, which cannot lie on whole pixels: near the true one, so that they look as dark as leads.
    double curveWeight() const;
    /// Width of the outline of the part in hand: heavier than a lead by a whole pixel on each side.
    double heavyWeight() const;

    void stroke(Layer layer, const QColor& color, double width, const QPainterPath& path);
    void stroke(Layer layer, const QColor& color, double width, std::initializer_list<QPointF> points);
    void fill(Layer layer, const QColor& color, const QPainterPath& path);
    /// Filled with `ground`, then stroked.
    void outline(Layer layer, const QColor& color, const QColor& ground, double width, const QPainterPath& path);
    void write(QPointF baseline, const QString& text, const QFont& font, const QColor& color);

    /// Paints all of it with the canvas as the painter's coordinates.
    void paint(QPainter& painter) const;

private:
    Trace& traceFor(Layer layer, const QColor& color, const QColor& ground, double width);
    bool runsAlongPixels(double width, std::initializer_list<QPointF> points) const;
    double phase() const;

    std::vector<Trace> traces_;
    std::vector<Lettering> letterings_;
    QPointF origin_;
    double unit_;
    bool snaps_;
};

} // namespace velmor::desktop
