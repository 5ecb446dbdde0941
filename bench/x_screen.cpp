// SPDX-License-Identifier: MIT
// See x_screen.h.
#include "x_screen.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <stdexcept>

#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <X11/extensions/XTest.h>

extern char** environ;

namespace velmor::bench {

double milliseconds(Clock::time_point from, Clock::time_point to)
{
    return std::chrono::duration<double, std::milli>(to - from).count();
}

Child::Child(const std::vector<std::string>& command)
{
    std::vector<char*> arguments;
    for (const std::string& argument : command)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    started_ = Clock::now();
    if (posix_spawnp(&id_, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0)
        throw std::runtime_error("cannot start " + command.front());
}

Child::~Child()
{
    for (int wait = 0; wait < 200 && !ended(); ++wait) {
        kill(id_, wait < 150 ? SIGTERM : SIGKILL);
        poll(nullptr, 0, 10);
    }
}

bool Child::ended()
{
    if (!ended_)
        ended_ = waitpid(id_, nullptr, WNOHANG) == id_;
    return ended_;
}

double Child::busy() const
{
    std::ifstream status("/proc/" + std::to_string(id_) + "/schedstat");
    double nanoseconds = 0.0;
    status >> nanoseconds;
    return nanoseconds / 1e6;
}

long Child::resident() const
{
    std::ifstream status("/proc/" + std::to_string(id_) + "/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmRSS:", 0) == 0)
            return std::stol(line.substr(6));
    }
    return 0;
}

XScreen::XScreen() : display_(XOpenDisplay(nullptr))
{
    if (!display_)
        throw std::runtime_error("no display");
    int unused = 0;
    if (!XDamageQueryExtension(display_, &damageEvent_, &unused))
        throw std::runtime_error("the X server lacks DAMAGE");
    if (!XTestQueryExtension(display_, &unused, &unused, &unused, &unused))
        throw std::runtime_error("the X server lacks XTEST");
    // Windows may go while they are asked about; that is no error here.
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
    XSelectInput(display_, DefaultRootWindow(display_), SubstructureNotifyMask);
    XSync(display_, False);
}

XScreen::~XScreen()
{
    XCloseDisplay(display_);
}

void XScreen::forget()
{
    XSync(display_, True);
}

bool XScreen::waitForEvent(Clock::time_point end)
{
    XFlush(display_);
    while (!XPending(display_)) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        if (left <= 0)
            return false;
        pollfd wire{ConnectionNumber(display_), POLLIN, 0};
        poll(&wire, 1, static_cast<int>(left));
    }
    return true;
}

std::optional<XScreen::Mapped> XScreen::waitForWindow(Child& child, int timeout)
{
    const auto end = Clock::now() + std::chrono::milliseconds(timeout);
    while (Clock::now() < end && !child.ended()) {
        if (!waitForEvent(std::min(end, Clock::now() + std::chrono::milliseconds(100))))
            continue;
        const auto now = Clock::now();
        XEvent event;
        XNextEvent(display_, &event);
        if (event.type != MapNotify)
            continue;
        XWindowAttributes attributes;
        if (XGetWindowAttributes(display_, event.xmap.window, &attributes) && attributes.width >= 300 &&
            attributes.height >= 200)
            return Mapped{event.xmap.window, now};
    }
    return std::nullopt;
}

void XScreen::watch(Window window)
{
    damage_ = XDamageCreate(display_, window, XDamageReportRawRectangles);
    XSync(display_, False);
}

Clock::time_point XScreen::press(KeySym key, bool shift)
{
    const KeyCode code = XKeysymToKeycode(display_, key);
    const KeyCode shiftCode = XKeysymToKeycode(display_, 0xffe1);
    if (shift)
        XTestFakeKeyEvent(display_, shiftCode, True, CurrentTime);
    const auto now = Clock::now();
    XTestFakeKeyEvent(display_, code, True, CurrentTime);
    XTestFakeKeyEvent(display_, code, False, CurrentTime);
    if (shift)
        XTestFakeKeyEvent(display_, shiftCode, False, CurrentTime);
    XFlush(display_);
    return now;
}

std::optional<Clock::time_point> XScreen::waitForRepaint(int timeout)
{
    const auto end = Clock::now() + std::chrono::milliseconds(timeout);
    while (waitForEvent(end)) {
        const auto now = Clock::now();
        XEvent event;
        XNextEvent(display_, &event);
        if (event.type == damageEvent_ + XDamageNotify)
            return now;
    }
    return std::nullopt;
}

void XScreen::settle(int quiet)
{
    while (waitForRepaint(quiet)) {
    }
}

double quantile(std::vector<double> values, double part)
{
    std::sort(values.begin(), values.end());
    const auto last = static_cast<double>(values.size() - 1);
    return values[static_cast<std::size_t>(last * part + 0.5)];
}

void report(const std::string& name, double value)
{
    std::printf("%s\t%.3f\n", name.c_str(), value);
    std::fflush(stdout);
}

} // namespace velmor::bench
