// SPDX-License-Identifier: MIT
// Whatever moves, comes and goes: what a window shows is what a painting of all of it would show.
#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QScrollBar>
#include <QTest>

#include "desktop/canvas/editor_edit.h"
#include "desktop/desktop_fixture.h"
#include "desktop/fire/stale_picture.h"

namespace velmor::test::picture_test {

struct PictureTest : ::testing::Test {
    void SetUp() override
    {
        on.open();
        sheets = {&on.sheet(), &on.newSheet(), &on.newSheet()};
    }
    desktop::ChildFrame& frame(std::size_t which)
    {
        return dynamic_cast<desktop::ChildFrame&>(*on.screen.keeper().frameOf(*sheets[which]));
    }
    /// What was to happen has happened, and the main window shows what it should.
    void rest(const std::string& after)
    {
        Bench::settle();
        EXPECT_EQ(stalePictureOf(on.main()), "") << after;
    }

    Bench on;
    std::vector<host::Window*> sheets;
};

// The toolkit would copy what stands on the screen to the new place, and then paint over what came between.
TEST_F(PictureTest, framesThatMoveTogetherAreSeenWhereTheyAre)
{
    frame(1).setGeometry(300, 100, 500, 300);
    frame(2).setGeometry(500, 200, 500, 300);
    rest("one over the other");
    frame(2).move(148, 45);
    frame(2).move(800, 340);
    frame(1).move(20, 237);
    rest("both moved");
}

// A figure of ten digits where three were meant: the text takes more lines than its place has.
TEST_F(PictureTest, whatHangsOverItsPlaceGoesWhole)
{
    std::string tooLong = "EQ4";
    for (int part = 0; part < 12; ++part)
        tooLong += " = 1000000244.33 V";
    host::Window& sheet = *sheets[2];
    const auto changed = [&](const std::string& how, const std::function<void()>& deed) {
        on.engine.userRun(deed);
        rest(how);
    };
    for (const bool paintedWhole : {false, true}) {
        changed("written", [&] { sheet.setText(bench::Label1, tooLong); });
        if (paintedWhole) {
            on.main().resize(on.main().size() - QSize(60, 40));
            rest("another size");
        }
        changed("short again", [&] { sheet.setText(bench::Label1, "4 V"); });
        changed("written again", [&] { sheet.setText(bench::Label1, tooLong); });
        changed("hidden", [&] { sheet.setVisible(bench::Label1, false); });
        changed("shown", [&] { sheet.setVisible(bench::Label1, true); });
    }
}

// Scrolled by a part of a line: the toolkit would clear the first row of the line below the one that changes, and paint nothing.
TEST(EditorPictureTest, theLineBelowTheOneThatIsWrittenInKeepsItsMarks)
{
    desktop::EditorEdit edit;
    QString text;
    for (int line = 0; line < 40; ++line)
        text += QStringLiteral("uno dos tres cuatro ").repeated(1 + 4 * (line % 3 / 2)) + QLatin1Char('\n');
    edit.setPlainText(text);
    QList<QTextEdit::ExtraSelection> marks;
    for (int at = 0; at < text.size(); ++at)
        if (text[at] == QLatin1Char(' ')) {
            QTextEdit::ExtraSelection mark;
            mark.cursor = QTextCursor(edit.document());
            mark.cursor.setPosition(at);
            mark.cursor.setPosition(at + 1, QTextCursor::KeepAnchor);
            mark.format.setBackground(Qt::darkBlue);
            marks.push_back(mark);
        }
    edit.setExtraSelections(marks);
    edit.show();
    for (int width = 160; width < 400; width += 20) {
        edit.resize(520, 440);
        edit.moveCursor(QTextCursor::End);
        edit.centerCursor();
        Bench::settle();
        edit.resize(width, 460 + width % 90);
        Bench::settle();
        edit.ensureCursorVisible();
        for (int line = 0; line < 5; ++line) {
            edit.moveCursor(QTextCursor::Up);
            Bench::settle();
            QTest::keyClick(&edit, Qt::Key_A);
            Bench::settle();
            ASSERT_EQ(stalePictureOf(edit), "") << width << ", " << line << " lines up";
        }
    }
}

/// A text of capitals with accents, which reach out of their lines.
struct AccentTest : ::testing::Test {
    void SetUp() override
    {
        QFont font(QStringLiteral("DejaVu Serif"));
        font.setPointSizeF(9.0);
        edit.setFont(font);
        const QFontMetrics metrics(font);
        ASSERT_GE(-metrics.tightBoundingRect(QStringLiteral("\u00D3")).top(), metrics.ascent() + 2);
        edit.setPlainText(QStringLiteral("\u00C1\u00C9\u00CD\u00D3\u00DA \u00C7\u0118\u0104\n").repeated(200));
        edit.resize(300, 203);
        edit.show();
        Bench::settle();
    }
    void rest(const std::string& after)
    {
        Bench::settle();
        EXPECT_EQ(stalePictureOf(edit), "") << after;
    }

    desktop::EditorEdit edit;
};

TEST_F(AccentTest, theirAccentsComeAlongWhereTheTextIsScrolled)
{
    for (const int lines : {1, 1, 3, 1, -1, -1, 5, -2, -1, -3, 40, -1, 1}) {
        edit.verticalScrollBar()->setValue(edit.verticalScrollBar()->value() + lines);
        rest(std::to_string(edit.verticalScrollBar()->value()));
    }
    edit.moveCursor(QTextCursor::End);
    for (int line = 0; line < 30; ++line) {
        edit.moveCursor(QTextCursor::Up);
        rest(std::to_string(line) + " lines up");
    }
}

TEST_F(AccentTest, theirAccentsComeAndGoWithTheLetters)
{
    edit.setPlainText(QString(20, QLatin1Char('\n')));
    for (int line = 0; line < 3; ++line) {
        edit.moveCursor(QTextCursor::Down);
        for (const char* letter : {"\u00D3", "\u01D5", "\u01DE"}) {
            edit.insertPlainText(QString::fromUtf8(letter));
            rest(std::string(letter) + " written");
        }
        edit.moveCursor(QTextCursor::StartOfLine, QTextCursor::KeepAnchor);
        QTest::keyClick(&edit, Qt::Key_Delete);
        rest("all deleted");
    }
}

} // namespace velmor::test::picture_test
