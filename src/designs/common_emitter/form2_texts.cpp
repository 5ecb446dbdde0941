// SPDX-License-Identifier: MIT
// The texts of `Form2`, Spanish above English. Blanks and misprints are as the course's students know them.
#include "designs/common_emitter/form2_texts.h"

namespace velmor::form2 {

using host::BiText;
using sheets::BoxText;

namespace texts_detail {

// clang-format off
// field, trigger, where it is written, Spanish, English
constexpr Prompt promptRows[] = {
    {Text1, Trigger::focus, STA70,
     {"Con Enter ó Esc comienza el diseño de un amplificador 'Clase A', realimentado por corriente, polarizado por base. En BOTONES encontrara otras opciones...",
      "With Enter or Esc the design of an amplifier begins 'Class A', feedback for current, polarized by Base. In bottons you found other options..."}},
    {Text1, Trigger::enter, STA70,
     {" Colocar cifra superior a 20, sin unidades",
      "To place value superior at 20, without units"}},
    {Text1, Trigger::hover, SSPanel1,
     {"QIc es corriente de reposo, corriente Colector-Emisor sin señal de entrada, DeltaQIC es la variación de esa corriente, en porcentaje, con los cambios de temperatura ambiente",
      "QIc is quiet current Collector-Emmiter without entrance sign, DeltaQIC is the variation of that current, in percentage, with the changes of ambient temperature"}},
    {Text1, Trigger::hover, status1,
     {" Máxima variacion permitida de corriente de reposo, a temperatura ambiente",
      " Maximum allowed variation of quiescent current , to ambient temperature"}},
    {Text1, Trigger::hover, STA70,
     {"Con Enter ó Esc comienza el diseño de un amplificador 'Clase A', realimentado por corriente, polarizado por base. En botones encontrara otras opciones...",
      "With Enter or Esc the design of an amplifier begins 'Class A', feedback for current, polarized by Base. In bottons you found other options..."}},
    {Text3, Trigger::focus, SSPanel1,
     {" Coloque la temperatura ambiente en la que operará el circuito, esta será determinante de la variacion de polarizacion directa Base - Emisor",
      "It places the ambient temperature in which will operate the circuit, this it will be decisive of the variation of polarization direct Base - Emitter"}},
    {Text3, Trigger::enter, STA70,
     {"Para Qic inferior a 10 mA coloque cifra de 2,5 a 3  ",
      "For inferior Qic to 10 MA places value from 2,5 to 3\n              For Qic superior to 10 mA places the value 3"}},
    {Text3, Trigger::hover, SSPanel1,
     {"Temperatura en la cuál trabajará el equipo que está diseñando",
      "Work's temperature of the circuit that you are designing "}},
    {Text3, Trigger::hover, status2,
     {" Temperatura ambiente\nBoton medio en °F y °K",
      " Ambient temperature\nMiddle Button in F y K"}},
    {Text3, Trigger::hover, STA70,
     {" Coloque la temperatura ambiente en la que operará el circuito, esta será determinante de la variacion de polarizacion directa Base - Emisor",
      "It places the ambient temperature in which will operate the circuit, this it will be decisive of the variation of polarization direct Base - Emitter"}},
    {Text4, Trigger::focus, SSPanel1,
     {" En el proximo paso obtendra la tensión mínima de estabilidad que debe estar presente en el Emisor, acorde a la temperatura ambiente de trabajo y el corrimiento de corriente de reposo (delta QIc) elegido.",
      " In the next step you will obtain the minimum voltage of stability that should be present in the Emitter, chord to the ambient temperature of work and the landslide of quiescent current  (delta QIc) elect."}},
    {Text4, Trigger::enter, STA70,
     {" Escape... valor predeterminado.  ",
      " Esc...  predeterminated value.  "}},
    {Text4, Trigger::escape, STA70,
     {"                                                                                    Escape... valor predeterminado.  ",
      "                                                                                    Esc...predeterminated value.  "}},
    {Text4, Trigger::hover, SSPanel1,
     {"El aumento de polarización directa  aumenta la corriente y la temperatura y nuevamente la polarización directa, provocando lo que se conoce como efecto avalancha",
      " The increase of direct polarization increases the current and the temperature and again the direct polarization, causing the effect call avalanche"}},
    {Text4, Trigger::hover, status3,
     {" Aumento de tensión de polarizacion directa x grado de temperatura, segun corriente Qic, (2 a 3 mV)",
      " Increase of value of direct polarization x grade of temperature, according to current Qic, (2 to 3 mV)"}},
    {Text4, Trigger::hover, STA70,
     {" Aumento de tensión de polarizacion directa x grado de temperatura, segun corriente Qic, (2 a 3 mV)",
      " Increase of value of direct polarization x grade of temperature, according to current Qic, (2 to 3 mV)"}},
    {Voltaje, Trigger::hover, SSPanel1,
     {" Voltaje de Corriente Continua minimo para estabilizar el circuito a los cambios de temperatura ambiente",
      "Necessary voltage (D.C. current) of Emitter to stabilize the circuit"}},
    {Voltaje, Trigger::hover, status4,
     {"  Tensión de Emisor necesaria  para estabilizar el circuito",
      "  Necessary voltage of Emitter to stabilize the circuit"}},
    {Voltaje, Trigger::hover, status6,
     {"   Formula:   \n                  (T* - 20 ) x /\\Vbe\n      Eres=------------------------\n                      %/\\Qic",
      "   Formulate: \n                  (T* - 20 ) x /\\Vbe\n      Eres=------------------------\n                      %/\\Qic"}},
    {Text8, Trigger::focus, SSPanel1,
     {" Es aconsejable asignar la corriente a la cual fueron probados los Parámetros del transistor, segun datos del manual",
      " It is advisable to assign the current to which the parameters of the transistor were proven, according to data of the manual"}},
    {Text8, Trigger::enter, STA70,
     {"Coloque un valor normalizado...  ",
      "                                                                                                             Put a normalized value...  "}},
    {Text8, Trigger::hover, SSPanel1,
     {"QIc es corriente de reposo, corriente Colector-Emisor sin señal de entrada, dependerá su valor final de la carga (RLw) a utilizar.",
      ""}},
    {Text8, Trigger::hover, status5,
     {" Corriente de reposo posible, (1 a 40 % de Ic max)",
      " Possible Quiescent current , (1 to 40% of Ic max)"}},
    {Text21, Trigger::empty, STA70,
     {" Coloque valor del Manual de Transistor, este debe ser superior al valor de  Eq calculado.\nEsc...predeterminado",
      "It places value of the Manual of Transistor, this it should be superior to the value of calculated Eq.\n Esc... predetermined"}},
    {Text21, Trigger::enter, STA70,
     {"                                                                                    Especificacion circuital...       Esc...valor predeterminado ",
      "                                                                                    Circuit especification ...       Esc... predeterminated value"}},
    {Text15, Trigger::focus, SSPanel1,
     {"El valor normalizado de resistor hara cambiar la corriente de reposo, pero NO la Tensión de Estabilidad (ERes)",
      "The normalized value will make change the quiescent current , but NOT the Voltage of Stability (ERes)"}},
    {Text15, Trigger::enter, STA70,
     {"      Especificacion circuital...       Esc...valor predeterminado ",
      "      Specification circuital...        Esc...predetermined value"}},
    {Text15, Trigger::hover, SSPanel1,
     {"El valor normalizado de resistor hara cambiar la corriente de reposo, pero NO la Tensión de Estabilidad (ERes)",
      "The normalized value will make change the quiescent current , but NOT the Voltage of Stability (ERes)"}},
    {Text9, Trigger::focus, SSPanel1,
     {" Este valor corresponde a la carga del circuito, recuerde que para valores pequeños, más exigencia de corriente y menos impedancia de entrada ",
      "This value corresponds to the load of the circuit, remember that it stops values small, more demand of current and less entrance impedance"}},
    {Text9, Trigger::enter, STA70,
     {"Escape ...valor predeterminado. \nPara circuitos criticos, valores de 1 a 6 ",
      "Esc... predetermined value. \nFor critical circuits, values of 1 at 6"}},
    {Text9, Trigger::hover, SSPanel1,
     {" Este valor corresponde a la carga del circuito, recuerde que para valores pequeños, más exigencia de corriente y menos impedancia de entrada ",
      "This value corresponds to the load of the circuit, remember that it stops values small, more demand of current and less entrance impedance"}},
    {Text9, Trigger::hover, status7,
     {" Carga resistiva donde se dasarrolla la tensión de salida Eopp",
      " It's  resistive loads  on which the output voltage Eopp works "}},
    {Text10, Trigger::focus, SSPanel1,
     {" El valor de estabilidad (S) se asigna entre 1 a 10 y fijará el valor del resistor Rb2.",
      " The value of stability (S) it is assigned among 1 at 10 and it will fix the value of the resistor Rb2."}},
    {Text10, Trigger::enter, STA70,
     {" Especificacion circuital que indica las 'VECES' que debe amplificar el circuito la señal de entrada ",
      "Specification circuital that indicates those ' TIMES ' that should amplify the circuit the entrance sign"}},
    {Text10, Trigger::hover, SSPanel1,
     {" El valor de estabilidad (S) se asigna entre 1 a 10 y fijará el valor del resistor Rb2.",
      " The value of stability (S) it is assigned among 1 at 10 and it will fix the value of the resistor Rb2."}},
    {Text10, Trigger::hover, status8,
     {" Factor de estabilidad,\n      1 a 10 ",
      " Stability  \n      1 a 10 "}},
    {Text11, Trigger::focus, SSPanel1,
     {" Pruebe de colocar valores elevados de ganancia, a modo de ejercicio didactico...",
      "It proves of placing high values of gain, by way of didactic exercise..."}},
    {Text11, Trigger::enter, STA70,
     {" Valor de RL que cumple junto con Rlw el valor de carga necesario para obtener la Vg especificada",
      "Value of RL that completes together with Rlw the necessary load value to obtain the specified Vg (gain)"}},
    {Text11, Trigger::hover, SSPanel1,
     {" Pruebe de colocar valores elevados de ganancia, a modo de ejercicio didactico...",
      "It proves of placing high values of gain, by way of didactic exercise..."}},
    {Text11, Trigger::hover, status9,
     {" Veces que se amplifica la       tensión de entrada, (Ein)      respecto de salida, (Eopp)",
      " Times that the entrance voltage is amplified, (Ein) regarding output, (Eopp)"}},
    {Text17, Trigger::focus, SSPanel1,
     {"El valor de tensión continua que se desarrolle sobre este resistor (ERl), debera ser minimo la mitad  de la tensión pico - pico de salida (Eopp).",
      "The value of continuous voltage  that is developed on this resistor (ERl), it will be minimum half of the voltage peak - peak  of output (Eopp)."}},
    {Text17, Trigger::enter, STA70,
     {" Valor de frecuencia mínima que operara el circuito, (frecuencia de corte)",
      "Value of minimum frequency that operated the circuit, (cutt - off frequency)"}},
    {Text17, Trigger::hover, SSPanel1,
     {"El valor de tensión continua que se desarrolle sobre este resistor (ERl), debera ser minimo la mitad  de la tensión pico - pico de salida (Eopp).",
      "The value of continuous voltage  that is developed on this resistor (ERl), it will be minimum half of the voltage peak - peak  of output (Eopp)."}},
    {Text12, Trigger::enter, STA70,
     {" Sin dato de tensión pico - pico  en la salida pulse Escape y coloque el valor eficaz de la senal de entrada .      Eopp no debe superar el doble de la tensión ERL",
      "Without fact of peak - peak voltage  in the output it presses Esc and place the effective value (r.m.s.) of the entrance sign. Eopp should not overcome double the voltage ERL"}},
    {Text12, Trigger::hover, SSPanel1,
     {"A esta frecuencia la amplitud de la ganancia disminuira en un 10 %",
      "Smaller frequency of interest"}},
    {Text12, Trigger::hover, status10,
     {" Menor frecuencia de interes ",
      " Smaller frequency of interest"}},
    {Text13, Trigger::focus, SSPanel1,
     {"Tensión de señal de salida en valor Pico - Pico, de no poseer este dato , pulse Esc...",
      "Voltage of exit sign in value Peak - Peak, of not possessing this fact, Esc..."}},
    {Text13, Trigger::enter, STA70,
     {" Coloque cifra superior a la tensión mínima...                                   Esc.., valor predeterminado de 25 voltios",
      " It places superior values to the minimum voltage...                             Esc.., predetermined value of 25 volts"}},
    {Text13, Trigger::escape, STA70,
     {"                                                                               Pulse Enter, o modifique al valor deseado, luego...  ENTER",
      "                                                                               Pulses Enter, or modify to the wanted value, then... ENTER"}},
    {Text13, Trigger::hover, SSPanel1,
     {"Tensión de señal de salida en valor Pico - Pico, de no poseer este dato , pulse Esc...",
      "Voltage of exit sign in value Peak - Peak, of not possessing this fact, Esc..."}},
    {Text13, Trigger::hover, status11,
     {" Máxima tensión de salida    pico a pico, Sin datos...Esc.",
      " Maximum voltage of output   pick to pick, Without data... Esc."}},
    {Text14, Trigger::focus, SSPanel1,
     {"Tensión de señal de entrada en valor eficaz, de no poseer este dato, asigne valores a Eopp...",
      "Input Voltage sign in value R.M.S., if not possessing this date, put value in Eopp..."}},
    {Text14, Trigger::enter, STA70,
     {"                                                                                 Sin dato de tensión pico - pico  en la salida. pulse Escape y coloque el valor eficaz de la senal de entrada ",
      "                                                                                 Sin dato de tensión pico - pico  en la salida. pulse Escape y coloque el valor eficaz de la senal de entrada "}},
    {Text14, Trigger::hover, SSPanel1,
     {"Tensión de señal de entrada en valor eficaz, de no poseer este dato, asigne valores a Eopp...",
      "Input Voltage sign in value R.M.S., if not possessing this date, put value in Eopp..."}},
    {Text14, Trigger::hover, status12,
     {" Tensión eficaz de entrada     para producir Eopp, segun      Vg = Eopp/Ein",
      " Effective voltage of entrance (r.m.s.) to produce Eopp, according to Vg = Eopp/Ein"}},
    {Text16, Trigger::focus, SSPanel1,
     {"Si la fuente da un valor inusualmente alto, asignelo, (sin miedo...), recuerde que ud. maneja la corriente de reposo.",
      "If the source gives a value too high , assign it, (without fear...), remember that you manages the quiescent current ."}},
    {Text16, Trigger::focus, STA70,
     {" Coloque cifra superior a la tensión mínima...                                   Esc.., valor predeterminado de 25 voltios\n Puede asignar valor de EC(max) del manual...",
      "It places hight value to the minimum voltage... Esc.., predetermined value of 25 volts\nit can assign the value  EC(max) of the manual..."}},
    {Text16, Trigger::enter, STA70,
     {" El Manual brinda un valor de Beta segun Qic.\nEsc..., valor predeterminado de 80 ",
      "The Manual offers a value of Beta according to Qic.\n Esc..., predetermined value of 80"}},
    {Text2, Trigger::focus, SSPanel1,
     {" Observe la tensión Colector - Emisor, si es superior a Ec(máx) cambie por un transistor que soporte dicha tensión, asignandolo con un Click en el cuadro siguiente...",
      " Observes the Voltage Collector - Emitter, if it is superior to Ec(máx) it changes for a transistor that supports this voltage, assigning it with a Click in the next textbox..."}},
    {Text2, Trigger::enter, STA70,
     {" Coloque valor del Manual de Transistor, este debe ser superior al valor de  Eq calculado.\nEsc...predeterminado",
      "It places value of the Manual of Transistor, this it should be superior to the value of calculated Eq.\n Esc... predetermined"}},
    {Text2, Trigger::hover, status13,
     {" Ganancia de corriente estatica, (hFE),.. Ic/Ib. Distinguir respecto de Hfe,.. Beta para la señal",
      "Gain of static current, (hFE),.. Ic/Ib. To distinguish regarding Hfe,.. Beta for the sign"}},
    {Text5, Trigger::click, STA70,
     {" Coloque valor del Manual de Transistores. \nEsc = 100 mA",
      "It places value of the Manual of Transistors. \nEsc = 100 mA"}},
    {Text5, Trigger::enter, STA70,
     {" Coloque valor del Manual de Transistores. \nEsc = 100 mA",
      "It places value of the Manual of Transistors. \nEsc = 100 mA"}},
    {Text5, Trigger::hover, status14,
     {" tensión máxima de colector-emisor, dato del manual",
      "Maximum voltage of Collector-Emitter, fact of the manual"}},
    {Text6, Trigger::focus, SSPanel1,
     {" El programa NO acepta valores inferiores a 10 mA",
      " ...than less  10 mA No accept"}},
    {Text6, Trigger::focus, STA70,
     {" Coloque la corriente máxima que brinda el manual, segun el tipo de transistor.",
      "Maximum current of Collector-Emitter, fact of the manual"}},
    {Text6, Trigger::enter, STA70,
     {" Coloque la corriente máxima que brinda el manual, segun el tipo de transistor.",
      "If Esc pulses, it corresponds to transistor of Silicon. \nIf it uses transistor of Germanium, assign 0,2 volt"}},
    {Text6, Trigger::hover, status15,
     {" Corriente máxima de colector. Dato del manual",
      "Maximum current of collector. Date of the manual"}},
    {Text7, Trigger::focus, SSPanel1,
     {"Pocas opciones.., mejores decisiones !!",
      "Few options.., better decisions!!"}},
    {Text7, Trigger::enter, STA70,
     {"Coloque un valor normalizado. \nEl Cálculo de Rb2 se obtiene mediante la formula: \n      Rb2 = S x Res",
      "It places a normalized value. \n The Calculation of Rb2 is obtained by means of  that formulates it: \n      Rb2 = S x Res"}},
    {Text7, Trigger::hover, status16,
     {" Si pulsa Enter se asigna 0,6 volts para trans. de silicio",
      "If Enter presses 0,6 volts it is assigned for  silicon"}},
    {Text18, Trigger::focus, SSPanel1,
     {"Si asigna valores mas bajos que los calculados obtendrá mejor estabilidad ( S ), pero... menor impedancia de entrada ( Zin ).Si asigna valores mas altos de Rb2, el circuito se torna mas inestable, (menos 'Drenaje' de señal, pero...mas Zin de entrada).",
      "If  assigns values but first floor that those calculated will obtain better stability (S), but... smaller entrance impedance (Zin).If  assigns values more high of Rb2, the circuit restitution more unstable, (less ' Drainage ' of sign, but... more entrance Zin)."}},
    {Text18, Trigger::enter, STA70,
     {"Coloque un preset de valor doble normalizado, respecto de Rb1   ",
      "It places a preset of normalized double value, regarding Rb1"}},
    {Text19, Trigger::focus, SSPanel1,
     {"Ayuda:  Los valores de los capacitores son en microFaradios",
      "Helps: design Approach: so that the design parameters are completed, it will adjust the ' Preset ' that replaces at Rb1 until obtaining a collector current (QIc), similar to the one assigned in those ' Parameters of the Circuit '"}},
    {Text19, Trigger::click, STA70,
     {"Para que los valores de tensiones obtenidas se cumplan, debera ajustar el ' Preset ' que reemplaza a Rb1 hasta obtener una corriente de colector (QIc), igual a la asignada en los ' Parámetros del Circuito '",
      "So that the values of obtained voltage are completed, it will adjust the ' Preset ' that replaces at Rb1 until obtaining a collector current (QIc), similar to the one assigned in those ' Parameters of the Circuit '"}},
    {statu17, Trigger::hover, sta5,
     {" La resistencia de juntura   Base-Emisor, R'e se          obtiene de dividir la          tensión de juntura,            tensión Shockley, y la       corriente de reposo Qic:       R'e= 25 mV/Qic",
      "The resistance of Base-Emitter juncture, R'e is obtained of dividing the juncture voltage,  Shockley voltage, and the quiescent current  Qic: R'e = 25 mV/Qic"}},
    {statu18, Trigger::hover, statu36,
     {"Rlac es el valor de la resistencia de carga a la corriente alterna, resultado del paralelo de RL y RLw",
      "Rlac is the value from the load resistance to the alternating current, result of the parallel one of RL and RLw"}},
    {statu23, Trigger::hover, Label21,
     {"  Resistencia que       encontraria el            generador de           señales, sin estar         Rb1",
      "Resistance that would find the generator of signs, without Rb1 being"}},
};

// button, name in the balloon, caption on the button
constexpr ButtonName buttonNameRows[] = {
    {Picture6,   {"Desacoplado", "Bypass"},                          {"Desacoplado", "Bypass"}},
    {Picture4,   {"Parcialmente desacoplado", "Parcial Bypass"},     {"Parcialmente desacoplado", "Parcial Bypass"}},
    {Picture11,  {"Polarizado p/Emisor", "Polarized by Emitter"},    {"Polarizado p/Emisor", "Polarized by Emitter"}},
    {Picture10,  {"Polarizado p/Base", "Polarized by Base"},         {"Polarizado p/Base", "Polarized by Base"}},
    {Picture2,   {"Boots...", "Boots..."},                           {"Bootstrapping", "Bootstrapping"}},
    {Picture7,   {"Boots...", "Boots..."},                           {"Sin Bootstrapping", "No Bootstrapping"}},
    {Picture1,   {"Desacoplado", "Bypass"},                          {"Desacoplado", "Bypass"}},
    {Image5,     {"Abrir un nuevo circuito...", "Clon Circuit"},     {"Nuevo circuito", "Clon Circuit"}},
    {Image4,     {"Abrir un nuevo circuito...", "Clon Circuit"},     {"Nuevo circuito", "Clon Circuit"}},
    {Image3,     {"Calculadora", "Calculator"},                      {"Calculadora", "Calculator"}},
    {SSCommand3, {"Informe", "Report"},                              {"Informe", "Report"}},
    {SSCommand1, {"Guía de trabajos prácticos", "Guide of practical work"}, {"Guía", "Guide"}},
    {Image35,    {"Ayuda", "Help"},                                  {"Ayuda", "Help"}},
    {Image34,    {"Ayuda", "Help"},                                  {"Ayuda", "Help"}},
};
// clang-format on

constexpr BiText dataError{.es = "Error de datos", .en = "Error of data"};
constexpr BiText impossible{
    .es = "Es imposible proseguir el circuito, la RL obtenida no cumple las condiciones necesarias para la C.A. y C.C. "
          "\n Disminuya QIc ó llame a un nuevo circuito",
    .en = "It is impossible to continue the circuit, the obtained RL doesn't complete the necessary conditions for the "
          "C.A. and C.C\n QIc diminishes or call to a new circuit"};
constexpr BiText designApproach{.es = "Criterio de diseño...", .en = "Design approach..."};

} // namespace texts_detail

using namespace texts_detail;

const std::span<const Prompt> prompts = promptRows;
const std::span<const ButtonName> buttonNames = buttonNameRows;

constexpr BoxText emptyField{.text = {.es = "Debe colocar una cifra", .en = "It should place a figure"},
                             .title = dataError};
constexpr BoxText emptyLeft{.text = {.es = "Debe colocar una cifra", .en = "It should place a value"},
                            .title = dataError};
constexpr BoxText emptyGain{.text = {.es = "", .en = ""}, .title = {.es = "Error de datos", .en = "Error of date"}};
constexpr BoxText bypassAssigned{.text = {.es = "El programa asignara la condicion DESACOPLADO..",
                                          .en = "The program assigned the condition  BYPASS.."},
                                 .title = {.es = "ATENCIÓN !!", .en = "ATTENTION !!"}};
constexpr BoxText currentOverLimit{.text = {.es = "Corriente de colector no debe superar el 40% de la máxima...",
                                            .en = "Collector current should not overcome 40% of the maxim..."},
                                   .title = designApproach};
constexpr BoxText loadTooLarge{
    .text = {.es = "No circula suficiente corriente..., pruebe elevar QIc o disminuir Vg..",
             .en = "Enough current doesn't circulate..., prove to elevate QIc or to diminish Vg.."},
    .title = {.es = "Error, RL es de muy elevado valor", .en = "Error, RL is of very high value"}};
constexpr BoxText loadImpossible{.text = impossible, .title = {.es = "Error ", .en = "Error "}};
constexpr BoxText raiseGain{.text = {.es = "Es aconsejable elevar el valor de la ganancia Vg",
                                     .en = "It is advisable to elevate the value of the gain Vg"},
                            .title = {.es = "Error ", .en = " Error "}};
constexpr BoxText lowerGain{.text = {.es = "Es aconsejable disminuir el valor de la ganancia Vg o elevar Qic",
                                     .en = "It is advisable to diminish the value of the gain Vg or to elevate Qic"},
                            .title = {.es = " Error ", .en = " Error "}};
constexpr BoxText loadVoltageTooLow{
    .text = {.es = "Tensión mínima de RL debe ser la mitad de Eopp.            Solucion: Eleve Vg o disminuya Eopp",
             .en = "Minimum Voltage of RL should be half of Eopp.               Solution: Vg Rises or Eopp diminish"},
    .title = {.es = "tensión Resistor RL  muy baja", .en = "Voltage Resistor very low RL"}};
constexpr BoxText raiseSupply{
    .text = {.es = "Aumentar tensión de fuente alimentacion", .en = "To increase voltage of source feeding (Es)"},
    .title = {.es = "tensión Colector - Emisor muy baja", .en = "Voltage Colector - Emitter very low "}};
constexpr BoxText lowerOutput{.text = {.es = "Disminuya Eopp, o Vg", .en = "Eopp, or Vg Diminishes"},
                              .title = {.es = "tensión Eq muy baja", .en = " Very low Eq"}};
constexpr BoxText overTransistorVoltage{
    .text = {.es = "tensión Colector Emisor no debe superar la máxima  que especifica el manual...",
             .en = "Voltage Collector-Emitter should not overcome the maxim that specifies the manual..."},
    .title = designApproach};
constexpr BoxText overTransistorCurrent{
    .text = {.es = "La corriente ' QIc ', no debe superar el 40% de la máxima que soporta el transistor.",
             .en = "The current ' QIc ' doesn't should it overcomes the 40% of maxim that supports the transistor."},
    .title = designApproach,
    .flags = 16};
constexpr BoxText baseResistorTooLow{.text = {.es = "Es conveniente que Rb2 no sea menor a Res...",
                                              .en = "It is convenient that Rb2 are not smaller to Res..."},
                                     .title = {.es = "Criterio de diseño", .en = "Design approach"}};
constexpr BoxText adjustPreset{.text = {.es = "Corriente de Colector obtenida es diferente a QIc diseñada...",
                                        .en = " Collector currents it's different to design.."},
                               .title = {.es = "Ajuste valor de Rb1", .en = "Adjust Preset Rb1..."},
                               .flags = 48};

constexpr BiText sheetTitle{.es = "  Emisor Común Realimentado por Corriente",
                            .en = "  Common Emitter, Feedback for Current"};
constexpr BiText desacoTitle{.es = "  Emisor Común Realimentado por Corriente, Desacoplado",
                             .en = "  Common Emitter, Feedback for Current, Bypass"};
constexpr BiText parcDesacTitle{.es = "  Emisor Común Realimentado por Corriente, Parcialmente Desacoplado",
                                .en = "  Common Emitter, Feedback for Current, Parcial Bypass"};
constexpr BiText noteWindowTitle{.es = "Ayuda,(no necesito a nadie..)", .en = "Help. (ain't got nobody)"};
constexpr BiText fileFilter{.es = "Emisor Común Realimentado por Corriente (*.RPC)|*.RPC",
                            .en = "Common Emitter Feedback Current (*.CEC)|*.CEC"};
constexpr BiText headingTransistor{.es = "Parámetros del transistor", .en = "Transistor Parameters"};
constexpr BiText headingCircuit{.es = "Parámetros del Circuito", .en = "Circuit Parameters"};
constexpr BiText captionLabel19{.es = "Coloque -Es sin el signo", .en = "Put -Es without its sign"};
constexpr BiText captionLabel20{.es = "Sin resistor Rb1", .en = "Without resistor Rb1"};
constexpr BiText captionSta4{.es = "Capacitores en microfaradios", .en = "Capacitors in microfarads"};
constexpr BiText beginHere{.es = " Para comenzar: \n CLICK en cuadro Delta QIc...\nDerecho del Mouse da Ayuda",
                           .en = " Beginning with CLICK in Delta QIc..."};
constexpr BiText startPrompt{
    .es =
        "Ingrese la variación mâxima de corriente de reposo admisible con los cambios de temperatura de trabajo. Para "
        "circutos criticos (electromedicina) utilice valores de 1 a 3. \nDerecho del Mouse es Ayuda...",
    .en = "it enters the maximum variation of quiescent current acceptable  with the changes of work temperature. For "
          "critical circutos (electro medicine) used values of 1 at 3. "};
// The English side speaks Spanish, and always did.
constexpr BiText varyRb1Prompt{
    .es =
        "varíe de a valores unitarios el valor de Rb1 hasta obtener la QIc especificada en 'Parámetros del Circuito ' "
        "cumpliendose así la distribución de tensiones...",
    .en =
        "Ingrese la variación máxima de corriente de reposo admisible con los cambios de temperatura de trabajo. Para "
        "circutos criticos (electromedicina) utilice valores de 1 a 3. "};
constexpr BiText helpTitle{.es = "Ayuda", .en = "Help"};
constexpr BiText bypassHint{.es = " Pulsando DESACOPLADO, obtendra mas ganancia..",
                            .en = "Pressing Bypass, you will obtain more gain.."};
constexpr BiText tooLowAtEscape{.es = " Tensión muy baja Colector - Emisor",
                                .en = " Collector - Emitter Voltage very low "};
constexpr BiText tooLow{.es = " tensión muy baja Colector - Emisor", .en = "Voltage very low Collector - Emitter"};
constexpr BiText noUpperResistorAtEnter{.es = " Sin resistor Rb1...pulse ENTER",
                                        .en = "Without resister Rb1... press ENTER"};
constexpr BiText noUpperResistor{.es = "Without resistor Rb1... ENTER pulse",
                                 .en = "Without resistor Rb1... ENTER pulse"};
constexpr BiText presetAdvice{.es = "  Coloque valor comercial...", .en = "  Put normalized value..."};
constexpr BiText adjustPresetAdvice{
    .es = "Pulse Click...   y ajuste el valor del preset hasta obtener la QIc deseada...",
    .en = "Click pulses... and adjust the value of the preset until obtaining the wanted QIc..."};
constexpr BiText bootstrapHint{
    .es = "Si desea mayor impedancia de entrada, pulse BOOTSTRAPPING. \nSalvo indicacion, "
          "capacitores en microFaradios        ",
    .en = "If you wants bigger entrance impedance, BOOTSTRAPPING pulse. \nExcept for indication, "
          "capacitors in microFarade"};
constexpr BiText noBootstrapHint{.es = " No se puede  realizar Bootstrapping \n Salvo indicacion, capacitores en "
                                       "microfaradios",
                                 .en = "Bootstrapping can not be carried out\nExcept for indication, capacitors in "
                                       "microfarade"};
constexpr BiText archivedBase{.es = "Circuito de Archivo : Emisor Común", .en = "Archive Circuit : Common Emitter"};
constexpr BiText archivedEmitter{.es = "Circuito de Archivo : Polarizado por Emisor ",
                                 .en = "Archive Circuit : Emmiter polarized"};

} // namespace velmor::form2
