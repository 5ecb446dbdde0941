// SPDX-License-Identifier: MIT
// Characters and positions of a QTextDocument. A text without surrogate pairs, which is nearly every text, is counted
// unit by unit without being copied.
#include "desktop/canvas/document_store.h"

#include <algorithm>

#include <QPlainTextDocumentLayout>
#include <QTextBlock>

#include "desktop/drawing/texts.h"

namespace velmor::desktop {

namespace document_store_detail {

constexpr double margin = 12.0; ///< logical pixels around the text
/// Breaking lines at blanks takes the toolkit the square of their length: longer ones are broken anywhere.
constexpr int longestAtBlanks = 4096;

bool hasLongLine(const QString& text)
{
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype end = text.indexOf(QLatin1Char('\n'), start);
        if ((end < 0 ? text.size() : end) - start > longestAtBlanks)
            return true;
        start = end < 0 ? text.size() : end + 1;
    }
    return false;
}

QString lineFeeds(QString text)
{
    return text.replace(QChar::ParagraphSeparator, QLatin1Char('\n')).replace(QChar::LineSeparator, QLatin1Char('\n'));
}

// A carriage return or a foreign line break inside a text becomes one line break of the document.
QString oneKindOfBreak(std::string_view text)
{
    return shown(text)
        .replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

} // namespace document_store_detail

DocumentStore::DocumentStore() : cursor_(&document_)
{
    document_.setDocumentLayout(new QPlainTextDocumentLayout(&document_));
    document_.setDocumentMargin(document_store_detail::margin);
    // Told before the layout hears of the change.
    QObject::connect(&document_, &QTextDocument::contentsChange, &document_,
                     [this](int from, int, int added) { lookAt(from, added); });
}

DocumentStore::~DocumentStore()
{
    if (edit_)
        edit_->setDocument(nullptr);
}

void DocumentStore::shownBy(QPlainTextEdit* edit)
{
    edit->setWordWrapMode(wrapping_);
    edit->setDocument(&document_);
    edit->setTextCursor(cursor_);
    edit_ = edit;
}

void DocumentStore::wrap(QTextOption::WrapMode how)
{
    if (std::exchange(wrapping_, how) != how && edit_)
        edit_->setWordWrapMode(how);
}

void DocumentStore::lookAt(int from, int added)
{
    const QTextBlock last = document_.findBlock(from + added);
    for (QTextBlock block = document_.findBlock(from); block.isValid(); block = block.next()) {
        if (block.length() > document_store_detail::longestAtBlanks)
            wrap(QTextOption::WrapAnywhere);
        if (block == last)
            return;
    }
}

QTextCursor DocumentStore::cursor() const
{
    return edit_ ? edit_->textCursor() : cursor_;
}

void DocumentStore::keep(const QTextCursor& cursor)
{
    cursor_ = cursor;
    if (edit_)
        edit_->setTextCursor(cursor);
}

bool DocumentStore::plainUnits() const
{
    if (surrogatesAtRevision_ != document_.revision()) {
        surrogatesAtRevision_ = document_.revision();
        const QString text = document_.toRawText();
        surrogates_ = std::any_of(text.begin(), text.end(), [](QChar unit) { return unit.isSurrogate(); });
    }
    return !surrogates_;
}

int DocumentStore::unitOf(std::size_t character) const
{
    const int end = document_.characterCount() - 1;
    if (plainUnits())
        return static_cast<int>(std::min(character, static_cast<std::size_t>(end)));
    int unit = 0;
    for (; character > 0 && unit < end; --character)
        unit += document_.characterAt(unit).isHighSurrogate() && unit + 1 < end ? 2 : 1;
    return unit;
}

std::size_t DocumentStore::characterOf(int unit) const
{
    if (plainUnits())
        return static_cast<std::size_t>(unit);
    std::size_t character = 0;
    for (int at = 0; at < unit; ++at)
        if (!document_.characterAt(at).isLowSurrogate())
            ++character;
    return character;
}

QString DocumentStore::units(int from, int to) const
{
    QTextCursor reader(const_cast<QTextDocument*>(&document_));
    reader.setPosition(from);
    reader.setPosition(to, QTextCursor::KeepAnchor);
    return document_store_detail::lineFeeds(reader.selectedText());
}

std::size_t DocumentStore::length() const
{
    return characterOf(document_.characterCount() - 1);
}

std::string DocumentStore::slice(std::size_t from, std::size_t count) const
{
    const int start = unitOf(from);
    const int end = count > length() ? document_.characterCount() - 1 : unitOf(from + count);
    return end > start ? held(units(start, end)) : std::string();
}

std::string DocumentStore::all() const
{
    return held(document_store_detail::lineFeeds(document_.toRawText()));
}

void DocumentStore::setAll(std::string_view text)
{
    ++changing_;
    const QString whole = document_store_detail::oneKindOfBreak(text);
    wrap(document_store_detail::hasLongLine(whole) ? QTextOption::WrapAnywhere
                                                   : QTextOption::WrapAtWordBoundaryOrAnywhere);
    document_.setPlainText(whole);
    keep(QTextCursor(&document_));
    --changing_;
}

std::size_t DocumentStore::selectionStart() const
{
    return characterOf(cursor().selectionStart());
}

std::size_t DocumentStore::selectionLength() const
{
    const QTextCursor now = cursor();
    return characterOf(now.selectionEnd()) - characterOf(now.selectionStart());
}

void DocumentStore::select(std::size_t from, std::size_t count)
{
    QTextCursor now(&document_);
    now.setPosition(unitOf(from));
    now.setPosition(unitOf(from + std::min(count, length())), QTextCursor::KeepAnchor);
    keep(now);
}

void DocumentStore::replaceSelection(std::string_view text)
{
    ++changing_;
    QTextCursor now = cursor();
    now.insertText(document_store_detail::oneKindOfBreak(text));
    keep(now);
    --changing_;
}

} // namespace velmor::desktop
