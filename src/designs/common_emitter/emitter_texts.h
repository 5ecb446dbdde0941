// SPDX-License-Identifier: MIT
// What the three common-emitter sheets stabilised by current say alike: prompts by field and moment, boxes, captions. Spanish
// stands above English; blanks and misprints are as the course's students know them. Knows the names of their controls, no sheet.
#pragma once

#include <array>
#include <string_view>

#include "host/bitext.h"
#include "sheets/saying.h"

namespace velmor::common_emitter {

using host::BiText;
using sheets::Saying;
using sheets::When;

// clang-format off
/// Prompts that are the same on all three. `C` are the controls of one of them; it joins its own rows.
// field, moment, place, Spanish, English
template <class C>
inline constexpr auto emitterSayings = std::to_array<Saying>({
    {C::Text1, When::hover, C::SSPanel1,
     {"QIc es corriente de reposo, corriente Colector-Emisor sin señal de entrada, DeltaQIC es la variación de esa corriente, en "
      "porcentaje, con los cambios de temperatura ambiente",
      "QIc is quiet current Collector-Emmiter without entrance sign, DeltaQIC is the variation of that current, in percentage, with "
      "the changes of ambient temperature"}},
    {C::Text1, When::hover, C::status1,
     {" Máxima variacion permitida de corriente de reposo, a temperatura ambiente",
      " Maximum allowed variation of quiescent current , to ambient temperature"}},
    {C::Text1, When::hover, C::STA70,
     {"Con Enter ó Esc comienza el diseño de un amplificador 'Clase A', realimentado por corriente, polarizado por base. En botones "
      "encontrara otras opciones...",
      "With Enter or Esc the design of an amplifier begins 'Class A', feedback for current, polarized by Base. In bottons you found "
      "other options..."}},
    {C::Text3, When::focus, C::SSPanel1,
     {" Coloque la temperatura ambiente en la que operará el circuito, esta será determinante de la variacion de polarizacion directa "
      "Base - Emisor",
      "It places the ambient temperature in which will operate the circuit, this it will be decisive of the variation of polarization "
      "direct Base - Emitter"}},
    {C::Text3, When::hover, C::SSPanel1,
     {"Temperatura en la cuál trabajará el equipo que está diseñando",
      "Work's temperature of the circuit that you are designing "}},
    {C::Text3, When::hover, C::status2,
     {" Temperatura ambiente\nBoton medio en °F y °K",
      " Ambient temperature\nMiddle Button in F y K"}},
    {C::Text3, When::hover, C::STA70,
     {" Coloque la temperatura ambiente en la que operará el circuito, esta será determinante de la variacion de polarizacion directa "
      "Base - Emisor",
      "It places the ambient temperature in which will operate the circuit, this it will be decisive of the variation of polarization "
      "direct Base - Emitter"}},
    {C::Text4, When::focus, C::SSPanel1,
     {" En el proximo paso obtendra la tensión mínima de estabilidad que debe estar presente en el Emisor, acorde a la temperatura "
      "ambiente de trabajo y el corrimiento de corriente de reposo (delta QIc) elegido.",
      " In the next step you will obtain the minimum voltage of stability that should be present in the Emitter, chord to the ambient "
      "temperature of work and the landslide of quiescent current  (delta QIc) elect."}},
    {C::Text4, When::enter, C::STA70, {" Escape... valor predeterminado.  ", " Esc...  predeterminated value.  "}},
    {C::Text4, When::escape, C::STA70,
     {"                                                                                    Escape... valor predeterminado.  ",
      "                                                                                    Esc...predeterminated value.  "}},
    {C::Text4, When::hover, C::SSPanel1,
     {"El aumento de polarización directa  aumenta la corriente y la temperatura y nuevamente la polarización directa, provocando lo "
      "que se conoce como efecto avalancha",
      " The increase of direct polarization increases the current and the temperature and again the direct polarization, causing the "
      "effect call avalanche"}},
    {C::Text4, When::hover, C::status3,
     {" Aumento de tensión de polarizacion directa x grado de temperatura, segun corriente Qic, (2 a 3 mV)",
      " Increase of value of direct polarization x grade of temperature, according to current Qic, (2 to 3 mV)"}},
    {C::Text4, When::hover, C::STA70,
     {" Aumento de tensión de polarizacion directa x grado de temperatura, segun corriente Qic, (2 a 3 mV)",
      " Increase of value of direct polarization x grade of temperature, according to current Qic, (2 to 3 mV)"}},
    {C::Voltaje, When::hover, C::SSPanel1,
     {" Voltaje de Corriente Continua minimo para estabilizar el circuito a los cambios de temperatura ambiente",
      "Necessary voltage (D.C. current) of Emitter to stabilize the circuit"}},
    {C::Voltaje, When::hover, C::status4,
     {"  Tensión de Emisor necesaria  para estabilizar el circuito",
      "  Necessary voltage of Emitter to stabilize the circuit"}},
    {C::Voltaje, When::hover, C::status6,
     {"   Formula:   \n                  (T* - 20 ) x /\\Vbe\n      Eres=------------------------\n                      %/\\Qic",
      "   Formulate: \n                  (T* - 20 ) x /\\Vbe\n      Eres=------------------------\n                      %/\\Qic"}},
    {C::Text8, When::focus, C::SSPanel1,
     {" Es aconsejable asignar la corriente a la cual fueron probados los Parámetros del transistor, segun datos del manual",
      " It is advisable to assign the current to which the parameters of the transistor were proven, according to data of the manual"}},
    {C::Text8, When::hover, C::SSPanel1,
     {"QIc es corriente de reposo, corriente Colector-Emisor sin señal de entrada, dependerá su valor final de la carga (RLw) a "
      "utilizar.",
      ""}},
    {C::Text8, When::hover, C::status5,
     {" Corriente de reposo posible, (1 a 40 % de Ic max)",
      " Possible Quiescent current , (1 to 40% of Ic max)"}},
    {C::Text15, When::focus, C::SSPanel1,
     {"El valor normalizado de resistor hara cambiar la corriente de reposo, pero NO la Tensión de Estabilidad (ERes)",
      "The normalized value will make change the quiescent current , but NOT the Voltage of Stability (ERes)"}},
    {C::Text15, When::enter, C::STA70,
     {"      Especificacion circuital...       Esc...valor predeterminado ",
      "      Specification circuital...        Esc...predetermined value"}},
    {C::Text9, When::focus, C::SSPanel1,
     {" Este valor corresponde a la carga del circuito, recuerde que para valores pequeños, más exigencia de corriente y menos "
      "impedancia de entrada ",
      "This value corresponds to the load of the circuit, remember that it stops values small, more demand of current and less "
      "entrance impedance"}},
    {C::Text9, When::enter, C::STA70,
     {"Escape ...valor predeterminado. \nPara circuitos criticos, valores de 1 a 6 ",
      "Esc... predetermined value. \nFor critical circuits, values of 1 at 6"}},
    {C::Text9, When::hover, C::status7,
     {" Carga resistiva donde se dasarrolla la tensión de salida Eopp",
      " It's  resistive loads  on which the output voltage Eopp works "}},
    {C::Text10, When::focus, C::SSPanel1,
     {" El valor de estabilidad (S) se asigna entre 1 a 10 y fijará el valor del resistor Rb2.",
      " The value of stability (S) it is assigned among 1 at 10 and it will fix the value of the resistor Rb2."}},
    {C::Text10, When::enter, C::STA70,
     {" Especificacion circuital que indica las 'VECES' que debe amplificar el circuito la señal de entrada ",
      "Specification circuital that indicates those ' TIMES ' that should amplify the circuit the entrance sign"}},
    {C::Text10, When::hover, C::status8, {" Factor de estabilidad,\n      1 a 10 ", " Stability  \n      1 a 10 "}},
    {C::Text11, When::focus, C::SSPanel1,
     {" Pruebe de colocar valores elevados de ganancia, a modo de ejercicio didactico...",
      "It proves of placing high values of gain, by way of didactic exercise..."}},
    {C::Text11, When::enter, C::STA70,
     {" Valor de RL que cumple junto con Rlw el valor de carga necesario para obtener la Vg especificada",
      "Value of RL that completes together with Rlw the necessary load value to obtain the specified Vg (gain)"}},
    {C::Text11, When::hover, C::status9,
     {" Veces que se amplifica la       tensión de entrada, (Ein)      respecto de salida, (Eopp)",
      " Times that the entrance voltage is amplified, (Ein) regarding output, (Eopp)"}},
    {C::Text17, When::focus, C::SSPanel1,
     {"El valor de tensión continua que se desarrolle sobre este resistor (ERl), debera ser minimo la mitad  de la tensión pico - pico "
      "de salida (Eopp).",
      "The value of continuous voltage  that is developed on this resistor (ERl), it will be minimum half of the voltage peak - peak  "
      "of output (Eopp)."}},
    {C::Text17, When::enter, C::STA70,
     {" Valor de frecuencia mínima que operara el circuito, (frecuencia de corte)",
      "Value of minimum frequency that operated the circuit, (cutt - off frequency)"}},
    {C::Text12, When::enter, C::STA70,
     {" Sin dato de tensión pico - pico  en la salida pulse Escape y coloque el valor eficaz de la senal de entrada .      Eopp no "
      "debe superar el doble de la tensión ERL",
      "Without fact of peak - peak voltage  in the output it presses Esc and place the effective value (r.m.s.) of the entrance sign. "
      "Eopp should not overcome double the voltage ERL"}},
    {C::Text12, When::hover, C::SSPanel1,
     {"A esta frecuencia la amplitud de la ganancia disminuira en un 10 %",
      "Smaller frequency of interest"}},
    {C::Text12, When::hover, C::status10, {" Menor frecuencia de interes ", " Smaller frequency of interest"}},
    {C::Text13, When::focus, C::SSPanel1,
     {"Tensión de señal de salida en valor Pico - Pico, de no poseer este dato , pulse Esc...",
      "Voltage of exit sign in value Peak - Peak, of not possessing this fact, Esc..."}},
    {C::Text13, When::enter, C::STA70,
     {" Coloque cifra superior a la tensión mínima...                                   Esc.., valor predeterminado de 25 voltios",
      " It places superior values to the minimum voltage...                             Esc.., predetermined value of 25 volts"}},
    {C::Text13, When::escape, C::STA70,
     {"                                                                               Pulse Enter, o modifique al valor deseado, "
      "luego...  ENTER",
      "                                                                               Pulses Enter, or modify to the wanted value, "
      "then... ENTER"}},
    {C::Text13, When::hover, C::status11,
     {" Máxima tensión de salida    pico a pico, Sin datos...Esc.",
      " Maximum voltage of output   pick to pick, Without data... Esc."}},
    {C::Text14, When::focus, C::SSPanel1,
     {"Tensión de señal de entrada en valor eficaz, de no poseer este dato, asigne valores a Eopp...",
      "Input Voltage sign in value R.M.S., if not possessing this date, put value in Eopp..."}},
    {C::Text14, When::enter, C::STA70,
     {"                                                                                 Sin dato de tensión pico - pico  en la salida. "
      "pulse Escape y coloque el valor eficaz de la senal de entrada ",
      "                                                                                 Sin dato de tensión pico - pico  en la salida. "
      "pulse Escape y coloque el valor eficaz de la senal de entrada "}},
    {C::Text14, When::hover, C::status12,
     {" Tensión eficaz de entrada     para producir Eopp, segun      Vg = Eopp/Ein",
      " Effective voltage of entrance (r.m.s.) to produce Eopp, according to Vg = Eopp/Ein"}},
    {C::Text16, When::focus, C::SSPanel1,
     {"Si la fuente da un valor inusualmente alto, asignelo, (sin miedo...), recuerde que ud. maneja la corriente de reposo.",
      "If the source gives a value too high , assign it, (without fear...), remember that you manages the quiescent current ."}},
    {C::Text16, When::focus, C::STA70,
     {" Coloque cifra superior a la tensión mínima...                                   Esc.., valor predeterminado de 25 voltios\n "
      "Puede asignar valor de EC(max) del manual...",
      "It places hight value to the minimum voltage... Esc.., predetermined value of 25 volts\nit can assign the value  EC(max) of the "
      "manual..."}},
    {C::Text16, When::enter, C::STA70,
     {" El Manual brinda un valor de Beta segun Qic.\nEsc..., valor predeterminado de 80 ",
      "The Manual offers a value of Beta according to Qic.\n Esc..., predetermined value of 80"}},
    {C::Text2, When::focus, C::SSPanel1,
     {" Observe la tensión Colector - Emisor, si es superior a Ec(máx) cambie por un transistor que soporte dicha tensión, asignandolo "
      "con un Click en el cuadro siguiente...",
      " Observes the Voltage Collector - Emitter, if it is superior to Ec(máx) it changes for a transistor that supports this voltage, "
      "assigning it with a Click in the next textbox..."}},
    {C::Text2, When::enter, C::STA70,
     {" Coloque valor del Manual de Transistor, este debe ser superior al valor de  Eq calculado.\nEsc...predeterminado",
      "It places value of the Manual of Transistor, this it should be superior to the value of calculated Eq.\n Esc... predetermined"}},
    {C::Text2, When::hover, C::status13,
     {" Ganancia de corriente estatica, (hFE),.. Ic/Ib. Distinguir respecto de Hfe,.. Beta para la señal",
      "Gain of static current, (hFE),.. Ic/Ib. To distinguish regarding Hfe,.. Beta for the sign"}},
    {C::Text5, When::click, C::STA70,
     {" Coloque valor del Manual de Transistores. \nEsc = 100 mA",
      "It places value of the Manual of Transistors. \nEsc = 100 mA"}},
    {C::Text5, When::enter, C::STA70,
     {" Coloque valor del Manual de Transistores. \nEsc = 100 mA",
      "It places value of the Manual of Transistors. \nEsc = 100 mA"}},
    {C::Text5, When::hover, C::status14,
     {" tensión máxima de colector-emisor, dato del manual",
      "Maximum voltage of Collector-Emitter, fact of the manual"}},
    {C::Text6, When::focus, C::SSPanel1, {" El programa NO acepta valores inferiores a 10 mA", " ...than less  10 mA No accept"}},
    {C::Text6, When::focus, C::STA70,
     {" Coloque la corriente máxima que brinda el manual, segun el tipo de transistor.",
      "Maximum current of Collector-Emitter, fact of the manual"}},
    {C::Text6, When::enter, C::STA70,
     {" Coloque la corriente máxima que brinda el manual, segun el tipo de transistor.",
      "If Esc pulses, it corresponds to transistor of Silicon. \nIf it uses transistor of Germanium, assign 0,2 volt"}},
    {C::Text6, When::hover, C::status15,
     {" Corriente máxima de colector. Dato del manual",
      "Maximum current of collector. Date of the manual"}},
    {C::Text7, When::focus, C::SSPanel1, {"Pocas opciones.., mejores decisiones !!", "Few options.., better decisions!!"}},
    {C::Text7, When::enter, C::STA70,
     {"Coloque un valor normalizado. \nEl Cálculo de Rb2 se obtiene mediante la formula: \n      Rb2 = S x Res",
      "It places a normalized value. \n The Calculation of Rb2 is obtained by means of  that formulates it: \n      Rb2 = S x Res"}},
    {C::Text7, When::hover, C::status16,
     {" Si pulsa Enter se asigna 0,6 volts para trans. de silicio",
      "If Enter presses 0,6 volts it is assigned for  silicon"}},
    {C::Text18, When::focus, C::SSPanel1,
     {"Si asigna valores mas bajos que los calculados obtendrá mejor estabilidad ( S ), pero... menor impedancia de entrada ( Zin ).Si "
      "asigna valores mas altos de Rb2, el circuito se torna mas inestable, (menos 'Drenaje' de señal, pero...mas Zin de entrada).",
      "If  assigns values but first floor that those calculated will obtain better stability (S), but... smaller entrance impedance "
      "(Zin).If  assigns values more high of Rb2, the circuit restitution more unstable, (less ' Drainage ' of sign, but... more "
      "entrance Zin)."}},
    {C::Text18, When::enter, C::STA70,
     {"Coloque un preset de valor doble normalizado, respecto de Rb1   ",
      "It places a preset of normalized double value, regarding Rb1"}},
    {C::Text19, When::focus, C::SSPanel1,
     {"Ayuda:  Los valores de los capacitores son en microFaradios",
      "Helps: design Approach: so that the design parameters are completed, it will adjust the ' Preset ' that replaces at Rb1 until "
      "obtaining a collector current (QIc), similar to the one assigned in those ' Parameters of the Circuit '"}},
    {C::Text19, When::click, C::STA70,
     {"Para que los valores de tensiones obtenidas se cumplan, debera ajustar el ' Preset ' que reemplaza a Rb1 hasta obtener una "
      "corriente de colector (QIc), igual a la asignada en los ' Parámetros del Circuito '",
      "So that the values of obtained voltage are completed, it will adjust the ' Preset ' that replaces at Rb1 until obtaining a "
      "collector current (QIc), similar to the one assigned in those ' Parameters of the Circuit '"}},
    {C::statu17, When::hover, C::sta5,
     {" La resistencia de juntura   Base-Emisor, R'e se          obtiene de dividir la          tensión de juntura,            tensión "
      "Shockley, y la       corriente de reposo Qic:       R'e= 25 mV/Qic",
      "The resistance of Base-Emitter juncture, R'e is obtained of dividing the juncture voltage,  Shockley voltage, and the quiescent "
      "current  Qic: R'e = 25 mV/Qic"}},
    {C::statu18, When::hover, C::statu36,
     {"Rlac es el valor de la resistencia de carga a la corriente alterna, resultado del paralelo de RL y RLw",
      "Rlac is the value from the load resistance to the alternating current, result of the parallel one of RL and RLw"}},
    {C::statu23, When::hover, C::Label21,
     {"  Resistencia que       encontraria el            generador de           señales, sin estar         Rb1",
      "Resistance that would find the generator of signs, without Rb1 being"}},
});

/// Prompts of the two sheets that can be polarised by emitter.
template <class C>
inline constexpr auto modeSayings = std::to_array<Saying>({
    {C::Text21, When::empty, C::STA70,
     {" Coloque valor del Manual de Transistor, este debe ser superior al valor de  Eq calculado.\nEsc...predeterminado",
      "It places value of the Manual of Transistor, this it should be superior to the value of calculated Eq.\n Esc... predetermined"}},
    {C::Text21, When::enter, C::STA70,
     {"                                                                                    Especificacion circuital...       "
      "Esc...valor predeterminado ",
      "                                                                                    Circuit especification ...       Esc... "
      "predeterminated value"}},
});
// clang-format on

namespace emitter_texts_detail {

inline constexpr BiText dataError{.es = "Error de datos", .en = "Error of data"};
inline constexpr BiText designApproach{.es = "Criterio de diseño...", .en = "Design approach..."};

} // namespace emitter_texts_detail

// Boxes, in the order in which a student may meet them.

/// The box of Enter in this empty field.
constexpr Saying ofField(host::Handle field, Saying box)
{
    box.about = field;
    box.when = When::empty;
    return box;
}

inline constexpr Saying emptyFigure{.text = {.es = "Debe colocar una cifra", .en = "It should place a figure"},
                                    .title = emitter_texts_detail::dataError};
/// Enter in an empty field, where the sheet names no other box.
inline constexpr Saying emptyField = ofField(host::noControl, emptyFigure);
/// An empty field was left.
inline constexpr Saying emptyLeft{.text = {.es = "Debe colocar una cifra", .en = "It should place a value"},
                                  .title = emitter_texts_detail::dataError};
/// The empty field of the gain was left: a box without a text.
inline constexpr Saying emptyGain{.text = {.es = "", .en = ""},
                                  .title = {.es = "Error de datos", .en = "Error of date"}};
inline constexpr Saying bypassAssigned{.text = {.es = "El programa asignara la condicion DESACOPLADO..",
                                                .en = "The program assigned the condition  BYPASS.."},
                                       .title = {.es = "ATENCIÓN !!", .en = "ATTENTION !!"}};
inline constexpr Saying currentOverLimit{.text = {.es = "Corriente de colector no debe superar el 40% de la máxima...",
                                                  .en = "Collector current should not overcome 40% of the maxim..."},
                                         .title = emitter_texts_detail::designApproach};
inline constexpr Saying loadTooLarge{
    .text = {.es = "No circula suficiente corriente..., pruebe elevar QIc o disminuir Vg..",
             .en = "Enough current doesn't circulate..., prove to elevate QIc or to diminish Vg.."},
    .title = {.es = "Error, RL es de muy elevado valor", .en = "Error, RL is of very high value"}};
/// `status40`, and the box.
inline constexpr BiText loadImpossibleText{
    .es = "Es imposible proseguir el circuito, la RL obtenida no cumple las condiciones necesarias para la C.A. y C.C. "
          "\n Disminuya QIc ó llame a un nuevo circuito",
    .en = "It is impossible to continue the circuit, the obtained RL doesn't complete the necessary conditions for the "
          "C.A. and C.C\n QIc diminishes or call to a new circuit"};
inline constexpr Saying loadImpossible{.text = loadImpossibleText, .title = {.es = "Error ", .en = "Error "}};
inline constexpr Saying raiseGain{.text = {.es = "Es aconsejable elevar el valor de la ganancia Vg",
                                           .en = "It is advisable to elevate the value of the gain Vg"},
                                  .title = {.es = "Error ", .en = " Error "}};
inline constexpr Saying lowerGain{
    .text = {.es = "Es aconsejable disminuir el valor de la ganancia Vg o elevar Qic",
             .en = "It is advisable to diminish the value of the gain Vg or to elevate Qic"},
    .title = {.es = " Error ", .en = " Error "}};
inline constexpr Saying loadVoltageTooLow{
    .text = {.es = "Tensión mínima de RL debe ser la mitad de Eopp.            Solucion: Eleve Vg o disminuya Eopp",
             .en = "Minimum Voltage of RL should be half of Eopp.               Solution: Vg Rises or Eopp diminish"},
    .title = {.es = "tensión Resistor RL  muy baja", .en = "Voltage Resistor very low RL"}};
inline constexpr Saying raiseSupply{
    .text = {.es = "Aumentar tensión de fuente alimentacion", .en = "To increase voltage of source feeding (Es)"},
    .title = {.es = "tensión Colector - Emisor muy baja", .en = "Voltage Colector - Emitter very low "}};
inline constexpr Saying lowerOutput{.text = {.es = "Disminuya Eopp, o Vg", .en = "Eopp, or Vg Diminishes"},
                                    .title = {.es = "tensión Eq muy baja", .en = " Very low Eq"}};
inline constexpr Saying overTransistorVoltage{
    .text = {.es = "tensión Colector Emisor no debe superar la máxima  que especifica el manual...",
             .en = "Voltage Collector-Emitter should not overcome the maxim that specifies the manual..."},
    .title = emitter_texts_detail::designApproach};
inline constexpr Saying overTransistorCurrent{
    .text = {.es = "La corriente ' QIc ', no debe superar el 40% de la máxima que soporta el transistor.",
             .en = "The current ' QIc ' doesn't should it overcomes the 40% of maxim that supports the transistor."},
    .title = emitter_texts_detail::designApproach,
    .flags = 16};
inline constexpr Saying baseResistorTooLow{.text = {.es = "Es conveniente que Rb2 no sea menor a Res...",
                                                    .en = "It is convenient that Rb2 are not smaller to Res..."},
                                           .title = {.es = "Criterio de diseño", .en = "Design approach"}};
inline constexpr Saying adjustPreset{.text = {.es = "Corriente de Colector obtenida es diferente a QIc diseñada...",
                                              .en = " Collector currents it's different to design.."},
                                     .title = {.es = "Ajuste valor de Rb1", .en = "Adjust Preset Rb1..."},
                                     .flags = 48};

// Captions and prompts that belong to no single moment.
inline constexpr BiText headingTransistor{.es = "Parámetros del transistor", .en = "Transistor Parameters"};
inline constexpr BiText headingCircuit{.es = "Parámetros del Circuito", .en = "Circuit Parameters"};
inline constexpr BiText capacitorsInMicrofarads{.es = "Capacitores en microfaradios",
                                                .en = "Capacitors in microfarads"};
/// The caption of the option pictures of the bypass.
inline constexpr BiText bypassName{.es = "Desacoplado", .en = "Bypass"};
inline constexpr BiText tooLow{.es = " tensión muy baja Colector - Emisor",
                               .en = "Voltage very low Collector - Emitter"};
inline constexpr BiText presetAdvice{.es = "  Coloque valor comercial...", .en = "  Put normalized value..."};
inline constexpr BiText adjustPresetAdvice{
    .es = "Pulse Click...   y ajuste el valor del preset hasta obtener la QIc deseada...",
    .en = "Click pulses... and adjust the value of the preset until obtaining the wanted QIc..."};
/// How a design begins, in Spanish; an English sheet says it too, in one place.
inline constexpr std::string_view startInSpanish =
    "Ingrese la variación máxima de corriente de reposo admisible con los cambios de temperatura de trabajo. Para "
    "circutos criticos (electromedicina) utilice valores de 1 a 3. ";
// The English side speaks Spanish, and always did.
inline constexpr BiText varyRb1Prompt{
    .es =
        "varíe de a valores unitarios el valor de Rb1 hasta obtener la QIc especificada en 'Parámetros del Circuito ' "
        "cumpliendose así la distribución de tensiones...",
    .en = startInSpanish};
inline constexpr BiText noBootstrapHint{
    .es = " No se puede  realizar Bootstrapping \n Salvo indicacion, capacitores en "
          "microfaradios",
    .en = "Bootstrapping can not be carried out\nExcept for indication, capacitors in "
          "microfarade"};
inline constexpr BiText tooLowAtEscape{.es = " Tensión muy baja Colector - Emisor",
                                       .en = " Collector - Emitter Voltage very low "};
inline constexpr BiText noUpperResistorAtEnter{.es = " Sin resistor Rb1...pulse ENTER",
                                               .en = "Without resister Rb1... press ENTER"};
inline constexpr BiText archivedEmitterSheet{.es = "Circuito de Archivo : Emisor Común",
                                             .en = "Archive Circuit : Common Emitter"};
inline constexpr BiText bypassHint{.es = " Pulsando DESACOPLADO, obtendra mas ganancia..",
                                   .en = "Pressing Bypass, you will obtain more gain.."};

} // namespace velmor::common_emitter
