// SPDX-License-Identifier: MIT
// What `Form3` draws: the didactic picture, the parts that come with the chain, the finished design, the instruments and the
// formulas. Units are those of the drawing grid, from the left top corner of each control; tables alone.
#pragma once

#include <array>

#include "designs/differential/form3_controls.h"
#include "sheets/schematic.h"

namespace velmor::form3::drawings {

using host::collectorEnd;
using host::emitterEnd;
using host::GridPoint;
using host::Ink;
using host::Mark;
using host::Side;
using host::Symbol;

/// Corner of the circuit's own grid, on which both pictures stand, in units of the sheet.
inline constexpr GridPoint circuit = sheets::point(260, 80);
/// The paper below the circuit.
inline constexpr host::Place paper = sheets::at(236, 94, 722, 518);

/// Marks of the circuit's grid as the paper counts them.
template <std::size_t Count>
consteval std::array<Mark, Count> onPaper(const Mark (&marks)[Count])
{
    constexpr int right = circuit.x - paper.left / sheets::twipsPerUnit;
    constexpr int down = circuit.y - paper.top / sheets::twipsPerUnit;
    std::array<Mark, Count> moved = std::to_array(marks);
    for (Mark& mark : moved) {
        mark.from = sheets::point(mark.from.x + right, mark.from.y + down);
        if (mark.to.x != 0 || mark.to.y != 0)
            mark.to = sheets::point(mark.to.x + right, mark.to.y + down);
    }
    return moved;
}

// clang-format off

// Both pictures stand on the same grid: the supply rail at 60, collectors at 240 and 440, bases at 250, the tail at 340.

inline constexpr auto didactic = onPaper({
    // the pair
    Mark{.symbol = Symbol::npn, .from = {210, 250}, .name = "Q_1", .field = Text5},
    {.symbol = Symbol::npnLeft, .from = {470, 250}, .name = "Q_2", .field = Text5},
    {.symbol = Symbol::wire, .from = {240, 180}, .to = {240, 220}},
    {.symbol = Symbol::wire, .from = {440, 180}, .to = {440, 220}},
    {.symbol = Symbol::wire, .from = {240, 280}, .to = {240, 310}},
    {.symbol = Symbol::wire, .from = {440, 280}, .to = {440, 310}},
    {.symbol = Symbol::wire, .from = {240, 310}, .to = {440, 310}},
    {.symbol = Symbol::node, .from = {340, 310}},
    {.symbol = Symbol::arrow, .from = {454, 188}, .to = {454, 212}, .name = "Q_Ic", .side = Side::right, .field = Text9},
    {.symbol = Symbol::label, .from = {186, 274}, .name = "V_j", .field = Text4, .ink = Ink::quiet},
    // inputs
    {.symbol = Symbol::wire, .from = {110, 250}, .to = {210, 250}},
    {.symbol = Symbol::terminal, .from = {110, 250}},
    {.symbol = Symbol::text, .from = {110, 276}, .name = "Ent 1", .side = Side::below, .field = Text15},
    {.symbol = Symbol::wire, .from = {470, 250}, .to = {570, 250}},
    {.symbol = Symbol::terminal, .from = {570, 250}},
    {.symbol = Symbol::label, .from = {570, 276}, .side = Side::below, .value = Label42},
    // outputs
    {.symbol = Symbol::wire, .from = {240, 180}, .to = {150, 180}},
    {.symbol = Symbol::terminal, .from = {150, 180}},
    {.symbol = Symbol::text, .from = {150, 160}, .name = "Out 1", .side = Side::above, .field = Text14},
    {.symbol = Symbol::wire, .from = {440, 180}, .to = {530, 180}},
    {.symbol = Symbol::terminal, .from = {530, 180}},
    {.symbol = Symbol::label, .from = {530, 160}, .side = Side::above, .value = Label43},
    {.symbol = Symbol::node, .from = {240, 180}},
    {.symbol = Symbol::node, .from = {440, 180}},
    {.symbol = Symbol::meter, .from = {240, 180}, .to = {440, 180}, .name = "V", .ink = Ink::quiet},
    {.symbol = Symbol::text, .from = {340, 156}, .name = "Out 3", .side = Side::above, .ink = Ink::quiet},
    {.symbol = Symbol::text, .from = {14, 444}, .note = {.es = "Ejemplo de caracter didactico,  no apto para diseño...",
                                                         .en = "Example of didactic character, not capable for design."},
     .ink = Ink::quiet, .size = 90},
});

// The parts that come with the chain. Their names serve the fields beside them, which bear none of their own.

inline constexpr auto negativeSupply = onPaper({
    Mark{.symbol = Symbol::wire, .from = {340, 390}, .to = {340, 440}},
    {.symbol = Symbol::terminal, .from = {340, 440}, .name = "-E_bias", .side = Side::right, .field = Text8},
});
inline constexpr auto tail = onPaper({
    Mark{.symbol = Symbol::wire, .from = {340, 310}, .to = {340, 330}},
    {.symbol = Symbol::resistor, .from = {340, 330}, .to = {340, 390}, .name = "R_es", .side = Side::right, .field = Text16},
});
inline constexpr auto collectorResistors = onPaper({
    Mark{.symbol = Symbol::resistor, .from = {240, 80}, .to = {240, 140}, .name = "R_L", .side = Side::left, .field = Text17},
    {.symbol = Symbol::wire, .from = {240, 140}, .to = {240, 180}},
    {.symbol = Symbol::resistor, .from = {440, 80}, .to = {440, 140}, .name = "R_L", .side = Side::right, .field = Text17},
    {.symbol = Symbol::wire, .from = {440, 140}, .to = {440, 180}},
});
inline constexpr auto positiveSupply = onPaper({
    Mark{.symbol = Symbol::wire, .from = {240, 60}, .to = {440, 60}},
    {.symbol = Symbol::wire, .from = {240, 60}, .to = {240, 80}},
    {.symbol = Symbol::wire, .from = {440, 60}, .to = {440, 80}},
    {.symbol = Symbol::wire, .from = {340, 40}, .to = {340, 60}},
    {.symbol = Symbol::node, .from = {340, 60}},
    {.symbol = Symbol::terminal, .from = {340, 40}, .name = "+E_s", .side = Side::right, .field = Text18},
});

inline constexpr auto finished = onPaper({
    Mark{.symbol = Symbol::terminal, .from = {340, 40}, .name = "+E_s", .side = Side::right, .field = Text18},
    {.symbol = Symbol::wire, .from = {340, 40}, .to = {340, 60}},
    {.symbol = Symbol::wire, .from = {240, 60}, .to = {440, 60}},
    {.symbol = Symbol::node, .from = {340, 60}},
    {.symbol = Symbol::wire, .from = {240, 60}, .to = {240, 80}},
    {.symbol = Symbol::resistor, .from = {240, 80}, .to = {240, 140}, .name = "R_L", .side = Side::left, .field = Text17},
    {.symbol = Symbol::wire, .from = {240, 140}, .to = {240, 220}},
    {.symbol = Symbol::wire, .from = {440, 60}, .to = {440, 80}},
    {.symbol = Symbol::resistor, .from = {440, 80}, .to = {440, 140}, .name = "R_L", .side = Side::right, .field = Text17},
    {.symbol = Symbol::wire, .from = {440, 140}, .to = {440, 220}},
    {.symbol = Symbol::node, .from = {240, 180}},
    {.symbol = Symbol::node, .from = {440, 180}},
    // the pair and its tail
    {.symbol = Symbol::npn, .from = {210, 250}, .name = "Q_1", .field = Text5},
    {.symbol = Symbol::npnLeft, .from = {470, 250}, .name = "Q_2", .field = Text5},
    {.symbol = Symbol::arrow, .from = {454, 188}, .to = {454, 212}, .name = "Q_Ic", .side = Side::right, .field = Text9},
    {.symbol = Symbol::wire, .from = {240, 280}, .to = {240, 310}},
    {.symbol = Symbol::wire, .from = {440, 280}, .to = {440, 310}},
    {.symbol = Symbol::wire, .from = {240, 310}, .to = {440, 310}},
    {.symbol = Symbol::node, .from = {340, 310}},
    {.symbol = Symbol::wire, .from = {340, 310}, .to = {340, 330}},
    {.symbol = Symbol::resistor, .from = {340, 330}, .to = {340, 390}, .name = "R_es", .side = Side::right, .field = Text16},
    {.symbol = Symbol::wire, .from = {340, 390}, .to = {340, 440}},
    {.symbol = Symbol::terminal, .from = {340, 440}, .name = "-E_bias", .side = Side::right, .field = Text8},
    // input 1
    {.symbol = Symbol::wire, .from = {180, 250}, .to = {210, 250}},
    {.symbol = Symbol::node, .from = {180, 250}},
    {.symbol = Symbol::wire, .from = {180, 250}, .to = {180, 290}},
    {.symbol = Symbol::resistor, .from = {180, 290}, .to = {180, 350}},
    {.symbol = Symbol::wire, .from = {180, 350}, .to = {180, 390}},
    {.symbol = Symbol::ground, .from = {180, 390}},
    {.symbol = Symbol::capacitor, .from = {110, 250}, .to = {160, 250}},
    {.symbol = Symbol::wire, .from = {160, 250}, .to = {180, 250}},
    {.symbol = Symbol::wire, .from = {90, 250}, .to = {110, 250}},
    {.symbol = Symbol::wire, .from = {90, 250}, .to = {90, 290}},
    {.symbol = Symbol::generator, .from = {90, 290}, .to = {90, 350}, .field = Text15},
    {.symbol = Symbol::wire, .from = {90, 350}, .to = {90, 390}},
    {.symbol = Symbol::ground, .from = {90, 390}},
    {.symbol = Symbol::label, .from = {70, 296}, .name = "E_in", .side = Side::left, .field = Text15},
    // input 2
    {.symbol = Symbol::wire, .from = {470, 250}, .to = {500, 250}},
    {.symbol = Symbol::node, .from = {500, 250}},
    {.symbol = Symbol::wire, .from = {500, 250}, .to = {500, 290}},
    {.symbol = Symbol::resistor, .from = {500, 290}, .to = {500, 350}, .name = "R_b2", .side = Side::right},
    {.symbol = Symbol::wire, .from = {500, 350}, .to = {500, 390}},
    {.symbol = Symbol::ground, .from = {500, 390}},
    {.symbol = Symbol::wire, .from = {500, 250}, .to = {520, 250}},
    {.symbol = Symbol::capacitor, .from = {520, 250}, .to = {570, 250}},
    {.symbol = Symbol::wire, .from = {570, 250}, .to = {590, 250}},
    {.symbol = Symbol::terminal, .from = {590, 250}},
    {.symbol = Symbol::text, .from = {590, 262}, .name = "Ent 2", .side = Side::below},
    // output 1
    {.symbol = Symbol::wire, .from = {200, 180}, .to = {240, 180}},
    {.symbol = Symbol::capacitor, .from = {150, 180}, .to = {200, 180}},
    {.symbol = Symbol::wire, .from = {40, 180}, .to = {150, 180}},
    {.symbol = Symbol::wire, .from = {40, 180}, .to = {40, 290}},
    {.symbol = Symbol::resistor, .from = {40, 290}, .to = {40, 350}, .field = Text10},
    {.symbol = Symbol::label, .from = {28, 278}, .name = "R_Lw", .side = Side::left, .field = Text10},
    {.symbol = Symbol::wire, .from = {40, 350}, .to = {40, 390}},
    {.symbol = Symbol::ground, .from = {40, 390}},
    {.symbol = Symbol::text, .from = {40, 158}, .name = "Out 1", .side = Side::above, .field = Text14},
    // output 2
    {.symbol = Symbol::wire, .from = {440, 180}, .to = {480, 180}},
    {.symbol = Symbol::capacitor, .from = {480, 180}, .to = {530, 180}},
    {.symbol = Symbol::wire, .from = {530, 180}, .to = {640, 180}},
    {.symbol = Symbol::wire, .from = {640, 180}, .to = {640, 290}},
    {.symbol = Symbol::resistor, .from = {640, 290}, .to = {640, 350}, .name = "R_Lw", .side = Side::left, .field = Text10},
    {.symbol = Symbol::wire, .from = {640, 350}, .to = {640, 390}},
    {.symbol = Symbol::ground, .from = {640, 390}},
    {.symbol = Symbol::label, .from = {640, 158}, .side = Side::above, .value = Label43},
});

// The bench. A sinusoid of the generator stands on a little screen of its own.

constexpr Mark point[]   = {{.symbol = Symbol::circle, .from = {8, 8}, .to = {20, 20}, .ink = Ink::accent}};
constexpr Mark waveA[]   = {{.symbol = Symbol::sine, .from = {3, 3}, .to = {47, 37}}};
constexpr Mark waveB[]   = {{.symbol = Symbol::sineInverted, .from = {3, 3}, .to = {47, 37}}};
constexpr Mark markA[]   = {{.symbol = Symbol::sine, .from = {3, 5}, .to = {37, 35}},
                            {.symbol = Symbol::text, .from = {20, 44}, .name = "A", .side = Side::below, .ink = Ink::accent}};
constexpr Mark markB[]   = {{.symbol = Symbol::sineInverted, .from = {3, 5}, .to = {37, 35}},
                            {.symbol = Symbol::text, .from = {20, 44}, .name = "B", .side = Side::below, .ink = Ink::accent}};
constexpr Mark markGround[] = {{.symbol = Symbol::wire, .from = {0, 20}, .to = {20, 20}},
                               {.symbol = Symbol::ground, .from = {20, 20}}};
constexpr Mark groundLeft[] = {{.symbol = Symbol::wire, .from = {20, 20}, .to = {40, 20}},
                               {.symbol = Symbol::ground, .from = {20, 20}}};
constexpr Mark screenA[] = {{.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {72, 50}, .ink = Ink::quiet},
                            {.symbol = Symbol::text, .from = {7, 12}, .name = "A", .ink = Ink::accent},
                            {.symbol = Symbol::sine, .from = {16, 9}, .to = {64, 41}}};
constexpr Mark screenB[] = {{.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {72, 50}, .ink = Ink::quiet},
                            {.symbol = Symbol::text, .from = {7, 12}, .name = "B", .ink = Ink::accent},
                            {.symbol = Symbol::sineInverted, .from = {16, 9}, .to = {64, 41}}};

constexpr Mark generatorFace[] = {
    {.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {610, 62}, .ink = Ink::quiet},
    {.symbol = Symbol::circle, .from = {12, 9}, .to = {20, 17}, .ink = Ink::accent},
    {.symbol = Symbol::text, .from = {28, 13}, .note = {.es = "GENERADOR", .en = "GENERATOR"}, .ink = Ink::quiet, .size = 80},
};
constexpr Mark meterFace[] = {
    {.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {610, 62}, .ink = Ink::quiet},
    {.symbol = Symbol::circle, .from = {12, 9}, .to = {20, 17}, .ink = Ink::accent},
    {.symbol = Symbol::text, .from = {28, 13}, .note = {.es = "MULTÍMETRO", .en = "MULTIMETER"}, .ink = Ink::quiet, .size = 80},
    {.symbol = Symbol::frame, .from = {12, 22}, .to = {232, 56}, .ink = Ink::quiet},
};
/// The reading in its display, the unit behind it.
constexpr Mark readingIn(std::string_view unit)
{
    return {.symbol = Symbol::label, .from = {224, 39}, .side = Side::left, .value = SSPanel2, .unit = unit, .size = 170};
}
constexpr Mark readingV[]    = {readingIn("V")};
constexpr Mark readingMa[]   = {readingIn("mA")};
constexpr Mark readingW[]    = {readingIn("W")};
constexpr Mark readingMw[]   = {readingIn("mW")};
constexpr Mark readingOhms[] = {readingIn("Ω")};

constexpr Mark generatorButton[] = {
    {.symbol = Symbol::oscilloscope, .from = {27, 6}, .to = {57, 36}},
    {.symbol = Symbol::text, .from = {42, 37}, .note = {.es = "Generador", .en = "Generator"}, .side = Side::below, .size = 72},
};
constexpr Mark meterButton[] = {
    {.symbol = Symbol::multimeter, .from = {27, 6}, .to = {57, 36}},
    {.symbol = Symbol::text, .from = {42, 37}, .note = {.es = "Multímetro", .en = "Multimeter"}, .side = Side::below, .size = 72},
};

// Fractions as they stand on the blackboard.

constexpr Mark formulaERes[] = {
    {.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {220, 64}, .ink = Ink::quiet},
    {.symbol = Symbol::label, .from = {8, 32}, .name = "E_Res  =", .size = 90},
    {.symbol = Symbol::text, .from = {134, 22}, .name = "(Tamb. - 25°) x (dVbe) x 100", .side = Side::above, .size = 84},
    {.symbol = Symbol::wire, .from = {58, 32}, .to = {210, 32}},
    {.symbol = Symbol::text, .from = {134, 40}, .name = "(dQic)", .side = Side::below, .size = 84},
};
constexpr Mark formulaRes[] = {
    {.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {220, 64}, .ink = Ink::quiet},
    {.symbol = Symbol::label, .from = {8, 32}, .name = "R_es  =", .size = 90},
    {.symbol = Symbol::text, .from = {78, 22}, .name = "Ebias", .side = Side::above},
    {.symbol = Symbol::wire, .from = {52, 32}, .to = {104, 32}},
    {.symbol = Symbol::text, .from = {78, 40}, .name = "2 x Qic", .side = Side::below},
    {.symbol = Symbol::text, .from = {118, 32}, .name = "Ebias = Eres + 1"},
};
constexpr Mark formulaRL[] = {
    {.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {220, 64}, .ink = Ink::quiet},
    {.symbol = Symbol::text, .from = {10, 12}, .name = "RLac = Vg x 2.5 x r'e", .size = 90},
    {.symbol = Symbol::text, .from = {10, 42}, .name = "Rl  =", .size = 90},
    {.symbol = Symbol::text, .from = {84, 33}, .name = "RLw x RLac", .side = Side::above, .size = 90},
    {.symbol = Symbol::wire, .from = {42, 42}, .to = {126, 42}},
    {.symbol = Symbol::text, .from = {84, 48}, .name = "(RLw - RLac)", .side = Side::below, .size = 90},
};
constexpr Mark formulaEs[] = {
    {.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {220, 64}, .ink = Ink::quiet},
    {.symbol = Symbol::text, .from = {12, 22}, .name = "EQ(min) = 1 + Eopp"},
    {.symbol = Symbol::text, .from = {12, 43}, .name = "Es(min) = EQ(min) + ERl"},
};
constexpr Mark formulaRe[] = {
    {.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {220, 64}, .ink = Ink::quiet},
    {.symbol = Symbol::label, .from = {8, 32}, .name = "r'_e  =", .size = 90},
    {.symbol = Symbol::text, .from = {78, 22}, .name = "25 mV", .side = Side::above},
    {.symbol = Symbol::wire, .from = {52, 32}, .to = {104, 32}},
    {.symbol = Symbol::text, .from = {78, 40}, .name = "Qic", .side = Side::below},
};

// clang-format on

} // namespace velmor::form3::drawings
