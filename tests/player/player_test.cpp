// SPDX-License-Identifier: MIT
// A short game over each window of the program and over all of them, and a look at each check of the player failing once.
#include "player/player.h"

#include <sstream>

#include <gtest/gtest.h>

#include "console/whole_program.h"
#include "player/consistency.h"
#include "rules/real.h"
#include "sheets/template_program.h"
#include "sheets/template_sheet.h"

namespace velmor::player {

namespace player_test {

constexpr std::uint64_t eventsForAWindow = 10'000;
constexpr std::uint64_t eventsForTheProgram = 30'000;
constexpr int gamesAtMost = 24;

std::string summary(const Coverage& coverage)
{
    std::ostringstream out;
    coverage.print(out, false);
    return out.str();
}

// A game may be unlucky: it goes on for a while when too little was reached, never when something was wrong.
testing::AssertionResult isSound(Player& player, std::uint64_t events, const std::string& window)
{
    for (int game = 0; game < gamesAtMost; ++game) {
        if (!player.play(events))
            return testing::AssertionFailure() << player.fault();
        if (player.coverage().shortOf(window).empty())
            return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "less than nine in ten slots were reached:\n" << summary(player.coverage());
}

class EveryWindow : public testing::TestWithParam<const host::WindowSpec*> {};

TEST_P(EveryWindow, StandsAShortGameInWhichNineInTenOfItsSlotsRun)
{
    const std::string window(GetParam()->name);
    Player player(console::wholeProgram(), {.seed = 7, .onlyWindow = window});
    EXPECT_TRUE(isSound(player, eventsForAWindow, window));
    for (const auto& [where, failure] : player.coverage().failures())
        std::cout << "ended " << failure.count << " times in " << where << '\n';
}

INSTANTIATE_TEST_SUITE_P(Catalogue, EveryWindow,
                         testing::ValuesIn(console::wholeProgram().catalogue.begin(),
                                           console::wholeProgram().catalogue.end()),
                         [](const auto& row) { return std::string(row.param->name); });

/// Divisions that the course warns of in words and leaves to the student: a load as large as RLw leaves nothing for RL.
bool isLeftToTheStudent(const std::string& where)
{
    return where == "Form8 Text2 focus: Division by zero" || where == "Form18 Text2 focus: Division by zero";
}

// Odd values may end the program, by a number that no type holds; a design from first to last field never does.
TEST_P(EveryWindow, NeverEndsTheProgramOnADiligentStudent)
{
    if (GetParam()->role != host::Role::sheet)
        return;
    for (const std::uint64_t seed : {1, 2}) {
        Player player(console::wholeProgram(),
                      {.seed = seed, .onlyWindow = std::string(GetParam()->name), .straight = true});
        EXPECT_TRUE(player.play(eventsForAWindow)) << player.fault();
        for (const auto& [where, failure] : player.coverage().failures())
            EXPECT_TRUE(isLeftToTheStudent(where)) << where << " after" << failure.events;
    }
}

TEST(Player, TheWholeProgramStandsAShortGame)
{
    for (const std::uint64_t seed : {1, 2}) {
        Player player(console::wholeProgram(), {.seed = seed});
        EXPECT_TRUE(player.play(eventsForTheProgram)) << player.fault();
    }
}

TEST(Player, TheTemplateSheetIsPlayedToItsEnd)
{
    Player player(template_sheet::walkedProgram(), {.seed = 3, .onlyWindow = "TemplateSheet"});
    EXPECT_TRUE(isSound(player, 60'000, "TemplateSheet"));
    EXPECT_EQ(
        player.coverage().of("TemplateSheet").boxes.count("\"Design approach...\": \"Eq cannot reach Es. Raise Es.\""),
        1u);
}

TEST(Player, TheSameSeedPlaysTheSameGame)
{
    std::string played[2];
    for (std::string& summaryOfGame : played) {
        Player player(template_sheet::walkedProgram(), {.seed = 11, .onlyWindow = "TemplateSheet"});
        EXPECT_TRUE(player.play(5'000)) << player.fault();
        summaryOfGame = summary(player.coverage());
    }
    EXPECT_EQ(played[0], played[1]);
}

// A current source is the shortest design. One that stands there finished is worked out once, however often it is looked at.
TEST(Player, ADesignThatStandsAsItStoodIsCheckedOnce)
{
    Player player(console::wholeProgram(), {.seed = 1, .onlyWindow = "Form12", .straight = true});
    DesignChecks checks;
    for (int events = 0; events < 10'000 && checks.worked() == 0; ++events) {
        ASSERT_TRUE(player.play(1)) << player.fault();
        ASSERT_EQ(checks.faultOf(player.engine()), "");
    }
    ASSERT_EQ(checks.worked(), 1);
    EXPECT_EQ(checks.faultOf(player.engine()), "");
    EXPECT_EQ(checks.worked(), 1) << "nothing has stirred";
    EXPECT_EQ(DesignChecks().faultOf(player.engine()), "");
    ASSERT_TRUE(player.play(5'000)) << player.fault();
    EXPECT_EQ(checks.faultOf(player.engine()), "");
    EXPECT_GT(player.checks(), 1) << "each design of the game is another";
}

// No state is global: a second program in the same process is not felt by the first.
TEST(Player, TwoProgramsPlayedInTurnDoNotFeelEachOther)
{
    const auto summaryAfter = [](bool besideAnother) {
        Player player(console::wholeProgram(), {.seed = 11});
        Player other(console::wholeProgram(), {.seed = 12});
        for (int turn = 0; turn < 20; ++turn) {
            EXPECT_TRUE(player.play(200)) << player.fault();
            if (besideAnother) {
                EXPECT_TRUE(other.play(300)) << other.fault();
            }
        }
        return summary(player.coverage());
    };
    EXPECT_EQ(summaryAfter(false), summaryAfter(true));
}

// --- a program with every fault that the player must find

using host::Event;

enum Bad : host::Handle { Text1, Text2, Result, Bell, Loop, Error, Never };

// clang-format off
constexpr host::ControlRow badRows[] = {
    {.id = Text1,  .name = "Text1",  .kind = host::Kind::field, .place = {0, 0, 90, 30}},
    {.id = Text2,  .name = "Text2",  .kind = host::Kind::field, .place = {0, 30, 90, 30}},
    {.id = Result, .name = "Result", .kind = host::Kind::label},
    {.id = Bell,   .name = "Bell",   .kind = host::Kind::image},
    {.id = Loop,   .name = "Loop",   .kind = host::Kind::image},
    {.id = Error,  .name = "Error",  .kind = host::Kind::image},
    {.id = Never,  .name = "Never",  .kind = host::Kind::image, .visible = false},
};
// clang-format on

class BadWindow final : public host::Window {
public:
    using host::Window::Window;
    static inline bool writesInfinity = false;
    static inline bool loops = false;
    static inline bool throws = false;
    static inline bool divides = false;
    static inline bool piles = false;
    static inline bool asksForEver = false;

    void click()
    {
        if (writesInfinity)
            setText(Result, "Zin = -inf K");
        if (divides)
            setText(Result, std::to_string((rules::Real(1) / rules::Real(0)).value()));
        if (piles)
            setPlaceOf(Text2, placeOf(Text1));
        while (asksForEver)
            host().MsgBox("again?", 0, "");
    }
    void load() {}
    void lost() {}
    void focused()
    {
        if (loops)
            host().SetFocus(*this, focus() == Text1 ? Text2 : Text1);
    }
    void error()
    {
        if (throws)
            throw std::out_of_range("beyond");
    }
};

// clang-format off
constexpr host::SlotRow badSlots[] = {
    {Bell,  host::Event::click,     host::slot<&BadWindow::click>},
    {Text1, host::Event::focus,     host::slot<&BadWindow::focused>},
    {Text1, host::Event::lostFocus, host::slot<&BadWindow::lost>},
    {host::noControl, host::Event::load, host::slot<&BadWindow::load>},
    {Text2, host::Event::focus,     host::slot<&BadWindow::focused>},
    {Error, host::Event::hover,     host::slot<&BadWindow::error>},
    {Never, host::Event::click,     host::slot<&BadWindow::click>},
};
// clang-format on

template <const host::WindowSpec& Spec>
std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<BadWindow>(host, Spec);
}
extern const host::WindowSpec badMain, badTool;
const host::WindowSpec badMain{.name = "MDIForm1", .role = host::Role::mainWindow, .create = create<badMain>};
const host::WindowSpec badTool{.name = "Bad", .controls = badRows, .slots = badSlots, .create = create<badTool>};
constexpr const host::WindowSpec* badWindows[] = {&badMain, &badTool};

void startBad(host::Engine& engine)
{
    engine.userRun([&engine] { engine.host().Show("MDIForm1"); });
}
void newBad(host::Engine&, const host::WindowSpec&) {}

struct BadProgram : testing::Test {
    BadProgram()
    {
        for (bool* fault : {&BadWindow::writesInfinity, &BadWindow::loops, &BadWindow::throws, &BadWindow::divides,
                            &BadWindow::piles, &BadWindow::asksForEver})
            *fault = false;
    }
    std::string faultAfter(std::uint64_t events)
    {
        player.play(events);
        return player.fault();
    }
    console::WalkedProgram program{badWindows, startBad, newBad};
    Player player{program, {.seed = 5, .onlyWindow = "Bad"}};
};

TEST_F(BadProgram, IsSoundAsLongAsItDoesNothingWrong)
{
    EXPECT_EQ(faultAfter(3'000), "");
}

TEST_F(BadProgram, AnInfinityOnALabelIsFound)
{
    BadWindow::writesInfinity = true;
    EXPECT_TRUE(faultAfter(3'000).starts_with("Bad.Result shows a number that is none: Zin = -inf K"))
        << player.fault();
}

TEST_F(BadProgram, FieldsSeenUponEachOtherAreFound)
{
    BadWindow::piles = true;
    EXPECT_TRUE(faultAfter(3'000).starts_with("Bad: Text1 is seen upon Text2")) << player.fault();
}

TEST_F(BadProgram, SlotsWithoutEndAreFound)
{
    BadWindow::loops = true;
    EXPECT_TRUE(faultAfter(3'000).starts_with("slots or boxes without end, the last in Bad Text")) << player.fault();
}

TEST_F(BadProgram, BoxesWithoutEndAreFound)
{
    BadWindow::asksForEver = true;
    EXPECT_TRUE(faultAfter(3'000).starts_with("slots or boxes without end, the last in Bad Bell click"))
        << player.fault();
}

TEST_F(BadProgram, AnErrorThatComesOutOfASlotIsFoundWithItsSeedAndItsEvents)
{
    BadWindow::throws = true;
    const std::string fault = faultAfter(3'000);
    EXPECT_TRUE(fault.starts_with("an error came out of Bad Error hover: beyond\n  seed 5, window Bad, event "))
        << fault;
    EXPECT_NE(fault.find("\n    hover Bad/"), std::string::npos) << "the last event is told";
    EXPECT_FALSE(player.play(1)) << "nothing is played after a fault";
}

TEST_F(BadProgram, AFailureOfArithmeticIsNoFaultAndTheProgramStartsAnew)
{
    BadWindow::divides = true;
    EXPECT_EQ(faultAfter(3'000), "");
    ASSERT_EQ(player.coverage().failures().size(), 1u);
    EXPECT_EQ(player.coverage().failures().begin()->first, "Bad Bell click: Division by zero");
    EXPECT_GT(player.coverage().failures().begin()->second.count, 5);
}

// Six of seven slots.
TEST_F(BadProgram, ASlotThatIsNeverReachedIsMissed)
{
    EXPECT_EQ(faultAfter(3'000), "");
    EXPECT_EQ(player.coverage().of("Bad").reached.size(), 6u);
    EXPECT_EQ(player.coverage().shortOf("Bad"), std::vector<std::string>{"Bad"});
    EXPECT_NE(summary(player.coverage()).find("not reached: Bad Never click"), std::string::npos);
}

TEST_F(BadProgram, AFocusThatCannotBeHeldIsFound)
{
    ASSERT_EQ(faultAfter(2), "");
    host::Engine& engine = player.engine();
    engine.userRun([&] { engine.host().Show("Bad"); });
    host::Window& window = *engine.defaultInstance("Bad");
    engine.userFocus(window, Text2);
    EXPECT_EQ(engineFault(engine), "");
    window.hide(Text2); // behind the engine's back: inside an event it would be settled
    EXPECT_EQ(engineFault(engine), "Bad: the focus is on Text2, which cannot hold it");
}

TEST_F(BadProgram, SlotsOutOfOrderAreFound)
{
    ASSERT_EQ(faultAfter(2), "");
    host::Engine& engine = player.engine();
    engine.userRun([&] { engine.host().Show("Bad"); });
    const host::Window& window = *engine.defaultInstance("Bad");
    SlotOrder order;
    EXPECT_EQ(order.note(window, host::noControl, Event::load), "");
    EXPECT_EQ(order.note(window, host::noControl, Event::load), "Bad loads twice");
    EXPECT_EQ(order.note(window, Text1, Event::lostFocus), "Bad Text1 loses a focus that it has not");
    EXPECT_EQ(order.note(window, Text1, Event::focus), "");
    EXPECT_EQ(order.note(window, Text1, Event::focus), "Bad Text1 gets the focus twice");
    EXPECT_EQ(order.note(window, Text1, Event::lostFocus), "");
    EXPECT_EQ(order.note(window, Text1, Event::focus), "");
    EXPECT_EQ(order.note(window, Text2, Event::focus), "") << "Text2 has no slot for its loss, so there are no pairs";
    EXPECT_EQ(order.note(window, Text2, Event::focus), "");
    EXPECT_EQ(SlotOrder().note(window, Text1, Event::click), "a slot of Bad runs before it is loaded");
}

TEST(Consistency, ANumberThatIsNoneIsAWordOfItsOwn)
{
    for (const std::string_view text : {"inf", "-inf", "NAN", "-nan K", "QIc = inf\nmA", "(nan)"})
        EXPECT_TRUE(namesNoNumber(text)) << text;
    for (const std::string_view text : {"", "in", "inferior", "Información", "banana", "12.5", "nanó", "1inf"})
        EXPECT_FALSE(namesNoNumber(text)) << text;
}

TEST(Consistency, TextsAreUtf8)
{
    for (const std::string_view text : {"", "abc", "ñandú", "Ω €", "\xF0\x9F\x98\x80"})
        EXPECT_TRUE(isUtf8(text)) << text;
    for (const std::string_view text : {"\xF1", "a\x80", "\xC3", "\xC0\x80", "\xE2\x82", "\xFF"})
        EXPECT_FALSE(isUtf8(text));
}

TEST(Playground, IsGoneWithItsPlayer)
{
    std::filesystem::path path;
    {
        const Playground ground;
        path = ground.path();
        EXPECT_TRUE(std::filesystem::exists(path / "Archivos"));
    }
    EXPECT_FALSE(std::filesystem::exists(path));
}

} // namespace player_test

} // namespace velmor::player
