// SPDX-License-Identifier: MIT
// The class A sheets where no walk can look: when their working numbers count as a finished design, and what an odd file does.
#include "designs/power/form15.h"

#include <gtest/gtest.h>

#include "designs/power/form20.h"
#include "program/catalogue.h"
#include "quiet_screen.h"
#include "rules/scratch_folder.h"

namespace velmor::form15_test {

using namespace form15;

class ClassAFinished : public testing::TestWithParam<std::string_view> {
protected:
    ClassAFinished() : engine(program::catalogue(), screen, settings)
    {
        engine.loadMainWindow();
        engine.userRun([this] {
            window = engine.host().NewInstance(GetParam());
            engine.host().Show(*window);
        });
    }
    Form15& sheet() { return static_cast<Form15&>(*window); }
    bool passed() { return sheet().quantities().passed; }
    void key(std::int16_t code) { engine.userKey(*window, code); }
    void design(host::Handle until)
    {
        for (int guard = 0; guard < 40 && window->focus() != until; ++guard)
            key(sheets::enterKey);
    }
    void finish()
    {
        design(Text9);
        key(sheets::enterKey);
    }

    test::QuietScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
    host::Window* window = nullptr;
};

INSTANTIATE_TEST_SUITE_P(BothSheets, ClassAFinished, testing::Values("Form15", "form20"),
                         [](const auto& tested) { return std::string(tested.param); });

TEST_P(ClassAFinished, MarksTheKindOfLoadInForceOnceTheQuestionIsAnswered)
{
    for (const host::Handle chosen : {Image1, Image2}) {
        design(Text12);
        EXPECT_FALSE(host::isChosen(*window, Image1) || host::isChosen(*window, Image2)) << "the question is open";
        engine.userClick(*window, chosen);
        EXPECT_EQ(host::isChosen(*window, Image1), chosen == Image1);
        EXPECT_EQ(host::isChosen(*window, Image2), chosen == Image2);
        finish();
    }
}

TEST_P(ClassAFinished, IsADesignWhoseLastFieldWasLeft)
{
    EXPECT_FALSE(passed());
    design(Text9);
    EXPECT_FALSE(passed());
    key(sheets::enterKey);
    EXPECT_EQ(window->focus(), Text1);
    EXPECT_TRUE(passed());
}

TEST_P(ClassAFinished, IsNoMoreWhenAnEarlierFieldChanges)
{
    finish();
    key('5');
    EXPECT_FALSE(passed());
}

TEST_P(ClassAFinished, KeepsWhatAKeyChangesThatTheFilterSwallows)
{
    finish();
    key('x');
    EXPECT_TRUE(passed());
}

// Rs stays enabled until the chain comes by again: leaving it once more does not finish a design that has changed.
TEST_P(ClassAFinished, IsNotFinishedByLeavingRsAfterAChange)
{
    finish();
    key('5');
    ASSERT_TRUE(engine.userFocus(*window, Text9));
    ASSERT_TRUE(engine.userFocus(*window, Text1));
    EXPECT_FALSE(passed());
}

TEST_P(ClassAFinished, IsNotFinishedByAnotherLoad)
{
    finish();
    engine.userClick(*window, Image1);
    EXPECT_EQ(window->focus(), Text10);
    EXPECT_FALSE(passed());
}

TEST_P(ClassAFinished, IsNotWhatAFileHolds)
{
    const rules::ScratchFolder folder;
    finish();
    sheet().setNombreArchivo((folder / "design").string());
    engine.userRun([this] {
        sheet().Guardar();
        sheet().Abrir();
    });
    EXPECT_FALSE(passed());
    EXPECT_EQ(window->text(Text9).empty(), false);
    EXPECT_FALSE(window->enabled(Text9));
}

// The coil takes 30 % off at each click, and four decimals keep the last tenth of a thousandth.
TEST_P(ClassAFinished, SurvivesALoadOfNextToNothing)
{
    finish();
    design(Text12);
    for (int clicks = 0; clicks < 60; ++clicks)
        engine.userClick(*window, Image2);
    EXPECT_EQ(window->text(Text2), "0.0001");
    design(Text1);
    EXPECT_FALSE(engine.ended());
}

// A file without a number in it: measuring divides by no load, and the chain makes numbers of everything.
TEST_P(ClassAFinished, SurvivesAFileWithoutNumbers)
{
    const rules::ScratchFolder folder;
    std::string lines;
    for (int line = 0; line < 40; ++line)
        lines += "x\r\n";
    sheet().setNombreArchivo(folder.put("odd", lines).string());
    engine.userRun([this] { sheet().Abrir(); });
    EXPECT_EQ(window->text(Text2), "x");
    ASSERT_TRUE(window->visible(Label20));
    ASSERT_TRUE(engine.userFocus(*window, Picture1));
    engine.userRun([this] { sheet().Abrir(); });
    ASSERT_TRUE(engine.userFocus(*window, Text1));
    EXPECT_FALSE(engine.ended());
    EXPECT_EQ(window->text(Text1), "0");
    for (int enters = 0; enters < 30; ++enters)
        key(sheets::enterKey);
    EXPECT_FALSE(engine.ended());
}

TEST_P(ClassAFinished, AsksForNoSecondWordInTheQuestion)
{
    design(Text12);
    const std::string question = window->text(Text12);
    EXPECT_EQ(engine.userKey(*window, '7'), 0);
    EXPECT_EQ(engine.userKey(*window, 8), 0);
    EXPECT_EQ(window->text(Text12), question);
    EXPECT_EQ(window->focus(), Text12);
}

} // namespace velmor::form15_test
