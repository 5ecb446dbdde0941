// SPDX-License-Identifier: MIT
// What the emitter follower and the phase splitter say alike: headings, advice, boxes, prompts and the verdict of the
// analysis. Spanish beside English; blanks and misprints are as the course's students know them. Texts only.
#pragma once

#include <array>

#include "host/bitext.h"
#include "sheets/saying.h"

namespace velmor::base_collector {

using host::BiText;
using sheets::Saying;
using sheets::When;

// clang-format off
inline constexpr BiText transistorHeading{"Parámetros del Transistor", "Transistor Parameters"};
inline constexpr BiText circuitHeading{"Parámetros del Circuito", "Circuits Parameters"};
inline constexpr BiText archived{"Circuito de Archivo", "Archive Circuit"};

// The least supply, above and below its value.
inline constexpr BiText leastSupplyAbove{"Tensión min. de fuente: \n", "Voltage  min. of D.C. source :         \n"};
inline constexpr BiText leastSupplyBelow{"   Volts\nColoque tensión disponible...", "   Volts\nPut voltage available ..."};

inline constexpr BiText putRb2{"Coloque un valor comercial.", "Put a normalized value."};
inline constexpr BiText putRb1{"Coloque un valor comercial...", "Put a normalized value..."};
inline constexpr BiText formulaOfRb2{" Formula utilizada:            Rb2 = S x Res // RLw    ",
                                     " Formulates used :            Rb2 = S x Res // RLw    "};

inline constexpr Saying supplyTooLow{
    .text  = {"La tensión de  fuente es insuficiente , aumentela...", "The source voltage is low, elevated please..."},
    .title = {"Es aconsejable elevar la fuente  de alimentación", "Is advisable to elevate the feeding source"},
    .flags = 10};
inline constexpr Saying adjustRb1{
    .text  = {"Corriente de Colector obtenida es diferente a QIc diseñada...", " Collector currents it's different to design.."},
    .title = {"Ajuste valor de Rb1", "Adjust Preset Rb1..."},
    .flags = 48};

// The page of analysis. Both formulas of power go on with their value and its unit.
inline constexpr BiText leafName{"Hoja de Análisis", "Leaf of Analysis"};
inline constexpr BiText outputPower{"Potencia de salida :", "Output power:"};
inline constexpr BiText outputFormula{"         Eo(eficaz)^2 / RLw =", "        Eo(r.m.s.)^2 / RLw ="};
inline constexpr BiText lightLoad{
    " La Zin de entrada es lo suficientemente elevada y no presentara una carga 'pesada'  al generador",
    " The entrance Zin is the sufficiently high thing and it didn't present a load ' heavy ' to the generator"};
inline constexpr BiText generatorPower{"La potencia que puede desarrollar el generador es:",
                                       "The power that can develop the generator is: "};
inline constexpr BiText heavyLoad{
    " La Zin de entrada es mas pequeña que la del generador, este necesitara suministrar una potencia de :",
    "The entrance Zin is but small that that of the generator, this she/he needed to give a power of: "};
inline constexpr BiText inputFormula{"                 Ein^2 / Zin =", "                 Ein^2 / Zin ="};

/// Prompts and names under the pointer that fit both. `C` are the controls of one of them; it joins its own rows.
// about, moment, place, Spanish, English
template <class C>
inline constexpr auto followerSayings = std::to_array<Saying>({
    {C::Text12, When::focus, C::SSPanel2,
     {"Menor frecuencia de interés. En ella cada capacitor presenta la décima parte de la resistencia que alimenta.",
      "Lowest frequency of interest. There each capacitor has a tenth of the resistance that it feeds."}},
    {C::Text12, When::hover, C::Label29,
     {"fo, menor frecuencia de interés, en Hz",
      "fo, lowest frequency of interest, in Hz"}},
    {C::Text5,  When::focus, C::SSPanel2,
     {"Tensión Colector - Emisor que soporta el transistor, según el manual. Debe superar a Eopp en un volt.",
      "Collector - Emitter voltage that the transistor supports, from the manual. It must pass Eopp by one volt."}},
    {C::Text5,  When::hover, C::Label29,
     {"Ec(max), máxima tensión Colector - Emisor, en Volts",
      "Ec(max), largest Collector - Emitter voltage, in Volts"}},
    {C::Text6,  When::hover, C::Label29,
     {"Ic(max), máxima corriente de Colector, en mA",
      "Ic(max), largest Collector current, in mA"}},
    {C::Text7,  When::focus, C::SSPanel2,
     {"Tensión de juntura: 0.6 Volt para Silicio, 0.2 Volt para Germanio.",
      "Junction voltage: 0.6 Volt for Silicon, 0.2 Volt for Germanium."}},
    {C::Text7,  When::hover, C::Label29,
     {"Vbe, juntura de Silicio ó Germanio, en Volts",
      "Vbe, junction of Silicon or Germanium, in Volts"}},
    {C::Text2,  When::focus, C::SSPanel2,
     {"Ganancia de corriente del transistor. Multiplica la carga que ve la base: de ella sale la Zin.",
      "Current gain of the transistor. It multiplies the load that the base sees: Zin comes from it."}},
    {C::Text2,  When::hover, C::Label29, {"Beta (hFE), ganancia de corriente", "Beta (hFE), current gain"}},
    {C::Text4,  When::hover, C::Label29,
     {"Rg, resistencia del generador, en Kohms",
      "Rg, resistance of the generator, in Kohms"}},
    {C::Text9,  When::focus, C::SSPanel2,
     {"Carga del circuito, en Kohms. Cuanto más pequeña, más corriente de reposo exige.",
      "Load of the circuit, in Kohms. The smaller it is, the more quiescent current it demands."}},
    {C::Text9,  When::hover, C::Label29, {"RLw, resistencia de carga, en Kohms", "RLw, load resistance, in Kohms"}},
    {C::Text13, When::focus, C::SSPanel2,
     {"Tensión de salida pico a pico. El transistor necesita un volt más para no recortarla.",
      "Output voltage, peak to peak. The transistor needs one volt more so as not to clip it."}},
    {C::Text13, When::hover, C::Label29, {"Eopp, tensión de salida pico a pico", "Eopp, output voltage, peak to peak"}},
    {C::Text14, When::focus, C::SSPanel2,
     {"Señal de entrada en valor eficaz. Como la ganancia es uno, es la misma que sale.",
      "Input signal, r.m.s. As the gain is one, it is the same that comes out."}},
    {C::Text14, When::hover, C::Label29, {"Ein, tensión de entrada, valor eficaz", "Ein, input voltage, r.m.s."}},
    {C::Text8,  When::hover, C::Label29, {"QIc, corriente de reposo, en mA", "QIc, quiescent current, in mA"}},
    {C::Text20, When::hover, C::Label29, {"Es, tensión de fuente, en Volts", "Es, source voltage, in Volts"}},
    {C::Text16, When::hover, C::Label29,
     {"Rb2, resistor inferior de base, en Kohms",
      "Rb2, lower base resistor, in Kohms"}},
    {C::Text17, When::hover, C::Label29, {"Rb1, preset de base, en Kohms", "Rb1, preset of the base, in Kohms"}},
    {C::Text10, When::focus, C::SSPanel2,
     {"Factor de estabilidad: de 1 a 3 para circuitos críticos, 10 para audio.",
      "Stability factor: 1 to 3 for critical circuits, 10 for audio."}},
    {C::Text10, When::hover, C::Label29, {"S, factor de estabilidad", "S, stability factor"}},
    {C::Text11, When::hover, C::Label29, {"Vg, ganancia de tensión", "Vg, voltage gain"}},
    {C::Text1,    When::hover, C::Label29, {"Sin uso en este circuito", "Without use in this circuit"}},
    {C::Text3,    When::hover, C::Label29, {"Sin uso en este circuito", "Without use in this circuit"}},
    {C::Text18,   When::hover, C::Label29,
     {"Miliamperímetro: QIc obtenida con este Rb1",
      "Milliammeter: QIc obtained with this Rb1"}},
    {C::Picture1, When::hover, C::Label29, leafName},
    {C::Picture2, When::hover, C::Label29, leafName},
    {C::Image6,   When::hover, C::Label29, {"Guía de trabajos", "Work guide"}},
    {C::Image7,   When::hover, C::Label29, {"Elaborar informe", "Make the report"}},
    {C::Image35,  When::hover, C::Label29, {"Ayuda", "Help"}},
    {C::Image34,  When::hover, C::Label29, {"Ocultar la ayuda", "Hide the help"}},
});
// clang-format on

} // namespace velmor::base_collector
