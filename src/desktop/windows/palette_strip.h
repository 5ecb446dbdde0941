// SPDX-License-Identifier: MIT
// The palette as a strip inside the main window's lower edge. It can be dragged out by its grip, to float over the sheets, and
// back; its one button closes it. It is no window of its own: so it does the same wherever a program cannot place windows.
#pragma once

#include <functional>

#include <QPoint>
#include <QWidget>

#include "desktop/canvas/desk.h"
#include "desktop/windows/window_frame.h"

class QAbstractButton;

namespace velmor::desktop {

class PaletteStrip final : public QWidget, public WindowFrame {
public:
    /// `panel` is what the main window holds: the strip lies in it and never leaves it.
    PaletteStrip(Desk& desk, host::Window& model, QWidget* panel);

    host::Window* model() const override;
    QWidget& widget() override { return *this; }
    SheetView* view() override { return view_; }
    void followWindow() override;
    void followControls() override;
    void bringToFront() override;
    void relabel() override;
    void recolor() override;
    void farewell() override;

    /// It is to be seen, and lies in its strip.
    bool rests() const { return !floats_ && isShownInModel(); }
    bool floats() const { return floats_; }
    int restHeight() const;
    void restIn(const QRect& strip);
    /// Out of the strip, with its left top corner there (in the panel), or as near to it as the panel allows.
    void floatAt(QPoint corner);
    /// Back into the strip.
    void rest();
    /// Moves aside when it floats over `field` (in screen coordinates).
    void giveWayTo(const QRect& field);
    /// It has gone in or out of the strip, or its height has changed.
    std::function<void()> moved;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    bool isShownInModel() const;
    void speak();
    int gripWidth() const;
    QSize contentSize() const;
    QSize floatingSize() const;
    void dragTo(QPoint pointer);

    Desk& desk_;
    SheetView* view_;
    QAbstractButton* close_;
    QPoint pressed_; ///< where the pointer went down, in the strip
    bool floats_ = false;
    bool held_ = false;
    bool dragging_ = false;
    bool inHand_ = false;    ///< it has the keyboard
    bool overStrip_ = false; ///< let go now, it would go back into the strip
};

} // namespace velmor::desktop
