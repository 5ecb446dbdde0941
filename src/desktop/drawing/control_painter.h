// SPDX-License-Identifier: MIT
// Paints every control that is no widget of its own (labels, panels, buttons, pictures, images, options, checks, lines,
// shapes), and symbol and unit beside fields. Texts are plain texts: no markup, no ampersand is ever interpreted.
#pragma once

#include <span>

#include <QFont>
#include <QRectF>
#include <QString>

#include "desktop/drawing/view.h"
#include "host/window.h"

class QPainter;

namespace velmor::desktop {

/// Paints one control in its present state and tone, whether or not it is visible: the caller skips what is not there and the
/// look `invisible`. Of fields, pages, editors and lists only symbol and unit are painted; their widgets show the rest.
void paintControl(QPainter& painter, const host::Window& window, host::Handle control, const View& view);

/// Paints a whole window: ground, pale parts, then every visible control in table order, overlays last. Widgets are not painted,
/// unless `view.forPrint`, where fields show their text in a plain box.
void paintWindow(QPainter& painter, const host::Window& window, const View& view);

/// A tool button that is no control of the window: the screen's own, painted as the window's are.
struct Tile {
    host::Place place{};
    std::span<const host::Mark> drawing{};
    bool awake = true;
    bool hovered = false;
    bool pressed = false;
};
void paintTile(QPainter& painter, const host::Window& window, const Tile& tile, const View& view);

/// Place in the painter's coordinates.
QRectF boxOf(const host::Place& place, const View& view);

/// Visible or pale, in visible panels, of a look and kind that show something.
bool isPainted(const host::Window& window, host::Handle control);

/// Place of a control in the painter's coordinates.
QRectF boxOf(const host::Window& window, host::Handle control, const View& view);

/// Everything that a control may paint on, its place, symbol, unit, highlight, a drawing's overhang and a text that does not
/// fit included: the area to repaint when it changes.
QRectF inkBounds(const host::Window& window, host::Handle control, const View& view);

/// The text as it is shown: runs of three or more blanks, which once lined texts up by hand, become one gap; blanks at both
/// ends of a line are dropped. Line breaks stay. For display only.
QString displayText(std::string_view text);

/// The font of a control's text at this scale: that in which its text fits its place, between the wanted size and
/// the readable minimum of 9 logical pixels. Fields: the size that fits the field's height, whatever the text.
QFont captionFont(const host::Window& window, host::Handle control, const View& view);

/// True when the control's text fits inside its place in a readable size, and, of a field, its symbol and unit too
/// (they have the room beside it that no other control takes).
bool captionFits(const host::Window& window, host::Handle control, const View& view);

/// The box that the text of a control takes with `captionFont`, in the painter's coordinates; empty without a text.
QRectF captionBounds(const host::Window& window, host::Handle control, const View& view);

/// Where a field's symbol and unit stand, in the painter's coordinates; empty without one.
QRectF symbolBounds(const host::Window& window, host::Handle field, const View& view);
QRectF unitBounds(const host::Window& window, host::Handle field, const View& view);

} // namespace velmor::desktop
