// SPDX-License-Identifier: MIT
// The editors where no walk goes: the older text editor, which no menu opens, the state of a document, the first
// layout, what printer and dialogs are handed, and files that are anything but a text.
#include "editors/editor.h"

#include <gtest/gtest.h>

#include <chrono>

#include "program_desk.h"

namespace velmor::editor_test {

using editors::Editor;
using editors::txtEdit;
using host::Answer;
using test::ProgramDesk;

constexpr std::string_view filter =
    "Archivos de Laboratorio (*.LAB)|*.Lab|Archivos detexto(*.txt)|*.txt|Todos los archivos (*.*)|*.*";

Editor& shown(ProgramDesk& desk, std::string_view name)
{
    return dynamic_cast<Editor&>(desk.show(name));
}

/// A window that is made, told something, and only then loaded and shown.
Editor& made(ProgramDesk& desk, std::string_view name)
{
    Editor* editor = nullptr;
    desk.engine.userRun([&] { editor = dynamic_cast<Editor*>(desk.engine.host().NewInstance(name)); });
    return *editor;
}

TEST(OlderTextEditor, RunsTheOpenDialogAtOnceAndReadsTheFile)
{
    ProgramDesk desk;
    desk.screen.files.emplace_back(desk.screen.put("carta.txt", "Uno\r\nDos"));
    Editor& editor = shown(desk, "frmEditor");
    ASSERT_EQ(desk.screen.dialogs.size(), 1U);
    EXPECT_EQ(desk.screen.dialogs[0].kind, host::DialogKind::open);
    EXPECT_EQ(desk.screen.dialogs[0].filter, filter);
    EXPECT_EQ(desk.screen.dialogs[0].folder, desk.screen.programFolder());
    EXPECT_EQ(desk.text(editor, "txtEdit"), "Uno\nDos\n");
    EXPECT_EQ(editor.caption(), "Editor de textos Velmor ...doble click ");
    EXPECT_FALSE(editor.DocumentoNuevo());
    EXPECT_FALSE(editor.DocumentoCambiado());
    EXPECT_EQ(editor.store(txtEdit).selectionLength(), 0U);
}

TEST(OlderTextEditor, OpensEmptyAndNewWhenItsDialogIsCancelled)
{
    ProgramDesk desk;
    Editor& editor = shown(desk, "frmEditor");
    EXPECT_EQ(desk.screen.dialogs.size(), 1U);
    EXPECT_EQ(desk.text(editor, "txtEdit"), "");
    EXPECT_TRUE(editor.DocumentoNuevo());
    EXPECT_FALSE(desk.screen.busy);
}

TEST(OlderTextEditor, IsOpenedByNoMenuAndNoButtonOfTheMainWindow)
{
    ProgramDesk desk;
    const host::WindowSpec& main = desk.engine.mainWindow().spec();
    for (const host::ControlRow& row : main.controls) {
        ProgramDesk fresh;
        fresh.screen.answers.assign(4, Answer::no);
        fresh.click(fresh.engine.mainWindow(), row.name);
        EXPECT_FALSE(fresh.open("frmEditor")) << row.name;
    }
}

TEST(OlderTextEditor, HasSaveButNoPrintSearchWindowOrPaletteMenu)
{
    ProgramDesk desk;
    Editor& editor = shown(desk, "frmEditor");
    for (const auto item : {"mnuFilenew", "mnuFileOpen", "mnuFileSaveAs", "mnuFileexit", "mnuGuardar", "mnuFileItem",
                            "mnuEdit", "mnuEditItem(0)", "mnuEditItem(1)", "mnuEditItem(2)", "mnuBackColorItem",
                            "mnuForeColorItem", "mnuFontSizesItem", "mnuAbout"})
        EXPECT_TRUE(desk.visible(editor, item)) << item;
    for (const auto item : {"mnuImprimir", "mnuBuscar", "mnuBr", "mnuCas", "mnuHoriz", "mnuVert", "mnuCircuit"})
        EXPECT_FALSE(desk.visible(editor, item)) << item;
    desk.click(editor, "mnuImprimir");
    EXPECT_TRUE(desk.screen.printed.empty());
}

TEST(OlderTextEditor, SavesANewTextThroughTheDialog)
{
    ProgramDesk desk;
    Editor& editor = shown(desk, "frmEditor");
    desk.write(editor, "txtEdit", "Hola");
    desk.screen.files.emplace_back((desk.screen.folder / "hola.txt").string());
    desk.click(editor, "mnuGuardar");
    EXPECT_EQ(desk.screen.dialogs.back().kind, host::DialogKind::save);
    EXPECT_EQ(desk.screen.content("hola.txt"), "Hola\r\n");
    EXPECT_FALSE(editor.DocumentoNuevo());
    EXPECT_TRUE(editor.DocumentoCambiado());
}

TEST(OlderTextEditor, SavesAChangedTextToItsFileAndRunsTheOpenDialogAgain)
{
    ProgramDesk desk;
    desk.screen.files.emplace_back(desk.screen.put("carta.txt", "Uno"));
    Editor& editor = shown(desk, "frmEditor");
    desk.click(editor, "mnuGuardar"); // not changed: nothing
    EXPECT_EQ(desk.screen.dialogs.size(), 1U);
    EXPECT_EQ(desk.screen.content("carta.txt"), "Uno");

    desk.write(editor, "txtEdit", "Dos");
    desk.screen.files.emplace_back((desk.screen.folder / "carta.txt").string());
    desk.click(editor, "mnuGuardar");
    EXPECT_EQ(desk.screen.content("carta.txt"), "Dos\r\n");
    ASSERT_EQ(desk.screen.dialogs.size(), 2U);
    EXPECT_EQ(desk.screen.dialogs[1].kind, host::DialogKind::open);
    EXPECT_EQ(desk.text(editor, "txtEdit"), "Dos\n");
    EXPECT_FALSE(editor.DocumentoCambiado());
}

TEST(OlderTextEditor, ItsItemMakesANewDocumentAndTitlesGoToTheReportEditor)
{
    ProgramDesk desk;
    host::Window& report = desk.show("frmEdito3");
    desk.screen.files.emplace_back(desk.screen.put("carta.txt", "Uno"));
    Editor& editor = shown(desk, "frmEditor");
    EXPECT_EQ(report.caption(), (desk.screen.folder / "carta.txt").string() + "Laboratorio Velmor");
    desk.write(editor, "txtEdit", "Dos");
    desk.screen.answers = {Answer::cancel};
    desk.click(editor, "mnuFileItem");
    ASSERT_EQ(desk.screen.boxes.size(), 1U);
    EXPECT_EQ(desk.screen.boxes[0].text, "Este documento ha cambiado\n¿Desea guardar los cambios?");
    EXPECT_EQ(desk.screen.boxes[0].title, "Laboratorio Velmor");
    EXPECT_EQ(desk.screen.boxes[0].flags, 35);
    EXPECT_EQ(desk.text(editor, "txtEdit"), "Dos");
    desk.screen.answers = {Answer::no};
    desk.click(editor, "mnuFileItem");
    EXPECT_EQ(desk.text(editor, "txtEdit"), "");
    EXPECT_TRUE(editor.DocumentoNuevo());
    EXPECT_EQ(report.caption(), "Laboratorio Velmor");
    EXPECT_EQ(editor.caption(), "Editor de textos Velmor ...doble click ");
}

TEST(OlderTextEditor, ItsExitBringsTheReportEditorToTheFrontAndNothingMore)
{
    ProgramDesk desk;
    host::Window& report = desk.show("frmEdito3");
    Editor& editor = shown(desk, "frmEditor");
    EXPECT_EQ(desk.engine.current(), &editor);
    desk.click(editor, "mnuFileexit");
    EXPECT_TRUE(desk.screen.boxes.empty());
    EXPECT_EQ(desk.engine.current(), &report);
    EXPECT_TRUE(desk.engine.isLoaded(&editor));
}

TEST(OlderTextEditor, ItsExitWithNoReportEditorOpenDoesNothing)
{
    ProgramDesk desk;
    Editor& editor = shown(desk, "frmEditor");
    desk.click(editor, "mnuFileexit");
    EXPECT_TRUE(desk.engine.isLoaded(&editor));
    EXPECT_FALSE(desk.open("frmEdito3"));
}

TEST(OlderTextEditor, AsksInSpanishInBothLanguages)
{
    ProgramDesk desk;
    desk.engine.values().LanguageIsEnglish = host::trueValue;
    Editor& editor = shown(desk, "frmEditor");
    desk.write(editor, "txtEdit", "Hola");
    desk.click(editor, "mnuFileexit");
    desk.screen.files.emplace_back(desk.screen.put("viejo.txt", "v"));
    desk.click(editor, "mnuFileSaveAs");
    ASSERT_EQ(desk.screen.boxes.size(), 2U);
    EXPECT_EQ(desk.screen.boxes[0].text, "Este documento ha cambiado\n¿Desea guardar los cambios?");
    EXPECT_EQ(desk.screen.boxes[1].text, "Desea reemplazar el archivo existente?");
    EXPECT_EQ(desk.screen.boxes[1].title, "Laboratorio Velmor");
    EXPECT_EQ(desk.screen.boxes[1].flags, 289);
    EXPECT_EQ(desk.screen.content("viejo.txt"), "v");
}

TEST(Editors, DoNothingWithFilesAtTheirLoadWhenTheActionIsCancelled)
{
    ProgramDesk desk;
    desk.engine.values().ArchivoGuia = "guia1.Lab";
    desk.screen.put("guia1.Lab", "g");
    desk.screen.put("Archivos/guia1.Lab", "g");
    for (const auto name : {"frmEditor", "frmEdito1", "frmEdito2", "frmEdito3"}) {
        Editor& editor = made(desk, name);
        editor.setAccionCancelada(true);
        desk.engine.userRun([&] { desk.engine.host().Show(editor); });
        EXPECT_EQ(desk.text(editor, "txtEdit"), "") << name;
        EXPECT_TRUE(editor.DocumentoNuevo()) << name;
        EXPECT_EQ(editor.NombreDocumento(), "") << name;
    }
    EXPECT_TRUE(desk.screen.dialogs.empty());
}

TEST(Editors, EachMenuCommandTakesTheCancelledActionBack)
{
    ProgramDesk desk;
    Editor& editor = shown(desk, "frmEdito2");
    editor.setAccionCancelada(true);
    desk.screen.files.emplace_back(desk.screen.put("carta.txt", "Uno"));
    desk.click(editor, "mnuFileOpen");
    EXPECT_EQ(desk.text(editor, "txtEdit"), "Uno\n");
}

TEST(Editors, KeepThePathOfTheGuideAsNameWithTheFolderWhereTheReportEditorsExpectIt)
{
    ProgramDesk desk;
    desk.engine.values().ArchivoGuia = "guia1.Lab";
    const std::string folder = desk.screen.programFolder();
    EXPECT_EQ(shown(desk, "frmEdito2").NombreDocumento(), folder + "/Archivos/guia1.Lab");
    EXPECT_EQ(shown(desk, "frmEdito3").NombreDocumento(), folder + "/Archivos/guia1.Lab");
    EXPECT_EQ(shown(desk, "frmEdito1").NombreDocumento(), "guia1.Lab");
}

TEST(Editors, ShowANormalPointerBothAfterAGuideAndWithoutOne)
{
    ProgramDesk desk;
    desk.engine.values().ArchivoGuia = "guia1.Lab";
    for (const auto name : {"frmEdito1", "frmEdito2", "frmEdito3"}) {
        EXPECT_TRUE(shown(desk, name).DocumentoNuevo());
        EXPECT_FALSE(desk.screen.busy) << name;
    }
    desk.screen.put("guia1.Lab", "g");
    Editor& editor = made(desk, "frmEdito1");
    desk.engine.userRun([&] { desk.engine.host().Show(editor); });
    EXPECT_FALSE(editor.DocumentoNuevo());
    EXPECT_FALSE(desk.screen.busy);
}

TEST(Editors, TheSpanishReportEditorLeavesAMarginUntilItsFirstResize)
{
    ProgramDesk desk;
    for (const auto name : {"frmEdito2", "frmEdito3"}) {
        const bool margin = std::string_view(name) == "frmEdito2";
        desk.engine.userRun([&] { desk.engine.host().Load(name); });
        host::Window& editor = *desk.engine.defaultInstance(name);
        EXPECT_EQ(editor.placeOf(txtEdit).width, editor.place().width - (margin ? 130 : 0));
        EXPECT_EQ(editor.placeOf(txtEdit).height, editor.place().height - (margin ? 340 : 0));
        desk.engine.userResized(editor, {0, 0, 9000, 5000});
        EXPECT_EQ(editor.placeOf(txtEdit), (host::Place{0, 0, 9000, 5000}));
    }
}

TEST(Editors, OpenInTheMiddleOfTheScreen)
{
    ProgramDesk desk;
    const host::Place client = desk.engine.clientArea();
    for (const auto name : {"frmEditor", "frmEdito1", "frmEdito2", "frmEdito3"}) {
        const host::Place place = shown(desk, name).place();
        EXPECT_EQ(place.left, (client.width - place.width) / 2) << name;
        EXPECT_EQ(place.top, (client.height - place.height) / 2) << name;
    }
}

TEST(Editors, TheFourStatesOfADocument)
{
    ProgramDesk desk;
    Editor& editor = shown(desk, "frmEdito2");
    EXPECT_TRUE(editor.DocumentoNuevo() && !editor.DocumentoCambiado());
    desk.engine.userRun([&] { desk.engine.host().setText("frmEdito2", "txtEdit", "Informe"); });
    EXPECT_TRUE(editor.DocumentoNuevo() && editor.DocumentoCambiado());
    desk.screen.answers = {Answer::no};
    desk.screen.files.emplace_back(desk.screen.put("carta.txt", "Uno"));
    desk.click(editor, "mnuFileOpen");
    EXPECT_TRUE(!editor.DocumentoNuevo() && !editor.DocumentoCambiado());
    desk.write(editor, "txtEdit", "Dos");
    EXPECT_TRUE(!editor.DocumentoNuevo() && editor.DocumentoCambiado());
}

TEST(Editors, AFailedOpenKeepsTheOldTextAndItsState)
{
    ProgramDesk desk;
    Editor& editor = shown(desk, "frmEdito2");
    desk.screen.files.emplace_back(desk.screen.put("carta.txt", "Uno"));
    desk.click(editor, "mnuFileOpen");
    desk.write(editor, "txtEdit", "Uno y medio");
    const std::string title = editor.caption();
    std::filesystem::create_directory(desk.screen.folder / "carpeta");
    desk.screen.put("enorme.txt", "");
    std::filesystem::resize_file(desk.screen.folder / "enorme.txt", std::uintmax_t{65} * 1024 * 1024);
    for (const auto name : {"carpeta", "falta.txt", "enorme.txt"}) {
        desk.screen.answers = {Answer::no};
        desk.screen.files.emplace_back((desk.screen.folder / name).string());
        desk.click(editor, "mnuFileOpen");
        EXPECT_EQ(desk.text(editor, "txtEdit"), "Uno y medio") << name;
        EXPECT_EQ(editor.caption(), title) << name;
        EXPECT_TRUE(editor.DocumentoCambiado()) << name;
        EXPECT_FALSE(desk.screen.busy) << name;
    }
    EXPECT_EQ(desk.screen.boxes.size(), 3U); // the questions before the three dialogs, and no message
}

TEST(Editors, AFailedSaveKeepsTextNameAndTitle)
{
    ProgramDesk desk;
    Editor& editor = shown(desk, "frmEdito3");
    desk.write(editor, "txtEdit", "Ñandú");
    const std::string title = editor.caption();
    std::filesystem::create_directory(desk.screen.folder / "carpeta");
    desk.screen.answers.assign(8, Answer::ok);
    for (const auto name : {"no/hay.txt", "carpeta", "", "/dev/full"}) {
        desk.screen.files.emplace_back((desk.screen.folder / name).string());
        desk.click(editor, "mnuFileSaveAs");
        EXPECT_EQ(desk.text(editor, "txtEdit"), "Ñandú") << name;
        EXPECT_EQ(editor.caption(), title) << name;
        EXPECT_EQ(editor.NombreDocumento(), desk.screen.programFolder() + "/Archivos/") << name;
        EXPECT_TRUE(editor.DocumentoNuevo()) << name;
    }
    for (const host::MessageBox& box : desk.screen.boxes)
        EXPECT_EQ(box.flags, 289); // the question about what is there, and no message
}

TEST(Editors, CharactersOfAnyScriptSurviveASaveAndAnOpen)
{
    ProgramDesk desk;
    Editor& editor = shown(desk, "frmEdito1");
    for (const std::string_view text : {"Zin = 4.7 KΩ, µF, “¿Señal?”", "Ω πλάτος", "Ток покоя", "電流とトランジスタ",
                                        "مقاومة", "e\u0301 \U0001F98B", "plain ASCII", "Ã± stands for ñ"}) {
        desk.write(editor, "txtEdit", text);
        desk.screen.answers.assign(1, Answer::ok);
        desk.screen.files.emplace_back((desk.screen.folder / "texto.txt").string());
        desk.click(editor, "mnuFileSaveAs");
        desk.screen.answers.assign(1, Answer::no);
        desk.screen.files.emplace_back((desk.screen.folder / "texto.txt").string());
        desk.click(editor, "mnuFileOpen");
        EXPECT_EQ(desk.text(editor, "txtEdit"), std::string(text) + "\n");
        desk.screen.answers.clear();
    }
}

TEST(Editors, OpenABinaryFileWithoutHarm)
{
    ProgramDesk desk;
    Editor& editor = shown(desk, "frmEdito1");
    std::string bytes;
    for (int round = 0; round < 40; ++round)
        for (int byte = 0; byte < 256; ++byte)
            bytes.push_back(static_cast<char>((byte * 7 + round) % 256));
    desk.screen.files.emplace_back(desk.screen.put("figura.bmp", bytes));
    desk.click(editor, "mnuFileOpen");
    EXPECT_FALSE(editor.DocumentoNuevo());
    EXPECT_GT(editor.store(txtEdit).length(), 9000U);
    desk.click(editor, "mnuImprimir");
    EXPECT_EQ(desk.screen.printed.size(), 1U);
    EXPECT_EQ(desk.screen.content("figura.bmp"), bytes);
}

TEST(Editors, ReadLinesHoweverTheyEnd)
{
    ProgramDesk desk;
    Editor& editor = shown(desk, "frmEdito1");
    const std::pair<std::string_view, std::string_view> files[] = {{"", ""},
                                                                   {"a", "a\n"},
                                                                   {"a\r\n", "a\n"},
                                                                   {"a\nb", "a\nb\n"},
                                                                   {"a\rb\r", "a\nb\n"},
                                                                   {"\r\n\r\n", "\n\n"},
                                                                   {"\xEF\xBB\xBF"
                                                                    "ñ",
                                                                    "ñ\n"}};
    for (const auto& [bytes, text] : files) {
        desk.screen.files.emplace_back(desk.screen.put("a.txt", bytes));
        desk.click(editor, "mnuFileOpen");
        EXPECT_EQ(desk.text(editor, "txtEdit"), text);
    }
}

TEST(Editors, PrintInTheChosenFontAndTheTextEditorWithoutItsSize)
{
    host::Font chosen{.name = "DejaVu Serif",
                      .size = 18,
                      .bold = true,
                      .italic = true,
                      .underline = true,
                      .strikeout = true,
                      .color = 0x204060};
    for (const auto name : {"frmEdito1", "frmEdito2", "frmEdito3"}) {
        ProgramDesk desk;
        Editor& editor = shown(desk, name);
        desk.screen.nextFont = chosen;
        desk.click(editor, "mnuFontSizesItem");
        desk.write(editor, "txtEdit", "Hola");
        desk.click(editor, "mnuImprimir");
        ASSERT_EQ(desk.screen.printed.size(), 1U);
        const host::PrintJob& job = desk.screen.printed[0];
        const bool sized = std::string_view(name) != "frmEdito1";
        EXPECT_EQ(job.text, "Hola");
        EXPECT_EQ(job.fontSizeGiven, sized) << name;
        EXPECT_EQ(desk.screen.measured.size, sized ? 18 : 0) << name; // 0: the printer's own
        EXPECT_EQ(job.font.name, "DejaVu Serif");
        EXPECT_TRUE(job.font.bold && job.font.italic && job.font.underline && job.font.strikeout);
        EXPECT_EQ(job.font.color, 0x204060);
    }
}

TEST(Editors, TheColourDialogStartsOnRedAndTheFontDialogFromTheTextsOwnFont)
{
    ProgramDesk desk;
    Editor& editor = shown(desk, "frmEdito1");
    desk.click(editor, "mnuBackColorItem");
    desk.screen.nextColour = 0x00FF00;
    desk.click(editor, "mnuForeColorItem");
    EXPECT_EQ(desk.screen.colours, (std::vector<std::int32_t>{0xFF0000, 0xFF0000}));
    desk.click(editor, "mnuFontSizesItem");
    ASSERT_EQ(desk.screen.fonts.size(), 1U);
    EXPECT_EQ(desk.screen.fonts[0].color, 0x00FF00);
    EXPECT_EQ(editor.control(txtEdit).foreColor, 0x00FF00);
}

TEST(Editors, BringThePaletteBackWhenItFloats)
{
    ProgramDesk desk;
    desk.click(desk.engine.mainWindow(), "mnuFlotante");
    for (const auto name : {"frmEdito1", "frmEdito2", "frmEdito3"}) {
        Editor& editor = shown(desk, name);
        desk.engine.userRun([&] { desk.engine.host().Hide("Form16"); });
        desk.click(editor, "mnuCircuit");
        EXPECT_TRUE(desk.engine.defaultInstance("Form16")->shown()) << name;
        EXPECT_EQ(desk.engine.current(), &editor) << name;
    }
    EXPECT_FALSE(desk.visible(desk.engine.mainWindow(), "Picture14"));
}

TEST(Editors, KeysOpenTheSearchDialogsInEachOfThem)
{
    for (const auto name : {"frmEditor", "frmEdito1", "frmEdito2", "frmEdito3"}) {
        ProgramDesk desk;
        Editor& editor = shown(desk, name);
        for (std::size_t row = 0; row < editor.spec().shortcuts.size(); ++row)
            if (editor.spec().shortcuts[row].keys == "Ctrl+F" || editor.spec().shortcuts[row].keys == "Ctrl+H")
                desk.engine.userShortcut(editor, row);
        EXPECT_TRUE(desk.open("frmFind") && desk.open("frmReplace")) << name;
    }
}

TEST(Editors, AreNotAskedAtTheProgramsEnd)
{
    ProgramDesk desk;
    Editor& editor = shown(desk, "frmEdito1");
    desk.write(editor, "txtEdit", "Hola");
    desk.screen.answers = {Answer::yes};
    desk.engine.userClose(desk.engine.mainWindow());
    EXPECT_EQ(desk.screen.boxes.size(), 1U);
    EXPECT_TRUE(desk.engine.ended());
}

std::string longDocument(std::size_t bytes)
{
    std::string text;
    for (int line = 1; text.size() < bytes; ++line)
        text += "Renglon " + std::to_string(line) + " con datos medidos en el banco y una palabra cualquiera\r\n";
    return text;
}

// Reads a document of that size, replaces its last word, prints it and saves it at the exit; returns how long it took.
double secondsFor(std::size_t bytes)
{
    ProgramDesk desk;
    const std::string document = longDocument(bytes);
    desk.screen.put("Proy.Lab", document + "ULTIMO");
    desk.engine.values().ArchivoGuia = "Proy.Lab";
    const auto start = std::chrono::steady_clock::now();
    Editor& editor = shown(desk, "frmEdito1");
    const std::size_t length = editor.store(txtEdit).length();
    host::Window& dialog = desk.show("frmReplace");
    desk.write(dialog, "txtFind", "ULTIMO");
    desk.write(dialog, "txtReplace", "Z");
    desk.click(dialog, "cmdReplace");
    EXPECT_EQ(editor.store(txtEdit).length(), length - 5);
    EXPECT_TRUE(editor.DocumentoCambiado());
    desk.click(editor, "mnuImprimir");
    EXPECT_TRUE(desk.screen.printed[0].text.ends_with("Z\r\n"));
    EXPECT_LT(desk.screen.measurings, 60); // once for each character that occurs, not for each place where it stands
    desk.screen.answers = {Answer::yes};
    desk.click(editor, "mnuFileexit");
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(desk.screen.content("Proy.Lab").size(), document.size() + 5); // "Z", its line break and the saving's
    return taken.count();
}

// A tenfold text may take ten times as long; a routine that looks back at all it has done would take a hundred times.
TEST(Editors, HandleTenMegabytesInTimeThatGrowsWithTheText)
{
    const double small = secondsFor(1'000'000);
    const double large = secondsFor(10'000'000);
    EXPECT_LT(large, 40 * small + 2);
}

} // namespace velmor::editor_test
