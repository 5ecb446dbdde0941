// SPDX-License-Identifier: MIT
// A kept file is a line with the time, then the text of the state, whose own seal tells damage. Files are replaced whole; a
// folder whose lock can be had belongs to no running program. The system drops a lock with its program, however that ends.
#include "keeping/kept_folder.h"

#include <algorithm>
#include <charconv>
#include <fcntl.h>
#include <random>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "rules/whole_file.h"

namespace velmor::keeping {

namespace fs = std::filesystem;

namespace kept_folder_detail {

constexpr std::string_view heading = "velmor-kept 1 ";
constexpr const char* lockName = "lock";
constexpr const char* droppedName = "dropped";
constexpr std::string_view ending = ".state";
constexpr char unfinished = '.'; ///< first letter of a folder that has no lock yet
constexpr std::int64_t day = 24 * 60 * 60;
constexpr int mostNames = 1000;

std::string headed(std::int64_t time, std::string_view state)
{
    std::string text(heading);
    text.reserve(state.size() + heading.size() + 24);
    return text.append(std::to_string(time)).append("\n").append(state);
}

std::optional<std::int64_t> leadingNumber(std::string_view text, char behind)
{
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool sound = error == std::errc() && end != text.data() + text.size() && *end == behind && number >= 0;
    return sound ? std::optional(number) : std::nullopt;
}

std::optional<LeftFile> readLeft(const fs::path& path)
{
    std::optional<std::string> bytes = rules::readWhole(path, KeptFolder::largestFile);
    if (!bytes || !bytes->starts_with(heading))
        return std::nullopt;
    const std::size_t end = bytes->find('\n');
    const auto time = leadingNumber(std::string_view(*bytes).substr(heading.size()), '\n');
    if (!time)
        return std::nullopt;
    return LeftFile{path, *time, bytes->substr(end + 1)};
}

std::vector<fs::path> entriesOf(const fs::path& folder)
{
    std::vector<fs::path> entries;
    std::error_code error;
    fs::directory_iterator entry(folder, fs::directory_options::skip_permission_denied, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error))
        entries.push_back(entry->path());
    std::sort(entries.begin(), entries.end());
    return entries;
}

bool isFolder(const fs::path& path)
{
    std::error_code error;
    return fs::symlink_status(path, error).type() == fs::file_type::directory;
}

std::string uniqueName()
{
    std::random_device source;
    constexpr const char* digits = "0123456789abcdef";
    std::string name = std::to_string(::getpid()) + "-";
    for (int i = 0; i < 12; ++i)
        name.push_back(digits[source() % 16]);
    return name;
}

// Only the person may look into their own work.
void makePrivate(const fs::path& folder)
{
    std::error_code ignored;
    fs::permissions(folder, fs::perms::owner_all, ignored);
}

} // namespace kept_folder_detail

using namespace kept_folder_detail;

/// The lock of a folder, held until it goes.
class KeptFolder::Lock {
public:
    explicit Lock(const fs::path& folder)
        : descriptor_(::open((folder / lockName).c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600))
    {
        // Another program may have taken the folder and cleared it away in between: then the file has no name any more.
        struct stat status {};
        held_ = descriptor_ >= 0 && ::flock(descriptor_, LOCK_EX | LOCK_NB) == 0 &&
                ::fstat(descriptor_, &status) == 0 && status.st_nlink > 0;
    }
    ~Lock()
    {
        if (descriptor_ >= 0)
            ::close(descriptor_);
    }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

    bool held() const { return held_; }

private:
    int descriptor_;
    bool held_ = false;
};

KeptFolder::KeptFolder(fs::path root, Clock now) : root_(std::move(root)), now_(std::move(now)) {}

KeptFolder::~KeptFolder()
{
    if (ownLock_ != nullptr)
        leaveFolder(own_, std::move(ownLock_));
    for (auto& [folder, lock] : taken_)
        leaveFolder(folder, std::move(lock));
}

// Under a name that nobody looks at until it is locked.
bool KeptFolder::makeOwn()
{
    if (ownLock_ != nullptr)
        return true;
    std::error_code error;
    fs::create_directories(root_, error);
    makePrivate(root_);
    const std::string name = uniqueName();
    const fs::path fresh = root_ / (unfinished + name);
    if (!fs::create_directory(fresh, error))
        return false;
    makePrivate(fresh);
    auto lock = std::make_unique<Lock>(fresh);
    if (lock->held())
        fs::rename(fresh, root_ / name, error);
    if (!lock->held() || error) {
        std::error_code ignored;
        fs::remove_all(fresh, ignored);
        return false;
    }
    own_ = root_ / name;
    ownLock_ = std::move(lock);
    return true;
}

bool KeptFolder::write(const std::string& name, std::string_view state)
{
    if (!makeOwn())
        return false;
    if (rules::writeWhole(own_ / name, headed(now_(), state)))
        return true;
    // Somebody may have cleared the folder away: the next time it is made anew.
    std::error_code error;
    if (!fs::exists(own_ / lockName, error) && !error)
        ownLock_.reset();
    return false;
}

void KeptFolder::forget(const std::string& name)
{
    if (ownLock_ != nullptr)
        remove(own_ / name);
}

fs::path KeptFolder::pathOf(const std::string& name) const
{
    return ownLock_ == nullptr ? fs::path() : own_ / name;
}

void KeptFolder::remove(const fs::path& left)
{
    std::error_code ignored;
    fs::remove(left, ignored);
}

fs::path KeptFolder::droppedFolder() const
{
    return root_ / droppedName;
}

// The name tells when it was dropped, whatever becomes of the file's own time.
void KeptFolder::drop(const fs::path& left)
{
    std::error_code error;
    fs::create_directories(droppedFolder(), error);
    const std::string time = std::to_string(now_());
    for (int number = 1; number <= mostNames; ++number) {
        const fs::path target =
            droppedFolder() / (time + "-" + std::to_string(number) + "-" + left.filename().string());
        if (fs::exists(target, error))
            continue;
        fs::rename(left, target, error);
        return;
    }
}

void KeptFolder::clearDropped()
{
    for (const fs::path& entry : entriesOf(droppedFolder())) {
        const auto time = leadingNumber(entry.filename().string(), '-');
        if (time && *time + daysOfDropped * day < now_())
            remove(entry);
    }
}

std::vector<LeftFile> KeptFolder::takeLeft()
{
    std::vector<LeftFile> found;
    for (const fs::path& folder : entriesOf(root_))
        if (isFolder(folder) && folder != own_ && folder.filename() != droppedName)
            takeFolder(folder, found);
    clearDropped();
    return found;
}

// Whatever a save that was cut off has left beside the files goes.
void KeptFolder::takeFolder(const fs::path& folder, std::vector<LeftFile>& found)
{
    auto lock = std::make_unique<Lock>(folder);
    if (!lock->held())
        return;
    bool any = false;
    for (const fs::path& path : entriesOf(folder)) {
        if (path.filename() == lockName)
            continue;
        if (path.filename().native().front() == unfinished || path.extension() != ending) {
            remove(path);
            continue;
        }
        std::optional<LeftFile> left = readLeft(path);
        if (left)
            found.push_back(std::move(*left));
        else
            drop(path);
        any = any || left;
    }
    if (!any)
        leaveFolder(folder, std::move(lock));
    else
        taken_.emplace_back(folder, std::move(lock));
}

// On a file server a file that is removed while it is open stays under another name until it is closed, and its folder with it.
void KeptFolder::leaveFolder(const fs::path& folder, std::unique_ptr<Lock> lock)
{
    const std::vector<fs::path> entries = entriesOf(folder);
    const bool bare =
        std::all_of(entries.begin(), entries.end(), [](const fs::path& path) { return path.filename() == lockName; });
    if (!bare)
        return;
    remove(folder / lockName);
    lock.reset();
    std::error_code ignored;
    fs::remove(folder, ignored);
}

} // namespace velmor::keeping
