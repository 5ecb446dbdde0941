// SPDX-License-Identifier: MIT
// The rules of the house, kept by every window of the program and by the template sheet.
#include <gtest/gtest.h>

#include "lint/keeps.h"
#include "lint/lint.h"
#include "sheets/sheet_program.h"

namespace velmor::lint {

namespace catalogue_test {

// The calculator asks for one quantity after the other in the same place.
constexpr NeverTogether neverTogether[] = {
    {"Calculator", "Text*", "Text*"},
};

// Points of the bench that the probe finds; the drawing below them is the finished design's.
constexpr Spot spots[] = {
    {"Form3", "Image5"}, {"Form3", "Image6"}, {"Form3", "Image7"}, {"Form3", "Image9"}, {"Form3", "Image10"},
};

// Fields in the drawing itself, beside the part that bears their symbol.
constexpr Spot withoutSymbol[] = {
    {"Form3", "Text8"},
    {"Form3", "Text16"},
    {"Form3", "Text17"},
    {"Form3", "Text18"},
};

// What has no key of its own, and how it is reached.
constexpr Spot reachedOtherwise[] = {
    {"MDIForm1", "Picture14"}, // the menu of options shows the bar and puts it away
    {"Form3", "Image1"},       // its pop-ups are menus of the main window
    {"Form3", "image2"},       // the same
    {"Form3", "Image30"},      // Ctrl+B switches the bench, Ctrl+E goes back
    {"Form3", "Image33"},      // the same for the meter
    {"Form3", "Image34"},      // F1 is help everywhere
    {"Form3", "Image35"},      // the same
};

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
    EXPECT_TRUE(keeps(strokes(window(), spots)));
}

TEST_P(EveryTable, GivesEachFieldItsSymbolAndEachButtonItsMeaning)
{
    EXPECT_TRUE(keeps(symbols(window(), withoutSymbol)));
}

TEST_P(EveryTable, KeepsTheControlsOfASheetInside)
{
    EXPECT_TRUE(keeps(stayInside(window())));
}

TEST_P(EveryTable, GivesAKeyToWhatTheMouseReaches)
{
    EXPECT_TRUE(keeps(keysForTheMouse(window(), reachedOtherwise)));
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
        EXPECT_TRUE(keeps(overlaps(*shown, neverTogether)));
        if (const auto* sheet = dynamic_cast<const sheets::DesignSheet*>(shown)) {
            EXPECT_TRUE(keeps(files(window(), sheet->tables())));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Catalogue, EveryTable,
                         testing::ValuesIn(template_sheet::catalogue().begin(), template_sheet::catalogue().end()),
                         [](const auto& row) { return std::string(row.param->name); });

TEST(TheCatalogue, NamesEachWindowOnceTheMainWindowFirst)
{
    EXPECT_TRUE(keeps(catalogue(template_sheet::catalogue())));
}

} // namespace catalogue_test

} // namespace velmor::lint
