// SPDX-License-Identifier: MIT
// The contract of the event engine, sentence by sentence, on the fixture program.
#include "host/fixture.h"

#include <gtest/gtest.h>

#include "host/failure.h"

namespace velmor::test {

using host::Event;
using host::EventArgs;
using host::Handle;
using host::noControl;
using Log = std::vector<std::string>;

class EngineContract : public testing::Test {
protected:
    void SetUp() override
    {
        sheet_ = &program.newSheet();
        program.takeLog();
    }
    void moveTo(Handle control) { program.engine.host().SetFocus(sheet(), control); }
    FixtureWindow& sheet() { return *sheet_; }

    FixtureProgram program;
    FixtureWindow* sheet_ = nullptr;
};

TEST(EngineFirstShow, RaisesLoadResizeRepaintActivationThenTheFirstFocus)
{
    FixtureProgram program;
    program.newSheet();
    EXPECT_EQ(program.takeLog(), (Log{"Sheet load", "Sheet resize", "Sheet repaint", "Sheet activate", "First focus"}));
}

TEST_F(EngineContract, AMoveRunsLostFocusOfTheOldFieldThenFocusOfTheNew)
{
    EXPECT_TRUE(program.engine.userFocus(sheet(), Third));
    EXPECT_EQ(program.takeLog(), (Log{"First lost", "Third focus"}));
    EXPECT_EQ(sheet().focus(), Third);
}

TEST_F(EngineContract, SetFocusOnTheFieldThatHasItDoesNothing)
{
    program.engine.userFocus(sheet(), First);
    EXPECT_TRUE(program.takeLog().empty());
}

TEST_F(EngineContract, SetFocusOnADisabledOrHiddenFieldDoesNothing)
{
    sheet().disable(Second);
    sheet().hide(Third);
    EXPECT_FALSE(program.engine.userFocus(sheet(), Second));
    EXPECT_FALSE(program.engine.userFocus(sheet(), Third));
    EXPECT_FALSE(program.engine.userFocus(sheet(), Words)); // labels never take it
    EXPECT_TRUE(program.takeLog().empty());
    EXPECT_EQ(sheet().focus(), First);
}

TEST_F(EngineContract, WhileALostFocusSlotRunsNoFieldHasTheFocus)
{
    Handle seen = First;
    sheet().on(First, Event::lostFocus, [&](EventArgs&) { seen = sheet().focus(); });
    program.engine.userFocus(sheet(), Second);
    EXPECT_EQ(seen, noControl);
}

TEST_F(EngineContract, AMoveInsideALostFocusSlotSupersedesTheOuterOne)
{
    sheet().on(First, Event::lostFocus, [&](EventArgs&) { moveTo(Third); });
    program.engine.userFocus(sheet(), Second);
    EXPECT_EQ(program.takeLog(), (Log{"First lost", "Third focus"}));
    EXPECT_EQ(sheet().focus(), Third);
}

TEST_F(EngineContract, AMoveBackToTheFieldBeingLeftAlsoSupersedes)
{
    sheet().on(First, Event::lostFocus, [&](EventArgs&) { moveTo(First); });
    program.engine.userFocus(sheet(), Second);
    EXPECT_EQ(program.takeLog(), (Log{"First lost", "First focus"}));
    EXPECT_EQ(sheet().focus(), First);
}

TEST_F(EngineContract, StatementsAfterASupersededMoveRunAsWritten)
{
    sheet().on(First, Event::lostFocus, [&](EventArgs&) { moveTo(Third); });
    sheet().on(First, Event::key, [&](EventArgs&) {
        moveTo(Second);
        sheet().setText(Words, "after");
    });
    program.engine.userKey(sheet(), 13);
    EXPECT_EQ(sheet().text(Words), "after");
    EXPECT_EQ(sheet().focus(), Third);
}

TEST_F(EngineContract, MovesNestInsideFocusSlots)
{
    sheet().on(Second, Event::focus, [&](EventArgs&) { moveTo(Third); });
    program.engine.userFocus(sheet(), Second);
    EXPECT_EQ(program.takeLog(), (Log{"First lost", "Second focus", "Second lost", "Third focus"}));
}

TEST_F(EngineContract, ATargetThatTheLostFocusSlotHasHiddenStillReceivesTheFocusAndLosesItAtTheEnd)
{
    sheet().on(First, Event::lostFocus, [&](EventArgs&) { sheet().hide(Second); });
    program.engine.userFocus(sheet(), Second);
    EXPECT_EQ(program.takeLog(), (Log{"First lost", "Second focus", "Second lost", "Third focus"}));
}

TEST_F(EngineContract, ADisabledFocusedFieldKeepsTheFocusUntilTheOutermostSlotHasEnded)
{
    Handle during = noControl;
    sheet().on(First, Event::key, [&](EventArgs&) {
        sheet().disable(First);
        during = sheet().focus();
    });
    program.engine.userKey(sheet(), 'x');
    EXPECT_EQ(during, First);
    EXPECT_EQ(sheet().focus(), Second);
    EXPECT_EQ(program.takeLog(), (Log{"First key", "First lost", "Second focus"}));
}

TEST_F(EngineContract, AFieldDisabledAndEnabledAgainWithinTheSlotKeepsTheFocus)
{
    sheet().on(First, Event::key, [&](EventArgs&) {
        sheet().disable(First);
        sheet().enable(First);
    });
    program.engine.userKey(sheet(), 'x');
    EXPECT_EQ(sheet().focus(), First);
}

TEST_F(EngineContract, TheFocusGoesToNoneOnASheetWhereNothingCanTakeIt)
{
    sheet().on(First, Event::key, [&](EventArgs&) { sheet().disable(First, Second, Third, Press, Photo); });
    program.engine.userKey(sheet(), 'x');
    EXPECT_EQ(sheet().focus(), noControl);
}

TEST_F(EngineContract, TheTabOrderIsTheChainAndThenTheRestAndSkipsWhatCannotTakeTheFocus)
{
    sheet().disable(Second);
    program.engine.userTab(sheet());
    EXPECT_EQ(sheet().focus(), Third);
    program.engine.userTab(sheet());
    EXPECT_EQ(sheet().focus(), Press);
    program.engine.userTab(sheet());
    program.engine.userTab(sheet());
    EXPECT_EQ(sheet().focus(), First);
    program.engine.userTab(sheet(), true);
    EXPECT_EQ(sheet().focus(), Photo);
}

TEST_F(EngineContract, AClickMovesTheFocusAndThenRunsDownUpAndClick)
{
    program.engine.userClick(sheet(), Second);
    EXPECT_EQ(program.takeLog(), (Log{"First lost", "Second focus", "Second down", "Second up", "Second click"}));
}

TEST_F(EngineContract, AClickOnADisabledOrHiddenControlDoesNothing)
{
    sheet().disable(Second);
    sheet().hide(Still);
    program.engine.userClick(sheet(), Second);
    program.engine.userClick(sheet(), Still);
    EXPECT_TRUE(program.takeLog().empty());
}

TEST_F(EngineContract, AClickOnAFieldOrButtonEndsWhereTheOldFieldSentTheFocus)
{
    sheet().on(First, Event::lostFocus, [&](EventArgs&) { moveTo(First); });
    program.engine.userClick(sheet(), Second);
    program.engine.userClick(sheet(), Press);
    EXPECT_EQ(program.takeLog(), (Log{"First lost", "First focus", "First lost", "First focus"}));
}

TEST_F(EngineContract, AClickOnAPictureRunsItsSlotsAllTheSameAlsoWhenTheLostFocusSlotHidesIt)
{
    sheet().on(First, Event::lostFocus, [&](EventArgs&) {
        sheet().hide(Photo);
        moveTo(First);
    });
    program.engine.userClick(sheet(), Photo);
    EXPECT_EQ(program.takeLog(), (Log{"First lost", "First focus", "Photo down", "Photo up", "Photo click"}));
}

TEST_F(EngineContract, AClickOnAnImageOrLabelLeavesTheFocusAlone)
{
    program.engine.userClick(sheet(), Still);
    program.engine.userClick(sheet(), Words);
    EXPECT_EQ(program.takeLog(),
              (Log{"Still down", "Still up", "Still click", "Words down", "Words up", "Words click"}));
    EXPECT_EQ(sheet().focus(), First);
}

TEST_F(EngineContract, HoverAndRightPressWorkOnAVisibleFieldThatIsDisabledButNotOnAHiddenOne)
{
    sheet().disable(Second);
    sheet().hide(Third);
    sheet().disable(Still);
    program.engine.userHover(sheet(), Second);
    program.engine.userPress(sheet(), Second, host::Button::right);
    program.engine.userPress(sheet(), Second, host::Button::left);
    program.engine.userHover(sheet(), Third);
    program.engine.userHover(sheet(), Still);
    EXPECT_EQ(program.takeLog(), (Log{"Second hover", "Second down"}));
    EXPECT_EQ(sheet().focus(), First);
}

TEST_F(EngineContract, ALeftPressMovesTheFocusAndRunsTheDownSlotAlone)
{
    program.engine.userPress(sheet(), Second, host::Button::left);
    EXPECT_EQ(program.takeLog(), (Log{"First lost", "Second focus", "Second down"}));
}

TEST_F(EngineContract, AKeyThatTheSlotReplacesByZeroIsSwallowed)
{
    sheet().on(First, Event::key, [](EventArgs& args) { args.key = args.key == 'x' ? std::int16_t{0} : args.key; });
    EXPECT_EQ(program.engine.userKey(sheet(), 'x'), 0);
    EXPECT_EQ(program.engine.userKey(sheet(), '7'), '7');
}

TEST_F(EngineContract, AKeyWhoseSlotMovesTheFocusPutsNothingIntoEitherField)
{
    sheet().on(First, Event::key, [&](EventArgs&) { moveTo(Second); });
    EXPECT_EQ(program.engine.userKey(sheet(), '7'), 0);
}

TEST_F(EngineContract, ChangingWindowsRunsNoFocusSlots)
{
    program.newSheet();
    program.takeLog();
    program.engine.userActivate(sheet());
    EXPECT_EQ(program.takeLog(), (Log{"Sheet activate"}));
    EXPECT_EQ(sheet().focus(), First);
}

TEST_F(EngineContract, ComingBackFromAToolIsNoActivation)
{
    program.engine.userRun([&] { program.engine.host().Show("Tool"); });
    program.takeLog();
    program.engine.userActivate(sheet());
    EXPECT_EQ(program.takeLog(), (Log{"Sheet back"}));
}

TEST_F(EngineContract, ShowingThePaletteNeverActivatesIt)
{
    program.engine.userRun([&] { program.engine.host().Show("Palette"); });
    EXPECT_EQ(program.engine.current(), &sheet());
    for (const std::string& line : program.takeLog())
        EXPECT_NE(line, "Palette activate");
}

TEST_F(EngineContract, AWindowUnloadedInItsOwnSlotIsGoneAtOnceAndItsSlotRunsToItsEnd)
{
    bool loadedAfter = true;
    std::string after;
    sheet().on(First, Event::key, [&](EventArgs&) {
        program.engine.host().Unload(sheet());
        loadedAfter = program.engine.isLoaded(&sheet());
        after = sheet().text(First) + "ran";
    });
    program.engine.userKey(sheet(), 'x');
    EXPECT_FALSE(loadedAfter);
    EXPECT_EQ(after, "ran");
    EXPECT_EQ(program.screen.gone, (Log{"Sheet"}));
}

TEST_F(EngineContract, ARefusedCloseLeavesTheWindowLoaded)
{
    sheet().on(noControl, Event::queryClose, [](EventArgs& args) { args.cancel = true; });
    program.engine.userClose(sheet());
    EXPECT_TRUE(program.engine.isLoaded(&sheet()));
}

TEST_F(EngineContract, CancelInOneSheetsQuestionDropsTheWholeExit)
{
    FixtureWindow& second = program.newSheet();
    second.on(noControl, Event::queryClose, [](EventArgs& args) { args.cancel = true; });
    program.takeLog();
    program.engine.userClose(program.engine.mainWindow());
    EXPECT_EQ(program.takeLog(), (Log{"Main ask", "Sheet ask", "Sheet ask"}));
    EXPECT_FALSE(program.engine.ended());
    EXPECT_TRUE(program.engine.isLoaded(&sheet()));
}

TEST_F(EngineContract, AUserEventDuringASlotWaitsForItsEnd)
{
    sheet().on(First, Event::key, [&](EventArgs&) {
        program.engine.host().MsgBox("stop", 0, "");
        FixtureWindow::log.push_back("after the box");
    });
    program.screen.duringBox = [&] { program.engine.userClick(sheet(), Still); };
    program.engine.userKey(sheet(), 'x');
    EXPECT_EQ(program.takeLog(), (Log{"First key", "after the box", "Still down", "Still up", "Still click"}));
}

TEST_F(EngineContract, AFailureEndsTheProgramWithAMessageAndNothingRunsAfterIt)
{
    sheet().on(First, Event::key, [](EventArgs&) { throw host::ProgramFailure(host::FailureKind::divisionByZero); });
    program.engine.userKey(sheet(), 'x');
    EXPECT_TRUE(program.engine.ended());
    ASSERT_EQ(program.screen.failures.size(), 1U);
    program.takeLog();
    program.engine.userClick(sheet(), Still);
    EXPECT_TRUE(program.takeLog().empty());
}

TEST_F(EngineContract, OpeningSlotsOfMenusOnTheWayRunFirstAndADisabledItemDoesNothing)
{
    program.engine.userMenu(sheet(), Item);
    EXPECT_EQ(program.takeLog(), (Log{"ItemMenu opens", "Item(1) click"}));
    sheet().disable(Item);
    program.engine.userMenu(sheet(), Item);
    EXPECT_EQ(program.takeLog(), (Log{"ItemMenu opens"}));
}

TEST_F(EngineContract, ArrangingRaisesResizeAndRepaintOnceOnEachChildWhoseSizeChangesInOrderOfCreation)
{
    program.newSheet();
    program.takeLog();
    program.engine.userRun([&] { program.engine.host().Arrange(2); });
    EXPECT_EQ(program.takeLog(), (Log{"Sheet resize", "Sheet repaint", "Sheet resize", "Sheet repaint"}));
    program.engine.userRun([&] { program.engine.host().Arrange(2); });
    EXPECT_TRUE(program.takeLog().empty());
}

TEST_F(EngineContract, MinimisingRaisesResizeAloneAndEveryOtherStateRepaintsToo)
{
    const Log both{"Sheet resize", "Sheet repaint"};
    program.engine.userState(sheet(), 1);
    EXPECT_EQ(program.takeLog(), (Log{"Sheet resize"}));
    program.engine.userState(sheet(), 1);
    EXPECT_TRUE(program.takeLog().empty());
    program.engine.userState(sheet(), 0);
    EXPECT_EQ(program.takeLog(), both);
    program.engine.userState(sheet(), 2);
    EXPECT_EQ(program.takeLog(), both);
    program.engine.userState(sheet(), 1);
    EXPECT_EQ(program.takeLog(), (Log{"Sheet resize"}));
    program.engine.userState(sheet(), 2);
    EXPECT_EQ(program.takeLog(), both);
}

TEST_F(EngineContract, MinimisingTheMainWindowRaisesResizeAloneToo)
{
    program.engine.userRun([&] { program.engine.host().Show(program.engine.mainWindow()); });
    program.takeLog();
    program.engine.userState(program.engine.mainWindow(), 1);
    EXPECT_EQ(program.takeLog(), (Log{"Main resize"}));
}

TEST_F(EngineContract, ANewChildIsShownMaximisedWhenTheActiveOneIs)
{
    program.engine.userState(sheet(), 2);
    program.takeLog();
    FixtureWindow& second = program.newSheet();
    EXPECT_EQ(second.windowState(), 2);
    EXPECT_EQ(second.place(), program.engine.clientArea());
    EXPECT_EQ(program.takeLog(), (Log{"Sheet load", "Sheet resize", "Sheet repaint", "Sheet activate", "First focus"}))
        << "its first resize and repaint serve for that, too";
    program.engine.userState(second, 0);
    const host::Place& normal = second.place();
    EXPECT_EQ(normal.left, normal.top);
    EXPECT_GT(normal.left, 0) << "a step of the cascade";
    EXPECT_EQ(normal.width, program.engine.clientArea().width - normal.left);
}

TEST_F(EngineContract, ANewChildIsShownNormalWhenTheActiveOneIsNotMaximised)
{
    FixtureWindow& first = static_cast<FixtureWindow&>(sheet());
    program.engine.userState(first, 2);
    FixtureWindow& second = program.newSheet();
    program.engine.userState(second, 0);
    EXPECT_EQ(program.newSheet().windowState(), 0) << "a maximised one that is not the active child does not count";
    program.engine.userActivate(first);
    program.engine.userState(first, 1);
    EXPECT_EQ(program.newSheet().windowState(), 0);
}

TEST_F(EngineContract, AToolIsNeverMaximisedForAChildAndAChildShownAgainKeepsItsState)
{
    FixtureWindow& first = static_cast<FixtureWindow&>(sheet());
    FixtureWindow& second = program.newSheet();
    program.engine.userRun([&] { program.engine.host().Hide(second); });
    program.engine.userState(first, 2);
    program.engine.userRun([&] { program.engine.host().Show(second); });
    EXPECT_EQ(second.windowState(), 0);
    program.engine.userActivate(first);
    program.engine.userRun([&] { program.engine.host().Show("Tool"); });
    EXPECT_EQ(program.engine.defaultInstance("Tool")->windowState(), 0);
}

TEST_F(EngineContract, NamesAreFoundWithoutRegardToCapitals)
{
    EXPECT_EQ(sheet().named("ITEM(1)"), Item);
    EXPECT_EQ(sheet().named("first"), First);
    EXPECT_EQ(sheet().named("none"), noControl);
    EXPECT_NE(program.engine.specOf("sHEET"), nullptr);
}

TEST_F(EngineContract, AProgramChangeOfATextRaisesNoEvent)
{
    sheet().setText(First, "12");
    EXPECT_TRUE(program.takeLog().empty());
}

TEST_F(EngineContract, AWindowThatIsNotLoadedIsNotLoadedByAStatementThatTouchesIt)
{
    program.engine.host().setText("Tool", "Words", "x");
    EXPECT_EQ(program.engine.host().find("Tool"), nullptr);
    EXPECT_EQ(program.engine.host().Show("Unknown"), nullptr);
}

TEST(MessageBoxFlags, TellButtonsIconAndWhatEscapeAnswers)
{
    struct Row {
        int flags;
        host::BoxButtons buttons;
        host::BoxIcon icon;
        host::Answer escape;
        bool second;
    };
    using host::Answer, host::BoxButtons, host::BoxIcon;
    const Row rows[] = {
        {0, BoxButtons::ok, BoxIcon::none, Answer::ok, false},
        {10, BoxButtons::ok, BoxIcon::none, Answer::ok, false},
        {16, BoxButtons::ok, BoxIcon::stop, Answer::ok, false},
        {20, BoxButtons::yesNo, BoxIcon::stop, Answer::no, false},
        {33, BoxButtons::okCancel, BoxIcon::question, Answer::cancel, false},
        {35, BoxButtons::yesNoCancel, BoxIcon::question, Answer::cancel, false},
        {36, BoxButtons::yesNo, BoxIcon::question, Answer::no, false},
        {48, BoxButtons::ok, BoxIcon::warning, Answer::ok, false},
        {65, BoxButtons::okCancel, BoxIcon::information, Answer::cancel, false},
        {67, BoxButtons::yesNoCancel, BoxIcon::information, Answer::cancel, false},
        {68, BoxButtons::yesNo, BoxIcon::information, Answer::no, false},
        {289, BoxButtons::okCancel, BoxIcon::question, Answer::cancel, true},
        {308, BoxButtons::yesNo, BoxIcon::warning, Answer::no, true},
    };
    for (const Row& row : rows) {
        const host::MessageBox box{"", "", row.flags};
        EXPECT_EQ(box.buttons(), row.buttons) << row.flags;
        EXPECT_EQ(box.icon(), row.icon) << row.flags;
        EXPECT_EQ(box.escape(), row.escape) << row.flags;
        EXPECT_EQ(box.secondIsDefault(), row.second) << row.flags;
    }
}

} // namespace velmor::test
