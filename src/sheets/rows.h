// SPDX-License-Identifier: MIT
// Tables made of tables at compile time: one behind the other, and a table told as another one with differences. Knows the rows
// of windows and sheets, no sheet.
#pragma once

#include <array>
#include <cstddef>

#include "host/window.h"
#include "sheets/chain.h"
#include "sheets/saying.h"

namespace velmor::sheets {

/// The rows of all tables, one table behind the other.
template <class Row, std::size_t... Counts>
consteval std::array<Row, (Counts + ...)> joined(const std::array<Row, Counts>&... tables)
{
    std::array<Row, (Counts + ...)> all{};
    std::size_t next = 0;
    const auto append = [&](const auto& table) {
        for (const Row& row : table)
            all[next++] = row;
    };
    (append(tables), ...);
    return all;
}

/// The rows of several tables of controls, each at the index of its handle. A handle without a row does not compile, nor one with
/// two.
template <std::size_t Count, std::size_t... Counts>
consteval std::array<host::ControlRow, Count> inHandleOrder(const std::array<host::ControlRow, Counts>&... tables)
{
    static_assert((Counts + ...) == Count, "each control has one row");
    std::array<host::ControlRow, Count> rows{};
    const auto place = [&](const auto& table) {
        for (const host::ControlRow& row : table) {
            if (!rows[row.id].name.empty())
                throw "two rows of one control";
            rows[row.id] = row;
        }
    };
    (place(tables), ...);
    return rows;
}

/// The controls of a sheet that is told as another one with differences and more of them: the other's rows, those of the tables in
/// the place of their like or behind them, each at the index of its handle. A handle without a row does not compile.
template <std::size_t Count, std::size_t Other, std::size_t... Counts>
consteval std::array<host::ControlRow, Count> withControlsOf(const std::array<host::ControlRow, Other>& other,
                                                             const std::array<host::ControlRow, Counts>&... tables)
{
    std::array<host::ControlRow, Count> rows{};
    const auto place = [&](const auto& table) {
        for (const host::ControlRow& row : table)
            rows[row.id] = row;
    };
    place(other);
    (place(tables), ...);
    for (const host::ControlRow& row : rows)
        if (row.name.empty())
            throw "a control has no row";
    return rows;
}

/// The same slot for several controls.
template <std::size_t Count>
consteval std::array<host::SlotRow, Count> alike(const std::array<host::Handle, Count>& controls, host::Event event,
                                                 host::SlotFunction run)
{
    std::array<host::SlotRow, Count> rows{};
    for (std::size_t i = 0; i < Count; ++i)
        rows[i] = {controls[i], event, run};
    return rows;
}

/// The fields of a chain in its order, which begins that of the Tab key.
template <std::size_t Count>
consteval std::array<host::Handle, Count> fieldsOf(const std::array<ChainRow, Count>& chain)
{
    std::array<host::Handle, Count> fields{};
    for (std::size_t i = 0; i < Count; ++i)
        fields[i] = chain[i].field;
    return fields;
}

/// The same slot for every field of a chain.
template <std::size_t Count>
consteval std::array<host::SlotRow, Count> alike(const std::array<ChainRow, Count>& chain, host::Event event,
                                                 host::SlotFunction run)
{
    return alike(fieldsOf(chain), event, run);
}

// What makes two rows the same row of two tables.
constexpr bool sameRow(const ChainRow& one, const ChainRow& other)
{
    return one.field == other.field;
}
constexpr bool sameRow(const Saying& one, const Saying& other)
{
    return one.about == other.about && one.when == other.when && one.place == other.place;
}
constexpr bool sameRow(const HelpPage& one, const HelpPage& other)
{
    return one.field == other.field;
}
constexpr bool sameRow(const host::ControlRow& one, const host::ControlRow& other)
{
    return one.id == other.id;
}
constexpr bool sameRow(const host::SlotRow& one, const host::SlotRow& other)
{
    return one.control == other.control && one.event == other.event;
}
constexpr bool sameRow(const host::ShortcutRow& one, const host::ShortcutRow& other)
{
    return one.keys == other.keys;
}
constexpr bool sameRow(const host::GrowthRow& one, const host::GrowthRow& other)
{
    return one.part == other.part && one.field == other.field;
}
constexpr bool sameRow(const host::ValueRow& one, const host::ValueRow& other)
{
    return one.value == other.value;
}

namespace rows_detail {

template <class Rows, class Row>
consteval std::size_t indexOf(const Rows& rows, const Row& wanted)
{
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (sameRow(rows[i], wanted))
            return i;
    throw "the other table has no such row";
}

} // namespace rows_detail

/// The table of a sheet that is told as another one with differences: the other's rows, those in `different` in the place of
/// their like. A row without its like in the other table does not compile.
template <class Row, std::size_t Count, std::size_t Different>
consteval std::array<Row, Count> withRowsOf(const std::array<Row, Count>& other,
                                            const std::array<Row, Different>& different)
{
    std::array<Row, Count> rows = other;
    for (const Row& row : different)
        rows[rows_detail::indexOf(rows, row)] = row;
    return rows;
}

/// The other's rows without those that are like one in `omitted`, each of which must be there.
template <class Row, std::size_t Count, std::size_t Omitted>
consteval std::array<Row, Count - Omitted> without(const std::array<Row, Count>& other,
                                                   const std::array<Row, Omitted>& omitted)
{
    for (const Row& row : omitted)
        static_cast<void>(rows_detail::indexOf(other, row));
    std::array<Row, Count - Omitted> rows{};
    std::size_t next = 0;
    for (const Row& row : other) {
        bool stays = true;
        for (const Row& gone : omitted)
            stays = stays && !sameRow(row, gone);
        if (stays)
            rows[next++] = row;
    }
    return rows;
}

} // namespace velmor::sheets
