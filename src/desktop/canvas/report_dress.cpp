// SPDX-License-Identifier: MIT
// Formats are laid over the lines, never put into the document: that would count as a change of the text.
#include "desktop/canvas/report_dress.h"

#include <QFont>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include "desktop/canvas/long_lines.h"

namespace velmor::desktop {

namespace report_dress_detail {

constexpr int step = 8;             ///< blanks of one indent
constexpr int longestHeading = 120; ///< characters
constexpr int longestOpening = 12;  ///< lines
constexpr int longestDocument = 1 << 20;
constexpr double titleSize = 1.35; ///< of the letters around it
constexpr double headingSize = 1.1;

enum State { opening, body }; ///< kept at each block for the one after it

int indentOf(const QString& line)
{
    int blanks = 0;
    while (blanks < line.size() && line[blanks] == QLatin1Char(' '))
        ++blanks;
    return blanks == line.size() ? 0 : blanks;
}

bool isTitle(const QTextBlock& block)
{
    return block.blockNumber() == 0 && indentOf(block.text()) >= 2 * step;
}

bool isDesignName(const QTextBlock& block)
{
    return block.blockNumber() > 0 && indentOf(block.text()) >= 2 * step && !LongLines::goesOn(block);
}

/// "Alumno: ", "Fecha: 22/11/26".
bool isEntry(const QString& line)
{
    return indentOf(line) == step && line.contains(QLatin1Char(':'));
}

bool standsAsHeading(const QTextBlock& block)
{
    const QString line = block.text();
    return indentOf(line) == step && line.size() <= longestHeading && !LongLines::goesOn(block);
}

/// The name of the design, two steps in, or the first exercise where the title has named the design.
bool endsOpening(const QTextBlock& block)
{
    return isDesignName(block) || (standsAsHeading(block) && !isEntry(block.text()));
}

ReportLine kindOf(const QTextBlock& block, int before)
{
    if (isTitle(block) || (before == opening && isDesignName(block)))
        return ReportLine::title;
    const bool heads = standsAsHeading(block) && (before == body || endsOpening(block));
    return heads ? ReportLine::heading : ReportLine::plain;
}

/// "Colector Común" of "Elaboración de Informe : Colector Común".
QString named(const QString& line)
{
    const QString behind = line.section(QLatin1Char(':'), 1).trimmed();
    return behind.isEmpty() ? line.trimmed() : behind;
}

// A report begins with its title; any other document is no report and stays plain.
int stateBefore(const QTextBlock& block)
{
    return block.previous().isValid() ? block.previous().userState() : opening;
}

int stateAfter(const QTextBlock& block, int before)
{
    return before == opening && endsOpening(block) ? body : before;
}

// The blanks keep their width, so that indents stay those of the lines around.
QList<QTextLayout::FormatRange> formatsOf(ReportLine kind, const QString& line, const QFont& around,
                                          const QColor& accent)
{
    if (kind == ReportLine::plain)
        return {};
    QTextLayout::FormatRange range;
    range.start = indentOf(line);
    range.length = static_cast<int>(line.size()) - range.start;
    range.format.setFontWeight(QFont::Bold);
    range.format.setFontPointSize(around.pointSizeF() * (kind == ReportLine::title ? titleSize : headingSize));
    range.format.setForeground(accent);
    return {range};
}

} // namespace report_dress_detail

bool isReport(const QTextDocument& document)
{
    return !designOf(document).isEmpty();
}

QString designOf(const QTextDocument& document)
{
    using namespace report_dress_detail;
    if (!isTitle(document.firstBlock()))
        return {};
    bool entries = false;
    QTextBlock block = document.firstBlock().next();
    for (int line = 1; line < longestOpening && block.isValid(); ++line, block = block.next()) {
        if (isDesignName(block))
            return named(block.text());
        if (endsOpening(block))
            return entries ? named(document.firstBlock().text()) : QString();
        entries = entries || isEntry(block.text());
    }
    return {};
}

ReportDress::ReportDress(QTextDocument& document, const QColor& accent)
    : QObject(&document), document_(document), accent_(accent)
{
    connect(&document, &QTextDocument::contentsChange, this, [this](int from, int, int added) { dress(from, added); });
    dressAll();
}

void ReportDress::follow(const QColor& accent)
{
    accent_ = accent;
    dressAll();
}

ReportLine ReportDress::lineAt(int number) const
{
    using namespace report_dress_detail;
    const QTextBlock block = document_.findBlockByNumber(number);
    return isReport(document_) ? kindOf(block, stateBefore(block)) : ReportLine::plain;
}

// The change itself, and what follows from it further down.
void ReportDress::dress(int from, int length)
{
    using namespace report_dress_detail;
    if (document_.characterCount() > longestDocument)
        return;
    const bool report = isReport(document_);
    const int end = from + length;
    for (QTextBlock block = from == 0 || !report ? document_.firstBlock() : document_.findBlock(from); block.isValid();
         block = block.next()) {
        const int before = stateBefore(block);
        const ReportLine kind = report ? kindOf(block, before) : ReportLine::plain;
        const QList<QTextLayout::FormatRange> formats = formatsOf(kind, block.text(), document_.defaultFont(), accent_);
        const bool same = formats == block.layout()->formats();
        if (!same) {
            block.layout()->setFormats(formats);
            document_.markContentsDirty(block.position(), block.length());
        }
        const int after = stateAfter(block, before);
        const bool settled = block.userState() == after && same && block.position() >= end;
        block.setUserState(after);
        if (settled)
            return;
    }
}

void ReportDress::dressAll()
{
    dress(0, document_.characterCount());
}

} // namespace velmor::desktop
