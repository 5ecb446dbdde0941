// SPDX-License-Identifier: MIT
// The one button of boxes, tools and the palette: two strokes that close. It takes no keyboard; Esc does the same.
#pragma once

#include <QAbstractButton>

#include "desktop/drawing/palette_of_inks.h"

namespace velmor::desktop {

class CloseButton final : public QAbstractButton {
public:
    CloseButton(const Inks& inks, QWidget* parent);

    void setInks(const Inks& inks);
    /// Its name for those who hear it, and its tip.
    void speak(bool english);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Inks* inks_;
};

} // namespace velmor::desktop
