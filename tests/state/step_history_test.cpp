// SPDX-License-Identifier: MIT
// When a step of a sheet begins and ends, what it leaves alone, and how many are kept.
#include <gtest/gtest.h>

#include "console/whole_program.h"
#include "host/fixture.h"
#include "host/step_history.h"
#include "host/window_state.h"
#include "program_desk.h"
#include "sheets/design_sheet.h"

namespace velmor::step_history_test {

using host::Direction;
using host::Event;
using host::EventArgs;
using test::First;
using test::FixtureProgram;
using test::FixtureWindow;
using test::Second;
using test::Still;
using test::Third;

struct Steps : testing::Test {
    Steps() : sheet(program.newSheet()) { program.engine.userFocus(sheet, First); }
    bool undo() { return program.engine.userStep(Direction::back); }
    bool redo() { return program.engine.userStep(Direction::forth); }
    std::size_t behind() { return program.engine.stepsOf(sheet)->behind(); }
    void leave(host::Handle to) { program.engine.userFocus(sheet, to); }
    void type(host::Handle field, std::string_view text) { program.engine.userText(sheet, field, text); }

    FixtureProgram program;
    FixtureWindow& sheet;
};

TEST_F(Steps, BeginWithTheSheetAsItWasFirstShown)
{
    FixtureWindow& other = program.newSheet();
    EXPECT_EQ(program.engine.stepsOf(other)->behind(), 0u);
    EXPECT_FALSE(undo());
    EXPECT_FALSE(redo());
    EXPECT_EQ(program.engine.stepsOf(program.engine.mainWindow()), nullptr);
}

TEST_F(Steps, HoldTypingAndWhatLeavingTheFieldDid)
{
    sheet.on(First, Event::lostFocus, [this](EventArgs&) { sheet.setText(Third, "worked out"); });
    const std::size_t before = behind();
    type(First, "1");
    type(First, "12");
    leave(Second);
    EXPECT_EQ(behind(), before + 1);
    program.takeLog();
    EXPECT_TRUE(undo());
    EXPECT_EQ(sheet.text(First), "");
    EXPECT_EQ(sheet.text(Third), "");
    EXPECT_EQ(sheet.asked(First), "");
    EXPECT_EQ(sheet.focus(), First);
    EXPECT_TRUE(redo());
    EXPECT_EQ(sheet.text(First), "12");
    EXPECT_EQ(sheet.text(Third), "worked out");
    EXPECT_EQ(sheet.asked(First), "12");
    EXPECT_EQ(sheet.focus(), Second);
    EXPECT_FALSE(redo());
    EXPECT_TRUE(program.takeLog().empty()) << "a slot ran";
}

TEST_F(Steps, TypingThatWasNotLeftIsTakenBackByItself)
{
    type(First, "12");
    leave(Second);
    type(Second, "5");
    EXPECT_TRUE(undo());
    EXPECT_EQ(sheet.text(Second), "");
    EXPECT_EQ(sheet.focus(), Second);
    EXPECT_EQ(sheet.text(First), "12");
    EXPECT_TRUE(redo());
    EXPECT_EQ(sheet.text(Second), "5");
}

TEST_F(Steps, ABoxBelongsToTheStepThatRaisedIt)
{
    sheet.on(First, Event::key, [this](EventArgs&) {
        sheet.setText(First, "");
        program.engine.host().MsgBox("refused", 0, "");
        sheet.setText(Third, "after the box");
    });
    const std::size_t before = behind();
    type(First, "99");
    program.engine.userKey(sheet, 13);
    EXPECT_EQ(behind(), before + 1);
    EXPECT_TRUE(undo());
    EXPECT_EQ(sheet.text(Third), "");
}

TEST_F(Steps, AKeyAloneEndsNone)
{
    const std::size_t before = behind();
    sheet.on(First, Event::key, [this](EventArgs&) { sheet.setText(Still, "prompt"); });
    program.engine.userKey(sheet, '1');
    EXPECT_EQ(behind(), before);
}

TEST_F(Steps, AClickEndsOneAndOneThatChangesNothingNone)
{
    const std::size_t before = behind();
    program.engine.userClick(sheet, Still);
    EXPECT_EQ(behind(), before);
    sheet.on(Still, Event::click, [this](EventArgs&) { sheet.hide(Third); });
    program.engine.userClick(sheet, Still);
    EXPECT_EQ(behind(), before + 1);
    EXPECT_TRUE(undo());
    EXPECT_TRUE(sheet.visible(Third));
}

TEST_F(Steps, WhatThePointerCallsUpIsNoneAndGoesWithTheNext)
{
    sheet.on(Still, Event::hover, [this](EventArgs&) { sheet.setText(Still, "note"); });
    type(First, "12");
    leave(Second);
    const std::size_t before = behind();
    program.engine.userHover(sheet, Still);
    EXPECT_EQ(sheet.text(Still), "note");
    EXPECT_EQ(behind(), before);
    EXPECT_TRUE(undo());
    EXPECT_EQ(sheet.text(First), "");
    EXPECT_NE(sheet.text(Still), "note");
    program.engine.userHover(sheet, Still);
    EXPECT_TRUE(redo()) << "pointing at something is no change of the design";
    EXPECT_EQ(sheet.text(First), "12");
}

// Pointing at this sheet and working on in another one is no step of this one.
TEST_F(Steps, WorkOnAnotherSheetEndsNoneHere)
{
    sheet.on(Still, Event::hover, [this](EventArgs&) { sheet.setText(Still, "note"); });
    const std::size_t before = behind();
    program.engine.userHover(sheet, Still);
    FixtureWindow& other = program.newSheet();
    program.engine.userFocus(other, Second);
    program.engine.userText(other, Second, "7");
    program.engine.userFocus(other, Third);
    EXPECT_EQ(behind(), before);
    EXPECT_TRUE(undo());
    EXPECT_EQ(other.text(Second), "") << "the active sheet is the one that is led";
    EXPECT_EQ(sheet.text(Still), "note");
}

TEST_F(Steps, ASheetThatStartsOverWhenItIsTurnedToCanBeTakenBack)
{
    type(First, "12");
    leave(Second);
    program.newSheet();
    sheet.on(host::noControl, Event::activate, [this](EventArgs&) { sheet.setText(First, ""); });
    program.engine.userActivate(sheet);
    EXPECT_EQ(sheet.text(First), "");
    EXPECT_TRUE(undo());
    EXPECT_EQ(sheet.text(First), "12");
    EXPECT_EQ(sheet.focus(), Second);
}

TEST_F(Steps, ANewStepLeavesNothingToBeDoneAgain)
{
    type(First, "12");
    leave(Second);
    undo();
    type(First, "13");
    EXPECT_FALSE(redo());
    EXPECT_EQ(sheet.text(First), "13");
    leave(Second);
    EXPECT_FALSE(redo());
}

TEST_F(Steps, AreNotLedWhileAnEventIsUnderWayNorAfterTheEnd)
{
    type(First, "12");
    leave(Second);
    bool led = true;
    sheet.on(Still, Event::click, [&](EventArgs&) { led = undo(); });
    program.engine.userClick(sheet, Still);
    EXPECT_FALSE(led);
    program.engine.userRun([&] { program.engine.host().endProgram(); });
    EXPECT_FALSE(undo());
    EXPECT_FALSE(program.engine.canStep(Direction::back));
}

// A menu's slot asks; the step is led when the slot has ended.
TEST_F(Steps, CanBeAskedForInASlot)
{
    type(First, "12");
    leave(Second);
    sheet.on(Still, Event::click, [this](EventArgs&) {
        EXPECT_TRUE(program.engine.host().canStepBack());
        program.engine.host().StepBack();
        EXPECT_EQ(sheet.text(First), "12");
    });
    program.engine.userClick(sheet, Still);
    EXPECT_EQ(sheet.text(First), "");
    EXPECT_TRUE(program.engine.host().canStepForth());
}

TEST_F(Steps, AreKeptUpToTwoHundred)
{
    for (int i = 0; i < 300; ++i) {
        const host::Handle held = i % 2 == 0 ? First : Second;
        type(held, std::to_string(i));
        leave(i % 2 == 0 ? Second : First);
    }
    EXPECT_EQ(behind(), 200u);
    int led = 0;
    while (undo())
        ++led;
    EXPECT_EQ(led, 200);
    EXPECT_EQ(sheet.text(First), "98");
    EXPECT_EQ(sheet.text(Second), "99");
    while (redo())
        --led;
    EXPECT_EQ(led, 0);
    EXPECT_EQ(sheet.text(Second), "299");
}

TEST_F(Steps, TakeAMegabyteAtMost)
{
    for (int i = 0; i < 60; ++i) {
        type(i % 2 == 0 ? First : Second, std::string(40'000, static_cast<char>('a' + i % 26)));
        leave(i % 2 == 0 ? Second : First);
        EXPECT_LE(program.engine.stepsOf(sheet)->size(), host::StepHistory::mostBytes);
    }
    EXPECT_GT(behind(), 5u);
    EXPECT_LT(behind(), 60u);
    const std::size_t stood = program.engine.stepsOf(sheet)->size();
    undo();
    EXPECT_EQ(program.engine.stepsOf(sheet)->size(), stood);
}

TEST_F(Steps, BeginAnewInASheetThatIsOpenedFromACopy)
{
    type(First, "12");
    leave(Second);
    const host::WindowState state = *program.engine.stateOf(sheet);
    host::Window& copy = *program.engine.open({&state, 1}).front();
    EXPECT_EQ(program.engine.stepsOf(copy)->behind(), 0u);
    EXPECT_FALSE(undo());
    program.engine.userText(copy, Second, "5");
    program.engine.userFocus(copy, First);
    EXPECT_TRUE(undo());
    EXPECT_EQ(copy.text(Second), "");
    EXPECT_EQ(copy.text(First), "12");
}

TEST(StepsOfADesign, LeaveFileNameAndValuesAloneAndCountAsAChange)
{
    test::ProgramDesk desk;
    console::wholeProgram().newSheet(desk.engine, *desk.engine.specOf("Form2"));
    auto& sheet = dynamic_cast<sheets::DesignSheet&>(*desk.engine.instance("Form2", 0));
    const std::string first = desk.text(sheet, "Text1");
    desk.write(sheet, "Text1", "5");
    desk.engine.userKey(sheet, 13);
    desk.engine.userRun([&] {
        sheet.setNombreArchivo("a.RPC");
        sheet.setOperCancelo(host::trueValue);
        sheet.setModificado(0);
        desk.engine.values().TemperaturaCompartida = 60.0;
    });
    ASSERT_NE(sheet.focus(), sheet.named("Text1"));
    EXPECT_TRUE(desk.engine.userStep(Direction::back));
    EXPECT_EQ(sheet.focus(), sheet.named("Text1"));
    EXPECT_EQ(desk.text(sheet, "Text1"), first);
    EXPECT_EQ(sheet.NombreArchivo(), "a.RPC");
    EXPECT_EQ(sheet.OperCancelo(), host::trueValue);
    EXPECT_EQ(sheet.modificado(), host::trueValue);
    EXPECT_EQ(desk.engine.values().TemperaturaCompartida, 60.0);
}

TEST(StepsOfADesign, StandInTheMenuWhereUsersLook)
{
    test::ProgramDesk desk;
    console::wholeProgram().newSheet(desk.engine, *desk.engine.specOf("Form2"));
    host::Window& sheet = *desk.engine.instance("Form2", 0);
    host::Window& main = desk.engine.mainWindow();
    desk.engine.userMenuOpens(main, main.named("mnuEdicion"));
    EXPECT_FALSE(main.enabled(main.named("mnuDeshacer")));
    EXPECT_FALSE(main.enabled(main.named("mnuRehacer")));
    const std::string first = desk.text(sheet, "Text1");
    desk.write(sheet, "Text1", "5");
    desk.engine.userKey(sheet, 13);
    desk.click(main, "mnuDeshacer");
    EXPECT_EQ(desk.text(sheet, "Text1"), first);
    desk.engine.userMenuOpens(main, main.named("mnuEdicion"));
    EXPECT_TRUE(main.enabled(main.named("mnuRehacer")));
    desk.click(main, "mnuRehacer");
    EXPECT_EQ(desk.text(sheet, "Text1"), "5");
}

// Behind a box-like window nothing is led.
TEST(StepsOfADesign, WaitBehindAModalWindow)
{
    test::ProgramDesk desk;
    console::wholeProgram().newSheet(desk.engine, *desk.engine.specOf("Form2"));
    host::Window& sheet = *desk.engine.instance("Form2", 0);
    desk.write(sheet, "Text1", "5");
    desk.engine.userKey(sheet, 13);
    host::Window& modal = desk.show("frmAbout");
    ASSERT_TRUE(modal.spec().modal);
    EXPECT_FALSE(desk.engine.userStep(Direction::back));
    desk.engine.userClose(modal);
    EXPECT_TRUE(desk.engine.userStep(Direction::back));
}

} // namespace velmor::step_history_test
