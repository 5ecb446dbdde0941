// SPDX-License-Identifier: MIT
// Every question: it holds when it should, and it fails, with a plain report, when it should not hold.
#include "console/fixture_program.h"

namespace velmor::console::test {

namespace walk_questions_test {

TEST(WalkQuestions, ExpectComparesExactly)
{
    EXPECT_TRUE(holds("new Sheet1\nfill Text1 10\nexpect Text1.text 10\nexpect text1.TEXT 10\n"));
    EXPECT_TRUE(failsWith("new Sheet1\nfill Text1 10\nexpect Text1.text 10.0\n",
                          "w:3: expect Text1.text 10.0: expected \"10.0\", found \"10\""));
}

TEST(WalkQuestions, EveryPropertyOfAControl)
{
    EXPECT_TRUE(
        holds("new Sheet1\nexpect Command1.caption Work\nexpect Command1.text Work\nexpect Hidden.visible false\n"
              "expect Text1.visible true\nexpect Text3.enabled false\nexpect Text1.enabled true\n"
              "expect Option(1).checked false\nexpect Option(1).tag 7\nexpect Text1.tag 0\nexpect Text1.left 100\n"
              "expect Text1.top 200\nexpect Text1.width 300\nexpect Text1.height 400\n"
              "expect Option(1).backcolor 00BC0A\nexpect Text1.backcolor \"\"\nexpect Text1.forecolor \"\"\n"
              "expect Option(1).fontsize 12\nexpect Text1.fontsize 8\n"
              "expect Text1.focus true\nexpect Text2.focus false\n"));
}

TEST(WalkQuestions, EveryPropertyOfAWindow)
{
    EXPECT_TRUE(
        holds("new Sheet1\nrestore\nexpect ..caption \"  Hoja\"\nexpect ..text \"  Hoja\"\nexpect ..visible true\n"
              "expect ..windowstate 0\nexpect ..left 0\nexpect ..top 0\nexpect ..focus true\n"
              "expect-near ..width 20250\nexpect-near ..height 10125\n"
              "expect-in MDIForm1 ..visible false\nexpect-in MDIForm1 ..focus false\n"));
}

TEST(WalkQuestions, ALineBreakIsALineFeedWhicheverTheProgramStores)
{
    EXPECT_TRUE(holds("menu mnuBox(0)\nexpect-box \"Which\\nway?\"\nnew Sheet1\nexpect Result.caption \"Two\\nlines\"\n"
                      "expect Result.caption \"Two\\r\\nlines\"\n"));
}

TEST(WalkQuestions, ExpectNearReadsTheLeadingNumber)
{
    EXPECT_TRUE(
        holds("new Sheet1\nfocus Text2\ntype \"1.5 mA\"\nexpect-near Text2.text 1.5\n"
              "expect-near Text2.text 1.5000000001\nexpect-near Text2.text 1.6 0.11\nexpect-near Text2.text +1.5 0\n"
              "clear\nexpect-near Text2.text 0\n"));
    EXPECT_TRUE(failsWith("new Sheet1\nfill Text1 1.5\nexpect-near Text1.text 1.50001\n",
                          "w:3: expect-near Text1.text 1.50001: expected 1.50001, found \"1.5\""));
    EXPECT_TRUE(failsWith("new Sheet1\nfill Text1 1.5\nexpect-near Text1.text 1.6 0.09\n",
                          "w:3: expect-near Text1.text 1.6 0.09: expected 1.6 within 0.09, found \"1.5\""));
}

TEST(WalkQuestions, ExpectContainsAndExpectLacks)
{
    EXPECT_TRUE(holds("new Sheet1\nexpect-contains Result.caption \"o\\nl\"\nexpect-lacks Result.caption three\n"));
    EXPECT_TRUE(
        failsWith("new Sheet1\nexpect-contains Result.caption three\n",
                  "w:2: expect-contains Result.caption three: expected a text with \"three\", found \"Two\\nlines\""));
    EXPECT_TRUE(
        failsWith("new Sheet1\nexpect-lacks Result.caption Two\n",
                  "w:2: expect-lacks Result.caption Two: expected a text without \"Two\", found \"Two\\nlines\""));
}

TEST(WalkQuestions, ExpectFocus)
{
    EXPECT_TRUE(holds("expect-focus .\nnew Sheet1\nexpect-focus text1\n"));
    EXPECT_TRUE(failsWith("new Sheet1\nexpect-focus Text2\n",
                          "w:2: expect-focus Text2: expected the focus on Text2, found Text1"));
    EXPECT_TRUE(failsWith("expect-focus Said\n", "w:1: expect-focus Said: expected the focus on Said, found none"));
}

TEST(WalkQuestions, ExpectBoxAsksForTheOldestBox)
{
    EXPECT_TRUE(holds("menu mnuBox(0)\nmenu mnuBox(1)\nmenu mnuBox(2)\nexpect-box \"Which\\nway?\" Title 48\n"
                      "expect-box * * 65\nexpect-box * Title\nexpect-no-box\n"));
    EXPECT_TRUE(failsWith("menu mnuBox(0)\nexpect-box Other\n",
                          "w:2: expect-box Other: expected box \"Other\", found box \"Which\\nway?\" \"Title\" 48"));
    EXPECT_TRUE(
        failsWith("menu mnuBox(0)\nexpect-box * Other\n",
                  "w:2: expect-box * Other: expected box \"*\" \"Other\", found box \"Which\\nway?\" \"Title\" 48"));
    EXPECT_TRUE(
        failsWith("menu mnuBox(0)\nexpect-box * * 16\n",
                  "w:2: expect-box * * 16: expected box \"*\" \"*\" \"16\", found box \"Which\\nway?\" \"Title\" 48"));
    EXPECT_TRUE(failsWith("expect-box *\n", "w:1: expect-box *: expected box \"*\", found no box"));
}

TEST(WalkQuestions, ABoxThatWasAskedForInVainCountsAsAskedForToo)
{
    EXPECT_TRUE(failsWith("menu mnuBox(0)\nexpect-box Other\nexpect-no-box\n",
                          "w:2: expect-box Other: expected box \"Other\", found box \"Which\\nway?\" \"Title\" 48"));
}

TEST(WalkQuestions, ExpectNoBox)
{
    EXPECT_TRUE(failsWith("menu mnuBox(0)\nexpect-no-box\n",
                          "w:2: expect-no-box: expected no box, found box \"Which\\nway?\" \"Title\" 48"));
}

TEST(WalkQuestions, ExpectWindowCountsHiddenWindowsToo)
{
    EXPECT_TRUE(
        holds("new Sheet1\nnew Sheet1\nexpect-window sheet1 2\nmenu mnuTool\nmenu mnuHideTool\nexpect-window Tool1\n"
              "expect-active Sheet1\n"));
    EXPECT_TRUE(failsWith("expect-window Sheet1\n", "w:1: expect-window Sheet1: expected 1 open, found 0"));
}

TEST(WalkQuestions, ExpectActive)
{
    EXPECT_TRUE(failsWith("new Sheet1\nexpect-active MDIForm1\n",
                          "w:2: expect-active MDIForm1: expected MDIForm1, found Sheet1"));
}

TEST(WalkQuestions, ExpectInAsksWithoutActivating)
{
    EXPECT_TRUE(holds("menu mnuBox(0)\nnew Sheet1\nexpect-in MDIForm1 Said.text 1\nexpect-active Sheet1\n"));
    EXPECT_TRUE(failsWith("expect-in MDIForm1 Said.text 2\n",
                          "w:1: expect-in MDIForm1 Said.text 2: expected \"2\", found \"\""));
    EXPECT_TRUE(failsWith("expect-in Sheet1 Text1.text 2\n",
                          "w:1: expect-in Sheet1 Text1.text 2: the window \"Sheet1\" is not open"));
    EXPECT_TRUE(stopsWith("expect-in Sheet1 Text9.text 2\n", "w:1: unknown control \"Text9\" of Sheet1"));
    EXPECT_TRUE(stopsWith("expect-in Sheet1 Text1.size 2\n", "w:1: unknown property \"size\""));
    EXPECT_TRUE(stopsWith("expect-in Sheet9 Text1.text 2\n", "w:1: unknown window \"Sheet9\""));
}

TEST(WalkQuestions, ExpectDialogAsksForTheOldestDialog)
{
    EXPECT_TRUE(failsWith("menu mnuOpen\nexpect-dialog save \"Open it\"\n",
                          "w:2: expect-dialog save \"Open it\": expected dialog \"save\" \"Open it\", "
                          "found dialog open \"Open it\" \"All|*.*\""));
    EXPECT_TRUE(failsWith("menu mnuOpen\nexpect-dialog open Other\n",
                          "w:2: expect-dialog open Other: expected dialog \"open\" \"Other\", "
                          "found dialog open \"Open it\" \"All|*.*\""));
    EXPECT_TRUE(failsWith("menu mnuOpen\nexpect-dialog open * *.txt\n",
                          "w:2: expect-dialog open * *.txt: expected dialog \"open\" \"*\" \"*.txt\", "
                          "found dialog open \"Open it\" \"All|*.*\""));
    EXPECT_TRUE(failsWith("expect-dialog font \"\"\n",
                          "w:1: expect-dialog font \"\": expected dialog \"font\" \"\", found no dialog"));
}

TEST(WalkQuestions, ExpectPrintedSeesTheTextSentLast)
{
    EXPECT_TRUE(
        holds("menu mnuPrint\nexpect-printed \"one\\ntwo\\n\"\nexpect-dialog print \"\"\nexpect Said.text 720\n"));
    EXPECT_TRUE(failsWith("menu mnuPrint\nexpect-printed one\n",
                          "w:2: expect-printed one: expected \"one\", found \"one\\ntwo\\n\""));
    EXPECT_TRUE(failsWith("expect-printed one\n", "w:1: expect-printed one: expected \"one\", found nothing printed"));
}

TEST(WalkQuestions, ExpectRanSeesTheFileRunLast)
{
    EXPECT_TRUE(holds(
        "menu mnuRunFile\nexpect-ran \"a b.exe\"\nmenu mnuRunWith\nexpect-ran \"c:\\\\ewb50\\\\Wewb32 x.ewb\"\n"));
    EXPECT_TRUE(failsWith("menu mnuRunWith\nexpect-ran x\n",
                          "w:2: expect-ran x: expected \"x\", found \"c:\\\\ewb50\\\\Wewb32 x.ewb\""));
    EXPECT_TRUE(failsWith("expect-ran x\n", "w:1: expect-ran x: expected \"x\", found nothing run"));
}

TEST(WalkQuestions, ExpectFileComparesTheDecodedContentAsItIs)
{
    EXPECT_TRUE(holds("write-file a.txt \"ñ\\r\\n\"\nexpect-file a.txt \"ñ\\r\\n\"\n"));
    EXPECT_TRUE(failsWith("write-file a.txt \"x\\r\\n\"\nexpect-file a.txt \"x\\n\"\n",
                          "w:2: expect-file a.txt \"x\\n\": expected \"x\\n\", found \"x\\r\\n\""));
    EXPECT_TRUE(
        failsWith("expect-file a.txt x\n", "w:1: expect-file a.txt x: expected a file, found none that can be read"));
}

TEST(WalkQuestions, ExpectSetting)
{
    EXPECT_TRUE(failsWith("expect-setting A b c\n", "w:1: expect-setting A b c: expected \"c\", found \"*none*\""));
}

TEST(WalkQuestions, ExpectPopup)
{
    EXPECT_TRUE(holds("menu mnuPopup\nexpect-popup mnuCircuit\nexpect-popup MNUCIRCUIT\n"));
    EXPECT_TRUE(
        failsWith("expect-popup mnuCircuit\n", "w:1: expect-popup mnuCircuit: expected mnuCircuit, found none"));
}

TEST(WalkQuestions, ExpectArranged)
{
    EXPECT_TRUE(holds("menu mnuTile\nexpect-arranged 1\n"));
    EXPECT_TRUE(failsWith("expect-arranged 0\n", "w:1: expect-arranged 0: expected 0, found never arranged"));
    EXPECT_TRUE(stopsWith("expect-arranged 3\n", "w:1: \"3\" is no whole number from 0 to 2"));
}

TEST(WalkQuestions, ExpectEndedAndExpectRunning)
{
    EXPECT_TRUE(holds("expect-running\nmenu mnuExit\nexpect-ended\n"));
    EXPECT_TRUE(failsWith("expect-ended\n", "w:1: expect-ended: expected an ended program, found a running one"));
    EXPECT_TRUE(failsWith("menu mnuExit\nexpect-running\n",
                          "w:2: expect-running: expected a running program, found an ended one"));
}

TEST(WalkQuestions, ExpectBeepsCountsSinceItWasAskedLast)
{
    EXPECT_TRUE(holds("new Sheet1\ntype abc\nexpect-beeps 3\nexpect-beeps 0\n"));
    EXPECT_TRUE(failsWith("new Sheet1\ntype ab\nexpect-beeps 3\nexpect-beeps 0\n",
                          "w:3: expect-beeps 3: expected 3 beeps, found 2"));
}

TEST(WalkQuestions, PrintDumpWindowsAndBoxesCheckNothing)
{
    const Played played = play("new Sheet1\nfill Text1 1\nmenu mnuBox(0)\nprint Text1.text\nwindows\nboxes\ndump\n");
    EXPECT_EQ(played.result.passed, 0);
    EXPECT_EQ(played.result.exitStatus(), 0);
    EXPECT_EQ(played.output.substr(0, played.output.find("  Text2")),
              "Text1.text \"1\"\n"
              "MDIForm1#1 \"Main\" hidden\nSheet1#1 \"  Hoja\" current\n"
              "box \"Which\\nway?\" \"Title\" 48\n"
              "Sheet1#1 \"  Hoja\" state 0 focus Text1\n"
              "  Text1 \"1\"\n");
    EXPECT_NE(played.output.find("  Text3 \"\" disabled\n  Hidden \"\" hidden\n"), std::string::npos);
    EXPECT_NE(played.output.find("  Fruit \"\" entries \"pear\" \"apple\"\n"), std::string::npos);
}

} // namespace walk_questions_test

} // namespace velmor::console::test
