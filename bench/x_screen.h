// SPDX-License-Identifier: MIT
// What the measuring programs need of an X server: start a program, see its window mapped, press its keys, see it
// repaint. Knows nothing of what it measures.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

#include <X11/Xlib.h>
#include <X11/extensions/Xdamage.h>

namespace velmor::bench {

using Clock = std::chrono::steady_clock;

/// Milliseconds between two moments.
double milliseconds(Clock::time_point from, Clock::time_point to);

/// A program that was started; ended and waited for when it goes.
class Child {
public:
    explicit Child(const std::vector<std::string>& command);
    ~Child();
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    Clock::time_point started() const { return started_; }
    pid_t id() const { return id_; }
    bool ended();

    /// Milliseconds for which its first thread has been on a processor: what other work on the machine changes least.
    double busy() const;

    /// Resident memory in kilobytes; 0 when it has ended.
    long resident() const;

private:
    Clock::time_point started_;
    pid_t id_ = -1;
    bool ended_ = false;
};

class XScreen {
public:
    /// Throws std::runtime_error without a display, without XTEST or without DAMAGE.
    XScreen();
    ~XScreen();
    XScreen(const XScreen&) = delete;
    XScreen& operator=(const XScreen&) = delete;

    /// Forgets every event that has come so far.
    void forget();

    struct Mapped {
        Window window;
        Clock::time_point when;
    };

    /// The next window of at least 300 by 200 pixels that is mapped on the root; none when the time is over or the
    /// child ends.
    std::optional<Mapped> waitForWindow(Child& child, int timeout);

    /// Watches a window and all in it for repaints.
    void watch(Window window);

    /// Presses and releases a key; the moment is that of the press.
    Clock::time_point press(KeySym key, bool shift = false);

    /// The moment when the first repaint reached us; none when the time is over.
    std::optional<Clock::time_point> waitForRepaint(int timeout);

    /// Lets repaints go by until none has come for `quiet` milliseconds.
    void settle(int quiet);

private:
    bool waitForEvent(Clock::time_point end);

    Display* display_ = nullptr;
    Damage damage_ = 0;
    int damageEvent_ = 0;
};

/// The value below which `part` (0 to 1) of the values lie. The values may not be empty.
double quantile(std::vector<double> values, double part);

/// One line of result: the name of the bar, a tab and the value.
void report(const std::string& name, double value);

} // namespace velmor::bench
