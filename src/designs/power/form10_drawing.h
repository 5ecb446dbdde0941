// SPDX-License-Identifier: MIT
// The handles of `Form10` and the parts of its schematic, counted from the corner of the sheet on a grid of 10. Knows no slot and no
// formula.
//
// Columns: generator 280, feedback 420, driver 590, its load 620, bootstrap 730, output pair 840, loudspeaker 960.
// Rows: supply 120, upper base 290, output 380, lower base 470, driver's base 500, ground 560.
#pragma once

#include "sheets/schematic.h"

namespace velmor::form10 {

// clang-format off
enum Control : host::Handle {
    // ground of the drawing and headings of the two groups of fields
    Image1, Label31, Label32,
    // parts of the drawing
    Shape2, Line1, Line2, Line3, Line4, Line5, Line6, Line7, Line8, Line9, Line10, Shape1,
    // fields in chain order, then the result
    Text1, Text2, Text10, Text5, Text6, Text7, Text8, Text3, Text4, Text9, Text11, Text12, Text13,
    // results beside their parts
    Label2, Label3, Label4, Label5, Label6, Label8, Label9, Label10, Label11, Label12, Label13, Label14, Label15,
    // formula of the field under the pointer, and what the manual must tell
    Label7, Label28,
    // tools
    SSCommand1, SSCommand3, Image5, Image3, Image4, Image35, Image34,
    // help pages, the teacher's voice
    Text22, Text23, Label1,
    // the panel of the calculations, which another class B sheet has not
    SSPanel2, Command1,
    controlCount
};

namespace drawing {

using host::Mark;
using host::Side;
using host::Symbol;
using sheets::ground;
using sheets::node;
using sheets::part;
using sheets::wire;

inline constexpr auto title = sheets::titleBlock({"Amplificador clase B, simetría complementaria",
                                                  "Class B amplifier, complementary symmetry"});

inline constexpr auto outputPair = part({
    Mark{.symbol = Symbol::npn, .from = {810, 290}, .name = "Q_2", .side = Side::right, .field = Text12},
    Mark{.symbol = Symbol::pnp, .from = {810, 470}, .name = "Q_3", .side = Side::right, .field = Text12},
    wire(840, 500, 840, 560), ground(840, 560),
});
inline constexpr auto supply = part({
    wire(620, 120, 897, 120), node(840, 120), wire(840, 120, 840, 260),
    Mark{.symbol = Symbol::terminal, .from = {900, 120}, .name = "E_s", .side = Side::right, .value = Text10, .unit = "V", .field = Text10},
});
inline constexpr auto output = part({
    node(840, 380), wire(840, 380, 880, 380),
    Mark{.symbol = Symbol::polarised, .from = {880, 380}, .to = {920, 380}, .name = "C_oo", .side = Side::below},
    wire(920, 380, 960, 380), wire(960, 380, 960, 430),
    Mark{.symbol = Symbol::loudspeaker, .from = {960, 430}, .to = {960, 490}, .name = "R_Lw", .side = Side::left, .value = Text2,
         .unit = "Ω", .field = Text2},
    wire(960, 490, 960, 560), ground(960, 560),
});
inline constexpr auto driver = part({
    node(620, 290), wire(620, 290, 810, 290), wire(620, 290, 620, 300),
    Mark{.symbol = Symbol::resistor, .from = {620, 300}, .to = {620, 360}, .name = "R_d", .side = Side::left},
    wire(620, 360, 620, 390),
    Mark{.symbol = Symbol::diode, .from = {620, 390}, .to = {620, 430}, .name = "E_d", .side = Side::left},
    wire(620, 430, 620, 470), node(620, 470), wire(590, 470, 810, 470),
    Mark{.symbol = Symbol::npn, .from = {560, 500}, .name = "Q_1", .side = Side::right, .field = Text5},
    wire(590, 530, 590, 560), ground(590, 560),
    Mark{.symbol = Symbol::arrow, .from = {644, 218}, .to = {644, 262}, .name = "I_bias", .side = Side::right, .value = Text5,
         .unit = "mA", .field = Text5},
});
inline constexpr auto feedback = part({
    wire(840, 380, 580, 380),
    Mark{.symbol = Symbol::resistor, .from = {520, 380}, .to = {580, 380}, .name = "R_b1a", .side = Side::above, .value = Text6,
         .unit = "kΩ", .field = Text6},
});
inline constexpr auto preset = part({
    wire(500, 380, 520, 380), node(510, 380),
    Mark{.symbol = Symbol::preset, .from = {440, 380}, .to = {500, 380}, .name = "R_b1b", .side = Side::above, .value = Text7,
         .unit = "kΩ", .field = Text7},
    wire(420, 380, 440, 380), wire(420, 380, 420, 500), wire(420, 500, 560, 500),
    wire(510, 380, 510, 410),
    Mark{.symbol = Symbol::capacitor, .from = {510, 410}, .to = {510, 450}, .name = "C_bb", .side = Side::right},
    wire(510, 450, 510, 560), ground(510, 560),
});
inline constexpr auto lowerBase = part({
    node(460, 500),
    Mark{.symbol = Symbol::resistor, .from = {460, 500}, .to = {460, 560}, .name = "R_b2", .side = Side::left, .value = Text8,
         .unit = "kΩ", .field = Text8},
    ground(460, 560),
});
inline constexpr auto lowerLoad = part({
    Mark{.symbol = Symbol::resistor, .from = {620, 210}, .to = {620, 270}, .name = "R_Lb", .side = Side::left, .value = Text3,
         .unit = "kΩ", .field = Text3},
    wire(620, 270, 620, 290),
});
inline constexpr auto upperLoad = part({
    wire(620, 120, 620, 130),
    Mark{.symbol = Symbol::resistor, .from = {620, 130}, .to = {620, 190}, .name = "R_La", .side = Side::left, .value = Text4,
         .unit = "kΩ", .field = Text4},
    wire(620, 190, 620, 210), node(620, 200), wire(620, 200, 730, 200), wire(730, 200, 730, 310),
    Mark{.symbol = Symbol::polarised, .from = {730, 310}, .to = {730, 350}, .name = "C_ba", .side = Side::right},
    wire(730, 350, 730, 380), node(730, 380),
});
inline constexpr auto input = part({
    wire(280, 500, 280, 510),
    Mark{.symbol = Symbol::generator, .from = {280, 510}, .to = {280, 550}, .name = "E_in", .side = Side::right, .field = Text9},
    wire(280, 550, 280, 560), ground(280, 560), wire(280, 500, 290, 500),
    Mark{.symbol = Symbol::resistor, .from = {290, 500}, .to = {350, 500}, .name = "R_s", .side = Side::above, .value = Text9,
         .unit = "kΩ", .field = Text9},
    wire(350, 500, 360, 500),
    Mark{.symbol = Symbol::capacitor, .from = {360, 500}, .to = {400, 500}, .name = "C_in", .side = Side::above},
    wire(400, 500, 420, 500), node(420, 500),
});
inline constexpr auto emitterResistors = part({
    Mark{.symbol = Symbol::resistor, .from = {840, 320}, .to = {840, 380}, .field = Text11},
    Mark{.symbol = Symbol::resistor, .from = {840, 380}, .to = {840, 440}, .field = Text11},
});
inline constexpr auto peakCurrent = part({
    Mark{.symbol = Symbol::arrow, .from = {976, 380}, .to = {976, 424}, .name = "I_p", .side = Side::right},
});

} // namespace drawing
// clang-format on

} // namespace velmor::form10
