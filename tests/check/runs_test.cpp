// SPDX-License-Identifier: MIT
// The two runs of a stage with a preset: as it was set, and trimmed first. With a simulator of our own, and with the real one
// beside figures that tests/figures/checks.py has worked out.
#include <gtest/gtest.h>

#include "check/check.h"
#include "check/deck.h"
#include "check/preset.h"
#include "check/table_text.h"
#include "check/verdict.h"

namespace velmor::check::test {

namespace runs_test {

/// A bench on which the middle stands at a volt for each kilohm of the preset Rb1b.
class Bench final : public Simulator {
public:
    Simulation run(const std::string& deck) override
    {
        if (deck.find("\n.dc ") != std::string::npos) {
            ++sweeps;
            return {.end = SimulationEnd::done,
                    .plots = {{.name = "DC transfer",
                               .columns = {{"res-sweep", {1000.0, 10000.0}}, {"v(x)", {top / 10, top}}}}}};
        }
        return {.end = SimulationEnd::done,
                .plots = {{.name = "Operating Point", .columns = {{"@q1[ic]", {0.001}}, {"v(x)", {8.0}}}}}};
    }
    double top = 10; ///< V, of the middle at 10 K
    int sweeps = 0;
};

const SheetTable withPreset{.sheet = "Form10", .preset = "Rb1b", .middle = "x"};
const SheetTable withoutPreset{.sheet = "Form15"};

Design turnable(const SheetTable& table = withPreset)
{
    Design design{.table = &table};
    design.circuit.parts = {
        {.kind = PartKind::supply, .name = "Es", .from = "cc", .to = "0", .value = 12},
        {.kind = PartKind::resistor, .name = "Rb1b", .from = "x", .to = "b", .value = 8000},
        {.kind = PartKind::resistor, .name = "RLw", .from = "out", .to = "0", .value = 8},
        {.kind = PartKind::npn, .name = "Q1", .from = "c", .to = "b", .emitter = "0", .value = 1e-14, .beta = 100}};
    design.rows = {{Quantity::QIc, 1.0, 1.0}};
    return design;
}

bool has(const std::string& text, const char* wanted)
{
    return text.find(wanted) != std::string::npos;
}

} // namespace runs_test

using namespace runs_test;

TEST(TwoRuns, trimThePresetUnlessToldOtherwise)
{
    Bench bench;
    const Check check = checkDesign(turnable(), bench);
    EXPECT_EQ(bench.sweeps, 1);
    EXPECT_TRUE(has(check.netlist, "\nRb1b x b 6000\n")) << check.netlist;
    EXPECT_TRUE(
        has(check.netlist, "\n* Presets trimmed: Rb1b turned from 8 K to 6 K, until the middle stands at Es / 2.\n"));
    EXPECT_TRUE(has(deckOf(simulatedBy(check, turnable()).circuit, {}), "\nRb1b x b 6000\n")) << "the slider's";
}

TEST(TwoRuns, leaveThePresetWhereTheStudentHasSetIt)
{
    Bench bench;
    const Check check = checkDesign(turnable(), bench, Run::yourValues);
    EXPECT_EQ(bench.sweeps, 0);
    EXPECT_TRUE(has(check.netlist, "\nRb1b x b 8000\n"));
    EXPECT_TRUE(has(check.netlist, "\n* Your values: Rb1b as you set it, 8 K.\n")) << check.netlist;
    EXPECT_TRUE(has(deckOf(simulatedBy(check, turnable()).circuit, {}), "\nRb1b x b 8000\n")) << "the slider's";
    EXPECT_EQ(presetWords(check.preset).en,
              "Your values: Rb1b as you set it, 8 K. The middle rests at 8 V, and Es / 2 is 6 V.");
}

TEST(TwoRuns, standAboveTheTableAndInEveryLineOfTheSpreadsheet)
{
    Bench bench;
    const Check yours = checkDesign(turnable(), bench, Run::yourValues);
    const std::string text = textTable(yours, turnable(), false);
    EXPECT_TRUE(
        text.starts_with("Sus valores: Rb1b como usted lo dejó, 8 K. El medio descansa en 8 V, y Es / 2 son 6 V.\r\n"))
        << text;
    EXPECT_TRUE(csvTable(yours, true)
                    .starts_with("quantity,unit,asked,course,simulator,remainder "
                                 "dB,verdict,preset\r\nQIc,mA,1,1,1,,agrees,\"Your values: "))
        << csvTable(yours, true);
    const Check trimmed = checkDesign(turnable(), bench);
    EXPECT_TRUE(textTable(trimmed, turnable(), false)
                    .starts_with("Presets ajustados: Rb1b pasó de 8 K a 6 K, hasta que el medio quedó en Es / 2.\r\n"));
}

TEST(TwoRuns, ownUpToAPresetThatCouldNotBeTurned)
{
    Bench bench;
    bench.top = 1; // the middle never comes to 6 V
    const Check check = checkDesign(turnable(), bench);
    EXPECT_TRUE(has(check.netlist, "\nRb1b x b 8000\n"));
    EXPECT_EQ(presetWords(check.preset).en, "Presets trimmed: Rb1b could not be turned, and stays at 8 K.");
}

// 4 W into 8 ohm have 8 V at their peak; a middle at 8 V of 12 leaves 4.
TEST(TwoRuns, nameTheMiddleThatAPresetHasLeftTooNearToTheSupply)
{
    Design power = turnable();
    power.circuit.output = "out";
    Row row{.quantity = Quantity::Pclean, .asked = 4.0, .course = 4.0, .simulated = 1.0};
    Check check{
        .preset = {
            .name = "Rb1b", .run = Run::yourValues, .typed = 8000, .simulated = 8000, .middle = 8.0, .supply = 12}};
    judge(row, power, check);
    EXPECT_EQ(row.verdict.en,
              "4 W not reached: with the preset as it is, the middle rests at 8 V and not at Es / 2, 6 V: to "
              "one end of the supply 4 V are left.");
    power.mostPeak = 0.4; // A: 3.2 V, less than the supply leaves
    judge(row, power, check);
    EXPECT_EQ(row.verdict.en, "4 W not reached: Ibias x Beta gives 0.4 A, and the peak current must be 1 A.");
    power.mostPeak = 0;
    check.preset.run = Run::trimmed;
    judge(row, power, check);
    EXPECT_EQ(row.verdict.en.find("middle"), std::string::npos);
    row = {.quantity = Quantity::QIc, .course = 3.0, .simulated = 2.0};
    check.preset.run = Run::yourValues;
    judge(row, power, check);
    EXPECT_TRUE(has(row.verdict.en, "RL is left with another voltage")) << "a third less, both";
    row.simulated = 4.0;
    judge(row, power, check);
    EXPECT_FALSE(has(row.verdict.en, "RL is left with another voltage")) << "a higher middle takes current away";
}

TEST(TwoRuns, areOneWhereTheSheetHasNoPreset)
{
    Bench bench;
    const Check yours = checkDesign(turnable(withoutPreset), bench, Run::yourValues);
    const Check trimmed = checkDesign(turnable(withoutPreset), bench);
    EXPECT_EQ(bench.sweeps, 0);
    EXPECT_EQ(yours.netlist, trimmed.netlist);
    EXPECT_FALSE(yours.preset.isThere());
    EXPECT_TRUE(presetWords(yours.preset).en.empty());
    EXPECT_TRUE(csvTable(yours, true).starts_with("quantity,unit,asked,course,simulator,remainder dB,verdict\r\n"));
}

} // namespace velmor::check::test
