// SPDX-License-Identifier: MIT
// The row in hand: first the bet, then the verdict, whether the bet was won, and the ladder of reasons.
#pragma once

#include <functional>

#include <QWidget>

#include "desktop/check/checked.h"
#include "desktop/drawing/palette_of_inks.h"

class QLabel;
class QPushButton;
class QScrollArea;

namespace velmor::desktop {

class LadderView;

class RowPanel final : public QWidget {
public:
    RowPanel(const Checked& checked, const Inks& inks, QWidget* parent);

    void follow(std::optional<check::Quantity> inHand);
    void setInks(const Inks& inks);
    /// The keys 1, 2, 3 bet less, the same, more; true when there is a bet to place.
    bool takesBet() const;
    const LadderView& ladder() const { return *ladder_; }

    std::function<void(check::Guess)> guessed;
    std::function<void()> allOpened;

private:
    void layOut();
    QPushButton* addButton(const char* name);
    void askFor(const check::Row& row);
    void tellOf(const check::Row& row);
    QString outcomeOf(const check::Row& row) const;

    const Checked& checked_;
    QLabel* heading_;
    QLabel* question_;
    QWidget* betting_;
    QPushButton* lower_;
    QPushButton* same_;
    QPushButton* higher_;
    QPushButton* all_;
    QLabel* rule_;
    QLabel* verdict_;
    QLabel* outcome_;
    LadderView* ladder_;
    QScrollArea* area_;
};

} // namespace velmor::desktop
