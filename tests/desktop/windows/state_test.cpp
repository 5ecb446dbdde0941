// SPDX-License-Identifier: MIT
// Windows opened from their texts on real windows: seen, in front, and with the keyboard where it was; no slot runs.
#include <QLineEdit>

#include <gtest/gtest.h>

#include "desktop/desktop_fixture.h"
#include "host/state_change.h"
#include "host/state_text.h"

namespace velmor::test {

namespace state {

class StateTest : public ::testing::Test {
protected:
    StateTest() { on.open(); }

    QString shownIn(host::Window& window, host::Handle control)
    {
        const auto* field = dynamic_cast<QLineEdit*>(on.widgetOf(window, control));
        return field == nullptr ? QStringLiteral("no field") : field->text();
    }

    Bench on;
};

TEST_F(StateTest, ASheetStandsThereAsItStood)
{
    on.click(bench::Text2);
    on.engine.userText(on.sheet(), bench::Text2, "12");
    on.sheet().setCaption("As it stood");
    const std::string text = host::stateText(*on.engine.stateOf(on.sheet()));

    on.newSheet();
    const std::size_t deeds = on.sheet().log.size();
    const auto read = host::readState(text, on.engine);
    ASSERT_TRUE(read);
    auto& copy = dynamic_cast<BenchWindow&>(*on.engine.open({&*read, 1}).front());
    Bench::settle();
    EXPECT_TRUE(copy.log.empty());
    EXPECT_EQ(on.sheet().log.size(), deeds);
    EXPECT_EQ(on.engine.current(), &copy);
    EXPECT_EQ(shownIn(copy, bench::Text2), QStringLiteral("12"));
    EXPECT_TRUE(on.viewOf(copy).isVisible());
    EXPECT_TRUE(on.widgetOf(copy, bench::Text2)->hasFocus());
    EXPECT_EQ(copy.caption(), "As it stood");
    Bench::type(QStringLiteral("5"));
    EXPECT_NE(copy.text(bench::Text2), "12");
}

TEST_F(StateTest, AStepBackIsSeen)
{
    on.click(bench::Text1);
    const std::string before = on.sheet().text(bench::Text2);
    const host::WindowState stood = *on.engine.stateOf(on.sheet());
    on.click(bench::Text2);
    Bench::type(QStringLiteral("12"));
    const host::StateChange step = difference(stood, *on.engine.stateOf(on.sheet()));
    ASSERT_NE(on.sheet().text(bench::Text2), before);
    EXPECT_TRUE(on.engine.apply(on.sheet(), step, host::Direction::back));
    Bench::settle();
    EXPECT_EQ(shownIn(on.sheet(), bench::Text2).toStdString(), before);
    EXPECT_TRUE(on.widgetOf(on.sheet(), bench::Text1)->hasFocus());
}

} // namespace state

} // namespace velmor::test
