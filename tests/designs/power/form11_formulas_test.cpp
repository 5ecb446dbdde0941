// SPDX-License-Identifier: MIT
// What the improved class B stage works out otherwise, against figures worked out by hand, with the calculation beside each.
#include "designs/power/form11_formulas.h"

#include <gtest/gtest.h>

#include "host/failure.h"

namespace velmor::form11_formulas_test {

using namespace form11;

TEST(Form11Formulas, TheOutputSwingsWithTheRootOfEightTimesThePower)
{
    // sqr(8 x 8 x 16) = 32; sqr(10 x 8 x 8) = sqr(640)
    EXPECT_DOUBLE_EQ(outputSwing(8.0, 16.0).value(), 32.0);
    EXPECT_NEAR(outputSwing(10.0, 8.0).value(), 25.298221281347036, 1e-14);
}

TEST(Form11Formulas, TheEmitterResistorTakesThreeTenthsOfAVolt)
{
    EXPECT_DOUBLE_EQ(emitterResistor(3.0).value(), 100.0);
    EXPECT_DOUBLE_EQ(emitterVoltage(100.0, 3.0).value(), 0.3);
    // the resistor stays when the current becomes another
    EXPECT_DOUBLE_EQ(emitterVoltage(100.0, 4.0).value(), 0.4);
    EXPECT_THROW(emitterResistor(0.0), host::ProgramFailure);
}

TEST(Form11Formulas, TheCapacitorOfTheFeedbackIsToldInMicrofarads)
{
    // 10^6 / (125.6 x 10000) = 0.7962
    EXPECT_NEAR(capacitorOfRb1a(10.0).value(), 0.79618, 0.00001);
    EXPECT_THROW(capacitorOfRb1a(0.0), host::ProgramFailure);
}

TEST(Form11Formulas, TheFeedbackResistorIsDividedByTheGain)
{
    EXPECT_DOUBLE_EQ(baseImpedance(25.0, 100.0).value(), 12500.0);
    // 3200 // 3200, with RLa = 3.2 K and 400 x 8
    EXPECT_DOUBLE_EQ(driverLoadAc(3.2, 8.0).value(), 1600.0);
    EXPECT_DOUBLE_EQ(driverGain(1600.0, 28.0, 100.0).value(), 12.5);
    // 25 K / 12.5 = 2 K; 2 K // 2 K
    EXPECT_DOUBLE_EQ(inputImpedance(2000.0, 25.0, 12.5).value(), 1000.0);
    EXPECT_THROW(inputImpedance(2000.0, 25.0, 0.0), host::ProgramFailure);
}

TEST(Form11Formulas, TheGeneratorGivesTwiceTheInputAtLeastAndTheBranchesMeet)
{
    EXPECT_DOUBLE_EQ(generatorSwing(1.9999, 1000.0, 3.0).value(), 6.0);
    EXPECT_DOUBLE_EQ(generatorSwing(2.0, 1000.0, 3.0).value(), 6.0);
    EXPECT_DOUBLE_EQ(generatorSwing(5.0, 1000.0, 3.0).value(), 15.0);
    EXPECT_DOUBLE_EQ(generatorSwing(0.0, 1000.0, 3.0).value(), 6.0);
    EXPECT_THROW(generatorSwing(2.0, 0.0, 3.0), host::ProgramFailure);
    // 4 V peak to peak, 2 V peak
    EXPECT_DOUBLE_EQ(effectiveInput(4.0).value(), 1.414);
}

} // namespace velmor::form11_formulas_test
