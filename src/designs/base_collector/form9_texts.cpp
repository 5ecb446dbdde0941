// SPDX-License-Identifier: MIT
// The prompts and the general help of `Form9`.
#include "designs/base_collector/form9_texts.h"

#include <array>

#include "sheets/rows.h"

namespace velmor::form9 {

namespace texts_detail {

using sheets::When;

// clang-format off
// about, moment, place, Spanish, English
constexpr auto own = std::to_array<Saying>({
    sheets::placeANumber,
    {Text4,  When::focus, SSPanel2,
     {" Ingrese el valor de la resistencia interna del generador (Rint), ó también llamada Zin de trabajo.\n"
      " Ejemplo: Un microfono entrega 0.008 Volts (ef) sobre 10 K de impedancia (Rint).",
      " Enters the value of the internal resistance of the generator (Rg), or also called work immpedance.\n"
      " Example: a microphone give 0.008 Volt (r.m.s.), over 10 K of impedance (Rg)."}},
    {Text8,  When::focus, SSPanel2,
     {"Corriente de reposo. Con menos corriente RL y Res son mayores, y también la impedancia de entrada.",
      "Quiescent current. With less current RL and Res are higher, and the entrance impedance too."}},
    {Text6,  When::focus, SSPanel2,
     {"Corriente máxima de Colector, según el manual. QIc no debe superarla.",
      "Largest Collector current, from the manual. QIc should not pass it."}},
    {Text20, When::focus, SSPanel2,
     {" De ser posible asigne tensiones mucho mas elevadas a la recomendada pues obligara al diseño a colocar resistores de valor "
      "elevado y así obtendra una elevada impedancia de entrada (Zin)",
      "Of being possible it, assigns voltage a lot high to the recommended then  forced to the design to place resistors of high "
      "value and you will obtain  a high entrance impedance (Zin)"}},
    {Text15, When::focus, SSPanel2,
     {" El valor normalizado de resistor que asigne sera colocado tambien para el resistor Res\n"
      "Si el valor es superior a la decima parte de RLw, afectara a la impedancia de entrada",
      "The normalized value of resistor that assigns will also be placed for the resistor Res\n"
      "If the value is upper to the tenth part of RLw, it affected to the entrance impedance"}},
    {Text15, When::hover, Label29, {"RL, y también Res, en Kohms", "RL, and also Res, in Kohms"}},
    {Text16, When::focus, SSPanel2,
     {" Formula utilizada:            Rb2 = S x Res // RLw    \n"
      "       (... podemos permitirnos colocar un valor elevado ya que la estabilidad es muy buena).",
      " Formulates used :            Rb2 = S x Res // RLw    \n"
      "       (... we can allow ourselves to place a high value because the stability since is very good)."}},
    {Text17, When::focus, SSPanel2,
     {" Coloque un 'Preset' del doble de valor al resistor calculado, luego variandolo obtenga la corriente de Colector (QIc) "
      "asignada en los Parámetros del circuito.",
      " Places a ' Preset ' of double value to the calculated resistor, then varying it obtains  the current of Collector (QIc) "
      "assigned in the Parameters of the Circuit."}},
    {Text11, When::focus, SSPanel2,
     {"Ganancia de tensión. Con RL igual a Res la ganancia de cada salida es uno.",
      "Voltage gain. With RL equal to Res the gain of each output is one."}},
    {Image10, When::hover, Label29, {"Calculadora", "Calculator"}},
    {Image8,  When::hover, Label29, {"Abrir un nuevo circuito...", "Clon Circuit"}},
    {Image9,  When::hover, Label29, {"Abrir un nuevo circuito...", "Clon Circuit"}},
});
constexpr auto prompts = sheets::joined(own, base_collector::followerSayings<Control>);
// clang-format on

} // namespace texts_detail

const std::span<const Saying> sayings = texts_detail::prompts;

const BiText helpText{"INVERSOR DE FASE\n\n"
                      "Un solo transistor entrega dos señales iguales y opuestas: la del emisor acompaña a la entrada "
                      "y la del colector sale "
                      "invertida. Las dos corrientes son casi la misma, y RL es igual a Res.\n\n"
                      "1) Datos: Rg, QIc, RLw, Eopp, transistor.\n\n"
                      "2) EQ = Eopp + 1\n"
                      "    Es(min) = Eopp + EQ\n\n"
                      "3) ERL = (Es - EQ) / 2\n"
                      "    RL = ERL / QIc = Res\n\n"
                      "4) Rb2 = S x (RL // RLw)\n"
                      "    Rb1 es un preset: varíelo hasta que el miliamperímetro marque QIc.\n\n"
                      "5) Abra la Hoja de Análisis: ¿es Zin mayor que Rg?\n\n"
                      "Con una fuente alta los resistores son mayores, y la impedancia de entrada también. Click sobre "
                      "un cuadro: su valor "
                      "predeterminado.",
                      "PHASE SPLITTER\n\n"
                      "A single transistor gives two equal and opposite signals: that of the emitter goes with the "
                      "input and that of the collector "
                      "comes out inverted. Both currents are nearly the same, and RL is equal to Res.\n\n"
                      "1) Data: Rg, QIc, RLw, Eopp, transistor.\n\n"
                      "2) EQ = Eopp + 1\n"
                      "    Es(min) = Eopp + EQ\n\n"
                      "3) ERL = (Es - EQ) / 2\n"
                      "    RL = ERL / QIc = Res\n\n"
                      "4) Rb2 = S x (RL // RLw)\n"
                      "    Rb1 is a preset: vary it until the milliammeter shows QIc.\n\n"
                      "5) Open the Leaf of Analysis: is Zin greater than Rg?\n\n"
                      "With a high source the resistors are higher, and the entrance impedance too. Click on a field: "
                      "its predetermined value."};

} // namespace velmor::form9
