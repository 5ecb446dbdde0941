// SPDX-License-Identifier: MIT
#include "desktop/desktop_screen.h"

#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QPointer>
#include <QProcess>

#include "desktop/canvas/document_store.h"
#include "desktop/check/check_window.h"
#include "desktop/check/design_checks.h"
#include "desktop/drawing/texts.h"
#include "desktop/file_places.h"
#include "desktop/printing.h"
#include "desktop/windows/questions.h"
#include "desktop/windows/veil.h"
#include "desktop/windows/window_keeper.h"

namespace velmor::desktop {

namespace desktop_screen_detail {

/// Where a person looks for what they have written; the program's folder where there is no such place. That one may lie on a stick
/// that is locked.
QString documentsOf(const FolderPlaces& places, const std::string& programFolder)
{
    for (const QString& folder : {places.documents, shown(programFolder)})
        if (QFileInfo(folder).isWritable())
            return folder;
    return QDir::homePath();
}

} // namespace desktop_screen_detail

using namespace desktop_screen_detail;

DesktopScreen::DesktopScreen(const FolderPlaces& places, const QString& markFile) : places_(places), instance_(markFile)
{}

DesktopScreen::~DesktopScreen() = default;

void DesktopScreen::attach(host::Engine& engine)
{
    desk_.engine = &engine;
    desk_.inks = &inksFor(QGuiApplication::palette());
    desk_.placesWindows = !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
    keeper_ = std::make_unique<WindowKeeper>(desk_);
    desk_.canCheck = DesignChecks::isFor;
    desk_.checkOf = [this](const host::Window& sheet) -> QWidget* {
        return checks_ ? checks_->windowOf(sheet) : nullptr;
    };
    desk_.check = [this](host::Window& sheet) { check(sheet); };
}

void DesktopScreen::detach()
{
    checks_.reset();
    keeper_.reset();
}

void DesktopScreen::check(host::Window& sheet)
{
    if (!checks_)
        checks_ = std::make_unique<DesignChecks>(desk_, *keeper_,
                                                 [this](const host::FileDialog& dialog) { return fileDialog(dialog); });
    checks_->open(sheet);
}

// A question shows what led to it, waits, and hands the keyboard back to the window that asked.
template <class Ask>
auto DesktopScreen::ask(Ask question)
{
    const bool wasBusy = busy_;
    ++desk_.questions;
    busyPointer(false);
    texts_.speak(desk_.english());
    QPointer<QWidget> parent(keeper_->dialogParent());
    const Veils calm(keeper_->windowsInSight(), keeper_->spokenOf(), *desk_.inks);
    auto answer = question(parent.data());
    keeper_->dialogClosed(parent);
    busyPointer(wasBusy);
    return answer;
}

host::Answer DesktopScreen::messageBox(const host::MessageBox& box)
{
    return ask([&](QWidget* parent) { return askMessage(parent, box, keeper_->stage()); });
}

/// The sheet or editor that a dialog is about.
host::Window* DesktopScreen::asking() const
{
    host::Window* asked = desk_.engine->askedAbout();
    return asked != nullptr ? asked : desk_.engine->activeChild();
}

std::optional<std::string> DesktopScreen::fileDialog(const host::FileDialog& dialog)
{
    const FileProposal proposal =
        proposalFor(asking(), dialog, desk_.engine->settings(), documentsOf(places_, programFolder()));
    host::FileDialog placed = dialog;
    placed.folder = held(proposal.folder);
    auto chosen = ask([&](QWidget* parent) { return askFile(parent, placed, proposal.folder, proposal.name); });
    if (chosen)
        noteFolder(desk_.engine->settings(), proposal.sort, shown(*chosen));
    return chosen;
}

std::optional<std::string> DesktopScreen::inputBox(const host::InputBox& box)
{
    return ask([&](QWidget* parent) {
        const QPoint at(desk_.pixels(box.left), desk_.pixels(box.top));
        return askInput(parent, box, at, keeper_->stage());
    });
}

std::optional<std::size_t> DesktopScreen::choose(const host::Choice& choice)
{
    return ask([&](QWidget* parent) { return askChoice(parent, choice, keeper_->stage()); });
}

std::optional<std::int32_t> DesktopScreen::colourDialog(std::int32_t initial)
{
    return ask([&](QWidget* parent) { return askColour(parent, initial); });
}

std::optional<host::Font> DesktopScreen::fontDialog(const host::Font& initial)
{
    return ask([&](QWidget* parent) { return askFont(parent, initial); });
}

std::string DesktopScreen::now()
{
    return held(QLocale::system().toString(QDateTime::currentDateTime(), QLocale::ShortFormat));
}

std::string DesktopScreen::date()
{
    return held(QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
}

std::string DesktopScreen::time()
{
    return held(QLocale::system().toString(QTime::currentTime(), QLocale::ShortFormat));
}

std::string DesktopScreen::clipboardText()
{
    return held(QGuiApplication::clipboard()->text());
}

int DesktopScreen::printedWidth(const host::Font& font, std::string_view text)
{
    return printedTwips(font, text);
}

void DesktopScreen::prepareFolder()
{
    if (!folder_.isEmpty())
        return;
    folder_ = programFolderOf(places_);
    if (folder_ != QDir::cleanPath(places_.executableFolder))
        fillProgramFolder(folder_, places_.guides);
}

void DesktopScreen::settleIn()
{
    prepareFolder();
    texts_.speak(desk_.english());
}

std::string DesktopScreen::programFolder()
{
    prepareFolder();
    return held(folder_);
}

std::string DesktopScreen::executableName()
{
    // As it was called: a portable copy runs under a loader, which the platform would name.
    return held(QFileInfo(QCoreApplication::arguments().value(0)).completeBaseName());
}

void DesktopScreen::beep()
{
    if (!desk_.muted)
        QApplication::beep();
}

void DesktopScreen::setClipboardText(std::string_view text)
{
    QGuiApplication::clipboard()->setText(shown(text));
}

void DesktopScreen::print(const host::PrintJob& job)
{
    const FileProposal proposal =
        proposalForPrint(asking(), desk_.engine->settings(), documentsOf(places_, programFolder()));
    const QString written = ask([&](QWidget* parent) { return askAndPrint(parent, job, keeper_->stage(), proposal); });
    if (!written.isEmpty())
        noteFolder(desk_.engine->settings(), proposal.sort, written);
}

bool DesktopScreen::run(const std::string& program, const std::string& argument)
{
    if (program.empty())
        return QProcess::startDetached(shown(argument), QStringList());
    return QProcess::startDetached(shown(program), {shown(argument)});
}

void DesktopScreen::popupMenu(host::Window& owner, host::Handle menu)
{
    keeper_->popup(owner, menu);
}

void DesktopScreen::busyPointer(bool busy)
{
    if (std::exchange(busy_, busy) == busy)
        return;
    if (busy)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

void DesktopScreen::programFailed(std::string_view text)
{
    ask([&](QWidget* parent) { return askMessage(parent, {std::string(text), "Velmor", 16}, keeper_->stage()); });
}

std::unique_ptr<host::TextStore> DesktopScreen::makeTextStore(host::Window&, host::Handle)
{
    return std::make_unique<DocumentStore>();
}

void DesktopScreen::windowCreated(host::Window& window)
{
    keeper_->created(window);
}

void DesktopScreen::windowRaised(host::Window& window)
{
    keeper_->raised(window);
}

void DesktopScreen::windowGone(host::Window& window)
{
    if (checks_)
        checks_->gone(window);
    if (keeper_)
        keeper_->gone(window);
}

void DesktopScreen::bringUpToDate()
{
    if (!desk_.closing)
        texts_.follow(desk_.english());
    if (keeper_)
        keeper_->bringUpToDate();
    if (checks_ && !desk_.closing)
        checks_->follow();
}

void DesktopScreen::programEnded()
{
    desk_.closing = true;
    QCoreApplication::exit(0);
}

} // namespace velmor::desktop
