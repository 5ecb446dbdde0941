// SPDX-License-Identifier: MIT
// The program that velmor-walk plays: all its windows, its start and its menu of new sheets.
#pragma once

#include "console/walk.h"

namespace velmor::console {

const WalkedProgram& wholeProgram();

} // namespace velmor::console
