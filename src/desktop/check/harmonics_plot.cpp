// SPDX-License-Identifier: MIT
#include "desktop/check/plots.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "desktop/check/check_words.h"

namespace velmor::desktop {

using check_words::in;

namespace harmonics_plot_detail {

constexpr double leastScale = 1; ///< %, so that a clean wave looks clean

/// Short enough to stand over a bar; the sentence has the whole figure.
QString overBar(double percent)
{
    const int digits = percent >= 9.95 ? 0 : percent >= 0.095 ? 1 : 2;
    return percent < 0.005 ? QStringLiteral("0") : QString::number(percent, 'f', digits);
}

} // namespace harmonics_plot_detail

using namespace harmonics_plot_detail;

bool HarmonicsPlot::hasData() const
{
    return checked().swing.harmonics[1] > 0;
}

bool HarmonicsPlot::isOpen() const
{
    return checked().isOpen(check::Quantity::Eopp);
}

QString HarmonicsPlot::name() const
{
    return in(check_words::harmonicsName, checked().english);
}

double HarmonicsPlot::share(std::size_t harmonic) const
{
    return 100 * checked().swing.harmonics[harmonic] / checked().swing.harmonics[1];
}

void HarmonicsPlot::paint(QPainter& painter, const QRectF& room, const PlotLook& look, std::optional<double>) const
{
    const bool shows = hasData() && isOpen();
    double most = leastScale;
    for (std::size_t i = 2; shows && i < check::harmonicCount; ++i)
        most = std::max(most, 1.2 * share(i));
    PlotAxis x{.from = 1.4, .to = 5.6};
    for (int i = 2; i <= 5; ++i)
        x.ticks.push_back({static_cast<double>(i), QString::number(i)});
    const PlotPaper paper(painter, room, x, {.from = 0, .to = 1.08 * most, .ticks = evenTicks(0, most, 4), .unit = "%"},
                          look);
    paper.paintGround(name());
    if (!shows)
        return paper.paintVeil(QString());
    painter.setPen(Qt::NoPen);
    for (std::size_t i = 2; i < check::harmonicCount; ++i) {
        const auto place = static_cast<double>(i);
        const QRectF bar(paper.at(place - 0.3, share(i)), paper.at(place + 0.3, 0));
        painter.setPen(Qt::NoPen);
        painter.setBrush(look.inks->accent);
        painter.drawRect(bar);
        painter.setPen(look.inks->ink);
        painter.drawText(QRectF(bar.center().x() - 30, bar.top() - 1.4 * look.letters, 60, 1.4 * look.letters),
                         Qt::AlignHCenter | Qt::AlignVCenter, overBar(share(i)));
    }
}

QString HarmonicsPlot::reading(double) const
{
    return {};
}

QString HarmonicsPlot::sentence() const
{
    if (!hasData() || !isOpen())
        return in(hasData() ? check_words::waveVeil : check_words::noPlot, checked().english);
    QStringList parts;
    for (std::size_t i = 2; i < check::harmonicCount; ++i)
        parts.append(QStringLiteral("%1: %2").arg(i).arg(check_words::amount(share(i), "%")));
    return parts.join(QStringLiteral("; "));
}

} // namespace velmor::desktop
