// SPDX-License-Identifier: MIT
// The model leads, Qt follows: wherever slots send the focus, the keyboard is there and nowhere else.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMdiArea>
#include <QMenu>
#include <QTest>

#include "desktop/desktop_fixture.h"
#include "desktop/windows/menus.h"

namespace velmor::test::focus_test {

using namespace bench;
using host::Event;

struct FocusTest : ::testing::Test {
    void SetUp() override { on.open(); }
    void focusGoes(host::Handle from, host::Handle to)
    {
        on.sheet().deeds[{from, Event::lostFocus}] = [this, to](host::EventArgs&) {
            on.engine.host().SetFocus(on.sheet(), to);
        };
    }
    Bench on;
};

TEST_F(FocusTest, theFirstFieldHasTheKeyboardWhenASheetIsShownAndItsTextIsSelected)
{
    EXPECT_EQ(on.sheet().focus(), Text1);
    EXPECT_TRUE(on.field(Text1).hasFocus());
    EXPECT_EQ(on.field(Text1).selectedText(), "10");
}

// A box goes, a menu is opened at once, and only then the window system tells who has the keyboard.
TEST_F(FocusTest, theKeyboardThatComesWhileAMenuIsOpenIsThereWhenTheMenuGoes)
{
    QDialog box(&on.main());
    box.show();
    box.activateWindow();
    Bench::settle();
    ASSERT_EQ(QApplication::activeWindow(), &box);
    box.hide();
    QMenu menu;
    menu.addAction(QStringLiteral("3.3 K"));
    menu.popup(on.main().mapToGlobal(QPoint(200, 200)));
    on.main().activateWindow();
    Bench::settle();
    ASSERT_EQ(QApplication::activePopupWidget(), &menu);
    QTest::keyClick(&menu, Qt::Key_Escape);
    Bench::settle();
    EXPECT_EQ(QApplication::activeWindow(), &on.main());
    EXPECT_TRUE(on.field(Text1).hasFocus());
}

TEST_F(FocusTest, noFieldTakesTheFocusOfItsOwnAccord)
{
    for (const host::Handle field : {Text1, Text2, Text3})
        EXPECT_EQ(on.field(field).focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(on.viewOf(on.sheet()).canvas().focusPolicy(), Qt::StrongFocus);
}

TEST_F(FocusTest, tabAsksTheEngineAndRunsBothSlotsInOrder)
{
    on.sheet().log.clear();
    on.key(Qt::Key_Tab);
    EXPECT_EQ(on.sheet().log, (std::vector<std::string>{"Text1 lost", "Text2 focus"}));
    EXPECT_TRUE(on.field(Text2).hasFocus());
    EXPECT_EQ(on.field(Text2).selectedText(), "20");
    on.key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(on.field(Text1).hasFocus());
}

TEST_F(FocusTest, aClickPutsTheCaretAndSelectsNothing)
{
    on.moveTo(Text2);
    on.sheet().log.clear();
    on.click(Text2);
    EXPECT_TRUE(on.field(Text2).hasFocus());
    EXPECT_TRUE(on.field(Text2).selectedText().isEmpty());
    EXPECT_EQ(on.sheet().log, (std::vector<std::string>{"Text1 lost", "Text2 focus", "Text2 down", "Text2 click"}));
}

TEST_F(FocusTest, aClickThatTheOldFieldRedirectsNeverReachesTheOther)
{
    focusGoes(Text1, Text3);
    on.click(Text2);
    EXPECT_EQ(on.sheet().focus(), Text3);
    EXPECT_TRUE(on.field(Text3).hasFocus());
    EXPECT_FALSE(on.field(Text2).hasFocus());
    on.type("7");
    EXPECT_EQ(on.sheet().text(Text3), "7");
    EXPECT_EQ(on.sheet().text(Text2), "20");
}

TEST_F(FocusTest, aBoxInsideALostFocusSlotLeavesTheKeyboardWhereTheSlotSentIt)
{
    on.sheet().deeds[{Text1, Event::lostFocus}] = [this](host::EventArgs&) {
        on.engine.host().MsgBox("Elija otro valor", 48, "Criterio de diseño...");
        on.engine.host().SetFocus(on.sheet(), Text1);
    };
    bool widgetShowedNothingNew = false;
    on.duringBox = [&] { widgetShowedNothingNew = on.sheet().focus() == host::noControl; };
    on.answerByKey(Qt::Key_Return);
    on.sheet().log.clear();
    on.key(Qt::Key_Tab);
    ASSERT_EQ(on.boxes.size(), 1U);
    EXPECT_TRUE(widgetShowedNothingNew) << "while the lost-focus slot runs no field has the focus";
    EXPECT_EQ(on.sheet().log, (std::vector<std::string>{"Text1 lost", "Text1 focus"}));
    EXPECT_TRUE(on.field(Text1).hasFocus());
    EXPECT_EQ(on.field(Text1).selectedText(), "10");
}

TEST_F(FocusTest, aBoxAfterAClickLeavesTheKeyboardInTheClickedField)
{
    on.sheet().deeds[{Text1, Event::lostFocus}] = [this](host::EventArgs&) {
        on.engine.host().MsgBox("Atención", 48, "Criterio");
    };
    on.answerByKey(Qt::Key_Return);
    on.click(Text2);
    EXPECT_EQ(on.sheet().focus(), Text2);
    EXPECT_TRUE(on.field(Text2).hasFocus());
    on.type("9");
    EXPECT_NE(on.sheet().text(Text2).find('9'), std::string::npos);
}

TEST_F(FocusTest, aTextWrittenByTheFocusSlotStaysSelected)
{
    on.sheet().deeds[{Text2, Event::focus}] = [this](host::EventArgs&) {
        on.engine.host().MsgBox("Propuesta", 0, "Criterio");
        on.sheet().setText(Text2, "1 mA");
    };
    on.answerByKey(Qt::Key_Return);
    on.key(Qt::Key_Tab);
    EXPECT_EQ(on.field(Text2).selectedText(), "1 mA");
    on.type("3");
    EXPECT_EQ(on.sheet().text(Text2), "3");
}

TEST_F(FocusTest, aFocusedFieldThatIsHiddenGivesWayToTheNextInOrder)
{
    on.engine.userRun([this] { on.sheet().hide(Text1); });
    on.settle();
    EXPECT_EQ(on.sheet().focus(), Text2);
    EXPECT_TRUE(on.field(Text2).hasFocus());
    EXPECT_FALSE(on.field(Text1).isVisible());
}

TEST_F(FocusTest, aFocusedFieldThatIsDisabledKeepsTheModelsFocusUntilTheSlotHasEnded)
{
    host::Handle during = host::noControl;
    on.sheet().deeds[{Text1, Event::key}] = [&](host::EventArgs&) {
        on.sheet().disable(Text1);
        on.engine.host().MsgBox("Espere", 0, "Criterio");
        during = on.sheet().focus();
    };
    on.answerByKey(Qt::Key_Return);
    on.key(Qt::Key_Return);
    EXPECT_EQ(during, Text1);
    EXPECT_EQ(on.sheet().focus(), Text2);
    EXPECT_TRUE(on.field(Text2).hasFocus());
    EXPECT_FALSE(on.field(Text1).isEnabled());
}

TEST_F(FocusTest, aDisabledFieldShownFirstCanBeReachedOnceItIsEnabled)
{
    on.sheet().deeds[{Text1, Event::key}] = [&](host::EventArgs&) {
        on.sheet().enable(Text4);
        on.sheet().show(Text5);
        on.engine.host().SetFocus(on.sheet(), Text5);
    };
    on.key(Qt::Key_Return);
    EXPECT_TRUE(on.field(Text5).hasFocus());
    EXPECT_TRUE(on.field(Text4).isEnabled());
}

TEST_F(FocusTest, changingWindowsRunsNoFocusSlotAndGivesEachItsOwnFieldBack)
{
    on.key(Qt::Key_Tab);
    BenchWindow& second = on.newSheet();
    EXPECT_TRUE(on.widgetOf(second, Text1)->hasFocus());
    on.sheet().log.clear();
    second.log.clear();
    on.main().area().setActiveSubWindow(dynamic_cast<desktop::ChildFrame*>(on.screen.keeper().frameOf(on.sheet())));
    on.settle();
    EXPECT_EQ(on.engine.activeChild(), &on.sheet());
    EXPECT_TRUE(on.field(Text2).hasFocus());
    EXPECT_EQ(on.sheet().log, (std::vector<std::string>{"Hoja activate"}));
    EXPECT_TRUE(second.log.empty());
}

TEST_F(FocusTest, aToolTakesTheKeyboardAndGivesItBackWhenItCloses)
{
    on.sheet().log.clear();
    host::Window& tool = on.show("Herramienta");
    EXPECT_TRUE(on.widgetOf(tool, ToolText)->hasFocus());
    EXPECT_EQ(on.engine.current(), &tool);
    on.engine.userClose(tool);
    on.settle();
    EXPECT_TRUE(on.field(Text1).hasFocus());
    EXPECT_EQ(on.sheet().log, (std::vector<std::string>{"Hoja back"}));
}

TEST_F(FocusTest, showingThePaletteTakesNothingFromTheSheet)
{
    on.show("Paleta");
    EXPECT_EQ(on.engine.current(), &on.sheet());
    EXPECT_TRUE(on.field(Text1).hasFocus());
    EXPECT_TRUE(on.screen.keeper().frameOf(*on.engine.defaultInstance("Paleta"))->widget().isVisible());
}

TEST_F(FocusTest, aMenuRaisesNoFocusSlot)
{
    on.sheet().log.clear();
    QMenu* menu = on.main().menus().menuOf(mnuArchivo);
    menu->popup(on.main().mapToGlobal(QPoint(10, 30)));
    on.settle();
    menu->close();
    on.settle();
    EXPECT_TRUE(on.sheet().log.empty());
    EXPECT_TRUE(on.field(Text1).hasFocus());
}

TEST_F(FocusTest, whateverTakesTheFocusAgainstTheModelLosesItAgain)
{
    on.field(Text3).setFocus();
    on.settle();
    EXPECT_TRUE(on.field(Text1).hasFocus());
    on.viewOf(on.sheet()).canvas().setFocus();
    on.settle();
    EXPECT_TRUE(on.field(Text1).hasFocus());
    EXPECT_EQ(on.sheet().focus(), Text1);
}

TEST_F(FocusTest, aSheetThatClosesInItsOwnSlotLeavesTheKeyboardToTheOther)
{
    BenchWindow& second = on.newSheet();
    second.deeds[{Text1, Event::key}] = [&](host::EventArgs&) { on.engine.host().Unload(second); };
    on.key(Qt::Key_Return);
    EXPECT_EQ(on.engine.activeChild(), &on.sheet());
    EXPECT_TRUE(on.field(Text1).hasFocus());
}

TEST_F(FocusTest, picturesAndButtonsHoldTheKeyboardToo)
{
    on.click(Command1);
    EXPECT_EQ(on.sheet().focus(), Command1);
    EXPECT_TRUE(on.widgetOf(on.sheet(), Command1)->hasFocus());
    on.key(Qt::Key_Tab);
    EXPECT_TRUE(on.widgetOf(on.sheet(), Picture1)->hasFocus());
}

} // namespace velmor::test::focus_test
