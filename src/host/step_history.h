// SPDX-License-Identifier: MIT
// The steps of one window, to be taken back and done again. A step is what changed between two moments at which no slot ran
// and a field had been left, a click made or a box answered; it holds differences alone. When a step ends, the engine says.
#pragma once

#include <cstddef>
#include <deque>
#include <vector>

#include "host/state_change.h"

namespace velmor::host {

class StepHistory {
public:
    static constexpr std::size_t mostSteps = 200;
    static constexpr std::size_t mostBytes = std::size_t{1} << 20;

    /// Begins with the window as it stands: nothing before that can be taken back.
    explicit StepHistory(Window& window);

    /// True when a control was set since the last call.
    bool stirred();
    /// True when what has changed since the last step concerns the design: the text of a field, whether it can be written in, a
    /// choice. What the pointer calls up (prompts, notes) does not.
    bool concernsDesign() const;
    /// All that has changed since the last step is a step, and nothing is left to be done again.
    void close();
    /// Leads the window one step. What was typed and not yet left is a step of its own; what the pointer has called up goes.
    /// False, with the window as it was, where there is none.
    bool lead(Direction direction);

    /// Nothing has changed since the last step.
    bool betweenSteps() const { return watch_.pending().empty(); }
    /// How many steps can be taken back; what was typed and not yet left counts.
    std::size_t behind() const { return behind_.size() + (concernsDesign() ? 1 : 0); }
    /// How many can be done again.
    std::size_t ahead() const { return concernsDesign() ? 0 : ahead_.size(); }
    /// Bytes that the steps take.
    std::size_t size() const { return bytes_; }

private:
    void keep(StateChange step);

    Window& window_;
    StepWatch watch_;
    std::deque<StateChange> behind_; ///< the latest last
    std::vector<StateChange> ahead_; ///< the next last
    std::size_t bytes_ = 0;
    unsigned settings_ = 0;
};

} // namespace velmor::host
