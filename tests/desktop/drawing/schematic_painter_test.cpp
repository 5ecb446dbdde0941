// SPDX-License-Identifier: MIT
// Drawings: every symbol leaves ink inside its bounds, leads are crisp, values stand under names, the part in hand is
// told apart by more than colour.
#include "desktop/drawing/schematic_painter.h"

#include <array>

#include <gtest/gtest.h>

#include "desktop/drawing/canvas_image.h"
#include "desktop/drawing/painted_sheet.h"
#include "desktop/drawing/symbols.h"

using namespace velmor;
using desktop::lightInks;
using host::GridPoint;
using host::Mark;
using host::Symbol;

namespace schematic_painter_tests {

constexpr GridPoint triangle[] = {{60, 60}, {120, 60}, {90, 110}};

/// One mark of a symbol, in the middle of a picture.
Mark sample(Symbol symbol)
{
    Mark mark{.symbol = symbol, .from = {100, 70}, .to = {100, 140}, .name = "R_b1"};
    if (symbol == Symbol::polyline || symbol == Symbol::fill)
        mark.points = triangle;
    const bool spans = desktop::isPictogram(symbol) || symbol == Symbol::frame || symbol == Symbol::roundFrame ||
                       symbol == Symbol::dashedFrame || symbol == Symbol::circle || symbol == Symbol::sine ||
                       symbol == Symbol::sineInverted;
    if (spans)
        mark.to = {160, 130};
    return mark;
}

class EverySymbol : public testing::TestWithParam<int> {
protected:
    test::PaintedProgram program;
};

class Schematic : public testing::Test {
protected:
    test::PaintedProgram program;
    const host::Window& window() { return program.stage(); }
};

QRgb at(const QImage& image, int x, int y)
{
    return image.pixel(x, y);
}

} // namespace schematic_painter_tests

using namespace schematic_painter_tests;

TEST_P(EverySymbol, LeavesInkWithinItsBounds)
{
    for (const double scale : {1.0, 1.5, 2.0}) {
        const Mark mark = sample(static_cast<Symbol>(GetParam()));
        const QImage image = test::imageOfMarks(program.stage(), {&mark, 1}, scale);
        EXPECT_GT(test::inkedPixels(image, lightInks().paper), 10) << scale;
        const QRectF bounds = desktop::boundsOfMarks(program.stage(), {&mark, 1}, {}, test::viewAt(scale));
        EXPECT_TRUE(bounds.toAlignedRect().contains(test::inkedBox(image, lightInks().paper))) << scale;
    }
}

TEST_P(EverySymbol, LooksUnlikeAWire)
{
    Mark mark = sample(static_cast<Symbol>(GetParam()));
    if (mark.symbol == Symbol::wire)
        return;
    mark.name = mark.symbol == Symbol::text || mark.symbol == Symbol::label ? "R" : "";
    const Mark wire{.symbol = Symbol::wire, .from = mark.from, .to = mark.to};
    EXPECT_NE(test::imageOfMarks(program.stage(), {&mark, 1}, 1.0),
              test::imageOfMarks(program.stage(), {&wire, 1}, 1.0));
}

INSTANTIATE_TEST_SUITE_P(All, EverySymbol, testing::Range(0, static_cast<int>(Symbol::colourBands) + 1));

/// Across a lead there are only pixels of pure paper and pure ink, and the ink is as wide as the rounded weight.
class Crispness : public testing::TestWithParam<std::array<double, 4>> {};

TEST_P(Crispness, LeadsAreWholePixels)
{
    const auto [scale, ratio, shift, width] = GetParam();
    test::PaintedProgram program;
    const std::array<Mark, 2> wires{{{.symbol = Symbol::wire, .from = {20, 60}, .to = {140, 60}},
                                     {.symbol = Symbol::wire, .from = {60, 20}, .to = {60, 140}}}};
    const QImage image = test::imageOfMarks(program.stage(), wires, scale, ratio, {shift, shift});
    const int far = qRound((100.0 * scale + shift) * ratio);
    int upright = 0;
    int lying = 0;
    for (int i = 0; i < 300; ++i) {
        const QRgb across = at(image, i, far);
        const QRgb down = at(image, far, i);
        EXPECT_TRUE(across == lightInks().paper.rgb() || across == lightInks().ink.rgb()) << i;
        EXPECT_TRUE(down == lightInks().paper.rgb() || down == lightInks().ink.rgb()) << i;
        upright += across == lightInks().ink.rgb() ? 1 : 0;
        lying += down == lightInks().ink.rgb() ? 1 : 0;
    }
    EXPECT_EQ(upright, static_cast<int>(width));
    EXPECT_EQ(lying, static_cast<int>(width));
}

// Widths by hand: 1.5 times the scale times the ratio of device pixels, rounded, halves and a little above downwards.
INSTANTIATE_TEST_SUITE_P(Scales, Crispness,
                         testing::Values(std::array{1.0, 1.0, 0.0, 1.0}, std::array{1.0, 1.0, 0.37, 1.0},
                                         std::array{1.5, 1.0, 0.0, 2.0}, std::array{1.5, 1.0, 5.5, 2.0},
                                         std::array{2.0, 1.0, 0.0, 3.0}, std::array{1.0, 2.0, 0.25, 3.0},
                                         std::array{1.2, 1.5, 0.3, 3.0}, std::array{1.13, 1.25, 0.0, 2.0}));

TEST_F(Schematic, ResistorBoxIsCrispAndHollow)
{
    const Mark resistor{.symbol = Symbol::resistor, .from = {60, 20}, .to = {60, 100}};
    const QImage image = test::imageOfMarks(window(), {&resistor, 1}, 2.0);
    // Box 36 by 13 around (60, 60): at 200 % its middle column holds ink at the two borders and paper between them.
    int ink = 0;
    for (int x = 90; x < 150; ++x) {
        EXPECT_TRUE(at(image, x, 120) == lightInks().paper.rgb() || at(image, x, 120) == lightInks().ink.rgb()) << x;
        ink += at(image, x, 120) == lightInks().ink.rgb() ? 1 : 0;
    }
    EXPECT_EQ(ink, 6); // two borders of three pixels
    EXPECT_EQ(at(image, 120, 120), lightInks().paper.rgb());
}

TEST_F(Schematic, CapacitorPlatesHaveNoGreyFaces)
{
    const Mark capacitor{.symbol = Symbol::capacitor, .from = {60, 20}, .to = {60, 100}};
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        const QImage image = test::imageOfMarks(window(), {&capacitor, 1}, scale);
        const int x = qRound(68.0 * scale);
        for (int y = 0; y < qRound(120.0 * scale); ++y)
            EXPECT_TRUE(at(image, x, y) == lightInks().paper.rgb() || at(image, x, y) == lightInks().ink.rgb())
                << scale << " " << y;
    }
}

TEST_F(Schematic, TransistorsEndWhereTheTablesSay)
{
    for (const Symbol symbol : {Symbol::npn, Symbol::pnp, Symbol::npnLeft, Symbol::pnpLeft}) {
        const Mark mark{.symbol = symbol, .from = {100, 100}};
        const QImage image = test::imageOfMarks(window(), {&mark, 1}, 2.0);
        for (const GridPoint end :
             {host::collectorEnd(symbol, mark.from), host::emitterEnd(symbol, mark.from), mark.from})
            EXPECT_EQ(at(image, end.x * 2, end.y * 2), lightInks().ink.rgb()) << static_cast<int>(symbol);
    }
    EXPECT_EQ(host::collectorEnd(Symbol::npn, {0, 0}).y, -30);
    EXPECT_EQ(host::collectorEnd(Symbol::pnpLeft, {0, 0}).y, 30);
    EXPECT_EQ(host::emitterEnd(Symbol::pnpLeft, {0, 0}).x, -30);
}

// The slanted leg ends where the lead begins, whatever the pixels: no ink beside the lead's outer edge.
TEST_F(Schematic, TransistorsLeadsHaveNoJog)
{
    const auto outerEdge = [](const QImage& image, int y) {
        int x = image.width() - 1;
        while (x > 0 && qGray(at(image, x, y)) > 190)
            --x;
        return x;
    };
    const Mark marks[] = {{.symbol = Symbol::npn, .from = {50, 100}}};
    for (int step = 0; step < 90; ++step) {
        const double scale = 1.0 + step * 0.01;
        const QImage image = test::imageOfMarks(window(), marks, scale, 1.0, QPointF(step * 0.37, 0.0));
        // the collector's lead stands right of everything from 70 u down to its knee at 81.3 u
        const int lead = outerEdge(image, static_cast<int>(74.0 * scale));
        for (int y = static_cast<int>(76.0 * scale); y < static_cast<int>(81.0 * scale); ++y)
            EXPECT_LE(outerEdge(image, y), lead) << "scale " << scale << ", row " << y;
    }
}

TEST_F(Schematic, TwoEndedSymbolsReachBothEnds)
{
    for (int i = 0; i <= static_cast<int>(Symbol::colourBands); ++i) {
        const auto symbol = static_cast<Symbol>(i);
        if (!desktop::isTwoEnded(symbol))
            continue;
        const Mark mark{.symbol = symbol, .from = {30, 100}, .to = {130, 100}};
        const QImage image = test::imageOfMarks(window(), {&mark, 1}, 2.0);
        EXPECT_EQ(at(image, 61, 200), lightInks().ink.rgb()) << i;
        EXPECT_EQ(at(image, 259, 200), lightInks().ink.rgb()) << i;
    }
}

TEST_F(Schematic, NameAndValueKeepClearOfTheSymbol)
{
    for (const host::Side side : {host::Side::left, host::Side::right, host::Side::above, host::Side::below}) {
        const Mark mark{.symbol = Symbol::resistor,
                        .from = {100, 60},
                        .to = {100, 130},
                        .name = "R_C",
                        .side = side,
                        .value = test::FieldCollector,
                        .unit = "kΩ"};
        const QRectF box = desktop::labelBounds(window(), mark, {}, test::viewAt(1.0));
        EXPECT_FALSE(box.isEmpty());
        EXPECT_FALSE(box.intersects(desktop::bodyOf(mark)));
    }
}

TEST_F(Schematic, AValueBearsItsUnitWhenItIsABareNumber)
{
    host::Window& stage = program.stage();
    const Mark mark{.symbol = Symbol::resistor, .name = "R", .value = test::FieldCollector, .unit = "kΩ"};
    const auto shown = [&](std::string_view text) {
        stage.setText(test::FieldCollector, text);
        return desktop::valueText(stage, mark).toStdString();
    };
    EXPECT_EQ(shown("3.3"), "3.3\u00A0kΩ");
    EXPECT_EQ(shown("-.5"), "-.5\u00A0kΩ");
    EXPECT_EQ(shown("1E-07"), "1E-07\u00A0kΩ");
    EXPECT_EQ(shown("3.3 K"), "3.3 K");
    EXPECT_EQ(shown(" Rb2=    12 K "), "Rb2=   12 K");
    EXPECT_EQ(shown("12\nmicroF"), "12 microF");
    EXPECT_EQ(shown(""), "");
    EXPECT_EQ(shown("   "), "");
    EXPECT_EQ(shown("0.333333333333333"), "0.33333\u00A0kΩ");
    EXPECT_EQ(shown("123456"), "123456\u00A0kΩ");
    EXPECT_EQ(shown("1234567.8"), "1234568\u00A0kΩ"); // no figure before the point is ever dropped
    EXPECT_EQ(stage.text(test::FieldCollector), "1234567.8");
}

TEST_F(Schematic, TheWholeValueIsPaintedUnderTheName)
{
    const Mark bare{.symbol = Symbol::label, .from = {40, 60}, .name = "R_C"};
    Mark valued = bare;
    valued.value = test::FieldCollector;
    const QRectF one = desktop::labelBounds(window(), bare, {}, test::viewAt(1.0));
    const QRectF two = desktop::labelBounds(window(), valued, {}, test::viewAt(1.0));
    EXPECT_GT(two.height(), one.height() + 8.0);
}

TEST_F(Schematic, ThePartInHandIsToldByWeightTooNotByColourAlone)
{
    const Mark mark{.symbol = Symbol::resistor, .from = {60, 20}, .to = {60, 100}, .field = test::FieldCollector};
    const auto dark = [](const QImage& image) {
        int count = 0;
        for (int x = 90; x < 150; ++x)
            count += qGray(image.pixel(x, 120)) < 128 ? 1 : 0;
        return count;
    };
    ASSERT_TRUE(program.engine.userFocus(program.stage(), test::FieldEmitter));
    const int before = dark(test::imageOfMarks(window(), {&mark, 1}, 2.0));
    ASSERT_TRUE(program.engine.userFocus(program.stage(), test::FieldCollector));
    const int after = dark(test::imageOfMarks(window(), {&mark, 1}, 2.0));
    EXPECT_EQ(before, 6);
    EXPECT_EQ(after, 10); // one pixel more on each side of each border
}

TEST_F(Schematic, ThePartInHandStandsOnAPaleGround)
{
    const Mark mark{.symbol = Symbol::resistor, .from = {60, 20}, .to = {60, 100}, .field = test::FieldCollector};
    const QRgb inside = desktop::lightInks().accentTint.rgb();
    ASSERT_TRUE(program.engine.userFocus(program.stage(), test::FieldCollector));
    EXPECT_EQ(test::imageOfMarks(window(), {&mark, 1}, 2.0).pixel(120, 120), inside);
    ASSERT_TRUE(program.engine.userFocus(program.stage(), test::FieldEmitter));
    EXPECT_NE(test::imageOfMarks(window(), {&mark, 1}, 2.0).pixel(120, 120), inside);
}

TEST_F(Schematic, SignalsHaveTheAccentAndAMeterItsLetter)
{
    const Mark arrow{.symbol = Symbol::arrow, .from = {20, 50}, .to = {120, 50}};
    EXPECT_EQ(test::imageOfMarks(window(), {&arrow, 1}, 2.0).pixel(100, 100), desktop::lightInks().accent.rgb());
    const Mark empty{.symbol = Symbol::meter, .from = {60, 20}, .to = {60, 80}, .side = host::Side::right};
    Mark meter = empty;
    meter.name = "V";
    EXPECT_GT(test::inkedPixels(test::imageOfMarks(window(), {&meter, 1}, 2.0), desktop::lightInks().paper),
              test::inkedPixels(test::imageOfMarks(window(), {&empty, 1}, 2.0), desktop::lightInks().paper) + 20);
}

TEST_F(Schematic, TextsFollowTheLanguage)
{
    const Mark mark{.symbol = Symbol::text, .from = {20, 20}, .note = {"carga", "load of the stage"}};
    desktop::View view = test::viewAt(1.0);
    const double spanish = desktop::labelBounds(window(), mark, {}, view).width();
    view.languageIsEnglish = host::trueValue;
    EXPECT_GT(desktop::labelBounds(window(), mark, {}, view).width(), spanish * 1.5);
}

TEST_F(Schematic, PrintIsNotRounded)
{
    const Mark mark{.symbol = Symbol::wire, .from = {20, 60}, .to = {140, 60}};
    desktop::View view = test::viewAt(1.0);
    view.forPrint = true;
    QImage image = test::paperImage({200, 100});
    QPainter painter(&image);
    desktop::paintMarks(painter, window(), {&mark, 1}, {0.0, 0.25}, view);
    painter.end();
    // 1.5 wide around 60.25 covers 59.5 to 61: half of one row, the whole of the next.
    EXPECT_NE(at(image, 80, 59), lightInks().paper.rgb());
    EXPECT_NE(at(image, 80, 59), lightInks().ink.rgb());
    EXPECT_EQ(at(image, 80, 60), lightInks().ink.rgb());
}
