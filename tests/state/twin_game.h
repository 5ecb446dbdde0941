// SPDX-License-Identifier: MIT
// Two programs that must not differ: a game is played, all windows are copied into a second program through their texts, and
// both play on by the same chance. What one does, says and holds, the other must do, say and hold.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmor::twins {

struct Outcome {
    int branches = 0;         ///< copies that were played on with
    std::uint64_t events = 0; ///< played in both
    std::string fault{};
};

/// Plays a game around a window (empty: anywhere) with so many branches of so many moves.
Outcome playTwins(std::string_view window, std::uint64_t seed, int branches, int moves);

} // namespace velmor::twins
