// SPDX-License-Identifier: MIT
// What a walk prepares: answers, files, inputs, colours, fonts, clock, folder, settings.
#include <filesystem>
#include <fstream>

#include "console/fixture_program.h"
#include "places.h"

namespace velmor::console::test {

namespace walk_preparations_test {

TEST(WalkPreparations, ABoxWithoutAnAnswerTakesTheWayOut)
{
    EXPECT_TRUE(holds("menu mnuBox(0)\nexpect Said.text 1\n"
                      "menu mnuBox(1)\nexpect Said.text 2\n"
                      "menu mnuBox(2)\nexpect Said.text 2\n"
                      "menu mnuBox(3)\nexpect Said.text 7\n"));
}

TEST(WalkPreparations, AnswersAreUsedInTheirOrder)
{
    EXPECT_TRUE(holds("answer ok ok yes\nanswer no\nmenu mnuBox(0)\nmenu mnuBox(1)\nexpect Said.text 1\n"
                      "menu mnuBox(2)\nexpect Said.text 6\nmenu mnuBox(3)\nexpect Said.text 7\n"
                      "answer cancel\nmenu mnuBox(2)\nexpect Said.text 2\n"));
}

TEST(WalkPreparations, AnAnswerThatTheBoxDoesNotOfferIsAFailure)
{
    EXPECT_TRUE(failsWith("answer yes\nmenu mnuBox(1)\nexpect Said.text 2\n",
                          "w:2: menu mnuBox(1): the box \"Which\\nway?\" does not offer yes"));
}

TEST(WalkPreparations, AnswersLeftOverAreAFailure)
{
    EXPECT_TRUE(failsWith("answer ok no\nmenu mnuBox(0)\nexpect Said.text 1", "w:3: answers left over at the end: 1"));
}

TEST(WalkPreparations, AFileDialogReturnsThePathInTheProgramFolder)
{
    EXPECT_TRUE(holds("menu mnuOpen\nexpect Said.text none\n"
                      "file a.RPC\nfile /b.RPC\nfile cancel\nmenu mnuOpen\nexpect Said.text a.RPC\n"
                      "menu mnuSave\nexpect Said.text /b.RPC\nmenu mnuOpen\nexpect Said.text none\n"
                      "expect-dialog open \"Open it\" All|*.*\nexpect-dialog open \"Open it\"\nexpect-dialog save *\n"
                      "expect-dialog open * *\n"));
}

TEST(WalkPreparations, AnInputBoxReturnsTheText)
{
    EXPECT_TRUE(
        holds("menu mnuInput\nexpect Said.text none\ninput 12\ninput cancel\nmenu mnuInput\nexpect Said.text 12\n"
              "menu mnuInput\nexpect Said.text none\nexpect-dialog input Input \"How much?\"\n"));
}

TEST(WalkPreparations, AColourDialogReturnsTheColour)
{
    EXPECT_TRUE(
        holds("menu mnuColour\nexpect Said.text -1\ncolour 00000F\ncolour cancel\nmenu mnuColour\nexpect Said.text 15\n"
              "menu mnuColour\nexpect Said.text -1\nexpect-dialog colour \"\"\n"));
}

TEST(WalkPreparations, AFontDialogChangesNameSizeAndStyleAlone)
{
    EXPECT_TRUE(
        holds("menu mnuFont\nexpect Said.text none\nfont Arial 12\nfont cancel\nfont \"Courier New\" 9 italic bold\n"
              "menu mnuFont\nexpect Said.text \"Arial 12 underline\"\nmenu mnuFont\nexpect Said.text none\n"
              "menu mnuFont\nexpect Said.text \"Courier New 9 bold italic underline\"\nexpect-dialog font \"\"\n"));
}

TEST(WalkPreparations, TheClockGivesItsTextsFromNowOn)
{
    EXPECT_TRUE(holds("clock 3/4/2026 11:12\nmenu mnuClock\nexpect Said.text \"3/4/2026 11:12|3/4/2026|11:12\"\n"));
}

TEST(WalkPreparations, SettingsAreEmptyAtFirst)
{
    EXPECT_TRUE(holds("expect-setting Own key *none*\nsetting Own key mine\nexpect-setting Own key mine\n"
                      "menu mnuSaveSetting\nexpect-setting Own key saved\nexpect-setting own key *none*\n"));
}

TEST(WalkPreparations, WriteFileWritesExactlyTheTextInWindows1252)
{
    const std::filesystem::path folder = std::filesystem::path(places::build()) / "walk_preparations";
    std::filesystem::remove_all(folder);
    EXPECT_TRUE(
        holds("write-file " + inQuotes((folder / "a" / "b.txt").string()) + " \"ñ€Ω\\r\\n\"\nexpect-running\n"));
    std::ifstream written(folder / "a" / "b.txt", std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(written), {}), "\xF1\x80?\r\n");
}

TEST(WalkPreparations, AFileThatCannotBeWrittenStopsTheWalk)
{
    EXPECT_TRUE(stopsWith("write-file a x\nwrite-file a/b x\n", "w:2: the file \"a/b\" cannot be written"));
}

TEST(WalkPreparations, TheProgramFolderIsATemporaryOneUntilTheWalkNamesAnother)
{
    const std::filesystem::path folder = std::filesystem::path(places::build()) / "walk_folder";
    std::filesystem::create_directories(folder);
    EXPECT_TRUE(holds("menu mnuWhere\nexpect Said.text guide.Lab\n"
                      "write-file inner/x.txt one\nfolder inner\nexpect-file x.txt one\nwrite-file y.txt two\n"
                      "folder .\nexpect-file inner/y.txt two\n"
                      "folder " +
                      inQuotes(folder.string() + "/") +
                      "\nmenu mnuWhere\n"
                      "expect Said.text " +
                      inQuotes((folder / "guide.Lab").string()) + "\n"));
}

TEST(WalkPreparations, AFolderThatTheTemporaryOneLacksIsTheWorkingDirectorys)
{
    const std::filesystem::path before = std::filesystem::current_path();
    const std::filesystem::path folder = std::filesystem::path(places::build()) / "walk_working";
    std::filesystem::create_directories(folder / "guides");
    std::filesystem::current_path(folder);
    EXPECT_TRUE(holds("folder guides\nmenu mnuWhere\nexpect Said.text " +
                      inQuotes((folder / "guides" / "guide.Lab").string()) + "\n"));
    EXPECT_TRUE(holds("folder nowhere\nwrite-file x.txt y\nexpect-file x.txt y\n"));
    EXPECT_FALSE(std::filesystem::exists(folder / "nowhere"));
    std::filesystem::current_path(before);
}

TEST(WalkPreparations, TheTemporaryFolderIsGoneAtTheEnd)
{
    std::filesystem::path path;
    {
        TemporaryFolder folder;
        path = folder.path();
        EXPECT_TRUE(std::filesystem::is_empty(path));
        std::ofstream(path / "x") << "x";
    }
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(WalkPreparations, ASecondInstanceIsToldToTheProgram)
{
    EXPECT_TRUE(holds("menu mnuWho\nexpect Said.text alone\n"));
    EXPECT_TRUE(holds("second-instance\nmenu mnuWho\nexpect Said.text \"another runs\"\n"));
}

} // namespace walk_preparations_test

} // namespace velmor::console::test
