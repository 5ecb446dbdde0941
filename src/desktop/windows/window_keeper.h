// SPDX-License-Identifier: MIT
// Keeps a frame for each window that is shown and makes the frames follow the model: what is shown, in front, active and
// focused. The model leads; what Qt does on its own (activation by the window manager, focus) is put as a question.
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include <QAccessible>
#include <QMdiSubWindow>
#include <QObject>
#include <QPointer>

#include "desktop/canvas/desk.h"
#include "desktop/windows/main_window.h"
#include "desktop/windows/quiet_box.h"
#include "desktop/windows/window_frame.h"

class QMdiSubWindow;

namespace velmor::desktop {

class ChildFrame;
class PaletteStrip;

class WindowKeeper final : public QObject, private QAccessible::ActivationObserver {
public:
    explicit WindowKeeper(Desk& desk);
    ~WindowKeeper() override;

    void created(host::Window& window);
    void raised(host::Window& window);
    void gone(host::Window& window);
    void bringUpToDate();
    void popup(host::Window& owner, host::Handle menu);
    /// All frames go; nothing reaches the engine any more.
    void shutDown();

    WindowFrame* frameOf(const host::Window& window) const;
    MainWindow* mainWindow() const { return main_.data(); }
    /// The view that has or would have the keyboard; null without one.
    SheetView* activeView() const;
    /// The field that a question speaks of, which stays clear while all else is calm; empty in a text.
    QRect spokenOf() const;
    /// How and where a box of the moment appears.
    Stage stage() const;
    /// All windows of the program that are seen on the screen.
    std::vector<QWidget*> windowsInSight() const;
    /// Where a dialog belongs.
    QWidget* dialogParent() const;
    /// After a dialog the window that asked is active again.
    void dialogClosed(QWidget* parent);
    /// The next window that is open beside the main one gets the keyboard.
    void nextPane();
    /// The keyboard goes to the tool that is in front, else to the sheets.
    void giveKeyboardBack();
    /// A window goes: where the keyboard turns up in no other one soon, it is asked for.
    void seeToKeyboard();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void accessibilityActiveChanged(bool active) override;
    WindowFrame* make(host::Window& window);
    void addChild(ChildFrame& child);
    void holdFrames(const QMdiSubWindow& next, bool hold);
    void followAll();
    void followLanguage();
    void followDesktop();
    void followGone();
    void followRaised();
    static void closeMenus();
    QWidget* owner() const;
    void await(QWidget* top);
    void followActive();
    void followFocus();
    void followFocusBehind();
    void makeRoom();
    QRegion taken() const;
    QWidget* inFront() const;
    void putInFront(QWidget& top);
    void takeInHand(QWidget* inside);
    void touchedInside(const QWidget& canvas);
    void pressedInside(QPoint place);
    void postFocus();
    void focusMoved(QWidget* now);
    void childActivated(QMdiSubWindow* child);
    void windowActivated();
    void touched(QWidget* view);
    bool handedBack(QWidget* active);
    void turnTo(host::Window& window);
    void turnToPane(host::Window& pane);
    void turnFromIcon();
    host::Window* childInSight() const;
    void restOnIcon();
    bool typeBehind(const QKeyEvent& event);

    Desk& desk_;
    QPointer<MainWindow> main_;
    std::unordered_map<const host::Window*, WindowFrame*> frames_;
    std::vector<host::Window*> raised_;
    QPointer<PaletteStrip> strip_;
    bool stripInHand_ = false; ///< the strip has the keyboard, which the person gave it by key
    QPointer<QWidget> inside_; ///< the tool inside the main window that has its keyboard; null for the sheets
    QPointer<QMdiSubWindow> formerlyActive_; ///< while another child becomes active
    QPointer<QWidget> byHand_;               ///< the view in which a key or a press is being answered
    QPointer<QWidget> awaited_;  ///< asked to become active; other activations on the way to it do not count
    QPointer<QWidget> wanted_;   ///< the person asked for it by key
    QPointer<QWidget> answered_; ///< a dialog of its own has closed, and it waits for the keyboard
    QPointer<QWidget> quiet_;    ///< has just been shown to be read, and shall not have the keyboard for that
    bool returning_ = false;     ///< the main window is active next, though nobody has turned to it
    std::int16_t language_ = 0;
    bool following_ = false;
    bool again_ = false;
    bool focusPosted_ = false;
};

} // namespace velmor::desktop
