// SPDX-License-Identifier: MIT
// The class A amplifiers on real widgets: each is designed with a resistor and once more with a loudspeaker, every text inside its place
// in both languages at three sizes.
#include <gtest/gtest.h>

#include "designs/power/form20_controls.h"
#include "desktop/desktop_fixture.h"
#include "desktop/written_texts.h"
#include "program/catalogue.h"

namespace velmor::test::class_a_test {

using namespace form15;

class ClassATest : public ::testing::TestWithParam<bool> {
protected:
    ClassATest() : on(program::catalogue()) {}
    void open(const char* name)
    {
        on.engine.values().LanguageIsEnglish = GetParam() ? host::trueValue : std::int16_t{0};
        on.open();
        sheet = &on.show(name);
        Bench::settle();
    }
    void enter(host::Handle field, const QString& value = {})
    {
        ASSERT_EQ(sheet->focus(), field) << sheet->row(field).name;
        if (!value.isEmpty())
            Bench::type(value);
        Bench::key(Qt::Key_Return);
        expectTextsFit();
    }
    void choose(host::Handle load)
    {
        ASSERT_EQ(sheet->focus(), Text12);
        on.click(*sheet, load);
        expectTextsFit();
    }
    void expectTextsFit()
    {
        desktop::View view;
        view.languageIsEnglish = on.engine.values().LanguageIsEnglish;
        for (const double pixelsWide : {1100.0, 1340.0, 2500.0}) {
            view.pixelsPerTwip = pixelsWide / sheet->spec().place.width;
            EXPECT_EQ(textComplaints(*sheet, view), std::vector<std::string>{}) << pixelsWide;
        }
    }
    /// From power and load to the series resistor, with the supply and the base resistor given.
    void design(host::Handle load, const QString& Es, const QString& Rb2)
    {
        for (const host::Handle field : {Text1, Text2})
            enter(field);
        choose(load);
        for (const host::Handle field : {Text10, Text11, Text3})
            enter(field);
        enter(Text4, Es);
        for (const host::Handle field : {Text5, Text6, Text7})
            enter(field);
        enter(Text8, Rb2);
        enter(Text9);
        ASSERT_EQ(sheet->focus(), Text1);
        ASSERT_TRUE(sheet->visible(Label20));
    }

    Bench on;
    host::Window* sheet = nullptr;
};

TEST_P(ClassATest, aSimpleStageIsDesignedAndMeasured)
{
    open("Form15");
    design(Image1, QStringLiteral("13.1872"), QStringLiteral("170"));
    EXPECT_EQ(sheet->text(Text1), "1.35820097939344") << "(2 x 16 x 0.4121 / 2 x 0.707) squared over 16";
}

TEST_P(ClassATest, aDarlingtonStageDrivesALoudspeaker)
{
    open("form20");
    design(Image2, QStringLiteral("13"), QStringLiteral("6500"));
    EXPECT_EQ(sheet->text(Text2), "11.2") << "0.7 x 16";
}

INSTANTIATE_TEST_SUITE_P(Languages, ClassATest, ::testing::Bool(),
                         [](const auto& chosen) { return chosen.param ? "English" : "Spanish"; });

} // namespace velmor::test::class_a_test
