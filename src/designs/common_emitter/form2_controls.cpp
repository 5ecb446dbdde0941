// SPDX-License-Identifier: MIT
// The table of `Form2`'s controls: names, kinds, stored texts, places and strokes, and what of its drawing comes with which field.
// Places and strokes are counted in units of the drawing grid from the sheet's left top corner.
#include "designs/common_emitter/form2_controls.h"

#include <array>

#include "designs/common_emitter/emitter_drawing.h"
#include "sheets/notation.h"
#include "sheets/schematic.h"

namespace velmor::form2 {

namespace controls_detail {

using namespace sheets; // NOLINT(google-build-using-namespace): the words of the table
using host::Chosen;
using host::ControlRow;
using host::Ink;
using host::Kind;
using host::Look;
using host::Mark;
using host::noControl;
using host::Side;
using host::Symbol;
namespace drawing = common_emitter::drawing;

// Top edges of the two groups of parameters.
constexpr int circuitTop = 94;
constexpr int transistorTop = 350;

// clang-format off
// What follows is counted from the corner of its own control.
constexpr Mark titleBlock[] = {
    {.symbol = Symbol::text, .from = {640, 501}, .note = {"Emisor común, clase A", "Common emitter, class A"}, .ink = Ink::quiet,
     .size = 80},
    {.symbol = Symbol::frame, .from = {630, 492}, .to = {770, 510}, .ink = Ink::quiet},
};
constexpr Mark emitterVoltageFrame[] = {
    {.symbol = Symbol::label, .from = {-8, 11}, .name = "E_Res", .side = Side::left},
    {.symbol = Symbol::text, .from = {74, 11}, .name = "V", .ink = Ink::quiet, .size = 90},
    {.symbol = Symbol::frame, .from = {-4, 0}, .to = {69, 22}, .ink = Ink::quiet},
};
// Symbols of the voltages, ahead of their values.
constexpr Mark emitterVoltageName[]  = {{.symbol = Symbol::label, .from = {-4, 9},  .name = "E_Res", .side = Side::left}};
constexpr Mark loadVoltageName[]     = {{.symbol = Symbol::label, .from = {-4, 10}, .name = "E_RL",  .side = Side::left}};
constexpr Mark upperVoltageName[]    = {{.symbol = Symbol::label, .from = {-4, 9},  .name = "E_Rb1", .side = Side::left}};
constexpr Mark obtainedCurrentName[] = {
    {.symbol = Symbol::text, .from = {-4, 9}, .note = {"QIc obtenida", "QIc obtained"}, .side = Side::left, .ink = Ink::accent,
     .size = 90},
};
// The option pictures. Resistors and capacitors smaller than the drawing's own, so that a button holds a circuit.
constexpr Mark bypassMarks[] = {
    wire(10, 14, 20, 14), node(20, 14), wire(20, 7, 20, 22), wire(20, 7, 31, 7),
    {.symbol = Symbol::frame, .from = {31, 3}, .to = {53, 11}},
    wire(53, 7, 64, 7), wire(20, 22, 39, 22), wire(39, 16, 39, 28), wire(45, 16, 45, 28), wire(45, 22, 64, 22),
    wire(64, 7, 64, 22), node(64, 14), wire(64, 14, 74, 14),
};
constexpr Mark partialMarks[] = {
    wire(5, 8, 11, 8),
    {.symbol = Symbol::frame, .from = {11, 4}, .to = {29, 12}},
    wire(29, 8, 47, 8), node(38, 8),
    {.symbol = Symbol::frame, .from = {47, 4}, .to = {65, 12}},
    wire(65, 8, 79, 8), node(73, 8), wire(38, 8, 38, 22), wire(38, 22, 53, 22), wire(53, 16, 53, 28), wire(59, 16, 59, 28),
    wire(59, 22, 73, 22), wire(73, 8, 73, 22),
};
constexpr Mark emitterSupplyMarks[] = {
    wire(34, 2, 34, 5),
    {.symbol = Symbol::frame, .from = {30, 5}, .to = {38, 19}},
    wire(34, 19, 34, 23),
    {.symbol = Symbol::terminal, .from = {34, 26}},
    {.symbol = Symbol::label, .from = {42, 22}, .name = "-E_s", .size = 80},
};
constexpr host::GridPoint bootstrapLoop[] = {{17, 26}, {17, 8}, {67, 8}, {67, 26}};
constexpr Mark bootstrapMarks[] = {
    {.symbol = Symbol::polyline, .points = bootstrapLoop},
    {.symbol = Symbol::capacitor, .from = {17, 26}, .to = {67, 26}},
    {.symbol = Symbol::arrow, .from = {31, 8}, .to = {55, 8}},
};

// --- rows that this table has several of

constexpr ControlRow marked(ControlRow row, std::span<const Mark> drawing)
{
    row.drawing = drawing;
    return row;
}
constexpr ControlRow meaning(ControlRow row, host::BiText meaning)
{
    row.meaning = meaning;
    return row;
}
constexpr ControlRow note(host::Handle id, std::string_view name)
{
    return hidden(label(id, name, at(zones::left, 494, zones::width, 118), Look::hint));
}
constexpr ControlRow choice(host::Handle id, std::string_view name, int index, host::BiText meaning, std::span<const Mark> drawing)
{
    return option(id, name, Kind::picture, zones::option(index), meaning, drawing);
}
/// An option that shows itself only while it is chosen; a click takes it back.
constexpr ControlRow inForce(host::Handle id, std::string_view name, int index, host::BiText meaning, std::span<const Mark> drawing)
{
    return hidden(chosen(choice(id, name, index, meaning, drawing), Chosen::whenShown));
}
template <std::size_t Count>
constexpr ControlRow bootstrapCapacitor(host::Handle id, std::string_view name, const Part<Count>& part, host::BiText meaning)
{
    return controls_detail::meaning(disabled(hidden(drawn(id, name, Kind::picture, part))), meaning);
}

constexpr auto rows = std::to_array<ControlRow>({
    {.id = Image1, .name = "Image1", .kind = Kind::image, .place = zones::paper, .look = Look::paper, .drawing = titleBlock},
    label(Label11, "Label11", zones::group(circuitTop, 8), Look::group),
    label(Label6, "Label6", zones::group(transistorTop, 4), Look::group),
    hidden(drawn(Line1,  "Line1",  Kind::line,  drawing::emitterLead)),
    hidden(drawn(Line2,  "Line2",  Kind::line,  drawing::emitterResistor<Control>)),
    hidden(drawn(Line3,  "Line3",  Kind::line,  drawing::emitterGround)),
    hidden(drawn(Line4,  "Line4",  Kind::line,  drawing::emitterSupply<Control>)),
    hidden(drawn(Line5,  "Line5",  Kind::line,  drawing::collectorLead)),
    hidden(drawn(Line6,  "Line6",  Kind::line,  drawing::collectorCurrent<Control>)),
    hidden(drawn(Line7,  "Line7",  Kind::line,  drawing::outputCapacitor)),
    hidden(drawn(Line8,  "Line8",  Kind::line,  drawing::load<Control>)),
    hidden(drawn(Line9,  "Line9",  Kind::line,  drawing::collectorResistor<Control>)),
    hidden(drawn(Line10, "Line10", Kind::line,  drawing::supplyRail)),
    hidden(drawn(Line11, "Line11", Kind::line,  drawing::outputSignal<Control>)),
    hidden(drawn(Line12, "Line12", Kind::line,  drawing::inputSignal<Control>)),
    hidden(drawn(Line13, "Line13", Kind::line,  drawing::inputCapacitor)),
    hidden(drawn(Line14, "Line14", Kind::line,  drawing::baseLead)),
    hidden(drawn(Line15, "Line15", Kind::line,  drawing::lowerDivider<Control>)),
    hidden(drawn(Line16, "Line16", Kind::line,  drawing::upperDivider<Control>)),
    hidden(drawn(Line17, "Line17", Kind::line,  drawing::collectorEmitterVoltage<Control>)),
    hidden(drawn(Line18, "Line18", Kind::line,  drawing::emitterVoltage<Control>)),
    hidden(drawn(Line19, "Line19", Kind::line,  drawing::loadVoltage<Control>)),
    hidden(drawn(Line20, "Line20", Kind::line,  drawing::bootstrapWires)),
    drawn(Shape3,        "Shape3", Kind::shape, drawing::transistor<Control>),
    hidden(drawn(Shape4, "Shape4", Kind::shape, drawing::supplyTerminal<Control>)),
    hidden(drawn(Image2, "image2", Kind::image, drawing::bypassCapacitor)),
    bootstrapCapacitor(Picture3, "Picture3", drawing::firstBootstrap,
                   {"Primer capacitor de bootstrapping", "First bootstrapping capacitor"}),
    bootstrapCapacitor(Picture5, "Picture5", drawing::secondBootstrap,
                   {"Segundo capacitor de bootstrapping", "Second bootstrapping capacitor"}),
    field(Text1, "Text1", zones::parameter(circuitTop, 0), "10", notation::dQIc),
    disabled(field(Text2, "Text2", zones::parameter(transistorTop, 0), "80", notation::Beta)),
    disabled(field(Text3, "Text3", zones::parameter(circuitTop, 1), "75", notation::T)),
    disabled(field(Text4, "Text4", zones::parameter(circuitTop, 2), "2.5", notation::dVbe)),
    disabled(field(Text5, "Text5", zones::parameter(transistorTop, 1), "25", notation::EcMax)),
    disabled(field(Text6, "Text6", zones::parameter(transistorTop, 2), "100", notation::IcMax)),
    disabled(field(Text7, "Text7", zones::parameter(transistorTop, 3), "0.6", notation::Vj)),
    disabled(field(Text8, "Text8", at(98, 230, 100, 22), "1", notation::QIc)),
    disabled(field(Text9, "Text9", at(918, 459, 60, 22), "10", notation::above(notation::RLw))),
    disabled(field(Text10, "Text10", zones::parameter(circuitTop, 5), "10", notation::S)),
    disabled(field(Text11, "Text11", zones::parameter(circuitTop, 6), "5", notation::Vg)),
    disabled(field(Text12, "Text12", zones::parameter(circuitTop, 7), "20", notation::fo)),
    disabled(field(Text13, "Text13", at(910, 238, 66, 22), "1", notation::above(notation::Eopp))),
    disabled(field(Text14, "Text14", at(300, 414, 66, 22), "0.35", notation::above(notation::Ein))),
    hidden(disabled(field(Text15, "Text15", at(640, 459, 130, 22), "", notation::above(notation::Res)))),
    disabled(field(Text16, "Text16", at(706, 119, 122, 22), "", notation::above(notation::Es))),
    disabled(field(Text17, "Text17", at(640, 162, 130, 22), "", notation::above(notation::RL))),
    hidden(disabled(field(Text18, "Text18", at(448, 459, 122, 22), "", notation::above(notation::Rb2)))),
    disabled(field(Text19, "Text19", at(448, 162, 122, 22), "", notation::above(notation::Rb1))),
    hidden(disabled(field(Text20, "Text20", at(822, 430, 74, 22), "", notation::above(notation::Cbp)))),
    hidden(disabled(field(Text21, "Text21", at(640, 539, 100, 22), "  - Es = 20 V",
                      notation::above(notation::in(notation::EsNegative, ""))))),
    {.id = Voltaje, .name = "Voltaje", .kind = Kind::label, .place = at(102, 202, 66, 22), .enabled = false,
     .meaning = {"Tensión de estabilidad ERes", "Voltage of stability ERes"}, .look = Look::result, .drawing = emitterVoltageFrame,
     .clickableWhenDisabled = true},
    marked(result(VRes, "VRes", at(676, 420, 104, 18)), emitterVoltageName),
    hidden(marked(result(ER, "ER", at(838, 162, 110, 20)), loadVoltageName)),
    hidden(result(res, "res", at(640, 484, 140, 18))),
    hidden(marked(result(Label24, "Label24", at(800, 222, 96, 18)), obtainedCurrentName)),
    hidden(label(Label19, "Label19", at(776, 540, 238, 20), Look::note)),
    hidden(label(Label20, "Label20", at(448, 196, 150, 18), Look::note)),
    hidden(result(statu17, "statu17", at(672, 370, 112, 18))),
    hidden(result(statu18, "statu18", at(912, 484, 100, 34))),
    hidden(result(statu19, "statu19", at(640, 188, 112, 18))),
    hidden(label(statu21, "statu21", at(636, 110, 40, 16), Look::invisible, "Es")),
    hidden(result(statu22, "statu22", at(296, 444, 114, 36))),
    hidden(result(statu23, "statu23", at(296, 482, 106, 34))),
    hidden(label(statu24, "statu24", at(244, 150, 166, 52), Look::hint)),
    hidden(result(statu25, "statu25", at(672, 334, 196, 34))),
    hidden(marked(result(statu30, "statu30", at(292, 206, 130, 18)), upperVoltageName)),
    hidden(result(statu31, "statu31", at(244, 298, 106, 18))),
    hidden(result(statu32, "statu32", at(308, 355, 114, 18))),
    hidden(result(statu33, "statu33", at(712, 296, 130, 16))),
    hidden(label(statu35, "statu35", at(912, 484, 100, 16), Look::note)),
    hidden(label(status40, "status40", at(244, 545, 350, 62), Look::warning)),
    hidden(result(statu61, "statu61", at(244, 232, 150, 36))),
    hidden(result(statu62, "statu62", at(308, 371, 114, 18))),
    hidden(result(statu71, "statu71", at(446, 422, 108, 18))),
    hidden(result(statu72, "statu72", at(446, 242, 106, 36))),
    hidden(label(sta1, "sta1", at(640, 420, 40, 18), Look::invisible, "ERes =")),
    hidden(label(sta2, "sta2", at(798, 162, 36, 20), Look::invisible, "ERL =")),
    hidden(label(sta3, "sta3", at(244, 206, 46, 18), Look::invisible, "ERb1 =")),
    hidden(label(sta4, "sta4", at(640, 588, 220, 18), Look::note)),
    note(status1, "status1"),
    note(status2, "status2"),
    note(status3, "status3"),
    hidden(label(status4, "status4", at(zones::left, 494, zones::width, 36), Look::hint)),
    note(status5, "status5"),
    hidden(label(status6, "status6", at(zones::left, 532, zones::width, 80), Look::hint)),
    note(status7, "status7"),
    note(status8, "status8"),
    note(status9, "status9"),
    note(status10, "status10"),
    note(status11, "status11"),
    note(status12, "status12"),
    note(status13, "status13"),
    note(status14, "status14"),
    note(status15, "status15"),
    note(status16, "status16"),
    note(statu36, "statu36"),
    note(sta5, "sta5"),
    note(Label21, "Label21"),
    hidden(label(Boost, "Boost", at(zones::right, 540, 172, 22), Look::balloon, "Boots...")),
    choice(Picture6, "Picture6", 0,
       {"Diseñar con emisor desacoplado", "Design with the emitter bypassed"}, bypassMarks),
    choice(Picture4, "Picture4", 1,
       {"Diseñar con emisor parcialmente desacoplado", "Design with the emitter partly bypassed"}, partialMarks),
    choice(Picture11, "Picture11", 2, {"Polarizar por emisor", "Polarize by emitter"}, emitterSupplyMarks),
    inForce(Picture10, "Picture10", 3,
       {"Polarizado por emisor: volver a polarizar por base", "Polarized by emitter: polarize by base again"}, emitterSupplyMarks),
    hidden(choice(Picture2, "Picture2", 4, {"Aplicar bootstrapping", "Apply bootstrapping"}, bootstrapMarks)),
    inForce(Picture7, "Picture7", 5,
       {"Con bootstrapping: quitarlo", "With bootstrapping: take it away"}, bootstrapMarks),
    inForce(Picture1, "Picture1", 6,
       {"Desacoplado: vuelve al comienzo", "Bypassed: back to the beginning"}, bypassMarks),
    guideTool(SSCommand1, "SSCommand1", Kind::button),
    calculatorTool(Image3, "Image3"),
    reportTool(SSCommand3, "SSCommand3", Kind::button),
    cloneTool(Image5, "Image5"),
    cloneToolAgain(Image4, "Image4"),
    helpTool(Image35, "Image35"),
    helpToolOpen(Image34, "Image34"),
    label(STA70, "STA70", zones::nextStep, Look::hint),
    {.id = SSPanel1, .name = "SSPanel1", .kind = Kind::panel, .place = zones::voice, .look = Look::prompt, .overlay = true},
});

constexpr host::Handle noteHandles[] = {
    status1, status2, status3, status4, status5, status6, status7, status8, status9, status10, status11, status12, status13, status14,
    status15, status16, statu36, sta5, Label21,
};

// part, field that brings it, belongs while this shows, and while these do not. The emitter resistor ends at ground or, with a
// negative supply, at its terminal; that stage has no Rb1. Bootstrapping divides both resistors of the base.
constexpr host::GrowthRow growthRows[] = {
    {Line5,  Text8},  {Line6,  Text8},
    {Line1,  Text21}, {Line2,  Text21},
    {Line1,  Text15}, {Line2,  Text15},
    {Line3,  Text21, noControl, Text21}, {Line4, Text21, Text21},
    {Line3,  Text15, noControl, Text21}, {Line4, Text15, Text21},
    {Line7,  Text9},  {Line8,  Text9},  {Line18, Text9},
    {Line9,  Text17},
    {Line19, Text12},
    {Line11, Text13},
    {Line12, Text14}, {Line13, Text14},
    {Line10, Text16}, {Shape4, Text16},
    {Line17, Text2},
    {Line12, Text18}, {Line13, Text18}, {Line14, Text18},
    {Line15, Text18, noControl, Picture7}, {Line20, Text18, Picture7},
    {Line16, Text19, noControl, Picture10, Picture7},
};

// value, part. The transistor and the capacitors of an option are always there, and pale like a value while what they belong to is.
constexpr host::ValueRow valueRows[] = {
    {Shape3,  Line5},  {Image2,  Line2},  {Picture3, Line20}, {Picture5, Line20},
    {Text15,  Line2},  {res,     Line2},  {VRes,     Line2},  {sta1,     Line2}, {Text21, Line4}, {Text20, Line2},
    {Label24, Line6},  {statu17, Line1},  {statu25,  Line17},
    {Text9,   Line8},  {statu18, Line8},  {statu35,  Line8},  {statu33,  Line7}, {Text13, Line11},
    {Text17,  Line9},  {statu19, Line9},  {ER,       Line9},  {sta2,     Line9},
    {Text16,  Line10}, {statu21, Line10},
    {Text14,  Line12}, {statu31, Line13}, {statu32,  Line13}, {statu62,  Line13},
    {Text18,  Line15}, {statu22, Line15}, {statu23,  Line15},
    {Text19,  Line16}, {statu30, Line16}, {sta3,     Line16},
    {statu61, Line20}, {statu71, Line20}, {statu72,  Line20},
};
// clang-format on

static_assert(host::rowsInOrder(rows));
static_assert(rows.size() == controlCount);

} // namespace controls_detail

const std::span<const host::ControlRow> controls = controls_detail::rows;
const std::span<const host::Handle> notes = controls_detail::noteHandles;
const std::span<const host::GrowthRow> growth = controls_detail::growthRows;
const std::span<const host::ValueRow> values = controls_detail::valueRows;

} // namespace velmor::form2
