// SPDX-License-Identifier: MIT
// Takes the bytes apart, line by line and number by number; nothing that they claim is believed before it is counted.
#include "check/raw_file.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>

namespace velmor::check {

namespace raw_detail {

/// The start of a plot: all lines up to "Binary:".
struct Header {
    std::string plotName{};
    bool isComplex = false;
    std::size_t columns = 0;
    std::size_t rows = 0;
    std::vector<std::string> names{};
};

/// The next line without its end, taken off the bytes; nothing where no line ends any more.
std::optional<std::string_view> takeLine(std::string_view& bytes)
{
    const std::size_t end = bytes.find('\n');
    if (end == std::string_view::npos)
        return std::nullopt;
    const std::string_view line = bytes.substr(0, end);
    bytes.remove_prefix(end + 1);
    return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t");
    const std::size_t last = text.find_last_not_of(" \t");
    return first == std::string_view::npos ? std::string_view() : text.substr(first, last - first + 1);
}

std::size_t count(std::string_view text)
{
    std::size_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// "i(@q1[ic])" and "@q1[ic]" are the same current, "V(OUT)" is "v(out)".
std::string columnName(std::string_view written)
{
    std::string name(written);
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    if (name.starts_with("i(@") && name.ends_with(')'))
        name = name.substr(2, name.size() - 3);
    return name;
}

/// "<tab>0<tab>v(out)<tab>voltage".
std::string nameOfVariable(std::string_view line)
{
    std::string_view rest = trimmed(line);
    const std::size_t gap = rest.find_first_of(" \t");
    if (gap == std::string_view::npos)
        return {};
    rest = trimmed(rest.substr(gap));
    return columnName(rest.substr(0, rest.find_first_of(" \t")));
}

void takeHeaderLine(Header& header, std::string_view line)
{
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos)
        return;
    const std::string_view key = line.substr(0, colon);
    const std::string_view value = trimmed(line.substr(colon + 1));
    if (key == "Plotname")
        header.plotName = value;
    else if (key == "Flags")
        header.isComplex = value.find("complex") != std::string_view::npos;
    else if (key == "No. Variables")
        header.columns = count(value);
    else if (key == "No. Points")
        header.rows = count(value);
}

std::optional<Header> takeHeader(std::string_view& bytes)
{
    Header header;
    bool inNames = false;
    while (const auto line = takeLine(bytes)) {
        if (line->starts_with("Binary:"))
            return header;
        if (line->starts_with("Variables:"))
            inNames = true;
        else if (inNames)
            header.names.push_back(nameOfVariable(*line));
        else
            takeHeaderLine(header, *line);
    }
    return std::nullopt;
}

double number(std::string_view bytes)
{
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < sizeof bits; ++i)
        bits |= static_cast<std::uint64_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
    return std::bit_cast<double>(bits);
}

/// True when the header names what it counts and the bytes hold it all.
bool isWhole(const Header& header, std::string_view bytes)
{
    if (header.columns == 0 || header.names.size() != header.columns)
        return false;
    const std::size_t cells = bytes.size() / (header.isComplex ? 16 : 8);
    return header.columns <= cells && header.rows <= cells / header.columns;
}

Plot takeNumbers(const Header& header, std::string_view& bytes)
{
    Plot plot{.name = header.plotName};
    for (const std::string& name : header.names)
        plot.columns.push_back({.name = name, .values = std::vector<std::complex<double>>(header.rows)});
    const std::size_t width = header.isComplex ? 16 : 8;
    for (std::size_t row = 0; row < header.rows; ++row)
        for (Column& column : plot.columns) {
            column.values[row] = {number(bytes), header.isComplex ? number(bytes.substr(8)) : 0.0};
            bytes.remove_prefix(width);
        }
    return plot;
}

} // namespace raw_detail

const Column* Plot::column(std::string_view columnName) const
{
    const auto found =
        std::find_if(columns.begin(), columns.end(), [&](const Column& one) { return one.name == columnName; });
    return found == columns.end() ? nullptr : &*found;
}

std::vector<Plot> readRaw(std::string_view bytes)
{
    std::vector<Plot> plots;
    while (const auto header = raw_detail::takeHeader(bytes)) {
        if (!raw_detail::isWhole(*header, bytes))
            break;
        Plot plot = raw_detail::takeNumbers(*header, bytes);
        if (plot.length() > 0) // one that failed stands there without a point
            plots.push_back(std::move(plot));
    }
    return plots;
}

const Plot* plotOf(const std::vector<Plot>& plots, std::string_view name)
{
    const auto found =
        std::find_if(plots.begin(), plots.end(), [&](const Plot& plot) { return plot.name.starts_with(name); });
    return found == plots.end() ? nullptr : &*found;
}

} // namespace velmor::check
