// SPDX-License-Identifier: MIT
// The controls of `form20`: the rows of `Form15`, those that differ in the place of their like, and four more. Knows no slot and no
// formula.
#pragma once

#include "designs/power/form15_controls.h"

namespace velmor::form20 {

using namespace form15; // the controls that this sheet begins with

// clang-format off
// Behind those of `Form15`: the line of the buttons, the marks of two more transistors, the second bootstrap capacitor.
enum MoreControls : host::Handle { StatusBar1 = form15::controlCount, Label24, Label25, Line13, controlCount };

// What `Form15` has under another name.
inline constexpr host::Handle SSPanel1 = Label28;
inline constexpr host::Handle Image5 = Image3;

inline constexpr sheets::Tools tools{.guide = SSCommand1, .calculator = SSCommand3, .report = SSCommand5,
                                     .clone = {Image5, Image4}, .help = {Image35, Image34}};

namespace controls_detail {

using namespace form15::controls_detail; // NOLINT(google-build-using-namespace): the words of the table
using host::Side;

inline constexpr auto title = titleBlock({"Clase A Darlington", "Class A Darlington"});
inline constexpr auto titleFrame = sheets::part({
    Mark{.symbol = Symbol::frame, .from = {926, 588}, .to = {1010, 608}, .ink = host::Ink::quiet},
});

// The schematic. Columns: collector resistors 620, Q2 740 and 770, Q3 790 and 820, second bootstrap 990.
inline constexpr auto pair = sheets::part({
    Mark{.symbol = Symbol::npn, .from = {740, 270}, .name = "Q_2", .field = Text11},
    Mark{.symbol = Symbol::label, .from = {786, 298}, .name = "β_2", .value = Text11, .field = Text11},
    wire(770, 300, 770, 340),
    wire(770, 340, 790, 340),
    Mark{.symbol = Symbol::npn, .from = {790, 340}, .name = "Q_3", .field = Text10},
    Mark{.symbol = Symbol::label, .from = {836, 368}, .name = "β_3", .value = Text10, .field = Text10},
});
inline constexpr auto driver = sheets::part({
    Mark{.symbol = Symbol::npn, .from = {590, 370}, .name = "Q_1"},
    wire(620, 400, 620, 540),
    ground(620, 540),
});
inline constexpr auto outputBranch = sheets::part({
    wire(770, 240, 770, 220),
    wire(770, 220, 820, 220),
    node(820, 220),
    wire(820, 130, 820, 310),
    Mark{.symbol = Symbol::arrow, .from = {836, 140}, .to = {836, 174}, .name = "Q_Ic3", .side = Side::right, .value = Text3, .unit = "A",
         .field = Text3},
    wire(820, 370, 820, 410),
    Mark{.symbol = Symbol::arrow, .from = {796, 486}, .to = {796, 414}, .field = Text3},
});
inline constexpr auto supply = sheets::part({
    wire(620, 130, 877, 130),
    node(820, 130),
    Mark{.symbol = Symbol::terminal, .from = {880, 130}, .field = Text4},
    Mark{.symbol = Symbol::arrow, .from = {872, 376}, .to = {872, 228}, .field = Text4},
    Mark{.symbol = Symbol::arrow, .from = {672, 402}, .to = {672, 338}, .field = Text4},
});
inline constexpr auto collectorResistors = sheets::part({
    Mark{.symbol = Symbol::resistor, .from = {620, 130}, .to = {620, 190}, .name = "R_La", .side = Side::right, .field = Text5},
    Mark{.symbol = Symbol::resistor, .from = {620, 200}, .to = {620, 260}, .name = "R_Lb", .side = Side::right, .field = Text5},
    wire(620, 190, 620, 200),
    wire(620, 260, 620, 340),
    node(620, 270),
    wire(620, 270, 740, 270),
    Mark{.symbol = Symbol::arrow, .from = {600, 250}, .to = {600, 140}, .field = Text5},
});
inline constexpr auto secondBootstrap = sheets::part({
    node(820, 390),
    wire(820, 390, 990, 390),
    wire(990, 390, 990, 310),
    Mark{.symbol = Symbol::capacitor, .from = {990, 310}, .to = {990, 270}, .name = "C_bp1", .side = Side::left},
    wire(990, 270, 990, 190),
    wire(620, 190, 990, 190),
    node(620, 190),
});

} // namespace controls_detail

inline constexpr auto controls = [] {
    using namespace controls_detail; // NOLINT(google-build-using-namespace)
    return sheets::joined(
        withRowsOf(form15::controls, std::to_array<ControlRow>({
            drawnWith(form15::controls[Picture1], controls_detail::title),
            drawn(Shape1, "Shape1", Kind::shape, controls_detail::titleFrame),
            part(Line1, "Line1", drawing::load<Control, Symbol::resistor, 820, 410>),
            part(Line2, "Line2", drawing::load<Control, Symbol::loudspeaker, 820, 410>),
            part(Line3, "Line3", pair),
            part(Line4, "Line4", controls_detail::driver),
            part(Line5, "Line5", controls_detail::outputBranch),
            part(Line6, "Line6", controls_detail::supply),
            part(Line7, "Line7", collectorResistors),
            hidden(result(Label1, "Label1", at(880, 320, 104, 18), "EQ3")),
            hidden(result(Label8, "Label8", at(670, 288, 52, 34))),
            result(Label9,  "Label9",  at(470, 132, 122, 18), "RL"),
            result(Label10, "Label10", at(506, 196, 90, 18)),
            label(Label14,  "Label14", at(836, 494, 170, 18), Look::note),
            result(Label17, "Label17", at(670, 442, 120, 18)),
            result(Label19, "Label19", at(640, 246, 98, 18)),
            result(Label22, "Label22", at(660, 142, 130, 36)),
            unseen(Label23, "Label23", "Q1"),
            hidden(label(Label29, "Label29", at(836, 514, 170, 18), Look::note)),
            disabled(field(Text3, "Text3", power::parameter(circuitTop, 2), "", notation::in(notation::QIc3, "A"))),
            onDrawing(Text5, "Text5", 490, 168, notation::in(notation::RL, "Ω")),
            hidden(field(Text10, "Text10", power::parameter(transistorTop, 2), "50", notation::Beta3)),
            hidden(field(Text11, "Text11", power::parameter(transistorTop, 3), "100", notation::Beta2)),
            cloneTool(Image5, "Image5"),
            {.id = SSPanel1, .name = "SSPanel1", .kind = Kind::panel, .place = zones::nextStep, .look = Look::hint},
        })),
        std::to_array<ControlRow>({
            label(StatusBar1, "StatusBar1", at(8, 578, 220, 34), Look::note),
            unseen(Label24, "Label24", "Q2"),
            unseen(Label25, "Label25", "Q4"),
            part(Line13, "Line13", secondBootstrap),
        }));
}();
// clang-format on
static_assert(host::rowsInOrder(controls));
static_assert(controls.size() == controlCount);

} // namespace velmor::form20
