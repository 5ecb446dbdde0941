// SPDX-License-Identifier: MIT
// What a window is excused from, each with its reason: a file for each window in tests/lint/exceptions, so that two people who
// add two windows do not meet. A line is "KIND CONTROL [OTHER]: REASON"; "#" begins a comment.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "lint/grammar.h"
#include "lint/lint.h"

namespace velmor::lint {

struct Exception {
    std::string window;
    std::string kind;
    std::string control;
    std::string other;
    std::string reason;
};
/// All lines of all files. A line of another form is a failure that names its file.
const std::vector<Exception>& exceptions();

std::span<const Spot> spots();            ///< "spot": draws nothing by itself
std::span<const Spot> withoutSymbol();    ///< "no-symbol"
std::span<const Spot> reachedOtherwise(); ///< "otherwise": has no key of its own
std::span<const Spot> lateTools();        ///< "late": a tool that the design brings, hidden at first
std::span<const NeverTogether> neverTogether();
std::span<const Unreached> unreached();
std::span<const OneLanguage> oneLanguage();

} // namespace velmor::lint
