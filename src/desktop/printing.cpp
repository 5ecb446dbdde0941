// SPDX-License-Identifier: MIT
// Measures and prints plain text.
#include "desktop/printing.h"

#include <algorithm>

#include <QBuffer>
#include <QDir>
#include <QFontMetricsF>
#include <QLineEdit>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>

#include "desktop/drawing/texts.h"
#include "desktop/page_lines.h"
#include "desktop/print_course.h"
#include "desktop/windows/questions.h"
#include "rules/whole_file.h"

namespace velmor::desktop {

namespace printing_detail {

constexpr double twipsPerPoint = 20.0;
constexpr double printersOwnSize = 10.0; ///< points, when the job names none
constexpr double widestLine = 11520.0;   ///< twips
constexpr double marginMillimetres = 15.0;
constexpr double sideMillimetres = 10.0;
constexpr int lettersOfFile = 64; ///< of a path that are seen

constexpr host::BiText failed{"No se ha podido imprimir: el archivo o la impresora no lo permiten.",
                              "It could not be printed: the file or the printer does not allow it."};
constexpr int failedFlags = 48;

// The dialog has one line for a file, and would fill it with a name of its own.
void propose(QPrintDialog& dialog, const FileProposal& proposal)
{
    auto* file = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
    if (file == nullptr)
        return;
    file->setText(QDir(proposal.folder).filePath(proposal.name + QStringLiteral(".pdf")));
    file->setMinimumWidth(file->fontMetrics().averageCharWidth() * lettersOfFile);
}

// Tabs that indent a line are eight blanks each; those behind go on to a stop, so that the columns of a table stay columns in a
// face whose letters are all as wide. A stop holds as many letters as one of the editor, which are narrower.
QString withoutTabs(const QString& line)
{
    constexpr qsizetype indent = 8;
    constexpr qsizetype stop = 9;
    if (!line.contains(QLatin1Char('\t')))
        return line;
    QString blanks;
    bool indents = true;
    for (const QChar letter : line) {
        indents = indents && letter == QLatin1Char('\t');
        if (letter != QLatin1Char('\t'))
            blanks += letter;
        else
            blanks += QString(indents ? indent : stop - blanks.size() % stop, QLatin1Char(' '));
    }
    return blanks;
}

/// How wide stretches are. In a face whose letters are all as wide they are counted: shaping each stretch to measure it takes as
/// long as printing it.
class Widths {
public:
    explicit Widths(const QFont& font) : metrics_(font)
    {
        const QString wide(QStringLiteral("MW@mw"));
        const QString narrow(QStringLiteral("il.' "));
        const double width = metrics_.horizontalAdvance(wide);
        if (width == metrics_.horizontalAdvance(narrow))
            letter_ = width / static_cast<double>(wide.size());
    }

    double of(const QString& stretch) const
    {
        const bool counted = letter_ > 0.0 && std::all_of(stretch.begin(), stretch.end(), isPlain);
        return counted ? letter_ * static_cast<double>(stretch.size()) : metrics_.horizontalAdvance(stretch);
    }

private:
    static bool isPlain(QChar letter) { return letter >= QLatin1Char(' ') && letter <= QLatin1Char('~'); }

    QFontMetricsF metrics_;
    double letter_ = 0.0;
};

std::int32_t greyOf(std::int32_t color)
{
    return qGray(static_cast<QRgb>(color)) * 0x010101;
}

// The pages come together in memory and are saved as a circuit is: an old file of that name goes only when the new one is whole.
bool printToPdf(const QPrinter& printer, const host::PrintJob& job, const PrintProgress& goesOn)
{
    QByteArray pages;
    {
        QBuffer buffer(&pages);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setPageLayout(printer.pageLayout());
        writer.setResolution(printer.resolution());
        writer.setTitle(printer.docName());
        host::PrintJob inked = job;
        if (printer.colorMode() == QPrinter::GrayScale)
            inked.font.color = greyOf(job.font.color);
        if (!printOn(writer, inked, goesOn))
            return false;
    }
    return rules::writeWhole(held(printer.outputFileName()), {pages.data(), static_cast<std::size_t>(pages.size())});
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

// The text comes broken for lines of eight inches, at a carriage return alone, which few pages hold: such a line is broken anew to
// what the page holds, not a second time.
QStringList printedLines(const host::PrintJob& job, double pageTwips, const PrintProgress& goesOn)
{
    const printing_detail::Widths widths(twipFont(job.font, job.fontSizeGiven));
    QString text = shown(job.text);
    const bool broken = text.contains(QStringLiteral("\r\n"));
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    if (broken)
        text.remove(QLatin1Char('\r'));
    else
        text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    const double across = broken ? std::min(pageTwips, printing_detail::widestLine) : pageTwips;
    const WidthOf widthOf = [&widths](const QString& stretch) { return widths.of(stretch); };
    const auto breaks = [&goesOn] { return !goesOn || goesOn(0, 0); };
    QStringList lines;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        const QStringList parts = brokenLine(printing_detail::withoutTabs(line), across, widthOf, breaks);
        if (parts.isEmpty())
            return {};
        lines += parts;
    }
    while (lines.size() > 1 && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

bool printOn(QPagedPaintDevice& device, const host::PrintJob& job, const PrintProgress& goesOn)
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
    const QStringList lines = printedLines(job, width, goesOn);
    if (lines.isEmpty())
        return false;
    // The last line of a page needs its own height alone.
    const int perPage = std::max(1, 1 + static_cast<int>((height - metrics.height()) / metrics.lineSpacing()));
    const int pages = static_cast<int>((lines.size() + perPage - 1) / perPage);
    for (int page = 0; page < pages; ++page) {
        if ((goesOn && !goesOn(page + 1, pages)) || (page > 0 && !device.newPage()))
            return false;
        double top = metrics.ascent();
        for (const QString& line : lines.mid(qsizetype{page} * perPage, perPage)) {
            painter.drawText(QPointF(0.0, top), line);
            top += metrics.lineSpacing();
        }
    }
    return painter.end();
}

bool printTo(QPrinter& printer, const host::PrintJob& job, const PrintProgress& goesOn)
{
    if (printer.outputFormat() == QPrinter::PdfFormat)
        return printing_detail::printToPdf(printer, job, goesOn);
    const auto orGivesUp = [&](int page, int pages) {
        const bool goes = !goesOn || goesOn(page, pages);
        if (!goes)
            printer.abort(); // before the painter ends, which would close the job
        return goes;
    };
    return printOn(printer, job, orGivesUp);
}

QString askAndPrint(QWidget* parent, const host::PrintJob& job, const Stage& stage, const FileProposal& proposal)
{
    QPrinter printer(QPrinter::HighResolution);
    const double margin = printing_detail::marginMillimetres;
    printer.setPageMargins(
        QMarginsF(printing_detail::sideMillimetres, margin, printing_detail::sideMillimetres, margin),
        QPageLayout::Millimeter);
    printer.setDocName(proposal.name);
    if (!printer.isValid())
        printer.setOutputFormat(QPrinter::PdfFormat);
    QPrintDialog dialog(&printer, parent);
    printing_detail::propose(dialog, proposal);
    dialog.setObjectName(QStringLiteral("printDialog"));
    if (dialog.exec() != QDialog::Accepted)
        return {};
    bool cancelled = false;
    {
        PrintCourse course(parent, stage);
        if (printTo(printer, job, [&course](int page, int pages) { return course.goesOn(page, pages); }))
            return printer.outputFileName();
        cancelled = course.isCancelled();
    }
    if (cancelled)
        return {};
    const host::BiText& text = printing_detail::failed;
    askMessage(parent, {std::string(stage.english ? text.en : text.es), "Velmor", printing_detail::failedFlags}, stage);
    return {};
}

} // namespace velmor::desktop
