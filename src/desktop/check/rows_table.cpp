// SPDX-License-Identifier: MIT
#include "desktop/check/rows_table.h"

#include <algorithm>

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>

#include "desktop/check/check_words.h"
#include "desktop/check/judgement_sign.h"
#include "desktop/drawing/symbol_label.h"

namespace velmor::desktop {

namespace rows_table_detail {

enum Column { quantityColumn, askedColumn, courseColumn, simulatorColumn, verdictColumn, columnCount };

constexpr double rowShare = 1.9; ///< height of a row, by that of its letters
constexpr int padding = 8;
constexpr int barWidth = 4;
constexpr int fewestLetters = 8;
constexpr double symbolLetters = 3.9; ///< width of the symbols, in heights of the letters
constexpr double leastName = 3.0;     ///< of room in heights of the letters; less shows nothing but dots
constexpr double quietGround = 0.55;  ///< ink of rows from before

} // namespace rows_table_detail

using namespace rows_table_detail;

class RowsModel final : public QAbstractTableModel {
public:
    RowsModel(const Checked& checked, QObject* parent) : QAbstractTableModel(parent), checked_(checked) {}

    int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(checked_.result.rows.size());
    }
    int columnCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : rows_table_detail::columnCount;
    }
    const check::Row& rowAt(int row) const { return checked_.result.rows[static_cast<std::size_t>(row)]; }
    bool isShown(const check::Row& row) const
    {
        return checked_.freshness != Freshness::running && checked_.isOpen(row);
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        const check::Row& row = rowAt(index.row());
        if (role == Qt::DisplayRole)
            return text(row, index.column());
        if (role == Qt::AccessibleTextRole)
            return spoken(row, index.column());
        if (role == Qt::ToolTipRole && index.column() == quantityColumn)
            return shownTip(check_words::in(check::textOf(row.quantity).meaning, checked_.english));
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue(index.column() == quantityColumn || index.column() == verdictColumn
                                           ? Qt::AlignLeft | Qt::AlignVCenter
                                           : Qt::AlignRight | Qt::AlignVCenter);
        return {};
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal)
            return {};
        if (role == Qt::DisplayRole) {
            // The header keeps no distance of its own from the next column.
            const QString name = check_words::in(check_words::columns[section], checked_.english);
            const bool isAmount = section != quantityColumn && section != verdictColumn;
            return isAmount ? name + QString(2, QChar(QChar::Nbsp)) : QString(1, QChar(QChar::Nbsp)) + name;
        }
        if (role == Qt::TextAlignmentRole)
            return data(index(0, section), role);
        return {};
    }
    void follow(bool sameRows)
    {
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, rows_table_detail::columnCount - 1);
        if (!sameRows) {
            beginResetModel();
            endResetModel();
        } else if (!checked_.result.rows.empty()) {
            Q_EMIT dataChanged(index(0, 0), index(rowCount({}) - 1, rows_table_detail::columnCount - 1));
        }
    }

private:
    QString text(const check::Row& row, int column) const
    {
        const check::QuantityText& words = check::textOf(row.quantity);
        const bool english = checked_.english;
        switch (column) {
        case quantityColumn:
            return check_words::minus(check_words::in(words.meaning, english));
        case askedColumn:
            return check_words::amount(row.asked, words.unit);
        case courseColumn:
            return check_words::amount(row.course, words.unit);
        case simulatorColumn:
            if (checked_.freshness == Freshness::running)
                return QStringLiteral("…");
            return isShown(row) ? check_words::amount(row.simulated, words.unit) : QStringLiteral("?");
        default:
            break;
        }
        if (checked_.freshness == Freshness::running)
            return check_words::in(check_words::running, english);
        return check_words::in(isShown(row) ? check::judgementText(row.judgement) : check_words::closedCell, english);
    }
    // A dash says nothing to the ear, and a symbol alone not enough.
    QString spoken(const check::Row& row, int column) const
    {
        const QString plain = text(row, column);
        if (column == quantityColumn)
            return check_words::plainSymbolOf(row.quantity) + QStringLiteral(", ") + plain;
        const QString head = check_words::in(check_words::columns[column], checked_.english);
        const bool isEmpty = plain == QStringLiteral("–");
        return head + QStringLiteral(": ") +
               (isEmpty ? check_words::in(check_words::nothing, checked_.english) : plain);
    }

    const Checked& checked_;
};

namespace rows_table_detail {

class RowPainter final : public QStyledItemDelegate {
public:
    RowPainter(const Checked& checked, const RowsModel& model, const Inks& inks, QObject* parent)
        : QStyledItemDelegate(parent), checked_(checked), model_(model), inks_(&inks)
    {}
    void setInks(const Inks& inks) { inks_ = &inks; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const check::Row& row = model_.rowAt(index.row());
        const bool chosen = (option.state & QStyle::State_Selected) != 0;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->fillRect(option.rect, chosen ? inks_->accentTint : inks_->paper);
        painter->fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1), inks_->rule);
        const bool old = checked_.freshness == Freshness::changed || checked_.freshness == Freshness::asleep;
        painter->setOpacity(old ? quietGround : 1.0);
        if (index.column() == quantityColumn)
            paintQuantity(*painter, option, row, chosen);
        else if (index.column() == verdictColumn)
            paintVerdict(*painter, option, row, index);
        else
            paintAmount(*painter, option, row, index);
        painter->restore();
    }

private:
    QRect inside(const QStyleOptionViewItem& option) const { return option.rect.adjusted(padding, 0, -padding, 0); }

    void paintQuantity(QPainter& painter, const QStyleOptionViewItem& option, const check::Row& row, bool chosen) const
    {
        if (chosen)
            painter.fillRect(QRect(option.rect.topLeft(), QSize(barWidth, option.rect.height())), inks_->accent);
        const check::QuantityText& words = check::textOf(row.quantity);
        const double letters = option.fontMetrics.height();
        const SymbolLabel label = setLabel(check_words::symbolOf(row.quantity), letters * 0.95);
        QRect room = inside(option).adjusted(barWidth, 0, 0, 0);
        painter.setPen(inks_->ink);
        drawLabel(painter, label, QPointF(room.left(), room.center().y() + label.capHeight / 2.0));
        room.setLeft(room.left() + qRound(letters * symbolLetters));
        if (room.width() < letters * leastName)
            return;
        painter.setPen(inks_->quiet);
        painter.setFont(option.font);
        const QString text = check_words::minus(check_words::in(words.meaning, checked_.english));
        painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                         option.fontMetrics.elidedText(text, Qt::ElideRight, room.width()));
    }

    void paintAmount(QPainter& painter, const QStyleOptionViewItem& option, const check::Row& row,
                     const QModelIndex& index) const
    {
        const bool measured = index.column() == simulatorColumn;
        const bool open = !measured || model_.isShown(row);
        QFont font = option.font;
        font.setBold(measured);
        painter.setFont(font);
        painter.setPen(!open ? inks_->accent : index.column() == askedColumn ? inks_->quiet : inks_->ink);
        painter.drawText(inside(option), Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine,
                         index.data().toString());
    }

    void paintVerdict(QPainter& painter, const QStyleOptionViewItem& option, const check::Row& row,
                      const QModelIndex& index) const
    {
        QRect room = inside(option);
        const bool open = model_.isShown(row);
        const int side = option.fontMetrics.height();
        if (open)
            paintJudgementSign(painter, QRectF(room.left(), room.center().y() - side / 2.0, side, side), row.judgement,
                               *inks_);
        room.setLeft(room.left() + side + padding / 2);
        painter.setPen(open ? judgementInk(row.judgement, *inks_) : inks_->accent);
        painter.setFont(option.font);
        painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                         option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, room.width()));
    }

    const Checked& checked_;
    const RowsModel& model_;
    const Inks* inks_;
};

} // namespace rows_table_detail

RowsTable::RowsTable(const Checked& checked, const Inks& inks, QWidget* parent)
    : QTableView(parent), checked_(checked), rows_(new RowsModel(checked, this))
{
    setObjectName(QStringLiteral("checkRows"));
    setModel(rows_);
    setItemDelegate(new RowPainter(checked, *rows_, inks, this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setShowGrid(false);
    setFrameShape(NoFrame);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(qRound(fontMetrics().height() * rowShare));
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    setInks(inks);
}

void RowsTable::follow()
{
    const auto held = inHand();
    const bool sameRows = model()->rowCount() == static_cast<int>(checked_.result.rows.size()) && held;
    setAccessibleName(check_words::in(check_words::tableName, checked_.english));
    rows_->follow(sameRows);
    if (!sameRows && !checked_.result.rows.empty())
        take(held.value_or(checked_.result.rows.front().quantity));
    layOutColumns();
}

void RowsTable::setInks(const Inks& inks)
{
    static_cast<RowPainter*>(itemDelegate())->setInks(inks);
    viewport()->update();
}

std::optional<check::Quantity> RowsTable::inHand() const
{
    const QModelIndex current = currentIndex();
    if (!current.isValid() || current.row() >= static_cast<int>(checked_.result.rows.size()))
        return std::nullopt;
    return rows_->rowAt(current.row()).quantity;
}

void RowsTable::take(check::Quantity quantity)
{
    for (int row = 0; row < rows_->rowCount({}); ++row)
        if (rows_->rowAt(row).quantity == quantity)
            return setCurrentIndex(rows_->index(row, simulatorColumn));
    setCurrentIndex(rows_->index(0, simulatorColumn));
}

void RowsTable::layOutColumns()
{
    int left = viewport()->width();
    for (int column = askedColumn; column < rows_table_detail::columnCount; ++column) {
        setColumnWidth(column, widthOf(column));
        left -= widthOf(column);
    }
    setColumnWidth(quantityColumn, std::max(left, qRound(fontMetrics().height() * symbolLetters) + 2 * padding));
}

// As wide as the widest that may stand there, so that no bet moves a column.
int RowsTable::widthOf(int column) const
{
    QFont letters = font();
    letters.setBold(column == simulatorColumn);
    const QFontMetrics metrics(letters);
    int widest = fontMetrics().horizontalAdvance(check_words::in(check_words::columns[column], checked_.english));
    const auto take = [&](const QString& text) { widest = std::max(widest, metrics.horizontalAdvance(text)); };
    if (column == verdictColumn) {
        for (int i = 0; i <= static_cast<int>(check::Judgement::missing); ++i)
            take(check_words::in(check::judgementText(static_cast<check::Judgement>(i)), checked_.english));
        return widest + metrics.height() + 3 * padding;
    }
    for (const check::Row& row : checked_.result.rows) {
        const check::Measured& value = column == askedColumn    ? row.asked
                                       : column == courseColumn ? row.course
                                                                : row.simulated;
        take(check_words::amount(value, check::textOf(row.quantity).unit));
    }
    return std::max(widest, metrics.averageCharWidth() * fewestLetters) + 2 * padding;
}

int RowsTable::wholeHeight() const
{
    return horizontalHeader()->sizeHint().height() + verticalHeader()->defaultSectionSize() * model()->rowCount() + 2;
}

void RowsTable::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    layOutColumns();
}

void RowsTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (chosen && current.row() != previous.row())
        chosen();
}

} // namespace velmor::desktop
