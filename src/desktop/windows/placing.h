// SPDX-License-Identifier: MIT
// Where a box or a small window stands: beside what it speaks of, never over the field in hand, inside the room that it is
// given. On desktops where a program cannot place its windows this is a wish that nothing relies on.
#pragma once

#include <vector>

#include <QPoint>
#include <QRect>
#include <QSize>

namespace velmor::desktop {

/// Beside the thing: below it, else above, to the right, to the left, whichever lies in the room first; otherwise where it
/// hides nothing of the thing. Without a thing in the middle.
QPoint besideThing(const QRect& thing, QSize size, const QRect& room);

/// The same to the right, else to the left, above or below: for what is read while the fields below are filled.
QPoint sidewaysOf(const QRect& thing, QSize size, const QRect& room);

/// Where beside the thing there is room that leaves it free: below, above, to the right, to the left.
std::vector<QPoint> cornersBeside(const QRect& thing, QSize size, const QRect& room);

/// In the middle of the room, or as near to it as leaves the thing free.
QPoint clearOfThing(const QRect& thing, QSize size, const QRect& room);

/// Moves a rectangle into the room.
QPoint insideRoom(QPoint wished, QSize size, const QRect& room);

/// Moves a rectangle into the screen on which its middle lies, or the nearest one.
QPoint insideScreen(QPoint wished, QSize size);

} // namespace velmor::desktop
