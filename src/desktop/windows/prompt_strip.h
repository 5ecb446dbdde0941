// SPDX-License-Identifier: MIT
// The upper edge of a sheet that scrolls: the teacher's voice and the next step, which stay in view in a width that is seen.
// The sheet below begins where it ends.
#pragma once

#include <QWidget>

#include "host/control.h"

namespace velmor::desktop {

class Canvas;

class PromptStrip final : public QWidget {
public:
    PromptStrip(Canvas& canvas, QWidget* parent);

    /// How far down the prompts of a sheet reach, in twips. 0 where there are none, or where something that is shown now lies
    /// partly among them, as a voice that was opened to be read: it is better seen whole.
    int reach() const;
    /// Takes the height of that reach, in pixels of 15 twips.
    void takeHeight(int reach, double scale);
    /// True when one of these controls is among the prompts.
    bool shows(const std::vector<host::Handle>& changes) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    bool isPrompt(host::Handle control) const;

    Canvas& canvas_;
    int reach_ = 0;
    double scale_ = 1.0;
};

} // namespace velmor::desktop
