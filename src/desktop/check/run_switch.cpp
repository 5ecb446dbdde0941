// SPDX-License-Identifier: MIT
#include "desktop/check/run_switch.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QPushButton>

#include "desktop/check/check_words.h"

namespace velmor::desktop {

using check_words::in;

RunSwitch::RunSwitch(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("checkRuns"));
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(2);
    constexpr const char* names[] = {"checkYourValues", "checkTrimmed"};
    for (std::size_t i = 0; i < order.size(); ++i) {
        auto* side = new QPushButton;
        side->setObjectName(QLatin1String(names[i]));
        side->setCheckable(true);
        side->setAutoExclusive(true);
        side->setAutoDefault(false);
        line->addWidget(side);
        // Told by click, not by toggle: what the program shows is nobody's wish.
        connect(side, &QPushButton::clicked, this, [this, i] { chosen(order[i]); });
        sides_[i] = side;
    }
}

void RunSwitch::follow(check::Run run, bool english)
{
    setAccessibleName(in(check_words::runsName, english));
    for (std::size_t i = 0; i < order.size(); ++i) {
        sides_[i]->setText(in(check_words::runs[i], english));
        sides_[i]->setToolTip(shownTip(in(check_words::runTips[i], english)));
        sides_[i]->setAccessibleDescription(in(check_words::runTips[i], english));
        sides_[i]->setChecked(order[i] == run);
    }
}

void RunSwitch::turn()
{
    const auto other =
        std::find_if(sides_.begin(), sides_.end(), [](const QPushButton* side) { return !side->isChecked(); });
    if (isVisible() && other != sides_.end())
        (*other)->click();
}

} // namespace velmor::desktop
