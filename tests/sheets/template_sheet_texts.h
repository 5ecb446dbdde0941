// SPDX-License-Identifier: MIT
// Everything that the template sheet says: prompts by field and moment, boxes, captions, help pages; Spanish beside English.
// Texts only.
#pragma once

#include <array>

#include "sheets/chain.h"
#include "sheets/saying.h"
#include "sheets/template_sheet_controls.h"

namespace velmor::template_sheet {

using host::BiText;
using sheets::HelpPage;
using sheets::placeANumber;
using sheets::Saying;
using sheets::When;

// clang-format off
// field, moment, place, Spanish, English
inline constexpr auto sayings = std::to_array<Saying>({
    placeANumber,
    {Text1, When::focus, SSPanel1, {"Coloque la tensión de alimentación, de 3 a 30 Volts.",
                                    "Place the supply voltage, from 3 to 30 Volts."}},
    {Text1, When::hover, status1,  {"Es, alimentación", "Es, supply"}},
    {Text2, When::focus, SSPanel1, {"Coloque la temperatura ambiente en la que operará el circuito.",
                                    "Place the ambient temperature at which the circuit will work."}},
    {Text2, When::hover, status1,  {"T, temperatura", "T, temperature"}},
    {Text3, When::focus, SSPanel1, {"Coloque la corriente de reposo en mA.", "Place the quiescent current in mA."}},
    {Text3, When::hover, status1,  {"QIc, corriente de reposo", "QIc, quiescent current"}},
    {Text4, When::focus, SSPanel1, {"La mitad de Es permite la mayor señal.", "Half of Es leaves room for the largest signal."}},
    {Text4, When::hover, status1,  {"Eq, tensión del transistor", "Eq, voltage of the transistor"}},
    {Text5, When::focus, SSPanel1, {"Elija el valor normalizado más cercano.", "Choose the nearest standard value."}},
    {Text5, When::hover, status1,  {"RL, resistor de carga", "RL, load resistor"}},
});

// Boxes, in the order in which a student may meet them.
inline constexpr Saying currentTooLow{
    .text  = {"Con menos de 0,1 mA el transistor no conduce.", "With less than 0.1 mA the transistor does not conduct."},
    .title = {"Criterio de diseño...", "Design approach..."},
    .flags = 48};
inline constexpr Saying emptyLeft{
    .text  = {"Debe colocar una cifra", "It should place a value"},
    .title = {"Error de datos", "Error of data"}};
inline constexpr Saying supplyTooLow{
    .text  = {"Eq no puede alcanzar a Es. Aumente Es.", "Eq cannot reach Es. Raise Es."},
    .title = {"Criterio de diseño...", "Design approach..."},
    .flags = 48};

// Captions and prompts that belong to no single field.
inline constexpr BiText sheetTitle{"  Resistor de carga", "  Load resistor"};
inline constexpr BiText fileFilter{"Resistor de carga (*.RDC)|*.RDC", "Load resistor (*.LOR)|*.LOR"};
inline constexpr BiText circuitHeading{"Parámetros del Circuito", "Circuit Parameters"};
inline constexpr BiText transistorHeading{"Parámetros del transistor", "Transistor Parameters"};
inline constexpr BiText archived{"                   Circuito de Archivo", "                   Archive Circuit"};
inline constexpr BiText lampHint{"El indicador necesita 2 Volts.", "The lamp needs 2 Volts."};
inline constexpr BiText guideFile{"guia1.Lab", "Feedback current.Lab"};
inline constexpr BiText helpText{"RL queda entre la alimentación y el colector.\n\nRL = (Es - Eq) / QIc",
                                 "RL stands between the supply and the collector.\n\nRL = (Es - Eq) / QIc"};

// Pages of the fields, in the order in which tags are tested.
inline constexpr auto helpPages = std::to_array<HelpPage>({
    {Text1, " Es...",  {"Es es la tensión de la fuente.\n\nSe acepta de 3 a 30 Volts.",
                        "Es is the voltage of the supply.\n\nFrom 3 to 30 Volts is accepted."}},
    {Text3, " QIc...", {"QIc es la corriente de reposo.\n\nRL = (Es - Eq) / QIc", "QIc is the quiescent current.\n\nRL = (Es - Eq) / QIc"}},
});
// clang-format on

} // namespace velmor::template_sheet
