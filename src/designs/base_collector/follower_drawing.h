// SPDX-License-Identifier: MIT
// The parts of the schematic that the emitter follower and the phase splitter draw alike, counted from the corner of
// the sheet, on a grid of 10. Knows the names of the fields, no sheet.
//
// Columns: generator 270, base divider 450, transistor 590 and 620, supply terminal 690.
// Rows: supply 130, base 340, emitter 370, ground 520.
#pragma once

#include "sheets/schematic.h"

namespace velmor::base_collector::drawing {

using host::GridPoint;
using host::Ink;
using host::Mark;
using host::Side;
using host::Symbol;
using sheets::ground;
using sheets::node;
using sheets::part;
using sheets::wire;

// clang-format off
// `C` are the controls of one of the sheets: a part glows while its field is in hand.
template <class C>
inline constexpr auto transistor = part({
    Mark{.symbol = Symbol::npn, .from = {590, 340}, .field = C::Text2},
});
template <class C>
inline constexpr auto generator = part({
    wire(270, 340, 270, 400),
    Mark{.symbol = Symbol::generator, .from = {270, 400}, .to = {270, 450}, .field = C::Text14},
    wire(270, 450, 270, 520),
    ground(270, 520),
});
template <class C>
inline constexpr auto generatorResistance = part({
    wire(270, 340, 280, 340),
    Mark{.symbol = Symbol::resistor, .from = {280, 340}, .to = {340, 340}, .name = "R_g", .side = Side::above, .value = C::Text4,
         .unit = "kΩ", .field = C::Text4},
});
inline constexpr auto inputCapacitor = part({
    wire(340, 340, 370, 340),
    Mark{.symbol = Symbol::capacitor, .from = {370, 340}, .to = {410, 340}, .name = "C_in", .side = Side::above},
    wire(410, 340, 450, 340),
});
inline constexpr auto baseLead = part({wire(450, 340, 590, 340), node(450, 340)});
template <class C>
inline constexpr auto lowerDivider = part({
    wire(450, 340, 450, 430),
    Mark{.symbol = Symbol::resistor, .from = {450, 430}, .to = {450, 510}, .field = C::Text16},
    wire(450, 510, 450, 520),
    ground(450, 520),
});
template <class C>
inline constexpr auto upperDivider = part({
    wire(450, 130, 620, 130),
    wire(450, 130, 450, 140),
    Mark{.symbol = Symbol::preset, .from = {450, 140}, .to = {450, 220}, .field = C::Text17},
    wire(450, 220, 450, 340),
});
template <class C>
inline constexpr auto emitterResistor = part({
    wire(620, 370, 620, 430), node(620, 410),
    Mark{.symbol = Symbol::resistor, .from = {620, 430}, .to = {620, 510}, .field = C::Text15},
    wire(620, 510, 620, 520),
    ground(620, 520),
});
template <class C>
inline constexpr auto supplyRail = part({
    wire(620, 130, 687, 130), node(620, 130),
    Mark{.symbol = Symbol::terminal, .from = {690, 130}, .name = "E_s", .side = Side::right, .value = C::Text20, .unit = "V",
         .field = C::Text20},
});
// Voltages, as arrows beside what they lie across.
template <class C>
inline constexpr auto transistorVoltage = part({
    Mark{.symbol = Symbol::arrow, .from = {652, 372}, .to = {652, 308}, .field = C::Text5},
});
template <class C>
inline constexpr auto emitterVoltage = part({
    Mark{.symbol = Symbol::arrow, .from = {600, 506}, .to = {600, 434}, .field = C::Text15},
});
template <class C>
inline constexpr auto upperBaseVoltage = part({
    Mark{.symbol = Symbol::arrow, .from = {428, 216}, .to = {428, 144}, .field = C::Text17},
});
// clang-format on

} // namespace velmor::base_collector::drawing
