// SPDX-License-Identifier: MIT
// States of child windows in real frames: what comes back when a sheet is minimised, and how large the next one is.
#include <QApplication>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>

#include <gtest/gtest.h>

#include "desktop/canvas/canvas.h"
#include "desktop/desktop_fixture.h"
#include "frame/mdi_form1_controls.h"
#include "program/catalogue.h"

namespace velmor::test::child_state_test {

class ChildStateTest : public ::testing::Test {
protected:
    ChildStateTest() : on(program::catalogue())
    {
        program::start(on.engine);
        Bench::settle();
    }

    host::Window& sheet() { return *on.engine.instance("Form2", 0); }
    desktop::ChildFrame& frame(host::Window& window)
    {
        return dynamic_cast<desktop::ChildFrame&>(*on.screen.keeper().frameOf(window));
    }
    /// The strip of the fixed bar, where it is seen.
    const QWidget* bar()
    {
        for (const desktop::Canvas* canvas : on.main().findChildren<desktop::Canvas*>())
            if (canvas->model() == &on.engine.mainWindow() && canvas->isVisible() &&
                canvas->shows(main_window::imgButton0) && canvas->x() == 0 && canvas->width() < canvas->height())
                return canvas;
        return nullptr;
    }
    void choose(host::Handle item)
    {
        on.engine.userMenu(on.engine.mainWindow(), item);
        Bench::settle();
    }

    Bench on;
};

TEST_F(ChildStateTest, aMinimisedSheetBringsTheBarBackAndItStaysInSight)
{
    choose(main_window::mnuFija);
    frame(sheet()).showMaximized();
    Bench::settle();
    EXPECT_EQ(bar(), nullptr);
    const int whole = on.main().area().width();
    frame(sheet()).showMinimized();
    Bench::settle();
    ASSERT_NE(bar(), nullptr);
    EXPECT_EQ(on.main().area().width(), whole - bar()->width()) << "the sheets make room for it";
    frame(sheet()).showNormal();
    Bench::settle();
    EXPECT_EQ(bar(), nullptr);
}

TEST_F(ChildStateTest, aNewSheetIsShownMaximisedBesideAMaximisedOneAndNormalOtherwise)
{
    host::Window& first = sheet();
    choose(main_window::once);
    ASSERT_NE(&sheet(), &first);
    EXPECT_FALSE(frame(sheet()).isMaximized());
    frame(sheet()).showMaximized();
    Bench::settle();
    choose(main_window::once);
    host::Window& third = sheet();
    EXPECT_EQ(third.windowState(), 2);
    EXPECT_TRUE(frame(third).isMaximized());
    EXPECT_EQ(frame(third).geometry().size(), on.main().area().viewport()->size());
    EXPECT_EQ(on.main().area().currentSubWindow(), &frame(third));
    frame(third).showNormal();
    Bench::settle();
    EXPECT_EQ(third.windowState(), 0);
    EXPECT_EQ(frame(third).geometry(), on.screen.desk().pixelsOf(third.place()));
}

// They would restore, or close, what lies behind the sheet in hand.
TEST_F(ChildStateTest, theButtonsOfAMaximisedSheetGoWhileAnotherIsInFront)
{
    host::Window& first = sheet();
    choose(main_window::once);
    host::Window& second = sheet();
    const auto buttons = [&] {
        const QWidget* corner = on.main().menuBar()->cornerWidget(Qt::TopRightCorner);
        return corner != nullptr && corner->isVisible();
    };
    EXPECT_FALSE(buttons());
    frame(second).showMaximized();
    Bench::settle();
    EXPECT_TRUE(buttons());
    on.engine.userActivate(first);
    Bench::settle();
    EXPECT_FALSE(buttons());
    EXPECT_FALSE(frame(first).isMaximized());
    on.engine.userActivate(second);
    Bench::settle();
    EXPECT_TRUE(buttons());
}

// What a student types goes into a sheet that is seen.
TEST_F(ChildStateTest, aMinimisedSheetLeavesTheKeyboardToTheNextOne)
{
    host::Window& first = sheet();
    choose(main_window::once);
    host::Window& second = sheet();
    choose(main_window::once);
    host::Window& third = sheet();
    on.engine.userActivate(second);
    Bench::settle();
    frame(second).showMinimized();
    Bench::settle();
    EXPECT_EQ(on.engine.activeChild(), &third) << "the one that was in hand before it";
    EXPECT_EQ(on.main().area().currentSubWindow(), &frame(third));
    const std::string stood = second.text(second.focus());
    Bench::type("7");
    EXPECT_EQ(second.text(second.focus()), stood);
    EXPECT_EQ(third.text(third.focus()), "7");
    frame(third).showMinimized();
    Bench::settle();
    EXPECT_EQ(on.engine.activeChild(), &first);
    Bench::type("8");
    EXPECT_EQ(first.text(first.focus()), "8");
}

TEST_F(ChildStateTest, whatIsTypedWhereOnlyIconsStandGoesIntoNone)
{
    host::Window& only = sheet();
    const std::string stood = only.text(only.focus());
    const host::Handle field = only.focus();
    frame(only).showMinimized();
    Bench::settle();
    Bench::type("7");
    Bench::key(Qt::Key_Return);
    EXPECT_EQ(only.text(field), stood);
    EXPECT_EQ(only.focus(), field);
    Bench::keys("Ctrl+Shift+I"); // the main window's keys work on
    EXPECT_EQ(on.engine.values().LanguageIsEnglish, host::trueValue);
    frame(only).showNormal();
    Bench::settle();
    Bench::type("7");
    EXPECT_EQ(only.text(field), "7");
}

TEST_F(ChildStateTest, theMenuOfTheFrameOpensByKeyInTheLanguageOfTheMomentAndMaximisesTheSheet)
{
    const auto captions = [this] {
        Bench::keys("Alt+-");
        Bench::settle();
        const auto* menu = qobject_cast<const QMenu*>(QApplication::activePopupWidget());
        QStringList said;
        if (menu != nullptr)
            for (const QAction* action : menu->actions())
                if (action->isVisible() && !action->isSeparator())
                    said.append(action->text());
        return said;
    };
    EXPECT_EQ(captions(), (QStringList{"&Restaurar", "Mi&nimizar", "Ma&ximizar", "&Cerrar"}));
    Bench::key(Qt::Key_X);
    Bench::settle();
    EXPECT_EQ(sheet().windowState(), 2);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    choose(main_window::mnuIng);
    EXPECT_EQ(captions(), (QStringList{"&Restore", "Mi&nimise", "Ma&ximise", "&Close"}));
    Bench::key(Qt::Key_R);
    Bench::settle();
    EXPECT_EQ(sheet().windowState(), 0);
}

} // namespace velmor::test::child_state_test
