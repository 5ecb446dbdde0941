// SPDX-License-Identifier: MIT
// What `Form13` draws, part by part, counted from the corner of the sheet: the supply rail at 130, bases of Q3-4 at 270, of Q1-2 at
// 430; Q3-4 stand between the collectors of Q1-2, with Res on the axis at 560, Q5 at the right. Tables alone.
#pragma once

#include "designs/differential/form13_controls.h"
#include "sheets/schematic.h"

namespace velmor::form13::drawings {

using host::Ink;
using host::Mark;
using host::Side;
using host::Symbol;
using sheets::ground;
using sheets::node;
using sheets::part;
using sheets::wire;

/// The paper leaves room at its right for the boxes.
inline constexpr host::Place paper = sheets::at(236, 94, 722, 518);

constexpr Mark titleMark(host::BiText title)
{
    return {
        .symbol = Symbol::text, .from = {714, 505}, .note = title, .side = Side::left, .ink = Ink::quiet, .size = 80};
}

// clang-format off
inline constexpr Mark circuit[] = {titleMark({"Diferencial compuesto", "Compound long tail pair"})};
inline constexpr Mark mirror[]  = {titleMark({"Diferencial compuesto, con espejo", "Compound long tail pair, with mirror"})};

// Text2: the second pair on its common resistor
inline constexpr auto secondPair = part({
    Mark{.symbol = Symbol::npn, .from = {440, 270}, .name = "Q_3"},
    {.symbol = Symbol::npnLeft, .from = {680, 270}, .name = "Q_4"},
    wire(470, 300, 470, 310),
    wire(650, 300, 650, 310),
    wire(470, 310, 650, 310),
    node(560, 310),
    {.symbol = Symbol::label, .from = {486, 291}, .value = Label31, .unit = "mA"},
    {.symbol = Symbol::resistor, .from = {560, 310}, .to = {560, 370}, .name = "R_es", .side = Side::left, .field = Text7},
    ground(560, 370),
});
// Text5: its collector resistors
inline constexpr auto secondLoads = part({
    Mark{.symbol = Symbol::resistor, .from = {470, 140}, .to = {470, 200}, .name = "R_L2", .side = Side::right, .field = Text6},
    {.symbol = Symbol::resistor, .from = {650, 140}, .to = {650, 200}, .name = "R_L2", .side = Side::left, .field = Text6},
    wire(470, 200, 470, 240),
    wire(650, 200, 650, 240),
    wire(470, 130, 470, 140),
    wire(650, 130, 650, 140),
});
// Text6: the supply
inline constexpr auto supply = part({
    Mark{.symbol = Symbol::terminal, .from = {560, 110}, .name = "+E_s", .side = Side::left, .field = Text5},
    wire(560, 110, 560, 130),
    node(560, 130),
    wire(400, 130, 820, 130),
    node(470, 130),
    node(650, 130),
});
// Text9: the input pair and its collector resistors
inline constexpr auto firstPair = part({
    wire(400, 130, 400, 140),
    Mark{.symbol = Symbol::resistor, .from = {400, 140}, .to = {400, 200}, .name = "R_L1", .side = Side::left, .field = Text9},
    wire(400, 200, 400, 400),
    node(400, 270),
    wire(400, 270, 440, 270),
    node(720, 130),
    wire(720, 130, 720, 140),
    {.symbol = Symbol::resistor, .from = {720, 140}, .to = {720, 200}, .name = "R_L1", .side = Side::right, .field = Text9},
    wire(720, 200, 720, 400),
    node(720, 270),
    wire(680, 270, 720, 270),
    {.symbol = Symbol::npn, .from = {370, 430}, .name = "Q_1"},
    {.symbol = Symbol::npnLeft, .from = {750, 430}, .name = "Q_2"},
    {.symbol = Symbol::label, .from = {412, 453}, .value = Label4, .unit = "mA"},
    wire(400, 460, 400, 470),
    wire(720, 460, 720, 470),
    wire(400, 470, 720, 470),
});
// Text10: Q5 takes the output from the collector of Q4
inline constexpr auto follower = part({
    node(650, 220),
    wire(650, 220, 790, 220),
    Mark{.symbol = Symbol::npn, .from = {790, 220}, .name = "Q_5", .field = Text10},
    wire(820, 130, 820, 190),
    wire(820, 250, 820, 270),
    node(820, 260),
    {.symbol = Symbol::label, .from = {830, 276}, .value = Label33, .unit = "mA"},
    {.symbol = Symbol::resistor, .from = {820, 270}, .to = {820, 330}, .name = "R_es1", .side = Side::right, .field = Text10},
    wire(820, 330, 820, 370),
    ground(820, 370),
});
// Text11: its load
inline constexpr auto load = part({
    wire(820, 260, 937, 260),
    node(910, 260),
    {.symbol = Symbol::terminal, .from = {940, 260}},
    wire(910, 260, 910, 270),
    Mark{.symbol = Symbol::resistor, .from = {910, 270}, .to = {910, 330}, .name = "R_Lw", .side = Side::right, .field = Text11},
    wire(910, 330, 910, 370),
    ground(910, 370),
});

// Text10: the source below the emitters, as a circle, or told in full as a mirror
inline constexpr auto source = part({
    node(560, 470),
    wire(560, 470, 560, 490),
    Mark{.symbol = Symbol::circle, .from = {540, 490}, .to = {580, 530}},
    {.symbol = Symbol::arrow, .from = {560, 496}, .to = {560, 524}},
    wire(560, 530, 560, 560),
    {.symbol = Symbol::terminal, .from = {560, 560}, .name = "-E_bias", .side = Side::right},
});
inline constexpr auto mirrorSource = part({
    node(560, 470),
    wire(560, 470, 560, 490),
    Mark{.symbol = Symbol::npnLeft, .from = {590, 520}, .name = "Q_6", .side = Side::left},
    wire(590, 520, 620, 520),
    node(610, 520),
    wire(610, 520, 610, 490),
    wire(610, 490, 650, 490),
    node(650, 490),
    {.symbol = Symbol::npn, .from = {620, 520}, .name = "Q_7", .side = Side::right},
    wire(650, 490, 670, 490),
    {.symbol = Symbol::resistor, .from = {670, 490}, .to = {730, 490}},
    wire(730, 490, 750, 490),
    ground(750, 490),
    wire(560, 550, 560, 570),
    wire(650, 550, 650, 570),
    wire(560, 570, 650, 570),
    node(610, 570),
    wire(610, 570, 610, 590),
    {.symbol = Symbol::terminal, .from = {610, 590}, .name = "-E_bias", .side = Side::right},
});

// leaving Text10: the inputs through their capacitors, or straight to the bases
inline constexpr auto inputs = part({
    Mark{.symbol = Symbol::terminal, .from = {260, 430}},
    wire(260, 430, 280, 430),
    {.symbol = Symbol::capacitor, .from = {280, 430}, .to = {320, 430}, .name = "C_1", .side = Side::above},
    wire(320, 430, 370, 430),
    node(340, 430),
    wire(340, 430, 340, 450),
    {.symbol = Symbol::resistor, .from = {340, 450}, .to = {340, 510}, .name = "R_b1", .side = Side::right},
    ground(340, 510),
    wire(750, 430, 800, 430),
    node(780, 430),
    wire(780, 430, 780, 450),
    {.symbol = Symbol::resistor, .from = {780, 450}, .to = {780, 510}, .name = "R_b1", .side = Side::right},
    ground(780, 510),
    {.symbol = Symbol::capacitor, .from = {800, 430}, .to = {840, 430}, .name = "C_1", .side = Side::above},
    wire(840, 430, 860, 430),
    {.symbol = Symbol::terminal, .from = {860, 430}},
});
inline constexpr auto straightInputs = part({
    Mark{.symbol = Symbol::terminal, .from = {320, 430}},
    wire(320, 430, 370, 430),
    wire(750, 430, 800, 430),
    {.symbol = Symbol::terminal, .from = {800, 430}},
});
// clang-format on

} // namespace velmor::form13::drawings
