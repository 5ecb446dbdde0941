// SPDX-License-Identifier: MIT
// Saving replaces a file whole or not at all, whatever goes wrong on the way; reading is bounded and refuses what is no
// plain file. Tests that need an ordinary user or a death in between run in a process of their own.
#include "rules/whole_file.h"

#include "scratch_folder.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velmor::rules::whole_file_test {

namespace fs = std::filesystem;
using namespace std::string_literals;

constexpr std::size_t mebibyte = 1024 * 1024;

// Runs an action in a process of its own and gives the state that it ended in; the action's result is its exit status.
template <class Action>
int inChild(Action action)
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(action());
    int state = -1;
    ::waitpid(child, &state, 0);
    return state;
}

// True where an ordinary user, to whom permissions apply, sees the action succeed.
template <class Action>
bool asOrdinaryUser(Action action)
{
    const int state = inChild([&action] {
        if (::geteuid() == 0 && ::seteuid(65534) != 0)
            return 2;
        return action() ? 0 : 1;
    });
    EXPECT_TRUE(WIFEXITED(state) && WEXITSTATUS(state) != 2);
    return WIFEXITED(state) && WEXITSTATUS(state) == 0;
}

mode_t modeOf(const fs::path& path)
{
    struct stat status {};
    ::stat(path.c_str(), &status);
    return status.st_mode & 07777;
}

// Writes until `limit` bytes are on the disk, then fails as a full disk does.
SaveSteps fullAfter(std::size_t limit)
{
    SaveSteps steps;
    steps.write = [left = limit](int descriptor, const char* bytes, std::size_t count) mutable -> ssize_t {
        const ssize_t written = left == 0 ? -1 : ::write(descriptor, bytes, std::min(count, left));
        if (left == 0)
            errno = ENOSPC;
        else
            left -= static_cast<std::size_t>(written);
        return written;
    };
    return steps;
}

TEST(WriteWhole, MakesAFileWithExactlyTheBytes)
{
    const ScratchFolder folder;
    const std::string bytes = "line\r\n\0\xFF end"s;
    EXPECT_TRUE(writeWhole(folder / "new.RPC", bytes));
    EXPECT_EQ(folder.content("new.RPC"), bytes);
    EXPECT_TRUE(writeWhole(folder / "empty.RPC", ""));
    EXPECT_EQ(fs::file_size(folder / "empty.RPC"), 0u);
    EXPECT_EQ(folder.entries(), 2);
}

TEST(WriteWhole, ReplacesALongerFileCompletely)
{
    const ScratchFolder folder;
    folder.put("old.RPC", std::string(100'000, 'x'));
    EXPECT_TRUE(writeWhole(folder / "old.RPC", "short"));
    EXPECT_EQ(folder.content("old.RPC"), "short");
    EXPECT_EQ(folder.entries(), 1);
}

TEST(WriteWhole, KeepsTheOldFileWhenTheDiskIsFullAtAnyByte)
{
    const ScratchFolder folder;
    folder.put("old.RPC", "the old design");
    for (std::size_t limit = 0; limit < 20; ++limit) {
        EXPECT_FALSE(writeWhole(folder / "old.RPC", "twenty bytes of new.", fullAfter(limit))) << limit;
        EXPECT_EQ(folder.content("old.RPC"), "the old design");
        EXPECT_EQ(folder.entries(), 1);
    }
    EXPECT_TRUE(writeWhole(folder / "old.RPC", "twenty bytes of new.", fullAfter(20)));
    EXPECT_EQ(folder.content("old.RPC"), "twenty bytes of new.");
}

TEST(WriteWhole, MakesNoFileWhenTheDiskIsFull)
{
    const ScratchFolder folder;
    EXPECT_FALSE(writeWhole(folder / "new.RPC", "bytes", fullAfter(3)));
    EXPECT_EQ(folder.entries(), 0);
}

TEST(WriteWhole, KeepsTheOldFileWhenTheDeviceItselfIsFull)
{
    const ScratchFolder folder;
    folder.put("old.RPC", "the old design");
    const int full = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
    ASSERT_GE(full, 0);
    SaveSteps steps;
    steps.write = [full](int, const char* bytes, std::size_t count) { return ::write(full, bytes, count); };
    EXPECT_FALSE(writeWhole(folder / "old.RPC", "new", steps));
    ::close(full);
    EXPECT_EQ(folder.content("old.RPC"), "the old design");
    EXPECT_EQ(folder.entries(), 1);
}

TEST(WriteWhole, KeepsTheOldFileWhenItMayNotGrowSoLarge)
{
    const ScratchFolder folder;
    folder.put("old.RPC", "the old design");
    const int state = inChild([&folder] {
        const rlimit limit{1000, 1000};
        ::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &limit);
        return writeWhole(folder / "old.RPC", std::string(5000, 'n')) ? 1 : 0;
    });
    EXPECT_TRUE(WIFEXITED(state) && WEXITSTATUS(state) == 0);
    EXPECT_EQ(folder.content("old.RPC"), "the old design");
    EXPECT_EQ(folder.entries(), 1);
}

TEST(WriteWhole, GoesOnAfterShortAndInterruptedWrites)
{
    const ScratchFolder folder;
    SaveSteps steps;
    steps.write = [turn = 0](int descriptor, const char* bytes, std::size_t) mutable -> ssize_t {
        if (++turn % 2 == 0)
            return ::write(descriptor, bytes, 1);
        errno = EINTR;
        return -1;
    };
    EXPECT_TRUE(writeWhole(folder / "new.RPC", "byte by byte", steps));
    EXPECT_EQ(folder.content("new.RPC"), "byte by byte");
}

TEST(WriteWhole, GivesUpOnAWriteThatNeverAdvances)
{
    const ScratchFolder folder;
    SaveSteps steps;
    steps.write = [](int, const char*, std::size_t) -> ssize_t { return 0; };
    EXPECT_FALSE(writeWhole(folder / "new.RPC", "bytes", steps));
    EXPECT_EQ(folder.entries(), 0);
}

TEST(WriteWhole, KeepsTheOldFileWhenTheProgramIsKilledBeforeTheReplacement)
{
    const ScratchFolder folder;
    folder.put("old.RPC", "the old design");
    SaveSteps steps;
    steps.beforeReplace = [] { ::raise(SIGKILL); };
    const int state = inChild([&] { return writeWhole(folder / "old.RPC", "new", steps) ? 0 : 1; });
    EXPECT_TRUE(WIFSIGNALED(state) && WTERMSIG(state) == SIGKILL);
    EXPECT_EQ(folder.content("old.RPC"), "the old design");
    EXPECT_EQ(folder.entries(), 1) << "a hidden file stays in the student's folder";
    EXPECT_TRUE(writeWhole(folder / "old.RPC", "new"));
    EXPECT_EQ(folder.content("old.RPC"), "new");
}

TEST(WriteWhole, KeepsTheOldFileWhenTheProgramIsKilledInTheMiddleOfWriting)
{
    const ScratchFolder folder;
    folder.put("old.RPC", "the old design");
    SaveSteps steps;
    steps.write = [](int descriptor, const char* bytes, std::size_t count) {
        const ssize_t written = ::write(descriptor, bytes, count / 2);
        ::raise(SIGKILL);
        return written;
    };
    const int state = inChild([&] { return writeWhole(folder / "old.RPC", "new design", steps) ? 0 : 1; });
    EXPECT_TRUE(WIFSIGNALED(state));
    EXPECT_EQ(folder.content("old.RPC"), "the old design");
    EXPECT_EQ(folder.entries(), 1) << "a hidden file stays in the student's folder";
    const int first = inChild([&] { return writeWhole(folder / "new.RPC", "new design", steps) ? 0 : 1; });
    EXPECT_TRUE(WIFSIGNALED(first));
    EXPECT_EQ(folder.entries(), 1);
}

TEST(WriteWhole, RemovesWhatKilledProgramsLeftAndNothingElse)
{
    const ScratchFolder folder;
    folder.put(".velmor-0123abcd.tmp", "left by a program that was killed");
    const fs::path busy = folder.put(".velmor-ffffffff.tmp", "another program is writing it");
    const int held = ::open(busy.c_str(), O_WRONLY);
    ASSERT_EQ(::flock(held, LOCK_EX | LOCK_NB), 0);
    for (const char* own :
         {".velmor-notes.tmp", ".velmor-0123ABCD.tmp", "velmor-0123abcd.tmp", ".velmor-0123abcd.tmp~"})
        folder.put(own, "the student's own");
    fs::create_directory(folder / ".velmor-00000000.tmp");
    EXPECT_TRUE(writeWhole(folder / "new.RPC", "new"));
    EXPECT_FALSE(fs::exists(folder / ".velmor-0123abcd.tmp"));
    EXPECT_TRUE(fs::exists(busy));
    EXPECT_EQ(folder.entries(), 7);
    ::close(held);
}

TEST(WriteWhole, HasTheWholeNewContentReadyAndNamelessWhenItReplaces)
{
    const ScratchFolder folder;
    folder.put("old.RPC", "the old design");
    SaveSteps steps;
    int descriptor = -1;
    steps.write = [&](int number, const char* bytes, std::size_t count) {
        descriptor = ::dup(number);
        return ::write(number, bytes, count);
    };
    off_t ready = -1;
    steps.beforeReplace = [&] {
        ready = ::lseek(descriptor, 0, SEEK_END);
        EXPECT_EQ(folder.entries(), 1);
        EXPECT_EQ(folder.content("old.RPC"), "the old design");
    };
    EXPECT_TRUE(writeWhole(folder / "old.RPC", "new", steps));
    EXPECT_EQ(ready, 3);
    EXPECT_EQ(folder.content("old.RPC"), "new");
    EXPECT_EQ(folder.entries(), 1);
    ::close(descriptor);
}

TEST(WriteWhole, LeavesNothingWhenTheReplacementItselfFails)
{
    const ScratchFolder folder;
    SaveSteps steps;
    steps.beforeReplace = [&] { fs::create_directory(folder / "name.RPC"); };
    EXPECT_FALSE(writeWhole(folder / "name.RPC", "new", steps));
    EXPECT_EQ(folder.entries(), 1);
    EXPECT_TRUE(fs::is_directory(folder / "name.RPC"));
}

TEST(WriteWhole, KeepsThePermissionsOfTheOldFile)
{
    const ScratchFolder folder;
    const fs::path path = folder.put("old.RPC", "old");
    for (const mode_t mode : {0640u, 0600u, 0664u, 0755u}) {
        ::chmod(path.c_str(), mode);
        EXPECT_TRUE(writeWhole(path, "new"));
        EXPECT_EQ(modeOf(path), mode);
    }
}

TEST(WriteWhole, GivesANewFileThePermissionsThatThePersonWants)
{
    const ScratchFolder folder;
    const mode_t mask = ::umask(027);
    EXPECT_TRUE(writeWhole(folder / "new.RPC", "new"));
    ::umask(mask);
    EXPECT_EQ(modeOf(folder / "new.RPC"), 0640u);
}

TEST(WriteWhole, KeepsTheOwnerWhereItMay)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root may give files away";
    const ScratchFolder folder;
    const fs::path path = folder.put("old.RPC", "old");
    ASSERT_EQ(::chown(path.c_str(), 65534, 65534), 0);
    EXPECT_TRUE(writeWhole(path, "new"));
    struct stat status {};
    ::stat(path.c_str(), &status);
    EXPECT_EQ(status.st_uid, 65534u);
}

TEST(WriteWhole, WritesThroughLinksToTheFileThatTheyMean)
{
    const ScratchFolder folder;
    fs::create_directory(folder / "far");
    folder.put("far/real.RPC", "old");
    fs::create_symlink("far/real.RPC", folder / "near.RPC");
    fs::create_symlink(folder / "near.RPC", folder / "nearer.RPC");
    EXPECT_TRUE(writeWhole(folder / "nearer.RPC", "new"));
    EXPECT_EQ(folder.content("far/real.RPC"), "new");
    EXPECT_TRUE(fs::is_symlink(folder / "near.RPC"));
    EXPECT_TRUE(fs::is_symlink(folder / "nearer.RPC"));
}

TEST(WriteWhole, MakesTheFileThatALinkPointsToInVain)
{
    const ScratchFolder folder;
    fs::create_symlink("later.RPC", folder / "link.RPC");
    EXPECT_TRUE(writeWhole(folder / "link.RPC", "new"));
    EXPECT_EQ(folder.content("later.RPC"), "new");
    EXPECT_TRUE(fs::is_symlink(folder / "link.RPC"));
}

TEST(WriteWhole, RefusesLinksThatGoInCircles)
{
    const ScratchFolder folder;
    fs::create_symlink("b", folder / "a");
    fs::create_symlink("a", folder / "b");
    EXPECT_FALSE(writeWhole(folder / "a", "new"));
    EXPECT_EQ(folder.entries(), 2);
}

// The pipe stands for devices too: were the refusal ever lost, root would replace the system's own.
TEST(WriteWhole, RefusesWhatIsNoPlainFile)
{
    const ScratchFolder folder;
    fs::create_directory(folder / "folder.RPC");
    ASSERT_EQ(::mkfifo((folder / "pipe.RPC").c_str(), 0644), 0);
    fs::create_symlink("pipe.RPC", folder / "link.RPC");
    EXPECT_FALSE(writeWhole(folder / "folder.RPC", "new"));
    EXPECT_FALSE(writeWhole(folder / "pipe.RPC", "new"));
    EXPECT_FALSE(writeWhole(folder / "link.RPC", "new"));
    EXPECT_TRUE(fs::is_fifo(folder / "pipe.RPC"));
    EXPECT_EQ(folder.entries(), 3);
}

TEST(WriteWhole, RefusesNamesThatNameNothing)
{
    const ScratchFolder folder;
    EXPECT_FALSE(writeWhole("", "new"));
    EXPECT_FALSE(writeWhole(folder.path() / "", "new"));
    EXPECT_FALSE(writeWhole(folder / "absent/new.RPC", "new"));
    EXPECT_FALSE(writeWhole(folder / "cut\0off.RPC"s, "new"));
    EXPECT_FALSE(writeWhole(folder / std::string(300, 'n'), "new"));
    folder.put("file", "plain");
    EXPECT_FALSE(writeWhole(folder / "file/new.RPC", "new"));
    EXPECT_EQ(folder.entries(), 1);
}

TEST(WriteWhole, TakesTheLongestNameThereIs)
{
    const ScratchFolder folder;
    EXPECT_TRUE(writeWhole(folder / std::string(255, 'n'), "new"));
    EXPECT_EQ(folder.content(std::string(255, 'n')), "new");
}

TEST(WriteWhole, TakesANameWithoutAFolder)
{
    const ScratchFolder folder;
    const int state = inChild([&folder] {
        fs::current_path(folder.path());
        return writeWhole("bare.RPC", "new") ? 0 : 1;
    });
    EXPECT_TRUE(WIFEXITED(state) && WEXITSTATUS(state) == 0);
    EXPECT_EQ(folder.content("bare.RPC"), "new");
}

TEST(WriteWhole, FailsInAReadOnlyFolder)
{
    const ScratchFolder folder;
    const fs::path path = folder.put("old.RPC", "the old design");
    ::chmod(path.c_str(), 0666);
    ::chmod(folder.path().c_str(), 0555);
    EXPECT_FALSE(asOrdinaryUser([&] { return writeWhole(path, "new"); }));
    EXPECT_FALSE(asOrdinaryUser([&] { return writeWhole(folder / "new.RPC", "new"); }));
    ::chmod(folder.path().c_str(), 0777);
    EXPECT_EQ(folder.content("old.RPC"), "the old design");
    EXPECT_EQ(folder.entries(), 1);
    // The same user in the same folder, now writable: the refusal above was the folder's.
    EXPECT_TRUE(asOrdinaryUser([&] { return writeWhole(folder / "new.RPC", "new"); }));
}

TEST(WriteWhole, RespectsAFileThatMayNotBeWritten)
{
    const ScratchFolder folder;
    const fs::path path = folder.put("old.RPC", "the old design");
    ::chmod(folder.path().c_str(), 0777);
    ::chmod(path.c_str(), 0444);
    EXPECT_FALSE(asOrdinaryUser([&] { return writeWhole(path, "new"); }));
    EXPECT_EQ(folder.content("old.RPC"), "the old design");
    ::chmod(path.c_str(), 0666);
    EXPECT_TRUE(asOrdinaryUser([&] { return writeWhole(path, "new"); }));
    EXPECT_EQ(folder.content("old.RPC"), "new");
}

TEST(ReadWhole, GivesTheBytesUpToItsLimit)
{
    const ScratchFolder folder;
    const std::string bytes = "a\r\n\0\xFF"s + std::string(100'000, 'z');
    folder.put("file", bytes);
    EXPECT_EQ(readWhole(folder / "file", bytes.size()), bytes);
    EXPECT_EQ(readWhole(folder / "file", bytes.size() - 1), std::nullopt);
    folder.put("empty", "");
    EXPECT_EQ(readWhole(folder / "empty", 0), "");
}

TEST(ReadWhole, RefusesWhatIsNoPlainFileWithoutWaiting)
{
    const ScratchFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0644), 0);
    EXPECT_EQ(readWhole(folder / "pipe", mebibyte), std::nullopt);
    EXPECT_EQ(readWhole(folder.path(), mebibyte), std::nullopt);
    EXPECT_EQ(readWhole("/dev/zero", mebibyte), std::nullopt);
    EXPECT_EQ(readWhole(folder / "absent", mebibyte), std::nullopt);
    EXPECT_EQ(readWhole("", mebibyte), std::nullopt);
    folder.put("cut", "plain");
    EXPECT_EQ(readWhole(folder / "cut\0off"s, mebibyte), std::nullopt);
}

TEST(ReadWhole, RefusesAFileThatMayNotBeRead)
{
    const ScratchFolder folder;
    const fs::path path = folder.put("secret", "plain");
    ::chmod(path.c_str(), 0);
    EXPECT_FALSE(asOrdinaryUser([&] { return readWhole(path, mebibyte).has_value(); }));
    ::chmod(path.c_str(), 0644);
    EXPECT_TRUE(asOrdinaryUser([&] { return readWhole(path, mebibyte) == "plain"; }));
}

TEST(ReadWhole, RefusesAFileOfAGibibyteWithoutHoldingIt)
{
    const ScratchFolder folder;
    folder.put("huge", "x");
    fs::resize_file(folder / "huge", 1024 * mebibyte);
    rusage before{};
    rusage after{};
    ::getrusage(RUSAGE_SELF, &before);
    EXPECT_EQ(readWhole(folder / "huge", mebibyte), std::nullopt);
    ::getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 4096) << "KiB";
}

TEST(ReadWhole, AsksForNoMemoryThatALyingSizeWouldTake)
{
    const ScratchFolder folder;
    folder.put("vast", "x");
    std::error_code tooVast;
    fs::resize_file(folder / "vast", std::uintmax_t{1} << 42, tooVast);
    if (tooVast)
        GTEST_SKIP() << "this file system has no files of four tebibytes";
    EXPECT_EQ(readWhole(folder / "vast", mebibyte), std::nullopt);
}

TEST(ReadWhole, TrustsWhatItReadsMoreThanTheSizeItWasTold)
{
    // The system's own files say that they are empty.
    ASSERT_EQ(fs::file_size("/proc/self/status"), 0u);
    EXPECT_EQ(readWhole("/proc/self/status", 10), std::nullopt);
    EXPECT_GT(readWhole("/proc/self/status", mebibyte).value_or("").size(), 10u);
}

TEST(FindFile, PrefersTheExactNameAndThenIgnoresCapitals)
{
    const ScratchFolder folder;
    folder.put("Guía Ñandú.Lab", "");
    folder.put("NOTES.lab", "");
    folder.put("notes.LAB", "");
    EXPECT_EQ(findFile(folder.path(), "GUÍA ÑANDÚ.LAB"), folder / "Guía Ñandú.Lab");
    EXPECT_EQ(findFile(folder.path(), "Guía Ñandú.Lab"), folder / "Guía Ñandú.Lab");
    EXPECT_EQ(findFile(folder.path(), "notes.LAB"), folder / "notes.LAB");
    EXPECT_EQ(findFile(folder.path(), "Notes.Lab"), folder / "NOTES.lab");
    EXPECT_EQ(findFile(folder.path(), "Guia Nandu.Lab"), std::nullopt);
}

TEST(FindFile, FindsNamesInTheOldCodePage)
{
    const ScratchFolder folder;
    folder.put("com\xFAn.lab", "");
    EXPECT_EQ(findFile(folder.path(), "COMÚN.LAB"), folder / "com\xFAn.lab");
}

TEST(FindFile, TellsFilesFromFolders)
{
    const ScratchFolder folder;
    fs::create_directory(folder / "archivos");
    folder.put("ARCHIVOS", "");
    EXPECT_EQ(findFile(folder.path(), "Archivos"), folder / "ARCHIVOS");
    EXPECT_EQ(findFolder(folder.path(), "Archivos"), folder / "archivos");
    EXPECT_EQ(findFile(folder.path(), "archivos"), folder / "ARCHIVOS");
}

TEST(FindFile, FindsNothingOutsideItsFolder)
{
    const ScratchFolder folder;
    fs::create_directory(folder / "inner");
    folder.put("outer.lab", "");
    EXPECT_EQ(findFile(folder / "inner", "../outer.lab"), std::nullopt);
    EXPECT_EQ(findFile(folder / "inner", (folder / "outer.lab").string()), std::nullopt);
    EXPECT_EQ(findFile(folder / "absent", "outer.lab"), std::nullopt);
    EXPECT_EQ(findFile(folder.path(), ""), std::nullopt);
    EXPECT_EQ(findFolder(folder.path(), ".."), std::nullopt);
    EXPECT_EQ(findFolder(folder.path(), "."), std::nullopt);
}

} // namespace velmor::rules::whole_file_test
