// SPDX-License-Identifier: MIT
// The title of a window that draws its own frame (box, tool, palette): a line with the name and one button, which closes.
// Where a window may be moved is the window manager's to say, or the owner's: it only tells of the drag.
#pragma once

#include <functional>

#include <QPoint>
#include <QString>
#include <QWidget>

#include "desktop/drawing/palette_of_inks.h"

class QAbstractButton;

namespace velmor::desktop {

class TitleLine final : public QWidget {
public:
    TitleLine(const Inks& inks, QWidget* parent);

    void setTitle(const QString& title);
    void setInks(const Inks& inks);
    /// Name of the button, for those who hear it and as its tip.
    void speak(bool english);
    /// Drawn in the colours of the window in hand.
    void setActive(bool active);
    /// What the whole title and the button need.
    int wholeWidth() const;
    QSize sizeHint() const override;
    QAbstractButton& closeButton() const { return *close_; }

    std::function<void()> closed;
    std::function<void(QPoint)> dragged; ///< where the pointer is on the screen; without it the window manager moves the window
    std::function<void()> dropped;
    std::function<void()> doubled; ///< a double click

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    const Inks* inks_;
    QAbstractButton* close_;
    QString title_;
    QPoint pressed_;
    bool active_ = true;
    bool held_ = false;
    bool dragging_ = false;
};

} // namespace velmor::desktop
