// SPDX-License-Identifier: MIT
// A copy of a program goes on exactly as the first would have: short games around every window.
#include <gtest/gtest.h>

#include "console/whole_program.h"
#include "host/window.h"
#include "state/twin_game.h"

namespace velmor::twin_game_test {

constexpr int branches = 100;
constexpr int moves = 30;

class TwinsOfEveryWindow : public testing::TestWithParam<const host::WindowSpec*> {};

TEST_P(TwinsOfEveryWindow, GoesOnInACopyAsInTheFirst)
{
    const twins::Outcome outcome = twins::playTwins(GetParam()->name, 7, branches, moves);
    EXPECT_EQ(outcome.fault, "");
    EXPECT_EQ(outcome.branches, branches);
    EXPECT_GT(outcome.events, std::uint64_t{branches} * moves / 3);
}

INSTANTIATE_TEST_SUITE_P(Catalogue, TwinsOfEveryWindow,
                         testing::ValuesIn(console::wholeProgram().catalogue.begin(),
                                           console::wholeProgram().catalogue.end()),
                         [](const auto& row) { return std::string(row.param->name); });

} // namespace velmor::twin_game_test
