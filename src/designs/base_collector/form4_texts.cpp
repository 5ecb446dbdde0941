// SPDX-License-Identifier: MIT
// The prompts of `Form4` and its general help. Spanish stands above English.
#include "designs/base_collector/form4_texts.h"

namespace velmor::form4::texts {

namespace texts_detail {

// clang-format off
// field, moment, place, Spanish, English
constexpr auto allSayings = std::to_array<Saying>({
    sheets::placeANumber,
    {Text1, When::focus, Label33,
     {"Máxima variación de la corriente de reposo (delta QIc) a la máxima temperatura de trabajo (T°)",
      "Maximum variation of quiescent current (delta QIc) to the maximum work temperature (T°)"}},
    {Text1, When::focus, Label5,
     {"Coloque de 1 a 10 % y pulse Enter. El botón derecho (F1) da la ayuda de cada cuadro.",
      "Put 1 to 10 % and press Enter. The right button (F1) gives the help of each field."}},
    {Text3, When::focus, Label33,
     {"Máxima temperatura ambiente en la que trabajará el circuito. El botón derecho convierte °F y °K.",
      "Maximum ambient temperature in which the circuit will work. The right button converts °F and °K."}},
    {Text3, When::focus, Label5, {"De 25 a 200 °C", "From 25 to 200 °C"}},
    {Text4, When::focus, Label33,
     {"Corrimiento de la tensión Base - Emisor por grado. De él, de T y de delta QIc sale la tensión de estabilidad ERes.",
      "Drift of the Base - Emitter voltage for each degree. It gives, with T and delta QIc, the voltage of stability ERes."}},
    {Text4, When::focus, Label5, {"De 2 a 3 mV por grado", "From 2 to 3 mV for each degree"}},
    {Text8, When::focus, Label33,
     {"Corriente de reposo. La base está a masa para la señal, que entra por el emisor: Zin = r'e = 25 mV / QIc.",
      "Quiescent current. The base is at ground for the signal, which enters at the emitter: Zin = r'e = 25 mV / QIc."}},
    {Text8, When::focus, Label5, {"0,5 mA ó más; elévela si RLw es pequeña", "0.5 mA or more; raise it if RLw is small"}},
    {Text9, When::focus, Label33,
     {"Carga sobre la que se desarrolla la tensión de salida. Para valores pequeños hará falta más corriente.",
      "Load on which the output voltage is developed. For small values more current is needed."}},
    {Text9, When::focus, Label5, {"1 Kohm ó más", "1 Kohm or more"}},
    {Text13, When::focus, Label33,
     {"Tensión de salida, de pico a pico. ERL deberá ser por lo menos su mitad.",
      "Output voltage, peak to peak. ERL will have to be at least half of it."}},
    {Text13, When::focus, Label5, {"En volts, pico a pico", "In volts, peak to peak"}},
    {Text11, When::focus, Label33,
     {"Ganancia de tensión, Vg = RLac / r'e. Fija RLac, la carga que ve la señal.",
      "Voltage gain, Vg = RLac / r'e. It fixes RLac, the load that the signal sees."}},
    {Text11, When::focus, Label5, {"Valores superiores a 100 exigen más fuente", "Values above 100 ask for more supply"}},
    {Text14, When::focus, Label33,
     {"Tensión eficaz de entrada: la que da Eopp con esta ganancia. Si la cambia, cambia Eopp.",
      "Input voltage, r.m.s.: the one that gives Eopp with this gain. If you change it, Eopp changes."}},
    {Text14, When::focus, Label5, {"En volts eficaces", "In volts, r.m.s."}},
    {Text10, When::focus, Label33,
     {"Factor de estabilidad: fija el resistor de base, Rb2 = S x Res.",
      "Stability factor: it fixes the base resistor, Rb2 = S x Res."}},
    {Text10, When::focus, Label5, {"De 1 a 10; para circuitos críticos, de 1 a 6", "From 1 to 10; for critical circuits, from 1 to 6"}},
    {Text2, When::focus, Label33,
     {"Ganancia de corriente del transistor (hFE), dato del Manual.",
      "Current gain of the transistor (hFE), from the Manual."}},
    {Text2, When::focus, Label5, {"Beta mínima, del Manual", "Least Beta, from the Manual"}},
    {Text12, When::focus, Label33,
     {"Menor frecuencia de interés: con ella se calculan los capacitores.",
      "Lowest frequency of interest: the capacitors are worked out with it."}},
    {Text12, When::focus, Label5, {"En Hertz", "In Hertz"}},
    {Text5, When::focus, Label33,
     {"Tensión máxima Colector - Emisor que soporta el transistor, dato del Manual.",
      "Maximum Collector - Emitter voltage that the transistor supports, from the Manual."}},
    {Text5, When::focus, Label5, {"Debe superar a Eopp + 1 Volt", "It must be above Eopp + 1 Volt"}},
    {Text6, When::focus, Label33,
     {"Corriente máxima de Colector, dato del Manual. QIc no debe superarla.",
      "Maximum Collector current, from the Manual. QIc should not pass it."}},
    {Text6, When::focus, Label5, {"En mA", "In mA"}},
    {Text7, When::focus, Label33,
     {"Tensión de juntura: Silicio 0,6 V, Germanio 0,2 V.", "Junction voltage: Silicon 0.6 V, Germanium 0.2 V."}},
    {Text7, When::focus, Label5, {"De 0,2 a 0,7 V", "From 0.2 to 0.7 V"}},
    {Text18, When::focus, Label33,
     {"Resistor de emisor. El valor comercial hará cambiar QIc, pero NO la tensión de estabilidad (ERes).",
      "Emitter resistor. The normalized value will make QIc change, but NOT the voltage of stability (ERes)."}},
    {Text18, When::focus, Label5, {"Coloque un valor comercial, en Kohm (botón derecho: tabla)",
                                   "Put a normalized value, in Kohm (right button: table)"}},
    {Text20, When::focus, Label33, {"Asigne tensión de fuente en volts...", "Put a source voltage (V)..."}},
    {Text20, When::focus, Label5, {"Igual ó superior a la mínima", "The minimum or more"}},
    {Text15, When::focus, Label33,
     {"Resistor de Colector, RL = (RLw x RLac) / (RLw - RLac). Con el valor comercial se vuelven a calcular Vg y Es.",
      "Collector resistor, RL = (RLw x RLac) / (RLw - RLac). With the normalized value Vg and Es are worked out again."}},
    {Text15, When::focus, Label5, {"Coloque un valor comercial, en Kohm (botón derecho: tabla)",
                                   "Put a normalized value, in Kohm (right button: table)"}},
    {Text16, When::focus, Label33,
     {"Resistor de base a masa, Rb2 = S x Res.", "Base resistor to ground, Rb2 = S x Res."}},
    {Text16, When::focus, Label5, {"Coloque un valor comercial, en Kohm (botón derecho: tabla)",
                                   "Put a normalized value, in Kohm (right button: table)"}},
    {Text17, When::focus, Label33,
     {"Para que se cumpla la distribución de tensiones, ajuste el ' Preset ' que reemplaza a Rb1 hasta obtener una corriente (QIc), "
      "similar a la asignada en ' Parámetros del Circuito '. Haga CLICK en Rb1 y cuando termine el ajuste, CLICK sobre la ' Hoja de "
      "Análisis '.",
      "So that the distribution of voltage is completed, adjust the ' Preset ' that replaces at Rb1 until obtaining a current (QIc), "
      "similar to the one assigned in ' Circuit Parameters '. Make CLICK in Rb1 and when it finishes the adjustment, CLICK over ' Leaf "
      "of Analysis '."}},
    {Text17, When::focus, Label5, {"Coloque el valor del preset, en Kohm, y pulse Enter",
                                   "Put the value of the preset, in Kohm, and press Enter"}},
});
// clang-format on

} // namespace texts_detail

const std::span<const Saying> sayings = texts_detail::allSayings;

// clang-format off
const BiText generalHelp{
    .es = "          BASE COMÚN\n\n"
          "La base está a masa para la señal, que entra por el emisor y sale por el Colector sin invertirse.\n\n"
          "Polarización: Rb1, Rb2 y Res, como siempre.\n"
          "Entrada:        Zin = r'e = 25 mV / QIc\n"
          "Ganancia:      Vg = RLac / r'e\n\n"
          "CÓMO SE DISEÑA\n"
          "1. Estabilidad: delta QIc, T y delta Vbe dan ERes.\n"
          "2. QIc, la carga, la salida y la ganancia.\n"
          "3. El transistor, del Manual.\n"
          "4. Res comercial: cambia QIc, no ERes.\n"
          "5. Fuente; RL; Rb2.\n"
          "6. Ajuste del preset Rb1 hasta obtener QIc.\n\n"
          "LA HOJA DE ANÁLISIS (Ctrl+1)\n"
          "Compara las potencias de salida y del generador. Lleve entonces la fuente de señal, desde el emisor, hasta el "
          "capacitor de la base (Ctrl+2): el emisor queda desacoplado, la señal sale invertida, y la impedancia de entrada es "
          "Beta veces mayor.\n\n"
          "Un generador de baja resistencia interna entrega su potencia al emisor; uno de resistencia elevada necesita la "
          "base.\n\n"
          "TECLADO\n"
          "Enter sigue; F1 da la ayuda del cuadro; Shift+F1 muestra y oculta esta página.",
    .en = "          COMMON BASE\n\n"
          "The base is at ground for the signal, which enters at the emitter and leaves at the collector without being "
          "inverted.\n\n"
          "Bias:       Rb1, Rb2 and Res, as always.\n"
          "Input:     Zin = r'e = 25 mV / QIc\n"
          "Gain:      Vg = RLac / r'e\n\n"
          "HOW IT IS DESIGNED\n"
          "1. Stability: delta QIc, T and delta Vbe give ERes.\n"
          "2. QIc, the load, the output and the gain.\n"
          "3. The transistor, from the Manual.\n"
          "4. Standard Res: it changes QIc, not ERes.\n"
          "5. Supply; RL; Rb2.\n"
          "6. Adjust the preset Rb1 until QIc is obtained.\n\n"
          "THE LEAF OF ANALYSIS (Ctrl+1)\n"
          "It compares the powers of output and generator. Then take the signal source from the emitter to the capacitor of "
          "the base (Ctrl+2): the emitter is bypassed, the signal comes out inverted, and the input impedance is Beta times "
          "larger.\n\n"
          "A generator of low internal resistance delivers its power to the emitter; one of high resistance needs the "
          "base.\n\n"
          "KEYBOARD\n"
          "Enter goes on; F1 gives the help of the field; Shift+F1 shows and hides this page."};
// clang-format on

} // namespace velmor::form4::texts
