// SPDX-License-Identifier: MIT
#include "desktop/fire/window_game.h"

#include <algorithm>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>

#include "designs/circuits.h"
#include "desktop/canvas/canvas.h"
#include "desktop/check/check_window.h"
#include "desktop/drawing/texts.h"
#include "desktop/fire/stale_picture.h"
#include "desktop/windows/offer_line.h"
#include "desktop/windows/search_line.h"
#include "desktop/windows/sheet_view.h"
#include "frame/mdi_form1_controls.h"
#include "program/catalogue.h"

namespace velmor::test {

namespace window_game_detail {

constexpr std::size_t mostWindows = 14;
constexpr int handOver = 400;    ///< milliseconds
constexpr int pictureEvery = 16; ///< events or answers: comparing pictures takes as long as many of them
constexpr int roundsToRest = 5;
constexpr int longestPatience = 300; ///< rounds until a dialog that no answer ends is given up

constexpr Qt::Key pressedKeys[] = {
    Qt::Key_Return,   Qt::Key_Return, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Backspace,
    Qt::Key_Delete,   Qt::Key_F1,     Qt::Key_F2,     Qt::Key_F3,  Qt::Key_F6,      Qt::Key_Up,     Qt::Key_Down,
    Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Home,   Qt::Key_End, Qt::Key_Space,   Qt::Key_Menu,
};
constexpr const char* numbers[] = {"0",  "1",       "3.3", "12", "100", "0.4", "75",
                                   "-5", "1000000", "abc", "9",  "24",  "1.5", ""};
const char* const pasted[] = {"12.5", "1e3", "una línea\notra", "0,7", "áéñ"};

std::string named(const QWidget& widget)
{
    return std::string(widget.metaObject()->className()) + " " + widget.objectName().toStdString();
}

} // namespace window_game_detail

WindowGame::WindowGame(std::uint64_t seed, bool rude, Watchdog& watchdog)
    : chance_(seed), rude_(rude), placesWindows_(seed % 4 != 3), watchdog_(watchdog), life_(std::make_unique<QObject>())
{
    answerSoon();
}

WindowGame::~WindowGame()
{
    watchdog_.begin("the end of the game");
    keeping_.reset();
    on_.reset();
    watchdog_.end();
}

void WindowGame::begin()
{
    keeping_.reset();
    on_.reset();
    on_ = std::make_unique<Bench>(program::catalogue());
    on_->screen.desk().placesWindows = placesWindows_;
    keeping_ = std::make_unique<desktop::WorkKeeping>(
        on_->engine, on_->screen,
        keeping::Place{.folder = desktop::held(home_.filePath("kept")), .now = [this] { return time_; }});
    program::start(on_->engine);
    keeping_->look();
    on_->main().resize(1366, 740);
    Bench::settle();
    on_->main().activateWindow();
    Bench::settle();
}

void WindowGame::play(int events)
{
    for (int number = 0; number < events; ++number) {
        if (!on_ || on_->engine.ended() || on_->screen.keeper().mainWindow() == nullptr) {
            ends_ += on_ ? 1 : 0;
            watchdog_.begin("a start");
            begin();
            watchdog_.end();
        }
        step(number);
    }
}

void WindowGame::step(int number)
{
    const Move& move = chosen();
    const std::string event = std::string(move.name) + ", event " + std::to_string(number);
    watchdog_.begin(event);
    ++time_;
    (this->*move.deed)();
    Bench::settle();
    handOver();
    watchdog_.end();
    check(event);
    if (number % window_game_detail::pictureEvery == window_game_detail::pictureEvery - 1)
        checkPictures(event);
}

// What every window manager does and the screen without a screen does not: when a window goes that had the keyboard, a
// menu for one, another gets it.
void WindowGame::handOver()
{
    const QWidget* active = QApplication::activeWindow();
    if (!on_ || on_->engine.ended() || (active != nullptr && active->isVisible()) ||
        QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr)
        return;
    on_->main().activateWindow();
    Bench::settle();
}

// The table is a function's, so that the deeds may be private.
const WindowGame::Move& WindowGame::chosen()
{
    // clang-format off
    static constexpr Move moves[] = {
        {24, false, "a number typed",     &WindowGame::typeNumber},
        {4,  false, "a text typed",       &WindowGame::typeText},
        {20, false, "a key",              &WindowGame::pressKey},
        {5,  false, "a key of the table", &WindowGame::pressTableKey},
        {14, false, "a click",            &WindowGame::click},
        {3,  false, "a right click",      &WindowGame::rightClick},
        {2,  false, "a double click",     &WindowGame::doubleClick},
        {3,  false, "a drag",             &WindowGame::drag},
        {5,  false, "a hover",            &WindowGame::hover},
        {2,  false, "a paste",            &WindowGame::paste},
        {4,  false, "a menu",             &WindowGame::chooseMenu},
        {3,  false, "arranging",          &WindowGame::arrange},
        {1,  false, "a language",         &WindowGame::switchLanguage},
        {6,  false, "a frame's state",    &WindowGame::changeState},
        {3,  false, "a frame moved",      &WindowGame::moveFrame},
        {3,  false, "a frame sized",      &WindowGame::sizeFrame},
        {4,  true,  "icons shaken",       &WindowGame::shakeIcons},
        {2,  false, "a closing",          &WindowGame::closeSomething},
        {4,  false, "an activation",      &WindowGame::activateSomething},
        {1,  false, "the window sized",   &WindowGame::sizeMain},
        {2,  false, "a wheel",            &WindowGame::wheel},
        {1,  false, "the quiet line",     &WindowGame::pressOffer},
        {6,  false, "a check",            &WindowGame::playCheck},
    };
    // clang-format on
    int all = 0;
    for (const Move& move : moves)
        all += move.rude && !rude_ ? 0 : move.weight;
    int left = chance_.between(0, all - 1);
    for (const Move& move : moves)
        if (left -= move.rude && !rude_ ? 0 : move.weight; left < 0)
            return move;
    return moves[0];
}

// Said once, however long it lasts. What the program itself still waits for is no fault: a window to which the keyboard goes by
// itself gets a quarter of a second.
void WindowGame::check(const std::string& event)
{
    if (on_->engine.ended() || !on_->engine.idle())
        return;
    std::string fault = faultNow();
    if (!fault.empty()) {
        QTest::qWait(window_game_detail::handOver);
        handOver();
        fault = on_->engine.ended() || !on_->engine.idle() ? std::string() : faultNow();
    }
    if (std::exchange(standing_, fault) != fault && !fault.empty())
        faults_.push_back(event + ": " + fault);
}

void WindowGame::checkPictures(const std::string& event)
{
    if (!on_ || on_->engine.ended() || !on_->engine.idle())
        return;
    Bench::settle();
    comparePictures(event);
}

// What stays stale is said once: all of it is painted anew.
void WindowGame::comparePictures(const std::string& event)
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || window->windowHandle() == nullptr || !window->windowHandle()->isExposed())
            continue;
        if (const std::string fault = stalePictureOf(*window); !fault.empty()) {
            faults_.push_back(event + ": " + fault);
            window->update();
            for (QWidget* part : window->findChildren<QWidget*>())
                part->update();
        }
    }
}

std::string WindowGame::faultNow()
{
    const std::string fault = frameFault();
    return fault.empty() ? keyboardFault() : fault;
}

// The keyboard is where the window that has it keeps its focus, unless a menu, a box, a search line or the quiet line has it.
std::string WindowGame::keyboardFault()
{
    const QWidget* now = QApplication::focusWidget();
    const QWidget* offer = on_->main().findChild<QWidget*>(QStringLiteral("offer"));
    if (QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr ||
        on_->main().isMinimized() || (offer != nullptr && now != nullptr && offer->isAncestorOf(now)) ||
        (now != nullptr && now->inherits("QMenuBar")) || openCheck() != nullptr)
        return {};
    desktop::SheetView* view = on_->screen.keeper().activeView();
    if (view == nullptr)
        return QApplication::activeWindow() == nullptr ? "no window is active" : "";
    if (view->searchLine() != nullptr && view->searchLine()->hasKeyboard())
        return {};
    const host::Window* current = on_->engine.current();
    if (current != nullptr && current != view->model() && current->role() == host::Role::tool &&
        !current->spec().reading && current->shown())
        return std::string(current->name()) + " is in front, and the keyboard with " +
               std::string(view->model()->name());
    const QWidget* wanted = view->canvas().focusTarget();
    if (now == wanted)
        return {};
    return "the keyboard is in " + (now == nullptr ? "nothing" : window_game_detail::named(*now)) + " instead of " +
           window_game_detail::named(*wanted) + " of " + std::string(view->model()->name());
}

// No open frame leaves the area, and the frame in front is that of the engine's active child.
std::string WindowGame::frameFault()
{
    const QMdiArea& area = on_->main().area();
    for (const QMdiSubWindow* frame : area.subWindowList())
        if (frame->isVisible() && !frame->isMinimized() && !frame->isMaximized() &&
            !area.viewport()->rect().intersects(frame->geometry()))
            return "a frame lies outside the area";
    const host::Window* child = on_->engine.activeChild();
    if (child == nullptr || !child->shown() || on_->main().isMinimized())
        return {};
    const auto* frame = on_->screen.keeper().frameOf(*child);
    const QMdiSubWindow* front = area.currentSubWindow();
    if (front != nullptr && front == dynamic_cast<const QMdiSubWindow*>(frame))
        return {};
    const QWidget* active = QApplication::activeWindow();
    const host::Window* current = on_->engine.current();
    return "in front is " + (front == nullptr ? "nothing" : front->objectName().toStdString()) +
           ", the active child is " + std::string(child->name()) + ", the current window " +
           std::string(current == nullptr ? "none" : current->name()) + ", active " +
           (active == nullptr ? "nothing" : active->objectName().toStdString());
}

/// The window of a check that is in front; null when none is.
desktop::CheckWindow* WindowGame::openCheck()
{
    auto* check = dynamic_cast<desktop::CheckWindow*>(QApplication::activeWindow());
    return check != nullptr && check->isVisible() ? check : nullptr;
}

// Opened by its key, played with a little, closed; the sheet may go on meanwhile, or go.
void WindowGame::playCheck()
{
    desktop::CheckWindow* check = openCheck();
    if (check == nullptr) {
        finishCurrentSource();
        return Bench::keys(QStringLiteral("Ctrl+T"));
    }
    ++checks_;
    constexpr Qt::Key keys[] = {Qt::Key_1,   Qt::Key_2,  Qt::Key_3,  Qt::Key_Down,
                                Qt::Key_Tab, Qt::Key_F5, Qt::Key_F6, Qt::Key_Escape};
    constexpr const char* buttons[] = {"checkOpenAll", "checkReport", "checkCopy", "checkAgain"};
    if (chance_.in(70))
        return Bench::key(chance_.one(keys));
    auto* button = check->findChild<QPushButton*>(QLatin1String(chance_.one(buttons)));
    if (button->isVisible() && button->isEnabled())
        button->click();
}

// The shortest design there is, so that a game has something to check.
void WindowGame::finishCurrentSource()
{
    static constexpr std::pair<const char*, const char*> chain[] = {{"Text1", "2"},   {"Text2", "4"},   {"Text3", ""},
                                                                    {"Text9", ""},    {"Text4", "2.2"}, {"Text5", ""},
                                                                    {"Text6", "3.9"}, {"Text7", "4.7"}};
    host::Engine& engine = on_->engine;
    host::Window* sheet = engine.activeChild();
    if (sheet != nullptr && designs::circuitTableOf(sheet->name()) != nullptr &&
        designs::circuitTableOf(sheet->name())->passed(*sheet))
        return;
    if (!engine.idle() || engine.windows().size() >= window_game_detail::mostWindows)
        return;
    engine.userRun([&] {
        sheet = engine.host().NewInstance("Form12");
        if (sheet != nullptr)
            engine.host().Show(*sheet);
    });
    for (const auto& [name, text] : chain) {
        if (sheet == nullptr || !engine.isLoaded(sheet) || engine.ended())
            return;
        const host::Handle field = sheet->named(name);
        engine.userFocus(*sheet, field);
        if (*text != '\0')
            engine.userText(*sheet, field, text);
        if (engine.isLoaded(sheet))
            engine.userKey(*sheet, 13);
    }
}

void WindowGame::typeNumber()
{
    Bench::type(QString::fromLatin1(chance_.one(window_game_detail::numbers)));
    if (chance_.in(70))
        Bench::key(Qt::Key_Return);
}

void WindowGame::typeText()
{
    Bench::type(QStringLiteral("Etapa %1").arg(chance_.between(0, 99)));
}

void WindowGame::pressKey()
{
    Bench::key(chance_.one(window_game_detail::pressedKeys), chance_.in(8) ? Qt::ControlModifier : Qt::NoModifier);
}

void WindowGame::pressTableKey()
{
    host::Window* window = chance_.in(30) ? &on_->engine.mainWindow() : on_->engine.activeChild();
    if (window == nullptr || window->spec().shortcuts.empty())
        return;
    const auto& rows = window->spec().shortcuts;
    Bench::keys(desktop::shown(rows[chance_.below(rows.size())].keys));
}

host::Window* WindowGame::someWindow()
{
    std::vector<host::Window*> open;
    for (host::Window* window : on_->engine.windows()) {
        desktop::WindowFrame* frame = on_->screen.keeper().frameOf(*window);
        if (frame != nullptr && frame->view() != nullptr && frame->view()->isVisible() &&
            frame->view()->window()->windowHandle() != nullptr)
            open.push_back(window);
    }
    host::Window* active = on_->engine.activeChild();
    if (chance_.in(60) && std::find(open.begin(), open.end(), active) != open.end())
        return active;
    return open.empty() ? nullptr : chance_.one(open);
}

host::Handle WindowGame::someControl(host::Window& window)
{
    std::vector<host::Handle> seen;
    const desktop::Canvas& canvas = on_->viewOf(window).canvas();
    for (host::Handle control = 0; control < window.controlCount(); ++control)
        if (canvas.shows(control) && canvas.rect().intersects(canvas.boxInPixels(control)))
            seen.push_back(control);
    return seen.empty() ? host::noControl : chance_.one(seen);
}

void WindowGame::press(host::Window& window, Qt::MouseButton button)
{
    // A window manager gives the keyboard to what is pressed; not all do.
    if (!rude_)
        on_->viewOf(window).window()->activateWindow();
    if (const host::Handle control = someControl(window); control != host::noControl)
        QTest::mouseClick(on_->viewOf(window).window()->windowHandle(), button, Qt::NoModifier,
                          on_->middleOf(window, control));
}

void WindowGame::click()
{
    if (host::Window* window = someWindow())
        press(*window, Qt::LeftButton);
}

void WindowGame::rightClick()
{
    if (host::Window* window = someWindow())
        press(*window, Qt::RightButton);
}

void WindowGame::doubleClick()
{
    host::Window* window = someWindow();
    const host::Handle control = window == nullptr ? host::noControl : someControl(*window);
    if (control != host::noControl)
        QTest::mouseDClick(on_->viewOf(*window).window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                           on_->middleOf(*window, control));
}

void WindowGame::drag()
{
    host::Window* window = someWindow();
    if (window == nullptr)
        return;
    const host::Handle from = someControl(*window);
    const host::Handle to = someControl(*window);
    if (from == host::noControl)
        return;
    QWindow* handle = on_->viewOf(*window).window()->windowHandle();
    const QPoint start = on_->middleOf(*window, from);
    const QPoint end = on_->middleOf(*window, to);
    const QPointer<QWindow> alive(handle);
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, start);
    for (const QPoint at : {(start * 2 + end) / 3, (start + end * 2) / 3, end})
        if (alive)
            QTest::mouseMove(handle, at);
    if (alive)
        QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, end);
}

void WindowGame::hover()
{
    host::Window* window = someWindow();
    const host::Handle control = window == nullptr ? host::noControl : someControl(*window);
    if (control != host::noControl)
        QTest::mouseMove(on_->viewOf(*window).window()->windowHandle(), on_->middleOf(*window, control));
}

void WindowGame::paste()
{
    QGuiApplication::clipboard()->setText(QString::fromUtf8(chance_.one(window_game_detail::pasted)));
    Bench::key(Qt::Key_V, Qt::ControlModifier);
}

void WindowGame::chooseMenu()
{
    std::vector<QAction*> items;
    for (const QMenuBar* bar : on_->main().findChildren<QMenuBar*>())
        for (const QMenu* menu : bar->findChildren<QMenu*>())
            for (QAction* action : menu->actions())
                if (action->menu() == nullptr && !action->isSeparator() && action->isEnabled() && action->isVisible())
                    items.push_back(action);
    if (!items.empty() && on_->engine.windows().size() < window_game_detail::mostWindows)
        chance_.one(items)->trigger();
    else
        closeSomething();
}

void WindowGame::arrange()
{
    host::Window& main = on_->engine.mainWindow();
    constexpr host::Handle ways[] = {main_window::mnuCas, main_window::mnuHoriz, main_window::mnuVert};
    on_->engine.userMenu(main, chance_.one(ways));
}

void WindowGame::switchLanguage()
{
    host::Window& main = on_->engine.mainWindow();
    for (const char* name : {"mnuIng", "mnuEsp"})
        if (const host::Handle item = main.named(name); item != host::noControl && chance_.in(50))
            on_->engine.userMenu(main, item);
}

std::vector<desktop::ChildFrame*> WindowGame::frames()
{
    std::vector<desktop::ChildFrame*> found;
    for (QMdiSubWindow* child : on_->main().findChildren<QMdiSubWindow*>())
        if (auto* frame = dynamic_cast<desktop::ChildFrame*>(child); frame != nullptr && frame->model() != nullptr)
            found.push_back(frame);
    return found;
}

desktop::ChildFrame* WindowGame::someFrame()
{
    std::vector<desktop::ChildFrame*> open = frames();
    std::erase_if(open, [](const desktop::ChildFrame* frame) { return !frame->isVisible(); });
    return open.empty() ? nullptr : chance_.one(open);
}

void WindowGame::changeState()
{
    desktop::ChildFrame* frame = someFrame();
    if (frame == nullptr)
        return;
    switch (chance_.below(4)) {
    case 0:
        frame->showMinimized();
        break;
    case 1:
        frame->showMaximized();
        break;
    default:
        frame->showNormal();
    }
}

void WindowGame::moveFrame()
{
    desktop::ChildFrame* frame = someFrame();
    if (frame != nullptr && (rude_ || (!frame->isMaximized() && !frame->isMinimized())))
        frame->move(chance_.between(rude_ ? -900 : 0, rude_ ? 1800 : 700),
                    chance_.between(rude_ ? -600 : 0, rude_ ? 1200 : 400));
}

void WindowGame::sizeFrame()
{
    desktop::ChildFrame* frame = someFrame();
    if (frame != nullptr && (rude_ || (!frame->isMaximized() && !frame->isMinimized())))
        frame->resize(chance_.between(rude_ ? 1 : 240, rude_ ? 2500 : 1200),
                      chance_.between(rude_ ? 1 : 120, rude_ ? 1800 : 700));
}

void WindowGame::shakeIcons()
{
    for (desktop::ChildFrame* frame : frames())
        if (frame->isMinimized())
            frame->setGeometry(chance_.between(-200, 1500), chance_.between(-200, 900), chance_.between(1, 600),
                               chance_.between(1, 400));
}

void WindowGame::closeSomething()
{
    if (host::Window* window = someWindow())
        on_->screen.keeper().frameOf(*window)->widget().close();
}

void WindowGame::activateSomething()
{
    host::Window* window = someWindow();
    if (window == nullptr)
        return;
    QWidget& widget = on_->screen.keeper().frameOf(*window)->widget();
    widget.window()->activateWindow();
    Bench::settle();
    // What was turned to may have closed others; and under an open menu nobody reaches what is behind it.
    if (!on_->engine.isLoaded(window) || QApplication::activePopupWidget() != nullptr)
        return;
    if (auto* frame = dynamic_cast<desktop::ChildFrame*>(on_->screen.keeper().frameOf(*window)))
        on_->main().area().setActiveSubWindow(frame);
}

void WindowGame::pressOffer()
{
    // By its name: the toolkit would take any widget for one.
    const auto* line = dynamic_cast<desktop::OfferLine*>(on_->main().findChild<QWidget*>(QStringLiteral("offer")));
    std::vector<QPushButton*> buttons;
    if (line != nullptr && on_->engine.windows().size() < window_game_detail::mostWindows)
        for (QPushButton* button : line->findChildren<QPushButton*>())
            if (button->isVisible())
                buttons.push_back(button);
    if (!buttons.empty())
        chance_.one(buttons)->click();
}

void WindowGame::sizeMain()
{
    desktop::MainWindow& main = on_->main();
    if (rude_ && chance_.in(30)) {
        main.showMinimized();
        Bench::settle();
        main.showNormal();
    }
    main.resize(chance_.between(640, rude_ ? 2600 : 1366), chance_.between(420, rude_ ? 1600 : 740));
}

void WindowGame::wheel()
{
    QWidget* under = chance_.in(50) ? on_->main().area().viewport() : QApplication::focusWidget();
    if (under == nullptr)
        return;
    const QPointF at(under->rect().center());
    QWheelEvent event(at, under->mapToGlobal(at), QPoint(),
                      QPoint(chance_.between(-1, 1) * 120, chance_.between(-3, 3) * 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(under, &event);
}

// Each answer may bring another question, which waits inside it: the next round is asked for first.
void WindowGame::answerSoon()
{
    QTimer::singleShot(1, life_.get(), [this] {
        answerSoon();
        answer();
    });
}

void WindowGame::answer()
{
    if (QWidget* menu = QApplication::activePopupWidget()) {
        constexpr Qt::Key keys[] = {Qt::Key_Down, Qt::Key_Right, Qt::Key_Escape, Qt::Key_Escape, Qt::Key_Return};
        QTest::keyClick(menu, chance_.one(keys));
        return;
    }
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible())
        return;
    // A box is looked at when what was queued as it came is done.
    const bool looks = (answers_ + 1) % window_game_detail::pictureEvery == 0;
    if (looks && roundsOpen_++ < window_game_detail::roundsToRest)
        return;
    roundsOpen_ = 0;
    ++answers_;
    if (looks)
        comparePictures("answer " + std::to_string(answers_));
    patience_ = std::exchange(lastDialog_, dialog) == dialog ? patience_ + 1 : 0;
    if (patience_ > window_game_detail::longestPatience)
        dialog->reject();
    else
        answerDialog(*dialog);
}

void WindowGame::answerDialog(QDialog& dialog)
{
    if (auto* files = qobject_cast<QFileDialog*>(&dialog)) {
        auto* name = files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        if (name == nullptr || chance_.in(40)) {
            files->reject();
        } else {
            // Always a file of the game's own folder.
            name->setText(on_->folder.filePath(QStringLiteral("caso%1").arg(chance_.between(0, 3))));
            QMetaObject::invokeMethod(files, "accept");
        }
        return;
    }
    const auto buttons = dialog.findChildren<QPushButton*>();
    switch (chance_.below(4)) {
    case 0:
        QTest::keyClick(&dialog, Qt::Key_Escape);
        break;
    case 1:
        if (auto* edit = dialog.findChild<QLineEdit*>();
            edit != nullptr && dialog.objectName() == QStringLiteral("inputBox"))
            edit->setText(QString::fromLatin1(chance_.one(window_game_detail::numbers)));
        break;
    case 2:
        if (!buttons.isEmpty() && dialog.objectName() == QStringLiteral("messageBox"))
            chance_.one(buttons)->click();
        break;
    default:
        QTest::keyClick(&dialog, Qt::Key_Return);
    }
}

} // namespace velmor::test
