// SPDX-License-Identifier: MIT
// The table of `Form17`'s controls: names, kinds, stored texts, places and strokes, and what of its drawing comes with
// which field. Places and strokes are counted in units of the drawing grid from the sheet's left top corner.
#include "designs/base_collector/form17_controls.h"

#include <array>

#include "designs/base_collector/follower_drawing.h"
#include "designs/base_collector/follower_rows.h"
#include "designs/base_collector/traffic_light.h"
#include "sheets/notation.h"
#include "sheets/schematic.h"

namespace velmor::form17 {

namespace controls_detail {

using namespace sheets; // NOLINT(google-build-using-namespace): the words of the table
using base_collector::besideItsPart;
using base_collector::helpPage;
using base_collector::marked;
using base_collector::obtained;
using base_collector::obtainedName;
using base_collector::unused;
using host::ControlRow;
using host::Kind;
using host::Look;
using host::Mark;
using host::Side;
using host::Symbol;
namespace drawing = base_collector::drawing;
namespace light = base_collector::light;

// Top edges of the groups of parameters.
constexpr int circuitTop = 94;
constexpr int transistorTop = 290;
constexpr int generatorTop = 430;

constexpr auto title = titleBlock({"Colector común (seguidor por emisor)", "Common collector (emitter follower)"});

// clang-format off
// Parts that the follower alone has. The collector goes straight to the supply, through the milliammeter.
constexpr auto collector = part({
    wire(620, 130, 620, 160),
    Mark{.symbol = Symbol::meter, .from = {620, 160}, .to = {620, 210}, .name = "A", .field = Text18},
    wire(620, 210, 620, 310),
});
constexpr auto current = part({
    Mark{.symbol = Symbol::arrow, .from = {606, 244}, .to = {606, 276}, .name = "Q_Ic", .side = Side::left, .value = Text8, .unit = "mA",
         .field = Text8},
});
constexpr auto outputCapacitor = part({
    wire(620, 410, 740, 410),
    Mark{.symbol = Symbol::capacitor, .from = {740, 410}, .to = {780, 410}, .name = "C_out", .side = Side::above},
    wire(780, 410, 880, 410),
});
constexpr auto load = part({
    node(880, 410), wire(880, 410, 880, 430),
    Mark{.symbol = Symbol::resistor, .from = {880, 430}, .to = {880, 510}, .field = Text9},
    wire(880, 510, 880, 520),
    ground(880, 520),
});
constexpr auto outputSignal = part({
    wire(880, 410, 957, 410),
    Mark{.symbol = Symbol::terminal, .from = {960, 410}, .field = Text13},
    Mark{.symbol = Symbol::sine, .from = {900, 376}, .to = {940, 400}, .field = Text13},
});

constexpr auto rows = std::to_array<ControlRow>({
    paper(Image1, "Image1", title),
    label(Label11, "Label11", zones::group(circuitTop, 6), Look::group),
    label(Label6, "Label6", zones::group(transistorTop, 4), Look::group),
    label(Label4, "Label4", zones::group(generatorTop, 1), Look::group),
    hidden(drawn(Line1,  "Line1",  Kind::line, load)),
    hidden(drawn(Line2,  "Line2",  Kind::line, outputSignal)),
    hidden(drawn(Line3,  "Line3",  Kind::line, drawing::generator<Control>)),
    hidden(drawn(Line4,  "Line4",  Kind::line, drawing::generatorResistance<Control>)),
    hidden(drawn(Line5,  "Line5",  Kind::line, drawing::inputCapacitor)),
    hidden(drawn(Line6,  "Line6",  Kind::line, collector)),
    hidden(drawn(Line7,  "Line7",  Kind::line, current)),
    hidden(drawn(Line8,  "Line8",  Kind::line, drawing::emitterResistor<Control>)),
    hidden(drawn(Line9,  "Line9",  Kind::line, outputCapacitor)),
    hidden(drawn(Line10, "Line10", Kind::line, drawing::supplyRail<Control>)),
    hidden(drawn(Line11, "Line11", Kind::line, drawing::baseLead)),
    hidden(drawn(Line12, "Line12", Kind::line, drawing::lowerDivider<Control>)),
    hidden(drawn(Line13, "Line13", Kind::line, drawing::upperDivider<Control>)),
    hidden(drawn(Line14, "Line14", Kind::line, drawing::transistorVoltage<Control>)),
    hidden(drawn(Line15, "Line15", Kind::line, drawing::emitterVoltage<Control>)),
    hidden(drawn(Line16, "Line16", Kind::line, drawing::upperBaseVoltage<Control>)),
    drawn(Shape1, "Shape1", Kind::shape, drawing::transistor<Control>),
    field(Text1, "Text1", zones::parameter(circuitTop, 4), " s/uso",
          unused(notation::dQIc)),
    field(Text2, "Text2", zones::parameter(transistorTop, 3), "100", notation::Beta),
    field(Text3, "Text3", zones::parameter(circuitTop, 5), " s/uso",
          unused(notation::T)),
    field(Text4, "Text4", zones::parameter(generatorTop, 0), "10", notation::Rg),
    field(Text5, "Text5", zones::parameter(transistorTop, 0), "20", notation::EcMax),
    field(Text6, "Text6", zones::parameter(transistorTop, 1), "100", notation::IcMax),
    field(Text7, "Text7", zones::parameter(transistorTop, 2), ".6", notation::Vj),
    field(Text8, "Text8", zones::parameter(circuitTop, 0), "1", notation::QIc),
    field(Text9, "Text9", at(896, 459, 70, 22), ".5", notation::above(notation::RLw)),
    disabled(field(Text10, "Text10", zones::parameter(circuitTop, 1), "10", notation::S)),
    field(Text11, "Text11", zones::parameter(circuitTop, 2), "1", notation::Vg),
    field(Text12, "Text12", zones::parameter(circuitTop, 3), "20", notation::fo),
    field(Text13, "Text13", at(906, 340, 66, 22), "1", notation::above(notation::Eopp)),
    field(Text14, "Text14", at(296, 424, 80, 22), ".3535", notation::above(notation::Ein)),
    hidden(disabled(field(Text15, "Text15", at(636, 459, 80, 22), "1", notation::above(notation::in(notation::Res, "kΩ"))))),
    hidden(disabled(field(Text16, "Text16", at(466, 459, 80, 22), "10", notation::above(notation::Rb2)))),
    disabled(field(Text17, "Text17", at(466, 169, 80, 22), "20", notation::above(notation::Rb1))),
    disabled(field(Text18, "Text18", at(646, 174, 90, 22), "", notation::above(obtained))),
    hidden(disabled(field(Text20, "Text20", at(718, 119, 80, 22), "", besideItsPart(notation::Es)))),
    result(Label20, "Label20", at(636, 486, 150, 18)),
    result(Label21, "Label21", at(462, 486, 156, 36)),
    result(Label22, "Label22", at(300, 170, 122, 18)),
    result(Label23, "Label23", at(662, 330, 140, 20)),
    result(Label24, "Label24", at(466, 196, 132, 36)),
    result(Label25, "Label25", at(466, 312, 110, 18)),
    result(Label26, "Label26", at(346, 360, 96, 18)),
    result(Label28, "Label28", at(716, 430, 96, 18)),
    result(Label30, "Label30", at(896, 486, 110, 18)),
    hidden(marked(result(Label32, "Label32", at(746, 176, 90, 18)), obtainedName)),
    hidden(label(Label19, "Label19", at(zones::right, 352, 172, 84), Look::hint)),
    hidden(label(Label29, "Label29", at(zones::left, 494, zones::width, 118), Look::hint)),
    hidden(option(Picture1, "Picture1", Kind::picture, zones::option(0),
                  {"Quitar la Hoja de Análisis", "Take the Leaf of Analysis away"}, light::pageOpen)),
    hidden(option(Picture2, "Picture2", Kind::picture, zones::option(0), {"Hoja de Análisis", "Leaf of Analysis"}, light::green)),
    option(Picture3, "Picture3", Kind::picture, zones::option(0),
           {"La Hoja de Análisis espera el fin del diseño", "The Leaf of Analysis waits for the end of the design"}, light::waiting),
    guideTool(Image6, "Image6"),
    calculatorTool(Image5, "Image5"),
    reportTool(Image7, "Image7"),
    cloneTool(Image3, "Image3"),
    cloneToolAgain(Image4, "Image4"),
    helpTool(Image35, "Image35"),
    helpToolOpen(Image34, "Image34"),
    helpPage(Text22, "Text22", {"Ayuda en español", "Help in Spanish"}),
    helpPage(Text23, "Text23", {"Ayuda en inglés", "Help in English"}),
    {.id = SSPanel2, .name = "SSPanel2", .kind = Kind::panel, .place = zones::voice, .look = Look::prompt, .overlay = true},
});

// part, field that brings it
constexpr host::GrowthRow growthRows[] = {
    {Line3,  Text4},  {Line4,  Text4},
    {Line1,  Text9},
    {Line2,  Text13},
    {Line5,  Text14},
    {Line6,  Text8},  {Line7,  Text8},
    {Line8,  Text15}, {Line9,  Text15}, {Line10, Text15}, {Line14, Text15}, {Line15, Text15},
    {Line11, Text16}, {Line12, Text16},
    {Line13, Text17}, {Line16, Text17},
};

// value, part
constexpr host::ValueRow valueRows[] = {
    {Text9,  Line1},  {Label30, Line1},
    {Text13, Line2},
    {Text14, Line3},
    {Label26, Line5},
    {Text18, Line6},  {Label32, Line6},
    {Text15, Line8},  {Label20, Line8},
    {Label28, Line9},
    {Text20, Line10},
    {Label25, Line11},
    {Text16, Line12}, {Label21, Line12},
    {Text17, Line13}, {Label22, Line13}, {Label24, Line13},
};
// clang-format on

static_assert(host::rowsInOrder(rows));
static_assert(rows.size() == controlCount);

} // namespace controls_detail

const std::span<const host::ControlRow> controls = controls_detail::rows;
const std::span<const host::GrowthRow> growth = controls_detail::growthRows;
const std::span<const host::ValueRow> values = controls_detail::valueRows;

host::Place shownPlace(const host::Window& window, host::Handle control)
{
    switch (control) {
    case Label24:
        return base_collector::isBareName(window, Label24) ? host::Place{} : controls[control].place;
    case Label30:
        return base_collector::isBareName(window, Label30) ? host::Place{} : window.placeOf(control);
    case Label21:
        return window.visible(Text16) && base_collector::isBareName(window, Label21) ? host::Place{}
                                                                                     : controls[control].place;
    case Text22:
    case Text23:
        return controls[control].place;
    default:
        return window.placeOf(control);
    }
}

} // namespace velmor::form17
