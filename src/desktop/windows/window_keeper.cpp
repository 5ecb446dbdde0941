// SPDX-License-Identifier: MIT
#include "desktop/windows/window_keeper.h"

#include <algorithm>

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QTimer>
#include <QWindow>

#include "desktop/windows/child_frame.h"
#include "desktop/windows/main_window.h"
#include "desktop/windows/menus.h"
#include "desktop/windows/palette_strip.h"
#include "desktop/windows/sheet_view.h"
#include "desktop/windows/tool_window.h"

namespace velmor::desktop {

using host::noControl;
using host::Role;

namespace window_keeper_detail {

constexpr int minimised = 1;  ///< state of a child
constexpr int handOver = 250; ///< milliseconds in which the keyboard has come to another window, if it comes by itself

} // namespace window_keeper_detail

WindowKeeper::WindowKeeper(Desk& desk) : desk_(desk)
{
    desk_.nextPane = [this] { nextPane(); };
    desk_.taken = [this] { return taken(); };
    desk_.inHand = [this] {
        const SheetView* view = activeView();
        return view == nullptr ? QRect() : view->spokenOf();
    };
    desk_.touched = [this](QWidget* view) { touched(view); };
    desk_.turnTo = [this](host::Window& window) { turnTo(window); };
    desk_.typeBehind = [this](const QKeyEvent& event) { return typeBehind(event); };
    desk_.showFrameMenu = [this](const host::Window& window) {
        if (auto* child = dynamic_cast<ChildFrame*>(frameOf(window)))
            child->showFrameMenu();
    };
    desk_.hovered = [this](const host::Window& window, host::Handle control) {
        if (main_)
            main_->hovered(window, control);
    };
    QAccessible::installActivationObserver(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { focusMoved(now); });
}

WindowKeeper::~WindowKeeper()
{
    QAccessible::removeActivationObserver(this);
    shutDown();
}

// Somebody has begun to read the screen: the painted texts get their places in the tree.
void WindowKeeper::accessibilityActiveChanged(bool active)
{
    if (!active || desk_.closing)
        return;
    for (const auto& [window, frame] : frames_)
        frame->recolor();
}

void WindowKeeper::created(host::Window& window)
{
    if (window.role() == Role::mainWindow)
        make(window);
}

WindowFrame* WindowKeeper::make(host::Window& window)
{
    WindowFrame* frame = nullptr;
    if (window.role() == Role::mainWindow) {
        main_ = new MainWindow(desk_, window);
        main_->foresee();
        connect(&main_->area(), &QMdiArea::subWindowActivated, this,
                [this](QMdiSubWindow* child) { childActivated(child); });
        frame = main_;
        language_ = desk_.engine->values().LanguageIsEnglish;
    } else if (window.isChild() && main_) {
        auto* child = new ChildFrame(desk_, window);
        addChild(*child);
        frame = child;
    } else if (window.role() == Role::palette && main_) {
        strip_ = new PaletteStrip(desk_, window, &main_->panel());
        main_->setStrip(strip_);
        frame = strip_;
    } else {
        const bool inside = main_ && !desk_.placesWindows && !window.spec().modal;
        frame = inside ? new ToolWindow(desk_, window, main_->panel()) : new ToolWindow(desk_, window, main_);
    }
    frame->widget().installEventFilter(this);
    frames_[&window] = frame;
    return frame;
}

void WindowKeeper::addChild(ChildFrame& child)
{
    // The area's own answer comes between the two: it would have the frames of all children painted anew.
    child.becameIcon = [this] { turnFromIcon(); };
    connect(&child, &QMdiSubWindow::aboutToActivate, this, [this, &child] { holdFrames(child, true); });
    // A new child clears the menu bar of the buttons that it would have there, and would have the bar and all that is seen of
    // the other children painted anew, though nothing of it changed.
    for (QWidget* still : {static_cast<QWidget*>(main_->menuBar()), main_->area().viewport()})
        still->setAttribute(Qt::WA_UpdatesDisabled);
    main_->area().addSubWindow(&child);
    for (QWidget* still : {static_cast<QWidget*>(main_->menuBar()), main_->area().viewport()})
        still->setAttribute(Qt::WA_UpdatesDisabled, false);
    child.setUpdatesEnabled(true); // it takes after its parent
    connect(&child, &QMdiSubWindow::aboutToActivate, this, [this, &child] { holdFrames(child, false); });
}

// When a child becomes active, of the others only the frame changes of the one that was active; the area raises that one on its
// way down, and would have all of it painted anew.
void WindowKeeper::holdFrames(const QMdiSubWindow& next, bool hold)
{
    if (!main_)
        return;
    const QMdiArea& area = main_->area();
    if (hold)
        formerlyActive_ = area.currentSubWindow();
    for (QMdiSubWindow* child : area.subWindowList())
        child->setAttribute(Qt::WA_UpdatesDisabled, hold && child != &next);
    if (hold || !formerlyActive_ || formerlyActive_ == &next)
        return;
    QRegion frame(formerlyActive_->rect());
    if (const QWidget* inside = formerlyActive_->widget())
        frame -= inside->geometry();
    formerlyActive_->update(frame);
}

WindowFrame* WindowKeeper::frameOf(const host::Window& window) const
{
    const auto found = frames_.find(&window);
    return found == frames_.end() ? nullptr : found->second;
}

void WindowKeeper::raised(host::Window& window)
{
    raised_.erase(std::remove(raised_.begin(), raised_.end(), &window), raised_.end());
    raised_.push_back(&window);
}

void WindowKeeper::gone(host::Window& window)
{
    raised_.erase(std::remove(raised_.begin(), raised_.end(), &window), raised_.end());
    WindowFrame* frame = frameOf(window);
    if (frame == nullptr)
        return;
    frames_.erase(&window);
    const QScopedValueRollback following(following_, true);
    if (window.role() == Role::tool)
        closeMenus();
    const bool hadKeyboard =
        window.role() == Role::tool && (inFront() == &frame->widget() || answered_ == &frame->widget());
    frame->farewell();
    if (hadKeyboard)
        giveKeyboardBack();
    if (window.role() == Role::tool)
        seeToKeyboard();
}

// Under an open menu the toolkit follows no window that becomes active.
void WindowKeeper::closeMenus()
{
    for (QWidget* menu = nullptr; menu != QApplication::activePopupWidget();) {
        menu = QApplication::activePopupWidget();
        if (menu != nullptr)
            menu->close();
    }
}

// A press on a window asks for the keyboard, and the toolkit believes it to be there before the window manager has obeyed. When
// the window goes in between, the keyboard has been elsewhere all the time and nobody tells: the field would be without a caret.
void WindowKeeper::seeToKeyboard()
{
    if (QGuiApplication::applicationState() != Qt::ApplicationActive)
        return;
    QTimer::singleShot(window_keeper_detail::handOver, this, [this] {
        if (QApplication::activeWindow() == nullptr)
            giveKeyboardBack();
    });
}

void WindowKeeper::giveKeyboardBack()
{
    if (desk_.closing)
        return;
    QWidget* next = owner();
    if (next != nullptr && next->isVisible())
        putInFront(*next);
}

/// To whom the keyboard belongs: the tool that is in front for the engine, else the main window.
QWidget* WindowKeeper::owner() const
{
    const host::Window* current = desk_.engine->current();
    WindowFrame* frame =
        current != nullptr && current->role() == Role::tool && !current->spec().reading ? frameOf(*current) : nullptr;
    return frame == nullptr ? static_cast<QWidget*>(main_) : &frame->widget();
}

void WindowKeeper::shutDown()
{
    desk_.closing = true;
    for (const auto& [window, frame] : frames_) {
        frame->widget().removeEventFilter(this);
        frame->farewell();
    }
    frames_.clear();
    raised_.clear();
    delete main_;
}

// Showing and moving widgets delivers events at once, which may run slots and come back here: they wait for the next round.
void WindowKeeper::bringUpToDate()
{
    if (desk_.closing || desk_.engine == nullptr)
        return;
    if (following_) {
        again_ = true;
        return;
    }
    do {
        again_ = false;
        const QScopedValueRollback following(following_, true);
        followAll();
    } while (again_ && !desk_.closing);
    postFocus();
}

void WindowKeeper::followAll()
{
    followLanguage();
    followGone();
    bool children = false;
    for (host::Window* window : desk_.engine->windows()) {
        WindowFrame* frame = frameOf(*window);
        const bool made = frame == nullptr && window->shown();
        if (made)
            frame = make(*window);
        if (frame == nullptr)
            continue;
        frame->followControls();
        if (window->takeWindowChanged() || made || window->isChild())
            frame->followWindow();
        children = children || (window->isChild() && window->shown() && window->windowState() != 1);
    }
    if (main_) {
        main_->setHasChildren(children);
        main_->menus().followActive();
        const host::Window* child = desk_.engine->activeChild();
        WindowFrame* frame = child == nullptr || !child->shown() ? nullptr : frameOf(*child);
        main_->followChild(child, frame == nullptr ? nullptr : frame->view()->menus());
    }
    followRaised();
    followActive();
    followFocus();
    followFocusBehind();
    makeRoom();
}

void WindowKeeper::followLanguage()
{
    if (std::exchange(language_, desk_.engine->values().LanguageIsEnglish) == language_)
        return;
    for (const auto& [window, frame] : frames_)
        frame->relabel();
}

// A window unloaded by a slot that still runs is out of sight at once.
void WindowKeeper::followGone()
{
    for (const auto& [window, frame] : frames_)
        if (!desk_.engine->isLoaded(window) && frame->widget().isVisible())
            frame->widget().hide();
}

void WindowKeeper::followRaised()
{
    const std::vector<host::Window*> raised = std::exchange(raised_, {});
    for (host::Window* window : raised) {
        WindowFrame* frame = desk_.engine->isLoaded(window) ? frameOf(*window) : nullptr;
        if (frame == nullptr)
            continue;
        frame->bringToFront();
        if (window->isChild()) {
            stripInHand_ = false;
            takeInHand(nullptr);
        }
        if (window->spec().reading)
            quiet_ = &frame->widget();
        if (window->role() == Role::palette || window->spec().reading)
            continue;
        if (window->isChild() && main_)
            main_->bringToFront();
        QWidget* top = window->isChild() ? static_cast<QWidget*>(main_) : &frame->widget();
        if (top != nullptr && !top->isWindow())
            putInFront(*top);
        await(top != nullptr && !top->isActiveWindow() ? top : nullptr);
    }
}

// A window manager may refuse what was asked of it: then the window that has the keyboard is the one that was turned to.
void WindowKeeper::await(QWidget* top)
{
    awaited_ = top;
    if (top == nullptr)
        return;
    QTimer::singleShot(window_keeper_detail::handOver, this, [this, asked = awaited_] {
        if (asked == nullptr || awaited_ != asked)
            return;
        awaited_ = nullptr;
        windowActivated();
    });
}

// Qt chooses an active child of its own when one goes; the model's is the one that counts. A sheet that is asked about stands in
// front of it meanwhile.
void WindowKeeper::followActive()
{
    const host::Window* asked = desk_.engine->askedAbout();
    const host::Window* child = asked != nullptr ? asked : desk_.engine->activeChild();
    if (!main_ || child == nullptr || !child->shown())
        return;
    auto* frame = dynamic_cast<ChildFrame*>(frameOf(*child));
    if (frame != nullptr && main_->area().currentSubWindow() != frame)
        main_->area().setActiveSubWindow(frame);
}

SheetView* WindowKeeper::activeView() const
{
    QWidget* active = inFront();
    for (const auto& [window, frame] : frames_)
        if (frame->view() != nullptr && &frame->widget() == active)
            return frame->view();
    if (!main_ || active != main_)
        return nullptr;
    if (stripInHand_ && strip_ && strip_->isVisible() && strip_->model() != nullptr)
        return strip_->view();
    const host::Window* child = childInSight();
    WindowFrame* frame = child == nullptr ? nullptr : frameOf(*child);
    return frame == nullptr ? nullptr : frame->view();
}

/// The active child, unless it is an icon: what is typed or asked there would be seen by nobody.
host::Window* WindowKeeper::childInSight() const
{
    host::Window* child = desk_.engine->activeChild();
    return child == nullptr || child->windowState() == window_keeper_detail::minimised ? nullptr : child;
}

// The sheet that was in hand before is in hand again, as after the end of the one that has become an icon.
void WindowKeeper::turnFromIcon()
{
    if (!main_ || desk_.closing || !desk_.idle() || childInSight() != nullptr)
        return;
    if (host::Window* next = main_->lastChildInSight())
        desk_.engine->userActivate(*next);
}

// Where only icons are left the frame has the keyboard, and hands on what it knows nothing of: the main window's keys.
void WindowKeeper::restOnIcon()
{
    const host::Window* child = desk_.engine->activeChild();
    WindowFrame* frame = child == nullptr || childInSight() != nullptr ? nullptr : frameOf(*child);
    if (!main_ || inFront() != main_ || stripInHand_ || frame == nullptr)
        return;
    if (!frame->widget().hasFocus())
        frame->widget().setFocus(Qt::OtherFocusReason);
}

void WindowKeeper::followFocus()
{
    SheetView* view = activeView();
    const QWidget* now = QApplication::focusWidget();
    // A menu that is walked by keyboard has the focus on loan and gives it back itself. A sheet that gets it comes to the front,
    // where another one may be asked about.
    if (desk_.engine->askedAbout() != nullptr || (now != nullptr && now->inherits("QMenuBar")))
        return;
    // A field that gets the focus would have its own window asked for, after the one that was.
    if (awaited_ && awaited_->isVisible() && (view == nullptr || view->window() != awaited_))
        return;
    if (view != nullptr)
        view->followFocus();
    else
        restOnIcon();
}

// While another window has the keyboard, the main one remembers the field in hand of its active sheet: a field that is disabled
// meanwhile would leave it none, and Qt would give the keyboard to the first sheet that takes it.
void WindowKeeper::followFocusBehind()
{
    const host::Window* child = childInSight();
    WindowFrame* frame = child == nullptr ? nullptr : frameOf(*child);
    if (!main_ || main_->isActiveWindow() || frame == nullptr || frame->view() == nullptr)
        return;
    if (main_->focusWidget() != frame->view()->canvas().focusTarget())
        frame->view()->followFocus();
}

void WindowKeeper::postFocus()
{
    if (std::exchange(focusPosted_, true))
        return;
    QTimer::singleShot(0, this, [this] {
        focusPosted_ = false;
        if (desk_.closing || following_)
            return;
        const QScopedValueRollback following(following_, true);
        followFocus();
        makeRoom();
    });
}

// Never at once: whoever gives the focus is not done yet.
void WindowKeeper::focusMoved(QWidget* now)
{
    if (desk_.closing || following_ || now == nullptr)
        return;
    SheetView* view = activeView();
    if (view == nullptr || now == view->canvas().focusTarget())
        return;
    const bool own = now == view->parentWidget() || now == view || view->isAncestorOf(now);
    // The area hands the keyboard to one of its sheets at changes of its own, whoever has it.
    if (own || (main_ && main_->area().isAncestorOf(now)))
        postFocus();
}

QRegion WindowKeeper::taken() const
{
    QRegion region;
    for (const auto& [window, frame] : frames_)
        if (const auto* tool = dynamic_cast<ToolWindow*>(frame); tool != nullptr && tool->isVisible())
            region += tool->onScreen();
    if (const SheetView* view = activeView())
        region += view->carried() + view->inHand();
    return region;
}

void WindowKeeper::makeRoom()
{
    SheetView* view = activeView();
    const QRect inHand = view == nullptr ? QRect() : view->inHand();
    const host::Window* sheet = desk_.engine->activeChild();
    WindowFrame* frameOfSheet = sheet == nullptr ? nullptr : frameOf(*sheet);
    const SheetView* behind = frameOfSheet == nullptr ? nullptr : frameOfSheet->view();
    const QRect readOn = behind == nullptr ? QRect() : behind->inHand();
    for (const auto& [window, frame] : frames_)
        if (auto* tool = dynamic_cast<ToolWindow*>(frame); tool != nullptr && tool->view() != view && !inHand.isEmpty())
            tool->giveWayTo(inHand, readOn);
    if (strip_ && strip_->view() != view && !inHand.isEmpty())
        strip_->giveWayTo(inHand);
}

void WindowKeeper::childActivated(QMdiSubWindow* child)
{
    auto* frame = dynamic_cast<ChildFrame*>(child);
    if (desk_.closing || following_ || frame == nullptr || frame->model() == nullptr || !main_ ||
        !main_->isActiveWindow())
        return;
    takeInHand(nullptr);
    if (desk_.engine->current() != frame->model())
        desk_.engine->userActivate(*frame->model());
}

bool WindowKeeper::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && object == main_.data())
        followDesktop();
    if (event->type() == QEvent::Show && object == main_.data() && main_->windowHandle() != nullptr)
        main_->windowHandle()->installEventFilter(this);
    if (event->type() == QEvent::MouseButtonPress && main_ && object == main_->windowHandle())
        pressedInside(static_cast<QMouseEvent*>(event)->position().toPoint());
    if (event->type() == QEvent::WindowActivate && !desk_.closing && object->isWidgetType() &&
        static_cast<QWidget*>(object)->isWindow())
        QTimer::singleShot(0, this, [this] { windowActivated(); });
    return QObject::eventFilter(object, event);
}

// The desktop has turned light or dark.
void WindowKeeper::followDesktop()
{
    const QPalette desktop = QApplication::palette();
    const Inks& inks = inksFor(desktop);
    if (desk_.closing || desk_.inks == &inks)
        return;
    desk_.inks = &inks;
    for (const auto& [window, frame] : frames_)
        frame->recolor();
}

// The person, or the window manager for them, has turned to another window.
void WindowKeeper::windowActivated()
{
    QWidget* active = inFront();
    if (active != nullptr)
        answered_ = nullptr;
    if (desk_.closing || active == nullptr || !desk_.idle() || handedBack(active))
        return;
    if (awaited_ && awaited_ != active && awaited_->isVisible())
        return;
    awaited_ = nullptr;
    if (wanted_ != active) {
        wanted_ = nullptr;
        stripInHand_ = false;
    }
    host::Window* turnedTo = nullptr;
    for (const auto& [window, frame] : frames_)
        if (&frame->widget() == active)
            turnedTo = frame->model();
    if (turnedTo != nullptr && turnedTo->role() == Role::mainWindow)
        turnedTo = stripInHand_ && strip_                   ? strip_->model()
                   : desk_.engine->activeChild() != nullptr ? desk_.engine->activeChild()
                                                            : turnedTo;
    if (turnedTo != nullptr && desk_.engine->current() != turnedTo)
        desk_.engine->userActivate(*turnedTo);
    postFocus();
}

// Window managers give the keyboard to what is shown to be read; a student writes on in the sheet.
bool WindowKeeper::handedBack(QWidget* active)
{
    // Coming back to the sheet in this way is no turning to it: what is read beside it stays.
    if (active == main_.data() && std::exchange(returning_, false)) {
        postFocus();
        return true;
    }
    if (quiet_ && active == quiet_ && wanted_ != active && main_) {
        QWidget* next = owner();
        returning_ = next == main_;
        putInFront(*next);
        return true;
    }
    return false;
}

// A press or a key in the sheet while something is read beside it.
void WindowKeeper::turnTo(host::Window& window)
{
    const host::Window* current = desk_.engine->current();
    if (window.isChild() && current != nullptr && current != &window && current->spec().reading && desk_.idle())
        desk_.engine->userActivate(window);
}

bool WindowKeeper::typeBehind(const QKeyEvent& event)
{
    host::Window* child = childInSight();
    if (!main_ || child == nullptr || !desk_.idle() || frameOf(*child) == nullptr)
        return false;
    wanted_ = nullptr;
    putInFront(*main_);
    desk_.engine->userActivate(*child);
    WindowFrame* frame = desk_.engine->isLoaded(child) ? frameOf(*child) : nullptr;
    if (frame == nullptr || desk_.closing)
        return true;
    QKeyEvent typed(event.type(), event.key(), event.modifiers(), event.text(), event.isAutoRepeat());
    QCoreApplication::sendEvent(frame->view()->canvas().focusTarget(), &typed);
    return true;
}

// A press or a key: activations that were awaited no longer matter, and the page that the mouse has brought over the sheets
// goes, unless the press was on a button that talks.
void WindowKeeper::touched(QWidget* view)
{
    awaited_ = nullptr;
    quiet_ = nullptr;
    returning_ = false;
    byHand_ = view;
    QTimer::singleShot(0, this, [this] { byHand_ = nullptr; });
    auto* canvas = dynamic_cast<Canvas*>(view);
    if (canvas != nullptr && !desk_.placesWindows)
        touchedInside(*canvas);
    if (stripInHand_ && strip_ && canvas != &strip_->view()->canvas() && desk_.idle()) {
        stripInHand_ = false;
        if (host::Window* child = desk_.engine->activeChild())
            desk_.engine->userActivate(*child);
    }
    if (!main_ || canvas == nullptr || canvas->model() == nullptr || canvas->model()->role() == Role::palette)
        return;
    const bool onPanel = canvas->model()->role() == Role::mainWindow;
    if (!onPanel || canvas->controlAt(canvas->mapFromGlobal(QCursor::pos())) == noControl)
        main_->hush();
}

QWidget* WindowKeeper::dialogParent() const
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    const host::Window* current = desk_.engine->current();
    if (current != nullptr && !current->isChild() && !current->spec().reading)
        if (WindowFrame* frame = frameOf(*current); frame != nullptr && frame->widget().isVisible())
            return &frame->widget();
    return main_;
}

// A box that answers a key or a press in a sheet speaks of the field in hand, or of the one that is being left.
Stage WindowKeeper::stage() const
{
    Stage stage;
    stage.inks = desk_.inks;
    stage.english = desk_.english();
    const QWidget* asks = dialogParent();
    if (asks != nullptr)
        stage.room = asks == main_ ? asks->geometry() : asks->screen()->availableGeometry();
    if (const SheetView* view = activeView()) {
        stage.inHand = view->spokenOf();
        stage.answers = view->answers();
        stage.beside = byHand_ == &view->canvas();
    }
    const host::Window* child = childInSight();
    if (WindowFrame* behind = child == nullptr ? nullptr : frameOf(*child);
        behind != nullptr && behind->view() != activeView() && child->role() == Role::sheet)
        stage.behind = behind->view()->spokenOf();
    return stage;
}

QRect WindowKeeper::spokenOf() const
{
    const SheetView* view = activeView();
    const bool writes = view != nullptr && view->model() != nullptr && view->model()->role() == Role::editor;
    return view == nullptr || writes ? QRect() : view->spokenOf();
}

std::vector<QWidget*> WindowKeeper::windowsInSight() const
{
    std::vector<QWidget*> seen;
    for (const auto& [window, frame] : frames_)
        if (frame->widget().isWindow() && frame->widget().isVisible())
            seen.push_back(&frame->widget());
    return seen;
}

void WindowKeeper::dialogClosed(QWidget* parent)
{
    if (parent != nullptr && parent->isVisible() && !desk_.closing) {
        answered_ = parent;
        putInFront(*parent);
        postFocus();
    }
}

void WindowKeeper::popup(host::Window& owner, host::Handle menu)
{
    QPoint at = QCursor::pos();
    QTimer::singleShot(0, this, [this, &owner, menu, at] {
        if (desk_.closing || !main_ || main_->model() != &owner)
            return;
        if (QMenu* shown = main_->menus().menuOf(menu))
            shown->popup(at);
    });
}

void WindowKeeper::nextPane()
{
    std::vector<host::Window*> panes;
    if (main_)
        panes.push_back(desk_.engine->activeChild() != nullptr ? desk_.engine->activeChild() : main_->model());
    for (host::Window* window : desk_.engine->windows())
        if (window->role() == Role::tool || window->role() == Role::palette)
            if (WindowFrame* frame = frameOf(*window); frame != nullptr && frame->widget().isVisible())
                panes.push_back(window);
    // What was opened to be read is nearer than the palette, which is always there.
    std::stable_partition(panes.begin(), panes.end(), [](const auto* pane) { return pane->role() != Role::palette; });
    if (panes.empty())
        return;
    QWidget* active = inFront();
    // The check of the sheet in hand comes right behind it.
    QWidget* check = desk_.checkOf ? desk_.checkOf(*panes.front()) : nullptr;
    const bool onSheet = active == main_ && !stripInHand_;
    if (check != nullptr && check->isVisible() && onSheet) {
        wanted_ = check;
        check->raise();
        check->activateWindow();
        return;
    }
    std::size_t at = 0;
    for (std::size_t i = 1; i < panes.size(); ++i) {
        const bool isStrip = panes[i]->role() == Role::palette;
        if (isStrip ? stripInHand_ && active == main_ : &frameOf(*panes[i])->widget() == active)
            at = i;
    }
    turnToPane(*panes[(at + 1) % panes.size()]);
}

// Sheets and the palette share the main window: where it is active already, nothing but the engine has to hear of it.
void WindowKeeper::turnToPane(host::Window& pane)
{
    const bool inside = pane.isChild() || pane.role() == Role::palette || pane.role() == Role::mainWindow;
    stripInHand_ = pane.role() == Role::palette;
    if (main_ && pane.isChild())
        main_->hush(); // the page of a design would lie over what has the keyboard
    QWidget* top = inside ? static_cast<QWidget*>(main_) : &frameOf(pane)->widget();
    wanted_ = top;
    if (inside)
        takeInHand(nullptr);
    if (inside && top->isActiveWindow()) {
        if (desk_.engine->current() != &pane)
            desk_.engine->userActivate(pane);
        postFocus();
        return;
    }
    top->raise();
    putInFront(*top);
}

} // namespace velmor::desktop
