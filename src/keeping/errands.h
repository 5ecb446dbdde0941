// SPDX-License-Identifier: MIT
// Work that must not hold up whoever gives it: done in the order given, by a thread of its own.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace velmor::keeping {

class Errands {
public:
    /// Without a thread each errand is done when it is given.
    explicit Errands(bool inThread) : inThread_(inThread) {}
    /// Waits until all are done.
    ~Errands();
    Errands(const Errands&) = delete;
    Errands& operator=(const Errands&) = delete;

    void give(std::function<void()> errand);
    /// Returns when all that was given is done.
    void finish();

private:
    void run();

    bool inThread_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> waiting_;
    bool busy_ = false;
    bool ends_ = false;
    std::thread thread_; ///< begun with the first errand
};

} // namespace velmor::keeping
