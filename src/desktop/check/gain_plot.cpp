// SPDX-License-Identifier: MIT
#include "desktop/check/plots.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "desktop/check/check_words.h"

namespace velmor::desktop {

using check_words::in;

namespace gain_plot_detail {

constexpr double courseLevel = check::courseLevelAtFo; // dB
constexpr double cornerLevel = -3.0103;                // dB
constexpr double lowestLevel = -18;
constexpr double highestLevel = 2.5;
constexpr double curveWidth = 2.2;

} // namespace gain_plot_detail

using namespace gain_plot_detail;

bool GainPlot::hasData() const
{
    return checked().result.response.frequency.size() > 1;
}

bool GainPlot::isOpen() const
{
    return checked().isOpen(check::Quantity::fL) && checked().isOpen(check::Quantity::dBfo);
}

QString GainPlot::name() const
{
    return in(check_words::gainName, checked().english);
}

PlotAxis GainPlot::frequencies() const
{
    double least = checked().design.fo > 0 ? checked().design.fo : 10;
    if (const check::Row* corner = check::rowOf(checked().result, check::Quantity::fL);
        corner != nullptr && corner->simulated && *corner->simulated > 0)
        least = std::min(least, *corner->simulated);
    const double from = std::max(0.01, std::pow(10, std::floor(std::log10(least / 3))));
    return {.from = from,
            .to = check::midBand,
            .logarithmic = true,
            .ticks = decadeTicks(from, check::midBand),
            .unit = "Hz"};
}

double GainPlot::levelAt(double frequency) const
{
    const check::Response& response = checked().result.response;
    const check::Measured there = check::gainAt(response, std::min(frequency, response.frequency.back()));
    return there ? check::decibel(*there, response.gain.back()) : 0;
}

void GainPlot::paint(QPainter& painter, const QRectF& room, const PlotLook& look, std::optional<double> place) const
{
    const PlotAxis x = frequencies();
    PlotAxis y{.from = lowestLevel, .to = highestLevel, .unit = "dB"};
    for (double level = lowestLevel; level <= 0; level += 6)
        y.ticks.push_back({level, check_words::minus(QString::number(level))});
    const PlotPaper paper(painter, room, x, y, look);
    paper.paintGround(name());
    if (!hasData() || !isOpen())
        return paper.paintVeil(in(hasData() ? check_words::gainVeil : check_words::noPlot, look.english));
    const Inks& inks = *look.inks;
    paper.paintLevel(courseLevel, QStringLiteral("−0.9 dB"), inks.quiet, PlotPaper::Edge::right, false);
    paper.paintLevel(cornerLevel, QStringLiteral("−3 dB"), inks.quiet, PlotPaper::Edge::right, false);
    const check::Response& response = checked().result.response;
    std::vector<QPointF> points;
    for (std::size_t i = 0; i < response.frequency.size(); ++i)
        if (response.frequency[i] >= x.from * 0.99)
            points.emplace_back(response.frequency[i], check::decibel(response.gain[i], response.gain.back()));
    paper.paintPlace(checked().design.fo, inks.accent);
    paper.paintCurve(points, inks.accent, curveWidth);
    const double level = levelAt(checked().design.fo);
    paper.paintDot(checked().design.fo, level, inks.accent);
    std::vector<PlotKey> keys{
        {inks.accent, PlotKey::Sign::dot,
         QStringLiteral("fo = %1: %2").arg(hertz(checked().design.fo), check_words::amount(level, "dB"))}};
    const check::Row* corner = check::rowOf(checked().result, check::Quantity::fL);
    if (corner != nullptr && corner->simulated) {
        paper.paintDot(*corner->simulated, cornerLevel, inks.ink);
        keys.push_back({inks.ink, PlotKey::Sign::dot, QStringLiteral("fL = %1: −3 dB").arg(hertz(*corner->simulated))});
    }
    keys.push_back({inks.quiet, PlotKey::Sign::none, in(check_words::noUpper, look.english)});
    paper.paintKeys(keys);
    if (place)
        paper.paintReading(x.valueAt(*place), reading(*place));
}

QString GainPlot::reading(double place) const
{
    if (!hasData() || !isOpen())
        return {};
    const double frequency = frequencies().valueAt(place);
    return QStringLiteral("%1: %2").arg(hertz(frequency), check_words::amount(levelAt(frequency), "dB"));
}

QString GainPlot::sentence() const
{
    const bool english = checked().english;
    if (!hasData())
        return in(check_words::noPlot, english);
    if (!isOpen())
        return in(check_words::gainVeil, english);
    const check::Row* corner = check::rowOf(checked().result, check::Quantity::fL);
    const double fL = corner != nullptr && corner->simulated ? *corner->simulated : 0;
    return in(check_words::gainShape, english)
        .arg(hertz(fL), hertz(10 * fL), hertz(checked().design.fo),
             check_words::amount(levelAt(checked().design.fo), "dB"));
}

} // namespace velmor::desktop
