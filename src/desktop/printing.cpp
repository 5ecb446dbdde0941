// SPDX-License-Identifier: MIT
// Measures and prints plain text.
#include "desktop/printing.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include "desktop/drawing/texts.h"
#include "desktop/windows/questions.h"

namespace velmor::desktop {

namespace printing_detail {

constexpr double twipsPerPoint = 20.0;
constexpr double printersOwnSize = 10.0; ///< points, when the job names none
constexpr double marginMillimetres = 15.0;
constexpr double sideMillimetres = 10.0;

/// The blanks with which a line begins, when they leave most of the page free.
QString indentOf(const QString& line, const QFontMetricsF& metrics, double width)
{
    qsizetype blanks = 0;
    while (blanks < line.size() && line[blanks] == QLatin1Char(' '))
        ++blanks;
    const QString indent = line.left(blanks);
    return metrics.horizontalAdvance(indent) < width / 3.0 ? indent : QString();
}

// Breaks a line that is wider than the page after the last blank that fits, or in the word when there is none. What is
// carried over stands under the line's beginning.
void appendBroken(QStringList& lines, QString line, const QFontMetricsF& metrics, double width)
{
    const QString indent = indentOf(line, metrics, width);
    while (metrics.horizontalAdvance(line) > width) {
        qsizetype low = 1;
        qsizetype high = line.size();
        while (low + 1 < high) {
            const qsizetype middle = (low + high) / 2;
            (metrics.horizontalAdvance(line.left(middle)) <= width ? low : high) = middle;
        }
        const qsizetype blank = line.lastIndexOf(QLatin1Char(' '), low - 1);
        const qsizetype end = blank > indent.size() ? blank + 1 : low;
        lines.append(line.left(end));
        line.replace(0, end, indent);
    }
    lines.append(line);
}

QString withoutTabs(QString line)
{
    return line.replace(QLatin1Char('\t'), QStringLiteral("        "));
}

} // namespace printing_detail

QFont twipFont(const host::Font& font, bool sizeGiven)
{
    QFont result(shown(font.name));
    result.setStyleHint(QFont::Monospace);
    const double points = sizeGiven && font.size > 0 ? font.size : printing_detail::printersOwnSize;
    result.setPixelSize(qRound(points * printing_detail::twipsPerPoint));
    result.setBold(font.bold);
    result.setItalic(font.italic);
    result.setUnderline(font.underline);
    result.setStrikeOut(font.strikeout);
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

// Editors ask for a line after each character that they add, so the last font is kept.
int printedTwips(const host::Font& font, std::string_view text)
{
    static QFont lastFont;
    static std::unique_ptr<QFontMetricsF> metrics;
    const QFont wanted = twipFont(font);
    if (!metrics || wanted != lastFont) {
        lastFont = wanted;
        metrics = std::make_unique<QFontMetricsF>(wanted);
    }
    return qRound(metrics->horizontalAdvance(shown(text).remove(QLatin1Char('\n'))));
}

QStringList printedLines(const host::PrintJob& job, double pageTwips)
{
    const QFontMetricsF metrics(twipFont(job.font, job.fontSizeGiven));
    QString text = shown(job.text);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\r"));
    text.replace(QLatin1Char('\n'), QLatin1Char('\r'));
    QStringList lines;
    for (const QString& line : text.split(QLatin1Char('\r')))
        printing_detail::appendBroken(lines, printing_detail::withoutTabs(line), metrics, pageTwips);
    while (lines.size() > 1 && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

bool printOn(QPagedPaintDevice& device, const host::PrintJob& job)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const double unitsPerTwip = painter.device()->logicalDpiX() / 1440.0;
    painter.scale(unitsPerTwip, unitsPerTwip);
    const double width = painter.device()->width() / unitsPerTwip;
    const double height = painter.device()->height() / unitsPerTwip;
    const QFont font = twipFont(job.font, job.fontSizeGiven);
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    painter.setPen(QColor::fromRgb(static_cast<QRgb>(job.font.color)));
    double top = 0.0;
    for (const QString& line : printedLines(job, width)) {
        if (top + metrics.height() > height && top > 0.0) {
            if (!device.newPage())
                return false;
            top = 0.0;
        }
        painter.drawText(QPointF(0.0, top + metrics.ascent()), line);
        top += metrics.lineSpacing();
    }
    return painter.end();
}

void askAndPrint(QWidget* parent, const host::PrintJob& job, bool english)
{
    speakInDialogs(english);
    QPrinter printer(QPrinter::HighResolution);
    const double margin = printing_detail::marginMillimetres;
    printer.setPageMargins(
        QMarginsF(printing_detail::sideMillimetres, margin, printing_detail::sideMillimetres, margin),
        QPageLayout::Millimeter);
    printer.setDocName(QStringLiteral("Velmor"));
    if (!printer.isValid())
        printer.setOutputFormat(QPrinter::PdfFormat);
    QPrintDialog dialog(&printer, parent);
    dialog.setObjectName(QStringLiteral("printDialog"));
    if (dialog.exec() == QDialog::Accepted)
        printOn(printer, job);
}

} // namespace velmor::desktop
