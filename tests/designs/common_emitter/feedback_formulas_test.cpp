// SPDX-License-Identifier: MIT
// The formulas of the sheets fed back by voltage, against values worked out with pencil and paper; how stands beside each.
#include <gtest/gtest.h>

#include "designs/common_emitter/feedback_formulas.h"
#include "host/failure.h"

namespace velmor::feedback_formulas_test {

using namespace feedback;

TEST(FeedbackFormulas, ASmallSwingIsLiftedByAVoltNotToAVolt)
{
    EXPECT_DOUBLE_EQ(leastEq(2.5).value(), 1.65);
    EXPECT_DOUBLE_EQ(leastEq(1).value(), 1.66);
    // 0.66 x 1.5 = 0.99, and 0.66 x 1.52 = 1.0032
    EXPECT_DOUBLE_EQ(leastEq(1.5).value(), 1.99);
    EXPECT_DOUBLE_EQ(leastEq(1.52).value(), 1.0032);
}

TEST(FeedbackFormulas, ABandLiesAroundWhatWasWorkedOutAndNoneAroundANegative)
{
    EXPECT_FALSE(isBeyond(80, 100, 20));
    EXPECT_FALSE(isBeyond(120, 100, 20));
    EXPECT_TRUE(isBeyond(79.99, 100, 20));
    EXPECT_TRUE(isBeyond(120.01, 100, 20));
    EXPECT_TRUE(isBeyond(-20, -20, 20));
    EXPECT_FALSE(isBeyond(0, 0, 20));
}

TEST(FeedbackFormulas, ThePresetDividesWhatIsLeftOfEqByTheBaseCurrent)
{
    // 1 mA / 100 = 10 microampere; (2 - 1) V / 10 microampere
    EXPECT_DOUBLE_EQ(baseCurrent(1, 100).value(), 0.00001);
    EXPECT_NEAR(feedbackResistor(2, 1, 1, 100).value(), 100000, 1e-6);
    EXPECT_LT(feedbackResistor(0.5, 0.6, 1, 100).value(), 0);
    EXPECT_THROW(feedbackResistor(2, 1, 0, 100), host::ProgramFailure);
}

TEST(FeedbackFormulas, TheLoadGivesTheGainAndTheGainTheLoad)
{
    EXPECT_DOUBLE_EQ(alternatingLoad(100, 25).value(), 2500);
    EXPECT_DOUBLE_EQ(gainOfLoad(2.5, 25).value(), 100);
    EXPECT_DOUBLE_EQ(loadVoltage(2, 3.3).value(), 6.6);
    // 105 / 10 loses its fraction, toward zero
    EXPECT_DOUBLE_EQ(stabilityFactor(105, 10).value(), 10);
    EXPECT_DOUBLE_EQ(stabilityFactor(-105, 10).value(), -10);
}

TEST(FeedbackFormulas, TheInputIsRb1DividedByTheGainBesideTheTransistor)
{
    // 250000 / 100 = 2500 beside 100 x 25 = 2500
    EXPECT_DOUBLE_EQ(inputImpedance(250000, 100, 100, 25).value(), 1250);
    // With Cdp it is 2 x Beta x r'e, whatever Rb1 is.
    EXPECT_NEAR(inputImpedanceBootstrapped(105000, 100, 25).value(), 5000, 1e-9);
    EXPECT_NEAR(inputImpedanceBootstrapped(7, 100, 25).value(), 5000, 1e-9);
    // 5 K / 2 = 2500 beside 2500
    EXPECT_DOUBLE_EQ(halfResistorInput(5, 100, 25).value(), 1250);
    // 3000 beside 1 K: 3000 x 1000 / 4000
    EXPECT_DOUBLE_EQ(inputBesideRb2(3000, 1).value(), 750);
}

TEST(FeedbackFormulas, TheDividerTakesItsCurrentsFromEqAndTheJunction)
{
    // 10 V on 100 K
    EXPECT_DOUBLE_EQ(feedbackCurrent(10.5, 0.5, 100).value(), 0.0001);
    // 0.6 V / 0.1 mA
    EXPECT_EQ(lowerBaseResistor(0.6, 0.0001).scaled(), 60000000);
    // A tie goes to the even figure: 0.5 / 16 = 0.03125 and 1.5 / 16 = 0.09375.
    EXPECT_EQ(lowerBaseResistor(0.5, 16).scaled(), 312);
    EXPECT_EQ(lowerBaseResistor(1.5, 16).scaled(), 938);
    EXPECT_LT(lowerBaseResistor(0.6, -0.001).scaled(), 0);
    EXPECT_THROW(lowerBaseResistor(0.6, 0), host::ProgramFailure);
    // 0.2 mA less 0.5 V / 5 K = 0.1 mA, times 50
    EXPECT_NEAR(obtainedCurrent(0.0002, 0.5, 5, 50).value(), 0.005, 1e-15);
}

TEST(FeedbackFormulas, CapacitorsAndPowers)
{
    // 6.28 x 20 x 0.1 x 4000 = 50240
    EXPECT_NEAR(outputCapacitor(20, 4).value() * 50240, 1, 1e-12);
    // 2.828... V peak to peak is nearly 1 V r.m.s.: (2 / 2 x 0.707)^2 = 0.499849
    EXPECT_NEAR(powerOfSwing(2, 1000).value(), 0.000499849, 1e-15);
    EXPECT_THROW(powerOfSwing(2, 0), host::ProgramFailure);
}

} // namespace velmor::feedback_formulas_test
