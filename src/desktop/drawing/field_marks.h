// SPDX-License-Identifier: MIT
// Symbol and unit beside a field.
#pragma once

#include "desktop/drawing/view.h"
#include "host/window.h"

class QPainter;

namespace velmor::desktop {

void paintFieldMarks(QPainter& painter, const host::Window& window, host::Handle field, const View& view);

/// True when symbol and unit stand inside the window and over no other visible field, button, picture or text.
bool fieldMarksFit(const host::Window& window, host::Handle field, const View& view);

} // namespace velmor::desktop
