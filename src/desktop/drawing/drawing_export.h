// SPDX-License-Identifier: MIT
// Writes a window's drawing to PDF and SVG with the same painters as the screen. Texts in PDF stay searchable.
#pragma once

#include <QString>

#include "desktop/drawing/view.h"
#include "host/window.h"

class QPagedPaintDevice;

namespace velmor::desktop {

/// Fits the window onto one page of the device (a printer or a PDF writer), in print colours. False when it cannot be written.
bool printDrawing(QPagedPaintDevice& device, const host::Window& window, std::int16_t languageIsEnglish);

/// False when the file cannot be written whole.
bool exportPdf(const QString& path, const host::Window& window, std::int16_t languageIsEnglish);
bool exportSvg(const QString& path, const host::Window& window, std::int16_t languageIsEnglish);

} // namespace velmor::desktop
