// SPDX-License-Identifier: MIT
// Where the tests find files of the checkout and the programs that were built.
#pragma once

#include <string>

namespace velmor::places {

/// The folder of the checkout, with `src` and `tests` in it.
std::string source();

/// The folder of this build; tests may write below it.
std::string build();

/// The folder in which walks are played: the guides lie in it as in the program's own.
std::string played();

/// The folder of the programs of this build: `velmor-walk` and, with the desktop, `velmor`.
std::string programs();

} // namespace velmor::places
