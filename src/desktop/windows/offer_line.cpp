// SPDX-License-Identifier: MIT
#include "desktop/windows/offer_line.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

#include "desktop/drawing/texts.h"
#include "host/bitext.h"

namespace velmor::desktop {

namespace offer_line_detail {

using host::BiText;

constexpr int margin = 6;

// clang-format off
constexpr BiText designs[] = {{.es = "%1 diseño",  .en = "%1 design"},  {.es = "%1 diseños", .en = "%1 designs"}};
constexpr BiText texts[]   = {{.es = "%1 texto",   .en = "%1 text"},    {.es = "%1 textos",  .en = "%1 texts"}};
constexpr BiText both      = {.es = "%1 y %2",     .en = "%1 and %2"};
constexpr BiText still[]   = {{.es = "%1 del %2 sigue aquí",  .en = "%1 from %2 is still here"},
                              {.es = "%1 del %2 siguen aquí", .en = "%1 from %2 are still here"}};
constexpr BiText dayOf     = {.es = "d 'de' MMMM", .en = "d MMMM"};
constexpr BiText timeOf    = {.es = "%1, %2",      .en = "%1, %2"};
constexpr BiText lies      = {.es = "Descartado. Hasta el %1 queda en %2", .en = "Dropped. Until %1 it lies in %2"};
constexpr BiText openText  = {.es = "&Recuperar",  .en = "O&pen"};
constexpr BiText dropText  = {.es = "&Descartar",  .en = "&Drop"};
constexpr BiText laterText = {.es = "&Más tarde",  .en = "&Later"};
constexpr BiText closeText = {.es = "&Muy bien",   .en = "A&ll right"};
// clang-format on

QString in(const BiText& text, bool english)
{
    return shown(english ? text.en : text.es);
}

QLocale localeOf(bool english)
{
    return english ? QLocale(QLocale::English, QLocale::UnitedKingdom) : QLocale(QLocale::Spanish);
}

QString counted(const BiText (&names)[2], int count, bool english)
{
    return in(names[count == 1 ? 0 : 1], english).arg(count);
}

QString dayText(QDate day, bool english)
{
    return localeOf(english).toString(day, in(dayOf, english));
}

} // namespace offer_line_detail

using namespace offer_line_detail;

QString sentenceOf(const OfferedWork& work, bool english)
{
    const QString named =
        work.texts == 0 ? counted(designs, work.designs, english)
        : work.designs == 0
            ? counted(texts, work.texts, english)
            : in(both, english).arg(counted(designs, work.designs, english), counted(texts, work.texts, english));
    const QString time =
        in(timeOf, english).arg(dayText(work.time.date(), english), work.time.time().toString(QStringLiteral("HH:mm")));
    return in(still[work.designs + work.texts == 1 ? 0 : 1], english).arg(named, time);
}

QString sentenceOf(const DroppedWork& work, bool english)
{
    return in(lies, english).arg(dayText(work.until, english), work.folder);
}

OfferLine::OfferLine(const Inks& inks, bool english, QWidget* parent)
    : QWidget(parent), english_(english), text_(new QLabel(this)), open_(addButton(Choice::open)),
      drop_(addButton(Choice::drop)), later_(addButton(Choice::later))
{
    setObjectName(QStringLiteral("offer"));
    setAutoFillBackground(true);
    text_->setTextFormat(Qt::PlainText);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text_->setFocusPolicy(Qt::NoFocus);
    text_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(2 * margin, margin, 2 * margin, margin);
    row->addWidget(text_, 1);
    for (QPushButton* button : {open_, drop_, later_})
        row->addWidget(button);
    setInks(inks);
    write();
}

QPushButton* OfferLine::addButton(Choice choice)
{
    auto* button = new QPushButton(this);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, choice] {
        if (chosen)
            chosen(choice);
    });
    return button;
}

void OfferLine::offer(const OfferedWork& work)
{
    offered_ = work;
    dropped_ = false;
    write();
    QAccessibleEvent seen(text_, QAccessible::Alert);
    QAccessible::updateAccessibility(&seen);
}

void OfferLine::tellDropped(const DroppedWork& work)
{
    lies_ = work;
    dropped_ = true;
    write();
}

void OfferLine::speak(bool english)
{
    english_ = english;
    write();
}

void OfferLine::write()
{
    text_->setText(dropped_ ? sentenceOf(lies_, english_) : sentenceOf(offered_, english_));
    text_->setToolTip(text_->text());
    open_->setText(in(openText, english_));
    drop_->setText(in(dropText, english_));
    later_->setText(in(dropped_ ? closeText : laterText, english_));
    open_->setVisible(!dropped_);
    drop_->setVisible(!dropped_);
}

void OfferLine::setInks(const Inks& inks)
{
    QPalette colors = palette();
    colors.setColor(QPalette::Window, inks.hint);
    colors.setColor(QPalette::WindowText, inks.ink);
    colors.setColor(QPalette::Text, inks.ink);
    setPalette(colors);
}

} // namespace velmor::desktop
