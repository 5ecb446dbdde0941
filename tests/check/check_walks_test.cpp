// SPDX-License-Identifier: MIT
// Whole designs of all fifteen sheets in the real simulator: the walks that tests/figures/checks.py has worked out, and random
// designs whose ladders must end where the simulator does. Skipped where ngspice is not installed.
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

#include "check/check.h"
#include "check/program_run.h"
#include "console/verbs.h"
#include "console/walk_lines.h"
#include "console/walk_player.h"
#include "console/whole_program.h"
#include "designs/circuits.h"
#include "places.h"

namespace velmor::check::test {

namespace check_walks_test {

namespace fs = std::filesystem;
using console::Walk;

fs::path walksFolder()
{
    return fs::path(places::source()) / "tests/check/walks";
}

bool hasNgspice()
{
    return !findProgram("ngspice").empty();
}

/// The lines of a design, up to its check.
std::vector<std::string> designLines(const std::string& name)
{
    std::ifstream file(walksFolder() / (name + ".walk"));
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line) && line != "check";)
        lines.push_back(line);
    return lines;
}

/// Plays the lines in the walk; what fails on the way is no matter here.
void play(Walk& walk, const std::vector<std::string>& lines)
{
    std::stringstream text;
    for (const std::string& line : lines)
        text << line << '\n';
    console::WalkLines reader(text);
    reader.begin(console::Playing::asWritten);
    for (std::string line; reader.next(line);)
        for (const console::Command& command : reader.commands()) {
            const console::Verb* verb = console::verbOf(command.words.front());
            ASSERT_NE(verb, nullptr) << line;
            if (verb->kind != console::VerbKind::preparation)
                walk.loadProgram();
            verb->run(walk, std::span<const std::string>(command.words).subspan(1));
        }
}

/// The sheet of the design, if it stands finished.
const host::Window* finishedSheet(Walk& walk)
{
    const host::Window* sheet = walk.engine().activeChild();
    if (sheet == nullptr || walk.engine().ended())
        return nullptr;
    const SheetTable* table = designs::circuitTableOf(sheet->name());
    return table != nullptr && isAwake(*sheet, *table) ? sheet : nullptr;
}

Design playedDesign(const std::string& name)
{
    std::ostringstream out;
    Walk walk(console::wholeProgram(), name, out, false);
    play(walk, designLines(name));
    const host::Window* sheet = finishedSheet(walk);
    if (sheet == nullptr)
        return {};
    return designOf(*sheet, *designs::circuitTableOf(sheet->name()));
}

/// A typed number is multiplied by up to a third either way; the last one, which is the preset, by the share given.
std::vector<std::string> varied(std::vector<std::string> lines, std::mt19937& random, double preset)
{
    std::uniform_real_distribution<double> factor(0.75, 1.33);
    std::vector<std::string*> typed;
    for (std::string& line : lines)
        if (line.starts_with("enter Text") && line.find(' ', 6) != std::string::npos)
            typed.push_back(&line);
    for (std::string* line : typed) {
        const std::size_t gap = line->find(' ', 6);
        const double value = std::stod(line->substr(gap + 1)) * (line == typed.back() ? preset : factor(random));
        *line = line->substr(0, gap + 1) + std::to_string(value);
    }
    return lines;
}

class AllSheets : public testing::TestWithParam<const char*> {};
class SmallSignalSheets : public testing::TestWithParam<const char*> {};

std::string nameOf(const testing::TestParamInfo<const char*>& info)
{
    return info.param;
}

} // namespace check_walks_test

using namespace check_walks_test;

TEST_P(AllSheets, agreeWithTheFiguresWorkedOutApart)
{
    if (!hasNgspice())
        GTEST_SKIP() << "ngspice is not installed";
    std::ifstream file(walksFolder() / (std::string(GetParam()) + ".walk"));
    std::ostringstream out;
    const console::WalkResult result = playWalk(console::wholeProgram(), file, GetParam(), out, false);
    EXPECT_EQ(result.exitStatus(), 0) << out.str();
    EXPECT_GT(result.passed, 0);
}

INSTANTIATE_TEST_SUITE_P(Check, AllSheets,
                         testing::Values("form2", "desaco", "parcdesac", "form8", "form18", "form4", "form17", "form9",
                                         "form3", "form13", "form12", "form15", "form20", "form10", "form11"),
                         nameOf);

TEST_P(SmallSignalSheets, endTheirLaddersAtTheSimulatorForRandomDesigns)
{
    if (!hasNgspice())
        GTEST_SKIP() << "ngspice is not installed";
    constexpr int wanted = 20;
    std::mt19937 random(20);
    Ngspice simulator;
    int found = 0;
    for (int attempt = 0; attempt < 4000 && found < wanted; ++attempt) {
        std::ostringstream out;
        Walk walk(console::wholeProgram(), "random", out, false);
        const auto seed = random();
        const host::Window* sheet = nullptr;
        std::mt19937 design(seed);
        play(walk, varied(designLines(GetParam()), design, 0.6 + 0.02 * (attempt % 50)));
        sheet = finishedSheet(walk);
        if (sheet == nullptr)
            continue;
        const Design taken = designOf(*sheet, *designs::circuitTableOf(sheet->name()));
        if (!impossiblePart(taken.circuit).empty())
            continue;
        const Check check = checkDesign(taken, simulator);
        ASSERT_TRUE(check.end == CheckEnd::done || check.end == CheckEnd::incomplete) << check.details;
        // A transistor that the design has saturated obeys no small-signal formula: it is not one to explain.
        const Row* Vce = rowOf(check, Quantity::Vce);
        if (!Vce->simulated || *Vce->simulated < 0.4)
            continue;
        ++found;
        for (const Quantity quantity : {Quantity::Vg, Quantity::Zin})
            EXPECT_LT(rowOf(check, quantity)->ladder.remainder(), mostRemainder) << "seed " << seed << '\n'
                                                                                 << check.netlist;
    }
    EXPECT_EQ(found, wanted);
}

INSTANTIATE_TEST_SUITE_P(Check, SmallSignalSheets,
                         testing::Values("form2", "desaco", "parcdesac", "form8", "form18", "form4", "form17", "form9",
                                         "form3", "form13"),
                         nameOf);

TEST(Form3, cannotSwingFurtherThanItsCurrents)
{
    if (!hasNgspice())
        GTEST_SKIP() << "ngspice is not installed";
    const Design design = playedDesign("form3");
    ASSERT_NE(design.table, nullptr);
    Ngspice simulator;
    const Swing swing = swingOf(design, simulator, 6);
    ASSERT_TRUE(swing.peakToPeak);
    // Twice QIc x RLac = 2 x 0.484 mA x 8 K, a little more for the tail that is no perfect source.
    EXPECT_LE(*swing.peakToPeak, 7.9 * 1.01);
    EXPECT_GT(*swing.peakToPeak, 7.0);
    const Check check = checkDesign(design, simulator);
    EXPECT_NE(rowOf(check, Quantity::Eopp)->verdict.en.find("10 V not reached"), std::string::npos);
}

TEST(Form10, namesTheCurrentThatItsOutputsLack)
{
    if (!hasNgspice())
        GTEST_SKIP() << "ngspice is not installed";
    const Design design = playedDesign("form10");
    ASSERT_NE(design.table, nullptr);
    Ngspice simulator;
    const Check check = checkDesign(design, simulator);
    const Row& row = *rowOf(check, Quantity::Pclean);
    EXPECT_NEAR(*row.simulated, 0.17, 0.02);
    EXPECT_NE(row.verdict.en.find("Ibias x Beta"), std::string::npos) << row.verdict.en;
}

/// A run with the preset as it was set, beside what tests/figures/checks.py gives with that many ohms.
void expectYourValues(const char* name, double middle, std::initializer_list<std::pair<Quantity, double>> figures)
{
    const Design design = playedDesign(name);
    ASSERT_NE(design.table, nullptr);
    Ngspice simulator;
    const Check check = checkDesign(design, simulator, Run::yourValues);
    EXPECT_EQ(check.end, CheckEnd::done);
    EXPECT_NEAR(check.preset.middle.value_or(0), middle, 0.01 * middle);
    for (const auto& [quantity, figure] : figures)
        EXPECT_NEAR(rowOf(check, quantity)->simulated.value_or(-1), figure, 0.03 * figure + 0.001)
            << textOf(quantity).name;
}

TEST(Form10, canBeCheckedWithItsPresetAsItWasSet)
{
    if (!hasNgspice())
        GTEST_SKIP() << "ngspice is not installed";
    // form10(6200): the crossover leaves no clean wave; 0.6 microwatt come out clean, at less than a thousandth of the input.
    expectYourValues("form10", 12.5695,
                     {{Quantity::QIc, 6.0374},
                      {Quantity::Pout, 1.4392},
                      {Quantity::THD, 47.714},
                      {Quantity::Eopp, 9.3271},
                      {Quantity::heat, 2.9000},
                      {Quantity::Vg, 46.133},
                      {Quantity::Pclean, 0},
                      {Quantity::efficiency, 0}});
}

TEST(Form11, canBeCheckedWithItsPresetAsItWasSet)
{
    if (!hasNgspice())
        GTEST_SKIP() << "ngspice is not installed";
    // form11(46800)
    expectYourValues("form11", 25.910,
                     {{Quantity::QIc, 1.7133},
                      {Quantity::Pout, 12.216},
                      {Quantity::THD, 40.848},
                      {Quantity::Eopp, 25.415},
                      {Quantity::heat, 6.8717},
                      {Quantity::Vg, 16.249},
                      {Quantity::Pclean, 1.8220},
                      {Quantity::efficiency, 23.529}});
}

TEST(Form3, swingsNoFurtherHoweverLoudItsInput)
{
    if (!hasNgspice())
        GTEST_SKIP() << "ngspice is not installed";
    const Design design = playedDesign("form3");
    ASSERT_NE(design.table, nullptr);
    Ngspice ngspice;
    const Swing loud = swingOf(design, ngspice, 6);
    // The two carry 0.97 mA together: into RL beside RLw, 8 K, that is 7.74 V, and a little more until the capacitors have settled.
    ASSERT_TRUE(loud.peakToPeak.has_value());
    EXPECT_LE(*loud.peakToPeak, 7.9 * 1.01);
    EXPECT_GT(*loud.peakToPeak, 7.0) << "it swings";
}

} // namespace velmor::check::test
