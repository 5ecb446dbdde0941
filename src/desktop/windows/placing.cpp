// SPDX-License-Identifier: MIT
#include "desktop/windows/placing.h"

#include <algorithm>
#include <array>

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

QPoint besideThing(const QRect& thing, QSize size, const QRect& room)
{
    using namespace placing;
    const int below = thing.bottom() + 1 + gap;
    const int above = thing.top() - gap - size.height();
    const int right = thing.right() + 1 + gap;
    const int left = thing.left() - gap - size.width();
    const std::array wished{QPoint(thing.left() - gap, below), QPoint(thing.left() - gap, above),
                            QPoint(right, thing.top() - gap), QPoint(left, thing.top() - gap)};
    for (const QPoint at : wished) {
        const QPoint kept = insideRoom(at, size, room);
        if (!thing.isEmpty() && leavesFree(thing, kept, size))
            return kept;
    }
    return clearOfThing(thing, size, room);
}

QPoint clearOfThing(const QRect& thing, QSize size, const QRect& room)
{
    using namespace placing;
    const QPoint middle = middleOf(room, size);
    const std::array wished{middle,
                            QPoint(middle.x(), thing.bottom() + 1 + gap),
                            QPoint(middle.x(), thing.top() - gap - size.height()),
                            QPoint(thing.right() + 1 + gap, middle.y()),
                            QPoint(thing.left() - gap - size.width(), middle.y())};
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
