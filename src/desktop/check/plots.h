// SPDX-License-Identifier: MIT
// The plots of a check: gain against frequency, the wave, its harmonics. Each paints itself, reads itself out at a place, and tells
// its shape in a sentence. They know no widget.
#pragma once

#include <optional>

#include "desktop/check/checked.h"
#include "desktop/check/plot_paper.h"

class QPainter;

namespace velmor::desktop {

class Plot {
public:
    explicit Plot(const Checked& checked) : checked_(checked) {}
    virtual ~Plot() = default;

    /// Has the simulator given anything for it.
    virtual bool hasData() const = 0;
    virtual QString name() const = 0;
    /// With the place that is being read, from 0 at the left to 1 at the right.
    virtual void paint(QPainter& painter, const QRectF& room, const PlotLook& look,
                       std::optional<double> place) const = 0;
    virtual QString reading(double place) const = 0;
    /// Its shape, for who cannot see it.
    virtual QString sentence() const = 0;

protected:
    const Checked& checked() const { return checked_; }

private:
    const Checked& checked_;
};

class GainPlot final : public Plot {
public:
    using Plot::Plot;
    bool hasData() const override;
    QString name() const override;
    void paint(QPainter& painter, const QRectF& room, const PlotLook& look, std::optional<double> place) const override;
    QString reading(double place) const override;
    QString sentence() const override;

private:
    bool isOpen() const;
    PlotAxis frequencies() const;
    double levelAt(double frequency) const;
};

class WavePlot final : public Plot {
public:
    using Plot::Plot;
    bool hasData() const override;
    QString name() const override;
    void paint(QPainter& painter, const QRectF& room, const PlotLook& look, std::optional<double> place) const override;
    QString reading(double place) const override;
    QString sentence() const override;

private:
    bool isOpen() const;
    PlotAxis times() const;
    PlotAxis heights(const QRectF& room, double letters) const;
    double magnified() const;
    void paintCeilings(const PlotPaper& paper, const PlotAxis& y, const PlotLook& look) const;
};

class HarmonicsPlot final : public Plot {
public:
    using Plot::Plot;
    bool hasData() const override;
    QString name() const override;
    void paint(QPainter& painter, const QRectF& room, const PlotLook& look, std::optional<double> place) const override;
    QString reading(double place) const override;
    QString sentence() const override;

private:
    bool isOpen() const;
    double share(std::size_t harmonic) const;
};

} // namespace velmor::desktop
