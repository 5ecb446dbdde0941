// SPDX-License-Identifier: MIT
// The prompts and help pages of `Form17`. The pages of the fields stand in Spanish alone, as they always did.
#include "designs/base_collector/form17_texts.h"

#include <array>

#include "sheets/rows.h"

namespace velmor::form17 {

namespace texts_detail {

using sheets::HelpPage;
using sheets::When;

// clang-format off
// about, moment, place, Spanish, English
constexpr auto own = std::to_array<Saying>({
    sheets::placeANumber,
    {Text6,  When::focus, SSPanel2,
     {"Corriente máxima de Colector, según el manual. QIc no debe pasar del 40 % de ella.",
      "Largest Collector current, from the manual. QIc should not pass 40 % of it."}},
    {Text4,  When::focus, SSPanel2,
     {"Resistencia interna del generador, en Kohms. El seguidor la adapta a una carga pequeña.",
      "Internal resistance of the generator, in Kohms. The follower fits it to a small load."}},
    {Text8,  When::focus, SSPanel2,
     {"QIc = Eopp / (2 x RLw): la corriente que puede anularse justo en el pico negativo de la salida.",
      "QIc = Eopp / (2 x RLw): the current that can just be taken away at the negative peak of the output."}},
    {Text15, When::focus, SSPanel2,
     {"Res = 20 x RLw casi no le quita señal a la carga. Con menos, la fuente será más baja y QIc mayor.",
      "Res = 20 x RLw takes hardly any signal from the load. With less, the source is lower and QIc higher."}},
    {Text15, When::hover, Label29, {"Res, resistor de emisor, en Kohms", "Res, emitter resistor, in Kohms"}},
    {Text20, When::focus, SSPanel2,
     {"Tensión de fuente, en Volts. Lo que no cae en Res queda para el transistor.",
      "Source voltage, in Volts. What does not fall on Res is left to the transistor."}},
    {Text16, When::focus, SSPanel2, base_collector::formulaOfRb2},
    {Text17, When::focus, SSPanel2,
     {"Coloque un 'Preset' del doble del valor calculado y varíelo hasta obtener la QIc de diseño en el miliamperímetro.",
      "Place a ' Preset ' of double the calculated value and vary it until the milliammeter shows the QIc of the design."}},
    {Text11, When::focus, SSPanel2,
     {"Ganancia de tensión. En Colector Común toda la salida se realimenta, y la ganancia es uno.",
      "Voltage gain. In Common Collector the whole output is fed back, and the gain is one."}},
    {Picture3, When::hover, Label29, base_collector::leafName},
    {Image5,   When::hover, Label29, {"Calculadora", "Calculator"}},
    {Image3,   When::hover, Label29, {"Abrir un nuevo circuito...", "Clon Circuit"}},
    {Image4,   When::hover, Label29, {"Abrir un nuevo circuito...", "Clon Circuit"}},
});
constexpr auto prompts = sheets::joined(own, base_collector::followerSayings<Control>);

constexpr auto pages = std::to_array<HelpPage>({
    {Text4, "Rg..", {
        "En este cuadro UD, asigna el valor de resistencia interna de generador \n\n"
        "Es la resistencia con la que el generador entrega su señal: unos ohms en un amplificador, 10 Kohms en un micrófono de alta "
        "impedancia.\n\n"
        "Si Zin resulta mayor que Rg, el generador trabaja liviano. Al final del diseño puede cambiarla y volver al semáforo.", ""}},
    {Text8, "   QIc...", {
        " Usted puede càlcular si desea la corriente para asignar en este cuadro con la fórmula:\n"
        " QIc = Eopp / (2 x Rlw)\n\n"
        "El programa la propone, y no acepta menos de 0.5 mA. Cuando Ud. coloque Res la calcula otra vez, ya que Res también consume "
        "señal.", ""}},
    {Text15, "   Res..", {
        " En este cuadro UD, puede asignar un valor normalizado de resistencia de Emisor (Res).\n\n"
        "El programa propone 20 veces RLw. Con un valor menor necesita menos tensión de fuente, y QIc aumenta.\n\n"
        " ERes = QIc x Res", ""}},
    {Text9, " RLw..", {
        "En este cuadro UD, asigna el valor de la carga, en Kohms.\n\n"
        "Por debajo de 0.5 Kohms el diseño puede fracasar: la corriente que exige la carga pasa el 40 % de la máxima del transistor.", ""}},
    {Text10, " S..", {
        "El factor de estabilidad fija a Rb2:\n\n"
        " Rb2 = S x Res\n\n"
        "Asigne de 1 a 3 para circuitos críticos, 10 para audio.", ""}},
    {Text11, " Vg..", {
        "La ganancia de tensión es lo que sale dividido lo que entra:\n\n"
        "     Vg = Eopp/Ein. \n"
        "     Vg = RLac / Res \n\n"
        "En Colector Común la carga es el propio emisor, y la ganancia es uno. Lo que aumenta es la corriente.", ""}},
    {Text12, " fo...", {
        "Es la menor frecuencia que el circuito debe entregar. De ella salen los capacitores:\n\n"
        "  Cout = 1 / (2 x ¶ x fo x 0.1 x Rlw )\n\n"
        "La reactancia del capacitor es la décima parte de la resistencia que le sigue.", ""}},
    {Text13, "  mas Eopp....", {
        "La tensión de salida, pico a pico. El transistor debe tener lugar para toda ella:\n\n"
        "    Eq(min) = Eopp + 1 Volt \n\n"
        "El volt de más es la tensión de saturación y un pequeño margen.", ""}},
    {Text14, "  Ein(rms)", {
        "La señal que entra, en valor eficaz:\n\n"
        " Ein(rms) = (Einpp/2 ) x 0.707 \n"
        " Pin(rms) = (Ein(rms)^2) / Zin\n\n"
        "Si la cambia, el programa calcula otra vez Eopp.", ""}},
    {Text20, "Es...", {
        "La tensión de fuente se reparte entre lo que está en serie:\n\n"
        " Es(min) = ERes + EQ + ERL\n\n"
        "En este circuito no hay resistor de Colector: ERL es cero. Asigne una tensión que exista: 6, 9, 12, 18, 24 Volts.", ""}},
    {Text2, "Beta...", {
        "El Beta que Ud. mide es relativo: cambia con la temperatura, con la corriente y de un transistor a otro de la misma bolsa.\n\n"
        "Por eso un preset reemplaza a Rb1: con él se corrige lo que Beta mueve.", ""}},
    {Text5, "Ec(max)", {
        "La máxima tensión Colector - Emisor que soporta el transistor, según el manual.\n\n"
        "Este cuadro vuelve a tomar el foco sólo cuando la tensión la supera: en ese caso cambie el transistor.", ""}},
    {Text6, "Ic(max)", {
        "La máxima corriente de Colector que soporta el transistor, según el manual.\n\n"
        "Por encima del 40 % de ella el diseño es inestable: con señal la corriente llega casi al doble de QIc.", ""}},
    {Text7, "Si/Ge", {
        " En este cuadro UD, asigna el valor de tensión que corresponde al tipo de juntura del transistor, Silicio ó Germanio\n\n"
        "Silicio: 0.6 Volt. Germanio: 0.2 Volt.", ""}},
    {Text16, "Rb2", {
        "El resistor inferior de la base:\n\n"
        " Rb2 = S x Res\n\n"
        "Coloque el valor comercial más próximo. Está en paralelo con la entrada: cuanto mayor, mayor Zin.", ""}},
    {Text17, "Rb1.", {
        "Por qué un preset y no un resistor fijo: la corriente de base es la diferencia entre dos corrientes parecidas, la de Rb1 y la de "
        "Rb2. Un pequeño error en cualquiera de ellas cambia mucho a QIc.\n\n"
        "Coloque un preset del doble del valor calculado y varíelo hasta leer la QIc de diseño.", ""}},
});
// clang-format on

} // namespace texts_detail

const std::span<const Saying> sayings = texts_detail::prompts;
const std::span<const sheets::HelpPage> helpPages = texts_detail::pages;

const BiText helpText{
    "COLECTOR COMÚN\n\n"
    "El seguidor por emisor no aumenta la tensión: aumenta la corriente. Entre un generador de mucha resistencia y una "
    "carga pequeña, hace que el generador vea una impedancia alta.\n\n"
    "1) Datos: fo, transistor, Rg, carga RLw y salida Eopp.\n\n"
    "2) QIc = Eopp / (2 x RLw)\n\n"
    "3) Res = 20 x RLw, ó un valor comercial menor.\n"
    "    ERes = QIc x Res\n"
    "    Es = ERes + EQ,  EQ = Eopp + 1\n\n"
    "4) Rb2 = S x Res\n"
    "    Rb1 es un preset: varíelo hasta que el miliamperímetro marque QIc.\n\n"
    "5) Con el semáforo en verde abra la Hoja de Análisis: ¿es Zin mayor que Rg?\n\n"
    "Botón derecho sobre un cuadro: su página de ayuda. Click sobre un cuadro: su valor predeterminado.",
    "COMMON COLLECTOR\n\n"
    "The emitter follower does not raise the voltage: it raises the current. Between a generator of much resistance "
    "and a "
    "small load, it lets the generator see a high impedance.\n\n"
    "1) Data: fo, transistor, Rg, load RLw and output Eopp.\n\n"
    "2) QIc = Eopp / (2 x RLw)\n\n"
    "3) Res = 20 x RLw, or a smaller normalized value.\n"
    "    ERes = QIc x Res\n"
    "    Es = ERes + EQ,  EQ = Eopp + 1\n\n"
    "4) Rb2 = S x Res\n"
    "    Rb1 is a preset: vary it until the milliammeter shows QIc.\n\n"
    "5) With the light on green open the Leaf of Analysis: is Zin greater than Rg?\n\n"
    "Right button on a field: its help page. Click on a field: its predetermined value."};

} // namespace velmor::form17
