// SPDX-License-Identifier: MIT
// Differences between states: exact both ways, and as small as what was changed.
#include <gtest/gtest.h>

#include <memory>

#include "console/whole_program.h"
#include "host/fixture.h"
#include "host/state_change.h"
#include "sheets/design_sheet.h"

namespace velmor::state_change_test {

using host::Attribute;
using host::Direction;
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
    const WindowState before = *program.engine.stateOf(sheet);
    program.engine.userText(sheet, First, "12");
    program.engine.userFocus(sheet, Second);
    const WindowState after = *program.engine.stateOf(sheet);
    const StateChange step = difference(before, after);
    program.takeLog();
    EXPECT_TRUE(program.engine.apply(sheet, step, Direction::back));
    EXPECT_EQ(*program.engine.stateOf(sheet), before);
    EXPECT_TRUE(program.engine.apply(sheet, step, Direction::forth));
    EXPECT_EQ(*program.engine.stateOf(sheet), after);
    EXPECT_TRUE(program.takeLog().empty());
}

/// A sheet that no engine follows, so that its steps are the test's.
struct LooseSheet {
    LooseSheet() : sheet(program.engine.specOf("Sheet")->create(program.engine.host())), watch(*sheet) {}
    test::FixtureProgram program;
    std::unique_ptr<host::Window> sheet;
    host::StepWatch watch;
};

TEST(StepWatch, TellsOfEachChangeOnceAndOfWhatIsPendingAsOftenAsAsked)
{
    LooseSheet loose;
    loose.sheet->setText(First, "12");
    loose.sheet->hide(Second);
    EXPECT_EQ(loose.watch.pending().texts.size(), 1u);
    EXPECT_EQ(loose.watch.pending().numbers.size(), 1u);
    const StateChange step = loose.watch.step();
    EXPECT_EQ(step.texts.size(), 1u);
    EXPECT_EQ(step.numbers.size(), 1u);
    EXPECT_TRUE(loose.watch.pending().empty());
    EXPECT_TRUE(loose.watch.step().empty());
    loose.watch.lead(step, Direction::back);
    EXPECT_EQ(loose.sheet->text(First), "");
    EXPECT_TRUE(loose.sheet->visible(Second));
    EXPECT_TRUE(loose.watch.step().empty());
    loose.sheet->setText(First, "5");
    EXPECT_EQ(loose.watch.step().texts.at(0).before, "");
}

// The main window's files and flags are not a step's business.
TEST(StepWatch, LeavesNameAndFlagsOfTheSheetAlone)
{
    console::ConsoleScreen screen;
    host::MemorySettings settings;
    host::Engine engine(console::wholeProgram().catalogue, screen, settings);
    engine.loadMainWindow();
    const auto window = engine.specOf("Form3")->create(engine.host());
    auto& sheet = dynamic_cast<sheets::DesignSheet&>(*window);
    host::StepWatch watch(sheet);
    sheet.setModificado(host::trueValue);
    sheet.setOperCancelo(host::trueValue);
    sheet.setNombreArchivo("a.RPC");
    sheet.setCaption("a");
    EXPECT_TRUE(watch.step().empty());
}

} // namespace velmor::state_change_test
