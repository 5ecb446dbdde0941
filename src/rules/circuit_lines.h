// SPDX-License-Identifier: MIT
// Circuit files as a sequence of lines: what a sheet reads one by one and writes in its own order. Knows no sheet;
// lines are texts of the program (UTF-8, line feeds inside a caption), files are Windows-1252 with CR LF behind each
// line.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace velmor::rules {

inline constexpr std::size_t largestCircuitFile = 1024 * 1024;
inline constexpr std::size_t longestCircuitLine = 64 * 1024;

class CircuitReader {
public:
    /// Nothing when the file cannot be read, is no plain file, or is larger than largestCircuitFile.
    static std::optional<CircuitReader> open(const std::filesystem::path& path);

    /// Reads a file's bytes that are already in memory.
    explicit CircuitReader(std::string bytes);

    /// The next line; nothing behind the last one, and nothing from a line longer than longestCircuitLine bytes on. The
    /// last line may lack its line end. In a file whose first 64 KiB hold no CR, LF ends a line.
    std::optional<std::string> readLine();

private:
    std::string bytes_;
    std::size_t position_ = 0;
    std::string_view lineEnd_;
};

/// The lines as one text, each ended by CR LF: what a sheet's Datos gives. Still UTF-8.
std::string joinCircuitLines(std::span<const std::string> lines);

/// Writes the text of Datos and one further line end, in Windows-1252, whole or not at all; true when it was done.
bool writeCircuitFile(const std::filesystem::path& path, std::string_view text);

} // namespace velmor::rules
