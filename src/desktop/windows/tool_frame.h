// SPDX-License-Identifier: MIT
// The frame of a window beside the main one, drawn by the program: a title, one button, which closes, and edges by which its size
// is changed. Knows nothing of what it holds.
#pragma once

#include <QWidget>

#include "desktop/canvas/desk.h"

namespace velmor::desktop {

class TitleLine;

class ToolFrame : public QWidget {
protected:
    /// Logical pixels around the window, by which its size is changed.
    static constexpr int frame = 3;

    ToolFrame(Desk& desk, QWidget* mainWindow);
    void hold(QWidget& inside);

    Desk& desk() const { return desk_; }
    TitleLine& title() const { return *title_; }
    /// Of the screen on which the main window stands.
    QRect room() const;
    void speakInFrame();
    void recolorFrame();

    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    Qt::Edges edgesAt(QPoint place) const;

    Desk& desk_;
    TitleLine* title_;
};

} // namespace velmor::desktop
