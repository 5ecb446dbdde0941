// SPDX-License-Identifier: MIT
// The system calls of this test program, counted and made to fail: its own definitions stand before those of the C library, also
// for the standard library's file functions.
#pragma once

#include <functional>

namespace velmor::system_calls {

enum class Mishap {
    none,
    inputOutput, ///< the call fails as on a broken disk
    noSpace,     ///< as on a full one
    cut,         ///< the power goes: nothing of the program runs any more
};

/// Runs the deed; the call of that number (counted from 1) goes wrong. Returns how many calls there were.
int during(const std::function<void()>& deed, int number = 0, Mishap mishap = Mishap::none);

} // namespace velmor::system_calls
