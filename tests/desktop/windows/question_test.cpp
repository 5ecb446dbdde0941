// SPDX-License-Identifier: MIT
// Boxes and dialogs: what the flags ask for, to the letter, in the program's language.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <fstream>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include "desktop/desktop_fixture.h"
#include "desktop/full_disk.h"
#include "desktop/windows/questions.h"
#include "desktop/windows/quiet_box.h"

namespace velmor::test::question_test {

using host::Answer;

struct BoxCase {
    int flags;
    QStringList spanish;
    QString preselected;
    Answer enter;
    Answer escape;
};

struct QuestionTest : ::testing::Test {
    void SetUp() override { on.open(); }
    Answer ask(int flags, int key)
    {
        on.answerByKey(key);
        return on.screen.messageBox({"Valor <b>fuera</b> & de rango\nElija otro", "Criterio & <i>diseño</i>", flags});
    }
    /// Does something to the next dialog of that name.
    void whenShown(const char* name, const std::function<void(QDialog&)>& deed)
    {
        auto* watch = new QTimer(&on.main());
        QObject::connect(watch, &QTimer::timeout, watch, [watch, name, deed] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || dialog->objectName() != QLatin1String(name) || !dialog->isVisible())
                return;
            watch->deleteLater();
            deed(*dialog);
        });
        watch->start(1);
    }
    Bench on;
};

TEST_F(QuestionTest, flagsGiveButtonsDefaultAndEscape)
{
    const BoxCase cases[] = {
        {0, {"Aceptar"}, "Aceptar", Answer::ok, Answer::ok},
        {48, {"Aceptar"}, "Aceptar", Answer::ok, Answer::ok},
        {16, {"Aceptar"}, "Aceptar", Answer::ok, Answer::ok},
        {65, {"Aceptar", "Cancelar"}, "Aceptar", Answer::ok, Answer::cancel},
        {33, {"Aceptar", "Cancelar"}, "Aceptar", Answer::ok, Answer::cancel},
        {289, {"Aceptar", "Cancelar"}, "Cancelar", Answer::cancel, Answer::cancel},
        {67, {"Sí", "No", "Cancelar"}, "Sí", Answer::yes, Answer::cancel},
        {35, {"Sí", "No", "Cancelar"}, "Sí", Answer::yes, Answer::cancel},
        {36, {"Sí", "No"}, "Sí", Answer::yes, Answer::no},
        {20, {"Sí", "No"}, "Sí", Answer::yes, Answer::no},
        {308, {"Sí", "No"}, "No", Answer::no, Answer::no},
    };
    for (const BoxCase& one : cases) {
        EXPECT_EQ(ask(one.flags, Qt::Key_Return), one.enter) << one.flags;
        QStringList buttons = on.boxes.back().buttons;
        QStringList wanted = one.spanish;
        buttons.sort();
        wanted.sort();
        EXPECT_EQ(buttons, wanted) << one.flags;
        EXPECT_EQ(on.boxes.back().preselected, one.preselected) << one.flags;
        EXPECT_EQ(ask(one.flags, Qt::Key_Escape), one.escape) << one.flags;
    }
}

TEST_F(QuestionTest, textAndTitleAreShownToTheLetter)
{
    ask(48, Qt::Key_Return);
    EXPECT_TRUE(on.boxes.back().plain);
    EXPECT_EQ(on.boxes.back().text, "Valor <b>fuera</b> & de rango\nElija otro");
    EXPECT_EQ(on.boxes.back().title, "Criterio & <i>diseño</i>");
}

TEST_F(QuestionTest, aTextThatIsTallerThanTheScreenScrollsAndTheButtonsStayInView)
{
    QString text;
    for (int line = 1; line <= 300; ++line)
        text += QStringLiteral("Renglon %1 de un texto largo\n").arg(line);
    text += QString(3000, QLatin1Char('x'));
    int seen = 0;
    on.duringBox = [&] {
        auto& box = dynamic_cast<desktop::QuietBox&>(*QApplication::activeModalWidget());
        const QRect screen = box.screen()->availableGeometry();
        EXPECT_LE(box.height(), screen.height());
        EXPECT_LE(box.width(), screen.width());
        for (const QPushButton* button : box.buttons())
            EXPECT_TRUE(box.rect().contains(QRect(button->mapTo(&box, QPoint()), button->size())));
        auto* area = box.findChild<QScrollArea*>();
        ASSERT_NE(area, nullptr);
        EXPECT_TRUE(box.rect().contains(QRect(area->mapTo(&box, QPoint()), area->size())));
        EXPECT_LE(area->widget()->width(), area->viewport()->width());
        QScrollBar& bar = *area->verticalScrollBar();
        EXPECT_GE(bar.maximum() + area->viewport()->height(), area->widget()->height()) << "to its last line";
        QTest::keyClick(&box, Qt::Key_PageDown);
        EXPECT_EQ(bar.value(), std::min(bar.pageStep(), bar.maximum()));
        QTest::keyClick(&box, Qt::Key_End);
        EXPECT_EQ(bar.value(), bar.maximum());
        ++seen;
    };
    on.answerByKey(Qt::Key_Return);
    EXPECT_EQ(on.screen.messageBox({text.toStdString(), "Velmor", 33}), Answer::ok);
    EXPECT_EQ(seen, 1);
}

TEST_F(QuestionTest, buttonsSpeakTheLanguageOfTheMoment)
{
    on.engine.values().LanguageIsEnglish = host::trueValue;
    EXPECT_EQ(ask(67, Qt::Key_N), Answer::no) << "the letter of a button answers";
    QStringList buttons = on.boxes.back().buttons;
    buttons.sort();
    EXPECT_EQ(buttons, (QStringList{"Cancel", "No", "Yes"}));
}

TEST_F(QuestionTest, anInputBoxShowsItsPromptPlainAndStandsInsideTheScreen)
{
    QString prompt;
    bool inside = false;
    whenShown("inputBox", [&](QDialog& dialog) {
        prompt = dialog.findChild<QLabel*>()->text();
        inside = dialog.screen()->availableGeometry().contains(dialog.pos());
        EXPECT_EQ(dialog.findChild<QLabel*>()->textFormat(), Qt::PlainText);
        EXPECT_EQ(dialog.findChild<QLineEdit*>()->selectedText(), "175");
        dialog.findChild<QLineEdit*>()->setText("212");
        QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    EXPECT_EQ(on.screen.inputBox({"Coloque la <b> & temperatura", "Conversion", "175", 240000, 210000}), "212");
    EXPECT_EQ(prompt, "Coloque la <b> & temperatura");
    EXPECT_TRUE(inside);
    whenShown("inputBox", [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(on.screen.inputBox({"Coloque", "Conversion", "175", 0, 0}), std::nullopt);
}

TEST_F(QuestionTest, aSaveDialogAsksAboutReplacingOnlyWhereTheFlagsSaySo)
{
    const auto confirms = [&](int flags) {
        bool result = false;
        whenShown("fileDialog", [&](QDialog& dialog) {
            result = !dynamic_cast<QFileDialog&>(dialog).testOption(QFileDialog::DontConfirmOverwrite);
            dialog.reject();
        });
        on.screen.fileDialog(
            {host::DialogKind::save, "Guardar", "Texto(*.txt)|*.txt", on.folder.path().toStdString(), flags});
        return result;
    };
    EXPECT_TRUE(confirms(2638862));
    EXPECT_FALSE(confirms(0));
}

TEST_F(QuestionTest, aSaveDialogAddsTheEndingOfItsFilter)
{
    whenShown("fileDialog", [&](QDialog& dialog) {
        auto& files = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_EQ(files.windowTitle(), "Save Circuit");
        EXPECT_EQ(files.defaultSuffix(), "BCC");
        auto* name = dialog.findChild<QLineEdit*>();
        name->setText(on.folder.filePath("prueba"));
        QTest::keyClick(name, Qt::Key_Return);
    });
    const auto path = on.screen.fileDialog(
        {host::DialogKind::save, "Save Circuit", "Base Común (*.BCC)|*.BCC", on.folder.path().toStdString(), 2638862});
    ASSERT_TRUE(path.has_value());
    EXPECT_EQ(*path, on.folder.filePath("prueba.BCC").toStdString());
}

TEST_F(QuestionTest, aFileDialogShowsTheSizesOfSmallFilesWhole)
{
    std::ofstream(on.folder.filePath("chico.BCC").toStdString()) << std::string(946, 'x');
    bool listed = false;
    int wanted = 0;
    int room = 0;
    whenShown("fileDialog", [&](QDialog& dialog) {
        const auto* files = dialog.findChild<QTreeView*>("treeView");
        const auto size = [files] {
            const QAbstractItemModel& model = *files->model();
            for (int row = 0; row < model.rowCount(files->rootIndex()); ++row)
                if (model.index(row, 0, files->rootIndex()).data().toString() == "chico.BCC")
                    return model.index(row, 1, files->rootIndex()).data().toString();
            return QString();
        };
        listed = QTest::qWaitFor([&] { return size().contains("946"); });
        wanted = files->fontMetrics().horizontalAdvance(size()) +
                 2 * files->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 2;
        room = files->columnWidth(1);
        dialog.reject();
    });
    on.screen.fileDialog({host::DialogKind::open, "Abrir", "Todos(*.*)|*.*", on.folder.path().toStdString(), 0});
    EXPECT_TRUE(listed);
    EXPECT_GE(room, wanted);
}

// A file without an ending tells its kind by its contents alone; reading a pipe or a sick disk may wait for good.
TEST_F(QuestionTest, aFileDialogLooksIntoNoFile)
{
    const std::string file = on.folder.filePath("medida").toStdString();
    std::ofstream(file) << "%PDF-1.4";
    ASSERT_EQ(::mkfifo(on.folder.filePath("cauce").toLocal8Bit(), 0600), 0);
    const int watch = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    ASSERT_GE(::inotify_add_watch(watch, file.c_str(), IN_OPEN | IN_ACCESS), 0);
    bool listed = false;
    bool drawn = false;
    whenShown("fileDialog", [&](QDialog& dialog) {
        const auto* list = dialog.findChild<QListView*>("listView");
        const auto names = [list] { return list->model()->rowCount(list->rootIndex()); };
        // The toolkit lists no pipes, and looks for icons in a thread of its own.
        listed = QTest::qWaitFor([&] { return names() == 1; });
        drawn = QTest::qWaitFor(
            [&] { return !list->model()->index(0, 0, list->rootIndex()).data(Qt::DecorationRole).isNull(); });
        dialog.reject();
    });
    on.screen.fileDialog({host::DialogKind::open, "Abrir", "Todos(*.*)|*.*", on.folder.path().toStdString(), 0});
    EXPECT_TRUE(listed);
    EXPECT_TRUE(drawn);
    char events[256];
    EXPECT_LT(::read(watch, events, sizeof events), 0) << "the file was opened";
    ::close(watch);
}

TEST_F(QuestionTest, aPrintThatCannotWriteItsFileSaysSoInOneSentence)
{
    on.engine.values().LanguageIsEnglish = host::trueValue;
    whenShown("printDialog", [&](QDialog& dialog) {
        dialog.findChild<QLineEdit*>("filename")->setText(on.folder.filePath("salida.pdf"));
        on.answerByKey(Qt::Key_Return);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    {
        const FullDisk full;
        on.screen.print({.text = "Renglón", .font = {.name = "DejaVu Sans Mono", .size = 10.0}});
    }
    ASSERT_EQ(on.boxes.size(), 1U);
    EXPECT_EQ(on.boxes[0].text, "It could not be printed: the file or the printer does not allow it.");
    whenShown("printDialog", [&](QDialog& dialog) {
        dialog.findChild<QLineEdit*>("filename")->setText(on.folder.filePath("otra.pdf"));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    on.screen.print({.text = "Renglón", .font = {.name = "DejaVu Sans Mono", .size = 10.0}});
    EXPECT_EQ(on.boxes.size(), 1U) << "and of one that can, nothing";
}

TEST(FileFilterTest, descriptionsStandToTheLetterAndPatternsMatchAnyCapitals)
{
    const QStringList filters =
        desktop::nameFilters("Base Común (*.BCC)|*.BCC|Todos los archivos (*.*)|*.*|dos|*.bmp;*.Exe");
    ASSERT_EQ(filters.size(), 3);
    EXPECT_EQ(filters[0], "Base Común (*.BCC) (*.BCC *.bcc)");
    EXPECT_EQ(filters[1], "Todos los archivos (*.*) (*)");
    EXPECT_EQ(filters[2], "dos (*.bmp *.BMP *.Exe *.exe *.EXE)");
    EXPECT_EQ(desktop::endingOf(filters[0]), "BCC");
    EXPECT_EQ(desktop::endingOf(filters[1]), "");
}

QString toolkitsSave()
{
    return QCoreApplication::translate("QPlatformTheme", "Save");
}

TEST(ToolkitTextsTest, theySpeakTheLanguageOfTheMomentAndGoWithTheProgram)
{
    EXPECT_EQ(toolkitsSave(), QStringLiteral("Save"));
    {
        Bench on;
        on.open();
        EXPECT_EQ(toolkitsSave(), QStringLiteral("Save")) << "nothing is read before the first window is shown";
        on.screen.settleIn();
        EXPECT_EQ(toolkitsSave(), QStringLiteral("Guardar"));
        on.engine.userRun([&] { on.engine.values().LanguageIsEnglish = host::trueValue; });
        EXPECT_EQ(toolkitsSave(), QStringLiteral("Save"));
        on.engine.userRun([&] { on.engine.values().LanguageIsEnglish = 0; });
        EXPECT_EQ(toolkitsSave(), QStringLiteral("Guardar"));
    }
    EXPECT_EQ(toolkitsSave(), QStringLiteral("Save"));
}

TEST(ToolkitTextsTest, menusNameTheKeysAsTipsDoInBothLanguages)
{
    const QKeySequence keys(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    Bench on;
    on.open();
    EXPECT_EQ(keys.toString(QKeySequence::NativeText), QStringLiteral("Ctrl+Shift+S"));
    on.screen.settleIn();
    ASSERT_EQ(toolkitsSave(), QStringLiteral("Guardar"));
    EXPECT_EQ(keys.toString(QKeySequence::NativeText), QStringLiteral("Ctrl+Shift+S"));
}

TEST_F(QuestionTest, aProgramThatMustEndSaysSoPlainly)
{
    on.answerByKey(Qt::Key_Return);
    on.screen.programFailed("El programa debe terminar");
    EXPECT_EQ(on.boxes.back().text, "El programa debe terminar");
}

} // namespace velmor::test::question_test
