// SPDX-License-Identifier: MIT
// Ctrl+Tab among the open children, in order of use: the one used before comes first, further ones while Ctrl is held. What is
// only passed on the way counts as used no more than it did.
#pragma once

#include <vector>

#include <QObject>

#include "desktop/canvas/desk.h"

class QKeyEvent;
class QWidget;

namespace velmor::desktop {

class ChildRounds final : public QObject {
public:
    ChildRounds(Desk& desk, QWidget& mainWindow);

    /// Takes note of which child is in use now.
    void follow();
    /// The open child that was used last, icons left out; null without one.
    host::Window* lastUsed() const;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    std::vector<host::Window*> open() const;
    std::vector<host::Window*> openByUse() const;
    void step(bool back);
    void end();

    Desk& desk_;
    QWidget& main_;
    std::vector<const host::Window*> used_; ///< the latest first; compared only
    std::vector<host::Window*> round_;      ///< while Ctrl is held
    std::size_t at_ = 0;
};

} // namespace velmor::desktop
