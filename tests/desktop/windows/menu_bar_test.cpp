// SPDX-License-Identifier: MIT
// The one menu bar, the list of open children and the round of Ctrl+Tab.
#include <functional>

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTest>

#include "desktop/desktop_fixture.h"
#include "desktop/drawing/texts.h"
#include "desktop/windows/menu_bar.h"
#include "frame/mdi_form1_controls.h"
#include "program/catalogue.h"

namespace velmor::test::menu_bar_test {

struct MenuBarTest : ::testing::Test {
    MenuBarTest() : on(program::catalogue())
    {
        program::start(on.engine);
        Bench::settle();
        on.main().activateWindow();
        Bench::settle();
    }
    host::Window& sheet() { return *on.engine.instance("Form2", 0); }
    QList<QAction*> bar() { return on.main().menuBar()->actions(); }
    static QStringList namesOf(const QList<QAction*>& actions)
    {
        QStringList names;
        for (const QAction* action : actions)
            if (action->isVisible() && !action->isSeparator())
                names.append(desktop::menuName(action->text()));
        return names;
    }
    static void expectLettersOnce(const QList<QAction*>& actions)
    {
        QSet<QString> letters;
        for (const QAction* action : actions) {
            const QString letter = QKeySequence::mnemonic(action->text()).toString();
            if (!action->isVisible() || letter.isEmpty())
                continue;
            EXPECT_FALSE(letters.contains(letter)) << action->text().toStdString();
            letters.insert(letter);
        }
    }
    QMenu* menu(const QString& name)
    {
        for (QAction* action : bar())
            if (desktop::menuName(action->text()) == name)
                return action->menu();
        return nullptr;
    }
    QList<QAction*> opened(const QString& name)
    {
        QMenu* found = menu(name);
        if (found == nullptr)
            return {};
        Q_EMIT found->aboutToShow();
        return found->actions();
    }
    void turnRound(int steps)
    {
        QWindow* window = on.main().windowHandle();
        // Ctrl stays down meanwhile, which a click of the key would not leave it.
        for (int i = 0; i < steps; ++i)
            for (const bool down : {true, false})
                QTest::simulateEvent(window, down, Qt::Key_Tab, Qt::ControlModifier, QString(), false);
        QTest::simulateEvent(window, false, Qt::Key_Control, Qt::NoModifier, QString(), false);
        Bench::settle();
    }
    Bench on;
};

// The menus of the Spanish report follow the program when it changes its language, and stand in one bar with its own.
TEST_F(MenuBarTest, anEditorsMenusSpeakTheLanguageOfTheMoment)
{
    on.show("frmEdito2");
    const qsizetype menus = namesOf(bar()).size();
    on.engine.userMenu(on.engine.mainWindow(), main_window::mnuIng);
    Bench::settle();
    EXPECT_EQ(namesOf(bar()).size(), menus) << namesOf(bar()).join(u' ').toStdString();
    EXPECT_FALSE(namesOf(bar()).contains("archivo"));
    EXPECT_TRUE(namesOf(bar()).contains("format"));
    EXPECT_FALSE(namesOf(bar()).contains("formato"));
    EXPECT_TRUE(namesOf(opened("archive")).contains("print"));
    EXPECT_FALSE(namesOf(opened("archive")).contains("imprimir"));
    EXPECT_EQ(namesOf(opened("window")).count("cascade"), 1);
    EXPECT_FALSE(namesOf(opened("window")).contains("cascada"));
    expectLettersOnce(bar());
    on.engine.userMenu(on.engine.mainWindow(), main_window::mnuEsp);
    Bench::settle();
    EXPECT_TRUE(namesOf(bar()).contains("formato"));
    EXPECT_TRUE(namesOf(opened("archivo")).contains("imprimir"));
}

// So it is with an English report that was kept, when the program starts in Spanish.
TEST_F(MenuBarTest, menusOfOneNameAreOneInALanguageThatTheProgramHasNotSpokenYet)
{
    on.engine.values().LanguageIsEnglish = host::trueValue; // for the editor alone: the menus were written before
    on.show("frmEdito3");
    const QStringList names = namesOf(bar());
    for (const char* english : {"archive", "edit", "window", "help"})
        EXPECT_FALSE(names.contains(english)) << names.join(u' ').toStdString();
    EXPECT_EQ(names.count("archivo"), 1);
    EXPECT_TRUE(names.contains("format"));
    expectLettersOnce(bar());
}

// English captions are given without any; who opens a menu by Alt goes on by letters.
TEST_F(MenuBarTest, everyItemHasALetterOfItsOwnInBothLanguages)
{
    const std::function<void(QMenu&)> expectLetters = [&](QMenu& menu) {
        Q_EMIT menu.aboutToShow();
        expectLettersOnce(menu.actions());
        for (const QAction* action : menu.actions()) {
            if (!action->isVisible() || action->isSeparator())
                continue;
            EXPECT_FALSE(QKeySequence::mnemonic(action->text()).isEmpty()) << action->text().toStdString();
            if (action->menu() != nullptr)
                expectLetters(*action->menu());
        }
    };
    for (const host::Handle language : {main_window::mnuIng, main_window::mnuEsp}) {
        on.engine.userMenu(on.engine.mainWindow(), language);
        Bench::settle();
        for (const QAction* action : bar())
            if (action->isVisible() && action->menu() != nullptr)
                expectLetters(*action->menu());
    }
}

TEST_F(MenuBarTest, anEditorsMenusStandInTheBarAndMenusOfOneNameAreOne)
{
    const QStringList before = namesOf(bar());
    host::Window& editor = on.show("frmEdito1");
    EXPECT_TRUE(on.viewOf(editor).findChildren<QMenuBar*>().isEmpty()) << "no bar of its own";
    for (const QString& name : before)
        EXPECT_EQ(namesOf(bar()).count(name), 1) << name.toStdString();
    EXPECT_TRUE(namesOf(bar()).contains("formato"));
    const QStringList archive = namesOf(opened("archivo"));
    EXPECT_EQ(archive.first(), "nuevo") << "the editor's items first";
    EXPECT_GT(archive.indexOf("salvar"), archive.indexOf("salir"));
    on.engine.userActivate(sheet());
    Bench::settle();
    EXPECT_EQ(namesOf(bar()), before) << "with the sheet its own menus alone";
}

TEST_F(MenuBarTest, noLetterIsGivenTwiceInEitherLanguage)
{
    on.show("frmEdito1");
    for (const bool english : {false, true}) {
        on.keys(english ? "Ctrl+Shift+I" : "Ctrl+Shift+E");
        expectLettersOnce(bar());
        for (const QString& name : namesOf(bar())) {
            SCOPED_TRACE(name.toStdString());
            expectLettersOnce(opened(name));
        }
    }
}

TEST_F(MenuBarTest, whatBothOfferIsOfferedOnceAndItsKeyIsShownOnce)
{
    on.show("frmEdito1");
    EXPECT_EQ(namesOf(opened("ventana")).count("horizontal"), 1);
    int shown = 0;
    for (const QAction* action : opened("archivo"))
        shown += action->shortcut() == QKeySequence(Qt::CTRL | Qt::Key_S) ? 1 : 0;
    EXPECT_EQ(shown, 1);
    on.engine.userActivate(sheet());
    Bench::settle();
    EXPECT_EQ(on.main().menus().actionOf(main_window::mnuFile1)->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_S))
        << "the sheet has its key back";
}

TEST_F(MenuBarTest, anItemOfTheEditorDoesItsDeedFromTheBar)
{
    host::Window& editor = on.show("frmEdito1");
    const auto windows = on.engine.windows().size();
    for (QAction* action : opened("archivo"))
        if (desktop::menuName(action->text()) == "otra ventana")
            action->trigger();
    Bench::settle();
    EXPECT_EQ(on.engine.windows().size(), windows + 1);
    EXPECT_NE(on.engine.activeChild(), &editor);
}

TEST_F(MenuBarTest, theWindowMenuListsTheChildrenAndMarksTheOneInFront)
{
    on.show("frmEdito1");
    for (int round = 0; round < 2; ++round) {
        const QList<QAction*> items = opened("ventana");
        ASSERT_GT(items.size(), 3);
        const QAction* first = items[items.size() - 2];
        const QAction* second = items.last();
        EXPECT_TRUE(items[items.size() - 3]->isSeparator());
        EXPECT_TRUE(first->text().startsWith("&1"));
        EXPECT_EQ(first->isChecked(), round == 1);
        EXPECT_EQ(second->isChecked(), round == 0);
        EXPECT_EQ(first->shortcut(), QKeySequence(Qt::ALT | Qt::Key_1));
        on.engine.userActivate(sheet());
        Bench::settle();
    }
    on.keys("Alt+2");
    EXPECT_EQ(on.engine.activeChild(), on.engine.defaultInstance("frmEdito1"));
    on.keys("Alt+1");
    EXPECT_EQ(on.engine.activeChild(), &sheet());
    on.engine.userState(sheet(), 1);
    Bench::settle();
    on.keys("Alt+1");
    EXPECT_NE(sheet().windowState(), 1) << "an icon is opened";
}

TEST_F(MenuBarTest, ctrlTabGoesRoundInOrderOfUse)
{
    host::Window& first = sheet();
    host::Window& second = on.show("Form8");
    host::Window& third = on.show("Form4");
    on.engine.userActivate(first);
    Bench::settle();
    turnRound(1);
    EXPECT_EQ(on.engine.activeChild(), &third) << "the one used before";
    turnRound(1);
    EXPECT_EQ(on.engine.activeChild(), &first) << "and back";
    turnRound(2);
    EXPECT_EQ(on.engine.activeChild(), &second) << "further while Ctrl is held";
    turnRound(1);
    EXPECT_EQ(on.engine.activeChild(), &first) << "what was passed on the way was not used";
}

TEST_F(MenuBarTest, aNewChildIsMaximisedBesideAMaximisedOneAndTheFrameNamesIt)
{
    const auto frame = [&](host::Window& window) -> QWidget& { return on.screen.keeper().frameOf(window)->widget(); };
    on.engine.userState(sheet(), 2);
    Bench::settle();
    EXPECT_TRUE(on.main().windowTitle().contains(desktop::shown(sheet().caption()).simplified()));
    host::Window& other = on.show("Form8");
    EXPECT_TRUE(frame(other).isMaximized());
    EXPECT_TRUE(on.main().windowTitle().contains(desktop::shown(other.caption()).simplified()));
    on.engine.userState(other, 0);
    Bench::settle();
    EXPECT_EQ(on.main().windowTitle(), desktop::shownTitle(on.engine.mainWindow().caption()).simplified())
        << "it has a title of its own again";
}

TEST(LettersTest, aLetterThatIsTakenGivesWayToAnother)
{
    QAction archive("&Archivo");
    QAction help("&Ayuda");
    QAction none("Vista");
    QAction again("&A");
    desktop::giveLetters({&archive, &help, &none, &again});
    EXPECT_EQ(archive.text(), "&Archivo");
    EXPECT_EQ(help.text(), "A&yuda");
    EXPECT_EQ(none.text(), "&Vista") << "one without a letter is given one";
    EXPECT_EQ(again.text(), "A") << "no letter is left";
    desktop::giveLetters({&help, &archive});
    EXPECT_EQ(help.text(), "&Ayuda") << "the given letter comes back";
}

} // namespace velmor::test::menu_bar_test
