// SPDX-License-Identifier: MIT
// Every key passes the window's key slot before the text box has it, and everything the mouse can do has a key.
#include <algorithm>

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QInputMethodEvent>
#include <QMenuBar>
#include <QTest>

#include "desktop/canvas/keyboard.h"
#include "desktop/desktop_fixture.h"
#include "places.h"
#include "program/catalogue.h"

namespace velmor::test::keyboard_test {

using namespace bench;
using host::Event;

struct KeyboardTest : ::testing::Test {
    void SetUp() override
    {
        on.open();
        // The filter of the sheets in small: digits and points pass, a comma becomes a point, the rest is swallowed.
        for (const host::Handle field : {Text1, Text2, Text3})
            on.sheet().deeds[{field, Event::key}] = [this](host::EventArgs& args) {
                keys.push_back(args.key);
                if (args.key == ',')
                    args.key = '.';
                else if (args.key >= 32 && args.key != '.' && (args.key < '0' || args.key > '9')) {
                    args.key = 0;
                    on.engine.host().Beep();
                }
            };
    }
    Bench on;
    std::vector<int> keys;
};

TEST_F(KeyboardTest, theFirstKeyReplacesTheSelectedText)
{
    on.type("7");
    EXPECT_EQ(on.sheet().text(Text1), "7");
    EXPECT_EQ(on.field(Text1).text(), "7");
    on.type("5");
    EXPECT_EQ(on.sheet().text(Text1), "75");
}

// A box sends the value back: the next number takes its place. A letter is no wish to leave.
TEST_F(KeyboardTest, aValueThatABoxSendsBackIsReplacedByTheNextNumber)
{
    on.sheet().deeds[{Text1, Event::key}] = [this](host::EventArgs& args) {
        if (args.key == 13 || args.key == '9') {
            on.answerByKey(Qt::Key_Return);
            on.engine.host().MsgBox("Suba la fuente", 48, "Velmor");
        }
    };
    on.type("15");
    Bench::key(Qt::Key_Return);
    ASSERT_EQ(on.boxes.size(), 1U);
    on.type("24");
    EXPECT_EQ(on.sheet().text(Text1), "24");
    on.type("9");
    ASSERT_EQ(on.boxes.size(), 2U);
    on.type("5");
    EXPECT_EQ(on.sheet().text(Text1), "2495");
}

TEST_F(KeyboardTest, aMenuThatIsLeftGivesTheFieldItsSelectionBack)
{
    const QString whole = on.field(Text1).selectedText();
    ASSERT_FALSE(whole.isEmpty());
    const auto visitMenu = [this] {
        on.key(Qt::Key_Shift); // as Alt, which leads there, it says nothing yet
        on.main().menuBar()->setFocus(Qt::MenuBarFocusReason);
        on.settle();
        on.field(Text1).setFocus(Qt::MenuBarFocusReason);
    };
    visitMenu();
    EXPECT_EQ(on.field(Text1).selectedText(), whole);
    on.type("5");
    visitMenu();
    EXPECT_EQ(on.field(Text1).selectedText(), QString());
    on.type("4");
    EXPECT_EQ(on.sheet().text(Text1), "54");
}

TEST_F(KeyboardTest, theSlotMayReplaceOrSwallowACharacter)
{
    on.type("1,5mA");
    EXPECT_EQ(on.sheet().text(Text1), "1.5");
    EXPECT_EQ(keys, (std::vector<int>{'1', ',', '5', 'm', 'A'}));
}

TEST_F(KeyboardTest, charactersBeyondTheCodePageAreTreatedAsLetters)
{
    on.type(QStringLiteral("1\u03A9é"));
    EXPECT_EQ(on.sheet().text(Text1), "1");
    EXPECT_EQ(keys, (std::vector<int>{'1', 63, 0xE9}));
    EXPECT_EQ(desktop::keyCode(0x20AC), 128);
    EXPECT_EQ(desktop::characterOf(128), U'\u20AC');
}

TEST_F(KeyboardTest, theSlotHearsACharacterBeforeTheTextHasIt)
{
    std::string before = "?";
    on.sheet().deeds[{Text1, Event::key}] = [&](host::EventArgs&) { before = on.sheet().text(Text1); };
    on.type("8");
    EXPECT_EQ(before, "10");
    EXPECT_EQ(on.sheet().text(Text1), "8");
}

TEST_F(KeyboardTest, backspaceIsAKeyAndDeleteIsNone)
{
    on.type("123");
    keys.clear();
    on.key(Qt::Key_Backspace);
    EXPECT_EQ(on.sheet().text(Text1), "12");
    on.key(Qt::Key_Home);
    on.key(Qt::Key_Delete);
    EXPECT_EQ(on.sheet().text(Text1), "2");
    EXPECT_EQ(keys, (std::vector<int>{8}));
}

TEST_F(KeyboardTest, aSwallowedBackspaceChangesNothing)
{
    on.sheet().deeds[{Text1, Event::key}] = [](host::EventArgs& args) { args.key = 0; };
    on.key(Qt::Key_End);
    on.key(Qt::Key_Backspace);
    EXPECT_EQ(on.sheet().text(Text1), "10");
}

TEST_F(KeyboardTest, enterAndEscapeReachTheSlotAndNotTheText)
{
    on.key(Qt::Key_Return);
    on.key(Qt::Key_Enter, Qt::KeypadModifier);
    on.key(Qt::Key_Escape);
    EXPECT_EQ(keys, (std::vector<int>{13, 13, 27}));
    EXPECT_EQ(on.sheet().text(Text1), "10");
}

TEST_F(KeyboardTest, pastedTextGoesThroughTheFilterCharacterByCharacter)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("1,5 kohm\n/ 2"));
    on.keys("Ctrl+V");
    EXPECT_EQ(on.sheet().text(Text1), "1.52");
    EXPECT_EQ(on.field(Text1).text(), "1.52");
    EXPECT_EQ(keys.front(), 22);
}

TEST_F(KeyboardTest, pastingIsSilentAndTypingIsNot)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("abc"));
    bool muted = false;
    on.sheet().deeds[{Text1, Event::key}] = [&](host::EventArgs& args) {
        muted = on.screen.desk().muted;
        args.key = args.key == 22 ? args.key : std::int16_t{0};
    };
    on.keys("Ctrl+V");
    EXPECT_TRUE(muted);
    on.type("x");
    EXPECT_FALSE(muted);
}

TEST_F(KeyboardTest, aHugePasteIsCutAndDoesNoHarm)
{
    QGuiApplication::clipboard()->setText(QString(2'000'000, QLatin1Char('9')));
    on.keys("Shift+Ins");
    EXPECT_EQ(on.sheet().text(Text1).size(), 4096U);
}

TEST_F(KeyboardTest, cutAndUndoKeepModelAndWidgetAlike)
{
    on.type("456");
    on.keys("Ctrl+A");
    on.keys("Ctrl+X");
    EXPECT_EQ(on.sheet().text(Text1), "");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "456");
    on.keys("Ctrl+Z");
    EXPECT_EQ(on.sheet().text(Text1), on.field(Text1).text().toStdString());
    EXPECT_NE(on.sheet().text(Text1), "");
}

TEST_F(KeyboardTest, undoTakesBackTypingAndThenStepsWithoutAKeySlot)
{
    on.type("5");
    on.key(Qt::Key_Tab);
    on.type("77");
    keys.clear();
    on.sheet().log.clear();
    on.keys("Ctrl+Z");
    EXPECT_EQ(on.sheet().text(Text2), "20") << "typing in the field goes first";
    EXPECT_EQ(on.field(Text2).text(), "20");
    EXPECT_EQ(on.sheet().focus(), Text2);
    on.keys("Ctrl+Z");
    EXPECT_EQ(on.sheet().focus(), Text1);
    EXPECT_EQ(on.sheet().text(Text1), "10");
    EXPECT_EQ(on.field(Text1).text(), "10");
    EXPECT_TRUE(on.field(Text1).hasFocus());
    on.keys("Ctrl+Y");
    EXPECT_EQ(on.sheet().focus(), Text2);
    EXPECT_EQ(on.field(Text1).text(), "5");
    EXPECT_TRUE(keys.empty());
    EXPECT_EQ(std::count(on.sheet().log.begin(), on.sheet().log.end(), "Text1 focus"), 0);
}

TEST_F(KeyboardTest, altBackspaceAlwaysTakesAStepBack)
{
    on.type("5");
    on.key(Qt::Key_Tab);
    on.type("77");
    keys.clear();
    on.key(Qt::Key_Backspace, Qt::AltModifier);
    EXPECT_EQ(on.sheet().text(Text2), "20") << "what was typed and not left is a step of its own";
    on.key(Qt::Key_Backspace, Qt::AltModifier);
    EXPECT_EQ(on.sheet().text(Text1), "10");
    on.keys("Ctrl+Y");
    on.keys("Ctrl+Y");
    EXPECT_EQ(on.field(Text2).text(), "77");
    EXPECT_TRUE(keys.empty());
}

// What was typed before the field was left is the sheet's affair: the line edit must not bring it back by itself.
TEST_F(KeyboardTest, typingThatWasLeftIsUndoneByTheSheetAlone)
{
    on.type("5");
    on.key(Qt::Key_Tab);
    on.keys("Shift+Tab");
    EXPECT_FALSE(on.field(Text1).isUndoAvailable());
    on.keys("Ctrl+Z");
    EXPECT_EQ(on.sheet().focus(), Text2);
    EXPECT_EQ(on.sheet().text(Text1), "5");
}

TEST_F(KeyboardTest, undoWorksWhereNoFieldIsInHand)
{
    on.type("5");
    on.click(Command1);
    on.keys("Ctrl+Z");
    EXPECT_EQ(on.sheet().focus(), Text1);
    EXPECT_EQ(on.sheet().text(Text1), "10");
}

TEST_F(KeyboardTest, theMiddleButtonPastesNothingPastTheFilter)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("abc"), QClipboard::Selection);
    on.click(Text1, Qt::MiddleButton);
    EXPECT_EQ(on.sheet().text(Text1), "10");
}

TEST_F(KeyboardTest, aCharacterWhoseSlotMovesTheFocusIsNotTyped)
{
    on.sheet().deeds[{Text1, Event::key}] = [this](host::EventArgs&) { on.engine.host().SetFocus(on.sheet(), Text3); };
    on.type("9");
    EXPECT_EQ(on.sheet().text(Text1), "10");
    EXPECT_EQ(on.sheet().text(Text3), "");
    EXPECT_TRUE(on.field(Text3).hasFocus());
}

TEST_F(KeyboardTest, spaceAndEnterPressAButtonOnce)
{
    on.click(Command1);
    on.sheet().log.clear();
    on.key(Qt::Key_Space);
    EXPECT_EQ(on.sheet().log, (std::vector<std::string>{"Command1 key", "Command1 click"}));
    on.sheet().log.clear();
    on.key(Qt::Key_Return);
    EXPECT_EQ(on.sheet().log, (std::vector<std::string>{"Command1 key", "Command1 click"}));
}

TEST_F(KeyboardTest, spaceClicksAPictureAnOptionAndACheckBox)
{
    on.click(Picture1);
    on.sheet().log.clear();
    on.key(Qt::Key_Space);
    EXPECT_EQ(on.sheet().log, (std::vector<std::string>{"Picture1 key", "Picture1 down", "Picture1 click"}));
    on.key(Qt::Key_Tab);
    on.key(Qt::Key_Tab);
    on.key(Qt::Key_Space);
    EXPECT_TRUE(on.sheet().checked(Option2));
    EXPECT_FALSE(on.sheet().checked(Option1));
    on.key(Qt::Key_Tab);
    on.key(Qt::Key_Space);
    EXPECT_TRUE(on.sheet().checked(Check1));
}

TEST_F(KeyboardTest, theContextMenuKeysPressTheRightButtonOnTheFieldInHand)
{
    int presses = 0;
    on.sheet().deeds[{Text1, Event::mouseDown}] = [&](host::EventArgs& args) {
        presses += args.button == host::Button::right ? 1 : 0;
    };
    on.key(Qt::Key_Menu);
    on.keys("Shift+F10");
    on.keys("F1");
    EXPECT_EQ(presses, 3);
}

TEST_F(KeyboardTest, theHoverKeysSayWhatTheMouseOverTheFieldSays)
{
    on.sheet().log.clear();
    on.keys("F2");
    on.keys("Ctrl+F1");
    EXPECT_EQ(on.sheet().log, (std::vector<std::string>{"Text1 hover", "Text1 hover"}));
}

TEST_F(KeyboardTest, aToolWhoseFieldKeepsEscapeToItselfStaysOpen)
{
    auto& tool = static_cast<BenchWindow&>(on.show("Herramienta"));
    tool.deeds[{ToolText, Event::key}] = [](host::EventArgs& args) { args.key = 0; };
    on.keys("Esc");
    EXPECT_NE(on.engine.defaultInstance("Herramienta"), nullptr);
}

TEST_F(KeyboardTest, composedTextPassesTheFilterToo)
{
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("1,a5"));
    QCoreApplication::sendEvent(&on.field(Text1), &event);
    on.settle();
    EXPECT_EQ(on.sheet().text(Text1), "1.5");
    EXPECT_EQ(keys, (std::vector<int>{'1', ',', 'a', '5'}));
}

TEST_F(KeyboardTest, aCharacterOfTheThirdLevelPassesTheFilterToo)
{
    // AltGr reaches some programs as Ctrl and Alt.
    for (const QString& letter : {QStringLiteral("2"), QStringLiteral("@")})
        QTest::simulateEvent(QGuiApplication::focusWindow(), true, Qt::Key_2, Qt::ControlModifier | Qt::AltModifier,
                             letter, false);
    on.settle();
    EXPECT_EQ(on.sheet().text(Text1), "2");
    EXPECT_EQ(keys, (std::vector<int>{'2', '@'}));
}

TEST_F(KeyboardTest, escapeIsHeardByAButtonAndAPageInHand)
{
    std::vector<int> codes;
    for (const host::Handle control : {Command1, Page1})
        on.sheet().deeds[{control, Event::key}] = [&](host::EventArgs& args) { codes.push_back(args.key); };
    on.click(Command1);
    on.key(Qt::Key_Escape);
    on.engine.userRun([this] {
        on.sheet().show(Page1);
        on.engine.host().SetFocus(on.sheet(), Page1);
    });
    on.settle();
    on.key(Qt::Key_Escape);
    EXPECT_EQ(codes, (std::vector<int>{27, 27}));
}

TEST_F(KeyboardTest, everyRowOfTheSheetsTableDoesItsDeed)
{
    on.sheet().log.clear();
    on.keys("Ctrl+B");
    on.keys("F9");
    on.keys("Ctrl+D");
    EXPECT_EQ(on.sheet().log,
              (std::vector<std::string>{"Image1 down", "Image1 click", "Image1 hover", "Image12 drop"}));
    int right = 0;
    on.sheet().deeds[{Image1, Event::mouseDown}] = [&](host::EventArgs& args) {
        right += args.button == host::Button::right ? 1 : 0;
    };
    on.keys("Ctrl+C");
    EXPECT_EQ(right, 1) << "a key of the window's table comes before the text box";
}

TEST_F(KeyboardTest, f6WalksThroughTheOpenWindowsAndBack)
{
    on.show("Herramienta");
    on.show("Paleta");
    on.main().activateWindow();
    on.settle();
    QWidget* const tool = &on.screen.keeper().frameOf(*on.engine.defaultInstance("Herramienta"))->widget();
    QWidget* const palette = &on.screen.keeper().frameOf(*on.engine.defaultInstance("Paleta"))->widget();
    EXPECT_EQ(QApplication::activeWindow(), &on.main());
    on.keys("F6");
    EXPECT_EQ(QApplication::activeWindow(), tool);
    on.keys("F6");
    EXPECT_EQ(QApplication::activeWindow(), &on.main()) << "the palette is a strip of it";
    EXPECT_TRUE(palette->isAncestorOf(QApplication::focusWidget()));
    on.keys("F6");
    EXPECT_EQ(QApplication::activeWindow(), &on.main());
    EXPECT_TRUE(on.field(Text1).hasFocus());
}

// With two sheets open Qt would look for the keyboard's place in the first of them.
TEST_F(KeyboardTest, aSheetThatDisablesItsFieldBehindAToolHasTheKeyboardAgainAfterwards)
{
    BenchWindow& second = on.newSheet();
    host::Window& tool = on.show("Herramienta");
    ASSERT_EQ(second.focus(), Text1);
    on.engine.userRun([&] {
        second.disable(Text1);
        second.setText(Text2, "12");
        on.engine.host().SetFocus(second, Text2);
        on.engine.host().Hide(tool);
    });
    on.main().activateWindow();
    on.settle();
    EXPECT_EQ(on.engine.activeChild(), &second);
    on.type(QStringLiteral("3"));
    EXPECT_EQ(second.text(Text2), "3") << "the whole text was selected";
}

TEST_F(KeyboardTest, escapeClosesATool)
{
    host::Window& tool = on.show("Herramienta");
    on.engine.userClick(tool, ToolButton);
    on.settle();
    on.keys("Esc");
    EXPECT_EQ(on.engine.defaultInstance("Herramienta"), nullptr);
    host::Window& again = on.show("Herramienta");
    on.engine.userRun([&] { again.hide(ToolText, ToolButton); });
    on.settle();
    on.keys("Esc");
    EXPECT_EQ(on.engine.defaultInstance("Herramienta"), nullptr);
}

TEST_F(KeyboardTest, enterInAFieldOfAToolGoesToItsSlotAloneWhereItHasOne)
{
    auto& tool = static_cast<BenchWindow&>(on.show("Herramienta"));
    tool.log.clear();
    on.key(Qt::Key_Return);
    EXPECT_EQ(tool.log, (std::vector<std::string>{"Text1 key"})) << "the button is not pressed besides";
}

TEST_F(KeyboardTest, enterInAFieldOfAToolThatKnowsNothingOfItPressesTheFirstButton)
{
    auto& tool = static_cast<BenchWindow&>(on.show("Pregunta"));
    tool.log.clear();
    on.key(Qt::Key_Return);
    EXPECT_EQ(tool.log, (std::vector<std::string>{"Command1 down", "Command1 click"}));
}

TEST_F(KeyboardTest, escapeInThePaletteGivesTheKeyboardBackAndEndsNothing)
{
    on.show("Paleta");
    on.keys("F6");
    EXPECT_FALSE(on.field(Text1).hasFocus());
    on.keys("Esc");
    EXPECT_TRUE(on.field(Text1).hasFocus());
    EXPECT_FALSE(on.engine.ended());
}

TEST_F(KeyboardTest, everyCommonKeyIsNamedInBothLanguages)
{
    for (const desktop::CommonKeyRow& row : desktop::commonKeys()) {
        EXPECT_FALSE(
            QKeySequence(QString::fromUtf8(row.keys.data(), static_cast<qsizetype>(row.keys.size()))).isEmpty());
        EXPECT_FALSE(row.meaning.es.empty());
        EXPECT_FALSE(row.meaning.en.empty());
    }
}

TEST_F(KeyboardTest, noWindowTakesTheKeysBetweenWindowsForItself)
{
    for (const host::WindowSpec* spec : program::catalogue())
        for (const desktop::CommonKeyRow& row : desktop::commonKeys()) {
            if (row.deed != desktop::CommonKey::nextPane && row.deed != desktop::CommonKey::frame)
                continue;
            for (const host::ShortcutRow& own : spec->shortcuts)
                EXPECT_NE(own.keys, row.keys) << spec->name;
        }
}

TEST_F(KeyboardTest, thePageOnKeysNamesThemAll)
{
    QFile page(QString::fromStdString(places::source() + "/docs/keyboard.md"));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(page.readAll());
    const auto names = [&](std::string_view told) {
        return text.contains(
            QStringLiteral("`%1`").arg(QString::fromUtf8(told.data(), static_cast<qsizetype>(told.size()))));
    };
    for (const desktop::CommonKeyRow& row : desktop::commonKeys())
        EXPECT_TRUE(names(row.keys)) << row.keys;
    const host::WindowSpec& main = *program::catalogue().front();
    ASSERT_EQ(main.role, host::Role::mainWindow);
    for (const host::ShortcutRow& row : main.shortcuts)
        EXPECT_TRUE(row.control == host::noControl || main.controls[row.control].kind != host::Kind::menu ||
                    names(row.keys))
            << row.keys;
}

TEST_F(KeyboardTest, aKeyTheTextBoxLeavesOverIsHeardOnce)
{
    on.sheet().log.clear();
    on.key(Qt::Key_Up);
    on.key(Qt::Key_F12);
    EXPECT_TRUE(on.sheet().log.empty());
}

TEST_F(KeyboardTest, anEditorWritesWithoutAskingAndTellsItsChange)
{
    host::Window& editor = on.show("Editor");
    on.type(QStringLiteral("hola áé\u03A9"));
    on.key(Qt::Key_Tab);
    EXPECT_EQ(editor.wholeText(txtEdit), "hola áé\u03A9\t");
    const std::vector<std::string>& log = static_cast<BenchWindow&>(editor).log;
    EXPECT_NE(std::find(log.begin(), log.end(), "txtEdit change"), log.end());
}

} // namespace velmor::test::keyboard_test
