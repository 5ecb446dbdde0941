// SPDX-License-Identifier: MIT
// Complaints of a rule as what a test expects: none.
#pragma once

#include <gtest/gtest.h>

#include "lint/lint.h"

namespace velmor::lint {

inline testing::AssertionResult keeps(const Complaints& complaints)
{
    if (complaints.empty())
        return testing::AssertionSuccess();
    testing::AssertionResult result = testing::AssertionFailure();
    for (const std::string& complaint : complaints)
        result << "\n  " << complaint;
    return result;
}

} // namespace velmor::lint
