// SPDX-License-Identifier: MIT
// The sixth tool of a sheet: the check of its design. It is the screen's own, no control of the window, and no widget either: the
// canvas paints it with the others. Whoever reads the screen by its tree finds a button.
#pragma once

#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QString>

class QPainter;
class QPushButton;
class QRegion;

namespace velmor::desktop {

class Canvas;

class CheckTile {
public:
    /// Not there on a window that has no design to check.
    explicit CheckTile(Canvas& canvas);
    ~CheckTile();

    bool isThere() const { return there_; }
    /// Hit by the mouse: nothing of the sheet lies over it there.
    bool isAt(QPoint point) const;
    QRect box() const;
    /// Of what it stands for: awake once the design has passed.
    void follow();
    /// Place, name and colours of its button for the reader of the screen.
    void label();
    void paint(QPainter& painter, const QRegion& clip) const;
    /// Looks as on every other sheet like this one: no pointer is on it.
    bool rests() const { return !hovered_ && !pressed_; }
    void hover(QPoint point);
    void leave();
    /// Checks the design, or says why not.
    void press();
    void release();
    void tellAbout(QPoint at) const;
    QString tip() const;

private:
    void set(bool& flag, bool value);

    Canvas& canvas_;
    QPointer<QPushButton> button_;
    bool there_;
    bool awake_ = false;
    bool hovered_ = false;
    bool pressed_ = false;
};

} // namespace velmor::desktop
