// SPDX-License-Identifier: MIT
// Where work is kept on the disk: a folder for each running program with a file for each window, locked while the program
// lives, and a folder for what was dropped. Nothing here ever says a word or throws: what cannot be done is not done.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmor::keeping {

/// Seconds since 1970.
using Clock = std::function<std::int64_t()>;

/// Work that somebody left: a file whose window is open nowhere.
struct LeftFile {
    std::filesystem::path path;
    std::int64_t time = 0; ///< when it was last changed
    std::string state;     ///< as it was given to `write`
};

class KeptFolder {
public:
    static constexpr std::int64_t daysOfDropped = 7;
    static constexpr std::size_t largestFile = std::size_t{256} << 20;

    /// Touches nothing yet: the program's own folder is made when the first window is kept.
    KeptFolder(std::filesystem::path root, Clock now);
    /// The program's own folder goes if nothing is kept in it.
    ~KeptFolder();
    KeptFolder(const KeptFolder&) = delete;
    KeptFolder& operator=(const KeptFolder&) = delete;

    /// Keeps a state under a bare name, in place of what was kept under it. True when it is safe on the disk.
    bool write(const std::string& name, std::string_view state);
    void forget(const std::string& name);
    /// The file of that name in the program's own folder; empty while there is none.
    std::filesystem::path pathOf(const std::string& name) const;

    /// What programs that no longer run have left, in the order of their folders and names. Their folders are this program's
    /// from then on, so that no other program offers the same. A file that is damaged is moved to the dropped ones.
    std::vector<LeftFile> takeLeft();
    /// Away with a file that `takeLeft` or `pathOf` has named.
    void remove(const std::filesystem::path& left);
    /// The same, but it is kept among the dropped ones for some days more.
    void drop(const std::filesystem::path& left);
    /// Where the dropped ones lie.
    std::filesystem::path droppedFolder() const;
    /// Removes those whose days are over.
    void clearDropped();

private:
    class Lock;

    bool makeOwn();
    void takeFolder(const std::filesystem::path& folder, std::vector<LeftFile>& found);
    void leaveFolder(const std::filesystem::path& folder, std::unique_ptr<Lock> lock);

    std::filesystem::path root_;
    Clock now_;
    std::filesystem::path own_;
    std::unique_ptr<Lock> ownLock_;
    std::vector<std::pair<std::filesystem::path, std::unique_ptr<Lock>>> taken_;
};

} // namespace velmor::keeping
