// SPDX-License-Identifier: MIT
// The keyboard of a walk: keys go through the program's key slots, and what they let through is put into the text of
// the field or editor in hand.
#pragma once

#include <cstdint>
#include <string_view>

#include "console/walk.h"

namespace velmor::console {

inline constexpr std::int16_t enterKey = 13;
inline constexpr std::int16_t escapeKey = 27;
inline constexpr std::int16_t backspaceKey = 8;

/// Types every character in turn, each into whatever has the focus by then. A line break is the Enter key.
void typeText(Walk& walk, std::string_view text);

/// Presses one key by its code; a printable one types its character.
void pressKey(Walk& walk, std::int16_t key);

/// Selects the whole text of the field in hand and deletes it; no key slot runs.
void clearField(Walk& walk);

/// The editor of the current window: the one that has the focus, else the first. Throws WalkError when it has none.
host::Handle editorOf(const host::Window& window);

} // namespace velmor::console
