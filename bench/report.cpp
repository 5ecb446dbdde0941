// SPDX-License-Identifier: MIT
// Measures a long report in the text editor of the desktop: opened, searched to its last word, printed to a PDF. Each is done
// with a short and with a ten times longer one, so that growth beyond the length shows. And a text as long in one single line:
// opened, letters written at its start, undone, the next hit of a search, pasted.
#include <chrono>
#include <clocale>
#include <cstdio>
#include <map>
#include <string>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "desktop/desktop_screen.h"
#include "desktop/drawing/quiet_style.h"
#include "desktop/printing.h"
#include "desktop/settings_file.h"
#include "desktop/windows/sheet_view.h"
#include "desktop/windows/window_frame.h"
#include "desktop/windows/window_keeper.h"
#include "editors/editor.h"
#include "editors/find_dialogs.h"
#include "editors/print_layout.h"
#include "host/engine.h"
#include "program/catalogue.h"

namespace velmor::bench::report {

using Clock = std::chrono::steady_clock;

constexpr std::size_t shortReport = 1'000'000;
constexpr std::size_t longReport = 10 * shortReport;
constexpr const char* lastWord = "ULTIMO";

/// Milliseconds.
struct Times {
    double open = 0.0;
    double search = 0.0;
    double print = 0.0;
};

struct LineTimes {
    double open = 0.0;
    double letters = 0.0; ///< five of them
    double undo = 0.0;
    double hit = 0.0;
    double paste = 0.0;   ///< of the whole text over itself
    double unpaste = 0.0; ///< the same undone
};

struct Bench {
    host::Engine& engine;
    desktop::DesktopScreen& screen;
    QString folder;
};

void bringUpToDate()
{
    for (int i = 0; i < 4; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

template <class Deed>
double millisecondsOf(Deed deed)
{
    const auto start = Clock::now();
    deed();
    bringUpToDate();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

void writeReport(const QString& path, std::size_t size)
{
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    std::size_t written = 0;
    for (int line = 1; written < size; ++line) {
        const std::string text =
            "Renglon " + std::to_string(line) + " con datos medidos en el banco y una palabra cualquiera\r\n";
        file.write(text.data(), static_cast<qint64>(text.size()));
        written += text.size();
    }
    file.write(lastWord);
}

host::Window& shown(Bench& bench, const char* name)
{
    host::Window* window = nullptr;
    bench.engine.userRun([&] { window = bench.engine.host().Show(name); });
    return *window;
}

double timeOfSearch(Bench& bench, host::Window& editor)
{
    host::Window& dialog = shown(bench, "frmFind");
    bench.engine.userRun([&] { dialog.setText(find_dialogs::txtFind, lastWord); });
    bringUpToDate();
    const double time = millisecondsOf([&] { bench.engine.userClick(dialog, find_dialogs::cmdFind); });
    return editor.store(editors::txtEdit).selectionLength() == std::string(lastWord).size() ? time : -1.0;
}

double timeOfPrinting(Bench& bench, host::Window& editor)
{
    return millisecondsOf([&] {
        std::map<char32_t, int> widths;
        const host::Font& font = editor.font(editors::txtEdit);
        const auto widthOf = [&](char32_t letter) {
            const auto known = widths.find(letter);
            if (known != widths.end())
                return known->second;
            const std::string text = QString(QChar(static_cast<char16_t>(letter))).toStdString();
            return widths[letter] = bench.screen.printedWidth(font, text);
        };
        QString text = QString::fromStdString(editor.store(editors::txtEdit).all());
        text.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
        QPdfWriter pdf(bench.folder + QStringLiteral("/report.pdf"));
        desktop::printOn(pdf, {editors::breakForPrinter(text.toStdString(), widthOf), font, true});
    });
}

void leave(Bench& bench, host::Window& editor)
{
    // The editor asks whether it may go.
    QTimer::singleShot(100, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
    bench.engine.userRun([&] { bench.engine.host().Unload(editor); });
    bringUpToDate();
}

/// Empty, or what did not work.
std::string measure(Bench& bench, std::size_t size, Times& times)
{
    writeReport(bench.folder + QStringLiteral("/Report.Lab"), size);
    bench.engine.values().ArchivoGuia = "Report.Lab";
    host::Window* editor = nullptr;
    times.open = millisecondsOf([&] { editor = &shown(bench, "frmEdito1"); });
    if (editor->store(editors::txtEdit).length() < size / 2)
        return "the report was not read";
    times.search = timeOfSearch(bench, *editor);
    if (times.search < 0.0)
        return "its last word was not found";
    times.print = timeOfPrinting(bench, *editor);
    leave(bench, *editor);
    return {};
}

void writeLine(const QString& path, std::size_t size)
{
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    for (std::size_t written = 0; written < size; written += 8)
        file.write("palabra ");
}

std::string measureLine(Bench& bench, LineTimes& times)
{
    writeLine(bench.folder + QStringLiteral("/Line.Lab"), longReport);
    bench.engine.values().ArchivoGuia = "Line.Lab";
    host::Window* editor = nullptr;
    times.open = millisecondsOf([&] { editor = &shown(bench, "frmEdito1"); });
    desktop::SheetView* view = bench.screen.keeper().frameOf(*editor)->view();
    QWidget* text = view->canvas().widgetOf(editors::txtEdit);
    const std::size_t whole = editor->store(editors::txtEdit).length();
    times.letters = millisecondsOf([&] { QTest::keyClicks(text, QStringLiteral("abcde")); });
    if (editor->store(editors::txtEdit).length() != whole + 5)
        return "the letters were not written";
    times.undo = millisecondsOf([&] { QTest::keyClick(text, Qt::Key_Z, Qt::ControlModifier); });
    if (editor->store(editors::txtEdit).length() != whole)
        return "the letters were not undone";
    QTest::keyClick(text, Qt::Key_F, Qt::ControlModifier);
    auto* wanted = view->findChild<QWidget*>(QStringLiteral("searchWanted"));
    if (wanted == nullptr)
        return "there is no search line";
    times.hit = millisecondsOf([&] {
        QTest::keyClicks(wanted, QStringLiteral("palabra"));
        QTest::keyClick(wanted, Qt::Key_Return);
    });
    if (editor->store(editors::txtEdit).selectionLength() != std::string("palabra").size())
        return "no hit came into hand";
    QTest::keyClick(wanted, Qt::Key_Escape);
    QGuiApplication::clipboard()->setText(QString::fromStdString(editor->store(editors::txtEdit).all()));
    QTest::keyClick(text, Qt::Key_A, Qt::ControlModifier);
    times.paste = millisecondsOf([&] { QTest::keyClick(text, Qt::Key_V, Qt::ControlModifier); });
    times.unpaste = millisecondsOf([&] { QTest::keyClick(text, Qt::Key_Z, Qt::ControlModifier); });
    if (editor->store(editors::txtEdit).length() != whole)
        return "what was pasted was not undone";
    leave(bench, *editor);
    return {};
}

bool measureBoth(Bench& bench)
{
    Times small;
    Times large;
    std::string fault = measure(bench, shortReport, small);
    LineTimes line;
    if (fault.empty())
        fault = measure(bench, longReport, large);
    if (fault.empty())
        fault = measureLine(bench, line);
    if (!fault.empty()) {
        std::fprintf(stderr, "bench_report: %s\n", fault.c_str());
        return false;
    }
    constexpr double longer = static_cast<double>(longReport) / shortReport;
    std::printf("report.open.ms\t%.3f\nreport.open.growth\t%.3f\n", large.open, large.open / small.open / longer);
    std::printf("line.open.ms\t%.3f\nline.letters.ms\t%.3f\n", line.open, line.letters);
    std::printf("line.undo.ms\t%.3f\nline.hit.ms\t%.3f\n", line.undo, line.hit);
    std::printf("line.paste.ms\t%.3f\nline.unpaste.ms\t%.3f\n", line.paste, line.unpaste);
    std::printf("report.search.ms\t%.3f\n", large.search);
    std::printf("report.print.ms\t%.3f\nreport.print.growth\t%.3f\n", large.print, large.print / small.print / longer);
    return true;
}

} // namespace velmor::bench::report

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setStyle(new velmor::desktop::QuietStyle);
    QApplication::setQuitOnLastWindowClosed(false);

    const QTemporaryDir home;
    velmor::desktop::SettingsFile settings;
    velmor::desktop::DesktopScreen screen({home.path(), home.path(), QString()});
    velmor::host::Engine engine(velmor::program::catalogue(), screen, settings);
    screen.attach(engine);
    velmor::program::start(engine);
    bool measured = false;
    QTimer::singleShot(1000, &application, [&] {
        velmor::bench::report::Bench bench{engine, screen, QString::fromStdString(screen.programFolder())};
        QDir().mkpath(bench.folder);
        measured = !engine.ended() && velmor::bench::report::measureBoth(bench);
        QApplication::exit();
    });
    QApplication::exec();
    screen.detach();
    return measured ? 0 : 1;
}
