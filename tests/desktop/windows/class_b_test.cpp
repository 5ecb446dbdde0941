// SPDX-License-Identifier: MIT
// The class B amplifiers on real widgets: a design to its peak current, every text inside its place in both languages at three
// sizes, and a long voice beside the next step instead of over it.
#include <gtest/gtest.h>

#include "designs/power/form11_controls.h"
#include "desktop/desktop_fixture.h"
#include "desktop/drawing/control_painter.h"
#include "desktop/written_texts.h"
#include "program/catalogue.h"

namespace velmor::test::class_b_test {

using namespace form10;

class ClassBTest : public ::testing::TestWithParam<bool> {
protected:
    ClassBTest() : on(program::catalogue()) {}
    void open(const char* name)
    {
        on.engine.values().LanguageIsEnglish = GetParam() ? host::trueValue : std::int16_t{0};
        on.open();
        sheet = &on.show(name);
        Bench::settle();
    }
    void enter(host::Handle field, const QString& value = {})
    {
        ASSERT_EQ(sheet->focus(), field);
        if (!value.isEmpty())
            Bench::type(value);
        Bench::key(Qt::Key_Return);
        expectTextsFit();
    }
    /// The button of the page leads back to the sheet.
    void returnFromPage()
    {
        host::Window* page = on.engine.host().find("Form7");
        ASSERT_NE(page, nullptr);
        on.engine.userClick(*page, page->named("SSCommand2"));
        Bench::settle();
        expectTextsFit();
    }
    void expectTextsFit()
    {
        desktop::View view;
        view.languageIsEnglish = on.engine.values().LanguageIsEnglish;
        for (const double pixelsWide : {1100.0, 1340.0, 2500.0}) {
            view.pixelsPerTwip = pixelsWide / sheet->spec().place.width;
            EXPECT_EQ(textComplaints(*sheet, view), std::vector<std::string>{}) << pixelsWide;
            EXPECT_TRUE(desktop::captionFits(*sheet, Label1, view)) << sheet->text(Label1) << ", " << pixelsWide;
        }
    }
    void expectVoiceBesideTheNextStep()
    {
        const desktop::Canvas& canvas = on.viewOf(*sheet).canvas();
        const QRect voice = canvas.boxInPixels(Label1);
        EXPECT_FALSE(voice.intersects(canvas.boxInPixels(Label28)));
        EXPECT_TRUE(on.widgetOf(*sheet, Label1)->geometry().contains(voice)) << "what is written is seen";
    }

    Bench on;
    host::Window* sheet = nullptr;
};

TEST_P(ClassBTest, aSimpleStageIsDesignedAndItsLongVoiceHidesNothing)
{
    open("Form10");
    for (const host::Handle field : {Text1, Text2, Text10, Text5})
        enter(field);
    on.click(*sheet, Text6);
    ASSERT_TRUE(sheet->visible(SSPanel2));
    Bench::key(Qt::Key_Return);
    ASSERT_EQ(sheet->focus(), Text7);
    on.click(*sheet, Text7);
    for (const host::Handle field : {Text7, Text6, Text8})
        enter(field);
    enter(Text3, QStringLiteral("0.5"));
    enter(Text4, QStringLiteral("1.3"));
    Bench::key(Qt::Key_Return);
    enter(Text9, QStringLiteral("5.6"));
    expectVoiceBesideTheNextStep();
    enter(Text11);
    enter(Text12);
    ASSERT_TRUE(sheet->visible(Text13));
    expectVoiceBesideTheNextStep();
    on.engine.userFocus(*sheet, Text9);
    Bench::settle();
    EXPECT_EQ(sheet->focus(), Text9);
    expectVoiceBesideTheNextStep();
}

TEST_P(ClassBTest, anImprovedStageIsDesignedWithItsPageOfCalculations)
{
    open("Form11");
    for (const host::Handle field : {Text1, Text2})
        enter(field);
    enter(Text10, QStringLiteral("36"));
    enter(Text5);
    on.click(*sheet, Text6);
    returnFromPage();
    ASSERT_EQ(sheet->focus(), Text7);
    on.click(*sheet, Text7);
    for (const host::Handle field : {Text7, Text6, Text8, Text3, Text4})
        enter(field);
    returnFromPage();
    enter(Text9, QStringLiteral("1.5"));
    enter(Text11, QStringLiteral("4"));
    enter(Text12);
    EXPECT_EQ(sheet->text(Text13), "2.0875 Amps") << "(18 - 1 - 0.3) / 8";
    expectVoiceBesideTheNextStep();
}

INSTANTIATE_TEST_SUITE_P(Languages, ClassBTest, ::testing::Bool(),
                         [](const auto& chosen) { return chosen.param ? "English" : "Spanish"; });

} // namespace velmor::test::class_b_test
