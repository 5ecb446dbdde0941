// SPDX-License-Identifier: MIT
// A small program made for the engine's tests: a main window, a sheet whose slots are set by each test, a tool, a palette.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/engine.h"

namespace velmor::test {

/// A screen that answers from queues and remembers what it was asked.
class FixtureScreen final : public host::Screen {
public:
    host::Answer messageBox(const host::MessageBox& box) override
    {
        boxes.push_back(box);
        if (duringBox)
            duringBox();
        if (answers.empty())
            return box.escape();
        const host::Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::optional<std::string> fileDialog(const host::FileDialog& dialog) override
    {
        dialogs.push_back(dialog);
        return std::exchange(nextFile, std::nullopt);
    }
    std::optional<std::string> inputBox(const host::InputBox&) override { return std::nullopt; }
    std::optional<std::int32_t> colourDialog(std::int32_t) override { return std::nullopt; }
    std::optional<host::Font> fontDialog(const host::Font&) override { return std::nullopt; }
    std::string now() override { return "01/02/2026 10:20"; }
    std::string date() override { return "01/02/2026"; }
    std::string time() override { return "10:20"; }
    std::string clipboardText() override { return clipboard; }
    int printedWidth(const host::Font&, std::string_view text) override { return static_cast<int>(text.size()) * 120; }
    std::string programFolder() override { return "."; }
    std::string executableName() override { return "velmor"; }
    bool otherInstanceRunning() override { return false; }
    void beep() override { ++beeps; }
    void setClipboardText(std::string_view text) override { clipboard = text; }
    void print(const host::PrintJob&) override {}
    bool run(const std::string&, const std::string&) override { return true; }
    void popupMenu(host::Window&, host::Handle) override { ++popups; }
    void programFailed(std::string_view text) override { failures.emplace_back(text); }
    void windowGone(host::Window& window) override { gone.emplace_back(window.name()); }

    std::deque<host::Answer> answers;
    std::vector<host::MessageBox> boxes;
    std::vector<host::FileDialog> dialogs;
    std::optional<std::string> nextFile;
    std::vector<std::string> failures;
    std::vector<std::string> gone;
    std::function<void()> duringBox;
    std::string clipboard;
    int beeps = 0;
    int popups = 0;
};

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

    FixtureScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
};

} // namespace velmor::test
