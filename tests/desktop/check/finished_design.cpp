// SPDX-License-Identifier: MIT
#include "desktop/check/finished_design.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include <QElapsedTimer>
#include <QTest>

#include "console/verbs.h"
#include "console/walk_lines.h"
#include "console/whole_program.h"
#include "designs/circuits.h"
#include "places.h"

namespace velmor::test {

namespace finished_design_detail {

constexpr int patience = 20'000; // milliseconds

std::string pathOf(const std::string& name)
{
    return places::source() + "/tests/check/walks/" + name + ".walk";
}

void run(console::Walk& walk, const console::Command& command)
{
    walk.loadProgram();
    console::verbOf(command.words.front())->run(walk, console::Words(command.words).subspan(1));
}

} // namespace finished_design_detail

using namespace finished_design_detail;

FinishedDesign::FinishedDesign(const std::string& name) : walk_(console::wholeProgram(), name, out_, false)
{
    desk_.engine = &walk_.engine();
    std::ifstream text(pathOf(name));
    console::WalkLines lines(text);
    std::string line;
    while (lines.next(line))
        for (const console::Command& command : lines.commands()) {
            if (command.words.front() == "check")
                return;
            run(walk_, command);
        }
}

check::Design FinishedDesign::design()
{
    return check::designOf(sheet(), *designs::circuitTableOf(sheet().name()));
}

void FinishedDesign::play(const std::string& command)
{
    std::istringstream text(command);
    console::WalkLines lines(text);
    std::string line;
    while (lines.next(line))
        for (const console::Command& one : lines.commands())
            run(walk_, one);
}

void FinishedDesign::speak(bool english)
{
    walk_.engine().values().LanguageIsEnglish = english ? host::trueValue : std::int16_t{0};
}

std::vector<std::string> finishedDesigns()
{
    std::vector<std::string> names;
    for (const auto& file : std::filesystem::directory_iterator(places::source() + "/tests/check/walks"))
        names.push_back(file.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

bool waitFor(const std::function<bool()>& condition)
{
    QElapsedTimer time;
    for (time.start(); !condition(); QTest::qWait(2))
        if (time.elapsed() > patience)
            return false;
    return true;
}

bool waitForCheck(desktop::CheckWindow& window)
{
    return waitFor([&] { return window.service().running() == 0; });
}

} // namespace velmor::test
