// SPDX-License-Identifier: MIT
// The parts of the schematic that the common-emitter sheets stabilised by current draw alike, counted from the corner of the
// sheet, on a grid of 10. Knows the names of the fields, no sheet.
//
// Columns: generator 280, base divider 430, transistor 590 and 620, bypass 800, load 900.
// Rows: supply 130, collector 280, base 340, emitter 410, ground 520.
#pragma once

#include "sheets/schematic.h"

namespace velmor::common_emitter::drawing {

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
    Mark{.symbol = Symbol::npn, .from = {590, 340}, .name = "Q_1", .field = C::Text2},
});
inline constexpr auto emitterLead = part({wire(620, 370, 620, 430), node(620, 410)});
template <class C>
inline constexpr auto emitterResistor = part({
    Mark{.symbol = Symbol::resistor, .from = {620, 430}, .to = {620, 510}, .field = C::Text15},
    wire(620, 510, 620, 520),
});
inline constexpr auto emitterGround = part({ground(620, 520)});
template <class C>
inline constexpr auto emitterSupply = part({
    wire(620, 520, 620, 547),
    Mark{.symbol = Symbol::terminal, .from = {620, 550}, .field = C::Text21},
});
inline constexpr auto collectorLead = part({wire(620, 220, 620, 310), node(620, 280)});
template <class C>
inline constexpr auto collectorCurrent = part({
    Mark{.symbol = Symbol::arrow, .from = {634, 234}, .to = {634, 264}, .name = "Q_Ic", .side = Side::right,
         .value = C::Text8, .unit = "mA", .field = C::Text8},
});
template <class C>
inline constexpr auto collectorResistor = part({
    wire(620, 130, 620, 140),
    Mark{.symbol = Symbol::resistor, .from = {620, 140}, .to = {620, 220}, .field = C::Text17},
});
inline constexpr auto supplyRail = part({wire(620, 130, 687, 130), node(620, 130)});
template <class C>
inline constexpr auto supplyTerminal = part({
    Mark{.symbol = Symbol::terminal, .from = {690, 130}, .field = C::Text16},
});
inline constexpr auto outputCapacitor = part({
    wire(620, 280, 740, 280),
    Mark{.symbol = Symbol::capacitor, .from = {740, 280}, .to = {780, 280}, .name = "C_out", .side = Side::above},
    wire(780, 280, 900, 280),
});
template <class C>
inline constexpr auto load = part({
    node(900, 280),
    wire(900, 280, 900, 430),
    Mark{.symbol = Symbol::resistor, .from = {900, 430}, .to = {900, 510}, .field = C::Text9},
    wire(900, 510, 900, 520),
    ground(900, 520),
});
template <class C>
inline constexpr auto outputSignal = part({
    wire(900, 280, 947, 280),
    Mark{.symbol = Symbol::terminal, .from = {950, 280}, .field = C::Text13},
    Mark{.symbol = Symbol::sine, .from = {920, 290}, .to = {960, 314}, .field = C::Text13},
});
template <class C>
inline constexpr auto inputSignal = part({
    wire(280, 340, 280, 400),
    Mark{.symbol = Symbol::generator, .from = {280, 400}, .to = {280, 450}, .field = C::Text14},
    wire(280, 450, 280, 520),
    ground(280, 520),
});
inline constexpr auto inputCapacitor = part({
    wire(280, 340, 340, 340),
    Mark{.symbol = Symbol::capacitor, .from = {340, 340}, .to = {380, 340}, .name = "C_in", .side = Side::above},
    wire(380, 340, 430, 340),
    Mark{.symbol = Symbol::arrow, .from = {290, 327}, .to = {326, 327}},
});
inline constexpr auto baseLead = part({wire(430, 340, 590, 340), node(430, 340)});
template <class C>
inline constexpr auto lowerDivider = part({
    wire(430, 340, 430, 430),
    Mark{.symbol = Symbol::resistor, .from = {430, 430}, .to = {430, 510}, .field = C::Text18},
    wire(430, 510, 430, 520),
    ground(430, 520),
});
template <class C>
inline constexpr auto upperDivider = part({
    wire(430, 130, 620, 130),
    wire(430, 130, 430, 140),
    Mark{.symbol = Symbol::preset, .from = {430, 140}, .to = {430, 220}, .field = C::Text19},
    wire(430, 220, 430, 340),
});
// Voltages, as arrows beside what they lie across.
template <class C>
inline constexpr auto collectorEmitterVoltage = part({
    Mark{.symbol = Symbol::arrow, .from = {660, 372}, .to = {660, 308}, .field = C::Text5},
});
template <class C>
inline constexpr auto emitterVoltage = part({
    Mark{.symbol = Symbol::arrow, .from = {600, 506}, .to = {600, 434}, .field = C::Text4},
});
template <class C>
inline constexpr auto loadVoltage = part({
    Mark{.symbol = Symbol::arrow, .from = {600, 216}, .to = {600, 144}, .field = C::Text17},
});
inline constexpr auto bypassCapacitor = part({
    wire(620, 410, 800, 410),
    wire(800, 410, 800, 440),
    Mark{.symbol = Symbol::capacitor, .from = {800, 440}, .to = {800, 490}},
    wire(800, 490, 800, 520),
    ground(800, 520),
});
// Bootstrapping: both resistors of the divider in halves, their middles tied to the emitter, in the given row.
consteval auto bootstrapWiresTo(int emitter)
{
    return part({
        wire(430, 130, 620, 130),
        wire(430, 130, 430, 140),
        Mark{.symbol = Symbol::resistor, .from = {430, 140}, .to = {430, 200}, .name = "R_b1/2", .side = Side::left},
        wire(430, 200, 430, 250),
        node(430, 230),
        Mark{.symbol = Symbol::resistor, .from = {430, 250}, .to = {430, 310}, .name = "R_b1/2", .side = Side::left},
        wire(430, 310, 430, 350),
        Mark{.symbol = Symbol::resistor, .from = {430, 350}, .to = {430, 400}, .name = "R_b2/2", .side = Side::right},
        wire(430, 400, 430, 450),
        node(430, 410),
        Mark{.symbol = Symbol::resistor, .from = {430, 450}, .to = {430, 510}, .name = "R_b2/2", .side = Side::left},
        wire(430, 510, 430, 520),
        ground(430, 520),
        wire(430, 230, 470, 230),
        wire(510, 230, 560, 230),
        wire(560, 230, 560, 410),
        node(560, emitter),
        wire(430, 410, 470, 410),
        wire(510, 410, 560, 410),
        wire(560, emitter, 620, emitter),
        node(620, emitter),
    });
}
inline constexpr auto bootstrapWires = bootstrapWiresTo(410);
inline constexpr auto firstBootstrap = part({
    Mark{.symbol = Symbol::capacitor, .from = {470, 410}, .to = {510, 410}},
});
inline constexpr auto secondBootstrap = part({
    Mark{.symbol = Symbol::capacitor, .from = {470, 230}, .to = {510, 230}},
});
// clang-format on

} // namespace velmor::common_emitter::drawing
