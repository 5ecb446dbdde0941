// SPDX-License-Identifier: MIT
// The two typefaces: a serif for drawings, symbols and values, the desktop's own for everything else. A family that the
// machine lacks is never silently replaced by just any other: the first one present of a list is taken.
#pragma once

#include <QFont>

namespace velmor::desktop {

/// Serif of drawings in a size in pixels (of whichever coordinates the painter has).
QFont drawingFont(double pixels, bool italic);
/// The desktop's typeface in a size in pixels.
QFont interfaceFont(double pixels, bool bold = false);
/// Family that was found for drawings.
QString drawingFamily();

} // namespace velmor::desktop
