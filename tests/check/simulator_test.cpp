// SPDX-License-Identifier: MIT
// Simulators that behave, and simulators that do not: scripts in the place of the program.
#include "check/simulator.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>
#include <unistd.h>

#include "check/program_run.h"
#include "places.h"

namespace velmor::check::test {

namespace simulator_test {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

/// A script that is run as "ngspice -n -b -r RAW DECK" would be: $4 is the raw file, $5 the deck.
std::string fake(const std::string& name, const std::string& script)
{
    const fs::path folder = fs::path(places::build()) / "fake_simulators";
    fs::create_directories(folder);
    const fs::path path = folder / name;
    std::ofstream(path) << "#!/bin/sh\n" << script << '\n';
    fs::permissions(path, fs::perms::owner_all);
    return path.string();
}

/// Writes a plot of one point; each backslash and quote is the shell's.
const std::string onePlot = R"(printf 'Plotname: Operating Point\nFlags: real\nNo. Variables: 1\nNo. Points: 1\n'\
'Variables:\n\t0\tv(c)\tvoltage\nBinary:\n\0\0\0\0\0\0\032\100' >> "$4")";

const std::string deck = "* nothing\n.end\n";

bool ngspiceIsThere()
{
    return !findProgram("ngspice").empty();
}

class InFolder {
public:
    explicit InFolder(const fs::path& folder)
    {
        fs::create_directories(folder);
        ::setenv("TMPDIR", folder.c_str(), 1); // NOLINT(concurrency-mt-unsafe): no other thread runs
    }
    ~InFolder() { ::unsetenv("TMPDIR"); } // NOLINT(concurrency-mt-unsafe)
    InFolder(const InFolder&) = delete;
    InFolder& operator=(const InFolder&) = delete;
};

} // namespace simulator_test

using namespace simulator_test;

TEST(Simulator, thatIsNotThereIsAbsent)
{
    EXPECT_EQ(Ngspice("/nowhere/ngspice").run(deck).end, SimulationEnd::absent);
    EXPECT_EQ(Ngspice("no-such-simulator-anywhere").run(deck).end, SimulationEnd::absent);
    EXPECT_EQ(Ngspice(places::build()).run(deck).end, SimulationEnd::absent) << "a folder";
}

TEST(Simulator, givesThePlotsThatItWrote)
{
    const Simulation simulation = Ngspice(fake("good", onePlot + "\necho a note >&2")).run(deck);
    EXPECT_EQ(simulation.end, SimulationEnd::done);
    ASSERT_EQ(simulation.plots.size(), 1U);
    EXPECT_EQ(simulation.plots[0].column("v(c)")->values[0].real(), 6.5);
    EXPECT_EQ(simulation.details, "a note\n");
}

TEST(Simulator, thatEndsWithOneHasFailedWhateverItWrote)
{
    EXPECT_EQ(Ngspice(fake("one", onePlot + "\nexit 1")).run(deck).end, SimulationEnd::failed);
    EXPECT_EQ(Ngspice(fake("killed", onePlot + "\nkill -9 $$")).run(deck).end, SimulationEnd::failed);
}

TEST(Simulator, withoutAPlotHasFailed)
{
    EXPECT_EQ(Ngspice(fake("silent", "exit 0")).run(deck).end, SimulationEnd::failed);
    EXPECT_EQ(Ngspice(fake("empty", ": > \"$4\"")).run(deck).end, SimulationEnd::failed);
}

TEST(Simulator, thatNeverEndsIsEndedWithAllItHasStarted)
{
    const fs::path sign = fs::path(places::build()) / "fake_simulators" / "still_alive";
    fs::remove(sign);
    const auto before = std::chrono::steady_clock::now();
    const std::string script = "(sleep 1; : > '" + sign.string() + "') &\nwhile :; do :; done";
    EXPECT_EQ(Ngspice(fake("endless", script), 300ms).run(deck).end, SimulationEnd::tooLong);
    EXPECT_LT(std::chrono::steady_clock::now() - before, 900ms + 2s);
    ::sleep(2);
    EXPECT_FALSE(fs::exists(sign));
}

TEST(Simulator, thatLeavesAChildBehindIsNotWaitedFor)
{
    const auto before = std::chrono::steady_clock::now();
    EXPECT_EQ(Ngspice(fake("parent", onePlot + "\nsleep 30 &")).run(deck).end, SimulationEnd::done);
    EXPECT_LT(std::chrono::steady_clock::now() - before, 4s);
}

TEST(Simulator, mayTalkAsMuchAsItLikes)
{
    const std::string script = "yes 'Note: again' | head -c 20000000 >&2\n" + onePlot;
    const Simulation simulation = Ngspice(fake("flood", script), 30s).run(deck);
    EXPECT_EQ(simulation.end, SimulationEnd::done);
    EXPECT_EQ(simulation.details.size(), 64U << 10U);
}

TEST(Simulator, thatWritesWithoutEndIsEnded)
{
    const std::string script = "head -c 1000000000 /dev/zero > \"$4\"\nsleep 30";
    const SimulationEnd end = Ngspice(fake("gigabyte", script), 20s).run(deck).end;
    EXPECT_EQ(end, SimulationEnd::tooMuch);
}

TEST(Simulator, leavesNoFolderBehindAndWorksInAnyFolder)
{
    const fs::path folder = fs::path(places::build()) / "folder ñ x";
    fs::remove_all(folder);
    const InFolder there(folder);
    EXPECT_EQ(Ngspice(fake("good", onePlot)).run(deck).end, SimulationEnd::done);
    EXPECT_TRUE(fs::is_empty(folder));
    if (!ngspiceIsThere())
        GTEST_SKIP() << "ngspice is not installed";
    const Simulation simulation =
        Ngspice().run("* divider\nV1 a 0 10\nR1 a b 1000\nR2 b 0 3000\n.save all\n.op\n.end\n");
    EXPECT_EQ(simulation.end, SimulationEnd::done);
    ASSERT_NE(plotOf(simulation.plots, "Operating Point"), nullptr);
    EXPECT_NEAR(plotOf(simulation.plots, "Operating Point")->column("v(b)")->values[0].real(), 7.5, 1e-6);
    EXPECT_TRUE(fs::is_empty(folder));
}

} // namespace velmor::check::test
