// SPDX-License-Identifier: MIT
// The talkative mouse on real windows: the page of a design lies over the sheets while the pointer is on its button, and
// goes without moving anything.
#include <QMdiArea>
#include <QTest>

#include <gtest/gtest.h>

#include "desktop/canvas/canvas.h"
#include "desktop/desktop_fixture.h"
#include "desktop/windows/main_window.h"
#include "desktop/windows/palette_strip.h"
#include "frame/form16_controls.h"
#include "frame/mdi_form1_controls.h"
#include "program/catalogue.h"

namespace velmor::test {

namespace talk {

class TalkTest : public ::testing::Test {
protected:
    TalkTest() : on(program::catalogue())
    {
        program::start(on.engine);
        Bench::settle();
    }

    host::Window& palette() { return *on.engine.defaultInstance("Form16"); }
    host::Window& sheet() { return *on.engine.instance("Form2", 0); }
    desktop::Canvas* welcome()
    {
        for (desktop::Canvas* canvas : on.main().findChildren<desktop::Canvas*>())
            if (canvas->model() == &on.engine.mainWindow() && canvas->isVisible() &&
                canvas->boxInPixels(main_window::Label1).isValid() && canvas->height() > 100)
                return canvas;
        return nullptr;
    }
    void pointAt(host::Window& window, host::Handle control)
    {
        // Two steps: a move to where the pointer is already would be none.
        QWindow* handle = on.viewOf(window).window()->windowHandle();
        QTest::mouseMove(handle, on.middleOf(window, control) - QPoint(3, 3));
        QTest::mouseMove(handle, on.middleOf(window, control));
        Bench::settle();
    }
    host::Handle fieldOf(host::Window& window) { return window.named("Text1"); }

    Bench on;
};

TEST_F(TalkTest, theArrowsGoFromDesignToDesignAndEnterOpensOneThatThenHasTheKeyboard)
{
    on.main().resize(1366, 740);
    on.main().activateWindow();
    Bench::settle();
    Bench::key(Qt::Key_F6);
    ASSERT_EQ(on.engine.current(), &palette());
    Bench::key(Qt::Key_Right);
    ASSERT_NE(welcome(), nullptr) << "the first design explains itself";
    Bench::key(Qt::Key_Right);
    Bench::key(Qt::Key_Right);
    Bench::key(Qt::Key_Left);
    Bench::key(Qt::Key_Right);
    Bench::key(Qt::Key_Return);
    host::Window* opened = on.engine.activeChild();
    ASSERT_NE(opened, nullptr);
    EXPECT_EQ(opened->name(), "Form4") << "the third button's";
    EXPECT_EQ(on.engine.current(), opened);
    Bench::type("7");
    EXPECT_EQ(opened->text(opened->focus()), "7");
}

TEST_F(TalkTest, aButtonUnderThePointerBringsItsPageOverTheSheet)
{
    EXPECT_EQ(welcome(), nullptr);
    const QRect area = on.main().area().geometry();
    const host::Place place = sheet().place();
    pointAt(palette(), palette::imgButton4);
    ASSERT_NE(welcome(), nullptr);
    EXPECT_EQ(on.main().area().geometry(), area);
    EXPECT_EQ(sheet().place(), place);
    EXPECT_TRUE(welcome()->boxInPixels(main_window::Picture5).intersects(welcome()->rect()));
    EXPECT_LT(welcome()->height(), area.height());
}

TEST_F(TalkTest, thePageGoesWhenThePointerIsBackOnTheSheet)
{
    pointAt(palette(), palette::imgButton4);
    ASSERT_NE(welcome(), nullptr);
    pointAt(sheet(), fieldOf(sheet()));
    EXPECT_EQ(welcome(), nullptr);
    pointAt(palette(), palette::imgButton4);
    EXPECT_NE(welcome(), nullptr) << "and comes again on the same button";
}

TEST_F(TalkTest, aKeyInTheSheetSendsThePageAway)
{
    pointAt(palette(), palette::imgButton4);
    ASSERT_NE(welcome(), nullptr);
    Bench::key(Qt::Key_5);
    EXPECT_EQ(welcome(), nullptr);
}

// It would lie over the field that has the keyboard again.
TEST_F(TalkTest, thePageGoesWithTheKeyboardThatLeavesThePalette)
{
    on.main().activateWindow();
    Bench::settle();
    for (const Qt::Key leaving : {Qt::Key_F6, Qt::Key_Escape}) {
        Bench::key(Qt::Key_F6);
        Bench::key(Qt::Key_Right);
        ASSERT_NE(welcome(), nullptr);
        Bench::key(leaving);
        EXPECT_EQ(on.engine.current(), &sheet());
        EXPECT_EQ(welcome(), nullptr) << leaving;
    }
}

TEST_F(TalkTest, theKeyOfAButtonTalksAsThePointerDoes)
{
    on.main().activateWindow();
    Bench::settle();
    Bench::keys("Ctrl+Shift+F4");
    ASSERT_NE(welcome(), nullptr);
    EXPECT_TRUE(on.engine.mainWindow().visible(main_window::Picture4));
}

TEST_F(TalkTest, aSheetThatIsOpenedComesInFrontOfItsPage)
{
    pointAt(palette(), palette::imgButton10);
    ASSERT_NE(welcome(), nullptr);
    QTest::mouseClick(on.viewOf(palette()).window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      on.middleOf(palette(), palette::imgButton10));
    Bench::settle();
    EXPECT_EQ(on.engine.windows().size(), 4U) << "main window, palette, two sheets";
    EXPECT_EQ(welcome(), nullptr);
}

TEST_F(TalkTest, thePageNeverLiesUnderAPaletteThatAHandHasMoved)
{
    pointAt(palette(), palette::imgButton4);
    ASSERT_NE(welcome(), nullptr);
    EXPECT_GT(welcome()->y(), 0) << "at the lower edge, above the palette's own strip";
    auto& strip = dynamic_cast<desktop::PaletteStrip&>(*on.screen.keeper().frameOf(palette()));
    strip.floatAt(strip.pos() - QPoint(0, 60));
    Bench::settle();
    pointAt(sheet(), fieldOf(sheet()));
    ASSERT_EQ(welcome(), nullptr);
    pointAt(palette(), palette::imgButton4);
    ASSERT_NE(welcome(), nullptr);
    const QRect page(welcome()->mapToGlobal(QPoint(0, 0)), welcome()->size());
    EXPECT_FALSE(page.intersects(QRect(strip.mapToGlobal(QPoint(0, 0)), strip.size())));
    EXPECT_EQ(welcome()->y(), 0);
}

TEST_F(TalkTest, theMarkOfAButtonStandsAllAroundIt)
{
    for (host::Handle button = palette::imgButton0; button <= palette::lblButton; ++button) {
        const host::Place mark = palette().placeOf(palette::Shape1_0 + (button - palette::imgButton0));
        const host::Place inside = palette().placeOf(button);
        EXPECT_EQ(inside.left - mark.left, mark.left + mark.width - inside.left - inside.width) << button;
        EXPECT_EQ(inside.top - mark.top, mark.top + mark.height - inside.top - inside.height) << button;
    }
}

TEST_F(TalkTest, theGeneralPageStaysBehindTheSheets)
{
    pointAt(palette(), palette::imgButton4);
    pointAt(palette(), palette::lblButton);
    EXPECT_TRUE(on.engine.mainWindow().visible(main_window::SSPanel1));
    EXPECT_EQ(welcome(), nullptr);
}

TEST_F(TalkTest, aLetterWithAltIsNotWrittenIntoAField)
{
    const std::string before = sheet().text(fieldOf(sheet()));
    Bench::key(Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(sheet().text(fieldOf(sheet())), before);
}

} // namespace talk

} // namespace velmor::test
