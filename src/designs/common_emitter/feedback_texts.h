// SPDX-License-Identifier: MIT
// What the two sheets fed back by voltage say alike: prompts by field, boxes, captions, the pages of the analysis. Spanish stands
// above English; blanks and misprints are as the course's students know them.
#pragma once

#include <array>
#include <string_view>

#include "designs/common_emitter/feedback_controls.h"
#include "host/bitext.h"
#include "sheets/saying.h"

namespace velmor::feedback {

using host::BiText;
using sheets::Saying;
using sheets::When;

/// An empty field at Enter, in the words of most fields of these sheets.
inline constexpr Saying placeAValue{.when = When::empty,
                                    .text = {.es = "Debe colocar una cifra...", .en = "It should place a value..."},
                                    .title = {.es = "Error", .en = "Error"},
                                    .flags = 48};

// Told by steps, and where a file is opened.
inline constexpr Saying raiseSupply{
    .place = Label33,
    .text = {.es =
                 " Es aconsejable asignar un valor mas elevado al minimo calculado, (el programa elevará el valor del "
                 "resistor RL)",
             .en = "It is advisable to assign a value more high to the calculated minimum, (the program will elevate "
                   "the value of the resistor RL)"}};
inline constexpr Saying choosePreset{
    .place = Label33,
    .text = {.es = " Coloque un valór normalizado para Rb1, (es preferible un Preset de más elevado valor...).",
             .en = "It places a valór normalized for Rb1, (it is preferable a Preset of higher value...)."}};
inline constexpr BiText aboutCapacitors{
    .es = " Como los valores de impedancia de entrada (Zin), son normalmente bajos, los valores de capacitores, a "
          "frecuencias de corte (fo) bajas, son de elevado valor.",
    .en = "As the values of entrance impedance (Zin), they are usually low, the capacitor values, to cutt off "
          "frequencies (fo) you lower, they are of high value."};
inline constexpr BiText highGain{
    .es = "En este tipo de configuración la ganancia de tensión es elevada...( Vg = Rlac / r'e ); el resistor Res no "
          "se encuentra en el cicuito ",
    .en = "In this configuration type the gain of voltage is high... (Vg = Rlac / r'e); the resistor Res is not in "
          "the cicuit"};

// clang-format off
/// Prompts that both sheets have. Where they differ, the row is the simple sheet's.
// field, moment, place, Spanish, English
inline constexpr auto sayings = std::to_array<Saying>({
    {Text5, When::focus, Label33,
     {" El dato de la tensión máxima Colector - Emisor extraigalo del 'Manual de Transistores'",
      " The date of the voltage maximum Collector - Emitter extracts it of the ' Manual of Transistors '"}},
    {Text6, When::focus, Label33,
     {" El dato de la corriente máxima Colector - Emisor extraigalo del 'Manual de Transistores'",
      "The date of the current maximum Collector - Emitter extracts it of the ' Manual of Transistors '"}},
    {Text7, When::focus, Label33,
     {" Para transistores de Germanio, utilizar 0.2 Volts",
      "For transistors of Germanium, to use 0.2 Volts"}},
    {Text8, When::focus, Label33,
     {"  Comience asignando la corriente a la cual fueron probados los parámetros del transistór, según el Manual de Transistores",
      "Begin assigning the current to which the parameters of the transistór were proven, according to the Manual of Transistors"}},
    {Text9, When::focus, Label33,
     {" Este valor corresponde a la carga del circuito, recuerde que para valores pequeños, más exigencia de corriente y menos "
      "impedancia de entrada ",
      "This value corresponds to the load of the circuit, remember that it stops values small, more demand of current and less "
      "entrance impedance"}},
    {Text12, When::focus, Label33, aboutCapacitors},
    {Text11, When::focus, Label33, highGain},
    {Text13, When::focus, Label33,
     {"Tensión de señal de salida en valor Pico - Pico, de no poseer este dato , pulse Enter...",
      "Voltage of output sign in value Peak-Peak, of not possessing this date, Enter pulse..."}},
    {Text14, When::focus, Label33,
     {" Ingrese la señal de entrada en valor eficaz si no posee el dato de la tensión de salida (Eopp). Caso contrario pulse ENTER",
      " Enters in the entrance sign in r.m.s. value, if it doesn't possess the fact of the output  voltage (Eopp). Contrary case "
      "presses ENTER"}},
    {Text10, When::focus, Label33,
     {" El valor de estabilidad (S) no se asigna para cajculo de el valor del resistor Rb1.",
      "Not assigned the value of stability (S) "}},
    {Text2, When::focus, Label33,
     {" Si utiliza transistor BC548 es aconsejable un valor de Beta = 480 ",
      " If it uses transistor BC548 it is advisable a value of Beta = 480"}},
    {Text17, When::focus, Label33,
     {" Coloque un valor normalizado de RL...",
      " It places a normalized value of RL..."}},
    {Text15, When::focus, Label33,
     {"Haga Click sobre el boton superior para hacer Bootstrapping ó ingrese la resistencia interna del generador (Rint) en KOhms...",
      "You makes Click on the superior button to make Bootstrapping or Enter the internal resistance of the generator (Rg) in "
      "KOhms..."}},
});
// clang-format on

namespace texts_detail {

inline constexpr BiText designApproach{.es = "Criterio de diseño...", .en = "Design Approach..."};

} // namespace texts_detail

// Boxes, in the order in which a student may meet them.
inline constexpr Saying overTransistorVoltage{
    .text = {.es = "La tensión ' Eopp ', no debe supera la máxima que soporta el transistor.",
             .en = "The voltage ' Eopp ', it doesn't should it overcomes the maxim that supports the transistor."},
    .title = texts_detail::designApproach,
    .flags = 16};
inline constexpr Saying overTransistorCurrent{
    .text = {.es = "La corriente de Colector  no debe superar el 40% de la máxima del manual.",
             .en = "The current of Collector should not overcome 40% of the maxim of the manual."},
    .title = texts_detail::designApproach,
    .flags = 16};
inline constexpr BiText loadVoltageTitle{.es = "Tensión de ERl mínima debe ser la mitad de Eopp...",
                                         .en = "Voltage of minimum ERl should be half of Eopp..."};
inline constexpr Saying changeSupply{
    .text = {.es = "Cambiar el valor de fuente..? ", .en = "To change the source value..? "},
    .title = {.es = "    El valor de RL asignado no es posible...",
              .en = "    The value of assigned RL is not possible..."},
    .flags = 36};

// Captions that belong to no single field.
inline constexpr BiText transistorHeading{.es = "Parámetros del transistor", .en = "Transistor Parameters"};
inline constexpr BiText circuitHeading{.es = "Parámetros del Circuito", .en = "Circuit Parameters"};
inline constexpr BiText frameCaption{.es = "Cambia Fuente de Alimentación?", .en = "DC Volt Change?"};
inline constexpr BiText changeCaption{.es = "Cambiar", .en = "Change"};
inline constexpr BiText followCaption{.es = "Continuar", .en = "Follow"};
inline constexpr std::string_view notAssigned = "s/uso"; ///< `Text10` of the simple sheet until S is worked out
inline constexpr std::string_view asIfAssigned = "..?";  ///< `Text10` of a design that does not work

/// The analysis: what the generator has to give. Lines of the page, numbers between them.
struct AnalysisWords {
    std::string_view outputPower;
    std::string_view lightFormula; ///< ahead of the output power in a light verdict
    std::string_view light;        ///< the verdict when Zin exceeds Rg
    std::string_view heavyFormula; ///< ahead of the output power in a heavy verdict
    std::string_view generatorPower;
    std::string_view heavy; ///< the verdict when it does not
};
inline constexpr std::string_view generatorFormula = "             Pg = ";
inline constexpr std::string_view inputFormula = "                 Ein^2 / Zin =";
inline constexpr std::string_view microwatt = " microW";

inline constexpr AnalysisWords englishAnalysis{
    .outputPower = "Output  power :",
    .lightFormula = "         Eo(r.m.s.)^2 / RLw =           ",
    .light = "The entrance Zin is the sufficiently high thing and it didn't present a load ' heavy ' to the generator",
    .heavyFormula = "       Eo(r.m.s.)^2 / RLw =",
    .generatorPower = "The power that can develop the generator is:",
    .heavy = " The entrance Zin is too small that that of the generator,  he needed to give a power of :"};
inline constexpr AnalysisWords spanishAnalysis{
    .outputPower = "Potencia de salida :",
    .lightFormula = "         Eo(eficaz)^2 / RLw =           ",
    .light = " La Zin de entrada es lo suficientemente elevada y no presentara una carga 'pesada'  al generador",
    .heavyFormula = "       Eo(eficaz)^2 / RLw =",
    .generatorPower = "La potencia que puede desarrollar el generador es:",
    .heavy = " La Zin de entrada es mas pequeña que la del generador, este necesitara suministrar una potencia de :"};

} // namespace velmor::feedback
