// SPDX-License-Identifier: MIT
// The whole circuit stands there pale and is inked part by part: parts and values in the pale shade before, in ink after, pale
// again after going back; what belongs to another circuit is not there.
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "desktop/drawing/canvas_image.h"
#include "desktop/drawing/drawing_export.h"
#include "desktop/drawing/growth_plan.h"
#include "desktop/drawing/painted_sheet.h"
#include "quiet_screen.h"
#include "sheets/template_sheet.h"

using namespace velmor;
using desktop::lightInks;

namespace growth_tests {

using host::Kind;
using host::Mark;
using host::Symbol;
using namespace template_sheet;

QImage imageOf(const host::Window& window, const desktop::View& view = test::viewAt(1.0))
{
    const host::Place& place = window.spec().place;
    QImage image = test::paperImage((QSizeF(place.width, place.height) * view.pixelsPerTwip).toSize(), *view.inks);
    QPainter painter(&image);
    desktop::paintWindow(painter, window, view);
    return image;
}

QColor colorAt(const host::Window& window, QPoint point, const desktop::Inks& inks = lightInks())
{
    return QColor(imageOf(window, test::viewAt(1.0, inks)).pixel(point));
}

/// The ink of a text: the pixel in its box that stands out most from the paper.
double strongestContrast(const host::Window& window, host::Handle control)
{
    const desktop::View view = test::viewAt(2.0);
    const QImage image = imageOf(window, view);
    const QRect box = desktop::boxOf(window, control, view).toRect();
    double best = 1.0;
    for (int y = box.top(); y < box.bottom(); ++y)
        for (int x = box.left(); x < box.right(); ++x)
            best = std::max(best, desktop::contrast(QColor(image.pixel(x, y)), lightInks().paper));
    return best;
}

class GrowingDrawing : public testing::Test {
protected:
    test::PaintedProgram program;
    TemplateSheet sheet{program.engine.host()};
};

// Points on wires of the template's schematic: its only column is 620.
constexpr QPoint onSupply(620, 160);
constexpr QPoint onLoad(620, 290);
constexpr QPoint onLamp(620, 352);

// --- a window with parts that cross

enum Crossing : host::Handle { Ground, Inked, Pale, Switch, Reading, Other };

constexpr Mark lying[] = {{.symbol = Symbol::wire, .from = {0, 50}, .to = {200, 50}}};
constexpr Mark upright[] = {
    {.symbol = Symbol::wire, .from = {100, 0}, .to = {100, 100}},
    {.symbol = Symbol::arrow, .from = {150, 10}, .to = {150, 40}},
    {.symbol = Symbol::resistor, .from = {30, 60}, .to = {30, 100}, .name = "R_L", .value = Reading, .field = Reading},
};

// clang-format off
constexpr host::ControlRow crossingRows[] = {
    {.id = Ground,  .name = "Ground",  .kind = Kind::image, .place = {0, 0, 4500, 2400}, .look = host::Look::paper},
    {.id = Inked,   .name = "Inked",   .kind = Kind::line,  .place = {600, 300, 3000, 1500}, .drawing = lying},
    {.id = Pale,    .name = "Pale",    .kind = Kind::line,  .place = {600, 300, 3000, 1500}, .visible = false, .drawing = upright},
    {.id = Switch,  .name = "Switch",  .kind = Kind::label},
    {.id = Reading, .name = "Reading", .kind = Kind::field, .place = {3700, 1500, 600, 300}, .symbol = "R_L", .unit = "kΩ"},
    {.id = Other,   .name = "Other",   .kind = Kind::field, .place = {3700, 1900, 600, 300}},
};
// clang-format on
constexpr host::GrowthRow crossingGrowth[] = {{Pale, Reading, Switch}};
constexpr host::ValueRow crossingValues[] = {{Reading, Pale}};

std::unique_ptr<host::Window> makeCrossing(host::SheetHost& host);
constexpr host::WindowSpec crossingSpec{.name = "Crossing",
                                        .role = host::Role::tool,
                                        .place = {0, 0, 4500, 2400},
                                        .controls = crossingRows,
                                        .create = makeCrossing,
                                        .growth = crossingGrowth,
                                        .values = crossingValues};
std::unique_ptr<host::Window> makeCrossing(host::SheetHost& host)
{
    return std::make_unique<host::Window>(host, crossingSpec);
}
constexpr const host::WindowSpec* catalogue[] = {&crossingSpec};

class CrossingParts : public testing::Test {
protected:
    CrossingParts()
    {
        engine.userRun([this] { engine.host().Show("Crossing"); });
    }
    host::Window& window() { return *engine.defaultInstance("Crossing"); }

    test::QuietScreen screen;
    host::MemorySettings settings;
    host::Engine engine{catalogue, screen, settings};
};

// The window's 40, 20 is the parts' corner.
constexpr QPoint crossing(140, 70);
constexpr QPoint onUpright(140, 40);
constexpr QPoint onArrow(190, 40);

} // namespace growth_tests

using namespace growth_tests;

TEST_F(GrowingDrawing, StandsTherePaleFromTheStart)
{
    for (const desktop::Inks* inks : {&desktop::lightInks(), &desktop::darkInks()}) {
        EXPECT_EQ(colorAt(sheet, onSupply, *inks), inks->pale);
        EXPECT_EQ(colorAt(sheet, onLoad, *inks), inks->pale);
    }
}

TEST_F(GrowingDrawing, IsInkedPartByPartAndPaleAgainAfterGoingBack)
{
    sheet.show(Line1);
    EXPECT_EQ(colorAt(sheet, onSupply), lightInks().ink);
    EXPECT_EQ(colorAt(sheet, onLoad), lightInks().pale);
    sheet.hide(Line1);
    EXPECT_EQ(colorAt(sheet, onSupply), lightInks().pale);
}

TEST_F(GrowingDrawing, HasThePartsOfItsOwnCircuitOnly)
{
    EXPECT_EQ(colorAt(sheet, onLamp), lightInks().paper);
    sheet.show(Picture1);
    EXPECT_EQ(colorAt(sheet, onLamp), lightInks().pale);
    sheet.show(Line3);
    EXPECT_EQ(colorAt(sheet, onLamp), lightInks().ink);
    sheet.hide(Picture1, Line3);
    EXPECT_EQ(colorAt(sheet, onLamp), lightInks().paper);
}

TEST_F(GrowingDrawing, HasPaleValuesWhileTheirPartIsPale)
{
    sheet.setText(RL, "0.6 K");
    const double quiet = desktop::contrast(lightInks().quiet, lightInks().paper);
    EXPECT_LE(strongestContrast(sheet, RL), quiet + 0.1);
    EXPECT_GE(strongestContrast(sheet, RL), 4.5) << "and readable";
    sheet.show(Line2);
    EXPECT_GT(strongestContrast(sheet, RL), quiet + 4.0);
    sheet.hide(Line2);
    EXPECT_LE(strongestContrast(sheet, RL), quiet + 0.1);
}

TEST_F(GrowingDrawing, KeepsAValueButShowsNoPlaceholder)
{
    const auto withText = [this](std::string_view text) {
        sheet.setText(Text5, text);
        return imageOf(sheet);
    };
    const QImage empty = withText("");
    EXPECT_EQ(withText("RL"), empty);
    EXPECT_NE(withText("0.6"), empty);
    sheet.show(Line2);
    EXPECT_EQ(withText("RL"), withText("")) << "the part bears its name already";
    EXPECT_NE(withText("aprox."), withText("")) << "what else stands beside an inked part is shown as told";
}

TEST_F(GrowingDrawing, GoesToPaperAndFilesAsItStands)
{
    const QTemporaryDir folder;
    const auto svg = [&] {
        const QString path = folder.filePath(QStringLiteral("a.svg"));
        EXPECT_TRUE(desktop::exportSvg(path, sheet, 0));
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray paleStroke = "stroke=\"" + desktop::printInks().pale.name().toUtf8();
    EXPECT_TRUE(svg().contains(paleStroke));
    sheet.show(Line1, Line2);
    EXPECT_FALSE(svg().contains(paleStroke)) << "every part of this circuit is inked";
    sheet.show(Picture1);
    EXPECT_TRUE(svg().contains(paleStroke)) << "the lamp is not";
}

TEST_F(CrossingParts, LieBelowTheInkWhateverTheOrderOfTheTable)
{
    window().show(Switch);
    const QImage image = imageOf(window());
    EXPECT_EQ(QColor(image.pixel(onUpright)), lightInks().pale);
    EXPECT_EQ(QColor(image.pixel(crossing)), lightInks().ink);
    EXPECT_EQ(QColor(image.pixel(crossing + QPoint(1, 0))), lightInks().ink);
    EXPECT_EQ(QColor(image.pixel(crossing - QPoint(1, 0))), lightInks().ink);
}

TEST_F(CrossingParts, ArePaintedOnceEach)
{
    window().show(Switch);
    std::vector<host::Handle> painted;
    const auto note = [&](host::Handle control) { painted.push_back(control); };
    desktop::inOrderOfPainting(window(), note);
    EXPECT_EQ(painted, (std::vector<host::Handle>{Ground, Pale, Inked, Switch, Reading, Other}));
    window().show(Pale);
    painted.clear();
    desktop::inOrderOfPainting(window(), note);
    EXPECT_EQ(painted, (std::vector<host::Handle>{Ground, Inked, Pale, Switch, Reading, Other}));
    window().hide(Pale, Switch);
    painted.clear();
    desktop::inOrderOfPainting(window(), note);
    EXPECT_EQ(painted, (std::vector<host::Handle>{Ground, Inked, Switch, Reading, Other}));
}

TEST_F(CrossingParts, HavePaleSignalsToo)
{
    window().show(Switch);
    const auto accent = [this] {
        const QImage image = imageOf(window());
        int count = 0;
        for (int y = 30; y < 62; ++y)
            for (int x = onArrow.x() - 4; x < onArrow.x() + 5; ++x)
                count += QColor(image.pixel(x, y)) == lightInks().accent ? 1 : 0;
        return count;
    };
    EXPECT_EQ(accent(), 0);
    window().show(Pale);
    EXPECT_GT(accent(), 10);
}

// The resistor's body is 36 high and 13 wide, its middle at 70, 100 of the window; the halo reaches 5 further.
TEST_F(CrossingParts, GlowForTheFieldInHandWhilePale)
{
    window().show(Switch);
    constexpr QPoint inTheHalo(60, 84);
    EXPECT_EQ(window().focus(), Reading);
    EXPECT_EQ(colorAt(window(), inTheHalo), lightInks().accentTint);
    ASSERT_TRUE(engine.userFocus(window(), Other));
    EXPECT_EQ(colorAt(window(), inTheHalo), lightInks().paper);
}

TEST_F(CrossingParts, TellWhichControlsChangeTheirTone)
{
    const desktop::GrowthPlan& plan = desktop::GrowthPlan::of(crossingSpec);
    EXPECT_EQ(plan.entries[Switch].toning, (std::vector<host::Handle>{Pale, Reading}));
    EXPECT_EQ(plan.entries[Pale].toning, (std::vector<host::Handle>{Reading}));
    EXPECT_TRUE(plan.entries[Inked].toning.empty());
    EXPECT_EQ(plan.ground, Inked);
}
