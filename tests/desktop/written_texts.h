// SPDX-License-Identifier: MIT
// Whether what a sheet writes can be read: every visible text inside its place, none over another or over a field. Knows no sheet.
#pragma once

#include <string>
#include <vector>

#include "desktop/drawing/view.h"
#include "host/window.h"

namespace velmor::test {

/// What does not fit its place, and what lies over another text or field, at a size.
std::vector<std::string> textComplaints(const host::Window& sheet, const desktop::View& view);

} // namespace velmor::test
