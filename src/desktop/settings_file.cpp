// SPDX-License-Identifier: MIT
// Reads and writes single keys; each writing goes to the disk at once, since the program may end without a farewell.
#include "desktop/settings_file.h"

#include <QFileInfo>
#include <QStandardPaths>

#include "desktop/drawing/texts.h"

namespace velmor::desktop {

namespace settings_file_detail {

constexpr qint64 largestSensibleFile = 1 << 20;

QString keyOf(std::string_view section, std::string_view key)
{
    return shown(section) + QLatin1Char('/') + shown(key);
}

// A file that is damaged, or not ours at all, must not be parsed for minutes.
bool sensible(const QString& path)
{
    const QFileInfo info(path);
    return !info.exists() || (info.isFile() && info.size() <= largestSensibleFile);
}

} // namespace settings_file_detail

QString SettingsFile::usualPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Velmor/Velmor.ini");
}

SettingsFile::SettingsFile(const QString& path)
    : file_(settings_file_detail::sensible(path) ? path : QString(), QSettings::IniFormat),
      readable_(file_.status() != QSettings::FormatError)
{
    file_.setFallbacksEnabled(false);
}

std::optional<std::string> SettingsFile::value(std::string_view section, std::string_view key) const
{
    if (!readable_)
        return std::nullopt;
    const QVariant found = file_.value(settings_file_detail::keyOf(section, key));
    if (found.typeId() != QMetaType::QString)
        return std::nullopt;
    return held(found.toString());
}

void SettingsFile::setValue(std::string_view section, std::string_view key, std::string_view value)
{
    if (!readable_) {
        file_.clear();
        readable_ = true;
    }
    file_.setValue(settings_file_detail::keyOf(section, key), shown(value));
    file_.sync();
}

} // namespace velmor::desktop
