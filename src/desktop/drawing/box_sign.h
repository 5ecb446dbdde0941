// SPDX-License-Identifier: MIT
// The signs of boxes, in the line of the program's other signs: told apart by their outline, not by colour alone.
#pragma once

#include <QRectF>

#include "desktop/drawing/palette_of_inks.h"
#include "host/screen.h"

class QPainter;

namespace velmor::desktop {

/// Paints nothing for a box without a sign.
void paintBoxSign(QPainter& painter, const QRectF& box, host::BoxIcon icon, const Inks& inks);

} // namespace velmor::desktop
