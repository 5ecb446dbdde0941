// SPDX-License-Identifier: MIT
// What `Form4` says: prompts by field and moment, boxes, captions. Texts only; blanks and misprints are the course's.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "designs/base_collector/form4_controls.h"
#include "sheets/chain.h"
#include "sheets/saying.h"

namespace velmor::form4::texts {

using host::BiText;
using sheets::Saying;
using sheets::When;

/// Prompts by field and moment.
extern const std::span<const Saying> sayings;
/// Pages of the fields, in the order in which tags are tested.
extern const std::span<const sheets::HelpPage> helpPages;
/// The general help, a page that lies on the sheet.
extern const BiText generalHelp;

inline constexpr BiText fileFilter{.es = "Base Común (*.BCC)|*.BCC", .en = "Common Base(*.BCI)|*.BCI"};
inline constexpr BiText guide{.es = "bascom.Lab", .en = "basicom.Lab"};
inline constexpr BiText transistorHeading{.es = "Parámetros del transistor", .en = "Transistor Parameters"};
inline constexpr BiText circuitHeading{.es = "Parámetros del Circuito", .en = "Circuit Parameters"};
inline constexpr BiText archived{.es = "Circuito de Archivo : Base Común", .en = "Archive Circuit : Common Base"};

/// The names of the parts, which their labels show until there is a value.
struct PartName {
    host::Handle label = host::noControl;
    std::string_view name{};
};
inline constexpr auto partNames = std::to_array<PartName>({
    {Label20, "\nRes"},
    {Label21, "\nRb2"},
    {Label24, "\nRb1"},
    {Label19, "\nRL"},
    {Label23, "\nQ1"},
    {Label30, "\nRLw"},
});

// Boxes, in the order in which a student may meet them.

inline constexpr BiText designApproach{.es = "Criterio de diseño...", .en = "Design approach..."};
inline constexpr Saying voltageOverLimit{
    .text = {.es = "La tensión ' Eopp ', no debe superar la máxima que soporta el transistor.",
             .en = "The voltage ' Eopp ' doesn't should it overcomes the maxim that supports the transistor."},
    .title = designApproach,
    .flags = 16};
inline constexpr Saying currentOverLimit{
    .text = {.es = "La corriente ' QIc ', no debe superar la máxima que soporta el transistor.",
             .en = "The current ' QIc ' doesn't should it overcomes the maxim that supports the transistor."},
    .title = designApproach,
    .flags = 16};
inline constexpr Saying supplyTooLow{
    .text = {.es =
                 "Al ser el valor de Fuente de Alimentación menor a la mínima necesaria, se produciran recortes de la "
                 "señal...",
             .en = "The value of Source Voltage is smaller to the minimum one necessary, cuttings of the sign will "
                   "take place..."},
    .title = {.es = "El diseño NO cumplira con las especificaciones circuitales...",
              .en = "The design won't fulfill the specifications circuitales..."},
    .flags = 48};
inline constexpr Saying raiseCurrent{
    .text = {.es = "La corriente asignada QIc es baja, debera  elevarla aunque obtenga  menos impedancia  de "
                   "entrada...",
             .en = "The assigned current QIc is low, it will elevate it although obtains less entrance impedance..."},
    .title = {.es = "Es aconsejable elevar la corriente QIc", .en = "it is advisable to elevate the current QIc"},
    .flags = 20};
inline constexpr Saying insistNot{
    .text = {.es = "Lo siento, la corriente asignada QIc es demasiado baja, debera  elevarla ...",
             .en = "Sorry, the assigned current QIc is too low, it will elevate it..."},
    .title = {.es = "No insista...", .en = "You doesn't insist..."},
    .flags = 20};
inline constexpr Saying loadVoltageTooLow{
    .text = {.es = "En tiempo de diseño, la pequeña Vg asignada hace una ERL de insuficiente valor Continua..? (Si)   "
                   "Cambia Vg ...(No)",
             .en = "In time of design, the litlle Vg asignated make a small ERL Continue..? (Yes)   Change Vg ...(No)"},
    .title = {.es = "    Voltaje ERL es menor a 1/2 Eopp ...", .en = "    Voltage ERL is less to 1/2 Eopp ..."},
    .flags = 36};
inline constexpr Saying adjustPreset{.text = {.es = "Corriente de Colector obtenida es diferente a QIc diseñada...",
                                              .en = " Collector currents it's different to design.."},
                                     .title = {.es = "Ajuste valor de Rb1", .en = "Adjust Preset Rb1..."},
                                     .flags = 48};

// What is written behind values.

inline constexpr BiText putStandardRes{.es = "Coloque valor comercial...", .en = "Put normalized value..."};
inline constexpr BiText putStandardRb2{.es = "Coloque un valor comercial.", .en = "Put normalized value..."};
inline constexpr BiText putStandardRL{.es = "  Kohm, coloque valor comercial...",
                                      .en = "  Kohm, put normalized value..."};
inline constexpr BiText putPreset{.es = "Coloque valores al 'Preset'y pulse Enter...",
                                  .en = "Assign  values to the  'Preset' and push Enter..."};
inline constexpr BiText stabilityVoltage{.es = "Tensión de estabilidad:\n", .en = "Voltage  of stability:\n"};
inline constexpr BiText leastSource{.es = "Tensión min. de fuente:\n", .en = "Source voltage min.: \n"};
inline constexpr BiText availableSource{.es = "   Volts\nColoque tensión disponible...",
                                        .en = "   V\nPlace available voltage.. ."};

// The analysis.

inline constexpr Saying clickLeaf{
    .place = Label5,
    .text = {.es = " Haga CLICK sobre el cuadro superior para obtener el Análisis del Circuito.",
             .en = " Make CLICK over Box up to see ' Leaf of Analysis '."}};
inline constexpr Saying dragSource{
    .place = Label33,
    .text = {.es = " Intente llevar la señal que entra por emisor hacia el capacitor de entrada...",
             .en = " Drag drop the signal emmiter to the entrance capacitor..."}};
inline constexpr Saying dragHint{.place = Label5, .text = dragSource.text};
inline constexpr Saying returnToCircuit{
    .place = Label5,
    .text = {.es = " Haga click sobre el boton de Hoja de Análisis, para volver al circuito...",
             .en = " Make Click over botton  ' Leaf of Analysis ', to return at the circuit..."}};
inline constexpr BiText outputPowerIs{.es = " Potencia de salida = ", .en = " Output power = "};
inline constexpr BiText generatorPowerIs{.es = " Potencia del generador = ", .en = " Power of the generator = "};
inline constexpr BiText impedanceAdapter{
    .es = " Cuando el generador posee baja resistencia interna, resulta este circuito ideal como adaptador de "
          "impedancias...",
    .en =
        " When the generator possesses low internal resistance, it is this ideal circuit as adapter of impedances..."};
inline constexpr BiText commonBase{.es = "     Base a Masa", .en = "     Common Base"};
inline constexpr BiText emitterBypass{.es = "     Emisor Desacoplado", .en = "     Emitter Bypass"};

} // namespace velmor::form4::texts
