// SPDX-License-Identifier: MIT
#include "keeping/program_mark.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmor::keeping {

ProgramMark::ProgramMark(std::string path) : path_(std::move(path))
{
    constexpr int attempts = 3;
    for (int attempt = 0; attempt < attempts; ++attempt)
        if (take())
            return;
}

ProgramMark::~ProgramMark()
{
    if (descriptor_ < 0)
        return;
    ::unlink(path_.c_str());
    ::close(descriptor_);
}

/// False when the file went while it was taken: its holder has just ended.
bool ProgramMark::take()
{
    constexpr int ownerOnly = 0600;
    const int descriptor = ::open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, ownerOnly);
    if (descriptor < 0)
        return true;
    const bool locked = ::flock(descriptor, LOCK_EX | LOCK_NB) == 0;
    heldElsewhere_ = !locked && errno == EWOULDBLOCK;
    struct stat status {};
    if (!locked || ::fstat(descriptor, &status) != 0 || status.st_nlink == 0) {
        ::close(descriptor);
        return !locked;
    }
    descriptor_ = descriptor;
    return true;
}

} // namespace velmor::keeping
