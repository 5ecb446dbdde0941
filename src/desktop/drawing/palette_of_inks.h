// SPDX-License-Identifier: MIT
// The colours of the program by role, for light and dark desktops. Knows nothing of windows or controls.
#pragma once

#include <QColor>

#include "host/drawing.h"

class QPalette;

namespace velmor::desktop {

/// Colours by role. Every pair of ink and ground that carries text has a contrast of at least 4.5.
struct Inks {
    bool dark = false;

    QColor desk;       ///< behind the sheet
    QColor paper;      ///< the drawing sheet
    QColor ink;        ///< leads, symbols, texts
    QColor quiet;      ///< units, notes, what steps back
    QColor pale;       ///< strokes of parts that are not reached yet, 3 to 1 against the paper
    QColor accent;     ///< the one accent: signals, focus, the part in hand
    QColor accentTint; ///< pale ground of what is in hand
    QColor onAccent;   ///< text on a ground of `accent`
    QColor warning;
    QColor warningTint;
    QColor rule; ///< thin rules and frames that separate
    QColor edge; ///< outline of fields and buttons, 3 to 1 against its ground

    QColor voice;   ///< ground of the teacher's panel
    QColor hint;    ///< ground of hints
    QColor balloon; ///< ground of balloons
    QColor onBalloon;

    QColor field; ///< ground of a field that can be filled
    QColor fieldInk;
    QColor fieldOff; ///< ground of a disabled field
    QColor fieldOffInk;
    QColor button;
    QColor buttonHover;
    QColor buttonOff;
    QColor buttonOffInk;
};

const Inks& lightInks();
const Inks& darkInks();
const Inks& printInks(); ///< black on white, for paper

/// Light or dark by the desktop's own window and text colours.
const Inks& inksFor(const QPalette& desktop);

/// The shade of a mark's ink.
QColor shade(const Inks& inks, host::Ink ink);

/// Contrast between two opaque colours, 1 to 21, by relative luminance.
double contrast(const QColor& one, const QColor& other);

/// A readable ink on a ground that a sheet chose itself (`backColor`): the wished one, drawn towards black or white until
/// its contrast is at least 4.5.
QColor readableOn(const QColor& ground, const QColor& wished);

} // namespace velmor::desktop
