// SPDX-License-Identifier: MIT
// A widget that stands for one painted control: it can hold the keyboard, assistive technology finds it, and for what
// lies above the fields it also paints. The mouse goes through it to the canvas.
#pragma once

#include <QWidget>

#include "host/control.h"

namespace velmor::desktop {

class Canvas;

class ControlPane final : public QWidget {
public:
    ControlPane(Canvas& canvas, host::Handle control, bool paints);

    host::Handle control() const { return control_; }
    Canvas& canvas() const { return canvas_; }
    bool paints() const { return paints_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; }

private:
    Canvas& canvas_;
    host::Handle control_;
    bool paints_;
};

/// Makes assistive technology see the panes as buttons, options, pictures and texts. Once for the process.
void tellAssistiveTechnology();

} // namespace velmor::desktop
