// SPDX-License-Identifier: MIT
// velmor-twins: long games of two programs that must not differ.
#include <cstdlib>
#include <iostream>

#include "state/twin_game.h"

int main(int count, char** words)
{
    using namespace velmor;
    if (count < 2 || count > 4) {
        std::cout << "velmor-twins WINDOW|all [BRANCHES [SEED]]\n"
                     "  plays around a window, copies the program so many times, and plays on in both\n";
        return 2;
    }
    const std::string window = words[1];
    const int branches = count > 2 ? std::atoi(words[2]) : 1000;
    const std::uint64_t seed = count > 3 ? std::strtoull(words[3], nullptr, 10) : 1;
    const twins::Outcome outcome = twins::playTwins(window == "all" ? "" : window, seed, branches, 120);
    std::cout << outcome.branches << " branches, " << outcome.events << " events in both\n"
              << outcome.fault << std::endl;
    return outcome.fault.empty() ? 0 : 1;
}
