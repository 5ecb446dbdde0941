// SPDX-License-Identifier: MIT
#include "desktop/drawing/pale_field.h"

#include <algorithm>
#include <cmath>

#include <QFontMetrics>
#include <QPainter>

#include "desktop/drawing/control_painter.h"
#include "desktop/drawing/plates.h"
#include "desktop/drawing/texts.h"

namespace velmor::desktop {

namespace pale_field {

constexpr int margin = 2; ///< of a text line, and once more of the text in it

/// A text line has no lines and no tabs: it shows a blank for each.
QString oneLine(std::string_view text)
{
    QString line = shown(text);
    for (QChar& letter : line)
        if (letter < QLatin1Char(' '))
            letter = QLatin1Char(' ');
    return line;
}

void write(QPainter& painter, const QFont& font, const QRect& box, const QString& text)
{
    const QFontMetrics metrics(font);
    const int top = box.top() + (box.height() - metrics.height() + 1) / 2;
    painter.save();
    painter.setClipRect(box.adjusted(margin, 0, -margin, 0), Qt::IntersectClip);
    painter.setFont(font);
    painter.drawText(QPoint(box.left() + 2 * margin, top + metrics.ascent()), text);
    painter.restore();
}

} // namespace pale_field

void paintPaleField(QPainter& painter, const host::Window& window, host::Handle field, const QRect& box,
                    const View& view)
{
    const host::Control& state = window.control(field);
    const bool usual = state.backColor < 0;
    const QColor ground = usual ? view.inks->fieldOff : QColor::fromRgb(static_cast<QRgb>(state.backColor));
    painter.fillRect(box, ground);
    if (!state.text.empty()) {
        painter.setPen(usual ? view.inks->fieldOffInk : readableOn(ground, view.inks->fieldOffInk));
        pale_field::write(painter, captionFont(window, field, view), box, pale_field::oneLine(state.text));
    }
    const double ratio = painter.deviceTransform().m11();
    fillFrame(painter, box, std::max(1.0, std::round(ratio)) / ratio, view.inks->rule);
}

} // namespace velmor::desktop
