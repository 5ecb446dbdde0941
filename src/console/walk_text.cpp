// SPDX-License-Identifier: MIT
// Splitting of walk lines and the small conversions around it.
#include "console/walk_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "rules/code_page.h"

namespace velmor::console {

namespace walk_text_detail {

constexpr std::string_view blanks = " \t";
constexpr int decimal = 10;
constexpr int hexadecimal = 16;

char escaped(char letter)
{
    switch (letter) {
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    case '"':
    case '\\':
        return letter;
    default:
        throw WalkError(std::string("bad quoting: \\") + letter + " stands for nothing");
    }
}

// `at` stands on the opening quote and is left behind the closing one.
std::string quotedWord(std::string_view line, std::size_t& at)
{
    std::string word;
    for (++at; at < line.size() && line[at] != '"'; ++at) {
        if (line[at] != '\\') {
            word += line[at];
            continue;
        }
        if (++at == line.size())
            break;
        word += escaped(line[at]);
    }
    if (at >= line.size())
        throw WalkError("bad quoting: the closing quote is missing");
    ++at;
    if (at < line.size() && blanks.find(line[at]) == std::string_view::npos)
        throw WalkError("bad quoting: a blank must follow the closing quote");
    return word;
}

std::string bareWord(std::string_view line, std::size_t& at)
{
    const std::size_t end = std::min(line.find_first_of(blanks, at), line.size());
    const std::string_view word = line.substr(at, end - at);
    if (word.find('"') != std::string_view::npos)
        throw WalkError("bad quoting: a quote inside a word");
    at = end;
    return std::string(word);
}

} // namespace walk_text_detail

std::vector<Word> wordsOf(std::string_view line)
{
    using namespace walk_text_detail;
    if (!rules::isValidUtf8(line))
        throw WalkError("the line is not UTF-8");
    std::vector<Word> words;
    std::size_t at = line.find_first_not_of(blanks);
    if (at == std::string_view::npos || line[at] == '#')
        return words;
    while (at != std::string_view::npos) {
        const bool quoted = line[at] == '"';
        words.push_back({quoted ? quotedWord(line, at) : bareWord(line, at), quoted});
        at = line.find_first_not_of(blanks, at);
    }
    return words;
}

std::vector<std::string> splitLine(std::string_view line)
{
    std::vector<std::string> texts;
    for (Word& word : wordsOf(line))
        texts.push_back(std::move(word.text));
    return texts;
}

std::string lineOf(const std::vector<std::string>& words)
{
    std::string line;
    for (const std::string& word : words) {
        const bool bare = !word.empty() && word.find_first_of(" \t\r\n\"\\#|") == std::string::npos;
        line += (line.empty() ? "" : " ") + (bare ? word : inQuotes(word));
    }
    return line;
}

std::string inQuotes(std::string_view text)
{
    std::string result = "\"";
    for (const char letter : text) {
        switch (letter) {
        case '\n':
            result += "\\n";
            break;
        case '\r':
            result += "\\r";
            break;
        case '\t':
            result += "\\t";
            break;
        case '"':
        case '\\':
            result += '\\';
            [[fallthrough]];
        default:
            result += letter;
        }
    }
    return result + '"';
}

std::string withLineFeeds(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r')
            result += text[i];
        else if (i + 1 == text.size() || text[i + 1] != '\n')
            result += '\n';
    }
    return result;
}

std::string inOneLine(std::string_view text)
{
    std::string result;
    for (const char letter : withLineFeeds(text))
        result += letter == '\n' ? std::string("\\n") : std::string(1, letter);
    return result;
}

int wholeNumber(std::string_view word, int least, int most)
{
    int number = 0;
    const auto [end, error] =
        std::from_chars(word.data(), word.data() + word.size(), number, walk_text_detail::decimal);
    if (error != std::errc{} || end != word.data() + word.size() || number < least || number > most)
        throw WalkError(inQuotes(word) + " is no whole number from " + std::to_string(least) + " to " +
                        std::to_string(most));
    return number;
}

double realNumber(std::string_view word)
{
    const std::string_view digits = word.starts_with('+') ? word.substr(1) : word;
    double number = 0.0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc{} || end != digits.data() + digits.size() || !std::isfinite(number))
        throw WalkError(inQuotes(word) + " is no number");
    return number;
}

std::int32_t colourNumber(std::string_view word)
{
    constexpr std::size_t digits = 6;
    std::int32_t colour = 0;
    const auto [end, error] =
        std::from_chars(word.data(), word.data() + word.size(), colour, walk_text_detail::hexadecimal);
    if (word.size() != digits || word.front() == '-' || error != std::errc{} || end != word.data() + word.size())
        throw WalkError(inQuotes(word) + " is no colour RRGGBB");
    return colour;
}

std::string colourText(std::int32_t colour)
{
    if (colour < 0)
        return {};
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    for (int shift = 20; shift >= 0; shift -= 4)
        result += digits[(static_cast<std::uint32_t>(colour) >> static_cast<unsigned>(shift)) & 15U];
    return result;
}

WindowWord windowWord(std::string_view word)
{
    const std::size_t mark = word.rfind('#');
    if (mark == std::string_view::npos)
        return {std::string(word), 0};
    constexpr int manyWindows = 1'000'000;
    return {std::string(word.substr(0, mark)), wholeNumber(word.substr(mark + 1), 1, manyWindows)};
}

PropertyWord propertyWord(std::string_view word)
{
    const std::size_t point = word.rfind('.');
    if (point == std::string_view::npos || point == 0 || point + 1 == word.size())
        throw WalkError(inQuotes(word) + " is not of the form CONTROL.PROPERTY");
    return {std::string(word.substr(0, point)), std::string(word.substr(point + 1))};
}

} // namespace velmor::console
