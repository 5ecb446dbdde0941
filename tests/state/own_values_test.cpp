// SPDX-License-Identifier: MIT
// Tables of a window's own values: exact, complete, and refused when a member is left out or comes twice.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <set>

#include "console/whole_program.h"
#include "designs/differential/form3_formulas.h"
#include "host/own_values.h"
#include "host/state_attributes.h"
#include "program_desk.h"
#include "rules/real.h"
#include "sheets/design_sheet.h"

namespace velmor::own_values_test {

struct Three {
    rules::Real number;
    bool flag = false;
    std::string text;
};

constexpr auto numberRow = host::own<&Three::number>("number");
constexpr auto flagRow = host::own<&Three::flag>("flag");
constexpr auto textRow = host::own<&Three::text>("text");
using Number = decltype(numberRow);
using Flag = decltype(flagRow);
using Text = decltype(textRow);

// A member that is left out must not compile, and none may hide behind another that comes twice.
static_assert(host::hasMembers<Three, 3> && !host::hasMembers<Three, 2> && !host::hasMembers<Three, 4>);
static_assert(host::own_detail::allDiffer<Number, Flag, Text>);
static_assert(!host::own_detail::allDiffer<Number, Flag, Flag>);
static_assert(!host::own_detail::allDiffer<Flag, Number, Flag>);

constexpr host::OwnRow sameName[] = {numberRow.row(), host::own<&Three::flag>("number").row()};
constexpr host::OwnRow names[] = {numberRow.row(), flagRow.row(), textRow.row()};
static_assert(host::own_detail::namesDiffer(names) && !host::own_detail::namesDiffer(sameName));

TEST(OwnValues, EveryKindGoesInAndOutExactly)
{
    constexpr auto table = host::everyMember<Three>(numberRow, flagRow, textRow);
    Three record{.number = std::numeric_limits<double>::denorm_min(), .flag = true, .text = "x"};
    EXPECT_EQ(table.rows[0].number(&record), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(table.rows[1].number(&record), 1.0);
    EXPECT_EQ(table.rows[2].text(&record), "x");
    table.rows[0].setNumber(&record, 0.1);
    table.rows[1].setNumber(&record, 0.0);
    table.rows[2].setText(&record, "ñ");
    EXPECT_EQ(record.number, rules::Real(0.1));
    EXPECT_FALSE(record.flag);
    EXPECT_EQ(record.text, "ñ");
}

// The flags of the frame are one table; a sheet's working numbers are a second one, and hold whether the design has passed.
TEST(OwnValues, EverySheetTellsItsWorkingNumbers)
{
    test::ProgramDesk desk;
    for (const host::WindowSpec* spec : console::wholeProgram().catalogue) {
        if (spec->role != host::Role::sheet)
            continue;
        const auto sheet = spec->create(desk.engine.host());
        bool passed = false;
        for (const host::OwnView& view : host::StateAccess::own(*sheet))
            for (const host::OwnRow& row : view.rows)
                passed = passed || row.name == "passed";
        EXPECT_TRUE(passed) << spec->name;
    }
}

// In the text of a state a name ends at the first dot or blank, and two words of it are taken.
TEST(OwnValues, NoNameOfTheProgramConfusesTheTextOfAState)
{
    test::ProgramDesk desk;
    for (const host::WindowSpec* spec : console::wholeProgram().catalogue) {
        EXPECT_EQ(spec->name.find_first_of(" .\n"), std::string_view::npos) << spec->name;
        for (const host::ControlRow& row : spec->controls) {
            EXPECT_EQ(row.name.find_first_of(" .\n"), std::string_view::npos) << row.name;
            EXPECT_NE(row.name, "window");
            EXPECT_NE(row.name, "own");
        }
        const auto window = spec->create(desk.engine.host());
        std::set<std::string_view> told;
        for (const host::OwnView& view : host::StateAccess::own(*window))
            for (const host::OwnRow& row : view.rows)
                EXPECT_TRUE(told.insert(row.name).second) << spec->name << " tells twice of " << row.name;
    }
}

} // namespace velmor::own_values_test
