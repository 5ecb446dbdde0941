// SPDX-License-Identifier: MIT
// Files brought to the real program: named behind its name, dropped on its window, chosen among those opened last.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <QWindow>

#include "desktop/arriving_files.h"
#include "desktop/command_line.h"
#include "desktop/desktop_fixture.h"
#include "desktop/drawing/texts.h"
#include "desktop/windows/menus.h"
#include "desktop/windows/questions.h"
#include "desktop/windows/recent_menu.h"
#include "program/catalogue.h"
#include "program/files.h"

namespace velmor::test::arriving_files_test {

using desktop::CommandLine;
using desktop::held;
using desktop::readCommandLine;

using Words = std::vector<const char*>;

TEST(CommandLineTest, wordsAreFilesAndNothingBehindTwoDashesIsAnOption)
{
    const CommandLine line = readCommandLine(Words{"a.RPC", "-", "--", "--help", "-x"}, true);
    EXPECT_TRUE(line.starts());
    EXPECT_EQ(line.files, (std::vector<std::string>{"a.RPC", "-", "--help", "-x"}));
    EXPECT_TRUE(readCommandLine({}, true).starts());
}

TEST(CommandLineTest, helpAndVersionAreAnsweredInTheLanguageOfTheMachine)
{
    const CommandLine english = readCommandLine(Words{"--help"}, true);
    EXPECT_FALSE(english.starts());
    EXPECT_FALSE(english.refused);
    EXPECT_NE(english.answer.find("Usage: velmor [FILE...]"), std::string::npos);
    EXPECT_NE(readCommandLine(Words{"--help"}, false).answer.find("Uso: velmor [ARCHIVO...]"), std::string::npos);
    EXPECT_TRUE(QString::fromStdString(readCommandLine(Words{"a", "--version"}, true).answer)
                    .contains(QRegularExpression(QStringLiteral("^velmor \\d+\\.\\d+\\.\\d+\\n$"))));
}

TEST(CommandLineTest, anyOtherOptionIsRefused)
{
    for (const char* option : {"-h", "--Help", "--help=x", "-style"}) {
        const CommandLine line = readCommandLine(Words{option}, true);
        EXPECT_TRUE(line.refused) << option;
        EXPECT_EQ(line.answer, std::string("velmor: there is no option ") + option + "; see velmor --help\n");
    }
}

struct ArrivingFilesTest : ::testing::Test {
    void SetUp() override
    {
        on.open();
        arriving.watch();
    }

    std::string put(const QString& name, const QByteArray& bytes)
    {
        QFile file(on.folder.filePath(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
        return held(file.fileName());
    }
    std::string active()
    {
        const host::Window* child = on.engine.activeChild();
        return child == nullptr ? std::string() : std::string(child->name());
    }
    /// Sends what the platform sends when files are carried over the window and let go.
    bool drop(const std::vector<std::string>& files)
    {
        QMimeData data;
        QList<QUrl> addresses;
        for (const std::string& file : files)
            addresses.append(QUrl::fromLocalFile(desktop::shown(file)));
        data.setUrls(addresses);
        QWindow* window = on.main().windowHandle();
        const QPoint at(window->width() / 2, window->height() / 2);
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &enter);
        QDropEvent dropped(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &dropped);
        Bench::settle();
        return enter.isAccepted() && dropped.isAccepted();
    }
    QMenu& fileMenu() { return *on.main().menus().menuOf(on.main().model()->spec().mainParts.files); }
    QStringList listed()
    {
        QStringList texts;
        Q_EMIT fileMenu().aboutToShow();
        for (const QAction* action : fileMenu().actions())
            if (action->text().contains(QRegularExpression(QStringLiteral("^&\\d  "))))
                texts.append(action->text());
        return texts;
    }
    /// A circuit that its sheet has written.
    std::string saved(const QString& name)
    {
        const std::string path = put(name, QByteArray("1\r\n").repeated(60));
        arriving.open({path});
        Bench::settle();
        return path;
    }

    Bench on{program::catalogue()};
    desktop::ArrivingFiles arriving{on.engine, on.screen};
};

TEST_F(ArrivingFilesTest, filesNamedAtTheStartOpenInTheirOrderAndTheLastIsInFront)
{
    arriving.open({put("uno.BCC", "1\r\n"), put("nota.txt", "hola"), put("dos.CDS", "1\r\n")});
    Bench::settle();
    EXPECT_NE(on.engine.instance("Form4", 0), nullptr);
    EXPECT_NE(on.engine.instance("frmEdito1", 0), nullptr);
    EXPECT_EQ(active(), "Form3");
}

TEST_F(ArrivingFilesTest, aDropOnTheWindowOpensTheFilesAndIsTypedNowhere)
{
    arriving.open({put("uno.BCC", "1\r\n")});
    Bench::settle();
    EXPECT_TRUE(drop({put("dos.CDS", "1\r\n"), put("tres.LTC", "1\r\n")}));
    EXPECT_NE(on.engine.instance("Form3", 0), nullptr);
    EXPECT_EQ(active(), "Form13");
}

TEST_F(ArrivingFilesTest, whatIsNoFileOfThisMachineIsNotTaken)
{
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("https://velmor.invalid/x.BCC"))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(on.main().windowHandle(), &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(ArrivingFilesTest, aSharedEndingIsAskedAboutInADialogAndEscapeOpensNothing)
{
    const std::string path = put("uno.FVS", "1\r\n");
    QStringList buttons;
    const auto answer = [&](int key, int index) {
        QTimer::singleShot(0, &on.main(), [&, key, index] {
            auto* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->objectName(), "choiceBox");
            const auto found = dialog->findChildren<QPushButton*>();
            buttons.clear();
            for (const QPushButton* button : found)
                buttons.append(button->text());
            if (key != 0)
                QTest::keyClick(dialog, static_cast<Qt::Key>(key));
            else
                found.at(index)->click();
        });
    };
    answer(Qt::Key_Escape, 0);
    program::openFile(on.engine, path);
    EXPECT_EQ(buttons, (QStringList{"Circuito Realimentado por Tensión Simple",
                                    "Circuito Realimentado por Tensión Estable", "&Cancelar"}));
    EXPECT_EQ(active(), "");
    answer(0, 1);
    program::openFile(on.engine, path);
    EXPECT_EQ(active(), "Form18");
}

TEST_F(ArrivingFilesTest, theMenuOfFilesEndsWithTheCircuitsOpenedLastAndOpensThemAgain)
{
    EXPECT_EQ(listed(), QStringList());
    const std::string one = saved("uno & medio.BCC");
    const std::string two = saved("dos.CDS");
    QStringList menu = listed();
    ASSERT_EQ(menu.size(), 2);
    EXPECT_TRUE(menu[0].endsWith("dos.CDS")) << menu[0].toStdString();
    EXPECT_TRUE(menu[1].endsWith("uno && medio.BCC")) << menu[1].toStdString();
    ASSERT_EQ(active(), "Form3");
    fileMenu().actions().constLast()->trigger();
    Bench::settle();
    EXPECT_EQ(active(), "Form4");
    EXPECT_TRUE(listed().first().endsWith("uno && medio.BCC"));
}

TEST_F(ArrivingFilesTest, aGoneFileLeavesTheMenuQuietly)
{
    const std::string one = saved("uno.BCC");
    saved("dos.CDS");
    QFile::remove(desktop::shown(one));
    const QStringList menu = listed();
    ASSERT_EQ(menu.size(), 1);
    EXPECT_TRUE(menu[0].endsWith("dos.CDS"));
}

TEST(RecentMenuTest, aPathIsShownFromTheHomeFolderShortenedInItsMiddle)
{
    EXPECT_EQ(desktop::shownPath("/home/ana/Velmor/a&b.RPC", "/home/ana"), "~/Velmor/a&&b.RPC");
    EXPECT_EQ(desktop::shownPath("/home/anabel/a.RPC", "/home/ana"), "/home/anabel/a.RPC");
    const QString deep = desktop::shownPath("/home/ana/" + QString(200, 'x') + "/a.RPC", "/home/ana");
    EXPECT_EQ(deep.size(), 60);
    EXPECT_TRUE(deep.startsWith("~/xxx") && deep.endsWith("x/a.RPC"));
}

} // namespace velmor::test::arriving_files_test
