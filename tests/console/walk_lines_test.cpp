// SPDX-License-Identifier: MIT
// Walks for both languages, and lines that stand for several commands: what they play, count and report, and what of them
// cannot be read.
#include <algorithm>
#include <sstream>

#include "console/fixture_program.h"
#include "console/walk_lines.h"

namespace velmor::console::test {

namespace walk_lines_test {

/// All holds, and so many expectations were counted.
testing::AssertionResult holdsTimes(int count, const std::string& text)
{
    const Played played = play(text);
    if (played.result.exitStatus() == 0 && played.result.passed == count)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << played.result.passed << " of " << count << " held\n" << played.output;
}

/// The commands of the last line of a walk, in one of its playings.
std::vector<std::string> told(const std::string& text, Playing playing = Playing::asWritten)
{
    std::istringstream in(text);
    WalkLines lines(in);
    lines.begin(playing);
    std::vector<std::string> texts;
    for (std::string line; lines.next(line);) {
        texts.clear();
        for (const Command& command : lines.commands())
            texts.push_back(command.text);
    }
    return texts;
}

using Texts = std::vector<std::string>;

TEST(WalkLines, AWalkForBothLanguagesIsPlayedInSpanishThenInEnglishEachCounted)
{
    const std::string walk = "# told first\n\nlanguage spanish | english\nnew Sheet1\n"
                             "expect ..caption \"  Hoja\" | \"  Sheet\"\nexpect program.LanguageIsEnglish 0 | -1\n"
                             "fill Text1 5\nexpect Text1.text 5\nexpect-window Sheet1 1\n";
    EXPECT_TRUE(holdsTimes(8, walk));
    EXPECT_TRUE(holdsTimes(8, "\xEF\xBB\xBF" + walk));
}

TEST(WalkLines, ALineForOneLanguageIsPlayedInThatLanguageAlone)
{
    EXPECT_TRUE(holdsTimes(5, "language spanish | english\nnew Sheet1\nes: expect ..caption \"  Hoja\"\n"
                              "en: expect ..caption \"  Sheet\"\nen: fill Text1 5\nexpect Text1.text \"\" | 5\n"
                              "en: expect-focus Text1\n"));
}

TEST(WalkLines, FailuresOfAWalkForBothLanguagesNameTheLanguage)
{
    EXPECT_TRUE(failsWith("language spanish | english\nnew Sheet1\nexpect ..caption \"  Hoja\" | Sheet\n",
                          "w:3: in English: expect ..caption Sheet: expected \"Sheet\", found \"  Sheet\""));
    EXPECT_TRUE(failsWith("language spanish | english\nnew Sheet1\nexpect ..caption Hoja | \"  Sheet\"\n",
                          "w:3: in Spanish: expect ..caption Hoja: expected \"Hoja\", found \"  Hoja\""));
    EXPECT_TRUE(failsWith("language spanish | english\nexpect-running\nes: answer ok\n",
                          "w:3: in Spanish: answers left over at the end: 1"));
}

TEST(WalkLines, WhereverAWordMayStandAPairMayStand)
{
    EXPECT_TRUE(holdsTimes(6, "language spanish | english\nnew Sheet1\nfill Text1 15 | 26\n"
                              "expect-contains Text1.text 5 | 6\nmenu mnuBox(2)\n"
                              "expect-box * | \"Which\\nway?\" \"Title\" | * 67\n"
                              "write-file a.txt \"sí\" | \"yes\"\nexpect-file a.txt \"sí\" | yes\n"));
    EXPECT_EQ(told("language spanish | english\nexpect-dialog open a | b c | d", Playing::inSpanish),
              Texts{"expect-dialog open a c"});
    EXPECT_EQ(told("language spanish | english\nexpect-dialog open a | b c | d", Playing::inEnglish),
              Texts{"expect-dialog open b d"});
}

TEST(WalkLines, ABarInQuotesIsAText)
{
    EXPECT_TRUE(holdsTimes(2, "language spanish | english\nmenu mnuEditor\ntype \"|\"\nexpect txtEdit.text \"|\"\n"));
}

TEST(WalkLines, InAWalkForOneLanguageABarIsAWordLikeAnother)
{
    EXPECT_TRUE(holds("menu mnuEditor\ntype |\nexpect txtEdit.text |\nexpect txtEdit.text \"|\"\n"));
    EXPECT_TRUE(holds("language spanish\nmenu mnuEditor\ntype |\nexpect txtEdit.text |\n"));
}

TEST(WalkLines, LaterOnTheLanguageMayBeSwitchedInEachPlaying)
{
    EXPECT_TRUE(holdsTimes(2, "language spanish | english\nlanguage english | spanish\n"
                              "expect program.LanguageIsEnglish -1 | 0\n"));
}

struct Unreadable {
    const char* text;
    const char* report;
};

// clang-format off
constexpr Unreadable unreadable[] = {
    {"new Sheet1\nlanguage spanish | english",                 "w:2: language wants english|spanish"},
    {"language english | spanish",                             "w:1: language wants english|spanish"},
    {"language spanish \"|\" english",                         "w:1: language wants english|spanish"},
    {"expect ..caption a | b",                                 "w:1: \"|\" is not of the form CONTROL.PROPERTY"},
    {"expect-box a | b",                                       "w:1: \"b\" is no whole number from 0 to 2147483647"},
    {"es: expect-running",                                     "w:1: unknown command \"es:\""},
    {"language spanish | english\nexpect ..caption a |",       "w:2: in Spanish: | must stand between two texts"},
    {"language spanish | english\nexpect | a b",               "w:2: in Spanish: | must stand between two texts"},
    {"language spanish | english\n| a",                        "w:2: in Spanish: | must stand between two texts"},
    {"language spanish | english\nexpect ..caption a | b | c", "w:2: in Spanish: | must stand between two texts"},
    {"language spanish | english\nexpect ..caption a | | b",   "w:2: in Spanish: | must stand between two texts"},
    {"language spanish | english\nes:",                        "w:2: in Spanish: es: wants a command"},
    {"language spanish | english\nen:",                        "w:2: in English: en: wants a command"},
    {"language spanish | english\nen: frob",                   "w:2: in English: unknown command \"frob\""},
    {"language spanish | english\nes: es: expect-running",     "w:2: in Spanish: unknown command \"es:\""},
    {"language spanish | english\nen: type a | b",             "w:2: in English: a line for one language has no second text"},
    {"language spanish | english\nfr: expect-running",         "w:2: in Spanish: unknown command \"fr:\""},
    {"expect-shown",                                           "w:1: expect-shown wants CONTROL ..."},
    {"expect-shown Said Text99",                               "w:1: unknown control \"Text99\" of MDIForm1"},
    {"expect-gone Said",                                       "w:1: unknown command \"expect-gone\""},
    {"expect-in Sheet1 shown",                                 "w:1: expect-in wants WINDOW CONTROL.PROPERTY VALUE"},
    {"expect-in Sheet1 gone Text1",                            "w:1: \"gone\" is not of the form CONTROL.PROPERTY"},
    {"expect-in Sheet1 shown Text99",                          "w:1: unknown control \"Text99\" of Sheet1"},
    {"expect-enabled mnuBox(0)..mnuBox(2)",                    "w:1: \"mnuBox(0)..mnuBox(2)\" is no range of controls"},
    {"expect-enabled Text1..",                                 "w:1: \"Text1..\" is no range of controls"},
    {"expect-enabled ..Text1",                                 "w:1: \"..Text1\" is no range of controls"},
    {"expect-enabled 1..3",                                    "w:1: \"1..3\" is no range of controls"},
    {"expect-enabled Text..Text3",                             "w:1: \"Text..Text3\" is no range of controls"},
    {"expect-enabled Text1..Label3",                           "w:1: \"Text1..Label3\" is no range of controls"},
    {"expect-enabled Text3..Text3",                            "w:1: \"Text3..Text3\" is no range of controls"},
    {"expect-enabled Text3..Text1",                            "w:1: \"Text3..Text1\" is no range of controls"},
    {"expect-enabled Text1..Text2x",                           "w:1: \"2x\" is no whole number from 0 to 1000"},
    {"new Sheet1\nexpect-shown Text1..Text9",                  "w:2: unknown control \"Text4\" of Sheet1"},
    {"expect Said.text a Said.text",                           "w:1: each CONTROL.PROPERTY wants its VALUE"},
    {"expect-in Form16 ..text a ..text",                       "w:1: each CONTROL.PROPERTY wants its VALUE"},
    {"enter 5",                                                "w:1: unknown control \"5\" of MDIForm1"},
    {"new Sheet1\nenter Text1 5 6",                            "w:2: enter wants nothing, FIELD, or FIELD VALUE"},
    {"new Sheet1\nesc Text1 5 6",                              "w:2: esc wants nothing, FIELD, or FIELD VALUE"},
    {"new Sheet1\nenter-each",                                 "w:2: enter-each wants FIELD ..."},
    {"new Sheet1\nenter-each Text1 Text99",                    "w:2: unknown control \"Text99\" of Sheet1"},
};
// clang-format on

TEST(WalkLines, WhatCannotBeReadIsReportedWithItsReason)
{
    for (const Unreadable& walk : unreadable) {
        const Played played = play(walk.text);
        EXPECT_EQ(played.result.exitStatus(), 2) << walk.text;
        EXPECT_EQ(played.output, walk.report + std::string("\n")) << walk.text;
    }
}

TEST(WalkLines, AWalkThatCannotBeReadInSpanishIsNotPlayedInEnglish)
{
    const Played played = play("language spanish | english\nexpect-running\nfrob\n");
    EXPECT_EQ(played.result.passed, 1);
    EXPECT_EQ(played.output, "w:3: in Spanish: unknown command \"frob\"\n");
}

TEST(WalkLines, AListAsksForEachOfItsControls)
{
    EXPECT_TRUE(holdsTimes(4, "new Sheet1\nexpect-shown Text1 Text2 Command1 .\n"));
    EXPECT_TRUE(holdsTimes(1, "new Sheet1\nexpect-hidden Hidden\n"));
    EXPECT_TRUE(holdsTimes(3, "new Sheet1\nexpect-enabled Text1 text2\nexpect-disabled Text3\n"));
    EXPECT_TRUE(holdsTimes(3, "new Sheet1\nwindow MDIForm1\nexpect-in Sheet1 shown Text1 Text2\n"
                              "expect-in Sheet1 hidden Hidden\n"));
    EXPECT_TRUE(holdsTimes(2, "new Sheet1\nexpect-in Sheet1 enabled Text1\nexpect-in Sheet1 disabled Text3\n"));
}

TEST(WalkLines, ARangeIsEachOfItsNumbers)
{
    EXPECT_EQ(told("expect-hidden Text9..Text11 Said"),
              (Texts{"expect Text9.visible false", "expect Text10.visible false", "expect Text11.visible false",
                     "expect Said.visible false"}));
    EXPECT_TRUE(holdsTimes(3, "new Sheet1\nexpect-shown Text1..Text3\n"));
}

TEST(WalkLines, OfAListThatDoesNotHoldEachControlThatFailsIsNamedAlone)
{
    const Played played = play("new Sheet1\nexpect-shown Text1 Hidden Text2\nexpect-disabled Text1..Text3\n");
    EXPECT_EQ(played.result.passed, 3);
    EXPECT_EQ(played.result.failed, 3);
    EXPECT_EQ(played.output, "w:2: expect Hidden.visible true: expected \"true\", found \"false\"\n"
                             "w:3: expect Text1.enabled false: expected \"false\", found \"true\"\n"
                             "w:3: expect Text2.enabled false: expected \"false\", found \"true\"\n");
}

TEST(WalkLines, SeveralPropertiesStandWithTheirValuesInOneLine)
{
    EXPECT_TRUE(holdsTimes(3, "new Sheet1\nexpect Option(1).tag 7 Option(1).fontsize 12 Text1.text \"\"\n"));
    EXPECT_TRUE(holdsTimes(2, "new Sheet1\nexpect-in Sheet1 Option(1).tag 7 ..caption \"  Hoja\"\n"));
    EXPECT_TRUE(failsWith("new Sheet1\nfill Text1 5\nexpect Text1.text 5 Text1.tag 1 Text2.text \"\"\n",
                          "w:3: expect Text1.tag 1: expected \"1\", found \"0\""));
}

TEST(WalkLines, EnterWithItsFieldAsksForTheFocusFillsAndPresses)
{
    EXPECT_TRUE(holdsTimes(3, "new Sheet1\nfill Text1 9\nenter Text1 5\nexpect-focus Text2\nexpect Text1.text 5\n"));
    EXPECT_TRUE(holdsTimes(3, "new Sheet1\nfill Text1 9\nenter Text1\nexpect-focus Text2\nexpect Text1.text 9\n"));
    EXPECT_EQ(told("enter Text1 5"), (Texts{"expect-focus Text1", "clear", "type 5", "enter"}));
    EXPECT_EQ(told("esc Text1"), (Texts{"expect-focus Text1", "esc"}));
    EXPECT_EQ(told("esc Text1 \"\""), (Texts{"expect-focus Text1", "clear", "type \"\"", "esc"}));
    EXPECT_TRUE(
        failsWith("new Sheet1\nenter Text2 5\n", "w:2: expect-focus Text2: expected the focus on Text2, found Text1"));
}

TEST(WalkLines, EnterEachPressesInOneFieldAfterTheOther)
{
    EXPECT_TRUE(holdsTimes(4, "new Sheet1\nenter-each Text1..Text2\nexpect-focus Text2\n"
                              "expect Log.caption \"focus Text1;lost Text1;focus Text2;key13;\"\n"));
    EXPECT_EQ(told("enter-each Text1 Text8..Text9"),
              (Texts{"expect-focus Text1", "enter", "expect-focus Text8", "enter", "expect-focus Text9", "enter"}));
}

TEST(WalkLines, PlainCommandsStayTheLineTheyAre)
{
    EXPECT_EQ(told("  fill  Text1   \"5\" "), Texts{"  fill  Text1   \"5\" "});
    EXPECT_EQ(told("enter"), Texts{"enter"});
    EXPECT_EQ(told("expect Text1.text \"a b\""), Texts{"expect Text1.text \"a b\""});
    EXPECT_EQ(told("# expect-shown"), Texts{});
}

TEST(WalkLines, TheTraceTellsWhatIsPlayedOneCommandALine)
{
    const Ran ran = run({"--trace"}, "language spanish | english\nes: expect-running\nexpect-in Form16 shown . | .\n");
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.output, "> language spanish\n"
                          "> expect-running\n"
                          "  load MDIForm1\n"
                          "> expect-in Form16 ..visible true\n"
                          "-:3: in Spanish: expect-in Form16 ..visible true: the window \"Form16\" is not open\n"
                          "> language english\n"
                          "> expect-in Form16 ..visible true\n"
                          "  load MDIForm1\n"
                          "-:3: in English: expect-in Form16 ..visible true: the window \"Form16\" is not open\n"
                          "1 passed, 2 failed\n");
}

} // namespace walk_lines_test

} // namespace velmor::console::test
