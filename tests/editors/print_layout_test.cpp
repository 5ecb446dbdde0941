// SPDX-License-Identifier: MIT
// Line breaking for the printer with characters of unequal width, and the letters of a word.
#include "editors/print_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace velmor::print_layout_test {

using editors::breakForPrinter;

// Wide letters M take an inch, everything else 1/12 inch: 8 inches hold 8 M, or 7 M and 12 others.
int widthOf(char32_t letter)
{
    return letter == U'M' ? 1440 : 120;
}

std::string broken(std::string_view text)
{
    return breakForPrinter(text, widthOf);
}

TEST(PrintLayout, CountsWidthsAndNotCharacters)
{
    EXPECT_EQ(broken("MMMMMMMM"), "MMMMMMMM");
    EXPECT_EQ(broken("MMMMMMMMM"), "MMMMMMMM\rM");
    EXPECT_EQ(broken("MMMMMMM 12345678901"), "MMMMMMM 12345678901");
    EXPECT_EQ(broken("MMMMMMM 123456789012"), "MMMMMMM \r123456789012");
}

TEST(PrintLayout, BreaksAfterTheLastBlankAndGoesOnWithTheWord)
{
    EXPECT_EQ(broken("MMM MMM MMM MMM"), "MMM MMM \rMMM MMM");
}

TEST(PrintLayout, KeepsTheLinesOfTheText)
{
    EXPECT_EQ(broken(""), "");
    EXPECT_EQ(broken("uno\r\ndos\r\n"), "uno\r\ndos\r\n");
    EXPECT_EQ(broken("\r\n\r\n"), "\r\n\r\n");
    // The line feed that begins the second line takes no width.
    EXPECT_EQ(broken("uno\r\nMMMMMMMM\r\n"), "uno\r\nMMMMMMMM\r\n");
}

TEST(PrintLayout, CutsALineWithoutABlankAtTheLimitAgainAndAgain)
{
    EXPECT_EQ(broken(std::string(20, 'M')), "MMMMMMMM\rMMMMMMMM\rMMMM");
    EXPECT_EQ(broken("\r\n" + std::string(9, 'M')), "\r\nMMMMMMMM\rM");
}

TEST(PrintLayout, LosesNoCharacterOfAnyText)
{
    std::string text;
    for (unsigned seed = 1, i = 0; i < 20000; ++i) {
        seed = seed * 1103515245U + 12345U;
        text += "MMM abcñ\n"[seed / 65536U % 9U];
    }
    std::erase(text, '\xC3');
    std::erase(text, '\xB1');
    std::string kept = broken(text);
    std::erase(kept, '\r');
    EXPECT_EQ(kept, text);
}

TEST(PrintLayout, PutsUpWithACharacterWiderThanTheLine)
{
    const auto huge = [](char32_t) { return 20000; };
    EXPECT_EQ(breakForPrinter("abc", huge), "a\rb\rc");
}

TEST(PrintLayout, AsksForTheWidthOfEachKindOfCharacterOnceHoweverLongTheLineIs)
{
    std::string line;
    while (line.size() < 3'000'000)
        line += "Ma a";
    int asked = 0;
    const std::string result = breakForPrinter(line, [&asked](char32_t letter) {
        ++asked;
        return widthOf(letter);
    });
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(result.size() - line.size(), static_cast<std::size_t>(std::count(result.begin(), result.end(), '\r')));
}

TEST(WordCharacter, IsTrueForLettersDigitsAndEightAccentedLettersAlone)
{
    const std::string_view plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    const auto accented = {193, 225, 201, 233, 205, 237, 211, 243};
    for (int code = -10; code < 400; ++code) {
        const bool isPlain = code > 0 && code < 128 && plain.find(static_cast<char>(code)) != std::string_view::npos;
        const bool isAccented = std::find(accented.begin(), accented.end(), code) != accented.end();
        EXPECT_EQ(editors::isWordCharacter(code), isPlain || isAccented) << code;
    }
    for (const int absent : {218, 250, 209, 241}) // Ú ú Ñ ñ
        EXPECT_FALSE(editors::isWordCharacter(absent));
}

} // namespace velmor::print_layout_test
