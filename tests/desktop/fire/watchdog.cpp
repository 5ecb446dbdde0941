// SPDX-License-Identifier: MIT
#include "desktop/fire/watchdog.h"

#include <chrono>
#include <cstdio>
#include <ctime>
#include <unistd.h>

namespace velmor::test {

namespace watchdog_detail {

constexpr double clockShare = 40.0;

double secondsOf(clockid_t clock)
{
    timespec time{};
    ::clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

} // namespace watchdog_detail

Watchdog::Watchdog(double seconds) : limit_(seconds), thread_([this] { watch(); }) {}

Watchdog::~Watchdog()
{
    done_ = true;
    thread_.join();
}

void Watchdog::begin(const std::string& event)
{
    const std::lock_guard held(guard_);
    event_ = event;
    computedAtBegin_ = watchdog_detail::secondsOf(CLOCK_PROCESS_CPUTIME_ID);
    clockAtBegin_ = watchdog_detail::secondsOf(CLOCK_MONOTONIC);
    running_ = true;
}

void Watchdog::end()
{
    const std::lock_guard held(guard_);
    running_ = false;
    const double took = watchdog_detail::secondsOf(CLOCK_PROCESS_CPUTIME_ID) - computedAtBegin_;
    if (took > slowestSeconds_) {
        slowestSeconds_ = took;
        slowest_ = event_;
    }
}

void Watchdog::watch()
{
    while (!done_) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        const std::lock_guard held(guard_);
        if (!running_)
            continue;
        const double computed = watchdog_detail::secondsOf(CLOCK_PROCESS_CPUTIME_ID) - computedAtBegin_;
        const double passed = watchdog_detail::secondsOf(CLOCK_MONOTONIC) - clockAtBegin_;
        if (computed < limit_ && passed < limit_ * watchdog_detail::clockShare)
            continue;
        std::fprintf(stderr, "HANG: %s takes more than %.1f s\n", event_.c_str(), limit_);
        ::_exit(exitStatus);
    }
}

} // namespace velmor::test
