// SPDX-License-Identifier: MIT
// The formulas of the class B stage against figures worked out by hand, with the calculation beside each.
#include "designs/power/form10_formulas.h"

#include <gtest/gtest.h>

#include "host/failure.h"

namespace velmor::form10_formulas_test {

using namespace form10;

TEST(Form10Formulas, TheOutputSwingsTwicePeakToPeakWithTheCoursesRoot)
{
    // sqr(8 x 8) x 1.41 x 2
    EXPECT_DOUBLE_EQ(outputSwing(8.0, 8.0).value(), 22.56);
    EXPECT_DOUBLE_EQ(outputSwing(1.0, 1.0).value(), 2.82);
    EXPECT_DOUBLE_EQ(outputSwing(0.0, 8.0).value(), 0.0);
}

TEST(Form10Formulas, TheSupplyHoldsBothTransistorsAndTwoVolts)
{
    EXPECT_DOUBLE_EQ(leastEq(10.0).value(), 6.6);
    // 2 x 14.8896 + 2
    EXPECT_DOUBLE_EQ(leastSupply(14.8896).value(), 31.7792);
    EXPECT_DOUBLE_EQ(driverLoadVoltage(24.0, 1.2).value(), 10.8);
    EXPECT_DOUBLE_EQ(driverLoadVoltage(36.0, 2.4).value(), 15.6);
    EXPECT_LT(driverLoadVoltage(2.0, 1.2).value(), 0.0) << "a supply that the student insists on";
}

TEST(Form10Formulas, TheDriverIsBiasedByItsLoad)
{
    EXPECT_DOUBLE_EQ(driverLoad(10.8, 6.0).value(), 1.8);
    EXPECT_THROW(driverLoad(10.8, 0.0), host::ProgramFailure);
    // 0.6 V / 6 mA = 100 ohm
    EXPECT_DOUBLE_EQ(biasResistor(6.0).value(), 100.0);
    EXPECT_DOUBLE_EQ(biasResistor(12.0).value(), 50.0);
    // 12 V / (0.5 K + 1.5 K)
    EXPECT_DOUBLE_EQ(biasWithLoad(24.0, 0.5, 1.5).value(), 6.0);
    EXPECT_THROW(biasWithLoad(24.0, 0.0, 0.0), host::ProgramFailure);
}

TEST(Form10Formulas, TheBaseIsFedFromTheOutput)
{
    EXPECT_DOUBLE_EQ(upperBaseResistor(1.8).value(), 18.0);
    EXPECT_DOUBLE_EQ(upperBaseVoltage(12.0, 0.6).value(), 11.4);
    // 11.4 V / 19000 ohm = 0.6 mA
    EXPECT_DOUBLE_EQ(upperBaseCurrent(11.4, 19.0).value(), 0.0006);
    EXPECT_THROW(upperBaseCurrent(11.4, 0.0), host::ProgramFailure);
    // 6 mA / 100 = 60 microampere
    EXPECT_DOUBLE_EQ(baseCurrent(6.0).value(), 0.00006);
    EXPECT_DOUBLE_EQ(lowerBaseCurrent(0.0006, 0.00006).value(), 540.0);
    // 0.6 V / 600 microampere = 1 K
    EXPECT_DOUBLE_EQ(lowerBaseResistor(0.6, 600.0).value(), 1000.0);
    EXPECT_THROW(lowerBaseResistor(0.6, 0.0), host::ProgramFailure);
}

TEST(Form10Formulas, TheCurrentOfTheLowerResistorHasFourDecimals)
{
    // 0.03125 microampere, half way between 0.0312 and 0.0313: the even one
    EXPECT_DOUBLE_EQ(lowerBaseCurrent(0.03125 / 1000000.0, 0.0).value(), 0.0312);
    // 100 microampere less 33.33333
    EXPECT_DOUBLE_EQ(lowerBaseCurrent(0.0001, 0.00003333333).value(), 66.6667);
}

TEST(Form10Formulas, TheSignalPassesOneDriverWithABetaOfAHundred)
{
    EXPECT_DOUBLE_EQ(baseImpedance(4.0).value(), 400.0);
    // 500 // 10000 = 5000000 / 10500
    EXPECT_DOUBLE_EQ(inputImpedance(500.0, 10.0).value(), 5000000.0 / 10500.0);
    EXPECT_DOUBLE_EQ(seriesResistor(250.0).value(), 5000.0);
    // 1 / (1256 x 0.1 x 8) F = 995.2229 microfarad
    EXPECT_NEAR(capacitorFor(8.0).value() * 1e6, 995.2229, 0.0001);
    EXPECT_THROW(capacitorFor(0.0), host::ProgramFailure);
    // 1600 // (50 x 8) = 640000 / 2000
    EXPECT_DOUBLE_EQ(driverLoadAc(1.6, 8.0).value(), 320.0);
    // (5000 / 250) x 0.2
    EXPECT_DOUBLE_EQ(generatorSwing(5.0, 250.0, 0.2).value(), 4.0);
}

TEST(Form10Formulas, ThePeakCurrentLeavesTheEmitterResistorOut)
{
    EXPECT_DOUBLE_EQ(emitterVoltage(2.0).value(), 0.94);
    // (12 - 1) / 8, whatever the emitter resistor takes
    EXPECT_DOUBLE_EQ(peakCurrent(12.0, 1.0, 8.0).value(), 1.375);
    EXPECT_THROW(peakCurrent(12.0, 1.0, 0.0), host::ProgramFailure);
}

TEST(Form10Formulas, TheGeneratorWithoutACircuitGivesNothing)
{
    // (4 / 2 x 0.707)^2 = 1.999396; / 5250 ohm = 380.8373 microwatt
    EXPECT_NEAR(generatorPower(4.0, 5.0, 250.0).value(), 380.8373, 0.0001);
    EXPECT_DOUBLE_EQ(generatorPower(4.0, 0.0, 0.0).value(), 0.0);
}

} // namespace velmor::form10_formulas_test
