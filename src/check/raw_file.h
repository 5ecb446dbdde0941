// SPDX-License-Identifier: MIT
// Reads what the simulator has written: plots of named columns of numbers in a binary file. Whatever the bytes are, it ends
// with the plots that are whole.
#pragma once

#include <complex>
#include <string>
#include <string_view>
#include <vector>

namespace velmor::check {

struct Column {
    std::string name{};                         ///< in small letters, as in "v(out)"
    std::vector<std::complex<double>> values{}; ///< real numbers have no imaginary part
};

struct Plot {
    std::string name{}; ///< "AC Analysis", "Transient Analysis", ...
    std::vector<Column> columns{};

    /// Null when the plot has no such column.
    const Column* column(std::string_view columnName) const;
    std::size_t length() const { return columns.empty() ? 0 : columns.front().values.size(); }
};

/// The plots that stand in the bytes from beginning to end; one that is cut off is left out, and so is what follows it.
std::vector<Plot> readRaw(std::string_view bytes);

/// The plot whose name begins so; null when there is none.
const Plot* plotOf(const std::vector<Plot>& plots, std::string_view name);

} // namespace velmor::check
