// SPDX-License-Identifier: MIT
// The state of a window as a text that can be read by eye: one attribute a line, in the words of the walk language. Exact for
// every number, whatever the locale.
//
//   velmor-state 1 Form2
//   window.caption "Emisor común"
//   window.focus Text3
//   Text1.text "10"
//   Text1.asked "10"
//   Text3.enabled 1
//   own.QIc 2.5
//   end 6f0c2d19a5b3e847
//
// Texts are UTF-8 between quotes, with \" \\ \n and \xHH; the last line seals all before it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/window_state.h"

namespace velmor::host {

class Engine;

/// Uses nothing but the state: may run in a thread of its own.
std::string stateText(const WindowState& state);

/// Reads what `stateText` wrote, for a window of this program. Nothing at all is read from a text that is damaged, cut,
/// of another version, of a window or control that the program lacks, or that holds what no such window could.
std::optional<WindowState> readState(std::string_view text, Engine& engine);

/// The last line that seals a text.
std::string stateSeal(std::string_view text);

} // namespace velmor::host
