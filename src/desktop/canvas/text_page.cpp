// SPDX-License-Identifier: MIT
#include "desktop/canvas/text_page.h"

#include <cstdlib>

#include <QPaintEvent>
#include <QStyle>

namespace velmor::desktop {

TextPage::TextPage(QWidget* parent) : QPlainTextEdit(parent)
{
    setMinimumWidth(2 * style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this));
    connect(this, &QPlainTextEdit::updateRequest, this, &TextPage::follow);
}

/// How far letters may reach out of their line, in pixels.
int TextPage::reach() const
{
    return fontMetrics().height() / 2;
}

// The neighbours of a line that has changed may reach into it, and its old and new letters into them. Scrolled by a part of a
// row of pixels, what is cleared around a line reaches a row further. At both edges lines come and go that reach into what stays.
void TextPage::follow(const QRect& changed, int scrolled)
{
    const QRect all = viewport()->rect();
    const int around = reach() + 1;
    if (scrolled == 0) {
        viewport()->update(changed.adjusted(0, -around, 0, around));
        return;
    }
    const int come = std::abs(scrolled) + around;
    viewport()->update(0, 0, all.width(), scrolled > 0 ? come : around);
    viewport()->update(0, all.height() - (scrolled < 0 ? come : around), all.width(), come);
}

// No more is painted than was asked for; the lines beside it add what reaches into it.
void TextPage::paintEvent(QPaintEvent* event)
{
    QPaintEvent wide(event->rect().adjusted(0, -reach(), 0, reach()));
    QPlainTextEdit::paintEvent(&wide);
}

} // namespace velmor::desktop
