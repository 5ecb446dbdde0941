// SPDX-License-Identifier: MIT
// What `Form17` says besides what its family says (follower_texts.h): prompts and names under the pointer by field,
// boxes, captions, help pages; Spanish beside English. Misprints are the course's. Texts only.
#pragma once

#include <span>

#include "designs/base_collector/follower_texts.h"
#include "designs/base_collector/form17_controls.h"
#include "sheets/chain.h"

namespace velmor::form17 {

using host::BiText;
using sheets::Saying;

/// Prompts by field and moment, names of what is under the pointer.
extern const std::span<const Saying> sayings;
/// Pages of the fields, in the order in which tags are tested.
extern const std::span<const sheets::HelpPage> helpPages;
/// The general help, on the sheet itself.
extern const BiText helpText;

// clang-format off
// Boxes, in the order in which a student may meet them.
inline constexpr Saying outputOverTransistor{
    .text  = {"La tensión ' Eopp ', no debe supera la máxima que soporta el transistor.",
              "The voltage ' Eopp ' doesn't should it overcomes the maxim that supports the transistor."},
    .title = {"Criterio de diseño...", "Design approach..."},
    .flags = 16};
inline constexpr Saying currentOverTransistor{
    .text  = {"Corriente de Colector supera ICmax...", "Current of Collector ICmax overcomes..."},
    .title = {"Es conveniente elegir otro transistor...", "..it is convenient to choose another transistor."},
    .flags = 48};
inline constexpr Saying voltageOverTransistor{
    .text  = {"Tensión Colector -Emisor supera a Ecmax...", "Voltage Clollector - Emitter upper to  Ecmax..."},
    .title = {"Cambie el transistor...", "Change the transistor..."},
    .flags = 48};
inline constexpr Saying voltageOverTransistorAtSupply{
    .text  = {"Tensión Colector -Emisor supera a Ecmax...", " Collector -Emitter voltage overcomes Ecmax..."},
    .title = {"Cambie el transistor...", "Change the transistor..."},
    .flags = 48};
inline constexpr Saying lessThanThreeVolts{
    .text  = {"Desea continuar..? (Si)   Cambiar Fuente...(No)", "Continue..? (Yes)   Change Source...(No)"},
    .title = {"    Tensión COLECTOR - EMISOR es menor a 3 Volts...", "    Voltage COLLECTOR - EMITTER is smaller to 3 Volts..."},
    .flags = 36};
inline constexpr Saying lessThanOneVolt{
    .text  = {"Insuficiente Fuente", "Not enugth source"},
    .title = {"    Tensión COLECTOR - EMISOR es menor a 1 Volts...", "    Voltage COLLECTOR - EMITTER more small to 1 Volt..."},
    .flags = 48};
inline constexpr Saying unityGain{
    .text  = {"La ganancia en Colector Común es unitaria...", "The gain in Common Collector is unitary..."},
    .title = {"Concepto de diseño.", "Design concept."},
    .flags = 48};

// Captions and prompts that belong to no single field.
inline constexpr std::string_view storedTitle = "  Circuito  Colector Comun";
inline constexpr BiText fileFilter{"Colector Común (*.CCC)|*.CCC", "Common Collector(*.COC)|*.COC"};
inline constexpr BiText guideFile{"Coleco.Lab", "Coleco.Lab"};
inline constexpr BiText generatorHeading{"Rg de generador (Kohm)", "Rg of generator (Kohm)"};
inline constexpr BiText lightPrompt{
    " En el semáforo se encuentra la 'Hoja de Análisis', haga Click sobre el mismo para observar la relación entre la impedancia del "
    "generador (Rin) y la Zin de entrada. ",
    "In the traffic light is the ' Leaf of Analysis ', make Click on the same one to observe the relationship among the impedance of "
    "the generator (Rg) and the entrance impedance (Zin)."};
inline constexpr BiText generatorFormula{"             Pg = ", "             Pg = "};
// clang-format on

} // namespace velmor::form17
