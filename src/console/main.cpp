// SPDX-License-Identifier: MIT
// velmor-walk: plays walks on the whole program.
#include <iostream>
#include <string>
#include <vector>

#include "console/walk_player.h"
#include "console/whole_program.h"

int main(int argc, char** argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    return velmor::console::runWalks(velmor::console::wholeProgram(), arguments, std::cin, std::cout);
}
