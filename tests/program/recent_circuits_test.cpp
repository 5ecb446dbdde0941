// SPDX-License-Identifier: MIT
// The list of circuits opened and saved last: its order, its length, what stays in it and what is left out.
#include <filesystem>

#include <gtest/gtest.h>

#include "program/files.h"
#include "program/recent_circuits.h"
#include "program_desk.h"
#include "sheets/design_sheet.h"

namespace velmor::test::recent_circuits_test {

using program::RecentCircuit;
using program::RecentCircuits;
using Circuits = std::vector<RecentCircuit>;

struct RecentTest : ::testing::Test {
    sheets::DesignSheet& sheet() { return dynamic_cast<sheets::DesignSheet&>(*desk.engine.activeChild()); }

    /// A file that Form4 has written, whole, and so one that it reads to its end.
    std::string written(std::string_view name)
    {
        desk.engine.userRun([this] { desk.engine.host().Show(*desk.engine.host().NewInstance("Form4")); });
        const std::string path = (desk.screen.folder / name).string();
        desk.engine.userRun([&] {
            sheet().setNombreArchivo(path);
            sheet().Guardar();
        });
        return path;
    }

    ProgramDesk desk;
};

TEST_F(RecentTest, WhatWasSavedOrOpenedIsListedTheLatestFirst)
{
    const RecentCircuits recent(desk.engine);
    EXPECT_EQ(recent.present(), Circuits{});
    const std::string one = written("uno.BCC");
    const std::string two = written("dos y tres.BCC");
    EXPECT_EQ(recent.present(), (Circuits{{"Form4", two}, {"Form4", one}}));
    program::openFile(desk.engine, one);
    EXPECT_EQ(recent.present(), (Circuits{{"Form4", one}, {"Form4", two}})) << "and none stands twice";
}

TEST_F(RecentTest, ItOutlivesTheProgram)
{
    std::string path;
    {
        const RecentCircuits recent(desk.engine);
        path = written("uno.BCC");
    }
    DeskScreen screen;
    host::Engine next(program::catalogue(), screen, desk.settings);
    EXPECT_EQ(RecentCircuits(next).present(), (Circuits{{"Form4", path}}));
}

TEST_F(RecentTest, AGoneFileIsLeftOutQuietlyAndNamedAgainWhenItIsBack)
{
    const RecentCircuits recent(desk.engine);
    const std::string one = written("uno.BCC");
    const std::string two = written("dos.BCC");
    const std::string aside = (desk.screen.folder / "aside").string();
    std::filesystem::rename(one, aside);
    EXPECT_EQ(recent.present(), (Circuits{{"Form4", two}}));
    std::filesystem::rename(aside, one);
    EXPECT_EQ(recent.present(), (Circuits{{"Form4", two}, {"Form4", one}}));
    EXPECT_TRUE(desk.screen.boxes.empty());
}

TEST_F(RecentTest, ItHoldsTheEightLatest)
{
    const RecentCircuits recent(desk.engine);
    for (char letter = 'a'; letter <= 'j'; ++letter)
        written(std::string(1, letter) + ".BCC");
    const Circuits circuits = recent.present();
    ASSERT_EQ(circuits.size(), 8U);
    EXPECT_EQ(std::filesystem::path(circuits.front().path).filename(), "j.BCC");
    EXPECT_EQ(std::filesystem::path(circuits.back().path).filename(), "c.BCC");
}

TEST_F(RecentTest, ATextAndAFileThatFailedAreNoCircuits)
{
    const RecentCircuits recent(desk.engine);
    program::openFile(desk.engine, desk.screen.put("nota.txt", "a\r\n"));
    program::openFile(desk.engine, desk.screen.put("short.BCC", "1\r\n"));
    EXPECT_EQ(recent.present(), Circuits{});
}

TEST_F(RecentTest, WhatTheSettingsHoldAmissIsLeftOut)
{
    const std::string path = desk.screen.put("uno.BCC", "1\r\n");
    int key = 0;
    for (const std::string& value : {std::string("Form4"), std::string(), std::string("Form99 ") + path,
                                     std::string("Form4 /nowhere/x.BCC"), "Form4 " + path})
        desk.settings.setValue("Recientes", std::to_string(++key), value);
    EXPECT_EQ(RecentCircuits(desk.engine).present(), (Circuits{{"Form4", path}}));
}

} // namespace velmor::test::recent_circuits_test
