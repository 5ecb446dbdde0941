// SPDX-License-Identifier: MIT
// A long print-out: its pages are counted for the one who waits, and it can be cancelled.
#include <algorithm>
#include <vector>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPdfWriter>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "desktop/desktop_fixture.h"
#include "desktop/full_disk.h"
#include "desktop/print_course.h"
#include "desktop/printing.h"

namespace velmor::test::print_course_test {

using std::chrono::milliseconds;

host::PrintJob jobOf(int lines)
{
    host::PrintJob job{.text = {}, .font = {.name = "DejaVu Sans Mono", .size = 10.0}};
    for (int i = 0; i < lines; ++i)
        job.text += "Renglón " + std::to_string(i) + "\r";
    return job;
}

int pagesIn(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray pdf = file.readAll();
    return static_cast<int>(pdf.count("/Type /Page\n") + pdf.count("/Type /Page/"));
}

TEST(PrintProgressTest, everyPageIsToldOnceInItsOrder)
{
    const QTemporaryDir folder;
    std::vector<int> told;
    int pages = 0;
    {
        QPdfWriter writer(folder.filePath("x.pdf"));
        EXPECT_TRUE(desktop::printOn(writer, jobOf(500), [&](int page, int of) {
            if (page > 0)
                told.push_back(page);
            pages = of;
            return true;
        }));
    }
    ASSERT_GT(pages, 5);
    EXPECT_EQ(pages, pagesIn(folder.filePath("x.pdf")));
    ASSERT_EQ(static_cast<int>(told.size()), pages);
    for (int page = 1; page <= pages; ++page)
        EXPECT_EQ(told[static_cast<std::size_t>(page - 1)], page);
}

TEST(PrintProgressTest, whatIsNotToGoOnEndsAtOnce)
{
    const QTemporaryDir folder;
    for (const int last : {0, 3}) { // among the lines, among the pages
        int calls = 0;
        QPdfWriter writer(folder.filePath("x.pdf"));
        EXPECT_FALSE(desktop::printOn(writer, jobOf(500), [&](int page, int) {
            calls += page >= last ? 1 : 0;
            return page < last;
        }));
        EXPECT_EQ(calls, 1);
    }
}

// One line of ten megabytes is broken in many steps, between which the screen has its turn.
TEST(PrintProgressTest, oneEndlessLineIsBrokenStepByStepAndCanBeCancelledAmongThem)
{
    const host::PrintJob job{.text = std::string(1'000'000, 'x'), .font = {.name = "DejaVu Sans Mono", .size = 10.0}};
    int calls = 0;
    EXPECT_FALSE(desktop::printedLines(job, 10'000.0, [&](int, int) { return ++calls > 0; }).isEmpty());
    EXPECT_GT(calls, 1'000);
    calls = 0;
    EXPECT_TRUE(desktop::printedLines(job, 10'000.0, [&](int, int) { return ++calls < 50; }).isEmpty());
    EXPECT_EQ(calls, 50);
}

struct PrintCourseTest : ::testing::Test {
    void SetUp() override { on.open(); }
    static QDialog* box() { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); }
    /// Does something to the next dialog of that name.
    void whenShown(const char* name, const std::function<void(QDialog&)>& deed)
    {
        auto* watch = new QTimer(&on.main());
        QObject::connect(watch, &QTimer::timeout, watch, [watch, name, deed] {
            QDialog* dialog = box();
            if (dialog == nullptr || dialog->objectName() != QLatin1String(name) || !dialog->isVisible())
                return;
            watch->deleteLater();
            deed(*dialog);
        });
        watch->start(1);
    }
    void nameFile(const QString& path)
    {
        whenShown("printDialog", [path](QDialog& dialog) {
            dialog.findChild<QLineEdit*>("filename")->setText(path);
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
    }
    Bench on;
};

TEST_F(PrintCourseTest, itsBoxCountsThePagesInTheLanguageOfTheMoment)
{
    for (const bool english : {false, true}) {
        desktop::Stage stage = on.screen.keeper().stage();
        stage.english = english;
        desktop::PrintCourse course(&on.main(), stage, milliseconds(0));
        EXPECT_TRUE(course.goesOn(12, 345));
        ASSERT_NE(box(), nullptr);
        const auto labels = box()->findChildren<QLabel*>();
        const QString wanted = english ? QStringLiteral("Page 12 of 345") : QStringLiteral("Página 12 de 345");
        EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&](QLabel* label) { return label->text() == wanted; }));
        EXPECT_EQ(box()->findChild<QProgressBar*>()->value(), 12);
        EXPECT_EQ(box()->findChild<QProgressBar*>()->maximum(), 345);
    }
    EXPECT_EQ(box(), nullptr);
}

TEST_F(PrintCourseTest, itSaysNothingOfAWaitThatNobodyFeels)
{
    desktop::PrintCourse course(&on.main(), on.screen.keeper().stage(), milliseconds(60'000));
    EXPECT_TRUE(course.goesOn(1, 2));
    EXPECT_EQ(box(), nullptr);
}

TEST_F(PrintCourseTest, cancelledItLeavesNoFileAndGivesTheKeyboardBack)
{
    const QString path = on.folder.filePath("largo.pdf");
    nameFile(path);
    bool seen = false;
    whenShown("printCourse", [&](QDialog& dialog) {
        seen = true;
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    on.screen.print(jobOf(200'000));
    on.settle();
    EXPECT_TRUE(seen);
    EXPECT_EQ(box(), nullptr) << "nothing failed, nothing is said";
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(on.field(bench::Text1).hasFocus());
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

struct PrintOverTest : PrintCourseTest {
    void SetUp() override
    {
        PrintCourseTest::SetUp();
        ASSERT_TRUE(QDir(on.folder.path()).mkdir("impresos"));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(old);
    }
    /// Everything in the folder, hidden or not.
    QStringList files() const
    {
        return QDir(on.folder.filePath("impresos")).entryList(QDir::Files | QDir::Hidden | QDir::System);
    }
    /// Says that the old file may be replaced.
    void answerOverwriting()
    {
        auto* watch = new QTimer(&on.main());
        QObject::connect(watch, &QTimer::timeout, watch, [watch] {
            auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (question == nullptr || !question->isVisible())
                return;
            watch->deleteLater();
            question->button(QMessageBox::Yes)->click();
        });
        watch->start(1);
    }

    const QByteArray old = "the report of yesterday";
    const QString path = on.folder.filePath("impresos/informe.pdf");
};

TEST_F(PrintOverTest, aPrintOutTakesThePlaceOfTheOldFile)
{
    nameFile(path);
    answerOverwriting();
    on.screen.print(jobOf(100));
    EXPECT_GT(pagesIn(path), 1);
    EXPECT_EQ(files(), QStringList{"informe.pdf"});
}

TEST_F(PrintOverTest, oneThatIsCancelledLeavesTheOldFileAsItWas)
{
    nameFile(path);
    answerOverwriting();
    bool seen = false;
    QStringList meanwhile;
    whenShown("printCourse", [&](QDialog& dialog) {
        seen = true;
        meanwhile = files();
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    on.screen.print(jobOf(200'000));
    on.settle();
    EXPECT_TRUE(seen);
    EXPECT_EQ(meanwhile, QStringList{"informe.pdf"}) << "a program that is killed would leave the other behind";
    EXPECT_EQ(bytesOf(path), old);
    EXPECT_EQ(files(), QStringList{"informe.pdf"});
}

TEST_F(PrintOverTest, oneThatFailsLeavesTheOldFileAsItWas)
{
    nameFile(path);
    answerOverwriting();
    on.answerByKey(Qt::Key_Return);
    {
        const FullDisk full;
        on.screen.print(jobOf(100));
    }
    ASSERT_EQ(on.boxes.size(), 1U);
    EXPECT_TRUE(on.boxes.front().text.startsWith("No se ha podido imprimir"));
    EXPECT_EQ(bytesOf(path), old);
    EXPECT_EQ(files(), QStringList{"informe.pdf"});
}

} // namespace velmor::test::print_course_test
