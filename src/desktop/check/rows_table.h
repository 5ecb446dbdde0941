// SPDX-License-Identifier: MIT
// The table of a check: quantity, asked, course, simulator, verdict in a word. A row on which the student has not bet keeps its
// last two columns closed.
#pragma once

#include <functional>
#include <optional>

#include <QTableView>

#include "desktop/check/checked.h"
#include "desktop/drawing/palette_of_inks.h"

namespace velmor::desktop {

class RowsModel;

class RowsTable final : public QTableView {
public:
    RowsTable(const Checked& checked, const Inks& inks, QWidget* parent);

    /// Follows the check; the row in hand stays.
    void follow();
    void setInks(const Inks& inks);
    /// What it takes to show every row.
    int wholeHeight() const;
    std::optional<check::Quantity> inHand() const;
    void take(check::Quantity quantity);

    /// Another row is in hand.
    std::function<void()> chosen;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void layOutColumns();
    int widthOf(int column) const;

    const Checked& checked_;
    RowsModel* rows_;
};

} // namespace velmor::desktop
