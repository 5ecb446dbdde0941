// SPDX-License-Identifier: MIT
// The frame around a window of the program, whatever it is: what the keeper of windows needs of it.
#pragma once

#include "host/window.h"

class QWidget;

namespace velmor::desktop {

class SheetView;

class WindowFrame {
public:
    virtual ~WindowFrame() = default;

    virtual host::Window* model() const = 0;
    virtual QWidget& widget() = 0;
    /// The view inside; the main window has none that holds fields.
    virtual SheetView* view() = 0;
    /// Title, place, state and being shown, as the model has them.
    virtual void followWindow() = 0;
    virtual void followControls() = 0;
    virtual void bringToFront() = 0;
    virtual void relabel() = 0;
    virtual void recolor() = 0;
    /// The model is about to be destroyed; the frame is hidden and deletes itself later.
    virtual void farewell() = 0;
};

} // namespace velmor::desktop
