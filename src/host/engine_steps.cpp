// SPDX-License-Identifier: MIT
// When a step of a sheet ends, and leading a sheet through its steps.
#include <utility>

#include "host/engine.h"
#include "host/step_history.h"

namespace velmor::host {

// A sheet's history begins when the event is over that first showed it. An event that concerned another window leaves what is
// pending here as it is.
void Engine::endSteps()
{
    const Moment moment = std::exchange(moment_, Moment::passing);
    for (const std::unique_ptr<Window>& window : windows_) {
        if (window->role() != Role::sheet || !window->everShown_)
            continue;
        if (window->steps_ == nullptr) {
            window->steps_ = std::make_unique<StepHistory>(*window);
            continue;
        }
        const bool stirred = window->steps_->stirred();
        if (!stirred || moment == Moment::passing)
            continue;
        if (moment == Moment::stepEnds || window->steps_->concernsDesign())
            window->steps_->close();
    }
}

void Engine::forgetSteps()
{
    for (const std::unique_ptr<Window>& window : windows_)
        window->steps_.reset();
    endSteps();
}

// Keys reach no sheet behind a window that must be answered first.
Window* Engine::steppedSheet() const
{
    Window* sheet = activeChild_;
    const bool barred = ended_ || sheet == nullptr || sheet->role() != Role::sheet || sheet->steps_ == nullptr ||
                        (current_ != nullptr && current_->spec().modal && current_->shown_);
    return barred ? nullptr : sheet;
}

bool Engine::userStep(Direction direction)
{
    Window* sheet = idle() ? steppedSheet() : nullptr;
    if (sheet == nullptr || !sheet->steps_->lead(direction))
        return false;
    sheet->stepped();
    trace((direction == Direction::back ? "undo " : "redo ") + std::string(sheet->name()));
    if (onStep)
        onStep(*sheet);
    if (follower_ != nullptr)
        follower_->eventEnded();
    screen_.bringUpToDate();
    return true;
}

bool Engine::canStep(Direction direction) const
{
    const Window* sheet = steppedSheet();
    return sheet != nullptr && (direction == Direction::back ? sheet->steps_->behind() : sheet->steps_->ahead()) > 0;
}

const StepHistory* Engine::stepsOf(const Window& window) const
{
    return window.steps_.get();
}

} // namespace velmor::host
