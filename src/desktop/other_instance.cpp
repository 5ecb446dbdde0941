// SPDX-License-Identifier: MIT
#include "desktop/other_instance.h"

#include <cerrno>

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmor::desktop {

QString OtherInstance::usualMark()
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    QDir().mkpath(folder);
    return folder + QStringLiteral("/velmor.lock");
}

// The toolkit's own lock writes to the disk and waits for it, before there is a window.
OtherInstance::OtherInstance(const QString& markFile) : path_(QFile::encodeName(markFile))
{
    constexpr int attempts = 3;
    for (int attempt = 0; attempt < attempts; ++attempt)
        if (hold())
            return;
}

OtherInstance::~OtherInstance()
{
    if (descriptor_ < 0)
        return;
    ::unlink(path_.constData());
    ::close(descriptor_);
}

/// False when the mark went while it was taken: its holder has just ended.
bool OtherInstance::hold()
{
    constexpr int ownerOnly = 0600;
    const int descriptor = ::open(path_.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, ownerOnly);
    if (descriptor < 0)
        return true;
    const bool locked = ::flock(descriptor, LOCK_EX | LOCK_NB) == 0;
    running_ = !locked && errno == EWOULDBLOCK;
    struct stat status {};
    if (!locked || ::fstat(descriptor, &status) != 0 || status.st_nlink == 0) {
        ::close(descriptor);
        return !locked;
    }
    descriptor_ = descriptor;
    return true;
}

} // namespace velmor::desktop
