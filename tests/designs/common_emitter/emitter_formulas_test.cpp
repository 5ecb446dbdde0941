// SPDX-License-Identifier: MIT
// The formulas of the common-emitter sheets, their own and those that all sheets share, against values worked out with pencil and
// paper; how stands beside each.
#include <gtest/gtest.h>

#include "designs/common_emitter/emitter_formulas.h"
#include "host/failure.h"
#include "sheets/formulas.h"

namespace velmor::emitter_formulas_test {

using namespace common_emitter;
using namespace sheets;

TEST(EmitterFormulas, StabilityVoltageOfTheDefaultsIs1375Millivolts)
{
    // 55 degrees x 0.0025 V x 100 / 10
    EXPECT_DOUBLE_EQ(stabilityVoltage(75, 2.5, 10).value(), 1.375);
    // A tenth of the allowed change asks for ten times the voltage.
    EXPECT_DOUBLE_EQ(stabilityVoltage(75, 2.5, 1).value(), 13.75);
    EXPECT_DOUBLE_EQ(stabilityVoltage(20, 2.5, 10).value(), 0);
}

TEST(EmitterFormulas, TheStandardResistorMovesTheCurrent)
{
    EXPECT_DOUBLE_EQ(emitterResistor(1.375, 1).value(), 1375);
    EXPECT_DOUBLE_EQ(quiescentCurrent(1.375, 1375).value(), 1);
    EXPECT_DOUBLE_EQ(quiescentCurrent(1.5, 1500).value(), 1);
    EXPECT_DOUBLE_EQ(junctionResistance(1).value(), 25);
    EXPECT_DOUBLE_EQ(junctionResistance(2.5).value(), 10);
}

TEST(EmitterFormulas, TheLoadFollowsTheGain)
{
    EXPECT_DOUBLE_EQ(unbypassedLoad(5, 1375).value(), 6875);
    EXPECT_DOUBLE_EQ(bypassedLoad(55, 1).value(), 1375);
    // 10000 x 6875 / 3125
    EXPECT_DOUBLE_EQ(collectorResistor(10000, 6875).value(), 22000);
    // 10000 x 1375 / 8625 = 1594.2028985...
    EXPECT_NEAR(collectorResistor(10000, 1375).value(), 1594.2028985507, 1e-9);
    EXPECT_DOUBLE_EQ(parallel(10, 22).value(), 6.875);
    EXPECT_DOUBLE_EQ(realGain(6.875, 1375).value(), 5);
}

TEST(EmitterFormulas, OutputAndInputAreTwoSidesOfTheGain)
{
    // 1 / 2 x 0.707 / 5
    EXPECT_DOUBLE_EQ(inputForOutput(1, 5).value(), 0.0707);
    // 0.1 x 1.41 x 2 x 5
    EXPECT_DOUBLE_EQ(outputForInput(0.1, 5).value(), 1.41);
}

TEST(EmitterFormulas, TheSupplyHoldsEveryDrop)
{
    EXPECT_DOUBLE_EQ(leastSupply(1.375, 22, 1).value(), 25.375);
    // 35 - (0.001 x 1375 + 22 x 1)
    EXPECT_DOUBLE_EQ(collectorEmitterVoltage(35, 1, 1375, 22).value(), 11.625);
    EXPECT_DOUBLE_EQ(collectorEmitterVoltageByEmitter(35, 1, 22).value(), 13);
}

TEST(EmitterFormulas, TheDividerIsTheCoursesOwn)
{
    EXPECT_EQ(lowerBaseResistor(1375, 10).scaled(), 137500000);
    // 1000 x 12 / 1375 = 8.7, without its fraction
    EXPECT_DOUBLE_EQ(stabilityFactor(CurrencyValue(12), 1375).value(), 8);
    EXPECT_DOUBLE_EQ(transistorInput(80, 1375).value(), 110000);
    // Kilohm and ohm unconverted: 12 x 80000 / 80012
    EXPECT_NEAR(inputWithoutRb1(12, 80000).value(), 11.9982002699595, 1e-12);
    // 35 - 1.375 - 0.6; the two terms with RL cancel
    EXPECT_NEAR(upperBaseVoltage(35, 1, 22, 1375, 0.6).value(), 33.025, 1e-12);
    // 33.025 x 11.9986910653 / 1.975
    EXPECT_NEAR(upperBaseResistor(33.025, 11.9986910653, 1375, 1, 0.6).value(), 200.6363402, 1e-6);
}

TEST(EmitterFormulas, ImpedancesAreParallels)
{
    EXPECT_DOUBLE_EQ(inputImpedance(12, 60).value(), 10);
    // 20 || 20 = 10 K, and 10 || 10 (of 10000 ohm) = 5 K
    EXPECT_DOUBLE_EQ(inputImpedanceBypassed(20, 20, 10000).value(), 5);
    // 2000 || (80 x 25)
    EXPECT_DOUBLE_EQ(inputImpedanceByEmitter(2, 80, 1).value(), 1000);
    // 80 x (1000 + 1000) with Rb1 of 160000: 80000
    EXPECT_DOUBLE_EQ(inputImpedanceFirstBootstrap(80, 1000, 12, 160000).value(), 80000);
    // 80 x (5 || (10 || 10))
    EXPECT_DOUBLE_EQ(inputImpedanceBootstrapped(80, 5, 20, 20).value(), 200);
}

TEST(EmitterFormulas, CapacitorsUseTheRoundedTwoPiOfTheCourse)
{
    // 1 / (20 x 6.28 x 0.1 x 10) = 0.0079617834...
    EXPECT_NEAR(couplingMicrofarads(20, 10).value(), 7961.7834395, 1e-6);
    // 2 / (12000 x 12.56) = 13.2696 millionths
    EXPECT_NEAR(firstBootstrapCapacitor(12, 20).value(), 13.2696391, 1e-6);
    EXPECT_NEAR(secondBootstrapCapacitor(120, 20).value(), 1.32696391, 1e-7);
    // 1 / (25 x 125.6) = 318.47 millionths, without its fraction
    EXPECT_DOUBLE_EQ(bypassCapacitor(1, 20).value(), 318);
}

TEST(EmitterFormulas, TheObtainedCurrentUsesTheFixedJunction)
{
    // I1 = (11.625 + 22 - 0.6) / 120000, I2 = 1.975 / 12000: (0.00027520833 - 0.00016458333) x 80000
    const CurrentCheck circuit{.Es = 35, .QIc = 1, .ERes = 1.375, .RL = 22, .Rb1 = 120, .Rb2 = 12, .Beta = 80};
    EXPECT_NEAR(obtainedCurrent(circuit).value(), 8.85, 1e-9);
}

TEST(EmitterFormulas, NothingDividesByZeroInSilence)
{
    EXPECT_THROW(emitterResistor(1, 0), host::ProgramFailure);
    EXPECT_THROW(collectorResistor(10, 10), host::ProgramFailure);
    EXPECT_THROW(couplingMicrofarads(0, 10), host::ProgramFailure);
}

// What the wholly bypassed sheet works out its own way.

TEST(FullyBypassedFormulas, TheLoadAndTheGainAreThoseOfTheJunction)
{
    // 55 x 25 / 1.1
    EXPECT_DOUBLE_EQ(fullyBypassedLoad(55, 1.1).value(), 1250);
    // 1.375 K over 25 ohm
    EXPECT_DOUBLE_EQ(fullyBypassedGain(1.375, 1).value(), 55);
    EXPECT_THROW(fullyBypassedLoad(55, 0), host::ProgramFailure);
}

TEST(FullyBypassedFormulas, TheInputIsBetaTimesTheJunctionBesideRb1Alone)
{
    // 80 x 25 / 1 = 2000 ohm beside 2 K
    EXPECT_DOUBLE_EQ(fullyBypassedInput(80, 1, 2).value(), 1000);
    EXPECT_DOUBLE_EQ(fullyBypassedInput(80, 1, 6).value(), 1500);
}

TEST(FullyBypassedFormulas, Rb1AndTheCapacitorOfTheEmitter)
{
    // 8 V x 12 K / (1000 ohm x 1.4 mA / 1000 + 0.6 V) = 96 / 2
    EXPECT_DOUBLE_EQ(fullyBypassedUpperResistor(8, 12, 1000, 1.4, 0.6).value(), 48);
    // 1 / (20 x 6.28 x 25) = 1 / 3140 F
    EXPECT_NEAR(bypassMicrofarads(1, 20).value(), 318.4713375796, 1e-9);
    EXPECT_THROW(bypassMicrofarads(1, 0), host::ProgramFailure);
}

// What the partly bypassed sheet works out its own way.

TEST(PartlyBypassedFormulas, TheVoltagesCountTheWholeResistorOnceAndTheLoadNotAtAll)
{
    // 15 - (3 + 1 x 4.7)
    EXPECT_DOUBLE_EQ(partlyBypassedVoltage(15, 3, 1, 4.7).value(), 7.3);
    // Esc counts what is left without bypass alone: 25 - (1 x 300 / 1000 + 4.7)
    EXPECT_DOUBLE_EQ(escapedVoltage(25, 1, 300, 4.7).value(), 20);
    // 15 - (3000 x 1 / 1000 + 4.7) + 4.7 - 0.6
    EXPECT_DOUBLE_EQ(partlyBypassedUpperVoltage(15, 3000, 1, 4.7, 0.6).value(), 11.4);
}

TEST(PartlyBypassedFormulas, TheDividerIsWorkedOutInOhm)
{
    // 30 K beside 600 K
    EXPECT_NEAR(partlyBypassedInput(30, 600000).value(), 28571.4285714286, 1e-9);
    // 11.4 V x 36000 ohm / (3 + 0.6) V
    EXPECT_DOUBLE_EQ(partlyBypassedUpperResistor(11.4, 36000, 3, 0.6).value(), 114000);
}

TEST(PartlyBypassedFormulas, TheImpedanceMixesKilohmAndOhmAsTheCourseDoes)
{
    // 30 (K) beside 30 (ohm) read 15; beside 200 x 75 / 1000 = 15 that is 7.5
    EXPECT_DOUBLE_EQ(partlyBypassedImpedance(30, 30, 200, 75).value(), 7.5);
}

TEST(PartlyBypassedFormulas, TheObtainedCurrentReadsTheJunctionThatItIsGiven)
{
    // (11.4 V / 91.2 K - 3.6 V / 30 K) x 200
    EXPECT_NEAR(
        obtainedCurrent({.Es = 15, .QIc = 1, .ERes = 3, .RL = 4.7, .Rb1 = 91.2, .Rb2 = 30, .Beta = 200, .Vj = 0.6})
            .value(),
        1, 1e-12);
    // with 0.2 V: (11.8 / 91.2 - 3.2 / 30) x 200
    EXPECT_NEAR(
        obtainedCurrent({.Es = 15, .QIc = 1, .ERes = 3, .RL = 4.7, .Rb1 = 91.2, .Rb2 = 30, .Beta = 200, .Vj = 0.2})
            .value(),
        4.5438596491, 1e-9);
}

} // namespace velmor::emitter_formulas_test
