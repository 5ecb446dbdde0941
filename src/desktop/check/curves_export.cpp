// SPDX-License-Identifier: MIT
#include "desktop/check/curves_export.h"

#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>

#include "desktop/drawing/typefaces.h"

namespace velmor::desktop {

namespace curves_export_detail {

// The page in points of its own.
constexpr double width = 640;
constexpr double headHeight = 36;
constexpr double noteHeight = 20;
constexpr double plotHeight = 270;
constexpr double letters = 12;
constexpr int pixelsPerInch = 96;

double headOf(const CurvesPaper& paper)
{
    return headHeight + (paper.note.isEmpty() ? 0 : noteHeight);
}

QSizeF sizeOf(const CurvesPaper& paper)
{
    return {width, headOf(paper) + plotHeight * static_cast<double>(paper.plots.size())};
}

void paintPage(QPainter& painter, const CurvesPaper& paper)
{
    const PlotLook look{.inks = &printInks(), .letters = letters, .english = paper.english};
    painter.setFont(interfaceFont(letters * 1.3, true));
    painter.setPen(look.inks->ink);
    painter.drawText(QRectF(0, 0, width, headHeight), Qt::AlignCenter, paper.title);
    if (!paper.note.isEmpty()) {
        painter.setFont(interfaceFont(letters));
        painter.drawText(QRectF(0, headHeight, width, noteHeight), Qt::AlignHCenter | Qt::AlignTop, paper.note);
    }
    double top = headOf(paper);
    for (const Plot* plot : paper.plots) {
        plot->paint(painter, QRectF(0, top, width, plotHeight), look, std::nullopt);
        top += plotHeight;
    }
}

} // namespace curves_export_detail

using namespace curves_export_detail;

bool exportCurvesSvg(const QString& path, const CurvesPaper& paper)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setResolution(pixelsPerInch);
    generator.setSize(sizeOf(paper).toSize());
    generator.setViewBox(QRectF(QPointF(), sizeOf(paper)));
    generator.setTitle(paper.title.toHtmlEscaped()); // it writes the title as it is
    QPainter painter;
    if (!painter.begin(&generator))
        return false;
    paintPage(painter, paper);
    return painter.end() && file.commit();
}

bool exportCurvesPdf(const QString& path, const CurvesPaper& paper)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    {
        QPdfWriter writer(&file);
        writer.setTitle(paper.title);
        writer.setCreator(QStringLiteral("Velmor"));
        writer.setResolution(600);
        writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(15, 15, 15, 15),
                                         QPageLayout::Millimeter));
        QPainter painter;
        if (!painter.begin(&writer))
            return false;
        const QSizeF size = sizeOf(paper);
        const double scale = std::min(writer.width() / size.width(), writer.height() / size.height());
        painter.translate((writer.width() - size.width() * scale) / 2, 0);
        painter.scale(scale, scale);
        paintPage(painter, paper);
        if (!painter.end())
            return false;
    }
    return file.commit();
}

bool exportText(const QString& path, const std::string& text)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text.data(), static_cast<qint64>(text.size())) >= 0 &&
           file.commit();
}

} // namespace velmor::desktop
