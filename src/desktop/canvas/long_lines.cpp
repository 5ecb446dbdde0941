// SPDX-License-Identifier: MIT
// A change is followed while the document tells of it and put right when it is over, as part of the same step of undo. A step
// that undo or redo plays was put right when it was made.
#include "desktop/canvas/long_lines.h"

#include <algorithm>
#include <utility>

#include <QScopedValueRollback>
#include <QStringView>
#include <QTextDocument>

namespace velmor::desktop {

namespace long_lines_detail {

constexpr int jointProperty = QTextFormat::UserProperty + 1;
constexpr int lookBack = LongLines::usualPiece / 4; ///< units in which a blank is looked for
constexpr int longestCluster = 32;                  ///< units that may belong to one letter

QTextCharFormat jointFormat()
{
    QTextCharFormat format;
    format.setProperty(jointProperty, true);
    return format;
}

/// Whether a letter may go on here: half of a pair, an accent, a joiner.
bool insideLetter(QStringView line, qsizetype at)
{
    constexpr char16_t joiner = 0x200D;
    const QChar next = line[at];
    return next.isLowSurrogate() || next.isMark() || next == QChar(joiner) || line[at - 1] == QChar(joiner);
}

/// Where a line that is too long is cut: behind the last blank that is near enough, else between two letters.
qsizetype cutOf(QStringView line)
{
    const qsizetype most = std::min<qsizetype>(line.size(), LongLines::usualPiece);
    const qsizetype blank = line.first(most).lastIndexOf(QLatin1Char(' '));
    if (blank >= most - lookBack)
        return blank + 1;
    qsizetype cut = most;
    while (cut > most - longestCluster && insideLetter(line, cut))
        --cut;
    return cut;
}

qsizetype endOfLine(const QString& text, qsizetype from)
{
    const qsizetype end = text.indexOf(QLatin1Char('\n'), from);
    return end < 0 ? text.size() : end;
}

bool wantsJoining(const QTextBlock& block)
{
    const int before = block.previous().length() - 1;
    const int own = block.length() - 1;
    return before == 0 || own == 0 || before + own <= LongLines::shortestPair;
}

/// What is put right belongs to the change before it; nothing to put right leaves no trace.
class Mender {
public:
    explicit Mender(QTextDocument& document) : cursor_(&document) {}
    ~Mender()
    {
        if (begun_)
            cursor_.endEditBlock();
    }
    Mender(const Mender&) = delete;
    Mender& operator=(const Mender&) = delete;

    // A letter written right behind a joint may have taken on its mark.
    void scrub(const QTextBlock& block)
    {
        std::vector<std::pair<int, int>> marked;
        for (QTextBlock::iterator at = block.begin(); !at.atEnd(); ++at)
            if (at.fragment().charFormat().hasProperty(jointProperty))
                marked.emplace_back(at.fragment().position(), at.fragment().length());
        for (const auto& [position, length] : marked)
            select(position, position + length).setCharFormat(QTextCharFormat());
    }

    void join(const QTextBlock& block) { select(block.position() - 1, block.position()).removeSelectedText(); }

    /// Gives back how many joints it made.
    int breakUp(const QTextBlock& block)
    {
        const QString line = block.text();
        int position = block.position();
        int joints = 0;
        for (QStringView rest = line; rest.size() >= LongLines::longestPiece; ++joints) {
            const qsizetype cut = cutOf(rest);
            rest = rest.mid(cut);
            position += static_cast<int>(cut);
            select(position, position).insertBlock(cursor_.blockFormat(), jointFormat());
            ++position;
        }
        return joints;
    }

private:
    QTextCursor& select(int from, int to)
    {
        if (!std::exchange(begun_, true))
            cursor_.joinPreviousEditBlock();
        cursor_.setPosition(from);
        cursor_.setPosition(to, QTextCursor::KeepAnchor);
        return cursor_;
    }

    QTextCursor cursor_;
    bool begun_ = false;
};

} // namespace long_lines_detail

// In one pass over the bare units: replacing the pairs one after the other would move the rest of a long text each time, and
// a call for each letter is felt in ten million of them.
QString withLineFeeds(QString text)
{
    QChar* const written = text.data();
    const char16_t* const units = QStringView(text).utf16();
    const qsizetype size = text.size();
    qsizetype put = 0;
    for (qsizetype i = 0; i < size; ++i) {
        const char16_t unit = units[i];
        if (unit == u'\r' && i + 1 < size && units[i + 1] == u'\n')
            continue;
        const bool isBreak = unit == u'\r' || unit == QChar::ParagraphSeparator || unit == QChar::LineSeparator;
        written[put++] = isBreak ? u'\n' : unit;
    }
    text.truncate(put);
    return text;
}

LongLines::LongLines(QTextDocument& document) : QObject(&document), document_(document)
{
    connect(&document, &QTextDocument::contentsChange, this, &LongLines::follow);
    connect(&document, &QTextDocument::contentsChanged, this, qOverload<>(&LongLines::settle));
}

LongLines* LongLines::of(const QTextDocument& document)
{
    return document.findChild<LongLines*>(QString(), Qt::FindDirectChildrenOnly);
}

bool LongLines::goesOn(const QTextBlock& block)
{
    return block.position() > 0 && block.charFormat().hasProperty(long_lines_detail::jointProperty);
}

int LongLines::length() const
{
    return unitOf(document_.characterCount() - 1);
}

int LongLines::unitOf(int position) const
{
    return position - static_cast<int>(std::lower_bound(joints_.begin(), joints_.end(), position) - joints_.begin());
}

// The joint of number n, counted from 0, lies before unit joints_[n] - n.
int LongLines::positionOf(int unit) const
{
    int low = 0;
    int high = static_cast<int>(joints_.size());
    while (low < high) {
        const int middle = (low + high) / 2;
        if (joints_[static_cast<std::size_t>(middle)] - middle <= unit)
            low = middle + 1;
        else
            high = middle;
    }
    return unit + low;
}

QString LongLines::text(int from, int to) const
{
    QTextCursor reader(&document_);
    const int start = positionOf(from);
    reader.setPosition(start);
    reader.setPosition(positionOf(to), QTextCursor::KeepAnchor);
    QString stretch = reader.selectedText();
    auto joint = std::lower_bound(joints_.begin(), joints_.end(), start);
    if (joint != joints_.end() && *joint < reader.position()) {
        QString whole;
        whole.reserve(stretch.size());
        qsizetype taken = 0;
        for (; joint != joints_.end() && *joint < reader.position(); ++joint) {
            whole += QStringView(stretch).mid(taken, *joint - start - taken);
            taken = *joint - start + 1;
        }
        stretch = whole += QStringView(stretch).mid(taken);
    }
    return withLineFeeds(std::move(stretch));
}

bool LongLines::isBeforeJoint(int position) const
{
    return std::binary_search(joints_.begin(), joints_.end(), position);
}

int LongLines::put(QTextCursor cursor, const QString& text)
{
    const QScopedValueRollback<bool> busy(working_, true);
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    const int from = cursor.position();
    insert(cursor, text);
    cursor.endEditBlock();
    mend(cursor.position(), cursor.position());
    mend(from, from);
    return cursor.position();
}

void LongLines::set(const QString& text)
{
    const bool undoes = document_.isUndoRedoEnabled();
    document_.setUndoRedoEnabled(false);
    {
        const QScopedValueRollback<bool> busy(working_, true);
        joints_.clear();
        everJoined_ = false;
        QTextCursor cursor(&document_);
        cursor.beginEditBlock();
        document_.clear();
        insert(cursor, text);
        cursor.endEditBlock();
    }
    document_.setUndoRedoEnabled(undoes);
}

// Short lines go in together; the format is given, for the letters behind a joint must not take on its mark.
void LongLines::insert(QTextCursor& cursor, const QString& text)
{
    using namespace long_lines_detail;
    const QTextCharFormat plain;
    qsizetype waiting = 0;
    for (qsizetype start = 0; start < text.size(); start = endOfLine(text, start) + 1) {
        const qsizetype end = endOfLine(text, start);
        for (; end - start >= longestPiece; waiting = start) {
            everJoined_ = true;
            start += cutOf(QStringView(text).mid(start, end - start));
            cursor.insertText(text.mid(waiting, start - waiting), plain);
            cursor.insertBlock(cursor.blockFormat(), jointFormat());
        }
    }
    if (waiting < text.size())
        cursor.insertText(waiting == 0 ? text : text.mid(waiting), plain);
}

void LongLines::follow(int from, int removed, int added)
{
    if (!working_) {
        const bool first = changedTo_ < changedFrom_;
        changedFrom_ = first ? from : std::min(from, changedFrom_);
        changedTo_ = first ? from + added : std::max(from + added, changedTo_ + added - removed);
    }
    if (!everJoined_)
        return;
    const auto begin = std::lower_bound(joints_.begin(), joints_.end(), from);
    const auto end = std::lower_bound(begin, joints_.end(), from + removed);
    for (auto later = end; later != joints_.end(); ++later)
        *later += added - removed;
    std::vector<int> found;
    for (QTextBlock block = document_.findBlock(from).next(); block.isValid() && block.position() <= from + added;
         block = block.next())
        if (goesOn(block))
            found.push_back(block.position() - 1);
    joints_.insert(joints_.erase(begin, end), found.begin(), found.end());
}

void LongLines::settle()
{
    if (working_ || changedTo_ < changedFrom_)
        return;
    const int from = std::exchange(changedFrom_, 0);
    const int to = std::exchange(changedTo_, -1);
    if (everJoined_ || document_.characterCount() > longestPiece)
        mend(from, to);
}

// While a step can be played again the one at hand was itself played.
void LongLines::mend(int from, int to)
{
    using namespace long_lines_detail;
    if (document_.isRedoAvailable())
        return;
    const QScopedValueRollback<bool> busy(working_, true);
    Mender mender(document_);
    QTextBlock block = document_.findBlock(from);
    if (const QTextBlock behind = document_.findBlock(to).next(); behind.isValid())
        to = behind.position();
    while (block.isValid() && block.position() <= to) {
        const int start = block.position();
        mender.scrub(block);
        if (goesOn(block) && wantsJoining(block)) {
            mender.join(block);
            block = document_.findBlock(start - 1);
            --to;
        } else if (block.length() > longestPiece) {
            everJoined_ = true;
            const int pieces = mender.breakUp(block);
            to += pieces;
            block = document_.findBlock(start);
            for (int piece = 0; piece <= pieces; ++piece)
                block = block.next();
        } else {
            block = block.next();
        }
    }
}

} // namespace velmor::desktop
