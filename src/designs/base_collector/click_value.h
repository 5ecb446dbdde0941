// SPDX-License-Identifier: MIT
// What a click on a field writes into it, as a table. Knows no sheet.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "host/control.h"

namespace velmor::base_collector {

/// What a click writes into a field. A field that computes its value, or that has none, is not among them.
struct ClickValue {
    host::Handle field = host::noControl;
    std::string_view text{};
};

/// The fields of such a table.
template <std::size_t Count>
consteval std::array<host::Handle, Count> fieldsOf(const ClickValue (&rows)[Count])
{
    std::array<host::Handle, Count> fields{};
    for (std::size_t i = 0; i < Count; ++i)
        fields[i] = rows[i].field;
    return fields;
}

/// The row of a field; null for one that has none.
inline const ClickValue* clickValueOf(std::span<const ClickValue> rows, host::Handle field)
{
    const auto row =
        std::find_if(rows.begin(), rows.end(), [field](const ClickValue& one) { return one.field == field; });
    return row == rows.end() ? nullptr : &*row;
}

} // namespace velmor::base_collector
