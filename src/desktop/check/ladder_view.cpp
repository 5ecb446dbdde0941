// SPDX-License-Identifier: MIT
#include "desktop/check/ladder_view.h"

#include <algorithm>
#include <cmath>

#include <QPaintEvent>
#include <QPainter>

#include "desktop/check/check_words.h"
#include "desktop/drawing/plates.h"

namespace velmor::desktop {

namespace ladder_view_detail {

constexpr int gap = 10;   ///< between the columns
constexpr int around = 7; ///< above and below the texts of a step
constexpr int barHeight = 4;
constexpr int leastLetters = 8;
constexpr double corner = 4.0;
constexpr double leastRemainder = 0.005; ///< dB; less is the rounding of the simulator

} // namespace ladder_view_detail

using namespace ladder_view_detail;

LadderView::LadderView(const Inks& inks, QWidget* parent) : QWidget(parent), inks_(&inks)
{
    setObjectName(QStringLiteral("checkLadder"));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void LadderView::setInks(const Inks& inks)
{
    inks_ = &inks;
    update();
}

void LadderView::show(const check::Row* row, bool english)
{
    steps_.clear();
    if (row != nullptr && !row->ladder.rungs.empty()) {
        const check::Ladder& ladder = row->ladder;
        const std::string_view unit = check::textOf(row->quantity).unit;
        double most = 0;
        for (std::size_t i = 0; i < ladder.rungs.size(); ++i)
            most = std::max(most, std::abs(ladder.stepOf(i)));
        steps_.push_back({.reason = check_words::in(check_words::course, english),
                          .value = check_words::amount(ladder.start, unit),
                          .end = true});
        for (std::size_t i = 0; i < ladder.rungs.size(); ++i)
            steps_.push_back({.change = check_words::minus(shown(check::stepText(*row, i))),
                              .reason = check_words::prose(shown(
                                  check::sentence(english ? ladder.rungs[i].reason.en : ladder.rungs[i].reason.es))),
                              .value = check_words::amount(ladder.rungs[i].value, unit),
                              .share = most > 0 ? ladder.stepOf(i) / most : 0,
                              .strongest = &ladder.rungs[i] == ladder.highest()});
        const bool isWhole = ladder.remainder() < leastRemainder;
        const QString rest = check_words::amount(ladder.remainder(), "dB");
        steps_.push_back({.reason = isWhole ? check_words::in(check_words::explained, english)
                                            : check_words::in(check_words::remainder, english).arg(rest),
                          .value = check_words::amount(ladder.measured, unit),
                          .end = true});
    }
    setAccessibleName(check_words::in(check_words::ladderName, english));
    setAccessibleDescription(spoken());
    updateGeometry();
    update();
}

QString LadderView::spoken() const
{
    QString text;
    for (const Step& step : steps_) {
        const QString change = step.change.isEmpty() ? QString() : step.change + QStringLiteral(". ");
        text += QStringLiteral("%1%2: %3\n").arg(change, step.reason, step.value);
    }
    return text;
}

// In the strongest letters, so that nothing moves when another step is the strongest.
int LadderView::widestOf(QString Step::*text) const
{
    QFont letters = font();
    letters.setBold(true);
    const QFontMetrics metrics(letters);
    int widest = metrics.averageCharWidth() * leastLetters;
    for (const Step& step : steps_)
        widest = std::max(widest, metrics.horizontalAdvance(step.*text) + 2);
    return widest;
}

int LadderView::changeWidth() const
{
    return widestOf(&Step::change);
}

int LadderView::valueWidth() const
{
    return widestOf(&Step::value);
}

QFont LadderView::fontOf(const Step& step) const
{
    QFont letters = font();
    letters.setBold(step.strongest || step.end);
    return letters;
}

int LadderView::heightOf(const Step& step, int width) const
{
    const int room = std::max(40, width - changeWidth() - valueWidth() - 4 * gap);
    const QRect box = QFontMetrics(fontOf(step)).boundingRect(QRect(0, 0, room, 10000), Qt::TextWordWrap, step.reason);
    const int least = fontMetrics().height() + (step.end ? 0 : 2 * barHeight);
    return std::max(least, box.height()) + 2 * around;
}

int LadderView::heightForWidth(int width) const
{
    int height = 0;
    for (const Step& step : steps_)
        height += heightOf(step, width);
    return height;
}

QSize LadderView::sizeHint() const
{
    const int width = std::max(this->width(), 200);
    return {200, heightForWidth(width)};
}

// Left how far, in the middle why, right what it comes to; a bar tells the step's size and way.
void LadderView::paintStep(QPainter& painter, const Step& step, const QRect& room) const
{
    if (step.strongest)
        paintPlate(painter, QRectF(room).adjusted(0.5, 1.5, -0.5, -1.5), {inks_->accentTint, QColor(), corner, 0});
    const QRect inside = room.adjusted(gap, around, -gap, -around);
    const QRect change(inside.left(), inside.top(), changeWidth(), inside.height());
    const QRect value(inside.right() - valueWidth() + 1, inside.top(), valueWidth(), inside.height());
    const int left = step.end ? inside.left() : change.right() + gap;
    const QRect reason(left, inside.top(), value.left() - gap - left, inside.height());
    painter.setFont(fontOf(step));
    painter.setPen(inks_->ink);
    painter.drawText(change, Qt::AlignTop | Qt::AlignLeft, step.change);
    painter.drawText(reason, Qt::AlignTop | Qt::AlignLeft | Qt::TextWordWrap, step.reason);
    painter.drawText(value, Qt::AlignTop | Qt::AlignRight, step.value);
    if (step.change.isEmpty())
        return;
    const QRect bar(change.left(), change.top() + fontMetrics().height() + barHeight / 2, change.width(), barHeight);
    const int middle = bar.center().x();
    const int reach = qRound(std::abs(step.share) * bar.width() / 2);
    painter.fillRect(QRect(bar.left(), bar.center().y(), bar.width(), 1), inks_->rule);
    painter.fillRect(QRect(step.share < 0 ? middle - reach : middle, bar.top(), std::max(1, reach), barHeight),
                     step.share < 0 ? inks_->warning : inks_->accent);
    painter.fillRect(QRect(middle, bar.top() - 1, 1, barHeight + 2), inks_->edge);
}

void LadderView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    int top = 0;
    for (const Step& step : steps_) {
        const QRect room(0, top, width(), heightOf(step, width()));
        paintStep(painter, step, room);
        top = room.bottom() + 1;
        if (&step != &steps_.back())
            painter.fillRect(QRect(gap, room.bottom(), width() - 2 * gap, 1), inks_->rule);
    }
}

} // namespace velmor::desktop
