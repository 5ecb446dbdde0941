// SPDX-License-Identifier: MIT
// Plays a walk in other circumstances than those it was written for: beside a blank sheet of the same kind, or with the
// language switched to and fro after every deed. What the walk asks must hold all the same, and all texts end the same.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "console/walk.h"

namespace velmor::replay {

enum class Manner : std::uint8_t { asWritten, besideASheet, languageToAndFro };

/// How a replay ended.
struct Outcome {
    console::WalkResult result{};
    std::string output{}; ///< what the walk reported
    std::vector<std::string>
        texts{};             ///< every text and caption but those that a switch rewrites: of main window and palette
    bool cutShort = false;   ///< the walk left its sheets and came to the blank one: it was not played any further
    std::string disturbed{}; ///< a field of the blank sheet that changed although nobody touched it
};

/// One outcome for each language in which the walk is played.
std::vector<Outcome> replayed(const console::WalkedProgram& program, const std::string& file, Manner manner);

/// A line of a walk on windows named `sheet`, of which one more is open than the walk knows, before its own.
std::vector<std::string> withOneSheetMore(std::vector<std::string> words, std::string_view sheet);

} // namespace velmor::replay
