// SPDX-License-Identifier: MIT
// Differences between states: exact both ways, and as small as what was changed.
#include <gtest/gtest.h>

#include "console/whole_program.h"
#include "host/fixture.h"
#include "host/state_change.h"
#include "player/player.h"
#include "sheets/design_sheet.h"
#include "state/twin_game.h"

namespace velmor::state_change_test {

using host::Attribute;
using host::Direction;
using host::noControl;
using host::StateChange;
using host::WindowState;
using test::First;
using test::Second;

TEST(StateChange, HoldsWhatDiffersWithBothValues)
{
    test::FixtureProgram program;
    test::FixtureWindow& sheet = program.newSheet();
    const WindowState before = *program.engine.stateOf(sheet);
    sheet.setText(First, "12");
    sheet.hide(Second);
    const WindowState after = *program.engine.stateOf(sheet);
    const StateChange change = difference(before, after);
    ASSERT_EQ(change.texts.size(), 1u);
    EXPECT_EQ(change.texts[0].before, "");
    EXPECT_EQ(change.texts[0].after, "12");
    ASSERT_EQ(change.numbers.size(), 1u);
    EXPECT_EQ(change.numbers[0].key, (host::Key{Second, Attribute::visible}));
    EXPECT_EQ(change.numbers[0].before, 1.0);
    EXPECT_EQ(change.numbers[0].after, 0.0);
    EXPECT_TRUE(difference(after, after).empty());
}

TEST(StateChange, LeadsAWindowBackAndForthWithoutASlot)
{
    test::FixtureProgram program;
    test::FixtureWindow& sheet = program.newSheet();
    host::StepWatch watch(sheet);
    const WindowState before = *program.engine.stateOf(sheet);
    program.engine.userText(sheet, First, "12");
    program.engine.userFocus(sheet, Second);
    const WindowState after = *program.engine.stateOf(sheet);
    const StateChange step = watch.step();
    EXPECT_TRUE(watch.step().empty());
    program.takeLog();
    EXPECT_TRUE(program.engine.apply(sheet, step, Direction::back));
    EXPECT_EQ(*program.engine.stateOf(sheet), before);
    EXPECT_TRUE(program.engine.apply(sheet, step, Direction::forth));
    EXPECT_EQ(*program.engine.stateOf(sheet), after);
    EXPECT_TRUE(program.takeLog().empty());
}

// The main window's files and flags are not a step's business.
TEST(StepWatch, LeavesNameAndFlagsOfTheSheetAlone)
{
    console::ConsoleScreen screen;
    host::MemorySettings settings;
    host::Engine engine(console::wholeProgram().catalogue, screen, settings);
    engine.loadMainWindow();
    console::wholeProgram().newSheet(engine, *engine.specOf("Form3"));
    auto& sheet = dynamic_cast<sheets::DesignSheet&>(*engine.instance("Form3", 0));
    host::StepWatch watch(sheet);
    engine.userRun([&] {
        sheet.setModificado(host::trueValue);
        sheet.setOperCancelo(host::trueValue);
        sheet.setNombreArchivo("a.RPC");
        sheet.setCaption("a");
    });
    EXPECT_TRUE(watch.step().empty());
}

class StepsOfEverySheet : public testing::TestWithParam<const host::WindowSpec*> {};

// The step of the watch is the whole difference, less what it leaves alone; and all steps taken back lead to the start.
TEST_P(StepsOfEverySheet, IsLedBackToItsStartByAllSteps)
{
    player::Player player(console::wholeProgram(),
                          {.seed = 5, .onlyWindow = std::string(GetParam()->name), .straight = true});
    int steps = 0;
    for (int game = 0; game < 40; ++game) {
        player.play(1);
        host::Window* sheet = player.engine().ended() ? nullptr : player.engine().instance(GetParam()->name, 0);
        if (sheet == nullptr)
            continue;
        host::StepWatch watch(*sheet);
        const WindowState start = *player.engine().stateOf(*sheet);
        WindowState stood = start;
        std::vector<StateChange> done;
        for (int event = 0; event < 40; ++event) {
            if (!player.play(1) || player.engine().ended() || !player.engine().isLoaded(sheet))
                break;
            StateChange step = watch.step();
            WindowState now = *player.engine().stateOf(*sheet);
            const StateChange whole = difference(stood, now);
            EXPECT_LE(step.numbers.size(), whole.numbers.size());
            EXPECT_LE(step.texts.size(), whole.texts.size());
            done.push_back(std::move(step));
            stood = std::move(now);
            ++steps;
        }
        if (player.engine().ended() || !player.engine().isLoaded(sheet))
            continue;
        for (auto step = done.rbegin(); step != done.rend(); ++step)
            ASSERT_TRUE(player.engine().apply(*sheet, *step, Direction::back));
        const StateChange rest = difference(start, *player.engine().stateOf(*sheet));
        for (const host::ChangedNumber& number : rest.numbers)
            EXPECT_EQ(number.key.control, noControl);
        for (const host::ChangedNumber& number : rest.numbers)
            EXPECT_NE(number.key.attribute, Attribute::focus);
        for (const host::ChangedText& text : rest.texts)
            EXPECT_EQ(text.key.control, noControl) << text.before << " " << text.after;
        for (auto step = done.begin(); step != done.end(); ++step)
            ASSERT_TRUE(player.engine().apply(*sheet, *step, Direction::forth));
        EXPECT_EQ(*player.engine().stateOf(*sheet), stood);
    }
    EXPECT_GT(steps, 300);
}

std::vector<const host::WindowSpec*> sheetsOfTheProgram()
{
    std::vector<const host::WindowSpec*> sheets;
    for (const host::WindowSpec* spec : console::wholeProgram().catalogue)
        if (spec->role == host::Role::sheet)
            sheets.push_back(spec);
    return sheets;
}

INSTANTIATE_TEST_SUITE_P(Catalogue, StepsOfEverySheet, testing::ValuesIn(sheetsOfTheProgram()),
                         [](const auto& row) { return std::string(row.param->name); });

} // namespace velmor::state_change_test
