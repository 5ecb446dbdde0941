// SPDX-License-Identifier: MIT
// velmor-player: plays the program by chance and tells what it reached.
#include <cstdlib>
#include <iostream>
#include <string>

#include "console/whole_program.h"
#include "player/player.h"

namespace velmor::player {

namespace main_detail {

constexpr const char* usage =
    "velmor-player [--seed N] [--events N] [--window NAME] [--straight] [--details]\n"
    "  plays so many random events over the whole program, or most of them on one window, and prints which slots and\n"
    "  boxes were reached; fails when anything went wrong or when less than nine in ten slots were reached\n"
    "  --straight: designs only, from first to last field with plausible numbers\n"
    "velmor-player --list\n"
    "  prints the windows of the program\n";

struct Options {
    Game game{};
    std::uint64_t events = 1'000'000;
    bool details = false;
    bool list = false;
    bool wrong = false;
};

Options optionsOf(int count, char** words)
{
    Options options;
    for (int i = 1; i < count; ++i) {
        const std::string word = words[i];
        const bool hasValue = i + 1 < count;
        if (word == "--details")
            options.details = true;
        else if (word == "--straight")
            options.game.straight = true;
        else if (word == "--list")
            options.list = true;
        else if (word == "--seed" && hasValue)
            options.game.seed = std::strtoull(words[++i], nullptr, 10);
        else if (word == "--events" && hasValue)
            options.events = std::strtoull(words[++i], nullptr, 10);
        else if (word == "--window" && hasValue)
            options.game.onlyWindow = words[++i];
        else
            options.wrong = true;
    }
    return options;
}

int list()
{
    for (const host::WindowSpec* window : console::wholeProgram().catalogue)
        std::cout << window->name << '\n';
    return 0;
}

int play(const Options& options)
{
    Player player(console::wholeProgram(), options.game);
    const bool sound = player.play(options.events);
    player.coverage().print(std::cout, options.details);
    if (!sound) {
        std::cout << "FAULT: " << player.fault() << std::endl;
        return 1;
    }
    const std::vector<std::string> tooFew = player.coverage().shortOf(options.game.onlyWindow);
    for (const std::string& window : tooFew)
        std::cout << window << ": less than nine in ten slots were reached\n";
    std::cout << player.checks() << " finished designs were checked\n";
    std::cout << player.events() << " events, no fault" << std::endl;
    return tooFew.empty() ? 0 : 1;
}

} // namespace main_detail

} // namespace velmor::player

int main(int count, char** words)
{
    using namespace velmor::player::main_detail;
    const Options options = optionsOf(count, words);
    if (options.wrong) {
        std::cout << usage;
        return 2;
    }
    return options.list ? list() : play(options);
}
