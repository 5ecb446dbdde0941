// SPDX-License-Identifier: MIT
// What a field held when the student left it, whatever the slots of the leaving make of it.
#include <gtest/gtest.h>

#include "host/fixture.h"

namespace velmor::asked_test {

using host::Event;
using host::EventArgs;
using test::First;
using test::FixtureProgram;
using test::FixtureWindow;
using test::Second;
using test::Third;

struct Asked : testing::Test {
    FixtureProgram program;
    FixtureWindow& sheet = program.newSheet();
    host::Engine& engine = program.engine;

    Asked()
    {
        engine.userFocus(sheet, First);
        sheet.on(First, Event::lostFocus, [this](EventArgs&) { sheet.setText(First, "rewritten"); });
    }
};

TEST_F(Asked, IsEmptyUntilAFieldIsLeft)
{
    engine.userText(sheet, First, "12");
    EXPECT_EQ(sheet.asked(First), "");
}

TEST_F(Asked, IsTheTextBeforeTheLostFocusSlotByKeyboardTabAndClick)
{
    engine.userText(sheet, First, "12");
    engine.userFocus(sheet, Second);
    EXPECT_EQ(sheet.text(First), "rewritten");
    EXPECT_EQ(sheet.asked(First), "12");
    engine.userFocus(sheet, First);
    engine.userText(sheet, First, "13");
    engine.userTab(sheet);
    EXPECT_EQ(sheet.asked(First), "13");
    engine.userClick(sheet, First);
    engine.userText(sheet, First, "14");
    engine.userClick(sheet, Second);
    EXPECT_EQ(sheet.asked(First), "14");
}

TEST_F(Asked, WithEnterIsTheTextBeforeTheKeySlotRewritesIt)
{
    sheet.on(First, Event::key, [this](EventArgs&) {
        sheet.setText(First, "bare");
        engine.host().SetFocus(sheet, Second);
    });
    engine.userText(sheet, First, "12 V");
    engine.userKey(sheet, 13);
    EXPECT_EQ(sheet.asked(First), "12 V");
}

TEST_F(Asked, WithEscIsTheDefaultThatTheKeySlotHasWritten)
{
    sheet.on(First, Event::key, [this](EventArgs&) {
        sheet.setText(First, "75");
        engine.host().SetFocus(sheet, Second);
    });
    engine.userText(sheet, First, "12");
    engine.userKey(sheet, 27);
    EXPECT_EQ(sheet.asked(First), "75");
}

TEST_F(Asked, SaysNothingOfAFieldThatTheProgramPassesThrough)
{
    sheet.on(Second, Event::focus, [this](EventArgs&) {
        sheet.setText(Second, "proposed");
        engine.host().SetFocus(sheet, Third);
    });
    engine.userText(sheet, First, "12");
    engine.userFocus(sheet, Second);
    EXPECT_EQ(sheet.focus(), Third);
    EXPECT_EQ(sheet.asked(First), "12");
    EXPECT_EQ(sheet.asked(Second), "");
}

// The way back into the field and out again within one event is the sheet's, not the student's.
TEST_F(Asked, IsTakenOnceInAnEvent)
{
    sheet.on(First, Event::lostFocus, [this](EventArgs&) {
        if (sheet.text(First) != "corrected") {
            sheet.setText(First, "corrected");
            engine.host().SetFocus(sheet, First);
            engine.host().SetFocus(sheet, Third);
        }
    });
    engine.userText(sheet, First, "1");
    engine.userFocus(sheet, Second);
    EXPECT_EQ(sheet.focus(), Third);
    EXPECT_EQ(sheet.asked(First), "1");
}

TEST_F(Asked, IsLeftAloneByMovesOfTheProgramAndByWhatTheSheetWritesLater)
{
    engine.userText(sheet, First, "12");
    engine.userFocus(sheet, Second);
    engine.userFocus(sheet, First);
    engine.userRun([this] {
        sheet.setText(First, "5");
        engine.host().SetFocus(sheet, Second);
    });
    EXPECT_EQ(sheet.focus(), Second);
    EXPECT_EQ(sheet.asked(First), "12");
}

TEST_F(Asked, IsTakenWhenASlotTakesTheFieldAwayUnderTheStudent)
{
    sheet.on(test::Still, Event::click, [this](EventArgs&) { sheet.disable(First); });
    engine.userText(sheet, First, "12");
    engine.userClick(sheet, test::Still);
    EXPECT_NE(sheet.focus(), First);
    EXPECT_EQ(sheet.asked(First), "12");
}

} // namespace velmor::asked_test
