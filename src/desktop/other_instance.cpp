// SPDX-License-Identifier: MIT
#include "desktop/other_instance.h"

#include <QDir>
#include <QFile>
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

OtherInstance::OtherInstance(const QString& markFile) : mark_(QFile::encodeName(markFile).toStdString()) {}

} // namespace velmor::desktop
