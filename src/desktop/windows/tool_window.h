// SPDX-License-Identifier: MIT
// A tool or a help page as a window of its own beside the main window, in a frame of the program's: a title, one button, which
// closes. It keeps the proportions of its table, stands beside the field that it was asked for at, and never over it.
#pragma once

#include <QWidget>

#include "desktop/canvas/desk.h"
#include "desktop/windows/window_frame.h"

namespace velmor::desktop {

class TitleLine;

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

    /// Is only read: it is shown without taking the keyboard from the sheet.
    bool isQuiet() const;
    /// Moves aside when it lies on `field` (in screen coordinates).
    void giveWayTo(const QRect& field);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void followSize();
    void beginAtField();
    void place();
    void moveTo(QPoint place);
    bool isMovedByHand() const;
    Qt::Edges edgesAt(QPoint place) const;
    QRect room() const;

    Desk& desk_;
    SheetView* view_;
    TitleLine* title_;
    host::Place told_;
    QPoint wished_;
    bool placed_ = false;
};

} // namespace velmor::desktop
