// SPDX-License-Identifier: MIT
#include "desktop/drawing/quiet_buttons.h"

#include <QPainter>
#include <QStyle>

#include "desktop/drawing/palette_of_inks.h"
#include "desktop/drawing/plates.h"

namespace velmor::desktop {

namespace quiet_buttons {

constexpr double corner = 4.0;

bool has(const QStyleOptionButton& button, QStyle::StateFlag flag)
{
    return (button.state & flag) != 0;
}

bool isFilled(const QStyleOptionButton& button)
{
    return (button.features & QStyleOptionButton::DefaultButton) != 0 && has(button, QStyle::State_Enabled);
}

QColor groundOf(const QStyleOptionButton& button, const Inks& inks)
{
    const bool down = has(button, QStyle::State_Sunken);
    const bool under = has(button, QStyle::State_MouseOver);
    if (!has(button, QStyle::State_Enabled))
        return inks.buttonOff;
    if (isFilled(button))
        return down ? inks.accent.darker(125) : inks.accent;
    return down || has(button, QStyle::State_On) ? inks.accentTint : under ? inks.buttonHover : inks.button;
}

} // namespace quiet_buttons

void paintQuietButton(QPainter& painter, const QStyleOptionButton& button)
{
    using namespace quiet_buttons;
    const Inks& inks = inksFor(button.palette);
    const bool held = has(button, QStyle::State_HasFocus) && has(button, QStyle::State_Enabled);
    const bool filled = isFilled(button);
    const QRectF box = QRectF(button.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    paintPlate(painter, box, {groundOf(button, inks), filled || held ? inks.accent : inks.edge, corner, 1.0});
    if (held && (filled || has(button, QStyle::State_KeyboardFocusChange)))
        paintPlate(painter, box.adjusted(2.5, 2.5, -2.5, -2.5),
                   {QColor(), filled ? inks.onAccent : inks.accent, corner - 1.5, 1.0});
    painter.restore();
}

QColor captionInk(const QStyleOptionButton& button)
{
    const Inks& inks = inksFor(button.palette);
    return !quiet_buttons::has(button, QStyle::State_Enabled) ? inks.buttonOffInk
           : quiet_buttons::isFilled(button)                  ? inks.onAccent
                                                              : inks.ink;
}

} // namespace velmor::desktop
