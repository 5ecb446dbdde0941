// SPDX-License-Identifier: MIT
// The pair and its bench on real widgets: a design by the keyboard, signals dragged with the mouse and carried by keys, a
// reading taken, and every text inside its place in both languages, at three sizes, at each stage.
#include <gtest/gtest.h>

#include "designs/differential/form3_controls.h"
#include "desktop/desktop_fixture.h"
#include "desktop/drawing/canvas_image.h"
#include "desktop/drawing/control_painter.h"
#include "desktop/drawing/schematic_painter.h"
#include "desktop/written_texts.h"
#include "program/catalogue.h"

namespace velmor::test::form3_test {

using namespace form3;
using host::Handle;
using host::Kind;

class Form3Test : public ::testing::TestWithParam<bool> {
protected:
    Form3Test() : on(program::catalogue()) {}
    void SetUp() override
    {
        on.engine.values().LanguageIsEnglish = GetParam() ? host::trueValue : std::int16_t{0};
        on.open();
        sheet = &on.show("Form3");
        Bench::settle();
    }
    void enter(int times)
    {
        for (int i = 0; i < times; ++i)
            Bench::key(Qt::Key_Return);
    }
    void finish()
    {
        enter(17);
        Bench::type("24");
        enter(1);
        ASSERT_TRUE(sheet->visible(image2));
    }
    void expectTextsFit(const char* stage);

    Bench on;
    host::Window* sheet = nullptr;
};

void Form3Test::expectTextsFit(const char* stage)
{
    desktop::View view;
    view.languageIsEnglish = on.engine.values().LanguageIsEnglish;
    for (const double pixelsWide : {1100.0, 1340.0, 2500.0}) {
        view.pixelsPerTwip = pixelsWide / sheet->spec().place.width;
        EXPECT_EQ(textComplaints(*sheet, view), std::vector<std::string>{}) << stage << ", " << pixelsWide;
    }
}

TEST_P(Form3Test, theCheckOfTheTextsSeesWhatIsTooLongAndWhatLiesOverAnother)
{
    desktop::View view;
    sheet->setText(Label22, "a dynamic resistance with far too many words for a place so small");
    EXPECT_EQ(textComplaints(*sheet, view).size(), 1u);
    sheet->setText(Label22, "r'e");
    sheet->setText(Label28, "Res");
    sheet->setPlaceOf(Label28, sheet->placeOf(Label22));
    EXPECT_EQ(textComplaints(*sheet, view).size(), 1u);
}

TEST_P(Form3Test, everyTextFitsItsPlaceAtEachStage)
{
    expectTextsFit("blank");
    for (int i = 0; i < 17; ++i) {
        enter(1);
        expectTextsFit("on the way");
    }
    Bench::type("24");
    enter(1);
    ASSERT_TRUE(sheet->visible(image2));
    expectTextsFit("finished");
    on.click(*sheet, Image33);
    on.click(*sheet, c4);
    on.click(*sheet, c1);
    on.click(*sheet, Image4);
    expectTextsFit("meter on");
}

TEST_P(Form3Test, everyPageOfTheGeneratorFits)
{
    on.click(*sheet, Image30);
    expectTextsFit("generator on");
    for (const Handle source : {Image14, Image15})
        for (const Handle input : {Image12, Image11}) {
            on.engine.userDrag(*sheet, source, input);
            expectTextsFit("signal");
            for (const Handle output : {Image22, Image26, Image24}) {
                on.click(*sheet, output);
                expectTextsFit("output");
            }
        }
    for (const Handle deed : {c6, Image8, c7, Image8}) {
        on.click(*sheet, deed);
        expectTextsFit("common mode");
    }
    // the longest page stays when the fields come back
    on.engine.userDrag(*sheet, Image14, Image12);
    on.engine.userClick(*sheet, host::noControl);
    ASSERT_TRUE(sheet->visible(Text1));
    expectTextsFit("bench off again");
}

TEST_P(Form3Test, aSinusoidIsDraggedWithTheMouseAndAnOutputMeasured)
{
    on.click(*sheet, Image30);
    ASSERT_TRUE(sheet->visible(Image14));
    on.drag(*sheet, Image14, Image12);
    EXPECT_TRUE(sheet->visible(Image16));
    EXPECT_TRUE(sheet->visible(Image17));
    on.click(*sheet, Image22);
    EXPECT_NE(sheet->text(SSPanel4).find(" Out 1 = 10 V"), std::string::npos);
    EXPECT_TRUE(sheet->visible(Image23));
    EXPECT_FALSE(sheet->visible(Image25));
    on.drag(*sheet, Image15, Image11);
    EXPECT_TRUE(sheet->visible(Image21));
    on.drag(*sheet, Image14, Image26);
    EXPECT_TRUE(sheet->visible(Image18));
    // let go over nothing that takes it
    on.drag(*sheet, Image15, Image22);
    EXPECT_FALSE(sheet->visible(Image20));
}

TEST_P(Form3Test, aStudentWithoutAMouseCarriesTheSignalsAndMeasures)
{
    Bench::keys("Ctrl+B");
    ASSERT_TRUE(sheet->visible(Image14));
    Bench::keys("Ctrl+1");
    Bench::keys("Ctrl+2");
    EXPECT_TRUE(sheet->visible(Image16));
    EXPECT_TRUE(sheet->visible(Image18));
    Bench::keys("Ctrl+7");
    EXPECT_NE(sheet->text(SSPanel4).find(" Out 3 = 0 Volts"), std::string::npos);
    Bench::keys("Ctrl+B");
    EXPECT_FALSE(sheet->visible(Image14));
    EXPECT_TRUE(sheet->visible(Text1));
}

TEST_P(Form3Test, theMeterReadsByMouseAndByKeyboard)
{
    finish();
    on.click(*sheet, Image33);
    on.click(*sheet, Option2);
    on.click(*sheet, c1);
    on.click(*sheet, Image5);
    EXPECT_EQ(sheet->text(SSPanel2), "20.25");
    Bench::keys("Shift+F4");
    EXPECT_EQ(sheet->text(SSPanel2), "24");
    // Tab comes to the buttons, Space presses them
    for (int i = 0; i < 30 && sheet->focus() != c4; ++i)
        Bench::key(Qt::Key_Tab);
    ASSERT_EQ(sheet->focus(), c4);
    Bench::key(Qt::Key_Space);
    EXPECT_FALSE(sheet->enabled(c4));
    Bench::keys("Shift+F5");
    EXPECT_EQ(sheet->text(SSPanel2), "0.5");
    // the unit stands behind the number: 0.5 mA
    EXPECT_TRUE(sheet->visible(Shape13));
    EXPECT_FALSE(sheet->visible(Shape12));
    ASSERT_EQ(sheet->drawing(Shape13).size(), 1u);
    EXPECT_EQ(desktop::valueText(*sheet, sheet->drawing(Shape13)[0]), QStringLiteral("0.5\u00A0mA"));
    const desktop::View view = viewAt(1.0);
    EXPECT_FALSE(inkedBox(imageOfControl(*sheet, Shape13, view), view.inks->paper).isEmpty()) << "seen on the face";
    EXPECT_TRUE(inkedBox(imageOfControl(*sheet, SSPanel2, view), view.inks->paper).isEmpty()) << "written twice";
    // another function leaves nothing on the face
    on.click(*sheet, c1);
    EXPECT_FALSE(sheet->visible(Shape13));
}

TEST_P(Form3Test, aFunctionInForceLooksChosenNotDead)
{
    finish();
    on.click(*sheet, Image33);
    on.click(*sheet, c4);
    const auto accents = [this](Handle button) {
        const desktop::View view = viewAt(1.0);
        const QImage image = imageOfControl(*sheet, button, view);
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixel(x, y) == view.inks->accent.rgb() ? 1 : 0;
        return count;
    };
    EXPECT_FALSE(sheet->enabled(c4));
    EXPECT_TRUE(host::isChosen(*sheet, c4));
    EXPECT_GT(accents(c4), 100) << "its frame and the bar along its lower edge";
    EXPECT_EQ(accents(C3), 0);
}

TEST_P(Form3Test, thePointerOverAFieldBringsItsFormulaAndTheTableOfValues)
{
    enter(15);
    ASSERT_EQ(sheet->focus(), Text16);
    Bench::key(Qt::Key_F2);
    EXPECT_TRUE(sheet->visible(Shape8));
    EXPECT_TRUE(sheet->visible(Text21));
    QWidget* values = on.widgetOf(*sheet, Text21);
    ASSERT_NE(values, nullptr);
    EXPECT_TRUE(values->isVisible());
    const QRect canvas = on.viewOf(*sheet).canvas().rect();
    EXPECT_TRUE(canvas.contains(values->geometry()));
    enter(1);
    EXPECT_FALSE(sheet->visible(Text21));
}

TEST_P(Form3Test, theHelpPageOpensInsideTheSheet)
{
    Bench::keys("Shift+F1");
    const Handle page = GetParam() ? Text19 : Text20;
    ASSERT_TRUE(sheet->visible(page));
    EXPECT_TRUE(on.viewOf(*sheet).canvas().rect().contains(on.widgetOf(*sheet, page)->geometry()));
    Bench::keys("Shift+F1");
    EXPECT_FALSE(sheet->visible(page));
}

INSTANTIATE_TEST_SUITE_P(Languages, Form3Test, ::testing::Bool(),
                         [](const auto& showing) { return showing.param ? "english" : "spanish"; });

} // namespace velmor::test::form3_test
