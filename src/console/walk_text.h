// SPDX-License-Identifier: MIT
// The text of a walk: lines into words, words into numbers and names, and texts back into words for reports. Knows
// nothing of windows.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace velmor::console {

/// A line that cannot be read: the walk stops there. `what` is the reason, without file and line.
class WalkError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A word of a line. In quotes it is always a text, never a sign of the language.
struct Word {
    std::string text;
    bool quoted = false;
};

/// The words of a line: empty for an empty line and for a comment. Throws WalkError for bad quoting and for bytes that
/// are not UTF-8.
std::vector<Word> wordsOf(std::string_view line);

/// The same words without their quotes.
std::vector<std::string> splitLine(std::string_view line);

/// A line that is read as these words.
std::string lineOf(const std::vector<std::string>& words);

/// A text as a walk would write it, always in quotes.
std::string inQuotes(std::string_view text);

/// Every line break, CR LF and CR included, as one line feed.
std::string withLineFeeds(std::string_view text);

/// The text with each line break written as "\n".
std::string inOneLine(std::string_view text);

/// A whole number from `least` to `most`; throws WalkError.
int wholeNumber(std::string_view word, int least, int most);

/// A number such as 1.5, -2 or 1e-9; throws WalkError.
double realNumber(std::string_view word);

/// Six hexadecimal digits RRGGBB as one number; throws WalkError.
std::int32_t colourNumber(std::string_view word);

/// Six hexadecimal digits; empty for a negative number, which is the look's own colour.
std::string colourText(std::int32_t colour);

/// "Form2#3" is the third instance, "Form2" (number 0) the newest.
struct WindowWord {
    std::string name;
    int number = 0;
};
WindowWord windowWord(std::string_view word);

/// "Text1.text", "..caption", "mnuFile(2).checked": what stands before and behind the last point.
struct PropertyWord {
    std::string owner;
    std::string property;
};
PropertyWord propertyWord(std::string_view word);

} // namespace velmor::console
