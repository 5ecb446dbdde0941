// SPDX-License-Identifier: MIT
// A check with simulators of our own: what stands in the table when plots are missing, or say what cannot be.
#include "check/check.h"

#include <gtest/gtest.h>

#include "check/table_text.h"
#include "check/verdict.h"

namespace velmor::check::test {

namespace check_test {

/// Answers every deck alike, and counts them.
class Answering final : public Simulator {
public:
    explicit Answering(Simulation answer) : answer_(std::move(answer)) {}
    Simulation run(const std::string&) override
    {
        ++runs;
        return answer_;
    }
    int runs = 0;

private:
    Simulation answer_;
};

constexpr RungRow gainRungs[] = {{Truth::junction, {"uno", "one"}}, {Truth::thermal, {"dos", "two"}}};
const SheetTable table{.sheet = "Form2", .stage = StageKind::commonEmitter, .gainRungs = gainRungs};

/// A stage of 1 mA that the textbook gives a gain of 5000 / (25.865 + 1000) = 4.874.
Design design()
{
    Design design{.table = &table, .fo = 20};
    design.circuit.generator = design.circuit.input = "gen";
    design.circuit.amplitude = 0.1;
    design.circuit.parts = {
        {.kind = PartKind::generator, .name = "Eg", .from = "gen", .to = "0"},
        {.kind = PartKind::resistor, .name = "Res", .from = "e", .to = "0", .value = 1000},
        {.kind = PartKind::npn, .name = "Q1", .from = "c", .to = "b", .emitter = "e", .value = 1e-14, .beta = 100}};
    design.stage = {.kind = StageKind::commonEmitter,
                    .Beta = 100,
                    .designedQIc = 1e-3,
                    .trueQIc = 1e-3,
                    .RL = 10e3,
                    .RLw = 10e3,
                    .Res = 1000};
    design.rows = {{Quantity::QIc, 1.0, 1.0}, {Quantity::Vg, 5.0, 5.0}};
    return design;
}

Plot pointPlot(double milliamperes)
{
    return {.name = "Operating Point", .columns = {{"@q1[ic]", {milliamperes / 1000}}}};
}

Plot responsePlot(double gain)
{
    Plot plot{.name = "AC Analysis", .columns = {{"frequency", {}}, {"v(gen)", {}}, {"v(out)", {}}}};
    for (const double hertz : {0.01, 1.0, 100.0, 1e4, 1e6}) {
        plot.columns[0].values.emplace_back(hertz);
        plot.columns[1].values.emplace_back(1.0);
        plot.columns[2].values.emplace_back(-gain);
    }
    return plot;
}

Simulation done(std::vector<Plot> plots)
{
    return {.end = SimulationEnd::done, .plots = std::move(plots)};
}

} // namespace check_test

using namespace check_test;

TEST(Check, explainsWhatTheTextbookGives)
{
    Answering simulator(done({pointPlot(1), responsePlot(4.874)}));
    const Check check = checkDesign(design(), simulator);
    EXPECT_EQ(check.end, CheckEnd::done);
    EXPECT_EQ(rowOf(check, Quantity::QIc)->verdict.es, "coincide");
    EXPECT_EQ(rowOf(check, Quantity::Vg)->verdict.en, "agrees");
    EXPECT_LT(rowOf(check, Quantity::Vg)->ladder.remainder(), 0.001);
}

// 2.9 Hz do not agree with 20 Hz, and who asked for 20 Hz at most has got it; 19 Hz agree.
TEST(Check, saysWhatIsBetterThanAskedToBeMetAndNotToAgree)
{
    Row row{.quantity = Quantity::fL, .asked = 20.0, .course = 20.0, .simulated = 2.9};
    judge(row, design(), {});
    EXPECT_EQ(row.verdict.es, "cumple");
    EXPECT_EQ(judgementText(row.judgement).en, "met");
    row.simulated = 19.0;
    judge(row, design(), {});
    EXPECT_EQ(row.verdict.en, "agrees");
}

TEST(Check, givesNoVerdictOnWhatItCannotExplain)
{
    Answering simulator(
        done({pointPlot(1), responsePlot(4.74)})); // 0.24 dB below the textbook, 0.46 dB below the course
    const Row row = *rowOf(checkDesign(design(), simulator), Quantity::Vg);
    EXPECT_EQ(row.judgement, Judgement::unexplained);
    EXPECT_EQ(row.verdict.en, "could not be explained: no verdict");
}

TEST(Check, saysWhatIsMissing)
{
    Answering simulator(done({pointPlot(1)}));
    const Check check = checkDesign(design(), simulator);
    EXPECT_EQ(check.end, CheckEnd::incomplete);
    EXPECT_EQ(rowOf(check, Quantity::QIc)->verdict.en, "agrees");
    EXPECT_EQ(rowOf(check, Quantity::Vg)->judgement, Judgement::missing);
}

TEST(Check, believesNoRunThatFailed)
{
    for (const SimulationEnd end :
         {SimulationEnd::absent, SimulationEnd::failed, SimulationEnd::tooLong, SimulationEnd::tooMuch}) {
        Answering simulator({.end = end, .plots = {pointPlot(1), responsePlot(4.874)}});
        const Check check = checkDesign(design(), simulator);
        EXPECT_FALSE(check.excuse.en.empty());
        EXPECT_FALSE(check.netlist.empty()) << "the netlist can be saved all the same";
        EXPECT_FALSE(rowOf(check, Quantity::Vg)->simulated);
        EXPECT_EQ(rowOf(check, Quantity::Vg)->course, 5.0);
    }
}

TEST(Check, neverSimulatesANegativeResistor)
{
    Design negative = design();
    negative.circuit.parts[1].value = -13000;
    Answering simulator(done({}));
    const Check check = checkDesign(negative, simulator);
    EXPECT_EQ(check.end, CheckEnd::impossible);
    EXPECT_EQ(check.excuse.en, "Res: not simulated, because its value is zero or negative.");
    EXPECT_FALSE(swingOf(negative, simulator, 1).peakToPeak);
    EXPECT_EQ(simulator.runs, 0);
}

TEST(Check, writesItsTableForReportAndSpreadsheet)
{
    Answering simulator(done({pointPlot(1.05), responsePlot(4.874)}));
    const Check check = checkDesign(design(), simulator);
    const std::string text = textTable(check, design(), true);
    EXPECT_TRUE(
        text.starts_with("Quantity\tAsked\tCourse\tSimulator\tVerdict\r\nQIc\t1 mA\t1 mA\t1.05 mA\tagrees\r\n"));
    EXPECT_NE(text.find("Vg, from the course to the simulator:\r\n5\t\tThe course.\r\n"), std::string::npos) << text;
    const std::string csv = csvTable(check, false);
    EXPECT_TRUE(
        csv.starts_with("magnitud,unidad,pedido,curso,simulador,resto dB,veredicto\r\nQIc,mA,1,1,1.05,,coincide\r\n"));
}

// The words by which walks call a quantity are English: no report of either language holds them.
TEST(Check, writesSignsAndNoEnglishWordsIntoAReport)
{
    Check check;
    check.rows = {{.quantity = Quantity::drift, .asked = 8.0, .course = 8.0, .simulated = 5.85},
                  {.quantity = Quantity::heat, .simulated = 2.0}};
    const std::string text = textTable(check, design(), false);
    EXPECT_NE(text.find("/\\QIc\t8 %\t8 %\t5.85 %\t"), std::string::npos) << text;
    EXPECT_NE(text.find("PQ\t-\t-\t2 W\t"), std::string::npos) << text;
}

TEST(Amount, isWrittenForReading)
{
    EXPECT_EQ(amountText(10704.5, "ohm"), "10.7 K");
    EXPECT_EQ(amountText(661.4, "ohm"), "661 ohm");
    EXPECT_EQ(amountText(2.436, "Hz"), "2.44 Hz");
    EXPECT_EQ(amountText(-3.384, "dB"), "-3.38 dB");
    EXPECT_EQ(amountText(0.0004561, "V"), "0.000456 V");
    EXPECT_EQ(amountText(0, "V"), "0 V");
    EXPECT_EQ(amountText(1.0 / 0.0, "V"), "-");
}

} // namespace velmor::check::test
