// SPDX-License-Identifier: MIT
// Measures several programs in turn, from exec to mapped window, and their resident memory once they are still:
// the median of many rounds, so that what disturbs the machine disturbs all alike.
#include "x_screen.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>

#include <poll.h>

namespace velmor::bench::start {

struct Program {
    std::string name;
    std::vector<std::string> command;
    std::vector<double> milliseconds;
    std::vector<double> busy;
    std::vector<double> kilobytes;
};

void measure(XScreen& screen, Program& program, bool warmUp)
{
    screen.forget();
    Child child(program.command);
    const auto mapped = screen.waitForWindow(child, 20000);
    if (!mapped)
        throw std::runtime_error(program.name + " showed no window");
    const double busy = child.busy();
    poll(nullptr, 0, 700);
    if (warmUp)
        return;
    program.milliseconds.push_back(milliseconds(child.started(), mapped->when));
    program.busy.push_back(busy);
    program.kilobytes.push_back(static_cast<double>(child.resident()));
}

void run(int rounds, std::vector<Program>& programs)
{
    XScreen screen;
    for (int round = 0; round <= rounds; ++round) {
        for (Program& program : programs)
            measure(screen, program, round == 0);
    }
    for (const Program& program : programs) {
        report("start." + program.name + ".ms", quantile(program.milliseconds, 0.5));
        report("start." + program.name + ".busy.ms", quantile(program.busy, 0.5));
        report("start." + program.name + ".kb", quantile(program.kilobytes, 0.5));
    }
}

} // namespace velmor::bench::start

int main(int argc, char** argv)
{
    using namespace velmor::bench::start;
    if (argc < 3) {
        std::fputs("usage: bench_start ROUNDS NAME=PROGRAM...\n", stderr);
        return 2;
    }
    std::vector<Program> programs;
    for (int i = 2; i < argc; ++i) {
        const std::string argument = argv[i];
        const auto sign = argument.find('=');
        programs.push_back({argument.substr(0, sign), {argument.substr(sign + 1)}, {}, {}, {}});
    }
    try {
        run(std::atoi(argv[1]), programs);
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "bench_start: %s\n", fault.what());
        return 1;
    }
    return 0;
}
