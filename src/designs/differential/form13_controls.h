// SPDX-License-Identifier: MIT
// The controls of `Form13` by handle, from the ground of the window to what lies on top. Knows no slot and no formula.
#pragma once

#include "host/window.h"
#include "sheets/design_sheet.h"
#include "sheets/tools.h"

namespace velmor::form13 {

// clang-format off
enum Control : host::Handle {
    // heading of the fields, and the two pictures: the full circuit and its version with a mirror
    Label6, Image1, image2,
    // parts that come with the chain: Q3-4 on Res, RL2, supply, Q1-2 with RL1, Q5 on Res1, RLw
    Shape1, Shape2, Shape3, Shape4, Shape5, Shape6,
    // the source and the inputs, each as the one picture and as the other has it
    Shape7, Shape8, Shape9, Shape10,
    // results beside their parts
    Label1, Label2, Label3, Label4, Label5, Label7, Label8, Label9, Label10, Label11, Label12, Label13, Label14, Label15, Label16,
    Label17, Label19, Label20, Label21, Label22, Label23, Label24, Label30, Label31, Label32, Label33, Label35,
    // fields
    Text1, Text2, Text3, Text4, Text5, Text6, Text7, Text8, Text9, Text10, Text11,
    // the boxes that explain each step: formulas, data, considerations, prompt; the line about the field in hand
    Label29, Label26, Label27, Label25, Label28,
    // the current under the pointer, the door to the current source, the other picture
    Label34, Label18, SSCommand1,
    // tools
    Image3, Image4, Image5, Image6, Image7, Image35, Image34,
    // help pages, Spanish and English
    Text22, Text23,
    controlCount
};
// clang-format on

inline constexpr sheets::Tools tools{
    .guide = Image6, .calculator = Image5, .report = Image7, .clone = {Image3, Image4}, .help = {Image35, Image34}};

/// A box of explanations: a click makes it low or high again, in twips.
struct Box {
    host::Handle box = host::noControl;
    int high = 0;
};
inline constexpr int lowBox = 200;
inline constexpr Box boxes[] = {{Label26, 1575}, {Label27, 975}, {Label29, 1935}};

extern const host::WindowSpec spec;
extern const sheets::SheetSpec sheetSpec;

} // namespace velmor::form13
