// SPDX-License-Identifier: MIT
// Writes texts whose letters are set once: on the screen the same captions are written at every repaint. Knows type, not
// windows.
#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;

namespace velmor::desktop {

/// Writes one line in the painter's pen with the start of its baseline at `baseline`.
void writeLine(QPainter& painter, QPointF baseline, const QString& text, const QFont& font);

/// Writes a text of any number of lines into `room`, with alignment and wrapping by `flags` as `QPainter::drawText` takes them;
/// `box` is what the text takes of the room.
void writeBlock(QPainter& painter, const QRectF& room, const QRectF& box, int flags, const QString& text,
                const QFont& font);

/// Writes one line in the painter's pen and typeface into the middle of `room`, shortened where it is too long for it.
void writeInMiddle(QPainter& painter, const QRect& room, const QString& text);

} // namespace velmor::desktop
