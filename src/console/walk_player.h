// SPDX-License-Identifier: MIT
// Plays walks: a text line by line on a fresh program, or several files as the command line names them.
#pragma once

#include <iosfwd>
#include <span>
#include <string>

#include "console/walk.h"

namespace velmor::console {

/// Plays one walk, in both languages if it is written so, to its end or to the line that cannot be read. `name` stands
/// for the file in reports.
WalkResult playWalk(const WalkedProgram& program, std::istream& text, const std::string& name, std::ostream& out,
                    bool trace);

/// What `velmor-walk ARGUMENTS` does; returns the exit status. `in` is read where the arguments say "-" or no file.
int runWalks(const WalkedProgram& program, std::span<const std::string> arguments, std::istream& in, std::ostream& out);

} // namespace velmor::console
