// SPDX-License-Identifier: MIT
// The formulas of follower and splitter against figures worked out by hand, with the calculation beside each.
#include "designs/base_collector/follower_formulas.h"

#include <gtest/gtest.h>

#include "designs/base_collector/form17_formulas.h"
#include "host/failure.h"

namespace velmor::follower_formulas_test {

using namespace base_collector;

TEST(FollowerFormulas, TheLeastSupplyHoldsTheOutputTwiceAndIsAtLeastFourVolts)
{
    // 2.5 + 2.5 + 6
    EXPECT_DOUBLE_EQ(leastSupply(5.0).value(), 11.0);
    // 1.5 + 1.5 = 3, + 1 = 4: the limit itself
    EXPECT_DOUBLE_EQ(leastSupply(1.5).value(), 4.0);
    EXPECT_DOUBLE_EQ(leastSupply(1.0).value(), 4.0);
    EXPECT_DOUBLE_EQ(transistorRoom(5.0).value(), 6.0);
}

TEST(FollowerFormulas, TheBaseTakesWhatRb1GivesMoreThanRb2Drains)
{
    // 17.4 V / 74 K = 235.135 uA, 12.6 V / 56 K = 225 uA; 10.135 uA x 100 = 1.0135 mA
    EXPECT_NEAR(obtainedCurrent(17.4, 74.0, 12.6, 56.0, 100.0).value(), 1.0135135135, 1e-9);
    // Rb1 too large: less than nothing
    EXPECT_LT(obtainedCurrent(17.4, 80.0, 12.6, 56.0, 100.0).value(), 0.0);
    EXPECT_THROW(obtainedCurrent(17.4, 0.0, 12.6, 56.0, 100.0), host::ProgramFailure);
    EXPECT_THROW(obtainedCurrent(17.4, 74.0, 12.6, 0.0, 100.0), host::ProgramFailure);
}

TEST(FollowerFormulas, ATenthAboveAndBelowStillCounts)
{
    EXPECT_TRUE(withinATenth(1.1, 1.0));
    EXPECT_FALSE(withinATenth(1.1001, 1.0));
    EXPECT_TRUE(withinATenth(0.9, 1.0));
    EXPECT_FALSE(withinATenth(0.8999, 1.0));
}

TEST(FollowerFormulas, PowersOfTheSignal)
{
    // (2.5 x 0.707)^2 = 3.12405625; over 10000 ohm
    EXPECT_NEAR(signalPower(5.0, 10.0).value(), 3.12405625e-4, 1e-15);
    EXPECT_THROW(signalPower(5.0, 0.0), host::ProgramFailure);
}

TEST(Form17Formulas, TheQuiescentCurrentHasAFloorAndTheDesignsNone)
{
    EXPECT_DOUBLE_EQ(form17::quiescentCurrent(4.0, 4.0).value(), 0.5);
    EXPECT_DOUBLE_EQ(form17::quiescentCurrent(4.0, 5.0).value(), 0.5);
    EXPECT_DOUBLE_EQ(form17::quiescentCurrent(8.0, 4.0).value(), 1.0);
    EXPECT_DOUBLE_EQ(form17::currentForOutput(4.0, 5.0).value(), 0.4);
    EXPECT_THROW(form17::currentForOutput(4.0, 0.0), host::ProgramFailure);
    EXPECT_DOUBLE_EQ(form17::largestCurrent(2.5).value(), 1.0);
}

TEST(Form17Formulas, Rb2IsRoundedToFourDecimalsTiesToTheEvenOne)
{
    // 1 x 0.03125 lies halfway between 0.0312 and 0.0313, 3 x 0.03125 = 0.09375 between 0.0937 and 0.0938
    EXPECT_DOUBLE_EQ(form17::lowerBaseResistor(1.0, 0.03125).value(), 0.0312);
    EXPECT_DOUBLE_EQ(form17::lowerBaseResistor(3.0, 0.03125).value(), 0.0938);
}

TEST(Form17Formulas, TheDividerAndTheInput)
{
    // Rp = 50 x 200 / 250 = 40; 2 x 40 / (7.4 + 0.6)
    EXPECT_DOUBLE_EQ(form17::upperBaseResistor(2.0, 50.0, 200.0, 7.4, 0.6).value(), 10.0);
    // 47 x 80 / 127, with Beta x RLac = 100 x 0.8
    EXPECT_NEAR(form17::inputImpedance(47.0, 100.0, 0.8).value(), 3760.0 / 127.0, 1e-12);
    // 1000 / (6.28 x 20 x 0.1 x 10) = 1000 / 125.6
    EXPECT_NEAR(form17::couplingMicrofarads(20.0, 10.0).value(), 1000.0 / 125.6, 1e-12);
    EXPECT_DOUBLE_EQ(form17::proposedEmitterResistor(0.5).value(), 10.0);
}

// The parallel of Res and RLw would be 4 x 1 / 5 = 0.8; what stands there is 100 / 4 / 5.
TEST(Form17Formulas, TheStabilityIsToldWronglyOnPurpose)
{
    EXPECT_DOUBLE_EQ(form17::stabilityFactor(100.0, 4.0, 1.0).value(), 5.0);
}

} // namespace velmor::follower_formulas_test
