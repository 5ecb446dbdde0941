// SPDX-License-Identifier: MIT
// A small program made for the tests of the walk language: a main window, a sheet, an editor, a tool window, a palette.
// Every slot of the sheet writes its name into the label `Log`, so that a walk can ask in which order they ran.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "console/walk_player.h"

namespace velmor::console::test {

const WalkedProgram& fixtureProgram();

/// A walk that was played, with all it printed.
struct Played {
    WalkResult result;
    std::string output;
};

Played play(const std::string& text, bool trace = false);

/// The walk asks something, and all that it asks holds.
testing::AssertionResult holds(const std::string& text);
/// One thing fails, with this report alone.
testing::AssertionResult failsWith(const std::string& text, const std::string& report);
/// The walk stops at a line that cannot be read, with this report alone.
testing::AssertionResult stopsWith(const std::string& text, const std::string& report);

/// What `velmor-walk ARGUMENTS` did.
struct Ran {
    int status = 0;
    std::string output;
};

Ran run(const std::vector<std::string>& arguments, const std::string& input = "");

} // namespace velmor::console::test
