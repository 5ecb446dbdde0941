// SPDX-License-Identifier: MIT
// The controls of `Form10` by handle, from the ground of the window to what lies on top, and their table of names, stored texts and
// places. It stands in a header because the table of `Form11` begins with it. Knows no slot and no formula.
#pragma once

#include <array>

#include "designs/power/form10_drawing.h"
#include "designs/power/parameters.h"
#include "sheets/notation.h"
#include "sheets/schematic.h"
#include "sheets/tools.h"

namespace velmor::form10 {

inline constexpr sheets::Tools tools{.guide = SSCommand1,
                                     .calculator = SSCommand3,
                                     .report = Image5,
                                     .clone = {Image3, Image4},
                                     .help = {Image35, Image34}};

/// The panel of the calculation pages, as large as it is told to be.
inline constexpr host::Place pagePlace{250 * sheets::twipsPerUnit, 104 * sheets::twipsPerUnit, 9720, 6975};
inline constexpr host::Place helpPlace{0, 5, 3735, 6400};

namespace controls_detail {

using namespace sheets; // NOLINT(google-build-using-namespace): the words of the table
using host::Kind;
using host::Look;

// Top edges of the two groups of parameters.
inline constexpr int circuitTop = 94;
inline constexpr int transistorTop = 404;

constexpr host::ControlRow overlay(host::ControlRow row)
{
    row.overlay = true;
    return row;
}
constexpr host::ControlRow helpPage(host::Handle id, std::string_view name, host::BiText meaning)
{
    return hidden(overlay({.id = id, .name = name, .kind = Kind::page, .place = helpPlace, .meaning = meaning}));
}

} // namespace controls_detail

// clang-format off
inline constexpr auto controls = [] {
    using namespace controls_detail; // NOLINT(google-build-using-namespace)
    return std::to_array<host::ControlRow>({
        paper(Image1, "Image1", drawing::title),
        label(Label31, "Label31", zones::group(circuitTop, 10), Look::group),
        label(Label32, "Label32", zones::group(transistorTop, 3), Look::group),
        drawn(Shape2, "Shape2", Kind::shape, drawing::outputPair),
        hidden(drawn(Line1,  "Line1",  Kind::line, drawing::supply)),
        hidden(drawn(Line2,  "Line2",  Kind::line, drawing::output)),
        hidden(drawn(Line3,  "Line3",  Kind::line, drawing::driver)),
        hidden(drawn(Line4,  "Line4",  Kind::line, drawing::feedback)),
        hidden(drawn(Line5,  "Line5",  Kind::line, drawing::preset)),
        hidden(drawn(Line6,  "Line6",  Kind::line, drawing::lowerBase)),
        hidden(drawn(Line7,  "Line7",  Kind::line, drawing::lowerLoad)),
        hidden(drawn(Line8,  "Line8",  Kind::line, drawing::upperLoad)),
        hidden(drawn(Line9,  "Line9",  Kind::line, drawing::input)),
        hidden(drawn(Line10, "Line10", Kind::line, drawing::emitterResistors)),
        hidden({.id = Shape1, .name = "Shape1", .kind = Kind::shape, .place = drawing::peakCurrent.place, .look = Look::result,
                .drawing = drawing::peakCurrent.marks}),

        field(Text1,  "Text1",  power::parameter(circuitTop, 0), "4", notation::Po),
        field(Text2,  "Text2",  power::parameter(circuitTop, 1), "8", notation::in(notation::RLw, "Ω")),
        hidden(field(Text10, "Text10", power::parameter(circuitTop, 2), "24", notation::Es)),
        hidden(field(Text5,  "Text5",  power::parameter(circuitTop, 3), "6", notation::Ibias)),
        hidden(field(Text6,  "Text6",  power::parameter(circuitTop, 4), "Rb1a", notation::Rb1a)),
        hidden(disabled(field(Text7, "Text7", power::parameter(circuitTop, 5), "Rb1b", notation::Rb1b))),
        hidden(field(Text8,  "Text8",  power::parameter(circuitTop, 6), "Rb2", notation::Rb2)),
        hidden(disabled(field(Text3, "Text3", power::parameter(circuitTop, 7), "RLb", notation::RLb))),
        hidden(disabled(field(Text4, "Text4", power::parameter(circuitTop, 8), "RLa", notation::RLa))),
        hidden(disabled(field(Text9, "Text9", power::parameter(circuitTop, 9), "", notation::Rs))),
        hidden(field(Text11, "Text11", power::parameter(transistorTop, 0), "", notation::in(notation::IcMax, "A"))),
        hidden(field(Text12, "Text12", power::parameter(transistorTop, 1), "", notation::VceSat)),
        hidden(disabled(field(Text13, "Text13", power::parameter(transistorTop, 2), "  QIc", notation::in(notation::IPeak, "")))),

        label(Label2,  "Label2",  at(246, 396, 166, 62), Look::note),
        result(Label3, "Label3",  at(866, 236, 100, 18)),
        result(Label4, "Label4",  at(470, 183, 112, 36)),
        result(Label5, "Label5",  at(636, 334, 80, 34)),
        result(Label6, "Label6",  at(636, 400, 90, 18)),
        result(Label8, "Label8",  at(246, 104, 174, 36)),
        result(Label9, "Label9",  at(246, 144, 174, 36)),
        result(Label10, "Label10", at(246, 184, 174, 36)),
        label(Label11, "Label11", at(524, 424, 60, 16), Look::invisible),
        result(Label12, "Label12", at(744, 340, 78, 34)),
        result(Label13, "Label13", at(636, 296, 80, 34)),
        hidden(result(Label14, "Label14", at(856, 328, 96, 18), "0.47 ohm 2W")),
        hidden(result(Label15, "Label15", at(856, 414, 96, 18), "0.47 ohm 2W")),
        hidden(label(Label7, "Label7", at(zones::left, 518, zones::width, 94), Look::hint)),
        label(Label28, "Label28", zones::nextStep, Look::hint),

        guideTool(SSCommand1, "SSCommand1", Kind::button),
        calculatorTool(SSCommand3, "SSCommand3", Kind::button),
        reportTool(Image5, "Image5"),
        cloneTool(Image3, "Image3"),
        cloneToolAgain(Image4, "Image4"),
        helpTool(Image35, "Image35"),
        helpToolOpen(Image34, "Image34"),

        helpPage(Text22, "Text22", {"Ayuda en español", "Help in Spanish"}),
        helpPage(Text23, "Text23", {"Ayuda en inglés", "Help in English"}),
        overlay(label(Label1, "Label1", zones::voice, Look::prompt)),
        hidden({.id = SSPanel2, .name = "SSPanel2", .kind = Kind::panel, .place = pagePlace, .look = Look::lesson, .overlay = true,
                .fontSize = 11}),
        hidden({.id = Command1, .name = "Command1", .kind = Kind::button, .place = at(886, 570, 116, 30),
                .meaning = {"Cerrar los cálculos y continuar", "Close the calculations and go on"}, .overlay = true}),
    });
}();
// clang-format on
static_assert(host::rowsInOrder(controls));
static_assert(controls.size() == controlCount);

} // namespace velmor::form10
