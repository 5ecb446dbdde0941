// SPDX-License-Identifier: MIT
// The formulas of Form4 at their limits. Expected values are worked out by hand, as the remarks say.
#include "designs/base_collector/form4_formulas.h"

#include <gtest/gtest.h>

#include "host/failure.h"

namespace velmor::form4_formulas_test {

using namespace form4;

TEST(Form4Formulas, TheJunctionHasTwentyFiveMillivolts)
{
    EXPECT_EQ(junctionResistance(1.0).value(), 25.0);
    EXPECT_EQ(junctionResistance(0.5).value(), 50.0);
    EXPECT_THROW(junctionResistance(0.0), host::ProgramFailure);
}

TEST(Form4Formulas, TheStandardResistorMovesTheCurrentAndNotTheVoltage)
{
    EXPECT_EQ(quiescentCurrent(1.375, 1.375).value(), 1.0);
    EXPECT_EQ(quiescentCurrent(1.5, 0.5).value(), 3.0);
}

// Eq(min) counts 2 V for a smaller swing, Es(min) never falls below 4 V.
TEST(Form4Formulas, TheLeastSupplyHasTwoFloors)
{
    EXPECT_EQ(leastTransistorVoltage(1.0).value(), 3.0);
    EXPECT_EQ(leastTransistorVoltage(2.0).value(), 3.0);
    EXPECT_EQ(leastTransistorVoltage(2.5).value(), 3.5);
    EXPECT_EQ(leastSupply(1.0, 0.25).value(), 4.0); // 0.5 + 0.25 + 3
    EXPECT_EQ(leastSupply(1.0, 0.5).value(), 4.0);
    EXPECT_EQ(leastSupply(1.0, 0.75).value(), 4.25);
    EXPECT_EQ(leastSupply(4.0, 1.0).value(), 8.0); // 2 + 1 + 5
    EXPECT_EQ(leastLoadVoltage(3.0).value(), 1.5);
}

TEST(Form4Formulas, TheTransistorKeepsOneVoltMoreThanTheSwingAndWorksWithThreeAtLeast)
{
    EXPECT_EQ(transistorVoltage(1.0).value(), 2.0);
    EXPECT_EQ(workingTransistorVoltage(1.0).value(), 3.0);
    EXPECT_EQ(workingTransistorVoltage(2.0).value(), 3.0);
    EXPECT_EQ(workingTransistorVoltage(2.25).value(), 3.25);
}

// The example of the help page: 10 K with 20 K gives -20 K. A load that takes all of RLac leaves none.
TEST(Form4Formulas, ALoadThatIsTooHeavyLeavesNoResistor)
{
    EXPECT_EQ(signalLoad(140.0, 25.0).value(), 3500.0);
    EXPECT_EQ(collectorResistor(10.0, 5000.0).value(), 10.0);
    EXPECT_EQ(collectorResistor(10.0, 20000.0).value(), -20.0);
    EXPECT_EQ(collectorResistor(10.0, 10000.0).value(), 0.0);
}

TEST(Form4Formulas, VoltagesAddUpToTheSupply)
{
    EXPECT_EQ(loadVoltage(1000.0, 5.5).value(), 5500.0);
    EXPECT_EQ(supplyVoltage(1.375, 5.5, 4.0).value(), 10.875);
    EXPECT_EQ(finalGain(3.5, 25.0).value(), 140.0);
}

// Ties of the fifth decimal go to the even digit: 0.03125 to 0.0312, 0.09375 to 0.0938.
TEST(Form4Formulas, TheLowerBaseResistorIsRoundedToFourDecimals)
{
    EXPECT_EQ(lowerBaseResistor(1.0, 0.03125).value(), 0.0312);
    EXPECT_EQ(lowerBaseResistor(3.0, 0.03125).value(), 0.0938);
    EXPECT_EQ(lowerBaseResistor(10.0, 1.375).value(), 13.75);
}

// Beta x RL: 100 x 0.5 K is 50 K; beside 50 K of Rb2 it makes 25 K. ((4 + 6) - 0.5) x 25000 / (2 + 0.5) = 95000.
TEST(Form4Formulas, TheUpperBaseResistorCountsRLWhereResWouldBeExpected)
{
    EXPECT_EQ(baseImpedance(100.0, 0.5).value(), 50000.0);
    const Real Rb1 =
        upperBaseResistor({.Rb2 = 50.0, .baseZ = 50000.0, .EqWork = 4.0, .ERL = 6.0, .ERes = 2.0, .Vj = 0.5});
    EXPECT_EQ(Rb1.value(), 95000.0);
}

// 1 K and 1.4 mA: 1.4 V and 0.6 are 2 V at the base. (10 - 2) / 40000 - 2 / 20000 is 0.1 mA, 100 times 10 mA.
TEST(Form4Formulas, ThePresetIsCheckedWithAJunctionOfSixTenths)
{
    const Real current = obtainedCurrent({.Es = 10.0, .QIc = 1.4, .Res = 1.0, .Rb1 = 40.0, .Rb2 = 20.0, .Beta = 100.0});
    EXPECT_NEAR(current.value(), 10.0, 1e-12);
}

// 6.28 x 20 x 25 = 3140, without the tenth; 6.28 x 20 x 0.1 x 1000 = 12560.
TEST(Form4Formulas, TheInputCapacitorHasNoTenth)
{
    EXPECT_NEAR(inputCapacitor(20.0, 25.0).value() * 3140.0, 1.0, 1e-12);
    EXPECT_NEAR(emitterBypass(20.0, 1.0).value() * 12560.0, 1.0, 1e-12);
}

// (4 / 2 x 0.707)^2 = 1.999396; over 10 K, and over 100^2 and 25 ohm.
TEST(Form4Formulas, ThePowersAreThoseOfEffectiveValues)
{
    EXPECT_NEAR(outputPower(4.0, 10.0).value(), 1.999396e-4, 1e-15);
    EXPECT_NEAR(generatorPower(4.0, 100.0, 25.0).value(), 1.999396 / 250000.0, 1e-18);
    EXPECT_NEAR(generatorPower(4.0, 100.0, 2500.0).value(), 1.999396 / 25000000.0, 1e-20);
}

} // namespace velmor::form4_formulas_test
