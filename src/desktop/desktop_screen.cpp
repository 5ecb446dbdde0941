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
#include "desktop/drawing/texts.h"
#include "desktop/printing.h"
#include "desktop/windows/questions.h"
#include "desktop/windows/veil.h"
#include "desktop/windows/window_keeper.h"

namespace velmor::desktop {

DesktopScreen::DesktopScreen(const FolderPlaces& places, const QString& markFile) : places_(places), instance_(markFile)
{}

DesktopScreen::~DesktopScreen() = default;

void DesktopScreen::attach(host::Engine& engine)
{
    desk_.engine = &engine;
    desk_.inks = &inksFor(QGuiApplication::palette());
    keeper_ = std::make_unique<WindowKeeper>(desk_);
}

void DesktopScreen::detach()
{
    keeper_.reset();
}

// A question shows what led to it, waits, and hands the keyboard back to the window that asked.
template <class Ask>
auto DesktopScreen::ask(Ask question)
{
    const bool wasBusy = busy_;
    busyPointer(false);
    texts_.speak(desk_.english());
    QPointer<QWidget> parent(keeper_->dialogParent());
    const Veils calm(keeper_->windowsInSight(), keeper_->stage().inHand, *desk_.inks);
    auto answer = question(parent.data());
    keeper_->dialogClosed(parent);
    busyPointer(wasBusy);
    return answer;
}

host::Answer DesktopScreen::messageBox(const host::MessageBox& box)
{
    return ask([&](QWidget* parent) { return askMessage(parent, box, keeper_->stage()); });
}

std::optional<std::string> DesktopScreen::fileDialog(const host::FileDialog& dialog)
{
    return ask([&](QWidget* parent) { return askFile(parent, dialog, shown(programFolder())); });
}

std::optional<std::string> DesktopScreen::inputBox(const host::InputBox& box)
{
    return ask([&](QWidget* parent) {
        const QPoint at(desk_.pixels(box.left), desk_.pixels(box.top));
        return askInput(parent, box, at, keeper_->stage());
    });
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
    return held(QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName());
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
    ask([&](QWidget* parent) {
        askAndPrint(parent, job, keeper_->stage());
        return true;
    });
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
    if (keeper_)
        keeper_->gone(window);
}

void DesktopScreen::bringUpToDate()
{
    if (!desk_.closing)
        texts_.follow(desk_.english());
    if (keeper_)
        keeper_->bringUpToDate();
}

void DesktopScreen::programEnded()
{
    desk_.closing = true;
    QCoreApplication::exit(0);
}

} // namespace velmor::desktop
