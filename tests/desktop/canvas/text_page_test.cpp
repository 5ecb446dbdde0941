// SPDX-License-Identifier: MIT
// A text of many lines in whatever room it gets.
#include <utility>

#include <gtest/gtest.h>

#include <QApplication>
#include <QEvent>
#include <QScrollBar>

#include "desktop/canvas/text_page.h"

namespace velmor::test::text_page_test {

/// Counts how often the scroll bars of a page come and go; who does it without end loses them, so that the test ends.
class BarCounter : public QObject {
public:
    explicit BarCounter(desktop::TextPage& page) : page_(page)
    {
        page.verticalScrollBar()->installEventFilter(this);
        page.horizontalScrollBar()->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
            ++count_;
        if (count_ > most)
            page_.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        return false;
    }
    int taken() { return std::exchange(count_, 0); }

    static constexpr int most = 100;

private:
    desktop::TextPage& page_;
    int count_ = 0;
};

TEST(TextPageTest, comesToRestInARoomThatIsTooNarrowForItsScrollBar)
{
    QWidget room;
    room.resize(400, 900);
    desktop::TextPage page(&room);
    page.setPlainText(QStringLiteral("uno dos tres cuatro\ncinco\nseis\n").repeated(3));
    room.show();
    BarCounter bars(page);
    for (int width = 1; width < 60; ++width)
        for (const int height : {1, 20, 60, 200, 500, 800}) {
            page.resize(width, height);
            QApplication::processEvents();
            ASSERT_LE(bars.taken(), BarCounter::most) << width << " x " << height;
        }
}

} // namespace velmor::test::text_page_test
