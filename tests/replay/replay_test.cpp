// SPDX-License-Identifier: MIT
// Every walk of the project once more beside a blank sheet of its kind, and once more with the language switched to and
// fro after every deed.
#include "replay/replay.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "console/whole_program.h"
#include "places.h"
#include "rules/scratch_folder.h"
#include "sheets/sheet_slots.h"

namespace velmor::replay {

namespace replay_test {

std::string folder()
{
    return places::source() + "/tests/walks";
}

std::vector<std::string> walks()
{
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder()))
        if (entry.path().extension() == ".walk")
            found.push_back(std::filesystem::relative(entry.path(), folder()).generic_string());
    std::sort(found.begin(), found.end());
    return found;
}

/// Walks that ask what must be different; why.
struct NotReplayed {
    std::string_view walk;
    std::string_view why;
};

// clang-format off
constexpr NotReplayed notToAndFro[] = {
    {"form16/hover.walk",                        "a switch writes the caption of the main window, which bears the name of the page here"},
    {"mdiform1/next_start_marked_already.walk",  "the language of the moment changes here without its captions, until a switch writes "
                                                 "them"},
};
// clang-format on

bool isLeftOut(std::string_view walk)
{
    return std::any_of(std::begin(notToAndFro), std::end(notToAndFro),
                       [walk](const NotReplayed& row) { return row.walk == walk; });
}

testing::AssertionResult endsTheSame(const Outcome& written, const Outcome& other)
{
    if (other.result.exitStatus() != 0)
        return testing::AssertionFailure() << other.output;
    if (!other.disturbed.empty())
        return testing::AssertionFailure() << "the blank sheet was changed: " << other.disturbed;
    if (other.cutShort)
        return testing::AssertionSuccess();
    if (other.result.passed != written.result.passed)
        return testing::AssertionFailure()
               << written.result.passed << " held before, " << other.result.passed << " now";
    for (std::size_t i = 0; i < std::max(written.texts.size(), other.texts.size()); ++i)
        if (i >= written.texts.size() || i >= other.texts.size() || written.texts[i] != other.texts[i])
            return testing::AssertionFailure()
                   << "before: " << (i < written.texts.size() ? written.texts[i] : "nothing")
                   << "\n   now: " << (i < other.texts.size() ? other.texts[i] : "nothing");
    return testing::AssertionSuccess();
}

testing::AssertionResult endTheSame(const std::vector<Outcome>& written, const std::vector<Outcome>& other)
{
    if (written.empty() || written.size() != other.size())
        return testing::AssertionFailure() << written.size() << " playings before, " << other.size() << " now";
    for (std::size_t i = 0; i < written.size(); ++i)
        if (testing::AssertionResult same = endsTheSame(written[i], other[i]); !same)
            return same;
    return testing::AssertionSuccess();
}

class EveryWalk : public testing::TestWithParam<std::string> {
protected:
    // Some walks find the guides in the working folder.
    static void SetUpTestSuite() { std::filesystem::current_path(places::played()); }
    std::vector<Outcome> played(Manner manner) const
    {
        return replayed(console::wholeProgram(), folder() + "/" + GetParam(), manner);
    }
};

TEST_P(EveryWalk, HoldsBesideASheetOfItsKind)
{
    EXPECT_TRUE(endTheSame(played(Manner::asWritten), played(Manner::besideASheet)));
}

TEST_P(EveryWalk, HoldsWithTheLanguageSwitchedToAndFro)
{
    if (isLeftOut(GetParam()))
        return;
    EXPECT_TRUE(endTheSame(played(Manner::asWritten), played(Manner::languageToAndFro)));
}

INSTANTIATE_TEST_SUITE_P(Walks, EveryWalk, testing::ValuesIn(walks()), [](const auto& row) {
    std::string name = row.param.substr(0, row.param.size() - std::string_view(".walk").size());
    std::replace_if(
        name.begin(), name.end(), [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; }, '_');
    return name;
});

TEST(Replays, LeaveOutOnlyWalksThatAreThere)
{
    const std::vector<std::string> all = walks();
    EXPECT_GT(all.size(), 100u);
    for (const NotReplayed& row : notToAndFro)
        EXPECT_NE(std::find(all.begin(), all.end(), row.walk), all.end()) << row.walk;
}

TEST(Replays, CountOneSheetMore)
{
    using Words = std::vector<std::string>;
    EXPECT_EQ(withOneSheetMore({"window", "Form2#1"}, "Form2"), (Words{"window", "Form2#2"}));
    EXPECT_EQ(withOneSheetMore({"expect-in", "form2#12", "Text1.text", "Form3#1"}, "Form2"),
              (Words{"expect-in", "form2#13", "Text1.text", "Form3#1"}));
    EXPECT_EQ(withOneSheetMore({"expect-window", "Form2"}, "Form2"), (Words{"expect-window", "Form2", "2"}));
    EXPECT_EQ(withOneSheetMore({"expect-window", "Form2", "0"}, "Form2"), (Words{"expect-window", "Form2", "1"}));
    EXPECT_EQ(withOneSheetMore({"expect-window", "Form21"}, "Form2"), (Words{"expect-window", "Form21"}));
    EXPECT_EQ(withOneSheetMore({"window", "Form21#1"}, "Form2"), (Words{"window", "Form21#1"}));
    EXPECT_EQ(withOneSheetMore({"window", "Form2"}, "Form2"), (Words{"window", "Form2"}));
}

// --- sheets that a replay must find out

enum Control : host::Handle { Text1, Result, Press };

// clang-format off
constexpr host::ControlRow rows[] = {
    {.id = Text1,  .name = "Text1",  .kind = host::Kind::field},
    {.id = Result, .name = "Result", .kind = host::Kind::label},
    {.id = Press,  .name = "Press",  .kind = host::Kind::image},
};
constexpr sheets::FileLine lines[] = {{Text1}};
// clang-format on

enum class Fault : std::uint8_t { none, countsWindows, meddles, readsTheMainCaption };

class BadSheet final : public sheets::DesignSheet {
public:
    explicit BadSheet(host::SheetHost& host);
    static inline Fault fault = Fault::none;

    void click()
    {
        setText(Result, "done");
        if (fault == Fault::countsWindows)
            setText(Result, std::to_string(host().windows().size()));
        if (fault == Fault::readsTheMainCaption)
            setText(Result, host().mainWindow().caption());
        for (host::Window* other : host().windows())
            if (fault == Fault::meddles && other != this && other->name() == name())
                other->setText(Text1, "7");
    }
    std::string reportText() const override { return {}; }
};

constexpr std::array<host::SlotRow, 1> clicks{{{Press, host::Event::click, host::slot<&BadSheet::click>}}};
constexpr auto slots = sheets::joined(sheets::frameSlots, clicks);
const sheets::SheetSpec sheetSpec{.filter = {"a|*.a", "b|*.b"}, .written = lines, .read = lines};

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<BadSheet>(host);
}
const host::WindowSpec badSpec{.name = "BadSheet",
                               .role = host::Role::sheet,
                               .place = {0, 0, 900, 900},
                               .controls = rows,
                               .slots = slots,
                               .create = create};
BadSheet::BadSheet(host::SheetHost& host) : DesignSheet(host, badSpec, sheetSpec) {}

const console::WalkedProgram& badProgram()
{
    static const std::vector<const host::WindowSpec*> windows = [] {
        const host::Catalogue whole = console::wholeProgram().catalogue;
        std::vector<const host::WindowSpec*> all(whole.begin(), whole.end());
        all.push_back(&badSpec);
        return all;
    }();
    static const console::WalkedProgram program{windows, console::wholeProgram().start,
                                                console::wholeProgram().newSheet};
    return program;
}

/// The end of a small walk as written and in another manner, on a sheet with this fault.
testing::AssertionResult smallWalk(Fault fault, Manner manner, const std::string& walk = "new BadSheet\nclick Press\n")
{
    const rules::ScratchFolder scratch;
    const std::string file = scratch.put("small.walk", walk).string();
    BadSheet::fault = fault;
    return endTheSame(replayed(badProgram(), file, Manner::asWritten), replayed(badProgram(), file, manner));
}

TEST(Replays, PassASoundSheet)
{
    EXPECT_TRUE(smallWalk(Fault::none, Manner::besideASheet));
    EXPECT_TRUE(smallWalk(Fault::none, Manner::languageToAndFro));
}

TEST(Replays, FindASheetThatKnowsOfOthers)
{
    const testing::AssertionResult result = smallWalk(Fault::countsWindows, Manner::besideASheet);
    EXPECT_FALSE(result);
    EXPECT_NE(std::string(result.message()).find("BadSheet.Result = "), std::string::npos) << result.message();
}

TEST(Replays, FindASheetThatWritesIntoAnother)
{
    const testing::AssertionResult result = smallWalk(Fault::meddles, Manner::besideASheet);
    EXPECT_STREQ(result.message(), "the blank sheet was changed: Text1 = 7");
}

TEST(Replays, FindASheetOnWhichASwitchOfLanguageLeavesATrace)
{
    EXPECT_FALSE(smallWalk(Fault::readsTheMainCaption, Manner::languageToAndFro));
}

TEST(Replays, FindAnExpectationThatNoLongerHolds)
{
    const std::string walk = "new BadSheet\nclick Press\nexpect Result.caption 2\n";
    EXPECT_FALSE(smallWalk(Fault::countsWindows, Manner::besideASheet, walk));
}

TEST(Replays, PlayAWalkForBothLanguagesInEach)
{
    const std::string walk = "language spanish | english\nnew BadSheet\nclick Press\nexpect Result.caption done\n";
    EXPECT_TRUE(smallWalk(Fault::none, Manner::besideASheet, walk));
    EXPECT_FALSE(smallWalk(Fault::none, Manner::besideASheet, walk + "en: expect Result.caption hecho\n"));
    EXPECT_FALSE(smallWalk(Fault::countsWindows, Manner::besideASheet, walk));
}

TEST(Replays, StopWhereTheWalkComesToTheBlankSheet)
{
    EXPECT_TRUE(smallWalk(Fault::none, Manner::besideASheet,
                          "new BadSheet\nanswer no\nclose\nexpect-active MDIForm1\nexpect-window BadSheet 0\n"));
}

} // namespace replay_test

} // namespace velmor::replay
