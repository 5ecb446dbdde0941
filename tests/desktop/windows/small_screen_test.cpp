// SPDX-License-Identifier: MIT
// The smallest screen that a school still has, 1024 by 600: every sheet shows its whole width there.
#include <gtest/gtest.h>

#include <QScrollArea>
#include <QScrollBar>

#include "desktop/desktop_fixture.h"
#include "desktop/drawing/texts.h"
#include "program/catalogue.h"

namespace velmor::test::small_screen_test {

constexpr QSize smallScreen(1024, 581); ///< less the title of the main window
constexpr double readable = 0.8;        ///< an 8 point text keeps 8.5 logical pixels

std::vector<std::string> everySheet()
{
    std::vector<std::string> names;
    for (const host::WindowSpec* spec : program::catalogue())
        if (spec->role == host::Role::sheet)
            names.emplace_back(spec->name);
    return names;
}

class SmallScreenTest : public ::testing::TestWithParam<std::string> {
protected:
    SmallScreenTest() : on(program::catalogue(), smallScreen) {}
    void SetUp() override
    {
        on.open();
        on.show("Form16"); // the palette takes its strip
        on.answerAnything();
        sheet = &on.show(GetParam());
        Bench::settle();
    }
    void expectItsWholeWidth()
    {
        const auto* area = on.viewOf(*sheet).findChild<QScrollArea*>();
        ASSERT_NE(area, nullptr);
        const desktop::Canvas& canvas = on.viewOf(*sheet).canvas();
        EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0)
            << canvas.width() << " in " << area->viewport()->width() << " pixels";
        EXPECT_GE(canvas.scale(), readable);
    }
    Bench on;
    host::Window* sheet = nullptr;
};

TEST_P(SmallScreenTest, aSheetIsNotWiderThanItsWindow)
{
    expectItsWholeWidth();
}

TEST_P(SmallScreenTest, aMaximisedSheetIsNotWiderThanTheScreen)
{
    on.engine.userState(*sheet, 2);
    Bench::settle();
    expectItsWholeWidth();
}

INSTANTIATE_TEST_SUITE_P(Sheets, SmallScreenTest, ::testing::ValuesIn(everySheet()),
                         [](const ::testing::TestParamInfo<std::string>& one) { return one.param; });

} // namespace velmor::test::small_screen_test
