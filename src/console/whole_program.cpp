// SPDX-License-Identifier: MIT
// Binds the walk language to the program.
#include "console/whole_program.h"

#include "program/catalogue.h"

namespace velmor::console {

const WalkedProgram& wholeProgram()
{
    static const WalkedProgram program{program::catalogue(), program::start, program::newSheet};
    return program;
}

} // namespace velmor::console
