// SPDX-License-Identifier: MIT
// The program with the template sheet added to its catalogue, and walks on it.
#pragma once

#include <string>

#include "console/walk_player.h"

namespace velmor::template_sheet {

/// All windows of the program, and the template sheet behind them.
host::Catalogue catalogue();

const console::WalkedProgram& walkedProgram();

/// What a walk came to: nothing when it asked something and all held; else what it printed, or what is wrong with it.
std::string faultsOf(const std::string& walk);

} // namespace velmor::template_sheet
