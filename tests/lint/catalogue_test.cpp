// SPDX-License-Identifier: MIT
// The rules of the house, kept by every window of the program and by the template sheet.
#include <algorithm>

#include <gtest/gtest.h>

#include "lint/exceptions.h"
#include "lint/keeps.h"
#include "lint/lint.h"
#include "sheets/sheet_program.h"

namespace velmor::lint {

namespace catalogue_test {

class EveryTable : public testing::TestWithParam<const host::WindowSpec*> {
protected:
    const host::WindowSpec& window() const { return *GetParam(); }
};

TEST_P(EveryTable, HasItsRowsInOrder)
{
    EXPECT_TRUE(keeps(handles(window())));
}

TEST_P(EveryTable, NamesEachControlOnce)
{
    EXPECT_TRUE(keeps(names(window())));
}

TEST_P(EveryTable, BindsSlotsToWhatCanReceiveThem)
{
    EXPECT_TRUE(keeps(slots(window())));
}

TEST_P(EveryTable, LeadsTheTabKeyToWhatTakesTheFocus)
{
    EXPECT_TRUE(keeps(tabOrder(window())));
}

TEST_P(EveryTable, GivesEachKeyOnce)
{
    EXPECT_TRUE(keeps(shortcuts(window())));
}

TEST_P(EveryTable, HangsItemsBelowMenusAndControlsIntoPanels)
{
    EXPECT_TRUE(keeps(parents(window())));
}

TEST_P(EveryTable, DrawsEveryLineShapeAndImageOfASheet)
{
    EXPECT_TRUE(keeps(strokes(window(), spots())));
}

TEST_P(EveryTable, GivesEachFieldItsSymbolAndEachButtonItsMeaning)
{
    EXPECT_TRUE(keeps(symbols(window(), withoutSymbol())));
}

TEST_P(EveryTable, KeepsTheControlsOfASheetInside)
{
    EXPECT_TRUE(keeps(stayInside(window())));
}

TEST_P(EveryTable, GivesAKeyToWhatTheMouseReaches)
{
    EXPECT_TRUE(keeps(keysForTheMouse(window(), reachedOtherwise())));
}

TEST_P(EveryTable, IsWholeAsAWindow)
{
    EXPECT_TRUE(keeps(wholeWindow(window())));
}

// A window as it stands when it has just been shown: some place their fields while they load.
TEST_P(EveryTable, SaysWhatAPersonMayUseAndHasAPlaceForEachFieldBesideTheOthers)
{
    for (const bool english : {false, true}) {
        template_sheet::SheetProgram program;
        program.english(english);
        program.run([&] { program.engine.host().Show(window().name); });
        const host::Window* shown = program.engine.defaultInstance(window().name);
        ASSERT_NE(shown, nullptr);
        EXPECT_TRUE(keeps(meanings(*shown)));
        EXPECT_TRUE(keeps(marks(*shown)));
        EXPECT_TRUE(keeps(places(*shown)));
        EXPECT_TRUE(keeps(overlaps(*shown, neverTogether())));
        if (const auto* sheet = dynamic_cast<const sheets::DesignSheet*>(shown)) {
            EXPECT_TRUE(keeps(files(window(), sheet->tables())));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Catalogue, EveryTable,
                         testing::ValuesIn(template_sheet::catalogue().begin(), template_sheet::catalogue().end()),
                         [](const auto& row) { return std::string(row.param->name); });

TEST(AnException, IsAboutAControlOfAWindowOfTheCatalogue)
{
    for (const Exception& one : exceptions()) {
        const auto windows = template_sheet::catalogue();
        const auto window = std::find_if(windows.begin(), windows.end(),
                                         [&](const host::WindowSpec* spec) { return spec->name == one.window; });
        ASSERT_NE(window, windows.end()) << one.window;
        const std::string name = one.control.substr(0, one.control.find('*'));
        EXPECT_TRUE(std::any_of((*window)->controls.begin(), (*window)->controls.end(),
                                [&](const host::ControlRow& row) { return row.name.starts_with(name); }))
            << one.window << " has no " << one.control;
    }
}

TEST(TheCatalogue, NamesEachWindowOnceTheMainWindowFirst)
{
    EXPECT_TRUE(keeps(catalogue(template_sheet::catalogue())));
}

} // namespace catalogue_test

} // namespace velmor::lint
