// SPDX-License-Identifier: MIT
// Measures further sheets in the desktop, in time and resident memory, and a program with 200 of them: arranging,
// switching, typing. Each time ends when everything that was to be painted has been handed to the X server.
#include <algorithm>
#include <chrono>
#include <clocale>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <vector>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <unistd.h>

#include "desktop/desktop_screen.h"
#include "desktop/drawing/quiet_style.h"
#include "desktop/settings_file.h"
#include "host/engine.h"
#include "program/catalogue.h"

namespace velmor::bench::sheets {

using Clock = std::chrono::steady_clock;

constexpr std::string_view sheetName = "Form2";
constexpr int few = 50;
constexpr int many = 200;

double megabytes()
{
    std::ifstream statm("/proc/self/statm");
    double whole = 0.0;
    double resident = 0.0;
    statm >> whole >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1048576.0;
}

/// Lets everything that is due happen, posted repaints included, without waiting for anything new.
void bringUpToDate()
{
    for (int i = 0; i < 4; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// What this process itself has worked, whatever else the machine did meanwhile.
double busyMilliseconds()
{
    return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

template <class Deed>
double millisecondsOf(Deed deed)
{
    const auto start = Clock::now();
    deed();
    bringUpToDate();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2), values.end());
    return values[values.size() / 2];
}

void report(const char* name, double value)
{
    std::printf("%s\t%.3f\n", name, value);
}

void newSheet(host::Engine& engine)
{
    engine.userRun([&] { engine.host().Show(*engine.host().NewInstance(sheetName)); });
}

std::vector<double> addSheets(host::Engine& engine, int count)
{
    std::vector<double> times;
    for (int i = 0; i < count; ++i)
        times.push_back(millisecondsOf([&] { newSheet(engine); }));
    return times;
}

double timeOfArranging(host::Engine& engine)
{
    std::vector<double> times;
    for (int kind : {0, 1, 2, 0, 1, 2})
        times.push_back(millisecondsOf([&] { engine.userRun([&] { engine.host().Arrange(kind); }); }));
    return median(times);
}

double timeOfSwitching(host::Engine& engine)
{
    std::vector<host::Window*> open;
    for (host::Window* window : engine.windows())
        if (engine.specOf(sheetName) == &window->spec())
            open.push_back(window);
    std::vector<double> times;
    for (std::size_t i = 0; i < 40; ++i)
        times.push_back(millisecondsOf([&] { engine.userActivate(*open[i * 37 % open.size()]); }));
    return median(times);
}

double timeOfTyping()
{
    std::vector<double> times;
    for (int i = 0; i < 60; ++i)
        times.push_back(millisecondsOf(
            [&] { QTest::keyClick(QGuiApplication::focusWindow(), i % 2 == 0 ? Qt::Key_5 : Qt::Key_Backspace); }));
    return median(times);
}

bool measure(host::Engine& engine)
{
    addSheets(engine, 5);
    const double before = megabytes();
    const double busyBefore = busyMilliseconds();
    report("desktop.sheet.ms", median(addSheets(engine, 40)));
    report("desktop.sheet.busy.ms", (busyMilliseconds() - busyBefore) / 40.0);
    report("desktop.sheet.mb", (megabytes() - before) / 40.0);

    addSheets(engine, few - 46);
    const double arrangingFew = timeOfArranging(engine);
    addSheets(engine, many - few);
    const double arrangingMany = timeOfArranging(engine);
    report("desktop.arrange.ms", arrangingMany);
    report("desktop.arrange.growth", arrangingMany / many / (arrangingFew / few));
    report("desktop.switch.ms", timeOfSwitching(engine));
    if (!QGuiApplication::focusWindow()) {
        std::fputs("bench_sheets: no window has the keyboard\n", stderr);
        return false;
    }
    report("desktop.type.ms", timeOfTyping());
    return true;
}

} // namespace velmor::bench::sheets

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setStyle(new velmor::desktop::QuietStyle);
    QApplication::setQuitOnLastWindowClosed(false);

    velmor::desktop::SettingsFile settings;
    velmor::desktop::DesktopScreen screen;
    velmor::host::Engine engine(velmor::program::catalogue(), screen, settings);
    screen.attach(engine);
    velmor::program::start(engine);
    bool measured = false;
    QTimer::singleShot(1000, &application, [&] {
        measured = !engine.ended() && engine.specOf(velmor::bench::sheets::sheetName) != nullptr &&
                   velmor::bench::sheets::measure(engine);
        QApplication::exit();
    });
    QApplication::exec();
    screen.detach();
    return measured ? 0 : 1;
}
