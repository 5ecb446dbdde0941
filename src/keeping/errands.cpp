// SPDX-License-Identifier: MIT
#include "keeping/errands.h"

#include <system_error>
#include <utility>

namespace velmor::keeping {

Errands::~Errands()
{
    {
        const std::lock_guard held(mutex_);
        ends_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable())
        thread_.join();
}

// A machine that has no thread left does the work here and now.
void Errands::give(std::function<void()> errand)
{
    if (inThread_ && !thread_.joinable())
        try {
            thread_ = std::thread([this] { run(); });
        } catch (const std::system_error&) {
            inThread_ = false;
        }
    if (!inThread_) {
        errand();
        return;
    }
    {
        const std::lock_guard held(mutex_);
        waiting_.push_back(std::move(errand));
    }
    changed_.notify_all();
}

void Errands::finish()
{
    std::unique_lock held(mutex_);
    changed_.wait(held, [this] { return waiting_.empty() && !busy_; });
}

void Errands::run()
{
    std::unique_lock held(mutex_);
    for (;;) {
        changed_.wait(held, [this] { return ends_ || !waiting_.empty(); });
        if (waiting_.empty())
            return;
        const std::function<void()> errand = std::move(waiting_.front());
        waiting_.pop_front();
        busy_ = true;
        held.unlock();
        errand();
        held.lock();
        busy_ = false;
        changed_.notify_all();
    }
}

} // namespace velmor::keeping
