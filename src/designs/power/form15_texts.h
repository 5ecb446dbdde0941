// SPDX-License-Identifier: MIT
// What `Form15` says: criterion and formulas by field, pages of the help, notes, boxes, captions; Spanish beside English, slips
// included. Texts only.
#pragma once

#include <array>
#include <string_view>

#include "designs/power/form15_controls.h"
#include "sheets/saying.h"

namespace velmor::form15::texts {

using host::BiText;
using sheets::Saying;
using sheets::When;

// clang-format off
// Headings over the fields, as wide as they once stood over two fields side by side.
inline constexpr BiText powerAndLoad{
    "                                 Potencia   (W)                                          Impedancia  (ohm)",
    "                                 Power   (W)                                             Impedance  (ohm)"};
inline constexpr BiText betaAndLoad{
    "                                Beta   (Q2)                                             Impedancia (RLw)",
    "                                Beta   (Q2)                                             Impedancia (RLw)"};
inline constexpr BiText bothBetas{
    "                                 Beta   (Q2)                                             Beta (Q1)",
    "                                 Beta   (Q2)                                             Beta (Q1)"};

// field, moment, place, Spanish, English
inline constexpr auto sayings = std::to_array<Saying>({
    sheets::placeANumber,
    {Text1, When::focus, Label15, {"Ingrese la potencia eficaz (rms) que se desarrollará en la carga (RLw), "
                                   "esta puede ser ohmmica ó inductiva. ",
                                   "Enter the effective power (rms) that will be developed in the load (RLw), "
                                   "this can be resistive or inductive. "}},
    {Text1, When::focus, Label16, {"  Po = Po(pico) / SQR(2)", "  Po = Po(peak) / SQR(2)"}},
    {Text1, When::hover, status1, {"Po, potencia eficaz en la carga, en Watts", "Po, effective power in the load, in Watts"}},
    {Text2, When::focus, Label15, {" En Clase A la corriente de reposo (con ó sin señal de entrada) es la máxima "
                                   "que circulara por Colector - Emisor.",
                                   " In Class A the quiescent current (with or without input signal) is the maximum "
                                   "that will flow from Collector to Emitter."}},
    {Text2, When::focus, Label16, {"  Eopp = SQR(Po.8.RLw)", "  Eopp = SQR(Po.8.RLw)"}},
    {Text2, When::hover, status1, {"RLw, carga, en ohms: cuanto más pequeña, mayor la corriente",
                                   "RLw, load, in ohms: the smaller it is, the larger the current"}},
    {Text12, When::focus, Label15, {"Si la bobina móvil del altoparlante sirve a la vez como carga simultánea a la c.c. y a la c.a.,"
                                    " click en el Parlante; si no, en la Resistencia.",
                                    "If the moving coil of the loudspeaker serves at the same time as load for d.c. and a.c.,"
                                    " click on the Speaker; if not, on the Resistor."}},
    {Text12, When::focus, Label16, {"  RLw (inductiva) = 1,5 x RLw (ohmmica)", "  RLw (inductive) = 1,5 x RLw (resistive)"}},
    {Text12, When::hover, status1, {"Elija la carga: resistencia (Ctrl+1) ó parlante (Ctrl+2)",
                                    "Choose the load: resistor (Ctrl+1) or speaker (Ctrl+2)"}},
    {Text10, When::focus, Label28, betaAndLoad},
    {Text10, When::focus, Label15, {"Beta (hFE) de los transistores: la de Q2 y la de Q1 son determinantes de las impedancias de entrada.",
                                    "Beta (hFE) of the transistors: that of Q2 and that of Q1 decide the input impedances."}},
    {Text10, When::focus, Label16, {"  Zin (Q2) = RLw x Beta (Q2)\n  RL x 10 <= Zin (Q2)\n  QIc <= 40 % Icmáx",
                                    "  Zin (Q2) = RLw x Beta (Q2)\n  RL x 10 <= Zin (Q2)\n  QIc <= 40 % Icmax"}},
    {Text10, When::hover, status1, {"Beta (hFE) del transistor de salida", "Beta (hFE) of the output transistor"}},
    {Text11, When::focus, Label28, bothBetas},
    {Text11, When::hover, status1, {"Beta (hFE) del transistor excitador, Q1", "Beta (hFE) of the driver transistor, Q1"}},
    {Text3, When::focus, Label28, powerAndLoad},
    {Text3, When::hover, status1, {"Corriente de reposo de salida, en Amperes", "Quiescent current of the output, in Amperes"}},
    {Text4, When::hover, status1, {"Es, tensión de la fuente, en Volts", "Es, supply voltage, in Volts"}},
    {Text5, When::focus, Label15, {"Observe el valor recomendado por el programa de RL, diez veces menor que la Zin de Q2.",
                                   "Observe the value of RL recommended by the program, ten times smaller than the Zin of Q2."}},
    {Text5, When::focus, Label16, {"  RL = S x RLw\n  Estabilidad => S = 10", "  RL = S x RLw\n  Stability => S = 10"}},
    {Text5, When::hover, status1, {"RL, resistor de colector de Q1, en ohms", "RL, collector resistor of Q1, in ohms"}},
    {Text6, When::hover, status1, {"Rb1b, preset, en ohms: a lo sumo el 25 % de Rb1", "Rb1b, preset, in ohms: at most 25 % of Rb1"}},
    {Text7, When::hover, status1, {"Rb1a, parte fija de Rb1, en ohms", "Rb1a, fixed part of Rb1, in ohms"}},
    {Text8, When::hover, status1, {"Rb2, en ohms: comercial, dentro del 20 %", "Rb2, in ohms: a standard value within 20 %"}},
    {Text9, When::hover, status1, {"Rs, resistor en serie con la entrada, en ohms", "Rs, resistor in series with the input, in ohms"}},
});

// --- what a step says by itself

// The criterion on QIc2: the words around Eopp, QIc2Min and ERLw.
inline constexpr BiText currentForSwing{"La corriente necesaria ( QIc2 ) para obtener Eopp, ( ",
                                         "The necessary current (QIc2) to obtain Eopp, ( "};
inline constexpr BiText currentIs      {" V ), es : ", " V ), is : "};
inline constexpr BiText loadVoltageIs  {" A,  ERLw = ", " A,  ERLw = "};
inline constexpr BiText currentFormulas{
    "  Eopp = SQR(Po.8.RLw)\n  Eq = 0.66 x Eopp\n  QIc2(min) = Eopp / (2 x RLw)\n"
    "  ERLw = Eq(Q1) - Vbe( 0.6 Volt)\n  QIc(RLw) = ERLw / RLw",
    "  Eopp = SQR(Po.8.RLw)\n  Eq = 0.66 x Eopp\n  QIc2(min) = Eopp / (2 x RLw)\n"
    "  ERLw = Eq(Q1) - Vbe( 0.6 Volt)\n  QIc(RLw) = ERLw / RLw"};
inline constexpr BiText currentOfLoad  {"\n\n  QIc(RLw) = ", "\n\n  QIc(RLw) = "};
// The least QIc1, with the Beta it was worked out with.
inline constexpr BiText leastDriver    {"La corriente mínima de Q1 ( QIc1 ) con Beta = ", "The minimum current of Q1 (QIc1) with Beta = "};
inline constexpr BiText leastDriverIs  {" (Beta Q2), es de : ", " (Beta Q2), it is : "};

inline constexpr BiText coil{"parlante: 0,7 x RLw", "loudspeaker: 0.7 x RLw"};
inline constexpr BiText archived{"Circuito de Archivo", "Archive Circuit"};
inline constexpr BiText measuredPower{"Este circuito entrega una Potencia (r.m.s.) = ", "This circuit gives a Power (r.m.s.) = "};
inline constexpr BiText watts{" Watts", " Watts "};
inline constexpr BiText cloneHint{" Clonar circuito ", " Cloned Circuit"};
inline constexpr BiText calculatorHint{" Calculadora ", " Calculator"};
inline constexpr BiText circuitHeading{"Parámetros del Circuito", "Circuit Parameters"};
inline constexpr BiText transistorHeading{"Parámetros del transistor", "Transistor Parameters"};

// --- boxes, in the order in which a student may meet them

inline constexpr BiText attention{"Atención!!", "Attention!!"};
inline constexpr Saying currentTooHigh{
    .text = {"Corriente Colector Emisor no debe superar a Ic(max)...", "Current Collector Emitter no upper to Ic(max)..."},
    .title = attention, .flags = 48};
inline constexpr Saying EQ2TooHigh{
    .text = {"Tensión EQ2 no debe superar a Ec(max)...", "Voltage EQ2 no upper to Ec(max)..."}, .title = attention, .flags = 48};
inline constexpr Saying EQ1TooHigh{
    .text = {"Tensión EQ1 no debe superar a Ec(max)...", "Voltage EQ1 upper to Ec(max)..."}, .title = attention, .flags = 48};
inline constexpr Saying driverTooWeak{
    .text = {"QIc1 no es suficiente para la  Zin de Q2", " QIc1 are not enough for the Zin Q2"},
    .title = {"Disminuya el valor de RL...", "Diminishes the value of RL..."}, .flags = 48};
inline constexpr Saying fortyPercent{
    .text = {"QIc no debe superar el 40 % de Ic(max)", "QIc should not overcome 40% of Ic(max)"},
    .title = {"Criterio de diseño...", "design Approach..."}, .flags = 48};
inline constexpr Saying restarted{
    .text = {"EL DISEñO SE REINICIARA", "The DESIGN was RESTARTED"},
    .title = {"Parámetros fuera de control...", "Parameters outside of control..."}, .flags = 48};
inline constexpr Saying Rb2Unfit{
    .text = {"El valor asignado a Rb2 no es conveniente...", "The value assigned at Rb2 is not convenient..."},
    .title = {"Acorde al criterio de diseño :", "Chord to the design approach"}, .flags = 48};
inline constexpr Saying presetTooLarge{
    .text = {"...este NO debe superar el 25 % de Rb1", "... this it should not overcome 25% of Rb1"},
    .title = {"Ya que decidió cambiar Rb1b por un PRESET...", "Since you decided to change Rb1b for a PRESET..."}, .flags = 48};
inline constexpr Saying Rb1TooSmall{
    .text = {"Eleve el valor de Rb2...", "Up the value of Rb2..."},
    .title = {"Rb1 es muy pequeña respecto de RLw...", "Rb1 are very small regarding RLw..."}, .flags = 48};

// --- pages of the help, by field; English empty: the page before stays

struct Page {
    host::Handle field = host::noControl;
    BiText text{};
};
inline constexpr auto pages = std::to_array<Page>({
    {Text1, {"Ingrese la potencia eficaz (rms) que se desarrollará en la carga (RLw), esta puede ser ohmmica ó inductiva. \n\n"
             "Po es la potencia de pico dividida por SQR(2).\n\n"
             "El programa trabaja hacia atrás: de la potencia y la carga obtiene la corriente, la fuente, RL y la polarización.",
             "Enter the effective power (rms) that will be developed in the load (RLw), this can be resistive or inductive. \n\n"
             "Po is the peak power divided by SQR(2).\n\n"
             "The program works backwards: from power and load it obtains the current, the supply, RL and the bias."}},
    {Text2, {" En Clase A la corriente de reposo (con ó sin señal de entrada) es la máxima que circulara por Colector - Emisor.\n\n"
             "Por eso la etapa calienta igual con señal que sin ella. Cargas pequeñas exigen corriente: con la misma potencia, una carga "
             "cuatro veces menor pide el doble de corriente y la mitad de tensión.",
             " In Class A the quiescent current (with or without input signal) is the maximum that will flow from Collector to Emitter.\n\n"
             "That is why the stage runs as hot without a signal as with one. Small loads demand current: for the same power, a load "
             "four times smaller asks for twice the current and half the voltage."}},
    {Text12, {"Si la bobina móvil del altoparlante sirve a la vez como carga simultánea a la c.c. y a la c.a., "
              "la corriente de reposo la recorre también sin señal.\n\n"
              "  RLw (inductiva) = 1,5 x RLw (ohmmica)\n\n"
              "Click en la Resistencia deja la carga como está; click en el Parlante toma la resistencia de su bobina.",
              "If the moving coil of the loudspeaker serves at the same time as load for d.c. and a.c., "
              "the quiescent current flows in it without a signal too.\n\n"
              "  RLw (inductive) = 1,5 x RLw (resistive)\n\n"
              "A click on the Resistor leaves the load as it is; a click on the Speaker takes the resistance of its coil."}},
    {Text10, {" Beta de Q1 es determinante de la impedancia de entrada (Zin), con Beta de Q2 la carga se ve desde Q1 multiplicada.\n\n"
              "RL debe ser por lo menos 10 veces menor que la Zin de Q2.\n\n"
              "QIc no debe superar el 40 % de Icmáx.", ""}},
    {Text3, {"La corriente mínima requerida para producir esta tensión sobre la carga es :\n\n",
             "The minimum current required to produce this voltage on the load is :\n\n"}},
    {Text5, {"Observe el valor recomendado por el programa de RL, es diez veces menor que la Zin de Q2: así la carga casi no cambia la "
             "ganancia de Q1.\n\n  RL = S x RLw\n  Estabilidad => S = 10",
             "Observe the value of RL recommended by the program, it is ten times smaller than the Zin of Q2: so the load hardly changes "
             "the gain of Q1.\n\n  RL = S x RLw\n  Stability => S = 10"}},
    {Text6, {"Es conveniente que Rb1b sea un preset variable para ajustar la corriente de polarización de Q1, "
             "y con ella la tensión sobre la carga.\n\nNo debe superar el 25 % de Rb1.\n\n"
             "Cbp, en la unión de Rb1a y Rb1b, deja a Rb1a fuera del camino de la señal de salida.",
             "It is convenient that Rb1b is a variable preset to adjust the bias current of Q1, "
             "and with it the voltage on the load.\n\nIt should not pass 25 % of Rb1.\n\n"
             "Cbp, joined to the middle of Rb1a and Rb1b, keeps Rb1a out of the way of the output signal."}},
    {Text7, {"Asigne un valor comercial a Rb2...\n\nPuede apartarse hasta un 20 % del valor calculado: el preset corrige la diferencia.",
             "Assign a standard value to Rb2...\n\nIt may differ by up to 20 % from the value worked out: the preset makes up for it."}},
    {Text8, {"El programa analiza la corriente QIc de Q1 obtenido con el valor de Rb2 asignado, "
             "y calcula de nuevo Rb1b para que la polarización se mantenga.\n\n"
             "  IRb2 = 0.6 / Rb2\n  IRb1 = Ib + IRb2\n  Rb1 = ERb1 / IRb1",
             "The program analyses the current QIc of Q1 obtained with the value of Rb2 assigned, "
             "and works out Rb1b anew so that the bias is kept.\n\n"
             "  IRb2 = 0.6 / Rb2\n  IRb1 = Ib + IRb2\n  Rb1 = ERb1 / IRb1"}},
    {Text9, {" Si bien un valor más elevado, que el recomendado por el programa, de Rs, eleva la Zin que ve el generador, "
             "se pierden las frecuencias altas: Rs y la capacidad de entrada de Q1 forman un filtro.",
             " Although a value of Rs higher than the one recommended by the program raises the Zin that the generator sees, "
             "the high frequencies are lost: Rs and the input capacitance of Q1 make a filter."}},
});
// clang-format on

} // namespace velmor::form15::texts
