// SPDX-License-Identifier: MIT
// Measures the program without a screen: whole designs played as walks, and further sheets of one program, in time and
// in memory of the heap.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <malloc.h>

#include "console/console_screen.h"
#include "console/walk_player.h"
#include "console/whole_program.h"
#include "host/engine.h"
#include "host/settings_store.h"

namespace velmor::bench::headless {

using Clock = std::chrono::steady_clock;

constexpr int plays = 201;
constexpr int sheets = 200;

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

bool isPlayed(const std::string& path, const std::string& text, bool asks)
{
    std::istringstream walk(text);
    std::ostringstream out;
    const console::WalkResult result = console::playWalk(console::wholeProgram(), walk, path, out, false);
    const bool played = result.exitStatus() == 0 && (result.passed > 0 || !asks);
    if (!played)
        std::fprintf(stderr, "%s", out.str().c_str());
    return played;
}

/// What a student does in the walk, without what a test asks about it.
std::string deedsOf(const std::string& text)
{
    std::istringstream lines(text);
    std::string deeds;
    for (std::string line; std::getline(lines, line);)
        if (line.find("expect") == std::string::npos)
            deeds += line + '\n';
    return deeds;
}

/// Median time in milliseconds of one play, a fresh program and the reading of the walk included; negative when it fails.
/// The walk is played once whole, so that what is timed is known to be a design that comes out right.
double timeOfDesign(const std::string& path)
{
    std::ifstream file(path);
    std::stringstream text;
    text << file.rdbuf();
    const std::string deeds = deedsOf(text.str());
    if (!isPlayed(path, text.str(), true))
        return -1.0;
    std::vector<double> times;
    for (int play = 0; play < plays; ++play) {
        const auto start = Clock::now();
        if (!isPlayed(path, deeds, false))
            return -1.0;
        times.push_back(millisecondsSince(start));
    }
    std::nth_element(times.begin(), times.begin() + plays / 2, times.end());
    return times[plays / 2];
}

bool measureDesigns(int count, char** paths)
{
    double slowest = 0.0;
    for (int i = 0; i < count; ++i) {
        const double time = timeOfDesign(paths[i]);
        if (time < 0.0)
            return false;
        slowest = std::max(slowest, time);
    }
    std::printf("headless.design.ms\t%.3f\n", slowest);
    return true;
}

void measureSheets()
{
    console::ConsoleScreen screen;
    host::MemorySettings settings;
    const console::WalkedProgram& program = console::wholeProgram();
    host::Engine engine(program.catalogue, screen, settings);
    engine.loadMainWindow();
    const host::WindowSpec* sheet = engine.specOf("Form2");
    program.newSheet(engine, *sheet);
    const std::size_t before = mallinfo2().uordblks;
    const auto start = Clock::now();
    for (int i = 0; i < sheets; ++i)
        program.newSheet(engine, *sheet);
    std::printf("headless.sheet.ms\t%.4f\n", millisecondsSince(start) / sheets);
    std::printf("headless.sheet.kb\t%.3f\n", static_cast<double>(mallinfo2().uordblks - before) / 1024.0 / sheets);
}

} // namespace velmor::bench::headless

int main(int argc, char** argv)
{
    using namespace velmor::bench::headless;
    if (argc < 2) {
        std::fputs("usage: bench_headless WALK...    each a whole design\n", stderr);
        return 2;
    }
    if (!measureDesigns(argc - 1, argv + 1))
        return 1;
    measureSheets();
    return 0;
}
