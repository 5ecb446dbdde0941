// SPDX-License-Identifier: MIT
// A joint has two sides that are one place of the text: the caret may rest on either, as at the end of a row that is wrapped, and a
// step from one to the other is none.
#include "desktop/canvas/editor_edit.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>

#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>

#include "desktop/canvas/long_lines.h"

namespace velmor::desktop {

namespace editor_edit_detail {

bool isAny(const QKeyEvent& event, std::initializer_list<QKeySequence::StandardKey> keys)
{
    return std::any_of(keys.begin(), keys.end(), [&](QKeySequence::StandardKey key) { return event.matches(key); });
}

bool deletesBackward(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Backspace || isAny(event, {QKeySequence::Backspace, QKeySequence::DeleteStartOfWord});
}

bool deletesForward(const QKeyEvent& event)
{
    return isAny(event, {QKeySequence::Delete, QKeySequence::DeleteEndOfWord, QKeySequence::DeleteEndOfLine});
}

/// How the caret goes by one letter or word, or no move.
QTextCursor::MoveOperation stepOf(const QKeyEvent& event)
{
    if (isAny(event, {QKeySequence::MoveToNextChar, QKeySequence::SelectNextChar}))
        return QTextCursor::Right;
    if (isAny(event, {QKeySequence::MoveToPreviousChar, QKeySequence::SelectPreviousChar}))
        return QTextCursor::Left;
    if (isAny(event, {QKeySequence::MoveToNextWord, QKeySequence::SelectNextWord}))
        return QTextCursor::WordRight;
    if (isAny(event, {QKeySequence::MoveToPreviousWord, QKeySequence::SelectPreviousWord}))
        return QTextCursor::WordLeft;
    return QTextCursor::NoMove;
}

bool isWordStep(QTextCursor::MoveOperation step)
{
    return step == QTextCursor::WordLeft || step == QTextCursor::WordRight;
}

/// Whether a word goes on over the joint before this position.
bool splitsWord(const QTextDocument& document, int position)
{
    const auto inWord = [&](int at) {
        const QChar letter = document.characterAt(at);
        return letter.isLetterOrNumber() || letter == QLatin1Char('_');
    };
    return inWord(position - 2) && inWord(position);
}

/// Some desktops let a text box delete with the keys that on a sheet make a clone and open the calculator: out of habit.
bool isSlip(const QKeyEvent& event)
{
    constexpr Qt::Key keys[] = {Qt::Key_D, Qt::Key_K, Qt::Key_U};
    return event.modifiers() == Qt::ControlModifier &&
           std::find(std::begin(keys), std::end(keys), event.key()) != std::end(keys);
}

} // namespace editor_edit_detail

LongLines* EditorEdit::lines() const
{
    return LongLines::of(*document());
}

void EditorEdit::select(int from, int to)
{
    QTextCursor cursor = textCursor();
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void EditorEdit::keyPressEvent(QKeyEvent* event)
{
    using namespace editor_edit_detail;
    if (isSlip(*event))
        return;
    if (lines() == nullptr || !lines()->any())
        return QPlainTextEdit::keyPressEvent(event);
    stepOver(*event);
    const int before = textCursor().position();
    QPlainTextEdit::keyPressEvent(event);
    const QTextCursor::MoveOperation step = stepOf(*event);
    const bool selects = (event->modifiers() & Qt::ShiftModifier) != 0;
    if (step != QTextCursor::NoMove && textCursor().position() != before)
        goOn(before, step, selects ? QTextCursor::KeepAnchor : QTextCursor::MoveAnchor);
}

// Deleting begins on the side of the joint on which the letter is.
void EditorEdit::stepOver(const QKeyEvent& event)
{
    using namespace editor_edit_detail;
    const int now = textCursor().position();
    if (textCursor().hasSelection())
        return;
    if (deletesBackward(event) && lines()->isBehindJoint(now))
        select(now - 1, now - 1);
    else if (deletesForward(event) && lines()->isBeforeJoint(now))
        select(now + 1, now + 1);
}

// A step that only crossed a joint, ends before one or in a word that goes on behind it is not done yet.
void EditorEdit::goOn(int from, QTextCursor::MoveOperation step, QTextCursor::MoveMode mode)
{
    using namespace editor_edit_detail;
    QTextCursor cursor = textCursor();
    const auto isDone = [&, start = lines()->unitOf(from)] {
        const int now = cursor.position();
        return lines()->unitOf(now) != start && !lines()->isBeforeJoint(now) &&
               !(isWordStep(step) && lines()->isBehindJoint(now) && splitsWord(*document(), now));
    };
    while (!isDone() && cursor.movePosition(step, mode))
        continue;
    if (cursor.position() != textCursor().position())
        setTextCursor(cursor);
}

// The third press takes the whole line.
void EditorEdit::mousePressEvent(QMouseEvent* event)
{
    const QTextCursor before = textCursor();
    QPlainTextEdit::mousePressEvent(event);
    const QTextCursor now = textCursor();
    const bool isNew = now.hasSelection() && now.selectionEnd() != before.selectionEnd();
    QTextBlock first = document()->findBlock(now.selectionStart());
    QTextBlock last = first;
    const bool isBlock =
        now.selectionStart() == first.position() && now.selectionEnd() == first.position() + first.length();
    if (!isNew || !isBlock || lines() == nullptr || !lines()->any())
        return;
    while (LongLines::goesOn(first))
        first = first.previous();
    while (LongLines::goesOn(last.next()))
        last = last.next();
    select(first.position(), std::min(last.position() + last.length(), document()->characterCount() - 1));
}

void EditorEdit::mouseDoubleClickEvent(QMouseEvent* event)
{
    using namespace editor_edit_detail;
    QPlainTextEdit::mouseDoubleClickEvent(event);
    if (lines() == nullptr || !lines()->any() || !textCursor().hasSelection())
        return;
    QTextCursor start(document());
    start.setPosition(textCursor().selectionStart());
    while (lines()->isBehindJoint(start.position()) && splitsWord(*document(), start.position())) {
        start.setPosition(start.position() - 1);
        start.movePosition(QTextCursor::StartOfWord);
    }
    QTextCursor end(document());
    end.setPosition(textCursor().selectionEnd());
    while (lines()->isBeforeJoint(end.position()) && splitsWord(*document(), end.position() + 1)) {
        end.setPosition(end.position() + 1);
        end.movePosition(QTextCursor::EndOfWord);
    }
    if (start.position() != textCursor().selectionStart() || end.position() != textCursor().selectionEnd())
        select(start.position(), end.position());
}

// The text alone: it has no other form.
QMimeData* EditorEdit::createMimeDataFromSelection() const
{
    if (lines() == nullptr)
        return QPlainTextEdit::createMimeDataFromSelection();
    const QTextCursor now = textCursor();
    auto* copied = new QMimeData;
    copied->setText(lines()->text(lines()->unitOf(now.selectionStart()), lines()->unitOf(now.selectionEnd())));
    return copied;
}

void EditorEdit::insertFromMimeData(const QMimeData* source)
{
    if (lines() == nullptr || source == nullptr || isReadOnly())
        return QPlainTextEdit::insertFromMimeData(source);
    QTextCursor now = textCursor();
    now.setPosition(lines()->put(now, withLineFeeds(source->text())));
    setTextCursor(now);
    ensureCursorVisible();
}

} // namespace velmor::desktop
