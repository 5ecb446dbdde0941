// SPDX-License-Identifier: MIT
// The table of a check as text for the report and the clipboard, and as CSV.
#pragma once

#include <string>

#include "check/check.h"

namespace velmor::check {

/// The run, of a stage with a preset; lines of tabs: quantity, asked, course, simulator, verdict; then the ladder of each row that
/// has one, and what is assumed. Line ends are "\r\n", as the report has them.
std::string textTable(const Check& check, const Design& design, bool english);

/// Plain numbers with a point, fields with commas or quotes in quotes, "\r\n" at each line's end; a column more for the preset
/// where there is one.
std::string csvTable(const Check& check, bool english);

} // namespace velmor::check
