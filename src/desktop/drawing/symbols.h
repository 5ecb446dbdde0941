// SPDX-License-Identifier: MIT
// The strokes of every symbol. Knows lengths in units and where a symbol lies, not why it is drawn.
#pragma once

#include <QRectF>

#include "desktop/drawing/palette_of_inks.h"
#include "desktop/drawing/sketch.h"
#include "host/drawing.h"

namespace velmor::desktop {

/// Colours and weight in which one mark is drawn.
struct Stroke {
    QColor ink;         ///< leads
    QColor body;        ///< outline of the part
    QColor paper;       ///< what lies inside hollow things
    bool heavy = false; ///< the part in hand

    /// On the weight of bars and plates.
    double factor() const { return heavy ? 1.5 : 1.0; }
};

/// How far a symbol reaches from the middle of its name's anchor, in units.
struct Reach {
    double along = 0.0;  ///< half its length without leads
    double across = 0.0; ///< half its width
};
Reach reachOf(host::Symbol symbol);

bool isTwoEnded(host::Symbol symbol);
bool isTransistor(host::Symbol symbol);
bool isPictogram(host::Symbol symbol);

/// Box of a symbol's body in units (leads excluded), for highlights and labels.
QRectF bodyOf(const host::Mark& mark);
/// Box of body and leads.
QRectF extentOf(const host::Mark& mark);

/// Adds a mark's strokes to the sketch; names and values are not its business.
void drawSymbol(Sketch& sketch, const host::Mark& mark, const Stroke& stroke);
/// The pictograms, called by the above.
void drawPictogram(Sketch& sketch, const host::Mark& mark, const Stroke& stroke);

} // namespace velmor::desktop
