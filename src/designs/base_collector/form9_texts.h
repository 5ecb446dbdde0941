// SPDX-License-Identifier: MIT
// What `Form9` says besides what its family says (follower_texts.h): prompts and names under the pointer by field,
// boxes, captions; Spanish beside English. Misprints are the course's. Texts only.
#pragma once

#include <span>

#include "designs/base_collector/follower_texts.h"
#include "designs/base_collector/form9_controls.h"

namespace velmor::form9 {

using host::BiText;
using sheets::Saying;

/// Prompts by field and moment, names of what is under the pointer.
extern const std::span<const Saying> sayings;
/// The general help, on the sheet itself.
extern const BiText helpText;

// clang-format off
// Boxes, in the order in which a student may meet them.
inline constexpr Saying outputOverTransistor{
    .text  = {"La tensión ' Eopp ', no debe supera la máxima que soporta el transistor.",
              "The voltage ' Eopp ' doesn't should it overcomes the maxim D.C. voltage that supports the transistor."},
    .title = {"Criterio de diseño...", "Design approach..."},
    .flags = 16};
inline constexpr Saying currentOverTransistor{
    .text  = {"La corriente ' QIc ', no debe superar la máxima que soporta el transistor.",
              "The current ' QIc ' doesn't should it overcomes the maxim that supports the transistor."},
    .title = {"Criterio de diseño...", "Design approach..."},
    .flags = 16};
inline constexpr Saying lowSupply{
    .text  = {"La tensión de  fuente es baja, si elige elevarla obtendrá más impedancia  de entrada...",
              "The source voltage is low, if chooses to elevate it you will obtain more entrance impedance..."},
    .title = {"Es aconsejable elevar la fuente  de alimentación", "Is advisable to elevate the feeding source"},
    .flags = 20};
inline constexpr Saying loadVoltageTooLow{
    .text  = {"Aumente valor de RL", "Up value for RL"},
    .title = {"Tensión en ERL es insuficiente para Eopp", "  ERL Voltage isn't enought for Eopp"},
    .flags = 48};
inline constexpr Saying unityGain{
    .text  = {"La ganancia en circuitos Parafase es unitaria...", "The gain in circuits Paraphase is unitary..."},
    .title = {"Concepto de diseño.", "Design concept."},
    .flags = 48};

// The question of the small voltage, on its panel.
inline constexpr BiText smallVoltage{"Tensión COLECTOR - EMISOR es menor a 3 Volts...",
                                     " Voltage COLLECTOR - EMITTER is less to 3 Volts..."};
inline constexpr BiText follow{"Continuar", "Follow"};
inline constexpr BiText changeOutput{"Cambiar Eopp", "Change Eopp"};

// Captions and prompts that belong to no single field.
inline constexpr BiText fileFilter{"Inversor de Fase (*.CIF)|*.CIF", "Paraphase(*.PCI)|*.PCI"};
inline constexpr BiText guideFile{"Parafase.Lab", "Parafase.Lab"};
inline constexpr BiText generatorHeading{"Rg de generador     (Kohm)", "Rg of generator     (Kohm)"};
inline constexpr BiText minimiseHint{" Al minimizar haga Click sobre la pantalla para obtener más circuitos",
                                     " If Minimized, Click in screen and obtain more circuits..."};
inline constexpr BiText putRL{"  Kohm,         coloque valor comercial...", "  Kohm,         put normalized value..."};
inline constexpr BiText analysisPrompt{
    " Click sobre  'Hoja de Análisis',  para observar la relación entre la impedancia del generador (Rg) y la Zin de entrada.\n"
    " Varíe Rb1 hasta que la corriente del miliamperímetro sea igual a QIc.",
    " Make Click on ' Leaf of Analysis ',  and observe the relationship among the impedance of the generator (Rg) and the entrance "
    "impedance (Zin).\n It varies Rb1 until the current of the milliammeter is equal to QIc."};
inline constexpr BiText generatorFormula{"             Pg = ", "            Pg = "};
// clang-format on

} // namespace velmor::form9
