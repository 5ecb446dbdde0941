// SPDX-License-Identifier: MIT
// The handles that `Form11` adds to those of `Form10`, and the parts of its schematic that are drawn otherwise: Darlington pairs, an
// emitter resistor for the driver, the circuit that replaces Rd and the diodes. Knows no slot and no formula.
//
// Columns: generator 270, feedback 430, driver 590, its load 620, bootstrap 710, drivers of the outputs 750, outputs 820,
// loudspeaker 960. Rows: supply 120, A 270, output 380, B 450, driver's base 480, ground 560.
#pragma once

#include "designs/power/form10_drawing.h"

namespace velmor::form11 {

// clang-format off
enum Control : host::Handle {
    // in the place of the panel of the calculations and its button
    Image6 = form10::SSPanel2, Image7,
    // the way to the steps of the start
    image2,
    // stored labels: resistors and transistors of the outputs, the terminals A and B, the preset of the input
    Label16, Label17, Label18, Label19, Label20, Label21, Label22, Label23, Label24, Label25,
    // what is told beside Rb1a, at the way to the steps, under the pointer, and of the cut-off
    Label26, Label27, Label29, Label30,
    controlCount
};

namespace drawing {

using namespace form10; // the fields
using host::Mark;
using host::Side;
using host::Symbol;
using sheets::ground;
using sheets::node;
using sheets::part;
using sheets::wire;

inline constexpr auto title = sheets::titleBlock({"Amplificador clase B, salida Darlington", "Class B amplifier, Darlington output"});

inline constexpr auto outputPair = part({
    Mark{.symbol = Symbol::npn, .from = {720, 270}, .name = "Q_2", .side = Side::right, .value = Label21, .field = Text12},
    Mark{.symbol = Symbol::npn, .from = {790, 300}, .name = "Q_4", .side = Side::right, .value = Label23, .field = Text12},
    Mark{.symbol = Symbol::pnp, .from = {720, 490}, .name = "Q_3", .side = Side::right, .value = Label22, .field = Text12},
    Mark{.symbol = Symbol::pnp, .from = {790, 460}, .name = "Q_5", .side = Side::right, .value = Label24, .field = Text12},
    wire(750, 300, 790, 300), wire(750, 460, 790, 460),
    wire(750, 520, 750, 560), ground(750, 560), wire(820, 490, 820, 560), ground(820, 560),
});
inline constexpr auto supply = part({
    wire(620, 120, 897, 120), node(750, 120), wire(750, 120, 750, 240), node(820, 120), wire(820, 120, 820, 270),
    Mark{.symbol = Symbol::terminal, .from = {900, 120}, .name = "E_s", .side = Side::right, .value = Text10, .unit = "V", .field = Text10},
});
inline constexpr auto output = part({
    node(820, 380), wire(820, 380, 850, 380),
    Mark{.symbol = Symbol::polarised, .from = {850, 380}, .to = {890, 380}, .name = "C_oo", .side = Side::above},
    wire(890, 380, 960, 380), wire(960, 380, 960, 430),
    Mark{.symbol = Symbol::loudspeaker, .from = {960, 430}, .to = {960, 490}, .name = "R_Lw", .side = Side::left, .value = Text2,
         .unit = "Ω", .field = Text2},
    wire(960, 490, 960, 560), ground(960, 560),
});
inline constexpr auto driver = part({
    node(620, 270), wire(620, 270, 720, 270),
    Mark{.symbol = Symbol::resistor, .from = {620, 270}, .to = {620, 320}, .name = "R_d", .side = Side::left},
    Mark{.symbol = Symbol::diode, .from = {620, 320}, .to = {620, 350}},
    wire(620, 350, 620, 390),
    Mark{.symbol = Symbol::diode, .from = {620, 390}, .to = {620, 420}},
    Mark{.symbol = Symbol::diode, .from = {620, 420}, .to = {620, 450}},
    node(620, 450), wire(590, 450, 690, 450), wire(690, 450, 690, 490), wire(690, 490, 720, 490),
    Mark{.symbol = Symbol::npn, .from = {560, 480}, .name = "Q_1", .side = Side::right, .value = Label3, .field = Text5},
    Mark{.symbol = Symbol::resistor, .from = {590, 510}, .to = {590, 560}, .name = "R_es", .side = Side::left},
    ground(590, 560),
    Mark{.symbol = Symbol::arrow, .from = {636, 212}, .to = {636, 252}, .name = "I_bias", .side = Side::right, .value = Text5,
         .unit = "mA", .field = Text5},
});
inline constexpr auto feedback = part({
    wire(820, 380, 580, 380), node(750, 380),
    Mark{.symbol = Symbol::resistor, .from = {520, 380}, .to = {580, 380}, .name = "R_b1a", .side = Side::above, .value = Text6,
         .unit = "kΩ", .field = Text6},
});
inline constexpr auto preset = part({
    wire(500, 380, 520, 380), node(510, 380),
    Mark{.symbol = Symbol::preset, .from = {440, 380}, .to = {500, 380}, .name = "R_b1b", .side = Side::above, .value = Text7,
         .unit = "kΩ", .field = Text7},
    wire(430, 380, 440, 380), wire(430, 380, 430, 480), wire(430, 480, 560, 480),
    wire(510, 380, 510, 410),
    Mark{.symbol = Symbol::capacitor, .from = {510, 410}, .to = {510, 450}, .name = "C_bb", .side = Side::right},
    wire(510, 450, 510, 560), ground(510, 560),
});
inline constexpr auto lowerBase = part({
    node(470, 480), wire(470, 480, 470, 490),
    Mark{.symbol = Symbol::resistor, .from = {470, 490}, .to = {470, 550}, .name = "R_b2", .side = Side::left, .value = Text8,
         .unit = "kΩ", .field = Text8},
    wire(470, 550, 470, 560), ground(470, 560),
});
inline constexpr auto lowerLoad = part({
    Mark{.symbol = Symbol::resistor, .from = {620, 210}, .to = {620, 260}, .name = "R_Lb", .side = Side::left, .value = Text3,
         .unit = "kΩ", .field = Text3},
    wire(620, 260, 620, 270),
});
inline constexpr auto upperLoad = part({
    wire(620, 120, 620, 130),
    Mark{.symbol = Symbol::resistor, .from = {620, 130}, .to = {620, 190}, .name = "R_La", .side = Side::left, .value = Text4,
         .unit = "kΩ", .field = Text4},
    wire(620, 190, 620, 210), node(620, 200), wire(620, 200, 710, 200), wire(710, 200, 710, 310),
    Mark{.symbol = Symbol::polarised, .from = {710, 310}, .to = {710, 350}, .name = "C_ba", .side = Side::left},
    wire(710, 350, 710, 380), node(710, 380),
});
inline constexpr auto input = part({
    wire(270, 480, 270, 500),
    Mark{.symbol = Symbol::generator, .from = {270, 500}, .to = {270, 550}, .field = Text9},
    Mark{.symbol = Symbol::label, .from = {252, 462}, .name = "E_in", .field = Text9},
    wire(270, 550, 270, 560), ground(270, 560), wire(270, 480, 320, 480), node(320, 480), wire(320, 480, 320, 490),
    Mark{.symbol = Symbol::preset, .from = {320, 490}, .to = {320, 550}},
    wire(320, 550, 320, 560), ground(320, 560),
    Mark{.symbol = Symbol::resistor, .from = {320, 480}, .to = {380, 480}, .name = "R_s", .side = Side::above, .value = Text9,
         .unit = "kΩ", .field = Text9},
    Mark{.symbol = Symbol::capacitor, .from = {380, 480}, .to = {420, 480}, .name = "C_in", .side = Side::above},
    wire(420, 480, 430, 480), node(430, 480),
});
inline constexpr auto emitterResistors = part({
    Mark{.symbol = Symbol::resistor, .from = {820, 330}, .to = {820, 380}, .field = Text11},
    Mark{.symbol = Symbol::resistor, .from = {820, 380}, .to = {820, 430}, .field = Text11},
    node(750, 300), Mark{.symbol = Symbol::resistor, .from = {750, 310}, .to = {750, 370}},
    wire(750, 300, 750, 310), wire(750, 370, 750, 390),
    Mark{.symbol = Symbol::resistor, .from = {750, 390}, .to = {750, 450}}, wire(750, 450, 750, 460), node(750, 460),
});
// What the calculation of the base begins with, above its resistors. Counted from the corner of its control.
inline constexpr Mark stabilityMarks[] = {
    {.symbol = Symbol::text, .from = {4, 9}, .name = "S = Rb1 / RL = 10", .ink = host::Ink::accent, .size = 90},
};
// What takes the place of Rd and the diodes: Q8 and its divider between A and B. Counted from the corner of its control.
inline constexpr Mark substituteCircuit[] = {
    {.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {170, 186}, .ink = host::Ink::quiet},
    {.symbol = Symbol::terminal, .from = {110, 16}, .name = "A", .side = Side::right},
    wire(110, 19, 110, 60),
    node(110, 30), wire(110, 30, 50, 30), wire(50, 30, 50, 40),
    {.symbol = Symbol::preset, .from = {50, 40}, .to = {50, 90}},
    node(50, 90), wire(50, 90, 80, 90),
    {.symbol = Symbol::npn, .from = {80, 90}, .name = "Q_8", .side = Side::right},
    {.symbol = Symbol::resistor, .from = {50, 100}, .to = {50, 150}},
    wire(50, 90, 50, 100), wire(50, 150, 50, 160), wire(50, 160, 110, 160), node(110, 160),
    wire(110, 120, 110, 167),
    {.symbol = Symbol::terminal, .from = {110, 170}, .name = "B", .side = Side::right},
};
// The button of the steps of the start: a transistor that is to stay whole.
inline constexpr Mark stepsMarks[] = {
    {.symbol = Symbol::page, .from = {12, 6}, .to = {38, 32}},
    {.symbol = Symbol::lamp, .from = {46, 6}, .to = {72, 32}},
    {.symbol = Symbol::text, .from = {42, 41}, .note = {"Armado", "Armed"}, .side = Side::below, .size = 90},
};

} // namespace drawing
// clang-format on

} // namespace velmor::form11
