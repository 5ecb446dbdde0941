// SPDX-License-Identifier: MIT
// `Form4` where no walk can look: when its working numbers count as a finished design, and where the screen shows what the model
// has elsewhere.
#include "designs/base_collector/form4.h"

#include <gtest/gtest.h>

#include "program/catalogue.h"
#include "quiet_screen.h"
#include "rules/scratch_folder.h"

namespace velmor::form4_test {

using namespace form4;

class Form4Finished : public testing::Test {
protected:
    Form4Finished() : engine(program::catalogue(), screen, settings)
    {
        engine.loadMainWindow();
        engine.userRun([this] {
            window = engine.host().NewInstance("Form4");
            engine.host().Show(*window);
        });
    }
    Form4& sheet() { return static_cast<Form4&>(*window); }
    bool passed() { return sheet().quantities().passed; }
    void enter() { engine.userKey(*window, sheets::enterKey); }
    void enter(host::Handle field, std::string_view text)
    {
        ASSERT_EQ(window->focus(), field);
        engine.userText(*window, field, text);
        enter();
    }
    /// Enter from the first field to Rb1, with resistors that can be bought.
    void designUpToRb1()
    {
        for (int guard = 0; guard < 40 && window->focus() != Text15; ++guard)
            enter();
        enter(Text15, "5.6");
        enter();
    }

    test::QuietScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
    host::Window* window = nullptr;
};

// Es 10.9656 V, Rb2 13.75 K: 58.5 K give 1.0049 mA.
TEST_F(Form4Finished, IsADesignWhosePresetGivesItsCurrent)
{
    designUpToRb1();
    EXPECT_FALSE(passed());
    enter(Text17, "58.5");
    EXPECT_TRUE(passed());
    engine.userFocus(*window, Text16);
    EXPECT_EQ(window->focus(), Text16);
    EXPECT_TRUE(passed());
}

TEST_F(Form4Finished, IsNoDesignWhosePresetGivesAnother)
{
    designUpToRb1();
    enter(Text17, "70");
    EXPECT_FALSE(passed());
    engine.userFocus(*window, Text16);
    EXPECT_EQ(window->focus(), Text17);
    EXPECT_FALSE(passed());
}

TEST_F(Form4Finished, EndsWithTheFirstKeyThatAnEarlierFieldTakes)
{
    designUpToRb1();
    enter(Text17, "58.5");
    engine.userFocus(*window, Text16);
    engine.userKey(*window, 'x'); // the filter swallows it
    EXPECT_TRUE(passed());
    engine.userKey(*window, '8');
    EXPECT_FALSE(passed());
}

TEST_F(Form4Finished, IsNoDesignReadFromAFile)
{
    const rules::ScratchFolder folder;
    designUpToRb1();
    enter(Text17, "58.5");
    sheet().setNombreArchivo((folder / "base.BCC").string());
    engine.userRun([this] {
        sheet().Guardar();
        sheet().Abrir();
    });
    EXPECT_EQ(window->text(Text17), "58.5");
    EXPECT_FALSE(passed());
}

TEST_F(Form4Finished, LabelsStandBesideTheirPartsWhereverTheModelHasThem)
{
    EXPECT_EQ(window->placeOf(Label19), loadPlace);
    designUpToRb1();
    EXPECT_EQ(window->placeOf(Label19), loadPlace);
    EXPECT_EQ(host::shownPlace(*window, Label19), controls[Label19].place);
    const host::Place Rb1 = host::shownPlace(*window, Label24);
    enter(Text17, "58.5");
    EXPECT_EQ(window->placeOf(Label24).top, 1320);
    EXPECT_EQ(host::shownPlace(*window, Label24), Rb1);
    EXPECT_EQ(window->placeOf(image2), sourceAtEmitter);
}

} // namespace velmor::form4_test
