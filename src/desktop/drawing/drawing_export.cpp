// SPDX-License-Identifier: MIT
// One painting for paper and files; only the device differs.
#include "desktop/drawing/drawing_export.h"

#include <algorithm>

#include <QBuffer>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>

#include "desktop/drawing/control_painter.h"

namespace velmor::desktop {

namespace exporting {

/// Painted in eighths of a grid unit, so that letters in whole pixels lose nothing.
constexpr double finePerUnit = 8.0;
constexpr int pixelsPerInch = 96; ///< of a file that is shown in a page

View fineView(std::int16_t languageIsEnglish)
{
    View view;
    view.pixelsPerTwip = finePerUnit / twipsPerUnit;
    view.inks = &printInks();
    view.forPrint = true;
    view.languageIsEnglish = languageIsEnglish;
    return view;
}

QSizeF fineSize(const host::Window& window)
{
    const host::Place& place = window.spec().place;
    return QSizeF(place.width, place.height) * (finePerUnit / twipsPerUnit);
}

QString titleOf(const host::Window& window)
{
    return QString::fromStdString(window.caption()).trimmed();
}

/// Whether the toolkit's generator escapes a title by itself: older ones write it as it is.
bool titlesAreEscaped()
{
    QBuffer written;
    QSvgGenerator generator;
    generator.setOutputDevice(&written);
    generator.setSize({1, 1});
    generator.setTitle(QStringLiteral("&"));
    QPainter(&generator).end();
    return written.data().contains("&amp;");
}

} // namespace exporting

bool printDrawing(QPagedPaintDevice& device, const host::Window& window, std::int16_t languageIsEnglish)
{
    using namespace exporting;
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const QSizeF size = fineSize(window);
    const double scale = std::min(device.width() / size.width(), device.height() / size.height());
    painter.translate((device.width() - size.width() * scale) / 2.0, 0.0);
    painter.scale(scale, scale);
    paintWindow(painter, window, fineView(languageIsEnglish));
    return painter.end();
}

bool exportPdf(const QString& path, const host::Window& window, std::int16_t languageIsEnglish)
{
    using namespace exporting;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    {
        QPdfWriter writer(&file);
        writer.setTitle(titleOf(window));
        writer.setCreator(QStringLiteral("Velmor"));
        writer.setResolution(600);
        const QSizeF size = fineSize(window);
        const bool wide = size.width() > size.height();
        writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4),
                                         wide ? QPageLayout::Landscape : QPageLayout::Portrait,
                                         QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter));
        if (!printDrawing(writer, window, languageIsEnglish))
            return false;
    }
    return file.commit();
}

bool exportSvg(const QString& path, const host::Window& window, std::int16_t languageIsEnglish)
{
    using namespace exporting;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const QSizeF size = fineSize(window);
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setResolution(pixelsPerInch);
    generator.setSize((size / finePerUnit).toSize());
    generator.setViewBox(QRectF(QPointF(), size));
    const QString title = titleOf(window);
    generator.setTitle(titlesAreEscaped() ? title : title.toHtmlEscaped());
    QPainter painter;
    if (!painter.begin(&generator))
        return false;
    paintWindow(painter, window, fineView(languageIsEnglish));
    return painter.end() && file.commit();
}

} // namespace velmor::desktop
