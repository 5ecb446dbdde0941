// SPDX-License-Identifier: MIT
// The controls of `desaco` by handle, and their table: the rows of the family (emitter_controls.h) and its own. It stands in a
// header because the table of `ParcDesac` begins with it. Knows no slot and no formula.
#pragma once

#include <array>

#include "designs/common_emitter/emitter_controls.h"
#include "host/window.h"
#include "sheets/tools.h"

namespace velmor::desaco {

// clang-format off
enum Control : host::Handle {
    // ground of the drawing and headings of the two groups of fields
    Image1, Label11, Label6,
    // parts of the drawing, as the chain reaches them
    Line1, Line2, Line3, Line4, Line5, Line6, Line7, Line8, Line9, Line10, Line11, Line12, Line13, Line14, Line15, Line16,
    Line17, Line18, Line19, Line20, Shape3, Shape4, Image2, Picture3,
    // fields
    Text1, Text2, Text3, Text4, Text5, Text6, Text7, Text8, Text9, Text10, Text11, Text12, Text13, Text14, Text15, Text16,
    Text17, Text18, Text19, Text20, Text21,
    // results beside the drawing
    Voltaje, VRes, ER, res, Label24, Label19,
    statu17, statu18, statu19, statu21, statu22, statu23, statu24, statu25, statu30, statu31, statu32, statu33, statu35,
    status40, sta1, sta2, sta3, sta4,
    // notes on the field under the pointer; one at a time, but for `status4` and `status6`
    status1, status2, status3, status4, status5, status6, status7, status8, status9, status10, status11, status12,
    status13, status14, status15, status16, statu36, sta5, Label21,
    // the toggle of the bypass, and the name of what the pointer is on
    Boost, Picture6, Picture1,
    // tools
    SSCommand1, Image3, SSCommand3, Image5, Image4, Image35, Image34,
    // help boxes, Spanish and English
    Text22, Text23,
    // the teacher's voice
    STA70, SSPanel1,
    controlCount
};

inline constexpr sheets::Tools tools{
    .guide = SSCommand1, .calculator = Image3, .report = SSCommand3, .clone = {Image5, Image4}, .help = {Image35, Image34}};

/// What the help boxes take of the sheet; where they open depends on the main window.
inline constexpr host::Place helpPlace{13000, 0, 3735, 6000};
/// Where a screen shows them, wherever the main window ends: over the right of the drawing, so that the tool that closes them can be
/// seen.
inline constexpr host::Place shownHelpPlace = sheets::at(736, 94, 278, 518);

namespace controls_detail {

using namespace common_emitter;                  // NOLINT(google-build-using-namespace): the rows of the family
using namespace common_emitter::controls_detail; // NOLINT(google-build-using-namespace): and the words of its tables

inline constexpr auto title = sheets::titleBlock({"Emisor común desacoplado, clase A", "Bypassed common emitter, class A"});

// Arrows of what Rb1 lies across, and of the signal on its way into the base.
inline constexpr auto upperBaseVoltage = part({
    Mark{.symbol = Symbol::arrow, .from = {410, 216}, .to = {410, 144}, .field = Text19},
});
inline constexpr auto signalIntoBase = part({
    Mark{.symbol = Symbol::arrow, .from = {480, 327}, .to = {516, 327}, .field = Text18},
});

// What differs from the rows of the family: the capacitor and r'e show from the start, and RLac stands with all its digits under
// the caption that RLw has of its own here.
inline constexpr auto differentRows = std::to_array<ControlRow>({
    drawn(Image2, "image2", Kind::image, drawing::bypassCapacitor),
    field(Text11, "Text11", zones::parameter(circuitTop, 6), "55", notation::Vg),
    result(statu17, "statu17", at(672, 370, 112, 18)),
    hidden(result(statu18, "statu18", at(836, 564, 176, 18))),
});
inline constexpr auto ownRows = std::to_array<ControlRow>({
    paper(Image1, "Image1", title),
    hidden(drawn(Line4,  "Line4",  Kind::line, upperBaseVoltage)),
    hidden(drawn(Line20, "Line20", Kind::line, signalIntoBase)),
    {.id = Picture3, .name = "Picture3", .kind = Kind::picture, .place = at(480, 230, 20, 20), .visible = false, .enabled = false,
     .meaning = {"Sin bootstrapping", "No bootstrapping"}, .look = Look::invisible},
    choice(Picture6, "Picture6", 0, {"Desacoplar el emisor", "Bypass the emitter"}, bypassMarks),
    inForce(Picture1, "Picture1", 1, {"Desacoplado: vuelve al comienzo", "Bypassed: back to the beginning"}, bypassMarks),
    {.id = Text22, .name = "Text22", .kind = Kind::page, .place = helpPlace, .visible = false,
     .meaning = {"Ayuda en español", "Help in Spanish"}, .overlay = true},
    {.id = Text23, .name = "Text23", .kind = Kind::page, .place = helpPlace, .visible = false,
     .meaning = {"Ayuda en inglés", "Help in English"}, .overlay = true},
});

} // namespace controls_detail

inline constexpr auto controls = sheets::inHandleOrder<controlCount>(
    sheets::withRowsOf(common_emitter::controls_detail::emitterRows<Control>, controls_detail::differentRows),
    controls_detail::ownRows);
static_assert(host::rowsInOrder(controls));

// part, field that brings it
inline constexpr auto growth = sheets::joined(common_emitter::emitterGrowth<Control>, std::to_array<host::GrowthRow>({
    {Line3,  Text15},
    {Line15, Text18}, {Line20, Text18},
    {Line16, Text19}, {Line4,  Text19},
}));
// clang-format on

/// All of them under one name, to which a sheet with more of them adds its own.
struct Controls {
    using enum Control;
};

} // namespace velmor::desaco
