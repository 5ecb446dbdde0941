// SPDX-License-Identifier: MIT
// The one list of the program's windows, by which a sheet opens another without including it, and the start sequence.
#pragma once

#include "host/engine.h"

namespace velmor::program {

/// All windows of the program, the main window first.
host::Catalogue catalogue();

/// Runs the start sequence: language and other settings, number format, main window, first sheet, palette.
void start(host::Engine& engine);

/// Makes a new sheet as its item of the menu of new sheets makes it. Nothing happens without a main window.
void newSheet(host::Engine& engine, const host::WindowSpec& sheet);

} // namespace velmor::program
