// SPDX-License-Identifier: MIT
// The formulas of the class A stages against figures worked out by hand, with the calculation beside each.
#include "designs/power/form15_formulas.h"

#include <gtest/gtest.h>

#include "designs/power/form20.h"
#include "host/failure.h"

namespace velmor::form15_formulas_test {

using namespace form15;

TEST(ClassAFormulas, TheSwingFollowsFromPowerAndLoad)
{
    // Sqr(8 x 8 x 1) = 8; Sqr(0.5 x 8 x 16) = 8
    EXPECT_DOUBLE_EQ(swingOfPower(8.0, 1.0).value(), 8.0);
    EXPECT_DOUBLE_EQ(swingOfPower(0.5, 16.0).value(), 8.0);
    EXPECT_THROW(swingOfPower(-1.0, 16.0), host::ProgramFailure);
    // 0.5 A x 2 x 16 ohm
    EXPECT_DOUBLE_EQ(swingOfCurrent(0.5, 16.0).value(), 16.0);
}

TEST(ClassAFormulas, ThePowerOfASwingIsNotQuiteTheOneItCameFrom)
{
    // (8 / 2 x 0.707) squared = 7.997584; over 16 ohm 0.499849, not 0.5
    EXPECT_DOUBLE_EQ(powerOfSwing(8.0, 16.0).value(), 0.499849);
    EXPECT_DOUBLE_EQ(effective(8.0).value(), 2.828);
    EXPECT_THROW(powerOfSwing(8.0, 0.0), host::ProgramFailure);
}

TEST(ClassAFormulas, EqHasFourDecimalsAndTiesGoToTheEvenOne)
{
    // 0.66 x 9.99199679743744 = 6.59471788...
    EXPECT_EQ(quiescentVoltage(9.99199679743744).value(), 6.5947);
    // 0.66 x 1.0025 = 0.66165 and 0.66 x 0.0125 = 0.00825: halves of the fourth decimal go to the even one
    EXPECT_EQ(quiescentVoltage(1.0025).value(), 0.6616);
    EXPECT_EQ(quiescentVoltage(0.0125).value(), 0.0082);
}

TEST(ClassAFormulas, AVoltageOfFourDecimalsLosesNoDigitBySubtraction)
{
    EXPECT_EQ(lessCurrency(6.5947, 0.6).value(), 5.9947);
    EXPECT_EQ(lessCurrency(6.5947, 1.2).value(), 5.3947);
    // in binary 0.7 - 0.6 is not 0.1
    EXPECT_EQ(lessCurrency(0.7, 0.6).value(), 0.1);
    EXPECT_EQ(lessCurrency(0.5, 0.6).value(), -0.1);
}

TEST(ClassAFormulas, TheCoilTakesThirtyPerCentOffAndTheProposalAddsTen)
{
    EXPECT_DOUBLE_EQ(resistanceOfCoil(16.0).value(), 11.2);
    EXPECT_DOUBLE_EQ(proposedCurrent(0.25).value(), 0.275);
}

TEST(ClassAFormulas, TwentyPerCentOfRb2BelongToTheTolerance)
{
    EXPECT_FALSE(isBeyondTolerance(80.0, 100.0));
    EXPECT_FALSE(isBeyondTolerance(120.0, 100.0));
    EXPECT_TRUE(isBeyondTolerance(79.9, 100.0));
    EXPECT_TRUE(isBeyondTolerance(120.1, 100.0));
    // a negative Rb2 lies beyond its own tolerance
    EXPECT_TRUE(isBeyondTolerance(-100.0, -100.0));
}

TEST(ClassAFormulas, WholeOhmsAreTheNearestWithoutALimit)
{
    EXPECT_EQ(wholeOhms(160.5).value(), 160.0);
    EXPECT_EQ(wholeOhms(161.5).value(), 162.0);
    EXPECT_EQ(wholeOhms(40000.6).value(), 40001.0);
}

TEST(ClassAFormulas, ADivisorOfZeroLeavesTheQuantityAsItWas)
{
    Real quantity = 7.0;
    divide(quantity, 1.0, 0.0);
    EXPECT_EQ(quantity.value(), 7.0);
    divide(quantity, 1.0, 4.0);
    EXPECT_EQ(quantity.value(), 0.25);
}

TEST(DarlingtonFormulas, BothBetasMultiplyAndRLIsDivided)
{
    // 10 x 16 x 50; 16 x 50 x 100
    EXPECT_DOUBLE_EQ(form20::proposedRL(16.0, 50.0).value(), 8000.0);
    EXPECT_DOUBLE_EQ(form20::inputOfPair(16.0, 50.0, 100.0).value(), 80000.0);
    EXPECT_DOUBLE_EQ(form20::lessPercent(8000.0, 20).value(), 6400.0);
    EXPECT_DOUBLE_EQ(form20::lessPercent(8000.0, 80).value(), 1600.0);
}

} // namespace velmor::form15_formulas_test
