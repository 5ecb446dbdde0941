// SPDX-License-Identifier: MIT
// One program under a walk: the engine with its console screen, what the walk's words find in it, and the count of what
// held. Which commands there are, it does not know.
#pragma once

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "check/check.h"
#include "console/console_screen.h"
#include "console/walk_text.h"
#include "host/engine.h"
#include "host/settings_store.h"

namespace velmor::console {

/// What is played: the windows, and the deeds of the program as a whole.
struct WalkedProgram {
    host::Catalogue catalogue;
    /// The start sequence.
    void (*start)(host::Engine& engine) = nullptr;
    /// Makes a new sheet as its item of the menu of new sheets does.
    void (*newSheet)(host::Engine& engine, const host::WindowSpec& sheet) = nullptr;
};

/// How a walk ended.
struct WalkResult {
    int passed = 0;
    int failed = 0;
    bool unreadable = false;

    /// 0 when all held, 1 when something did not, 2 for a walk that cannot be read.
    int exitStatus() const { return unreadable ? 2 : failed > 0 ? 1 : 0; }
    /// Adds another walk's counts; unreadable when one of them is.
    WalkResult& operator+=(const WalkResult& other);
};

class Walk {
public:
    Walk(const WalkedProgram& program, std::string file, std::ostream& out, bool trace);

    const WalkedProgram& program() const { return program_; }
    host::Engine& engine() { return engine_; }
    ConsoleScreen& screen() { return screen_; }
    host::SettingsStore& settings() { return settings_; }
    std::ostream& out() { return out_; }
    WalkResult& result() { return result_; }

    /// Reports name the language from now on: the walk is played in both.
    void playedIn(std::string_view language) { language_ = language; }
    /// From now on reports name this line of the walk.
    void atLine(int number, std::string_view text);
    /// Flushes, so that nothing is lost should a slot crash.
    void print(std::string_view text) { out_ << text << std::endl; }
    void trace(std::string_view text);
    /// Counts an expectation that held.
    void pass() { ++result_.passed; }
    /// Counts a failure and reports it with file and line.
    void fail(std::string_view reason);
    /// Passes when both texts are the same; the one found counts as a walk sees it.
    void compare(std::string_view expected, std::string_view found);
    void check(bool holds, std::string_view expected, std::string_view found);
    /// Reports that the walk cannot be read any further.
    void stop(std::string_view reason);

    /// What the last `check` has found; nothing before the first.
    std::optional<check::Check>& lastCheck() { return lastCheck_; }

    /// A walk that has not been started finds the main window loaded.
    void loadProgram();

    // what a word names; each throws WalkError when there is no such thing
    host::Window& current();
    const host::WindowSpec& specOf(std::string_view window) const;
    /// An open window by its word; null when the program has such a window and it is not open.
    host::Window* window(std::string_view word);
    host::Handle control(const host::Window& window, std::string_view name) const;
    /// As `control`; "." is the background of the window.
    host::Handle controlOrBackground(const host::Window& window, std::string_view name) const;

private:
    std::string place() const;

    const WalkedProgram& program_;
    std::string file_;
    std::string language_;
    std::ostream& out_;
    bool trace_;
    int line_ = 0;
    std::string lineText_;
    WalkResult result_;
    ConsoleScreen screen_;
    host::MemorySettings settings_;
    host::Engine engine_;
    std::optional<check::Check> lastCheck_;
};

/// How a window is called in reports: "Form2#1".
std::string windowTitle(host::Engine& engine, const host::Window& window);

} // namespace velmor::console
