// SPDX-License-Identifier: MIT
// The table of `Form4`'s controls: names, kinds, stored texts, places and strokes, and what of its drawing comes with which field.
// Places are counted in units of the drawing grid, but for the few that the course's sheet has fixed in twips.
#include "designs/base_collector/form4_controls.h"

#include <array>

#include "designs/base_collector/form4_drawing.h"
#include "sheets/notation.h"

namespace velmor::form4 {

namespace controls_detail {

using namespace sheets; // NOLINT(google-build-using-namespace): the words of the table
using host::Chosen;
using host::ControlRow;
using host::Kind;
using host::Look;
using host::Mark;
using host::Place;

constexpr int circuitTop = 94;
constexpr int transistorTop = 404;
constexpr Place besideRL = at(640, 187, 260, 18);
constexpr Place insteadOfRL = at(640, 160, 140, 34); // while its field is not there
constexpr Place besideEs = at(792, 104, 218, 54);
constexpr Place help = at(706, 94, 308, 518);

constexpr ControlRow picture(host::Handle id, std::string_view name, const Place& place, host::BiText meaning,
                             std::span<const Mark> drawing)
{
    return {.id = id, .name = name, .kind = Kind::image, .place = place, .meaning = meaning, .drawing = drawing};
}
constexpr ControlRow marked(ControlRow row, std::span<const Mark> drawing)
{
    row.drawing = drawing;
    return row;
}
constexpr ControlRow leaf(host::Handle id, std::string_view name, host::BiText meaning)
{
    return hidden(option(id, name, Kind::picture, zones::option(0), meaning, drawing::leafMarks));
}
constexpr ControlRow pageOf(host::Handle id, std::string_view name, host::BiText meaning)
{
    return hidden({.id = id, .name = name, .kind = Kind::page, .place = help, .meaning = meaning, .overlay = true});
}

// clang-format off
constexpr auto rows = std::to_array<ControlRow>({
    paper(Image1, "Image1", drawing::title),
    label(Label11, "Label11", zones::group(circuitTop, 10), Look::group),
    label(Label6, "Label6", zones::group(transistorTop, 4), Look::group),
    hidden(drawn(Line1,  "Line1",  Kind::line,  drawing::collectorLead)),
    hidden(drawn(Line2,  "Line2",  Kind::line,  drawing::collectorCurrent)),
    hidden(drawn(Line3,  "Line3",  Kind::line,  drawing::load)),
    hidden(drawn(Line4,  "Line4",  Kind::line,  drawing::outputCapacitor)),
    hidden(drawn(Line5,  "Line5",  Kind::line,  drawing::output)),
    hidden(drawn(Line6,  "Line6",  Kind::line,  drawing::emitterLead)),
    hidden(drawn(Line7,  "Line7",  Kind::line,  drawing::emitterInput)),
    hidden(drawn(Line8,  "Line8",  Kind::line,  drawing::baseCapacitor)),
    hidden(drawn(Line9,  "Line9",  Kind::line,  drawing::baseLead)),
    hidden(drawn(Line10, "Line10", Kind::line,  drawing::emitterResistor)),
    hidden(drawn(Line11, "Line11", Kind::line,  drawing::supplyRail)),
    hidden(drawn(Line12, "Line12", Kind::line,  drawing::collectorResistor)),
    hidden(drawn(Line13, "Line13", Kind::line,  drawing::lowerDivider)),
    hidden(drawn(Line14, "Line14", Kind::line,  drawing::upperDivider)),
    hidden(drawn(Line15, "Line15", Kind::line,  drawing::transistorVoltage)),
    hidden(drawn(Line16, "Line16", Kind::line,  drawing::loadVoltage)),
    hidden(drawn(Line17, "Line17", Kind::line,  drawing::emitterVoltage)),
    drawn(Shape1,        "Shape1", Kind::shape, drawing::transistor),
    hidden(drawn(Shape2, "Shape2", Kind::shape, drawing::supplyTerminal)),
    drawn(Image3,        "Image3", Kind::image, drawing::commonBase),
    hidden(drawn(Image5, "Image5", Kind::image, drawing::emitterBypassed)),
    picture(image2, "image2", at(785, 410, 50, 110), {"Fuente de señal", "Signal source"}, drawing::source),
    hidden(picture(Image4, "Image4", at(326, 304, 68, 58), {"Capacitor de entrada", "Entrance capacitor"}, drawing::dropTarget)),
    field(Text1, "Text1", zones::parameter(circuitTop, 0), " 10", notation::dQIc),
    field(Text2, "Text2", zones::parameter(transistorTop, 0), "100", notation::Beta),
    disabled(field(Text3,  "Text3",  zones::parameter(circuitTop, 1),    " 75",   notation::T)),
    disabled(field(Text4,  "Text4",  zones::parameter(circuitTop, 2),    "2.5",   notation::dVbe)),
    disabled(field(Text5,  "Text5",  zones::parameter(transistorTop, 1), "30",    notation::EcMax)),
    disabled(field(Text6,  "Text6",  zones::parameter(transistorTop, 2), "100",   notation::IcMax)),
    disabled(field(Text7,  "Text7",  zones::parameter(transistorTop, 3), ".6",    notation::Vj)),
    disabled(field(Text8,  "Text8",  zones::parameter(circuitTop, 3),    "1",     notation::QIc)),
    disabled(field(Text9,  "Text9",  zones::parameter(circuitTop, 4),    "10",    notation::RLw)),
    disabled(field(Text10, "Text10", zones::parameter(circuitTop, 8),    "10",    notation::S)),
    disabled(field(Text11, "Text11", zones::parameter(circuitTop, 6),    "140",   notation::Vg)),
    disabled(field(Text12, "Text12", zones::parameter(circuitTop, 9),    "20",    notation::fo)),
    disabled(field(Text13, "Text13", zones::parameter(circuitTop, 5),    "3",     notation::Eopp)),
    disabled(field(Text14, "Text14", zones::parameter(circuitTop, 7),    ".3535", notation::Ein)),
    hidden(disabled(field(Text15, "Text15", at(640, 162, 66, 22), "",   notation::above(notation::RL)))),
    hidden(disabled(field(Text16, "Text16", at(448, 459, 66, 22), "10", notation::above(notation::Rb2)))),
    hidden(disabled(field(Text17, "Text17", at(448, 162, 66, 22), "20", notation::above(notation::Rb1)))),
    hidden(disabled(field(Text18, "Text18", at(640, 459, 90, 22), "",   notation::above(notation::in(notation::Res, ""))))),
    hidden(disabled(field(Text20, "Text20", at(706, 119, 66, 22), "",   notation::above(notation::Es)))),
    marked(result(Label2, "Label2", at(804, 222, 92, 18)), drawing::obtainedCurrentName),
    result(Label10, "Label10", at(752, 322, 146, 18)),
    result(Label19, "Label19", besideRL),
    result(Label20, "Label20", at(640, 484, 140, 34)),
    result(Label21, "Label21", at(444, 484, 150, 34)),
    result(Label22, "Label22", at(640, 206, 120, 18)),
    {.id = Label23, .name = "Label23", .kind = Kind::panel, .place = at(672, 323, 76, 34), .look = Look::drawn},
    result(Label24, "Label24", at(448, 188, 146, 50)),
    result(Label25, "Label25", at(688, 422, 94, 18)),
    result(Label26, "Label26", at(740, 378, 110, 18)),
    result(Label27, "Label27", at(712, 296, 130, 18)),
    result(Label28, "Label28", at(300, 284, 120, 18)),
    label(Label30, "Label30", at(916, 446, 90, 18), Look::invisible),
    result(Label31, "Label31", at(916, 482, 90, 34)),
    hidden(result(Label32, "Label32", at(752, 342, 146, 34))),
    leaf(Picture2, "Picture2", {"Abrir la hoja de análisis", "Open the leaf of analysis"}),
    chosen(leaf(Picture1, "Picture1", {"Volver de la hoja de análisis al circuito", "Back from the leaf of analysis to the circuit"}),
           Chosen::whenShown),
    guideTool(Image6, "Image6"),
    calculatorTool(Image10, "Image10"),
    reportTool(Image7, "Image7"),
    cloneTool(Image8, "Image8"),
    cloneToolAgain(Image9, "Image9"),
    helpTool(Image35, "Image35"),
    helpToolOpen(Image34, "Image34"),
    label(Label5, "Label5", zones::nextStep, Look::hint),
    {.id = Label33, .name = "Label33", .kind = Kind::label, .place = zones::voice, .look = Look::prompt, .overlay = true},
    pageOf(Text22, "Text22", {"Ayuda en español", "Help in Spanish"}),
    pageOf(Text23, "Text23", {"Ayuda en inglés", "Help in English"}),
});

// part, field that brings it
constexpr host::GrowthRow growthRows[] = {
    {Line1,  Text8},  {Line2,  Text8},
    {Line3,  Text9},  {Line4,  Text9},
    {Line5,  Text13},
    {Line6,  Text14}, {Line7,  Text14},
    {Line8,  Text12}, {Line9,  Text12},
    {Line6,  Text18}, {Line10, Text18}, {Line17, Text18},
    {Line11, Text20}, {Shape2, Text20},
    {Line12, Text15}, {Line16, Text15},
    {Line13, Text16}, {Line15, Text16},
    {Line14, Text17},
};

// value, part
constexpr host::ValueRow valueRows[] = {
    {Shape1,  Line1},
    {Label31, Line3},  {Label10, Line3},  {Label27, Line4},
    {image2,  Line7},  {Label26, Line7},  {Label25, Line7},
    {Image3,  Line8},  {Label28, Line8},
    {Text18,  Line10}, {Label20, Line17},
    {Text20,  Line11}, {Label19, Line11},
    {Text15,  Line12}, {Label22, Line16}, {Label23, Line15},
    {Text16,  Line13}, {Label21, Line13},
    {Text17,  Line14}, {Label24, Line14}, {Label2, Line14},
};
// clang-format on

static_assert(host::rowsInOrder(rows));
static_assert(rows.size() == controlCount);

} // namespace controls_detail

const host::Place sourceAtEmitter = sheets::at(785, 410, 50, 110);
const host::Place sourceAtBase = sheets::at(255, 410, 50, 110);
const std::span<const host::ControlRow> controls = controls_detail::rows;
const std::span<const host::GrowthRow> growth = controls_detail::growthRows;
const std::span<const host::ValueRow> values = controls_detail::valueRows;

// Beside their parts, wherever the model has them; the input impedance goes with the source.
host::Place shownPlace(const host::Window& window, host::Handle control)
{
    const bool atBase = window.visible(Image5);
    switch (control) {
    case Label19:
        if (window.placeOf(Label19) == supplyPlace)
            return controls_detail::besideEs;
        return window.visible(Text15) ? controls_detail::besideRL : controls_detail::insteadOfRL;
    case Label21:
    case Label24:
        return controls[control].place;
    case Label2:
        return window.text(Label2).empty() ? host::Place{} : window.placeOf(control);
    case Label25:
        return atBase ? sheets::at(292, 364, 130, 18) : window.placeOf(control);
    case Text22:
    case Text23:
        return controls_detail::help;
    default:
        return window.placeOf(control);
    }
}

} // namespace velmor::form4
