// SPDX-License-Identifier: MIT
// The frame of a window beside the main one, drawn by the program: a title, one button, which closes, and edges by which its size
// is changed. Where the desktop alone says where windows stand it lies inside the main window. Knows nothing of what it holds.
#pragma once

#include <QWidget>

#include "desktop/canvas/desk.h"

namespace velmor::desktop {

class TitleLine;

class ToolFrame : public QWidget {
protected:
    /// Logical pixels around the window, by which its size is changed.
    static constexpr int frame = 3;

    enum class Stands { beside, inside };

    ToolFrame(Desk& desk, QWidget* parent, Stands where = Stands::beside);
    void hold(QWidget& inside);

    Desk& desk() const { return desk_; }
    TitleLine& title() const { return *title_; }
    bool isInside() const { return !isWindow(); }
    /// Where it may stand, on the screen.
    QRect room() const;
    /// Where it stands.
    QRect onScreen() const;
    void moveOnScreen(QPoint corner);
    void speakInFrame();
    void recolorFrame();

    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

    /// One that lies inside has the keyboard when the main window has it and gives it to this one.
    void setInHand(bool inHand);

private:
    Qt::Edges edgesAt(QPoint place) const;
    void drawEdges(QPoint way);
    void look();
    bool isActive() const { return isActiveWindow() && (isWindow() || inHand_); }

    Desk& desk_;
    TitleLine* title_;
    bool inHand_ = false;
    Qt::Edges held_; ///< of one that lies inside, by the pointer
    QPoint pressed_;
};

} // namespace velmor::desktop
