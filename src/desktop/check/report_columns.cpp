// SPDX-License-Identifier: MIT
#include "desktop/check/report_columns.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <QStringList>

namespace velmor::desktop {

namespace report_columns_detail {

using Widths = std::function<double(const QString&)>;

/// Stops that a cell fills, and the one behind it: nothing touches the next column.
int stopsOf(const QString& cell, const Widths& widthOf, double stop)
{
    return static_cast<int>(std::floor(widthOf(cell) / stop)) + 1;
}

/// A cell that ends so near to a stop that the text may be set as reaching it reaches it for certain, by a blank.
QString sureCell(const QString& cell, const Widths& widthOf, double stop)
{
    const QString longer = cell + QLatin1Char(' ');
    return stopsOf(longer, widthOf, stop) > stopsOf(cell, widthOf, stop) ? longer : cell;
}

void setTable(QStringList& lines, qsizetype from, qsizetype to, const Widths& widthOf, double stop)
{
    std::vector<int> stops;
    for (qsizetype i = from; i < to; ++i) {
        const QStringList cells = lines[i].split(QLatin1Char('\t'));
        for (qsizetype column = 0; column + 1 < cells.size(); ++column) {
            const auto place = static_cast<std::size_t>(column);
            stops.resize(std::max(stops.size(), place + 1), 1);
            stops[place] = std::max(stops[place], stopsOf(sureCell(cells[column], widthOf, stop), widthOf, stop));
        }
    }
    for (qsizetype i = from; i < to; ++i) {
        const QStringList cells = lines[i].split(QLatin1Char('\t'));
        QString line;
        for (qsizetype column = 0; column + 1 < cells.size(); ++column) {
            const QString cell = sureCell(cells[column], widthOf, stop);
            const int filled = stopsOf(cell, widthOf, stop) - 1;
            line += cell + QString(stops[static_cast<std::size_t>(column)] - filled, QLatin1Char('\t'));
        }
        lines[i] = line + cells.back();
    }
}

} // namespace report_columns_detail

QString inColumns(const QString& text, const std::function<double(const QString&)>& widthOf, double stop)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    for (qsizetype from = 0; from < lines.size();) {
        qsizetype to = from;
        while (to < lines.size() && lines[to].contains(QLatin1Char('\t')))
            ++to;
        report_columns_detail::setTable(lines, from, to, widthOf, stop);
        from = std::max(to, from + 1);
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace velmor::desktop
