// SPDX-License-Identifier: MIT
// Paints drawings given as data (host/drawing.h) like the page of a good textbook, crisp at any scale. Reads a window's
// texts and focus, changes nothing.
#pragma once

#include <span>

#include <QPointF>
#include <QRectF>

#include "desktop/drawing/view.h"
#include "host/window.h"

class QPainter;

namespace velmor::desktop {

/// Paints marks with `origin` as the point (0, 0) of their grid, in the painter's coordinates. The resolution of the
/// device is taken from the painter. On screen, leads lie on whole device pixels; for print nothing is rounded.
void paintMarks(QPainter& painter, const host::Window& window, std::span<const host::Mark> marks, QPointF origin,
                const View& view);

/// The box that the marks fill, names and values included, with `origin` as above.
QRectF boundsOfMarks(const host::Window& window, std::span<const host::Mark> marks, QPointF origin, const View& view);

/// The box of one mark's name and value; empty when it has none.
QRectF labelBounds(const host::Window& window, const host::Mark& mark, QPointF origin, const View& view);

/// The text that stands under a mark's name: the value control's text, with the unit when it is a bare number, long
/// fractions cut to what a drawing can bear (display only).
QString valueText(const host::Window& window, const host::Mark& mark);

} // namespace velmor::desktop
