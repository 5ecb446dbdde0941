// SPDX-License-Identifier: MIT
#include "desktop/other_instance.h"

#include <QDir>
#include <QStandardPaths>

namespace velmor::desktop {

QString OtherInstance::usualMark()
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    QDir().mkpath(folder);
    return folder + QStringLiteral("/velmor.lock");
}

OtherInstance::OtherInstance(const QString& markFile) : mark_(markFile)
{
    mark_.setStaleLockTime(0);
    running_ = !mark_.tryLock(0) && mark_.error() == QLockFile::LockFailedError;
}

} // namespace velmor::desktop
