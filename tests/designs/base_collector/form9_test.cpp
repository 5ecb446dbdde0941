// SPDX-License-Identifier: MIT
// `Form9` where no walk can look: its own formulas by hand, and when its working numbers count as a finished design.
#include "designs/base_collector/form9.h"

#include <gtest/gtest.h>

#include "host/failure.h"
#include "program/catalogue.h"
#include "quiet_screen.h"

namespace velmor::form9_test {

using namespace form9;

TEST(Form9Formulas, TheSupplyIsSharedAlike)
{
    EXPECT_DOUBLE_EQ(leastLoadVoltage(5.0).value(), 2.5);
    // (11 - 6) / 2 = 2.5 V, through 1 mA: 2500 ohm
    EXPECT_DOUBLE_EQ(halfOfTheRest(11.0, 6.0).value(), 2.5);
    EXPECT_DOUBLE_EQ(loadResistor(2.5, 1.0).value(), 2500.0);
    EXPECT_THROW(loadResistor(2.5, 0.0), host::ProgramFailure);
    EXPECT_DOUBLE_EQ(loadVoltage(2.0, 12.0).value(), 24.0);
    EXPECT_DOUBLE_EQ(emitterVoltage(12.0, 2.0).value(), 24.0);
    // 2 x 12 + 5 + 1
    EXPECT_DOUBLE_EQ(supplyFor(12.0, 5.0).value(), 30.0);
}

TEST(Form9Formulas, TheDividerAddsTheJunctionWhereItShouldTakeItAway)
{
    // 10 x (12 x 10 / 22)
    EXPECT_NEAR(lowerBaseResistor(10.0, 12.0, 10.0).value(), 1200.0 / 22.0, 1e-12);
    // 50 x 200 / 250 with Beta x RL = 100 x 2
    EXPECT_DOUBLE_EQ(baseImpedance(50.0, 100.0, 2.0).value(), 40.0);
    // (6 + 9.4 + 0.6) x 40 / (9.4 + 0.6); with the junction taken away it would be 59.2
    EXPECT_DOUBLE_EQ(upperBaseResistor(6.0, 9.4, 0.6, 40.0).value(), 64.0);
}

class Form9Finished : public testing::Test {
protected:
    Form9Finished() : engine(program::catalogue(), screen, settings)
    {
        engine.loadMainWindow();
        engine.userRun([this] {
            window = engine.host().NewInstance("Form9");
            engine.host().Show(*window);
        });
    }
    Form9& sheet() { return static_cast<Form9&>(*window); }
    bool passed() { return sheet().quantities().passed; }
    void key(std::int16_t code) { engine.userKey(*window, code); }
    /// A supply of 30 V, and the preset that the guide finds.
    void design()
    {
        for (int guard = 0; guard < 40 && window->focus() != Text17; ++guard) {
            if (window->focus() == Text20)
                engine.userText(*window, Text20, "30");
            key(sheets::enterKey);
        }
        ASSERT_EQ(window->focus(), Text17);
        EXPECT_FALSE(passed());
        engine.userText(*window, Text17, "77");
        key(sheets::enterKey);
    }

    test::QuietScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
    host::Window* window = nullptr;
};

TEST_F(Form9Finished, LeavesCommaAndMetricMeasuresInThePersonsSettings)
{
    engine.values().MeasurementSystem = "1";
    engine.userRun([this] { engine.host().Show(*engine.host().NewInstance("Form9")); });
    EXPECT_EQ(engine.values().DecimalSeparator, ",");
    EXPECT_EQ(engine.values().MeasurementSystem, "0");
}

// Rb2 = 10 x (12.0078 // 10) = 54.5616; 17.3766 V / 72 K - 12.6078 V / 54.5616 K = 241.34 - 231.07 uA: 1.0268 mA
TEST_F(Form9Finished, IsADesignWhosePresetGivesItsCurrent)
{
    design();
    EXPECT_FALSE(passed()) << "17.3766 V / 77 K = 225.67 uA is less than Rb2 drains";
    engine.userText(*window, Text17, "72");
    key(sheets::enterKey);
    EXPECT_TRUE(passed());
}

TEST_F(Form9Finished, EndsWithTheFirstChangeInAnEarlierField)
{
    design();
    engine.userText(*window, Text17, "72");
    key(sheets::enterKey);
    ASSERT_TRUE(passed());
    engine.userFocus(*window, Text4);
    key(sheets::enterKey);
    EXPECT_EQ(window->focus(), Text17);
    EXPECT_TRUE(passed()) << "passing by changes nothing";
    engine.userFocus(*window, Text4);
    key('2');
    EXPECT_FALSE(passed());
}

} // namespace velmor::form9_test
