// SPDX-License-Identifier: MIT
// velmor-kill-games: programs that play by chance and keep their work are killed at random moments. Each tells, before it goes
// on, what every window holds; whatever is older than the time that keeping may take must be found on the disk.
#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iostream>
#include <map>
#include <optional>
#include <poll.h>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "console/whole_program.h"
#include "host/state_text.h"
#include "keeping/keeper.h"
#include "player/player.h"

namespace velmor::kill_games {

namespace fs = std::filesystem;

constexpr long keepingDelay =
    200; ///< milliseconds from a change to its keeping in these games; a second in the program
constexpr long keepingTakes = 1200; ///< what is older must be there, on a machine that does much else
constexpr int pause = 20;           ///< milliseconds between two moves: a window must grow older than its keeping takes
constexpr int together = 4;

long milliseconds()
{
    using namespace std::chrono;
    return static_cast<long>(duration_cast<std::chrono::milliseconds>(steady_clock::now().time_since_epoch()).count());
}

/// The seal of a state, less what other windows change in it: places, and who was used last.
std::string sealOf(const std::string& state)
{
    std::istringstream lines(state);
    std::string rest;
    for (std::string line; std::getline(lines, line);)
        if (!line.starts_with("window.") && !line.starts_with("end "))
            rest += line + "\n";
    const std::string seal = host::stateSeal(rest);
    return seal.substr(4, seal.size() - 5);
}

// --- the program that is killed

/// Among twenty windows hardly one would be worked on long enough: each game keeps to one sheet, or to an editor.
std::string played(std::uint64_t seed)
{
    constexpr std::array<std::string_view, 4> windows{"Form2", "Form3", "desaco", "frmEdito1"};
    return std::string(windows[seed / 2 % windows.size()]);
}

class PlayedProgram {
public:
    PlayedProgram(fs::path folder, std::uint64_t seed)
        : folder_(std::move(folder)),
          log_(::open((folder_ / "log").c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600)),
          player_(console::wholeProgram(),
                  {.seed = seed, .onlyWindow = played(seed), .windowCap = 6, .straight = seed % 2 == 0})
    {
        player_.onProgram = [this](host::Engine* engine) {
            engine == nullptr ? programGoes() : programBegins(*engine);
        };
        player_.afterEvent = [this] { tellAll(); };
    }

    [[noreturn]] void play()
    {
        for (;;) {
            if (!player_.play(1)) {
                std::cerr << player_.fault() << std::endl;
                ::_exit(3);
            }
            if (keeper_ != nullptr && due_ && milliseconds() >= *due_) {
                due_.reset();
                while (keeper_->work())
                    continue;
            }
            ::poll(nullptr, 0, pause);
        }
    }

private:
    void programBegins(host::Engine& engine)
    {
        ++run_;
        told_.clear();
        engine_ = &engine;
        keeper_ = std::make_unique<keeping::Keeper>(
            engine, keeping::Place{folder_ / std::to_string(run_), [] { return std::int64_t{1}; }});
        keeper_->wake = [this] { due_ = milliseconds() + keepingDelay; };
    }
    void programGoes()
    {
        keeper_.reset();
        if (player_.programFailed())
            tell("F " + std::to_string(run_) + "\n");
        else
            tell("E " + std::to_string(run_) + "\n");
    }
    void tell(const std::string& line) const
    {
        if (::write(log_, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
            ::_exit(4);
    }
    void tellAll()
    {
        if (engine_ == nullptr || engine_->ended() || !engine_->idle())
            return;
        std::map<std::string, std::string> now;
        for (host::Window* window : engine_->windows()) {
            const std::string file = keeper_->fileOf(*window);
            if (file.empty())
                continue;
            host::WindowState state = *engine_->stateOf(*window);
            state.longTexts = host::longTextsOf(*window);
            now[file] = sealOf(stateText(state));
        }
        const std::string when = std::to_string(run_) + " " + std::to_string(milliseconds()) + " ";
        for (const auto& [file, seal] : told_)
            if (!now.contains(file))
                tell("G " + when + file + " gone\n");
        for (const auto& [file, seal] : now)
            if (!told_.contains(file) || told_[file] != seal)
                tell("S " + when + file + " " + seal + "\n");
        told_ = std::move(now);
    }

    fs::path folder_;
    int log_;
    int run_ = 0;
    host::Engine* engine_ = nullptr;
    std::optional<long> due_;
    std::map<std::string, std::string> told_;
    player::Player player_;
    std::unique_ptr<keeping::Keeper> keeper_;
};

// --- what must be there

struct Told {
    long time = 0;
    std::string seal;
};

struct Run {
    std::map<std::string, std::vector<Told>> windows; ///< by file
    bool failed = false;
    bool ended = false;
};

std::map<int, Run> runsOf(const fs::path& log)
{
    std::map<int, Run> runs;
    std::ifstream in(log);
    for (std::string line; std::getline(in, line);) {
        std::istringstream words(line);
        std::string kind;
        std::string file;
        Told told;
        int run = 0;
        words >> kind >> run;
        runs[run].failed = runs[run].failed || kind == "F";
        runs[run].ended = runs[run].ended || kind != "S";
        if (kind == "F" || kind == "E")
            continue;
        runs[run].ended = false;
        if (!(words >> told.time >> file >> told.seal))
            continue; // cut off
        if (kind == "G")
            runs[run].windows.erase(file);
        else
            runs[run].windows[file].push_back(told);
    }
    return runs;
}

struct Outcome {
    int required = 0; ///< windows whose work had to be there
    int failures = 0; ///< programs that ended by arithmetic
    std::string fault;
};

void checkRun(const fs::path& folder, const Run& run, long killed, Outcome& outcome)
{
    std::map<std::string, std::string> kept;
    keeping::KeptFolder place(folder, [] { return std::int64_t{1}; });
    for (const keeping::LeftFile& file : place.takeLeft())
        kept[file.path.filename().string()] = sealOf(file.state);
    if (fs::exists(place.droppedFolder()))
        outcome.fault += "a kept file was damaged\n";
    for (const auto& window : run.windows) {
        const std::string& file = window.first;
        const auto& told = window.second;
        // After an arithmetic end the last is there; after a kill, what is old enough or anything later.
        const auto old = std::find_if(told.rbegin(), told.rend(),
                                      [&](const Told& one) { return run.failed || one.time <= killed - keepingTakes; });
        // What is younger may be there or not, also as it stood before it was first told of.
        if (old == told.rend())
            continue;
        ++outcome.required;
        const auto from = std::prev(old.base());
        if (!kept.contains(file))
            outcome.fault += file + " is not there, in " + folder.string() + "\n";
        else if (std::none_of(from, told.end(), [&](const Told& one) { return one.seal == kept[file]; }))
            outcome.fault += file + " is there as it was not, or was too long ago, in " + folder.string() + "\n";
    }
}

Outcome check(const fs::path& folder, long killed)
{
    Outcome outcome;
    for (const auto& [number, run] : runsOf(folder / "log")) {
        outcome.failures += run.failed ? 1 : 0;
        if (run.failed || !run.ended)
            checkRun(folder / std::to_string(number), run, killed, outcome);
    }
    return outcome;
}

struct Game {
    pid_t program = 0;
    fs::path folder;
    long kill = 0;
};

Game begin(const fs::path& root, std::uint64_t seed, std::uint64_t chance)
{
    Game game{.folder = root / std::to_string(seed)};
    fs::create_directories(game.folder);
    game.kill = milliseconds() + 300 + static_cast<long>(chance % 5000);
    game.program = ::fork();
    if (game.program == 0) {
        ::setenv("TMPDIR", game.folder.c_str(), 1);
        PlayedProgram(game.folder, seed).play();
    }
    return game;
}

/// Kills the program when its moment has come, and looks at what it has left.
Outcome finish(const Game& game)
{
    while (milliseconds() < game.kill)
        ::poll(nullptr, 0, static_cast<int>(std::max(1L, game.kill - milliseconds())));
    ::kill(game.program, SIGKILL);
    const long killed = milliseconds();
    int status = 0;
    ::waitpid(game.program, &status, 0);
    Outcome outcome = check(game.folder, killed);
    if (!WIFSIGNALED(status))
        outcome.fault += "it had ended by itself: " + std::to_string(status) + "\n";
    return outcome;
}

int playAll(int games, std::uint64_t seed)
{
    std::string name = (fs::temp_directory_path() / "velmor-kills-XXXXXX").string();
    const fs::path root = ::mkdtemp(name.data());
    player::Chance chance(seed);
    Outcome all;
    std::vector<Game> running;
    for (int number = 0; number < games || !running.empty();) {
        while (number < games && running.size() < together) {
            running.push_back(begin(root, seed * 1000 + static_cast<std::uint64_t>(number), chance.below(1u << 30)));
            ++number;
        }
        const auto next = std::min_element(running.begin(), running.end(),
                                           [](const Game& one, const Game& other) { return one.kill < other.kill; });
        const Outcome outcome = finish(*next);
        all.required += outcome.required;
        all.failures += outcome.failures;
        if (!outcome.fault.empty())
            all.fault += "seed " + std::to_string(seed) + ", " + next->folder.string() + ":\n" + outcome.fault;
        else
            fs::remove_all(next->folder);
        running.erase(next);
    }
    if (all.fault.empty())
        fs::remove_all(root);
    std::cout << games << " programs killed, " << all.required << " windows had to be there, " << all.failures
              << " arithmetic ends\n"
              << all.fault << std::flush;
    return all.fault.empty() && all.required * 8 >= games ? 0 : 1;
}

} // namespace velmor::kill_games

int main(int count, char** words)
{
    const int games = count > 1 ? std::atoi(words[1]) : 300;
    const std::uint64_t seed = count > 2 ? std::strtoull(words[2], nullptr, 10) : 1;
    return velmor::kill_games::playAll(games, seed);
}
