// SPDX-License-Identifier: MIT
// Long lines in an editor: the same keys are pressed in an editor and in a plain text box of the toolkit, whose lines are blocks
// of any length, and both must hold the same.
#include <algorithm>
#include <functional>
#include <memory>
#include <random>

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

#include "desktop/canvas/document_store.h"
#include "desktop/canvas/editor_edit.h"
#include "desktop/canvas/report_dress.h"

using namespace velmor;
using desktop::DocumentStore;
using desktop::EditorEdit;
using desktop::LongLines;

namespace long_lines_tests {

constexpr int longLine = 14000; ///< units; four pieces and more

/// Words of one to nine letters, so that pieces end at blanks, or none at all.
std::string lineOf(int length, bool blanks)
{
    std::string line;
    for (int at = 0, word = 1; at < length; ++at) {
        line.push_back(blanks && --word == 0 ? ' ' : static_cast<char>('a' + at % 26));
        if (word == 0)
            word = 2 + at % 9;
    }
    return line;
}

struct LongLinesTest : ::testing::Test {
    void SetUp() override
    {
        edit.setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        plain.setLineWrapMode(QPlainTextEdit::NoWrap);
        for (QPlainTextEdit* text : {static_cast<QPlainTextEdit*>(&edit), &plain})
            text->resize(700, 400);
        store.shownBy(&edit);
        edit.show();
        lines = LongLines::of(*store.document());
    }
    void write(const std::string& text)
    {
        store.setAll(text);
        plain.setPlainText(QString::fromStdString(text));
    }
    void both(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&edit, static_cast<Qt::Key>(key), modifiers);
        QTest::keyClick(&plain, static_cast<Qt::Key>(key), modifiers);
    }
    void goTo(int unit)
    {
        store.select(static_cast<std::size_t>(unit), 0);
        QTextCursor cursor = plain.textCursor();
        cursor.setPosition(unit);
        plain.setTextCursor(cursor);
    }
    /// Where the line is broken, in units of the text.
    std::vector<int> cuts()
    {
        std::vector<int> found;
        for (QTextBlock block = store.document()->begin(); block.isValid(); block = block.next())
            if (LongLines::goesOn(block))
                found.push_back(lines->unitOf(block.position()));
        return found;
    }
    void expectSame(const std::string& after)
    {
        ASSERT_EQ(store.all(), plain.toPlainText().toStdString()) << after;
        ASSERT_EQ(static_cast<int>(store.selectionStart()), plain.textCursor().selectionStart()) << after;
        ASSERT_EQ(static_cast<int>(store.selectionLength()),
                  plain.textCursor().selectionEnd() - plain.textCursor().selectionStart())
            << after;
        expectInOrder(after);
    }
    void expectNothingTorn()
    {
        for (QTextBlock block = store.document()->begin(); block.isValid(); block = block.next()) {
            ASSERT_FALSE(block.text().front().isLowSurrogate());
            ASSERT_FALSE(block.text().front().isMark());
        }
    }
    void expectInOrder(const std::string& after)
    {
        int joints = 0;
        for (QTextBlock block = store.document()->begin(); block.isValid(); block = block.next()) {
            ASSERT_LE(block.length(), LongLines::longestPiece) << after;
            if (!LongLines::goesOn(block))
                continue;
            ++joints;
            ASSERT_GT(block.length(), 1) << "an empty piece would look like an empty line; " << after;
            ASSERT_TRUE(lines->isBehindJoint(block.position())) << after;
        }
        ASSERT_EQ(joints, store.document()->characterCount() - 1 - lines->length()) << after;
    }

    DocumentStore store;
    EditorEdit edit;
    QPlainTextEdit plain;
    LongLines* lines = nullptr;
};

TEST_F(LongLinesTest, aLongLineIsHeldInPiecesAndToldWhole)
{
    const std::string text = "uno\n" + lineOf(longLine, true) + "\n\n" + lineOf(longLine, false) + "\nfin";
    store.setAll(text);
    EXPECT_EQ(store.all(), text);
    EXPECT_EQ(store.length(), text.size());
    EXPECT_EQ(store.slice(3, longLine), text.substr(3, longLine));
    // 14000 units in pieces of at most 3072 make five pieces, thus four joints, of each line at least.
    EXPECT_GE(cuts().size(), 8U);
    for (const int cut : cuts())
        EXPECT_TRUE(text[static_cast<std::size_t>(cut) - 1] == ' ' || cut > longLine)
            << "behind a blank where there is one";
    for (int unit = 0; unit <= static_cast<int>(text.size()); ++unit)
        ASSERT_EQ(lines->unitOf(lines->positionOf(unit)), unit);
    expectInOrder("opening");
}

TEST_F(LongLinesTest, aLetterOfTwoUnitsOrWithItsAccentIsNotTornApart)
{
    std::string letters;
    while (letters.size() < 60000)
        letters += "\U0001F600e\u0301";
    // Of four units a letter and its accent: whatever the length of a piece, one of these begins would have it end inside.
    for (const std::string begin : {"", "a", "ab", "abc"}) {
        store.setAll(begin + letters);
        ASSERT_FALSE(cuts().empty());
        expectNothingTorn();
    }
    const std::string text = letters;
    store.setAll(text);
    EXPECT_EQ(store.all(), text);
    EXPECT_EQ(store.length(), text.size() / 7 * 3) << "seven bytes are three characters";
    EXPECT_EQ(store.slice(15000, 3), "\U0001F600e\u0301");
}

TEST_F(LongLinesTest, theCaretGoesOverAJointAsOverAnyLetter)
{
    for (const bool blanks : {true, false}) {
        write(lineOf(longLine, blanks));
        for (const int cut : cuts()) {
            goTo(cut - 2);
            for (const int key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left,
                                  Qt::Key_Left, Qt::Key_Left, Qt::Key_Left}) {
                both(key);
                expectSame("a step at " + std::to_string(cut));
            }
            goTo(cut + 1);
            for (const int key : {Qt::Key_Left, Qt::Key_Left, Qt::Key_Left, Qt::Key_Right, Qt::Key_Right}) {
                both(key, Qt::ShiftModifier);
                expectSame("a selecting step at " + std::to_string(cut));
            }
        }
    }
}

TEST_F(LongLinesTest, stepsByWordsKnowNoJoint)
{
    for (const bool blanks : {true, false}) {
        write(lineOf(longLine, blanks));
        for (const int cut : cuts())
            for (const int key : {Qt::Key_Left, Qt::Key_Right})
                for (const int from : {cut - 3, cut, cut + 3}) {
                    goTo(from);
                    both(key, Qt::ControlModifier);
                    expectSame("a word from " + std::to_string(from));
                }
    }
}

TEST_F(LongLinesTest, deletingTakesTheLetterOnTheOtherSide)
{
    for (const bool blanks : {true, false})
        for (const int key : {Qt::Key_Backspace, Qt::Key_Delete}) {
            write(lineOf(longLine, blanks));
            for (const int cut : cuts())
                for (const int from : {cut + 1, cut, cut - 1}) {
                    goTo(from);
                    both(key);
                    both(key);
                    expectSame("deleting at " + std::to_string(from));
                }
        }
}

TEST_F(LongLinesTest, theEndOfARowIsInTheText)
{
    write(lineOf(longLine, false));
    const int cut = cuts().front();
    store.select(static_cast<std::size_t>(cut) - 3, 0);
    QTest::keyClick(&edit, Qt::Key_End);
    EXPECT_EQ(store.selectionStart(), static_cast<std::size_t>(cut));
    QTest::keyClick(&edit, Qt::Key_Delete);
    EXPECT_EQ(store.all(), lineOf(longLine, false).erase(static_cast<std::size_t>(cut), 1));
    QTest::keyClick(&edit, Qt::Key_X);
    EXPECT_EQ(store.slice(static_cast<std::size_t>(cut) - 1, 2), lineOf(longLine, false).substr(cut - 1, 1) + "x");
}

TEST_F(LongLinesTest, aLineBreakAtAJointIsOne)
{
    for (const int offset : {-1, 0, 1}) {
        write(lineOf(longLine, false));
        goTo(cuts()[1] + offset);
        both(Qt::Key_Return);
        expectSame("a break");
        both(Qt::Key_Return);
        both(Qt::Key_A);
        both(Qt::Key_Return);
        expectSame("more breaks");
        for (int i = 0; i < 4; ++i)
            both(Qt::Key_Backspace);
        expectSame("and back");
    }
}

TEST_F(LongLinesTest, aLineThatGrowsIsBrokenAndOneThatShrinksIsWhole)
{
    write(lineOf(LongLines::longestPiece - 2, true));
    EXPECT_TRUE(cuts().empty());
    goTo(100);
    for (int i = 0; i < 4; ++i)
        both(Qt::Key_X);
    expectSame("growing");
    EXPECT_EQ(cuts().size(), 1U);
    const int cut = cuts().front();
    goTo(cut - 100);
    both(Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier);
    both(Qt::Key_Delete);
    expectSame("shrinking");
    EXPECT_EQ(cuts().size(), 1U) << "two pieces of 100 and 1024 units are not worth the work";
    goTo(200);
    both(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
    both(Qt::Key_Delete);
    expectSame("shrinking more");
    EXPECT_TRUE(cuts().empty());
}

TEST_F(LongLinesTest, whatIsCopiedAndPastedIsTheText)
{
    const std::string text = lineOf(longLine, true) + "\nfin";
    write(text);
    edit.selectAll();
    edit.copy();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), text);
    QTest::keyClick(&edit, Qt::Key_End, Qt::ControlModifier);
    edit.paste();
    EXPECT_EQ(store.all(), text + text);
    expectInOrder("pasting");
    edit.undo();
    EXPECT_EQ(store.all(), text);
    expectInOrder("undoing it");
    edit.redo();
    EXPECT_EQ(store.all(), text + text);
}

TEST_F(LongLinesTest, theProgramsOwnReplacingIsOneStepOfUndo)
{
    const std::string text = lineOf(longLine, false);
    store.setAll(text);
    store.select(5000, 6000);
    store.replaceSelection("uno\r\ndos");
    EXPECT_EQ(store.all(), std::string(text).replace(5000, 6000, "uno\ndos"));
    EXPECT_EQ(store.selectionStart(), 5007U);
    expectInOrder("replacing");
    edit.undo();
    EXPECT_EQ(store.all(), text);
    expectInOrder("undoing it");
}

TEST_F(LongLinesTest, anInputMethodLeavesNoFalseJoint)
{
    const std::string text = lineOf(longLine, false);
    write(text);
    const std::vector<int> at = cuts();
    QTextCursor piece = edit.textCursor();
    piece.setPosition(lines->positionOf(at[0]));
    piece.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    edit.setTextCursor(piece);
    QInputMethodEvent event;
    event.setCommitString("ñ");
    QApplication::sendEvent(&edit, &event);
    QTest::keyClick(&edit, Qt::Key_Return);
    std::string wanted = text;
    wanted.replace(static_cast<std::size_t>(at[0]), static_cast<std::size_t>(at[1] - at[0]), "ñ\n");
    EXPECT_EQ(store.all(), wanted);
    expectInOrder("composing");
}

TEST_F(LongLinesTest, threeClicksTakeTheWholeLineAndTwoTheWholeWord)
{
    store.setAll(lineOf(longLine, false) + "\nfin");
    store.select(7000, 0);
    const QPoint place = edit.cursorRect().center();
    QTest::mouseDClick(edit.viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(store.selectionStart(), 0U);
    EXPECT_EQ(store.selectionLength(), static_cast<std::size_t>(longLine));
    QTest::mouseDClick(edit.viewport(), Qt::LeftButton, {}, place);
    QTest::mousePress(edit.viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(store.selectionStart(), 0U);
    EXPECT_EQ(store.selectionLength(), static_cast<std::size_t>(longLine) + 1) << "its line break too";
}

TEST_F(LongLinesTest, aPieceIsNoHeadingOfAReport)
{
    const std::string blanks(8, ' ');
    std::string text = blanks + blanks + "Informe\n\n" + blanks + blanks + "Nombre\n" + blanks + "Titulo\n";
    const std::string line = std::string(static_cast<std::size_t>(LongLines::usualPiece) - 1, 'x') + " " + blanks +
                             "resto" + std::string(1200, ' ') + "fin";
    store.setAll(text + line);
    store.select(store.length() - 1203, 1203);
    store.replaceSelection("");
    ASSERT_EQ(store.document()->lastBlock().text().toStdString(), blanks + "resto");
    desktop::ReportDress dress(*store.document(), Qt::blue);
    ASSERT_EQ(dress.lineAt(3), desktop::ReportLine::heading);
    for (int number = 4; number < store.document()->blockCount(); ++number)
        EXPECT_EQ(dress.lineAt(number), desktop::ReportLine::plain) << number;
}

TEST_F(LongLinesTest, randomKeysAroundJointsDoWhatTheyDoInAPlainBox)
{
    std::mt19937 random(20261122);
    const auto upTo = [&](int most) { return static_cast<int>(random() % static_cast<unsigned>(most + 1)); };
    write(lineOf(longLine, true) + "\n" + lineOf(longLine, false) + "\n" + lineOf(300, true));
    const std::string first = store.all();
    constexpr int keys[] = {Qt::Key_Left,   Qt::Key_Right, Qt::Key_Backspace, Qt::Key_Delete,
                            Qt::Key_Return, Qt::Key_A,     Qt::Key_Space};
    for (int step = 0; step < 500; ++step) {
        if (const std::vector<int> at = cuts(); !at.empty() && upTo(3) == 0)
            goTo(std::clamp(at[static_cast<std::size_t>(upTo(static_cast<int>(at.size()) - 1))] + upTo(6) - 3, 0,
                            lines->length()));
        const int key = keys[upTo(6)];
        const bool moves = key == Qt::Key_Left || key == Qt::Key_Right;
        for (int times = moves ? upTo(5) : 1; times > 0; --times)
            both(key, moves && upTo(1) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        expectSame("step " + std::to_string(step));
        if (HasFatalFailure())
            return;
    }
    const std::string last = store.all();
    while (store.document()->isUndoAvailable()) {
        edit.undo();
        expectInOrder("undo");
    }
    EXPECT_EQ(store.all(), first);
    while (store.document()->isRedoAvailable())
        edit.redo();
    EXPECT_EQ(store.all(), last);
    expectInOrder("redo");
}

} // namespace long_lines_tests
