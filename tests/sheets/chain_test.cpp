// SPDX-License-Identifier: MIT
// What the frame does for a field that has only a row: focus, Enter, Esc, leaving, pointing, help; and the drawing that grows.
#include <gtest/gtest.h>

#include "sheets/sheet_program.h"

namespace velmor::template_sheet {

namespace chain_test {

TEST(AFieldWithARow, GoesOnAtEnterAndAtEscWithItsDefault)
{
    EXPECT_EQ(faultsOf(R"(new TemplateSheet
fill Text1 9
enter
expect-focus Text2
expect Text1.text 9
fill Text2 80
esc
expect Text2.text 75
expect-focus Text3
esc
expect Text3.text "10 mA"
expect-focus Text4
)"),
              "");
}

TEST(AFieldWithARow, DoesNothingAtEscWhenTheRowNamesNoDefault)
{
    EXPECT_EQ(faultsOf(R"(new TemplateSheet
esc
esc
esc
expect-focus Text4
esc
expect-focus Text4
expect Text4.text "6 V"
)"),
              "");
}

TEST(AFieldWithARow, SaysItsNoteUnderThePointerAndThePromptOfTheFocusInTheVoice)
{
    EXPECT_EQ(faultsOf(R"(new TemplateSheet
expect status1.visible false
hover Text4
expect status1.visible true
expect status1.caption "Eq, tensión del transistor"
expect SSPanel1.caption "La mitad de Es permite la mayor señal."
hover .
expect status1.visible false
)"),
              "");
}

TEST(AFieldWithAPage, ShowsItAtARightPressAndIsMarkedByItsTag)
{
    EXPECT_EQ(faultsOf(R"(new TemplateSheet
expect Text1.tag 1
press Text3 right
expect-in Form21 ..caption " Ayuda"
expect-in Form21 SSCommand1.caption " Es..."
expect-in TemplateSheet Text3.tag 1
window TemplateSheet
enter
enter
expect Text1.tag 0
expect Text2.tag 0
expect Text3.tag 1
press Text3 right
expect-in Form21 SSCommand1.caption " QIc..."
expect-in Form21 Text22.text "QIc es la corriente de reposo.\n\nRL = (Es - Eq) / QIc"
expect-in Form21 Text22.visible true
expect-in Form21 Text23.visible false
)"),
              "");
}

TEST(AFieldWithAPage, ShowsItInEnglish)
{
    EXPECT_EQ(faultsOf(R"(language english
new TemplateSheet
press Text1 right
expect-in Form21 ..caption " Help"
expect-in Form21 Text23.text "Es is the voltage of the supply.\n\nFrom 3 to 30 Volts is accepted."
expect-in Form21 Text23.visible true
expect-in Form21 Text22.visible false
)"),
              "");
}

TEST(AFieldWithoutAPage, AnswersNoRightPress)
{
    EXPECT_EQ(faultsOf(R"(new TemplateSheet
press Text4 right
expect-window Form21 0
expect Text4.tag 0
)"),
              "");
}

TEST(TheDrawing, GrowsWithTheFieldAndHasTheLampOnlyInItsCircuit)
{
    EXPECT_EQ(faultsOf(R"(new TemplateSheet
esc
esc
esc
enter
expect-focus Text5
expect Line1.visible true
expect Line2.visible true
expect Line3.visible false
expect Text5.text 0.6
click Picture6
expect-focus Text1
expect SSPanel1.caption "Coloque la tensión de alimentación, de 3 a 30 Volts."
enter
enter
enter
enter
expect Line3.visible true
expect Text5.text 0.4
click Picture1
expect Line3.visible false
)"),
              "");
}

TEST(TheDrawing, IsPaleUntilAFieldBringsItsPartAndItsValuesWithIt)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    using host::Tone;
    using host::toneOf;
    EXPECT_EQ(toneOf(sheet, Line2), Tone::pale);
    EXPECT_EQ(toneOf(sheet, RL), Tone::pale);
    EXPECT_EQ(toneOf(sheet, Line3), Tone::away) << "of another circuit";
    EXPECT_EQ(toneOf(sheet, Text1), Tone::ink);
    EXPECT_EQ(toneOf(sheet, status1), Tone::away) << "hidden, and no part";
    sheet.show(Picture1);
    EXPECT_EQ(toneOf(sheet, Line3), Tone::pale);
    sheet.grow(Text5);
    for (const host::Handle part : {host::Handle{Line2}, host::Handle{Line3}, host::Handle{RL}})
        EXPECT_EQ(toneOf(sheet, part), Tone::ink);
    sheet.clearDrawing();
    EXPECT_EQ(toneOf(sheet, Line2), Tone::pale);
    EXPECT_EQ(toneOf(sheet, RL), Tone::pale) << "a value goes back with its part";
    sheet.hide(RL);
    EXPECT_EQ(toneOf(sheet, RL), Tone::away) << "a hidden value is not there, pale part or not";
}

TEST(TheDrawing, OfACircuitFromAFileIsWhole)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.run([&] { sheet.growWhole(); });
    EXPECT_TRUE(sheet.visible(Line1) && sheet.visible(Line2));
    EXPECT_FALSE(sheet.visible(Line3));
}

// The key of a pair is played on the image that is seen.
TEST(AToolKey, ReachesBothDrawingsOfAPair)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    const auto play = [&](std::string_view keys) {
        for (std::size_t row = 0; row < sheet.spec().shortcuts.size(); ++row)
            if (sheet.spec().shortcuts[row].keys == keys)
                program.engine.userShortcut(sheet, row);
    };
    play(sheets::helpKey);
    EXPECT_TRUE(sheet.visible(Text22));
    EXPECT_TRUE(sheet.visible(Image34));
    play(sheets::helpKey);
    EXPECT_FALSE(sheet.visible(Text22));
    EXPECT_TRUE(sheet.visible(Image35));
    play(sheets::cloneKey);
    play(sheets::cloneKey);
    EXPECT_EQ(program.sheetsOpen(), 3);
    EXPECT_TRUE(sheet.visible(Image5));
}

TEST(ADesign, HasPassedWhenItsLastStepEnded)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    for (int key = 0; key < 5; ++key) {
        EXPECT_FALSE(sheet.quantities().passed);
        program.press(sheet, 13);
        if (sheet.focus() == Text3)
            program.engine.userText(sheet, Text3, "10");
    }
    EXPECT_TRUE(sheet.quantities().passed);
    program.engine.userFocus(sheet, Text1);
    EXPECT_FALSE(sheet.quantities().passed);
}

} // namespace chain_test

} // namespace velmor::template_sheet
