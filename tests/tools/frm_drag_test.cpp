// SPDX-License-Identifier: MIT
// The file browser against files that its own list would not show, and against folders and programs that fail.
#include "tools/frm_drag.h"

#include <gtest/gtest.h>

#include "program_desk.h"

namespace velmor::frm_drag_test {

using frm_drag::Dir1;
using frm_drag::Drive1;
using frm_drag::File1;
using frm_drag::Image1;
using test::ProgramDesk;

int indexOf(host::Window& window, host::Handle list, std::string_view entry)
{
    const std::vector<std::string>& items = window.list(list).items;
    for (std::size_t i = 0; i < items.size(); ++i)
        if (items[i] == entry)
            return static_cast<int>(i);
    return -1;
}

TEST(FileBrowser, ListsTheThreeKindsOfFileAndNoOther)
{
    ProgramDesk desk;
    for (const auto name : {"a.bmp", "b.EXE", "c.ewb", "d.txt", "ebmp", "f.bmpx", "exe", ".exe"})
        desk.screen.put(name, "");
    std::filesystem::create_directory(desk.screen.folder / "carpeta.bmp");
    host::Window& window = desk.show("frmDrag");
    EXPECT_EQ(window.list(File1).items, (std::vector<std::string>{".exe", "a.bmp", "b.EXE", "c.ewb"}));
    EXPECT_EQ(window.list(Dir1).items, (std::vector<std::string>{"..", "carpeta.bmp"}));
}

TEST(FileBrowser, SaysWhichTypesItTakesWhenAnythingElseIsDropped)
{
    for (const bool english : {false, true}) {
        ProgramDesk desk;
        desk.engine.values().LanguageIsEnglish = english ? host::trueValue : std::int16_t{0};
        const std::string shownBefore = desk.screen.put("dibujo.bmp", "BM");
        host::Window& window = desk.show("frmDrag");
        window.setPicture(Image1, shownBefore);
        window.list(File1).items = {"notas.txt"};
        desk.engine.userChoose(window, File1, 0);
        desk.engine.userDrag(window, File1, Image1);
        ASSERT_EQ(desk.screen.boxes.size(), 1U);
        EXPECT_EQ(desk.screen.boxes[0].text, english ? "Try one of these file types:\n      .bmp, .exe, .ewb"
                                                     : "Intente uno de estos tipos de fila:\n      .bmp, .exe, .ewb");
        EXPECT_EQ(desk.screen.boxes[0].flags, 0);
        EXPECT_EQ(window.picture(Image1), ""); // cleared all the same
        EXPECT_TRUE(desk.screen.runs.empty());
    }
}

TEST(FileBrowser, ShowsADroppedPictureAndRunsADroppedProgramWithoutAShell)
{
    ProgramDesk desk;
    const std::string picture = desk.screen.put("mi dibujo.bmp", "BM");
    const std::string program = desk.screen.put("a; rm -rf 'b'.exe", "");
    const std::string circuit = desk.screen.put("etapa \"1\" ñ.ewb", "");
    host::Window& window = desk.show("frmDrag");
    const auto drop = [&](std::string_view name) {
        desk.engine.userChoose(window, File1, indexOf(window, File1, name));
        desk.engine.userDrag(window, File1, Image1);
    };
    drop("mi dibujo.bmp");
    EXPECT_EQ(window.picture(Image1), picture);
    EXPECT_TRUE(desk.screen.runs.empty());
    drop("a; rm -rf 'b'.exe");
    EXPECT_EQ(window.picture(Image1), "");
    drop("etapa \"1\" ñ.ewb");
    const std::vector<std::pair<std::string, std::string>> expected{{program, ""}, {"c:\\ewb50\\Wewb32", circuit}};
    EXPECT_EQ(desk.screen.runs, expected);
    EXPECT_TRUE(desk.screen.boxes.empty()); // neither could be started, and nobody is told
}

TEST(FileBrowser, TheDragIconChangesOverTheComputer)
{
    ProgramDesk desk;
    desk.screen.put("a.exe", "");
    host::Window& window = desk.show("frmDrag");
    desk.engine.userChoose(window, File1, 0);
    EXPECT_EQ(window.tag(File1), "Drive1");
    desk.engine.userDragEnter(window, File1, Image1);
    EXPECT_EQ(window.tag(File1), "Dir1");
    desk.engine.userDragLeave(window, File1, Image1);
    EXPECT_EQ(window.tag(File1), "Drive1");
    EXPECT_TRUE(desk.screen.runs.empty());
}

TEST(FileBrowser, ADriveLeadsToItsRootAndAPathAtARootHasOneSlash)
{
    ProgramDesk desk;
    host::Window& window = desk.show("frmDrag");
    desk.engine.userChoose(window, Drive1, 0);
    EXPECT_EQ(window.list(Dir1).folder, "/");
    EXPECT_EQ(window.list(File1).folder, "/");
    window.list(File1).items = {"raiz.exe"};
    desk.engine.userChoose(window, File1, 0);
    desk.engine.userDrag(window, File1, Image1);
    ASSERT_EQ(desk.screen.runs.size(), 1U);
    EXPECT_EQ(desk.screen.runs[0].first, "/raiz.exe");
}

TEST(FileBrowser, AFolderThatIsGoneLeavesTheListsAsTheyWere)
{
    ProgramDesk desk;
    desk.screen.put("a.exe", "");
    desk.screen.put("Otra/b.exe", "");
    host::Window& window = desk.show("frmDrag");
    std::filesystem::remove_all(desk.screen.folder / "Otra");
    desk.engine.userChoose(window, Dir1, indexOf(window, Dir1, "Otra"));
    EXPECT_EQ(window.list(File1).items, std::vector<std::string>{"a.exe"});
    EXPECT_TRUE(desk.screen.boxes.empty());
    EXPECT_FALSE(desk.engine.ended());
}

} // namespace velmor::frm_drag_test
