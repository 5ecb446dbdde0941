// SPDX-License-Identifier: MIT
// How a control's text is set inside its place: room, font, size. Measures, paints nothing.
#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

#include "desktop/drawing/view.h"
#include "host/window.h"

namespace velmor::desktop {

/// Readable minimum of a text, in logical pixels.
inline constexpr double smallestLetters = 9.0;

/// A text as it is to be painted.
struct CaptionSetting {
    QString text;
    QFont font;
    QRectF room;   ///< where it may stand
    QRectF box;    ///< what it takes of it
    int flags = 0; ///< of Qt's text drawing: alignment and word wrap
    bool fits = true;
};

CaptionSetting setCaption(const host::Window& window, host::Handle control, const View& view);

/// Letters of a field's own text in logical pixels.
double fieldLetters(const host::Window& window, host::Handle field, const View& view);
/// The same at the size that the field begins with: what stands beside it does not grow with it.
double usualFieldLetters(const host::Window& window, host::Handle field, const View& view);

} // namespace velmor::desktop
