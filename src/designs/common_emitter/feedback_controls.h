// SPDX-License-Identifier: MIT
// What the two sheets fed back by voltage have in common: the handles of their controls, with which each sheet's own begin, the
// tools among them, and the first rows of their tables. Knows no slot and no formula.
//
// Columns of the drawing: generator 280, base 430, decoupling 540, transistor 590 and 620, load 900.
// Rows: supply 130, feedback 240, collector 280, base 340, ground 520.
#pragma once

#include <array>

#include "designs/common_emitter/emitter_drawing.h"
#include "host/window.h"
#include "sheets/notation.h"
#include "sheets/rows.h"
#include "sheets/schematic.h"
#include "sheets/tools.h"

namespace velmor::feedback {

// clang-format off
enum Control : host::Handle {
    // ground of the drawing and headings of the two groups of fields
    Image1, Label11, Label6,
    // parts of the drawing, as the chain reaches them
    Line4, Line5, Line6, Line7, Line8, Line9, Line10, Line11, Line12, Line13, Line14, Line15, Line16, Line17, Line18,
    Shape1, Shape5, Picture4,
    // fields; `Text1`, `Text3` and `Text4` are not in use on these sheets and stay for their files
    Text1, Text2, Text3, Text4, Text5, Text6, Text7, Text8, Text9, Text10, Text11, Text12, Text13, Text14, Text15, Text16,
    Text17, Text19,
    // results beside the drawing
    Voltaje, Label2, Label10, Label19, Label21, Label22, Label23, Label24, Label25, Label32, statu18, statu32, statu33, stas,
    // whether the supply is to change
    Frame1, Command1, Command2,
    // bootstrapping, and the text editor
    Image8, Image2, Image6,
    // tools
    Image5, Image7, Image3, Image4, Image35, Image34,
    // help pages, Spanish and English
    Text22, Text23,
    // the teacher's voice
    Label33,
    controlCount
};

inline constexpr sheets::Tools tools{.calculator = Image5, .report = Image7, .clone = {Image3, Image4}, .help = {Image35, Image34}};

namespace drawing {

using namespace common_emitter::drawing; // NOLINT(google-build-using-namespace): the parts of the family
using host::Mark;
using host::Side;
using host::Symbol;

inline constexpr auto emitterToGround = sheets::part({wire(620, 370, 620, 520), ground(620, 520)});
inline constexpr auto generator = sheets::part({
    Mark{.symbol = Symbol::generator, .from = {280, 420}, .to = {280, 470}, .field = Text14},
    wire(280, 470, 280, 520),
    ground(280, 520),
});
inline constexpr auto generatorResistance = sheets::part({
    wire(280, 340, 280, 350),
    Mark{.symbol = Symbol::resistor, .from = {280, 350}, .to = {280, 410}, .field = Text15},
    wire(280, 410, 280, 420),
});
// From collector to base; with bootstrapping in halves, their middle held at ground for the signal.
inline constexpr auto feedbackPreset = sheets::part({
    node(620, 240),
    wire(620, 240, 560, 240),
    Mark{.symbol = Symbol::preset, .from = {560, 240}, .to = {480, 240}, .field = Text19},
    wire(480, 240, 430, 240),
    wire(430, 240, 430, 340),
});
inline constexpr auto feedbackHalves = sheets::part({
    node(620, 240),
    wire(620, 240, 610, 240),
    Mark{.symbol = Symbol::resistor, .from = {610, 240}, .to = {560, 240}, .name = "R_b1/2", .side = Side::below},
    wire(560, 240, 520, 240),
    node(540, 240),
    Mark{.symbol = Symbol::resistor, .from = {520, 240}, .to = {460, 240}, .name = "R_b1/2", .side = Side::below},
    wire(460, 240, 430, 240),
    wire(430, 240, 430, 340),
});
inline constexpr auto decoupling = sheets::part({
    wire(540, 240, 540, 270),
    Mark{.symbol = Symbol::capacitor, .from = {540, 270}, .to = {540, 310}, .name = "C_dp", .side = Side::left},
    wire(540, 310, 540, 520),
    ground(540, 520),
});

// Faces of the option pictures.
inline constexpr Mark bootstrapMarks[] = {
    wire(8, 16, 18, 16),
    {.symbol = Symbol::frame, .from = {18, 11}, .to = {36, 21}},
    wire(36, 16, 48, 16), node(42, 16),
    {.symbol = Symbol::frame, .from = {48, 11}, .to = {66, 21}},
    wire(66, 16, 76, 16), wire(42, 16, 42, 27), wire(34, 27, 50, 27), wire(34, 32, 50, 32), wire(42, 32, 42, 40),
    {.symbol = Symbol::text, .from = {42, 42}, .name = "Bootstrapping", .side = Side::below, .size = 80},
};
inline constexpr Mark noBootstrapMarks[] = {
    wire(8, 22, 24, 22),
    {.symbol = Symbol::frame, .from = {24, 16}, .to = {60, 28}},
    wire(60, 22, 76, 22),
    {.symbol = Symbol::text, .from = {42, 42}, .note = {"Sin Cdp", "Without Cdp"}, .side = Side::below, .size = 80},
};
inline constexpr Mark editorMarks[] = {
    {.symbol = Symbol::page, .from = {27, 6}, .to = {57, 36}},
    {.symbol = Symbol::text, .from = {42, 41}, .note = {"Editor", "Editor"}, .side = Side::below, .size = 90},
};

} // namespace drawing

namespace controls_detail {

using namespace sheets; // NOLINT(google-build-using-namespace): the words of the table
using host::ControlRow;
using host::Kind;
using host::Look;

// Top edges of the two groups of parameters.
inline constexpr int circuitTop = 94;
inline constexpr int transistorTop = 236;

/// A field that the course no longer uses here.
constexpr ControlRow unused(host::Handle id, std::string_view name, int left, const Quantity& quantity)
{
    ControlRow row = disabled(field(id, name, at(left, 590, 40, 22), "S/uso", notation::above(quantity)));
    row.look = Look::invisible;
    return row;
}
/// A name that the notation beside the field says better; it stands in files and reports.
constexpr ControlRow named(host::Handle id, std::string_view name, const host::Place& place, std::string_view text)
{
    return label(id, name, place, Look::invisible, text);
}
constexpr ControlRow page(host::Handle id, std::string_view name, host::BiText meaning)
{
    return {.id = id, .name = name, .kind = Kind::page, .place = at(736, 94, 278, 430), .visible = false, .meaning = meaning,
            .overlay = true};
}
/// One of the two answers to the question about the supply.
constexpr ControlRow answer(host::Handle id, std::string_view name, int left, host::BiText meaning)
{
    return {.id = id, .name = name, .kind = Kind::button, .place = at(left, 172, 76, 30), .visible = false, .meaning = meaning};
}

} // namespace controls_detail

/// Rows that both sheets have, in the order of their handles.
inline constexpr auto controls = [] {
    using namespace controls_detail; // NOLINT(google-build-using-namespace)
    return std::to_array<ControlRow>({
        {.id = Image1, .name = "Image1", .kind = Kind::image, .place = zones::paper, .look = Look::paper},
        label(Label11, "Label11", zones::group(circuitTop, 4), Look::group),
        label(Label6, "Label6", zones::group(transistorTop, 4), Look::group),
        hidden(drawn(Line4,  "Line4",  Kind::line, drawing::emitterToGround)),
        hidden(drawn(Line5,  "Line5",  Kind::line, drawing::collectorLead)),
        hidden(drawn(Line6,  "Line6",  Kind::line, drawing::collectorCurrent<Control>)),
        hidden(drawn(Line7,  "Line7",  Kind::line, drawing::outputCapacitor)),
        hidden(drawn(Line8,  "Line8",  Kind::line, drawing::load<Control>)),
        hidden(drawn(Line9,  "Line9",  Kind::line, drawing::collectorResistor<Control>)),
        hidden(drawn(Line10, "Line10", Kind::line, drawing::supplyRail)),
        hidden(drawn(Line11, "Line11", Kind::line, drawing::outputSignal<Control>)),
        hidden(drawn(Line12, "Line12", Kind::line, drawing::generator)),
        hidden(drawn(Line13, "Line13", Kind::line, drawing::inputCapacitor)),
        hidden(drawn(Line14, "Line14", Kind::line, drawing::baseLead)),
        hidden(drawn(Line15, "Line15", Kind::line, drawing::generatorResistance)),
        hidden(drawn(Line16, "Line16", Kind::line, drawing::feedbackHalves)),
        hidden(drawn(Line17, "Line17", Kind::line, drawing::collectorEmitterVoltage<Control>)),
        hidden(drawn(Line18, "Line18", Kind::line, drawing::loadVoltage<Control>)),
        disabled(drawn(Shape1, "Shape1", Kind::shape, drawing::transistor<Control>)),
        disabled(hidden(drawn(Shape5, "Shape5", Kind::shape, drawing::supplyTerminal<Control>))),
        [] {
            ControlRow row = disabled(hidden(drawn(Picture4, "Picture4", Kind::picture, drawing::decoupling)));
            row.meaning = {"Capacitor de desacople Cdp", "Decoupling capacitor Cdp"};
            return row;
        }(),
        unused(Text1, "Text1", 1022, notation::dQIc),
        field(Text2, "Text2", zones::parameter(transistorTop, 0), "100", notation::Beta),
        unused(Text3, "Text3", 1066, notation::T),
        unused(Text4, "Text4", 1110, notation::dVbe),
        field(Text5, "Text5", zones::parameter(transistorTop, 1), "20", notation::EcMax),
        field(Text6, "Text6", zones::parameter(transistorTop, 2), "100", notation::IcMax),
        field(Text7, "Text7", zones::parameter(transistorTop, 3), ".6", notation::Vj),
        disabled(field(Text8, "Text8", zones::parameter(circuitTop, 0), "1", notation::QIc)),
        disabled(field(Text9, "Text9", at(918, 459, 60, 22), "4", notation::above(notation::RLw))),
        field(Text10, "Text10", zones::parameter(circuitTop, 1), "s/uso", notation::S),
        field(Text11, "Text11", zones::parameter(circuitTop, 2), "100", notation::Vg),
        field(Text12, "Text12", zones::parameter(circuitTop, 3), "20", notation::fo),
        field(Text13, "Text13", at(910, 238, 66, 22), "2.5", notation::above(notation::Eopp)),
        field(Text14, "Text14", at(300, 434, 74, 22), ".00883", notation::above(notation::Ein)),
        hidden(disabled(field(Text15, "Text15", at(300, 378, 74, 22), "", notation::above(notation::Rg)))),
        disabled(field(Text16, "Text16", at(706, 119, 122, 22), "       Es", notation::above(notation::Es))),
        disabled(field(Text17, "Text17", at(640, 162, 130, 22), "", notation::above(notation::RL))),
        disabled(field(Text19, "Text19", at(446, 194, 112, 22), "", notation::above(notation::Rb1))),
        named(Voltaje, "Voltaje", at(1154, 590, 40, 22), "S/uso"),
        named(Label2, "Label2", at(98, 206, 60, 18), "fo (Hz)"),
        named(Label10, "Label10", at(640, 144, 100, 18), "RL (Kohms)"),
        named(Label19, "Label19", at(446, 176, 100, 18), "Rb1 (Kohm)"),
        hidden(result(Label21, "Label21", at(244, 262, 150, 18))),
        hidden(result(Label22, "Label22", at(640, 188, 206, 18))),
        result(Label23, "Label23", at(672, 334, 160, 18)),
        result(Label24, "Label24", at(918, 484, 94, 34)),
        hidden(label(Label25, "Label25", at(292, 400, 190, 16), Look::note)),
        result(Label32, "Label32", at(672, 370, 140, 18)),
        hidden(result(statu18, "statu18", at(720, 212, 186, 18))),
        result(statu32, "statu32", at(306, 284, 118, 18)),
        hidden(result(statu33, "statu33", at(712, 296, 140, 18))),
        hidden(result(stas, "stas", at(556, 281, 62, 18))),
        {.id = Frame1, .name = "Frame1", .kind = Kind::panel, .place = at(850, 126, 158, 40), .visible = false,
         .look = Look::hint},
        answer(Command1, "Command1", 850, {"Cambiar la fuente", "Change the supply"}),
        answer(Command2, "Command2", 932, {"Continuar con esta fuente", "Go on with this supply"}),
        hidden(option(Image8, "Image8", Kind::image, zones::option(2), {"Hacer bootstrapping", "Make bootstrapping"},
                      drawing::bootstrapMarks)),
        hidden(option(Image2, "image2", Kind::image, zones::option(3), {"Quitar el bootstrapping", "Take bootstrapping away"},
                      drawing::noBootstrapMarks)),
        option(Image6, "Image6", Kind::image, zones::option(0),
               {"Abrir un editor de textos con el informe", "Open a text editor with the report"}, drawing::editorMarks),
        calculatorTool(Image5, "Image5"),
        reportTool(Image7, "Image7"),
        cloneTool(Image3, "Image3"),
        cloneToolAgain(Image4, "Image4"),
        helpTool(Image35, "Image35"),
        helpToolOpen(Image34, "Image34"),
        page(Text22, "Text22", {"Ayuda en español", "Help in Spanish"}),
        page(Text23, "Text23", {"Ayuda en inglés", "Help in English"}),
        {.id = Label33, .name = "Label33", .kind = Kind::label, .place = zones::voice, .look = Look::prompt, .overlay = true},
    });
}();
static_assert(host::rowsInOrder(controls));
static_assert(controls.size() == controlCount);

// part, field that brings it, belongs while this shows, and while this does not
inline constexpr auto growth = std::to_array<host::GrowthRow>({
    {Line4,  Text8},  {Line5,  Text8},  {Line6,  Text8},
    {Line7,  Text9},  {Line8,  Text9},
    {Line11, Text13},
    {Line12, Text14}, {Line13, Text14}, {Line14, Text14},
    {Line17, Text2},
    {Line9,  Text17}, {Line18, Text17},
    {Line10, Text16}, {Shape5, Text16},
    {Line10, Text19}, {Shape5, Text19}, {Line16, Text19, Picture4},
    {Line15, Text15},
});
// value, part
inline constexpr auto values = std::to_array<host::ValueRow>({
    {Shape1,  Line5},  {Label23, Line17}, {Label32, Line4},
    {Text9,   Line8},  {Label24, Line8},  {statu18, Line8},  {statu33, Line7}, {Text13, Line11},
    {Text14,  Line12}, {statu32, Line13}, {Label21, Line13},
    {Text17,  Line9},  {Label10, Line9},  {Label22, Line9},
    {Text16,  Line10},
    {Text15,  Line15}, {Label25, Line15},
    {Picture4, Line16}, {stas,  Line16},
});
// clang-format on

} // namespace velmor::feedback
