// SPDX-License-Identifier: MIT
// What `Form10` says: steps, formulas under the pointer, boxes, captions, calculation pages; Spanish beside English. Slips are the
// program's own. Texts only.
#pragma once

#include <array>
#include <string_view>

#include "designs/power/form10_drawing.h"
#include "designs/power/form10_formulas.h"
#include "sheets/saying.h"

namespace velmor::form10 {

using host::BiText;
using sheets::Saying;
using sheets::When;

inline constexpr double kilo = 1000;
inline constexpr double micro = 0.000001;

/// A line of a calculation page: what stands before a quantity, what the quantity is divided by, what stands behind it. A line
/// without a quantity is its text alone.
struct PageRow {
    BiText before{};
    Real Quantities::*value = nullptr;
    double per = 1;
    BiText after{};
};

// clang-format off
// field, moment, place, Spanish, English
inline constexpr auto sayings = std::to_array<Saying>({
    sheets::placeANumber,
    {Text1,  When::focus, Label1, {" Paso 1: \n Registrar la máxima potencia salida r.m.s. (eficaz) deseada:  Po (rms)",
                                   " Step 1: \n Register the maximum Out Power r.m.s. (effective) wanted: Po (rms)"}},
    {Text1,  When::hover, Label7, {"Po = (Eopp / 2 x 0.707)² / RLw", "Po = (Eopp / 2 x 0.707)² / RLw"}},
    {Text2,  When::focus, Label1, {" Paso 2: \n Registrar la resistencia de la carga, el parlante:  RLw en Ohms",
                                   " Step 2: \n Register the resistance of the load, the loudspeaker: RLw in Ohms"}},
    {Text2,  When::hover, Label7, {"Eopp = SQR(Po x RLw) x 1.41 x 2\nEq(min) = 0.66 x Eopp\nEs(min) = 2 x Eq(min) + 2",
                                   "Eopp = SQR(Po x RLw) x 1.41 x 2\nEq(min) = 0.66 x Eopp\nEs(min) = 2 x Eq(min) + 2"}},
    {Text10, When::focus, Label1, {" Paso 3: \n Registrar la tensión de la fuente disponible:  Es",
                                   " Step 3: \n Register the voltage of the available source: Es"}},
    {Text10, When::hover, Label7, {"Eq = Es / 2\nERl = 0.5 x Es - 1.2", "Eq = Es / 2\nERl = 0.5 x Es - 1.2"}},
    {Text5,  When::focus, Label1, {" Paso 4: \n Asignar la corriente de reposo de T1, Ibias. Valor recomendado : 2 a 20 mA",
                                   " Step 4: \n Assign the quiescent current of T1, Ibias. Recommended value : 2 to 20 mA"}},
    {Text5,  When::hover, Label7, {"RL(total) = ERl / Ibias\nRd = 0.6 V / Ibias", "RL(total) = ERl / Ibias\nRd = 0.6 V / Ibias"}},
    {Text6,  When::hover, Label7, {"Rb1 = Rb1a + Rb1b = 10 x RL(total)", "Rb1 = Rb1a + Rb1b = 10 x RL(total)"}},
    {Text7,  When::focus, Label11, {"Rb1b", "Rb1b"}},
    {Text7,  When::focus, Label1, {"Pulse Click sobre Rb1b", "Push Click over Rb1b"}},
    {Text7,  When::click, Label1, {"A la mitad del valor de Rb1 le asignamos un Preset de doble valor  comercial..",
                                   "To half of the value of Rb1 we assign a Preset of double commercial value.."}},
    {Text7,  When::hover, Label7, {"Rb1b = Rb1 / 2", "Rb1b = Rb1 / 2"}},
    {Text8,  When::hover, Label7, {"IRb2 = IRb1 - Ib\nRb2 = 0.6 V / IRb2", "IRb2 = IRb1 - Ib\nRb2 = 0.6 V / IRb2"}},
    {Text3,  When::hover, Label7, {"RLb = 25 % RL(total)", "RLb = 25 % RL(total)"}},
    {Text4,  When::hover, Label7, {"RLa = RL(total) - RLb", "RLa = RL(total) - RLb"}},
    {Text9,  When::hover, Label7, {"Rs = 20 x Zin\nEg = Ein x Rs / Zin", "Rs = 20 x Zin\nEg = Ein x Rs / Zin"}},
    {Text11, When::focus, Label1, {" Registrar la corriente máxima de colector del manual, Ic(max), en Amperes",
                                   " Register the maximum collector current of the manual, Ic(max), in Amperes"}},
    {Text11, When::hover, Label7, {"ERes = Ic(max) x 0.47", "ERes = Ic(max) x 0.47"}},
    {Text12, When::focus, Label1, {" Registrar la tensión de saturación del manual, Vce(sat), en Volts",
                                   " Register the saturation voltage of the manual, Vce(sat), in Volts"}},
    {Text12, When::hover, Label7, {"Ex = Vce - ERes\nIp = Ex / RLw", "Ex = Vce - ERes\nIp = Ex / RLw"}},
});

// Boxes, in the order in which a student may meet them.
inline constexpr Saying insufficientEq{
    .text  = {" Tensión Eq no puede manejar Eopp", "Voltage Eq can not manage  Eopp "},
    .title = {"Criterio de diseño", "design Approach"},
    .flags = 65};
inline constexpr Saying insufficientERl{
    .text  = {" Tensión ERL es insuficiente..(ERl < 1/2 Eopp)", "Insufficient voltage ERL.. (ERl < 1/2 Eopp)"},
    .title = {"Criterio de diseño", "Design Approach"},
    .flags = 68};
inline constexpr Saying highEq{
    .text  = {"Debe tener presente que la tensión Colector Emisor no sobrepase a  la especificada por el fabricante..",
              " Should have present that the voltage Emitter - Collector doesn't surpass the one specified by the date of Manual.."},
    .title = {"Cuidado !!", "Care!!"},
    .flags = 48};
inline constexpr Saying noBootstrapping{
    .text  = {"Sin Bootstrapping", "No Bootstrapping"},
    .title = {"Rl1b muy bajo...", "Rlb very low.."},
    .flags = 48};
inline constexpr BiText errorTitle{"Error", "Error"};

// The analysis of the driver's voltages: what stands around its numbers.
inline constexpr BiText analysisTitle{"Análisis de tensiones en Driver ", " Driver voltage analysis"};
inline constexpr BiText lowEqPage[] = {
    {"La señal de  salida es ", "The output sign is: "},
    {" V, para ello es necesaria una tensión mínima de Eq de ", " V, for it is necessary a minimum voltage of Eq : "},
    {" , es  aconsejable elevar  la tensión de fuente..", ", it is advisable to elevate the source voltage.."},
};
inline constexpr BiText lowERlPage[] = {
    {"Tensión  en ERl no puede manejar la mitad de EOPP, la señal de  salida es ",
     "Voltage in ERl can not manage half of EOPP, the output sign is "},
    {" V, para ello es necesaria una tensión mínima  Erl de ", " V, for it is necessary a minimum voltage Erl of: "},
    {" , es  aconsejable elevar  la tensión de fuente..", ", it is advisable to elevate the source voltage.."},
};

// Captions and prompts around a number.
inline constexpr BiText leastSource{"La tensión mínima de fuente (Es), es : ", "The minimum voltage of source (ERes), it is :"};
inline constexpr BiText leastSourceEnd{"  Volts, coloque tensión conveniente...", "Volts, place convenient voltage..."};
inline constexpr BiText clickOnRb1{
    " Paso 5: RL(total) = ERl / Ibias     Paso 6: Rd = 0.6 V / Ibias     Paso 7: la estabilidad, S = Rb1 / RL = 10\n"
    " Haga CLICK sobre Rb1 para continuar...",
    " Step 5: RL(total) = ERl / Ibias     Step 6: Rd = 0.6 V / Ibias     Step 7: the stability, S = Rb1 / RL = 10\n"
    " Make CLICK over Rb1 to continue..."};
inline constexpr BiText fixedRb1a{" El valor de Rb1a debe ser 3/4 de Rb1 :  Rb1a = ", " The value of Rb1a should be 3/4 of Rb1 :  Rb1a = "};
inline constexpr BiText valueOfRb2{" El valor calculado de Rb2 es :  ", " The calculated value of Rb2 is :  "};
inline constexpr BiText valueOfRLb{" RLb es el 25 % de RL(total) :  ", " RLb is 25 % of RL(total) :  "};
inline constexpr BiText valueOfRLa{" El valor calculado de RLa es :  ", " The calculated value of RLa is :  "};
inline constexpr BiText valueOfRs{" El valor aconsejado de Rs es :  ", " The advised value of Rs is :  "};
inline constexpr BiText kilohms{" K, coloque valor comercial...", " K, place commercial value..."};
inline constexpr BiText placeIcMax{" Coloque valor de\nIc(max) del manual...", " It places value of\nIc(max) of the manual..."};
inline constexpr BiText peakCurrentIs{" La corriente pico que circula a máxima potencia es :",
                                       " The peak current that circulates to maximum power is :"};
inline constexpr BiText peakCurrentAdvice{"  Amper, elija transistores que la soporten.\n", "  Amper, choose transistors that bear it.\n"};
inline constexpr BiText verse{" La solución a los problemas\n ecológicos es la\nextinción de la especie que\nlos causa...",
                              "Condemned for the birds of your conscience,\nliberate remorses opening up\nthe cage of your head..."};
inline constexpr BiText archived{"Circuito de Archivo", "Archive Circuit"};

// Captions that belong to no single field.
inline constexpr BiText fileFilter{"Clase B Simple (*.CBS)|*.CBS", "Class B Simple (*.CBS)|*.CBS"};
inline constexpr BiText guideFile{"Emisor común realimentado por corriente.Lab", "Emisor común realimentado por corriente.Lab"};
inline constexpr BiText circuitHeading{"Parámetros del Circuito", "Circuit Parameters"};
inline constexpr BiText transistorHeading{"Parámetros del transistor", "Transistor Parameters"};
inline constexpr BiText goOnButton{"Continuar...", "Continue..."};

// The calculation page of the driver's base, and that of its signal.
inline constexpr auto basePage = std::to_array<PageRow>({
    {.before = {"         Criterios y Formulas : ", "        Approaches and Formulate : "}},
    {.before = {"", ""}},
    {{"    Resistor Rb1 : Rb1 = S x RL =  ", "    Resistor Rb1 : Rb1 = S x RL =  "}, &Quantities::Rb1, 1, {" K", " K"}},
    {{"    ERb1 = Eq - 0.6 =  ", "    ERb1 = Eq - 0.6 =  "}, &Quantities::ERb1, 1, {" Volts", " Volts"}},
    {{"    IRb1 = ERb1 / Rb1 =  ", "    IRb1 = ERb1 / Rb1 =  "}, &Quantities::IRb1, micro, {" microA", " microA"}},
    {{"    Ib = Ibias / B =  ", "    Ib = Ibias / B =  "}, &Quantities::Ib, micro, {" microA,  con B = 100", " microA,  with B = 100"}},
    {{"    IRb2 = IRb1 - Ib =  ", "    IRb2 = IRb1 - Ib =  "}, &Quantities::IRb2, 1, {" microA", " microA"}},
    {.before = {"    Rb2 = 0.6 / IRb2", "    Rb2 = 0.6 / IRb2"}},
    {{"    Rb2 =  ", "    Rb2 =  "}, &Quantities::Rb2Calc, kilo, {" Kohms", " Kohms"}},
});
inline constexpr auto signalPage = std::to_array<PageRow>({
    {.before = {"      Criterios y Formulas : ", "      Approaches and Formulate : "}},
    {.before = {"", ""}},
    {{"                      Zin = B x r' e // Rb2 // Rb1b = ", "                      Zin = B x r' e // Rb2 // Rb1b = "},
     &Quantities::Zin, 1, {" Ohms", " Ohms"}},
    {{"                      Rs = 20 x Zin = ", "                      Rs = 20 x Zin = "}, &Quantities::RsCalc, 1, {" Ohms", " Ohms"}},
    {{"                      Z = Zin + Rs = ", "                      Z = Zin + Rs = "}, &Quantities::Z, 1, {" Ohms", " Ohms"}},
    {.before = {"                      Vg(T1) = RLac / r' e", "                      Vg(T1) = RLac / r' e"}},
    {.before = {"                      RLac = RL // B(T2) x  Rlw ", "                      RLac = RL // B(T2) x  Rlw "}},
    {{"                      Vg(T1) = ", "                      Vg(T1) = "}, &Quantities::Vg, 1, {"  veces", "  times"}},
    {{"                      Eg = 20 x Ein = ", "                      Eg = 20 x Ein = "}, &Quantities::EgPP, 1,
     {" Volts pico-pico", " Volts peak-peak"}},
    {{"                      Ein = Eopp / Vg = ", "                      Ein = Eopp / Vg = "}, &Quantities::Ein, 1,
     {" Volts pico-pico", " Volts peak-peak"}},
});
// clang-format on

/// The help pages.
extern const BiText helpText;

} // namespace velmor::form10
