// SPDX-License-Identifier: MIT
// Files that a person brings to the program with windows: named at its start, dropped on the main window, or chosen among
// those opened last.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include <QObject>

#include "program/recent_circuits.h"

class QDropEvent;

namespace velmor::desktop {

class DesktopScreen;

class ArrivingFiles final : public QObject {
public:
    ArrivingFiles(host::Engine& engine, DesktopScreen& screen);

    /// From now on, while the main window stands, it takes what is dropped on it and lists the circuits opened last.
    void watch();
    /// Opens them one after the other, each when the event before it is over.
    void open(const std::vector<std::string>& files);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void openNext();
    bool take(QDropEvent& event, bool dropped);

    host::Engine& engine_;
    DesktopScreen& screen_;
    program::RecentCircuits recent_;
    std::vector<program::RecentCircuit> listed_; ///< as the menu shows them
    std::deque<std::string> waiting_;
    bool opening_ = false;
};

} // namespace velmor::desktop
