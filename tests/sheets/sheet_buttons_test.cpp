// SPDX-License-Identifier: MIT
// The buttons that all sheets have: clone, calculator, guide and report, under every mark of the arrangement.
#include <gtest/gtest.h>

#include "sheets/sheet_program.h"

namespace velmor::template_sheet {

namespace sheet_buttons_test {

using host::Answer;

constexpr std::string_view marks[] = {"mnuCas", "mnuHoriz", "mnuVert"};

/// How the child windows were arranged since the start of the trace.
std::vector<std::string> arrangements(const SheetProgram& program)
{
    std::vector<std::string> found;
    for (const std::string& line : program.trace)
        if (line.starts_with("arrange "))
            found.push_back(line);
    return found;
}

host::Window* editor(SheetProgram& program, std::string_view name)
{
    return program.engine.instance(name, 0);
}

std::string textOf(host::Window& editor)
{
    return editor.wholeText(editor.named("txtEdit"));
}

// --- clone

TEST(CloneButton, OpensABlankSheetWithTheOtherDrawingBesideThisOne)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.press(sheet, '5');
    program.engine.userClick(sheet, Image5);
    ASSERT_EQ(program.sheetsOpen(), 2);
    const host::Window& clone = *program.engine.instance("TemplateSheet", 2);
    EXPECT_EQ(clone.caption(), "  Resistor de carga");
    EXPECT_EQ(clone.text(Text1), "12");
    EXPECT_TRUE(sheet.visible(Image4));
    EXPECT_FALSE(sheet.visible(Image5));
    EXPECT_TRUE(clone.visible(Image4));
    EXPECT_FALSE(clone.visible(Image5));
    EXPECT_EQ(program.engine.activeChild(), &clone);
}

TEST(CloneButton, ClickedTwiceOpensTwoAndShowsTheFirstDrawingAgain)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.engine.userClick(sheet, Image5);
    program.engine.userClick(sheet, Image4);
    ASSERT_EQ(program.sheetsOpen(), 3);
    EXPECT_TRUE(sheet.visible(Image5));
    EXPECT_FALSE(sheet.visible(Image4));
    const host::Window& third = *program.engine.instance("TemplateSheet", 3);
    EXPECT_TRUE(third.visible(Image5)); // made by the second drawing: starts as every sheet
    EXPECT_FALSE(third.visible(Image4));
}

TEST(CloneButton, TheTitleIsInTheLanguageOfTheMoment)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.english(true);
    program.engine.userClick(sheet, Image5);
    EXPECT_EQ(program.engine.instance("TemplateSheet", 2)->caption(), "  Load resistor");
    EXPECT_EQ(sheet.caption(), "  Resistor de carga");
}

// --- guide

TEST(GuideButton, ReappliesTheMarkedArrangementAndMarksTheCascadeWhenNoneIs)
{
    for (int marked = -1; marked < 3; ++marked) {
        SheetProgram program;
        TemplateSheet& sheet = program.newSheet();
        for (int i = 0; i < 3; ++i)
            program.check(marks[i], i == marked);
        program.trace.clear();
        program.engine.userClick(sheet, SSCommand1);
        EXPECT_EQ(arrangements(program), std::vector{"arrange " + std::to_string(std::max(marked, 0))}) << marked;
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(program.checked(marks[i]), i == std::max(marked, 0)) << marked;
    }
}

TEST(GuideButton, OpensANewEditorOfTheLanguageOnTheGuideOfTheLanguage)
{
    for (const bool english : {false, true}) {
        SheetProgram program;
        program.english(english);
        TemplateSheet& sheet = program.newSheet();
        const std::string guideName = english ? "Feedback current.Lab" : "guia1.Lab";
        std::filesystem::create_directory(program.folder / "Archivos");
        program.folder.put(guideName, "the guide\r\n");
        program.folder.put("Archivos/" + guideName, "the guide\r\n");
        program.engine.userClick(sheet, SSCommand1);
        program.engine.userActivate(sheet);
        program.engine.userClick(sheet, SSCommand1);
        EXPECT_EQ(program.engine.values().ArchivoGuia, guideName);
        const std::string_view name = english ? "frmEdito3" : "frmEdito1";
        ASSERT_NE(program.engine.instance(name, 2), nullptr) << "each click opens an editor of its own";
        EXPECT_EQ(program.engine.defaultInstance(name), nullptr);
        EXPECT_EQ(program.engine.instance(english ? "frmEdito1" : "frmEdito3", 0), nullptr);
        EXPECT_EQ(textOf(*editor(program, name)), "the guide\n");
        EXPECT_EQ(editor(program, name)->windowState(), 0);
    }
}

// --- report

TEST(ReportButton, AlwaysTilesVerticallyAndMarksItWhenNothingIsMarked)
{
    for (int marked = -1; marked < 3; ++marked) {
        SheetProgram program;
        TemplateSheet& sheet = program.newSheet();
        for (int i = 0; i < 3; ++i)
            program.check(marks[i], i == marked);
        program.trace.clear();
        program.engine.userClick(sheet, SSCommand3);
        EXPECT_EQ(arrangements(program), std::vector<std::string>{"arrange 2"}) << marked;
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(program.checked(marks[i]), i == (marked < 0 ? 2 : marked)) << marked;
    }
}

TEST(ReportButton, PutsTheReportIntoTheEditorOfTheLanguage)
{
    for (const bool english : {false, true}) {
        SheetProgram program;
        program.english(english);
        TemplateSheet& sheet = program.newSheet();
        program.engine.userClick(sheet, SSCommand3);
        const std::string_view name = english ? "frmEdito3" : "frmEdito2";
        ASSERT_NE(program.engine.defaultInstance(name), nullptr);
        const std::string text = textOf(*editor(program, name));
        EXPECT_NE(text.find(english ? "Report Design" : "Elaboración de Informe"), std::string::npos);
        EXPECT_EQ(program.engine.current(), editor(program, name));
        EXPECT_EQ(editor(program, name)->windowState(), 0);
        EXPECT_TRUE(program.screen.boxes.empty());
    }
}

struct AskedReport : SheetProgram {
    explicit AskedReport(Answer answer, bool isEnglish = false)
    {
        english(isEnglish);
        TemplateSheet& sheet = newSheet();
        engine.userClick(sheet, SSCommand3);
        host::Window& open = *editor(*this, isEnglish ? "frmEdito3" : "frmEdito2");
        open.setText(open.named("txtEdit"), "the student's own words");
        engine.userActivate(sheet);
        screen.answers = {answer};
        engine.userClick(sheet, SSCommand3);
        text = textOf(open);
        isCurrent = engine.current() == &open;
    }
    std::string text;
    bool isCurrent = false;
};

TEST(ReportButton, AnOpenEditorIsOverwrittenOnlyWhenTheStudentAccepts)
{
    const AskedReport accepted(Answer::ok);
    ASSERT_EQ(accepted.screen.boxes.size(), 1u);
    EXPECT_EQ(accepted.screen.boxes[0].text,
              "Si Acepta, lo escrito por ud. se perdera, (los datos del circuito no se pierden)");
    EXPECT_EQ(accepted.screen.boxes[0].title, " Cuidado!!!");
    EXPECT_EQ(accepted.screen.boxes[0].flags, 65);
    EXPECT_NE(accepted.text.find("Elaboración de Informe"), std::string::npos);
    EXPECT_TRUE(accepted.isCurrent);
    const AskedReport refused(Answer::cancel);
    EXPECT_EQ(refused.text, "the student's own words");
    EXPECT_TRUE(refused.isCurrent);
}

TEST(ReportButton, TheWarningInEnglish)
{
    const AskedReport asked(Answer::cancel, true);
    ASSERT_EQ(asked.screen.boxes.size(), 1u);
    EXPECT_EQ(asked.screen.boxes[0].text, " Acept, delete edit date, Cancel return... ");
    EXPECT_EQ(asked.screen.boxes[0].title, "Warning !!!!");
    EXPECT_EQ(asked.screen.boxes[0].flags, 65);
}

TEST(ReportButton, AHiddenEditorCountsAsClosedAndIsFilledWithoutAQuestion)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.engine.userClick(sheet, SSCommand3);
    host::Window& open = *editor(program, "frmEdito2");
    open.setText(open.named("txtEdit"), "old");
    program.run([&] { program.engine.host().Hide(open); });
    program.engine.userClick(sheet, SSCommand3);
    EXPECT_TRUE(program.screen.boxes.empty());
    EXPECT_TRUE(open.shown());
    EXPECT_NE(textOf(open).find("Elaboración de Informe"), std::string::npos);
}

TEST(ReportButton, AnEditorThatTheGuideButtonMadeIsNotTheReportEditor)
{
    SheetProgram program;
    program.english(true);
    TemplateSheet& sheet = program.newSheet();
    program.engine.userClick(sheet, SSCommand1);
    program.engine.userActivate(sheet);
    program.engine.userClick(sheet, SSCommand3);
    EXPECT_TRUE(program.screen.boxes.empty());
    ASSERT_NE(program.engine.defaultInstance("frmEdito3"), nullptr);
    EXPECT_NE(program.engine.instance("frmEdito3", 2), nullptr);
}

// Most sheets just bring the open editor forward.
TEST(ReportButton, WhereNothingIsAskedAnOpenEditorKeepsItsText)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.run([&] { sheet.clickReport(); });
    host::Window& open = *editor(program, "frmEdito2");
    EXPECT_NE(textOf(open).find("Elaboración de Informe"), std::string::npos);
    open.setText(open.named("txtEdit"), "own words");
    program.engine.userActivate(sheet);
    program.run([&] { sheet.clickReport(); });
    EXPECT_EQ(textOf(open), "own words");
    EXPECT_EQ(program.engine.current(), &open);
    EXPECT_TRUE(program.screen.boxes.empty());
}

// --- calculator

TEST(CalculatorButton, ShowsOneCalculatorHoweverOftenItIsPressed)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.engine.userClick(sheet, Image3);
    program.engine.userActivate(sheet);
    program.engine.userClick(sheet, Image3);
    EXPECT_NE(program.engine.instance("Calculator", 1), nullptr);
    EXPECT_EQ(program.engine.instance("Calculator", 2), nullptr);
    EXPECT_EQ(program.engine.current(), program.engine.defaultInstance("Calculator"));
    EXPECT_EQ(program.engine.activeChild(), &sheet);
}

} // namespace sheet_buttons_test

} // namespace velmor::template_sheet
