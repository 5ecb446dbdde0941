// SPDX-License-Identifier: MIT
// Characters are counted over the units of the text, in which the joints of long lines have no place. A text without surrogate
// pairs, which is nearly every text, needs no counting.
#include "desktop/canvas/document_store.h"

#include <algorithm>
#include <limits>

#include <QPlainTextDocumentLayout>

#include "desktop/drawing/texts.h"

namespace velmor::desktop {

namespace document_store_detail {

constexpr double margin = 12.0;  ///< logical pixels around the text
constexpr int stretch = 1 << 14; ///< units that are counted at a time

bool hasSurrogates(const QString& text)
{
    const char16_t* const units = QStringView(text).utf16();
    return std::any_of(units, units + text.size(), [](char16_t unit) { return (unit & 0xF800U) == 0xD800U; });
}

std::size_t charactersIn(const QString& text)
{
    const auto seconds = std::count_if(text.begin(), text.end(), [](QChar unit) { return unit.isLowSurrogate(); });
    return static_cast<std::size_t>(text.size() - seconds);
}

} // namespace document_store_detail

DocumentStore::DocumentStore() : lines_(new LongLines(document_)), cursor_(&document_)
{
    document_.setDocumentLayout(new QPlainTextDocumentLayout(&document_));
    document_.setDocumentMargin(document_store_detail::margin);
    QObject::connect(&document_, &QTextDocument::contentsChange, &document_,
                     [this](int from, int, int added) { follow(from, added); });
}

DocumentStore::~DocumentStore()
{
    if (edit_)
        edit_->setDocument(nullptr);
}

void DocumentStore::shownBy(QPlainTextEdit* edit)
{
    edit->setDocument(&document_);
    edit->setTextCursor(cursor_);
    edit_ = edit;
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

// What the program puts in was looked at before.
void DocumentStore::follow(int from, int added)
{
    known_ = {};
    if (surrogates_ || programChanges())
        return;
    QTextCursor reader(&document_);
    reader.setPosition(std::min(from, document_.characterCount() - 1));
    reader.setPosition(std::min(from + added, document_.characterCount() - 1), QTextCursor::KeepAnchor);
    surrogates_ = document_store_detail::hasSurrogates(reader.selectedText());
}

DocumentStore::Known DocumentStore::knownNear(std::size_t character, int unit) const
{
    return known_.character <= character && known_.unit <= unit ? known_ : Known{};
}

int DocumentStore::unitOf(std::size_t character) const
{
    const int end = lines_->length();
    if (!surrogates_)
        return static_cast<int>(std::min(character, static_cast<std::size_t>(end)));
    Known at = knownNear(character, end);
    while (at.character < character && at.unit < end) {
        const std::size_t wanted = std::min<std::size_t>(document_store_detail::stretch, character - at.character);
        int to = std::min(end, at.unit + static_cast<int>(wanted));
        if (to < end && document_.characterAt(lines_->positionOf(to)).isLowSurrogate())
            ++to;
        at.character += document_store_detail::charactersIn(lines_->text(at.unit, to));
        at.unit = to;
    }
    return (known_ = at).unit;
}

std::size_t DocumentStore::characterOf(int unit) const
{
    if (!surrogates_)
        return static_cast<std::size_t>(unit);
    Known at = knownNear(static_cast<std::size_t>(unit), unit);
    at.character += document_store_detail::charactersIn(lines_->text(at.unit, unit));
    at.unit = unit;
    return (known_ = at).character;
}

std::size_t DocumentStore::length() const
{
    return characterOf(lines_->length());
}

std::string DocumentStore::slice(std::size_t from, std::size_t count) const
{
    const int start = unitOf(from);
    const int end = unitOf(count > std::numeric_limits<std::size_t>::max() - from ? count : from + count);
    return end > start ? held(lines_->text(start, end)) : std::string();
}

std::string DocumentStore::all() const
{
    return held(lines_->text());
}

void DocumentStore::setAll(std::string_view text)
{
    ++changing_;
    const QString whole = withLineFeeds(shown(text));
    surrogates_ = document_store_detail::hasSurrogates(whole);
    lines_->set(whole);
    keep(QTextCursor(&document_));
    --changing_;
}

std::size_t DocumentStore::selectionStart() const
{
    return characterOf(lines_->unitOf(cursor().selectionStart()));
}

std::size_t DocumentStore::selectionLength() const
{
    const QTextCursor now = cursor();
    const std::size_t start = characterOf(lines_->unitOf(now.selectionStart()));
    return characterOf(lines_->unitOf(now.selectionEnd())) - start;
}

void DocumentStore::select(std::size_t from, std::size_t count)
{
    QTextCursor now(&document_);
    const int start = unitOf(from);
    const int end = unitOf(count > std::numeric_limits<std::size_t>::max() - from ? count : from + count);
    now.setPosition(lines_->positionOf(start));
    now.setPosition(lines_->positionOf(end), QTextCursor::KeepAnchor);
    keep(now);
}

void DocumentStore::replaceSelection(std::string_view text)
{
    ++changing_;
    const QString part = withLineFeeds(shown(text));
    surrogates_ = surrogates_ || document_store_detail::hasSurrogates(part);
    QTextCursor now = cursor();
    now.setPosition(lines_->put(now, part));
    keep(now);
    --changing_;
}

} // namespace velmor::desktop
