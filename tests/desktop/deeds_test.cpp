// SPDX-License-Identifier: MIT
// What the screen does on this machine: settings, the program's folder, texts of editors, printing, a second program.
#include <clocale>
#include <cmath>
#include <ctime>
#include <functional>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFontMetricsF>
#include <QLocale>
#include <QPdfWriter>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>

#include "desktop/canvas/document_store.h"
#include "desktop/canvas/editor_edit.h"
#include "desktop/full_disk.h"
#include "desktop/other_instance.h"
#include "desktop/printing.h"
#include "desktop/program_folder.h"
#include "desktop/settings_file.h"

namespace velmor::test::deeds_test {

using desktop::DocumentStore;

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(LocaleTest, theMachineWritesACommaAndNumbersStillHaveAPoint)
{
    ASSERT_EQ(QLocale::system().decimalPoint(), ",") << "the es_AR locale is missing";
    EXPECT_STREQ(std::localeconv()->decimal_point, ".");
    EXPECT_EQ(std::stod("1.5"), 1.5);
}

TEST(SettingsFileTest, valuesOutliveTheProgram)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("a/Velmor.ini");
    desktop::SettingsFile(path).setValue("Predeterminados", "fCastIng", "1");
    desktop::SettingsFile(path).setValue("international", "sDecimal", ".");
    desktop::SettingsFile again(path);
    EXPECT_EQ(again.value("Predeterminados", "fCastIng"), "1");
    EXPECT_EQ(again.value("international", "sDecimal"), ".");
    EXPECT_EQ(again.value("Predeterminados", "Pantalla"), std::nullopt);
}

TEST(SettingsFileTest, anyTextComesBackToTheLetter)
{
    const QTemporaryDir folder;
    for (const std::string text : {"a, b;c", "@Invalid()", " ñ\"%1\n", "0", ""}) {
        desktop::SettingsFile(folder.filePath("x.ini")).setValue("s", "k", text);
        EXPECT_EQ(desktop::SettingsFile(folder.filePath("x.ini")).value("s", "k"), text);
    }
}

TEST(SettingsFileTest, aDamagedFileGivesDefaultsAndIsReplacedAtTheNextWriting)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("Velmor.ini");
    constexpr char bytes[] = "[Predeter\0minados\nfCast\xff\xfe=Ing,,,=\n]]]]\nPantalla";
    write(path, QByteArray(bytes, sizeof bytes - 1));
    desktop::SettingsFile damaged(path);
    EXPECT_EQ(damaged.value("Predeterminados", "fCastIng"), std::nullopt);
    damaged.setValue("Predeterminados", "fCastIng", "1");
    EXPECT_EQ(desktop::SettingsFile(path).value("Predeterminados", "fCastIng"), "1");
}

TEST(SettingsFileTest, aFileThatIsAListOrAFolderOrHugeGivesDefaults)
{
    const QTemporaryDir folder;
    write(folder.filePath("list.ini"), "[Predeterminados]\nfCastIng=1, 2\n");
    EXPECT_EQ(desktop::SettingsFile(folder.filePath("list.ini")).value("Predeterminados", "fCastIng"), std::nullopt);
    QDir().mkpath(folder.filePath("folder.ini"));
    EXPECT_EQ(desktop::SettingsFile(folder.filePath("folder.ini")).value("Predeterminados", "fCastIng"), std::nullopt);
    write(folder.filePath("huge.ini"), QByteArray("[Predeterminados]\nfCastIng=1\n") + QByteArray(3 << 20, ';'));
    EXPECT_EQ(desktop::SettingsFile(folder.filePath("huge.ini")).value("Predeterminados", "fCastIng"), std::nullopt);
}

TEST(SettingsFileTest, whatAPersonHasNotChosenIsAsTheMachineHasItForAll)
{
    const QTemporaryDir folder;
    const QString forAll = folder.filePath("all.ini");
    write(forAll, "[Predeterminados]\nfCastIng=1\nPantalla=1\n");
    desktop::SettingsFile own(folder.filePath("own.ini"), forAll);
    EXPECT_EQ(own.value("Predeterminados", "fCastIng"), "1");
    own.setValue("Predeterminados", "fCastIng", "0");
    EXPECT_EQ(own.value("Predeterminados", "fCastIng"), "0");
    EXPECT_EQ(own.value("Predeterminados", "Pantalla"), "1");
    EXPECT_EQ(own.value("Predeterminados", "other"), std::nullopt);
    EXPECT_EQ(bytesOf(forAll), "[Predeterminados]\nfCastIng=1\nPantalla=1\n") << "nobody but its owner writes there";
}

TEST(SettingsFileTest, theFileForAllIsLookedForWhereThePlatformKeepsSuchFiles)
{
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_DIRS", folder.path().toUtf8());
    EXPECT_EQ(desktop::SettingsFile::pathForAll(), QString());
    QDir(folder.path()).mkpath("Velmor");
    write(folder.filePath("Velmor/Velmor.ini"), "[Predeterminados]\nfCastIng=1\n");
    EXPECT_EQ(desktop::SettingsFile::pathForAll(), folder.filePath("Velmor/Velmor.ini"));
    qunsetenv("XDG_CONFIG_DIRS");
}

TEST(SettingsFileTest, aPlaceThatCannotBeWrittenIsIgnored)
{
    desktop::SettingsFile nowhere("/proc/velmor/Velmor.ini");
    nowhere.setValue("Predeterminados", "fCastIng", "1");
    EXPECT_EQ(nowhere.value("Predeterminados", "fCastIng"), "1") << "for this run it counts all the same";
    EXPECT_FALSE(QFile::exists("/proc/velmor"));
}

struct ProgramFolderTest : ::testing::Test {
    void SetUp() override
    {
        for (const char* made : {"bin", "docs", "guides"})
            QDir().mkpath(root.filePath(made));
        write(root.filePath("guides/guia1.Lab"), "uno");
        write(root.filePath("guides/Proy.LAB"), "dos");
        write(root.filePath("guides/notes.txt"), "no");
        places = {root.filePath("bin"), root.filePath("docs"), root.filePath("guides")};
    }
    void fill() { desktop::fillProgramFolder(desktop::programFolderOf(places), places.guides); }
    QTemporaryDir root;
    desktop::FolderPlaces places;
};

TEST_F(ProgramFolderTest, aPortableCopySaysWhereItLies)
{
    write(root.filePath("bin/guia1.Lab"), "uno");
    qputenv("VELMOR_PORTABLE", root.filePath("bin").toUtf8());
    EXPECT_EQ(desktop::programFolderOf(desktop::FolderPlaces::usual()), root.filePath("bin"));
    qunsetenv("VELMOR_PORTABLE");
    EXPECT_EQ(desktop::FolderPlaces::usual().executableFolder, QCoreApplication::applicationDirPath());
}

TEST_F(ProgramFolderTest, itIsMadeInTheDocumentsAndFilledTwice)
{
    EXPECT_EQ(desktop::programFolderOf(places), root.filePath("docs/Velmor"));
    fill();
    EXPECT_EQ(bytesOf(root.filePath("docs/Velmor/guia1.Lab")), "uno");
    EXPECT_EQ(bytesOf(root.filePath("docs/Velmor/Archivos/Proy.LAB")), "dos");
    EXPECT_FALSE(QFile::exists(root.filePath("docs/Velmor/notes.txt")));
}

TEST_F(ProgramFolderTest, nothingIsEverOverwrittenNorBroughtBack)
{
    fill();
    write(root.filePath("docs/Velmor/guia1.Lab"), "mine");
    QFile::remove(root.filePath("docs/Velmor/Proy.LAB"));
    fill();
    EXPECT_EQ(bytesOf(root.filePath("docs/Velmor/guia1.Lab")), "mine");
    EXPECT_FALSE(QFile::exists(root.filePath("docs/Velmor/Proy.LAB")));
}

TEST_F(ProgramFolderTest, aPortableCopyKeepsItsFilesBesideTheExecutable)
{
    write(root.filePath("bin/GUIA1.lab"), "x");
    EXPECT_EQ(desktop::programFolderOf(places), root.filePath("bin"));
}

TEST_F(ProgramFolderTest, aFolderThatCannotBeMadeDoesNoHarm)
{
    places.documents = "/proc";
    fill();
    EXPECT_EQ(desktop::programFolderOf(places), "/proc/Velmor");
}

TEST(OtherInstanceTest, theSecondSeesTheFirstAndNotAfterItsEnd)
{
    const QTemporaryDir folder;
    {
        const desktop::OtherInstance first(folder.filePath("mark"));
        EXPECT_FALSE(first.running());
        const desktop::OtherInstance second(folder.filePath("mark"));
        EXPECT_TRUE(second.running());
    }
    EXPECT_FALSE(QFileInfo::exists(folder.filePath("mark"))) << "nothing is left behind";
    EXPECT_FALSE(desktop::OtherInstance(folder.filePath("mark")).running());
}

TEST(OtherInstanceTest, theSecondLeavesTheMarkOfTheFirst)
{
    const QTemporaryDir folder;
    const desktop::OtherInstance first(folder.filePath("mark"));
    EXPECT_TRUE(desktop::OtherInstance(folder.filePath("mark")).running());
    EXPECT_TRUE(desktop::OtherInstance(folder.filePath("mark")).running())
        << "the one that has ended was not the holder";
}

TEST(OtherInstanceTest, whatACrashLeavesDoesNotCountAndWhatCannotBeMadeDoesNoHarm)
{
    const QTemporaryDir folder;
    write(folder.filePath("mark"), "4711\nvelmor\n");
    EXPECT_FALSE(desktop::OtherInstance(folder.filePath("mark")).running());
    EXPECT_FALSE(desktop::OtherInstance("/proc/mark").running());
}

TEST(DocumentStoreTest, positionsCountCharacters)
{
    DocumentStore store;
    store.setAll("añ\U0001F600b\nc");
    EXPECT_EQ(store.length(), 6U);
    EXPECT_EQ(store.slice(2, 2), "\U0001F600b");
    EXPECT_EQ(store.slice(4, 99), "\nc");
    EXPECT_EQ(store.slice(99, 1), "");
    store.select(3, 1);
    EXPECT_EQ(store.selectionStart(), 3U);
    EXPECT_EQ(store.selectionLength(), 1U);
    store.replaceSelection("XY");
    EXPECT_EQ(store.all(), "añ\U0001F600XY\nc");
    EXPECT_EQ(store.selectionStart(), 5U);
    EXPECT_EQ(store.selectionLength(), 0U);
}

TEST(DocumentStoreTest, lineBreaksGoInAndOutAsLineFeeds)
{
    DocumentStore store;
    store.setAll("a\r\nb\rc\nd");
    EXPECT_EQ(store.all(), "a\nb\nc\nd");
    EXPECT_EQ(store.length(), 7U);
    EXPECT_EQ(store.slice(1, 3), "\nb\n");
}

TEST(DocumentStoreTest, theWidgetThatShowsItKeepsTheSelectionAndMayGoFirst)
{
    DocumentStore store;
    store.setAll("abcdef");
    store.select(1, 2);
    {
        QPlainTextEdit edit;
        store.shownBy(&edit);
        EXPECT_EQ(edit.textCursor().selectedText(), "bc");
        store.select(3, 3);
        EXPECT_EQ(edit.textCursor().selectedText(), "def");
        edit.textCursor().insertText("X");
        EXPECT_EQ(store.all(), "abcX");
    }
    EXPECT_EQ(store.all(), "abcX");
    store.select(0, 1);
    EXPECT_EQ(store.selectionLength(), 1U);
}

TEST(DocumentStoreTest, theProgramsOwnChangesAreTold)
{
    DocumentStore store;
    int own = 0;
    QObject::connect(store.document(), &QTextDocument::contentsChanged, [&] { own += store.programChanges() ? 1 : 0; });
    store.setAll("a");
    store.replaceSelection("b");
    EXPECT_EQ(own, 2);
    EXPECT_FALSE(store.programChanges());
}

/// Milliseconds that this process computed meanwhile.
double computed(const std::function<void()>& deed)
{
    const std::clock_t before = std::clock();
    deed();
    return 1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
}

// A line in one block takes minutes to open and seconds a letter.
TEST(DocumentStoreTest, aLongLineIsShownAndWrittenInWithoutAPause)
{
    constexpr std::size_t length = 10'000'000;
    constexpr double openingBar = 2500.0; // several times what it takes where nothing is optimised
    constexpr double keyBar = 100.0;      // milliseconds a key, several times what it takes
    DocumentStore store;
    desktop::EditorEdit edit;
    edit.resize(800, 500);
    store.shownBy(&edit);
    const auto press = [&](Qt::Key key) {
        return computed([&] {
            QTest::keyClick(&edit, key);
            QCoreApplication::processEvents();
        });
    };
    EXPECT_LT(computed([&] {
                  store.setAll(std::string(length, 'x') + "\nfin");
                  edit.show();
                  QCoreApplication::processEvents();
              }),
              openingBar);
    std::string text = std::string(length, 'x') + "\nfin";
    for (const std::size_t at : {std::size_t{0}, length / 2, length}) {
        store.select(at, 0);
        QCoreApplication::processEvents();
        EXPECT_LT(press(Qt::Key_A), keyBar) << at;
        EXPECT_LT(press(Qt::Key_PageDown), keyBar) << at;
        EXPECT_LT(press(Qt::Key_PageUp), keyBar) << at;
        text.insert(at, 1, 'a');
    }
    EXPECT_EQ(store.all() == text, true) << "ten megabytes would be printed";
    EXPECT_LT(computed([&] { edit.undo(); }), keyBar);
    EXPECT_LT(computed([&] {
                  edit.selectAll();
                  edit.copy();
                  edit.paste();
                  QCoreApplication::processEvents();
              }),
              openingBar);
    EXPECT_EQ(store.length(), text.size() - 1);
}

TEST(PrintingTest, widthsAreInTwipsAndLineFeedsHaveNone)
{
    const host::Font font{.name = "DejaVu Sans Mono", .size = 10.0};
    const int one = desktop::printedTwips(font, "M");
    EXPECT_NEAR(one, 120, 8) << "a letter of this face is 0.602 of its size, 10 points are 200 twips";
    EXPECT_NEAR(desktop::printedTwips(font, "MMMM\n"), 4 * one, 3);
    EXPECT_NEAR(desktop::printedTwips({.name = "DejaVu Sans Mono", .size = 20.0}, "M"), 2 * one, 4);
}

TEST(PrintingTest, theWholeTextIsPrintedAndLongLinesAreBrokenAtBlanks)
{
    host::PrintJob job{.text = "uno\rdos tres cuatro\r\rcinco", .font = {.name = "DejaVu Sans Mono", .size = 10.0}};
    EXPECT_EQ(desktop::printedLines(job, 100000.0), (QStringList{"uno", "dos tres cuatro", "", "cinco"}));
    const double width = desktop::printedTwips(job.font, "dos tres ") + 10.0;
    EXPECT_EQ(desktop::printedLines(job, width), (QStringList{"uno", "dos tres ", "cuatro", "", "cinco"}));
    const host::PrintJob indented{.text = "  dos tres cuatro", .font = job.font};
    EXPECT_EQ(desktop::printedLines(indented, desktop::printedTwips(job.font, "  dos tres ") + 10.0),
              (QStringList{"  dos tres ", "  cuatro"}));
    job.text = "xxxxxxxxxx";
    EXPECT_EQ(desktop::printedLines(job, desktop::printedTwips(job.font, "xxxx") + 10.0).join(""), "xxxxxxxxxx");
}

TEST(PrintingTest, theColumnsOfATableStayColumnsOnPaper)
{
    const host::PrintJob job{.text = "Magnitud\tPedido\tCurso\r\nQIc\t2 mA\t2.02 mA\r\n\tRes = 620\r\n",
                             .font = {.name = "DejaVu Sans Mono", .size = 10.0}};
    EXPECT_EQ(desktop::printedLines(job, 100000.0),
              (QStringList{"Magnitud Pedido   Curso", "QIc      2 mA     2.02 mA", "        Res = 620"}));
}

// An editor breaks its text for eight inches, at a carriage return alone; the page here is narrower.
TEST(PrintingTest, aLineThatWasBrokenForAWiderPaperIsBrokenOnceForThisOne)
{
    const host::PrintJob job{.text = "  uno dos tres \rcuatro\r\nfin\r\n",
                             .font = {.name = "DejaVu Sans Mono", .size = 10.0}};
    EXPECT_EQ(desktop::printedLines(job, desktop::printedTwips(job.font, "  uno dos ") + 10.0),
              (QStringList{"  uno dos ", "  tres ", "  cuatro", "fin"}));
    EXPECT_EQ(desktop::printedLines(job, desktop::printedTwips(job.font, "  uno dos tres cuatro") + 10.0),
              (QStringList{"  uno dos tres cuatro", "fin"}));
}

// The page is 200 mm high without margins; so many lines stand on it, the last with its own height alone.
TEST(PrintingTest, aPageHoldsEveryLineThatFitsAndNotOneMore)
{
    const QTemporaryDir folder;
    const host::Font font{.name = "DejaVu Sans Mono", .size = 10.0};
    const QFontMetricsF metrics(desktop::twipFont(font));
    const double pageTwips = 200.0 / 25.4 * 1440.0;
    const int lines = 1 + static_cast<int>((pageTwips - metrics.height()) / metrics.lineSpacing());
    const auto pagesOf = [&](int count) {
        host::PrintJob job{.text = {}, .font = font};
        for (int i = 0; i < count; ++i)
            job.text += "Renglón\r";
        {
            QPdfWriter writer(folder.filePath("x.pdf"));
            writer.setPageLayout(QPageLayout(QPageSize(QSizeF(150, 200), QPageSize::Millimeter), QPageLayout::Portrait,
                                             QMarginsF(), QPageLayout::Millimeter));
            EXPECT_TRUE(desktop::printOn(writer, job));
        }
        const QByteArray pdf = bytesOf(folder.filePath("x.pdf"));
        return pdf.count("/Type /Page\n") + pdf.count("/Type /Page/");
    };
    EXPECT_EQ(pagesOf(lines), 1) << lines;
    EXPECT_EQ(pagesOf(lines + 1), 2) << lines;
    EXPECT_EQ(pagesOf(2 * lines), 2) << lines;
    EXPECT_EQ(pagesOf(2 * lines + 1), 3) << lines;
}

TEST(PrintingTest, aFileThatCannotBeWrittenIsAFailure)
{
    const QTemporaryDir folder;
    const auto prints = [](const QString& name) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(name);
        return desktop::printTo(printer, {.text = "Renglón", .font = {.name = "DejaVu Sans Mono", .size = 10.0}});
    };
    EXPECT_TRUE(prints(folder.filePath("x.pdf")));
    EXPECT_FALSE(prints(folder.filePath("nowhere/x.pdf")));
    EXPECT_FALSE(prints("/dev/full"));
    const FullDisk full;
    EXPECT_FALSE(prints(folder.filePath("y.pdf")));
}

TEST(PrintingTest, aLongTextFallsIntoPages)
{
    const QTemporaryDir folder;
    host::PrintJob job;
    for (int i = 0; i < 500; ++i)
        job.text += "Renglón " + std::to_string(i) + "\r";
    {
        QPdfWriter writer(folder.filePath("x.pdf"));
        EXPECT_TRUE(desktop::printOn(writer, job));
    }
    const QByteArray pdf = bytesOf(folder.filePath("x.pdf"));
    EXPECT_GT(pdf.count("/Type /Page\n") + pdf.count("/Type /Page/"), 5);
}

} // namespace velmor::test::deeds_test
