// SPDX-License-Identifier: MIT
#include "desktop/check/design_checks.h"

#include <utility>

#include <QApplication>
#include <QFontMetricsF>
#include <QPlainTextEdit>
#include <QSet>
#include <QTimer>

#include "designs/circuits.h"
#include "desktop/canvas/finished.h"
#include "desktop/check/check_window.h"
#include "desktop/check/report_columns.h"
#include "desktop/drawing/texts.h"
#include "desktop/windows/main_window.h"
#include "desktop/windows/sheet_view.h"
#include "desktop/windows/window_keeper.h"
#include "host/failure.h"
#include "sheets/design_sheet.h"
#include "sheets/tools.h"

namespace velmor::desktop {

namespace design_checks_detail {

constexpr int asksBeforeReplacing = 2;

std::optional<check::Design> designOf(const host::Window& sheet)
{
    const check::SheetTable* table = designs::circuitTableOf(sheet.name());
    if (table == nullptr || !check::isAwake(sheet, *table))
        return std::nullopt;
    return check::designOf(sheet, *table);
}

/// What the sheet's report says as of now; nothing where its numbers fail.
std::string reportText(const host::Window& sheet)
{
    try {
        return static_cast<const sheets::DesignSheet&>(sheet).reportText();
    } catch (const host::ProgramFailure&) {
        return {};
    }
}

constexpr double leastLikeness = 0.5;

/// The share of the report's lines that a text has too.
double likenessOf(const QString& report, const QString& text)
{
    int all = 0;
    int found = 0;
    const QStringList lines = QString(report).remove(QLatin1Char('\r')).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QStringList others = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QSet<QString> there(others.begin(), others.end());
    for (const QString& line : lines) {
        ++all;
        found += there.contains(line) ? 1 : 0;
    }
    return all == 0 ? 0 : static_cast<double>(found) / all;
}

} // namespace design_checks_detail

using namespace design_checks_detail;

DesignChecks::DesignChecks(Desk& desk, WindowKeeper& keeper, AskFile askFile)
    : desk_(desk), keeper_(keeper), askFile_(std::move(askFile)), english_(desk.english())
{}

DesignChecks::~DesignChecks()
{
    for (const auto& [sheet, entry] : entries_)
        delete entry.window;
}

bool DesignChecks::isFor(const host::Window& window)
{
    return designs::circuitTableOf(window.name()) != nullptr;
}

CheckWindow* DesignChecks::windowOf(const host::Window& sheet) const
{
    const auto found = entries_.find(&sheet);
    return found == entries_.end() ? nullptr : found->second.window;
}

CheckWindow* DesignChecks::make(host::Window& sheet)
{
    CheckDeeds deeds{
        .again = [this, &sheet] { open(sheet); },
        .fileFor =
            [this](const QString& title, const QString& filter, const QString&) {
                const auto chosen = askFile_({.kind = host::DialogKind::save,
                                              .title = held(title),
                                              .filter = held(filter),
                                              .folder = {},
                                              .flags = asksBeforeReplacing});
                return chosen ? shown(*chosen) : QString();
            },
        .toReport = [this, &sheet](const QString& text) { return toReport(sheet, text); },
        .closed = [this] { handBack(); },
    };
    const std::string simulator = desk_.engine->settings().value("Check", "Simulator").value_or("");
    auto* window = new CheckWindow(desk_, simulator, std::move(deeds), keeper_.mainWindow());
    entries_[&sheet] = {window, sheet.stirrings()};
    return window;
}

void DesignChecks::open(host::Window& sheet)
{
    const auto design = designOf(sheet);
    if (!design)
        return;
    CheckWindow* window = windowOf(sheet);
    if (window == nullptr)
        window = make(sheet);
    window->begin(*design, shown(sheet.caption()).simplified());
    window->show();
    window->raise();
    window->activateWindow();
}

void DesignChecks::follow()
{
    const bool spoken = std::exchange(english_, desk_.english()) != english_;
    for (auto& [sheet, entry] : entries_) {
        if (spoken)
            entry.window->relabel();
        if (!entry.window->isVisible() || std::exchange(entry.stirrings, sheet->stirrings()) == sheet->stirrings())
            continue;
        const auto design = designOf(*sheet);
        entry.window->compare(design ? &*design : nullptr);
    }
}

void DesignChecks::gone(const host::Window& sheet)
{
    const auto found = entries_.find(&sheet);
    if (found == entries_.end())
        return;
    CheckWindow* window = std::exchange(found->second.window, nullptr);
    entries_.erase(found);
    window->hide();
    window->deleteLater();
    handBack();
}

/// The keyboard goes back to the window that is in front for the engine, once the check is gone; not every window manager sees
/// to it.
void DesignChecks::handBack()
{
    if (keeper_.mainWindow() == nullptr || desk_.closing)
        return;
    QTimer::singleShot(0, &keeper_, [keeper = &keeper_] {
        if (QApplication::activeWindow() == nullptr)
            keeper->giveKeyboardBack();
    });
    keeper_.seeToKeyboard();
}

// The report of this sheet if one is open; otherwise the sheet's own tool opens one, with what it writes.
bool DesignChecks::toReport(host::Window& sheet, const QString& text)
{
    if (!desk_.idle())
        return false;
    QPlainTextEdit* report = reportOf(sheet);
    if (report == nullptr) {
        writeReport(sheet);
        keeper_.bringUpToDate();
        report = reportOf(sheet);
    }
    if (report == nullptr)
        return false;
    // As if it were pasted at the end: the editor hears of it, and can undo it.
    QTextCursor end(report->document());
    end.movePosition(QTextCursor::End);
    const QFontMetricsF letters(report->font());
    const auto widthOf = [&letters](const QString& cell) { return letters.horizontalAdvance(cell); };
    end.insertText(QStringLiteral("\n") +
                   inColumns(QString(text).remove(QLatin1Char('\r')), widthOf, report->tabStopDistance()));
    report->setTextCursor(end);
    report->ensureCursorVisible();
    return true;
}

std::string_view DesignChecks::editorName() const
{
    return desk_.english() ? sheets::reportEditor.en : sheets::reportEditor.es;
}

// Where the editor is taken, by a guide or by the report of another sheet, a second one opens.
void DesignChecks::writeReport(host::Window& sheet)
{
    host::Engine& engine = *desk_.engine;
    const std::string_view name = editorName();
    engine.userActivate(sheet);
    if (engine.host().find(name) == nullptr)
        return engine.userClick(sheet, reportTool(sheet.spec()));
    engine.userRun([&engine, &sheet, name] {
        host::Window* editor = engine.host().NewInstance(name);
        if (editor == nullptr)
            return;
        // It looks for no guide, and the next editor finds the guide's name as it was.
        const std::string guide = std::exchange(engine.values().ArchivoGuia, {});
        engine.host().Show(*editor);
        engine.values().ArchivoGuia = guide;
        engine.host().SetWindowState(*editor, 0);
        editor->setText(editor->named(sheets::textOfReport), design_checks_detail::reportText(sheet));
    });
}

/// The editor that holds the report of the sheet, whatever the student has changed in it since.
QPlainTextEdit* DesignChecks::reportOf(const host::Window& sheet) const
{
    const QString written = shown(reportText(sheet));
    QPlainTextEdit* best = nullptr;
    double most = leastLikeness;
    for (const host::Window* editor : desk_.engine->windows()) {
        if (!host::sameName(editor->name(), editorName()) || !editor->shown())
            continue;
        WindowFrame* frame = keeper_.frameOf(*editor);
        if (frame == nullptr || frame->view() == nullptr)
            continue;
        auto* text =
            qobject_cast<QPlainTextEdit*>(frame->view()->canvas().widgetOf(editor->named(sheets::textOfReport)));
        const double likeness = text == nullptr ? 0 : likenessOf(written, text->toPlainText());
        if (likeness >= most) {
            most = likeness;
            best = text;
        }
    }
    return best;
}

} // namespace velmor::desktop
