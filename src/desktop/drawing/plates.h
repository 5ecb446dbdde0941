// SPDX-License-Identifier: MIT
// Rounded boxes with a ground and a border, as they lie under everything on a sheet. On screen they are put together from
// a small one that is painted once; a large one costs no more than its corners. Knows nothing of controls.
#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace velmor::desktop {

struct PlateLook {
    QColor ground;      ///< invalid: none
    QColor border;      ///< invalid: none
    double round = 0.0; ///< radius of the corners, logical pixels
    double width = 1.0; ///< of the border
};

/// Paints the plate along `box`, the middle line of its border, whose edges lie on halves of device pixels.
void paintPlateOnScreen(QPainter& painter, const QRectF& box, const PlateLook& look);

/// The same as one path, for paper and for boxes that lie anywhere.
void paintPlate(QPainter& painter, const QRectF& box, const PlateLook& look);

/// A rectangular border inside `box`, without corners to round or edges to smooth.
void fillFrame(QPainter& painter, const QRectF& box, double width, const QColor& color);

} // namespace velmor::desktop
