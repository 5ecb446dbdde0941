// SPDX-License-Identifier: MIT
// What the window of a check shows: a design, what came out, what was bet, and how fresh it is. Values only.
#pragma once

#include "check/bet.h"
#include "check/check.h"

namespace velmor::desktop {

enum class Freshness : std::uint8_t {
    running, ///< the simulator is at work
    fresh,   ///< it is the design of the sheet
    changed, ///< the sheet has another one meanwhile
    asleep,  ///< the sheet has none that is finished
};

struct Checked {
    check::Design design{};
    check::Check result{};
    check::Bet bet{};
    check::Swing swing{}; ///< at the drive of the slider
    check::Run run = check::Run::trimmed;
    Freshness freshness = Freshness::running;
    bool english = false;

    bool isOpen(const check::Row& row) const { return bet.isOpen(row); }
    /// Open, or no row of the check.
    bool isOpen(check::Quantity quantity) const
    {
        const check::Row* row = check::rowOf(result, quantity);
        return row == nullptr || isOpen(*row);
    }
    /// Whether there are two runs to choose from.
    bool hasPreset() const { return design.table != nullptr && !design.table->preset.empty(); }
    bool isSmallSignal() const { return design.table != nullptr && design.table->stage != check::StageKind::other; }
};

} // namespace velmor::desktop
