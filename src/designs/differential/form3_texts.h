// SPDX-License-Identifier: MIT
// What `Form3` says: lines, pages and prompts by field and moment, help on pointing, boxes, captions; Spanish beside English. The
// long pages of the bench are told in form3_pages. Slips are the program's own. Texts only.
#pragma once

#include <array>
#include <string_view>

#include "designs/differential/form3_controls.h"
#include "sheets/saying.h"

namespace velmor::form3::texts {

using host::BiText;
using sheets::Saying;
using sheets::When;

// clang-format off
// Formulas as text, for whoever reads the sheet by ear; on the screen they are drawn.
inline constexpr std::string_view formulaOfERes =
    "                (Tamb. - 25°) x (dVbe) x100 \n"
    "ERes =  --------------------------------------\n"
    "                              (dQic)";
inline constexpr std::string_view formulaOfRes =
    "                 Ebias\n"
    "Res =  --------------\n"
    "               2 x Qic\n"
    "Ebias = Eres + 1";
inline constexpr std::string_view formulaOfRL =
    "     RLac = Vg x 2.5 x r'e \n"
    "              RLw x RLac\n"
    "Rl =  -------------------\n"
    "            (RLw - RLac)";
inline constexpr std::string_view formulaOfEs =
    "     EQ(min) = 1 + Eopp\n"
    "     Es(min) = EQ(min) + ERl";
inline constexpr std::string_view formulaOfRe =
    "             25 mV\n"
    "r'e =  -----------\n"
    "               Qic";

// about, moment, place, Spanish, English
inline constexpr auto sayings = std::to_array<Saying>({
    sheets::placeANumber,
    // the fields in chain order: the line, the page, the prompt, the help on pointing
    {Text1, When::focus, StatusBar1, {"% ΔQic: variación admisible de la corriente de reposo con la temperatura, de 1 a 10 %.",
                                      "% ΔQic: allowed change of the quiescent current with the temperature, from 1 to 10 %."}},
    {Text1, When::lesson, SSPanel4, {"La estabilidad primero.\n\n"
                               "¿Cuánto puede cambiar la corriente de reposo cuando la temperatura sube de 20 ºC a la de trabajo?\n\n"
                               "Cuanto menos permita, mayor será la fuente negativa.",
                               "Stability first.\n\n"
                               "How much may the quiescent current change when the temperature rises from 20 ºC to that of work?\n\n"
                               "The less you allow, the higher the negative supply."}},
    {Text1, When::focus, SSPanel1, {"Enter, valores predeterminados..", "Enter, default value.."}},
    {Text6, When::focus, StatusBar1, {"Temperatura ambiente de trabajo, de 20 a 200 ºC. Botón derecho: conversión desde Fahrenheit y "
                                      "Kelvin.",
                                      "Ambient temperature of work, from 20 to 200 ºC. Right button: conversion from Fahrenheit and "
                                      "Kelvin."}},
    {Text6, When::lesson, SSPanel4, {"La temperatura más alta en la que trabajará el equipo, adentro de su gabinete.\n\n"
                               "Con el botón derecho puede convertirla desde Fahrenheit ó Kelvin.",
                               "The highest temperature in which the equipment will work, inside its case.\n\n"
                               "With the right button you can convert it from Fahrenheit or Kelvin."}},
    {Text7, When::focus, StatusBar1, {"Para  Ic=1 mA, corresponde 2.5 mV por °C.", "For Ic=1 MA, it corresponds 2.5 mV for °C."}},
    {Text7, When::lesson, SSPanel4, {"La tensión Base - Emisor cae unos milivoltios por cada grado.\n\n"
                               "En un par diferencial los dos transistores cambian juntos, y la diferencia se cancela. La corriente de "
                               "reposo no: de ella cuida Res.",
                               "The Base - Emitter voltage falls some millivolts for each degree.\n\n"
                               "In a long tail pair both transistors change together, and the difference cancels. The quiescent current "
                               "does not: Res takes care of it."}},
    {Text9, When::focus, StatusBar1, {"Qic: corriente de reposo de cada transistor, en mA. Por Res circula el doble.",
                                      "Qic: quiescent current of each transistor, in mA. Twice as much flows in Res."}},
    {Text9, When::lesson, SSPanel4, {"La corriente de cada transistor sin señal. Por Res circulan las dos.\n\n"
                               "Fija r'e = 25 mV / Qic, y con ella la ganancia y la impedancia de entrada.\n\n"
                               "Con cargas pequeñas deberá elevarla.",
                               "The current of each transistor without a signal. In Res flow both.\n\n"
                               "It fixes r'e = 25 mV / Qic, and with it the gain and the input impedance.\n\n"
                               "With small loads you will have to raise it."}},
    {Text10, When::focus, StatusBar1, {"RLw: carga de cada salida, en Kohms.", "RLw: load of each output, in Kohms."}},
    {Text10, When::lesson, SSPanel4, {"La resistencia que se conecta a cada salida, después de Cco.\n\n"
                                "Debe ser mayor que RLac = Vg x 2.5 x r'e; si no, Qic es insuficiente.",
                                "The resistance connected to each output, behind Cco.\n\n"
                                "It must be larger than RLac = Vg x 2.5 x r'e; if not, Qic is insufficient."}},
    {Text11, When::focus, StatusBar1, {"S: factor de estabilidad, de 1 a 200.   Rb2 = S x Res",
                                       "S: stability factor, from 1 to 200.   Rb2 = S x Res"}},
    {Text11, When::lesson, SSPanel4, {"Cuántas veces mayor que Res puede ser el resistor de base: Rb2 = S x Res.\n\n"
                                "Con S = 1 la base queda firme; con S mayor sube la impedancia y baja la estabilidad.",
                                "How many times larger than Res the resistor of the base may be: Rb2 = S x Res.\n\n"
                                "With S = 1 the base stands firm; a larger S raises the impedance and lowers the stability."}},
    {Text12, When::focus, StatusBar1, {"Vg= RLac / 2.5 x r'e          Vg= Eopp / Ein(pp)",
                                       "Vg= RLac / 2.5 x r'e          Vg= Eopp / Ein(pp)"}},
    {Text12, When::lesson, SSPanel4, {"La ganancia de tensión de una salida contra masa. Entre los dos colectores obtendrá el doble.\n\n"
                                "Al final del diseño el cuadro muestra la ganancia que resulta con los valores comerciales.",
                                "The voltage gain of one output against ground. Between the two collectors you get twice as much.\n\n"
                                "At the end of the design the field shows the gain that comes out with the commercial values."}},
    {Text13, When::focus, StatusBar1, {"fo: frecuencia de corte inferior, donde la ganancia cae un 10 %.",
                                       "fo: lower cut-off frequency, where the gain falls 10 %."}},
    {Text13, When::lesson, SSPanel4, {"La frecuencia más baja de interés. En ella la ganancia cae un 10 %.\n\n"
                                "De fo salen los capacitores: cuanto más baja, más grandes.",
                                "The lowest frequency of interest. There the gain falls 10 %.\n\n"
                                "From fo come the capacitors: the lower it is, the larger they are."}},
    {Text14, When::focus, StatusBar1, {"Eopp: tensión de salida pico a pico, en Volts.   Ein = ((Eopp / 2) x 0.707) / Vg",
                                       "Eopp: output voltage peak to peak, in Volts.   Ein = ((Eopp / 2) x 0.707) / Vg"}},
    {Text14, When::lesson, SSPanel4, {"La tensión de salida pico a pico que debe entregar cada colector.\n\n"
                                "EQ(min) = 1 + Eopp: la señal necesita lugar para moverse, y un voltio más.",
                                "The output voltage peak to peak that each collector must deliver.\n\n"
                                "EQ(min) = 1 + Eopp: the signal needs room to move, and one volt more."}},
    {Text15, When::focus, StatusBar1, {"Ein: tensión de entrada en valor eficaz.   Eopp = ((Ein x 1.41) x 2) x Vg",
                                       "Ein: input voltage (r.m.s.).   Eopp = ((Ein x 1.41) x 2) x Vg"}},
    {Text15, When::lesson, SSPanel4, {"La señal de entrada, en valor eficaz, que produce esa salida.\n\n"
                                "Si la cambia, Eopp se calcula de nuevo.",
                                "The input signal, r.m.s., that makes that output.\n\n"
                                "If you change it, Eopp is worked out anew."}},
    {Text5, When::focus, StatusBar1, {"Beta (hFE): ganancia de corriente del transistor, según el Manual.   Zin = Beta x 2 x r'e",
                                      "Beta (hFE): current gain of the transistor, as in the Manual.   Zin = Beta x 2 x r'e"}},
    {Text5, When::lesson, SSPanel4, {"Beta (hFE) según el Manual del transistor, a la corriente Qic. Los dos deben ser apareados.\n\n"
                               "Zin = Beta x 2 x r'e",
                               "Beta (hFE) as the transistor's Manual gives it, at the current Qic. Both must be matched.\n\n"
                               "Zin = Beta x 2 x r'e"}},
    {Text2, When::focus, StatusBar1, {"Ec(máx): tensión Colector - Emisor máxima que soporta el transistor, en Volts.",
                                      "Ec(max): largest Collector - Emitter voltage that the transistor supports, in Volts."}},
    {Text2, When::lesson, SSPanel4, {"La tensión que soporta el transistor entre Colector y Emisor. EQ no debe superarla.",
                               "The voltage that the transistor supports between Collector and Emitter. EQ should not pass it."}},
    {Text3, When::focus, StatusBar1, {"Ic(máx): corriente máxima de Colector, en mA. Qic no debe superar su 40 %.",
                                      "Ic(max): largest Collector current, in mA. Qic should not pass 40 % of it."}},
    {Text3, When::lesson, SSPanel4, {"La corriente de Colector que soporta el transistor. Qic no debe superar el 40 %.",
                               "The Collector current that the transistor supports. Qic should not pass 40 % of it."}},
    {Text4, When::focus, StatusBar1, {"Tensión de juntura: 0.6 V para Silicio, 0.2 V para Germanio.",
                                      "Junction voltage: 0.6 V for Silicon, 0.2 V for Germanium."}},
    {Text4, When::lesson, SSPanel4, {"La juntura Base - Emisor: 0.6 V en Silicio, 0.2 V en Germanio.\n\n"
                               "Con este dato el programa calcula la mínima fuente negativa.",
                               "The Base - Emitter junction: 0.6 V in Silicon, 0.2 V in Germanium.\n\n"
                               "With it the program works out the least negative supply."}},
    {Text8, When::focus, StatusBar1, {"-Ebias: fuente negativa, en Volts. Coloque un valor disponible, igual o superior al propuesto.",
                                      "-Ebias: negative supply, in Volts. Place an available value, equal to the proposed one or higher."}},
    {Text8, When::lesson, SSPanel4, {"ERes = ((T - 20) x ΔVbe x 100) / % ΔQic\n\n"
                               "El programa propone un voltio más. Coloque una fuente que tenga: 15, 24, 30 V.\n\n"
                               "Con menos, el amplificador no cumple la estabilidad que pidió.",
                               "ERes = ((T - 20) x ΔVbe x 100) / % ΔQic\n\n"
                               "The program proposes one volt more. Place a supply that you have: 15, 24, 30 V.\n\n"
                               "With less, the amplifier does not keep the stability you asked for."}},
    {Text8, When::hover, Label34, {formulaOfERes, formulaOfERes}},
    {Text8, When::hover, Shape7},
    {Text16, When::focus, StatusBar1, {"Res: resistor común de emisores, en Kohms. Coloque el valor comercial más próximo.",
                                       "Res: common resistor of the emitters, in Kohms. Place the nearest commercial value."}},
    {Text16, When::lesson, SSPanel4, {"Res = Ebias / (2 x Qic)\n\n"
                                "Por Res circulan las corrientes de los dos transistores. Coloque el valor comercial más próximo: Qic se "
                                "calcula de nuevo.",
                                "Res = Ebias / (2 x Qic)\n\n"
                                "In Res flow the currents of both transistors. Place the nearest commercial value: Qic is worked out "
                                "anew."}},
    {Text16, When::focus, SSPanel1, {"Colocar valor en Kohms... ", "Put value in Kohms..."}},
    {Text16, When::hover, Label34, {formulaOfRes, formulaOfRes}},
    {Text16, When::hover, Shape8},
    {Text16, When::hover, Text21},
    {Text17, When::focus, StatusBar1, {"RL: resistor de cada Colector, en Kohms. Coloque el valor comercial más próximo.",
                                       "RL: resistor of each Collector, in Kohms. Place the nearest commercial value."}},
    {Text17, When::lesson, SSPanel4, {"RL y la carga RLw, en paralelo, forman RLac.\n\n"
                                "Con el valor comercial el programa calcula ERl = Qic x RL, que debe llegar a la mitad de Eopp.",
                                "RL and the load RLw, in parallel, make RLac.\n\n"
                                "With the commercial value the program works out ERl = Qic x RL, which must reach half of Eopp."}},
    {Text17, When::focus, Label44, {"Tab ó Enter: sigue Es", "Tab or Enter: Es follows"}},
    {Text17, When::focus, SSPanel1, {"   Pulse Tab ó Enter para seguir flujo de diseño. ", "Presses Tab or Enter to follow design flow. "}},
    {Text17, When::hover, Label34, {formulaOfRL, formulaOfRL}},
    {Text17, When::hover, Shape9},
    {Text17, When::hover, Text21},
    {Text18, When::focus, StatusBar1, {"Es: fuente positiva, en Volts. Debe alcanzar para EQ(min) y ERl.",
                                       "Es: positive supply, in Volts. It must do for EQ(min) and ERl."}},
    {Text18, When::lesson, SSPanel4, {"Es = EQ + ERl\n\n"
                                "Coloque una fuente que supere la mínima. Con Enter termina el diseño, y el multímetro espera.",
                                "Es = EQ + ERl\n\n"
                                "Place a supply that passes the least one. With Enter the design is finished, and the multimeter waits."}},
    {Text18, When::hover, Label34, {formulaOfEs, formulaOfEs}},
    {Text18, When::hover, Shape10},
    // pictures and results
    {Label22, When::hover, StatusBar1, {"r'e: resistencia dinámica de la juntura Base - Emisor de cada transistor.",
                                        "r'e: dynamic resistance of the Base - Emitter junction of each transistor."}},
    {Label22, When::hover, Label34, {formulaOfRe, formulaOfRe}},
    {Label22, When::hover, Shape11},
    {Image1, When::hover, StatusBar1, {"Ejemplo de caracter didactico,  no apto para diseño...",
                                       "Example of didactic character, not capable for design."}},
    // names of what the bench and the tools offer
    {Image30, When::hover, Label36, {"Generador: clic enciende, doble clic apaga", "Generator: click on, double click off"}},
    {Image33, When::hover, Label36, {"Multímetro: clic enciende, doble clic apaga", "Multimeter: click on, double click off"}},
    {Image14, When::hover, Label36, {"Senoide A: arrástrela a una entrada", "Sinusoid A: drag it to an input"}},
    {Image15, When::hover, Label36, {"Senoide B: arrástrela a una entrada", "Sinusoid B: drag it to an input"}},
    {c1,      When::hover, Label36, {"Tensión", "Voltage"}},
    {c4,      When::hover, Label36, {"Corriente", "Current"}},
    {c5,      When::hover, Label36, {"Potencia", "Power"}},
    {C3,      When::hover, Label36, {"Impedancia", "Impedance"}},
    {c6,      When::hover, Label36, {"Señal de Modo Común", "Signal of Common Mode"}},
    {c7,      When::hover, Label36, {"Rechazo de Modo Común", "Common Mode Rejection"}},
    {Image4,  When::hover, Label36, {"Out 3: entre Colectores", "Out 3: between Collectors"}},
    {Image24, When::hover, Label36, {"Out 3: entre Colectores", "Out 3: between Collectors"}},
    {Image22, When::hover, Label36, {"Out 1: Colector y masa", "Out 1: Collector and Ground"}},
    {Image26, When::hover, Label36, {"Out 2: Colector y masa", "Out 2: Collector and Ground"}},
    {Image5,  When::hover, Label36, {"Fuente negativa -Ebias", "Negative supply -Ebias"}},
    {Image6,  When::hover, Label36, {"Fuente positiva Es", "Positive supply Es"}},
    {Image7,  When::hover, Label36, {"Rama de un Colector", "Branch of one Collector"}},
    {Image8,  When::hover, Label36, {"Emisor", "Emitter"}},
    {Image9,  When::hover, Label36, {"Base", "Base"}},
    {Image10, When::hover, Label36, {"Resistor de Base", "Resistor of the Base"}},
    {Image11, When::hover, Label36, {"Carga / Entrada 2", "Load / Input 2"}},
    {Image12, When::hover, Label36, {"Entrada 1", "Input 1"}},
    {Image27, When::hover, Label36, {"Calculadora", "Calculator"}},
    {Image28, When::hover, Label36, {"Elaborar informe", "Make the report"}},
    {Image29, When::hover, Label36, {"Guía de trabajos", "Work guide"}},
    {Image32, When::hover, Label36, {"Abrir un nuevo circuito...", "Clon Circuit"}},
    {Image31, When::hover, Label36, {"Abrir un nuevo circuito...", "Clon Circuit"}},
    {Image35, When::hover, Label36, {"Que hay para hacer...?", "What is there to do..?"}},
    {Image34, When::hover, Label36, {"Ocultar la ayuda", "Hide the help"}},
});

// In the finished picture the load stands at Out 1; a signal that is let go there is still one of input 2.
inline constexpr Saying finishedLoad{.place = Label36,
                                     .text = {.es = "Out 1: Carga (señal: Entrada 2)", .en = "Out 1: Load (signal: Input 2)"}};

// Boxes, in the order in which a student may meet them.
inline constexpr Saying belowEResMin{
    .text  = {.es = "El amplificador NO cumplira los requerimientos de estabilidad...", .en = " Place a number..."},
    .title = {.es = "Eleve la Fuente de Alimentación...", .en = "Eleve la Fuente de Alimentación..."},
    .flags = 48};
inline constexpr Saying stability{
    .text  = {.es = "La corriente de reposo no debe superar el 40 % de la máxima que soporta el transistor.",
              .en = "The quiescent current should not overcome 40% of the maxim that supports the transistor."},
    .title = {.es = "Crierio de estabilidad...", .en = "Approach of stability..."},
    .flags = 16};
inline constexpr Saying insufficientQIc{
    .text  = {.es = "Primero suba Qic, luego la tensión de fuente o disminuya Res...",
              .en = "First Qic ascends, then the source voltage or diminish Res..."},
    .title = {.es = "Qic es insuficiente para manejar RLw...", .en = "Qic is insufficient to manage RLw..."},
    .flags = 48};
inline constexpr Saying lowERL{
    .text  = {.es = "Debe colocar una resistencia de superior valor...", .en = " Should place a resistor of superior value..."},
    .title = {.es = "La tensión en ERL debe ser 1/2 de Eopp.", .en = "The voltage in ERL must be 1/2 of Eopp."},
    .flags = 48};
inline constexpr Saying highEQ{
    .text  = {.es = "La tensión Colector Emisor no debe supera la máxima que soporta el transistor.",
              .en = "The voltage Collector Emitter should not  the maxim that supports the transistor."},
    .title = {.es = "Critério de diseño...", .en = "Approach of design..."},
    .flags = 16};
inline constexpr Saying lowEQ{
    .text  = {.es = "La tensión de fuente debe superar a la mínima...",
              .en = "The source voltage should overcome to the minimum ..."},
    .title = {.es = "Eq no es suficiente para manejar Eopp...", .en = "Eq is not enough to manage Eopp..."},
    .flags = 16};

// Captions and prompts that belong to no single field, and their parts.
inline constexpr BiText transistorHeading{"Parámetros del transistor", "Transistor Parameters"};
inline constexpr BiText circuitHeading{"Parámetros del Circuito", "Circuit Parameters"};
inline constexpr BiText minimumSource{"Tensión mínima de fuente:  ", "Minimum source:  "};
inline constexpr BiText minimumSourceEnd{"   Volts,                                    Coloque disponible... ",
                                         "   V,  Place available .."};
inline constexpr BiText pointAtResults{"Para ver formulas utilizadas, pase el Mouse por los resultados...",
                                       "To see  formulate used, the Mouse go by the results..."};
inline constexpr BiText archivePrompt{"Circuito de Archivo", "Archive Circuit"};
inline constexpr BiText resValue{"El valor  es:", "The  value is: "};
inline constexpr BiText resValueEnd{" K  Coloque valor comercial", "K  Put normalized resistor"};
inline constexpr BiText commercialRL{" Coloque valor comercial...", " put normalized resistor..."};
inline constexpr BiText leastSource{"Es mínima = ", "Source (min) = "};
inline constexpr BiText leastVoltage{"tensión mínima:", "Voltage min.:"};
// clang-format on

// Pages of the bench, and what its panel says.
extern const BiText benchPage;
extern const BiText meterPage;
extern const BiText teachingPage;
extern const BiText testInOut;
extern const BiText testInEmitter;
extern const BiText smcPage;
extern const BiText cmrrPage;
extern const BiText cmrrMeasured;
extern const BiText toGround;
extern const BiText betweenCollectors;
extern const BiText zeroExplained;

extern const std::string_view englishHelp;
extern const std::string_view spanishHelp;
extern const std::string_view commercialValues;

} // namespace velmor::form3::texts
