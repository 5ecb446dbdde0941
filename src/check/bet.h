// SPDX-License-Identifier: MIT
// The bet: before a row opens its third column, the student says whether the simulator will measure more, less or the same as the
// course works out.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "check/check.h"

namespace velmor::check {

enum class Guess : std::uint8_t { lower, same, higher };

/// What the simulator did to the course's figure: the same within a tenth, or 1 dB of a gain. Nothing for a row that has not both
/// figures, on which nobody can bet.
std::optional<Guess> outcomeOf(const Row& row);

/// The guesses of one check. A new check begins a new one.
class Bet {
public:
    /// The first guess on a row counts.
    void guess(Quantity quantity, Guess guess);
    /// For who does not want to bet: all rows are open.
    void openAll() { allOpen_ = true; }
    /// Whether the third column of the row may be shown. A row on which nobody can bet is open.
    bool isOpen(const Row& row) const;
    std::optional<Guess> guessOn(Quantity quantity) const;
    /// Rows guessed right, and rows guessed.
    int won(const Check& check) const;
    int placed() const;

private:
    std::array<std::optional<Guess>, static_cast<std::size_t>(Quantity::count)> guesses_{};
    bool allOpen_ = false;
};

} // namespace velmor::check
