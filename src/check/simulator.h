// SPDX-License-Identifier: MIT
// What a check asks of a simulator, and the one there is: ngspice as a process. A screen hands it out; desktop and console have
// the same.
#pragma once

#include <chrono>
#include <cstdint>
#include <stop_token>
#include <string>
#include <utility>
#include <vector>

#include "check/raw_file.h"

namespace velmor::check {

enum class SimulationEnd : std::uint8_t {
    done,    ///< the plots are there; whether all of them, the reader must see
    absent,  ///< no simulator is installed
    failed,  ///< it ended with a failure, or without a plot
    tooLong, ///< it was ended after five seconds
    tooMuch, ///< it wrote more than can be meant
    stopped, ///< nobody waits for it any more
};

struct Simulation {
    SimulationEnd end = SimulationEnd::absent;
    std::vector<Plot> plots{};
    std::string details{}; ///< what it said: notes and warnings alike
};

class Simulator {
public:
    virtual ~Simulator() = default;
    /// Waits for the simulator. May be called from any thread, and by several at once.
    virtual Simulation run(const std::string& deck) = 0;
};

class Ngspice final : public Simulator {
public:
    /// The path or name of the program; empty: "ngspice" on the PATH. It is looked for at each run, so that one that is
    /// installed meanwhile is found.
    /// When a stop is asked for, a run that goes on ends, and no other begins.
    explicit Ngspice(std::string program = {}, std::chrono::milliseconds limit = std::chrono::seconds(5),
                     std::stop_token stop = {})
        : program_(std::move(program)), limit_(limit), stop_(std::move(stop))
    {}
    Simulation run(const std::string& deck) override;

private:
    std::string program_;
    std::chrono::milliseconds limit_;
    std::stop_token stop_;
};

} // namespace velmor::check
