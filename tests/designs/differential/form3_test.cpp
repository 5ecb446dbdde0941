// SPDX-License-Identifier: MIT
// `Form3` where no walk can look: when its working numbers count as a finished design.
#include "designs/differential/form3.h"

#include <gtest/gtest.h>

#include "program/catalogue.h"
#include "quiet_screen.h"
#include "rules/scratch_folder.h"

namespace velmor::form3_test {

using namespace form3;

class Form3Finished : public testing::Test {
protected:
    Form3Finished() : engine(program::catalogue(), screen, settings)
    {
        engine.loadMainWindow();
        engine.userRun([this] {
            window = engine.host().NewInstance("Form3");
            engine.host().Show(*window);
        });
    }
    Form3& sheet() { return static_cast<Form3&>(*window); }
    bool passed() { return sheet().quantities().passed; }
    void key(std::int16_t code) { engine.userKey(*window, code); }
    /// Enter from the first field to Es, then Es.
    void design(std::string_view Es)
    {
        for (int guard = 0; guard < 40 && window->focus() != Text18; ++guard)
            key(sheets::enterKey);
        engine.userText(*window, Text18, Es);
        key(sheets::enterKey);
    }

    test::QuietScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
    host::Window* window = nullptr;
};

TEST_F(Form3Finished, IsADesignThatCameToItsEndWithoutAWarning)
{
    EXPECT_FALSE(passed());
    design("24");
    EXPECT_TRUE(sheet().visible(image2));
    EXPECT_TRUE(passed());
}

// EQ = 12 - 0.5 mA x 16 K = 4 V, less than 1 + 9.9625 V.
TEST_F(Form3Finished, IsNoDesignThatEndedInAWarning)
{
    design("12");
    EXPECT_EQ(window->focus(), Text18);
    EXPECT_FALSE(passed());
}

TEST_F(Form3Finished, EndsWithTheFirstChangeInAnEarlierField)
{
    design("24");
    ASSERT_EQ(window->focus(), Text1);
    key('x'); // the filter swallows it
    EXPECT_TRUE(passed());
    key(sheets::enterKey);
    EXPECT_EQ(window->focus(), Text6);
    EXPECT_TRUE(passed()) << "passing by changes nothing";
    key('8');
    EXPECT_FALSE(passed());
    design("24");
    EXPECT_TRUE(passed());
}

TEST_F(Form3Finished, EndsWithAFieldThatWasEmptied)
{
    design("24");
    engine.userText(*window, Text1, "");
    key(sheets::enterKey);
    EXPECT_FALSE(passed());
}

TEST_F(Form3Finished, IsNoDesignReadFromAFile)
{
    const rules::ScratchFolder folder;
    design("24");
    sheet().setNombreArchivo((folder / "pair.CDS").string());
    engine.userRun([this] {
        sheet().Guardar();
        sheet().Abrir();
    });
    EXPECT_TRUE(sheet().visible(image2));
    EXPECT_FALSE(passed());
}

} // namespace velmor::form3_test
