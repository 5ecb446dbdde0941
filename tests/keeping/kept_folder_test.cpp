// SPDX-License-Identifier: MIT
// The folder of kept work: whole files, one program beside another, what is left, dropped and damaged, and no harm anywhere.
#include "keeping/kept_folder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include "rules/scratch_folder.h"

namespace velmor::kept_folder_test {

namespace fs = std::filesystem;
using keeping::KeptFolder;
using keeping::LeftFile;

struct KeptFolderTest : testing::Test {
    std::int64_t time = 1'000'000;
    rules::ScratchFolder scratch;
    fs::path root = scratch / "velmor";
    keeping::Clock now = [this] { return time; };

    /// A program that writes and is gone without a farewell.
    void leftBy(const std::vector<std::pair<std::string, std::string>>& files)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            KeptFolder folder(root, now);
            for (const auto& [name, state] : files)
                folder.write(name, state);
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
    }
    static std::vector<std::string> statesOf(const std::vector<LeftFile>& files)
    {
        std::vector<std::string> states;
        for (const LeftFile& file : files)
            states.push_back(file.state);
        return states;
    }
    /// Everything below the root but locks.
    std::vector<std::string> there() const
    {
        std::vector<std::string> names;
        std::error_code error;
        for (const auto& entry : fs::recursive_directory_iterator(root, error))
            if (entry.is_regular_file() && entry.path().filename() != "lock")
                names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
};

TEST_F(KeptFolderTest, TouchesNothingUntilSomethingIsKept)
{
    {
        KeptFolder folder(root, now);
        EXPECT_TRUE(folder.takeLeft().empty());
        folder.forget("1.state");
    }
    EXPECT_FALSE(fs::exists(root));
}

TEST_F(KeptFolderTest, LeavesNothingBehindWhenNothingIsKept)
{
    {
        KeptFolder folder(root, now);
        EXPECT_TRUE(folder.write("1.state", "one"));
        EXPECT_TRUE(folder.write("1.state", "two"));
        EXPECT_EQ(there(), std::vector<std::string>{"1.state"});
        folder.forget("1.state");
    }
    EXPECT_TRUE(fs::is_empty(root));
}

TEST_F(KeptFolderTest, NobodyElseMayLookIntoIt)
{
    KeptFolder folder(root, now);
    folder.write("1.state", "one");
    EXPECT_EQ(fs::status(root).permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(folder.pathOf("1.state").parent_path()).permissions(), fs::perms::owner_all);
}

TEST_F(KeptFolderTest, GivesWhatAProgramLeftWithItsTime)
{
    leftBy({{"2.state", "second\nof two\n"}, {"1.state", "first"}});
    time += 500;
    KeptFolder folder(root, now);
    const std::vector<LeftFile> left = folder.takeLeft();
    EXPECT_EQ(statesOf(left), (std::vector<std::string>{"first", "second\nof two\n"}));
    EXPECT_EQ(left[0].time, 1'000'000);
    EXPECT_TRUE(folder.takeLeft().empty()) << "it is taken";
}

TEST_F(KeptFolderTest, LeavesARunningProgramAlone)
{
    KeptFolder running(root, now);
    running.write("1.state", "mine");
    KeptFolder other(root, now);
    EXPECT_TRUE(other.takeLeft().empty());
    other.write("1.state", "of the other");
    EXPECT_TRUE(running.takeLeft().empty());
    EXPECT_NE(running.pathOf("1.state"), other.pathOf("1.state"));
    EXPECT_EQ(there().size(), 2u);
}

TEST_F(KeptFolderTest, TwoProgramsDoNotOfferTheSame)
{
    leftBy({{"1.state", "left"}});
    KeptFolder first(root, now);
    KeptFolder second(root, now);
    EXPECT_EQ(first.takeLeft().size(), 1u);
    EXPECT_TRUE(second.takeLeft().empty());
}

TEST_F(KeptFolderTest, WhatNobodyOpenedIsOfferedToTheNext)
{
    leftBy({{"1.state", "left"}});
    {
        KeptFolder later(root, now);
        EXPECT_EQ(later.takeLeft().size(), 1u);
    }
    KeptFolder next(root, now);
    EXPECT_EQ(next.takeLeft().size(), 1u);
}

TEST_F(KeptFolderTest, AFolderGoesWithItsLastFile)
{
    leftBy({{"1.state", "left"}});
    {
        KeptFolder folder(root, now);
        folder.remove(folder.takeLeft().at(0).path);
    }
    EXPECT_TRUE(fs::is_empty(root));
}

TEST_F(KeptFolderTest, DroppedWorkLiesThereForSevenDaysMore)
{
    leftBy({{"1.state", "left"}, {"2.state", "left too"}});
    {
        KeptFolder folder(root, now);
        for (const LeftFile& file : folder.takeLeft())
            folder.drop(file.path);
        EXPECT_EQ(folder.droppedFolder(), root / "dropped");
    }
    EXPECT_EQ(there(), (std::vector<std::string>{"1000000-1-1.state", "1000000-1-2.state"}));
    scratch.put("velmor/dropped/a note of the student", "");
    time += 7 * 24 * 60 * 60;
    EXPECT_TRUE(KeptFolder(root, now).takeLeft().empty());
    EXPECT_EQ(there().size(), 3u);
    time += 1;
    EXPECT_TRUE(KeptFolder(root, now).takeLeft().empty());
    EXPECT_EQ(there(), std::vector<std::string>{"a note of the student"});
}

TEST_F(KeptFolderTest, DroppedWorkOfOneNameDoesNotReplaceTheOther)
{
    leftBy({{"1.state", "one"}});
    leftBy({{"1.state", "two"}});
    KeptFolder folder(root, now);
    for (const LeftFile& file : folder.takeLeft())
        folder.drop(file.path);
    EXPECT_EQ(there(), (std::vector<std::string>{"1000000-1-1.state", "1000000-2-1.state"}));
}

TEST_F(KeptFolderTest, ADamagedFileIsSetAsideAndTheRestIsKept)
{
    leftBy({{"1.state", "left"}, {"2.state", "whole"}});
    for (const auto& entry : fs::recursive_directory_iterator(root))
        if (entry.path().filename() == "1.state")
            fs::resize_file(entry.path(), 5);
    KeptFolder folder(root, now);
    EXPECT_EQ(statesOf(folder.takeLeft()), std::vector<std::string>{"whole"});
    EXPECT_EQ(there(), (std::vector<std::string>{"1000000-1-1.state", "2.state"}));
}

TEST_F(KeptFolderTest, WhatASaveLeftUnfinishedGoes)
{
    leftBy({{"1.state", "left"}});
    const fs::path folder = fs::directory_iterator(root)->path();
    std::ofstream(folder / ".1.state.x7Hq") << "half";
    fs::create_directory(root / ".9999-unfinished");
    KeptFolder next(root, now);
    EXPECT_EQ(next.takeLeft().size(), 1u);
    EXPECT_EQ(there(), std::vector<std::string>{"1.state"});
    EXPECT_FALSE(fs::exists(root / ".9999-unfinished"));
}

TEST_F(KeptFolderTest, APlaceThatCannotBeWrittenDoesNoHarm)
{
    scratch.put("file", "in the way");
    KeptFolder folder(scratch / "file", now);
    EXPECT_FALSE(folder.write("1.state", "one"));
    EXPECT_TRUE(folder.pathOf("1.state").empty());
    EXPECT_TRUE(folder.takeLeft().empty());
    folder.drop(folder.pathOf("1.state"));
    folder.remove(folder.pathOf("1.state"));
    EXPECT_EQ(scratch.content("file"), "in the way");
    KeptFolder nowhere("/proc/velmor", now);
    EXPECT_FALSE(nowhere.write("1.state", "one"));
}

TEST_F(KeptFolderTest, IsMadeAnewWhenSomebodyClearsItAway)
{
    KeptFolder folder(root, now);
    folder.write("1.state", "one");
    fs::remove_all(root);
    folder.write("1.state", "two");
    EXPECT_TRUE(folder.write("1.state", "three"));
    EXPECT_EQ(there(), std::vector<std::string>{"1.state"});
}

} // namespace velmor::kept_folder_test
