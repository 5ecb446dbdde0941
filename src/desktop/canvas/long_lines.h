// SPDX-License-Identifier: MIT
// A line of any length in a document whose toolkit lays out a whole block at each key: it is held as blocks of bounded length.
// The break between two of them is a joint, marked in the format of its separator, which undo and redo bring back with it. No
// text that leaves the document and no position that is told to anybody counts a joint. Knows no widget.
#pragma once

#include <vector>

#include <QObject>
#include <QTextBlock>
#include <QTextCursor>

class QTextDocument;

namespace velmor::desktop {

/// A carriage return or a foreign line break inside a text becomes one line feed.
QString withLineFeeds(QString text);

class LongLines final : public QObject {
    Q_OBJECT

public:
    static constexpr int longestPiece = 4096; ///< units; a longer one is broken
    static constexpr int usualPiece = 3072;   ///< of what is put in as a whole
    static constexpr int shortestPair = 1024; ///< two pieces that are no longer become one

    explicit LongLines(QTextDocument& document);
    /// Those of a document; none when its lines are blocks, whatever their length.
    static LongLines* of(const QTextDocument& document);
    /// Whether the block goes on with the line of the block before it.
    static bool goesOn(const QTextBlock& block);

    bool any() const { return !joints_.empty(); }

    /// Units of the text, joints left out.
    int length() const;
    /// Where in the text a position of the document lies, and back: behind a joint, never before it.
    int unitOf(int position) const;
    int positionOf(int unit) const;
    /// The text between two units, with line feeds.
    QString text(int from, int to) const;
    QString text() const { return text(0, length()); }
    /// Whether a joint lies right behind a position of the document, or right before it.
    bool isBeforeJoint(int position) const;
    bool isBehindJoint(int position) const { return isBeforeJoint(position - 1); }

    /// Puts a text with line feeds in place of the cursor's selection, as one step of undo; gives back where it ends.
    int put(QTextCursor cursor, const QString& text);
    /// A new text, without a way back.
    void set(const QString& text);

private:
    void follow(int from, int removed, int added);
    void insert(QTextCursor& cursor, const QString& text);
    void settle();
    void mend(int from, int to);

    QTextDocument& document_;
    std::vector<int> joints_; ///< positions of their separators, ascending
    bool everJoined_ = false;
    bool working_ = false;
    int changedFrom_ = 0; ///< positions; what is to be looked at when the change is over
    int changedTo_ = -1;
};

} // namespace velmor::desktop
