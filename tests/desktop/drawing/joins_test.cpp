// SPDX-License-Identifier: MIT
// Where two strokes join they lie on the same pixels, at any scale, though their parts are counted from other corners.
#include <set>

#include <gtest/gtest.h>

#include "desktop/drawing/canvas_image.h"
#include "desktop/drawing/painted_sheet.h"
#include "desktop/drawing/sketch.h"

using namespace velmor;
using desktop::lightInks;
using host::GridPoint;
using host::Mark;
using host::Symbol;

namespace joins_tests {

constexpr int leastScale = 50; // hundredths
constexpr int largestScale = 400;

/// The corner of a part at this place of the sheet, as the painter counts it.
QPointF cornerAt(int left, int top, const desktop::View& view)
{
    constexpr int twips = 15;
    return QPointF(left * twips * view.pixelsPerTwip, top * twips * view.pixelsPerTwip);
}

bool isDark(const QImage& image, int x, int y)
{
    return qGray(image.pixel(x, y)) < 128;
}

/// Columns of a row that hold ink, between two borders.
std::set<int> darkColumns(const QImage& image, int y, int from, int to)
{
    std::set<int> columns;
    for (int x = std::max(0, from); x < std::min(image.width(), to); ++x)
        if (isDark(image, x, y))
            columns.insert(x);
    return columns;
}

std::set<int> darkRows(const QImage& image, int x, int from, int to)
{
    std::set<int> rows;
    for (int y = std::max(0, from); y < std::min(image.height(), to); ++y)
        if (isDark(image, x, y))
            rows.insert(y);
    return rows;
}

int pixel(double units, double scale)
{
    return static_cast<int>(units * scale);
}

class Joins : public testing::Test {
protected:
    test::PaintedProgram program;

    /// One part with its corner at 70, 10 and another with its corner at 0, 0 of the same sheet.
    QImage together(const Mark& part, const std::vector<Mark>& wires, double scale)
    {
        const desktop::View view = test::viewAt(scale);
        QImage image = test::paperImage({pixel(140, scale), pixel(130, scale)});
        QPainter painter(&image);
        desktop::paintMarks(painter, program.stage(), {&part, 1}, cornerAt(70, 10, view), view);
        desktop::paintMarks(painter, program.stage(), wires, cornerAt(0, 0, view), view);
        return image;
    }
};

} // namespace joins_tests

using namespace joins_tests;

TEST_F(Joins, AGridPointIsOnePixelFromWhateverCornerItIsCounted)
{
    for (int hundredths = leastScale; hundredths <= largestScale; ++hundredths) {
        const desktop::View view = test::viewAt(hundredths / 100.0);
        const QPointF whole = desktop::Sketch(view.pixelsPerUnit(), {}, true).at({620, 310});
        for (int corner = 0; corner <= 600; corner += 10) {
            const QPoint counted(corner, corner / 2);
            const desktop::Sketch part(view.pixelsPerUnit(), cornerAt(counted.x(), counted.y(), view), true);
            EXPECT_EQ(part.at(QPoint(620, 310) - counted), whole) << hundredths << " " << corner;
        }
    }
}

// The sheet in a window of 2560 by 1440: its scale is no whole hundredth.
TEST_F(Joins, NorDoesTheSizeOfTheWindowMatter)
{
    for (int width = 600; width <= 4800; ++width) {
        const desktop::View view = test::viewAt(width / 1200.0);
        const QPointF whole = desktop::Sketch(view.pixelsPerUnit(), {}, true).at({510, 370});
        for (const int corner : {10, 90, 230, 330, 470}) {
            const QPoint counted(corner, corner / 2);
            const desktop::Sketch part(view.pixelsPerUnit(), cornerAt(counted.x(), counted.y(), view), true);
            EXPECT_EQ(part.at(QPoint(510, 370) - counted), whole) << width << " " << corner;
        }
    }
}

// Base at 70, 60; ends 30 to the side, 30 up and down; wires go on for 20 from each.
TEST_F(Joins, ATransistorsLeadsGoOnAsTheWiresThatMeetThem)
{
    for (const Symbol symbol : {Symbol::npn, Symbol::pnp, Symbol::npnLeft, Symbol::pnpLeft})
        for (int hundredths = leastScale; hundredths <= largestScale; ++hundredths) {
            const double scale = hundredths / 100.0;
            const int side = host::isMirrored(symbol) ? -1 : 1;
            const auto x = static_cast<std::int16_t>(70 + side * 30);
            const auto start = static_cast<std::int16_t>(70 - side * 20);
            const QImage image = together({.symbol = symbol, .from = {0, 50}},
                                          {{.symbol = Symbol::wire, .from = {x, 10}, .to = {x, 30}},
                                           {.symbol = Symbol::wire, .from = {x, 90}, .to = {x, 110}},
                                           {.symbol = Symbol::wire, .from = {start, 60}, .to = {70, 60}}},
                                          scale);
            const auto columns = [&](double y) {
                return darkColumns(image, pixel(y, scale), pixel(x - 8, scale), pixel(x + 8, scale));
            };
            const auto rows = [&](double at) {
                return darkRows(image, pixel(at, scale), pixel(52, scale), pixel(68, scale));
            };
            ASSERT_FALSE(columns(20).empty());
            EXPECT_EQ(columns(34), columns(20)) << hundredths << " upper end of " << static_cast<int>(symbol);
            EXPECT_EQ(columns(86), columns(100)) << hundredths << " lower end of " << static_cast<int>(symbol);
            EXPECT_EQ(rows(70 + side * 6), rows(70 - side * 10))
                << hundredths << " base of " << static_cast<int>(symbol);
        }
}

// Primary from 70, 20 to 70, 100; the secondary's ends lie 40 to the right.
TEST_F(Joins, ATransformersSecondaryGoesOnAsTheWiresThatMeetIt)
{
    for (int hundredths = leastScale; hundredths <= largestScale; ++hundredths) {
        const double scale = hundredths / 100.0;
        const QImage image = together({.symbol = Symbol::transformer, .from = {0, 10}, .to = {0, 90}},
                                      {{.symbol = Symbol::wire, .from = {110, 0}, .to = {110, 20}},
                                       {.symbol = Symbol::wire, .from = {70, 0}, .to = {70, 20}}},
                                      scale);
        for (const int x : {70, 110}) {
            const auto columns = [&](double y) {
                return darkColumns(image, pixel(y, scale), pixel(x - 8, scale), pixel(x + 8, scale));
            };
            EXPECT_EQ(columns(30), columns(10)) << hundredths << " " << x;
        }
    }
}
