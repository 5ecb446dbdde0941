// SPDX-License-Identifier: MIT
// The ladder of a row: from the course's figure to the simulator's, one reason a step, the step that counts most standing out.
// As tall as its texts need.
#pragma once

#include <vector>

#include <QWidget>

#include "check/check.h"
#include "desktop/drawing/palette_of_inks.h"

namespace velmor::desktop {

class LadderView final : public QWidget {
public:
    LadderView(const Inks& inks, QWidget* parent);

    /// Nothing is shown of a row without a ladder.
    void show(const check::Row* row, bool english);
    void setInks(const Inks& inks);
    bool isEmpty() const { return steps_.empty(); }
    /// All of it in sentences.
    QString spoken() const;

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Step {
        QString change{}; ///< in dB or per cent; empty at both ends
        QString reason{};
        QString value{};
        double share = 0; ///< of the largest step, below 0 downwards
        bool strongest = false;
        bool end = false;
    };
    int widestOf(QString Step::*text) const;
    int changeWidth() const;
    int valueWidth() const;
    int heightOf(const Step& step, int width) const;
    QFont fontOf(const Step& step) const;
    void paintStep(QPainter& painter, const Step& step, const QRect& room) const;

    const Inks* inks_;
    std::vector<Step> steps_;
};

} // namespace velmor::desktop
