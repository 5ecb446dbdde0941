// SPDX-License-Identifier: MIT
#include "desktop/check/finished_design.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <QElapsedTimer>
#include <QTest>

#include "desktop/check/design_checks.h"
#include "places.h"

namespace velmor::test {

namespace finished_design_detail {

constexpr int patience = 20'000; // milliseconds

void fill(Bench& bench, host::Window& sheet, host::Handle field, const std::string& text)
{
    if (sheet.focus() != field)
        bench.click(sheet, field);
    bench.key(Qt::Key_A, Qt::ControlModifier);
    bench.type(QString::fromStdString(text));
}

void enter(Bench& bench, host::Window& sheet, std::istringstream& words)
{
    std::string field;
    std::string text;
    if (words >> field && words >> text)
        fill(bench, sheet, sheet.named(field), text);
    bench.key(Qt::Key_Return);
}

/// False at the word that ends the design.
bool play(Bench& bench, host::Window*& sheet, const std::string& line)
{
    std::istringstream words(line);
    std::string verb;
    std::string name;
    if (!(words >> verb) || verb.starts_with('#') || verb == "language")
        return true;
    if (verb == "check")
        return false;
    if (verb == "new") {
        words >> name;
        sheet = &bench.show(name);
    } else if (verb == "enter") {
        enter(bench, *sheet, words);
    } else if (verb == "enter-each") {
        while (words >> name)
            bench.key(Qt::Key_Return);
    } else if (verb == "fill") {
        std::string text;
        words >> name >> text;
        fill(bench, *sheet, sheet->named(name), text);
    } else if (verb == "click") {
        words >> name;
        bench.click(*sheet, sheet->named(name));
    } else if (verb == "answer") {
        words >> name;
        bench.answerByKey(name == "yes" ? Qt::Key_S : Qt::Key_N);
    } else if (verb == "window") {
        bench.engine.userActivate(*sheet);
        Bench::settle();
    }
    return true;
}

} // namespace finished_design_detail

using namespace finished_design_detail;

host::Window& finishDesign(Bench& bench, const std::string& name)
{
    std::ifstream walk(places::source() + "/tests/check/walks/" + name + ".walk");
    host::Window* sheet = nullptr;
    std::string line;
    while (std::getline(walk, line) && play(bench, sheet, line)) {
    }
    Bench::settle();
    return *sheet;
}

std::vector<std::string> finishedDesigns()
{
    std::vector<std::string> names;
    for (const auto& file : std::filesystem::directory_iterator(places::source() + "/tests/check/walks"))
        names.push_back(file.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

desktop::CheckWindow* checkOf(Bench& bench, const host::Window& sheet)
{
    desktop::DesignChecks* checks = bench.screen.checks();
    desktop::CheckWindow* window = checks == nullptr ? nullptr : checks->windowOf(sheet);
    return window != nullptr && window->isVisible() ? window : nullptr;
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
