// SPDX-License-Identifier: MIT
// All hits are found in one pass over the text, a long one in stretches between which keys are heard; of their marks only those in
// view are made, so that a text of ten megabytes scrolls as a short one does. Hits are counted in units of the text, in which the
// joints of a long line have no place.
#include "desktop/windows/search_line.h"

#include <algorithm>
#include <utility>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "desktop/canvas/long_lines.h"
#include "desktop/drawing/texts.h"
#include "host/bitext.h"

namespace velmor::desktop {

namespace search_line_detail {

constexpr int pause = 150;              ///< milliseconds between the last change and a new search
constexpr int shortText = 1 << 18;      ///< units; a text up to there is searched at once
constexpr int stretch = 1 << 19;        ///< units that are searched at a time
constexpr std::size_t mostMarks = 2000; ///< in view
constexpr double markInk = 0.25;        ///< how much of the accent lies behind a hit
constexpr int lettersOfField = 28;
constexpr int fewestOfField = 7; ///< where a narrow window leaves no room for more
constexpr int wish = 100;        ///< of a field for room, where the empty end of its row has 1

// clang-format off
constexpr host::BiText lookFor   {"Buscar en el texto",   "Find in the text"};
constexpr host::BiText putInstead{"Reemplazar con",       "Replace with"};
constexpr host::BiText previous  {"Anterior",            "Previous"};
constexpr host::BiText next      {"Siguiente",           "Next"};
constexpr host::BiText away      {"Cerrar",              "Close"};
constexpr host::BiText one       {"Reemplazar",          "Replace"};
constexpr host::BiText all       {"Reemplazar todo",     "Replace all"};
constexpr host::BiText hitOf   {"%1 de %2",             "%1 of %2"};
constexpr host::BiText hitsInAll     {"%2 veces",             "%2 times"};
constexpr host::BiText nowhere   {"No está en el texto",  "Not in the text"};
constexpr host::BiText around    {"%1 de %2, dando la vuelta", "%1 of %2, round again"};
// clang-format on

QString inLanguage(const host::BiText& text, bool english)
{
    return shown(english ? text.en : text.es);
}

QTextCharFormat markFormat(const Inks& inks)
{
    QColor ground = inks.accent;
    ground.setAlphaF(markInk);
    QTextCharFormat format;
    format.setBackground(ground);
    format.setUnderlineStyle(QTextCharFormat::SingleUnderline);
    format.setUnderlineColor(inks.accent);
    return format;
}

QString wholeOf(const QPlainTextEdit& text)
{
    const LongLines* lines = LongLines::of(*text.document());
    return lines != nullptr ? lines->text() : text.toPlainText();
}

int unitOf(const QPlainTextEdit& text, int position)
{
    const LongLines* lines = LongLines::of(*text.document());
    return lines != nullptr ? lines->unitOf(position) : position;
}

QTextCursor stretchOf(const QPlainTextEdit& text, int from, int to)
{
    const LongLines* lines = LongLines::of(*text.document());
    QTextCursor cursor(text.document());
    cursor.setPosition(lines != nullptr ? lines->positionOf(from) : from);
    cursor.setPosition(lines != nullptr ? lines->positionOf(to) : to, QTextCursor::KeepAnchor);
    return cursor;
}

/// The unit of the text that lies under a point of the view.
int unitAt(const QPlainTextEdit& text, QPoint point)
{
    return unitOf(text, text.cursorForPosition(point).position());
}

void replaceWith(const QPlainTextEdit& text, QTextCursor cursor, const QString& words)
{
    if (LongLines* lines = LongLines::of(*text.document()))
        lines->put(std::move(cursor), words);
    else
        cursor.insertText(words);
}

} // namespace search_line_detail

SearchLine::SearchLine(QPlainTextEdit& text, const Inks& inks, bool english, QWidget* parent)
    : QWidget(parent), text_(&text), editor_(&text), viewport_(text.viewport()), inks_(&inks), english_(english),
      wanted_(new QLineEdit), instead_(new QLineEdit), told_(new QLabel), replacing_(new QWidget),
      back_(addButton("searchBack")), on_(addButton("searchOn")), away_(addButton("searchAway")),
      one_(addButton("searchReplace")), all_(addButton("searchReplaceAll"))
{
    setObjectName(QStringLiteral("searchLine"));
    setAutoFillBackground(true);
    wanted_->setObjectName(QStringLiteral("searchWanted"));
    instead_->setObjectName(QStringLiteral("searchInstead"));
    told_->setObjectName(QStringLiteral("searchTold"));
    told_->setTextFormat(Qt::PlainText);
    layOut();
    later_.setSingleShot(true);
    connect(&later_, &QTimer::timeout, this, [this] { look(); });
    connect(&onward_, &QTimer::timeout, this, [this] { lookOn(); });
    connect(wanted_, &QLineEdit::textChanged, this, [this] { lookLater(); });
    connect(text.document(), &QTextDocument::contentsChanged, this, [this] {
        if (isVisible())
            lookLater();
    });
    connect(text.verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { markHits(); });
    connect(&text, &QPlainTextEdit::selectionChanged, this, [this] { tell(); });
    connect(back_, &QPushButton::clicked, this, [this] { go(Way::backward); });
    connect(on_, &QPushButton::clicked, this, [this] { go(Way::forward); });
    connect(away_, &QPushButton::clicked, this, [this] { close(); });
    connect(one_, &QPushButton::clicked, this, [this] { replace(); });
    connect(all_, &QPushButton::clicked, this, [this] { replaceAll(); });
    for (QWidget* part : std::initializer_list<QWidget*>{wanted_, instead_, back_, on_, one_, all_, away_})
        part->installEventFilter(this);
    text.installEventFilter(this);
    text.viewport()->installEventFilter(this);
    setInks(inks);
    write();
    hide();
}

QPushButton* SearchLine::addButton(const char* name)
{
    auto* button = new QPushButton;
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

void SearchLine::layOut()
{
    using namespace search_line_detail;
    for (QLineEdit* edit : {wanted_, instead_}) {
        const int letter = edit->fontMetrics().averageCharWidth();
        edit->setMinimumWidth(letter * fewestOfField);
        edit->setMaximumWidth(letter * lettersOfField);
    }
    auto* looking = new QHBoxLayout;
    for (QWidget* part : std::initializer_list<QWidget*>{wanted_, back_, on_, told_})
        looking->addWidget(part, part == wanted_ ? wish : 0);
    looking->addStretch(1);
    looking->addWidget(away_);
    auto* putting = new QHBoxLayout(replacing_);
    putting->setContentsMargins(0, 0, 0, 0);
    for (QWidget* part : std::initializer_list<QWidget*>{instead_, one_, all_})
        putting->addWidget(part, part == instead_ ? wish : 0);
    putting->addStretch(1);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(10, 6, 10, 6);
    rows->setSpacing(6);
    rows->addLayout(looking);
    rows->addWidget(replacing_);
    // From what is looked for to what is put instead, as a hand writes them, then the buttons.
    QWidget* before = wanted_;
    for (QWidget* part : std::initializer_list<QWidget*>{instead_, back_, on_, one_, all_, away_}) {
        setTabOrder(before, part);
        before = part;
    }
}

void SearchLine::write()
{
    using namespace search_line_detail;
    wanted_->setAccessibleName(inLanguage(lookFor, english_));
    wanted_->setPlaceholderText(inLanguage(lookFor, english_));
    instead_->setAccessibleName(inLanguage(putInstead, english_));
    instead_->setPlaceholderText(inLanguage(putInstead, english_));
    back_->setText(inLanguage(previous, english_));
    on_->setText(inLanguage(next, english_));
    away_->setText(inLanguage(away, english_));
    one_->setText(inLanguage(one, english_));
    all_->setText(inLanguage(all, english_));
    tell();
}

void SearchLine::speak(bool english)
{
    english_ = english;
    write();
}

void SearchLine::setInks(const Inks& inks)
{
    inks_ = &inks;
    QPalette colors = palette();
    colors.setColor(QPalette::Window, inks.voice);
    colors.setColor(QPalette::WindowText, inks.ink);
    colors.setColor(QPalette::Base, inks.field);
    colors.setColor(QPalette::Text, inks.fieldInk);
    colors.setColor(QPalette::PlaceholderText, inks.quiet);
    setPalette(colors);
    markHits();
}

bool SearchLine::hasKeyboard() const
{
    const QWidget* now = focusWidget();
    return isVisible() && now != nullptr && now->hasFocus();
}

void SearchLine::open(bool replacing)
{
    if (!text_)
        return;
    const QString selected = text_->textCursor().selectedText();
    replacing_->setVisible(replacing);
    show();
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator) && !hasKeyboard())
        wanted_->setText(selected);
    wanted_->setFocus(Qt::ShortcutFocusReason);
    wanted_->selectAll();
    look();
}

void SearchLine::close()
{
    later_.stop();
    onward_.stop();
    hits_.clear();
    hide();
    markHits();
    if (text_)
        text_->setFocus(Qt::OtherFocusReason);
}

void SearchLine::go(Way way)
{
    if (wanted_->text().isEmpty()) {
        open(replacing_->isVisibleTo(this));
        return;
    }
    if (isHidden())
        show();
    if (later_.isActive() || hits_.empty() || length_ != wanted_->text().size())
        look();
    if (!text_)
        return;
    const auto [from, to] = selected();
    lookBehind(way == Way::forward ? to : from);
    if (way == Way::backward && (hits_.empty() || hits_.front() >= from))
        lookToTheEnd();
    step(way);
}

// A long text is searched when the student pauses, not at each letter.
void SearchLine::lookLater()
{
    wrapped_ = false;
    onward_.stop();
    if (text_ && text_->document()->characterCount() > search_line_detail::shortText)
        later_.start(search_line_detail::pause);
    else
        look();
}

void SearchLine::look()
{
    later_.stop();
    hits_.clear();
    length_ = static_cast<int>(wanted_->text().size());
    at_ = 0;
    whole_ = text_ && length_ > 0 ? search_line_detail::wholeOf(*text_) : QString();
    lookOn();
}

// Small and capital letters are the same here; a hit begins behind the end of the one before.
void SearchLine::lookOn()
{
    const int end = static_cast<int>(std::min<qsizetype>(whole_.size(), at_ + search_line_detail::stretch));
    const QStringView searched = QStringView(whole_).first(std::min<qsizetype>(whole_.size(), end + length_ - 1));
    const QString wanted = wanted_->text();
    while (at_ < end) {
        const qsizetype hit = searched.indexOf(wanted, at_, Qt::CaseInsensitive);
        if (hit >= 0)
            hits_.push_back(static_cast<int>(hit));
        at_ = hit < 0 ? end : static_cast<int>(hit) + length_;
    }
    if (at_ < whole_.size()) {
        onward_.start(0);
    } else {
        onward_.stop();
        whole_.clear();
        markHits();
        tell();
    }
}

// As far as a step forward must know; the rest is counted between the next keys.
void SearchLine::lookBehind(int unit)
{
    while (onward_.isActive() && (hits_.empty() || hits_.back() < unit))
        lookOn();
}

void SearchLine::lookToTheEnd()
{
    if (later_.isActive())
        look();
    while (onward_.isActive())
        lookOn();
}

// To say where a mark stands the toolkit breaks the lines around it, which may scroll the text, and so have the marks asked for
// anew while the old ones are still gone through: they come right after.
void SearchLine::markHits()
{
    if (std::exchange(marking_, true)) {
        markAgain_ = true;
        return;
    }
    markAgain_ = false;
    markInSight();
    if (std::exchange(markAgain_, false))
        markInSight();
    marking_ = false;
}

void SearchLine::markInSight()
{
    using namespace search_line_detail;
    if (!text_)
        return;
    QList<QTextEdit::ExtraSelection> marks;
    if (!hits_.empty() && isVisible()) {
        const int from = unitAt(*text_, QPoint(0, 0)) - length_;
        const int to = unitAt(*text_, QPoint(text_->viewport()->width(), text_->viewport()->height()));
        const QTextCharFormat format = markFormat(*inks_);
        for (auto hit = std::lower_bound(hits_.begin(), hits_.end(), from);
             hit != hits_.end() && *hit <= to && static_cast<std::size_t>(marks.size()) < mostMarks; ++hit)
            marks.append({stretchOf(*text_, *hit, *hit + length_), format});
    }
    text_->setExtraSelections(marks);
}

/// The units between which the selection lies.
std::pair<int, int> SearchLine::selected() const
{
    const QTextCursor cursor = text_->textCursor();
    return {search_line_detail::unitOf(*text_, cursor.selectionStart()),
            search_line_detail::unitOf(*text_, cursor.selectionEnd())};
}

void SearchLine::select(int hit)
{
    text_->setTextCursor(search_line_detail::stretchOf(*text_, hit, hit + length_));
    text_->ensureCursorVisible();
    markHits();
    tell();
}

/// Number of the hit that is selected, counted from 0; -1 for none.
int SearchLine::hitInHand() const
{
    const auto [from, to] = selected();
    if (to - from != length_)
        return -1;
    const auto at = std::lower_bound(hits_.begin(), hits_.end(), from);
    return at != hits_.end() && *at == from ? static_cast<int>(at - hits_.begin()) : -1;
}

void SearchLine::tell()
{
    using namespace search_line_detail;
    if (!text_ || isHidden())
        return;
    QString words; // none while hits are still counted
    const int inHand = hits_.empty() ? -1 : hitInHand();
    if (onward_.isActive())
        words.clear();
    else if (!wanted_->text().isEmpty() && hits_.empty())
        words = inLanguage(nowhere, english_);
    else if (inHand >= 0)
        words = inLanguage(wrapped_ ? around : hitOf, english_).arg(inHand + 1).arg(hits_.size());
    else if (!hits_.empty())
        words = inLanguage(hitsInAll, english_).replace(QStringLiteral("%2"), QString::number(hits_.size()));
    told_->setText(words);
    const bool any = !hits_.empty();
    for (QPushButton* button : {back_, on_, one_, all_})
        button->setEnabled(any);
}

void SearchLine::step(Way way)
{
    if (!text_ || hits_.empty())
        return;
    const auto [from, to] = selected();
    auto hit = hits_.end();
    if (way == Way::forward) {
        hit = std::lower_bound(hits_.begin(), hits_.end(), hitInHand() >= 0 ? to : from);
        wrapped_ = hit == hits_.end();
        if (wrapped_)
            hit = hits_.begin();
    } else {
        hit = std::lower_bound(hits_.begin(), hits_.end(), from);
        wrapped_ = hit == hits_.begin();
        hit = std::prev(wrapped_ ? hits_.end() : hit);
    }
    select(*hit);
}

// The hit in hand gives way, and the next one comes into hand; without one in hand the next is looked for first.
void SearchLine::replace()
{
    if (later_.isActive())
        look();
    if (!text_)
        return;
    lookBehind(selected().second);
    if (!hits_.empty() && hitInHand() >= 0) {
        search_line_detail::replaceWith(*text_, text_->textCursor(), instead_->text());
        look();
    }
    lookBehind(selected().second);
    step(Way::forward);
}

// All that lies between the first hit and the last is put in anew: a million hits are one change, and one undo takes it back.
void SearchLine::replaceAll()
{
    lookToTheEnd();
    if (!text_ || hits_.empty())
        return;
    const int from = hits_.front();
    const int to = hits_.back() + length_;
    const QString old = search_line_detail::wholeOf(*text_);
    QString words;
    int taken = from;
    for (const int hit : hits_) {
        words += QStringView(old).mid(taken, hit - taken);
        words += instead_->text();
        taken = hit + length_;
    }
    search_line_detail::replaceWith(*text_, search_line_detail::stretchOf(*text_, from, to), words);
    look();
}

bool SearchLine::pressed(int key, Qt::KeyboardModifiers modifiers)
{
    const bool shifted = (modifiers & Qt::ShiftModifier) != 0;
    const bool ctrl = (modifiers & Qt::ControlModifier) != 0;
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (key == Qt::Key_Escape)
        close();
    else if (auto* button = qobject_cast<QPushButton*>(focusWidget()); button != nullptr && isEnter)
        button->click();
    else if (isEnter)
        instead_->hasFocus() ? replace() : go(shifted ? Way::backward : Way::forward);
    else if (key == Qt::Key_F3)
        go(shifted ? Way::backward : Way::forward);
    else if (ctrl && (key == Qt::Key_F || key == Qt::Key_H))
        open(key == Qt::Key_H);
    else
        return false;
    return true;
}

bool SearchLine::eventFilter(QObject* object, QEvent* event)
{
    if (object == editor_) {
        const bool closes =
            event->type() == QEvent::KeyPress && isVisible() && static_cast<QKeyEvent&>(*event).key() == Qt::Key_Escape;
        if (closes)
            close();
        return closes;
    }
    const bool inText = object == viewport_;
    if (inText && event->type() == QEvent::MouseButtonPress && text_ && hasKeyboard())
        text_->setFocus(Qt::MouseFocusReason);
    else if (inText && event->type() == QEvent::Resize)
        markHits();
    else if (!inText && event->type() == QEvent::ShortcutOverride) {
        if (isOfText && isOfText(static_cast<QKeyEvent&>(*event)))
            event->accept();
    } else if (!inText && event->type() == QEvent::KeyPress) {
        auto& key = static_cast<QKeyEvent&>(*event);
        if (pressed(key.key(), key.modifiers()))
            return true;
        if (isOfText && isOfText(key) && text_) {
            text_->setFocus(Qt::ShortcutFocusReason);
            return QCoreApplication::sendEvent(text_, &key);
        }
    }
    return QWidget::eventFilter(object, event);
}

} // namespace velmor::desktop
