// SPDX-License-Identifier: MIT
#include "host/step_history.h"

#include <algorithm>
#include <utility>

namespace velmor::host {

namespace step_history_detail {

bool concernsDesign(const Window& window, const Key& key)
{
    if (key.control == noControl)
        return key.attribute == Attribute::focus || key.attribute == Attribute::own;
    const bool writable = window.row(key.control).kind == Kind::field;
    switch (key.attribute) {
    case Attribute::text:
    case Attribute::visible:
    case Attribute::enabled:
        return writable;
    case Attribute::checked:
    case Attribute::selected:
        return true;
    default:
        return false;
    }
}

} // namespace step_history_detail

StepHistory::StepHistory(Window& window) : window_(window), watch_(window), settings_(window.settings()) {}

bool StepHistory::stirred()
{
    return std::exchange(settings_, window_.settings()) != window_.settings();
}

bool StepHistory::concernsDesign() const
{
    const StateChange pending = watch_.pending();
    const auto concerns = [this](const auto& changed) {
        return step_history_detail::concernsDesign(window_, changed.key);
    };
    return std::any_of(pending.numbers.begin(), pending.numbers.end(), concerns) ||
           std::any_of(pending.texts.begin(), pending.texts.end(), concerns);
}

void StepHistory::close()
{
    StateChange step = watch_.step();
    if (!step.empty())
        keep(std::move(step));
}

void StepHistory::keep(StateChange step)
{
    for (const StateChange& gone : ahead_)
        bytes_ -= gone.size();
    ahead_.clear();
    bytes_ += step.size();
    behind_.push_back(std::move(step));
    while (behind_.size() > mostSteps || bytes_ > mostBytes) {
        bytes_ -= behind_.front().size();
        behind_.pop_front();
    }
}

bool StepHistory::lead(Direction direction)
{
    const bool back = direction == Direction::back;
    if (concernsDesign())
        close();
    if (back ? behind_.empty() : ahead_.empty())
        return false;
    watch_.lead(watch_.step(), Direction::back);
    StateChange step = std::move(back ? behind_.back() : ahead_.back());
    watch_.lead(step, direction);
    if (back) {
        behind_.pop_back();
        ahead_.push_back(std::move(step));
    } else {
        ahead_.pop_back();
        behind_.push_back(std::move(step));
    }
    stirred();
    return true;
}

} // namespace velmor::host
