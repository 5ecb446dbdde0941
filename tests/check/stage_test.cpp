// SPDX-License-Identifier: MIT
// Textbook formulas by hand, with their simplifications and without, and the ladder between the two.
#include "check/stage.h"

#include "check/ladder.h"

#include <gtest/gtest.h>

namespace velmor::check::test {

namespace stage_test {

constexpr Stage emitterStage{.kind = StageKind::commonEmitter,
                             .Beta = 80,
                             .designedQIc = 1e-3,
                             .trueQIc = 1e-3,
                             .RL = 18e3,
                             .RLw = 10e3,
                             .Res = 1300,
                             .Rb1 = 140e3,
                             .Rb2 = 13e3};

} // namespace stage_test

using namespace stage_test;

TEST(Stage, commonEmitterGoesFromTheCourseToTheTextbook)
{
    // 6428.57 / 1300
    EXPECT_NEAR(gainOf(emitterStage, {}), 4.94505, 1e-5);
    // 6428.57 / (25 + 1300)
    EXPECT_NEAR(gainOf(emitterStage, {Truth::junction}), 4.85175, 1e-5);
    // 6428.57 / (25.865 + 1300 x 81 / 80)
    EXPECT_NEAR(gainOf(emitterStage, allTruths()), 4.78988, 1e-5);
    // 140 K // 13 K // 80 x (25.865 + 1316.25) = 11895.4 // 107369
    EXPECT_NEAR(inputOf(emitterStage, allTruths()), 10709.0, 1);
}

TEST(Stage, followerLosesWhatTheJunctionKeeps)
{
    const Stage stage{
        .kind = StageKind::follower, .Beta = 100, .designedQIc = 1e-3, .trueQIc = 1e-3, .RLw = 500, .Res = 10e3};
    EXPECT_EQ(gainOf(stage, {Truth::load}), 1);
    // 476.19 / (476.19 + 25.865 x 100 / 101)
    EXPECT_NEAR(gainOf(stage, allTruths()), 0.948966, 1e-6);
}

TEST(Stage, feedbackLoadsTheCollectorAndTheInput)
{
    const Stage stage{.kind = StageKind::voltageFeedback,
                      .Beta = 100,
                      .designedQIc = 1e-3,
                      .trueQIc = 1e-3,
                      .RL = 10e3,
                      .Rb1 = 100e3};
    EXPECT_NEAR(gainOf(stage, {}), 400, 1e-9);
    // (1 / 25.865 - 1 / 100000) x (10 K // 100 K)
    EXPECT_NEAR(gainOf(stage, allTruths()), 351.384, 0.001);
    // 2586.5 // (100000 / 352.384) = 2586.5 // 283.781
    EXPECT_NEAR(inputOf(stage, allTruths()), 255.724, 0.001);
}

TEST(Stage, pairDividesByTwoJunctions)
{
    const Stage stage{.kind = StageKind::pair,
                      .Beta = 100,
                      .designedQIc = 5e-4,
                      .trueQIc = 5e-4,
                      .RL = 16e3,
                      .RLw = 16e3,
                      .Res = 1e12};
    EXPECT_NEAR(gainOf(stage, {}), 64, 1e-9);                  // 8000 / (2.5 x 50)
    EXPECT_NEAR(gainOf(stage, {Truth::pairFactor}), 80, 1e-9); // 8000 / (2 x 50)
    EXPECT_NEAR(inputOf(stage, {}), 10000, 1e-6);              // 100 x 2 x 50
}

TEST(Ladder, climbsOneTruthAtATimeAndTellsWhatIsLeft)
{
    constexpr RungRow rows[] = {
        {Truth::junction, {"uno", "one"}}, {Truth::thermal, {"dos", "two"}}, {Truth::alpha, {"tres", "three"}}};
    const Ladder ladder = climb(5, emitterStage, gainOf, {}, rows, 4.78988);
    ASSERT_EQ(ladder.rungs.size(), 3U);
    EXPECT_NEAR(ladder.rungs[0].value, 4.85175, 1e-5);
    EXPECT_NEAR(ladder.stepOf(0), -0.2614, 0.0001); // 20 log(4.85175 / 5)
    EXPECT_EQ(ladder.highest()->reason.en, "one");
    EXPECT_LT(ladder.remainder(), 1e-4);
    EXPECT_NEAR(climb(5, emitterStage, gainOf, {}, rows, 9.57976).remainder(), 6.0206, 0.001) << "twice: 6 dB";
}

} // namespace velmor::check::test
