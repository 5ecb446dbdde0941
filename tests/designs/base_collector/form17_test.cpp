// SPDX-License-Identifier: MIT
// `Form17` where no walk can look: when its working numbers count as a finished design, and what it holds between its
// slots.
#include "designs/base_collector/form17.h"

#include <gtest/gtest.h>

#include "program/catalogue.h"
#include "quiet_screen.h"
#include "rules/scratch_folder.h"

namespace velmor::form17_test {

using namespace form17;

class Form17Finished : public testing::Test {
protected:
    Form17Finished() : engine(program::catalogue(), screen, settings)
    {
        engine.loadMainWindow();
        engine.userRun([this] {
            window = engine.host().NewInstance("Form17");
            engine.host().Show(*window);
        });
    }
    Form17& sheet() { return static_cast<Form17&>(*window); }
    bool passed() { return sheet().quantities().passed; }
    void key(std::int16_t code) { engine.userKey(*window, code); }
    void enter(host::Handle field, std::string_view text)
    {
        ASSERT_EQ(window->focus(), field);
        engine.userText(*window, field, text);
        key(sheets::enterKey);
    }
    /// An output of 4 Vpp, so that no question comes up, and Enter as far as Rb1.
    void design()
    {
        for (int guard = 0; guard < 40 && window->focus() != Text17; ++guard) {
            if (window->focus() == Text13)
                engine.userText(*window, Text13, "4");
            key(sheets::enterKey);
        }
        ASSERT_EQ(window->focus(), Text17);
    }

    test::QuietScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
    host::Window* window = nullptr;
};

TEST_F(Form17Finished, IsADesignWhosePresetGivesItsCurrent)
{
    EXPECT_FALSE(passed());
    design();
    EXPECT_FALSE(passed());
    key(sheets::enterKey);
    EXPECT_TRUE(passed());
    enter(Text17, "1");
    EXPECT_FALSE(passed());
}

TEST_F(Form17Finished, EndsWithTheFirstChangeInAnEarlierField)
{
    design();
    key(sheets::enterKey);
    ASSERT_TRUE(passed());
    engine.userFocus(*window, Text4);
    key('x'); // the filter swallows it
    EXPECT_TRUE(passed());
    key(sheets::enterKey);
    EXPECT_EQ(window->focus(), Text17);
    EXPECT_TRUE(passed()) << "passing by changes nothing";
    engine.userFocus(*window, Text4);
    key('2');
    EXPECT_FALSE(passed());
}

TEST_F(Form17Finished, EndsWithAClickThatChangesAField)
{
    design();
    key(sheets::enterKey);
    engine.userClick(*window, Text4);
    EXPECT_TRUE(passed()) << "10 was there already";
    engine.userText(*window, Text4, "12");
    engine.userClick(*window, Text4);
    EXPECT_EQ(window->text(Text4), "10");
    EXPECT_FALSE(passed());
}

TEST_F(Form17Finished, IsNoDesignReadFromAFile)
{
    const rules::ScratchFolder folder;
    design();
    key(sheets::enterKey);
    sheet().setNombreArchivo((folder / "follower.CCC").string());
    engine.userRun([this] {
        sheet().Guardar();
        sheet().Abrir();
    });
    EXPECT_FALSE(passed());
}

TEST_F(Form17Finished, HoldsItsNumbersUnrounded)
{
    design();
    // 0.7069 x ... : Ein 1.414 gives Eopp 3.9875, over 2 x 0.5
    EXPECT_DOUBLE_EQ(sheet().quantities().QIc.value(), 3.9875);
    EXPECT_DOUBLE_EQ(sheet().quantities().EQ.value(), 4.9875);
    // Res 10 beside 0.5: RLac = 5 / 10.5; the current of the design is read back to four decimals, 4.1869 mA
    EXPECT_DOUBLE_EQ(sheet().quantities().ERes.value(), 4.1869 * 10.0);
    EXPECT_DOUBLE_EQ(sheet().quantities().RLw.value(), 0.5);
}

} // namespace velmor::form17_test
