// SPDX-License-Identifier: MIT
// The table of `Form9`'s controls: names, kinds, stored texts, places and strokes, and what of its drawing comes with
// which field. Places and strokes are counted in units of the drawing grid from the sheet's left top corner.
#include "designs/base_collector/form9_controls.h"

#include <array>

#include "designs/base_collector/follower_drawing.h"
#include "designs/base_collector/follower_rows.h"
#include "sheets/notation.h"
#include "sheets/schematic.h"

namespace velmor::form9 {

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

// Top edges of the groups of parameters.
constexpr int circuitTop = 94;
constexpr int transistorTop = 344;
constexpr int generatorTop = 482;

constexpr auto title = titleBlock({"Inversor de fase (parafase)", "Phase splitter (paraphase)"});

// clang-format off
// Parts that the splitter alone has: RL and the milliammeter in the collector, and two outputs of opposite phase.
constexpr auto collector = part({
    wire(620, 130, 620, 140),
    Mark{.symbol = Symbol::resistor, .from = {620, 140}, .to = {620, 210}, .field = Text15},
    Mark{.symbol = Symbol::meter, .from = {620, 210}, .to = {620, 260}, .name = "A", .field = Text18},
    wire(620, 260, 620, 310), node(620, 280),
});
constexpr auto current = part({
    Mark{.symbol = Symbol::arrow, .from = {600, 256}, .to = {600, 288}, .name = "Q_Ic", .side = Side::left, .value = Text8, .unit = "mA",
         .field = Text8},
});
constexpr auto collectorOutput = part({
    wire(620, 280, 830, 280),
    Mark{.symbol = Symbol::capacitor, .from = {830, 280}, .to = {870, 280}, .name = "C_out", .side = Side::above},
    wire(870, 280, 940, 280),
});
constexpr auto collectorLoad = part({
    node(940, 280), wire(940, 280, 940, 430),
    Mark{.symbol = Symbol::resistor, .from = {940, 430}, .to = {940, 510}, .name = "R_Lw", .side = Side::right, .field = Text9},
    wire(940, 510, 940, 520),
    ground(940, 520),
});
constexpr auto collectorSignal = part({
    wire(940, 280, 987, 280),
    Mark{.symbol = Symbol::terminal, .from = {990, 280}, .field = Text13},
    Mark{.symbol = Symbol::sineInverted, .from = {956, 246}, .to = {996, 270}, .field = Text13},
});
constexpr auto emitterOutput = part({
    wire(620, 410, 720, 410),
    Mark{.symbol = Symbol::capacitor, .from = {720, 410}, .to = {760, 410}, .name = "C_out", .side = Side::above},
    wire(760, 410, 830, 410),
});
constexpr auto emitterLoad = part({
    node(830, 410), wire(830, 410, 830, 430),
    Mark{.symbol = Symbol::resistor, .from = {830, 430}, .to = {830, 510}, .name = "R_Lw", .side = Side::right, .field = Text9},
    wire(830, 510, 830, 520),
    ground(830, 520),
});
constexpr auto emitterSignal = part({
    wire(830, 410, 887, 410),
    Mark{.symbol = Symbol::terminal, .from = {890, 410}, .field = Text13},
    Mark{.symbol = Symbol::sine, .from = {850, 376}, .to = {890, 400}, .field = Text13},
});
constexpr auto loadVoltage = part({
    Mark{.symbol = Symbol::arrow, .from = {598, 206}, .to = {598, 144}, .field = Text15},
});
constexpr Mark emitterVoltageName[] = {{.symbol = Symbol::label, .from = {-4, 9}, .name = "E_Res", .side = Side::left}};
constexpr host::BiText analysisCaption{"Análisis", "Analysis"};
constexpr Mark leafMarks[] = {
    {.symbol = Symbol::page, .from = {27, 6}, .to = {57, 36}},
    {.symbol = Symbol::text, .from = {42, 41}, .note = analysisCaption, .side = Side::below, .size = 90},
};
constexpr Mark openLeafMarks[] = {
    {.symbol = Symbol::door, .from = {27, 6}, .to = {57, 36}},
    {.symbol = Symbol::text, .from = {42, 41}, .note = {"Volver", "Back"}, .side = Side::below, .size = 90},
};

constexpr ControlRow choice(host::Handle id, std::string_view name, int top, std::string_view text, host::BiText meaning)
{
    return hidden({.id = id, .name = name, .kind = Kind::button, .place = at(zones::right, top, 172, 30), .text = text,
                   .meaning = meaning});
}

constexpr auto rows = std::to_array<ControlRow>({
    paper(Image1, "Image1", title),
    label(Label11, "Label11", zones::group(circuitTop, 8), Look::group),
    label(Label6, "Label6", zones::group(transistorTop, 4), Look::group),
    label(Label4, "Label4", zones::group(generatorTop, 1), Look::group),
    hidden(drawn(Line1,  "Line1",  Kind::line, collectorLoad)),
    hidden(drawn(Line2,  "Line2",  Kind::line, emitterLoad)),
    hidden(drawn(Line3,  "Line3",  Kind::line, drawing::generator<Control>)),
    hidden(drawn(Line4,  "Line4",  Kind::line, drawing::generatorResistance<Control>)),
    hidden(drawn(Line5,  "Line5",  Kind::line, drawing::inputCapacitor)),
    hidden(drawn(Line6,  "Line6",  Kind::line, collector)),
    hidden(drawn(Line7,  "Line7",  Kind::line, current)),
    hidden(drawn(Line8,  "Line8",  Kind::line, drawing::emitterResistor<Control>)),
    hidden(drawn(Line9,  "Line9",  Kind::line, collectorOutput)),
    hidden(drawn(Line10, "Line10", Kind::line, emitterOutput)),
    hidden(drawn(Line11, "Line11", Kind::line, drawing::supplyRail<Control>)),
    hidden(drawn(Line12, "Line12", Kind::line, drawing::baseLead)),
    hidden(drawn(Line13, "Line13", Kind::line, drawing::lowerDivider<Control>)),
    hidden(drawn(Line14, "Line14", Kind::line, drawing::upperDivider<Control>)),
    hidden(drawn(Line15, "Line15", Kind::line, collectorSignal)),
    hidden(drawn(Line16, "Line16", Kind::line, emitterSignal)),
    hidden(drawn(Line17, "Line17", Kind::line, drawing::transistorVoltage<Control>)),
    hidden(drawn(Line18, "Line18", Kind::line, loadVoltage)),
    hidden(drawn(Line19, "Line19", Kind::line, drawing::emitterVoltage<Control>)),
    drawn(Shape1, "Shape1", Kind::shape, drawing::transistor<Control>),
    disabled(field(Text1, "Text1", zones::parameter(circuitTop, 6), " s/uso",
                   unused(notation::dQIc))),
    field(Text2, "Text2", zones::parameter(transistorTop, 0), "100", notation::Beta),
    disabled(field(Text3, "Text3", zones::parameter(circuitTop, 7), " s/uso",
                   unused(notation::T))),
    field(Text4, "Text4", zones::parameter(generatorTop, 0), "10", notation::Rg),
    field(Text5, "Text5", zones::parameter(transistorTop, 1), "30", notation::EcMax),
    field(Text6, "Text6", zones::parameter(transistorTop, 2), "100", notation::IcMax),
    field(Text7, "Text7", zones::parameter(transistorTop, 3), ".6", notation::Vj),
    field(Text8, "Text8", zones::parameter(circuitTop, 0), "1", notation::QIc),
    field(Text9, "Text9", zones::parameter(circuitTop, 1), "10", notation::RLw),
    field(Text10, "Text10", zones::parameter(circuitTop, 3), "10", notation::S),
    field(Text11, "Text11", zones::parameter(circuitTop, 5), "1", notation::Vg),
    field(Text12, "Text12", zones::parameter(circuitTop, 4), "20", notation::fo),
    field(Text13, "Text13", zones::parameter(circuitTop, 2), "5", notation::Eopp),
    field(Text14, "Text14", at(296, 424, 80, 22), ".3535", notation::above(notation::Ein)),
    hidden(disabled(field(Text15, "Text15", at(640, 164, 80, 22), "1", notation::above(
                    notation::meaning(notation::RL, {"Resistor de colector, y de emisor", "Collector resistor, and emitter's"}))))),
    hidden(disabled(field(Text16, "Text16", at(466, 459, 80, 22), "", notation::above(notation::Rb2)))),
    disabled(field(Text17, "Text17", at(466, 169, 80, 22), "", notation::above(notation::Rb1))),
    disabled(field(Text18, "Text18", at(646, 224, 90, 22), "", besideItsPart(obtained))),
    disabled(field(Text20, "Text20", at(718, 119, 80, 22), "", besideItsPart(notation::Es))),
    result(Label20, "Label20", at(636, 446, 150, 36)),
    result(Label21, "Label21", at(462, 486, 156, 36)),
    result(Label22, "Label22", at(640, 188, 150, 18)),
    result(Label23, "Label23", at(662, 330, 140, 20)),
    result(Label24, "Label24", at(466, 196, 126, 36)),
    result(Label25, "Label25", at(466, 312, 110, 18)),
    result(Label26, "Label26", at(346, 360, 96, 18)),
    result(Label27, "Label27", at(808, 298, 96, 18)),
    result(Label28, "Label28", at(700, 428, 96, 18)),
    hidden(result(Label30, "Label30", at(846, 482, 66, 36))),
    hidden(result(Label31, "Label31", at(956, 482, 56, 36))),
    hidden(marked(result(Label32, "Label32", at(746, 226, 90, 18)), obtainedName)),
    marked(result(Voltaje, "Voltaje", at(665, 488, 100, 18)), emitterVoltageName),
    hidden(label(Label19, "Label19", at(zones::right, 352, 172, 96), Look::hint)),
    hidden(label(Label29, "Label29", at(zones::left, 544, zones::width, 68), Look::hint)),
    hidden({.id = Frame1, .name = "Frame1", .kind = Kind::panel, .place = at(zones::right, 456, 172, 64),
            .text = "Tensión COLECTOR - EMISOR es menor a 3 Volts...", .look = Look::warning}),
    choice(Command1, "Command1", 524, "Continuar", {"Continuar con esta tensión", "Go on with this voltage"}),
    choice(Command2, "Command2", 558, "Cambiar Eopp", {"Cambiar la salida", "Change the output"}),
    hidden(option(Picture1, "Picture1", Kind::picture, zones::option(0),
                  {"Quitar la Hoja de Análisis", "Take the Leaf of Analysis away"}, openLeafMarks)),
    hidden(option(Picture2, "Picture2", Kind::picture, zones::option(0), {"Hoja de Análisis", "Leaf of Analysis"}, leafMarks)),
    guideTool(Image6, "Image6"),
    calculatorTool(Image10, "Image10"),
    reportTool(Image7, "Image7"),
    cloneTool(Image8, "Image8"),
    cloneToolAgain(Image9, "Image9"),
    helpTool(Image35, "Image35"),
    helpToolOpen(Image34, "Image34"),
    helpPage(Text22, "Text22", {"Ayuda en español", "Help in Spanish"}),
    helpPage(Text23, "Text23", {"Ayuda en inglés", "Help in English"}),
    {.id = SSPanel2, .name = "SSPanel2", .kind = Kind::panel, .place = zones::voice, .look = Look::prompt, .overlay = true},
});

// part, field that brings it
constexpr host::GrowthRow growthRows[] = {
    {Line3,  Text4},  {Line4,  Text4},
    {Line7,  Text8},
    {Line1,  Text9},  {Line2,  Text9},
    {Line15, Text13}, {Line16, Text13},
    {Line5,  Text14},
    {Line9,  Text12}, {Line10, Text12},
    {Line17, Text7},
    {Line11, Text20},
    {Line6,  Text15}, {Line8,  Text15}, {Line18, Text15}, {Line19, Text15},
    {Line12, Text16}, {Line13, Text16},
    {Line14, Text17},
};

// value, part
constexpr host::ValueRow valueRows[] = {
    {Label31, Line1}, {Label30, Line2},
    {Text14,  Line3},
    {Label26, Line5},
    {Text15,  Line6}, {Label22, Line6},  {Text18, Line6},  {Label32, Line6},
    {Label20, Line8}, {Voltaje, Line8},
    {Label27, Line9}, {Label28, Line10},
    {Text20,  Line11},
    {Label25, Line12},
    {Text16,  Line13}, {Label21, Line13},
    {Text17,  Line14}, {Label24, Line14},
    {Label23, Line17},
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
    case Label21:
        return window.visible(Text16) && base_collector::isBareName(window, Label21) ? host::Place{}
                                                                                     : controls[control].place;
    case Label19:
    case Label24:
    case Text22:
    case Text23:
        return controls[control].place;
    default:
        return window.placeOf(control);
    }
}

} // namespace velmor::form9
