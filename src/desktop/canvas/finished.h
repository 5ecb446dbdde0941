// SPDX-License-Identifier: MIT
// Whether the design of a sheet has passed, and what comes next then. Knows no widget.
#pragma once

#include "host/window.h"

namespace velmor::desktop {

/// The sheet's numbers say that its last step has ended without a warning; false for what is no design.
bool hasPassed(const host::Window& window);

/// The tool that writes the report; noControl where there is none.
host::Handle reportTool(const host::WindowSpec& spec);

} // namespace velmor::desktop
