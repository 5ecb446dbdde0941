// SPDX-License-Identifier: MIT
// What the emitter follower and the phase splitter say alike: headings, advice, boxes, prompts and the verdict of the analysis.
// Spanish beside English; blanks and misprints are as the course's students know them. Texts only.
#pragma once

#include "host/bitext.h"
#include "sheets/saying.h"

namespace velmor::base_collector {

using host::BiText;
using sheets::Saying;

// clang-format off
inline constexpr BiText transistorHeading{"Parámetros del Transistor", "Transistor Parameters"};
inline constexpr BiText circuitHeading{"Parámetros del Circuito", "Circuits Parameters"};
inline constexpr BiText archived{"Circuito de Archivo", "Archive Circuit"};

// The least supply, above and below its value.
inline constexpr BiText leastSupplyAbove{"Tensión min. de fuente: \n", "Voltage  min. of D.C. source :         \n"};
inline constexpr BiText leastSupplyBelow{"   Volts\nColoque tensión disponible...", "   Volts\nPut voltage available ..."};

inline constexpr BiText putRb2{"Coloque un valor comercial.", "Put a normalized value."};
inline constexpr BiText putRb1{"Coloque un valor comercial...", "Put a normalized value..."};
inline constexpr BiText formulaOfRb2{" Formula utilizada:            Rb2 = S x Res // RLw    ",
                                     " Formulates used :            Rb2 = S x Res // RLw    "};

inline constexpr Saying adjustRb1{
    .text  = {"Corriente de Colector obtenida es diferente a QIc diseñada...", " Collector currents it's different to design.."},
    .title = {"Ajuste valor de Rb1", "Adjust Preset Rb1..."},
    .flags = 48};

// The page of analysis. Both formulas of power go on with their value and its unit.
inline constexpr BiText leafName{"Hoja de Análisis", "Leaf of Analysis"};
inline constexpr BiText outputPower{"Potencia de salida :", "Output power:"};
inline constexpr BiText outputFormula{"         Eo(eficaz)^2 / RLw =", "        Eo(r.m.s.)^2 / RLw ="};
inline constexpr BiText lightLoad{
    " La Zin de entrada es lo suficientemente elevada y no presentara una carga 'pesada'  al generador",
    " The entrance Zin is the sufficiently high thing and it didn't present a load ' heavy ' to the generator"};
inline constexpr BiText generatorPower{"La potencia que puede desarrollar el generador es:",
                                       "The power that can develop the generator is: "};
inline constexpr BiText heavyLoad{
    " La Zin de entrada es mas pequeña que la del generador, este necesitara suministrar una potencia de :",
    "The entrance Zin is but small that that of the generator, this she/he needed to give a power of: "};
inline constexpr BiText inputFormula{"                 Ein^2 / Zin =", "                 Ein^2 / Zin ="};
// clang-format on

} // namespace velmor::base_collector
