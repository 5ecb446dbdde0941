// SPDX-License-Identifier: MIT
// Finding what words name, counting and reporting.
#include "console/walk.h"

#include <utility>

namespace velmor::console {

WalkResult& WalkResult::operator+=(const WalkResult& other)
{
    passed += other.passed;
    failed += other.failed;
    unreadable = unreadable || other.unreadable;
    return *this;
}

Walk::Walk(const WalkedProgram& program, std::string file, std::ostream& out, bool trace)
    : program_(program), file_(std::move(file)), out_(out), trace_(trace),
      engine_(program.catalogue, screen_, settings_)
{
    screen_.onWrongAnswer = [this](const std::string& reason) { fail(reason); };
    if (!trace_)
        return;
    const auto sink = [this](std::string_view line) { this->trace("  " + inOneLine(line)); };
    screen_.onTrace = sink;
    engine_.setTrace(sink);
}

void Walk::atLine(int number, std::string_view text)
{
    line_ = number;
    lineText_ = text;
}

void Walk::trace(std::string_view text)
{
    if (trace_)
        print(text);
}

std::string Walk::place() const
{
    return file_ + ":" + std::to_string(line_) + ": " + (language_.empty() ? "" : "in " + language_ + ": ");
}

void Walk::fail(std::string_view reason)
{
    ++result_.failed;
    print(place() + lineText_ + (lineText_.empty() ? "" : ": ") + std::string(reason));
}

void Walk::compare(std::string_view expected, std::string_view found)
{
    const std::string plainFound = screen_.plain(found);
    check(plainFound == screen_.plain(expected), inQuotes(expected), inQuotes(plainFound));
}

void Walk::check(bool holds, std::string_view expected, std::string_view found)
{
    if (holds)
        pass();
    else
        fail("expected " + std::string(expected) + ", found " + std::string(found));
}

void Walk::stop(std::string_view reason)
{
    result_.unreadable = true;
    print(place() + std::string(reason));
}

void Walk::loadProgram()
{
    if (engine_.windows().empty())
        engine_.loadMainWindow();
}

host::Window& Walk::current()
{
    if (host::Window* window = engine_.current())
        return *window;
    for (host::Window* window : engine_.windows())
        if (window->role() == host::Role::mainWindow)
            return *window;
    throw WalkError("no window is open");
}

const host::WindowSpec& Walk::specOf(std::string_view window) const
{
    if (const host::WindowSpec* spec = engine_.specOf(window))
        return *spec;
    throw WalkError("unknown window " + inQuotes(window));
}

host::Window* Walk::window(std::string_view word)
{
    const WindowWord wanted = windowWord(word);
    return engine_.instance(specOf(wanted.name).name, wanted.number);
}

host::Handle Walk::control(const host::Window& window, std::string_view name) const
{
    const host::Handle found = window.named(name);
    if (found == host::noControl)
        throw WalkError("unknown control " + inQuotes(name) + " of " + std::string(window.name()));
    return found;
}

host::Handle Walk::controlOrBackground(const host::Window& window, std::string_view name) const
{
    return name == "." ? host::noControl : control(window, name);
}

std::string windowTitle(host::Engine& engine, const host::Window& window)
{
    int number = 0;
    for (const host::Window* open : engine.windows()) {
        number += open->name() == window.name() ? 1 : 0;
        if (open == &window)
            break;
    }
    return std::string(window.name()) + "#" + std::to_string(number);
}

} // namespace velmor::console
