// SPDX-License-Identifier: MIT
// The two pairs on real widgets: every text inside its place in both languages and both pictures, at three sizes, at each stage; a
// box made low; what the mirror's picture leaves out.
#include <gtest/gtest.h>

#include <QFontMetricsF>

#include "designs/differential/form13_controls.h"
#include "desktop/desktop_fixture.h"
#include "desktop/drawing/caption_fit.h"
#include "desktop/drawing/control_painter.h"
#include "desktop/written_texts.h"
#include "program/catalogue.h"

namespace velmor::test::form13_test {

using namespace form13;

class Form13Test : public ::testing::TestWithParam<bool> {
protected:
    Form13Test() : on(program::catalogue()) {}
    void SetUp() override
    {
        on.engine.values().LanguageIsEnglish = GetParam() ? host::trueValue : std::int16_t{0};
        on.open();
        sheet = &on.show("Form13");
        Bench::settle();
        expectTextsFit("blank");
    }
    void enter(host::Handle field, const QString& value = {})
    {
        ASSERT_EQ(sheet->focus(), field);
        if (!value.isEmpty())
            Bench::type(value);
        Bench::key(Qt::Key_Return);
        expectTextsFit("on the way");
    }
    void design()
    {
        enter(Text1);
        enter(Text2);
        enter(Text3);
        enter(Text5, QStringLiteral("13"));
        enter(Text6, QStringLiteral("12"));
        enter(Text7, QStringLiteral("3"));
        enter(Text8);
        enter(Text9, QStringLiteral("18"));
        enter(Text10, QStringLiteral("2.7"));
        enter(Text11, QStringLiteral("27"));
    }
    desktop::View viewAt(double pixelsWide)
    {
        desktop::View view;
        view.languageIsEnglish = on.engine.values().LanguageIsEnglish;
        view.pixelsPerTwip = pixelsWide / sheet->spec().place.width;
        return view;
    }
    void expectTextsFit(const char* stage)
    {
        for (const double pixelsWide : {1100.0, 1340.0, 2500.0})
            EXPECT_EQ(textComplaints(*sheet, viewAt(pixelsWide)), std::vector<std::string>{})
                << stage << ", " << pixelsWide;
    }

    Bench on;
    host::Window* sheet = nullptr;
};

TEST_P(Form13Test, everyTextFitsItsPlaceInBothPictures)
{
    design();
    Bench::keys("Ctrl+1");
    ASSERT_TRUE(sheet->visible(image2));
    expectTextsFit("mirror");
    Bench::keys("Ctrl+1");
    ASSERT_TRUE(sheet->visible(Image1));
    expectTextsFit("circuit again");
}

TEST_P(Form13Test, theResistorsOfTheSecondPairStandInOneLineBesideTheirSymbols)
{
    enter(Text1, QStringLiteral("79"));
    enter(Text2, QStringLiteral("2000"));
    enter(Text3);
    for (double pixelsWide = 950.0; pixelsWide < 1600.0; pixelsWide += 3.0)
        for (const host::Handle label : {Label5, Label8}) {
            ASSERT_EQ(sheet->text(label), "RL2= 8.4286 K"); // 4 x 2.1071 V over 1 mA
            const desktop::View view = viewAt(pixelsWide);
            EXPECT_LT(desktop::captionBounds(*sheet, label, view).height(),
                      1.5 * QFontMetricsF(desktop::captionFont(*sheet, label, view)).height())
                << label << ", " << pixelsWide;
        }
}

TEST_P(Form13Test, theMirrorHasNeitherRb1NorC1)
{
    design();
    Bench::keys("Ctrl+1");
    on.engine.userFocus(*sheet, Text10);
    on.engine.userFocus(*sheet, Text9);
    for (const host::Handle label : {Label22, Label35}) {
        ASSERT_TRUE(sheet->visible(label));
        EXPECT_FALSE(desktop::isPainted(*sheet, label));
    }
    Bench::keys("Ctrl+1");
    for (const host::Handle label : {Label22, Label35})
        EXPECT_TRUE(desktop::isPainted(*sheet, label));
}

TEST_P(Form13Test, aBoxMadeLowShowsItsFirstLine)
{
    design();
    const desktop::View view = viewAt(1340.0);
    const QString whole = desktop::setCaption(*sheet, Label26, view).text;
    EXPECT_GT(whole.count(QLatin1Char('\n')), 3);
    Bench::keys("Ctrl+4");
    const QString heading = GetParam() ? QStringLiteral("Date …") : QStringLiteral("Datos …");
    EXPECT_EQ(desktop::setCaption(*sheet, Label26, view).text, heading);
    expectTextsFit("made low");
    Bench::keys("Ctrl+4");
    EXPECT_EQ(desktop::setCaption(*sheet, Label26, view).text, whole);
}

INSTANTIATE_TEST_SUITE_P(Languages, Form13Test, ::testing::Bool(),
                         [](const auto& chosen) { return chosen.param ? "English" : "Spanish"; });

} // namespace velmor::test::form13_test
