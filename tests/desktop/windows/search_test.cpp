// SPDX-License-Identifier: MIT
// The search line of the editors, and what a report looks like while its text stays as it is.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>

#include "desktop/canvas/report_dress.h"
#include "desktop/desktop_fixture.h"
#include "desktop/windows/search_line.h"
#include "editors/editor.h"
#include "program/catalogue.h"

namespace velmor::test::search_test {

struct SearchTest : ::testing::Test {
    SearchTest() : on(program::catalogue()) {}
    void SetUp() override
    {
        on.open();
        editor = &on.show("frmEdito1");
        write("uno dos UNO\ntres uno");
    }
    void write(const std::string& text)
    {
        on.engine.userRun([&] { editor->setText(editors::txtEdit, text); });
        Bench::settle();
    }
    QPlainTextEdit& text() { return dynamic_cast<QPlainTextEdit&>(*on.widgetOf(*editor, editors::txtEdit)); }
    desktop::SearchLine* line() { return on.viewOf(*editor).searchLine(); }
    template <class Part>
    Part& part(const char* name)
    {
        return *line()->findChild<Part*>(QLatin1String(name));
    }
    void look(const QString& wanted)
    {
        Bench::keys("Ctrl+F");
        Bench::type(wanted);
    }
    int caret() { return text().textCursor().selectionStart(); }
    QString selected() { return text().textCursor().selectedText(); }
    QString told() { return part<QLabel>("searchTold").text(); }

    Bench on;
    host::Window* editor = nullptr;
};

TEST_F(SearchTest, itOpensInTheEditorThatHasTheKeyboardAndTakesIt)
{
    ASSERT_EQ(line(), nullptr);
    Bench::keys("Ctrl+F");
    ASSERT_NE(line(), nullptr);
    EXPECT_TRUE(line()->isVisible());
    EXPECT_TRUE(line()->hasKeyboard());
    EXPECT_EQ(on.engine.current(), editor);
    EXPECT_EQ(on.engine.instance("frmFind", 0), nullptr) << "the window of the menu stays away";
    Bench::type("u");
    EXPECT_EQ(part<QLineEdit>("searchWanted").text(), "u");
    EXPECT_EQ(editor->wholeText(editors::txtEdit), "uno dos UNO\ntres uno");
}

TEST_F(SearchTest, everyHitIsMarkedWhateverItsCapitals)
{
    look("uno");
    // "uno" at 0, "UNO" at 8, and behind "uno dos UNO\ntres " at 17.
    EXPECT_EQ(line()->hits(), (std::vector<int>{0, 8, 17}));
    ASSERT_EQ(text().extraSelections().size(), 3);
    for (const QTextEdit::ExtraSelection& mark : text().extraSelections())
        EXPECT_EQ(mark.cursor.selectedText().toLower(), "uno");
    EXPECT_EQ(told(), "3 veces");
    Bench::key(Qt::Key_Escape);
    EXPECT_TRUE(text().extraSelections().isEmpty());
    EXPECT_FALSE(line()->isVisible());
    EXPECT_TRUE(text().hasFocus());
}

TEST_F(SearchTest, itGoesForwardAndBackwardAndRound)
{
    text().moveCursor(QTextCursor::Start);
    look("uno");
    Bench::key(Qt::Key_Return);
    EXPECT_EQ(caret(), 0);
    EXPECT_EQ(told(), "1 de 3");
    Bench::key(Qt::Key_F3);
    EXPECT_EQ(caret(), 8);
    EXPECT_EQ(selected(), "UNO");
    Bench::key(Qt::Key_F3);
    EXPECT_EQ(caret(), 17);
    Bench::key(Qt::Key_F3);
    EXPECT_EQ(caret(), 0) << "from the last hit to the first";
    EXPECT_EQ(told(), "1 de 3, dando la vuelta");
    Bench::key(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(caret(), 17) << "and back";
    Bench::key(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(caret(), 8);
    EXPECT_EQ(told(), "2 de 3");
}

// Ten thousand letters are held in several pieces, of 4096 units at most, between which "yz" is sure to be torn for one begin of two.
TEST_F(SearchTest, aHitInALongLineIsFoundWhereverItLies)
{
    for (const std::string begin : {"", "y"}) {
        std::string line = begin;
        while (line.size() < 10000)
            line += "yz";
        write(line);
        Bench::keys("Ctrl+F");
        part<QLineEdit>("searchWanted").setText("yz");
        ASSERT_EQ(this->line()->hits().size(), (line.size() - begin.size()) / 2);
    }
}

// Freed memory is overwritten when tests run: with marks that go in the midst of the marking the program would end here.
TEST_F(SearchTest, marksStayWhileTheTextScrollsUnderThem)
{
    std::string lines;
    for (int i = 0; i < 200; ++i)
        lines += "dos tres cuatro cinco seis siete ocho nueve diez once doce trece catorce quince y otra vez uno\n";
    write(lines);
    QWidget& frame = on.screen.keeper().frameOf(*editor)->widget();
    look("uno");
    for (int narrow = 200; narrow < 700; narrow += 50) {
        frame.resize(narrow, 360);
        text().moveCursor(QTextCursor::End);
        frame.resize(1040, 510);
        Bench::settle();
        ASSERT_FALSE(text().extraSelections().isEmpty()) << narrow;
        for (const QTextEdit::ExtraSelection& mark : text().extraSelections())
            ASSERT_EQ(mark.cursor.selectedText(), "uno");
    }
}

TEST_F(SearchTest, theTextMakesRoomForTheRowThatReplacesToo)
{
    const auto belowText = [&] { return text().mapTo(line()->window(), QPoint(0, text().height())).y(); };
    for (const char* key : {"Ctrl+F", "Ctrl+H"}) {
        Bench::keys(key);
        Bench::settle();
        EXPECT_LE(belowText(), line()->mapTo(line()->window(), QPoint()).y()) << key;
    }
}

// Windows that lie side by side are narrow.
TEST_F(SearchTest, itsPartsStandSideBySideInANarrowWindow)
{
    QWidget* child = &on.viewOf(*editor);
    while (dynamic_cast<QMdiSubWindow*>(child) == nullptr)
        child = child->parentWidget();
    child->setGeometry(0, 0, 400, 500);
    Bench::keys("Ctrl+H");
    Bench::type("uno");
    Bench::settle();
    std::vector<QRect> places;
    for (const QWidget* part : line()->findChildren<QWidget*>())
        if (part->isVisible() && !part->objectName().isEmpty())
            places.emplace_back(part->mapTo(line(), QPoint()), part->size());
    ASSERT_EQ(places.size(), 8U);
    for (std::size_t i = 0; i < places.size(); ++i) {
        EXPECT_TRUE(line()->rect().contains(places[i])) << i;
        for (std::size_t k = i + 1; k < places.size(); ++k)
            EXPECT_FALSE(places[i].intersects(places[k])) << i << ' ' << k;
    }
}

TEST_F(SearchTest, theKeysWorkFromTheTextToo)
{
    text().moveCursor(QTextCursor::Start);
    look("uno");
    Bench::key(Qt::Key_Escape);
    Bench::key(Qt::Key_F3);
    Bench::key(Qt::Key_F3);
    EXPECT_EQ(caret(), 8);
    Bench::key(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(caret(), 0);
}

TEST_F(SearchTest, whatIsNotThereIsToldWithoutABox)
{
    look("nadie");
    EXPECT_EQ(told(), "No está en el texto");
    EXPECT_FALSE(part<QPushButton>("searchOn").isEnabled());
    Bench::key(Qt::Key_Return);
    EXPECT_TRUE(line()->hasKeyboard());
}

TEST_F(SearchTest, aSelectionIsWhatIsLookedFor)
{
    QTextCursor cursor(text().document());
    cursor.setPosition(4);
    cursor.setPosition(7, QTextCursor::KeepAnchor);
    text().setTextCursor(cursor);
    Bench::keys("Ctrl+F");
    EXPECT_EQ(part<QLineEdit>("searchWanted").text(), "dos");
    Bench::type("uno");
    EXPECT_EQ(part<QLineEdit>("searchWanted").text(), "uno") << "the first key replaces it";
}

TEST_F(SearchTest, aPressOnTheTextGivesItTheKeyboardAndTheMarksStay)
{
    look("uno");
    on.click(*editor, editors::txtEdit);
    EXPECT_TRUE(text().hasFocus());
    EXPECT_TRUE(line()->isVisible());
    Bench::type("x");
    EXPECT_NE(editor->wholeText(editors::txtEdit).find('x'), std::string::npos);
}

TEST_F(SearchTest, whatIsWrittenMeanwhileIsFoundToo)
{
    look("uno");
    write("uno uno");
    EXPECT_EQ(line()->hits(), (std::vector<int>{0, 4}));
}

TEST_F(SearchTest, replacingChangesTheHitInHandAndThenAll)
{
    text().moveCursor(QTextCursor::Start);
    Bench::keys("Ctrl+H");
    Bench::type("uno");
    Bench::key(Qt::Key_Return);
    part<QLineEdit>("searchInstead").setText("cien");
    part<QPushButton>("searchReplace").click();
    EXPECT_EQ(editor->wholeText(editors::txtEdit), "cien dos UNO\ntres uno");
    EXPECT_EQ(selected(), "UNO") << "the next one is in hand";
    part<QPushButton>("searchReplaceAll").click();
    EXPECT_EQ(editor->wholeText(editors::txtEdit), "cien dos cien\ntres cien");
    EXPECT_TRUE(editor->holdsUnsaved());
    text().undo();
    EXPECT_EQ(editor->wholeText(editors::txtEdit), "cien dos UNO\ntres uno") << "all in one step";
}

// What is typed behind Tab must not get lost on a button.
TEST_F(SearchTest, tabLeadsFromWhatIsLookedForToWhatIsPutInItsPlace)
{
    Bench::keys("Ctrl+H");
    Bench::type("uno");
    Bench::key(Qt::Key_Tab);
    Bench::type("mil");
    EXPECT_EQ(part<QLineEdit>("searchInstead").text(), "mil");
    EXPECT_EQ(part<QLineEdit>("searchWanted").text(), "uno");
    Bench::key(Qt::Key_Tab);
    EXPECT_TRUE(part<QPushButton>("searchBack").hasFocus());
}

TEST_F(SearchTest, itsKeysWorkFromItsButtonsToo)
{
    text().moveCursor(QTextCursor::Start);
    look("uno");
    part<QPushButton>("searchOn").setFocus();
    Bench::key(Qt::Key_Return);
    EXPECT_EQ(caret(), 0) << "Enter presses the button in hand";
    Bench::key(Qt::Key_F3);
    EXPECT_EQ(caret(), 8);
    Bench::key(Qt::Key_Escape);
    EXPECT_FALSE(line()->isVisible());
    EXPECT_TRUE(text().hasFocus());
}

TEST_F(SearchTest, escapeClosesItFromTheTextToo)
{
    look("uno");
    text().setFocus();
    Bench::key(Qt::Key_Escape);
    EXPECT_FALSE(line()->isVisible());
    Bench::type("z");
    EXPECT_NE(editor->wholeText(editors::txtEdit).find('z'), std::string::npos) << "and the text keeps the keyboard";
}

TEST_F(SearchTest, itFollowsTheLanguage)
{
    look("uno");
    on.engine.userRun([&] { on.engine.values().LanguageIsEnglish = host::trueValue; });
    EXPECT_EQ(told(), "3 times");
    EXPECT_EQ(part<QPushButton>("searchOn").text(), "Next");
    EXPECT_EQ(part<QLineEdit>("searchWanted").accessibleName(), "Find in the text");
}

TEST_F(SearchTest, undoAndRedoHaveTheirKeysInAnEditor)
{
    text().moveCursor(QTextCursor::End);
    Bench::type("z");
    Bench::keys("Ctrl+Z");
    EXPECT_EQ(editor->wholeText(editors::txtEdit), "uno dos UNO\ntres uno");
    Bench::keys("Ctrl+Y");
    EXPECT_EQ(editor->wholeText(editors::txtEdit), "uno dos UNO\ntres unoz");
}

// --- reports

constexpr const char* report = "                Elaboración de Informe\n"
                               "        Alumno: \n"
                               "        Fecha: hoy\n"
                               "                Base Común\n"
                               "\n"
                               "        Ejercicio N° 1 \n"
                               "                Diseñe un amplificador\n"
                               "\tQic =  10 mA \n"
                               "        Resultados: \n";

TEST(ReportDressTest, titlesAndHeadingsAreKnownByTheirIndent)
{
    using desktop::ReportLine;
    QTextDocument document;
    document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
    document.setPlainText(QString::fromUtf8(report));
    EXPECT_EQ(desktop::designOf(document), QString::fromUtf8("Base Común"));
    const desktop::ReportDress dress(document, Qt::blue);
    const ReportLine wanted[] = {ReportLine::title, ReportLine::plain, ReportLine::plain,
                                 ReportLine::title, ReportLine::plain, ReportLine::heading,
                                 ReportLine::plain, ReportLine::plain, ReportLine::heading};
    for (int line = 0; line < 9; ++line) {
        EXPECT_EQ(dress.lineAt(line), wanted[line]) << line;
        EXPECT_EQ(document.findBlockByNumber(line).layout()->formats().isEmpty(), wanted[line] == ReportLine::plain)
            << line;
    }
    EXPECT_EQ(document.toPlainText(), QString::fromUtf8(report));
}

// Some titles bear the name of the design; the statement of the first exercise, two steps in, is none.
TEST(ReportDressTest, aTitleMayNameTheDesignItself)
{
    using desktop::ReportLine;
    QTextDocument document;
    document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
    document.setPlainText(QString::fromUtf8("                Elaboración de Informe : Colector Común\n"
                                            "        Alumno: \n"
                                            "        Hora: 22:06\n"
                                            "\n"
                                            "        Ejercicio N° 1 \n"
                                            "                Varíe el valor de Res y observe.\n"
                                            "        Resultados: \n"));
    EXPECT_EQ(desktop::designOf(document), QString::fromUtf8("Colector Común"));
    const desktop::ReportDress dress(document, Qt::blue);
    const ReportLine wanted[] = {ReportLine::title,   ReportLine::plain, ReportLine::plain,  ReportLine::plain,
                                 ReportLine::heading, ReportLine::plain, ReportLine::heading};
    for (int line = 0; line < 7; ++line)
        EXPECT_EQ(dress.lineAt(line), wanted[line]) << line;
}

TEST(ReportDressTest, theNameOfADesignIsSaidWithoutWhatLeadsToIt)
{
    QTextDocument document;
    document.setPlainText(
        "                Report Design\n        Student: \n                Design :   Long Tail pair \n");
    EXPECT_EQ(desktop::designOf(document), "Long Tail pair");
    document.setPlainText("                Elaboración de Informe Parcialmente Desacoplado\n        Alumno: \n"
                          "        Ejercicio N° 1 \n                Realice un ejercicio: \n");
    EXPECT_EQ(desktop::designOf(document), QString::fromUtf8("Elaboración de Informe Parcialmente Desacoplado"));
    document.setPlainText("                A poem\n        whose lines\n                stand in\n");
    EXPECT_EQ(desktop::designOf(document), QString()) << "nobody is asked for a name there";
}

TEST(ReportDressTest, dressingIsNoChangeOfTheText)
{
    QTextDocument document;
    document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
    document.setPlainText(QString::fromUtf8(report));
    int changes = 0;
    QObject::connect(&document, &QTextDocument::contentsChanged, [&] { ++changes; });
    desktop::ReportDress dress(document, Qt::blue);
    dress.follow(Qt::red);
    EXPECT_EQ(changes, 0);
    EXPECT_FALSE(document.isUndoAvailable());
}

TEST(ReportDressTest, aLineThatIsWrittenIsDressedAsItNowIs)
{
    QTextDocument document;
    document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
    document.setPlainText(QString::fromUtf8(report));
    const desktop::ReportDress dress(document, Qt::blue);
    QTextCursor cursor(document.findBlockByNumber(5));
    cursor.insertText("x");
    EXPECT_TRUE(document.findBlockByNumber(5).layout()->formats().isEmpty());
    EXPECT_FALSE(document.findBlockByNumber(8).layout()->formats().isEmpty());
}

TEST_F(SearchTest, aReportIsShownInAReadableTypeAndKeepsItsOwnForPaper)
{
    on.engine.userRun([&] { on.engine.host().Hide(*editor); });
    editor = &on.show("frmEdito2");
    write(report);
    Bench::settle();
    EXPECT_GT(text().fontInfo().pointSizeF(), 11.0);
    EXPECT_FALSE(text().fontInfo().fixedPitch());
    EXPECT_EQ(editor->font(editors::txtEdit), host::Font{});
    EXPECT_EQ(editor->wholeText(editors::txtEdit), report);
    host::Font chosen;
    chosen.size = 20;
    on.engine.userRun([&] { editor->setFont(editors::txtEdit, chosen); });
    EXPECT_EQ(text().font().pointSizeF(), 20.0) << "what the student chooses is what is shown";
}

// A text that is longer than what is searched at once: 600 000 letters of which each is a hit.
TEST_F(SearchTest, aLongTextIsSearchedInStretchesAndReplacedInOneStep)
{
    constexpr std::size_t count = 600000;
    write(std::string(count, 'a') + "\nfin");
    Bench::keys("Ctrl+F");
    part<QLineEdit>("searchWanted").setText("a");
    Bench::key(Qt::Key_Return);
    EXPECT_EQ(line()->hits().size(), count) << "who asks for the next hit does not wait for a pause";
    EXPECT_EQ(told(), "1 de 600000");
    Bench::keys("Ctrl+H");
    part<QLineEdit>("searchInstead").setText("bc");
    part<QPushButton>("searchReplaceAll").click();
    std::string replaced;
    for (std::size_t i = 0; i < count; ++i)
        replaced += "bc";
    EXPECT_TRUE(editor->wholeText(editors::txtEdit) == replaced + "\nfin");
    text().undo();
    EXPECT_TRUE(editor->wholeText(editors::txtEdit) == std::string(count, 'a') + "\nfin");
}

TEST_F(SearchTest, aStepForwardWaitsForNoMoreThanItsHit)
{
    constexpr std::size_t count = 1200000;
    write(std::string(count, 'a'));
    Bench::keys("Ctrl+F");
    part<QLineEdit>("searchWanted").setText("a");
    line()->go(desktop::SearchLine::Way::forward);
    EXPECT_EQ(selected(), "a");
    EXPECT_LT(line()->hits().size(), count);
    EXPECT_EQ(told(), "") << "no number that is not yet known";
    Bench::settle();
    EXPECT_EQ(line()->hits().size(), count);
    EXPECT_EQ(told(), "1 de 1200000");
    line()->go(desktop::SearchLine::Way::backward);
    EXPECT_EQ(told(), "1200000 de 1200000, dando la vuelta");
}

TEST_F(SearchTest, commandsOfTheTextReachItFromTheLine)
{
    look("uno");
    ASSERT_TRUE(line()->hasKeyboard());
    on.answerByKey(Qt::Key_Escape);
    Bench::keys("Ctrl+O");
    EXPECT_FALSE(on.boxes.empty()) << "the text has changed, and its own opening asks";
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "the menu of circuits is the sheets'";
}

TEST_F(SearchTest, onALargeScreenTheTextGrowsWithTheMenus)
{
    const double usual = text().font().pointSizeF();
    on.screen.desk().textScale = 1.5;
    on.main().resize(on.main().width() - 40, on.main().height());
    Bench::settle();
    EXPECT_NEAR(text().font().pointSizeF(), 1.5 * usual, 0.01);
    EXPECT_NE(editor->font(editors::txtEdit).size, text().font().pointSizeF()) << "what is printed stays";
}

} // namespace velmor::test::search_test
