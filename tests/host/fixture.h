// SPDX-License-Identifier: MIT
// A small program made for the engine's tests: a main window, a sheet whose slots are set by each test, a tool, a palette.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/engine.h"
#include "quiet_screen.h"

namespace velmor::test {

enum FixtureControl : host::Handle { First, Second, Third, Press, Photo, Still, Words, ItemMenu, Item };

/// A window whose slots note their call in `log()` and then do what the test hung onto them.
class FixtureWindow : public host::Window {
public:
    using Key = std::pair<host::Handle, host::Event>;
    FixtureWindow(host::SheetHost& host, const host::WindowSpec& spec) : host::Window(host, spec) {}

    template <host::Event Which>
    void note(host::EventArgs& args)
    {
        static constexpr const char* names[] = {
            "focus", "lost",  "click", "double",   "down", "up",       "hover", "key",     "change", "enter", "leave",
            "drop",  "timer", "opens", "shortcut", "load", "activate", "back",  "repaint", "resize", "ask",   "unload"};
        const std::string who =
            args.control == host::noControl ? std::string(name()) : std::string(row(args.control).name);
        log.push_back(who + " " + names[static_cast<int>(Which)]);
        const auto found = actions.find({args.control, Which});
        if (found != actions.end())
            found->second(args);
    }
    void on(host::Handle control, host::Event event, std::function<void(host::EventArgs&)> action)
    {
        actions[{control, event}] = std::move(action);
    }

    static inline std::vector<std::string> log;
    std::map<Key, std::function<void(host::EventArgs&)>> actions;
};

template <host::Event Which>
constexpr host::SlotRow noting(host::Handle control)
{
    return {control, Which, host::slot<&FixtureWindow::note<Which>>};
}

/// The fixture program: engine, screen, settings and its windows "Main", "Sheet", "Tool", "Palette".
struct FixtureProgram {
    FixtureProgram();
    FixtureWindow& newSheet();
    FixtureWindow& sheet() { return static_cast<FixtureWindow&>(*engine.instance("Sheet", 0)); }
    std::vector<std::string> takeLog() { return std::exchange(FixtureWindow::log, {}); }

    AskedScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
};

} // namespace velmor::test
