// SPDX-License-Identifier: MIT
// A tool or a help page as a window of its own beside the main window, in a frame of the program's: a title, one button, which
// closes. It keeps the proportions of its table, stands beside the field that it was asked for at, and never over it.
#pragma once

#include "desktop/windows/tool_frame.h"
#include "desktop/windows/window_frame.h"

namespace velmor::desktop {

class ToolWindow final : public ToolFrame, public WindowFrame {
public:
    /// Beside the main window, or inside what is given of it.
    ToolWindow(Desk& desk, host::Window& model, QWidget* mainWindow);
    ToolWindow(Desk& desk, host::Window& model, QWidget& inside);

    host::Window* model() const override;
    QWidget& widget() override { return *this; }
    SheetView* view() override { return view_; }
    void followWindow() override;
    void followControls() override;
    void bringToFront() override;
    void relabel() override;
    void recolor() override;
    void farewell() override;

    /// Is shown without taking the keyboard from the sheet: it is only read.
    bool isQuiet() const;
    using ToolFrame::isInside;
    using ToolFrame::onScreen;
    using ToolFrame::setInHand;
    /// Moves aside when it lies on `field` (in screen coordinates).
    void giveWayTo(const QRect& field, const QRect& readOn);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    ToolWindow(Desk& desk, host::Window& model, QWidget* parent, Stands where);
    void followSize();
    void beginAtField();
    void beginIn(host::Handle field);
    void place();
    void moveTo(QPoint place);
    bool isMovedByHand() const;

    SheetView* view_;
    host::Place told_;
    QPoint wished_;
    bool placed_ = false;
};

} // namespace velmor::desktop
