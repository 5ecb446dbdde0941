// SPDX-License-Identifier: MIT
// Everything that the template sheet says: prompts by field, boxes, captions. Texts only.
#pragma once

#include <span>

#include "host/bitext.h"
#include "sheets/steps.h"
#include "sheets/template_sheet_controls.h"

namespace velmor::template_sheet {

/// What the panel says when a field gets the focus, and the note beside the field under the pointer.
struct Prompt {
    host::Handle field;
    host::BiText panel;
    host::BiText note;
};
extern const std::span<const Prompt> prompts;

// Boxes, in the order in which a student may meet them.
extern const sheets::BoxText currentTooLow;
extern const sheets::BoxText emptyLeft; ///< an empty field was left
extern const sheets::BoxText supplyTooLow;

// Captions and prompts that belong to no single field.
extern const host::BiText sheetTitle;
extern const host::BiText fileFilter;
extern const host::BiText circuitHeading;    ///< `Label11`
extern const host::BiText transistorHeading; ///< `Label6`
extern const host::BiText archived;          ///< `SSPanel1` after a file was read
extern const host::BiText guide;
extern const host::BiText helpText; ///< `Text22`, `Text23`

} // namespace velmor::template_sheet
