// SPDX-License-Identifier: MIT
// A growing drawing on a canvas: what changes its tone is painted anew, fields step back with their part, and what is pale is
// not there for the mouse.
#include <QApplication>
#include <QPaintEvent>

#include <gtest/gtest.h>

#include "desktop/canvas/canvas.h"
#include "desktop/canvas/field_edit.h"
#include "desktop/drawing/painted_sheet.h"
#include "quiet_screen.h"

using namespace velmor;
using desktop::lightInks;

namespace growing_canvas_tests {

using host::Kind;
using host::Mark;
using host::Symbol;

enum Controls : host::Handle { Paper, Part, Switch, Value, Other };

void nothing(host::Window&, host::EventArgs&) {}
constexpr Mark stroke[] = {{.symbol = Symbol::wire, .from = {0, 0}, .to = {0, 80}}};

// clang-format off
constexpr host::ControlRow rows[] = {
    {.id = Paper,  .name = "Paper",  .kind = Kind::image, .place = {0, 0, 4500, 2400}, .look = host::Look::paper},
    {.id = Part,   .name = "Part",   .kind = Kind::image, .place = {600, 300, 600, 1200}, .visible = false, .drawing = stroke},
    {.id = Switch, .name = "Switch", .kind = Kind::label},
    {.id = Value,  .name = "Value",  .kind = Kind::field, .place = {3000, 300, 900, 330}, .text = "12"},
    {.id = Other,  .name = "Other",  .kind = Kind::field, .place = {3000, 1500, 900, 330}},
};
// clang-format on
constexpr host::SlotRow slots[] = {{Part, host::Event::click, nothing}};
constexpr host::GrowthRow growth[] = {{Part, Value, Switch}};
constexpr host::ValueRow values[] = {{Value, Part}};
constexpr host::WindowSpec spec{.name = "Growing",
                                .place = {0, 0, 4500, 2400},
                                .controls = rows,
                                .slots = slots,
                                .growth = growth,
                                .values = values};

/// Where a widget was painted.
class Painted final : public QObject {
public:
    explicit Painted(QWidget& widget) { widget.installEventFilter(this); }
    QRegion region;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
};

class GrowingCanvas : public testing::Test {
protected:
    GrowingCanvas()
    {
        canvas.layOut(1.0, {300, 160});
        canvas.applyAll();
        canvas.show();
        settle();
    }
    static void settle() { QApplication::processEvents(); }
    void follow()
    {
        canvas.apply(window.takeChanges());
        settle();
    }
    QColor valueInk()
    {
        const QWidget* field = canvas.widgetOf(Value);
        return field == nullptr ? QColor() : field->palette().color(QPalette::Active, QPalette::Text);
    }

    test::QuietScreen screen;
    host::MemorySettings settings;
    host::Engine engine{{}, screen, settings};
    host::Window window{engine.host(), spec};
    desktop::Desk desk = [this] {
        desktop::Desk made;
        made.engine = &engine;
        return made;
    }();
    desktop::Canvas canvas{desk, window};
};

constexpr QPoint onThePart(40, 60);
constexpr QRect thePart(40, 20, 1, 80);

} // namespace growing_canvas_tests

using namespace growing_canvas_tests;

TEST_F(GrowingCanvas, ShowsThePartPaleThenInkThenPale)
{
    const auto color = [this] { return canvas.grab().toImage().pixelColor(onThePart); };
    EXPECT_EQ(color(), lightInks().pale);
    window.show(Part);
    follow();
    EXPECT_EQ(color(), lightInks().ink);
    window.hide(Part);
    follow();
    EXPECT_EQ(color(), lightInks().pale);
    window.hide(Switch);
    follow();
    EXPECT_EQ(color(), lightInks().paper);
}

TEST_F(GrowingCanvas, PaintsThePartAnewWhenTheCircuitGetsOrLosesIt)
{
    Painted painted(canvas);
    window.hide(Switch);
    follow();
    EXPECT_TRUE(painted.region.contains(thePart));
    painted.region = {};
    window.setText(Other, "1");
    follow();
    ASSERT_FALSE(painted.region.contains(thePart));
    window.show(Switch);
    follow();
    EXPECT_TRUE(painted.region.contains(thePart));
}

TEST_F(GrowingCanvas, LetsAFieldStepBackWithItsPart)
{
    EXPECT_EQ(valueInk(), lightInks().quiet);
    window.show(Part);
    follow();
    EXPECT_EQ(valueInk(), lightInks().fieldInk);
    window.hide(Part);
    follow();
    EXPECT_EQ(valueInk(), lightInks().quiet);
    window.hide(Switch);
    follow();
    EXPECT_EQ(valueInk(), lightInks().fieldInk) << "the circuit has no such part";
}

TEST_F(GrowingCanvas, KeepsThePaleToneInOtherColours)
{
    desk.inks = &desktop::darkInks();
    canvas.recolor();
    EXPECT_EQ(valueInk(), desktop::darkInks().quiet);
}

TEST_F(GrowingCanvas, OffersNothingPaleToTheMouse)
{
    EXPECT_EQ(canvas.controlAt(onThePart), host::noControl);
    EXPECT_FALSE(canvas.shows(Part));
    window.show(Part);
    EXPECT_EQ(canvas.controlAt(onThePart), Part);
}
