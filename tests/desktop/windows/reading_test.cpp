// SPDX-License-Identifier: MIT
// Windows that are only read stand beside the sheet and leave it the keyboard: what is typed goes to the sheet, whichever of them is
// in front. And the conversion of temperatures gives the keyboard back when it is done.
#include <string>
#include <string_view>
#include <tuple>

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QTest>
#include <QTimer>

#include "desktop/desktop_fixture.h"
#include "program/catalogue.h"

namespace velmor::test::reading_test {

using host::Event;
using host::Handle;

constexpr const char* readingWindows[] = {"Form14", "Form21", "Form6", "Form5", "Form19"};

/// A window beside the main one, or a part of it where the desktop alone says where windows stand.
enum class Stands { beside, inside };

struct ReadingTest : ::testing::TestWithParam<std::tuple<const char*, Stands>> {
    ReadingTest() : on(program::catalogue())
    {
        on.screen.desk().placesWindows = std::get<Stands>(GetParam()) == Stands::beside;
        program::start(on.engine);
        on.main().resize(1366, 740);
        Bench::settle();
        on.main().activateWindow();
        Bench::settle();
        sheet = on.engine.instance("Form2", 0);
    }
    void SetUp() override
    {
        ASSERT_NE(sheet, nullptr);
        ASSERT_EQ(sheet->focus(), first());
        text = &on.show(name());
        on.engine.onSlot = [this](const host::Window& who, Handle, Event event) {
            activations += &who == sheet && event == Event::activate ? 1 : 0;
        };
    }
    static std::string_view name() { return std::get<const char*>(GetParam()); }
    Handle first() const { return sheet->named("Text1"); }
    QWidget& frame() { return on.screen.keeper().frameOf(*text)->widget(); }
    bool isOpen() { return on.engine.defaultInstance(name()) != nullptr; }
    /// The page of the field in hand goes as soon as somebody turns to the sheet.
    bool goes() const { return name() == "Form21"; }
    bool hasKeyboard()
    {
        return frame().isWindow() ? QApplication::activeWindow() == &frame()
                                  : frame().isAncestorOf(QApplication::focusWidget());
    }
    bool sheetHasKeyboard()
    {
        return QApplication::activeWindow() == &on.main() && on.widgetOf(*sheet, sheet->focus())->hasFocus();
    }

    Bench on;
    host::Window* sheet = nullptr;
    host::Window* text = nullptr;
    int activations = 0;
};

TEST_P(ReadingTest, isShownWithoutTakingTheKeyboard)
{
    EXPECT_TRUE(frame().isVisible());
    EXPECT_EQ(frame().window() == &on.main(), std::get<Stands>(GetParam()) == Stands::inside);
    EXPECT_EQ(on.engine.current(), text) << "to the program it is the window in front all the same";
    EXPECT_TRUE(sheetHasKeyboard());
    EXPECT_TRUE(isOpen());
}

TEST_P(ReadingTest, letsTheSheetHearWhatIsTypedBesideIt)
{
    Bench::type("37");
    EXPECT_EQ(sheet->text(first()), "37");
    EXPECT_EQ(on.engine.current(), sheet) << "as after a click";
    EXPECT_EQ(isOpen(), !goes());
    Bench::key(Qt::Key_Return);
    EXPECT_EQ(sheet->focus(), sheet->named("Text3"));
    EXPECT_EQ(activations, 0) << "coming back from a tool is no activation";
}

TEST_P(ReadingTest, aModifierAloneIsNoTurningToTheSheet)
{
    Bench::key(Qt::Key_Shift);
    Bench::key(Qt::Key_Control);
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(on.engine.current(), text);
}

TEST_P(ReadingTest, aPressInTheSheetTurnsToIt)
{
    on.click(*sheet, first());
    EXPECT_EQ(on.engine.current(), sheet);
    EXPECT_EQ(isOpen(), !goes());
}

// Window managers give the keyboard to whatever they map.
TEST_P(ReadingTest, handsBackTheKeyboardThatTheWindowManagerGaveIt)
{
    frame().activateWindow();
    Bench::settle();
    EXPECT_TRUE(sheetHasKeyboard());
    EXPECT_TRUE(isOpen()) << "and that is no turning to the sheet";
    Bench::type("4");
    EXPECT_EQ(sheet->text(first()), "4");
}

TEST_P(ReadingTest, f6WalksIntoItAndBack)
{
    Bench::key(Qt::Key_F6);
    EXPECT_TRUE(hasKeyboard());
    EXPECT_TRUE(isOpen());
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Up})
        Bench::key(key);
    EXPECT_TRUE(hasKeyboard()) << "one reads with these";
    EXPECT_EQ(sheet->text(first()), "10");
    for (int i = 0; i < 3 && !sheetHasKeyboard(); ++i) // the palette is on the way, in the main window
        Bench::key(Qt::Key_F6);
    EXPECT_TRUE(sheetHasKeyboard());
}

TEST_P(ReadingTest, whatIsTypedInItGoesToTheSheet)
{
    Bench::key(Qt::Key_F6);
    ASSERT_TRUE(hasKeyboard());
    Bench::type("52");
    EXPECT_EQ(sheet->text(first()), "52");
    EXPECT_TRUE(sheetHasKeyboard());
    EXPECT_EQ(isOpen(), !goes());
}

TEST_P(ReadingTest, escapeInItClosesItAndTheKeyboardIsInTheSheet)
{
    Bench::key(Qt::Key_F6);
    Bench::key(Qt::Key_Escape);
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(sheetHasKeyboard());
    EXPECT_EQ(sheet->text(first()), "10");
}

// On a slow machine it is closed before it has heard that the press gave it the keyboard.
TEST_P(ReadingTest, closedByHandLeavesTheKeyboardToTheSheetWhoeverHasIt)
{
    QWidget other;
    other.show();
    other.activateWindow();
    Bench::settle();
    ASSERT_EQ(QApplication::activeWindow(), &other);
    frame().findChild<QAbstractButton*>(QStringLiteral("close"))->click();
    Bench::settle();
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(sheetHasKeyboard());
}

INSTANTIATE_TEST_SUITE_P(Windows, ReadingTest,
                         ::testing::Combine(::testing::ValuesIn(readingWindows),
                                            ::testing::Values(Stands::beside, Stands::inside)),
                         [](const auto& window) {
                             const bool inside = std::get<Stands>(window.param) == Stands::inside;
                             return std::get<const char*>(window.param) + std::string(inside ? "Inside" : "");
                         });

// It is not the sheet's when a tool has been opened since.
TEST(ReadingWindowTest, handsTheKeyboardBackToTheToolThatWasOpenedAfterIt)
{
    Bench on(program::catalogue());
    on.screen.desk().placesWindows = true;
    program::start(on.engine);
    Bench::settle();
    const host::Window& text = on.show("Form6");
    host::Window& tool = on.show("Calculator");
    ASSERT_EQ(on.engine.current(), &tool);
    on.screen.keeper().frameOf(text)->widget().activateWindow();
    Bench::settle();
    EXPECT_EQ(QApplication::activeWindow(), &on.screen.keeper().frameOf(tool)->widget());
    EXPECT_EQ(on.engine.current(), &tool);
}

struct ConversionTest : ::testing::TestWithParam<Stands> {
    ConversionTest() : on(program::catalogue())
    {
        on.screen.desk().placesWindows = GetParam() == Stands::beside;
        program::start(on.engine);
        Bench::settle();
        on.main().activateWindow();
        Bench::settle();
    }
    /// Writes into the question for a temperature, once it is there.
    void answer(const QString& temperature)
    {
        auto* watch = new QTimer(&on.main());
        QObject::connect(watch, &QTimer::timeout, watch, [watch, temperature] {
            auto* box = QApplication::activeModalWidget();
            if (box == nullptr || !box->isVisible())
                return;
            watch->deleteLater();
            box->findChild<QLineEdit*>()->setText(temperature);
            QTest::keyClick(box, Qt::Key_Return);
        });
        watch->start(1);
    }
    Bench on;
};

// 350 K are 77 degrees.
TEST_P(ConversionTest, theKeyboardIsBackInTheSheetWithTheTemperature)
{
    host::Window& sheet = *on.engine.instance("Form2", 0);
    Bench::key(Qt::Key_Return);
    const Handle temperature = sheet.named("Text3");
    ASSERT_EQ(sheet.focus(), temperature);
    host::Window& conversion = on.show("Form22");
    answer("350");
    on.click(conversion, conversion.named("Command2"));
    EXPECT_EQ(on.engine.defaultInstance("Form22"), nullptr);
    EXPECT_EQ(QApplication::activeWindow(), &on.main());
    EXPECT_TRUE(on.widgetOf(sheet, temperature)->hasFocus());
    EXPECT_EQ(sheet.text(temperature), "77");
    Bench::type("81");
    EXPECT_EQ(sheet.text(temperature), "81");
}

// The page that is read is the window in front then, and does not take the keyboard.
TEST_P(ConversionTest, theKeyboardIsBackInTheSheetFromTheConversionOverAPage)
{
    on.show("Form21");
    host::Window& conversion = on.show("Form22");
    answer("350");
    on.click(conversion, conversion.named("Command2"));
    EXPECT_EQ(QApplication::activeWindow(), &on.main());
    Bench::type("7");
    const host::Window& sheet = *on.engine.instance("Form2", 0);
    EXPECT_EQ(sheet.text(sheet.focus()), "7");
}

// The field that it converts for is read on while the number is written.
TEST_P(ConversionTest, theQuestionLeavesTheFieldOfTheSheetFree)
{
    host::Window& sheet = *on.engine.instance("Form2", 0);
    Bench::key(Qt::Key_Return);
    const QWidget& field = *on.widgetOf(sheet, sheet.named("Text3"));
    const QRect free(field.mapToGlobal(QPoint(0, 0)), field.size());
    host::Window& conversion = on.show("Form22");
    QRect question;
    on.duringBox = [&question] { question = QApplication::activeModalWidget()->geometry(); };
    on.answerByKey(Qt::Key_Escape);
    on.click(conversion, conversion.named("Command2"));
    ASSERT_FALSE(question.isEmpty());
    EXPECT_FALSE(question.intersects(free));
}

INSTANTIATE_TEST_SUITE_P(Windows, ConversionTest, ::testing::Values(Stands::beside, Stands::inside),
                         [](const auto& stands) { return stands.param == Stands::inside ? "Inside" : "Beside"; });

// The conversion has a button in hand itself; the page of the field goes out of its way, and not over the temperature.
TEST(PageTest, thatMakesRoomForTheConversionLeavesTheFieldOfTheSheetFree)
{
    Bench on(program::catalogue());
    program::start(on.engine);
    Bench::settle();
    host::Window& sheet = *on.engine.instance("Form2", 0);
    QWidget* child = &on.viewOf(sheet);
    while (dynamic_cast<QMdiSubWindow*>(child) == nullptr)
        child = child->parentWidget();
    child->setGeometry(100, 250, 1100, 480);
    Bench::key(Qt::Key_Return);
    const QWidget& field = *on.widgetOf(sheet, sheet.named("Text3"));
    const QRect free(field.mapToGlobal(QPoint(0, 0)), field.size());
    QWidget& page = on.screen.keeper().frameOf(on.show("Form21"))->widget();
    QWidget& conversion = on.screen.keeper().frameOf(on.show("Form22"))->widget();
    conversion.move(560, 400);
    page.move(340, 310);
    conversion.activateWindow();
    Bench::settle();
    Bench::key(Qt::Key_Tab);
    Bench::settle();
    EXPECT_FALSE(page.frameGeometry().intersects(free))
        << page.x() << ' ' << page.y() << " over " << free.x() << ' ' << free.y();
}

} // namespace velmor::test::reading_test
