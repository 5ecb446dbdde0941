// SPDX-License-Identifier: MIT
// What `Form12` draws, stroke by stroke: the stage to feed on top, the divider at 440, the source at 590, the ladder of voltages at
// 790. Coordinates are those of the sheet. Tables alone.
#pragma once

#include <array>

#include "designs/differential/form12_controls.h"
#include "sheets/schematic.h"

namespace velmor::form12::drawings {

using host::Ink;
using host::Mark;
using host::Side;
using host::Symbol;
using sheets::ground;
using sheets::node;
using sheets::wire;

/// The paper leaves room at its right for the page.
inline constexpr host::Place paper = sheets::at(236, 94, 722, 518);

/// Marks of the sheet as the paper counts them.
template <std::size_t Count>
consteval std::array<Mark, Count> onPaper(const Mark (&marks)[Count])
{
    std::array<Mark, Count> moved = std::to_array(marks);
    for (Mark& mark : moved) {
        mark.from = sheets::point(mark.from.x - 236, mark.from.y - 94);
        if (mark.to.x != 0 || mark.to.y != 0)
            mark.to = sheets::point(mark.to.x - 236, mark.to.y - 94);
    }
    return moved;
}

// clang-format off
inline constexpr auto title = onPaper({Mark{.symbol = Symbol::text, .from = {950, 599},
    .note = {"Fuente de corriente constante", "Constant current source"}, .side = Side::left, .ink = Ink::quiet, .size = 80}});

// the stage to feed
inline constexpr auto line4  = onPaper({wire(530, 140, 530, 170)});
inline constexpr auto line5  = onPaper({wire(650, 140, 650, 170)});
inline constexpr auto line6  = onPaper({wire(470, 200, 500, 200)});
inline constexpr auto line7  = onPaper({wire(680, 200, 710, 200)});
inline constexpr auto line8  = onPaper({wire(530, 230, 530, 240)});
inline constexpr auto line9  = onPaper({wire(650, 230, 650, 240)});
inline constexpr auto line10 = onPaper({wire(530, 240, 590, 240)});
inline constexpr auto line11 = onPaper({wire(590, 240, 650, 240)});
inline constexpr auto line12 = onPaper({wire(590, 240, 590, 270)});
inline constexpr auto line13 = onPaper({Mark{.symbol = Symbol::arrow, .from = {604, 246}, .to = {604, 274}, .name = "Q_Ic",
                                             .side = Side::right, .field = Text1}});
inline constexpr auto shape2 = onPaper({Mark{.symbol = Symbol::npn, .from = {500, 200}, .name = "Q_1"}});
inline constexpr auto shape3 = onPaper({Mark{.symbol = Symbol::npnLeft, .from = {680, 200}, .name = "Q_2"}});
inline constexpr auto shape4 = onPaper({Mark{.symbol = Symbol::terminal, .from = {530, 140}},
                                        {.symbol = Symbol::terminal, .from = {650, 140}}});
inline constexpr auto shape5 = onPaper({Mark{.symbol = Symbol::terminal, .from = {470, 200}},
                                        {.symbol = Symbol::terminal, .from = {710, 200}}});
inline constexpr auto shape6 = onPaper({node(590, 240)});
inline constexpr auto shape7 = onPaper({Mark{.symbol = Symbol::text, .from = {590, 118},
    .note = {"amplificador diferencial a alimentar", "differential amplifier to feed"}, .side = Side::above, .ink = Ink::quiet,
            .size = 84}});

// the divider
inline constexpr auto line14  = onPaper({wire(380, 220, 440, 220)});
inline constexpr auto line15  = onPaper({wire(440, 220, 440, 230)});
inline constexpr auto line17  = onPaper({wire(440, 290, 440, 310)});
inline constexpr auto line18  = onPaper({wire(440, 310, 560, 310)});
inline constexpr auto line19  = onPaper({wire(440, 310, 440, 330)});
inline constexpr auto line20  = onPaper({wire(440, 380, 440, 390)});
inline constexpr auto line34  = onPaper({wire(440, 450, 440, 490)});
inline constexpr auto shape8  = onPaper({ground(380, 220)});
inline constexpr auto shape9  = onPaper({Mark{.symbol = Symbol::resistor, .from = {440, 230}, .to = {440, 290}, .name = "R_b1",
                                              .side = Side::left, .field = Text6}});
inline constexpr auto shape10 = onPaper({node(440, 310)});
inline constexpr auto shape11 = onPaper({Mark{.symbol = Symbol::diode, .from = {440, 330}, .to = {440, 380}, .name = "D_1",
                                              .side = Side::left}});
inline constexpr auto shape12 = onPaper({Mark{.symbol = Symbol::resistor, .from = {440, 390}, .to = {440, 450}, .name = "R_b2",
                                              .side = Side::left, .field = Text7}});

// the source and its supply
inline constexpr auto line28  = onPaper({wire(590, 270, 590, 280)});
inline constexpr auto line29  = onPaper({wire(590, 340, 590, 380)});
inline constexpr auto line30  = onPaper({wire(590, 440, 590, 490)});
inline constexpr auto line31  = onPaper({wire(440, 490, 520, 490)});
inline constexpr auto line32  = onPaper({wire(520, 490, 590, 490)});
inline constexpr auto line33  = onPaper({wire(520, 490, 520, 520)});
inline constexpr auto shape15 = onPaper({Mark{.symbol = Symbol::npn, .from = {560, 310}, .name = "Q_3"}});
inline constexpr auto shape16 = onPaper({Mark{.symbol = Symbol::resistor, .from = {590, 380}, .to = {590, 440}, .name = "R_es",
                                              .side = Side::left, .field = Text4}});
inline constexpr auto shape17 = onPaper({Mark{.symbol = Symbol::terminal, .from = {520, 520}, .name = "-E_bias", .side = Side::left,
                                              .field = Text9}});
inline constexpr auto shape18 = onPaper({node(520, 490)});
inline constexpr auto shape19 = onPaper({Mark{.symbol = Symbol::arrow, .from = {644, 284}, .to = {644, 336}, .name = "E_q",
                                              .side = Side::right, .field = Text3}});

// the analysis: the drops that make up Ebias, beside the parts and as a ladder
inline constexpr auto line16  = onPaper({Mark{.symbol = Symbol::arrow, .from = {464, 396}, .to = {464, 444}, .name = "I_bias",
        .side = Side::right}});
inline constexpr auto line35  = onPaper({Mark{.symbol = Symbol::arrow, .from = {464, 236}, .to = {464, 284}, .name = "E_b",
        .side = Side::right}});
inline constexpr auto line36  = onPaper({Mark{.symbol = Symbol::arrow, .from = {614, 386}, .to = {614, 434}, .name = "E_Res",
        .side = Side::right}});
inline constexpr auto line37  = onPaper({wire(780, 220, 800, 220)});
inline constexpr auto line38  = onPaper({wire(780, 240, 800, 240)});
inline constexpr auto line39  = onPaper({wire(780, 340, 800, 340)});
inline constexpr auto line40  = onPaper({wire(780, 490, 800, 490)});
inline constexpr auto line41  = onPaper({wire(790, 220, 790, 490)});
inline constexpr auto shape20 = onPaper({Mark{.symbol = Symbol::text, .from = {810, 224}, .name = "0.6 V"}});
inline constexpr auto shape21 = onPaper({Mark{.symbol = Symbol::label, .from = {810, 284}, .name = "E_q", .value = Text3}});
inline constexpr auto shape22 = onPaper({Mark{.symbol = Symbol::label, .from = {810, 408}, .name = "E_Res", .value = Text8}});
inline constexpr auto shape23 = onPaper({Mark{.symbol = Symbol::label, .from = {810, 490}, .name = "-E_bias", .value = Text9,
                                              .unit = "V"}});
inline constexpr auto shape24 = onPaper({Mark{.symbol = Symbol::text, .from = {790, 536},
    .note = {"sume las caidas", "add the drops"}, .side = Side::below, .ink = Ink::quiet, .size = 84}});
// clang-format on

} // namespace velmor::form12::drawings
