// SPDX-License-Identifier: MIT
// Tables made of tables, and the sheet that is told as the template with differences.
#include "sheets/rows.h"

#include <gtest/gtest.h>

#include "sheets/template_program.h"
#include "sheets/twin_sheet.h"

namespace velmor::template_sheet {

namespace rows_test {

using sheets::ChainRow;

constexpr auto three = std::to_array<ChainRow>({{1, 2}, {2, 3}, {3}});

TEST(Tables, StandOneBehindTheOther)
{
    constexpr auto all = sheets::joined(three, std::to_array<ChainRow>({{4}}));
    static_assert(all.size() == 4 && all[0].field == 1 && all[3].field == 4);
}

TEST(ATableWithDifferences, HasTheOthersRowsInTheirOrder)
{
    constexpr auto changed = sheets::withRowsOf(three, std::to_array<ChainRow>({{2, 1, "5"}}));
    static_assert(changed.size() == 3 && changed[1].next == 1 && changed[1].esc == "5");
    static_assert(changed[0].next == 2 && changed[2].field == 3);
}

TEST(ATableWithDifferences, LeavesOutWhatItLacks)
{
    constexpr auto fewer = sheets::without(three, std::to_array<ChainRow>({{2}}));
    static_assert(fewer.size() == 2 && fewer[0].field == 1 && fewer[1].field == 3);
}

TEST(Rows, AreTheSameByWhatTheyAreAbout)
{
    using sheets::sameRow;
    using sheets::Saying;
    using sheets::When;
    EXPECT_TRUE(sameRow(Saying{1, When::focus, 2, {"a", "b"}}, Saying{1, When::focus, 2}));
    EXPECT_FALSE(sameRow(Saying{1, When::focus, 2}, Saying{1, When::focus, 3}));
    EXPECT_FALSE(sameRow(Saying{1, When::focus, 2}, Saying{1, When::hover, 2}));
    EXPECT_TRUE(sameRow(host::SlotRow{1, host::Event::key}, host::SlotRow{1, host::Event::key}));
    EXPECT_FALSE(sameRow(host::SlotRow{1, host::Event::key}, host::SlotRow{1, host::Event::focus}));
    EXPECT_FALSE(sameRow(host::GrowthRow{1, 2}, host::GrowthRow{1, 3}));
    EXPECT_TRUE(sameRow(host::ShortcutRow{"F1"}, host::ShortcutRow{"F1", 3}));
    EXPECT_TRUE(sameRow(host::ControlRow{.id = 1}, host::ControlRow{.id = 1, .name = "x"}));
}

// 10 mA, the template's Esc, is 20 here; 0.9 mA is corrected to it although the template would take it.
TEST(TheTwin, AcceptsAnotherCurrent)
{
    EXPECT_EQ(faultsOf(R"(new TwinSheet
expect ..caption "  Resistor de carga con juntura"
expect Text3.text 20
esc
esc
esc
expect Text3.text "20 mA"
focus Text3
fill Text3 0.9
enter
expect-box "Con menos de 0,1 mA el transistor no conduce." "Criterio de diseño..." 48
expect Text3.text "20 mA"
focus Text3
fill Text3 40
enter
expect Text3.text "40 mA"
expect-no-box
)"),
              "");
}

// (12 - 6 - 0.7) V / 20 mA = 0.265 K; the template would give 0.3 K. With the lamp (12 - 6 - 2 - 0.7) V / 20 mA = 0.165 K.
TEST(TheTwin, LeavesRoomForTheJunctionAndSaysSo)
{
    EXPECT_EQ(faultsOf(R"(language english
new TwinSheet
esc
esc
esc
enter
expect-focus Text5
expect Text5.text 0.265
expect SSPanel1.caption "The junction needs 0.7 Volts. Choose the nearest standard value."
enter
expect RL.caption "0.265 K"
expect ERL.caption "5.3 V"
click Picture6
esc
esc
esc
enter
expect Text5.text 0.165
)"),
              "");
}

TEST(TheTwin, IsTheTemplateInEverythingElse)
{
    EXPECT_EQ(faultsOf(R"(new TwinSheet
clear
type 31
enter
expect Text1.text 12
expect SSPanel1.caption "Coloque la temperatura ambiente en la que operará el circuito."
click Image5
expect-window TwinSheet 2
window TwinSheet#1
click Image35
expect Text22.visible true
press Text1 right
expect-in Form21 SSCommand1.caption " Es..."
)"),
              "");
}

} // namespace rows_test

} // namespace velmor::template_sheet
