// SPDX-License-Identifier: MIT
// Push buttons of boxes and lines in the program's own plates; the one that Enter presses is filled.
#pragma once

#include <QStyleOptionButton>

class QPainter;

namespace velmor::desktop {

/// The button without its caption.
void paintQuietButton(QPainter& painter, const QStyleOptionButton& button);
/// Ink of its caption.
QColor captionInk(const QStyleOptionButton& button);

} // namespace velmor::desktop
