// SPDX-License-Identifier: MIT
// What `Form13` says: prompts, formulas and considerations by field, boxes, captions; Spanish beside English. Slips are the
// program's own, "Date" for data among them. Texts only.
#pragma once

#include <array>
#include <string_view>

#include "designs/differential/form13_controls.h"
#include "sheets/saying.h"

namespace velmor::form13::texts {

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
    {Text1, When::focus, Label25, {" Coloque la temperatura ambiente donde opera el circuito...",
                                   "Ambient temperature to which the circuit worked..."}},
    {Text1, When::focus, Label28, {"Tamb.: de 25 a 200 ºC. Botón derecho: conversión desde Fahrenheit y Kelvin.",
                                   "Tamb.: from 25 to 200 ºC. Right button: conversion from Fahrenheit and Kelvin."}},
    {Text2, When::focus, Label29, same("            (Tamb. - 25°) x 2.5mV\n"
                                       "ERes = ----------------------\n"
                                       "                    (dQic)")},
    {Text2, When::focus, Label27, {"Q3-4 trabajan con la corriente mínima (1 mA): así es mayor su impedancia de entrada.",
                                   "Q3-4 get the minimum current (1 mA): so their input impedance is higher."}},
    {Text2, When::focus, Label25, {" Especifique un valor de ganancia superior a 1000.",
                                   "Specifies a value of superior gain at 1000."}},
    {Text2, When::focus, Label28, {"Vg: ganancia total de los dos pares, 1000 como mínimo.",
                                   "Vg: total gain of both pairs, 1000 at least."}},
    {Text3, When::focus, Label29, same("Ein = ((Eopp / Vg) / 2) x 0.707")},
    {Text3, When::focus, Label27, {"Si conoce la entrada y no la salida, deje el cuadro vacío: con Enter el programa pide Ein.",
                                   "If you know the input and not the output, leave the field empty: Enter asks for Ein."}},
    {Text3, When::focus, Label25, {"  Cual es la señal pico a pico de salida, (Eopp)..?",
                                   " Which is the out - sign,  peak  to peak, (Eopp)..?"}},
    {Text3, When::focus, Label28, {"Eopp: señal de salida pico a pico, de 0 a 1000 V. Vacío: no se conoce.",
                                   "Eopp: output signal peak to peak, from 0 to 1000 V. Empty: it is not known."}},
    {Text4, When::focus, Label29, same("Eopp = ((Vg x Ein) x 1.41) x 2")},
    {Text4, When::focus, Label27, {"La salida resulta de la entrada y de la ganancia pedida.",
                                   "The output follows from the input and the gain asked for."}},
    {Text4, When::focus, Label25, {" Coloque el valor de la señal de entrada en valor eficaz...",
                                   "Places the value of the entrance sign in  r.m.s...."}},
    {Text4, When::focus, Label28, {"Ein: señal de entrada, en Volts eficaces.", "Ein: input signal, in Volts r.m.s."}},
    {Text5, When::focus, Label29, same("RL2 = 4 x (ERes / 1 mA)\n"
                                       "ERL2 = QIc(3-4) x RL2\n"
                                       "EQ(3-4) = Eopp + 1\n"
                                       "Es = ERL2 + ERes + EQ(3-4)")},
    {Text5, When::focus, Label27, {"ERL2 debe llegar a la mitad de Eopp; EQ necesita Eopp y un voltio más.",
                                   "ERL2 must reach half of Eopp; EQ needs Eopp and one volt more."}},
    {Text5, When::focus, Label28, {"Es: fuente de alimentación, en Volts. Con más tensión la ganancia es mayor.",
                                   "Es: supply, in Volts. A higher voltage gives a higher gain."}},
    {Text6, When::focus, Label29, same("ERL2 = Es - (EQ(3-4) + ERes)\n"
                                       "RL2 = ERL2 / QIc(3-4)")},
    {Text6, When::focus, Label27, {"Lo que la fuente tiene de más queda en RL2.", "What the supply has to spare falls across RL2."}},
    {Text6, When::focus, Label25, {" Asigne valor comercial al resistor RL2...", " Put normalized value of RL2..."}},
    {Text6, When::focus, Label28, {"RL2: resistor de colector de Q3-4, en Kohms. Botón derecho: valores comerciales.",
                                   "RL2: collector resistor of Q3-4, in Kohms. Right button: commercial values."}},
    {Text7, When::focus, Label29, same("Res = ERes / (QIc(3-4) x 2)\n"
                                       "S (Q5) = RL2 / Res")},
    {Text7, When::focus, Label27, {"Res se redondea a Kohms enteros. Un valor mayor baja la corriente, y con ella ERL2.",
                                   "Res is rounded to whole Kohms. A larger value lowers the current, and ERL2 with it."}},
    {Text7, When::focus, Label25, {" Asigne valor comercial  al resistor Res..", "Assigns commercial value to the resister Res.."}},
    {Text7, When::focus, Label28, {"Res: resistor común de los emisores de Q3-4, en Kohms enteros.",
                                   "Res: common resistor of the emitters of Q3-4, in whole Kohms."}},
    {Text8, When::focus, Label29, same("QIc(3-4) = (ERes / Res) / 2\n"
                                       "EQ(3-4) = Es - (ERL2 + ERes)\n"
                                       "r'e = 25 / QIc(3-4)\n"
                                       "Vg(3-4) = RL2 / (2.5 x r'e)\n"
                                       "Zin = 100 x Res\n"
                                       "EQ(1-2) = ERes + 0.6")},
    {Text8, When::focus, Label27, {"Las bases de Q3-4 van directo a los colectores de Q1-2: no hay capacitores entre pares.",
                                   "The bases of Q3-4 go straight to the collectors of Q1-2: no capacitors between pairs."}},
    {Text8, When::focus, Label28, {"Click ó Enter: el programa sigue con Q1-2.", "Click or Enter: the program goes on with Q1-2."}},
    {Text9, When::focus, Label29, same("ERL1 = Es - EQ(1-2)\n"
                                       "RL1 = 5.7 x Res")},
    {Text9, When::focus, Label27, {"Con 5.7 x Res la corriente de Q1-2 queda cerca de la prevista.",
                                   "With 5.7 x Res the current of Q1-2 comes near the one foreseen."}},
    {Text9, When::focus, Label25, {" Coloque un valor comercial a RL1...", " Put a normalized value for RL1..."}},
    {Text9, When::focus, Label28, {"RL1: resistor de colector de Q1-2, en Kohms.", "RL1: collector resistor of Q1-2, in Kohms."}},
    {Text10, When::focus, Label27, {"El factor 1.25 se utiliza pues la salida es doble entre colectores",
                                    "The factor 1.25 is used because the sing out  is double, among collectors"}},
    {Text10, When::focus, Label25, {" Coloque un valor comercial a Res1...", " Put a normalized  value for Res1..."}},
    {Text10, When::focus, Label28, {"Res1: resistor de emisor de Q5, en Kohms. Botón derecho: valores comerciales.",
                                    "Res1: emitter resistor of Q5, in Kohms. Right button: commercial values."}},
    {Text11, When::focus, Label28, {"RLw: carga en paralelo con Res1, en Kohms. Conviene 10 x Res1 ó más.",
                                    "RLw: load in parallel with Res1, in Kohms. Best 10 x Res1 or more."}},
    {Text11, When::click, Label25, {"Coloque un valor de RLw....", "Put a value of RLw...."}},
});

// Said by steps.
inline constexpr Saying leastSource{.place = Label25, .text = {"  Tensión mínima de fuente es : ", "  Source Voltage (minimum) : "}};
inline constexpr Saying goOnWithQ12{.place = Label25,
    .text = {" A continuación el programa realiza los cálculos para Q1-2. Pulse click ó Enter....",
             "Next the program carries out the calculations for Q1-2. Press click or Enter...."}};
inline constexpr Saying canModify{.place = Label25,
    .text = {" Puede modificar Res1...\n...ó colocar una resistencia de carga (RLw)",
             " Can modify Res1...\n... or to place a load resistance (RLw)"}};
inline constexpr Saying formulasOfQ5{.place = Label29,
    .text = same("   ERes1=\n   = ERes(3-4) + EQ(3-4) - Vj\n   Qic(Q5) = ERes1 / Res1\n   Zin= 2 x B x Ré")};
inline constexpr Saying loadOfQ5{.place = Label27,
    .text = {"La carga RLw no debe cargar a Q4: Zin de Q5 debe superar 10 x RL2.",
             "The load RLw should not load Q4: Zin of Q5 must pass 10 x RL2."}};
inline constexpr Saying placeRes1Again{.place = Label25,
    .text = {" Para modificar RLw,\ndebe colocar nuevamente Res1...", "..to modify RLw,\n should place Res1 again..."}};
inline constexpr Saying archived{.place = Label25, .text = {"Circuito de Archivo", "Archive Circuit"}};

// Boxes, in the order in which a student may meet them.
inline constexpr Saying smallERL2{
    .text  = {" La caida de tensión en ERL2 no es suficiente para manejar la mitad de Eopp...",
              "The voltage in ERL2 is not enough to manage half of Eopp... "},
    .title = {" Opciones :  SI = Volver   NO =  Proseguir", " Options :  Yes = Back   No =  Continue"},
    .flags = 308};
inline constexpr Saying highEQ{
    .text  = {" La caida de tensión en EQ no puede  superar la máxima que soporta el transistor",
              "The voltage in EQ can not overcome the maxim that supports the transistor"},
    .title = {" Opciones :  SI = Volver   NO =  Proseguir", "Options: Yes = Return    No = Continue"},
    .flags = 308};
inline constexpr Saying lowCurrent{
    .text  = {"Pruebe disminuyendo Res, caso contrario imposible continuar..!",
              " Diminishing Res, impossible contrary case to continue..!"},
    .title = {"Menos corriente.., menos tensión en RL2.., recorte de la señal !!",
              "Low current.., low voltage in RL2.., cut sign !!"},
    .flags = 48};
inline constexpr Saying highCurrent{
    .text  = {"Deberá aumentar la tensión de fuente ó aumentar Res", "The source voltage will increase or to increase Res"},
    .title = {"Mas corriente.., mas tensión en RL2.., menos tensión EQ!!",
              "High current.., high voltage in RL2.., minus voltage EQ!!"},
    .flags = 48};
inline constexpr Saying heavyLoad{
    .text  = {"La resistencia estática de entrada del circuito, influye sobre la corriente de colector del diferencial "
              "que lo alimenta... ",
              "The static resistance of entrance of the circuit, influences on the current of collector of "
              "the differential that feeds him... "},
    .title = {"Eleve el valor de RLw o diseñe un nuevo circuito... ", " Elevates the value of RLw or design a new circuit... "},
    .flags = 48};

// Captions of the sheet.
inline constexpr BiText heading{"Parámetros del Circuito", "Circuit Parameters"};
inline constexpr BiText beginning{"Click para empezar...", "Click to beginning..."};
inline constexpr BiText data{"Datos", "Date"};
inline constexpr BiText considerations{"Consideraciones y Criterios : ", "Considerations and approaches:"};
inline constexpr BiText sourceDoor{"Fuente de Corriente Constante", "DC Source Current"};
inline constexpr BiText viewMirror{"Ver espejo", "View mirror"};
inline constexpr BiText viewCircuit{"Ver circuito", "View circuit"};

/// What is said over a current on the drawing; the transistors are named in Spanish alone.
struct Current {
    host::Handle label = host::noControl;
    std::string_view transistor{};
    std::string_view symbol{};
};
inline constexpr auto currents = std::to_array<Current>({
    {Label31, "Corriente en transistor Q3 ó Q4 ",  " QIc(3-4) = "},
    {Label33, "Corriente en Transistor Q5",        " QIc(5) = "},
    {Label4,  " Corriente en transistor Q1 ó Q2", " QIc(1-2) = "},
});
// clang-format on

extern const BiText helpText;

} // namespace velmor::form13::texts
