// SPDX-License-Identifier: MIT
// Files named at the start or dropped: which window opens each, what is asked, and what is said of those that cannot be read.
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "editors/editor.h"
#include "places.h"
#include "program/files.h"
#include "program_desk.h"
#include "sheets/design_sheet.h"

namespace velmor::test::files_test {

using Names = std::vector<std::string_view>;

/// What the course's table of file endings says, typed anew.
struct EndingRow {
    std::string_view sheet;
    std::string_view spanish;
    std::string_view english;
};

// clang-format off
constexpr EndingRow endings[] = {
    {"Form2",  "RPC", "CEC"}, {"desaco", "DES", "DESI"}, {"ParcDesac", "RPCD", "CECB"},
    {"Form8",  "RPT", "FVS"}, {"Form18", "RTE", "FVS"},
    {"Form4",  "BCC", "BCI"}, {"Form17", "CCC", "COC"},  {"Form9", "CIF", "PCI"},
    {"Form3",  "CDS", "LTP"}, {"Form13", "DCC", "LTC"},  {"Form12", "FCC", "DCS"},
    {"Form15", "SAC", "CAS"}, {"form20", "CAD", "DAC"},  {"Form10", "CBS", "CBS"}, {"Form11", "CBC", "CBD"},
};
// clang-format on

std::string lower(std::string_view ending)
{
    std::string result;
    for (const char letter : ending)
        result.push_back(static_cast<char>(letter - 'A' + 'a'));
    return result;
}

struct FilesTest : ::testing::Test {
    sheets::DesignSheet* active() { return dynamic_cast<sheets::DesignSheet*>(desk.engine.activeChild()); }
    editors::Editor* editor() { return dynamic_cast<editors::Editor*>(desk.engine.activeChild()); }

    ProgramDesk desk;
};

TEST_F(FilesTest, EachEndingOfBothLanguagesBelongsToItsSheetInAnyCapitals)
{
    for (const EndingRow& row : endings) {
        for (const std::string_view ending : {row.spanish, row.english}) {
            const Names expected = ending == "FVS" ? Names{"Form8", "Form18"} : Names{row.sheet};
            EXPECT_EQ(program::sheetsOf(desk.engine, "/a.b/x." + std::string(ending)), expected) << ending;
            EXPECT_EQ(program::sheetsOf(desk.engine, "x." + lower(ending)), expected) << ending;
        }
    }
    EXPECT_EQ(program::circuitEndings(desk.engine).size(), 2 * std::size(endings));
}

TEST_F(FilesTest, OtherNamesBelongToNoSheet)
{
    for (const std::string path : {"x.Lab", "x.txt", "x", "x.", "RPC", "/a.RPC/x", ".RPC", "x.RPC.txt", "x.RP"})
        EXPECT_EQ(program::sheetsOf(desk.engine, path), Names{}) << path;
}

TEST_F(FilesTest, ACircuitOpensInANewSheetUnderItsNameAndHoldsNothingUnsaved)
{
    host::Window& first = desk.show("Form2");
    const std::string path = desk.screen.put("bajo.rpc", "7\r\n80\r\n");
    program::openFile(desk.engine, path);
    ASSERT_NE(active(), nullptr);
    EXPECT_NE(active(), &first);
    EXPECT_EQ(active()->name(), "Form2");
    EXPECT_EQ(active()->NombreArchivo(), path);
    EXPECT_EQ(active()->caption(), "bajo");
    EXPECT_TRUE(desk.screen.boxes.empty());
}

TEST_F(FilesTest, ASharedEndingIsAskedAboutOnceAndEachAnswerOpensItsOwnSheet)
{
    const std::string path = desk.screen.put("uno.FVS", "1\r\n2\r\n");
    desk.screen.chosen = {1, 0};
    program::openFile(desk.engine, path);
    ASSERT_NE(active(), nullptr);
    EXPECT_EQ(active()->name(), "Form18");
    program::openFile(desk.engine, path);
    EXPECT_EQ(active()->name(), "Form8");
    ASSERT_EQ(desk.screen.choices.size(), 2U);
    EXPECT_EQ(desk.screen.choices[0].text, "El archivo \"uno.FVS\" puede ser de más de un circuito. ¿De cuál es?");
    EXPECT_EQ(desk.screen.choices[0].options, (std::vector<std::string>{"Circuito Realimentado por Tensión Simple",
                                                                        "Circuito Realimentado por Tensión Estable"}));
}

TEST_F(FilesTest, GivingTheQuestionUpOpensNothing)
{
    program::openFile(desk.engine, desk.screen.put("uno.FVS", "1\r\n"));
    EXPECT_EQ(desk.engine.activeChild(), nullptr);
    EXPECT_EQ(desk.screen.choices.size(), 1U);
    EXPECT_TRUE(desk.screen.boxes.empty());
}

TEST_F(FilesTest, NobodyIsAskedWhoseAFileIsThatCannotBeRead)
{
    program::openFile(desk.engine, (desk.screen.folder / "gone.FVS").string());
    EXPECT_TRUE(desk.screen.choices.empty());
    ASSERT_EQ(desk.screen.boxes.size(), 1U);
    EXPECT_EQ(desk.screen.boxes[0].text, "No se puede leer el archivo \"gone.FVS\".");
    EXPECT_EQ(desk.engine.activeChild(), nullptr);
}

TEST_F(FilesTest, AKnownSheetIsNotAskedFor)
{
    program::openCircuit(desk.engine, "Form18", desk.screen.put("uno.FVS", "1\r\n"));
    ASSERT_NE(active(), nullptr);
    EXPECT_EQ(active()->name(), "Form18");
    EXPECT_TRUE(desk.screen.choices.empty());
}

TEST_F(FilesTest, AFileThatComesWhileABoxIsOpenWaitsForItsAnswer)
{
    desk.screen.duringBox = [this] {
        program::openFile(desk.engine, desk.screen.put("dos.BCC", "1\r\n"));
        program::openCircuit(desk.engine, std::string("Form18"), desk.screen.put("tres.FVS", "1\r\n"));
        EXPECT_EQ(desk.engine.activeChild(), nullptr);
    };
    desk.engine.userRun([this] { desk.engine.host().MsgBox("?", 4, "Velmor"); });
    ASSERT_NE(active(), nullptr);
    EXPECT_EQ(active()->caption(), "tres");
    EXPECT_NE(desk.engine.instance("Form4", 0), nullptr);
}

TEST_F(FilesTest, ATextOpensInTheEditorOfTheLanguageWithoutAGuide)
{
    desk.engine.values().ArchivoGuia = "guia1.Lab";
    desk.screen.put("guia1.Lab", "otra");
    const std::string path = desk.screen.put("nota.txt", "a\xf1o\r\nfin");
    program::openFile(desk.engine, path);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->name(), "frmEdito1");
    EXPECT_EQ(editor()->wholeText(editors::txtEdit), "año\nfin\n");
    EXPECT_EQ(editor()->caption(), path);
    EXPECT_EQ(editor()->NombreDocumento(), path);
    EXPECT_FALSE(editor()->DocumentoNuevo());
    EXPECT_FALSE(editor()->DocumentoCambiado());
    desk.engine.values().LanguageIsEnglish = host::trueValue;
    program::openFile(desk.engine, path);
    EXPECT_EQ(editor()->name(), "frmEdito3");
}

TEST_F(FilesTest, WhatCannotBeReadIsSaidInOneSentenceAndOpensNothing)
{
    const std::string folder = (desk.screen.folder / "d.RPC").string();
    std::filesystem::create_directories(folder);
    const std::string gone = (desk.screen.folder / "gone.txt").string();
    const std::string large = desk.screen.put("large.RPC", std::string((1 << 20) + 1, '1'));
    const std::string picture = desk.screen.put("p.png", std::string("\x89PNG\0\1", 6));
    for (const std::string& path : {folder, gone, large, picture})
        program::openFile(desk.engine, path);
    EXPECT_EQ(desk.engine.activeChild(), nullptr);
    ASSERT_EQ(desk.screen.boxes.size(), 4U);
    EXPECT_EQ(desk.screen.boxes[0].text, "No se puede leer el archivo \"d.RPC\".");
    EXPECT_EQ(desk.screen.boxes[1].text, "No se puede leer el archivo \"gone.txt\".");
    EXPECT_EQ(desk.screen.boxes[2].text, "No se puede leer el archivo \"large.RPC\".");
    EXPECT_EQ(desk.screen.boxes[3].text, "El archivo \"p.png\" no es un circuito ni un texto.");
    desk.engine.values().LanguageIsEnglish = host::trueValue;
    program::openFile(desk.engine, gone);
    EXPECT_EQ(desk.screen.boxes[4].text, "The file \"gone.txt\" cannot be read.");
}

TEST_F(FilesTest, EverySheetReadsBackWhatItWroteAsAFileFromOutside)
{
    for (const EndingRow& row : endings) {
        desk.engine.userRun([&] {
            host::Window* made = desk.engine.host().NewInstance(row.sheet);
            desk.engine.host().Show(*made);
        });
        auto* sheet = active();
        ASSERT_NE(sheet, nullptr) << row.sheet;
        const std::string path = (desk.screen.folder / ("w." + std::string(row.spanish))).string();
        const std::string text = sheet->Datos();
        desk.engine.userRun([&] {
            sheet->setNombreArchivo(path);
            sheet->Guardar();
        });
        program::openFile(desk.engine, path);
        ASSERT_NE(active(), nullptr);
        EXPECT_NE(active(), sheet) << row.sheet;
        EXPECT_EQ(active()->name(), row.sheet);
        EXPECT_EQ(active()->NombreArchivo(), path);
        EXPECT_EQ(active()->modificado(), 0) << row.sheet;
    }
}

TEST_F(FilesTest, TheDesktopKnowsEveryEndingByItsType)
{
    std::ifstream file(places::source() + "/packaging/velmor-mime.xml");
    const std::string types{std::istreambuf_iterator<char>(file), {}};
    ASSERT_FALSE(types.empty());
    for (const EndingRow& row : endings)
        for (const std::string_view ending : {row.spanish, row.english})
            EXPECT_NE(types.find("<glob pattern=\"*." + lower(ending) + "\""), std::string::npos) << ending;
}

} // namespace velmor::test::files_test
