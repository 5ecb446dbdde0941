// SPDX-License-Identifier: MIT
// A field that cannot be written in, painted as its widget would show it: most fields of a sheet begin so and need no widget.
// Symbol and unit beside it are painted elsewhere.
#pragma once

#include <QRect>

#include "desktop/drawing/view.h"
#include "host/window.h"

class QPainter;

namespace velmor::desktop {

/// Paints along the whole pixels of `box`.
void paintPaleField(QPainter& painter, const host::Window& window, host::Handle field, const QRect& box,
                    const View& view);

} // namespace velmor::desktop
