// SPDX-License-Identifier: MIT
// New sheets that are painted from the picture of an earlier one look as if they had been painted themselves.
#include <memory>
#include <vector>

#include <QApplication>

#include <gtest/gtest.h>

#include "desktop/canvas/canvas.h"
#include "quiet_screen.h"

namespace velmor::test::first_pictures_test {

using host::Kind;
using host::Mark;
using host::Symbol;

enum Controls : host::Handle { Paper, Part, Value, Other };

constexpr Mark part[] = {{.symbol = Symbol::resistor, .from = {0, 0}, .to = {0, 80}, .name = "R_L", .value = Value}};

// clang-format off
constexpr host::ControlRow rows[] = {
    {.id = Paper, .name = "Paper", .kind = Kind::image, .place = {0, 0, 4500, 2400}, .look = host::Look::paper},
    {.id = Part,  .name = "Part",  .kind = Kind::image, .place = {900, 300, 600, 1200}, .drawing = part},
    {.id = Value, .name = "Value", .kind = Kind::field, .place = {3000, 300, 900, 330}, .text = "12"},
    {.id = Other, .name = "Other", .kind = Kind::field, .place = {3000, 1500, 900, 330}, .enabled = false},
};
// clang-format on
constexpr host::WindowSpec spec{
    .name = "Sheet", .role = host::Role::sheet, .place = {0, 0, 4500, 2400}, .controls = rows};

class FirstPictures : public testing::Test {
protected:
    FirstPictures() { desk.engine = &engine; }

    /// A new sheet as it is first painted, without its sides.
    QImage painted(
        void (*prepare)(host::Window&) = [](host::Window&) {}, int width = 320, double scale = 1.0, int top = 0)
    {
        windows.push_back(std::make_unique<host::Window>(engine.host(), spec));
        prepare(*windows.back());
        desktop::Canvas canvas(desk, *windows.back());
        canvas.setDesign({0, top, spec.place.width, spec.place.height - top});
        canvas.applyAll();
        canvas.layOut(scale, {width, 180});
        const QImage whole = canvas.grab().toImage();
        return whole.copy((width - 300) / 2, 0, 300, 160);
    }

    QuietScreen screen;
    host::MemorySettings settings;
    host::Engine engine{{}, screen, settings};
    desktop::Desk desk;
    std::vector<std::unique_ptr<host::Window>> windows;
};

void changeValue(host::Window& window)
{
    window.setText(Value, "330");
}

TEST_F(FirstPictures, TheSecondOfASizeIsKeptAndTheThirdIsThatPicture)
{
    const QImage first = painted();
    EXPECT_EQ(desk.firstPictures->pictures(), 0U);
    const QImage second = painted();
    EXPECT_EQ(desk.firstPictures->pictures(), 1U);
    const QImage third = painted();
    EXPECT_EQ(desk.firstPictures->pictures(), 1U);
    EXPECT_EQ(first, second);
    EXPECT_EQ(first, third);
}

TEST_F(FirstPictures, LieWhereTheirSheetLies)
{
    const QImage first = painted();
    painted();
    EXPECT_EQ(painted([](host::Window&) {}, 341), first);
    EXPECT_EQ(desk.firstPictures->pictures(), 1U);
}

TEST_F(FirstPictures, AreOnlyForWhatLooksTheSame)
{
    const QImage first = painted();
    painted();
    const QImage other = painted(changeValue);
    EXPECT_NE(other, first) << "another value";
    EXPECT_EQ(painted(changeValue), other) << "its own picture";
    EXPECT_EQ(desk.firstPictures->pictures(), 2U);
    EXPECT_NE(painted([](host::Window& window) { window.setVisible(Part, false); }), first) << "a part less";
    EXPECT_NE(painted([](host::Window&) {}, 320, 0.9), first) << "another size";
    desk.inks = &desktop::darkInks();
    EXPECT_NE(painted(), first) << "other colours";
}

TEST_F(FirstPictures, OfASheetThatBeginsFurtherDownAreItsOwn)
{
    const auto belowPrompts = [&] { return painted([](host::Window&) {}, 320, 1.0, 600); };
    const QImage whole = painted();
    const QImage first = belowPrompts();
    EXPECT_NE(first, whole);
    EXPECT_EQ(belowPrompts(), first);
    EXPECT_EQ(desk.firstPictures->pictures(), 1U);
    EXPECT_EQ(belowPrompts(), first) << "the picture";
    EXPECT_EQ(painted(), whole);
}

TEST_F(FirstPictures, AreNotMadeOfASheetThatHasBeenSeen)
{
    painted();
    windows.push_back(std::make_unique<host::Window>(engine.host(), spec));
    desktop::Canvas canvas(desk, *windows.back());
    canvas.applyAll();
    canvas.layOut(1.0, {320, 180});
    const QImage before = canvas.grab().toImage();
    windows.back()->setText(Value, "470");
    canvas.apply(windows.back()->takeChanges());
    EXPECT_NE(canvas.grab().toImage(), before);
    windows.back()->setText(Value, "12");
    canvas.apply(windows.back()->takeChanges());
    EXPECT_EQ(canvas.grab().toImage(), before);
}

} // namespace velmor::test::first_pictures_test
