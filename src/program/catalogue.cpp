// SPDX-License-Identifier: MIT
// The list of the program's windows, one line each.
#include "program/catalogue.h"

#include <vector>

namespace velmor::program {

host::Catalogue catalogue()
{
    static const std::vector<const host::WindowSpec*> windows{
    };
    return windows;
}

} // namespace velmor::program
