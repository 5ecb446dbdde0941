// SPDX-License-Identifier: MIT
// The link line of each target is the law for its headers too. The checker first rejects what is wrong on purpose, in a small
// house of its own (house/CMakeLists.txt); then it reads the program.
#include <filesystem>
#include <fstream>
#include <stdlib.h>

#include <gtest/gtest.h>

#include "layers/rooms.h"
#include "places.h"

namespace velmor::layers {

namespace layers_test {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

House houseIn(const std::string& file)
{
    std::ifstream in(fs::path(places::build()) / file);
    return readHouse(in);
}

const Room& roomOf(const House& house, const std::string& target)
{
    for (const Room& room : house.rooms)
        if (room.target == target)
            return room;
    throw std::runtime_error("no target " + target);
}

/// The small house, with sources of the test's own.
class SmallHouse : public testing::Test {
protected:
    SmallHouse()
    {
        std::string name = (fs::temp_directory_path() / "velmor-house-XXXXXX").string();
        root_ = ::mkdtemp(name.data());
    }
    ~SmallHouse() override { fs::remove_all(root_); }

    Complaints withFile(const std::string& file, const std::string& text, std::span<const Allowance> allowances = {})
    {
        fs::create_directories((root_ / file).parent_path());
        std::ofstream(root_ / file) << text;
        return complaintsOf(house_, root_, allowances);
    }

    House house_ = houseIn("small_house.txt");
    fs::path root_;
};

TEST_F(SmallHouse, IsReadFromTheLinkLines)
{
    EXPECT_EQ(house_.leftOut, Names{"barred"});
    EXPECT_EQ(house_.rooms.size(), 6u);
    const Room& top = roomOf(house_, "house_top");
    EXPECT_EQ(top.folder, "top");
    EXPECT_EQ(top.sources, Names{"top/top.cpp"});
    EXPECT_EQ(top.shows, (Names{"left", "ground"}));
    EXPECT_EQ(top.uses, (Names{"left", "right", "ground"}));
    EXPECT_EQ(roomOf(house_, "house_painted").shows, (Names{"ground", "Qt"}));
    EXPECT_EQ(roomOf(house_, "house_program").uses, (Names{"painted", "top", "left", "ground", "Qt"}));
}

TEST_F(SmallHouse, AllowsWhatTheLinkLineReaches)
{
    EXPECT_EQ(withFile("ground/ground.h", "#include <vector>\n"), Complaints{});
    EXPECT_EQ(withFile("top/top.h", "#include \"left/left.h\"\n#include \"ground/ground.h\"\n"), Complaints{});
    EXPECT_EQ(withFile("top/top.cpp", "#include \"top/top.h\"\n#include \"right/right.h\"\n"), Complaints{});
    EXPECT_EQ(withFile("painted/painted.h", "#include <QWidget>\n#include <cstddef>\n"), Complaints{});
    EXPECT_EQ(withFile("painted/main.cpp", "#include \"top/top.h\"\n#include \"painted/painted.h\"\n"), Complaints{});
}

TEST_F(SmallHouse, RejectsAnIncludeThatPointsUp)
{
    EXPECT_EQ(withFile("ground/ground.h", "  # include \"top/top.h\"\n"),
              Complaints{"ground/ground.h: may not include \"top/top.h\" by the link line of house_ground"});
}

TEST_F(SmallHouse, RejectsAnIncludeOfASibling)
{
    EXPECT_EQ(withFile("left/left.cpp", "#include \"right/right.h\"\n"),
              Complaints{"left/left.cpp: may not include \"right/right.h\" by the link line of house_left"});
}

TEST_F(SmallHouse, RejectsWhatAHeaderShowsThoughOnlySourcesMayUseIt)
{
    EXPECT_EQ(withFile("top/top.h", "#include \"right/right.h\"\n"),
              Complaints{"top/top.h: may not include \"right/right.h\" by the link line of house_top"});
}

TEST_F(SmallHouse, RejectsInALibraryWhatItsProgramAloneMayUse)
{
    EXPECT_EQ(withFile("painted/painted.h", "#include \"top/top.h\"\n"),
              Complaints{"painted/painted.h: may not include \"top/top.h\" by the link line of house_painted"});
    EXPECT_EQ(withFile("painted/painted.h", "#include \"painted.h\"\n"),
              Complaints{"painted/painted.h: may not include \"painted.h\" by the link line of house_painted"});
}

TEST_F(SmallHouse, RejectsAFolderThatNobodyLists)
{
    EXPECT_EQ(withFile("attic/attic.h", ""), Complaints{"attic: belongs to no target"});
    EXPECT_EQ(withFile("painted/attic/more.h", ""),
              (Complaints{"attic: belongs to no target", "painted/attic: belongs to no target"}));
}

TEST_F(SmallHouse, RejectsASourceThatItsTargetDoesNotList)
{
    EXPECT_EQ(withFile("left/forgotten.cpp", ""),
              Complaints{"left/forgotten.cpp: is listed by no target of its folder"});
}

TEST_F(SmallHouse, RejectsQtWhereNoLinkLineHasIt)
{
    EXPECT_EQ(withFile("top/top.cpp", "#include <QString>\n"),
              Complaints{"top/top.cpp: includes <QString> without Qt in the link line of house_top"});
}

TEST_F(SmallHouse, RejectsHeadersThatAreNotStandardUnlessAllowed)
{
    constexpr Allowance allowed[] = {{"left/left.cpp", "unistd.h", "to see it work"}};
    const std::string text = "#include <unistd.h>\n";
    EXPECT_EQ(withFile("left/left.cpp", text),
              Complaints{"left/left.cpp: includes <unistd.h>, which is not of the standard library"});
    EXPECT_EQ(withFile("left/left.cpp", text, allowed), Complaints{});
    EXPECT_EQ(withFile("left/left.cpp", "", allowed),
              Complaints{"left/left.cpp: does not include <unistd.h>, which it is allowed to"});
    EXPECT_EQ(withFile("painted/painted.h", "#include <X11/Xlib.h>\n"),
              Complaints{"painted/painted.h: includes <X11/Xlib.h>, which is not of the standard library"});
}

TEST_F(SmallHouse, RejectsAnIncludeThatCannotBeRead)
{
    EXPECT_EQ(withFile("left/left.h", "#include HEADER\n"),
              Complaints{"left/left.h: includes HEADER, which cannot be read"});
}

TEST_F(SmallHouse, LooksAwayFromWhatTheBuildLeavesOut)
{
    EXPECT_EQ(withFile("barred/anything.cpp", "#include \"nowhere/nothing.h\"\n"), Complaints{});
    EXPECT_EQ(withFile("left/left.h", "#include \"barred/anything.h\"\n"),
              Complaints{"left/left.h: may not include \"barred/anything.h\" by the link line of house_left"});
}

// clang-format off
constexpr Allowance allowances[] = {
    // file                    header        reason
    {"check/program_run.cpp", "fcntl.h",    "the simulator runs with pipes that no other program inherits"},
    {"check/program_run.cpp", "poll.h",     "is heard and awaited at once, so that a flood of notes does not stop it"},
    {"check/program_run.cpp", "spawn.h",    "is started without copying this program"},
    {"check/program_run.cpp", "sys/wait.h", "is ended when its time is over"},
    {"check/program_run.cpp", "unistd.h",   "and leaves no pipe open"},
    {"keeping/kept_folder.cpp", "fcntl.h",    "the folder of a program is locked while it runs"},
    {"keeping/kept_folder.cpp", "sys/file.h", "by a lock that the system drops with the program, however that ends"},
    {"keeping/kept_folder.cpp", "sys/stat.h", "and that is no lock once its file has lost its name"},
    {"keeping/kept_folder.cpp", "unistd.h",   "folders of several programs differ by the number of the process"},
    {"keeping/program_mark.cpp", "fcntl.h",    "a running program marks itself"},
    {"keeping/program_mark.cpp", "sys/file.h", "with a lock that the system drops with it, too"},
    {"keeping/program_mark.cpp", "sys/stat.h", "on a file that nobody has taken away meanwhile"},
    {"keeping/program_mark.cpp", "unistd.h",   "and that goes with the program"},
    {"rules/whole_file.cpp", "fcntl.h",     "a save that is whole or not at all opens its file anew and without following links"},
    {"rules/whole_file.cpp", "sys/file.h",  "a file that is being written is locked, so that nobody takes it for a dead program's"},
    {"rules/whole_file.cpp", "sys/stat.h",  "and gives it the rights of the old one"},
    {"rules/whole_file.cpp", "unistd.h",    "and waits until the disk has it"},
    {"rules/whole_file.h",   "sys/types.h", "whose system calls a test replaces"},
};
// clang-format on

TEST(Layers, AreThoseOfTheLinkLines)
{
    const House house = houseIn("rooms.txt");
    EXPECT_GT(house.rooms.size(), 10u);
    EXPECT_EQ(complaintsOf(house, fs::path(places::source()) / "src", allowances), Complaints{});
}

TEST(Layers, KeepTheGroundFree)
{
    const House house = houseIn("rooms.txt");
    const Room& ground = roomOf(house, "velmor_host");
    EXPECT_EQ(ground.uses, Names{});
    EXPECT_EQ(ground.shows, Names{});
}

} // namespace layers_test

} // namespace velmor::layers
