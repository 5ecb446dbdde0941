// SPDX-License-Identifier: MIT
// Controls that are painted: every look shows its text, states differ, texts are plain texts and are measured honestly.
#include "desktop/drawing/control_painter.h"

#include <QFontMetricsF>

#include <gtest/gtest.h>

#include "desktop/drawing/canvas_image.h"
#include "desktop/drawing/caption_fit.h"
#include "desktop/drawing/painted_sheet.h"
#include "desktop/drawing/typefaces.h"

using namespace velmor;
using desktop::lightInks;

namespace control_painter_tests {

class PaintedControls : public testing::Test {
protected:
    test::PaintedProgram program;
    host::Window& stage = program.stage();
};

} // namespace control_painter_tests

using namespace control_painter_tests;

TEST_F(PaintedControls, EveryTextOfTheSampleFitsAtThreeSizes)
{
    for (const double scale : {1.0, 1.37, 2.0})
        for (host::Handle control = 0; control < stage.controlCount(); ++control)
            EXPECT_TRUE(desktop::captionFits(stage, control, test::viewAt(scale))) << stage.row(control).name << scale;
}

TEST_F(PaintedControls, ATextThatIsTooLongIsFound)
{
    const std::string tooLong(400, 'w');
    for (const host::Handle control : {test::Note, test::Hint, test::ButtonReport, test::OptionOne, test::Voice}) {
        stage.setText(control, tooLong);
        EXPECT_FALSE(desktop::captionFits(stage, control, test::viewAt(1.0))) << stage.row(control).name;
    }
    std::string manyLines = "a";
    for (int i = 0; i < 12; ++i)
        manyLines += "\na";
    stage.setText(test::Voice, manyLines);
    EXPECT_FALSE(desktop::captionFits(stage, test::Voice, test::viewAt(1.0)));
}

TEST_F(PaintedControls, ASymbolOrUnitInTheWayOfAnotherControlIsFound)
{
    ASSERT_TRUE(desktop::captionFits(stage, test::FieldCollector, test::viewAt(1.0)));
    const host::Place place = stage.placeOf(test::FieldCollector);
    stage.setPlaceOf(test::FieldEmitter, {place.left + place.width + 60, place.top, 600, place.height});
    EXPECT_FALSE(desktop::captionFits(stage, test::FieldCollector, test::viewAt(1.0)));
    stage.setVisible(test::FieldEmitter, false);
    EXPECT_TRUE(desktop::captionFits(stage, test::FieldCollector, test::viewAt(1.0)));
    stage.setPlaceOf(test::FieldCollector, {0, place.top, place.width, place.height});
    EXPECT_FALSE(desktop::captionFits(stage, test::FieldCollector, test::viewAt(1.0))) << "outside the window";
}

TEST_F(PaintedControls, LettersShrinkStepwiseButStayReadable)
{
    const desktop::View view = test::viewAt(1.5);
    std::string text = "Valor";
    int last = 1000;
    for (int i = 0; i < 60; ++i) {
        text += " recomendado para la etapa";
        stage.setText(test::Voice, text);
        const int pixels = desktop::captionFont(stage, test::Voice, view).pixelSize();
        EXPECT_LE(pixels, last);
        EXPECT_GE(pixels, 9);
        last = pixels;
    }
    EXPECT_EQ(last, 9);
    stage.setText(test::Voice, "Valor");
    // 9.5 points are 190 twips; at 150 % a twip is a tenth of a pixel.
    EXPECT_EQ(desktop::captionFont(stage, test::Voice, view).pixelSize(), 19);
}

TEST_F(PaintedControls, AFieldKeepsItsLettersWhateverItHolds)
{
    const int empty = desktop::captionFont(stage, test::FieldGain, test::viewAt(2.0)).pixelSize();
    stage.setText(test::FieldGain, "123456789012345678901234567890");
    EXPECT_EQ(desktop::captionFont(stage, test::FieldGain, test::viewAt(2.0)).pixelSize(), empty);
}

TEST_F(PaintedControls, WhatIsPaintedStaysWithinItsBounds)
{
    for (const double scale : {1.0, 1.5})
        for (host::Handle control = 0; control < stage.controlCount(); ++control) {
            const desktop::View view = test::viewAt(scale);
            const QImage image = test::imageOfControl(stage, control, view);
            const QRect bounds = desktop::inkBounds(stage, control, view).toAlignedRect();
            EXPECT_TRUE(bounds.contains(test::inkedBox(image, lightInks().paper))) << stage.row(control).name;
        }
}

TEST_F(PaintedControls, EveryTextLeavesInk)
{
    for (const desktop::Inks* inks : {&desktop::lightInks(), &desktop::darkInks()})
        for (host::Handle control = 0; control < stage.controlCount(); ++control) {
            if (stage.text(control).empty() || stage.row(control).kind == host::Kind::field)
                continue;
            const desktop::View view = test::viewAt(1.0, *inks);
            const QImage with = test::imageOfControl(stage, control, view);
            const std::string text = stage.text(control);
            stage.setText(control, "\u00A0");
            EXPECT_NE(with, test::imageOfControl(stage, control, view)) << stage.row(control).name;
            stage.setText(control, text);
        }
}

TEST_F(PaintedControls, PromptAndHintVanishWithTheirText)
{
    for (const host::Handle control : {test::Voice, test::Hint, test::Balloon, test::Warning}) {
        stage.setText(control, "");
        EXPECT_EQ(test::inkedPixels(test::imageOfControl(stage, control, test::viewAt(1.0)), lightInks().paper), 0);
    }
}

TEST_F(PaintedControls, StatesDiffer)
{
    desktop::View view = test::viewAt(1.0);
    for (const host::Handle control : {test::ButtonReport, test::ToolPage}) {
        const QImage plain = test::imageOfControl(stage, control, view);
        view.hovered = control;
        const QImage hovered = test::imageOfControl(stage, control, view);
        view.hovered = host::noControl;
        stage.setEnabled(control, false);
        const QImage disabled = test::imageOfControl(stage, control, view);
        stage.setEnabled(control, true);
        ASSERT_TRUE(program.engine.userFocus(stage, control));
        const QImage focused = test::imageOfControl(stage, control, view);
        EXPECT_NE(plain, hovered);
        EXPECT_NE(plain, disabled);
        EXPECT_NE(plain, focused);
        EXPECT_NE(hovered, focused);
    }
    const QImage on = test::imageOfControl(stage, test::CheckOne, view);
    stage.setChecked(test::CheckOne, false);
    EXPECT_NE(on, test::imageOfControl(stage, test::CheckOne, view));
}

TEST_F(PaintedControls, ADisabledControlDoesNotAnswerThePointer)
{
    desktop::View view = test::viewAt(1.0);
    const QImage plain = test::imageOfControl(stage, test::ButtonOff, view);
    view.hovered = view.pressed = test::ButtonOff;
    EXPECT_EQ(plain, test::imageOfControl(stage, test::ButtonOff, view));
}

TEST_F(PaintedControls, TextsAreNeitherMarkupNorMnemonics)
{
    const desktop::View view = test::viewAt(2.0);
    const std::string text = "<b>A</b> &B &amp; &&";
    stage.setText(test::PlainLabel, text);
    const desktop::CaptionSetting setting = desktop::setCaption(stage, test::PlainLabel, view);
    const double width = QFontMetricsF(setting.font).horizontalAdvance(QString::fromStdString(text));
    EXPECT_NEAR(setting.box.width(), width, 2.0);
    const QImage painted = test::imageOfControl(stage, test::PlainLabel, view);
    const QRect ink = test::inkedBox(painted, lightInks().paper);
    EXPECT_NEAR(ink.width(), width, 4.0);
}

TEST_F(PaintedControls, BlanksThatLinedTextsUpAreOnlyShownAsOneGap)
{
    using desktop::displayText;
    EXPECT_EQ(displayText("      Especificacion circuital...       Esc...valor predeterminado ").toStdString(),
              "Especificacion circuital...   Esc...valor predeterminado");
    EXPECT_EQ(displayText("uno  dos").toStdString(), "uno dos");
    EXPECT_EQ(displayText("a\n\n   b ").toStdString(), "a\n\nb");
    EXPECT_EQ(displayText("  title\n    1) one\n       more\n\n  2) two").toStdString(),
              "title\n  1) one\n    more\n\n2) two");
    EXPECT_EQ(displayText("").toStdString(), "");
    EXPECT_EQ(displayText("Rin\tx").toStdString(), "Rin x");
    stage.setText(test::PlainLabel, "   a     b");
    const QImage image = test::imageOfControl(stage, test::PlainLabel, test::viewAt(1.0));
    EXPECT_EQ(stage.text(test::PlainLabel), "   a     b");
}

TEST_F(PaintedControls, AColourOfTheSheetStaysReadable)
{
    stage.setBackColor(test::PlainLabel, 0x202020);
    stage.setForeColor(test::PlainLabel, 0x800000);
    const QImage image = test::imageOfControl(stage, test::PlainLabel, test::viewAt(1.0));
    double best = 0.0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != lightInks().paper.rgb())
                best = std::max(best, desktop::contrast(QColor(image.pixel(x, y)), QColor(0x20, 0x20, 0x20)));
    EXPECT_GE(best, 4.5);
}

TEST_F(PaintedControls, AHiddenPanelHidesWhatItHolds)
{
    EXPECT_TRUE(desktop::isPainted(stage, test::Voice));
    stage.setVisible(test::Voice, false);
    EXPECT_FALSE(desktop::isPainted(stage, test::Voice));
}

TEST_F(PaintedControls, OnlyWhatIsExposedIsPainted)
{
    desktop::View view = test::viewAt(1.0);
    view.exposed = desktop::boxOf(stage, test::Voice, view);
    QImage image = test::paperImage({700, 500});
    QPainter painter(&image);
    desktop::paintWindow(painter, stage, view);
    painter.end();
    EXPECT_GT(test::inkedPixels(image, lightInks().paper), 1000);
    EXPECT_EQ(test::inkedPixels(image.copy(500, 350, 200, 150), lightInks().paper), 0);
}
