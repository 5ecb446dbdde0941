// SPDX-License-Identifier: MIT
// A sheet or an editor as a child window of the main window. Its place is the model's; what the person does with frame
// and buttons is told to the engine, and undone where the engine refuses.
#pragma once

#include <functional>

#include <QMdiSubWindow>

#include "desktop/canvas/desk.h"
#include "desktop/windows/window_frame.h"

namespace velmor::desktop {

class ChildFrame final : public QMdiSubWindow, public WindowFrame {
public:
    ChildFrame(Desk& desk, host::Window& model);

    host::Window* model() const override;
    QWidget& widget() override { return *this; }
    SheetView* view() override { return view_; }
    void followWindow() override;
    void followControls() override;
    void bringToFront() override;
    void relabel() override;
    void recolor() override;
    void farewell() override;

    /// The frame's own least size while it is open; an icon has the size of all icons.
    QSize minimumSizeHint() const override;
    /// What the buttons in the title do, by name and letter.
    void showFrameMenu();
    /// Called when the person has made it an icon, and the engine knows.
    std::function<void()> becameIcon;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void nameFrameMenu();
    void followPlace();
    void followState();
    void tellPlace();
    void tellState();
    int shownState() const;
    QRect wantedBox() const;

    Desk& desk_;
    SheetView* view_;
    QRect told_; ///< where the frame and the model last agreed that it stands
    bool following_ = false;
    bool statePosted_ = false; ///< the person has changed the state, and the engine is yet to hear of it
};

} // namespace velmor::desktop
