// SPDX-License-Identifier: MIT
// Chance that can be repeated: the same seed gives the same choices on every machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace velmor::player {

class Chance {
public:
    explicit Chance(std::uint64_t seed) : state_(seed) {}

    std::uint64_t next()
    {
        state_ += 0x9E3779B97F4A7C15u;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
        return mixed ^ (mixed >> 31);
    }
    /// A number from 0 to `count` - 1; 0 for an empty choice.
    std::size_t below(std::size_t count) { return count == 0 ? 0 : static_cast<std::size_t>(next() % count); }
    int between(int low, int high)
    {
        return low + static_cast<int>(below(static_cast<std::size_t>(high) - static_cast<std::size_t>(low) + 1));
    }
    /// True `percent` times in a hundred.
    bool in(unsigned percent) { return next() % 100 < percent; }
    template <class Range>
    auto& one(Range& choices)
    {
        return choices[below(std::size(choices))];
    }

private:
    std::uint64_t state_;
};

} // namespace velmor::player
