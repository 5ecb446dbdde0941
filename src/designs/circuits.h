// SPDX-License-Identifier: MIT
// The list of the sheets whose finished designs can be checked, by the names of their windows.
#pragma once

#include <string_view>

#include "check/sheet_table.h"

namespace velmor::designs {

/// Null for a window that is no design sheet.
const check::SheetTable* circuitTableOf(std::string_view window);

} // namespace velmor::designs
