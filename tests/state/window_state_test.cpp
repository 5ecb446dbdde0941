// SPDX-License-Identifier: MIT
// Copying a window, opening it again, and the contract of both.
#include <gtest/gtest.h>

#include "host/fixture.h"
#include "host/state_text.h"
#include "host/window_state.h"
#include "program_desk.h"

namespace velmor::window_state_test {

using host::Attribute;
using host::Event;
using host::EventArgs;
using host::noControl;
using host::WindowState;
using test::First;
using test::FixtureProgram;
using test::FixtureWindow;
using test::ProgramDesk;
using test::Second;

WindowState copied(host::Engine& engine, host::Window& window)
{
    WindowState state = *engine.stateOf(window);
    state.longTexts = host::longTextsOf(window);
    return state;
}

host::Window& openedCopy(host::Engine& engine, const WindowState& state)
{
    return *engine.open({&state, 1}).front();
}

TEST(StateOfAWindow, ListsOnlyWhatItsTableDoesNotSay)
{
    FixtureProgram program;
    FixtureWindow& sheet = program.newSheet();
    const WindowState fresh = *program.engine.stateOf(sheet);
    EXPECT_TRUE(fresh.texts.empty());
    for (const host::KeptNumber& kept : fresh.numbers)
        EXPECT_EQ(kept.key.control, noControl);
    sheet.setText(First, "12");
    sheet.disable(Second);
    const WindowState changed = *program.engine.stateOf(sheet);
    ASSERT_EQ(changed.texts.size(), 1u);
    EXPECT_EQ(changed.texts[0].value, "12");
    EXPECT_EQ(changed.numbers.size(), fresh.numbers.size() + 1);
    EXPECT_EQ(changed.number({Second, Attribute::enabled}), 0.0);
    EXPECT_EQ(changed.number({First, Attribute::enabled}), 1.0);
}

TEST(StateOfAWindow, IsTakenOnlyBetweenEventsAndOfOpenWindows)
{
    FixtureProgram program;
    FixtureWindow& sheet = program.newSheet();
    bool duringSlot = true;
    sheet.on(test::Still, Event::click, [&](EventArgs&) { duringSlot = program.engine.stateOf(sheet).has_value(); });
    program.engine.userClick(sheet, test::Still);
    EXPECT_FALSE(duringSlot);
    EXPECT_TRUE(program.engine.stateOf(sheet).has_value());
    FixtureProgram other;
    EXPECT_FALSE(other.engine.stateOf(sheet).has_value());
    program.engine.userRun([&] { program.engine.host().endProgram(); });
    EXPECT_FALSE(program.engine.stateOf(sheet).has_value());
}

TEST(OpeningAState, RunsNoSlotAndGivesTheWindowAsItStood)
{
    FixtureProgram program;
    FixtureWindow& sheet = program.newSheet();
    program.engine.userFocus(sheet, Second);
    program.engine.userText(sheet, Second, "12\n\"ñ\\\t");
    sheet.setTag(First, "1");
    sheet.setPlaceOf(First, {1, 2, 3, 4});
    sheet.setForeColor(First, 0xFF0000);
    sheet.borrowDrawing(test::Photo, test::Still);
    sheet.setCaption("Design 1");
    program.engine.userState(sheet, 2);
    const WindowState state = copied(program.engine, sheet);

    FixtureProgram other;
    other.takeLog();
    host::Window& copy = openedCopy(other.engine, state);
    EXPECT_TRUE(other.takeLog().empty());
    EXPECT_EQ(copied(other.engine, copy), state);
    EXPECT_EQ(copy.text(Second), "12\n\"ñ\\\t");
    EXPECT_EQ(copy.caption(), "Design 1");
    EXPECT_EQ(copy.focus(), Second);
    EXPECT_EQ(copy.windowState(), 2);
    EXPECT_TRUE(copy.shown());
    EXPECT_FALSE(copy.isDefaultInstance());
    EXPECT_EQ(other.engine.current(), &copy);
    EXPECT_EQ(other.engine.activeChild(), &copy);
    // It comes back to its normal place, and another show is no first one.
    other.engine.userState(copy, 0);
    EXPECT_EQ(copy.place(), (host::Place{0, 0, 20250, 10125}));
    other.takeLog();
    other.engine.userRun([&] { other.engine.host().Show(copy); });
    EXPECT_TRUE(other.takeLog().empty());
}

TEST(OpeningAState, KeepsTheOrderOfUse)
{
    FixtureProgram program;
    FixtureWindow& first = program.newSheet();
    FixtureWindow& second = program.newSheet();
    FixtureWindow& third = program.newSheet();
    for (FixtureWindow* window : {&third, &first, &second})
        program.engine.userActivate(*window);
    std::vector<WindowState> states;
    for (FixtureWindow* window : {&first, &second, &third})
        states.push_back(copied(program.engine, *window));

    FixtureProgram other;
    FixtureWindow& there = other.newSheet();
    const std::vector<host::Window*> opened = other.engine.open(states);
    ASSERT_EQ(opened.size(), 3u);
    EXPECT_EQ(other.engine.current(), opened[1]);
    EXPECT_EQ(other.engine.activeChild(), opened[1]);
    std::vector<host::Window*> order;
    while (other.engine.activeChild() != nullptr) {
        order.push_back(other.engine.activeChild());
        other.engine.userClose(*order.back());
    }
    EXPECT_EQ(order, (std::vector<host::Window*>{opened[1], opened[0], opened[2], &there}));
}

TEST(OpeningAState, LeavesExactlyOneDefaultInstance)
{
    FixtureProgram program;
    program.engine.userRun([&] { program.engine.host().Show("Sheet"); });
    host::Window& sheet = *program.engine.defaultInstance("Sheet");
    sheet.setText(First, "12");
    const WindowState state = copied(program.engine, sheet);
    host::Window& copy = openedCopy(program.engine, state);
    EXPECT_EQ(program.engine.defaultInstance("Sheet"), &copy);
    EXPECT_FALSE(sheet.isDefaultInstance());
    const WindowState ordinary = copied(program.engine, sheet);
    openedCopy(program.engine, ordinary);
    EXPECT_EQ(program.engine.defaultInstance("Sheet"), &copy);
}

TEST(OpeningAState, IsRefusedDuringAnEventAndForASecondMainWindow)
{
    FixtureProgram program;
    FixtureWindow& sheet = program.newSheet();
    const WindowState state = copied(program.engine, sheet);
    host::Window* during = &sheet;
    sheet.on(test::Still, Event::click, [&](EventArgs&) { during = program.engine.open({&state, 1}).front(); });
    program.engine.userClick(sheet, test::Still);
    EXPECT_EQ(during, nullptr);
    const WindowState mainState = copied(program.engine, program.engine.mainWindow());
    EXPECT_EQ(program.engine.open({&mainState, 1}).front(), nullptr);
    EXPECT_EQ(program.engine.windows().size(), 2u);
    ProgramDesk otherProgram;
    EXPECT_EQ(otherProgram.engine.open({&state, 1}).front(), nullptr);
}

TEST(OpeningAState, GivesAnEditorItsTextSelectionFontAndDocument)
{
    ProgramDesk desk;
    host::Window& editor = desk.show("frmEdito2");
    std::string text;
    for (int line = 0; line < 6000; ++line)
        text += "línea " + std::to_string(line) + " Ω\n"; // above two slices
    desk.write(editor, "txtEdit", text);
    const host::Handle field = editor.named("txtEdit");
    editor.store(field).select(70'000, 9);
    editor.setFont(field, {.name = "Courier", .size = 12.25, .bold = true, .color = 0x112233});
    const WindowState state = copied(desk.engine, editor);
    ASSERT_EQ(state.longTexts.size(), 1u);
    EXPECT_GT(state.longTexts[0].slices.size(), 2u);

    ProgramDesk other;
    host::Window& copy = openedCopy(other.engine, *host::readState(host::stateText(state), other.engine));
    EXPECT_EQ(copied(other.engine, copy), state);
    EXPECT_EQ(copy.wholeText(field), text);
    EXPECT_EQ(copy.store(field).selectionStart(), 70'000u);
    EXPECT_EQ(copy.font(field), (host::Font{.name = "Courier", .size = 12.25, .bold = true, .color = 0x112233}));
    // It knows that it was changed: closing asks.
    other.engine.userMenu(copy, copy.named("mnuFileexit"));
    EXPECT_FALSE(other.screen.boxes.empty());
}

TEST(LongTexts, AreOfNoUseOnceTheTextHasChanged)
{
    ProgramDesk desk;
    host::Window& editor = desk.show("frmEdito2");
    const host::Handle field = editor.named("txtEdit");
    desk.write(editor, "txtEdit", std::string(100'000, 'x'));
    host::LongTextCopy copy(editor, field);
    EXPECT_TRUE(copy.next());
    desk.write(editor, "txtEdit", "y");
    EXPECT_TRUE(copy.stale());
    EXPECT_FALSE(copy.next());
}

} // namespace velmor::window_state_test
