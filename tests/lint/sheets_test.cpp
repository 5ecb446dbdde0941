// SPDX-License-Identifier: MIT
// The grammar of sheets, kept by every sheet of the program and by the template and its twin.
#include <gtest/gtest.h>

#include "lint/exceptions.h"
#include "lint/grammar.h"
#include "lint/keeps.h"
#include "sheets/sheet_program.h"

namespace velmor::lint {

namespace sheets_test {

std::vector<const host::WindowSpec*> allSheets()
{
    std::vector<const host::WindowSpec*> sheets;
    for (const host::WindowSpec* window : template_sheet::catalogue())
        if (window->role == host::Role::sheet)
            sheets.push_back(window);
    return sheets;
}

class EverySheet : public testing::TestWithParam<const host::WindowSpec*> {
protected:
    template_sheet::SheetProgram program;
    const std::unique_ptr<host::Window> window = GetParam()->create(program.engine.host());
    const Sheet sheet{*GetParam(), dynamic_cast<const sheets::DesignSheet&>(*window).tables()};
};

TEST_P(EverySheet, HasEverythingInItsZone)
{
    EXPECT_TRUE(keeps(zones(sheet)));
}

TEST_P(EverySheet, HasTheToolsOfAllSheets)
{
    EXPECT_TRUE(keeps(tools(sheet, lateTools())));
}

TEST_P(EverySheet, HasTheKeysOfAllSheetsAndItsOwnAfterThem)
{
    EXPECT_TRUE(keeps(sheetKeys(sheet, template_sheet::catalogue().front()->shortcuts)));
}

TEST_P(EverySheet, WritesEachQuantityInOneWay)
{
    EXPECT_TRUE(keeps(symbols(sheet)));
}

TEST_P(EverySheet, HasItsWholeCircuitFromTheStart)
{
    EXPECT_TRUE(keeps(growth(sheet)));
}

TEST_P(EverySheet, LeadsAlongItsChain)
{
    EXPECT_TRUE(keeps(chain(sheet, unreached())));
}

TEST_P(EverySheet, SpeaksInPlaceAndInBothLanguages)
{
    EXPECT_TRUE(keeps(sayings(sheet, oneLanguage())));
    EXPECT_TRUE(keeps(helpPages(sheet)));
}

INSTANTIATE_TEST_SUITE_P(Sheets, EverySheet, testing::ValuesIn(allSheets()),
                         [](const auto& row) { return std::string(row.param->name); });

} // namespace sheets_test

} // namespace velmor::lint
