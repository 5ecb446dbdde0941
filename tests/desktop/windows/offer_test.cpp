// SPDX-License-Identifier: MIT
// The quiet line of the main window: when it comes, what it says in both languages, and what its buttons do.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "desktop/desktop_fixture.h"
#include "desktop/drawing/texts.h"
#include "desktop/full_disk.h"
#include "desktop/windows/offer_line.h"
#include "desktop/work_keeping.h"
#include "program/catalogue.h"

namespace velmor::test::offer_test {

using desktop::OfferedWork;
using desktop::OfferLine;
using desktop::sentenceOf;

/// A program on real windows that keeps its work in a folder of the test.
struct Program {
    Program(const QTemporaryDir& folder, std::int64_t time)
        : on(program::catalogue()),
          keeping(
              on.engine, on.screen,
              {.folder = desktop::held(folder.filePath("velmor")), .now = [time] { return time; }, .inThread = false})
    {
        on.open();
    }
    host::Window& sheet()
    {
        program::newSheet(on.engine, *on.engine.specOf("Form2"));
        Bench::settle();
        return *on.engine.instance("Form2", 0);
    }
    void look()
    {
        keeping.look();
        Bench::settle();
    }
    OfferLine* line() { return dynamic_cast<OfferLine*>(on.main().findChild<QWidget*>("offer")); }
    bool shown() { return line() != nullptr && line()->isVisible(); }
    QString text() { return line()->findChild<QLabel*>()->text(); }
    void press(const QString& caption)
    {
        for (QPushButton* button : line()->findChildren<QPushButton*>())
            if (button->isVisible() && button->text().remove('&') == caption) {
                button->click();
                Bench::settle();
                return;
            }
        FAIL() << caption.toStdString();
    }

    Bench on;
    desktop::WorkKeeping keeping;
};

struct OfferTest : testing::Test {
    QTemporaryDir folder;
    const std::int64_t time = QDateTime(QDate(2026, 11, 21), QTime(10, 42)).toSecsSinceEpoch();

    /// A program that was worked in and went without a question.
    void worked()
    {
        Program program(folder, time);
        program.sheet();
        Bench::type("5");
        Bench::key(Qt::Key_Return);
        program.on.engine.userRun([&] { program.on.engine.host().endProgram(); });
    }
};

TEST_F(OfferTest, itSaysHowMuchFromWhenInBothLanguages)
{
    const QDateTime when(QDate(2026, 11, 21), QTime(10, 42));
    EXPECT_EQ(sentenceOf(OfferedWork{3, 0, when}, true), "3 designs from 21 November, 10:42 are still here");
    EXPECT_EQ(sentenceOf(OfferedWork{1, 0, when}, true), "1 design from 21 November, 10:42 is still here");
    EXPECT_EQ(sentenceOf(OfferedWork{2, 1, when}, true), "2 designs and 1 text from 21 November, 10:42 are still here");
    EXPECT_EQ(sentenceOf(OfferedWork{0, 1, when}, true), "1 text from 21 November, 10:42 is still here");
    EXPECT_EQ(sentenceOf(OfferedWork{3, 0, when}, false), "3 diseños del 21 de noviembre, 10:42 siguen aquí");
    EXPECT_EQ(sentenceOf(OfferedWork{1, 0, when}, false), "1 diseño del 21 de noviembre, 10:42 sigue aquí");
    EXPECT_EQ(sentenceOf(OfferedWork{1, 2, when}, false), "1 diseño y 2 textos del 21 de noviembre, 10:42 siguen aquí");
}

TEST_F(OfferTest, nothingIsSaidWhereNothingWasLeft)
{
    Program program(folder, time);
    program.look();
    EXPECT_EQ(program.line(), nullptr);
}

TEST_F(OfferTest, whatWasLeftIsOfferedAndOpenedAsItStood)
{
    worked();
    Program program(folder, time + 60);
    host::Window& first = program.sheet();
    program.look();
    ASSERT_TRUE(program.shown());
    EXPECT_EQ(program.text(), "1 diseño del 21 de noviembre, 10:42 sigue aquí");
    program.on.engine.values().LanguageIsEnglish = host::trueValue;
    program.on.engine.userRun([] {});
    EXPECT_EQ(program.text(), "1 design from 21 November, 10:42 is still here");
    EXPECT_EQ(program.on.engine.activeChild(), &first) << "it is no question";
    program.press("Open");
    EXPECT_FALSE(program.shown());
    host::Window& opened = *program.on.engine.activeChild();
    ASSERT_NE(&opened, &first);
    EXPECT_EQ(opened.text(opened.named("Text1")), "5");
    EXPECT_EQ(opened.focus(), opened.named("Text3"));
    EXPECT_TRUE(program.on.widgetOf(opened, opened.focus())->hasFocus());
}

// The line goes with what it offered, and gives its room back.
TEST_F(OfferTest, aSheetThatWasMovedStandsWhereItStoodWhenItIsOpened)
{
    const auto frameOf = [](Program& program, const host::Window& sheet) -> QWidget& {
        return program.on.screen.keeper().frameOf(sheet)->widget();
    };
    const auto placeOf = [&](Program& program, const host::Window& sheet) {
        const QWidget& frame = frameOf(program, sheet);
        return QRect(frame.mapTo(&program.on.main(), QPoint()), frame.size());
    };
    QRect stood;
    {
        Program program(folder, time);
        host::Window& sheet = program.sheet();
        frameOf(program, sheet).setGeometry(200, 150, 900, 480);
        Bench::type("5");
        Bench::key(Qt::Key_Return);
        stood = placeOf(program, sheet);
        program.on.engine.userRun([&] { program.on.engine.host().endProgram(); });
    }
    Program program(folder, time + 60);
    const host::Window& first = program.sheet();
    const QRect firstStood = placeOf(program, first);
    program.look();
    ASSERT_TRUE(program.shown());
    program.press("Recuperar");
    EXPECT_EQ(placeOf(program, *program.on.engine.activeChild()), stood);
    EXPECT_EQ(placeOf(program, first), firstStood);
}

TEST_F(OfferTest, laterLeavesItForTheNextStart)
{
    worked();
    {
        Program program(folder, time + 60);
        program.look();
        program.press(QStringLiteral("Más tarde"));
        EXPECT_FALSE(program.shown());
    }
    Program next(folder, time + 120);
    next.look();
    EXPECT_TRUE(next.shown());
}

TEST_F(OfferTest, droppedItSaysWhereItLiesAndUntilWhen)
{
    worked();
    {
        Program program(folder, time + 60);
        program.look();
        program.press("Descartar");
        ASSERT_TRUE(program.shown());
        EXPECT_EQ(program.text(), "Descartado. Hasta el 28 de noviembre queda en " + folder.filePath("velmor/dropped"));
        program.press("Muy bien");
        EXPECT_FALSE(program.shown());
    }
    Program next(folder, time + 120);
    next.look();
    EXPECT_EQ(next.line(), nullptr);
}

TEST_F(OfferTest, itStandsAboveTheSheetsAndTakesNoKeyboard)
{
    worked();
    Program program(folder, time + 60);
    host::Window& sheet = program.sheet();
    const int before = program.on.engine.clientArea().height;
    program.look();
    EXPECT_LT(program.on.engine.clientArea().height, before);
    EXPECT_TRUE(program.on.widgetOf(sheet, sheet.focus())->hasFocus());
    for (QPushButton* button : program.line()->findChildren<QPushButton*>()) {
        EXPECT_EQ(button->focusPolicy(), Qt::NoFocus);
        EXPECT_TRUE(button->text().contains('&'));
    }
    Bench::key(Qt::Key_M, Qt::AltModifier);
    // A button shows that it was pressed before it does its deed.
    EXPECT_TRUE(QTest::qWaitFor([&] { return !program.shown(); }));
    Bench::settle();
    EXPECT_EQ(program.on.engine.clientArea().height, before);
}

TEST_F(OfferTest, aSheetWhoseSaveFailedAtItsCloseIsOfferedAtOnce)
{
    Program program(folder, time);
    host::Window& sheet = program.sheet();
    Bench::type("5");
    Bench::key(Qt::Key_Return);
    program.on.answerByKey(Qt::Key_S); // Yes; this sheet saves under the name that it has, and has none
    program.on.engine.userClose(sheet);
    Bench::settle();
    ASSERT_TRUE(program.shown());
    program.press("Recuperar");
    EXPECT_EQ(program.on.engine.activeChild()->text(program.on.engine.activeChild()->named("Text1")), "5");
}

// Neither the design nor what keeps it can be written: it stands in the line all the same.
TEST_F(OfferTest, aSheetThatClosesOverAFullDiskIsOfferedAtOnce)
{
    Program program(folder, time);
    program::newSheet(program.on.engine, *program.on.engine.specOf("Form4"));
    Bench::settle();
    host::Window& sheet = *program.on.engine.instance("Form4", 0);
    Bench::type("5");
    Bench::key(Qt::Key_Return);
    program.on.answerByKey(Qt::Key_S); // Yes
    const QString file = program.on.folder.filePath("etapa.BCC");
    auto* watch = new QTimer(&program.on.main());
    QObject::connect(watch, &QTimer::timeout, watch, [watch, file] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible())
            return;
        watch->deleteLater();
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(file);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    watch->start(1);
    {
        const FullDisk full;
        program.on.engine.userClose(sheet);
        Bench::settle();
    }
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_EQ(program.on.engine.instance("Form4", 0), nullptr);
    ASSERT_TRUE(program.shown());
    program.press("Recuperar");
    host::Window* again = program.on.engine.instance("Form4", 0);
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(again->text(again->named("Text1")), "5");
}

TEST_F(OfferTest, theTimerKeepsWhatWasTyped)
{
    Program program(folder, time);
    program.sheet();
    Bench::type("5");
    Bench::key(Qt::Key_Return);
    EXPECT_FALSE(QDir(folder.filePath("velmor")).exists());
    auto* timer = program.keeping.findChild<QTimer*>();
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isActive());
    EXPECT_LE(timer->interval(), 1500);
    QMetaObject::invokeMethod(timer, "timeout");
    EXPECT_TRUE(QDir(folder.filePath("velmor")).exists());
}

} // namespace velmor::test::offer_test
