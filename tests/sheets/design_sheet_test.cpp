// SPDX-License-Identifier: MIT
// What every sheet has from its base: the public operations, the dialogs, the ask-to-save flow, and its life beside the main
// window's bar and panel. Proved on the template sheet.
#include "sheets/design_sheet.h"

#include <type_traits>

#include <gtest/gtest.h>

#include "places.h"
#include "sheets/sheet_program.h"

namespace velmor::template_sheet {

namespace design_sheet_test {

using host::Answer;
using host::DialogKind;
using host::trueValue;

// A design under way, so that what is lost or kept can be seen.
TemplateSheet& changedSheet(SheetProgram& program)
{
    TemplateSheet& sheet = program.newSheet();
    program.press(sheet, '5');
    return sheet;
}

TEST(DesignSheet, TheNinePublicOperationsStandInTheirOrder)
{
    std::ifstream file(places::source() + "/src/sheets/design_sheet.h");
    const std::string header{std::istreambuf_iterator<char>(file), {}};
    std::size_t at = header.find("public:");
    for (const std::string_view operation : {" OperCancelo(", " MiFiltro(", " modificado(", " Abrir(", " Guardar(",
                                             " Datos(", " CDL_GuardarDatos(", " CDL_AbrirDatos(", " NombreArchivo("}) {
        const std::size_t found = header.find(operation, at);
        ASSERT_NE(found, std::string::npos) << operation;
        at = found;
    }
    static_assert(std::is_same_v<decltype(std::declval<sheets::DesignSheet&>().OperCancelo()), std::int16_t>);
    static_assert(std::is_same_v<decltype(std::declval<sheets::DesignSheet&>().modificado()), std::int16_t>);
}

TEST(DesignSheet, StartsUnnamedAndUnchanged)
{
    SheetProgram program;
    const TemplateSheet& sheet = program.newSheet();
    EXPECT_EQ(sheet.OperCancelo(), 0);
    EXPECT_EQ(sheet.modificado(), 0);
    EXPECT_EQ(sheet.NombreArchivo(), "");
}

TEST(DesignSheet, ItsThreeValuesCanBeWritten)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    sheet.setOperCancelo(trueValue);
    sheet.setModificado(trueValue);
    sheet.setNombreArchivo("name");
    EXPECT_EQ(sheet.OperCancelo(), -1);
    EXPECT_EQ(sheet.modificado(), -1);
    EXPECT_EQ(sheet.NombreArchivo(), "name");
}

TEST(DesignSheet, TheFilterIsThatOfTheLanguageOfTheMoment)
{
    SheetProgram program;
    const TemplateSheet& sheet = program.newSheet();
    EXPECT_EQ(sheet.MiFiltro(), "Resistor de carga (*.RDC)|*.RDC");
    program.english(true);
    EXPECT_EQ(sheet.MiFiltro(), "Load resistor (*.LOR)|*.LOR");
}

// 2638862 is 28440E in hexadecimal: overwrite prompt, no change of folder, and the rest; 2645004 is 285C0C.
TEST(DesignSheet, TheSaveDialogHasTheTitleOfTheOtherLanguage)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.run([&] { sheet.CDL_GuardarDatos(); });
    program.english(true);
    program.run([&] { sheet.CDL_GuardarDatos(); });
    ASSERT_EQ(program.screen.dialogs.size(), 2u);
    const host::FileDialog& spanish = program.screen.dialogs[0];
    EXPECT_EQ(spanish.kind, DialogKind::save);
    EXPECT_EQ(spanish.title, "Save Circuit");
    EXPECT_EQ(spanish.filter, "Resistor de carga (*.RDC)|*.RDC");
    EXPECT_EQ(spanish.flags, 0x28440E);
    EXPECT_EQ(spanish.folder, program.folder.path().string());
    EXPECT_EQ(program.screen.dialogs[1].title, "Guardar Circuito");
    EXPECT_EQ(program.screen.dialogs[1].filter, "Load resistor (*.LOR)|*.LOR");
    EXPECT_EQ(program.screen.dialogs[1].flags, 2638862);
}

TEST(DesignSheet, TheOpenDialogHasTheTitleOfItsLanguage)
{
    for (const bool english : {false, true}) {
        SheetProgram program;
        program.english(english);
        TemplateSheet& sheet = program.newSheet();
        program.run([&] { sheet.CDL_AbrirDatos(); });
        ASSERT_EQ(program.screen.dialogs.size(), 1u);
        const host::FileDialog& dialog = program.screen.dialogs[0];
        EXPECT_EQ(dialog.kind, DialogKind::open);
        EXPECT_EQ(dialog.title, english ? "Open Circuit" : "Abrir Circuito");
        EXPECT_EQ(dialog.filter, english ? "Load resistor (*.LOR)|*.LOR" : "Resistor de carga (*.RDC)|*.RDC");
        EXPECT_EQ(dialog.flags, 0x285C0C);
        EXPECT_EQ(dialog.flags, 2645004);
        EXPECT_EQ(dialog.folder, program.folder.path().string());
    }
}

TEST(DesignSheet, ACancelledSaveDialogLeavesTheOldName)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    sheet.setNombreArchivo("old");
    program.screen.files = {std::nullopt, "new"};
    program.run([&] { sheet.CDL_GuardarDatos(); });
    EXPECT_EQ(sheet.NombreArchivo(), "old");
    program.run([&] { sheet.CDL_GuardarDatos(); });
    EXPECT_EQ(sheet.NombreArchivo(), "new");
}

TEST(DesignSheet, ACancelledOpenDialogTakesTheNewSheetAwayWithoutAQuestion)
{
    SheetProgram program;
    TemplateSheet& sheet = changedSheet(program);
    std::int16_t operCancelo = 0;
    program.run([&] {
        sheet.CDL_AbrirDatos();
        operCancelo = sheet.OperCancelo(); // the sheet itself lives until the end of this event
    });
    EXPECT_EQ(operCancelo, -1);
    EXPECT_EQ(program.sheetsOpen(), 0);
    EXPECT_TRUE(program.screen.boxes.empty());
}

TEST(DesignSheet, AnOpenedSheetBearsTheNameOfItsFileWithoutTheLastFourCharacters)
{
    const std::pair<std::string, std::string> names[] = {{"circuito.RDC", "circuito"},
                                                         {"dos.puntos.RDC", "dos.puntos"},
                                                         {"ñandú.RDC", "ñandú"},
                                                         {"ab.c", ""},
                                                         {"largo.RDCD", "largo."}};
    for (const auto& [file, caption] : names) {
        SheetProgram program;
        TemplateSheet& sheet = changedSheet(program);
        program.folder.put(file, "1\r\n2\r\n3\r\n4\r\n5\r\n\r\n7\r\n8\r\n\r\n");
        program.screen.files = {program.path(file)};
        sheet.setOperCancelo(trueValue);
        program.run([&] { sheet.CDL_AbrirDatos(); });
        EXPECT_EQ(sheet.caption(), caption);
        EXPECT_EQ(sheet.NombreArchivo(), program.path(file));
        EXPECT_EQ(sheet.OperCancelo(), 0);
        EXPECT_EQ(sheet.modificado(), 0);
    }
}

TEST(DesignSheet, EveryKeyMarksTheSheetAsChangedAlsoOneThatIsSwallowed)
{
    for (const std::int16_t key :
         {std::int16_t{'5'}, std::int16_t{'x'}, std::int16_t{13}, std::int16_t{27}, std::int16_t{8}}) {
        SheetProgram program;
        TemplateSheet& sheet = program.newSheet();
        const std::string before = sheet.text(Text1);
        program.press(sheet, key);
        EXPECT_EQ(sheet.modificado(), -1) << key;
        EXPECT_EQ(sheet.text(Text1) == before, key != '5') << key;
        EXPECT_EQ(program.screen.beeps, key == 'x' ? 1 : 0) << key;
    }
}

// --- the question on closing

struct Closing {
    std::string file{}; ///< `NombreArchivo`; empty for none
    bool changed = false;
    std::optional<Answer> answer{};      ///< nothing: no question may come
    std::optional<std::string> chosen{}; ///< in the save dialog
    bool closes = true;
    std::string written{}; ///< name of the file that must hold the design then
    std::size_t dialogs = 0;
};

void play(const Closing& closing, bool byMenu)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    if (closing.changed)
        program.press(sheet, '5');
    if (!closing.file.empty())
        sheet.setNombreArchivo(program.path(closing.file));
    if (closing.answer)
        program.screen.answers = {*closing.answer};
    if (closing.chosen)
        program.screen.files = {program.path(*closing.chosen)};
    const std::string text = sheet.text(Text1);
    if (byMenu)
        program.menu("mnuFile(3)");
    else
        program.engine.userClose(sheet);
    EXPECT_EQ(program.sheetsOpen(), closing.closes ? 0 : 1);
    EXPECT_EQ(program.screen.boxes.size(), closing.answer ? 1u : 0u);
    EXPECT_EQ(program.screen.dialogs.size(), closing.dialogs);
    EXPECT_EQ(program.folder.entries(), closing.written.empty() ? 0 : 1);
    if (!closing.written.empty()) {
        EXPECT_TRUE(program.folder.content(closing.written).starts_with(text + "\r\n"));
    }
    if (!closing.closes) {
        EXPECT_EQ(sheet.text(Text1), text);
        EXPECT_EQ(sheet.modificado(), closing.changed ? -1 : 0);
    }
}

// clang-format off
const std::pair<std::string, Closing> closings[] = {
    {"UnnamedAndUntouchedAnsweredNo",      {.answer = Answer::no}},
    {"UnnamedAndUntouchedAnsweredCancel",  {.answer = Answer::cancel, .closes = false}},
    {"UnnamedAndUntouchedAnsweredYes",     {.answer = Answer::yes, .chosen = "a.RDC", .written = "a.RDC", .dialogs = 1}},
    {"UnnamedAnsweredYesDialogCancelled",  {.changed = true, .answer = Answer::yes, .dialogs = 1}},
    {"UnnamedAndChangedAnsweredNo",        {.changed = true, .answer = Answer::no}},
    {"UnnamedAndChangedAnsweredCancel",    {.changed = true, .answer = Answer::cancel, .closes = false}},
    {"UnnamedAndChangedAnsweredYes",       {.changed = true, .answer = Answer::yes, .chosen = "b.RDC", .written = "b.RDC", .dialogs = 1}},
    {"NamedAndUnchangedIsNotAsked",        {.file = "c.RDC"}},
    {"NamedAndChangedAnsweredNo",          {.file = "c.RDC", .changed = true, .answer = Answer::no}},
    {"NamedAndChangedAnsweredCancel",      {.file = "c.RDC", .changed = true, .answer = Answer::cancel, .closes = false}},
    {"NamedAndChangedAnsweredYes",         {.file = "c.RDC", .changed = true, .answer = Answer::yes, .written = "c.RDC"}},
    {"NamedAndChangedASaveThatFails",      {.file = "no/such/folder.RDC", .changed = true, .answer = Answer::yes}},
};
// clang-format on

class ClosingASheet : public testing::TestWithParam<std::pair<std::string, Closing>> {};

TEST_P(ClosingASheet, ByItsOwnButton)
{
    play(GetParam().second, false);
}

TEST_P(ClosingASheet, ByTheMenuOfTheMainWindow)
{
    play(GetParam().second, true);
}

INSTANTIATE_TEST_SUITE_P(Answers, ClosingASheet, testing::ValuesIn(closings),
                         [](const auto& row) { return row.param.first; });

TEST(DesignSheet, TheQuestionIsAskedInTheLanguageOfTheMoment)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.engine.userClose(sheet);
    program.english(true);
    program.engine.userClose(sheet);
    ASSERT_EQ(program.screen.boxes.size(), 2u);
    EXPECT_EQ(program.screen.boxes[0].text, "El presente archivo ha cambiado. ¿Desea guardar los cambios?");
    EXPECT_EQ(program.screen.boxes[1].text, "The present file has changed. does you want to keep the changes?");
    EXPECT_EQ(program.screen.boxes[0].flags, 67);
    EXPECT_EQ(program.screen.boxes[0].title, "Velmor");
}

TEST(DesignSheet, ARefusalHoldsForOneRequestOnly)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.screen.answers = {Answer::cancel, Answer::no};
    program.engine.userClose(sheet);
    EXPECT_EQ(program.sheetsOpen(), 1);
    program.engine.userClose(sheet);
    EXPECT_EQ(program.sheetsOpen(), 0);
    EXPECT_EQ(program.screen.boxes.size(), 2u);
}

TEST(DesignSheet, ASheetWhoseOpeningWasCancelledIsNotAsked)
{
    SheetProgram program;
    TemplateSheet& sheet = changedSheet(program);
    sheet.setOperCancelo(trueValue);
    program.engine.userClose(sheet);
    EXPECT_EQ(program.sheetsOpen(), 0);
    EXPECT_TRUE(program.screen.boxes.empty());
}

TEST(DesignSheet, TheEndOfTheProgramAsksTheSheetsInTheirOrderAndCancelDropsIt)
{
    SheetProgram program;
    program.newSheet().setNombreArchivo("kept"); // named and unchanged: not asked
    program.newSheet();
    program.newSheet();
    program.screen.answers = {Answer::yes, Answer::no, Answer::cancel};
    program.engine.userClose(program.main());
    EXPECT_FALSE(program.engine.ended());
    EXPECT_EQ(program.sheetsOpen(), 3);
    ASSERT_EQ(program.screen.boxes.size(), 3u); // the main window's own, then two sheets'
    EXPECT_EQ(program.screen.boxes[0].flags, 36);
    EXPECT_EQ(program.screen.boxes[2].flags, 67);
    program.screen.answers = {Answer::yes, Answer::no, Answer::no};
    program.engine.userClose(program.main());
    EXPECT_TRUE(program.engine.ended());
}

// --- saving from the menu

TEST(DesignSheet, SaveAsksForANameOnceAndThenWritesUnderIt)
{
    SheetProgram program;
    TemplateSheet& sheet = changedSheet(program);
    program.screen.files = {program.path("x.RDC")};
    program.menu("mnuFile(1)");
    EXPECT_EQ(sheet.NombreArchivo(), program.path("x.RDC"));
    EXPECT_EQ(sheet.modificado(), 0);
    EXPECT_EQ(program.screen.dialogs.size(), 1u);
    program.press(sheet, '6');
    program.menu("mnuFile(1)");
    EXPECT_EQ(program.screen.dialogs.size(), 1u);
    EXPECT_EQ(sheet.modificado(), 0);
    EXPECT_TRUE(program.folder.content("x.RDC").starts_with("1256\r\n"));
}

TEST(DesignSheet, SaveWithoutANameAndACancelledDialogWritesNothing)
{
    SheetProgram program;
    const TemplateSheet& sheet = changedSheet(program);
    program.menu("mnuFile(1)");
    EXPECT_EQ(program.folder.entries(), 0);
    EXPECT_EQ(sheet.NombreArchivo(), "");
    EXPECT_EQ(sheet.modificado(), -1);
    EXPECT_TRUE(program.screen.boxes.empty());
}

TEST(DesignSheet, SaveAsAlwaysAsksAndCancelledRewritesTheOldFile)
{
    SheetProgram program;
    TemplateSheet& sheet = changedSheet(program);
    sheet.setNombreArchivo(program.folder.put("old.RDC", "something else").string());
    program.menu("mnuFile(2)");
    EXPECT_EQ(program.screen.dialogs.size(), 1u);
    EXPECT_EQ(sheet.NombreArchivo(), program.path("old.RDC"));
    EXPECT_TRUE(program.folder.content("old.RDC").starts_with("125\r\n"));
    EXPECT_EQ(sheet.modificado(), 0);
    program.screen.files = {program.path("new.RDC")};
    program.menu("mnuFile(2)");
    EXPECT_EQ(sheet.NombreArchivo(), program.path("new.RDC"));
    EXPECT_EQ(program.folder.content("new.RDC"), program.folder.content("old.RDC"));
}

TEST(DesignSheet, WithoutAnActiveSheetTheMenuOfFilesDoesNothing)
{
    SheetProgram program;
    for (const std::string_view item : {"mnuFile(1)", "mnuFile(2)", "mnuFile(3)"})
        program.menu(item);
    EXPECT_TRUE(program.screen.boxes.empty());
    EXPECT_TRUE(program.screen.dialogs.empty());
    EXPECT_TRUE(program.screen.failures.empty());
}

TEST(DesignSheet, TheMenuOfFilesActsOnTheActiveSheetAlone)
{
    SheetProgram program;
    TemplateSheet& first = changedSheet(program);
    TemplateSheet& second = program.newSheet();
    program.engine.userActivate(first);
    program.screen.files = {program.path("first.RDC")};
    program.menu("mnuFile(1)");
    EXPECT_EQ(first.NombreArchivo(), program.path("first.RDC"));
    EXPECT_EQ(second.NombreArchivo(), "");
    program.menu("mnuFile(3)");
    EXPECT_EQ(program.engine.activeChild(), &second);
    EXPECT_EQ(program.sheetsOpen(), 1);
}

// --- life beside the main window

TEST(DesignSheet, ActivationUnloadsTheHelpPageAndHidesPanelAndBar)
{
    SheetProgram program;
    TemplateSheet& first = program.newSheet();
    program.newSheet();
    program.run([&] { program.engine.host().Show("Form21"); });
    program.main().show(program.main().named("SSPanel1"), program.main().named("Picture14"));
    program.engine.userActivate(first);
    EXPECT_EQ(program.engine.defaultInstance("Form21"), nullptr);
    EXPECT_FALSE(program.shownOnMain("SSPanel1"));
    EXPECT_FALSE(program.shownOnMain("Picture14"));
}

TEST(DesignSheet, ComingBackFromAToolOnlyUnloadsTheHelpPage)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.run([&] { program.engine.host().Show("Form21"); });
    program.run([&] { program.engine.host().Show("Calculator"); });
    program.main().show(program.main().named("SSPanel1"), program.main().named("Picture14"));
    program.engine.userActivate(sheet);
    EXPECT_EQ(program.engine.defaultInstance("Form21"), nullptr);
    EXPECT_TRUE(program.shownOnMain("SSPanel1"));
    EXPECT_TRUE(program.shownOnMain("Picture14"));
}

TEST(DesignSheet, RepaintingHidesPanelAndBar)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.main().show(program.main().named("SSPanel1"), program.main().named("Picture14"));
    sheet.frameRepaint();
    EXPECT_FALSE(program.shownOnMain("SSPanel1"));
    EXPECT_FALSE(program.shownOnMain("Picture14"));
}

TEST(DesignSheet, ResizingBringsTheFixedBarBackAndPutsThePaletteAway)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.check("mnuFija");
    program.run([&] { program.engine.host().Show("Form16"); });
    program.run([&] { sheet.frameResize(); });
    EXPECT_TRUE(program.shownOnMain("Picture14"));
    EXPECT_FALSE(program.engine.defaultInstance("Form16")->shown());
}

TEST(DesignSheet, ResizingBringsTheFloatingPaletteBackAndPutsTheBarAway)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.check("mnuFlotante");
    program.main().show(program.main().named("Picture14"));
    program.run([&] { sheet.frameResize(); });
    EXPECT_FALSE(program.shownOnMain("Picture14"));
    ASSERT_NE(program.engine.defaultInstance("Form16"), nullptr);
    EXPECT_TRUE(program.engine.defaultInstance("Form16")->shown());
    EXPECT_EQ(program.engine.current(), &sheet);
}

TEST(DesignSheet, WithBothBarsMarkedTheFixedOneWins)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.check("mnuFija");
    program.check("mnuFlotante");
    program.run([&] { sheet.frameResize(); });
    EXPECT_TRUE(program.shownOnMain("Picture14"));
    EXPECT_EQ(program.engine.defaultInstance("Form16"), nullptr);
}

TEST(DesignSheet, WithNoBarMarkedResizingLeavesBothAsTheyAre)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.check("mnuFija", false);
    program.check("mnuFlotante", false);
    program.main().show(program.main().named("Picture14"));
    program.run([&] { sheet.frameResize(); });
    EXPECT_TRUE(program.shownOnMain("Picture14"));
    EXPECT_EQ(program.engine.defaultInstance("Form16"), nullptr);
}

TEST(DesignSheet, MinimisingResizesAloneAndLeavesTheBarThatThisBringsBack)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.check("mnuFija");
    std::vector<host::Event> ran;
    program.engine.onSlot = [&](const host::Window& window, host::Handle, host::Event event) {
        if (&window == &sheet)
            ran.push_back(event);
    };
    program.engine.userState(sheet, 1);
    EXPECT_EQ(ran, (std::vector{host::Event::resize}));
    EXPECT_TRUE(program.engine.host().visible("MDIForm1", "Picture14"));
    program.engine.userState(sheet, 0);
    EXPECT_EQ(ran, (std::vector{host::Event::resize, host::Event::resize, host::Event::repaint}));
    EXPECT_FALSE(program.engine.host().visible("MDIForm1", "Picture14"));
}

TEST(DesignSheet, ClosingASheetUnloadsItsCompanion)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.engine.userClick(sheet, Image3);
    ASSERT_NE(program.engine.defaultInstance("Calculator"), nullptr);
    program.screen.answers = {Answer::no};
    program.engine.userClose(sheet);
    EXPECT_EQ(program.engine.defaultInstance("Calculator"), nullptr);
}

TEST(DesignSheet, TwoSheetsShareNothingButTheProgramsValues)
{
    SheetProgram program;
    TemplateSheet& first = changedSheet(program);
    const TemplateSheet& second = program.newSheet();
    EXPECT_EQ(first.text(Text1), "125");
    EXPECT_EQ(second.text(Text1), "12");
    EXPECT_EQ(second.modificado(), 0);
    first.setNombreArchivo("first");
    EXPECT_EQ(second.NombreArchivo(), "");
}

} // namespace design_sheet_test

} // namespace velmor::template_sheet
