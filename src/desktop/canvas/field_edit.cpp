// SPDX-License-Identifier: MIT
#include "desktop/canvas/field_edit.h"

#include <QPaintEvent>
#include <QPainter>

#include "desktop/drawing/palette_of_inks.h"
#include "desktop/drawing/plates.h"

namespace velmor::desktop {

FieldEdit::FieldEdit(const Inks& inks, QWidget* parent) : QLineEdit(parent), inks_(&inks)
{
    setFrame(false);
    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::NoContextMenu);
    setDragEnabled(false);
    setAcceptDrops(false);
    setTextMargins(2, 0, 2, 0);
    setAttribute(Qt::WA_OpaquePaintEvent);
    recolor();
}

void FieldEdit::setInks(const Inks& inks)
{
    inks_ = &inks;
    recolor();
}

void FieldEdit::showText(const QString& text)
{
    if (this->text() == text)
        return;
    setText(text);
    if (selectedWhole_)
        selectFromEnd();
    else
        setCursorPosition(hasFocus() ? static_cast<int>(text.size()) : 0);
}

void FieldEdit::selectWhole()
{
    selectedWhole_ = true;
    selectFromEnd();
}

// The caret stands before the first letter, so that a number wider than its field shows how it begins.
void FieldEdit::selectFromEnd()
{
    const int length = static_cast<int>(text().size());
    setSelection(length, -length);
}

void FieldEdit::forgetTyping()
{
    if (!isUndoAvailable() && !isRedoAvailable())
        return;
    setText(text());
    setCursorPosition(0);
}

void FieldEdit::setOwnColors(std::int32_t ground, std::int32_t ink)
{
    if (ground == ground_ && ink == ink_)
        return;
    ground_ = ground;
    ink_ = ink;
    recolor();
}

void FieldEdit::setPale(bool pale)
{
    if (pale == pale_)
        return;
    pale_ = pale;
    recolor();
}

// A sheet whitens or greys a field for paper. In the dark white is the ground of every field, and grey that of one at rest.
QColor FieldEdit::ownGround() const
{
    constexpr int white = 250;
    constexpr int middle = 128;
    constexpr int colourless = 8;
    const QColor given = QColor::fromRgb(static_cast<QRgb>(ground_));
    const bool paper = given.lightness() >= middle && given.saturation() < colourless;
    if (!paper || !inks_->dark)
        return given;
    return given.lightness() >= white ? inks_->field : inks_->fieldOff;
}

void FieldEdit::recolor()
{
    const QColor ground = ground_ < 0 ? inks_->field : ownGround();
    const QColor own = ink_ < 0 ? inks_->fieldInk : QColor::fromRgb(static_cast<QRgb>(ink_));
    const QColor wished = pale_ ? inks_->quiet : own;
    QPalette colors = palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        colors.setColor(group, QPalette::Base, ground);
        colors.setColor(group, QPalette::Text, ground_ < 0 && ink_ < 0 ? wished : readableOn(ground, wished));
        colors.setColor(group, QPalette::Highlight, inks_->accent);
        colors.setColor(group, QPalette::HighlightedText, inks_->onAccent);
    }
    colors.setColor(QPalette::Disabled, QPalette::Base, ground_ < 0 ? inks_->fieldOff : ground);
    colors.setColor(QPalette::Disabled, QPalette::Text,
                    ground_ < 0 ? inks_->fieldOffInk : readableOn(ground, inks_->fieldOffInk));
    setPalette(colors);
}

void FieldEdit::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    const double ratio = devicePixelRatioF();
    const double weight = (hasFocus() ? 2.0 : 1.0) * std::max(1.0, std::round(ratio)) / ratio;
    fillFrame(painter, rect(), weight, hasFocus() ? inks_->accent : isEnabled() ? inks_->edge : inks_->rule);
}

// The toolkit forgets the selection while a menu has the keyboard.
void FieldEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (selectedWhole_ && !hasSelectedText())
        selectFromEnd();
    update();
}

void FieldEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    update();
}

} // namespace velmor::desktop
