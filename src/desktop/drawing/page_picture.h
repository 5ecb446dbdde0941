// SPDX-License-Identifier: MIT
// The large picture of a circuit on the welcome panel: the button's small drawing, enlarged to its place.
#pragma once

#include "desktop/drawing/view.h"
#include "host/window.h"

class QPainter;

namespace velmor::desktop {

/// True for the page pictures of the main window.
bool isPagePicture(const host::Window& window, host::Handle control);
void paintPagePicture(QPainter& painter, const host::Window& window, host::Handle control, const View& view);

} // namespace velmor::desktop
