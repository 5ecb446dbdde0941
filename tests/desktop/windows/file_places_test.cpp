// SPDX-License-Identifier: MIT
// Where dialogs about files begin, what they propose, and the language that they speak.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "desktop/desktop_fixture.h"
#include "desktop/file_places.h"
#include "editors/editor.h"
#include "program/catalogue.h"
#include "sheets/design_sheet.h"

namespace velmor::test::file_places_test {

constexpr const char* report = "                Elaboración de Informe\n"
                               "        Alumno: \n"
                               "                Emisor Común p/ corriente\n"
                               "\n"
                               "        Ejercicio N° 1 \n";

struct FilePlacesTest : ::testing::Test {
    FilePlacesTest() : on(program::catalogue()) {}
    void SetUp() override
    {
        on.open();
        sheet = dynamic_cast<sheets::DesignSheet*>(&on.show("Form8"));
    }
    /// What the next dialog shows; it is given up, or accepted with the file.
    void seeDialog(const QString& accepted = {})
    {
        auto* watch = new QTimer(&on.main());
        QObject::connect(watch, &QTimer::timeout, watch, [this, watch, accepted] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || !dialog->isVisible())
                return;
            watch->deleteLater();
            if (auto* files = qobject_cast<QFileDialog*>(dialog)) {
                folder = QDir(files->directory()).canonicalPath();
                name = files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
            } else if (auto* file = dialog->findChild<QLineEdit*>(QStringLiteral("filename"))) {
                name = file->text();
            }
            for (const QLabel* label : dialog->findChildren<QLabel*>())
                words.append(label->text());
            for (const QAbstractButton* button : dialog->findChildren<QAbstractButton*>())
                words.append(button->text());
            if (accepted.isEmpty())
                return dialog->reject();
            auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            edit->setText(accepted);
            QTest::keyClick(edit, Qt::Key_Return);
        });
        watch->start(1);
    }
    void save(const QString& accepted = {})
    {
        seeDialog(accepted);
        on.engine.userRun([this] { sheet->CDL_GuardarDatos(); });
    }
    host::Window& showReport()
    {
        host::Window& editor = on.show("frmEdito2");
        on.engine.userRun([&] { editor.setText(editors::txtEdit, report); });
        return editor;
    }
    QString programFolder() { return QDir(QString::fromStdString(on.screen.programFolder())).canonicalPath(); }
    QString documents() { return QDir(on.folder.path()).canonicalPath(); }

    Bench on;
    sheets::DesignSheet* sheet = nullptr;
    QString folder;
    QString name;
    QStringList words;
};

TEST_F(FilePlacesTest, aCircuitIsProposedUnderTheNameOfItsSheetInTheProgramsFolder)
{
    on.engine.userRun([this] { sheet->setCaption("  Realimentado por Tensión: simple "); });
    save();
    EXPECT_EQ(folder, programFolder());
    EXPECT_EQ(name, QString::fromUtf8("Realimentado por Tensión- simple"));
}

TEST_F(FilePlacesTest, aCircuitThatHasAFileKeepsItsName)
{
    on.engine.userRun([this] { sheet->setNombreArchivo("/tmp/x/Mi etapa.RPT"); });
    save();
    EXPECT_EQ(name, "Mi etapa");
}

TEST_F(FilePlacesTest, theNextDialogBeginsWhereTheLastFileOfItsSortWas)
{
    ASSERT_TRUE(QDir(on.folder.path()).mkpath("mis circuitos"));
    save(on.folder.filePath("mis circuitos/uno"));
    EXPECT_TRUE(QString::fromStdString(sheet->NombreArchivo()).startsWith(on.folder.filePath("mis circuitos/uno")));
    save();
    EXPECT_EQ(folder, QDir(on.folder.filePath("mis circuitos")).canonicalPath());
    // Another sort of file is not moved by it, and a folder that has gone is forgotten.
    showReport();
    seeDialog();
    on.engine.userMenu(*on.engine.activeChild(), editors::mnuFileSaveAs);
    EXPECT_EQ(folder, documents());
    QDir(on.folder.filePath("mis circuitos")).removeRecursively();
    on.engine.userActivate(*sheet);
    save();
    EXPECT_EQ(folder, programFolder());
}

TEST_F(FilePlacesTest, aReportIsProposedAmongTheDocumentsUnderTheNameOfItsDesign)
{
    host::Window& editor = showReport();
    seeDialog();
    on.engine.userMenu(editor, editors::mnuFileSaveAs);
    EXPECT_EQ(folder, documents());
    EXPECT_EQ(name, QString::fromUtf8("Emisor Común p corriente"));
}

TEST_F(FilePlacesTest, whatIsPrintedIsProposedUnderTheNameOfItsDesign)
{
    host::Window& editor = showReport();
    seeDialog();
    on.engine.userMenu(editor, editors::mnuImprimir);
    EXPECT_EQ(QFileInfo(name).fileName(), QString::fromUtf8("Emisor Común p corriente.pdf"));
    EXPECT_EQ(QDir(QFileInfo(name).path()).canonicalPath(), documents());
}

// The guide with which an editor opened gives a report no name; the file that it was saved in does.
TEST_F(FilePlacesTest, aReportThatWasSavedKeepsItsName)
{
    host::Window& editor = showReport();
    seeDialog(on.folder.filePath("Entrega de Juan.Lab"));
    on.engine.userMenu(editor, editors::mnuFileSaveAs);
    ASSERT_TRUE(QFile::exists(on.folder.filePath("Entrega de Juan.Lab")));
    seeDialog();
    on.engine.userMenu(editor, editors::mnuImprimir);
    EXPECT_EQ(QFileInfo(name).fileName(), "Entrega de Juan.pdf");
    seeDialog();
    on.engine.userMenu(editor, editors::mnuFileSaveAs);
    EXPECT_EQ(name, "Entrega de Juan");
}

TEST_F(FilePlacesTest, whatIsPrintedGoesHomeWhereNeitherDocumentsNorProgramsFolderCanBeWritten)
{
    host::Window& editor = showReport();
    ASSERT_TRUE(QDir(on.folder.path()).removeRecursively());
    seeDialog();
    on.engine.userMenu(editor, editors::mnuImprimir);
    EXPECT_EQ(QFileInfo(name).path(), QDir::homePath());
}

TEST_F(FilePlacesTest, dialogsSpeakTheLanguageOfTheMomentAlsoAfterASwitch)
{
    save();
    EXPECT_TRUE(words.contains("Guardar")) << words.join('|').toStdString();
    EXPECT_FALSE(words.filter("Nombre").empty()) << words.join('|').toStdString();
    words.clear();
    on.engine.userRun([this] { on.engine.values().LanguageIsEnglish = host::trueValue; });
    save();
    EXPECT_TRUE(words.contains("Save")) << words.join('|').toStdString();
    EXPECT_TRUE(words.filter("Nombre").isEmpty()) << words.join('|').toStdString();
    words.clear();
    on.engine.userRun([this] { on.engine.values().LanguageIsEnglish = 0; });
    host::Window& editor = showReport();
    seeDialog();
    on.engine.userMenu(editor, editors::mnuImprimir);
    EXPECT_TRUE(words.contains("Im&primir")) << words.join('|').toStdString();
    EXPECT_TRUE(words.filter("binding").isEmpty()) << words.join('|').toStdString();
    EXPECT_FALSE(words.contains("Pages")) << words.join('|').toStdString();
}

TEST(FileNameTest, whatNoFileMayBearBecomesADash)
{
    EXPECT_EQ(desktop::fileNameOf("  A/B\\C:D*E?F\"G<H>I|J\tK  "), "A-B-C-D-E-F-G-H-I-J-K");
}

} // namespace velmor::test::file_places_test
