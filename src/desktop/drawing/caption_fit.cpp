// SPDX-License-Identifier: MIT
// Finds the largest letters, from the wanted size down to the readable minimum, in which a text fits its room.
#include "desktop/drawing/caption_fit.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QHash>
#include <QStringList>

#include "desktop/drawing/control_painter.h"
#include "desktop/drawing/field_marks.h"
#include "desktop/drawing/typefaces.h"

namespace velmor::desktop {

using host::Kind;
using host::Look;

namespace fitting {

constexpr double twipsPerPoint = 20.0;

/// Room kept free around a text, in units.
struct Padding {
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;
};

/// How a look sets its text.
struct Manner {
    Padding padding{};
    double points = 8.0; ///< at least so large at 100 %
    int alignment = Qt::AlignLeft | Qt::AlignVCenter;
    bool bold = false;
    bool serif = false;
    bool italic = false;
    bool oneLine = false; ///< rather a little smaller than in two lines
};

Manner mannerOfLook(Look look)
{
    switch (look) {
    case Look::heading:
        return {.points = 8.5, .bold = true, .oneLine = true};
    case Look::prompt:
        return {.padding = {14.0, 5.0, 9.0, 5.0}, .points = 9.5};
    case Look::hint:
        return {.padding = {8.0, 3.0, 6.0, 3.0}, .points = 8.5, .oneLine = true};
    case Look::lesson:
        return {.padding = {12.0, 10.0, 10.0, 8.0}, .points = 9.0, .alignment = Qt::AlignLeft | Qt::AlignTop};
    case Look::balloon:
        return {.padding = {7.0, 2.0, 7.0, 2.0}, .points = 8.0, .alignment = Qt::AlignCenter, .oneLine = true};
    case Look::note:
        return {.points = 7.5, .italic = true, .oneLine = true};
    case Look::result:
        return {.points = 9.5, .serif = true, .oneLine = true};
    case Look::warning:
        return {.padding = {27.0, 4.0, 8.0, 4.0}, .points = 8.5};
    case Look::title:
        return {.points = 13.0, .bold = true, .oneLine = true};
    case Look::group:
        return {
            .padding = {10.0, 5.0, 10.0, 4.0}, .points = 8.5, .alignment = Qt::AlignLeft | Qt::AlignTop, .bold = true};
    default:
        return {};
    }
}

Manner mannerOf(const host::ControlRow& row)
{
    Manner manner = mannerOfLook(row.look);
    const bool ownLook = row.look != Look::plain && row.look != Look::paper && row.look != Look::toolButton;
    if (ownLook)
        return manner;
    switch (row.kind) {
    case Kind::button:
        manner = {.padding = {6.0, 2.0, 6.0, 2.0}, .alignment = Qt::AlignCenter, .oneLine = true};
        if (!row.drawing.empty())
            manner.alignment = Qt::AlignHCenter | Qt::AlignBottom;
        break;
    case Kind::panel:
        manner = {.padding = {8.0, 4.0, 8.0, 4.0}, .alignment = Qt::AlignCenter};
        break;
    case Kind::label:
        if (row.look == Look::toolButton)
            manner = {.padding = {4.0, 2.0, 4.0, 2.0}, .alignment = Qt::AlignCenter};
        if (row.look == Look::paper)
            manner.padding = {10.0, 4.0, 8.0, 4.0};
        break;
    case Kind::picture:
    case Kind::image:
        manner = {.padding = {4.0, 2.0, 4.0, 3.0}};
        manner.alignment = Qt::AlignHCenter | (row.drawing.empty() ? Qt::AlignVCenter : Qt::AlignBottom);
        break;
    case Kind::option:
    case Kind::check:
        manner = {.padding = {19.0, 0.0, 2.0, 0.0}, .oneLine = true};
        break;
    case Kind::field:
        manner = {.padding = {4.0, 0.0, 4.0, 0.0}, .oneLine = true};
        break;
    default:
        break;
    }
    return manner;
}

/// The room inside a box. Small boxes keep at most a sixth of their side free.
QRectF roomIn(const QRectF& box, const Padding& padding, double unit)
{
    const double across = std::min(1.0, box.width() / 2.5 / std::max(1e-9, (padding.left + padding.right) * unit));
    const double down = std::min(1.0, box.height() / 6.0 / std::max(1e-9, (padding.top + padding.bottom) * unit));
    return box.adjusted(padding.left * unit * across, padding.top * unit * down, -padding.right * unit * across,
                        -padding.bottom * unit * down);
}

QFont fontOf(const Manner& manner, double pixels)
{
    QFont font = manner.serif ? drawingFont(pixels, false) : interfaceFont(pixels, manner.bold);
    if (manner.italic)
        font.setItalic(true);
    return font;
}

/// Many lines are read from the top; a few stand in the middle of their panel.
bool isPage(const Manner& manner, const QString& text)
{
    return (manner.alignment & Qt::AlignLeft) != 0 && text.count(QLatin1Char('\n')) >= 8;
}

/// A text set in its room.
struct Answer {
    QFont font;
    QRectF box; ///< what the text takes, from the room's left top corner
    bool fits = false;
};

Answer measure(const QString& text, const QFont& font, QSizeF room, int flags)
{
    const QFontMetricsF metrics(font);
    const QRectF box = metrics.boundingRect(QRectF(QPointF(), room), flags, text);
    // The space over capitals is no ink: a line may hang over its room by that much.
    const double slack = metrics.ascent() - metrics.capHeight();
    return {font, box, box.width() <= room.width() + 0.5 && box.height() <= room.height() + slack};
}

/// A box of explanations that was made low keeps its first line.
QString firstLineOf(const QString& text, const Manner& manner, QSizeF room, double pixels)
{
    const QFontMetricsF metrics(fontOf(manner, pixels));
    if (room.height() >= 2.0 * metrics.height())
        return text;
    const QString line = text.section(QLatin1Char('\n'), 0, 0);
    return metrics.elidedText(line == text ? line : line + QStringLiteral(" …"), Qt::ElideRight, room.width());
}

/// What decides an answer; the same labels are set at every repaint.
struct Question {
    QString text;
    QString family;
    QSizeF room;
    double wanted;
    int manner;
    bool operator==(const Question&) const = default;
};

size_t qHash(const Question& question, size_t seed = 0)
{
    return qHashMulti(seed, question.text, question.family, question.room.width(), question.room.height(),
                      question.wanted, question.manner);
}

double wantedPixels(const host::Window& window, host::Handle control, const Manner& manner, const View& view)
{
    const double points = std::max(manner.points, static_cast<double>(window.control(control).fontSize));
    return points * twipsPerPoint * view.pixelsPerTwip;
}

Answer search(const QString& text, const Manner& manner, QSizeF room, int flags, double wanted)
{
    const int largest = std::max(static_cast<int>(smallestLetters), static_cast<int>(std::lround(wanted)));
    const int least = std::max(static_cast<int>(smallestLetters), static_cast<int>(std::lround(wanted * 0.82)));
    const int unwrapped = flags & ~static_cast<int>(Qt::TextWordWrap);
    for (int pixels = largest; manner.oneLine && pixels >= least; --pixels) {
        const QFont font = fontOf(manner, pixels);
        const Answer whole = measure(text, font, room, unwrapped);
        // Half a pixel too wide may pass, and would be wrapped all the same.
        if (Answer answer = measure(text, font, room, flags);
            whole.fits && answer.box.height() < whole.box.height() + font.pixelSize() / 2.0)
            return answer;
    }
    for (int pixels = largest; pixels > static_cast<int>(smallestLetters); --pixels)
        if (Answer answer = measure(text, fontOf(manner, pixels), room, flags); answer.fits)
            return answer;
    return measure(text, fontOf(manner, smallestLetters), room, flags);
}

Answer answerTo(const QString& text, const Manner& manner, QSizeF room, int flags, double wanted)
{
    static QHash<Question, Answer> answers;
    const int key = flags << 4 | (manner.oneLine ? 8 : 0) | (manner.bold ? 1 : 0) | (manner.serif ? 2 : 0) |
                    (manner.italic ? 4 : 0);
    const Question question{text, QGuiApplication::font().family(), room, wanted, key};
    const auto known = answers.constFind(question);
    if (known != answers.constEnd())
        return *known;
    if (answers.size() > 4000)
        answers.clear();
    return *answers.insert(question, search(text, manner, room, flags, wanted));
}

double lettersOfField(const host::Window& window, host::Handle field, double points, const View& view)
{
    const double height = host::shownPlace(window, field).height * view.pixelsPerTwip;
    const double wanted = std::max(8.5, points) * twipsPerPoint * view.pixelsPerTwip;
    return std::max(smallestLetters, std::min(wanted, height * 0.68));
}

} // namespace fitting

double fieldLetters(const host::Window& window, host::Handle field, const View& view)
{
    return fitting::lettersOfField(window, field, window.control(field).fontSize, view);
}

double usualFieldLetters(const host::Window& window, host::Handle field, const View& view)
{
    return fitting::lettersOfField(window, field, window.row(field).fontSize, view);
}

CaptionSetting setCaption(const host::Window& window, host::Handle control, const View& view)
{
    using namespace fitting;
    CaptionSetting setting;
    setting.text = displayText(window.text(control));
    const Manner manner = mannerOf(window.row(control));
    if (setting.text.isEmpty()) {
        setting.font = fontOf(manner, wantedPixels(window, control, manner, view));
        return setting;
    }
    const QRectF box = boxOf(window, control, view);
    setting.room = roomIn(box, manner.padding, view.pixelsPerUnit());
    setting.flags = manner.alignment | Qt::TextWordWrap;
    if (isPage(manner, setting.text))
        setting.flags = (setting.flags & ~static_cast<int>(Qt::AlignVCenter)) | Qt::AlignTop;
    const double wanted = wantedPixels(window, control, manner, view);
    if (window.row(control).look == Look::lesson)
        setting.text = firstLineOf(setting.text, manner, setting.room.size(), wanted);
    const Answer answer = answerTo(setting.text, manner, setting.room.size(), setting.flags, wanted);
    setting.font = answer.font;
    setting.box = answer.box.translated(setting.room.topLeft());
    setting.fits = answer.fits;
    return setting;
}

bool captionFits(const host::Window& window, host::Handle control, const View& view)
{
    switch (window.row(control).kind) {
    case Kind::field:
        return fieldMarksFit(window, control, view);
    case Kind::page:
    case Kind::editor:
    case Kind::list:
        return true; // they scroll
    default:
        return setCaption(window, control, view).fits;
    }
}

namespace columns {

QString withoutColumns(const QString& line)
{
    QString shown;
    qsizetype blanks = 0;
    for (const QChar letter : line.trimmed()) {
        if (letter.isSpace()) {
            ++blanks;
            continue;
        }
        // Two blanks are a typist's habit and become one; more of them lined something up by hand.
        if (blanks > 0)
            shown += blanks > 2 ? QStringLiteral("   ") : QStringLiteral(" ");
        blanks = 0;
        shown += letter;
    }
    return shown;
}

constexpr int linesOfAPage = 4;
constexpr qsizetype deepest = 4;

qsizetype indent(const QString& line)
{
    qsizetype blanks = 0;
    while (blanks < line.size() && line[blanks].isSpace())
        ++blanks;
    return blanks;
}

/// How far a page's lines stand in together; -1 for a text too short to be laid out by its indents.
qsizetype commonIndent(const QStringList& lines)
{
    qsizetype least = -1;
    int written = 0;
    for (const QString& line : lines) {
        if (line.trimmed().isEmpty())
            continue;
        ++written;
        least = least < 0 ? indent(line) : std::min(least, indent(line));
    }
    return written < linesOfAPage ? -1 : least;
}

} // namespace columns

QString displayText(std::string_view text)
{
    QStringList lines = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).split(QLatin1Char('\n'));
    const qsizetype common = columns::commonIndent(lines);
    for (QString& line : lines) {
        const QString written = columns::withoutColumns(line);
        const qsizetype deeper = common < 0 || written.isEmpty() ? 0 : columns::indent(line) - common;
        // A single blank is a habit, too.
        line = QString(deeper > 1 ? std::min(deeper, columns::deepest) : 0, QLatin1Char(' ')) + written;
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace velmor::desktop
