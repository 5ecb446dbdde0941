// SPDX-License-Identifier: MIT
// The two programs take turns move by move. The files of the playground are put back between the two turns, so that the
// second one finds what the first one found.
#include "state/twin_game.h"

#include <algorithm>
#include <filesystem>

#include "console/whole_program.h"
#include "host/state_text.h"
#include "host/window_state.h"
#include "player/player.h"

namespace velmor::twins {

namespace twin_game_detail {

namespace fs = std::filesystem;

constexpr auto longAgo = fs::file_time_type::min() + std::chrono::hours(24 * 366 * 100);
constexpr std::uint64_t warmUp = 60;
constexpr int comparedEvery = 15; // moves

/// The folder of the game, and a second one with links to the same files. Files are always replaced whole, never changed.
class Files {
public:
    explicit Files(const fs::path& folder) : folder_(folder), kept_(folder.string() + "-kept") { keep(); }
    ~Files()
    {
        std::error_code ignored;
        fs::remove_all(kept_, ignored);
    }
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;

    bool changed() const
    {
        return fs::last_write_time(folder_) != longAgo || fs::last_write_time(folder_ / "Archivos") != longAgo ||
               fs::last_write_time(folder_ / "folder") != longAgo;
    }
    void putBack() { link(kept_, folder_); }
    void keep()
    {
        link(folder_, kept_);
        for (const char* part : {"Archivos", "folder", ""})
            fs::last_write_time(folder_ / part, longAgo);
    }

private:
    // Folders stay the same folders: only what they hold is exchanged.
    static void link(const fs::path& from, const fs::path& to)
    {
        fs::create_directories(to / "Archivos");
        fs::create_directories(to / "folder");
        for (const char* part : {"", "Archivos", "folder"}) {
            std::vector<fs::path> old;
            for (const auto& entry : fs::directory_iterator(to / part))
                if (entry.is_regular_file())
                    old.push_back(entry.path());
            for (const fs::path& file : old)
                fs::remove(file);
            for (const auto& entry : fs::directory_iterator(from / part))
                if (entry.is_regular_file())
                    fs::create_hard_link(entry.path(), to / part / entry.path().filename());
        }
    }

    fs::path folder_;
    fs::path kept_;
};

/// The outer world changes while a game is played: a file list that has left the playground is no proof of anything.
bool looksOutside(player::Player& player)
{
    const std::string ground = player.ground().path().string();
    for (host::Window* window : player.engine().windows())
        for (const host::ControlRow& row : window->spec().controls)
            if (row.kind == host::Kind::list && !window->list(row.id).folder.empty() &&
                !window->list(row.id).folder.starts_with(ground))
                return true;
    return false;
}

/// Where two texts part, with a little before it.
std::string parting(const std::string& one, const std::string& other)
{
    std::size_t at = 0;
    while (at < one.size() && at < other.size() && one[at] == other[at])
        ++at;
    const std::size_t from = at < 200 ? 0 : at - 200;
    return "\n--- the first:\n" + one.substr(from, 500) + "\n--- its copy:\n" + other.substr(from, 500);
}

std::string stateOf(player::Player& player)
{
    std::string all;
    for (host::Window* window : player.engine().windows()) {
        host::WindowState state = *player.engine().stateOf(*window);
        state.longTexts = host::longTextsOf(*window);
        all += host::stateText(state);
    }
    const host::ProgramValues& values = player.engine().values();
    const host::Window* current = player.engine().current();
    return all + std::to_string(values.LanguageIsEnglish) + values.ArchivoGuia +
           std::to_string(values.TemperaturaCompartida) + values.DecimalSeparator +
           (current == nullptr ? "none" : std::string(current->name()));
}

/// What the two differ in after a turn; empty when in nothing.
std::string difference(player::Player& one, player::Player& other, bool whole)
{
    const std::string log = one.takeLog();
    const std::string otherLog = other.takeLog();
    if (log != otherLog)
        return "they do otherwise" + parting(log, otherLog);
    if (one.engine().ended() != other.engine().ended())
        return "one of them has ended";
    if (!whole || one.engine().ended())
        return {};
    const std::string state = stateOf(one);
    const std::string otherState = stateOf(other);
    return state == otherState ? std::string() : "they hold otherwise" + parting(state, otherState);
}

/// Plays one branch; adds to the outcome.
void playBranch(player::Player& one, Files& files, int moves, Outcome& outcome)
{
    std::string problem;
    const std::unique_ptr<player::Player> other = one.branched(problem);
    if (other == nullptr) {
        outcome.fault = problem;
        return;
    }
    ++outcome.branches;
    one.takeLog();
    other->takeLog();
    outcome.fault = difference(one, *other, true);
    for (int move = 1; move <= moves && outcome.fault.empty() && !one.engine().ended(); ++move) {
        const std::uint64_t before = one.events();
        const bool sound = one.play(1);
        const bool written = files.changed();
        if (written)
            files.putBack();
        const bool bothSound = other->play(1) && sound;
        if (written || files.changed())
            files.keep();
        outcome.events += one.events() - before;
        if (!bothSound)
            outcome.fault = "one of them fails: " + one.fault() + other->fault();
        else if (looksOutside(one) || looksOutside(*other))
            return;
        else
            outcome.fault = difference(one, *other, move % comparedEvery == 0 || move == moves);
        if (!outcome.fault.empty())
            outcome.fault += "\nin move " + std::to_string(move) + " of branch " + std::to_string(outcome.branches) +
                             other->lastEvents();
    }
}

} // namespace twin_game_detail

Outcome playTwins(std::string_view window, std::uint64_t seed, int branches, int moves)
{
    using namespace twin_game_detail;
    player::Player player(console::wholeProgram(), {.seed = seed, .onlyWindow = std::string(window)});
    Files files(player.ground().path());
    Outcome outcome;
    player::Chance chance(seed);
    while (outcome.branches < branches && outcome.fault.empty()) {
        if (!player.play(1 + chance.below(warmUp)))
            outcome.fault = player.fault();
        if (files.changed())
            files.keep();
        if (outcome.fault.empty() && !looksOutside(player))
            playBranch(player, files, moves, outcome);
    }
    if (!outcome.fault.empty())
        outcome.fault = "seed " + std::to_string(seed) + ": " + outcome.fault;
    return outcome;
}

} // namespace velmor::twins
