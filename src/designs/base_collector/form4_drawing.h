// SPDX-License-Identifier: MIT
// The parts of `Form4`'s schematic, counted from the corner of the sheet on a grid of 10: a common-base stage drawn so that the
// emitter-bypassed one needs no other wire than those of its connection. Tables alone.
//
// Columns: base capacitor 280, base divider 430, transistor 590 and 620, emitter input 810, load 900.
// Rows: supply 130, collector 280, base 340, emitter 410, ground 520.
#pragma once

#include "designs/base_collector/form4_controls.h"
#include "sheets/schematic.h"

namespace velmor::form4::drawing {

using host::Ink;
using host::Mark;
using host::Side;
using host::Symbol;
using sheets::ground;
using sheets::node;
using sheets::part;
using sheets::wire;

// clang-format off
inline constexpr auto title = sheets::titleBlock({"Base común", "Common base"});

inline constexpr auto transistor = part({Mark{.symbol = Symbol::npn, .from = {590, 340}, .name = "Q_1", .field = Text2}});
inline constexpr auto collectorLead = part({wire(620, 220, 620, 310), node(620, 280)});
inline constexpr auto collectorCurrent = part({
    Mark{.symbol = Symbol::arrow, .from = {634, 234}, .to = {634, 264}, .name = "Q_Ic", .side = Side::right, .value = Text8,
         .unit = "mA", .field = Text8},
});
inline constexpr auto load = part({
    node(900, 280),
    wire(900, 280, 900, 430),
    Mark{.symbol = Symbol::resistor, .from = {900, 430}, .to = {900, 510}, .name = "R_Lw", .side = Side::right, .field = Text9},
    wire(900, 510, 900, 520),
    ground(900, 520),
});
inline constexpr auto outputCapacitor = part({
    wire(620, 280, 740, 280),
    Mark{.symbol = Symbol::capacitor, .from = {740, 280}, .to = {780, 280}, .name = "C_out", .side = Side::above, .field = Text12},
    wire(780, 280, 900, 280),
});
inline constexpr auto output = part({
    wire(900, 280, 947, 280),
    Mark{.symbol = Symbol::terminal, .from = {950, 280}, .name = "E_opp", .side = Side::above, .field = Text13},
});
inline constexpr auto emitterLead = part({wire(620, 370, 620, 430), node(620, 410)});
inline constexpr auto emitterInput = part({
    wire(620, 410, 700, 410),
    Mark{.symbol = Symbol::capacitor, .from = {700, 410}, .to = {740, 410}, .field = Text12},
    wire(740, 410, 810, 410),
    ground(810, 520),
});
inline constexpr auto baseCapacitor = part({
    wire(380, 340, 430, 340),
    Mark{.symbol = Symbol::capacitor, .from = {340, 340}, .to = {380, 340}, .field = Text12},
    wire(280, 340, 340, 340),
    wire(280, 340, 280, 410),
    ground(280, 520),
});
inline constexpr auto baseLead = part({wire(430, 340, 590, 340), node(430, 340)});
inline constexpr auto emitterResistor = part({
    Mark{.symbol = Symbol::resistor, .from = {620, 430}, .to = {620, 510}, .field = Text18},
    wire(620, 510, 620, 520),
    ground(620, 520),
});
inline constexpr auto supplyRail = part({wire(620, 130, 687, 130), node(620, 130)});
inline constexpr auto supplyTerminal = part({Mark{.symbol = Symbol::terminal, .from = {690, 130}, .field = Text20}});
inline constexpr auto collectorResistor = part({
    wire(620, 130, 620, 140),
    Mark{.symbol = Symbol::resistor, .from = {620, 140}, .to = {620, 220}, .field = Text15},
});
inline constexpr auto lowerDivider = part({
    wire(430, 340, 430, 430),
    Mark{.symbol = Symbol::resistor, .from = {430, 430}, .to = {430, 510}, .field = Text16},
    wire(430, 510, 430, 520),
    ground(430, 520),
});
inline constexpr auto upperDivider = part({
    wire(430, 130, 620, 130),
    wire(430, 130, 430, 140),
    Mark{.symbol = Symbol::preset, .from = {430, 140}, .to = {430, 220}, .field = Text17},
    wire(430, 220, 430, 340),
});
// Voltages, as arrows beside what they lie across.
inline constexpr auto transistorVoltage = part({
    Mark{.symbol = Symbol::arrow, .from = {660, 372}, .to = {660, 308}, .side = Side::right, .value = Label23, .field = Text5},
});
inline constexpr auto loadVoltage    = part({Mark{.symbol = Symbol::arrow, .from = {600, 216}, .to = {600, 144}, .field = Text15}});
inline constexpr auto emitterVoltage = part({Mark{.symbol = Symbol::arrow, .from = {600, 506}, .to = {600, 434}, .field = Text4}});

// The two connections. Each takes the other capacitor to ground, names both, and shows the signal as it comes and goes: in phase
// through the emitter, inverted through the base.
inline constexpr auto commonBase = part({
    wire(280, 410, 280, 520),
    Mark{.symbol = Symbol::label, .from = {352, 318}, .name = "C_b"},
    {.symbol = Symbol::label, .from = {712, 388}, .name = "C_in"},
    {.symbol = Symbol::arrow, .from = {802, 422}, .to = {772, 422}},
    {.symbol = Symbol::sine, .from = {838, 420}, .to = {876, 444}},
    {.symbol = Symbol::sine, .from = {920, 296}, .to = {960, 320}},
});
inline constexpr auto emitterBypassed = part({
    wire(810, 410, 810, 520),
    Mark{.symbol = Symbol::label, .from = {352, 318}, .name = "C_in"},
    {.symbol = Symbol::label, .from = {712, 388}, .name = "C_bp"},
    {.symbol = Symbol::arrow, .from = {290, 327}, .to = {326, 327}},
    {.symbol = Symbol::sine, .from = {308, 420}, .to = {346, 444}},
    {.symbol = Symbol::sineInverted, .from = {920, 296}, .to = {960, 320}},
});
inline constexpr Mark source[] = {
    wire(25, 0, 25, 20),
    {.symbol = Symbol::generator, .from = {25, 20}, .to = {25, 90}, .name = "E_in", .side = Side::right, .field = Text14},
    wire(25, 90, 25, 110),
};
inline constexpr Mark dropTarget[] = {
    {.symbol = Symbol::dashedFrame, .from = {2, 2}, .to = {66, 56}, .ink = Ink::accent},
};
// The leaf of analysis: a signal on a screen.
inline constexpr Mark leafMarks[] = {
    {.symbol = Symbol::oscilloscope, .from = {27, 6}, .to = {57, 36}},
    {.symbol = Symbol::text, .from = {42, 37}, .note = {"Análisis", "Analysis"}, .side = Side::below, .size = 80},
};
inline constexpr Mark obtainedCurrentName[] = {
    {.symbol = Symbol::text, .from = {-4, 9}, .note = {"QIc obtenida", "QIc obtained"}, .side = Side::left, .ink = Ink::accent,
     .size = 90},
};
// clang-format on

} // namespace velmor::form4::drawing
