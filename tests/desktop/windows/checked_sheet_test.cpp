// SPDX-License-Identifier: MIT
// A sheet whose design has been checked goes: its check goes with it, and the keyboard is where the window in front is.
#include <QApplication>
#include <gtest/gtest.h>

#include "desktop/check/check_window.h"
#include "desktop/desktop_fixture.h"
#include "program/catalogue.h"

namespace velmor::test::checked_sheet_test {

class CheckedSheetTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        on.open();
        sheet = &on.show("Form12");
        for (const char* value : {"2", "4", "", "", "2.2", "", "3.9", "4.7"}) { // the shortest design there is
            Bench::type(QLatin1String(value));
            Bench::key(Qt::Key_Return);
        }
        Bench::keys(QStringLiteral("Ctrl+T"));
        ASSERT_NE(dynamic_cast<desktop::CheckWindow*>(QApplication::activeWindow()), nullptr);
    }
    QWidget& frameOf(const host::Window& window) { return on.screen.keeper().frameOf(window)->widget(); }
    void turnTo(QWidget& window)
    {
        window.activateWindow();
        Bench::settle();
    }

    Bench on{program::catalogue()};
    host::Window* sheet = nullptr;
};

TEST_F(CheckedSheetTest, leavesTheKeyboardToTheToolThatIsInFrontThen)
{
    host::Window& tool = on.show("Form7");
    turnTo(on.main());
    ASSERT_EQ(on.engine.current(), sheet);
    on.answerByKey(Qt::Key_N);
    frameOf(*sheet).close();
    Bench::settle();
    ASSERT_EQ(on.engine.current(), &tool);
    EXPECT_EQ(QApplication::activeWindow(), &frameOf(tool));
}

TEST_F(CheckedSheetTest, leavesItToTheMainWindowWhereNoToolIsOpen)
{
    host::Window& other = on.show("Form4");
    turnTo(*on.screen.desk().checkOf(*sheet));
    on.answerByKey(Qt::Key_N);
    frameOf(*sheet).close();
    Bench::settle();
    ASSERT_EQ(on.engine.current(), &other);
    EXPECT_TRUE(on.widgetOf(other, other.focus())->hasFocus());
}

} // namespace velmor::test::checked_sheet_test
