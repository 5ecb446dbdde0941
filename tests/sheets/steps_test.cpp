// SPDX-License-Identifier: MIT
// The small steps of which slots are made, each on its own.
#include "sheets/design_sheet.h"

#include <gtest/gtest.h>

#include "host/failure.h"
#include "sheets/sheet_program.h"

namespace velmor::template_sheet {

namespace steps_test {

using host::EventArgs;
using sheets::Press;

constexpr sheets::Saying box{.text = {"uno", "one"}, .title = {"dos", "two"}, .flags = 36};

struct Steps : testing::Test {
    EventArgs key(std::int16_t code)
    {
        EventArgs args;
        args.control = Text1;
        args.key = code;
        return args;
    }
    std::string text(std::string_view written)
    {
        sheet.setText(Text1, written);
        return sheet.text(Text1);
    }

    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
};

TEST_F(Steps, AFilteredKeyLetsDigitsThroughAndMarksTheSheet)
{
    program.engine.values().DecimalSeparator = ",";
    EventArgs args = key('7');
    EXPECT_EQ(sheet.filteredKey(args), '7');
    EXPECT_EQ(args.key, '7');
    EXPECT_EQ(sheet.modificado(), -1);
    EXPECT_EQ(program.engine.values().DecimalSeparator, ".");
    EXPECT_EQ(program.screen.beeps, 0);
}

TEST_F(Steps, AFilteredLetterIsSwallowedWithABeepAndMarksTheSheetAllTheSame)
{
    EventArgs args = key('k');
    EXPECT_EQ(sheet.filteredKey(args), 0);
    EXPECT_EQ(args.key, 0);
    EXPECT_EQ(sheet.modificado(), -1);
    EXPECT_EQ(program.screen.beeps, 1);
}

TEST_F(Steps, EnterGoesOnWithTheBareNumber)
{
    sheet.setText(Text1, "12.50 V");
    EventArgs args = key(13);
    EXPECT_EQ(sheet.pressed(args), Press::enter);
    EXPECT_EQ(sheet.text(Text1), "12.5");
}

TEST_F(Steps, EnterInAnEmptyFieldSaysTheBoxAndAsksNothing)
{
    sheet.setText(Text1, "");
    EventArgs args = key(13);
    EXPECT_EQ(sheet.pressed(args), Press::nothing);
    ASSERT_EQ(program.screen.boxes.size(), 1u);
    EXPECT_EQ(program.screen.boxes[0].text, "Debe colocar una cifra...");
    EXPECT_EQ(sheet.text(Text1), "");
}

TEST_F(Steps, EscapeAsksForTheDefaultAlsoInAnEmptyField)
{
    sheet.setText(Text1, "");
    EventArgs args = key(27);
    EXPECT_EQ(sheet.pressed(args), Press::escape);
    EXPECT_TRUE(program.screen.boxes.empty());
}

TEST_F(Steps, AnyOtherKeyAsksNothing)
{
    for (const std::int16_t code : {std::int16_t{'1'}, std::int16_t{'z'}, std::int16_t{8}, std::int16_t{9}}) {
        EventArgs args = key(code);
        EXPECT_EQ(sheet.pressed(args), Press::nothing) << code;
    }
}

TEST_F(Steps, ANumberIsReadFromTheBeginningOfAText)
{
    EXPECT_EQ(text("10 mA"), "10 mA");
    EXPECT_EQ(sheet.at(Text1), 10.0);
    text("Res");
    EXPECT_EQ(sheet.at(Text1), 0.0);
}

TEST_F(Steps, AStrictNumberMakesItsFieldBareFirst)
{
    text("4.70 K");
    EXPECT_EQ(sheet.take(Text1), 4.7);
    EXPECT_EQ(sheet.text(Text1), "4.7");
    text("Res");
    EXPECT_EQ(sheet.take(Text1), 0.0);
    EXPECT_EQ(sheet.text(Text1), "0");
}

// 1/3 with fifteen digits, and with the four decimals of a result; 2/3 rounds up.
TEST_F(Steps, FieldsShowFifteenDigitsAndResultsFourDecimals)
{
    sheet.write(Text1, rules::Real(1) / 3.0);
    EXPECT_EQ(sheet.text(Text1), "0.333333333333333");
    EXPECT_EQ(sheet.digits(rules::Real(2) / 3.0), "0.666666666666667");
    EXPECT_EQ(sheet.shown(rules::Real(2) / 3.0), "0.6667");
    EXPECT_EQ(sheet.shown(3.0), "3");
}

TEST_F(Steps, NumbersAreWrittenWithTheSeparatorOfTheMoment)
{
    program.engine.values().DecimalSeparator = ",";
    sheet.write(Text1, 2.5);
    EXPECT_EQ(sheet.text(Text1), "2,5");
    EXPECT_EQ(sheet.shown(2.5), "2,5");
}

TEST_F(Steps, ARangeLeavesWhatLiesInItAsTyped)
{
    for (const std::string_view typed : {"3", "30", "12.50", "3 V"}) {
        text(typed);
        EXPECT_FALSE(sheet.correct(Text1, 3, 30, 12)) << typed;
        EXPECT_EQ(sheet.text(Text1), typed);
    }
}

TEST_F(Steps, ARangeCorrectsWhatLiesOutsideAndTheEmptyField)
{
    for (const std::string_view typed : {"2.999999", "30.000001", "", "Es", "-5"}) {
        text(typed);
        EXPECT_TRUE(sheet.correct(Text1, 3, 30, 12.5)) << typed;
        EXPECT_EQ(sheet.text(Text1), "12.5");
    }
}

TEST_F(Steps, ALowerLimitCorrectsBelowItAlone)
{
    text("0.1");
    EXPECT_FALSE(sheet.correctFrom(Text1, 0.1, 10));
    text("100000");
    EXPECT_FALSE(sheet.correctFrom(Text1, 0.1, 10));
    text("0.09999");
    EXPECT_TRUE(sheet.correctFrom(Text1, 0.1, 10));
    EXPECT_EQ(sheet.text(Text1), "10");
}

TEST_F(Steps, GoingToAFieldShowsAndEnablesItFirst)
{
    sheet.hide(Text4);
    program.run([&] { sheet.goTo(Text4); });
    EXPECT_TRUE(sheet.visible(Text4));
    EXPECT_TRUE(sheet.enabled(Text4));
    EXPECT_EQ(sheet.focus(), Text4);
}

TEST_F(Steps, ABoxSpeaksTheLanguageOfTheMomentAndReturnsItsAnswer)
{
    program.screen.answers = {host::Answer::yes, host::Answer::no};
    EXPECT_EQ(sheet.tell(box), 6);
    program.english(true);
    EXPECT_EQ(sheet.tell(box), 7);
    EXPECT_EQ(program.screen.boxes[0].title, "dos");
    EXPECT_EQ(program.screen.boxes[1].text, "one");
    EXPECT_EQ(program.screen.boxes[1].title, "two");
    EXPECT_EQ(program.screen.boxes[1].flags, 36);
}

TEST_F(Steps, TheBoxOfAnEmptyField)
{
    sheet.tell(sheets::placeANumber);
    program.english(true);
    sheet.tell(sheets::placeANumber);
    EXPECT_EQ(program.screen.boxes[0].text, "Debe colocar una cifra...");
    EXPECT_EQ(program.screen.boxes[1].text, " Place a number...");
    EXPECT_EQ(program.screen.boxes[1].title, "Error");
    EXPECT_EQ(program.screen.boxes[1].flags, 48);
}

TEST_F(Steps, ARightPressOnThePictureBringsBackTheBarThatWasChosen)
{
    EventArgs rightPress;
    rightPress.button = host::Button::right;
    program.check("mnuFija");
    program.run([&] { sheet.pressPicture(rightPress, {Image35, Image34}); });
    EXPECT_TRUE(program.shownOnMain("Picture14"));
    program.check("mnuFija", false);
    program.check("mnuFlotante");
    program.run([&] { sheet.pressPicture(rightPress, {Image35, Image34}); });
    EXPECT_FALSE(program.shownOnMain("Picture14"));
    EXPECT_TRUE(program.engine.defaultInstance("Form16")->shown());
}

} // namespace steps_test

} // namespace velmor::template_sheet
