// SPDX-License-Identifier: MIT
// What is written for the simulator: plain numbers under every locale, nothing that cannot be.
#include "check/deck.h"

#include <clocale>
#include <cstdlib>

#include <gtest/gtest.h>

#include "check/measures.h"
#include "check/program_run.h"
#include "check/simulator.h"
#include "check/verdict.h"

namespace velmor::check::test {

namespace deck_test {

Circuit divider()
{
    Circuit circuit{.title = "divider", .amplitude = 0.5};
    circuit.parts = {
        {.kind = PartKind::generator, .name = "Eg", .from = "gen", .to = "0"},
        {.kind = PartKind::resistor, .name = "Rb1", .from = "gen", .to = "out", .value = 139430},
        {.kind = PartKind::capacitor, .name = "Cin", .from = "out", .to = "0", .value = 6.6506e-6},
        {.kind = PartKind::npn, .name = "Q1", .from = "out", .to = "gen", .emitter = "0", .value = 1e-14, .beta = 80},
    };
    circuit.assumed = {"Generator of 0 ohm"};
    return circuit;
}

/// Numbers with a decimal comma, for this program and for what it starts.
class CommaLocale {
public:
    CommaLocale()
    {
        ::setenv("LC_ALL", "es_AR.UTF-8", 1);
        isThere_ = std::setlocale(LC_ALL, "") != nullptr;
    }
    ~CommaLocale()
    {
        ::unsetenv("LC_ALL");
        std::setlocale(LC_ALL, "C");
    }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;
    bool isThere() const { return isThere_; }

private:
    bool isThere_ = false;
};

} // namespace deck_test

using namespace deck_test;

TEST(Deck, holdsPlainNumbersOnly)
{
    EXPECT_EQ(plainNumber(139430), "139430");
    EXPECT_EQ(plainNumber(6.6506e-6), "6.6506e-06");
    EXPECT_EQ(plainNumber(0.1), "0.1");
    const std::string deck = deckOf(divider(), {});
    EXPECT_NE(deck.find("* divider\n* Generator of 0 ohm\n"), std::string::npos);
    EXPECT_NE(deck.find("\nRb1 gen out 139430\n"), std::string::npos);
    EXPECT_NE(deck.find("\nCin out 0 6.6506e-06\n"), std::string::npos);
    EXPECT_NE(deck.find("\nVEg gen 0 DC 0 AC 1 SIN(0 0.5 1000)\n"), std::string::npos);
    EXPECT_NE(deck.find("NPN(BF=80 IS=1e-14)"), std::string::npos);
    EXPECT_TRUE(deck.ends_with("\n.end\n"));
}

TEST(Deck, isTheSameUnderACommaLocale)
{
    const std::string plain = deckOf(divider(), {});
    const CommaLocale comma;
    ASSERT_TRUE(comma.isThere()) << "es_AR.UTF-8 is missing";
    EXPECT_STREQ(std::localeconv()->decimal_point, ",") << "the locale is one";
    EXPECT_EQ(deckOf(divider(), {}), plain);
    EXPECT_EQ(amountText(2.436, "Hz"), "2.44 Hz");
}

// The simulator is started under it too.
TEST(Simulator, isUnderstoodUnderACommaLocale)
{
    if (findProgram("ngspice").empty())
        GTEST_SKIP() << "ngspice is not installed";
    const CommaLocale comma;
    ASSERT_TRUE(comma.isThere()) << "es_AR.UTF-8 is missing";
    Circuit circuit = divider();
    circuit.parts = {{.kind = PartKind::supply, .name = "Es", .from = "a", .to = "0", .value = 2.5},
                     {.kind = PartKind::resistor, .name = "R1", .from = "a", .to = "b", .value = 1500.5},
                     {.kind = PartKind::resistor, .name = "R2", .from = "b", .to = "0", .value = 1500.5}};
    const Simulation simulation = Ngspice().run(deckOf(circuit, {}));
    ASSERT_EQ(simulation.end, SimulationEnd::done) << simulation.details;
    EXPECT_NEAR(pointOf(*plotOf(simulation.plots, "Operating Point"), "v(b)").value_or(0), 1.25, 1e-6);
}

TEST(Deck, ordersWhatIsAskedForAlone)
{
    const std::string deck = deckOf(divider(), {.bias = false, .response = false, .drive = 2});
    EXPECT_EQ(deck.find("\n.op\n"), std::string::npos);
    EXPECT_EQ(deck.find("\n.ac "), std::string::npos);
    EXPECT_NE(deck.find("\n.tran"), std::string::npos);
    EXPECT_EQ(deck.find("\n.dc"), std::string::npos) << "no temperatures are given";
    EXPECT_NE(deck.find("SIN(0 1 1000)"), std::string::npos);
}

TEST(Circuit, withAValueOfZeroOrBelowIsRefused)
{
    Circuit circuit = divider();
    EXPECT_EQ(impossiblePart(circuit), "");
    for (const double value : {0.0, -13000.0, 1.0 / 0.0, 0.0 / 0.0}) {
        circuit.parts[1].value = value;
        EXPECT_EQ(impossiblePart(circuit), "Rb1");
    }
    circuit = divider();
    circuit.parts[3].beta = 0;
    EXPECT_EQ(impossiblePart(circuit), "Beta");
    circuit = divider();
    circuit.amplitude = 0;
    EXPECT_EQ(impossiblePart(circuit), "Ein");
}

TEST(Circuit, aTransistorCarriesItsCurrentAtItsJunctionVoltage)
{
    // 1 mA at 0.6 V: 1e-3 / (e^(0.6 / 0.025865) - 1) = 1e-3 / 1.18713e10
    EXPECT_NEAR(saturationCurrent(1e-3, 0.6), 8.4236e-14, 1e-17);
}

} // namespace velmor::check::test
