// SPDX-License-Identifier: MIT
// The rows of controls that the common-emitter sheets stabilised by current have alike: fields, results, notes, parts of the
// drawing, tools, and the faces of their option pictures. Each sheet puts them in the order of its own handles (`C`) beside rows
// of its own. Knows no slot and no formula.
//
// Places and strokes are counted in units of the drawing grid from the sheet's left top corner.
#pragma once

#include <array>

#include "designs/common_emitter/emitter_drawing.h"
#include "sheets/notation.h"
#include "sheets/rows.h"
#include "sheets/schematic.h"
#include "sheets/tools.h"

namespace velmor::common_emitter {

namespace controls_detail {

using namespace sheets; // NOLINT(google-build-using-namespace): the words of the table
using host::Chosen;
using host::ControlRow;
using host::Ink;
using host::Kind;
using host::Look;
using host::Mark;
using host::Side;
using host::Symbol;

// Top edges of the two groups of parameters.
inline constexpr int circuitTop = 94;
inline constexpr int transistorTop = 350;

// clang-format off
// What follows is counted from the corner of its own control.
inline constexpr Mark emitterVoltageFrame[] = {
    {.symbol = Symbol::label, .from = {-8, 11}, .name = "E_Res", .side = Side::left},
    {.symbol = Symbol::text, .from = {74, 11}, .name = "V", .ink = Ink::quiet},
    {.symbol = Symbol::frame, .from = {-4, 0}, .to = {69, 22}, .ink = Ink::quiet},
};
// Symbols of the voltages, ahead of their values.
inline constexpr Mark emitterVoltageName[]  = {{.symbol = Symbol::label, .from = {-4, 9},  .name = "E_Res", .side = Side::left}};
inline constexpr Mark loadVoltageName[]     = {{.symbol = Symbol::label, .from = {-4, 10}, .name = "E_RL",  .side = Side::left}};
inline constexpr Mark upperVoltageName[]    = {{.symbol = Symbol::label, .from = {-4, 9},  .name = "E_Rb1", .side = Side::left}};
inline constexpr Mark obtainedCurrentName[] = {
    {.symbol = Symbol::text, .from = {-4, 9}, .note = {"QIc obtenida", "QIc obtained"}, .side = Side::left, .ink = Ink::accent,
     .size = 90},
};
// The option pictures. Resistors and capacitors smaller than the drawing's own, so that a button holds a circuit.
inline constexpr Mark bypassMarks[] = {
    wire(10, 14, 20, 14), node(20, 14), wire(20, 7, 20, 22), wire(20, 7, 31, 7),
    {.symbol = Symbol::frame, .from = {31, 3}, .to = {53, 11}},
    wire(53, 7, 64, 7), wire(20, 22, 39, 22), wire(39, 16, 39, 28), wire(45, 16, 45, 28), wire(45, 22, 64, 22),
    wire(64, 7, 64, 22), node(64, 14), wire(64, 14, 74, 14),
};
inline constexpr Mark partialMarks[] = {
    wire(5, 8, 11, 8),
    {.symbol = Symbol::frame, .from = {11, 4}, .to = {29, 12}},
    wire(29, 8, 47, 8), node(38, 8),
    {.symbol = Symbol::frame, .from = {47, 4}, .to = {65, 12}},
    wire(65, 8, 79, 8), node(73, 8), wire(38, 8, 38, 22), wire(38, 22, 53, 22), wire(53, 16, 53, 28), wire(59, 16, 59, 28),
    wire(59, 22, 73, 22), wire(73, 8, 73, 22),
};
inline constexpr Mark emitterSupplyMarks[] = {
    wire(34, 2, 34, 5),
    {.symbol = Symbol::frame, .from = {30, 5}, .to = {38, 19}},
    wire(34, 19, 34, 23),
    {.symbol = Symbol::terminal, .from = {34, 26}},
    {.symbol = Symbol::label, .from = {42, 22}, .name = "-E_s", .size = 80},
};
inline constexpr host::GridPoint bootstrapLoop[] = {{17, 26}, {17, 8}, {67, 8}, {67, 26}};
inline constexpr Mark bootstrapMarks[] = {
    {.symbol = Symbol::polyline, .points = bootstrapLoop},
    {.symbol = Symbol::capacitor, .from = {17, 26}, .to = {67, 26}},
    {.symbol = Symbol::arrow, .from = {31, 8}, .to = {55, 8}},
};

// --- rows that the tables have several of

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

/// Rows of all three sheets.
template <class C>
inline constexpr auto emitterRows = std::to_array<ControlRow>({
    label(C::Label11, "Label11", zones::group(circuitTop, 8), Look::group),
    label(C::Label6, "Label6", zones::group(transistorTop, 4), Look::group),
    hidden(drawn(C::Line1,  "Line1",  Kind::line,  drawing::emitterLead)),
    hidden(drawn(C::Line2,  "Line2",  Kind::line,  drawing::emitterResistor<C>)),
    hidden(drawn(C::Line3,  "Line3",  Kind::line,  drawing::emitterGround)),
    hidden(drawn(C::Line5,  "Line5",  Kind::line,  drawing::collectorLead)),
    hidden(drawn(C::Line6,  "Line6",  Kind::line,  drawing::collectorCurrent<C>)),
    hidden(drawn(C::Line7,  "Line7",  Kind::line,  drawing::outputCapacitor)),
    hidden(drawn(C::Line8,  "Line8",  Kind::line,  drawing::load<C>)),
    hidden(drawn(C::Line9,  "Line9",  Kind::line,  drawing::collectorResistor<C>)),
    hidden(drawn(C::Line10, "Line10", Kind::line,  drawing::supplyRail)),
    hidden(drawn(C::Line11, "Line11", Kind::line,  drawing::outputSignal<C>)),
    hidden(drawn(C::Line12, "Line12", Kind::line,  drawing::inputSignal<C>)),
    hidden(drawn(C::Line13, "Line13", Kind::line,  drawing::inputCapacitor)),
    hidden(drawn(C::Line14, "Line14", Kind::line,  drawing::baseLead)),
    hidden(drawn(C::Line15, "Line15", Kind::line,  drawing::lowerDivider<C>)),
    hidden(drawn(C::Line16, "Line16", Kind::line,  drawing::upperDivider<C>)),
    hidden(drawn(C::Line17, "Line17", Kind::line,  drawing::collectorEmitterVoltage<C>)),
    hidden(drawn(C::Line18, "Line18", Kind::line,  drawing::emitterVoltage<C>)),
    hidden(drawn(C::Line19, "Line19", Kind::line,  drawing::loadVoltage<C>)),
    drawn(C::Shape3, "Shape3", Kind::shape, drawing::transistor<C>),
    hidden(drawn(C::Shape4, "Shape4", Kind::shape, drawing::supplyTerminal<C>)),
    hidden(drawn(C::Image2, "image2", Kind::image, drawing::bypassCapacitor)),
    field(C::Text1, "Text1", zones::parameter(circuitTop, 0), "10", notation::dQIc),
    disabled(field(C::Text2, "Text2", zones::parameter(transistorTop, 0), "80", notation::Beta)),
    disabled(field(C::Text3, "Text3", zones::parameter(circuitTop, 1), "75", notation::T)),
    disabled(field(C::Text4, "Text4", zones::parameter(circuitTop, 2), "2.5", notation::dVbe)),
    disabled(field(C::Text5, "Text5", zones::parameter(transistorTop, 1), "25", notation::EcMax)),
    disabled(field(C::Text6, "Text6", zones::parameter(transistorTop, 2), "100", notation::IcMax)),
    disabled(field(C::Text7, "Text7", zones::parameter(transistorTop, 3), "0.6", notation::Vj)),
    disabled(field(C::Text8, "Text8", at(98, 230, 100, 22), "1", notation::QIc)),
    disabled(field(C::Text9, "Text9", at(918, 459, 60, 22), "10", notation::above(notation::RLw))),
    disabled(field(C::Text10, "Text10", zones::parameter(circuitTop, 5), "10", notation::S)),
    disabled(field(C::Text11, "Text11", zones::parameter(circuitTop, 6), "5", notation::Vg)),
    disabled(field(C::Text12, "Text12", zones::parameter(circuitTop, 7), "20", notation::fo)),
    disabled(field(C::Text13, "Text13", at(910, 238, 66, 22), "1", notation::above(notation::Eopp))),
    disabled(field(C::Text14, "Text14", at(300, 414, 66, 22), "0.35", notation::above(notation::Ein))),
    hidden(disabled(field(C::Text15, "Text15", at(640, 459, 122, 22), "", notation::above(notation::Res)))),
    disabled(field(C::Text16, "Text16", at(706, 119, 122, 22), "", notation::above(notation::Es))),
    disabled(field(C::Text17, "Text17", at(640, 162, 130, 22), "", notation::above(notation::RL))),
    hidden(disabled(field(C::Text18, "Text18", at(448, 459, 122, 22), "", notation::above(notation::Rb2)))),
    disabled(field(C::Text19, "Text19", at(448, 162, 122, 22), "", notation::above(notation::Rb1))),
    hidden(disabled(field(C::Text20, "Text20", at(806, 422, 86, 22), "", notation::above(notation::Cbp)))),
    {.id = C::Voltaje, .name = "Voltaje", .kind = Kind::label, .place = at(102, 202, 66, 22), .enabled = false,
     .meaning = {"Tensión de estabilidad ERes", "Voltage of stability ERes"}, .look = Look::result, .drawing = emitterVoltageFrame,
     .clickableWhenDisabled = true},
    marked(result(C::VRes, "VRes", at(667, 420, 104, 18)), emitterVoltageName),
    hidden(marked(result(C::ER, "ER", at(838, 162, 110, 20)), loadVoltageName)),
    hidden(result(C::res, "res", at(640, 484, 140, 18))),
    hidden(marked(result(C::Label24, "Label24", at(800, 222, 96, 18)), obtainedCurrentName)),
    hidden(label(C::Label19, "Label19", at(776, 540, 238, 20), Look::note)),
    hidden(result(C::statu17, "statu17", at(672, 370, 112, 18))),
    hidden(result(C::statu18, "statu18", at(880, 550, 132, 18))),
    hidden(result(C::statu19, "statu19", at(640, 188, 112, 18))),
    hidden(label(C::statu21, "statu21", at(636, 110, 40, 16), Look::invisible, "Es")),
    hidden(result(C::statu22, "statu22", at(296, 444, 114, 36))),
    hidden(result(C::statu23, "statu23", at(296, 482, 106, 34))),
    hidden(label(C::statu24, "statu24", at(244, 150, 166, 52), Look::hint)),
    hidden(result(C::statu25, "statu25", at(672, 334, 196, 34))),
    hidden(marked(result(C::statu30, "statu30", at(274, 206, 140, 18)), upperVoltageName)),
    hidden(result(C::statu31, "statu31", at(244, 298, 106, 18))),
    hidden(result(C::statu32, "statu32", at(308, 355, 114, 18))),
    hidden(result(C::statu33, "statu33", at(712, 296, 130, 16))),
    hidden(label(C::statu35, "statu35", at(918, 484, 94, 16), Look::note)),
    hidden(label(C::status40, "status40", at(244, 545, 350, 62), Look::warning)),
    hidden(label(C::sta1, "sta1", at(640, 420, 40, 18), Look::invisible, "ERes =")),
    hidden(label(C::sta2, "sta2", at(798, 162, 36, 20), Look::invisible, "ERL =")),
    hidden(label(C::sta3, "sta3", at(244, 206, 46, 18), Look::invisible, "ERb1 =")),
    hidden(label(C::sta4, "sta4", at(640, 588, 220, 18), Look::note)),
    note(C::status1, "status1"),
    note(C::status2, "status2"),
    note(C::status3, "status3"),
    hidden(label(C::status4, "status4", at(zones::left, 494, zones::width, 36), Look::hint)),
    note(C::status5, "status5"),
    hidden(label(C::status6, "status6", at(zones::left, 532, zones::width, 80), Look::hint)),
    note(C::status7, "status7"),
    note(C::status8, "status8"),
    note(C::status9, "status9"),
    note(C::status10, "status10"),
    note(C::status11, "status11"),
    note(C::status12, "status12"),
    note(C::status13, "status13"),
    note(C::status14, "status14"),
    note(C::status15, "status15"),
    note(C::status16, "status16"),
    note(C::statu36, "statu36"),
    note(C::sta5, "sta5"),
    note(C::Label21, "Label21"),
    hidden(label(C::Boost, "Boost", at(zones::right, 540, 172, 22), Look::balloon, "Boots...")),
    guideTool(C::SSCommand1, "SSCommand1", Kind::button),
    calculatorTool(C::Image3, "Image3"),
    reportTool(C::SSCommand3, "SSCommand3", Kind::button),
    cloneTool(C::Image5, "Image5"),
    cloneToolAgain(C::Image4, "Image4"),
    helpTool(C::Image35, "Image35"),
    helpToolOpen(C::Image34, "Image34"),
    label(C::STA70, "STA70", zones::nextStep, Look::hint),
    {.id = C::SSPanel1, .name = "SSPanel1", .kind = Kind::panel, .place = zones::voice, .look = Look::prompt, .overlay = true},
    hidden(disabled(field(C::Text21, "Text21", at(640, 539, 100, 22), "  - Es = 20 V",
                      notation::above(notation::in(notation::EsNegative, ""))))),
});

/// Rows of the two sheets that can be polarised by emitter and bootstrapped.
template <class C>
inline constexpr auto modeRows = std::to_array<ControlRow>({
    hidden(drawn(C::Line4,  "Line4",  Kind::line,  drawing::emitterSupply<C>)),
    hidden(drawn(C::Line20, "Line20", Kind::line,  drawing::bootstrapWires)),
    bootstrapCapacitor(C::Picture3, "Picture3", drawing::firstBootstrap,
                   {"Primer capacitor de bootstrapping", "First bootstrapping capacitor"}),
    bootstrapCapacitor(C::Picture5, "Picture5", drawing::secondBootstrap,
                   {"Segundo capacitor de bootstrapping", "Second bootstrapping capacitor"}),
    hidden(label(C::Label20, "Label20", at(448, 196, 150, 18), Look::note)),
    hidden(result(C::statu61, "statu61", at(244, 232, 150, 36))),
    hidden(result(C::statu62, "statu62", at(308, 371, 114, 18))),
    hidden(result(C::statu71, "statu71", at(446, 422, 108, 18))),
    hidden(result(C::statu72, "statu72", at(446, 242, 106, 36))),
    choice(C::Picture11, "Picture11", 2, {"Polarizar por emisor", "Polarize by emitter"}, emitterSupplyMarks),
    inForce(C::Picture10, "Picture10", 3,
       {"Polarizado por emisor: volver a polarizar por base", "Polarized by emitter: polarize by base again"}, emitterSupplyMarks),
    hidden(choice(C::Picture2, "Picture2", 4, {"Aplicar bootstrapping", "Apply bootstrapping"}, bootstrapMarks)),
    inForce(C::Picture7, "Picture7", 5,
       {"Con bootstrapping: quitarlo", "With bootstrapping: take it away"}, bootstrapMarks),
});

} // namespace controls_detail

/// The notes beside the fields: pointing at a field shows its own alone.
template <class C>
inline constexpr std::array<host::Handle, 19> emitterNotes{
    C::status1, C::status2, C::status3, C::status4, C::status5, C::status6, C::status7, C::status8, C::status9, C::status10, C::status11,
    C::status12, C::status13, C::status14, C::status15, C::status16, C::statu36, C::sta5, C::Label21,
};

/// The keys of what the pointer alone would reach.
template <class C>
inline constexpr auto emitterKeys = std::to_array<host::ShortcutRow>({
    {"Shift+F2",  C::Image1,    host::KeyAction::hover,      host::noControl, {"Borrar las notas", "Take the notes away"}},
    {"F5",        C::Voltaje,   host::KeyAction::hover,      host::noControl, {"Fórmula de ERes", "Formula of ERes"}},
    {"F7",        C::statu17,   host::KeyAction::hover,      host::noControl, {"Nota de r'e", "Note on r'e"}},
    {"F8",        C::statu18,   host::KeyAction::hover,      host::noControl, {"Nota de RLac", "Note on RLac"}},
    {"F9",        C::statu23,   host::KeyAction::hover,      host::noControl, {"Nota de Rin", "Note on Rin"}},
    {"Shift+F11", C::STA70,     host::KeyAction::click,      host::noControl, {"Ocultar el próximo paso", "Hide the next step"}},
});

/// Parts that come with the same field on each sheet.
// part, field that brings it
template <class C>
inline constexpr auto emitterGrowth = std::to_array<host::GrowthRow>({
    {C::Line5,  C::Text8},  {C::Line6,  C::Text8},
    {C::Line1,  C::Text15}, {C::Line2,  C::Text15},
    {C::Line7,  C::Text9},  {C::Line8,  C::Text9},  {C::Line18, C::Text9},
    {C::Line9,  C::Text17},
    {C::Line19, C::Text12},
    {C::Line11, C::Text13},
    {C::Line12, C::Text14}, {C::Line13, C::Text14},
    {C::Line10, C::Text16}, {C::Shape4, C::Text16},
    {C::Line17, C::Text2},
    {C::Line12, C::Text18}, {C::Line13, C::Text18}, {C::Line14, C::Text18},
});

/// Values beside the same part on each sheet. The transistor and the bypass capacitor are always there, and pale like a value while
/// what they belong to is.
// value, part
template <class C>
inline constexpr auto emitterValues = std::to_array<host::ValueRow>({
    {C::Shape3,  C::Line5},  {C::Image2,  C::Line2},  {C::Voltaje, C::Line5},
    {C::Text15,  C::Line2},  {C::res,     C::Line2},  {C::VRes,     C::Line2},  {C::sta1,     C::Line2},  {C::Text20, C::Line2},
    {C::Label24, C::Line6},  {C::statu17, C::Line1},  {C::statu25,  C::Line17},
    {C::Text9,   C::Line8},  {C::statu18, C::Line8},  {C::statu35,  C::Line8},  {C::statu33,  C::Line7},  {C::Text13, C::Line11},
    {C::Text17,  C::Line9},  {C::statu19, C::Line9},  {C::ER,       C::Line9},  {C::sta2,     C::Line9},
    {C::Text16,  C::Line10}, {C::statu21, C::Line10},
    {C::Text14,  C::Line12}, {C::statu31, C::Line13}, {C::statu32,  C::Line13},
    {C::Text18,  C::Line15}, {C::statu22, C::Line15}, {C::statu23,  C::Line15},
    {C::Text19,  C::Line16}, {C::statu30, C::Line16}, {C::sta3,     C::Line16},
});

/// What the two sheets of the modes have besides. The emitter resistor ends at ground or, with a negative supply, at its terminal;
/// that stage has no Rb1. Bootstrapping divides both resistors of the base.
// part, field that brings it, belongs while this shows, and while these do not
template <class C>
inline constexpr auto modeGrowth = std::to_array<host::GrowthRow>({
    {C::Line1,  C::Text21}, {C::Line2,  C::Text21},
    {C::Line3,  C::Text21, host::noControl, C::Text21}, {C::Line4, C::Text21, C::Text21},
    {C::Line3,  C::Text15, host::noControl, C::Text21}, {C::Line4, C::Text15, C::Text21},
    {C::Line15, C::Text18, host::noControl, C::Picture7}, {C::Line20, C::Text18, C::Picture7},
    {C::Line16, C::Text19, host::noControl, C::Picture10, C::Picture7},
});
template <class C>
inline constexpr auto modeValues = std::to_array<host::ValueRow>({
    {C::Text21,  C::Line4},  {C::Picture3, C::Line20}, {C::Picture5, C::Line20}, {C::statu62, C::Line13},
    {C::statu61, C::Line20}, {C::statu71, C::Line20},  {C::statu72,  C::Line20},
});
// clang-format on

} // namespace velmor::common_emitter
