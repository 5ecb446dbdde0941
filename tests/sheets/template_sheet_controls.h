// SPDX-License-Identifier: MIT
// The controls of the template sheet: their handles, and their table of names, kinds, stored texts, places and strokes in units of
// the drawing grid. It stands in a header because the twin's table begins with it. Knows no slot and no formula.
#pragma once

#include <array>

#include "host/window.h"
#include "sheets/notation.h"
#include "sheets/schematic.h"
#include "sheets/tools.h"

namespace velmor::template_sheet {

// clang-format off
enum Control : host::Handle {
    // ground of the drawing and headings of the two groups of fields
    Image1, Label11, Label6,
    // parts of the drawing: the supply, the load, the lamp of the option
    Line1, Line2, Line3,
    // fields
    Text1, Text2, Text3, Text4, Text5,
    // results beside the drawing
    ERL, RL,
    // note on the field under the pointer
    status1,
    // option pictures
    Picture6, Picture1,
    // tools
    SSCommand1, Image3, SSCommand3, Image5, Image4, Image35, Image34,
    // help pages, Spanish and English
    Text22, Text23,
    // the teacher's voice
    SSPanel1,
    controlCount
};

inline constexpr sheets::Tools tools{
    .guide = SSCommand1, .calculator = Image3, .report = SSCommand3, .clone = {Image5, Image4}, .help = {Image35, Image34}};

namespace controls_detail {

using namespace sheets; // NOLINT(google-build-using-namespace): the words of the table
using host::Kind;
using host::Look;
using host::Mark;
using host::Side;
using host::Symbol;

inline constexpr auto title = titleBlock({"Resistor de carga", "Load resistor"});

// The schematic, counted from the corner of the sheet: one column at 620.
inline constexpr auto supply = part({
    Mark{.symbol = Symbol::terminal, .from = {620, 140}, .name = "E_s", .side = Side::right, .value = Text1, .unit = "V", .field = Text1},
    wire(620, 143, 620, 180),
});
inline constexpr auto load = part({
    Mark{.symbol = Symbol::resistor, .from = {620, 180}, .to = {620, 260}, .name = "R_L", .value = Text5, .unit = "kΩ", .field = Text5},
    Mark{.symbol = Symbol::arrow, .from = {600, 266}, .to = {600, 296}, .name = "Q_Ic", .side = Side::left, .field = Text3},
    wire(620, 260, 620, 300),
});
inline constexpr auto lamp = part({
    Mark{.symbol = Symbol::led, .from = {620, 300}, .to = {620, 340}, .name = "E_d", .side = Side::right, .field = Text4},
    wire(620, 340, 620, 360),
});
inline constexpr Mark lampMarks[]   = {{.symbol = Symbol::led, .from = {27, 22}, .to = {57, 22}}};
inline constexpr Mark noLampMarks[] = {wire(22, 22, 62, 22)};

} // namespace controls_detail

inline constexpr auto controls = [] {
    using namespace controls_detail; // NOLINT(google-build-using-namespace)
    return std::to_array<host::ControlRow>({
        paper(Image1, "Image1", title),
        label(Label11, "Label11", zones::group(94, 3), Look::group),
        label(Label6, "Label6", zones::group(212, 2), Look::group),
        hidden(drawn(Line1, "Line1", Kind::line, supply)),
        hidden(drawn(Line2, "Line2", Kind::line, load)),
        hidden(drawn(Line3, "Line3", Kind::line, lamp)),
        field(Text1, "Text1", zones::parameter(94, 0), "12", notation::Es),
        disabled(field(Text2, "Text2", zones::parameter(212, 0), "75", notation::T)),
        disabled(field(Text3, "Text3", zones::parameter(212, 1), "QIc", notation::QIc)),
        disabled(field(Text4, "Text4", zones::parameter(94, 1), "Eq", notation::Eq)),
        disabled(field(Text5, "Text5", zones::parameter(94, 2), "RL", notation::RL)),
        result(ERL, "ERL", at(760, 200, 150, 22)),
        result(RL, "RL", at(760, 230, 150, 22)),
        hidden(label(status1, "status1", at(8, 306, 220, 60), Look::hint)),
        option(Picture6, "Picture6", Kind::picture, zones::option(0),
               {"Diseñar con indicador", "Design with the indicator lamp"}, lampMarks),
        hidden(option(Picture1, "Picture1", Kind::picture, zones::option(0),
                      {"Diseñar sin indicador", "Design without the lamp"}, noLampMarks)),
        guideTool(SSCommand1, "SSCommand1", Kind::button),
        calculatorTool(Image3, "Image3"),
        reportTool(SSCommand3, "SSCommand3", Kind::button),
        cloneTool(Image5, "Image5"),
        cloneToolAgain(Image4, "Image4"),
        helpTool(Image35, "Image35"),
        helpToolOpen(Image34, "Image34"),
        {.id = Text22, .name = "Text22", .kind = Kind::page, .place = at(740, 94, 260, 380), .visible = false,
         .meaning = {"Ayuda en español", "Help in Spanish"}, .overlay = true},
        {.id = Text23, .name = "Text23", .kind = Kind::page, .place = at(740, 94, 260, 380), .visible = false,
         .meaning = {"Ayuda en inglés", "Help in English"}, .overlay = true},
        {.id = SSPanel1, .name = "SSPanel1", .kind = Kind::panel, .place = zones::voice, .look = Look::prompt, .overlay = true},
    });
}();
// clang-format on
static_assert(host::rowsInOrder(controls));
static_assert(controls.size() == controlCount);

} // namespace velmor::template_sheet
