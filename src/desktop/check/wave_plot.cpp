// SPDX-License-Identifier: MIT
#include "desktop/check/plots.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QPainter>

#include "check/deck.h"
#include "desktop/check/check_words.h"

namespace velmor::desktop {

using check_words::in;

namespace wave_plot_detail {

constexpr double cyclesSeen = 2;
constexpr double strong = 2.2; ///< pixels of the curve that counts
constexpr double thin = 1.2;
constexpr double bentDistortion = 10; ///< %
constexpr double muchLost = 0.7;      ///< a gain below it leaves no room for the whole input
constexpr double legendRoom = 1.35;   ///< below the wave, of what it has above
constexpr double mostLegendRoom = 3;  ///< the same on a low paper, where the wave must still be seen
constexpr double namesBelow = 5;      ///< heights of letters below the lower ceiling: its name and the legend

/// The wave between two of its values; its last cycles end with it.
double valueAt(const check::Wave& wave, double seconds)
{
    const auto cycle = static_cast<double>(wave.values.size()) / std::max(1, wave.cycles);
    const double place = static_cast<double>(wave.values.size()) - cyclesSeen * cycle + seconds / wave.step;
    const double last = static_cast<double>(wave.values.size()) - 1;
    const double kept = std::clamp(place, 0.0, last);
    const auto before = static_cast<std::size_t>(kept);
    const std::size_t after = std::min(before + 1, wave.values.size() - 1);
    const double share = kept - static_cast<double>(before);
    return wave.values[before] * (1 - share) + wave.values[after] * share;
}

double highest(const check::Wave& wave)
{
    return *std::max_element(wave.values.begin(), wave.values.end());
}

double lowest(const check::Wave& wave)
{
    return *std::min_element(wave.values.begin(), wave.values.end());
}

/// So many times as high, and lifted to where the output rests.
std::vector<QPointF> curveOf(const check::Wave& wave, double times, double lift)
{
    std::vector<QPointF> points;
    const double span = cyclesSeen / check::waveFrequency;
    constexpr int count = 400;
    for (int i = 0; i <= count; ++i)
        points.emplace_back(1000 * span * i / count, lift + times * valueAt(wave, span * i / count));
    return points;
}

} // namespace wave_plot_detail

using namespace wave_plot_detail;

bool WavePlot::hasData() const
{
    return checked().swing.output.values.size() > 1;
}

bool WavePlot::isOpen() const
{
    return checked().isOpen(check::Quantity::Eopp);
}

QString WavePlot::name() const
{
    return in(check_words::waveName, checked().english);
}

PlotAxis WavePlot::times() const
{
    const double span = 1000 * cyclesSeen / check::waveFrequency;
    return {.from = 0, .to = span, .ticks = evenTicks(0, span, 4), .unit = "ms"};
}

// The ceilings hold the scale: while the slider moves, the wave grows, not the paper. Below the lower one its name and the legend
// have room, also on a low paper.
PlotAxis WavePlot::heights(const QRectF& room, double letters) const
{
    const check::Wave& wave = checked().swing.output;
    const double rest = check::mean(wave);
    double reach = 1.15 * std::max(highest(wave) - rest, rest - lowest(wave));
    const check::Ceilings& ceilings = checked().result.ceilings;
    if (ceilings.known) {
        const auto [nearer, farther] = std::minmax({ceilings.cutOff, ceilings.saturation});
        reach = std::max({reach, 1.25 * nearer, 1.15 * std::min(farther, 2 * nearer)});
    }
    reach = std::max(reach, 1e-6);
    double below = legendRoom;
    if (const double lower = ceilings.cutOffAbove ? ceilings.saturation : ceilings.cutOff;
        ceilings.known && lower <= reach) {
        const double share =
            std::min(0.9, namesBelow * letters / std::max(1.0, PlotPaper::fieldIn(room, letters).height()));
        below = std::clamp((share + lower / reach) / (1 - share), legendRoom, mostLegendRoom);
    }
    const double from = rest - below * reach;
    return {.from = from, .to = rest + reach, .ticks = evenTicks(from, rest + reach, 6), .unit = "V"};
}

/// The input is drawn so many times larger, or smaller where much of it is lost on the way, that it can be told beside the output.
double WavePlot::magnified() const
{
    const check::Swing& first = checked().result.swing;
    if (first.input.values.empty() || first.output.values.empty() || check::peakToPeak(first.input) <= 0)
        return 1;
    const double gain = check::peakToPeak(first.output) / check::peakToPeak(first.input);
    return gain < 1 && gain > muchLost ? 1 : niceBelow(gain);
}

void WavePlot::paintCeilings(const PlotPaper& paper, const PlotAxis& y, const PlotLook& look) const
{
    const check::Ceilings& ceilings = checked().result.ceilings;
    if (!ceilings.known)
        return;
    const double rest = check::mean(checked().swing.output);
    const auto draw = [&](double ceiling, bool above, const host::BiText& text, bool nearer) {
        const double height = rest + (above ? ceiling : -ceiling);
        if (std::abs(height - rest) > y.to - rest)
            return;
        QString name = in(text, look.english).arg(volts(ceiling));
        if (nearer)
            name += QStringLiteral(", ") + in(check_words::bendsFirst, look.english);
        paper.paintLevel(height, name, nearer ? look.inks->warning : look.inks->quiet, PlotPaper::Edge::left, above);
    };
    draw(ceilings.cutOff, ceilings.cutOffAbove, check_words::cutOff, ceilings.cutOffIsNearer());
    draw(ceilings.saturation, !ceilings.cutOffAbove, check_words::saturation, !ceilings.cutOffIsNearer());
}

void WavePlot::paint(QPainter& painter, const QRectF& room, const PlotLook& look, std::optional<double> place) const
{
    const PlotAxis x = times();
    const PlotAxis y = hasData() && isOpen() ? heights(room, look.letters) : PlotAxis{.from = -1, .to = 1};
    const PlotPaper paper(painter, room, x, y, look);
    paper.paintGround(name());
    if (!hasData() || !isOpen())
        return paper.paintVeil(in(hasData() ? check_words::waveVeil : check_words::noPlot, look.english));
    const check::Swing& swing = checked().swing;
    if (!swing.input.values.empty())
        paper.paintCurve(curveOf(swing.input, magnified(), check::mean(swing.output)), look.inks->quiet, thin);
    paper.paintCurve(curveOf(swing.output, 1, 0), look.inks->accent, strong);
    paintCeilings(paper, y, look);
    const QString times = in(check_words::inputTimes, look.english).arg(check_words::amount(magnified(), ""));
    const QString output =
        in(check_words::thdAmount, look.english)
            .arg(check_words::amount(swing.peakToPeak, ""), check_words::amount(swing.distortion, "%"));
    paper.paintKeys(std::array{PlotKey{look.inks->quiet, PlotKey::Sign::line, times},
                               PlotKey{look.inks->accent, PlotKey::Sign::line, output}});
    if (place)
        paper.paintReading(x.valueAt(*place), reading(*place));
}

QString WavePlot::reading(double place) const
{
    if (!hasData() || !isOpen())
        return {};
    const double time = times().valueAt(place) / 1000;
    const check::Swing& swing = checked().swing;
    QString text =
        QStringLiteral("%1: %2").arg(check_words::amount(time * 1000, "ms"), volts(valueAt(swing.output, time)));
    if (!swing.input.values.empty())
        text += QStringLiteral(" (%1)").arg(volts(valueAt(swing.input, time)));
    return text;
}

QString WavePlot::sentence() const
{
    const bool english = checked().english;
    if (!hasData())
        return in(check_words::noPlot, english);
    if (!isOpen())
        return in(check_words::waveVeil, english);
    const check::Wave& wave = checked().swing.output;
    const double rest = check::mean(wave);
    const double up = highest(wave) - rest;
    const double down = rest - lowest(wave);
    const bool bent = checked().swing.distortion.value_or(0) > bentDistortion;
    const host::BiText& shape = up < 0.9 * down   ? check_words::flatTop
                                : down < 0.9 * up ? check_words::flatBottom
                                : bent            ? check_words::bothFlat
                                                  : check_words::roundWave;
    return in(check_words::waveShape, english)
        .arg(volts(highest(wave)), volts(lowest(wave)), check_words::amount(checked().swing.distortion, "%"),
             in(shape, english));
}

} // namespace velmor::desktop
