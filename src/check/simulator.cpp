// SPDX-License-Identifier: MIT
// Deck into a folder, ngspice over it, raw file out of it.
#include "check/simulator.h"

#include <fstream>
#include <iterator>

#include "check/program_run.h"

namespace velmor::check {

namespace simulator_detail {

constexpr const char* deckName = "design.cir";
constexpr const char* rawName = "design.raw";
constexpr std::size_t mostRawBytes = 64U << 20U;

bool writeDeck(const std::filesystem::path& folder, const std::string& deck)
{
    std::ofstream file(folder / deckName, std::ios::binary);
    file << deck;
    file.close();
    return file.good();
}

/// Nothing of a file that has outgrown what can be meant, which a simulator may have left behind at its end.
std::string readRawFile(const std::filesystem::path& folder)
{
    std::error_code missing;
    const auto size = std::filesystem::file_size(folder / rawName, missing);
    if (missing || size > mostRawBytes)
        return {};
    std::ifstream file(folder / rawName, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

SimulationEnd endOf(const ProgramRun& run, bool hasPlots)
{
    switch (run.end) {
    case ProgramEnd::notStarted:
        return SimulationEnd::absent;
    case ProgramEnd::tooLong:
        return SimulationEnd::tooLong;
    case ProgramEnd::tooMuch:
        return SimulationEnd::tooMuch;
    case ProgramEnd::stopped:
        return SimulationEnd::stopped;
    case ProgramEnd::broken:
        return SimulationEnd::failed;
    case ProgramEnd::normal:
        break;
    }
    // Data may stand there after a failure, and none after a success: both must be in order.
    return run.exitCode == 0 && hasPlots ? SimulationEnd::done : SimulationEnd::failed;
}

} // namespace simulator_detail

Simulation Ngspice::run(const std::string& deck)
{
    using namespace simulator_detail;
    if (stop_.stop_requested())
        return {.end = SimulationEnd::stopped};
    const std::filesystem::path program = findProgram(program_.empty() ? "ngspice" : program_);
    if (program.empty())
        return {};
    const OwnFolder folder;
    if (folder.path().empty() || !writeDeck(folder.path(), deck))
        return {.end = SimulationEnd::failed, .details = "no temporary folder"};
    // Without -n a start-up file of the user could end it.
    ProgramRun run = runProgram({.program = program,
                                 .arguments = {"-n", "-b", "-r", rawName, deckName},
                                 .folder = folder.path(),
                                 .watchedFile = rawName,
                                 .mostBytes = mostRawBytes,
                                 .limit = limit_,
                                 .stop = stop_});
    Simulation simulation{.details = std::move(run.words)};
    if (run.end == ProgramEnd::normal)
        simulation.plots = readRaw(readRawFile(folder.path()));
    simulation.end = endOf(run, !simulation.plots.empty());
    return simulation;
}

} // namespace velmor::check
