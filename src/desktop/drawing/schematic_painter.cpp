// SPDX-License-Identifier: MIT
// Puts symbols, names and values together. Sketching is done apart from painting, so that boxes can be measured alike.
#include "desktop/drawing/schematic_painter.h"

#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QTransform>

#include "desktop/drawing/control_painter.h"
#include "desktop/drawing/sketch.h"
#include "desktop/drawing/symbol_label.h"
#include "desktop/drawing/symbols.h"
#include "desktop/drawing/typefaces.h"

namespace velmor::desktop {

using host::Mark;
using host::Side;
using host::Symbol;

namespace schematic {

constexpr double letterUnits = 15.0;
constexpr double valueSize = 0.8;
constexpr double gap = 6.0;
constexpr double haloMargin = 5.0;

struct Line {
    SymbolLabel label;
    QPointF baseline;
};

/// Name and value of one mark where they stand on the canvas.
struct Block {
    std::vector<Line> lines;
    QRectF box;
};

/// Where a block stands: a point, how far the symbol reaches from it, and the side.
struct Anchor {
    QPointF point;
    double across = 0.0;
    double down = 0.0;
    Side side = Side::none;
};

bool isFree(Symbol symbol)
{
    return symbol == Symbol::text || symbol == Symbol::label;
}

bool isUpright(const Mark& mark)
{
    return std::abs(mark.to.y - mark.from.y) >= std::abs(mark.to.x - mark.from.x);
}

QPointF point(host::GridPoint from)
{
    return {static_cast<double>(from.x), static_cast<double>(from.y)};
}

bool standsAtMiddle(Symbol symbol)
{
    return isTwoEnded(symbol) || isTransistor(symbol) || isPictogram(symbol) || symbol == Symbol::circle;
}

bool isStroke(Symbol symbol)
{
    return symbol == Symbol::arrow || symbol == Symbol::wire || symbol == Symbol::pointer;
}

Anchor anchorOf(const Mark& mark)
{
    const QRectF body = bodyOf(mark);
    Anchor anchor{body.center(), body.width() / 2.0, body.height() / 2.0, mark.side};
    if (isStroke(mark.symbol))
        anchor = {(point(mark.from) + point(mark.to)) / 2.0, 0.0, 0.0, mark.side};
    else if (isFree(mark.symbol))
        anchor = {point(mark.from), 0.0, 0.0, mark.side};
    if (mark.symbol == Symbol::transformer)
        anchor.across = std::max(anchor.across, 0.0);
    if (anchor.side != Side::none || isFree(mark.symbol))
        return anchor;
    if (mark.symbol == Symbol::supplyUp)
        anchor.side = Side::above;
    else if (mark.symbol == Symbol::supplyDown)
        anchor.side = Side::below;
    else if (isTwoEnded(mark.symbol) || isStroke(mark.symbol))
        anchor.side = isUpright(mark) ? Side::right : Side::above;
    else
        anchor.side = host::isMirrored(mark.symbol) ? Side::left : Side::right;
    return anchor;
}

/// Value in the same line as the name, as in "V_CC = 12 V".
bool isInline(Symbol symbol)
{
    return symbol == Symbol::terminal || symbol == Symbol::supplyUp || symbol == Symbol::supplyDown;
}

/// Length of a sign that stands there.
qsizetype signAt(const QString& text, qsizetype at)
{
    return at < text.size() && (text[at] == QLatin1Char('+') || text[at] == QLatin1Char('-')) ? 1 : 0;
}

/// How many figures stand there.
qsizetype digitsAt(const QString& text, qsizetype at)
{
    qsizetype end = at;
    while (end < text.size() && text[end] >= QLatin1Char('0') && text[end] <= QLatin1Char('9'))
        ++end;
    return end - at;
}

/// A pale part has no value yet, or keeps the one that it had: a placeholder would only say its name twice.
bool beginsWithNumber(const QString& text)
{
    qsizetype at = signAt(text, 0);
    at += text.mid(at, 1) == QLatin1String(".") ? 1 : 0;
    return digitsAt(text, at) > 0;
}

/// "Rb1a" in the field of R_b1a: the name once more.
bool saysTheName(const QString& value, std::string_view name)
{
    QString spelt = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
    return value.trimmed().compare(spelt.remove(QLatin1Char('_')), Qt::CaseInsensitive) == 0;
}

std::vector<SymbolLabel> linesOf(const host::Window& window, const Mark& mark, double unit, const View& view)
{
    const double letters = letterUnits * unit * mark.size / 100.0;
    std::vector<SymbolLabel> lines;
    const auto plain = [](std::string_view text) {
        return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    };
    if (mark.symbol == Symbol::text) {
        const std::string_view note = mark.note.in(view.languageIsEnglish);
        const QString text = plain(note.empty() ? mark.name : note);
        for (const QString& line : text.split(QLatin1Char('\n')))
            lines.push_back((view.onButton ? setCaptionLine : setUpright)(line, letters * valueSize));
    } else if (!mark.name.empty() && mark.symbol != Symbol::meter) {
        lines.push_back(setLabel(mark.name, letters));
    }
    const QString value = valueText(window, mark);
    if (value.isEmpty() || saysTheName(value, mark.name) || (view.pale && !beginsWithNumber(value)))
        return lines;
    if (isInline(mark.symbol) && !lines.empty())
        append(lines.back(), setUpright(QStringLiteral("= ") + value, letters * valueSize), letters * 0.3);
    else
        lines.push_back(setUpright(value, letters * valueSize));
    return lines;
}

/// Start of a line of this width beside the anchor.
double startOf(const Anchor& anchor, double width, double unit)
{
    switch (anchor.side) {
    case Side::left:
        return anchor.point.x() - (anchor.across + gap) * unit - width;
    case Side::right:
        return anchor.point.x() + (anchor.across + gap) * unit;
    case Side::above:
    case Side::below:
        return anchor.point.x() - width / 2.0;
    case Side::none:
        break;
    }
    return anchor.point.x();
}

double topOf(const Anchor& anchor, double height, double unit)
{
    if (anchor.side == Side::above)
        return anchor.point.y() - (anchor.down + gap) * unit - height;
    if (anchor.side == Side::below)
        return anchor.point.y() + (anchor.down + gap) * unit;
    return anchor.point.y() - height / 2.0;
}

/// Free texts stand at their very point: no gap to a symbol is due.
void closeUp(Anchor& anchor)
{
    const double back = -gap;
    anchor.across = anchor.side == Side::left || anchor.side == Side::right ? back : 0.0;
    anchor.down = anchor.side == Side::above || anchor.side == Side::below ? back : 0.0;
}

Block blockOf(const host::Window& window, const Mark& mark, double unit, QPointF origin, const View& view)
{
    Block block;
    std::vector<SymbolLabel> labels = linesOf(window, mark, unit, view);
    if (labels.empty())
        return block;
    Anchor anchor = anchorOf(mark);
    if (isFree(mark.symbol))
        closeUp(anchor);
    anchor.point = origin + anchor.point * unit;
    double height = 0.0;
    const double leading = letterUnits * unit * mark.size / 100.0;
    // From the top of the first capitals to the last baseline: what the eye takes for the block.
    height = labels.front().capHeight;
    for (std::size_t i = 1; i < labels.size(); ++i)
        height += leading * (mark.symbol == Symbol::text ? 1.0 : 1.12);
    const double hang = anchor.side == Side::above ? labels.back().descent : 0.0;
    double baseline = topOf(anchor, height + hang, unit) + labels.front().capHeight;
    for (SymbolLabel& label : labels) {
        const QPointF start(startOf(anchor, label.width, unit), baseline);
        block.box |= QRectF(start.x(), baseline - label.ascent, label.width, label.ascent + label.descent);
        block.lines.push_back({std::move(label), start});
        baseline += leading * (mark.symbol == Symbol::text ? 1.0 : 1.12);
    }
    return block;
}

QColor inkOf(const Mark& mark, const View& view)
{
    if (view.pale)
        return view.inks->pale;
    const bool isSignal =
        mark.symbol == Symbol::arrow || mark.symbol == Symbol::sine || mark.symbol == Symbol::sineInverted;
    if (isSignal && mark.ink == host::Ink::normal)
        return view.inks->accent;
    if (mark.symbol == Symbol::pointer && mark.ink == host::Ink::normal)
        return view.inks->quiet;
    return shade(*view.inks, mark.ink);
}

bool inHand(const host::Window& window, const Mark& mark, const View& view)
{
    return !view.forPrint && mark.field != host::noControl && mark.field == window.focus();
}

void addHalo(Sketch& sketch, const Mark& mark, const Block& block, const View& view)
{
    const double margin = haloMargin * sketch.unit();
    const QRectF body = bodyOf(mark);
    QRectF box = block.box;
    if (!isFree(mark.symbol))
        box |= QRectF(sketch.exactly(body.topLeft()), sketch.exactly(body.bottomRight()));
    QPainterPath path;
    path.addRoundedRect(box.adjusted(-margin, -margin, margin, margin), margin, margin);
    sketch.fill(Layer::halo, view.inks->accentTint, path);
}

void writeMeterLetter(Sketch& sketch, const Mark& mark, const QColor& ink)
{
    const SymbolLabel letter = setUpright(QString::fromUtf8(mark.name.data(), static_cast<qsizetype>(mark.name.size())),
                                          letterUnits * sketch.unit());
    const QPointF centre = sketch.exactly((point(mark.from) + point(mark.to)) / 2.0);
    for (const LabelRun& run : letter.runs)
        sketch.write(centre + QPointF(run.offset - letter.width / 2.0, letter.capHeight / 2.0), run.text, run.font,
                     ink);
}

void addMark(Sketch& sketch, QPointF origin, const host::Window& window, const Mark& mark, const View& view)
{
    const bool highlighted = inHand(window, mark, view);
    const QColor ink = inkOf(mark, view);
    Stroke stroke{ink, highlighted ? view.inks->accent : ink, view.inks->paper, highlighted && !view.pale};
    // Letters are thinner than strokes: pale ones would not be readable.
    const QColor letters = view.pale && !highlighted ? view.inks->quiet : stroke.body;
    const Block block = blockOf(window, mark, sketch.unit(), origin, view);
    if (highlighted)
        addHalo(sketch, mark, block, view);
    drawSymbol(sketch, mark, stroke);
    if (mark.symbol == Symbol::meter)
        writeMeterLetter(sketch, mark, letters);
    for (const Line& line : block.lines)
        for (const LabelRun& run : line.label.runs)
            sketch.write(line.baseline + QPointF(run.offset, run.lowered), run.text, run.font, letters);
}

bool canSnap(const QTransform& transform, const View& view)
{
    return !view.forPrint && transform.type() <= QTransform::TxScale;
}

/// "-12", ".5", "1.2E-3", and nothing else beside it. Read by hand: a library of patterns costs half a megabyte at the start.
bool isBareNumber(const QString& text)
{
    qsizetype at = signAt(text, 0);
    const qsizetype before = digitsAt(text, at);
    at += before;
    const bool point = at < text.size() && text[at] == QLatin1Char('.');
    const qsizetype behind = point ? digitsAt(text, at + 1) : 0;
    at += behind + (point ? 1 : 0);
    if (before + behind == 0)
        return false;
    if (at == text.size())
        return true;
    if (text[at].toUpper() != QLatin1Char('E'))
        return false;
    at += 1 + signAt(text, at + 1);
    const qsizetype exponent = digitsAt(text, at);
    return exponent > 0 && at + exponent == text.size();
}

/// At most five significant figures of a fraction, but every figure before the point: the field beside the drawing shows
/// them all.
QString shortNumber(const QString& text)
{
    if (text.size() <= 6 || text.contains(QLatin1Char('E'), Qt::CaseInsensitive))
        return text;
    const qsizetype before = text.indexOf(QLatin1Char('.'));
    const int digits = static_cast<int>(before < 0 ? text.size() : before);
    return QString::number(text.toDouble(), 'G', std::max(5, digits));
}

} // namespace schematic

QString valueText(const host::Window& window, const Mark& mark)
{
    if (mark.value == host::noControl)
        return {};
    QString text = displayText(window.text(mark.value)).replace(QLatin1Char('\n'), QLatin1Char(' ')).trimmed();
    if (!schematic::isBareNumber(text))
        return text;
    text = schematic::shortNumber(text);
    if (!mark.unit.empty())
        text += QChar(0x00A0) + QString::fromUtf8(mark.unit.data(), static_cast<qsizetype>(mark.unit.size()));
    return text;
}

void paintMarks(QPainter& painter, const host::Window& window, std::span<const Mark> marks, QPointF origin,
                const View& view)
{
    if (marks.empty())
        return;
    const QTransform transform = painter.deviceTransform();
    const bool snaps = schematic::canSnap(transform, view);
    const double unit = view.pixelsPerUnit() * (snaps ? transform.m11() : 1.0);
    const QPointF start = snaps ? transform.map(origin) : origin;
    Sketch sketch(unit, start, snaps);
    for (const Mark& mark : marks)
        schematic::addMark(sketch, start, window, mark, view);
    painter.save();
    if (snaps)
        painter.setWorldTransform(transform.inverted() * painter.worldTransform());
    sketch.paint(painter);
    painter.restore();
}

QRectF labelBounds(const host::Window& window, const Mark& mark, QPointF origin, const View& view)
{
    return schematic::blockOf(window, mark, view.pixelsPerUnit(), origin, view).box;
}

QRectF boundsOfMarks(const host::Window& window, std::span<const Mark> marks, QPointF origin, const View& view)
{
    const double unit = view.pixelsPerUnit();
    const double margin = schematic::haloMargin * unit + 1.0;
    QRectF bounds;
    for (const Mark& mark : marks) {
        const QRectF box = extentOf(mark);
        bounds |= QRectF(origin + box.topLeft() * unit, box.size() * unit);
        bounds |= labelBounds(window, mark, origin, view);
    }
    return bounds.isEmpty() ? bounds : bounds.adjusted(-margin, -margin, margin, margin);
}

} // namespace velmor::desktop
