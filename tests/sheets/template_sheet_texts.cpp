// SPDX-License-Identifier: MIT
// The texts of the template sheet, Spanish beside English.
#include "sheets/template_sheet_texts.h"

namespace velmor::template_sheet {

using host::BiText;
using sheets::BoxText;

namespace texts_detail {

// clang-format off
// field, panel, note
constexpr Prompt promptRows[] = {
    {Text1, {"Coloque la tensión de alimentación, de 3 a 30 Volts.", "Place the supply voltage, from 3 to 30 Volts."},
            {"Es, alimentación", "Es, supply"}},
    {Text2, {"Coloque la temperatura ambiente en la que operará el circuito.", "Place the ambient temperature at which the circuit will work."},
            {"T, temperatura", "T, temperature"}},
    {Text3, {"Coloque la corriente de reposo en mA.", "Place the quiescent current in mA."},
            {"QIc, corriente de reposo", "QIc, quiescent current"}},
    {Text4, {"La mitad de Es permite la mayor señal.", "Half of Es leaves room for the largest signal."},
            {"Eq, tensión del transistor", "Eq, voltage of the transistor"}},
    {Text5, {"Elija el valor normalizado más cercano.", "Choose the nearest standard value."},
            {"RL, resistor de carga", "RL, load resistor"}},
};
// clang-format on

} // namespace texts_detail

const std::span<const Prompt> prompts = texts_detail::promptRows;

// clang-format off
const BoxText currentTooLow{
    .text  = {"Con menos de 0,1 mA el transistor no conduce.", "With less than 0.1 mA the transistor does not conduct."},
    .title = {"Criterio de diseño...", "Design approach..."},
    .flags = 48};
const BoxText emptyLeft{
    .text  = {"Debe colocar una cifra", "It should place a value"},
    .title = {"Error de datos", "Error of data"},
    .flags = 0};
const BoxText supplyTooLow{
    .text  = {"Eq no puede alcanzar a Es. Aumente Es.", "Eq cannot reach Es. Raise Es."},
    .title = {"Criterio de diseño...", "Design approach..."},
    .flags = 48};

const BiText sheetTitle{"  Resistor de carga", "  Load resistor"};
const BiText fileFilter{"Resistor de carga (*.RDC)|*.RDC", "Load resistor (*.LOR)|*.LOR"};
const BiText circuitHeading{"Parámetros del Circuito", "Circuit Parameters"};
const BiText transistorHeading{"Parámetros del transistor", "Transistor Parameters"};
const BiText archived{"                   Circuito de Archivo", "                   Archive Circuit"};
const BiText guide{"guia1.Lab", "Feedback current.Lab"};
const BiText helpText{"RL queda entre la alimentación y el colector.\n\nRL = (Es - Eq) / QIc",
                      "RL stands between the supply and the collector.\n\nRL = (Es - Eq) / QIc"};
// clang-format on

} // namespace velmor::template_sheet
