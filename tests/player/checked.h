// SPDX-License-Identifier: MIT
// The check of whatever design a game has come to: its circuit is always one that can be told, or that is refused.
#pragma once

#include <map>
#include <string>

#include "check/check.h"
#include "host/engine.h"

namespace velmor::player {

class DesignChecks {
public:
    /// What is wrong with the check of a finished design among the open sheets; empty when nothing is. A design that stands
    /// as it stood when it was looked at last gives the same check, and is let be.
    std::string faultOf(const host::Engine& engine);
    /// Another program is begun, whose sheets have the same numbers.
    void startAgain() { seen_.clear(); }
    /// Designs whose checks were worked out.
    int worked() const { return worked_; }

private:
    struct Seen {
        unsigned stirrings = 0;
        check::Design design{};
    };

    std::string faultOf(const host::Window& sheet, const check::SheetTable& table);

    std::map<unsigned, Seen> seen_; ///< by serial number of the sheet
    int worked_ = 0;
};

} // namespace velmor::player
