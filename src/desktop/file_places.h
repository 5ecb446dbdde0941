// SPDX-License-Identifier: MIT
// Where a dialog about a file begins and which name it proposes, by the window that asks. What was chosen last is kept with the
// person's settings, for each sort of file. Knows no dialog.
#pragma once

#include <cstdint>
#include <string_view>

#include <QString>

#include "host/screen.h"
#include "host/settings_store.h"
#include "host/window.h"

namespace velmor::desktop {

/// Files of one sort lie together.
enum class FileSort : std::uint8_t { circuit, text, report, print };

/// What a dialog begins with.
struct FileProposal {
    FileSort sort = FileSort::text;
    QString folder{};
    QString name{}; ///< without an ending; empty: none
};

/// For a dialog that `asking` has wished for. The folder is the one in which the last file of its sort was, if it is there still;
/// else the dialog's own; a new report begins in `documents`, not among the guides.
FileProposal proposalFor(host::Window* asking, const host::FileDialog& dialog, const host::SettingsStore& settings,
                         const QString& documents);
/// For what `asking` prints into a file: beside the last one, if that folder may still be written, else in `documents`.
FileProposal proposalForPrint(host::Window* asking, const host::SettingsStore& settings, const QString& documents);

/// The file of that sort has been chosen: the next dialog begins beside it.
void noteFolder(host::SettingsStore& settings, FileSort sort, const QString& file);

/// A name without what some file system does not take, without points and without blanks around it.
QString fileNameOf(const QString& name);

} // namespace velmor::desktop
