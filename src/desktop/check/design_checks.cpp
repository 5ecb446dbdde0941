// SPDX-License-Identifier: MIT
#include "desktop/check/design_checks.h"

#include <utility>

#include <QPlainTextEdit>

#include "designs/circuits.h"
#include "desktop/canvas/finished.h"
#include "desktop/check/check_window.h"
#include "desktop/drawing/texts.h"
#include "desktop/windows/main_window.h"
#include "desktop/windows/sheet_view.h"
#include "desktop/windows/window_keeper.h"
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
}

// The report that is open; otherwise the sheet's own tool opens one, with what it writes.
bool DesignChecks::toReport(host::Window& sheet, const QString& text)
{
    if (!desk_.idle())
        return false;
    QPlainTextEdit* report = openReport();
    if (report == nullptr) {
        desk_.engine->userActivate(sheet);
        desk_.engine->userClick(sheet, reportTool(sheet.spec()));
        keeper_.bringUpToDate();
        report = openReport();
    }
    if (report == nullptr)
        return false;
    // As if it were pasted at the end: the editor hears of it, and can undo it.
    QTextCursor end(report->document());
    end.movePosition(QTextCursor::End);
    end.insertText(QStringLiteral("\n") + QString(text).remove(QLatin1Char('\r')));
    report->setTextCursor(end);
    report->ensureCursorVisible();
    return true;
}

QPlainTextEdit* DesignChecks::openReport() const
{
    const host::Window* editor =
        desk_.engine->host().find(desk_.english() ? sheets::reportEditor.en : sheets::reportEditor.es);
    WindowFrame* frame = editor == nullptr || !editor->shown() ? nullptr : keeper_.frameOf(*editor);
    if (frame == nullptr || frame->view() == nullptr)
        return nullptr;
    return qobject_cast<QPlainTextEdit*>(frame->view()->canvas().widgetOf(editor->named(sheets::textOfReport)));
}

} // namespace velmor::desktop
