// SPDX-License-Identifier: MIT
// `Form10` where no walk can look: when its working numbers count as a finished design, and the step that no order of fields leads
// to.
#include "designs/power/form10.h"

#include <gtest/gtest.h>

#include "program/catalogue.h"
#include "quiet_screen.h"
#include "rules/scratch_folder.h"

namespace velmor::form10_test {

using namespace form10;

class Form10Finished : public testing::Test {
protected:
    Form10Finished() : engine(program::catalogue(), screen, settings)
    {
        engine.loadMainWindow();
        engine.userRun([this] {
            window = engine.host().NewInstance("Form10");
            engine.host().Show(*window);
        });
    }
    Form10& sheet() { return static_cast<Form10&>(*window); }
    bool passed() { return sheet().quantities().passed; }
    void key(std::int16_t code) { engine.userKey(*window, code); }
    void enter(host::Handle field, std::string_view value)
    {
        ASSERT_EQ(window->focus(), field);
        engine.userText(*window, field, value);
        key(sheets::enterKey);
    }
    void design()
    {
        for (const host::Handle field : {Text1, Text2, Text10, Text5}) {
            ASSERT_EQ(window->focus(), field);
            key(sheets::enterKey);
        }
        engine.userClick(*window, Text6);
        engine.userClick(*window, Command1);
        enter(Text7, "9");
        key(sheets::enterKey);
        key(sheets::enterKey);
        enter(Text3, "0.45");
        enter(Text4, "1.35");
        engine.userClick(*window, Command1);
        enter(Text9, "5");
        key(sheets::enterKey);
        key(sheets::enterKey);
    }

    test::QuietScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
    host::Window* window = nullptr;
};

TEST_F(Form10Finished, IsADesignThatCameToItsEnd)
{
    EXPECT_FALSE(passed());
    design();
    EXPECT_TRUE(sheet().visible(Text13));
    EXPECT_TRUE(passed());
}

TEST_F(Form10Finished, EndsWithTheFirstChangeInAnEarlierField)
{
    design();
    key('x'); // the filter swallows it
    key(sheets::escapeKey);
    EXPECT_TRUE(passed());
    engine.userFocus(*window, Text8);
    key(sheets::enterKey);
    EXPECT_TRUE(passed()) << "passing by changes nothing";
    engine.userFocus(*window, Text8);
    key('2');
    EXPECT_FALSE(passed());
}

TEST_F(Form10Finished, EndsWhenTheCurrentIsProposedAnew)
{
    design();
    engine.userFocus(*window, Text5);
    EXPECT_FALSE(passed());
}

TEST_F(Form10Finished, IsNoDesignReadFromAFile)
{
    const rules::ScratchFolder folder;
    design();
    sheet().setNombreArchivo((folder / "b.CBS").string());
    engine.userRun([this] {
        sheet().Guardar();
        sheet().Abrir();
    });
    EXPECT_EQ(window->text(Text13), "1.375 Amps");
    EXPECT_FALSE(passed());
}

// Rb1a is left with the preset and itself disabled, as no order of fields of this sheet brings it about.
TEST_F(Form10Finished, LeavesRb1aForRb2WhenBothResistorsAreDisabled)
{
    design();
    engine.userRun([this] {
        sheet().enable(Text6);
        sheet().disable(Text7, Text8);
        engine.host().SetFocus(*window, Text6);
        sheet().setText(Text6, "0.5");
        sheet().disable(Text6);
        engine.host().SetFocus(*window, Text9);
    });
    // three quarters of 18 K
    EXPECT_EQ(window->text(Text6), "13.5");
    EXPECT_EQ(window->text(Text8), "Rb2");
    EXPECT_TRUE(window->enabled(Text8));
}

} // namespace velmor::form10_test
