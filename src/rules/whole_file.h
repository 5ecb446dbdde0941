// SPDX-License-Identifier: MIT
// Files read and written as a whole: a save replaces the old file completely or leaves it as it was, and a file is
// found without regard to capitals. Knows nothing of what the bytes mean.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace velmor::rules {

/// The two moments of a save where a test steps in; the program leaves both empty.
struct SaveSteps {
    /// Writes bytes to a descriptor and returns how many it wrote, or a negative number with errno set, as write(2)
    /// does.
    std::function<ssize_t(int descriptor, const char* bytes, std::size_t count)> write;
    /// Runs when the new content is safe on the disk and the old file still stands.
    std::function<void()> beforeReplace;
};

/// Puts `bytes` in place of the file at `path`, or makes the file. True when it was done; otherwise the old file is
/// whole and nothing new remains in its folder. Permissions stay, a link goes on pointing to the same file. Refuses
/// anything that is not a plain file, and a file that may not be written.
bool writeWhole(const std::filesystem::path& path, std::string_view bytes, const SaveSteps& steps = {});

/// The content of a plain file of at most `maxBytes` bytes; nothing when it is larger, absent, unreadable, or no plain
/// file (a folder, a pipe, a device). Never waits, and never holds more than a little above `maxBytes`.
std::optional<std::string> readWhole(const std::filesystem::path& path, std::size_t maxBytes);

/// The file of that name in a folder: spelt exactly so, else the first in byte order that differs in capitals alone,
/// Spanish letters included. `name` is a bare name without folders.
std::optional<std::filesystem::path> findFile(const std::filesystem::path& folder, std::string_view name);

/// The same for a folder in a folder.
std::optional<std::filesystem::path> findFolder(const std::filesystem::path& folder, std::string_view name);

} // namespace velmor::rules
