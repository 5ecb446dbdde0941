// SPDX-License-Identifier: MIT
// Prompts, status lines, boxes and names of `Form3`, Spanish and English side by side.
#include "designs/differential/form3_texts.h"

#include <algorithm>
#include <limits>

#include "designs/differential/form3_controls.h"

namespace velmor::form3::texts {

namespace rows {

constexpr double noLimit = std::numeric_limits<double>::max();

// clang-format off
constexpr FieldRow fields[] = {
    // field   next      empty   from      to        otherwise  left empty
    {Text1,  Text6,       1.0,     1.0,    10.0,       1.0,      1.0},
    {Text6,  Text7,      90.0,    20.0,   200.0,      90.0,     90.0},
    {Text7,  Text9,       0.0,     2.0,     3.0,       2.75,     0.0},
    {Text9,  Text10,      0.0,   1e-08,  noLimit,      0.5,      0.0},
    {Text10, Text11,     16.0,   1e-08,  noLimit,     16.0,     16.0},
    {Text11, Text12,      1.0,     1.0,   200.0,       1.0,      1.0},
    {Text12, Text13,     64.0,    10.0,  noLimit,     64.0,     64.0},
    {Text13, Text14,     20.0,     0.1,  noLimit,      1.0,     20.0}, // 1 Hz, not the default
    {Text14, Text15,     10.0,   1e-08,  noLimit,     10.0,     10.0},
    {Text15, Text5,       0.05,  1e-08,  noLimit,      0.05,     0.05},
    {Text5,  Text2,     100.0,    10.0,  noLimit,    100.0,    100.0},
    {Text2,  Text3,      30.0, -noLimit, noLimit,     30.0,     30.0},
    {Text3,  Text4,     100.0,     1.0,  noLimit,    100.0,    100.0},
    {Text4,  Text8,       0.6, -noLimit, noLimit,      0.6,      0.6},
    {Text8,  Text16,     24.0,   1e-08,  noLimit,     24.0,     20.0},
    {Text16, Text17,     22.0,   1e-08,  noLimit,     22.0,     22.0},
    {Text17, Text18,     16.0, -noLimit, noLimit,     16.0,     20.0},
};

constexpr StatusRow status[] = {
    {Text1,  {.es = "% ΔQic: variación admisible de la corriente de reposo con la temperatura, de 1 a 10 %.",
              .en = "% ΔQic: allowed change of the quiescent current with the temperature, from 1 to 10 %."}},
    {Text6,  {.es = "Temperatura ambiente de trabajo, de 20 a 200 ºC. Botón derecho: conversión desde Fahrenheit y Kelvin.",
              .en = "Ambient temperature of work, from 20 to 200 ºC. Right button: conversion from Fahrenheit and Kelvin."}},
    {Text7,  {.es = "Para  Ic=1 mA, corresponde 2.5 mV por °C.",
              .en = "For Ic=1 MA, it corresponds 2.5 mV for °C."}},
    {Text9,  {.es = "Qic: corriente de reposo de cada transistor, en mA. Por Res circula el doble.",
              .en = "Qic: quiescent current of each transistor, in mA. Twice as much flows in Res."}},
    {Text10, {.es = "RLw: carga de cada salida, en Kohms.",
              .en = "RLw: load of each output, in Kohms."}},
    {Text11, {.es = "S: factor de estabilidad, de 1 a 200.   Rb2 = S x Res",
              .en = "S: stability factor, from 1 to 200.   Rb2 = S x Res"}},
    {Text12, {.es = "Vg= RLac / 2.5 x r'e          Vg= Eopp / Ein(pp)",
              .en = "Vg= RLac / 2.5 x r'e          Vg= Eopp / Ein(pp)"}},
    {Text13, {.es = "fo: frecuencia de corte inferior, donde la ganancia cae un 10 %.",
              .en = "fo: lower cut-off frequency, where the gain falls 10 %."}},
    {Text14, {.es = "Eopp: tensión de salida pico a pico, en Volts.   Ein = ((Eopp / 2) x 0.707) / Vg",
              .en = "Eopp: output voltage peak to peak, in Volts.   Ein = ((Eopp / 2) x 0.707) / Vg"}},
    {Text15, {.es = "Ein: tensión de entrada en valor eficaz.   Eopp = ((Ein x 1.41) x 2) x Vg",
              .en = "Ein: input voltage (r.m.s.).   Eopp = ((Ein x 1.41) x 2) x Vg"}},
    {Text5,  {.es = "Beta (hFE): ganancia de corriente del transistor, según el Manual.   Zin = Beta x 2 x r'e",
              .en = "Beta (hFE): current gain of the transistor, as in the Manual.   Zin = Beta x 2 x r'e"}},
    {Text2,  {.es = "Ec(máx): tensión Colector - Emisor máxima que soporta el transistor, en Volts.",
              .en = "Ec(max): largest Collector - Emitter voltage that the transistor supports, in Volts."}},
    {Text3,  {.es = "Ic(máx): corriente máxima de Colector, en mA. Qic no debe superar su 40 %.",
              .en = "Ic(max): largest Collector current, in mA. Qic should not pass 40 % of it."}},
    {Text4,  {.es = "Tensión de juntura: 0.6 V para Silicio, 0.2 V para Germanio.",
              .en = "Junction voltage: 0.6 V for Silicon, 0.2 V for Germanium."}},
    {Text8,  {.es = "-Ebias: fuente negativa, en Volts. Coloque un valor disponible, igual o superior al propuesto.",
              .en = "-Ebias: negative supply, in Volts. Place an available value, equal to the proposed one or higher."}},
    {Text16, {.es = "Res: resistor común de emisores, en Kohms. Coloque el valor comercial más próximo.",
              .en = "Res: common resistor of the emitters, in Kohms. Place the nearest commercial value."}},
    {Text17, {.es = "RL: resistor de cada Colector, en Kohms. Coloque el valor comercial más próximo.",
              .en = "RL: resistor of each Collector, in Kohms. Place the nearest commercial value."}},
    {Text18, {.es = "Es: fuente positiva, en Volts. Debe alcanzar para EQ(min) y ERl.",
              .en = "Es: positive supply, in Volts. It must do for EQ(min) and ERl."}},
    {Label22, {.es = "r'e: resistencia dinámica de la juntura Base - Emisor de cada transistor.",
               .en = "r'e: dynamic resistance of the Base - Emitter junction of each transistor."}},
    {Image1, {.es = "Ejemplo de caracter didactico,  no apto para diseño...",
              .en = "Example of didactic character, not capable for design."}},
};

constexpr PointingRow pointing[] = {
    {Text8,   Shape7,  "                (Tamb. - 25°) x (dVbe) x100 \n"
                       "ERes =  --------------------------------------\n"
                       "                              (dQic)"},
    {Text16,  Shape8,  "                 Ebias\n"
                       "Res =  --------------\n"
                       "               2 x Qic\n"
                       "Ebias = Eres + 1", true},
    {Text17,  Shape9,  "     RLac = Vg x 2.5 x r'e \n"
                       "              RLw x RLac\n"
                       "Rl =  -------------------\n"
                       "            (RLw - RLac)", true},
    {Text18,  Shape10, "     EQ(min) = 1 + Eopp\n"
                       "     Es(min) = EQ(min) + ERl"},
    {Label22, Shape11, "             25 mV\n"
                       "r'e =  -----------\n"
                       "               Qic"},
};

constexpr PartRow parts[] = {
    {Image30, {.es = "Generador: clic enciende, doble clic apaga", .en = "Generator: click on, double click off"}},
    {Image33, {.es = "Multímetro: clic enciende, doble clic apaga", .en = "Multimeter: click on, double click off"}},
    {Image14, {.es = "Senoide A: arrástrela a una entrada", .en = "Sinusoid A: drag it to an input"}},
    {Image15, {.es = "Senoide B: arrástrela a una entrada", .en = "Sinusoid B: drag it to an input"}},
    {c1,      {.es = "Tensión", .en = "Voltage"}},
    {c4,      {.es = "Corriente", .en = "Current"}},
    {c5,      {.es = "Potencia", .en = "Power"}},
    {C3,      {.es = "Impedancia", .en = "Impedance"}},
    {c6,      {.es = "Señal de Modo Común", .en = "Signal of Common Mode"}},
    {c7,      {.es = "Rechazo de Modo Común", .en = "Common Mode Rejection"}},
    {Image4,  {.es = "Out 3: entre Colectores", .en = "Out 3: between Collectors"}},
    {Image24, {.es = "Out 3: entre Colectores", .en = "Out 3: between Collectors"}},
    {Image22, {.es = "Out 1: Colector y masa", .en = "Out 1: Collector and Ground"}},
    {Image26, {.es = "Out 2: Colector y masa", .en = "Out 2: Collector and Ground"}},
    {Image5,  {.es = "Fuente negativa -Ebias", .en = "Negative supply -Ebias"}},
    {Image6,  {.es = "Fuente positiva Es", .en = "Positive supply Es"}},
    {Image7,  {.es = "Rama de un Colector", .en = "Branch of one Collector"}},
    {Image8,  {.es = "Emisor", .en = "Emitter"}},
    {Image9,  {.es = "Base", .en = "Base"}},
    {Image10, {.es = "Resistor de Base", .en = "Resistor of the Base"}},
    {Image11, {.es = "Carga / Entrada 2", .en = "Load / Input 2"}},
    {Image12, {.es = "Entrada 1", .en = "Input 1"}},
    {Image27, {.es = "Calculadora", .en = "Calculator"}},
    {Image28, {.es = "Elaborar informe", .en = "Make the report"}},
    {Image29, {.es = "Guía de trabajos", .en = "Work guide"}},
    {Image32, {.es = "Abrir un nuevo circuito...", .en = "Clon Circuit"}},
    {Image31, {.es = "Abrir un nuevo circuito...", .en = "Clon Circuit"}},
    {Image35, {.es = "Que hay para hacer...?", .en = "What is there to do..?"}},
    {Image34, {.es = "Ocultar la ayuda", .en = "Hide the help"}},
};
// clang-format on

} // namespace rows

const FieldRow* fieldRow(host::Handle field)
{
    const auto found = std::find_if(std::begin(rows::fields), std::end(rows::fields),
                                    [field](const FieldRow& row) { return row.field == field; });
    return found == std::end(rows::fields) ? nullptr : &*found;
}

std::span<const StatusRow> statusRows()
{
    return rows::status;
}

std::span<const PointingRow> pointingRows()
{
    return rows::pointing;
}

std::span<const PartRow> partRows()
{
    return rows::parts;
}

// clang-format off
const BiText transistorHeading {.es = "Parámetros del transistor",                .en = "Transistor Parameters"};
const BiText circuitHeading    {.es = "Parámetros del Circuito",                  .en = "Circuit Parameters"};
const BiText enterPrompt       {.es = "Enter, valores predeterminados..",         .en = "Enter, default value.."};
const BiText minimumSource     {.es = "Tensión mínima de fuente:  ",              .en = "Minimum source:  "};
const BiText minimumSourceEnd  {.es = "   Volts,                                    Coloque disponible... ",
                                .en = "   V,  Place available .."};
const BiText pointAtResults    {.es = "Para ver formulas utilizadas, pase el Mouse por los resultados...",
                                .en = "To see  formulate used, the Mouse go by the results..."};
const BiText resPrompt         {.es = "Colocar valor en Kohms... ",               .en = "Put value in Kohms..."};
const BiText rlPrompt          {.es = "   Pulse Tab ó Enter para seguir flujo de diseño. ",
                                .en = "Presses Tab or Enter to follow design flow. "};
const BiText nextField         {.es = "Tab ó Enter: sigue Es",                    .en = "Tab or Enter: Es follows"};
const BiText archivePrompt     {.es = "Circuito de Archivo",                      .en = "Archive Circuit"};

const BiText resValue          {.es = "El valor  es:",                            .en = "The  value is: "};
const BiText resValueEnd       {.es = " K  Coloque valor comercial",              .en = "K  Put normalized resistor"};
const BiText commercialRL      {.es = " Coloque valor comercial...",              .en = " put normalized resistor..."};
const BiText leastSource       {.es = "Es mínima = ",                             .en = "Source (min) = "};
const BiText leastVoltage      {.es = "tensión mínima:",                          .en = "Voltage min.:"};

const BoxText belowEResMin{
    .text  = {.es = "El amplificador NO cumplira los requerimientos de estabilidad...", .en = " Place a number..."},
    .title = {.es = "Eleve la Fuente de Alimentación...", .en = "Eleve la Fuente de Alimentación..."},
    .flags = 48};
const BoxText stability{
    .text  = {.es = "La corriente de reposo no debe superar el 40 % de la máxima que soporta el transistor.",
              .en = "The quiescent current should not overcome 40% of the maxim that supports the transistor."},
    .title = {.es = "Crierio de estabilidad...", .en = "Approach of stability..."},
    .flags = 16};
const BoxText insufficientQIc{
    .text  = {.es = "Primero suba Qic, luego la tensión de fuente o disminuya Res...",
              .en = "First Qic ascends, then the source voltage or diminish Res..."},
    .title = {.es = "Qic es insuficiente para manejar RLw...", .en = "Qic is insufficient to manage RLw..."},
    .flags = 48};
const BoxText lowERL{
    .text  = {.es = "Debe colocar una resistencia de superior valor...", .en = " Should place a resistor of superior value..."},
    .title = {.es = "La tensión en ERL debe ser 1/2 de Eopp.", .en = "The voltage in ERL must be 1/2 of Eopp."},
    .flags = 48};
const BoxText highEQ{
    .text  = {.es = "La tensión Colector Emisor no debe supera la máxima que soporta el transistor.",
              .en = "The voltage Collector Emitter should not  the maxim that supports the transistor."},
    .title = {.es = "Critério de diseño...", .en = "Approach of design..."},
    .flags = 16};
const BoxText lowEQ{
    .text  = {.es = "La tensión de fuente debe superar a la mínima...",
              .en = "The source voltage should overcome to the minimum ..."},
    .title = {.es = "Eq no es suficiente para manejar Eopp...", .en = "Eq is not enough to manage Eopp..."},
    .flags = 16};
// clang-format on

} // namespace velmor::form3::texts
