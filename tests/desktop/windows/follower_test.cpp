// SPDX-License-Identifier: MIT
// The emitter follower and the phase splitter on real widgets: a design by the keyboard alone, the analysis by key, and
// every text inside its place in both languages, at three sizes, at each stage.
#include <gtest/gtest.h>

#include "designs/base_collector/form17_controls.h"
#include "designs/base_collector/form9_controls.h"
#include "desktop/desktop_fixture.h"
#include "desktop/drawing/control_painter.h"
#include "desktop/drawing/field_marks.h"
#include "desktop/written_texts.h"
#include "program/catalogue.h"

namespace velmor::test::follower_test {

class FollowerTest : public ::testing::TestWithParam<bool> {
protected:
    FollowerTest() : on(program::catalogue()) {}
    void open(const char* name)
    {
        on.engine.values().LanguageIsEnglish = GetParam() ? host::trueValue : std::int16_t{0};
        on.open();
        sheet = &on.show(name);
        Bench::settle();
        expectTextsFit(*sheet, "blank");
    }
    void enter(host::Handle field)
    {
        ASSERT_EQ(sheet->focus(), field);
        Bench::key(Qt::Key_Return);
        expectTextsFit(*sheet, "on the way");
    }
    void enter(host::Handle field, const QString& value)
    {
        ASSERT_EQ(sheet->focus(), field);
        Bench::type(value);
        Bench::key(Qt::Key_Return);
        expectTextsFit(*sheet, "on the way");
    }
    void expectTextsFit(const host::Window& window, const char* stage)
    {
        desktop::View view;
        view.languageIsEnglish = on.engine.values().LanguageIsEnglish;
        for (const double pixelsWide : {1100.0, 1340.0, 2500.0}) {
            view.pixelsPerTwip = pixelsWide / sheet->spec().place.width;
            EXPECT_EQ(textComplaints(window, view), std::vector<std::string>{}) << stage << ", " << pixelsWide;
        }
    }
    void expectLeafFits(const char* stage)
    {
        const host::Window* leaf = on.engine.instance("Form6", 0);
        ASSERT_NE(leaf, nullptr);
        expectTextsFit(*leaf, stage);
    }

    Bench on;
    host::Window* sheet = nullptr;
};

TEST_P(FollowerTest, aFollowerIsDesignedByTheKeyboardAndEveryTextFits)
{
    using namespace form17;
    open("Form17");
    for (const host::Handle field : {Text12, Text5, Text6, Text7, Text2})
        enter(field);
    enter(Text4, QStringLiteral("47"));
    enter(Text9);
    enter(Text13, QStringLiteral("4"));
    for (const host::Handle field : {Text14, Text8, Text15, Text16})
        enter(field);
    enter(Text17);
    ASSERT_TRUE(sheet->visible(Picture2));
    Bench::keys("Ctrl+1");
    EXPECT_TRUE(sheet->visible(Picture1));
    expectTextsFit(*sheet, "page open");
    expectLeafFits("a heavy input");
    on.click(*sheet, Picture1);
    EXPECT_TRUE(sheet->visible(Picture2));
    EXPECT_FALSE(sheet->visible(Picture1));
}

TEST_P(FollowerTest, aSplitterIsDesignedByTheKeyboardAndEveryTextFits)
{
    using namespace form9;
    open("Form9");
    enter(Text4, QStringLiteral("100"));
    enter(Text8);
    enter(Text9, QStringLiteral("1"));
    enter(Text13, QStringLiteral("1.5"));
    for (const host::Handle field : {Text14, Text10, Text2, Text12, Text5, Text6, Text7})
        enter(field);
    enter(Text20, QStringLiteral("12"));
    enter(Text15, QStringLiteral("4.7"));
    ASSERT_TRUE(sheet->visible(Frame1));
    expectTextsFit(*sheet, "the question");
    Bench::keys("Ctrl+2");
    EXPECT_FALSE(sheet->visible(Frame1));
    ASSERT_EQ(sheet->focus(), Text16);
    expectTextsFit(*sheet, "gone on");
    enter(Text16);
    enter(Text17, QStringLiteral("10.1"));
    ASSERT_TRUE(sheet->visible(Picture2));
    Bench::keys("Ctrl+1");
    EXPECT_TRUE(sheet->visible(Picture1));
    expectLeafFits("a heavy input");
    on.click(*sheet, Picture1);
    EXPECT_EQ(on.engine.instance("Form6", 0), nullptr);
}

TEST_P(FollowerTest, aFieldWhosePartBearsItsSymbolStillSaysIt)
{
    using namespace form9;
    open("Form9");
    for (const host::Handle field : {Text4, Text8, Text9, Text13, Text14, Text10, Text2, Text12, Text5, Text6, Text7})
        enter(field);
    EXPECT_TRUE(on.widgetOf(*sheet, Text20)->accessibleName().startsWith(QStringLiteral("Es, ")));
    const desktop::View view;
    EXPECT_TRUE(desktop::symbolBounds(*sheet, Text20, view).isEmpty());
    EXPECT_FALSE(desktop::symbolBounds(*sheet, Text4, view).isEmpty());
}

TEST_P(FollowerTest, aNameIsNotWrittenBelowTheFieldThatBearsIt)
{
    using namespace form17;
    open("Form17");
    ASSERT_EQ(sheet->text(Label24), "Rb1");
    EXPECT_FALSE(desktop::isPainted(*sheet, Label24));
    for (const host::Handle field : {Text12, Text5, Text6, Text7, Text2, Text4, Text9})
        enter(field);
    EXPECT_EQ(sheet->text(Label30), " Rlw=0.5K");
    EXPECT_TRUE(desktop::isPainted(*sheet, Label30));
}

INSTANTIATE_TEST_SUITE_P(Languages, FollowerTest, ::testing::Bool(),
                         [](const auto& chosen) { return chosen.param ? "English" : "Spanish"; });

} // namespace velmor::test::follower_test
