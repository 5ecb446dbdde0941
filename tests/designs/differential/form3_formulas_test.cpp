// SPDX-License-Identifier: MIT
// The formulas of the pair against figures worked out by hand, with the calculation beside each.
#include "designs/differential/form3_formulas.h"

#include <gtest/gtest.h>

#include "host/failure.h"
#include "sheets/formulas.h"

namespace velmor::form3_formulas_test {

using namespace form3;

TEST(Form3Formulas, TheLeastVoltageOverResIsCountedFromTwentyDegrees)
{
    // 70 x 2.75 mV = 192.5 mV; x 100 / 1 % = 19.25 V
    EXPECT_DOUBLE_EQ(leastERes(90.0, 2.75, 1.0).value(), 19.25);
    // 10 x 2 mV = 20 mV; x 100 / 10 % = 0.2 V
    EXPECT_DOUBLE_EQ(leastERes(30.0, 2.0, 10.0).value(), 0.2);
    EXPECT_DOUBLE_EQ(leastERes(20.0, 3.0, 1.0).value(), 0.0);
    EXPECT_THROW(leastERes(90.0, 2.75, 0.0), host::ProgramFailure);
}

TEST(Form3Formulas, PassingThroughTheInputChangesTheOutput)
{
    // 5 x 0.707 / 64
    EXPECT_DOUBLE_EQ(sheets::inputForOutput(10.0, 64.0).value(), 0.055234375);
    // 0.0552 x 1.41 x 2 x 64
    EXPECT_NEAR(sheets::outputForInput(0.0552, 64.0).value(), 9.962496, 1e-12);
}

TEST(Form3Formulas, TheTailCarriesBothCurrents)
{
    EXPECT_DOUBLE_EQ(resOf(20.25, 0.5).value(), 20.25);
    EXPECT_DOUBLE_EQ(resOf(12.0, 1.0).value(), 6.0);
    EXPECT_THROW(resOf(12.0, 0.0), host::ProgramFailure);
    // 1 mA in the tail, 0.5 mA in each: 25 / 0.5
    EXPECT_DOUBLE_EQ(sheets::junctionResistance(1.0 / 2.0).value(), 50.0);
}

TEST(Form3Formulas, TheCollectorResistorFollowsFromGainAndLoad)
{
    EXPECT_DOUBLE_EQ(rlacOf(64.0, 50.0).value(), 8000.0);
    // 16000 x 8000 / 8000
    EXPECT_DOUBLE_EQ(sheets::collectorResistor(16000.0, 8000.0).value(), 16000.0);
    // a load smaller than RLac gives a negative resistor, one equal to it none
    EXPECT_DOUBLE_EQ(sheets::collectorResistor(4000.0, 8000.0).value(), -8000.0);
    EXPECT_TRUE(loadEqualsRlac(8.0, 8000.0));
    EXPECT_FALSE(loadEqualsRlac(8.1, 8000.0));
    EXPECT_THROW(sheets::collectorResistor(8000.0, 8000.0), host::ProgramFailure);
    // (9.9625 / 2 + 1) / 0.5 = 11.96, cut
    EXPECT_DOUBLE_EQ(rlForEopp(9.9625, 0.5).value(), 11.0);
}

TEST(Form3Formulas, CapacitorsAndGainOfTheDefaults)
{
    EXPECT_DOUBLE_EQ(zinOf(100.0, 50.0).value(), 10000.0);
    // 1 / (6.28 x 20 x 0.1 x 10000) = 1 / 125600
    EXPECT_NEAR(sheets::couplingCapacitor(20.0, 10000.0).value(), 1.0 / 125600.0, 1e-18);
    // 1 / (6.28 x 20 x 0.1 x 16000) = 1 / 200960
    EXPECT_NEAR(ccoOf(20.0, 16.0).value(), 1.0 / 200960.0, 1e-18);
    // 8000 / 125
    EXPECT_DOUBLE_EQ(vgOf(16.0, 16.0, 50.0).value(), 64.0);
}

Quantities defaults()
{
    Quantities q;
    q.QIc = 0.5;
    q.Beta = 100.0;
    q.Eopp = 10.0;
    q.Ein = 0.05;
    q.RLw = 16.0;
    q.RLac = 8000.0;
    q.Zin = 10000.0;
    q.Ebias = 20.0;
    q.Es = 24.0;
    q.EQ = 16.0;
    q.Vj = 0.6;
    q.Rb2 = 20.0;
    return q;
}

TEST(Form3Formulas, ReadingsOfTheMeter)
{
    const Quantities q = defaults();
    EXPECT_DOUBLE_EQ(vrms(q).value(), 3.535);
    // 3.535^2 / 8000
    EXPECT_NEAR(outputPower(q).value(), 12.496225 / 8000.0, 1e-15);
    // 0.05^2 / 10000 in mW
    EXPECT_NEAR(inputPower(q).value(), 0.00025, 1e-15);
    EXPECT_DOUBLE_EQ(bothCurrents(q).value(), 1.0);
    EXPECT_DOUBLE_EQ(negativePower(q).value(), 0.02);
    EXPECT_DOUBLE_EQ(positivePower(q).value(), 0.024);
    EXPECT_DOUBLE_EQ(baseCurrent(q).value(), 0.005);
    EXPECT_DOUBLE_EQ(baseVoltage(q).value(), 0.1);
    EXPECT_DOUBLE_EQ(loadImpedance(q).value(), 16000.0);
    EXPECT_DOUBLE_EQ(reading<&Quantities::EQ>(q).value(), 16.0);
}

TEST(Form3Formulas, AtTheCutOffEverythingIsATenthOff)
{
    const Quantities q = defaults();
    EXPECT_NEAR(outputAtCutoff<vrms>(q).value(), 3.1815, 1e-12);
    EXPECT_NEAR(outputAtCutoff<outputPower>(q).value(), 0.9 * 12.496225 / 8000.0, 1e-15);
    EXPECT_NEAR(inputAtCutoff<reading<&Quantities::Ein>>(q).value(), 0.055, 1e-15);
    EXPECT_NEAR(inputAtCutoff<inputPower>(q).value(), 0.000275, 1e-15);
    EXPECT_NEAR(inputAtCutoff<reading<&Quantities::Zin>>(q).value(), 11000.0, 1e-9);
}

} // namespace velmor::form3_formulas_test
