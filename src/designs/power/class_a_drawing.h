// SPDX-License-Identifier: MIT
// The parts of the schematic that the class A sheets draw, counted from the corner of the sheet, on a grid of 10. Knows the names of the
// fields, no sheet.
//
// Columns: generator 280, base divider 430, driver 590 and 620, output 770 and 800. Rows: supply 130, Q1's collector 270, base 370,
// ground 540.
#pragma once

#include "sheets/schematic.h"

namespace velmor::class_a::drawing {

using host::Mark;
using host::Side;
using host::Symbol;
using sheets::ground;
using sheets::node;
using sheets::part;
using sheets::wire;

// clang-format off
// `C` are the controls of one of the sheets: a part glows while its field is in hand.
// The load hangs in column `X`, its upper end at `Y`.
template <class C, Symbol Kind, int X, int Y>
inline constexpr auto load = part({
    Mark{.symbol = Kind, .from = {X, Y}, .to = {X, Y + 80}, .name = "R_Lw", .side = Side::right, .value = C::Text2, .unit = "Ω",
         .field = C::Text2},
    wire(X, Y + 80, X, 540),
    ground(X, 540),
});
template <class C>
inline constexpr auto driver = part({
    Mark{.symbol = Symbol::npn, .from = {590, 370}, .name = "Q_1", .field = C::Text11},
    Mark{.symbol = Symbol::label, .from = {636, 398}, .name = "β_1", .value = C::Text11, .field = C::Text11},
    wire(620, 400, 620, 540),
    ground(620, 540),
});
template <class C>
inline constexpr auto outputTransistor = part({
    Mark{.symbol = Symbol::npn, .from = {770, 270}, .name = "Q_2", .field = C::Text10},
    Mark{.symbol = Symbol::label, .from = {816, 298}, .name = "β_2", .value = C::Text10, .field = C::Text10},
});
template <class C>
inline constexpr auto outputBranch = part({
    wire(800, 130, 800, 240),
    Mark{.symbol = Symbol::arrow, .from = {816, 166}, .to = {816, 200}, .name = "Q_Ic2", .side = Side::right, .value = C::Text3,
         .unit = "A", .field = C::Text3},
    wire(800, 300, 800, 400),
    Mark{.symbol = Symbol::arrow, .from = {776, 476}, .to = {776, 404}, .field = C::Text3},
});
template <class C>
inline constexpr auto supply = part({
    wire(620, 130, 877, 130),
    node(800, 130),
    Mark{.symbol = Symbol::terminal, .from = {880, 130}, .field = C::Text4},
    Mark{.symbol = Symbol::arrow, .from = {846, 312}, .to = {846, 228}, .field = C::Text4},
    Mark{.symbol = Symbol::arrow, .from = {672, 402}, .to = {672, 338}, .field = C::Text4},
});
template <class C>
inline constexpr auto collectorResistor = part({
    wire(620, 130, 620, 150),
    Mark{.symbol = Symbol::resistor, .from = {620, 150}, .to = {620, 230}, .field = C::Text5},
    wire(620, 230, 620, 340),
    node(620, 270),
    wire(620, 270, 770, 270),
    Mark{.symbol = Symbol::arrow, .from = {600, 226}, .to = {600, 154}, .field = C::Text5},
});
template <class C>
inline constexpr auto driverCurrent = part({
    Mark{.symbol = Symbol::arrow, .from = {636, 286}, .to = {636, 320}, .name = "Q_Ic1", .side = Side::right, .field = C::Text5},
});
template <class C>
inline constexpr auto preset = part({
    wire(430, 270, 470, 270),
    Mark{.symbol = Symbol::preset, .from = {470, 270}, .to = {540, 270}, .field = C::Text6},
    wire(540, 270, 620, 270),
});
template <class C>
inline constexpr auto fixedResistor = part({
    wire(430, 270, 430, 290),
    Mark{.symbol = Symbol::resistor, .from = {430, 290}, .to = {430, 350}, .field = C::Text7},
    wire(430, 350, 430, 370),
});
inline constexpr auto baseCapacitor = part({
    node(430, 270),
    wire(380, 270, 430, 270),
    Mark{.symbol = Symbol::capacitor, .from = {340, 270}, .to = {380, 270}, .name = "C_bp", .side = Side::above},
    wire(300, 270, 340, 270),
    ground(300, 270),
});
template <class C>
inline constexpr auto baseResistor = part({
    node(430, 370),
    wire(430, 370, 590, 370),
    wire(430, 370, 430, 440),
    Mark{.symbol = Symbol::resistor, .from = {430, 440}, .to = {430, 520}, .field = C::Text8},
    wire(430, 520, 430, 540),
    ground(430, 540),
});
template <class C>
inline constexpr auto input = part({
    wire(280, 370, 280, 420),
    Mark{.symbol = Symbol::generator, .from = {280, 420}, .to = {280, 470}, .name = "E_g", .side = Side::right, .field = C::Text9},
    wire(280, 470, 280, 540),
    ground(280, 540),
    wire(280, 370, 290, 370),
    Mark{.symbol = Symbol::resistor, .from = {290, 370}, .to = {350, 370}, .field = C::Text9},
    wire(350, 370, 370, 370),
    Mark{.symbol = Symbol::capacitor, .from = {370, 370}, .to = {410, 370}, .name = "C_in", .side = Side::above},
    wire(410, 370, 430, 370),
});
// clang-format on

} // namespace velmor::class_a::drawing
