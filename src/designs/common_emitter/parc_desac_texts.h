// SPDX-License-Identifier: MIT
// What `ParcDesac` says otherwise than `desaco`, and besides. Spanish stands above English; misprints are the course's.
#pragma once

#include <array>

#include "designs/common_emitter/desaco_texts.h"
#include "designs/common_emitter/parc_desac_controls.h"

namespace velmor::parc_desac {

using host::BiText;
using sheets::Saying;
using sheets::When;

// clang-format off
// field, moment, place, Spanish, English
inline constexpr auto differentSayings = std::to_array<Saying>({
    {Text19, When::focus, SSPanel1,
     {"Ayuda:  Criterio de diseño: Para que los Parámetros de diseño se cumplan, debera ajustar el ' Preset ' que reemplaza a Rb1 hasta "
      "obtener una corriente de colector (QIc), igual a la asignada en los  'Parámetros del Circuito'",
      "Helps: design Approach: so that the design parameters are completed, it will adjust the ' Preset ' that replaces at Rb1 until "
      "obtaining a collector current (QIc), similar to the one assigned in those ' Parameters of the Circuit '"}},
});
inline constexpr auto moreSayings = std::to_array<Saying>({
    {Text8, When::escape, STA70,
     {"                                                                                            Coloque un valor normalizado...  ",
      "                                                                                            Place a normalized value...  "}},
    // The same words on an English sheet.
    {Text15, When::hover, sta5,
     {"\nEl valor de la resistencia sin desacoplar debe ser 10 veces el valor de r'e y aproximadamente 10 veces menor que la resistencia "
      "total Res...",
      "\nEl valor de la resistencia sin desacoplar debe ser 10 veces el valor de r'e y aproximadamente 10 veces menor que la resistencia "
      "total Res..."}},
    {Text16, When::escape, STA70,
     {" El Manual brinda un valor de Beta segun Qic. \n Esc..., valor predeterminado de 80 ",
      "The Manual offers a value of Beta according to Qic. \nEsc..., predetermined value of 80"}},
    {Picture10, When::hover, Boost, {"Polarizado p/Emisor", "Polarized by Emitter"}},
    {Picture11, When::hover, Boost, {"Polarizado p/Emisor", "Polarized by Emitter"}},
    {Picture8,  When::hover, Boost, {"Parcialmente desacoplado", "Parcial Bypass"}},
    {Picture2,  When::hover, Boost, {"Boots...", "Boots..."}},
    {Picture7,  When::hover, Boost, {"Boots...", "Boots..."}},
});
inline constexpr auto sayings = sheets::joined(sheets::withRowsOf(desaco::sayings, differentSayings),
                                               common_emitter::modeSayings<Controls>, moreSayings);

/// Captions that are written when the sheet is loaded, besides those of `desaco`.
inline constexpr auto captions = std::to_array<Saying>({
    {.place = Label19,   .text = {"Coloque -Es sin el signo", "Put -Es without its sign"}},
    {.place = Label20,   .text = {"Sin resistor Rb1", "Without resistor Rb1"}},
    {.place = Picture8,  .text = {"Parcialmente desacoplado", "Parcial Bypass"}},
    {.place = Picture11, .text = {"Polarizado p/Emisor", "Polarized by Emitter"}},
    {.place = Picture10, .text = {"Polarizado p/Emisor", "Polarized by Emitter"}},
    {.place = Picture2,  .text = {"Bootstrapping", "Bootstrapping"}},
    {.place = Picture7,  .text = {"Bootstrapping", "Bootstrapping"}},
});
// clang-format on

inline constexpr Saying resistorTooLow{.text = {.es = "El valor de Res sin desacoplar debe ser 10 veces r'e...",
                                                .en = "The value of Res must be 10 more time of r'e..."},
                                       .title = {.es = "Criterio de diseño...", .en = "Design approach..."}};
// The English side has another box's text.
inline constexpr Saying loadLowersGain{
    .text = {.es = "Si valor RL es mayor que RLw, disminuirá la ganancia..\n Pruebe elevando QIc",
             .en = "It should place a value"},
    .title = {.es = "Corrección en el calculo de Vg", .en = "Error of data"}};

inline constexpr BiText fileFilter{
    .es = "Emisor Común Realimentado por Corriente Parcialmente Desacoplado(*.RPCD)|*.RPCD",
    .en = "Bypass Common Emitter Feedback Current (*.CECB)|*.CECB"};
inline constexpr BiText guideFile{.es = "Parcdesac.Lab", .en = "Feedback Current.Lab"};
inline constexpr BiText capacitorHelp{
    .es = "Ayuda:  Los valores de los capacitores son en microFaradios",
    .en =
        "Helps: design Approach: so that the design parameters are completed, it will adjust the ' Preset ' that "
        "replaces at Rb1 until obtaining a collector current (QIc), similar to the one assigned in those ' Parameters "
        "of the Circuit '"};
inline constexpr BiText sameImpedance{
    .es = " Los valores de impedancia de entrada NO difieren de los valores obtenidos al polarizarlos por Base..",
    .en = "The values of entrance impedance don't differ of the values obtained when polarizing them for Base.."};
/// On a sheet of either language.
inline constexpr BiText betaByEmitter{
    .es = "El Manual brinda un valor de Beta segun Qic.                        Esc..., valor predeterminado de 80 ",
    .en = "El Manual brinda un valor de Beta segun Qic.                        Esc..., valor predeterminado de 80 "};
inline constexpr BiText noUpperResistor{.es = " Sin resistor Rb1...pulse ENTER",
                                        .en = "Without resister Rb1... ENTER pulse"};
inline constexpr BiText bootstrapHint{
    .es =
        "Si desea mayor impedancia de entrada, pulse BOOTSTRAPPING. \nSalvo indicacion, capacitores en microFaradios  "
        "      ",
    .en = "If you wants bigger entrance impedance, BOOTSTRAPPING pulse. \nExcept for indication, capacitores in "
          "microFarade"};
inline constexpr BiText bootstrapName{.es = "Bootstrapping", .en = "Bootstrapping"};

/// The help boxes.
inline constexpr BiText helpText{
    .es = "           Emisor Común\n\n"
          "El resistor de emisor se divide en dos. La suma, ERes / QIc, estabiliza la corriente de reposo. Una parte "
          "queda "
          "sin desacoplar y fija la ganancia: Vg = RLac / Res. El resto lleva el capacitor.\n\n"
          "La parte sin desacoplar debe ser al menos diez veces r'e: así la ganancia ya no depende de r'e, ni del "
          "transistor, ni de la temperatura, y la impedancia de entrada vuelve a crecer.\n\n"
          "Elija este circuito para cargas menores de 10 Kohm, impedancia de entrada superior a 3 Kohm, ganancias de "
          "10 a 20 "
          "y fuentes de poco valor.\n\n"
          "Con Bootstrapping aumenta aún más la impedancia de entrada.",
    .en =
        "         Common Emitter.\n\n"
        "The emitter resistor is divided in two. The sum, ERes / QIc, stabilizes the quiescent current. One part stays "
        "without bypass and fixes the gain: Vg = RLac / Res. The rest carries the capacitor.\n\n"
        "The part without bypass should be at least ten times r'e: so the gain does not depend any more on r'e, on the "
        "transistor or on the temperature, and the input impedance grows again.\n\n"
        "Choose this circuit for loads under 10 Kohm, an input impedance above 3 Kohm, gains of 10 to 20 and small "
        "supplies.\n\n"
        "The \"Boots...\" icon raises the input impedance further still."};

} // namespace velmor::parc_desac
