// SPDX-License-Identifier: MIT
// What a person does with the mouse over a sheet: pointing, pressing, pressing twice, dragging.
#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>

#include "desktop/canvas/canvas.h"
#include "desktop/desktop_fixture.h"

namespace velmor::test::pointer_test {

using namespace bench;
using host::Event;

struct PointerTest : ::testing::Test {
    void SetUp() override { on.open(); }
    std::vector<std::string>& log() { return on.sheet().log; }
    Bench on;
};

TEST_F(PointerTest, hoveringTellsEachControlOnceAndTheBackgroundToo)
{
    log().clear();
    on.moveTo(Image1);
    on.moveTo(Image1);
    on.moveTo(Text4);
    QTest::mouseMove(on.main().windowHandle(), on.middleOf(on.sheet(), Text4) + QPoint(0, 45));
    on.settle();
    EXPECT_EQ(log(), (std::vector<std::string>{"Image1 hover", "Text4 hover", "Hoja hover"}));
}

TEST_F(PointerTest, aRightPressOnADisabledFieldStillHelps)
{
    on.moveTo(Text4);
    log().clear();
    on.click(Text4, Qt::RightButton);
    on.click(Text4, Qt::LeftButton);
    EXPECT_EQ(log(), (std::vector<std::string>{"Text4 down"}));
}

TEST_F(PointerTest, theShiftStateGoesWithARightPress)
{
    int shift = 0;
    on.sheet().deeds[{Image1, Event::mouseDown}] = [&](host::EventArgs& args) { shift = args.shift; };
    on.click(Image1, Qt::RightButton, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(shift, 3);
}

TEST_F(PointerTest, aDoubleClickOnWhatKnowsNoneIsTwoClicks)
{
    log().clear();
    on.doubleClick(Image1);
    EXPECT_EQ(std::count(log().begin(), log().end(), "Image1 click"), 2);
}

TEST_F(PointerTest, thePointerIsAHandOverWhatCanBeClickedAndNothingDisabledAnswersIt)
{
    const desktop::Canvas& canvas = on.viewOf(on.sheet()).canvas();
    on.moveTo(Image14); // a move to where the pointer is already would be none
    on.moveTo(Image1);
    EXPECT_EQ(canvas.cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(canvas.view().hovered, Image1);
    on.engine.userRun([this] { on.sheet().disable(Image12); });
    on.moveTo(Image12);
    EXPECT_EQ(canvas.cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(canvas.view().hovered, host::noControl);
}

// A box or a tool comes between, and the pointer stands elsewhere on the sheet when it has gone.
TEST_F(PointerTest, thePointerIsNoHandAnyMoreWhenItHasLeft)
{
    desktop::Canvas& canvas = on.viewOf(on.sheet()).canvas();
    on.moveTo(Image14);
    on.moveTo(Image1);
    ASSERT_EQ(canvas.cursor().shape(), Qt::PointingHandCursor);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&canvas, &leave);
    EXPECT_EQ(canvas.cursor().shape(), Qt::ArrowCursor);
    on.moveTo(Image14);
    on.moveTo(Image1);
    EXPECT_EQ(canvas.cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(PointerTest, aButtonLooksPressedWhileTheMouseIsDown)
{
    const desktop::Canvas& canvas = on.viewOf(on.sheet()).canvas();
    QWindow* window = on.main().windowHandle();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, on.middleOf(on.sheet(), Image1));
    EXPECT_EQ(canvas.view().pressed, Image1);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, on.middleOf(on.sheet(), Image1));
    EXPECT_EQ(canvas.view().pressed, host::noControl);
}

TEST_F(PointerTest, aClickTellsTheShiftState)
{
    int shift = 0;
    on.sheet().deeds[{Image1, Event::mouseDown}] = [&](host::EventArgs& args) { shift = args.shift; };
    on.click(Image1, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(shift, 1);
    on.click(Image1, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(shift, 2);
}

TEST_F(PointerTest, aHandThatTremblesDragsNothingAndOneThatGoesOnLeavesWhatItPassed)
{
    QWindow* window = on.main().windowHandle();
    const QPoint start = on.middleOf(on.sheet(), Image14);
    log().clear();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(window, start + QPoint(2, 1));
    EXPECT_EQ(on.viewOf(on.sheet()).canvas().findChild<QLabel*>(), nullptr);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, start + QPoint(2, 1));
    on.settle();
    EXPECT_EQ(log().back(), "Image14 click");
    log().clear();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(window, on.middleOf(on.sheet(), Image1));
    QTest::mouseMove(window, on.middleOf(on.sheet(), Image12));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, on.middleOf(on.sheet(), Image12));
    on.settle();
    EXPECT_EQ(log(), (std::vector<std::string>{"Image1 leave", "Image12 drop"}));
}

TEST_F(PointerTest, aDoubleClickIsTwoPressesOnTheSameThing)
{
    log().clear();
    on.clickQuickly(Label1, Label1);
    EXPECT_EQ(log(), (std::vector<std::string>{"Label1 down", "Label1 click", "Label1 double"}));
    log().clear();
    on.clickQuickly(Label1, Image12);
    EXPECT_EQ(log(), (std::vector<std::string>{"Label1 down", "Label1 click", "Image12 down", "Image12 click"}));
}

TEST_F(PointerTest, aDragEndsInADropAndAShortPressIsAClick)
{
    log().clear();
    on.drag(Image14, Image12);
    EXPECT_EQ(log().back(), "Image12 drop");
    EXPECT_EQ(std::count(log().begin(), log().end(), "Image14 click"), 0);
    on.click(Image14);
    EXPECT_EQ(log().back(), "Image14 click");
    log().clear();
    on.drag(Image14, Text5);
    EXPECT_EQ(std::count(log().begin(), log().end(), "Image12 drop"), 0);
}

TEST_F(PointerTest, escapeGivesUpADrag)
{
    QTest::mousePress(on.main().windowHandle(), Qt::LeftButton, Qt::NoModifier, on.middleOf(on.sheet(), Image14));
    QTest::mouseMove(on.main().windowHandle(), on.middleOf(on.sheet(), Image12));
    on.settle();
    EXPECT_NE(on.viewOf(on.sheet()).canvas().findChild<QLabel*>(), nullptr) << "the drawing goes with the pointer";
    on.key(Qt::Key_Escape);
    log().clear();
    QTest::mouseRelease(on.main().windowHandle(), Qt::LeftButton, Qt::NoModifier, on.middleOf(on.sheet(), Image12));
    on.settle();
    EXPECT_TRUE(log().empty());
}

} // namespace velmor::test::pointer_test
