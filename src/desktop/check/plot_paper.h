// SPDX-License-Identifier: MIT
// Millimetre paper for one plot: axes, ticks, curves, marks, at any size and on any device. Knows no simulator.
#pragma once

#include <span>
#include <vector>

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QString>

#include "desktop/drawing/palette_of_inks.h"

class QPainter;

namespace velmor::desktop {

struct PlotLook {
    const Inks* inks = nullptr;
    double letters = 11; ///< pixels
    bool english = false;
};

struct PlotTick {
    double place = 0;
    QString text{}; ///< empty: a fine line without a number
};

struct PlotAxis {
    double from = 0;
    double to = 1;
    bool logarithmic = false;
    std::vector<PlotTick> ticks{};
    QString unit{};

    /// From 0 at `from` to 1 at `to`.
    double shareOf(double value) const;
    double valueAt(double share) const;
};

/// Ticks in steps of 1, 2 or 5 times a power of ten, about so many.
std::vector<PlotTick> evenTicks(double from, double to, int wanted);
/// One a decade, with a number, and fine ones between.
std::vector<PlotTick> decadeTicks(double from, double to);
/// The largest of 1, 2, 5 times a power of ten that is not above the value.
double niceBelow(double value);
/// "20 Hz", "1.5 kHz".
QString hertz(double frequency);
/// "25 mV", "1.5 V".
QString volts(double voltage);

/// A line of the legend.
struct PlotKey {
    enum class Sign { none, dot, line };
    QColor ink{};
    Sign sign = Sign::line;
    QString text{};
};

class PlotPaper {
public:
    PlotPaper(QPainter& painter, const QRectF& room, PlotAxis x, PlotAxis y, const PlotLook& look);

    const QRectF& field() const { return field_; }
    QPointF at(double x, double y) const;
    /// Ground, lines of the ticks, numbers.
    void paintGround(const QString& title) const;
    void paintCurve(std::span<const QPointF> points, const QColor& ink, double width) const;
    enum class Edge { left, right };
    /// A dashed line across, its name above or below it at one end.
    void paintLevel(double y, const QString& name, const QColor& ink, Edge edge, bool above) const;
    /// A dashed line down.
    void paintPlace(double x, const QColor& ink) const;
    void paintDot(double x, double y, const QColor& ink) const;
    /// What the inks mean, at the foot of the field.
    void paintKeys(std::span<const PlotKey> keys) const;
    /// The place that is being read, and what is read there.
    void paintReading(double x, const QString& text) const;
    /// Instead of a curve.
    void paintVeil(const QString& text) const;

    /// Where the field lies in a room of that size.
    static QRectF fieldIn(const QRectF& room, double letters);

private:
    QRectF numberBox(const PlotTick& tick) const;
    QRectF unitBox() const;
    void paintTicksAcross() const;
    void paintTicksDown() const;
    void paintKeySign(const PlotKey& key, QPointF centre) const;

    QPainter& painter_;
    QRectF room_;
    QRectF field_;
    PlotAxis x_;
    PlotAxis y_;
    PlotLook look_;
};

} // namespace velmor::desktop
