// SPDX-License-Identifier: MIT
// Runs a foreign program in a folder of its own, for so long and no longer: what it says is kept up to a bound, what it writes
// must stay below one, and it ends with all it has started. Knows no simulator.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <stop_token>
#include <string>
#include <vector>

namespace velmor::check {

/// A folder that is made when this is, and removed with all it holds when this goes.
class OwnFolder {
public:
    OwnFolder();
    ~OwnFolder();
    OwnFolder(const OwnFolder&) = delete;
    OwnFolder& operator=(const OwnFolder&) = delete;

    /// Empty when none could be made.
    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

struct ProgramOrder {
    std::filesystem::path program; ///< as it was found: no search is made
    std::vector<std::string> arguments{};
    std::filesystem::path folder; ///< where it runs
    std::string watchedFile{};    ///< of that folder: it must not outgrow `mostBytes`
    std::size_t mostBytes = 64U << 20U;
    std::size_t mostWords = 64U << 10U; ///< bytes of what it says that are kept; the rest is read and dropped
    std::chrono::milliseconds limit{5000};
    std::stop_token stop{}; ///< nobody waits for it any more
};

enum class ProgramEnd : std::uint8_t {
    normal,     ///< by itself, with `exitCode`
    notStarted, ///< there is no such program, or no folder to run it in
    tooLong,    ///< ended by us after the time limit
    tooMuch,    ///< ended by us: the watched file had outgrown its bound
    broken,     ///< by a signal that was not ours
    stopped,    ///< ended by us: it was asked to stop
};

struct ProgramRun {
    ProgramEnd end = ProgramEnd::notStarted;
    int exitCode = -1;
    std::string words{}; ///< what it said, on both its channels
};

ProgramRun runProgram(const ProgramOrder& order);

/// Where a program stands that is named by a path, or by a bare name on the PATH; empty when there is none that can be run.
std::filesystem::path findProgram(const std::string& name);

} // namespace velmor::check
