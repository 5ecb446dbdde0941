// SPDX-License-Identifier: MIT
// Keeps the work of a program with windows: the timer that the keeper asks for, the folder, and the quiet line of the main
// window with what it offers.
#pragma once

#include <QObject>
#include <QTimer>

#include "keeping/keeper.h"

namespace velmor::desktop {

class DesktopScreen;

class WorkKeeping final : public QObject {
public:
    static constexpr int delay = 1000; ///< from a change to its keeping, milliseconds

    /// The state folder of the person, by the clock of the machine.
    static keeping::Place usualPlace();

    WorkKeeping(host::Engine& engine, DesktopScreen& screen, keeping::Place place = usualPlace());
    ~WorkKeeping() override;

    /// Looks for what was left; to be called when the first windows stand.
    void look();
    keeping::Keeper& keeper() { return keeper_; }

private:
    void work();
    void showOffer();
    void drop();
    void open();
    void later();

    host::Engine& engine_;
    DesktopScreen& screen_;
    keeping::Clock now_;
    keeping::Keeper keeper_;
    QTimer timer_;
};

} // namespace velmor::desktop
