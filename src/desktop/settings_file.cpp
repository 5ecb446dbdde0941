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

std::optional<std::string> textIn(const QSettings& file, const QString& key)
{
    const QVariant found = file.value(key);
    return found.typeId() == QMetaType::QString ? std::optional(held(found.toString())) : std::nullopt;
}

} // namespace settings_file_detail

QString SettingsFile::usualPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Velmor/Velmor.ini");
}

QString SettingsFile::pathForAll()
{
    const QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation).mid(1);
    for (const QString& folder : folders)
        if (const QString path = folder + QStringLiteral("/Velmor/Velmor.ini"); QFileInfo::exists(path))
            return path;
    return {};
}

SettingsFile::SettingsFile(const QString& path, const QString& forAll)
    : file_(settings_file_detail::sensible(path) ? path : QString(), QSettings::IniFormat),
      readable_(file_.status() != QSettings::FormatError)
{
    file_.setFallbacksEnabled(false);
    if (!forAll.isEmpty() && settings_file_detail::sensible(forAll))
        forAll_ = std::make_unique<QSettings>(forAll, QSettings::IniFormat);
}

std::optional<std::string> SettingsFile::value(std::string_view section, std::string_view key) const
{
    using namespace settings_file_detail;
    const QString wanted = keyOf(section, key);
    std::optional<std::string> text = readable_ ? textIn(file_, wanted) : std::nullopt;
    return text || forAll_ == nullptr ? text : textIn(*forAll_, wanted);
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
