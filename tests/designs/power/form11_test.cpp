// SPDX-License-Identifier: MIT
// `Form11` where no walk can look: when its working numbers count as a finished design, the page that it waits for after it was
// copied, and its numbers after the current has become another.
#include "designs/power/form11.h"

#include <gtest/gtest.h>

#include "host/window_state.h"
#include "program/catalogue.h"
#include "quiet_screen.h"

namespace velmor::form11_test {

using namespace form11;

struct Program {
    Program() : engine(program::catalogue(), screen, settings) { engine.loadMainWindow(); }

    test::QuietScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
};

class Form11Sheet : public testing::Test {
protected:
    Form11Sheet()
    {
        first.engine.userRun([this] {
            window = first.engine.host().NewInstance("Form11");
            first.engine.host().Show(*window);
        });
    }
    Form11& sheet() { return static_cast<Form11&>(*window); }
    void enter(std::initializer_list<host::Handle> fields)
    {
        for (const host::Handle field : fields) {
            ASSERT_EQ(window->focus(), field);
            first.engine.userKey(*window, sheets::enterKey);
        }
    }
    static void leavePage(host::Engine& engine)
    {
        host::Window* page = engine.host().find("Form7");
        ASSERT_NE(page, nullptr);
        engine.userClick(*page, page->named("SSCommand2"));
    }
    void toPage()
    {
        enter({Text1, Text2, Text10, Text5});
        first.engine.userClick(*window, Text6);
    }
    void design()
    {
        toPage();
        leavePage(first.engine);
        enter({Text7, Text6, Text8, Text3, Text4});
        leavePage(first.engine);
        enter({Text9, Text11, Text12});
    }

    Program first;
    host::Window* window = nullptr;
};

TEST_F(Form11Sheet, IsFinishedWithItsLastFieldAndNotAnyMoreAfterAChange)
{
    EXPECT_FALSE(sheet().quantities().passed);
    design();
    EXPECT_TRUE(sheet().quantities().passed);
    first.engine.userFocus(*window, Text3);
    first.engine.userKey(*window, '2');
    EXPECT_FALSE(sheet().quantities().passed);
}

// EsMin = 35.3937, so ERl = 15.29685 and RL = 5.09895 K; 17.69685 / 5.09895 is 3.4707 mA and no more 3.
TEST_F(Form11Sheet, KeepsResWhenTheResistorsMakeAnotherCurrent)
{
    design();
    EXPECT_NEAR(sheet().at(Text5).value(), 3.4707, 0.0001);
    EXPECT_DOUBLE_EQ(sheet().driver().Res.value(), 100.0);
    EXPECT_DOUBLE_EQ(sheet().driver().ERes.value(), 0.3);
}

TEST_F(Form11Sheet, ThatWaitsForItsPageOpensItAgainWhereItIsCopiedTo)
{
    toPage();
    EXPECT_EQ(sheet().openPage(), pageOfBase);
    const auto state = first.engine.stateOf(*window);
    ASSERT_TRUE(state.has_value());
    Program second;
    host::Window* copy = second.engine.open(std::span(&*state, 1)).front();
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(static_cast<Form11&>(*copy).openPage(), pageOfBase);
    EXPECT_EQ(second.engine.host().find("Form7"), nullptr);
    // it comes in front as any sheet does that was behind another one
    second.engine.userRun([&] {
        second.engine.host().Show(*second.engine.host().NewInstance("Form2"));
        second.engine.host().Show(*copy);
    });
    host::Window* page = second.engine.host().find("Form7");
    ASSERT_NE(page, nullptr);
    EXPECT_TRUE(page->shown());
    EXPECT_EQ(page->text(page->named("Label3")), first.engine.host().text("Form7", "Label3"));
    leavePage(second.engine);
    EXPECT_EQ(copy->focus(), Text7);
    EXPECT_EQ(static_cast<Form11&>(*copy).openPage(), noPage);
}

} // namespace velmor::form11_test
