// SPDX-License-Identifier: MIT
// `Form13` and `Form12` where no walk can look: when their working numbers count as a finished design, and what they hold then.
#include <gtest/gtest.h>

#include "designs/differential/form12.h"
#include "designs/differential/form13.h"
#include "program/catalogue.h"
#include "quiet_screen.h"
#include "rules/scratch_folder.h"

namespace velmor::finished_test {

/// A field and what the student enters there; without a text what it shows.
struct Entry {
    host::Handle field;
    std::string_view text{};
};

template <class Sheet>
class Program : public testing::Test {
protected:
    explicit Program(std::string_view name) : engine(program::catalogue(), screen, settings)
    {
        engine.loadMainWindow();
        engine.userRun([this, name] {
            window = engine.host().NewInstance(name);
            engine.host().Show(*window);
        });
    }
    Sheet& sheet() { return static_cast<Sheet&>(*window); }
    bool passed() { return sheet().quantities().passed; }
    void key(std::int16_t code) { engine.userKey(*window, code); }
    void enter(std::initializer_list<Entry> entries)
    {
        for (const Entry& entry : entries) {
            ASSERT_EQ(window->focus(), entry.field) << window->row(entry.field).name;
            if (!entry.text.empty())
                engine.userText(*window, entry.field, entry.text);
            key(sheets::enterKey);
        }
    }

    test::QuietScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
    host::Window* window = nullptr;
};

struct Form13Finished : Program<form13::Form13> {
    Form13Finished() : Program("Form13") {}
    void design()
    {
        using namespace form13;
        enter({{Text1},
               {Text2},
               {Text3},
               {Text5, "15"},
               {Text6, "12"},
               {Text7},
               {Text8},
               {Text9, "12"},
               {Text10, "2.7"}});
    }
};

TEST_F(Form13Finished, IsADesignWhoseRes1HasBeenLeft)
{
    EXPECT_FALSE(passed());
    design();
    EXPECT_EQ(window->focus(), form13::Text11);
    EXPECT_TRUE(passed());
    // from the first resistor of the input pair on, Res is the start value again
    EXPECT_DOUBLE_EQ(sheet().quantities().Res.value(), 2.5);
    EXPECT_DOUBLE_EQ(sheet().quantities().QIc34.value(), 0.625);
}

TEST_F(Form13Finished, EndsWithTheFirstChangeInAnEarlierField)
{
    design();
    key('x'); // the filter swallows it
    EXPECT_TRUE(passed());
    engine.userFocus(*window, form13::Text9);
    key('8');
    EXPECT_FALSE(passed());
}

// 100 x (0.5 x 0.5 / 1) K is less than 10 x 12 K.
TEST_F(Form13Finished, IsNoDesignWithALoadThatIsTooHeavy)
{
    using namespace form13;
    enter({{Text1}, {Text2}, {Text3}, {Text5, "15"}, {Text6, "12"}, {Text7}, {Text8}, {Text9, "12"}, {Text10, "0.5"}});
    EXPECT_TRUE(passed());
    enter({{Text11, "0.5"}});
    EXPECT_FALSE(passed());
}

TEST_F(Form13Finished, IsNoDesignReadFromAFile)
{
    const rules::ScratchFolder folder;
    design();
    sheet().setNombreArchivo((folder / "compound.DCC").string());
    engine.userRun([this] {
        sheet().Guardar();
        sheet().Abrir();
    });
    EXPECT_EQ(window->text(form13::Text10), "2.7");
    EXPECT_FALSE(passed());
}

struct Form12Finished : Program<form12::Form12> {
    Form12Finished() : Program("Form12") {}
    void design(std::string_view Rb2)
    {
        using namespace form12;
        enter({{Text1, "2"}, {Text2, "4"}, {Text3}, {Text9}, {Text4, "2.2"}, {Text5}, {Text6, "3.9"}, {Text7, Rb2}});
    }
};

TEST_F(Form12Finished, IsADesignThatHasBeenAnalysed)
{
    design("4.7");
    EXPECT_EQ(window->focus(), form12::Text10);
    EXPECT_TRUE(passed());
    // the analysis leaves the numbers of the design alone: 4.6 V / 2.2 K
    EXPECT_NEAR(sheet().quantities().QIc.value(), 4.6 / 2.2, 1e-12);
    EXPECT_DOUBLE_EQ(sheet().quantities().Eb.value(), 4.0);
}

// 4.6 V / 2 K = 2.3 mA, more than the 2.09 mA in Res.
TEST_F(Form12Finished, IsNoDesignWhoseDividerTakesTooMuch)
{
    design("2");
    EXPECT_EQ(window->focus(), form12::Text10);
    EXPECT_FALSE(passed());
}

TEST_F(Form12Finished, EndsWhereTheDesignStartsOver)
{
    design("4.7");
    engine.userClick(*window, form12::Text10);
    EXPECT_EQ(window->focus(), form12::Text1);
    EXPECT_FALSE(passed());
}

TEST_F(Form12Finished, EndsWithTheFirstChangeInAnEarlierField)
{
    design("4.7");
    engine.userFocus(*window, form12::Text4);
    EXPECT_TRUE(passed());
    key('3');
    EXPECT_FALSE(passed());
}

} // namespace velmor::finished_test
