// SPDX-License-Identifier: MIT
// The controls of `Form15`: their handles, and their table of names, kinds, stored texts, places and strokes. It stands in a header
// because the table of the Darlington sheet begins with it. Knows no slot and no formula.
#pragma once

#include <array>

#include "designs/power/class_a_drawing.h"
#include "designs/power/parameters.h"
#include "host/window.h"
#include "sheets/notation.h"
#include "sheets/rows.h"
#include "sheets/schematic.h"
#include "sheets/small_symbols.h"
#include "sheets/tools.h"

namespace velmor::form15 {

// clang-format off
enum Control : host::Handle {
    // ground of the drawing, headings of the two groups of fields, frame of the title
    Picture1, Label7, Label6, Shape1,
    // parts of the drawing, in the order in which the chain brings them
    Line1, Line2, Line3, Line4, Line5, Line6, Line7, Shape2, Line8, Line9, Line10, Line11, Line12,
    // names and results beside their parts
    Label1, Label2, Label3, Label4, Label5, Label8, Label9, Label10, Label11, Label12, Label13, Label14, Label17, Label18, Label19,
    Label20, Label21, Label22, Label23, Label29, Q1,
    // fields
    Text1, Text2, Text3, Text4, Text5, Text6, Text7, Text8, Text9, Text10, Text11, Text12,
    // kinds of load
    Image1, Image2,
    // tools
    SSCommand1, SSCommand3, SSCommand5, Image3, Image4, Image35, Image34,
    // note on the field under the pointer, heading of the fields in hand, criterion, formulas
    status1, Label28, Label15, Label16,
    // help pages, Spanish and English
    Text22, Text23,
    controlCount
};

inline constexpr sheets::Tools tools{.guide = SSCommand1, .calculator = SSCommand3, .report = SSCommand5,
                                     .clone = {Image3, Image4}, .help = {Image35, Image34}};

namespace controls_detail {

using namespace sheets; // NOLINT(google-build-using-namespace): the words of the table
using host::ControlRow;
using host::Kind;
using host::Look;
using host::Mark;
using host::Symbol;
namespace drawing = class_a::drawing;

inline constexpr auto title = titleBlock({"Clase A simple", "Class A, simple"});
inline constexpr auto titleFrame = part({Mark{.symbol = Symbol::frame, .from = {938, 588}, .to = {1010, 608}, .ink = host::Ink::quiet}});

// Top edges of the two groups of parameters.
inline constexpr int circuitTop = 94;
inline constexpr int transistorTop = 238;

constexpr ControlRow part(host::Handle id, std::string_view name, const auto& strokes)
{
    return hidden(drawn(id, name, name.starts_with("Line") ? Kind::line : Kind::shape, strokes));
}
/// A text that takes place in the model only: the drawing says the same in its own letters, or nothing needs it.
constexpr ControlRow unseen(host::Handle id, std::string_view name, std::string_view text)
{
    return label(id, name, at(940, 560, 60, 18), Look::invisible, text);
}
constexpr ControlRow drawnWith(ControlRow row, std::span<const Mark> drawing)
{
    row.drawing = drawing;
    return row;
}
inline constexpr Mark voltageLimitName[] = {{.symbol = Symbol::label, .from = {-8, 11}, .name = "E_c(max)", .side = host::Side::left}};
/// Written below the picture of a kind of load.
constexpr Mark nameOfLoad(host::BiText name)
{
    return {.symbol = Symbol::text, .from = {42, 38}, .note = name, .side = host::Side::below, .size = 90};
}
/// A field beside its part, on the drawing.
constexpr ControlRow onDrawing(host::Handle id, std::string_view name, int left, int top, const Quantity& quantity)
{
    return disabled(field(id, name, at(left, top, 84, 22), "", notation::above(quantity)));
}

// The kinds of load. Which one is in force is seen once the question is answered.
inline constexpr auto resistorFace = joined(
    std::array{wire(16, 20, 36, 20), wire(48, 20, 68, 20), nameOfLoad({"Resistencia", "Resistor"})},
    small_symbols::Resistor<42, 20, false>::marks);
inline constexpr auto loudspeakerFace = joined(
    std::array{wire(22, 20, 36, 20), nameOfLoad({"Parlante", "Speaker"})}, small_symbols::Loudspeaker<36, 20>::marks);
constexpr ControlRow kindOfLoad(ControlRow row, host::Handle unless)
{
    return hidden(chosen(row, host::Chosen::whenShown, unless));
}

} // namespace controls_detail

inline constexpr auto controls = [] {
    using namespace controls_detail; // NOLINT(google-build-using-namespace)
    return std::to_array<host::ControlRow>({
        {.id = Picture1, .name = "Picture1", .kind = Kind::picture, .place = zones::paper,
         .meaning = {"Dibujo del circuito", "Drawing of the circuit"}, .look = Look::paper, .drawing = title},
        label(Label7, "Label7", zones::group(circuitTop, 4), Look::group),
        label(Label6, "Label6", zones::group(transistorTop, 4), Look::group),
        drawn(Shape1, "Shape1", Kind::shape, titleFrame),
        part(Line1,  "Line1",  drawing::load<Control, Symbol::resistor, 800, 400>),
        part(Line2,  "Line2",  drawing::load<Control, Symbol::loudspeaker, 800, 400>),
        part(Line3,  "Line3",  drawing::outputTransistor<Control>),
        part(Line4,  "Line4",  drawing::driver<Control>),
        part(Line5,  "Line5",  drawing::outputBranch<Control>),
        part(Line6,  "Line6",  drawing::supply<Control>),
        part(Line7,  "Line7",  drawing::collectorResistor<Control>),
        part(Shape2, "Shape2", drawing::driverCurrent<Control>),
        part(Line8,  "Line8",  drawing::preset<Control>),
        part(Line9,  "Line9",  drawing::fixedResistor<Control>),
        part(Line10, "Line10", drawing::baseCapacitor),
        part(Line11, "Line11", drawing::baseResistor<Control>),
        part(Line12, "Line12", drawing::input<Control>),

        hidden(result(Label1, "Label1", at(854, 262, 130, 18), "EQ")),
        result(Label2,  "Label2",  at(270, 308, 152, 18)),
        drawnWith(label(Label3, "Label3", power::parameter(transistorTop, 1), Look::result, "30 V"), voltageLimitName),
        unseen(Label4,  "Label4",  "Po"),
        result(Label5,  "Label5",  at(290, 216, 130, 18)),
        hidden(result(Label8, "Label8", at(670, 286, 80, 34))),
        unseen(Label9,  "Label9",  "RL"),
        result(Label10, "Label10", at(486, 158, 108, 18)),
        unseen(Label11, "Label11", "Es"),
        label(Label12,  "Label12", at(16, 262, 204, 22), Look::result, "Ic(máx) = 1 A"),
        result(Label13, "Label13", at(446, 384, 140, 18)),
        label(Label14,  "Label14", at(816, 484, 180, 18), Look::note),
        result(Label17, "Label17", at(650, 432, 120, 18)),
        hidden(label(Label18, "Label18", at(8, 382, 220, 62), Look::hint)),
        result(Label19, "Label19", at(646, 246, 112, 18)),
        hidden(result(Label20, "Label20", at(302, 470, 120, 34))),
        hidden(result(Label21, "Label21", at(680, 386, 112, 18))),
        unseen(Label22, "Label22", "Q1"),
        unseen(Label23, "Label23", "Q2"),
        hidden(label(Label29, "Label29", at(816, 504, 180, 18), Look::note)),
        result(Q1,      "Q1",      at(680, 362, 112, 18)),

        field(Text1, "Text1", power::parameter(circuitTop, 0), "0.78", notation::Po),
        field(Text2, "Text2", power::parameter(circuitTop, 1), "16", notation::in(notation::RLw, "Ω")),
        disabled(field(Text3, "Text3", power::parameter(circuitTop, 2), "", notation::in(notation::QIc2, "A"))),
        onDrawing(Text4, "Text4", 904, 119, notation::Es),
        onDrawing(Text5, "Text5", 638, 180, notation::in(notation::RL, "Ω")),
        onDrawing(Text6, "Text6", 464, 226, notation::in(notation::Rb1b, "Ω")),
        onDrawing(Text7, "Text7", 446, 312, notation::in(notation::Rb1a, "Ω")),
        onDrawing(Text8, "Text8", 448, 470, notation::in(notation::Rb2, "Ω")),
        onDrawing(Text9, "Text9", 302, 398, notation::in(notation::Rs, "Ω")),
        hidden(field(Text10, "Text10", power::parameter(transistorTop, 2), "100", notation::Beta2)),
        hidden(field(Text11, "Text11", power::parameter(transistorTop, 3), "100", notation::Beta1)),
        hidden({.id = Text12, .name = "Text12", .kind = Kind::field, .place = at(16, circuitTop + 108, 204, 22),
                .text = "Click en Resistencia ó Parlante", .meaning = {"Elija resistencia ó parlante", "Choose resistor or loudspeaker"}}),

        kindOfLoad(option(Image1, "Image1", Kind::image, zones::option(0), {"Carga: resistencia", "Load: resistor"}, resistorFace),
                   Image2),
        kindOfLoad(option(Image2, "image2", Kind::image, zones::option(1), {"Carga: parlante", "Load: loudspeaker"}, loudspeakerFace),
                   Text12),

        guideTool(SSCommand1, "SSCommand1", Kind::button),
        calculatorTool(SSCommand3, "SSCommand3", Kind::button),
        reportTool(SSCommand5, "sscommand5", Kind::button),
        cloneTool(Image3, "Image3"),
        cloneToolAgain(Image4, "Image4"),
        helpTool(Image35, "Image35"),
        helpToolOpen(Image34, "Image34"),

        hidden(label(status1, "status1", at(8, 452, 220, 60), Look::hint)),
        label(Label28, "Label28", zones::nextStep, Look::hint),
        {.id = Label15, .name = "Label15", .kind = Kind::label, .place = zones::voice, .look = Look::prompt, .overlay = true},
        label(Label16, "Label16", at(zones::right, 352, 172, 260), Look::lesson),
        {.id = Text22, .name = "Text22", .kind = Kind::page, .place = at(240, 98, 249, 510), .visible = false,
         .meaning = {"Ayuda en español", "Help in Spanish"}, .overlay = true},
        {.id = Text23, .name = "Text23", .kind = Kind::page, .place = at(240, 98, 249, 510), .visible = false,
         .meaning = {"Ayuda en inglés", "Help in English"}, .overlay = true},
    });
}();
// clang-format on
static_assert(host::rowsInOrder(controls));
static_assert(controls.size() == controlCount);

} // namespace velmor::form15
