// SPDX-License-Identifier: MIT
// Finds the program's folder and fills it at the first start.
#include "desktop/program_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QStandardPaths>

namespace velmor::desktop {

namespace program_folder_detail {

// Without regard to capitals, as the platform that the guides were named for.
QStringList guidesIn(const QString& folder)
{
    QStringList guides;
    if (folder.isEmpty())
        return guides;
    for (const QString& name : QDir(folder).entryList(QDir::Files, QDir::Name))
        if (name.endsWith(QLatin1String(".Lab"), Qt::CaseInsensitive))
            guides.push_back(name);
    return guides;
}

// A copy under another name first, so that a start that is cut short leaves no half guide behind.
void copyWhole(const QString& from, const QString& to)
{
    const QString passing = to + QStringLiteral(".part");
    QFile::remove(passing);
    if (!QFile::copy(from, passing))
        return;
    QFile::setPermissions(passing, QFile::permissions(passing) | QFileDevice::WriteOwner);
    if (!QFile::rename(passing, to))
        QFile::remove(passing);
}

void fill(const QString& folder, const QString& guides)
{
    if (!QDir().mkpath(folder) || !guidesIn(folder).isEmpty())
        return;
    QSet<QString> present;
    for (const QString& name : QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
        present.insert(name.toLower());
    for (const QString& name : guidesIn(guides))
        if (!present.contains(name.toLower()))
            copyWhole(guides + QLatin1Char('/') + name, folder + QLatin1Char('/') + name);
}

QString installedGuides(const QString& executableFolder)
{
    const QString installed = QDir::cleanPath(executableFolder + QStringLiteral("/../share/velmor/guides"));
    if (!guidesIn(installed).isEmpty())
        return installed;
#ifdef VELMOR_BUILD_GUIDES
    const QString source = QStringLiteral(VELMOR_BUILD_GUIDES);
    if (!guidesIn(source).isEmpty())
        return source;
#endif
    return {};
}

} // namespace program_folder_detail

FolderPlaces FolderPlaces::usual()
{
    const QString executable = QCoreApplication::applicationDirPath();
    return {executable, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
            program_folder_detail::installedGuides(executable)};
}

QString programFolderOf(const FolderPlaces& places)
{
    if (!program_folder_detail::guidesIn(places.executableFolder).isEmpty())
        return QDir::cleanPath(places.executableFolder);
    return QDir::cleanPath(places.documents + QStringLiteral("/Velmor"));
}

void fillProgramFolder(const QString& folder, const QString& guides)
{
    program_folder_detail::fill(folder, guides);
    program_folder_detail::fill(folder + QStringLiteral("/Archivos"), guides);
}

} // namespace velmor::desktop
