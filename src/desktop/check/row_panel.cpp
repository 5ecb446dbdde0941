// SPDX-License-Identifier: MIT
#include "desktop/check/row_panel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "desktop/check/check_words.h"
#include "desktop/check/ladder_view.h"

namespace velmor::desktop {

using check_words::in;

namespace row_panel_detail {

QLabel* plainLabel(const char* name)
{
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

std::size_t indexOf(check::Guess guess)
{
    return static_cast<std::size_t>(guess);
}

} // namespace row_panel_detail

using namespace row_panel_detail;

RowPanel::RowPanel(const Checked& checked, const Inks& inks, QWidget* parent)
    : QWidget(parent), checked_(checked), heading_(plainLabel("checkHeading")), question_(plainLabel("checkQuestion")),
      betting_(new QWidget), lower_(addButton("checkLower")), same_(addButton("checkSame")),
      higher_(addButton("checkHigher")), all_(addButton("checkOpenAll")), rule_(plainLabel("checkRule")),
      verdict_(plainLabel("checkVerdict")), outcome_(plainLabel("checkOutcome")),
      ladder_(new LadderView(inks, nullptr)), area_(new QScrollArea)
{
    layOut();
    const auto bet = [this](QPushButton* button, check::Guess guess) {
        connect(button, &QPushButton::clicked, this, [this, guess] { guessed(guess); });
    };
    bet(lower_, check::Guess::lower);
    bet(same_, check::Guess::same);
    bet(higher_, check::Guess::higher);
    connect(all_, &QPushButton::clicked, this, [this] { allOpened(); });
    QFont bold = heading_->font();
    bold.setBold(true);
    heading_->setFont(bold);
    setInks(inks);
}

QPushButton* RowPanel::addButton(const char* name)
{
    auto* button = new QPushButton;
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

void RowPanel::layOut()
{
    auto* bets = new QHBoxLayout;
    for (QPushButton* button : {lower_, same_, higher_})
        bets->addWidget(button);
    bets->addStretch(1);
    bets->addWidget(all_);
    auto* betting = new QVBoxLayout(betting_);
    betting->setContentsMargins(0, 4, 0, 0);
    betting->addWidget(question_);
    betting->addLayout(bets);
    betting->addWidget(rule_);
    betting->addStretch(1);
    area_->setWidget(ladder_);
    area_->setWidgetResizable(true);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setFocusPolicy(Qt::StrongFocus);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 8, 12, 8);
    column->setSpacing(4);
    for (QWidget* part : std::initializer_list<QWidget*>{heading_, betting_, outcome_, verdict_})
        column->addWidget(part);
    column->addWidget(area_, 1);
    column->addStretch(0);
}

void RowPanel::setInks(const Inks& inks)
{
    ladder_->setInks(inks);
    for (QLabel* quiet : {rule_, outcome_}) {
        QPalette colors = quiet->palette();
        colors.setColor(QPalette::WindowText, inks.quiet);
        quiet->setPalette(colors);
    }
}

bool RowPanel::takesBet() const
{
    return betting_->isVisible();
}

void RowPanel::follow(std::optional<check::Quantity> inHand)
{
    const check::Row* row = inHand ? check::rowOf(checked_.result, *inHand) : nullptr;
    const bool ready = row != nullptr && checked_.freshness != Freshness::running;
    const bool open = ready && checked_.isOpen(*row);
    heading_->setVisible(row != nullptr);
    betting_->setVisible(ready && !open);
    verdict_->setVisible(open);
    outcome_->setVisible(open && checked_.bet.guessOn(row->quantity).has_value());
    const bool hasLadder = open && !row->ladder.rungs.empty();
    ladder_->show(hasLadder ? row : nullptr, checked_.english);
    area_->setVisible(hasLadder);
    area_->setAccessibleName(ladder_->accessibleName());
    area_->setAccessibleDescription(ladder_->spoken());
    if (row == nullptr)
        return;
    const check::QuantityText& words = check::textOf(row->quantity);
    heading_->setText(QStringLiteral("%1 · %2").arg(check_words::plainSymbolOf(row->quantity),
                                                    check_words::minus(in(words.meaning, checked_.english))));
    if (ready)
        open ? tellOf(*row) : askFor(*row);
}

void RowPanel::askFor(const check::Row& row)
{
    const bool english = checked_.english;
    const QString course = check_words::amount(row.course, check::textOf(row.quantity).unit);
    question_->setText(in(check_words::question, english).arg(course));
    lower_->setText(in(check_words::lower, english));
    same_->setText(in(check_words::same, english));
    higher_->setText(in(check_words::higher, english));
    all_->setText(in(check_words::openAll, english));
    rule_->setText(in(check_words::sameMeans, english));
}

void RowPanel::tellOf(const check::Row& row)
{
    verdict_->setText(check_words::prose(shown(check::sentence(row.verdict.in(checked_.english)))));
    outcome_->setText(outcomeOf(row));
}

QString RowPanel::outcomeOf(const check::Row& row) const
{
    const auto guess = checked_.bet.guessOn(row.quantity);
    const auto outcome = check::outcomeOf(row);
    if (!guess || !outcome)
        return {};
    const bool english = checked_.english;
    const QString said = in(check_words::guesses[indexOf(*guess)], english);
    return guess == outcome
               ? in(check_words::won, english).arg(said)
               : in(check_words::lost, english).arg(said, in(check_words::guesses[indexOf(*outcome)], english));
}

} // namespace velmor::desktop
