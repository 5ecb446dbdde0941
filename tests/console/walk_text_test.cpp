// SPDX-License-Identifier: MIT
// Lines into words, and the small conversions of the walk language.
#include <gtest/gtest.h>

#include "console/walk_text.h"

namespace velmor::console {

namespace walk_text_test {

using WordList = std::vector<std::string>;

std::string reasonOf(std::string_view line)
{
    try {
        splitLine(line);
    } catch (const WalkError& error) {
        return error.what();
    }
    return "read";
}

TEST(WalkText, WordsAreSeparatedByBlanksAndTabs)
{
    EXPECT_EQ(splitLine("fill Text1  10"), (WordList{"fill", "Text1", "10"}));
    EXPECT_EQ(splitLine("  tab\t x "), (WordList{"tab", "x"}));
}

TEST(WalkText, EmptyLinesAndCommentsHaveNoWords)
{
    EXPECT_EQ(splitLine(""), WordList{});
    EXPECT_EQ(splitLine(" \t "), WordList{});
    EXPECT_EQ(splitLine("# fill Text1 \"10"), WordList{});
    EXPECT_EQ(splitLine("  # indented"), WordList{});
}

TEST(WalkText, ANumberSignInsideALineBelongsToItsWord)
{
    EXPECT_EQ(splitLine("window Form2#2"), (WordList{"window", "Form2#2"}));
    EXPECT_EQ(splitLine("type #"), (WordList{"type", "#"}));
}

TEST(WalkText, QuotesHoldBlanksEscapesAndNothing)
{
    EXPECT_EQ(splitLine(R"(type "a b" "")"), (WordList{"type", "a b", ""}));
    EXPECT_EQ(splitLine(R"(type "\"\\\n\r\t")"), (WordList{"type", "\"\\\n\r\t"}));
    EXPECT_EQ(splitLine("type \"ñ €\""), (WordList{"type", "ñ €"}));
}

TEST(WalkText, ABackslashOutsideQuotesIsALetter)
{
    EXPECT_EQ(splitLine(R"(type a\n)"), (WordList{"type", R"(a\n)"}));
}

TEST(WalkText, BadQuotingIsRefused)
{
    EXPECT_EQ(reasonOf("type \"abc"), "bad quoting: the closing quote is missing");
    EXPECT_EQ(reasonOf("type \"abc\\"), "bad quoting: the closing quote is missing");
    EXPECT_EQ(reasonOf("type \"abc\\\""), "bad quoting: the closing quote is missing");
    EXPECT_EQ(reasonOf("type \"a\"b"), "bad quoting: a blank must follow the closing quote");
    EXPECT_EQ(reasonOf("type a\"b\""), "bad quoting: a quote inside a word");
    EXPECT_EQ(reasonOf("type \"\\q\""), "bad quoting: \\q stands for nothing");
}

TEST(WalkText, BytesThatAreNotUtf8AreRefused)
{
    EXPECT_EQ(reasonOf("type \xF1"), "the line is not UTF-8");
}

TEST(WalkText, InQuotesIsReadBackAsTheSameWord)
{
    const std::string text = "a \"b\" \\ \n\r\t ñ#";
    EXPECT_EQ(inQuotes(text), R"("a \"b\" \\ \n\r\t ñ#")");
    EXPECT_EQ(splitLine("x " + inQuotes(text)), (WordList{"x", text}));
}

TEST(WalkText, ALineMadeOfWordsIsReadBackAsTheSameWords)
{
    EXPECT_EQ(lineOf({"fill", "Text1", "10"}), "fill Text1 10");
    EXPECT_EQ(lineOf({"type", "", "a b", "|", "#"}), R"(type "" "a b" "|" "#")");
    const WordList words{"a\"b", "\\", "\n\r\t", "ñ€", "", "..caption", "Sheet1#2"};
    EXPECT_EQ(splitLine(lineOf(words)), words);
}

TEST(WalkText, OnlyAWordInQuotesIsQuoted)
{
    const std::vector<Word> words = wordsOf(R"(a "b" | "|")");
    ASSERT_EQ(words.size(), 4U);
    EXPECT_FALSE(words[0].quoted || words[2].quoted);
    EXPECT_TRUE(words[1].quoted && words[3].quoted);
}

TEST(WalkText, EveryLineBreakBecomesOneLineFeed)
{
    EXPECT_EQ(withLineFeeds("a\r\nb\rc\nd\r"), "a\nb\nc\nd\n");
    EXPECT_EQ(withLineFeeds("\r\r\n\n"), "\n\n\n");
    EXPECT_EQ(inOneLine("a\r\nb\"c\""), "a\\nb\"c\"");
}

TEST(WalkText, NumbersAreReadWholeOrRefused)
{
    EXPECT_EQ(wholeNumber("12", 0, 100), 12);
    EXPECT_EQ(wholeNumber("-5", -5, 5), -5);
    for (const char* bad : {"", "x", "1x", "1.5", " 1", "101", "-1", "99999999999"})
        EXPECT_THROW(wholeNumber(bad, 0, 100), WalkError) << bad;
    EXPECT_EQ(realNumber("1.5"), 1.5);
    EXPECT_EQ(realNumber("-2"), -2.0);
    EXPECT_EQ(realNumber("+1e-9"), 1e-9);
    for (const char* bad : {"", "x", "1,5", "1.5 ", "inf", "nan", "1e999", "0x10"})
        EXPECT_THROW(realNumber(bad), WalkError) << bad;
}

TEST(WalkText, ColoursAreSixHexadecimalDigits)
{
    EXPECT_EQ(colourNumber("FF8000"), 0xFF8000);
    EXPECT_EQ(colourNumber("00bc0a"), 0x00BC0A);
    for (const char* bad : {"", "FF80", "FF80000", "GG0000", "-F8000", "FF 800"})
        EXPECT_THROW(colourNumber(bad), WalkError) << bad;
    EXPECT_EQ(colourText(0x00BC0A), "00BC0A");
    EXPECT_EQ(colourText(0xFFFFFF), "FFFFFF");
    EXPECT_EQ(colourText(-1), "");
}

TEST(WalkText, AWindowWordNamesTheNewestOrANumberedInstance)
{
    EXPECT_EQ(windowWord("Form2").name, "Form2");
    EXPECT_EQ(windowWord("Form2").number, 0);
    EXPECT_EQ(windowWord("Form2#3").name, "Form2");
    EXPECT_EQ(windowWord("Form2#3").number, 3);
    for (const char* bad : {"Form2#", "Form2#0", "Form2#-1", "Form2#x"})
        EXPECT_THROW(windowWord(bad), WalkError) << bad;
}

TEST(WalkText, APropertyStandsBehindTheLastPoint)
{
    EXPECT_EQ(propertyWord("Text1.text").owner, "Text1");
    EXPECT_EQ(propertyWord("mnuFile(2).checked").owner, "mnuFile(2)");
    EXPECT_EQ(propertyWord("mnuFile(2).checked").property, "checked");
    EXPECT_EQ(propertyWord("..caption").owner, ".");
    for (const char* bad : {"Text1", ".caption", "Text1.", ""})
        EXPECT_THROW(propertyWord(bad), WalkError) << bad;
}

} // namespace walk_text_test

} // namespace velmor::console
