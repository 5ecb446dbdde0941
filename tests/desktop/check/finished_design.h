// SPDX-License-Identifier: MIT
// The finished designs of tests/check, and the windows of their checks: the deeds of a walk up to its `check`.
#pragma once

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "console/walk.h"
#include "desktop/check/check_window.h"

namespace velmor::test {

class FinishedDesign {
public:
    /// Plays tests/check/walks/NAME.walk as far as its `check`.
    explicit FinishedDesign(const std::string& name);

    host::Window& sheet() { return walk_.current(); }
    check::Design design();
    /// What is asked of the walk from here on.
    void play(const std::string& command);
    desktop::Desk& desk() { return desk_; }
    void speak(bool english);

private:
    std::ostringstream out_;
    console::Walk walk_;
    desktop::Desk desk_;
};

/// The names of these walks: one a sheet.
std::vector<std::string> finishedDesigns();

/// Lets the program run until the condition holds; false when it never does.
bool waitFor(const std::function<bool()>& condition);
/// Until no simulator is at work for that window.
bool waitForCheck(desktop::CheckWindow& window);

} // namespace velmor::test
