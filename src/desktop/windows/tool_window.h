// SPDX-License-Identifier: MIT
// A palette, a tool or a help page as a window of its own beside the main window. It keeps the proportions of its table,
// stays inside the screen and out of the way of the field in hand.
#pragma once

#include <QWidget>

#include "desktop/canvas/desk.h"
#include "desktop/windows/window_frame.h"

namespace velmor::desktop {

class ToolWindow final : public QWidget, public WindowFrame {
public:
    ToolWindow(Desk& desk, host::Window& model, QWidget* mainWindow);

    host::Window* model() const override;
    QWidget& widget() override { return *this; }
    SheetView* view() override { return view_; }
    void followWindow() override;
    void followControls() override;
    void bringToFront() override;
    void relabel() override;
    void recolor() override;
    void farewell() override;

    bool isPalette() const;
    /// Is shown without taking the keyboard from the sheet: the palette, and what is only read.
    bool isQuiet() const;
    /// True for a palette that stands where the program has put it.
    bool rests() const { return resting_ && isShownInModel(); }
    int restHeight() const;
    void restIn(const QRect& strip);
    /// Moves aside when it lies on `field` (in screen coordinates).
    void giveWayTo(const QRect& field);

protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    void followSize();
    void beginAtField();
    void beginIn(host::Handle field);
    void placeFirst();
    QRect room() const;

    Desk& desk_;
    SheetView* view_;
    host::Place told_;
    bool isShownInModel() const;
    void moveTo(QPoint place);

    QPoint wished_;
    bool resting_ = false;
    bool placed_ = false;
};

} // namespace velmor::desktop
