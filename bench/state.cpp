// SPDX-License-Identifier: MIT
// Measures the state of windows without a screen: a copy of a sheet in the middle of its design, a step of it, its text, and
// an editor's ten megabytes taken in slices.
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

#include "console/console_screen.h"
#include "console/whole_program.h"
#include "host/engine.h"
#include "host/settings_store.h"
#include "host/state_change.h"
#include "host/state_text.h"

namespace velmor::bench::state {

constexpr int rounds = 2001;
constexpr std::size_t documentBytes = 10'000'000;

/// Of work by this process: what others do meanwhile does not count, also not for the slowest of many.
double microseconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

template <class Deed>
double microsecondsOf(Deed deed)
{
    const double start = microseconds();
    deed();
    return microseconds() - start;
}

double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2), values.end());
    return values[values.size() / 2];
}

struct Program {
    console::ConsoleScreen screen;
    host::MemorySettings settings;
    host::Engine engine{console::wholeProgram().catalogue, screen, settings};

    Program() { engine.loadMainWindow(); }
    host::Window& sheet(std::string_view name)
    {
        console::wholeProgram().newSheet(engine, *engine.specOf(name));
        return *engine.instance(name, 0);
    }
};

struct Worst {
    double copy = 0.0;
    double step = 0.0;
    double stepBytes = 0.0;
    double text = 0.0;
    double read = 0.0;
};

/// Walks a sheet with the Esc key, from field to field, and measures what each step has changed: on a second sheet that is led
/// through the same changes, because the engine has put the first one's steps together already.
void measureSheet(std::string_view name, Worst& worst)
{
    Program program;
    host::Window& sheet = program.sheet(name);
    const auto led = sheet.spec().create(program.engine.host());
    host::WindowState before = host::copyOf(sheet);
    host::apply(*led, host::difference(host::copyOf(*led), before), host::Direction::forth);
    host::StepWatch watch(*led);
    std::vector<double> steps;
    double bytes = 0.0;
    for (int round = 0; round < rounds; ++round) {
        host::StateChange step;
        program.engine.userKey(sheet, round % 2 == 0 ? 27 : '1');
        program.engine.userTab(sheet);
        host::WindowState after = host::copyOf(sheet);
        host::apply(*led, host::difference(before, after), host::Direction::forth);
        before = std::move(after);
        steps.push_back(microsecondsOf([&] { step = watch.step(); }));
        bytes += static_cast<double>(step.size());
    }
    std::vector<double> copies;
    std::vector<double> texts;
    std::vector<double> reads;
    for (int round = 0; round < rounds; ++round) {
        host::WindowState copy;
        std::string text;
        copies.push_back(microsecondsOf([&] { copy = *program.engine.stateOf(sheet); }));
        texts.push_back(microsecondsOf([&] { text = host::stateText(copy); }));
        reads.push_back(microsecondsOf([&] { host::readState(text, program.engine); }));
    }
    worst.copy = std::max(worst.copy, median(copies));
    worst.step = std::max(worst.step, median(steps));
    worst.stepBytes = std::max(worst.stepBytes, bytes / rounds);
    worst.text = std::max(worst.text, median(texts));
    worst.read = std::max(worst.read, median(reads));
}

void measureSheets()
{
    Worst worst;
    for (const host::WindowSpec* spec : console::wholeProgram().catalogue)
        if (spec->role == host::Role::sheet)
            measureSheet(spec->name, worst);
    std::printf("state.copy.us\t%.2f\nstate.step.us\t%.2f\nstate.step.kb\t%.3f\n", worst.copy, worst.step,
                worst.stepBytes / 1024.0);
    std::printf("state.text.us\t%.2f\nstate.read.us\t%.2f\n", worst.text, worst.read);
}

void measureEditor()
{
    Program program;
    program.engine.userRun([&] { program.engine.host().Show("frmEdito2"); });
    host::Window& editor = *program.engine.instance("frmEdito2", 0);
    const host::Handle field = editor.named("txtEdit");
    std::string document;
    while (document.size() < documentBytes)
        document += "Una línea del informe, tan larga como suelen ser, y otra vez lo mismo.\n";
    program.engine.userRun([&] { editor.setText(field, document); });
    host::LongTextCopy copy(editor, field);
    double slowest = 0.0;
    for (bool more = true; more;)
        slowest = std::max(slowest, microsecondsOf([&] { more = copy.next(); }));
    std::printf("state.slice.ms\t%.4f\n", slowest / 1000.0);
}

} // namespace velmor::bench::state

int main()
{
    velmor::bench::state::measureSheets();
    velmor::bench::state::measureEditor();
    return 0;
}
