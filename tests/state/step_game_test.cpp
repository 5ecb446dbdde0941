// SPDX-License-Identifier: MIT
// Random games on every sheet, led back to their start and forth to their end: at each step the sheet is what it was there.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "console/whole_program.h"
#include "host/step_history.h"
#include "host/window_state.h"
#include "player/player.h"

namespace velmor::step_game_test {

using host::Direction;
using host::WindowState;

constexpr int games = 60;
constexpr int movesOfAGame = 60;
constexpr std::size_t mostSteps = 190; // below the number that is kept, so that a count names one state

/// What a step does not lead: the window itself, and values that are left alone.
bool isLeft(const host::Window& window, const host::Key& key)
{
    if (key.control != host::noControl || key.attribute == host::Attribute::focus)
        return false;
    if (key.attribute != host::Attribute::own)
        return true;
    std::size_t left = key.own;
    for (const host::OwnView& view : host::StateAccess::own(window)) {
        if (left < view.rows.size())
            return view.undo == host::Undo::leaves;
        left -= view.rows.size();
    }
    return false;
}

std::string differences(const host::Window& window, const WindowState& stood)
{
    const host::StateChange change = difference(stood, host::copyOf(window));
    std::string all;
    const auto add = [&](const auto& changed, const std::string& what) {
        if (isLeft(window, changed.key))
            return;
        const bool own = changed.key.control == host::noControl;
        all += (own ? "own" : std::string(window.row(changed.key.control).name)) + "/" +
               std::to_string(static_cast<int>(changed.key.attribute)) + " " + what + "\n";
    };
    for (const host::ChangedNumber& number : change.numbers)
        add(number, std::to_string(number.before) + " -> " + std::to_string(number.after));
    for (const host::ChangedText& text : change.texts)
        add(text, text.before + " -> " + text.after);
    return all;
}

/// The states of one sheet by the number of steps behind them.
class Track {
public:
    /// Notes the state after an event, and compares it where a step has led to it.
    void look(const host::Engine& engine, const host::Window& sheet)
    {
        const host::StepHistory& steps = *engine.stepsOf(sheet);
        if (!steps.betweenSteps()) {
            // What was still ahead is no more, though the step that takes its place is not whole yet.
            if (steps.concernsDesign())
                stood_.erase(stood_.lower_bound(steps.behind()), stood_.end());
            return;
        }
        stood_.erase(stood_.upper_bound(steps.behind() + steps.ahead()), stood_.end());
        stood_.insert_or_assign(steps.behind(), host::copyOf(sheet));
    }
    std::string compare(const host::Engine& engine, const host::Window& sheet)
    {
        const auto there = stood_.find(engine.stepsOf(sheet)->behind());
        if (there == stood_.end())
            return {};
        ++compared;
        return differences(sheet, there->second);
    }
    int compared = 0;

private:
    std::map<std::size_t, WindowState> stood_;
};

class StepGames : public testing::TestWithParam<const host::WindowSpec*> {
protected:
    StepGames() : player(console::wholeProgram(), {.seed = 11, .onlyWindow = std::string(GetParam()->name)}) {}

    host::Window* anySheet()
    {
        if (!player.engine().idle() || player.engine().ended())
            return nullptr;
        host::Window* child = player.engine().activeChild();
        return child != nullptr && child->role() == host::Role::sheet ? child : nullptr;
    }

    /// Leads the sheet as far as it goes.
    void lead(host::Window& sheet, Direction direction, Track& track)
    {
        while (player.engine().userStep(direction)) {
            ++led;
            ASSERT_EQ(track.compare(player.engine(), sheet), "") << player.lastEvents();
        }
    }

    void playGame()
    {
        host::Window* sheet = anySheet();
        if (sheet == nullptr || player.engine().stepsOf(*sheet) == nullptr)
            return;
        player.engine().forgetSteps();
        Track track;
        const auto stands = [&] { return !player.engine().ended() && player.engine().isLoaded(sheet); };
        const auto look = [&] {
            if (stands() && player.engine().idle())
                track.look(player.engine(), *sheet);
        };
        look();
        player.afterEvent = look;
        for (int move = 0; move < movesOfAGame && stands(); ++move) {
            ASSERT_TRUE(player.play(1)) << player.fault();
            if (stands() && player.engine().stepsOf(*sheet)->behind() > mostSteps)
                break;
        }
        player.afterEvent = nullptr;
        if (anySheet() != sheet || player.engine().current() != sheet)
            return;
        // What the pointer has called up since the last step is no part of the design.
        const bool whole = player.engine().stepsOf(*sheet)->betweenSteps();
        const WindowState end = host::copyOf(*sheet);
        // A game may end on its way back, with steps still to be done again.
        const std::size_t ahead = player.engine().stepsOf(*sheet)->ahead();
        lead(*sheet, Direction::back, track);
        lead(*sheet, Direction::forth, track);
        for (std::size_t step = 0; step < ahead; ++step)
            ASSERT_TRUE(player.engine().userStep(Direction::back));
        if (whole && !HasFatalFailure()) {
            EXPECT_EQ(differences(*sheet, end), "") << player.lastEvents();
        }
        compared += track.compared;
    }

    player::Player player;
    int led = 0;
    int compared = 0;
};

TEST_P(StepGames, LeadBackToTheStartAndForthToTheEnd)
{
    for (int game = 0; game < games && !HasFatalFailure(); ++game) {
        ASSERT_TRUE(player.play(25)) << player.fault();
        playGame();
    }
    EXPECT_GT(led, 200);
    EXPECT_GT(compared, 150);
}

std::vector<const host::WindowSpec*> sheetsOfTheProgram()
{
    std::vector<const host::WindowSpec*> sheets;
    for (const host::WindowSpec* spec : console::wholeProgram().catalogue)
        if (spec->role == host::Role::sheet)
            sheets.push_back(spec);
    return sheets;
}

INSTANTIATE_TEST_SUITE_P(Catalogue, StepGames, testing::ValuesIn(sheetsOfTheProgram()),
                         [](const auto& row) { return std::string(row.param->name); });

} // namespace velmor::step_game_test
