// SPDX-License-Identifier: MIT
// The formulas of the compound pair against figures worked out by hand, with the calculation beside each.
#include "designs/differential/form13_formulas.h"

#include <gtest/gtest.h>

#include "host/failure.h"
#include "rules/numbers.h"

namespace velmor::form13_formulas_test {

using namespace form13;

TEST(Form13Formulas, TheStabilityCountsFromTwentyDegrees)
{
    // 70 x 2.5 mV x 100 / 7 % = 2.5 V; 5 degrees: 12.5 mV x 100 / 7
    EXPECT_DOUBLE_EQ(eResOf(90.0).value(), 2.5);
    EXPECT_DOUBLE_EQ(eResOf(25.0).value(), 1.25 / 7.0);
    EXPECT_DOUBLE_EQ(eResOf(20.0).value(), 0.0);
}

TEST(Form13Formulas, InputAndOutputAreNoExactInverses)
{
    // 3 / 1000 / 2 x 0.707
    EXPECT_DOUBLE_EQ(einOf(3.0, 1000.0).value(), 0.0010605);
    // 1000 x 0.001 x 2.82
    EXPECT_DOUBLE_EQ(eoppOf(1000.0, 0.001).value(), 2.82);
    EXPECT_DOUBLE_EQ(outputRms(3.0).value(), 1.0605);
    EXPECT_THROW(einOf(3.0, 0.0), host::ProgramFailure);
}

TEST(Form13Formulas, ResIsWholeTheHalfToTheEvenNeighbourAndNeverBelowOne)
{
    EXPECT_DOUBLE_EQ(wholeRes(2.5, 1.0).value(), 2.0);
    EXPECT_DOUBLE_EQ(wholeRes(3.5, 1.0).value(), 4.0);
    EXPECT_DOUBLE_EQ(wholeRes(2.51, 1.0).value(), 3.0);
    EXPECT_DOUBLE_EQ(wholeRes(0.1786, 1.0).value(), 1.0);
    EXPECT_DOUBLE_EQ(wholeRes(2.5, 0.625 * 2.0).value(), 2.0);
    EXPECT_THROW(wholeRes(32768.0, 1.0), host::ProgramFailure);
}

TEST(Form13Formulas, TheSecondPairOfTheWorkGuide)
{
    EXPECT_DOUBLE_EQ(rl2Start(2.5).value(), 10.0);
    EXPECT_DOUBLE_EQ(leastEs(5.0, 2.5, leastEQ34(3.0)).value(), 11.5);
    EXPECT_DOUBLE_EQ(qIc34Of(2.5, 2.0).value(), 0.625);
    EXPECT_DOUBLE_EQ(s5Of(12.0, 2.0).value(), 6.0);
    // 12000 / (2.5 x 40)
    EXPECT_DOUBLE_EQ(vgQ34Of(12.0, 40.0).value(), 120.0);
    EXPECT_DOUBLE_EQ(inputOfEmitter(2.0).value(), 200.0);
    EXPECT_DOUBLE_EQ(eq12Of(2.5).value(), 3.1);
    EXPECT_DOUBLE_EQ(rl1Of(2.0).value(), 11.4);
    EXPECT_THROW(qIc34Of(2.5, 0.0), host::ProgramFailure);
}

TEST(Form13Formulas, TheInputPairAndQ5OfTheWorkGuide)
{
    EXPECT_DOUBLE_EQ(inputOfPair(40.0).value(), 8000.0);
    // 12000 x 8000 / 20000
    EXPECT_DOUBLE_EQ(rlac12Of(12.0, 8000.0).value(), 4800.0);
    // 4800 / (1.25 x 25)
    EXPECT_DOUBLE_EQ(vgQ12Of(4800.0, 25.0).value(), 153.6);
    EXPECT_DOUBLE_EQ(eRes1Of(5.0, 2.5).value(), 6.9);
    // 1 / (12.56 x 5000)
    EXPECT_NEAR(c1Of(5000.0).value(), 1.0 / 62800.0, 1e-18);
    EXPECT_THROW(c1Of(0.0), host::ProgramFailure);
}

// 0.0625 K beside 0.0625 K is 0.03125 K: the fourth decimal is a tie, and goes to the even 0.0312.
TEST(Form13Formulas, ATieOfTheFourthDecimalGoesToTheEvenOne)
{
    EXPECT_EQ(rules::CurrencyText(Real(0.03125), "."), "0.0312");
    EXPECT_EQ(rules::CurrencyText(Real(0.09375), "."), "0.0938");
}

} // namespace velmor::form13_formulas_test
