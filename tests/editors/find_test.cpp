// SPDX-License-Identifier: MIT
// The search itself, and what the dialogs leave behind in the editor.
#include "editors/find_dialogs.h"

#include <gtest/gtest.h>

#include "editors/editor.h"
#include "program_desk.h"

namespace velmor::find_test {

using find_dialogs::findIn;
using test::ProgramDesk;

TEST(FindIn, GoesForwardFromTheStart)
{
    EXPECT_EQ(findIn(U"ana ana", U"ana", 0, false), 0U);
    EXPECT_EQ(findIn(U"ana ana", U"ana", 1, false), 4U);
    EXPECT_EQ(findIn(U"ana ana", U"ana", 5, false), std::nullopt);
    EXPECT_EQ(findIn(U"ana", U"ana", 3, false), std::nullopt);
    EXPECT_EQ(findIn(U"ana", U"ana", 99, false), std::nullopt);
    EXPECT_EQ(findIn(U"ana", U"anas", 0, false), std::nullopt);
    EXPECT_EQ(findIn(U"ana", U"", 0, false), std::nullopt);
}

TEST(FindIn, TakesTheTextToCapitalsButNotTheSearchText)
{
    EXPECT_EQ(findIn(U"la señal", U"SEÑAL", 0, true), 3U);
    EXPECT_EQ(findIn(U"la señal", U"señal", 0, true), std::nullopt);
    EXPECT_EQ(findIn(U"la SEÑAL", U"señal", 0, true), std::nullopt);
    EXPECT_EQ(findIn(U"zürich ÷ ÿ", U"ZÜRICH ÷ Ÿ", 0, true), 0U);
    EXPECT_EQ(findIn(U"cœur, šok, žena", U"CŒUR, ŠOK, ŽENA", 0, true), 0U);
    EXPECT_EQ(findIn(U"×", U"×", 0, true), 0U);
}

host::TextStore& editorWith(ProgramDesk& desk, std::string_view text)
{
    host::Window& editor = desk.show("frmEdito1");
    desk.write(editor, "txtEdit", text);
    editor.store(editors::txtEdit).select(0, 0);
    return editor.store(editors::txtEdit);
}

TEST(FindDialog, LeavesTheHitSelected)
{
    ProgramDesk desk;
    host::TextStore& text = editorWith(desk, "uno dos tres dos");
    host::Window& dialog = desk.show("frmFind");
    desk.write(dialog, "txtFind", "dos");
    desk.click(dialog, "cmdFind");
    EXPECT_EQ(text.selectionStart(), 4U);
    EXPECT_EQ(text.selectionLength(), 3U);
    desk.show("frmFind");
    desk.click(dialog, "cmdFind");
    EXPECT_EQ(text.selectionStart(), 13U);
    EXPECT_EQ(text.selectionLength(), 3U);
}

TEST(FindDialog, LeavesTheCaretAtTheEndWhenThereIsNoHit)
{
    ProgramDesk desk;
    host::TextStore& text = editorWith(desk, "uno dos");
    host::Window& dialog = desk.show("frmFind");
    desk.write(dialog, "txtFind", "tres");
    desk.click(dialog, "cmdFind");
    EXPECT_EQ(text.selectionStart(), 7U);
    EXPECT_EQ(text.selectionLength(), 0U);
    EXPECT_EQ(desk.screen.boxes.size(), 1U);
}

TEST(FindDialog, FindsAcrossLinesAndBeyondTheFirstPlaneOfCharacters)
{
    ProgramDesk desk;
    host::TextStore& text = editorWith(desk, "\U0001F98B mariposa\nΩ");
    host::Window& dialog = desk.show("frmFind");
    desk.write(dialog, "txtFind", "Ω");
    desk.click(dialog, "cmdFind");
    EXPECT_EQ(text.selectionStart(), 11U);
    EXPECT_EQ(text.selectionLength(), 1U);
}

TEST(FindDialog, StandsAtTheTopAndIsNarrow)
{
    ProgramDesk desk;
    const host::Place& place = desk.show("frmFind").place();
    EXPECT_EQ(place.top, 48);
    EXPECT_EQ(place.width, 200);
}

TEST(ReplaceDialog, LeavesTheCaretBehindTheNewText)
{
    ProgramDesk desk;
    host::TextStore& text = editorWith(desk, "uno dos");
    host::Window& dialog = desk.show("frmReplace");
    desk.write(dialog, "txtFind", "uno");
    desk.write(dialog, "txtReplace", "cuatro");
    desk.click(dialog, "cmdReplace");
    EXPECT_EQ(text.all(), "cuatro dos");
    EXPECT_EQ(text.selectionStart(), 6U);
    EXPECT_EQ(text.selectionLength(), 0U);
}

} // namespace velmor::find_test
