// SPDX-License-Identifier: MIT
// Splits and joins the lines of circuit files. A file is read into memory once, bounded, and only ever sliced.
#include "rules/circuit_lines.h"

#include "rules/code_page.h"
#include "rules/whole_file.h"

#include <algorithm>
#include <utility>

namespace velmor::rules {

namespace circuit_lines {

constexpr std::string_view lineEnd = "\r\n";
constexpr std::string_view bareLineEnd = "\n";
constexpr std::size_t judgedPart = 64 * 1024;

} // namespace circuit_lines

std::optional<CircuitReader> CircuitReader::open(const std::filesystem::path& path)
{
    std::optional<std::string> bytes = readWhole(path, largestCircuitFile);
    if (!bytes)
        return std::nullopt;
    return CircuitReader(std::move(*bytes));
}

CircuitReader::CircuitReader(std::string bytes) : bytes_(std::move(bytes))
{
    const bool hasReturn =
        std::string_view(bytes_).substr(0, circuit_lines::judgedPart).find('\r') != std::string::npos;
    lineEnd_ = hasReturn ? circuit_lines::lineEnd : circuit_lines::bareLineEnd;
}

std::optional<std::string> CircuitReader::readLine()
{
    if (position_ >= bytes_.size())
        return std::nullopt;
    const std::size_t end = std::min(bytes_.find(lineEnd_, position_), bytes_.size());
    const std::size_t length = end - position_;
    // The reader stays before such a line, so that nothing behind it is ever reached.
    if (length > longestCircuitLine)
        return std::nullopt;
    std::string line = fromWindows1252(std::string_view(bytes_).substr(position_, length));
    position_ = std::min(end + lineEnd_.size(), bytes_.size());
    return line;
}

std::string joinCircuitLines(std::span<const std::string> lines)
{
    std::string text;
    for (const std::string& line : lines)
        text.append(line).append(circuit_lines::lineEnd);
    return text;
}

bool writeCircuitFile(const std::filesystem::path& path, std::string_view text)
{
    return writeWhole(path, toWindows1252(text).append(circuit_lines::lineEnd));
}

} // namespace velmor::rules
