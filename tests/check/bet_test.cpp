// SPDX-License-Identifier: MIT
// Betting on a row opens it; the first guess counts.
#include "check/bet.h"

#include <gtest/gtest.h>

namespace velmor::check::test {

TEST(Bet, opensTheRowThatWasGuessed)
{
    Check check;
    check.rows = {{.quantity = Quantity::Zin, .course = 12000, .simulated = 8600},
                  {.quantity = Quantity::Vg, .course = 5, .simulated = 4.8},
                  {.quantity = Quantity::THD, .simulated = 1}};
    Bet bet;
    EXPECT_FALSE(bet.isOpen(check.rows[0]));
    EXPECT_TRUE(bet.isOpen(check.rows[2])) << "the course says nothing of it";
    bet.guess(Quantity::Zin, Guess::higher);
    bet.guess(Quantity::Zin, Guess::lower);
    bet.guess(Quantity::Vg, Guess::same);
    EXPECT_TRUE(bet.isOpen(check.rows[0]));
    EXPECT_EQ(bet.placed(), 2);
    EXPECT_EQ(bet.won(check), 1) << "Zin came out lower, and the first guess counts";
}

TEST(Bet, isNotForcedOnAnybody)
{
    Check check;
    check.rows = {{.quantity = Quantity::Zin, .course = 12000, .simulated = 13000}};
    EXPECT_EQ(outcomeOf(check.rows[0]), Guess::same);
    Bet bet;
    bet.openAll();
    EXPECT_TRUE(bet.isOpen(check.rows[0]));
    EXPECT_EQ(bet.placed(), 0);
}

} // namespace velmor::check::test
