// SPDX-License-Identifier: MIT
// Every pair of ink and ground that carries text is readable, on light and on dark desktops and on paper.
#include "desktop/drawing/palette_of_inks.h"

#include <utility>
#include <vector>

#include <QPalette>

#include <gtest/gtest.h>

using namespace velmor;
using desktop::contrast;
using desktop::Inks;

namespace palette_of_inks_tests {

std::vector<std::pair<QColor, QColor>> textPairs(const Inks& inks)
{
    return {{inks.ink, inks.paper},
            {inks.quiet, inks.paper},
            {inks.accent, inks.paper},
            {inks.warning, inks.paper},
            {inks.ink, inks.desk},
            {inks.accent, inks.accentTint},
            {inks.ink, inks.accentTint},
            {inks.onAccent, inks.accent},
            {inks.warning, inks.warningTint},
            {inks.ink, inks.voice},
            {inks.ink, inks.hint},
            {inks.onBalloon, inks.balloon},
            {inks.fieldInk, inks.field},
            {inks.quiet, inks.field},
            {inks.quiet, inks.accentTint},
            {inks.fieldOffInk, inks.fieldOff},
            {inks.ink, inks.button},
            {inks.ink, inks.buttonHover},
            {inks.buttonOffInk, inks.buttonOff}};
}

} // namespace palette_of_inks_tests

using namespace palette_of_inks_tests;

// Figures of the definition: white on black is 21, a colour on itself 1; #777777 on white is 4.478 worked by hand:
// (0x77/255 + 0.055)/1.055 to the 2.4 = 0.1845, 1.05 / 0.2345.
TEST(PaletteOfInks, MeasuresContrastAsDefined)
{
    EXPECT_NEAR(contrast(Qt::white, Qt::black), 21.0, 1e-9);
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21.0, 1e-9);
    EXPECT_NEAR(contrast(QColor(10, 200, 30), QColor(10, 200, 30)), 1.0, 1e-9);
    EXPECT_NEAR(contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.478, 0.001);
}

TEST(PaletteOfInks, KeepsEveryTextReadable)
{
    for (const Inks* inks : {&desktop::lightInks(), &desktop::darkInks(), &desktop::printInks()})
        for (const auto& [ink, ground] : textPairs(*inks))
            EXPECT_GE(contrast(ink, ground), 4.5) << ink.name().toStdString() << " on " << ground.name().toStdString();
}

TEST(PaletteOfInks, KeepsOutlinesVisible)
{
    for (const Inks* inks : {&desktop::lightInks(), &desktop::darkInks()}) {
        EXPECT_GE(contrast(inks->edge, inks->paper), 3.0);
        EXPECT_GE(contrast(inks->edge, inks->field), 3.0);
        EXPECT_GE(contrast(inks->accent, inks->field), 3.0);
        EXPECT_GE(contrast(inks->pale, inks->paper), 3.0);
        EXPECT_LE(contrast(inks->pale, inks->paper) * 3.0, contrast(inks->ink, inks->paper)) << "told from ink";
    }
}

TEST(PaletteOfInks, FollowsTheDesktop)
{
    QPalette desktopColors;
    desktopColors.setColor(QPalette::Window, QColor(240, 240, 240));
    desktopColors.setColor(QPalette::WindowText, Qt::black);
    EXPECT_FALSE(desktop::inksFor(desktopColors).dark);
    desktopColors.setColor(QPalette::Window, QColor(40, 40, 40));
    desktopColors.setColor(QPalette::WindowText, Qt::white);
    EXPECT_TRUE(desktop::inksFor(desktopColors).dark);
}

TEST(PaletteOfInks, MakesAnyInkReadableOnAnyGround)
{
    for (int ground = 0; ground < 256; ground += 15)
        for (int ink = 0; ink < 256; ink += 15) {
            const QColor paper(ground, 255 - ground, (ground * 3) % 256);
            EXPECT_GE(contrast(desktop::readableOn(paper, QColor(ink, ink / 2, 255 - ink)), paper), 4.5);
        }
}

TEST(PaletteOfInks, LeavesAnInkAloneThatIsReadable)
{
    EXPECT_EQ(desktop::readableOn(Qt::white, QColor(128, 0, 0)), QColor(128, 0, 0));
}
