// SPDX-License-Identifier: MIT
// The controls of `Form2` by handle, which of them are its tools, and what of its drawing comes with which field. Knows no slot
// and no formula.
#pragma once

#include <span>

#include "host/window.h"
#include "sheets/tools.h"

namespace velmor::form2 {

// clang-format off
enum Control : host::Handle {
    // ground of the drawing and headings of the two groups of fields
    Image1, Label11, Label6,
    // parts of the drawing, as the chain reaches them
    Line1, Line2, Line3, Line4, Line5, Line6, Line7, Line8, Line9, Line10, Line11, Line12, Line13, Line14, Line15, Line16,
    Line17, Line18, Line19, Line20, Shape3, Shape4, Image2, Picture3, Picture5,
    // fields
    Text1, Text2, Text3, Text4, Text5, Text6, Text7, Text8, Text9, Text10, Text11, Text12, Text13, Text14, Text15, Text16,
    Text17, Text18, Text19, Text20, Text21,
    // results beside the drawing
    Voltaje, VRes, ER, res, Label24, Label19, Label20,
    statu17, statu18, statu19, statu21, statu22, statu23, statu24, statu25, statu30, statu31, statu32, statu33, statu35,
    status40, statu61, statu62, statu71, statu72,
    sta1, sta2, sta3, sta4,
    // notes on the field under the pointer; one at a time, but for `status4` and `status6`
    status1, status2, status3, status4, status5, status6, status7, status8, status9, status10, status11, status12,
    status13, status14, status15, status16, statu36, sta5, Label21,
    // option pictures, and the name of what the pointer is on
    Boost, Picture6, Picture4, Picture11, Picture10, Picture2, Picture7, Picture1,
    // tools
    SSCommand1, Image3, SSCommand3, Image5, Image4, Image35, Image34,
    // the teacher's voice
    STA70, SSPanel1,
    controlCount
};
// clang-format on

inline constexpr sheets::Tools tools{.guide = SSCommand1,
                                     .calculator = Image3,
                                     .report = SSCommand3,
                                     .clone = {Image5, Image4},
                                     .help = {Image35, Image34}};

extern const std::span<const host::ControlRow> controls;
/// The notes beside the fields: pointing at a field shows its own alone.
extern const std::span<const host::Handle> notes;
/// What of the drawing comes with which field.
extern const std::span<const host::GrowthRow> growth;
/// What stands on the drawing and is pale while its part is.
extern const std::span<const host::ValueRow> values;

} // namespace velmor::form2
