// SPDX-License-Identifier: MIT
// The title of a window that draws its own frame (a box or a tool): a line with the name and one button, which closes. The
// window manager moves the window when the line is dragged.
#pragma once

#include <functional>

#include <QPoint>
#include <QString>
#include <QWidget>

#include "desktop/drawing/palette_of_inks.h"

namespace velmor::desktop {

class CloseButton;

class TitleLine final : public QWidget {
public:
    TitleLine(const Inks& inks, QWidget* parent);

    void setTitle(const QString& title);
    void setInks(const Inks& inks);
    void speak(bool english);
    /// Drawn in the colours of the window in hand.
    void setActive(bool active);
    /// What the whole title and the button need.
    int wholeWidth() const;
    QSize sizeHint() const override;

    std::function<void()> closed;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    const Inks* inks_;
    CloseButton* close_;
    QString title_;
    QPoint pressed_;
    bool active_ = true;
    bool held_ = false;
};

} // namespace velmor::desktop
