// SPDX-License-Identifier: MIT
// The common-base stage on real widgets: a design by the keyboard, the source taken to the base with the mouse and by keys, and
// every text inside its place in both languages, at three sizes, at each stage.
#include <gtest/gtest.h>

#include "designs/base_collector/form4_controls.h"
#include "desktop/desktop_fixture.h"
#include "desktop/written_texts.h"
#include "program/catalogue.h"

namespace velmor::test::form4_test {

using namespace form4;

class Form4Test : public ::testing::TestWithParam<bool> {
protected:
    Form4Test() : on(program::catalogue()) {}
    void SetUp() override
    {
        on.engine.values().LanguageIsEnglish = GetParam() ? host::trueValue : std::int16_t{0};
        on.open();
        sheet = &on.show("Form4");
        Bench::settle();
    }
    static void enter() { Bench::key(Qt::Key_Return); }
    static void enter(const QString& value)
    {
        Bench::type(value);
        enter();
    }
    /// From the first field to the last; what the student sees on the way is looked at.
    void design()
    {
        for (int field = 0; field < 16; ++field) {
            enter();
            expectTextsFit("on the way");
        }
        enter(QStringLiteral("5.6"));
        expectTextsFit("Rb2");
        enter();
        expectTextsFit("Rb1");
        enter(QStringLiteral("58.5"));
        ASSERT_TRUE(sheet->visible(Picture2));
    }
    void expectTextsFit(const char* stage)
    {
        desktop::View view;
        view.languageIsEnglish = on.engine.values().LanguageIsEnglish;
        for (const double pixelsWide : {1100.0, 1340.0, 2500.0}) {
            view.pixelsPerTwip = pixelsWide / sheet->spec().place.width;
            EXPECT_EQ(textComplaints(*sheet, view), std::vector<std::string>{}) << stage << ", " << pixelsWide;
        }
    }

    void expectLeafFits(const char* stage)
    {
        const host::Window* leaf = on.engine.instance("Form6", 0);
        ASSERT_NE(leaf, nullptr);
        desktop::View view;
        view.languageIsEnglish = on.engine.values().LanguageIsEnglish;
        EXPECT_EQ(textComplaints(*leaf, view), std::vector<std::string>{}) << stage;
    }

    Bench on;
    host::Window* sheet = nullptr;
};

TEST_P(Form4Test, everyTextFitsItsPlaceAtEachStage)
{
    expectTextsFit("blank");
    design();
    expectTextsFit("finished");
    on.click(*sheet, Picture2);
    ASSERT_EQ(sheet->text(Label2), "1.0049 mA");
    expectTextsFit("analysis");
    expectLeafFits("powers");
    on.engine.userDrag(*sheet, image2, Image4);
    expectTextsFit("emitter bypassed");
    expectLeafFits("comparison");
}

TEST_P(Form4Test, theSourceIsTakenToTheBaseWithTheMouse)
{
    design();
    on.click(*sheet, Picture2);
    ASSERT_TRUE(sheet->visible(Image4));
    on.drag(*sheet, image2, Text1); // nothing that takes it
    EXPECT_TRUE(sheet->visible(Image3));
    on.drag(*sheet, image2, Image4);
    EXPECT_TRUE(sheet->visible(Image5));
    EXPECT_EQ(sheet->placeOf(image2), sourceAtBase);
    on.click(*sheet, Picture1);
    EXPECT_TRUE(sheet->visible(Image3));
    EXPECT_EQ(sheet->placeOf(image2), sourceAtEmitter);
}

TEST_P(Form4Test, aStudentWithoutAMouseTakesTheSourceToTheBase)
{
    design();
    Bench::keys("Ctrl+1");
    ASSERT_TRUE(sheet->visible(Picture1));
    Bench::key(Qt::Key_Escape); // the leaf is put away when it has the keyboard
    Bench::keys("Ctrl+2");
    EXPECT_TRUE(sheet->visible(Image5));
    Bench::key(Qt::Key_Escape);
    Bench::keys("Ctrl+1");
    EXPECT_TRUE(sheet->visible(Picture2));
    EXPECT_FALSE(sheet->visible(Image5));
}

INSTANTIATE_TEST_SUITE_P(Languages, Form4Test, ::testing::Bool(),
                         [](const auto& chosen) { return chosen.param ? "English" : "Spanish"; });

} // namespace velmor::test::form4_test
