// SPDX-License-Identifier: MIT
// A save writes a second file, makes sure that it is on the disk, and then puts it in the place of the first: at every
// moment one of the two is whole. The second has no name until then, so that a program that is killed leaves nothing; what
// was left all the same goes with the next save. Uses the calls of POSIX, since the standard library can neither flush nor refuse.
#include "rules/whole_file.h"

#include "rules/code_page.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <random>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace velmor::rules {

namespace whole_file {

namespace fs = std::filesystem;

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(number_, other.number_);
        return *this;
    }

    [[nodiscard]] bool isOpen() const { return number_ >= 0; }
    [[nodiscard]] int number() const { return number_; }
    bool close()
    {
        const int number = std::exchange(number_, -1);
        return number < 0 || ::close(number) == 0;
    }

private:
    int number_;
};

// Removes a file of ours that has not taken its place.
class Removal {
public:
    explicit Removal(fs::path path) : path_(std::move(path)) {}
    ~Removal()
    {
        if (!path_.empty())
            ::unlink(path_.c_str());
    }
    Removal(const Removal&) = delete;
    Removal& operator=(const Removal&) = delete;

    void cancel() { path_.clear(); }

private:
    fs::path path_;
};

// Beyond its first NUL the system would not see a path, and touch another file than the one named.
bool isNameable(const fs::path& path)
{
    return path.has_filename() && path.native().find('\0') == fs::path::string_type::npos;
}

// Where a path leads when its links are followed, also to a file that is not there yet.
std::optional<fs::path> followLinks(fs::path path)
{
    constexpr int mostLinks = 40;
    for (int links = 0; links < mostLinks; ++links) {
        std::error_code error;
        if (fs::symlink_status(path, error).type() != fs::file_type::symlink)
            return path;
        const fs::path target = fs::read_symlink(path, error);
        if (error)
            return std::nullopt;
        path = path.parent_path() / target;
    }
    return std::nullopt;
}

// What stands at a path before the save.
struct OldFile {
    bool exists = false;
    bool replaceable = false;
    struct stat status {};
};

OldFile examine(const fs::path& path)
{
    OldFile old;
    old.exists = ::stat(path.c_str(), &old.status) == 0;
    if (!old.exists) {
        old.replaceable = errno == ENOENT;
        return old;
    }
    const bool writable = ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
    old.replaceable = S_ISREG(old.status.st_mode) && writable;
    return old;
}

struct NewFile {
    fs::path path; ///< empty while the file has no name, so that a killed program leaves nothing
    Descriptor descriptor;
};

fs::path folderOf(const fs::path& file)
{
    return file.parent_path().empty() ? fs::path(".") : file.parent_path();
}

constexpr std::string_view asideBegins = ".velmor-";
constexpr std::string_view asideEnds = ".tmp";
constexpr std::size_t asideDigits = 8;

fs::path nameAside(const fs::path& target, std::random_device& random)
{
    // The name does not grow out of the target's, which may already be as long as names can be.
    std::array<char, 32> digits{};
    std::snprintf(digits.data(), digits.size(), "%08x", static_cast<unsigned>(random()));
    return target.parent_path() / (std::string(asideBegins) + digits.data() + std::string(asideEnds));
}

bool isAside(std::string_view name)
{
    constexpr std::string_view digits = "0123456789abcdef";
    return name.size() == asideBegins.size() + asideDigits + asideEnds.size() &&
           name.substr(0, asideBegins.size()) == asideBegins &&
           name.substr(asideBegins.size() + asideDigits) == asideEnds &&
           name.substr(asideBegins.size(), asideDigits).find_first_not_of(digits) == std::string_view::npos;
}

// A file aside is locked as long as its program lives: one that is not was left by a program that was killed.
void removeLeftovers(const fs::path& folder)
{
    std::error_code error;
    fs::directory_iterator entry(folder, fs::directory_options::skip_permission_denied, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        if (!isAside(entry->path().filename().native()))
            continue;
        const Descriptor file(::open(entry->path().c_str(), O_WRONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
        struct stat status {};
        if (file.isOpen() && ::fstat(file.number(), &status) == 0 && S_ISREG(status.st_mode) &&
            ::flock(file.number(), LOCK_EX | LOCK_NB) == 0)
            ::unlink(entry->path().c_str());
    }
}

NewFile createBeside(const fs::path& target, mode_t mode)
{
    constexpr int attempts = 100;
    std::random_device random;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        fs::path path = nameAside(target, random);
        Descriptor descriptor(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
        if (!descriptor.isOpen() && errno == EEXIST)
            continue;
        struct stat status {};
        const bool locked = descriptor.isOpen() && ::flock(descriptor.number(), LOCK_EX | LOCK_NB) == 0;
        // Somebody may have taken it for a leftover before it was locked.
        if (locked && ::fstat(descriptor.number(), &status) == 0 && status.st_nlink == 0)
            continue;
        return {std::move(path), std::move(descriptor)};
    }
    return {{}, Descriptor(-1)};
}

// A file without a name, where the file system has such.
NewFile createNameless(const fs::path& target, mode_t mode)
{
    Descriptor descriptor(::open(folderOf(target).c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, mode));
    if (descriptor.isOpen())
        static_cast<void>(::flock(descriptor.number(), LOCK_EX | LOCK_NB));
    return {{}, std::move(descriptor)};
}

bool nameIt(int descriptor, const fs::path& path)
{
    const std::string self = "/proc/self/fd/" + std::to_string(descriptor);
    return ::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

// Not every file system knows owners and permissions: one that refuses still gets its file.
void inherit(int descriptor, const OldFile& old)
{
    if (!old.exists)
        return;
    const bool owned = ::fchown(descriptor, old.status.st_uid, old.status.st_gid) == 0;
    const mode_t kept = owned ? 07777 : 0777;
    static_cast<void>(::fchmod(descriptor, old.status.st_mode & kept));
}

bool writeAll(int descriptor, std::string_view bytes, const SaveSteps& steps)
{
    while (!bytes.empty()) {
        const ssize_t written = steps.write ? steps.write(descriptor, bytes.data(), bytes.size())
                                            : ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(std::min(static_cast<std::size_t>(written), bytes.size()));
    }
    return true;
}

// Some file systems cannot flush a single file and say so; every other refusal means that bytes may be lost.
bool flush(int descriptor)
{
    return ::fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP;
}

// So that the rename itself outlives a power cut. The file is whole in any case, therefore nothing is reported.
void flushFolder(const fs::path& file)
{
    const Descriptor descriptor(::open(folderOf(file).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.isOpen())
        static_cast<void>(::fsync(descriptor.number()));
}

// The new content is safe on the disk: it takes its name, aside first where there is an old file to be replaced.
bool takePlace(const fs::path& target, NewFile& fresh)
{
    const int file = fresh.descriptor.number();
    if (fresh.path.empty()) {
        std::random_device random;
        if (nameIt(file, target))
            return true;
        fs::path aside = nameAside(target, random);
        if (errno != EEXIST || !nameIt(file, aside))
            return false;
        fresh.path = std::move(aside);
    }
    Removal removal(fresh.path);
    if (::rename(fresh.path.c_str(), target.c_str()) != 0)
        return false;
    removal.cancel();
    return true;
}

/// How far a save came. Without /proc a nameless file cannot be given a name, and the save begins anew with one.
enum class Outcome : std::uint8_t { done, failed, cannotBeNamed };

Outcome replaceBy(NewFile fresh, const fs::path& target, const OldFile& old, std::string_view bytes,
                  const SaveSteps& steps)
{
    if (!fresh.descriptor.isOpen())
        return Outcome::failed;
    const bool nameless = fresh.path.empty();
    Removal removal(fresh.path);
    inherit(fresh.descriptor.number(), old);
    // What closing refuses has not been saved either; the second descriptor keeps the file and its lock meanwhile.
    Descriptor written(std::move(fresh.descriptor));
    fresh.descriptor = Descriptor(::fcntl(written.number(), F_DUPFD_CLOEXEC, 0));
    const bool safe = writeAll(written.number(), bytes, steps) && flush(written.number());
    if (!written.close() || !safe || !fresh.descriptor.isOpen())
        return Outcome::failed;
    if (steps.beforeReplace)
        steps.beforeReplace();
    if (!takePlace(target, fresh))
        return nameless && fresh.path.empty() ? Outcome::cannotBeNamed : Outcome::failed;
    removal.cancel();
    flushFolder(target);
    return Outcome::done;
}

bool replace(const fs::path& target, const OldFile& old, std::string_view bytes, const SaveSteps& steps)
{
    removeLeftovers(folderOf(target));
    // Nobody may read along before the old file's permissions are in place; a first save takes the person's own.
    const mode_t mode = old.exists ? 0600 : 0666;
    NewFile nameless = createNameless(target, mode);
    if (nameless.descriptor.isOpen()) {
        const Outcome outcome = replaceBy(std::move(nameless), target, old, bytes, steps);
        if (outcome != Outcome::cannotBeNamed)
            return outcome == Outcome::done;
    }
    return replaceBy(createBeside(target, mode), target, old, bytes, steps) == Outcome::done;
}

bool isBareName(std::string_view name)
{
    return isNameable(name) && name.find('/') == std::string_view::npos && name != "." && name != "..";
}

std::optional<fs::path> findEntry(const fs::path& folder, std::string_view name, fs::file_type wanted)
{
    if (!isBareName(name))
        return std::nullopt;
    std::error_code error;
    if (fs::status(folder / name, error).type() == wanted)
        return folder / name;
    const std::string folded = smallLetters(name);
    std::optional<fs::path> found;
    fs::directory_iterator entry(folder, fs::directory_options::skip_permission_denied, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const fs::path& path = entry->path();
        std::error_code unknown;
        if (smallLetters(path.filename().native()) != folded || entry->status(unknown).type() != wanted)
            continue;
        if (!found || path.native() < found->native())
            found = path;
    }
    return found;
}

} // namespace whole_file

bool writeWhole(const std::filesystem::path& path, std::string_view bytes, const SaveSteps& steps)
{
    if (!whole_file::isNameable(path))
        return false;
    const auto target = whole_file::followLinks(path);
    if (!target || !whole_file::isNameable(*target))
        return false;
    const whole_file::OldFile old = whole_file::examine(*target);
    return old.replaceable && whole_file::replace(*target, old, bytes, steps);
}

std::optional<std::string> readWhole(const std::filesystem::path& path, std::size_t maxBytes)
{
    if (!whole_file::isNameable(path))
        return std::nullopt;
    // Not blocking: a pipe without a writer must not stop the program before it can be refused.
    const whole_file::Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    if (status.st_size < 0 || static_cast<std::uintmax_t>(status.st_size) > maxBytes)
        return std::nullopt;

    std::string content;
    content.reserve(static_cast<std::size_t>(status.st_size));
    std::array<char, 32768> chunk;
    for (;;) {
        const ssize_t count = ::read(file.number(), chunk.data(), chunk.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            return content;
        // It may have grown since its size was asked for.
        if (static_cast<std::size_t>(count) > maxBytes - content.size())
            return std::nullopt;
        content.append(chunk.data(), static_cast<std::size_t>(count));
    }
}

std::optional<std::filesystem::path> findFile(const std::filesystem::path& folder, std::string_view name)
{
    return whole_file::findEntry(folder, name, std::filesystem::file_type::regular);
}

std::optional<std::filesystem::path> findFolder(const std::filesystem::path& folder, std::string_view name)
{
    return whole_file::findEntry(folder, name, std::filesystem::file_type::directory);
}

} // namespace velmor::rules
