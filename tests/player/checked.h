// SPDX-License-Identifier: MIT
// The check of whatever design a game has come to: its circuit is always one that can be told, or that is refused.
#pragma once

#include <string>

#include "host/engine.h"

namespace velmor::player {

/// What is wrong with the check of a finished design among the open sheets; empty when nothing is. `checked` counts them.
std::string checkFault(const host::Engine& engine, int& checked);

} // namespace velmor::player
