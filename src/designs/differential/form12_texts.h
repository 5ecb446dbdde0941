// SPDX-License-Identifier: MIT
// What `Form12` says: pages and lines by field, boxes, captions; Spanish beside English. Slips are the program's own. Texts only.
#pragma once

#include <array>
#include <string_view>

#include "designs/differential/form12_controls.h"
#include "sheets/saying.h"

namespace velmor::form12::texts {

using host::BiText;
using sheets::Saying;
using sheets::When;

constexpr BiText same(std::string_view text)
{
    return {text, text};
}

// clang-format off
// about, moment, place, Spanish, English
inline constexpr auto sayings = std::to_array<Saying>({
    sheets::placeANumber,
    {Text1, When::focus, SSPanel1, {" Coloque el requerimiento de corriente\n(en miliamper), del amplificador diferencial a alimentar...",
                                    " Places the current requirement \n(in miliampere), of the differential amplifier to feed..."}},
    {Text1, When::focus, Label8, {"QIc: la corriente que pide el amplificador diferencial, en mA.",
                                  "QIc: the current that the differential amplifier asks for, in mA."}},
    {Text1, When::focus, Label9, {"De 0.1 mA hasta el 40 % de lo que soporta el transistor.",
                                  "From 0.1 mA to 40 % of what the transistor supports."}},
    {Text2, When::focus, SSPanel1, {" Elegir una tensión de base superior a 2 Volts\n"
                                  " (asegurandonos asi la mejor estabilidad para el circuito) ",
                                    " To choose a voltage of Base,  2V high too\n (this way is the best stability for the circuit)"}},
    {Text2, When::focus, Label8, {"Eb: tensión de base del transistor de fuente, sobre Rb1, en Volts.",
                                  "Eb: base voltage of the source transistor, over Rb1, in Volts."}},
    {Text2, When::focus, Label9, {"2 Volts como mínimo.", "2 Volts at least."}},
    {Text3, When::focus, SSPanel1, {" Elegir una tensión de Colector igual a Eb\n (no inferior a 2 Volts...) ",
                                    "To choose a voltage of Collector similar to Eb\n (not minus to 2 Volts...) "}},
    {Text3, When::focus, Label8, {"Eq: tensión de Colector del transistor de fuente, en Volts.",
                                  "Eq: collector voltage of the source transistor, in Volts."}},
    {Text3, When::focus, Label9, {"En este paso es igual a Eb; la fuente -Ebias la corrige después.",
                                  "At this step it equals Eb; the supply -Ebias corrects it later."}},
    {Text9, When::focus, SSPanel1, {"     Ebias = EQ + Eb + 1.2 V\n"
                                    " La tensión de 1.2 Volts es para compensar las caidas Base-Emisor del transistor de fuente y del "
                                    "diferencial...",
                                    "     Ebias = EQ + Eb + 1.2 V\n"
                                    " The Voltage of 1.2 Volts is to compensate the falls Base-Emitter of the source transistor and of the "
                                    "differential..."}},
    {Text9, When::focus, Label8, {"-Ebias: fuente negativa, en Volts. Coloque un valor disponible.",
                                  "-Ebias: negative supply, in Volts. Place an available value."}},
    {Text9, When::focus, Label9, {"Eq = Ebias - (1.2 + Eb), 3 Volts como mínimo.", "Eq = Ebias - (1.2 + Eb), 3 Volts at least."}},
    {Text4, When::focus, Label8, {"Res: resistor de emisor, en Kohms. Coloque el valor comercial más próximo.",
                                  "Res: emitter resistor, in Kohms. Place the nearest commercial value."}},
    {Text4, When::focus, Label9, {"Con el valor comercial el programa calcula de nuevo QIc. Botón derecho: valores comerciales.",
                                  "With the commercial value the program works QIc out anew. Right button: commercial values."}},
    {Text5, When::focus, Label8, {"K: qué parte de QIc circula por el divisor de base.",
                                  "K: what part of QIc flows in the divider of the base."}},
    {Text5, When::focus, Label9, {"De 0.3 a 1. Cuanto mayor K, menor S: más estable, y más corriente perdida.",
                                  "From 0.3 to 1. The larger K, the smaller S: more stable, and more current lost."}},
    {Text6, When::focus, Label8, {"Rb1: resistor superior del divisor, en Kohms.", "Rb1: upper resistor of the divider, in Kohms."}},
    {Text6, When::focus, Label9, {"Eb / Rb1 debe quedar entre 0.3 x QIc y QIc. Botón derecho: valores comerciales.",
                                  "Eb / Rb1 must be from 0.3 x QIc to QIc. Right button: commercial values."}},
    {Text7, When::focus, Label8, {"Rb2: resistor inferior del divisor, en Kohms.", "Rb2: lower resistor of the divider, in Kohms."}},
    {Text7, When::focus, Label9, {"Con Enter el programa analiza lo que dan los valores comerciales. Botón derecho: valores comerciales.",
                                  "With Enter the program analyses what the commercial values give. Right button: commercial values."}},
    {Text10, When::focus, Label8, {"El análisis: lo que la fuente entrega con los valores comerciales.",
                                   "The analysis: what the source gives with the commercial values."}},
    {Text10, When::focus, Label9, {"Click ó F3 en este cuadro: el diseño comienza de nuevo.",
                                   "Click or F3 on this field: the design starts over."}},
});

// Pages that carry what has been worked out.
inline constexpr BiText resPage{" Res = (Ebias - (Eb + Vj)) / QIc\nEl programa asume Vj = 0.6 V",
                                " Res = (Ebias - (Eb + Vj)) / QIc\nit Assumes the program to Vj = 0.6 V"};
inline constexpr BiText kPage{" Asigne un valor de Ibias entre 0.3 y 1 , del valor de Qic...\n"
                              " El valor predeterminado es 0.5 de QIc:   \nIbias =",
                              " Assigns a value of Ibias among 0.3 to 1 , the value of Qic...\n"
                              " The predetermined value is 0.5 of QIc:   \nIbias ="};
inline constexpr std::string_view stability = "\n              S = 1 / K";
inline constexpr BiText rb1Page{"El valor de estabilidad es:\n                 S = ", "The value of stability is:\n                 S = "};
inline constexpr BiText rb1Asks{"\n Asigne un valor comercial a Rb1...\n     Rb1 = Eb / Ibias =  ",
                                "\n Assigns a commercial value at Rb1...\n     Rb1 = Eb / Ibias =  "};
inline constexpr BiText rb1Diode{"  Kohms \n"
                                 " Es conveniente reemplazar el diodo D1  por un transistor de las mismas características, "
                                 "uniendo el Colector con la Base...\n          Tensión en D1 = 0.6 V",
                                 "  Kohms \n"
                                 " Is convenient to replace the diode D1  for a transistor of the same characteristics, "
                                 "uniting the Collector with the Base...\n          Voltage in D1 = 0.6 V"};
inline constexpr BiText rb2Page = same("       Rb2 = ( Ebias - (Eb + EQ) ) / Ibias  ");
inline constexpr BiText rb2Asks{"\n Asigne un valor comercial...\n"
                                " El programa realiza un análisis de funcionamiento de acuerdo a los valores de resistores y tensiones "
                                "asignados....",
                                "\n Assigns a commercial value...\n"
                                " The program carries out an operation analysis according to the values of resistors and assigned "
                                "voltages...."};
inline constexpr BiText analysisPage{" Formulas de Análisis : ", " Analysis formulate : "};
inline constexpr std::string_view analysisFormulas = "\n         Ibias = ( Ebias  -  ( Eb + Vj ) )  /  Rb2 "
                                                     "\n         Eb = Rb1 * Ibias  "
                                                     "\n         Qic = (Ebias - (Eb + Vj)) / Res"
                                                     "\n          ERes = ";
inline constexpr BiText analysisEnd{" V\n Sume las caidas de tensiones, le toca pensar...",
                                    " V\n Sinks the  resistor voltages, is your turn, to think..."};
// In Spanish in both languages.
inline constexpr Saying archived{.place = SSPanel1, .text = same("                   Circuito de Archivo")};

// Boxes, in the order in which a student may meet them.
inline constexpr Saying highQIc{
    .text  = {" La corriente elegida no debe superar el 40 % de la máxima que soporta el transistor...",
              "The elected quiescent current,  should not overcome the 40%"},
    .title = {" Criterio de diseño...", " Design Approach..."},
    .flags = 48};
inline constexpr Saying lowEq{
    .text  = {" Tensión Eq no debe ser menor a 2 Volts", "Voltage Eq should not be smaller to 2 Volts"},
    .title = {"Criterio de diseño", "Design Approach"},
    .flags = 65};
inline constexpr Saying lowQIc{
    .text  = {" La corriente del transistor es muy baja...", "The current of the transistor is very low..."},
    .title = {"No se justifica el diseño...", "Not justified the design..."},
    .flags = 65};
inline constexpr Saying highBias{
    .text  = {"La corriente de polarización de base supera al valor pre-calculado...",
              "The current of Base polarization overcomes to the pre-calculated value..."},
    .title = {"Error", "Error"},
    .flags = 48};
inline constexpr Saying lowBias{
    .text  = {"La corriente de polarización de base es inferior al valor pre-calculado...",
              "The current of Base polarization is smaller to the pre-calculated value..."},
    .title = {"Error", "Error"},
    .flags = 48};

// Captions of the sheet.
inline constexpr BiText heading{"Parámetros del Circuito", "Circuit Parameters"};
inline constexpr BiText restart{" Click... para recomenzar", " Click... and begin."};
inline constexpr BiText analysis{"Análisis", "Analysis"};
// clang-format on

extern const BiText helpText;

} // namespace velmor::form12::texts
