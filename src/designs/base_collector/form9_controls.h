// SPDX-License-Identifier: MIT
// The controls of `Form9` by handle, which of them are its tools, and what of its drawing comes with which field. Knows
// no slot and no formula.
#pragma once

#include <span>

#include "host/window.h"
#include "sheets/tools.h"

namespace velmor::form9 {

// clang-format off
enum Control : host::Handle {
    // ground of the drawing and headings of the groups of fields
    Image1, Label11, Label6, Label4,
    // parts of the drawing, as the chain reaches them
    Line1, Line2, Line3, Line4, Line5, Line6, Line7, Line8, Line9, Line10, Line11, Line12, Line13, Line14, Line15, Line16, Line17,
    Line18, Line19, Shape1,
    // fields
    Text1, Text2, Text3, Text4, Text5, Text6, Text7, Text8, Text9, Text10, Text11, Text12, Text13, Text14, Text15, Text16,
    Text17, Text18, Text20,
    // results beside the drawing
    Label20, Label21, Label22, Label23, Label24, Label25, Label26, Label27, Label28, Label30, Label31, Label32, Voltaje,
    // advice, and the name of what the pointer is on
    Label19, Label29,
    // the question of the small voltage
    Frame1, Command1, Command2,
    // the analysis: page open, closed
    Picture1, Picture2,
    // tools
    Image6, Image10, Image7, Image8, Image9, Image35, Image34,
    // help pages, Spanish and English
    Text22, Text23,
    // the teacher's voice
    SSPanel2,
    controlCount
};
// clang-format on

inline constexpr sheets::Tools tools{
    .guide = Image6, .calculator = Image10, .report = Image7, .clone = {Image8, Image9}, .help = {Image35, Image34}};

extern const std::span<const host::ControlRow> controls;
extern const std::span<const host::GrowthRow> growth;
extern const std::span<const host::ValueRow> values;
/// Where the screen shows a control that moves in the model: what is read stays where it can be read.
host::Place shownPlace(const host::Window& window, host::Handle control);

} // namespace velmor::form9
