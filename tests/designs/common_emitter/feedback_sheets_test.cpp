// SPDX-License-Identifier: MIT
// What the sheets fed back by voltage hold beside what they show: when a design is finished, the numbers in hand, and how the
// drawing comes and goes.
#include <gtest/gtest.h>

#include "designs/common_emitter/feedback_program.h"

namespace velmor::feedback_sheets_test {

using namespace feedback;
using host::Tone;
using host::toneOf;

TEST(SimpleFeedback, IsFinishedWithTheGeneratorUntilAnEarlierFieldChanges)
{
    test::Form8Program program;
    program.playToPreset("12");
    program.enter();
    EXPECT_FALSE(program.sheet().quantities().passed);
    program.enter(Text15, "0.5");
    EXPECT_TRUE(program.sheet().quantities().passed);
    program.enter(Text15, "0.4");
    EXPECT_TRUE(program.sheet().quantities().passed);
    program.focus(Text19);
    EXPECT_TRUE(program.sheet().quantities().passed);
    program.engine.userKey(program.sheet(), '1');
    EXPECT_FALSE(program.sheet().quantities().passed);
}

TEST(SimpleFeedback, HoldsEqFromTheTestOfTheTransistorVoltage)
{
    test::Form8Program program;
    program.enter(Text5, "20");
    // 2.5 x 0.66, without the volt of a small swing
    EXPECT_DOUBLE_EQ(program.sheet().quantities().Eq.value(), 1.65);
    program.enter(Text13, "1");
    program.enter(Text5, "20");
    EXPECT_DOUBLE_EQ(program.sheet().quantities().Eq.value(), 0.66);
}

TEST(SimpleFeedback, DrawsThePresetInHalvesOnlyWhileItIsDecoupled)
{
    test::Form8Program program;
    form8::Form8& sheet = program.sheet();
    EXPECT_EQ(toneOf(sheet, form8::Shape2), Tone::pale);
    EXPECT_EQ(toneOf(sheet, Line16), Tone::away);
    program.playToPreset("12");
    program.enter();
    EXPECT_EQ(toneOf(sheet, form8::Shape2), Tone::ink);
    program.click(Image8);
    EXPECT_EQ(toneOf(sheet, form8::Shape2), Tone::away);
    EXPECT_EQ(toneOf(sheet, Line16), Tone::ink);
    program.click(Image2);
    EXPECT_EQ(toneOf(sheet, form8::Shape2), Tone::ink);
    EXPECT_EQ(toneOf(sheet, Line16), Tone::away);
}

TEST(SimpleFeedback, GoesPaleAgainBehindAParameterInHand)
{
    test::Form8Program program;
    form8::Form8& sheet = program.sheet();
    program.focus(Text2);
    EXPECT_EQ(toneOf(sheet, Line17), Tone::ink);
    EXPECT_EQ(toneOf(sheet, Label23), Tone::ink);
    program.focus(Text6);
    EXPECT_EQ(toneOf(sheet, Line17), Tone::pale);
    EXPECT_EQ(toneOf(sheet, Label23), Tone::pale);
}

TEST(StableFeedback, HoldsTheLowestFrequencyAsBetaUntilTheGeneratorIsReached)
{
    test::Form18Program program;
    program.playToPreset("25");
    program.enter(Text19, "110");
    EXPECT_DOUBLE_EQ(program.sheet().divider().Beta.value(), 20);
    // Rb2 in ohm: 0.6 / (17.73333 / 110000 - 0.00005)
    EXPECT_NEAR(program.sheet().divider().Rb2.value(), 5395.0954, 0.01);
    program.enter();
    EXPECT_DOUBLE_EQ(program.sheet().divider().Beta.value(), 100);
    EXPECT_DOUBLE_EQ(program.sheet().divider().Rb2.value(), 5.3951);
}

TEST(StableFeedback, WithoutCurrentForRb2HasNone)
{
    test::Form18Program program;
    program.playToPreset("25");
    // Beta of 100 Hz would leave (Eq - Vj) / Rb1 = QIc / 100: Rb1 = 17.7333 / 0.01 mA = 1773.3 K
    program.sheet().setText(Text12, "100");
    program.enter(Text19, "1774");
    EXPECT_LT(program.sheet().divider().Rb2.value(), 0.1);
    EXPECT_EQ(program.screen.boxes.size(), 1u);
    EXPECT_EQ(program.sheet().focus(), Text16);
}

TEST(StableFeedback, IsFinishedWithTheGenerator)
{
    test::Form18Program program;
    program.playToPreset("25");
    program.enter(Text19, "110");
    program.enter();
    EXPECT_FALSE(program.sheet().quantities().passed);
    program.enter(Text15, "1");
    EXPECT_TRUE(program.sheet().quantities().passed);
}

TEST(StableFeedback, NamesRb2WhereItStandsAndTheJunctionByTheEmitter)
{
    test::Form18Program program;
    program.focus(Text2);
    const host::Place byEmitter = host::shownPlace(program.sheet(), Label32);
    program.enter();
    program.enter();
    program.click(Command2);
    EXPECT_NE(host::shownPlace(program.sheet(), Label32), byEmitter);
    EXPECT_EQ(program.sheet().placeOf(Label32), byEmitter);
}

} // namespace velmor::feedback_sheets_test
