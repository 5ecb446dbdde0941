// SPDX-License-Identifier: MIT
// A text on paper: how wide it runs and how it falls into pages. Texts stay texts, so that a PDF can be searched.
#pragma once

#include <functional>

#include <QFont>
#include <QString>
#include <QStringList>

#include "desktop/file_places.h"
#include "host/screen.h"

class QPagedPaintDevice;
class QPrinter;
class QWidget;

namespace velmor::desktop {

struct Stage;

/// Hears which page of how many is on its way, 0 of 0 while the text is broken into lines, and says whether to go on.
using PrintProgress = std::function<bool(int page, int pages)>;

/// The font of a print-out, its size in points times 20, so that its widths come out in twips.
QFont twipFont(const host::Font& font, bool sizeGiven = true);

/// Width of one line in twips. Line feeds have none.
int printedTwips(const host::Font& font, std::string_view text);

/// The lines of a job: the caller's carriage returns end a line, and what is wider than the page is broken at blanks.
/// None when it was not to go on.
QStringList printedLines(const host::PrintJob& job, double pageTwips, const PrintProgress& goesOn = {});

/// Prints on a device whose page is set. False when it cannot be written, or was not to go on.
bool printOn(QPagedPaintDevice& device, const host::PrintJob& job, const PrintProgress& goesOn = {});

/// Prints on a printer or into its file, which is replaced whole or not at all. False when it cannot be done, or was not to go on.
bool printTo(QPrinter& printer, const host::PrintJob& job, const PrintProgress& goesOn = {});

/// Asks for the printer (or a PDF file) and prints, with a word to the one who waits; says so when it cannot be done. Returns the
/// file that was written, if any; a print-out that was cancelled leaves the old one as it was.
QString askAndPrint(QWidget* parent, const host::PrintJob& job, const Stage& stage, const FileProposal& proposal);

} // namespace velmor::desktop
