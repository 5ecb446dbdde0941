// SPDX-License-Identifier: MIT
// Texts of the main window that stand beside the menu table: the welcome labels, and short captions for the items that
// group others. Texts only.
#pragma once

#include "host/bitext.h"

#include <array>
#include <string_view>

namespace velmor::main_window {

/// A named control or menu item of the main window and what it reads.
struct NamedText {
    std::string_view name;
    host::BiText text;
};

/// The labels of the welcome panel.
extern const std::array<NamedText, 3> welcomeLabels;

/// Captions of menu items that head a group or choose a mode.
extern const std::array<NamedText, 24> groupCaptions;

} // namespace velmor::main_window
