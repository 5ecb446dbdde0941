// SPDX-License-Identifier: MIT
// Splits a name into runs and measures them.
#include "desktop/drawing/symbol_label.h"

#include <algorithm>

#include <QByteArray>
#include <QFontMetricsF>
#include <QHash>
#include <QPainter>

#include "desktop/drawing/lettering.h"
#include "desktop/drawing/typefaces.h"

namespace velmor::desktop {

namespace labels {

enum class Style { italic, upright, subscript };

constexpr double subscriptSize = 0.68;
constexpr double subscriptDrop = 0.20;

bool endsSubscript(QChar letter)
{
    return letter.isSpace() || QStringLiteral("=+−/,·×()<>∥;:").contains(letter);
}

QString prepared(std::string_view name)
{
    QString text = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
    text.replace(QStringLiteral("/\\"), QStringLiteral("Δ"));
    text.replace(QLatin1Char('\''), QChar(0x2032));
    text.replace(QLatin1Char('-'), QChar(0x2212));
    return text;
}

/// A delta stands before a quantity and is none itself.
bool isQuantity(QChar letter)
{
    return letter.isLetter() && letter != QChar(0x0394);
}

/// Letters up to the next end of a word, and whether a subscript follows.
bool isSymbolWord(const QString& text, qsizetype start)
{
    qsizetype end = start;
    while (end < text.size() && text[end].isLetter())
        ++end;
    const bool subscriptFollows = end < text.size() && text[end] == QLatin1Char('_');
    return start == 0 || subscriptFollows;
}

void add(SymbolLabel& label, const QString& text, Style style, double pixels)
{
    if (text.isEmpty())
        return;
    const double size = style == Style::subscript ? pixels * subscriptSize : pixels;
    const QFont font = drawingFont(size, style == Style::italic);
    const QFontMetricsF metrics(font);
    // Italic letters lean over their own width: the subscript keeps clear of them.
    const double lean = style == Style::italic ? pixels * 0.03 : 0.0;
    const double drop = style == Style::subscript ? pixels * subscriptDrop : 0.0;
    label.runs.push_back({text, font, label.width, drop});
    label.width += metrics.horizontalAdvance(text) + lean;
    label.ascent = std::max(label.ascent, metrics.capHeight() - drop);
    const bool descends = style != Style::subscript;
    label.descent = std::max(label.descent, descends ? pixels * 0.04 : drop + size * 0.03);
}

Style styleOf(const QString& text, qsizetype position, bool inWord, Style before)
{
    const QChar letter = text[position];
    if (!isQuantity(letter))
        return Style::upright;
    if (inWord)
        return before;
    const bool afterOperator = position > 0 && QStringLiteral("%Δ=+−/(·×∥").contains(text[position - 1]);
    return isSymbolWord(text, position) || afterOperator ? Style::italic : Style::upright;
}

SymbolLabel setName(std::string_view name, double pixels)
{
    const QString text = prepared(name);
    SymbolLabel label;
    label.capHeight = QFontMetricsF(drawingFont(pixels, false)).capHeight();
    QString run;
    Style style = Style::italic;
    bool inWord = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        Style next = style;
        if (style == Style::subscript && !endsSubscript(text[i])) {
            run += text[i];
            continue;
        }
        if (text[i] == QLatin1Char('_') && i + 1 < text.size()) {
            add(label, run, style, pixels);
            run.clear();
            style = Style::subscript;
            inWord = false;
            continue;
        }
        next = styleOf(text, i, inWord && style != Style::subscript, style);
        if (next != style) {
            add(label, run, style, pixels);
            run.clear();
            style = next;
        }
        inWord = isQuantity(text[i]);
        run += text[i];
    }
    add(label, run, style, pixels);
    return label;
}

SymbolLabel setPlain(const QString& text, double pixels)
{
    SymbolLabel label;
    label.capHeight = QFontMetricsF(drawingFont(pixels, false)).capHeight();
    add(label, text, Style::upright, pixels);
    return label;
}

/// The same names are set at every repaint. Each kind of setting has a memory of its own.
template <class Set>
SymbolLabel remembered(const QByteArray& text, double pixels, Set set)
{
    static QHash<std::pair<QByteArray, double>, SymbolLabel> known;
    const auto found = known.constFind({text, pixels});
    if (found != known.constEnd())
        return *found;
    if (known.size() > 4000)
        known.clear();
    return *known.insert({text, pixels}, set());
}

} // namespace labels

SymbolLabel setLabel(std::string_view name, double pixels)
{
    const QByteArray text(name.data(), static_cast<qsizetype>(name.size()));
    return labels::remembered(text, pixels, [&] { return labels::setName(name, pixels); });
}

SymbolLabel setUpright(const QString& text, double pixels)
{
    return labels::remembered(text.toUtf8(), pixels, [&] { return labels::setPlain(text, pixels); });
}

SymbolLabel setCaptionLine(const QString& text, double pixels)
{
    return labels::remembered(text.toUtf8(), pixels, [&] {
        const QFont font = interfaceFont(pixels);
        const QFontMetricsF metrics(font);
        const QRectF ink = metrics.tightBoundingRect(text);
        return SymbolLabel{.runs = {{.text = text, .font = font}},
                           .width = metrics.horizontalAdvance(text),
                           .capHeight = metrics.capHeight(),
                           .ascent = -ink.top(),
                           .descent = std::max(0.0, ink.bottom())};
    });
}

void append(SymbolLabel& label, const SymbolLabel& next, double gap)
{
    for (LabelRun run : next.runs) {
        run.offset += label.width + gap;
        label.runs.push_back(run);
    }
    label.width += next.width + gap;
    label.ascent = std::max(label.ascent, next.ascent);
    label.descent = std::max(label.descent, next.descent);
}

void drawLabel(QPainter& painter, const SymbolLabel& label, QPointF baseline)
{
    for (const LabelRun& run : label.runs)
        writeLine(painter, baseline + QPointF(run.offset, run.lowered), run.text, run.font);
}

} // namespace velmor::desktop
