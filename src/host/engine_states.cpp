// SPDX-License-Identifier: MIT
// Copying open windows, opening windows from copies, and leading a window through a change: all of it between events.
#include <algorithm>

#include "host/engine.h"
#include "host/state_change.h"

namespace velmor::host {

std::optional<WindowState> Engine::stateOf(const Window& window) const
{
    if (!idle() || ended_ || !isLoaded(&window))
        return std::nullopt;
    WindowState state = copyOf(window);
    const auto used = std::find(history_.begin(), history_.end(), &window);
    if (used != history_.end())
        state.set({noControl, Attribute::turn}, static_cast<double>(used - history_.begin() + 1));
    state.set({noControl, Attribute::current}, current_ == &window ? 1.0 : 0.0);
    state.set({noControl, Attribute::activeChild}, activeChild_ == &window ? 1.0 : 0.0);
    return state;
}

std::vector<Window*> Engine::open(std::span<const WindowState> states)
{
    std::vector<Window*> opened(states.size(), nullptr);
    if (!idle() || ended_)
        return opened;
    std::vector<std::pair<double, Window*>> used;
    for (std::size_t i = 0; i < states.size(); ++i) {
        opened[i] = open(states[i]);
        const double turn = states[i].number({noControl, Attribute::turn});
        if (opened[i] != nullptr && turn > 0.0)
            used.emplace_back(turn, opened[i]);
    }
    bringInFront(std::move(used));
    for (std::size_t i = 0; i < states.size(); ++i) {
        if (opened[i] != nullptr && states[i].number({noControl, Attribute::current}) != 0.0)
            current_ = opened[i];
        if (opened[i] != nullptr && opened[i]->isChild() &&
            states[i].number({noControl, Attribute::activeChild}) != 0.0)
            activeChild_ = opened[i];
    }
    endSteps();
    screen_.bringUpToDate();
    return opened;
}

Window* Engine::open(const WindowState& state)
{
    const bool known = state.spec != nullptr && specOf(state.spec->name) == state.spec;
    if (!known || (state.spec->role == Role::mainWindow && defaultInstance(state.spec->name) != nullptr))
        return nullptr;
    Window* former = defaultInstance(state.spec->name);
    Window& window = *make(*state.spec, false);
    putInto(window, state);
    if (former != nullptr && window.isDefault_)
        former->isDefault_ = false;
    trace("open " + std::string(window.name()));
    if (window.loaded_)
        screen_.windowCreated(window);
    if (window.shown_)
        screen_.windowRaised(window);
    return &window;
}

// The order in which they were used stays; they come in front of what was there.
void Engine::bringInFront(std::vector<std::pair<double, Window*>> used)
{
    std::stable_sort(used.begin(), used.end(),
                     [](const auto& one, const auto& other) { return one.first < other.first; });
    for (const auto& [turn, window] : used) {
        history_.push_back(window);
        if (!window->shown_)
            continue;
        screen_.windowRaised(*window);
        current_ = window;
        if (window->isChild())
            activeChild_ = window;
    }
}

bool Engine::apply(Window& window, const StateChange& change, Direction direction)
{
    if (!idle() || ended_ || !isLoaded(&window))
        return false;
    host::apply(window, change, direction);
    screen_.bringUpToDate();
    return true;
}

} // namespace velmor::host
