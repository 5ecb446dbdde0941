// SPDX-License-Identifier: MIT
// Reading of walks: what cannot be read, exit statuses, several files, the trace.
#include <filesystem>
#include <fstream>
#include <random>

#include "console/fixture_program.h"
#include "console/verbs.h"
#include "console/walk_lines.h"
#include "places.h"

namespace velmor::console::test {

namespace walk_player_test {

std::string walkFile(const std::string& name, const std::string& text)
{
    const std::filesystem::path folder = std::filesystem::path(places::build()) / "walk_player";
    std::filesystem::create_directories(folder);
    const std::filesystem::path path = folder / name;
    std::ofstream(path, std::ios::binary) << text;
    return path.string();
}

struct Unreadable {
    const char* text;
    const char* report;
};

// clang-format off
constexpr Unreadable unreadable[] = {
    {"frob",                          "w:1: unknown command \"frob\""},
    {"Start",                         "w:1: unknown command \"Start\""},
    {"\n# c\n\nclick",                "w:4: click wants CONTROL"},
    {"tab Text1",                     "w:1: tab wants nothing"},
    {"fill Text1 a b",                "w:1: fill wants CONTROL TEXT"},
    {"type \"a",                      "w:1: bad quoting: the closing quote is missing"},
    {"type \xFF",                     "w:1: the line is not UTF-8"},
    {"language english german",       "w:1: language wants english|spanish"},
    {"language German",               "w:1: unknown language \"German\""},
    {"new Form99",                    "w:1: unknown window \"Form99\""},
    {"new Form16",                    "w:1: Form16 is no sheet"},
    {"window Form99",                 "w:1: unknown window \"Form99\""},
    {"window Sheet1",                 "w:1: the window \"Sheet1\" is not open"},
    {"new Sheet1\nwindow Sheet1#2",   "w:2: the window \"Sheet1#2\" is not open"},
    {"window Sheet1#0",               "w:1: \"0\" is no whole number from 1 to 1000000"},
    {"menu mnuNothing",               "w:1: unknown menu item \"mnuNothing\""},
    {"menu Said",                     "w:1: unknown menu item \"Said\""},
    {"focus Text99",                  "w:1: unknown control \"Text99\" of MDIForm1"},
    {"focus .",                       "w:1: unknown control \".\" of MDIForm1"},
    {"click Text99",                  "w:1: unknown control \"Text99\" of MDIForm1"},
    {"doubleclick Text99",            "w:1: unknown control \"Text99\" of MDIForm1"},
    {"hover Text99",                  "w:1: unknown control \"Text99\" of MDIForm1"},
    {"drag Said Text99",              "w:1: unknown control \"Text99\" of MDIForm1"},
    {"drag Text99 Said",              "w:1: unknown control \"Text99\" of MDIForm1"},
    {"fill Text99 1",                 "w:1: unknown control \"Text99\" of MDIForm1"},
    {"press Said middle",             "w:1: unknown button \"middle\""},
    {"press Said left alt",           "w:1: unknown key \"alt\""},
    {"press Said",                    "w:1: press wants CONTROL left|right [shift] [ctrl]"},
    {"key x",                         "w:1: \"x\" is no whole number from -32768 to 32767"},
    {"key 32768",                     "w:1: \"32768\" is no whole number from -32768 to 32767"},
    {"select 0 1",                    "w:1: MDIForm1 has no editor"},
    {"menu mnuEditor\nselect -1 1",   "w:2: \"-1\" is no whole number from 0 to 2147483647"},
    {"tick Said 1",                   "w:1: \"Said\" is no timer"},
    {"answer ok maybe",               "w:1: unknown answer \"maybe\""},
    {"colour FF",                     "w:1: \"FF\" is no colour RRGGBB"},
    {"font Arial",                    "w:1: font wants NAME SIZE [bold] [italic], or cancel"},
    {"font Arial x",                  "w:1: \"x\" is no number"},
    {"font Arial 9 fat",              "w:1: unknown style \"fat\""},
    {"choose Said x",                 "w:1: \"Said\" is no list"},
    {"set sheet.modificado 0",        "w:1: only sheet.NombreArchivo can be set"},
    {"set sheet.NombreArchivo x",     "w:1: MDIForm1 is no sheet"},
    {"call Abrir",                    "w:1: MDIForm1 is no sheet"},
    {"new Sheet1\ncall Datos",        "w:2: a sheet has no \"Datos\""},
    {"expect Text99.text x",          "w:1: unknown control \"Text99\" of MDIForm1"},
    {"expect Said.size x",            "w:1: unknown property \"size\""},
    {"expect Said.windowstate 0",     "w:1: unknown property \"windowstate\""},
    {"expect ..enabled true",         "w:1: unknown property \"enabled\""},
    {"expect program.Colour x",       "w:1: unknown property \"Colour\""},
    {"expect sheet.modificado 0",     "w:1: MDIForm1 is no sheet"},
    {"new Sheet1\nexpect sheet.x 0",  "w:2: a sheet has no \"x\""},
    {"expect Said x",                 "w:1: \"Said\" is not of the form CONTROL.PROPERTY"},
    {"expect-near Said.text x",       "w:1: \"x\" is no number"},
    {"expect-near Said.text 1 x",     "w:1: \"x\" is no number"},
    {"expect-focus Text99",           "w:1: unknown control \"Text99\" of MDIForm1"},
    {"expect-box a b c",              "w:1: \"c\" is no whole number from 0 to 2147483647"},
    {"expect-window Form99 0",        "w:1: unknown window \"Form99\""},
    {"expect-window Sheet1 x",        "w:1: \"x\" is no whole number from 0 to 2147483647"},
    {"expect-active Form99",          "w:1: unknown window \"Form99\""},
    {"expect-dialog help x",          "w:1: unknown kind of dialog \"help\""},
    {"expect-beeps x",                "w:1: \"x\" is no whole number from 0 to 2147483647"},
    {"print Said",                    "w:1: \"Said\" is not of the form CONTROL.PROPERTY"},
};
// clang-format on

TEST(WalkPlayer, WhatCannotBeReadIsReportedWithFileLineAndReason)
{
    for (const Unreadable& walk : unreadable)
        EXPECT_TRUE(stopsWith(walk.text, walk.report)) << walk.text;
}

TEST(WalkPlayer, AWalkStopsWhereItCannotBeRead)
{
    const Played played = play("expect-running\nexpect-ended\nfrob\nexpect-running\n");
    EXPECT_EQ(played.result.passed, 1);
    EXPECT_EQ(played.result.failed, 1);
    EXPECT_EQ(played.result.exitStatus(), 2);
}

TEST(WalkPlayer, AfterTheEndOfTheProgramCommandsMustStillBeReadable)
{
    EXPECT_TRUE(stopsWith("menu mnuExit\nfrob\n", "w:2: unknown command \"frob\""));
    EXPECT_TRUE(stopsWith("menu mnuExit\ntab tab\n", "w:2: tab wants nothing"));
}

TEST(WalkPlayer, LinesMayEndInCarriageReturnsAndTheTextMayBearAMark)
{
    EXPECT_TRUE(holds("\xEF\xBB\xBFnew Sheet1\r\nfill Text1 5\r\n\r\n# c\r\nexpect Text1.text 5\r\n"));
}

TEST(WalkPlayer, WithoutAFileStandardInputIsPlayed)
{
    const Ran ran = run({}, "expect-running\nexpect-ended\n");
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.output, "-:2: expect-ended: expected an ended program, found a running one\n1 passed, 1 failed\n");
    EXPECT_EQ(run({"-"}, "expect-running\n").output, "1 passed, 0 failed\n");
}

TEST(WalkPlayer, TheStatusTellsHowItEnded)
{
    EXPECT_EQ(run({}, "expect-running\n").status, 0);
    EXPECT_EQ(run({}, "").status, 0);
    EXPECT_EQ(run({}, "").output, "0 passed, 0 failed\n");
    EXPECT_EQ(run({}, "expect-ended\n").status, 1);
    EXPECT_EQ(run({}, "frob\n").status, 2);
    EXPECT_EQ(run({}, "frob\n").output, "-:1: unknown command \"frob\"\n0 passed, 0 failed\n");
}

TEST(WalkPlayer, EachFileIsAProgramOfItsOwnAndTheLastLineGivesTheTotals)
{
    const std::string one = walkFile("one.walk", "new Sheet1\nanswer ok\nexpect-window Sheet1\n");
    const std::string two = walkFile("two.walk", "expect-window Sheet1 0\nfrob\nexpect-running\n");
    const std::string three = walkFile("three.walk", "expect-running\n");
    const Ran ran = run({one, two, three});
    EXPECT_EQ(ran.status, 2);
    EXPECT_EQ(ran.output, one + ":3: answers left over at the end: 1\n" + two + ":2: unknown command \"frob\"\n" +
                              "3 passed, 1 failed\n");
    EXPECT_EQ(run({three, one}).status, 1);
}

TEST(WalkPlayer, AFileThatCannotBeOpenedIsReportedAndTheNextIsPlayed)
{
    const std::string good = walkFile("good.walk", "expect-running\n");
    const Ran ran = run({"/nowhere.walk", places::build(), good});
    EXPECT_EQ(ran.status, 2);
    EXPECT_EQ(ran.output, "/nowhere.walk: the file cannot be opened\n" + places::build() +
                              ": the file cannot be opened\n1 passed, 0 failed\n");
}

TEST(WalkPlayer, AnUnknownOptionIsRefused)
{
    EXPECT_EQ(run({"--frob"}).status, 2);
    EXPECT_EQ(run({"--help"}).status, 0);
}

TEST(WalkPlayer, TheTraceTellsEverythingInItsOrder)
{
    const Ran ran = run({"--trace"}, "new Sheet1\nfocus Text2\nanswer no\nmenu mnuBox(2)\nmenu mnuOpen\ntype \"\"\n");
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.output, "> new Sheet1\n"
                          "  load MDIForm1\n"
                          "  load Sheet1\n"
                          "  show Sheet1\n"
                          "  current Sheet1\n"
                          "  focus Sheet1 none -> Text1\n"
                          "> focus Text2\n"
                          "  focus Sheet1 Text1 -> Text2\n"
                          "> answer no\n"
                          "> menu mnuBox(2)\n"
                          "  menu mnuBox(2)\n"
                          "  box \"Which\\nway?\" title \"Title\" flags 67\n"
                          "  answer no\n"
                          "> menu mnuOpen\n"
                          "  menu mnuOpen\n"
                          "  dialog open \"Open it\" \"All|*.*\"\n"
                          "> type \"\"\n"
                          "0 passed, 0 failed\n");
}

// Words for walks made by chance: names that exist, names that do not, numbers, answers, broken quotes.
constexpr const char* chanceWords[] = {"Text1",
                                       "Text2",
                                       "Text3",
                                       "Hidden",
                                       "Command1",
                                       "Image1",
                                       "Fruit",
                                       "txtEdit",
                                       "Timer1",
                                       "Sheet1",
                                       "Editor1",
                                       "Tool1",
                                       "Form16",
                                       "MDIForm1",
                                       "mnuEditor",
                                       "mnuTool",
                                       "mnuBox(2)",
                                       "mnuOpen",
                                       "mnuNew",
                                       "mnuTile",
                                       "mnuPalette",
                                       "mnuHidden",
                                       "mnuExit",
                                       "mnuFails",
                                       "apple",
                                       "left",
                                       "right",
                                       "ok",
                                       "cancel",
                                       "yes",
                                       "1",
                                       "0",
                                       "13",
                                       "\"a b\\n\"",
                                       "\"ñ€Ω\"",
                                       "\"",
                                       "Sheet1#2",
                                       "Text1.text",
                                       "..caption",
                                       "sheet.modificado",
                                       "sheet.NombreArchivo",
                                       "Guardar",
                                       "Abrir",
                                       "CDL_AbrirDatos",
                                       "english",
                                       ".",
                                       "a.txt"};

std::string chanceShortForm(std::mt19937& chance)
{
    std::string line(shortForms()[chance() % shortForms().size()]);
    for (std::size_t words = chance() % 4; words > 0; --words)
        line += std::string(" ") + chanceWords[chance() % std::size(chanceWords)];
    return line;
}

std::string chanceLine(std::mt19937& chance)
{
    if (chance() % 10 == 0)
        return chanceShortForm(chance);
    const std::span<const Verb> tables[] = {preparations(), deeds(), deeds(), deeds(), questions()};
    const std::span<const Verb> verbs = tables[chance() % std::size(tables)];
    const Verb& verb = verbs[chance() % verbs.size()];
    std::string line(verb.name);
    const std::size_t words = verb.least + chance() % (std::min<std::size_t>(verb.most, 4) - verb.least + 1);
    for (std::size_t i = 0; i < words; ++i)
        line += std::string(" ") + chanceWords[chance() % std::size(chanceWords)];
    return line;
}

TEST(WalkPlayer, WalksMadeByChanceEndWithACountAndAStatus)
{
    std::mt19937 chance(20260714);
    int statuses[3] = {};
    for (int walk = 0; walk < 60; ++walk) {
        std::string text = "new Sheet1\n";
        // A line that cannot be read ends a walk, so each line is first tried as the last one.
        for (int line = 0; line < 30; ++line) {
            const std::string longer = text + chanceLine(chance) + "\n";
            const Played played = play(longer);
            ++statuses[played.result.exitStatus()];
            if (played.result.exitStatus() < 2)
                text = longer;
        }
    }
    for (const int reached : statuses)
        EXPECT_GT(reached, 30);
}

TEST(WalkPlayer, TheManualTellsEveryCommand)
{
    std::ifstream file(std::filesystem::path(places::source()) / "docs" / "walks.md");
    const std::string manual(std::istreambuf_iterator<char>(file), {});
    ASSERT_FALSE(manual.empty());
    std::vector<std::string_view> names(shortForms().begin(), shortForms().end());
    for (const std::span<const Verb> verbs : {preparations(), deeds(), questions()})
        for (const Verb& verb : verbs)
            names.push_back(verb.name);
    for (const std::string_view each : names) {
        const std::string name = "`" + std::string(each);
        EXPECT_TRUE(manual.find(name + "`") != std::string::npos || manual.find(name + " ") != std::string::npos)
            << each;
    }
}

TEST(WalkPlayer, EachCommandStandsOnceInTheTables)
{
    std::size_t count = 0;
    for (const std::span<const Verb> verbs : {preparations(), deeds(), questions()})
        for (const Verb& verb : verbs) {
            EXPECT_EQ(verbOf(verb.name), &verb) << verb.name;
            EXPECT_LE(verb.least, verb.most) << verb.name;
            ++count;
        }
    EXPECT_EQ(count, 64U);
    EXPECT_EQ(verbOf("frob"), nullptr);
}

} // namespace walk_player_test

} // namespace velmor::console::test
