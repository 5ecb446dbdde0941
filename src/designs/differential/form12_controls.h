// SPDX-License-Identifier: MIT
// The controls of `Form12` by handle, from the ground of the window to what lies on top. Knows no slot and no formula.
#pragma once

#include "host/window.h"
#include "sheets/design_sheet.h"
#include "sheets/tools.h"

namespace velmor::form12 {

// clang-format off
enum Control : host::Handle {
    // heading of the fields, ground of the drawing
    Label11, Image1,
    // the stage to feed
    Line4, Line5, Line6, Line7, Line8, Line9, Line10, Line11, Line12, Line13,
    Shape2, Shape3, Shape4, Shape5, Shape6, Shape7,
    // the divider
    Line14, Line15, Line17, Line18, Line19, Line20, Line34,
    Shape8, Shape9, Shape10, Shape11, Shape12,
    // the source and its supply
    Line28, Line29, Line30, Line31, Line32, Line33,
    Shape15, Shape16, Shape17, Shape18, Shape19,
    // the analysis: the ladder of voltages
    Line16, Line35, Line36, Line37, Line38, Line39, Line40, Line41,
    Shape20, Shape21, Shape22, Shape23, Shape24,
    // results beside their parts
    Label1, Label2, Label3, Label4, Label5, Label6, Label7,
    // fields
    Text1, Text2, Text3, Text9, Text4, Text5, Text6, Text7, Text8, Text10,
    // the line about the field in hand, its formula, and the page
    Label8, Label9, SSPanel1,
    // tools
    Image3, Image4, image2, Image6, Image35, Image34,
    // help pages, Spanish and English
    Text22, Text23,
    controlCount
};
// clang-format on

inline constexpr sheets::Tools tools{
    .guide = Image6, .report = image2, .clone = {Image3, Image4}, .help = {Image35, Image34}};

extern const host::WindowSpec spec;
extern const sheets::SheetSpec sheetSpec;

} // namespace velmor::form12
