// SPDX-License-Identifier: MIT
// The life of windows: loading, showing, activation, arrangement, closing.
#include <algorithm>
#include <stdexcept>
#include <utility>

#include "host/engine.h"

namespace velmor::host {

namespace engine_windows_detail {

constexpr int cascadeStep = 360;
constexpr int cascadeTurns = 8;
constexpr int tilesInARow = 4;
constexpr Place iconPlace{0, 0, 3000, 400};
constexpr int minimised = 1; ///< of the states of a window; 0 is normal
constexpr int maximised = 2;

} // namespace engine_windows_detail

const WindowSpec* Engine::specOf(std::string_view name) const
{
    for (const WindowSpec* spec : catalogue_)
        if (sameName(spec->name, name))
            return spec;
    return nullptr;
}

Window& Engine::mainWindow()
{
    for (const std::unique_ptr<Window>& window : windows_)
        if (window->role() == Role::mainWindow)
            return *window;
    throw std::logic_error("the main window is not loaded");
}

std::vector<Window*> Engine::windows() const
{
    std::vector<Window*> result;
    result.reserve(windows_.size());
    for (const std::unique_ptr<Window>& window : windows_)
        result.push_back(window.get());
    return result;
}

Window* Engine::instance(std::string_view name, int number) const
{
    Window* found = nullptr;
    for (const std::unique_ptr<Window>& window : windows_) {
        if (!sameName(window->name(), name))
            continue;
        found = window.get();
        if (number > 0 && --number == 0)
            return found;
    }
    return number > 0 ? nullptr : found;
}

Window* Engine::defaultInstance(std::string_view name) const
{
    for (const std::unique_ptr<Window>& window : windows_)
        if (window->isDefault_ && sameName(window->name(), name))
            return window.get();
    return nullptr;
}

bool Engine::isLoaded(const Window* window) const
{
    return std::any_of(windows_.begin(), windows_.end(), [window](const auto& held) { return held.get() == window; });
}

void Engine::loadMainWindow()
{
    outermost([this] {
        for (const WindowSpec* spec : catalogue_)
            if (spec->role == Role::mainWindow && defaultInstance(spec->name) == nullptr)
                load(*make(*spec, true));
    });
}

void Engine::setClientArea(int width, int height)
{
    client_ = {0, 0, width, height};
    for (const std::unique_ptr<Window>& window : windows_)
        if (window->isChild() && window->state_ == 2)
            window->setPlace(client_);
}

Window* Engine::make(const WindowSpec& spec, bool isDefault)
{
    using namespace engine_windows_detail;
    std::unique_ptr<Window> made = spec.create(host_);
    made->isDefault_ = isDefault;
    made->serial_ = ++serial_;
    if (made->isChild()) {
        const auto children =
            std::count_if(windows_.begin(), windows_.end(), [](const auto& w) { return w->isChild(); });
        const int offset = static_cast<int>(children % cascadeTurns) * cascadeStep;
        made->place_ = {offset, offset, client_.width - offset, client_.height - offset};
        made->normalPlace_ = made->place_;
    }
    windows_.push_back(std::move(made));
    return windows_.back().get();
}

void Engine::load(Window& window)
{
    if (std::exchange(window.loaded_, true))
        return;
    trace("load " + std::string(window.name()));
    screen_.windowCreated(window);
    run(window, Event::load);
}

void Engine::show(Window& window)
{
    if (ended_ || window.gone_)
        return;
    load(window);
    if (window.gone_)
        return;
    const bool first = !std::exchange(window.everShown_, true);
    if (first)
        joinMaximised(window);
    if (!std::exchange(window.shown_, true)) {
        trace("show " + std::string(window.name()));
        window.windowChanged_ = true;
    }
    if (first)
        resized(window);
    if (window.role() == Role::palette)
        screen_.windowRaised(window);
    else if (!window.gone_)
        makeCurrent(window);
    if (first)
        firstFocus(window);
}

// A student who works on one large sheet gets the next one as large.
void Engine::joinMaximised(Window& window)
{
    using engine_windows_detail::maximised;
    if (!window.isChild() || window.state_ != 0 || activeChild_ == nullptr || activeChild_->state_ != maximised)
        return;
    enterState(window, maximised);
}

void Engine::hide(Window& window)
{
    if (!std::exchange(window.shown_, false))
        return;
    trace("hide " + std::string(window.name()));
    window.windowChanged_ = true;
    leave(window);
}

void Engine::makeCurrent(Window& window)
{
    screen_.windowRaised(window);
    if (current_ == &window)
        return;
    const Window* previous = std::exchange(current_, &window);
    const bool fromTool = previous != nullptr && (previous->role() == Role::tool || previous->role() == Role::palette);
    history_.erase(std::remove(history_.begin(), history_.end(), &window), history_.end());
    history_.push_back(&window);
    trace("current " + std::string(window.name()));
    if (!window.isChild())
        run(window, Event::activate);
    else if (activeChild_ != &window)
        activateChild(&window);
    else if (fromTool)
        run(window, Event::comeBack);
}

void Engine::activateChild(Window* child)
{
    activeChild_ = child;
    if (child != nullptr)
        run(*child, Event::activate);
}

// The window is hidden or gone: the one that was current before it is current again.
void Engine::leave(Window& window)
{
    history_.erase(std::remove(history_.begin(), history_.end(), &window), history_.end());
    const bool wasTool = window.role() == Role::tool || window.role() == Role::palette;
    const auto lastShown = [this](bool childrenOnly) -> Window* {
        for (auto held = history_.rbegin(); held != history_.rend(); ++held)
            if ((*held)->shown_ && !(*held)->gone_ && (!childrenOnly || (*held)->isChild()))
                return *held;
        return nullptr;
    };
    const bool wasCurrent = current_ == &window;
    if (wasCurrent) {
        current_ = lastShown(false);
        if (current_ == nullptr)
            current_ = &mainWindow();
        trace("current " + std::string(current_->name()));
        screen_.windowRaised(*current_);
    }
    if (activeChild_ == &window)
        activateChild(lastShown(true));
    else if (wasCurrent && wasTool && current_->isChild() && current_ == activeChild_)
        run(*current_, Event::comeBack);
}

void Engine::drop(Window& window)
{
    const auto held = std::find_if(windows_.begin(), windows_.end(), [&](const auto& w) { return w.get() == &window; });
    if (held == windows_.end())
        return;
    trace("unload " + std::string(window.name()));
    if (follower_ != nullptr)
        follower_->windowGoes(window);
    window.gone_ = true;
    window.shown_ = false;
    window.windowChanged_ = true;
    dead_.push_back(std::move(*held));
    windows_.erase(held);
    leave(window);
}

bool Engine::unload(Window& window, CloseReason reason)
{
    if (window.gone_ || ended_)
        return true;
    if (window.role() == Role::mainWindow) {
        closeMainWindow(reason);
        return ended_;
    }
    EventArgs args;
    args.reason = reason;
    run(window, noControl, Event::queryClose, args);
    if (window.gone_)
        return true;
    if (args.cancel || ended_)
        return false;
    run(window, Event::unload);
    drop(window);
    return true;
}

// Nothing is unloaded before every sheet has agreed, so that Cancel in one sheet's question drops the whole exit.
void Engine::closeMainWindow(CloseReason reason)
{
    Window& window = mainWindow();
    EventArgs args;
    args.reason = reason;
    run(window, noControl, Event::queryClose, args);
    if (args.cancel || ended_ || !askAllSheets())
        return;
    run(window, Event::unload);
    end();
}

bool Engine::askAllSheets()
{
    for (Window* window : windows()) {
        if (window->role() != Role::sheet || !isLoaded(window))
            continue;
        EventArgs args;
        args.reason = CloseReason::programEnd;
        askedAbout_ = window;
        run(*window, noControl, Event::queryClose, args);
        askedAbout_ = nullptr;
        if (args.cancel || ended_)
            return false;
    }
    return true;
}

void Engine::resized(Window& window)
{
    run(window, Event::resize);
    run(window, Event::repaint);
}

void Engine::enterState(Window& window, int state)
{
    using namespace engine_windows_detail;
    if (window.state_ == 0)
        window.normalPlace_ = window.place_;
    window.state_ = state;
    window.windowChanged_ = true;
    trace("state " + std::string(window.name()) + " " + std::to_string(state));
    if (state == minimised)
        window.setPlace(iconPlace);
    else if (state == maximised && window.isChild())
        window.setPlace(client_);
    else
        window.setPlace(window.normalPlace_);
}

// A minimised window has nothing to paint: what its resize slot brought into sight stays there.
void Engine::setState(Window& window, int state)
{
    using engine_windows_detail::minimised;
    if (window.gone_ || window.state_ == state)
        return;
    enterState(window, state);
    if (!window.loaded_ || !window.everShown_)
        return;
    run(window, Event::resize);
    if (state != minimised)
        run(window, Event::repaint);
}

Place Engine::arrangedPlace(int kind, int index, int count) const
{
    using namespace engine_windows_detail;
    if (kind == 0) {
        const int offset = index % cascadeTurns * cascadeStep;
        const int margin = (std::min(count, cascadeTurns) - 1) * cascadeStep;
        return {offset, offset, client_.width - margin, client_.height - margin};
    }
    const int lines = (count + tilesInARow - 1) / tilesInARow; // of at most four tiles each
    const int line = index % lines;
    const int inLine = (count - line + lines - 1) / lines;
    const int at = index / lines;
    if (kind == 1) {
        const int width = client_.width / lines;
        const int height = client_.height / inLine;
        return {line * width, at * height, width, height};
    }
    const int width = client_.width / inLine;
    const int height = client_.height / lines;
    return {at * width, line * height, width, height};
}

void Engine::arrange(int kind)
{
    arrangement_ = kind;
    trace("arrange " + std::to_string(kind));
    screen_.arranged(kind);
    std::vector<Window*> children;
    for (Window* window : windows())
        if (window->isChild() && window->shown_ && window->state_ != 1)
            children.push_back(window);
    std::vector<Window*> changed;
    const int count = static_cast<int>(children.size());
    for (int i = 0; i < count; ++i) {
        Window& child = *children[static_cast<std::size_t>(i)];
        const Place place = arrangedPlace(kind, i, count);
        const bool sizeChanges = place.width != child.place_.width || place.height != child.place_.height;
        if (std::exchange(child.state_, 0) != 0)
            child.windowChanged_ = true;
        child.setPlace(place);
        child.normalPlace_ = place;
        if (sizeChanges)
            changed.push_back(&child);
    }
    for (Window* child : changed)
        if (isLoaded(child))
            resized(*child);
}

void Engine::userActivate(Window& window)
{
    outermost([this, &window] {
        moment_ = Moment::activated;
        if (isLoaded(&window) && (window.shown_ || window.role() == Role::mainWindow))
            makeCurrent(window);
    });
}

void Engine::userClose(Window& window)
{
    outermost([this, &window] {
        if (isLoaded(&window))
            unload(window, CloseReason::button);
    });
}

void Engine::userState(Window& window, int state)
{
    outermost([this, &window, state] {
        if (isLoaded(&window))
            setState(window, state);
    });
}

void Engine::userResized(Window& window, const Place& place)
{
    outermost([this, &window, place] {
        if (!isLoaded(&window))
            return;
        const bool sizeChanges = place.width != window.place_.width || place.height != window.place_.height;
        window.setPlace(place);
        if (window.state_ == 0)
            window.normalPlace_ = place;
        if (sizeChanges)
            resized(window);
    });
}

} // namespace velmor::host
