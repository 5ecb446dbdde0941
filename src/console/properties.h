// SPDX-License-Identifier: MIT
// What `expect` can read: properties of controls and windows, of the program, of the current sheet, all as texts.
#pragma once

#include <string>
#include <string_view>

#include "host/window.h"

namespace velmor::console {

class Walk;

/// The property "CONTROL.PROPERTY" of the current window, "program.PROPERTY" or "sheet.PROPERTY". Throws WalkError for
/// what does not exist.
std::string propertyText(Walk& walk, std::string_view word);

/// The same for a window that need not be the current one; `program` and `sheet` are no names there.
std::string propertyText(Walk& walk, host::Window& window, std::string_view word);

/// Throws WalkError unless a window of that kind has the property, whether one is open or not.
void checkProperty(const host::WindowSpec& window, std::string_view word);

} // namespace velmor::console
