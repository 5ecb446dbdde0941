// SPDX-License-Identifier: MIT
// The area of the children has no scroll bars: no frame may leave it, and no icon may set it going for ever.
#include <gtest/gtest.h>

#include <QMdiArea>
#include <QScrollBar>

#include "desktop/desktop_fixture.h"
#include "desktop/fire/watchdog.h"

namespace velmor::test::area_test {

constexpr double longest = 10.0; ///< seconds of computing, a thousand times what it takes

struct AreaTest : ::testing::Test {
    void SetUp() override
    {
        on.open();
        sheets = {&on.sheet(), &on.newSheet(), &on.newSheet(), &on.newSheet()};
    }
    desktop::ChildFrame& frame(std::size_t which)
    {
        return dynamic_cast<desktop::ChildFrame&>(*on.screen.keeper().frameOf(*sheets[which]));
    }
    QRect area() { return on.main().area().viewport()->rect(); }
    void arrange(int how)
    {
        on.engine.userRun([&] { on.engine.host().Arrange(how); });
    }
    /// Ends the process with that name when it never comes to rest.
    void rest(const std::string& after)
    {
        watchdog.begin(after);
        Bench::settle();
        watchdog.end();
    }

    Bench on;
    std::vector<host::Window*> sheets;
    Watchdog watchdog{longest};
};

// A bar that came would take its room from the tiles, which would move the icon, which would take the bar away again, for ever.
TEST_F(AreaTest, givesNoRoomToBarsWithAnIconTallerThanItselfAmongTiles)
{
    const QSize open = area().size();
    const auto stands = [&](const std::string& after) {
        rest(after);
        EXPECT_EQ(area().size(), open) << after;
        for (const QScrollBar* bar : {on.main().area().horizontalScrollBar(), on.main().area().verticalScrollBar()})
            EXPECT_FALSE(bar->isVisible()) << after;
    };
    for (const int height : {60, 200, 400, 700, open.height() + 150}) {
        frame(0).showMinimized();
        frame(0).resize(300, height);
        arrange(height % 400 == 0 ? 1 : 2);
        stands("tiles over an icon " + std::to_string(height) + " high");
        frame(0).setGeometry(area().width() - 100, area().height() - 30, 300, height);
        stands("an icon that reaches out of the area");
        frame(1).showMaximized();
        stands("a sheet maximised over them");
        frame(1).showNormal();
        stands("and back");
    }
}

TEST_F(AreaTest, anIconIsNoTallerThanItsTitle)
{
    frame(0).showMinimized();
    rest("an icon");
    EXPECT_LT(frame(0).height(), 60);
}

TEST_F(AreaTest, neverScrolls)
{
    on.engine.userRun([this] { sheets[1]->setPlace({40000, 30000, 9000, 4500}); });
    frame(2).showMaximized();
    rest("a place far outside");
    EXPECT_EQ(on.main().area().horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    EXPECT_EQ(on.main().area().verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    EXPECT_EQ(frame(2).geometry(), area());
}

TEST_F(AreaTest, keepsFramesInsideWhereverTheProgramOrAHandPutsThem)
{
    on.engine.userRun([this] { sheets[1]->setPlace({40000, -3000, 9000, 4500}); });
    rest("a place far outside");
    EXPECT_TRUE(area().contains(frame(1).geometry()));
    EXPECT_EQ(sheets[1]->place(), (host::Place{40000, -3000, 9000, 4500})) << "the program's number stands";
    for (const QPoint to : {QPoint(-500, -300), QPoint(3000, 2000)}) {
        frame(2).move(to);
        rest("a frame moved");
        EXPECT_TRUE(area().contains(frame(2).geometry()));
    }
    frame(2).resize(5000, 5000);
    rest("a frame sized");
    EXPECT_TRUE(area().contains(frame(2).geometry()));
    frame(3).setGeometry(700, 300, 500, 300);
    rest("a frame at the right");
    on.main().resize(800, 600);
    rest("a smaller main window");
    for (std::size_t i = 0; i < sheets.size(); ++i)
        EXPECT_TRUE(area().contains(frame(i).geometry())) << i;
}

// The toolkit forgets that it was maximised, for it is not in sight when the area becomes smaller; when it comes into sight it
// knows it again, and puts it back where it stood in the larger area.
TEST_F(AreaTest, keepsAFrameInsideThatGoesMaximisedAndComesBackAsAFrame)
{
    on.engine.userRun([this] { sheets[1]->setPlace({6000, 7500, 6000, 4000}); });
    rest("a low place");
    frame(1).showMaximized();
    rest("maximised");
    on.engine.userRun([this] { on.engine.host().Hide(*sheets[1]); });
    rest("gone");
    on.engine.userRun([this] {
        on.main().resize(751, 500);
        on.engine.host().SetWindowState(*sheets[1], 0);
        on.engine.host().Show(*sheets[1]);
    });
    rest("back");
    EXPECT_FALSE(frame(1).isMaximized());
    EXPECT_TRUE(area().contains(frame(1).geometry()));
}

// The toolkit is in the middle of its own change then, and slots may change the frame again.
TEST_F(AreaTest, aChangeOfStateIsAnsweredAfterTheToolkitsOwn)
{
    std::vector<std::string>& log = static_cast<BenchWindow*>(sheets[3])->log;
    log.clear();
    frame(3).showMaximized();
    EXPECT_EQ(sheets[3]->windowState(), 0);
    EXPECT_TRUE(log.empty());
    rest("maximised");
    EXPECT_EQ(sheets[3]->windowState(), 2);
    EXPECT_EQ(log, (std::vector<std::string>{"Hoja resize", "Hoja repaint"}));
}

} // namespace velmor::test::area_test
