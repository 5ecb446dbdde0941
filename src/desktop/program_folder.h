// SPDX-License-Identifier: MIT
// Where the program's own files stand: the guides, and the circuits that a student saves first. Knows nothing of windows.
#pragma once

#include <QString>

namespace velmor::desktop {

/// Where to look and what to fill from; the real places by default, others in tests.
struct FolderPlaces {
    QString executableFolder;
    QString documents; ///< the user's documents
    QString guides;    ///< the guide files that came with the program; empty when none are found

    static FolderPlaces usual();
};

/// The folder of the executable when guide files stand in it (a portable copy), else "Velmor" in the user's documents.
QString programFolderOf(const FolderPlaces& places);

/// Makes the folder where it is missing and puts the guides into it and into "Archivos" below it, unless some are there
/// already. What exists, under whatever capitals, stays as it is. A failure leaves what could be done.
void fillProgramFolder(const QString& folder, const QString& guides);

} // namespace velmor::desktop
