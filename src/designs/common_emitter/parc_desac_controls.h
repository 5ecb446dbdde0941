// SPDX-License-Identifier: MIT
// The controls of `ParcDesac` by handle, and its table: the rows of `desaco`, those of the modes, and what is drawn otherwise,
// since its emitter resistor is two. Knows no slot and no formula.
#pragma once

#include <array>

#include "designs/common_emitter/desaco_controls.h"

namespace velmor::parc_desac {

using enum desaco::Control;

// clang-format off
enum OwnControl : host::Handle {
    // this sheet has no pair of clones: their handles are taken
    Picture8 = Image5, Label20 = Image4,
    // parts of the drawing of one circuit or the other
    Shape1 = desaco::controlCount, Shape2, Picture5,
    // results
    statu61, statu62, statu71, statu72,
    // option pictures
    Picture11, Picture10, Picture2, Picture7,
    allControls
};
// clang-format on

/// All of them under one name, for what the family shares.
struct Controls : desaco::Controls {
    using enum OwnControl;
};

inline constexpr sheets::Tools tools{
    .guide = SSCommand1, .calculator = Image3, .report = SSCommand3, .help = {Image35, Image34}};

namespace controls_detail {

using namespace common_emitter;                  // NOLINT(google-build-using-namespace): the rows of the family
using namespace common_emitter::controls_detail; // NOLINT(google-build-using-namespace): and the words of its tables

inline constexpr auto title =
    sheets::titleBlock({"Emisor común parcialmente desacoplado", "Partly bypassed common emitter"});

// clang-format off
// The emitter branch: what is left without bypass above the node, the rest beside the capacitor below it. Polarised by emitter, the
// whole resistor lies below the node.
inline constexpr auto emitterLead = part({wire(620, 370, 620, 390)});
inline constexpr auto unbypassedResistor = part({
    Mark{.symbol = Symbol::resistor, .from = {620, 390}, .to = {620, 440}, .field = Text15},
    wire(620, 440, 620, 450), node(620, 450), wire(620, 450, 620, 460),
});
inline constexpr auto bypassedResistor = part({
    Mark{.symbol = Symbol::resistor, .from = {620, 460}, .to = {620, 510}},
    wire(620, 510, 620, 520),
});
inline constexpr auto wholeResistor = part({
    wire(620, 390, 620, 460), node(620, 450),
    Mark{.symbol = Symbol::resistor, .from = {620, 460}, .to = {620, 510}, .field = Text15},
    wire(620, 510, 620, 520),
});
inline constexpr auto bypassCapacitor = part({
    wire(620, 450, 800, 450),
    wire(800, 450, 800, 460),
    Mark{.symbol = Symbol::capacitor, .from = {800, 460}, .to = {800, 510}},
    wire(800, 510, 800, 520),
    ground(800, 520),
});
inline constexpr auto bootstrapWires = drawing::bootstrapWiresTo(380);
inline constexpr auto emitterVoltage = part({
    Mark{.symbol = Symbol::arrow, .from = {600, 510}, .to = {600, 390}, .field = Text4},
});

inline constexpr auto differentRows = std::to_array<ControlRow>({
    paper(Image1, "Image1", title),
    hidden(drawn(Line1,  "Line1",  Kind::line,  emitterLead)),
    hidden(drawn(Line2,  "Line2",  Kind::line,  unbypassedResistor)),
    hidden(drawn(Line18, "Line18", Kind::line,  emitterVoltage)),
    hidden(drawn(Image2, "image2", Kind::image, bypassCapacitor)),
    field(Text1, "Text1", zones::parameter(circuitTop, 0), "5", notation::dQIc),
    disabled(field(Text3, "Text3", zones::parameter(circuitTop, 1), "80", notation::T)),
    disabled(field(Text9, "Text9", at(918, 459, 60, 22), "8", notation::above(notation::RLw))),
    disabled(field(Text11, "Text11", zones::parameter(circuitTop, 6), "10", notation::Vg)),
    disabled(field(Text13, "Text13", at(910, 238, 66, 22), "3", notation::above(notation::Eopp))),
    disabled(field(Text2, "Text2", zones::parameter(transistorTop, 0), "200", notation::Beta)),
    disabled(field(Text5, "Text5", zones::parameter(transistorTop, 1), "50", notation::EcMax)),
    hidden(disabled(field(Text15, "Text15", at(640, 412, 122, 22), "", notation::above(notation::Res)))),
    marked(result(VRes, "VRes", at(667, 462, 100, 18)), emitterVoltageName),
    hidden(result(res, "res", at(640, 484, 146, 36))),
    hidden(result(sta1, "sta1", at(818, 466, 72, 36))),
    hidden(option(Picture6, "Picture6", Kind::picture, zones::option(4), {"Desacoplar todo el emisor", "Bypass the whole emitter"},
                  bypassMarks)),
    inForce(Picture1, "Picture1", 5, {"Desacoplado: vuelve al comienzo", "Bypassed: back to the beginning"}, bypassMarks),
    choice(Picture8, "Picture8", 0, {"Abrir otro circuito igual, vacío", "Open another blank circuit of this kind"}, partialMarks),
});
// Those of the modes that are drawn alike on Form2, and the options at their places here.
inline constexpr auto ownRows = std::to_array<ControlRow>({
    hidden(drawn(Shape1, "Shape1", Kind::shape, bypassedResistor)),
    hidden(drawn(Shape2, "Shape2", Kind::shape, wholeResistor)),
    hidden(drawn(Line20, "Line20", Kind::line,  bootstrapWires)),
    hidden(choice(Picture11, "Picture11", 1, {"Polarizar por emisor", "Polarize by emitter"}, emitterSupplyMarks)),
    inForce(Picture10, "Picture10", 1,
       {"Polarizado por emisor: volver a polarizar por base", "Polarized by emitter: polarize by base again"}, emitterSupplyMarks),
    hidden(choice(Picture2, "Picture2", 2, {"Aplicar bootstrapping", "Apply bootstrapping"}, bootstrapMarks)),
    inForce(Picture7, "Picture7", 3, {"Con bootstrapping: quitarlo", "With bootstrapping: take it away"}, bootstrapMarks),
});

} // namespace controls_detail

inline constexpr auto controls = sheets::withControlsOf<allControls>(
    desaco::controls, common_emitter::controls_detail::modeRows<Controls>, controls_detail::differentRows, controls_detail::ownRows);
static_assert(host::rowsInOrder(controls));

// part, field that brings it, belongs while this shows, and while these do not
inline constexpr auto emitterGrowth = sheets::withRowsOf(common_emitter::emitterGrowth<Controls>, std::to_array<host::GrowthRow>({
    {Line2, Text15, host::noControl, Text21},
}));
inline constexpr auto growth = sheets::joined(emitterGrowth, std::to_array<host::GrowthRow>({
    {Shape1, Text15, host::noControl, Text21}, {Shape2, Text15, Text21},
    {Line3,  Text15, host::noControl, Text21}, {Line4, Text15, Text21},
    {Line15, Text18, host::noControl, Picture7}, {Line20, Text18, Picture7},
    {Line16, Text19, host::noControl, Picture10, Picture7},
}));
// What stands beside the emitter branch belongs to its lead, which both circuits have.
inline constexpr auto values = sheets::withRowsOf(
    sheets::joined(common_emitter::emitterValues<Controls>, common_emitter::modeValues<Controls>), std::to_array<host::ValueRow>({
    {Image2, Line1}, {Text15, Line1}, {res, Line1}, {VRes, Line1}, {sta1, Line1}, {Text20, Line1},
}));
// clang-format on

} // namespace velmor::parc_desac
