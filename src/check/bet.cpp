// SPDX-License-Identifier: MIT
// Keeps the guesses and compares them.
#include "check/bet.h"

#include <algorithm>
#include <cmath>

namespace velmor::check {

std::optional<Guess> outcomeOf(const Row& row)
{
    if (!row.course || !row.simulated)
        return std::nullopt;
    const Measure measure = textOf(row.quantity).measure;
    const double difference = *row.simulated - *row.course;
    const double same = measure == Measure::difference ? 1.0 : 0.1 * std::abs(*row.course);
    const bool isSame = measure == Measure::decibel ? std::abs(decibel(*row.simulated, *row.course)) <= 1
                                                    : std::abs(difference) <= same;
    if (isSame)
        return Guess::same;
    return difference > 0 ? Guess::higher : Guess::lower;
}

void Bet::guess(Quantity quantity, Guess guess)
{
    auto& placed = guesses_[static_cast<std::size_t>(quantity)];
    if (!placed)
        placed = guess;
}

bool Bet::isOpen(const Row& row) const
{
    return allOpen_ || guessOn(row.quantity) || !outcomeOf(row);
}

std::optional<Guess> Bet::guessOn(Quantity quantity) const
{
    return guesses_[static_cast<std::size_t>(quantity)];
}

int Bet::won(const Check& check) const
{
    return static_cast<int>(std::count_if(check.rows.begin(), check.rows.end(), [this](const Row& row) {
        const auto guess = guessOn(row.quantity);
        return guess && guess == outcomeOf(row);
    }));
}

int Bet::placed() const
{
    return static_cast<int>(
        std::count_if(guesses_.begin(), guesses_.end(), [](const auto& guess) { return guess.has_value(); }));
}

} // namespace velmor::check
