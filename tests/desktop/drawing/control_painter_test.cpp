// SPDX-License-Identifier: MIT
// Controls that are painted: every look shows its text, states differ, texts are plain texts and are measured honestly.
#include "desktop/drawing/control_painter.h"

#include <QFontMetricsF>

#include <gtest/gtest.h>

#include "desktop/drawing/canvas_image.h"
#include "desktop/drawing/caption_fit.h"
#include "desktop/drawing/field_marks.h"
#include "desktop/drawing/painted_sheet.h"
#include "desktop/drawing/typefaces.h"

using namespace velmor;
using desktop::lightInks;

namespace control_painter_tests {

/// How many pixels of `part` have exactly that colour.
int countOf(const QImage& image, const QRect& part, const QColor& color)
{
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            count += image.rect().contains(x, y) && image.pixel(x, y) == color.rgb() ? 1 : 0;
    return count;
}

int darkestIn(const QImage& image, const QRect& part)
{
    int darkest = 255;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            if (image.rect().contains(x, y))
                darkest = std::min(darkest, qGray(image.pixel(x, y)));
    return darkest;
}

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

TEST_F(PaintedControls, ATextThatHangsOverItsPlaceStaysWithinItsBounds)
{
    std::string tooLong = "V";
    for (int word = 0; word < 60; ++word)
        tooLong += " = 1000000244.33 V";
    for (const double scale : {0.6, 1.0, 1.5})
        for (const host::Handle control : {test::Note, test::Hint, test::OptionOne, test::Voice}) {
            stage.setText(control, tooLong);
            const desktop::View view = test::viewAt(scale);
            const desktop::CaptionSetting set = desktop::setCaption(stage, control, view);
            ASSERT_GT(set.box.height(), set.room.height() + 20.0) << stage.row(control).name;
            const QRectF bounds = desktop::inkBounds(stage, control, view);
            QImage image(QSize(1400, 1400), QImage::Format_RGB32);
            image.fill(lightInks().paper);
            QPainter painter(&image);
            // In the middle of its paper: nothing is cut off at the top.
            painter.translate(QPointF(700.0, 700.0) - desktop::boxOf(stage, control, view).center().toPoint());
            const QRect within = painter.transform().mapRect(bounds).toAlignedRect();
            desktop::paintControl(painter, stage, control, view);
            painter.end();
            EXPECT_TRUE(within.contains(test::inkedBox(image, lightInks().paper))) << stage.row(control).name;
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

TEST_F(PaintedControls, TheSignOfADisabledToolIsPalerThanItsGroundMakesIt)
{
    // The contrast between sign and plate, so that the plate's own grey does not count.
    const auto contrast = [this](bool enabled) {
        stage.setEnabled(test::ToolCalculator, enabled);
        const QImage image = test::imageOfControl(stage, test::ToolCalculator, test::viewAt(2.0));
        const QRect inside =
            desktop::boxOf(stage, test::ToolCalculator, test::viewAt(2.0)).toRect().adjusted(6, 6, -6, -6);
        return qGray(image.pixel(inside.topLeft())) - darkestIn(image, inside);
    };
    const int full = contrast(true);
    EXPECT_GT(full, 120);
    EXPECT_LT(contrast(false), full * 6 / 10);
}

TEST_F(PaintedControls, AWarningIsToldByASignAndNotByItsColourAlone)
{
    // Left of the letters, inside the border.
    const desktop::View view = test::viewAt(2.0);
    const QRectF box = desktop::boxOf(stage, test::Warning, view);
    const QRectF letters = desktop::captionBounds(stage, test::Warning, view);
    const QRect sign =
        QRectF(box.left() + 4, box.top() + 4, letters.left() - box.left() - 8, box.height() - 8).toRect();
    EXPECT_GT(countOf(test::imageOfControl(stage, test::Warning, view), sign, lightInks().warning), 30);
}

TEST_F(PaintedControls, WhatStepsBackIsQuieterThanWhatSpeaks)
{
    const desktop::View view = test::viewAt(2.0);
    const auto darkest = [&](host::Handle control) {
        return darkestIn(test::imageOfControl(stage, control, view), desktop::boxOf(stage, control, view).toRect());
    };
    const int ink = qGray(lightInks().ink.rgb());
    EXPECT_LT(darkest(test::PlainLabel), ink + 20);
    EXPECT_GT(darkest(test::Note), qGray(lightInks().quiet.rgb()) - 20);
    stage.setEnabled(test::PlainLabel, false);
    EXPECT_GT(darkest(test::PlainLabel), qGray(lightInks().quiet.rgb()) - 20);
    EXPECT_GT(darkest(test::ButtonOff), qGray(lightInks().buttonOffInk.rgb()) - 20);
    stage.setEnabled(test::ButtonOff, true);
    EXPECT_LT(darkest(test::ButtonOff), ink + 20);
}

TEST_F(PaintedControls, APressedButtonShowsThatItIsPressed)
{
    desktop::View view = test::viewAt(2.0);
    const QRect box = desktop::boxOf(stage, test::ButtonReport, view).toRect();
    const QRect ground(box.left() + 14, box.top() + 6, 6, 4);
    view.hovered = test::ButtonReport;
    EXPECT_EQ(countOf(test::imageOfControl(stage, test::ButtonReport, view), ground, lightInks().buttonHover), 24);
    view.pressed = test::ButtonReport;
    EXPECT_EQ(countOf(test::imageOfControl(stage, test::ButtonReport, view), ground, lightInks().accentTint), 24);
}

TEST_F(PaintedControls, WhatIsChosenIsFilledWithTheAccentWhatIsNotIsEmpty)
{
    const desktop::View view = test::viewAt(2.0);
    for (const host::Handle control : {test::OptionOne, test::CheckOne}) {
        const QRectF box = desktop::boxOf(stage, control, view);
        const double size = std::min(26.0, box.height());
        const QRect mark = QRectF(box.left() + 2, box.center().y() - size / 2, size, size).toRect();
        const auto filled = [&] {
            return countOf(test::imageOfControl(stage, control, view), mark, lightInks().accent);
        };
        stage.setChecked(control, true);
        EXPECT_GT(filled(), 100) << stage.row(control).name;
        stage.setChecked(control, false);
        EXPECT_EQ(filled(), 0) << stage.row(control).name;
    }
}

TEST_F(PaintedControls, TheTeachersVoiceHasAnEdgeOfTheAccentAndNoMore)
{
    const desktop::View view = test::viewAt(2.0);
    const QRect box = desktop::boxOf(stage, test::Voice, view).toRect();
    const QImage image = test::imageOfControl(stage, test::Voice, view);
    const QRect edge(box.left() + 2, box.center().y() - 5, 4, 10);
    EXPECT_EQ(countOf(image, edge, lightInks().accent), 40);
    EXPECT_EQ(countOf(image, box.adjusted(10, 0, 0, 0), lightInks().accent), 0) << "four units wide";
}

TEST_F(PaintedControls, OnPaperNothingIsInHandAndFieldsHaveTheirBoxes)
{
    const auto printed = [this] {
        desktop::View view = test::viewAt(1.0, desktop::printInks());
        view.forPrint = true;
        QImage image = test::paperImage({750, 520}, *view.inks);
        QPainter painter(&image);
        desktop::paintWindow(painter, stage, view);
        return image;
    };
    const QImage plain = printed();
    ASSERT_TRUE(program.engine.userFocus(stage, test::FieldEmitter));
    EXPECT_EQ(printed(), plain) << "a field in hand";
    ASSERT_TRUE(program.engine.userFocus(stage, test::ToolPage));
    EXPECT_EQ(printed(), plain) << "a picture in hand";
    desktop::View view = test::viewAt(1.0);
    const QRectF field = desktop::boxOf(stage, test::FieldGain, view);
    const QRect border = QRectF(field.left() + 8, field.top() - 1, field.width() - 16, 3).toRect();
    EXPECT_LT(darkestIn(plain, border), 200) << "an empty field is a box to fill in";
    stage.setVisible(test::OverlayPanel, true);
    EXPECT_NE(printed(), plain) << "what lies above the sheet is printed, too";
}

TEST_F(PaintedControls, TheSymbolOfAFieldTellsWhetherItIsInHandOrOff)
{
    const desktop::View view = test::viewAt(2.0);
    const auto has = [&](host::Handle field, const QColor& color) {
        const QRect symbol = desktop::symbolBounds(stage, field, view).toAlignedRect();
        return countOf(test::imageOfControl(stage, field, view), symbol, color) > 5;
    };
    EXPECT_TRUE(has(test::FieldCollector, lightInks().ink));
    ASSERT_TRUE(program.engine.userFocus(stage, test::FieldCollector));
    EXPECT_TRUE(has(test::FieldCollector, lightInks().accent));
    EXPECT_TRUE(has(test::FieldGain, lightInks().quiet)) << "it cannot be filled in yet";
    EXPECT_FALSE(has(test::FieldGain, lightInks().ink));
    const QRect unit = desktop::unitBounds(stage, test::FieldLoad, view).toAlignedRect();
    EXPECT_GT(countOf(test::imageOfControl(stage, test::FieldLoad, view), unit, lightInks().quiet), 5);
}

TEST_F(PaintedControls, AUnitThatTheValueBearsIsNotSaidTwice)
{
    const auto unitBeside = [&](const char* text) {
        stage.setText(test::FieldLoad, text);
        return !desktop::unitBounds(stage, test::FieldLoad, test::viewAt(1.0)).isEmpty();
    };
    for (const char* bare : {"", "  ", "20", " 2.5 ", "0,6", "7.", "RL", "Rb1", "Click"})
        EXPECT_TRUE(unitBeside(bare)) << bare;
    for (const char* withUnit : {"20 K", "1.2089 mA", "9.2 V ", "Res :3 K"})
        EXPECT_FALSE(unitBeside(withUnit)) << withUnit;
}

TEST_F(PaintedControls, SymbolAndUnitDoNotGrowWithTheLettersOfTheirField)
{
    const desktop::View view = test::viewAt(1.0);
    const QRectF symbol = desktop::symbolBounds(stage, test::FieldLoad, view);
    const QRectF unit = desktop::unitBounds(stage, test::FieldLoad, view);
    const double letters = desktop::fieldLetters(stage, test::FieldLoad, view);
    stage.setFontSize(test::FieldLoad, 12);
    EXPECT_GT(desktop::fieldLetters(stage, test::FieldLoad, view), letters);
    EXPECT_EQ(desktop::symbolBounds(stage, test::FieldLoad, view), symbol);
    EXPECT_EQ(desktop::unitBounds(stage, test::FieldLoad, view), unit);
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
