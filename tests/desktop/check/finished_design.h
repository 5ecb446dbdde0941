// SPDX-License-Identifier: MIT
// A whole design on real windows: the deeds of a walk of tests/check, done with keys and clicks.
#pragma once

#include <string>

#include "desktop/check/check_window.h"
#include "desktop/desktop_fixture.h"

namespace velmor::test {

/// Plays what comes before `check` in tests/check/walks/NAME.walk and gives the sheet.
host::Window& finishDesign(Bench& bench, const std::string& name);

/// The names of these walks: one a sheet.
std::vector<std::string> finishedDesigns();

/// The window of the check of that sheet; null while there is none in sight.
desktop::CheckWindow* checkOf(Bench& bench, const host::Window& sheet);

/// Lets the program run until the condition holds; false when it never does.
bool waitFor(const std::function<bool()>& condition);
/// Until no simulator is at work for that window.
bool waitForCheck(desktop::CheckWindow& window);

} // namespace velmor::test
