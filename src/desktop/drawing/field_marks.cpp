// SPDX-License-Identifier: MIT
// Sets a field's symbol and unit in the drawing's type and finds out what is in their way.
#include "desktop/drawing/field_marks.h"

#include <algorithm>
#include <string_view>

#include <QPainter>

#include "desktop/drawing/caption_fit.h"
#include "desktop/drawing/control_painter.h"
#include "desktop/drawing/symbol_label.h"

namespace velmor::desktop {

using host::Handle;
using host::Kind;
using host::Look;
using host::Window;

namespace marks {

constexpr double gap = 5.0;
constexpr double symbolSize = 1.3;
constexpr double unitSize = 1.1;

struct Setting {
    SymbolLabel label;
    QRectF box;
    QPointF baseline;
};

/// Controls that a symbol may not cover; grounds that the field stands on are none.
bool isObstacle(const Window& window, Handle other, const QRectF& field, const View& view)
{
    const host::ControlRow& row = window.row(other);
    if (row.overlay || row.look == Look::paper || row.look == Look::group || !isPainted(window, other))
        return false;
    switch (row.kind) {
    case Kind::line:
    case Kind::shape:
        return false;
    case Kind::label:
        return !window.text(other).empty();
    default:
        return !boxOf(window, other, view).contains(field.center());
    }
}

/// Room from `edge` outwards to the next obstacle beside the field.
double roomBeside(const Window& window, Handle field, const View& view, bool toTheLeft)
{
    const QRectF box = boxOf(window, field, view);
    const QRectF band = box.adjusted(0.0, box.height() * 0.2, 0.0, -box.height() * 0.2);
    double limit = toTheLeft ? view.origin.x() : view.origin.x() + window.spec().place.width * view.pixelsPerTwip;
    for (Handle other = 0; other < window.controlCount(); ++other) {
        // Most stand elsewhere: that is asked first, being the cheapest question.
        const QRectF obstacle = other == field ? QRectF() : boxOf(window, other, view);
        const bool elsewhere = obstacle.bottom() < band.top() || obstacle.top() > band.bottom();
        if (other == field || elsewhere || !isObstacle(window, other, box, view))
            continue;
        if (toTheLeft && obstacle.right() <= box.left() + 1.0)
            limit = std::max(limit, obstacle.right());
        if (!toTheLeft && obstacle.left() >= box.right() - 1.0)
            limit = std::min(limit, obstacle.left());
    }
    return toTheLeft ? box.left() - limit : limit - box.right();
}

/// The largest label that fits the room, down to the readable minimum.
template <class Make>
SymbolLabel fitted(Make make, double pixels, double room)
{
    SymbolLabel label = make(pixels);
    while (label.width > room && pixels > smallestLetters + 1.0) {
        pixels -= 1.0;
        label = make(pixels);
    }
    return label;
}

QRectF boxAround(const SymbolLabel& label, QPointF baseline)
{
    return {baseline.x(), baseline.y() - label.ascent, label.width, label.ascent + label.descent};
}

Setting symbolOf(const Window& window, Handle field, const View& view)
{
    Setting setting;
    const host::ControlRow& row = window.row(field);
    if (row.symbol.empty() || row.symbolSide == host::SymbolSide::part)
        return setting;
    const QRectF box = boxOf(window, field, view);
    const double space = gap * view.pixelsPerUnit();
    const bool above = row.symbolSide == host::SymbolSide::above;
    const double room = above ? box.width() * 1.5 : roomBeside(window, field, view, true) - space;
    const double letters = usualFieldLetters(window, field, view) * symbolSize;
    setting.label = fitted([&row](double pixels) { return setLabel(row.symbol, pixels); }, letters, room);
    setting.baseline =
        above ? QPointF(box.left(), box.top() - space * 0.6 - setting.label.descent)
              : QPointF(box.left() - space - setting.label.width, box.center().y() + setting.label.capHeight / 2.0);
    setting.box = boxAround(setting.label, setting.baseline);
    return setting;
}

/// A value that the sheet has written with its unit, "20 K" or "1.2089 mA"; a placeholder is none.
bool bearsItsUnit(std::string_view text)
{
    constexpr std::string_view digits = "0123456789";
    const auto last = text.find_last_not_of(' ');
    return text.find_first_of(digits) != std::string_view::npos && text.find_first_of("0123456789.,", last) != last;
}

Setting unitOf(const Window& window, Handle field, const View& view)
{
    Setting setting;
    const host::ControlRow& row = window.row(field);
    if (row.unit.empty() || bearsItsUnit(window.text(field)))
        return setting;
    const QRectF box = boxOf(window, field, view);
    const double space = gap * view.pixelsPerUnit();
    const QString unit = QString::fromUtf8(row.unit.data(), static_cast<qsizetype>(row.unit.size()));
    const double room = roomBeside(window, field, view, false) - space;
    const double letters = usualFieldLetters(window, field, view) * unitSize;
    setting.label = fitted([&unit](double pixels) { return setUpright(unit, pixels); }, letters, room);
    setting.baseline = {box.right() + space, box.center().y() + setting.label.capHeight / 2.0};
    setting.box = boxAround(setting.label, setting.baseline);
    return setting;
}

bool isFree(const Window& window, Handle field, const QRectF& box, const View& view)
{
    if (box.isEmpty())
        return true;
    const host::Place& place = window.spec().place;
    const QRectF sheet(view.origin, QSizeF(place.width, place.height) * view.pixelsPerTwip);
    if (!sheet.adjusted(-1.0, -1.0, 1.0, 1.0).contains(box))
        return false;
    const QRectF own = boxOf(window, field, view);
    for (Handle other = 0; other < window.controlCount(); ++other) {
        if (other == field || !isObstacle(window, other, own, view))
            continue;
        const bool isText = window.row(other).kind == Kind::label;
        const QRectF taken = isText ? captionBounds(window, other, view) : boxOf(window, other, view);
        if (taken.adjusted(1.0, 1.0, -1.0, -1.0).intersects(box))
            return false;
    }
    return true;
}

} // namespace marks

QRectF symbolBounds(const Window& window, Handle field, const View& view)
{
    return marks::symbolOf(window, field, view).box;
}

QRectF unitBounds(const Window& window, Handle field, const View& view)
{
    return marks::unitOf(window, field, view).box;
}

void paintFieldMarks(QPainter& painter, const Window& window, Handle field, const View& view)
{
    const bool inHand = !view.forPrint && window.focus() == field;
    const bool enabled = window.enabled(field) || view.forPrint;
    const marks::Setting symbol = marks::symbolOf(window, field, view);
    painter.setPen(inHand ? view.inks->accent : enabled && !view.pale ? view.inks->ink : view.inks->quiet);
    drawLabel(painter, symbol.label, symbol.baseline);
    const marks::Setting unit = marks::unitOf(window, field, view);
    painter.setPen(view.inks->quiet);
    drawLabel(painter, unit.label, unit.baseline);
}

bool fieldMarksFit(const Window& window, Handle field, const View& view)
{
    return marks::isFree(window, field, symbolBounds(window, field, view), view) &&
           marks::isFree(window, field, unitBounds(window, field, view), view);
}

} // namespace velmor::desktop
