// SPDX-License-Identifier: MIT
// The commands of the walk language as tables: what a walk prepares, what the student does, what the walk asks.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "console/walk.h"

namespace velmor::console {

/// The words behind a command's own.
using Words = std::span<const std::string>;

/// When a command works.
enum class VerbKind : std::uint8_t {
    preparation, ///< needs no window; does nothing once the program has ended
    deed,        ///< acts on the program; does nothing once it has ended
    question,    ///< works to the end
};

struct Verb {
    std::string_view name;
    VerbKind kind = VerbKind::deed;
    std::size_t least = 0; ///< words at least and at most
    std::size_t most = 0;
    void (*run)(Walk& walk, Words words) = nullptr;
    std::string_view usage{}; ///< the words it wants, for the message when they are missing
};

std::span<const Verb> preparations();
std::span<const Verb> deeds();
std::span<const Verb> questions();
/// The check of a finished design, and what it has found.
std::span<const Verb> checks();

/// Null when the language has no such command.
const Verb* verbOf(std::string_view name);

} // namespace velmor::console
