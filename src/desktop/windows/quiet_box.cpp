// SPDX-License-Identifier: MIT
#include "desktop/windows/quiet_box.h"

#include <algorithm>
#include <cmath>

#include <QAccessible>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QTextLayout>
#include <QVBoxLayout>

#include "desktop/drawing/box_sign.h"
#include "desktop/drawing/plates.h"
#include "desktop/windows/placing.h"
#include "desktop/windows/title_line.h"

namespace velmor::desktop {

namespace quiet_box_detail {

constexpr int lettersAcross = 64; ///< a measure that is easily read
constexpr double signLines = 2.6; ///< side of the sign, in lines of text
constexpr double largestShare = 0.9;
constexpr int buttonLetters = 11; ///< least width of a button
constexpr int leastAcross = 12;   ///< of a text, in lines, whatever the screen says of itself
constexpr int leastDown = 4;

class Sign final : public QWidget {
public:
    Sign(host::BoxIcon icon, const Inks& inks) : icon_(icon), inks_(inks)
    {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }
    QSize sizeHint() const override
    {
        const int side = static_cast<int>(fontMetrics().lineSpacing() * signLines);
        return {side, side};
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        paintBoxSign(painter, rect(), icon_, inks_);
    }

private:
    host::BoxIcon icon_;
    const Inks& inks_;
};

QTextOption wrapping()
{
    QTextOption option(Qt::AlignLeft | Qt::AlignTop);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

QPalette paletteOf(const Inks& inks, const QPalette& desktop)
{
    QPalette colours = desktop;
    colours.setColor(QPalette::Window, inks.paper);
    colours.setColor(QPalette::Base, inks.field);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colours.setColor(role, inks.ink);
    return colours;
}

} // namespace quiet_box_detail

BoxText::BoxText(const QString& text, int most) : QLabel(text), most_(most)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
}

int BoxText::measure() const
{
    const int most = std::min(most_, quiet_box_detail::lettersAcross * fontMetrics().averageCharWidth());
    int widest = 0;
    for (const QString& line : text().split(QLatin1Char('\n')))
        widest = std::max(widest, fontMetrics().horizontalAdvance(line) + 1);
    return std::min(most, widest);
}

int BoxText::heightFor(int width) const
{
    int height = 0;
    for (const QString& line : text().split(QLatin1Char('\n'))) {
        QTextLayout layout(line, font());
        layout.setTextOption(quiet_box_detail::wrapping());
        layout.beginLayout();
        int lines = 0;
        for (QTextLine part = layout.createLine(); part.isValid(); part = layout.createLine(), ++lines)
            part.setLineWidth(width);
        layout.endLayout();
        height += std::max(1, lines) * fontMetrics().lineSpacing();
    }
    return height + fontMetrics().descent();
}

QSize BoxText::sizeHint() const
{
    // A very long text is wider rather than taller than the screen.
    const int narrow = measure();
    int width = narrow;
    while (heightFor(width) > width && width < std::min(most_, 3 * narrow))
        width = std::min(most_, width + narrow / 4 + 1);
    return {width, heightFor(width)};
}

void BoxText::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRectF(rect()), text(), quiet_box_detail::wrapping());
}

QuietBox::QuietBox(QWidget* parent, const Stage& stage, const QString& title, host::BoxIcon icon)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), stage_(stage), title_(new TitleLine(*stage.inks, this)),
      parts_(new QVBoxLayout), row_(new QHBoxLayout)
{
    using namespace quiet_box_detail;
    setPalette(paletteOf(*stage.inks, palette()));
    setWindowTitle(QString(title).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
    title_->setTitle(title);
    title_->speak(stage.english);
    title_->closed = [this] { reject(); };
    const int line = fontMetrics().lineSpacing();
    auto* body = new QHBoxLayout;
    body->setContentsMargins(line, line, line + line / 2, line / 2);
    body->setSpacing(line);
    if (icon != host::BoxIcon::none)
        body->addWidget(new Sign(icon, *stage_.inks), 0, Qt::AlignTop);
    parts_->setSpacing(line / 2);
    body->addLayout(parts_, 1);
    row_->setContentsMargins(line, line / 2, line, line);
    row_->setSpacing(line / 2);
    row_->addStretch(1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(1, 1, 1, 1);
    column->setSpacing(0);
    column->addWidget(title_);
    column->addLayout(body, 1);
    column->addLayout(row_);
    column->setSizeConstraint(QLayout::SetNoConstraint);
}

void QuietBox::add(QWidget* part)
{
    parts_->addWidget(part);
    if (text_ == nullptr)
        text_ = qobject_cast<QLabel*>(part);
}

QString QuietBox::text() const
{
    return text_ == nullptr ? QString() : text_->text();
}

void QuietBox::setText(const QString& text)
{
    const QSize room = roomForText();
    auto* label = new BoxText(text, room.width());
    setAccessibleDescription(text);
    if (label->sizeHint().height() <= room.height()) {
        add(label);
        parts_->setAlignment(label, Qt::AlignVCenter | Qt::AlignLeft);
        return;
    }
    text_ = label;
    scrolled_ = new QScrollArea(this);
    scrolled_->setFrameShape(QFrame::NoFrame);
    scrolled_->setFocusPolicy(Qt::NoFocus);
    scrolled_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrolled_->setWidget(label);
    scrolled_->setMinimumWidth(label->sizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    scrolled_->setFixedHeight(room.height());
    add(scrolled_);
}

QSize QuietBox::mostSize() const
{
    const QScreen* screen = QGuiApplication::screenAt(stage_.room.center());
    return (screen == nullptr ? stage_.room.size() : screen->availableSize()) * quiet_box_detail::largestShare;
}

// Beside the text stand a sign and margins, above and below it the title and the buttons.
QSize QuietBox::roomForText() const
{
    using namespace quiet_box_detail;
    const int line = fontMetrics().lineSpacing();
    const QSize room = mostSize() - QSize(7 * line, title_->sizeHint().height() + 6 * line);
    return room.expandedTo({leastAcross * line, leastDown * line});
}

QPushButton* QuietBox::addButton(const QString& caption)
{
    auto* button = new QPushButton(caption, this);
    button->setMinimumWidth(fontMetrics().averageCharWidth() * quiet_box_detail::buttonLetters);
    button->setMinimumHeight(fontMetrics().height() * 7 / 4);
    button->setAutoDefault(true);
    row_->addWidget(button);
    buttons_.push_back(button);
    return button;
}

QPushButton* QuietBox::defaultButton() const
{
    const auto found =
        std::find_if(buttons_.begin(), buttons_.end(), [](const QPushButton* button) { return button->isDefault(); });
    return found == buttons_.end() ? nullptr : *found;
}

void QuietBox::takeSize()
{
    layout()->activate();
    const int titleWidth = title_->wholeWidth();
    const QSize most = mostSize();
    const QSize wanted = layout()->sizeHint();
    resize(
        QSize(std::min(std::max(wanted.width(), titleWidth), most.width()), std::min(wanted.height(), most.height())));
}

bool QuietBox::isClear(QPoint corner) const
{
    const QRect box(corner, size());
    return !box.intersects(stage_.inHand) && !box.intersects(stage_.behind);
}

void QuietBox::settle()
{
    takeSize();
    settleClear(stage_.beside ? besideThing(stage_.inHand, size(), stage_.room)
                              : clearOfThing(stage_.inHand, size(), stage_.room));
}

void QuietBox::settleAt(QPoint wished)
{
    takeSize();
    settleClear(insideScreen(wished, size()));
}

/// Square pixels.
int QuietBox::hiddenAnswers(QPoint corner) const
{
    int hidden = 0;
    for (const QRect& part : stage_.answers& QRect(corner, size()))
        hidden += part.width() * part.height();
    return hidden;
}

// A tool that asks speaks of the field behind it as well. Where there is a choice, the values that the box speaks of stay in sight.
void QuietBox::settleClear(QPoint wished)
{
    const QRect room = stage_.room;
    std::vector<QPoint> corners{wished};
    for (const QRect& field : {stage_.inHand, stage_.behind})
        for (const QPoint corner : cornersBeside(field, size(), room))
            corners.push_back(corner);
    std::erase_if(corners, [this](QPoint corner) { return !isClear(corner); });
    const auto best = std::min_element(corners.begin(), corners.end(), [this](QPoint one, QPoint other) {
        return hiddenAnswers(one) < hiddenAnswers(other);
    });
    move(best == corners.end() ? clearOfThing(stage_.inHand, size(), room) : *best);
}

void QuietBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), stage_.inks->paper);
    fillFrame(painter, rect(), 1.0, isActiveWindow() ? stage_.inks->edge : stage_.inks->rule);
}

void QuietBox::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange) {
        title_->setActive(isActiveWindow());
        update();
    }
}

// A button's letter presses it, with Alt or without, as nobody writes in a box of buttons.
void QuietBox::keyPressEvent(QKeyEvent* event)
{
    const bool bare = (event->modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) == 0;
    const bool writes = focusWidget() != nullptr && focusWidget()->testAttribute(Qt::WA_InputMethodEnabled);
    const int key = event->text().isEmpty() ? event->key() : event->text().at(0).toUpper().unicode();
    for (QPushButton* button : buttons_) {
        const QKeySequence letter = QKeySequence::mnemonic(button->text());
        if (bare && !writes && !letter.isEmpty() && letter[0].key() == key) {
            button->click();
            event->accept();
            return;
        }
    }
    if (!scroll(event->key()))
        QDialog::keyPressEvent(event);
}

// The buttons keep the keyboard; the keys that they do not know move a long text.
bool QuietBox::scroll(int key)
{
    if (scrolled_ == nullptr)
        return false;
    QScrollBar& bar = *scrolled_->verticalScrollBar();
    switch (key) {
    case Qt::Key_PageDown:
        bar.setValue(bar.value() + bar.pageStep());
        return true;
    case Qt::Key_PageUp:
        bar.setValue(bar.value() - bar.pageStep());
        return true;
    case Qt::Key_Home:
        bar.setValue(bar.minimum());
        return true;
    case Qt::Key_End:
        bar.setValue(bar.maximum());
        return true;
    default:
        return false;
    }
}

void QuietBox::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    QAccessibleEvent seen(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&seen);
}

} // namespace velmor::desktop
