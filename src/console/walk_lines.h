// SPDX-License-Identifier: MIT
// The lines of a walk as plain commands: what is told for both languages at once is told for one, and a line that stands
// for several commands becomes these. What a plain command does, it does not know.
#pragma once

#include <cstdint>
#include <istream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "console/walk_text.h"

namespace velmor::console {

/// A plain command, and the line that would tell it alone.
struct Command {
    std::vector<std::string> words;
    std::string text;
};

/// How a walk is played: as it stands, or, when it is written for both languages, in one of them.
enum class Playing : std::uint8_t { asWritten, inSpanish, inEnglish };

/// "Spanish", "English"; empty for a walk that is played as it stands.
std::string_view languageName(Playing playing);

/// The names of commands that only ever stand for several plain ones.
std::span<const std::string_view> shortForms();

/// The text of a walk, read as far as it is asked for, and again from its beginning for each playing.
class WalkLines {
public:
    explicit WalkLines(std::istream& text) : text_(text) {}

    /// Once as it stands, or twice when the first command is `language spanish | english`.
    std::span<const Playing> playings();
    void begin(Playing playing);
    /// The next line; false at the end of the walk.
    bool next(std::string& line);
    /// The number of the line in hand, from 1.
    int number() const { return static_cast<int>(at_); }
    /// What the line in hand tells in this playing; throws WalkError.
    std::vector<Command> commands() const;

private:
    bool reaches(std::size_t line);

    std::istream& text_;
    std::vector<std::string> lines_;
    std::size_t at_ = 0;
    Playing playing_ = Playing::asWritten;
};

} // namespace velmor::console
