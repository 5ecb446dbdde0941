// SPDX-License-Identifier: MIT
// Measures how long a key press takes until the field is repainted: from the X server's key event to the damage that
// the repaint reports. The program is as after its start, with the keyboard in the first field of its first sheet.
#include "x_screen.h"

#include <cstdio>
#include <exception>
#include <stdexcept>

#include <X11/keysym.h>

namespace velmor::bench::key {

constexpr int presses = 400;

// Between two presses nothing may be left to repaint, and the caret, which blinks anew after each, must not come in.
constexpr int quiet = 40;

double pressOnce(XScreen& screen, KeySym key)
{
    screen.settle(quiet);
    const auto pressed = screen.press(key);
    const auto repainted = screen.waitForRepaint(1000);
    if (!repainted)
        throw std::runtime_error("a key press repainted nothing");
    return milliseconds(pressed, *repainted);
}

void run(const std::string& program)
{
    XScreen screen;
    Child child({program});
    const auto mapped = screen.waitForWindow(child, 20000);
    if (!mapped)
        throw std::runtime_error("no window appeared");
    screen.watch(mapped->window);
    // Less than the caret takes to blink, which is a repaint too.
    screen.settle(400);
    std::vector<double> times;
    for (int i = 0; i < presses; ++i)
        times.push_back(pressOnce(screen, i % 2 == 0 ? XK_5 : XK_BackSpace));
    report("key.median.ms", quantile(times, 0.5));
    report("key.p99.ms", quantile(times, 0.99));
}

} // namespace velmor::bench::key

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: bench_key PROGRAM\n", stderr);
        return 2;
    }
    try {
        velmor::bench::key::run(argv[1]);
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "bench_key: %s\n", fault.what());
        return 1;
    }
    return 0;
}
