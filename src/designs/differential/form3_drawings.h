// SPDX-License-Identifier: MIT
// What `Form3` draws: the didactic picture, the parts that the chain inks in, the finished design, the instruments and the
// formulas. Units are those of the drawing grid, from the left top corner of each control; tables alone.
#pragma once

#include "designs/differential/form3_controls.h"

namespace velmor::form3::drawings {

using host::collectorEnd;
using host::emitterEnd;
using host::GridPoint;
using host::Ink;
using host::Mark;
using host::Side;
using host::Symbol;

// clang-format off

// Both pictures stand on the same grid: the supply rail at 60, collectors at 240 and 440, bases at 250, the tail at 340.

// What is still to be designed stands there pale and gives way to the part as the chain reaches it.

constexpr Mark paleNegativeSupply[] = {
    {.symbol = Symbol::wire, .from = {340, 390}, .to = {340, 440}, .ink = Ink::quiet},
    {.symbol = Symbol::terminal, .from = {340, 440}, .name = "-E_bias", .side = Side::right, .ink = Ink::quiet},
};
constexpr Mark paleTail[] = {
    {.symbol = Symbol::wire, .from = {340, 310}, .to = {340, 330}, .ink = Ink::quiet},
    {.symbol = Symbol::resistor, .from = {340, 330}, .to = {340, 390}, .name = "R_es", .side = Side::right, .ink = Ink::quiet},
};
constexpr Mark paleCollectorResistors[] = {
    {.symbol = Symbol::resistor, .from = {240, 80}, .to = {240, 140}, .name = "R_L", .side = Side::left, .ink = Ink::quiet},
    {.symbol = Symbol::wire, .from = {240, 140}, .to = {240, 180}, .ink = Ink::quiet},
    {.symbol = Symbol::resistor, .from = {440, 80}, .to = {440, 140}, .name = "R_L", .side = Side::right, .ink = Ink::quiet},
    {.symbol = Symbol::wire, .from = {440, 140}, .to = {440, 180}, .ink = Ink::quiet},
};
constexpr Mark palePositiveSupply[] = {
    {.symbol = Symbol::wire, .from = {240, 60}, .to = {440, 60}, .ink = Ink::quiet},
    {.symbol = Symbol::wire, .from = {240, 60}, .to = {240, 80}, .ink = Ink::quiet},
    {.symbol = Symbol::wire, .from = {440, 60}, .to = {440, 80}, .ink = Ink::quiet},
    {.symbol = Symbol::wire, .from = {340, 36}, .to = {340, 60}, .ink = Ink::quiet},
    {.symbol = Symbol::node, .from = {340, 60}, .ink = Ink::quiet},
    {.symbol = Symbol::terminal, .from = {340, 36}, .name = "+E_s", .side = Side::right, .ink = Ink::quiet},
};

constexpr Mark didactic[] = {
    // the pair
    {.symbol = Symbol::npn, .from = {210, 250}, .name = "Q_1", .field = Text5},
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
    // outputs
    {.symbol = Symbol::wire, .from = {240, 180}, .to = {150, 180}},
    {.symbol = Symbol::terminal, .from = {150, 180}},
    {.symbol = Symbol::text, .from = {150, 160}, .name = "Out 1", .side = Side::above, .field = Text14},
    {.symbol = Symbol::wire, .from = {440, 180}, .to = {530, 180}},
    {.symbol = Symbol::terminal, .from = {530, 180}},
    {.symbol = Symbol::node, .from = {240, 180}},
    {.symbol = Symbol::node, .from = {440, 180}},
    {.symbol = Symbol::meter, .from = {240, 180}, .to = {440, 180}, .name = "V", .ink = Ink::quiet},
    {.symbol = Symbol::text, .from = {340, 156}, .name = "Out 3", .side = Side::above, .ink = Ink::quiet},
    {.symbol = Symbol::text, .from = {20, 492}, .note = {.es = "Ejemplo de caracter didactico,  no apto para diseño...",
                                                         .en = "Example of didactic character, not capable for design."},
     .ink = Ink::quiet},
};

// The parts as the chain reaches them. Their names serve the fields beside them, which bear none of their own.

constexpr Mark negativeSupply[] = {
    {.symbol = Symbol::wire, .from = {340, 390}, .to = {340, 440}},
    {.symbol = Symbol::terminal, .from = {340, 440}, .name = "-E_bias", .side = Side::right, .field = Text8},
};
constexpr Mark tail[] = {
    {.symbol = Symbol::wire, .from = {340, 310}, .to = {340, 330}},
    {.symbol = Symbol::resistor, .from = {340, 330}, .to = {340, 390}, .name = "R_es", .side = Side::right, .field = Text16},
};
constexpr Mark collectorResistors[] = {
    {.symbol = Symbol::resistor, .from = {240, 80}, .to = {240, 140}, .name = "R_L", .side = Side::left, .field = Text17},
    {.symbol = Symbol::wire, .from = {240, 140}, .to = {240, 180}},
    {.symbol = Symbol::resistor, .from = {440, 80}, .to = {440, 140}, .name = "R_L", .side = Side::right, .field = Text17},
    {.symbol = Symbol::wire, .from = {440, 140}, .to = {440, 180}},
};
constexpr Mark positiveSupply[] = {
    {.symbol = Symbol::wire, .from = {240, 60}, .to = {440, 60}},
    {.symbol = Symbol::wire, .from = {240, 60}, .to = {240, 80}},
    {.symbol = Symbol::wire, .from = {440, 60}, .to = {440, 80}},
    {.symbol = Symbol::wire, .from = {340, 36}, .to = {340, 60}},
    {.symbol = Symbol::node, .from = {340, 60}},
    {.symbol = Symbol::terminal, .from = {340, 36}, .name = "+E_s", .side = Side::right, .field = Text18},
};

constexpr Mark finished[] = {
    {.symbol = Symbol::terminal, .from = {340, 36}, .name = "+E_s", .side = Side::right, .field = Text18},
    {.symbol = Symbol::wire, .from = {340, 36}, .to = {340, 60}},
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
    {.symbol = Symbol::wire, .from = {92, 250}, .to = {110, 250}},
    {.symbol = Symbol::wire, .from = {92, 250}, .to = {92, 290}},
    {.symbol = Symbol::generator, .from = {92, 290}, .to = {92, 350}, .field = Text15},
    {.symbol = Symbol::wire, .from = {92, 350}, .to = {92, 390}},
    {.symbol = Symbol::ground, .from = {92, 390}},
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
    {.symbol = Symbol::wire, .from = {570, 250}, .to = {588, 250}},
    {.symbol = Symbol::terminal, .from = {588, 250}},
    {.symbol = Symbol::text, .from = {588, 262}, .name = "Ent 2", .side = Side::below},
    // output 1
    {.symbol = Symbol::wire, .from = {200, 180}, .to = {240, 180}},
    {.symbol = Symbol::capacitor, .from = {150, 180}, .to = {200, 180}},
    {.symbol = Symbol::wire, .from = {36, 180}, .to = {150, 180}},
    {.symbol = Symbol::wire, .from = {36, 180}, .to = {36, 290}},
    {.symbol = Symbol::resistor, .from = {36, 290}, .to = {36, 350}, .field = Text10},
    {.symbol = Symbol::label, .from = {24, 278}, .name = "R_Lw", .side = Side::left, .field = Text10},
    {.symbol = Symbol::wire, .from = {36, 350}, .to = {36, 390}},
    {.symbol = Symbol::ground, .from = {36, 390}},
    {.symbol = Symbol::text, .from = {36, 158}, .name = "Out 1", .side = Side::above, .field = Text14},
    // output 2
    {.symbol = Symbol::wire, .from = {440, 180}, .to = {480, 180}},
    {.symbol = Symbol::capacitor, .from = {480, 180}, .to = {530, 180}},
    {.symbol = Symbol::wire, .from = {530, 180}, .to = {644, 180}},
    {.symbol = Symbol::wire, .from = {644, 180}, .to = {644, 290}},
    {.symbol = Symbol::resistor, .from = {644, 290}, .to = {644, 350}, .name = "R_Lw", .side = Side::left, .field = Text10},
    {.symbol = Symbol::wire, .from = {644, 350}, .to = {644, 390}},
    {.symbol = Symbol::ground, .from = {644, 390}},
};

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
constexpr Mark screenA[] = {{.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {92, 78}},
                            {.symbol = Symbol::text, .from = {8, 13}, .name = "A", .ink = Ink::accent},
                            {.symbol = Symbol::sine, .from = {14, 18}, .to = {78, 66}}};
constexpr Mark screenB[] = {{.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {92, 78}},
                            {.symbol = Symbol::text, .from = {8, 13}, .name = "B", .ink = Ink::accent},
                            {.symbol = Symbol::sineInverted, .from = {14, 18}, .to = {78, 66}}};

constexpr Mark generatorFace[] = {
    {.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {228, 186}},
    {.symbol = Symbol::text, .from = {114, 20}, .note = {.es = "GENERADOR", .en = "GENERATOR"}, .side = Side::above, .ink = Ink::quiet},
    {.symbol = Symbol::circle, .from = {10, 8}, .to = {18, 16}, .ink = Ink::accent},
    {.symbol = Symbol::terminal, .from = {59, 128}}, {.symbol = Symbol::terminal, .from = {169, 128}},
};
constexpr Mark meterFace[] = {
    {.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {228, 186}},
    {.symbol = Symbol::circle, .from = {10, 8}, .to = {18, 16}, .ink = Ink::accent},
    {.symbol = Symbol::text, .from = {114, 20}, .note = {.es = "MULTÍMETRO", .en = "MULTIMETER"}, .side = Side::above, .ink = Ink::quiet},
    {.symbol = Symbol::terminal, .from = {180, 172}, .name = "-", .side = Side::left},
    {.symbol = Symbol::terminal, .from = {204, 172}, .ink = Ink::accent},
};
constexpr Mark generatorButton[] = {
    {.symbol = Symbol::oscilloscope, .from = {12, 6}, .to = {40, 34}},
    {.symbol = Symbol::text, .from = {52, 20}, .note = {.es = "Generador de señales", .en = "Signal generator"}},
};
constexpr Mark meterButton[] = {
    {.symbol = Symbol::multimeter, .from = {12, 6}, .to = {40, 34}},
    {.symbol = Symbol::text, .from = {52, 20}, .note = {.es = "Multímetro", .en = "Multimeter"}},
};

// Fractions as they stand on the blackboard.

constexpr Mark formulaERes[] = {
    {.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {308, 52}, .ink = Ink::quiet},
    {.symbol = Symbol::label, .from = {12, 26}, .name = "E_Res  ="},
    {.symbol = Symbol::text, .from = {180, 16}, .name = "(Tamb. - 25°) x (dVbe) x 100", .side = Side::above, .size = 118},
    {.symbol = Symbol::wire, .from = {66, 26}, .to = {294, 26}},
    {.symbol = Symbol::text, .from = {180, 33}, .name = "(dQic)", .side = Side::below, .size = 118},
};
constexpr Mark formulaRes[] = {
    {.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {308, 52}, .ink = Ink::quiet},
    {.symbol = Symbol::label, .from = {12, 26}, .name = "R_es  ="},
    {.symbol = Symbol::text, .from = {92, 16}, .name = "Ebias", .side = Side::above, .size = 118},
    {.symbol = Symbol::wire, .from = {60, 26}, .to = {124, 26}},
    {.symbol = Symbol::text, .from = {92, 33}, .name = "2 x Qic", .side = Side::below, .size = 118},
    {.symbol = Symbol::text, .from = {166, 26}, .name = "Ebias = Eres + 1", .size = 118},
};
constexpr Mark formulaRL[] = {
    {.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {308, 52}, .ink = Ink::quiet},
    {.symbol = Symbol::text, .from = {10, 26}, .name = "RLac = Vg x 2.5 x r'e", .size = 108},
    {.symbol = Symbol::text, .from = {168, 26}, .name = "Rl  =", .size = 108},
    {.symbol = Symbol::text, .from = {250, 16}, .name = "RLw x RLac", .side = Side::above, .size = 108},
    {.symbol = Symbol::wire, .from = {202, 26}, .to = {298, 26}},
    {.symbol = Symbol::text, .from = {250, 33}, .name = "(RLw - RLac)", .side = Side::below, .size = 108},
};
constexpr Mark formulaEs[] = {
    {.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {308, 52}, .ink = Ink::quiet},
    {.symbol = Symbol::text, .from = {20, 16}, .name = "EQ(min) = 1 + Eopp", .size = 118},
    {.symbol = Symbol::text, .from = {20, 37}, .name = "Es(min) = EQ(min) + ERl", .size = 118},
};
constexpr Mark formulaRe[] = {
    {.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {308, 52}, .ink = Ink::quiet},
    {.symbol = Symbol::label, .from = {12, 26}, .name = "r'_e  ="},
    {.symbol = Symbol::text, .from = {92, 16}, .name = "25 mV", .side = Side::above, .size = 118},
    {.symbol = Symbol::wire, .from = {60, 26}, .to = {124, 26}},
    {.symbol = Symbol::text, .from = {92, 33}, .name = "Qic", .side = Side::below, .size = 118},
};

constexpr Mark calculatorMark[] = {{.symbol = Symbol::calculator, .from = {9, 7}, .to = {33, 31}}};
constexpr Mark reportMark[]     = {{.symbol = Symbol::page, .from = {9, 7}, .to = {33, 31}}};
constexpr Mark guideMark[]      = {{.symbol = Symbol::book, .from = {9, 7}, .to = {33, 31}}};
constexpr Mark cloneMark[]      = {{.symbol = Symbol::frame, .from = {11, 9}, .to = {25, 23}},
                                   {.symbol = Symbol::frame, .from = {17, 15}, .to = {31, 29}}};
constexpr Mark cloneOtherMark[] = {{.symbol = Symbol::frame, .from = {17, 9}, .to = {31, 23}},
                                   {.symbol = Symbol::frame, .from = {11, 15}, .to = {25, 29}}};
constexpr Mark helpMark[]       = {{.symbol = Symbol::question, .from = {9, 7}, .to = {33, 31}}};
constexpr Mark hideHelpMark[]   = {{.symbol = Symbol::lamp, .from = {9, 7}, .to = {33, 31}}};

// clang-format on

} // namespace velmor::form3::drawings
