// SPDX-License-Identifier: MIT
// A function, mode or option in force looks chosen: not like what waits to be chosen, not like what is dead, and not by colour
// alone.
#include <gtest/gtest.h>

#include "desktop/drawing/canvas_image.h"
#include "desktop/drawing/painted_sheet.h"

using namespace velmor;
using desktop::lightInks;

namespace chosen_tests {

using host::Chosen;
using host::Kind;
using host::Look;

enum Buttons : host::Handle { Volts, Plain, Picture, Lamp, Never };

constexpr host::Mark stroke[] = {{.symbol = host::Symbol::wire, .from = {20, 20}, .to = {60, 20}}};

// clang-format off
constexpr host::ControlRow rows[] = {
    {.id = Volts,   .name = "Volts",   .kind = Kind::button,  .place = {150, 150, 1260, 600},  .text = "V", .chosen = Chosen::whenDisabled},
    {.id = Plain,   .name = "Plain",   .kind = Kind::button,  .place = {150, 150, 1260, 600},  .text = "V"},
    {.id = Picture, .name = "Picture", .kind = Kind::picture, .place = {150, 150, 1260, 870},  .look = Look::toolButton,
     .drawing = stroke, .chosen = Chosen::whenDisabled},
    {.id = Lamp,    .name = "Lamp",    .kind = Kind::image,   .place = {150, 150, 1260, 870},  .look = Look::toolButton,
     .drawing = stroke, .chosen = Chosen::whenShown},
    {.id = Never,   .name = "Never",   .kind = Kind::image,   .place = {150, 150, 1260, 870},  .look = Look::toolButton, .drawing = stroke},
};
// clang-format on
static_assert(host::rowsInOrder(rows));
constexpr host::WindowSpec spec{.name = "Buttons", .place = {0, 0, 3000, 2000}, .controls = rows};

class ChosenButtons : public testing::Test {
protected:
    test::PaintedProgram program;
    host::Window window{program.engine.host(), spec};

    QImage imageOf(host::Handle control, const desktop::Inks& inks = lightInks()) const
    {
        return test::imageOfControl(window, control, test::viewAt(2.0, inks));
    }
};

int pixelsOf(const QImage& image, const QColor& color, const QRect& box)
{
    int count = 0;
    for (int y = box.top(); y <= box.bottom(); ++y)
        for (int x = box.left(); x <= box.right(); ++x)
            count += image.pixel(x, y) == color.rgb() ? 1 : 0;
    return count;
}

} // namespace chosen_tests

using namespace chosen_tests;

TEST_F(ChosenButtons, AreTheChoiceInForce)
{
    EXPECT_FALSE(host::isChosen(window, Volts));
    EXPECT_TRUE(host::isChosen(window, Lamp));
    window.disable(Volts, Plain);
    window.hide(Lamp);
    EXPECT_TRUE(host::isChosen(window, Volts));
    EXPECT_FALSE(host::isChosen(window, Plain));
    EXPECT_FALSE(host::isChosen(window, Lamp));
}

TEST_F(ChosenButtons, LookUnlikeDeadAndWaitingOnes)
{
    const QImage waiting = imageOf(Volts);
    EXPECT_EQ(waiting, imageOf(Plain));
    window.disable(Volts, Plain);
    EXPECT_NE(imageOf(Volts), imageOf(Plain));
    EXPECT_NE(imageOf(Volts), waiting);
}

// Place 10, 10 to 94, 50 at twice the size: the bar lies from 46 to 49, inset by 10. Above it there is room for a caption.
TEST_F(ChosenButtons, AreUnderlinedInTheAccent)
{
    const QRect middleOfTheBar(60, 94, 80, 2);
    EXPECT_EQ(pixelsOf(imageOf(Volts), lightInks().accent, middleOfTheBar), 0);
    window.disable(Volts);
    EXPECT_EQ(pixelsOf(imageOf(Volts), lightInks().accent, middleOfTheBar), 160);
    EXPECT_EQ(pixelsOf(imageOf(Volts, desktop::darkInks()), desktop::darkInks().accent, middleOfTheBar), 160);
    EXPECT_EQ(pixelsOf(imageOf(Volts), lightInks().accent, {60, 84, 80, 6}), 0);
}

TEST_F(ChosenButtons, KeepTheFullInkOfCaptionAndDrawing)
{
    window.disable(Volts, Picture, Never);
    const auto darkest = [](const QImage& image, const QRect& box) {
        int gray = 255;
        for (int y = box.top(); y <= box.bottom(); ++y)
            for (int x = box.left(); x <= box.right(); ++x)
                gray = std::min(gray, qGray(image.pixel(x, y)));
        return gray;
    };
    const int ink = qGray(lightInks().ink.rgb());
    EXPECT_LE(darkest(imageOf(Volts), {84, 40, 40, 40}), ink + 2);
    EXPECT_EQ(darkest(imageOf(Picture), {80, 55, 40, 10}), ink);
    EXPECT_GT(darkest(imageOf(Never), {80, 55, 40, 10}), ink + 60) << "what is dead is faded";
}
