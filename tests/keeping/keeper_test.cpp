// SPDX-License-Identifier: MIT
// What is kept, when it is dropped, and that it comes back as it stood.
#include "keeping/keeper.h"

#include <gtest/gtest.h>

#include <fstream>

#include "console/whole_program.h"
#include "host/failure.h"
#include "host/state_change.h"
#include "host/state_text.h"
#include "program_desk.h"
#include "rules/scratch_folder.h"
#include "sheets/design_sheet.h"

namespace velmor::keeper_test {

namespace fs = std::filesystem;
using keeping::Keeper;
using sheets::DesignSheet;

/// A program with a keeper, and what a person does in it.
struct Kept {
    Kept(const fs::path& folder, std::int64_t& time, bool inThread = false)
        : keeper(desk.engine, {.folder = folder, .now = [&time] { return time; }, .inThread = inThread})
    {
        keeper.wake = [this] { ++wakings; };
        keeper.offerChanged = [this] { ++offers; };
    }
    DesignSheet& sheet(std::string_view name = "Form2")
    {
        console::wholeProgram().newSheet(desk.engine, *desk.engine.specOf(name));
        return dynamic_cast<DesignSheet&>(*desk.engine.instance(name, 0));
    }
    /// Types a value into the field in hand and goes on.
    void enter(host::Window& window, std::string_view value)
    {
        desk.engine.userKey(window, '5');
        desk.engine.userText(window, window.focus(), value);
        desk.engine.userKey(window, 13);
    }
    void work()
    {
        while (keeper.work())
            ++slices;
    }
    void end()
    {
        desk.engine.userRun([this] { desk.engine.host().endProgram(); });
    }

    test::ProgramDesk desk;
    Keeper keeper;
    int wakings = 0;
    int offers = 0;
    int slices = 0;
};

struct KeeperTest : testing::Test {
    rules::ScratchFolder scratch;
    fs::path root = scratch / "velmor";
    std::int64_t time = 1'000'000;

    std::vector<fs::path> files() const
    {
        std::vector<fs::path> found;
        std::error_code error;
        for (const auto& entry : fs::recursive_directory_iterator(root, error))
            if (entry.path().extension() == ".state" && entry.path().parent_path().filename() != "dropped")
                found.push_back(entry.path());
        std::sort(found.begin(), found.end());
        return found;
    }
    static std::string content(const fs::path& path)
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// The text of the state of the one file that is there.
    std::string onlyState() const
    {
        const auto all = files();
        EXPECT_EQ(all.size(), 1u);
        if (all.size() != 1)
            return {};
        const std::string text = content(all[0]);
        return text.substr(text.find('\n') + 1);
    }
    static std::string stateOf(Kept& program, host::Window& window)
    {
        host::WindowState state = *program.desk.engine.stateOf(window);
        state.longTexts = host::longTextsOf(window);
        return host::stateText(state);
    }
};

TEST_F(KeeperTest, KeepsNothingOfAnUntouchedSheet)
{
    Kept program(root, time);
    DesignSheet& sheet = program.sheet();
    program.desk.engine.userHover(sheet, sheet.named("Text1"));
    program.desk.engine.userHover(sheet, host::noControl);
    program.work();
    EXPECT_FALSE(fs::exists(root));
}

TEST_F(KeeperTest, KeepsAChangedSheetAsItStands)
{
    Kept program(root, time);
    DesignSheet& sheet = program.sheet();
    program.wakings = 0;
    program.enter(sheet, "5");
    EXPECT_EQ(program.wakings, 1) << "once is enough";
    EXPECT_TRUE(files().empty()) << "nothing on the way of a key";
    program.work();
    EXPECT_EQ(onlyState(), stateOf(program, sheet));
    program.enter(sheet, "60");
    EXPECT_EQ(program.wakings, 2);
    program.work();
    EXPECT_EQ(onlyState(), stateOf(program, sheet));
}

TEST_F(KeeperTest, KeepsAChoiceThatWasOnlyClicked)
{
    Kept program(root, time);
    DesignSheet& sheet = program.sheet("Form3");
    sheet.setModificado(0);
    const host::Handle field = sheet.named("Text1");
    program.desk.engine.userText(sheet, field, "7");
    program.work();
    EXPECT_EQ(files().size(), 1u);
}

TEST_F(KeeperTest, WritesNothingTwice)
{
    Kept program(root, time);
    DesignSheet& sheet = program.sheet();
    program.enter(sheet, "5");
    program.work();
    fs::resize_file(files().at(0), 0);
    program.desk.engine.userHover(sheet, host::noControl);
    program.desk.engine.userHover(sheet, host::noControl);
    program.work();
    const std::string stood = stateOf(program, sheet);
    fs::resize_file(files().at(0), 0);
    program.desk.engine.userHover(sheet, host::noControl);
    ASSERT_EQ(stateOf(program, sheet), stood);
    program.work();
    EXPECT_EQ(content(files().at(0)), "");
}

TEST_F(KeeperTest, ASaveThatSucceededDropsWhatIsKept)
{
    Kept program(root, time);
    DesignSheet& sheet = program.sheet("Form3");
    program.enter(sheet, "5");
    program.work();
    ASSERT_EQ(files().size(), 1u);
    sheet.setNombreArchivo((scratch / "a.RPC").string());
    program.desk.engine.userRun([&] { sheet.Guardar(); });
    EXPECT_TRUE(files().empty());
    program.work();
    EXPECT_TRUE(files().empty());
    // What comes afterwards is work again.
    program.enter(sheet, "6");
    program.work();
    EXPECT_EQ(files().size(), 1u);
}

TEST_F(KeeperTest, ASaveThatFailedDropsNothing)
{
    Kept program(root, time);
    DesignSheet& sheet = program.sheet("Form3");
    program.enter(sheet, "5");
    program.work();
    sheet.setNombreArchivo((scratch / "no such folder" / "a.RPC").string());
    program.desk.engine.userRun([&] { sheet.Guardar(); });
    program.work();
    EXPECT_EQ(files().size(), 1u);
}

TEST_F(KeeperTest, ANoToItsOwnQuestionDropsItWithTheWindow)
{
    Kept program(root, time);
    DesignSheet& sheet = program.sheet("Form3");
    program.enter(sheet, "5");
    program.work();
    program.desk.screen.answers = {host::Answer::no};
    program.desk.engine.userClose(sheet);
    EXPECT_TRUE(files().empty());
    EXPECT_TRUE(program.keeper.offer().empty());
}

TEST_F(KeeperTest, AYesWhoseSaveFailsKeepsItAndOffersItAtOnce)
{
    Kept program(root, time);
    DesignSheet& sheet = program.sheet("Form3");
    program.enter(sheet, "5");
    const std::string stood = stateOf(program, sheet);
    program.desk.screen.answers = {host::Answer::yes};
    program.desk.screen.files = {(scratch / "no such folder" / "a.RPC").string()};
    program.desk.engine.userClose(sheet);
    EXPECT_FALSE(program.desk.open("Form3"));
    EXPECT_EQ(program.keeper.offer().designs, 1);
    EXPECT_EQ(program.keeper.offer().time, time);
    EXPECT_EQ(program.offers, 1);
    ASSERT_EQ(files().size(), 1u);
    EXPECT_TRUE(program.keeper.openOffered());
    EXPECT_TRUE(program.desk.open("Form3"));
    EXPECT_TRUE(program.keeper.offer().empty());
    const std::string text = stateOf(program, *program.desk.engine.instance("Form3", 0));
    EXPECT_NE(text.find("Text1.text \"5\""), std::string::npos) << text;
    EXPECT_EQ(files().size(), 1u) << "it is open again, and kept again";
}

// The sheet cannot save under a name that it has not got.
TEST_F(KeeperTest, AYesOnForm2ThatCannotSaveKeepsIt)
{
    Kept program(root, time);
    DesignSheet& sheet = program.sheet("Form2");
    program.enter(sheet, "5");
    program.desk.screen.answers = {host::Answer::yes};
    program.desk.engine.userClose(sheet);
    EXPECT_FALSE(program.desk.open("Form2"));
    EXPECT_EQ(program.keeper.offer().designs, 1);
    EXPECT_EQ(files().size(), 1u);
}

// One sheet was given up, the next one refuses: the whole exit is off, and both are worked on.
TEST_F(KeeperTest, AnExitThatIsCancelledDropsNothing)
{
    Kept program(root, time);
    DesignSheet& first = program.sheet("Form3");
    program.enter(first, "5");
    DesignSheet& second = program.sheet("Form3");
    program.enter(second, "6");
    program.work();
    program.desk.screen.answers = {host::Answer::yes, host::Answer::no, host::Answer::cancel};
    program.desk.engine.userClose(program.desk.engine.mainWindow());
    ASSERT_FALSE(program.desk.engine.ended());
    program.work();
    EXPECT_EQ(files().size(), 2u);
    program.end();
    EXPECT_EQ(files().size(), 2u) << "the No of an exit that did not take place counts no longer";
}

TEST_F(KeeperTest, AnExitThatAsksDropsWhatWasAnsweredByNoAlone)
{
    {
        Kept program(root, time);
        DesignSheet& first = program.sheet("Form3");
        program.enter(first, "5");
        DesignSheet& second = program.sheet("Form2");
        program.enter(second, "6");
        program.work();
        program.desk.screen.answers = {host::Answer::yes, host::Answer::no, host::Answer::yes};
        program.desk.engine.userClose(program.desk.engine.mainWindow());
        ASSERT_TRUE(program.desk.engine.ended());
    }
    ASSERT_EQ(files().size(), 1u);
    EXPECT_TRUE(files()[0].filename().string().ends_with("Form2.state"));
}

TEST_F(KeeperTest, AnEndThatAsksNobodyKeepsEverythingAsItStood)
{
    std::string stood;
    {
        Kept program(root, time);
        DesignSheet& sheet = program.sheet();
        program.enter(sheet, "5");
        stood = stateOf(program, sheet);
        program.end();
    }
    EXPECT_EQ(onlyState(), stood);
}

TEST_F(KeeperTest, AnArithmeticEndKeepsTheStateBeforeTheFatalEventAndSaysSo)
{
    std::string stood;
    {
        Kept program(root, time);
        DesignSheet& sheet = program.sheet();
        program.enter(sheet, "5");
        program.desk.engine.userText(sheet, sheet.focus(), "61");
        stood = stateOf(program, sheet);
        program.desk.engine.userRun([&] {
            sheet.setText(sheet.named("Text1"), "half done");
            throw host::ProgramFailure(host::FailureKind::overflow);
        });
        ASSERT_TRUE(program.desk.engine.ended());
        ASSERT_EQ(program.desk.screen.failures.size(), 1u);
        EXPECT_NE(program.desk.screen.failures[0].find("Su trabajo está guardado"), std::string::npos);
        EXPECT_EQ(onlyState(), stood) << "on the disk before anything is said";
    }
    EXPECT_EQ(onlyState(), stood);
}

// A collector voltage beyond the whole numbers of the course ends the program when the supply is left.
TEST_F(KeeperTest, ADesignThatEndsByArithmeticIsThereAtTheNextStart)
{
    {
        Kept program(root, time);
        DesignSheet& sheet = program.sheet();
        program.desk.engine.userText(sheet, sheet.named("Text5"), "40000");
        for (int step = 0; step < 11; ++step)
            program.desk.engine.userKey(sheet, 13);
        ASSERT_EQ(sheet.focus(), sheet.named("Text16"));
        program.desk.engine.userText(sheet, sheet.focus(), "40");
        program.desk.engine.userKey(sheet, 13);
        ASSERT_TRUE(program.desk.engine.ended());
        ASSERT_EQ(program.desk.screen.failures.size(), 1u);
        EXPECT_NE(program.desk.screen.failures[0].find("Su trabajo está guardado"), std::string::npos);
    }
    Kept next(root, time);
    next.keeper.look();
    EXPECT_EQ(next.keeper.offer().designs, 1);
    ASSERT_TRUE(next.keeper.openOffered());
    host::Window& sheet = *next.desk.engine.activeChild();
    EXPECT_EQ(next.desk.text(sheet, "Text5"), "40000");
    EXPECT_EQ(next.desk.text(sheet, "Text16"), "40");
    EXPECT_EQ(sheet.focus(), sheet.named("Text16"));
}

TEST_F(KeeperTest, AnArithmeticEndPromisesNothingThatIsNotKept)
{
    scratch.put("velmor", "in the way");
    Kept program(root, time);
    DesignSheet& sheet = program.sheet();
    program.enter(sheet, "5");
    program.desk.engine.userRun([] { throw host::ProgramFailure(host::FailureKind::overflow); });
    ASSERT_EQ(program.desk.screen.failures.size(), 1u);
    EXPECT_EQ(program.desk.screen.failures[0].find("guardado"), std::string::npos);
}

TEST_F(KeeperTest, WhatAProgramLeftComesBackAsItStood)
{
    std::vector<std::string> stood;
    {
        Kept program(root, time);
        DesignSheet& first = program.sheet("Form3");
        program.enter(first, "5");
        DesignSheet& second = program.sheet("Form2");
        program.enter(second, "5");
        program.enter(second, "61");
        second.setCaption("As it stood");
        program.desk.engine.userHover(second, host::noControl);
        stood = {stateOf(program, first), stateOf(program, second)};
        program.end();
    }
    time += 3600;
    Kept next(root, time);
    next.sheet("Form2");
    EXPECT_TRUE(next.keeper.offer().empty());
    next.keeper.look();
    EXPECT_EQ(next.offers, 1);
    EXPECT_EQ(next.keeper.offer().designs, 2);
    EXPECT_EQ(next.keeper.offer().texts, 0);
    EXPECT_EQ(next.keeper.offer().time, 1'000'000);
    EXPECT_TRUE(next.keeper.openOffered());
    EXPECT_EQ(next.offers, 2);
    EXPECT_TRUE(next.keeper.offer().empty());
    const auto windows = next.desk.engine.windows();
    ASSERT_EQ(windows.size(), 4u) << "main window, first sheet, and the two";
    const auto stands = [&](host::Window& window) { return host::stateText(*next.desk.engine.stateOf(window)); };
    EXPECT_EQ(windows[2]->text(windows[2]->named("Text1")), "5");
    EXPECT_EQ(windows[3]->caption(), "As it stood");
    EXPECT_EQ(next.desk.engine.activeChild(), windows[3]);
    // But for places in the order of use, each is what it was.
    const auto withoutTurn = [](const std::string& text) {
        const std::string rest = text.substr(0, text.rfind("end "));
        const auto turn = rest.find("window.turn ");
        return turn == std::string::npos ? rest : rest.substr(0, turn) + rest.substr(rest.find('\n', turn) + 1);
    };
    EXPECT_EQ(withoutTurn(stands(*windows[3])), withoutTurn(stood[1]));
    EXPECT_EQ(files().size(), 2u) << "kept by this program now";
    next.desk.screen.answers = {host::Answer::no};
    next.desk.engine.userClose(*windows[3]);
    EXPECT_EQ(files().size(), 1u);
}

TEST_F(KeeperTest, WhatIsDroppedIsKeptAmongTheDroppedOnes)
{
    {
        Kept program(root, time);
        program.enter(program.sheet(), "5");
    }
    ASSERT_EQ(files().size(), 1u);
    {
        Kept next(root, time);
        next.keeper.look();
        next.keeper.dropOffered();
        EXPECT_TRUE(next.keeper.offer().empty());
        EXPECT_EQ(next.keeper.droppedFolder(), root / "dropped");
    }
    EXPECT_TRUE(files().empty());
    EXPECT_FALSE(fs::is_empty(root / "dropped"));
    Kept third(root, time);
    third.keeper.look();
    EXPECT_TRUE(third.keeper.offer().empty());
}

TEST_F(KeeperTest, ADamagedFileSaysNoWordAndTheRestIsOffered)
{
    {
        Kept program(root, time);
        program.enter(program.sheet(), "5");
        program.enter(program.sheet("Form3"), "5");
    }
    const std::string text = content(files().at(0));
    std::ofstream(files().at(0), std::ios::binary) << text.substr(0, text.size() / 2);
    Kept next(root, time);
    next.keeper.look();
    EXPECT_EQ(next.keeper.offer().designs, 1);
    EXPECT_TRUE(next.keeper.openOffered());
}

TEST_F(KeeperTest, KeepsAnEditorsTextInSlices)
{
    std::string document;
    while (document.size() < 200'000)
        document += "Una línea del informe, tan larga como suelen ser.\n";
    {
        Kept program(root, time);
        program.desk.engine.userRun([&] { program.desk.engine.host().Show("frmEdito3"); });
        host::Window& editor = *program.desk.engine.instance("frmEdito3", 0);
        program.work();
        EXPECT_TRUE(files().empty()) << "a guide that is only read";
        program.desk.write(editor, "txtEdit", document);
        program.work();
        EXPECT_GT(program.slices, 5);
        EXPECT_EQ(onlyState(), stateOf(program, editor));
        program.slices = 0;
        program.work();
        EXPECT_EQ(program.slices, 0);
    }
    Kept next(root, time);
    next.keeper.look();
    EXPECT_EQ(next.keeper.offer().texts, 1);
    next.keeper.openOffered();
    EXPECT_EQ(next.desk.text(*next.desk.engine.instance("frmEdito3", 0), "txtEdit"), document);
}

TEST_F(KeeperTest, AnEditorThatIsSavedIsWorkAgainOnlyWhenItIsWrittenIn)
{
    Kept program(root, time);
    program.desk.engine.userRun([&] { program.desk.engine.host().Show("frmEdito3"); });
    host::Window& editor = *program.desk.engine.instance("frmEdito3", 0);
    program.desk.write(editor, "txtEdit", "Informe");
    program.work();
    ASSERT_EQ(files().size(), 1u);
    program.desk.screen.files = {(scratch / "a.txt").string()};
    program.desk.click(editor, "mnuFileSaveAs");
    program.work();
    EXPECT_TRUE(files().empty());
    program.desk.write(editor, "txtEdit", "Informe 2");
    program.work();
    EXPECT_EQ(files().size(), 1u);
}

TEST_F(KeeperTest, AFolderThatCannotBeWrittenIsTriedAgainWithoutAWord)
{
    scratch.put("velmor", "in the way");
    Kept program(root, time);
    DesignSheet& sheet = program.sheet();
    program.enter(sheet, "5");
    program.work();
    EXPECT_TRUE(program.desk.screen.boxes.empty());
    fs::remove(root);
    program.wakings = 0;
    program.desk.engine.userHover(sheet, host::noControl);
    EXPECT_EQ(program.wakings, 1);
    program.work();
    EXPECT_EQ(onlyState(), stateOf(program, sheet));
}

TEST_F(KeeperTest, ABoxThatStandsDoesNotHoldUpWhatWasThereBefore)
{
    Kept program(root, time);
    DesignSheet& sheet = program.sheet();
    program.enter(sheet, "5");
    const std::string stood = stateOf(program, sheet);
    program.desk.screen.duringBox = [&] {
        program.work();
        EXPECT_EQ(onlyState(), stood);
    };
    program.desk.engine.userRun([&] {
        sheet.setText(sheet.named("Text3"), "half done");
        program.desk.engine.host().MsgBox("wait", 0, "");
    });
    EXPECT_EQ(files().size(), 1u);
}

TEST_F(KeeperTest, TwoProgramsAtOnceDoNotMix)
{
    Kept one(root, time);
    Kept other(root, time);
    one.enter(one.sheet(), "5");
    other.enter(other.sheet("Form3"), "6");
    one.work();
    other.work();
    EXPECT_EQ(files().size(), 2u);
    one.keeper.look();
    other.keeper.look();
    EXPECT_TRUE(one.keeper.offer().empty());
    EXPECT_TRUE(other.keeper.offer().empty());
}

TEST_F(KeeperTest, AThreadOfItsOwnWritesTheSame)
{
    std::string stood;
    {
        Kept program(root, time, true);
        DesignSheet& sheet = program.sheet();
        for (int i = 0; i < 50; ++i) {
            program.enter(sheet, std::to_string(i % 9 + 1));
            program.work();
        }
        stood = stateOf(program, sheet);
    }
    EXPECT_EQ(onlyState(), stood);
}

TEST_F(KeeperTest, UndoIsKeptToo)
{
    Kept program(root, time);
    DesignSheet& sheet = program.sheet();
    program.enter(sheet, "5");
    program.work();
    program.wakings = 0;
    ASSERT_TRUE(program.desk.engine.userStep(host::Direction::back));
    EXPECT_EQ(program.wakings, 1);
    program.work();
    EXPECT_EQ(onlyState(), stateOf(program, sheet));
}

} // namespace velmor::keeper_test
