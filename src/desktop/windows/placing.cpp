// SPDX-License-Identifier: MIT
#include "desktop/windows/placing.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include <QGuiApplication>
#include <QScreen>

namespace velmor::desktop {

namespace placing {

constexpr int gap = 14; ///< logical pixels between a box and what it speaks of

bool leavesFree(const QRect& thing, QPoint at, QSize size)
{
    return thing.isEmpty() || !QRect(at, size).intersects(thing.adjusted(-gap / 2, -gap / 2, gap / 2, gap / 2));
}

QPoint middleOf(const QRect& room, QSize size)
{
    return {room.left() + (room.width() - size.width()) / 2, room.top() + (room.height() - size.height()) / 2};
}

} // namespace placing

QPoint insideRoom(QPoint wished, QSize size, const QRect& room)
{
    const int left = std::clamp(wished.x(), room.left(), std::max(room.left(), room.right() + 1 - size.width()));
    const int top = std::clamp(wished.y(), room.top(), std::max(room.top(), room.bottom() + 1 - size.height()));
    return {left, top};
}

namespace placing {

enum class Side { below, above, right, left };

QPoint cornerAt(Side side, const QRect& thing, QSize size)
{
    switch (side) {
    case Side::below:
        return {thing.left() - gap, thing.bottom() + 1 + gap};
    case Side::above:
        return {thing.left() - gap, thing.top() - gap - size.height()};
    case Side::right:
        return {thing.right() + 1 + gap, thing.top() - gap};
    case Side::left:
        break;
    }
    return {thing.left() - gap - size.width(), thing.top() - gap};
}

QPoint firstFree(std::initializer_list<Side> sides, const QRect& thing, QSize size, const QRect& room)
{
    for (const Side side : sides) {
        const QPoint kept = insideRoom(cornerAt(side, thing, size), size, room);
        if (!thing.isEmpty() && leavesFree(thing, kept, size))
            return kept;
    }
    return clearOfThing(thing, size, room);
}

} // namespace placing

QPoint besideThing(const QRect& thing, QSize size, const QRect& room)
{
    const std::vector<QPoint> corners = cornersBeside(thing, size, room);
    return corners.empty() ? clearOfThing(thing, size, room) : corners.front();
}

QPoint sidewaysOf(const QRect& thing, QSize size, const QRect& room)
{
    using placing::Side;
    return placing::firstFree({Side::right, Side::left, Side::above, Side::below}, thing, size, room);
}

std::vector<QPoint> cornersBeside(const QRect& thing, QSize size, const QRect& room)
{
    using namespace placing;
    std::vector<QPoint> corners;
    for (const Side side : {Side::below, Side::above, Side::right, Side::left}) {
        const QPoint kept = insideRoom(cornerAt(side, thing, size), size, room);
        if (!thing.isEmpty() && leavesFree(thing, kept, size))
            corners.push_back(kept);
    }
    return corners;
}

QPoint clearOfThing(const QRect& thing, QSize size, const QRect& room)
{
    using namespace placing;
    const QPoint middle = middleOf(room, size);
    const std::array wished{
        middle, QPoint(middle.x(), thing.bottom() + 1 + gap), QPoint(middle.x(), thing.top() - gap - size.height()),
        QPoint(thing.right() + 1 + gap, middle.y()), QPoint(thing.left() - gap - size.width(), middle.y())};
    for (const QPoint at : wished) {
        const QPoint kept = insideRoom(at, size, room);
        if (leavesFree(thing, kept, size))
            return kept;
    }
    return insideRoom(middle, size, room);
}

QPoint insideScreen(QPoint wished, QSize size)
{
    const QScreen* screen = QGuiApplication::screenAt(wished + QPoint(size.width() / 2, size.height() / 2));
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? wished : insideRoom(wished, size, screen->availableGeometry());
}

} // namespace velmor::desktop
