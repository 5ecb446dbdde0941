// SPDX-License-Identifier: MIT
// UTF-8 and Windows-1252 in both directions, over all codes and all code points, and documents of every make.
#include "rules/code_page.h"

#include "rules/number_figures.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

namespace velmor::rules::code_page_test {

using namespace std::string_literals;

const std::string mark = "\xEF\xBB\xBF";

std::string byteText(unsigned code)
{
    return std::string(1, static_cast<char>(static_cast<unsigned char>(code)));
}

std::string utf8(char32_t character)
{
    std::string text;
    appendUtf8(text, character);
    return text;
}

TEST(CodePage, AgreesWithTheFiguresOfTheScriptInAllItsCodes)
{
    for (unsigned code = 0; code < 256; ++code) {
        const char32_t character = number_figures::windows1252Figures[code];
        EXPECT_EQ(windows1252Character(static_cast<unsigned char>(code)), character) << code;
        EXPECT_EQ(windows1252Code(character), code);
        EXPECT_EQ(fromWindows1252(byteText(code)), utf8(character)) << code;
        EXPECT_EQ(toWindows1252(utf8(character)), byteText(code)) << code;
    }
}

TEST(CodePage, HasNoCodeForAnyOtherCharacter)
{
    int coded = 0;
    for (char32_t character = 0; character <= 0x10FFFF; ++character)
        coded += windows1252Code(character).has_value();
    EXPECT_EQ(coded, 256);
}

TEST(CodePage, KeepsSpanishAndWritesAQuestionMarkForTheRest)
{
    EXPECT_EQ(toWindows1252("Emisor Común, señal ¿Sí?"), "Emisor Com\xFAn, se\xF1"
                                                         "al \xBFS\xED?");
    EXPECT_EQ(fromWindows1252("Emisor Com\xFAn"), "Emisor Común");
    EXPECT_EQ(toWindows1252("12 \u03A9"), "12 ?");
    EXPECT_EQ(toWindows1252("\U0001F98B"), "?");
    EXPECT_EQ(toWindows1252("a\xFF"
                            "b"),
              "a?b");
    EXPECT_EQ(toWindows1252("a\0b"s), "a\0b"s);
}

TEST(Utf8, GivesEveryCodePointBack)
{
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        if (character == 0xD800)
            character = 0xE000;
        const std::string text = utf8(character);
        const CodePoint point = codePointAt(text, 0);
        ASSERT_TRUE(point.valid && point.value == character && point.length == text.size())
            << static_cast<unsigned>(character);
    }
}

TEST(Utf8, WritesNoSurrogateAndNothingBeyondItsEnd)
{
    EXPECT_EQ(utf8(0xD800), "\xEF\xBF\xBD");
    EXPECT_EQ(utf8(0xDFFF), "\xEF\xBF\xBD");
    EXPECT_EQ(utf8(0x110000), "\xEF\xBF\xBD");
}

// How many of the texts made of one byte of each set are valid.
int countValid(const std::vector<std::string>& sets, std::size_t at = 0, const std::string& begun = {})
{
    if (at == sets.size())
        return isValidUtf8(begun) ? 1 : 0;
    int count = 0;
    for (const char byte : sets[at])
        count += countValid(sets, at + 1, begun + byte);
    return count;
}

std::string bytesFrom(unsigned first, unsigned last)
{
    std::string bytes;
    for (unsigned code = first; code <= last; ++code)
        bytes += byteText(code);
    return bytes;
}

TEST(Utf8, CountsAsManyValidSequencesAsThereAreCodePoints)
{
    const std::string all = bytesFrom(0, 255);
    const std::string edges = "\x7F\x80\xBF\xC0"; // two of them can follow
    EXPECT_EQ(countValid({all}), 128);
    EXPECT_EQ(countValid({all, all}), 128 * 128 + (0x800 - 0x80));
    EXPECT_EQ(countValid({bytesFrom(0xE0, 0xEF), all, bytesFrom(0x70, 0xFF)}), 0x10000 - 0x800 - 0x800);
    // Of each 64 times 64 code points that share their first two bytes, four remain.
    EXPECT_EQ(countValid({bytesFrom(0xF0, 0xFF), all, edges, edges}), 0x100000 / 4096 * 4);
}

TEST(Utf8, TakesAnInvalidSequenceAsFarAsItCouldHaveBegunAValidOne)
{
    struct Row {
        std::string bytes;
        std::size_t length;
    };
    const Row rows[] = {
        {"\x80", 1},             // nothing before it
        {"\xC0\x80", 1},         // overlong
        {"\xC1\xBF", 1},         // overlong
        {"\xE0\x80\x80", 1},     // overlong
        {"\xED\xA0\x80", 1},     // surrogate
        {"\xF0\x80\x80\x80", 1}, // overlong
        {"\xF4\x90\x80\x80", 1}, // beyond the end
        {"\xF5\x80\x80\x80", 1}, // beyond the end
        {"\xC3", 1},             // cut off
        {"\xC3"
         "a",
         1},                  // cut off by a letter
        {"\xE2\x82", 2},      // cut off
        {"\xF0\x9F\xA6", 3},  // cut off
        {"\xF0\x9F\xA6x", 3}, // cut off by a letter
    };
    for (const Row& row : rows) {
        const CodePoint point = codePointAt(row.bytes, 0);
        EXPECT_FALSE(point.valid);
        EXPECT_EQ(point.value, replacementCharacter);
        EXPECT_EQ(point.length, row.length) << testing::PrintToString(row.bytes);
    }
}

TEST(Utf8, CountsCharacters)
{
    EXPECT_EQ(codePointCount(""), 0u);
    EXPECT_EQ(codePointCount("señal"), 5u);
    EXPECT_EQ(codePointCount("\U0001F98B!"), 2u);
    EXPECT_EQ(codePointCount("a\xFF\xE2\x82z"), 4u);
}

TEST(Document, IsReadByItsMarkThenAsUtf8ThenAsWindows1252)
{
    EXPECT_EQ(decodeDocument(""), "");
    EXPECT_EQ(decodeDocument("plain"), "plain");
    EXPECT_EQ(decodeDocument(mark), "");
    EXPECT_EQ(decodeDocument(mark + "señal"), "señal");
    EXPECT_EQ(decodeDocument("señal"), "señal");
    EXPECT_EQ(decodeDocument("se\xF1"
                             "al"),
              "señal");
    EXPECT_EQ(decodeDocument("\x80 5"), "€ 5");
    EXPECT_EQ(decodeDocument(mark + mark), mark);
    EXPECT_EQ(decodeDocument(mark + "a\xFFz"), "a\uFFFDz");
    EXPECT_EQ(decodeDocument(mark + "cut \xE2\x82"), "cut \uFFFD");
    EXPECT_EQ(decodeDocument("a\0b"s), "a\0b"s);
}

TEST(Document, IsWrittenInWindows1252WhileThatCanBeReadBack)
{
    EXPECT_EQ(encodeDocument(""), "");
    EXPECT_EQ(encodeDocument("plain\r\n"), "plain\r\n");
    EXPECT_EQ(encodeDocument("señal"), "se\xF1"
                                       "al");
    EXPECT_EQ(encodeDocument("€ 5"), "\x80 5");
    EXPECT_EQ(encodeDocument("12 \u03A9"), mark + "12 \u03A9");
    // These two letters have the codes C3 B1, which are also the UTF-8 of one letter.
    EXPECT_EQ(encodeDocument("Ã±"), mark + "Ã±");
    EXPECT_EQ(encodeDocument("Ã± é"), "\xC3\xB1 \xE9");
    // These three have the codes of the mark itself.
    EXPECT_EQ(encodeDocument("ï»¿é"), mark + "ï»¿é");
    EXPECT_EQ(encodeDocument("\uFEFFx"), mark + "\uFEFFx");
    EXPECT_EQ(encodeDocument("a\xFF"), mark + "a\uFFFD");
}

std::string randomDocument(std::mt19937_64& dice)
{
    constexpr char32_t likely[] = {U'a', U'\n', U'ñ', U'Ã', U'±', U'ï', U'»', U'¿', U'€', 0x81, 0x3A9, 0xFEFF, 0x1F98B};
    std::string text;
    for (std::uint64_t letters = dice() % 12; letters > 0; --letters)
        appendUtf8(text, likely[dice() % std::size(likely)]);
    return text;
}

TEST(Document, ComesBackAsItWasWritten)
{
    std::mt19937_64 dice(1252);
    for (int round = 0; round < 100'000; ++round) {
        const std::string text = randomDocument(dice);
        ASSERT_EQ(decodeDocument(encodeDocument(text)), text) << testing::PrintToString(encodeDocument(text));
    }
}

TEST(Document, OfOldBytesKeepsThemWhenItIsSavedUnchanged)
{
    std::mt19937_64 dice(1252);
    int old = 0;
    for (int round = 0; round < 100'000; ++round) {
        std::string bytes(dice() % 8, ' ');
        for (char& byte : bytes)
            byte = static_cast<char>(dice() % 4 == 0 ? dice() % 256 : "a\xC3\xB1\xEF\xBB\xBF"[dice() % 6]);
        if (bytes.starts_with(mark) || isValidUtf8(bytes))
            continue;
        ++old;
        ASSERT_EQ(encodeDocument(decodeDocument(bytes)), bytes) << testing::PrintToString(bytes);
    }
    EXPECT_GT(old, 10'000);
}

TEST(SmallLetters, FoldSpanishAndAllOtherLettersOfThePage)
{
    EXPECT_EQ(smallLetters("GUÍA Ñandú ÜÁÉÓÚ Ç.LAB"), "guía ñandú üáéóú ç.lab");
    EXPECT_EQ(smallLetters("ŠŒŽŸ"), "šœžÿ");
    EXPECT_EQ(smallLetters("×÷ß@[`{ÿ\u03A9"), "×÷ß@[`{ÿ\u03A9");
    EXPECT_EQ(smallLetters("GU\xCD"
                           "A"),
              "guía");
}

} // namespace velmor::rules::code_page_test
