// SPDX-License-Identifier: MIT
// Each system call of keeping, one after the other: it fails, or the power goes at it. What was kept before or what was to be
// kept is there afterwards, whole, and keeping goes on.
#include <gtest/gtest.h>

#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

#include "keeping/kept_folder.h"
#include "keeping/system_calls.h"
#include "rules/scratch_folder.h"

namespace velmor::system_calls_test {

namespace fs = std::filesystem;
using keeping::KeptFolder;
using keeping::LeftFile;
using system_calls::Mishap;

constexpr std::int64_t someTime = 1'000'000;
const std::string before(5000, 'b');
const std::string after(9000, 'a');

std::int64_t clock()
{
    return someTime;
}

std::vector<LeftFile> leftIn(const fs::path& root)
{
    return KeptFolder(root, clock).takeLeft();
}

/// Hidden files and folders, which nothing looks at.
int hiddenIn(const fs::path& root)
{
    int hidden = 0;
    std::error_code error;
    for (const auto& entry : fs::recursive_directory_iterator(root, error))
        hidden += entry.path().filename().native().front() == '.' ? 1 : 0;
    return hidden;
}

/// Runs a deed in a program of its own, whose power may go.
void inAProgram(const std::function<void()>& deed)
{
    const pid_t child = ::fork();
    if (child == 0) {
        deed();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

/// A place, with something kept in it or nothing, where one call goes wrong.
struct Scene {
    explicit Scene(bool kept) : had(kept)
    {
        if (kept)
            folder.write("1.state", before);
    }
    rules::ScratchFolder scratch;
    fs::path root = scratch / "velmor";
    bool had;
    KeptFolder folder{root, clock};
};

class EachCall : public testing::TestWithParam<std::tuple<bool, Mishap>> {
protected:
    bool kept() const { return std::get<0>(GetParam()); }
    Mishap mishap() const { return std::get<1>(GetParam()); }
};

TEST_P(EachCall, OfASaveLeavesTheOldOrTheNewWhole)
{
    Scene counting(kept());
    const int calls = system_calls::during([&] { counting.folder.write("1.state", after); });
    ASSERT_GE(calls, kept() ? 6 : 10) << "open, write, fsync, close, rename, and those of the folder";
    for (int number = 1; number <= calls; ++number) {
        rules::ScratchFolder scratch;
        const fs::path root = scratch / "velmor";
        bool done = false;
        inAProgram([&] {
            KeptFolder folder(root, clock);
            if (kept())
                folder.write("1.state", before);
            system_calls::during([&] { done = folder.write("1.state", after); }, number, mishap());
            if (done)
                scratch.put("done", "");
            ::_exit(0);
        });
        done = fs::exists(scratch / "done");
        const std::vector<LeftFile> left = leftIn(root);
        ASSERT_LE(left.size(), 1u);
        if (done) {
            ASSERT_EQ(left.size(), 1u) << number;
            EXPECT_EQ(left[0].state, after) << number;
        } else if (kept()) {
            ASSERT_EQ(left.size(), 1u) << number;
            EXPECT_TRUE(left[0].state == before || left[0].state == after) << number;
        }
        EXPECT_EQ(hiddenIn(root), 0) << number;
        EXPECT_FALSE(fs::exists(root / "dropped")) << number;
    }
}

TEST_P(EachCall, OfASaveIsMadeGoodByTheNextSave)
{
    Scene counting(kept());
    const int calls = system_calls::during([&] { counting.folder.write("1.state", after); });
    for (int number = 1; number <= calls; ++number) {
        Scene scene(kept());
        const auto save = [&] {
            system_calls::during([&] { scene.folder.write("1.state", after); }, number, mishap());
        };
        if (mishap() == Mishap::cut)
            inAProgram(save);
        else
            save();
        EXPECT_TRUE(scene.folder.write("1.state", after)) << number;
        std::ifstream file(scene.folder.pathOf("1.state"), std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        EXPECT_TRUE(text.ends_with(after)) << number;
    }
}

TEST_P(EachCall, OfLookingAndDroppingLosesNothing)
{
    const auto lookAndDrop = [](const fs::path& root) {
        KeptFolder folder(root, clock);
        for (const LeftFile& file : folder.takeLeft())
            folder.drop(file.path);
    };
    const auto leave = [](const fs::path& root) {
        inAProgram([&] { KeptFolder(root, clock).write("1.state", before), ::_exit(0); });
    };
    rules::ScratchFolder counting;
    leave(counting / "velmor");
    const int calls = system_calls::during([&] { lookAndDrop(counting / "velmor"); });
    ASSERT_GE(calls, 4);
    for (int number = 1; number <= calls; ++number) {
        rules::ScratchFolder scratch;
        leave(scratch / "velmor");
        inAProgram([&] { system_calls::during([&] { lookAndDrop(scratch / "velmor"); }, number, mishap()); });
        int files = 0;
        for (const auto& entry : fs::recursive_directory_iterator(scratch / "velmor"))
            files += entry.path().extension() == ".state" ? 1 : 0;
        EXPECT_EQ(files, 1) << number;
    }
}

INSTANTIATE_TEST_SUITE_P(Goes, EachCall,
                         testing::Combine(testing::Bool(),
                                          testing::Values(Mishap::inputOutput, Mishap::noSpace, Mishap::cut)));

} // namespace velmor::system_calls_test
