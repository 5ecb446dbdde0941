// SPDX-License-Identifier: MIT
// The controls of the template sheet by handle. Knows no slot and no formula.
#pragma once

#include <span>

#include "host/window.h"

namespace velmor::template_sheet {

// clang-format off
enum Control : host::Handle {
    // ground of the drawing and headings of the two groups of fields
    Image1, Label11, Label6,
    // parts of the drawing, as the chain reaches them
    Line1, Line2,
    // fields
    Text1, Text2, Text3, Text4, Text5,
    // results beside the drawing
    ERL, RL,
    // note on the field under the pointer
    status1,
    // buttons
    Image5, Image4, Image3, SSCommand3, SSCommand1, Image35, Image34,
    // help pages, Spanish and English
    Text22, Text23,
    // the teacher's voice
    SSPanel1,
    controlCount
};
// clang-format on

extern const std::span<const host::ControlRow> controls;

} // namespace velmor::template_sheet
