// SPDX-License-Identifier: MIT
// The controls of `Form11` as those of `Form10` with differences: other stored values, other tools behind the same images, a page
// in a window of its own in the place of the panel. Knows no slot and no formula.
#pragma once

#include <array>

#include "designs/power/form10_controls.h"
#include "designs/power/form11_drawing.h"
#include "sheets/rows.h"

namespace velmor::form11 {

inline constexpr sheets::Tools tools{.guide = form10::SSCommand1,
                                     .calculator = form10::SSCommand3,
                                     .report = Image6,
                                     .clone = {Image7, form10::Image5},
                                     .help = {form10::Image35, form10::Image34}};

// clang-format off
inline constexpr auto controls = [] {
    using namespace form10::controls_detail; // NOLINT(google-build-using-namespace): the words of the table
    using namespace form10; // NOLINT(google-build-using-namespace): the other sheet's handles
    return joined(
        withRowsOf(without(form10::controls, std::to_array<host::ControlRow>({{.id = SSPanel2}, {.id = Command1}})),
                   std::to_array<host::ControlRow>({
            paper(Image1, "Image1", drawing::title),
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
            field(Text1, "Text1", power::parameter(circuitTop, 0), "10", notation::Po),
            hidden(field(Text10, "Text10", power::parameter(circuitTop, 2), "36", notation::Es)),
            hidden(field(Text5, "Text5", power::parameter(circuitTop, 3), "3", notation::Ibias)),
            label(Label2, "Label2", at(246, 386, 170, 52), Look::note),
            label(Label3, "Label3", at(604, 474, 84, 18), Look::drawn, "Q1"),
            result(Label5, "Label5", at(496, 252, 92, 36)),
            result(Label6, "Label6", at(636, 408, 100, 18)),
            result(Label12, "Label12", at(632, 174, 114, 18)),
            result(Label13, "Label13", at(602, 526, 140, 18)),
            hidden(result(Label14, "Label14", at(496, 288, 92, 18))),
            hidden(result(Label15, "Label15", at(759, 322, 50, 34), "Re1 470 ohm")),
            hidden({.id = Image3, .name = "Image3", .kind = Kind::image, .place = at(1022, 352, 172, 188),
                    .meaning = {"Circuito sustituto de Rd y Diodos", "Circuit substitute of Rd and Diodes"},
                    .drawing = drawing::substituteCircuit}),
            hidden({.id = Image4, .name = "Image4", .kind = Kind::image, .place = at(436, 308, 150, 18),
                    .drawing = drawing::stabilityMarks}),
            cloneToolAgain(Image5, "Image5"),
        })),
        std::to_array<host::ControlRow>({
            reportTool(Image6, "Image6"),
            cloneTool(Image7, "Image7"),
            option(image2, "image2", Kind::image, zones::option(0),
                   {"Recomendaciones para la puesta en marcha", "Recommendations for the setting in march"}, drawing::stepsMarks),
            result(Label16, "Label16", at(759, 400, 50, 34), "Re1 470 ohm"),
            result(Label17, "Label17", at(836, 328, 100, 18), "0.47 ohm 2W"),
            result(Label18, "Label18", at(836, 412, 100, 18), "0.47 ohm 2W"),
            result(Label19, "Label19", at(688, 250, 18, 18), "A"),
            result(Label20, "Label20", at(698, 472, 18, 18), "B"),
            label(Label21, "Label21", at(772, 252, 24, 18), Look::drawn, "Q2"),
            label(Label22, "Label22", at(772, 490, 24, 18), Look::drawn, "Q3"),
            label(Label23, "Label23", at(846, 292, 24, 18), Look::drawn, "Q4"),
            label(Label24, "Label24", at(846, 452, 24, 18), Look::drawn, "Q5"),
            result(Label25, "Label25", at(336, 524, 80, 18), "Ps = 4.7 K"),
            result(Label26, "Label26", at(246, 224, 174, 18)),
            label(Label27, "Label27", at(1110, 286, 84, 58), Look::note),
            hidden(label(Label29, "Label29", at(1022, 546, 172, 22), Look::balloon)),
            hidden(label(Label30, "Label30", at(246, 578, 500, 32), Look::note)),
        }));
}();
// clang-format on
static_assert(host::rowsInOrder(controls));
static_assert(controls.size() == controlCount);

} // namespace velmor::form11
