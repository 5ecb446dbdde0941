// SPDX-License-Identifier: MIT
// The engine's core: outermost events, what is settled when they end, and failures. Focus and mouse stand in
// engine_input.cpp, windows in engine_windows.cpp.
#include "host/engine.h"

#include <algorithm>
#include <utility>

#include "host/failure.h"
#include "host/state_change.h"

namespace velmor::host {

Engine::Engine(Catalogue catalogue, Screen& screen, SettingsStore& settings)
    : catalogue_(catalogue), screen_(screen), settings_(settings), host_(*this)
{}

Engine::~Engine() = default;

void Engine::trace(std::string_view line) const
{
    if (trace_)
        trace_(line);
}

// An event that arrives while a slot runs (from the loop of a box, say) waits for the end of the outermost one.
void Engine::outermost(const std::function<void()>& action)
{
    if (ended_)
        return;
    if (depth_ > 0) {
        pending_.push_back(action);
        return;
    }
    if (follower_ != nullptr)
        follower_->eventBegins();
    ++depth_;
    inHand_ = {};
    moment_ = Moment::passing;
    stepWanted_.reset();
    try {
        action();
        settle();
        runPending();
    } catch (const ProgramFailure& failure) {
        fail(failure.what());
    }
    --depth_;
    const std::optional<Direction> wanted = std::exchange(stepWanted_, std::nullopt);
    if (!ended_)
        endSteps();
    buryTheDead();
    if (follower_ != nullptr)
        follower_->eventEnded();
    screen_.bringUpToDate();
    if (ended_)
        screen_.programEnded();
    else if (wanted)
        userStep(*wanted);
}

void Engine::runPending()
{
    while (!pending_.empty() && !ended_) {
        const std::function<void()> next = std::move(pending_.front());
        pending_.pop_front();
        inHand_ = {};
        next();
        settle();
    }
}

void Engine::settle()
{
    for (std::size_t i = 0; i < windows_.size() && !ended_; ++i)
        settleFocus(*windows_[i]);
}

// Only now may a field that was disabled or hidden lose the focus: the slot that did it may have put it right.
void Engine::settleFocus(Window& window)
{
    for (std::size_t guard = 0; guard <= window.controlCount(); ++guard) {
        const Handle held = window.focus_;
        if (ended_ || window.gone_ || held == noControl || window.canTakeFocus(held))
            return;
        const std::vector<Handle> order = tabOrder(window);
        const auto at = std::find(order.begin(), order.end(), held);
        std::vector<Handle> candidates(at == order.end() ? order.begin() : at + 1, order.end());
        candidates.insert(candidates.end(), order.begin(), at);
        const auto next = std::find_if(candidates.begin(), candidates.end(),
                                       [&](Handle control) { return window.canTakeFocus(control); });
        moveFocus(window, next == candidates.end() ? noControl : *next, true);
    }
}

void Engine::buryTheDead()
{
    std::vector<std::unique_ptr<Window>> dead = std::exchange(dead_, {});
    for (const std::unique_ptr<Window>& window : dead)
        screen_.windowGone(*window);
}

void Engine::fail(std::string_view what)
{
    trace("failure " + std::string(what));
    ended_ = true;
    pending_.clear();
    std::string text(failureText_.in(values_.LanguageIsEnglish));
    if (follower_ != nullptr && follower_->failing())
        text += keptText_.in(values_.LanguageIsEnglish);
    screen_.programFailed(text);
}

void Engine::end()
{
    if (std::exchange(ended_, true))
        return;
    trace("end");
    pending_.clear();
}

bool Engine::run(Window& window, Handle control, Event event, EventArgs& args)
{
    if (ended_ || window.gone_ || !window.hasSlot(control, event))
        return false;
    if (onSlot)
        onSlot(window, control, event);
    return window.runSlot(control, event, args);
}

void Engine::run(Window& window, Event event)
{
    EventArgs args;
    run(window, noControl, event, args);
}

void Engine::userRun(const std::function<void()>& action)
{
    outermost([this, action] {
        moment_ = Moment::stepEnds;
        action();
    });
}

void Engine::programEdited(Window& window, Handle editor)
{
    ++window.textRevision_;
    EventArgs args;
    run(window, editor, Event::change, args);
}

} // namespace velmor::host
