// SPDX-License-Identifier: MIT
// Spawns, listens, glances at the bounds, and ends the whole group.
#include "check/program_run.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <string_view>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velmor::check {

namespace program_detail {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::milliseconds glance{20}; ///< how long to wait before the bounds are looked at again

/// A pipe whose ends close with it.
class Pipe {
public:
    Pipe()
    {
        if (::pipe2(ends_.data(), O_CLOEXEC) != 0)
            ends_ = {-1, -1};
    }
    ~Pipe()
    {
        close(0);
        close(1);
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    int end(std::size_t which) const { return ends_[which]; }
    void close(std::size_t which)
    {
        if (ends_[which] >= 0)
            ::close(ends_[which]);
        ends_[which] = -1;
    }

private:
    std::array<int, 2> ends_{-1, -1};
};

/// The environment of the program: the C locale, our PATH, its own folder as home.
std::vector<std::string> environmentOf(const ProgramOrder& order)
{
    const char* path = std::getenv("PATH"); // NOLINT(concurrency-mt-unsafe): nothing in this program sets it
    return {"LC_ALL=C", "HOME=" + order.folder.string(),
            std::string("PATH=") + (path == nullptr ? "/usr/bin:/bin" : path)};
}

std::vector<char*> pointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// Starts it as the leader of a group of its own; nothing when it cannot be started.
std::optional<pid_t> start(const ProgramOrder& order, const Pipe& pipe)
{
    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawnattr_init(&attributes);
    ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_adddup2(&actions, pipe.end(1), STDOUT_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, pipe.end(1), STDERR_FILENO);
    ::posix_spawn_file_actions_addchdir_np(&actions, order.folder.c_str());
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
    ::posix_spawnattr_setpgroup(&attributes, 0);

    std::vector<std::string> words{order.program.string()};
    words.insert(words.end(), order.arguments.begin(), order.arguments.end());
    std::vector<std::string> settings = environmentOf(order);
    pid_t child = -1;
    const int failure = ::posix_spawn(&child, order.program.c_str(), &actions, &attributes, pointersTo(words).data(),
                                      pointersTo(settings).data());
    ::posix_spawn_file_actions_destroy(&actions);
    ::posix_spawnattr_destroy(&attributes);
    return failure == 0 ? std::optional(child) : std::nullopt;
}

/// Takes in what has been said for at most one glance. False once nobody can say anything any more.
bool listen(const Pipe& pipe, std::size_t mostWords, std::string& words)
{
    pollfd waiting{pipe.end(0), POLLIN, 0};
    if (::poll(&waiting, 1, static_cast<int>(glance.count())) <= 0)
        return true;
    std::array<char, 16384> heard{};
    const ssize_t count = ::read(pipe.end(0), heard.data(), heard.size());
    if (count <= 0)
        return false;
    const std::size_t room = mostWords - std::min(mostWords, words.size());
    words.append(heard.data(), std::min(room, static_cast<std::size_t>(count)));
    return true;
}

bool outgrown(const ProgramOrder& order)
{
    if (order.watchedFile.empty())
        return false;
    std::error_code missing;
    const auto size = std::filesystem::file_size(order.folder / order.watchedFile, missing);
    return !missing && size > order.mostBytes;
}

/// The whole group goes: what the program has started would keep the pipe and the folder.
void endGroup(pid_t child)
{
    ::kill(-child, SIGKILL);
}

/// It is not taken off the list of processes yet, so that its number is nobody else's when its group is ended.
bool hasEnded(pid_t child)
{
    siginfo_t ended{};
    return ::waitid(P_PID, static_cast<id_t>(child), &ended, WEXITED | WNOHANG | WNOWAIT) == 0 && ended.si_pid == child;
}

void settle(ProgramRun& run, int status)
{
    if (WIFEXITED(status)) {
        run.end = ProgramEnd::normal;
        run.exitCode = WEXITSTATUS(status);
    } else {
        run.end = ProgramEnd::broken;
    }
}

/// Follows the program to its end, or ends it.
ProgramRun follow(pid_t child, const ProgramOrder& order, Pipe& pipe)
{
    const Clock::time_point deadline = Clock::now() + order.limit;
    ProgramRun run;
    int status = 0;
    bool canSpeak = true;
    for (;;) {
        if (canSpeak)
            canSpeak = listen(pipe, order.mostWords, run.words);
        else
            ::poll(nullptr, 0, 1);
        if (hasEnded(child)) {
            endGroup(child);
            ::waitpid(child, &status, 0);
            settle(run, status);
            break;
        }
        const bool late = Clock::now() >= deadline;
        const bool stops = order.stop.stop_requested();
        if (!stops && !late && !outgrown(order))
            continue;
        run.end = stops ? ProgramEnd::stopped : late ? ProgramEnd::tooLong : ProgramEnd::tooMuch;
        endGroup(child);
        ::waitpid(child, &status, 0);
        return run;
    }
    while (canSpeak && run.words.size() < order.mostWords) {
        const std::size_t before = run.words.size();
        canSpeak = listen(pipe, order.mostWords, run.words) && run.words.size() > before;
    }
    return run;
}

} // namespace program_detail

OwnFolder::OwnFolder()
{
    std::error_code failure;
    std::filesystem::path root = std::filesystem::temp_directory_path(failure);
    std::string pattern = (root / "velmor-check-XXXXXX").string();
    if (!failure && ::mkdtemp(pattern.data()) != nullptr)
        path_ = pattern;
}

OwnFolder::~OwnFolder()
{
    std::error_code ignored;
    if (!path_.empty())
        std::filesystem::remove_all(path_, ignored);
}

ProgramRun runProgram(const ProgramOrder& order)
{
    using namespace program_detail;
    Pipe pipe;
    if (pipe.end(0) < 0 || order.folder.empty())
        return {};
    const std::optional<pid_t> child = start(order, pipe);
    pipe.close(1);
    return child ? follow(*child, order, pipe) : ProgramRun{};
}

std::filesystem::path findProgram(const std::string& name)
{
    const auto canRun = [](const std::filesystem::path& path) {
        std::error_code ignored;
        return std::filesystem::is_regular_file(path, ignored) && ::access(path.c_str(), X_OK) == 0;
    };
    if (name.empty())
        return {};
    if (name.find('/') != std::string::npos)
        return canRun(name) ? std::filesystem::absolute(name) : std::filesystem::path();
    const char* path = std::getenv("PATH"); // NOLINT(concurrency-mt-unsafe): nothing in this program sets it
    std::string_view rest = path == nullptr ? "" : path;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(':'), rest.size());
        const std::filesystem::path candidate = std::filesystem::path(rest.substr(0, end)) / name;
        if (end > 0 && canRun(candidate))
            return std::filesystem::absolute(candidate);
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return {};
}

} // namespace velmor::check
