// SPDX-License-Identifier: MIT
// Ends the process, with a name for what went on, when one event takes too long. Counts the time that this process
// computed, so that a busy machine is no hang; an event that waits for good is found by the clock.
#pragma once

#include <atomic>
#include <mutex>
#include <string>
#include <thread>

namespace velmor::test {

class Watchdog {
public:
    /// `seconds` of computing, or forty times as many by the clock.
    explicit Watchdog(double seconds);
    ~Watchdog();
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

    void begin(const std::string& event);
    /// Keeps the slowest event.
    void end();
    const std::string& slowest() const { return slowest_; }
    double slowestSeconds() const { return slowestSeconds_; }

    static constexpr int exitStatus = 3;

private:
    void watch();

    const double limit_;
    std::mutex guard_;
    std::string event_;
    double computedAtBegin_ = 0.0;
    double clockAtBegin_ = 0.0;
    bool running_ = false;
    std::string slowest_;
    double slowestSeconds_ = 0.0;
    std::atomic<bool> done_ = false;
    std::thread thread_;
};

} // namespace velmor::test
