// SPDX-License-Identifier: MIT
// The help pages of the two sheets fed back by voltage, Spanish and English side by side, in the order in which marks are tested.
// Where the sheets differ, the row is the simple sheet's. "¶" stands for pi, as on the course's blackboard.
#pragma once

#include <array>

#include "designs/common_emitter/feedback_controls.h"
#include "sheets/chain.h"

namespace velmor::feedback {

// clang-format off
inline constexpr auto helpPages = std::to_array<sheets::HelpPage>({
    {.field = Text8, .shortName = " QIc...", .page = {
        .es = " Asigne la corriente a la que fue probado el transistor según el Manual, luego tendremos tiempo de cambiarla si no es "
              "suficiente para alimentar a la carga (RLw ) que proponen los Parámetros del Circuito.\n\n"
              "Con ella queda fijada la resistencia interna de la juntura Base - Emisor:\n\n"
              "        r'e = 25 mV / QIc\n\n"
              "y con ésta la ganancia y la impedancia de entrada. Tenga presente el 40 % de la corriente máxima: por encima el "
              "transistor trabaja exigido.",
        .en = " Assign the current at which the transistor was tested according to the Manual; there will be time to change it if it is "
              "not enough to feed the load (RLw) that the Circuit Parameters propose.\n\n"
              "It fixes the internal resistance of the Base - Emitter junction:\n\n"
              "        r'e = 25 mV / QIc\n\n"
              "and with it the gain and the input impedance. Keep the 40 % of the maximum current in mind: above it the transistor is "
              "hard pressed."}},
    {.field = Text9, .shortName = " RLw..", .page = {
        .es = " En este cuadro UD, puede asignar un valor de resistencia de carga (RLw).\n\n"
              "Es lo que se conecta a la salida: un equipo, unos auriculares, la entrada de la etapa siguiente. Se coloca en Kohm.\n\n"
              "Si la carga es menor que 1 Kohm podrá superar el límite del 40 % de la corriente máxima, porque la corriente de reposo "
              "que exige es elevada: entonces elija otro transistor.",
        .en = " In this field you can assign a value of load resistance (RLw).\n\n"
              "It is what is connected to the output: equipment, headphones, the input of the next stage. It is given in Kohm.\n\n"
              "With a load below 1 Kohm the limit of 40 % of the maximum current may be exceeded, because the quiescent current that it "
              "demands is high: then choose another transistor."}},
    {.field = Text10, .shortName = " S ", .page = {
        .es = " En este cuadro UD no debe asignar un valor  de estabilidad (S).\n\n"
              "En el circuito simple la estabilidad resulta de los dos resistores, S = Rb1 / RL, y el programa la muestra al final. Rb1 no "
              "se calcula con S sino con la corriente de base:\n\n"
              "Rb1 = (Eq - Vj) / Ib \n\n"
              "Si al terminar S le parece elevada, aumente la fuente: RL crece y S disminuye.",
        .en = " In this field you must not assign a value of stability (S).\n\n"
              "In the simple circuit the stability follows from the two resistors, S = Rb1 / RL, and the program shows it in the end. Rb1 "
              "is not worked out with S but with the base current:\n\n"
              "Rb1 = (Eq - Vj) / Ib \n\n"
              "If S seems high to you in the end, raise the supply: RL grows and S becomes smaller."}},
    {.field = Text11, .shortName = " Vg", .page = {
        .es = " En este cuadro UD, puede asignar un valor  de ganancia en tensión(Vg).\n\n"
              "Vista desde afuera es un cociente entre dos mediciones:\n\n"
              "     Vg = Eopp/Ein. \n\n"
              "Vista desde adentro, con el emisor a masa, la fija la juntura:\n\n"
              "     Vg = RLac / r'e \n\n"
              "Para ganancias superiores a 100 conviene utilizar dos etapas.",
        .en = " In this field you can assign a value of voltage gain (Vg).\n\n"
              "Seen from outside it is the ratio of two measurements:\n\n"
              "     Vg = Eopp/Ein. \n\n"
              "Seen from inside, with the emitter at ground, the junction fixes it:\n\n"
              "     Vg = RLac / r'e \n\n"
              "For gains over 100 it is wise to use two stages."}},
    {.field = Text17, .shortName = " más sobre RL", .page = {
        .es = " En este cuadro UD, puede asignar un valor de resistor de Colector (RL).\n\n"
              "RL y RLw en paralelo forman la carga que ve la señal:\n\n"
              " RLac = Vg x r'e \n\n"
              "Conocidas RLac y RLw se despeja:\n\n"
              " RL = (RLw x RLac) / (Rlw - RLac) \n\n"
              "Si la ganancia pedida exige una RLac mayor que RLw, la fórmula responde con un disparate. Para RLw = 10 K y RLac = 20 K:\n\n"
              " RL = (200 / -10) = -20 K\n\n"
              "Eleve QIc ó disminuya Vg. Coloque un valor normalizado, hasta un 20 % más ó menos que el calculado.",
        .en = " In this field you can assign a value of Collector resistor (RL).\n\n"
              "RL and RLw in parallel make the load that the signal sees:\n\n"
              " RLac = Vg x r'e \n\n"
              "Knowing RLac and RLw,\n\n"
              " RL = (RLw x RLac) / (Rlw - RLac) \n\n"
              "If the gain asked for demands an RLac larger than RLw, the formula answers with nonsense. For RLw = 10 K "
              "and RLac = 20 K:\n\n"
              " RL = (200 / -10) = -20 K\n\n"
              "Raise QIc or lower Vg. Put a standard value, up to 20 % more or less than the one worked out."}},
    {.field = Text12, .shortName = " fo...", .page = {
        .es = " En este cuadro UD, asigna un valor de frecuencia a la cuál la señal del generador diminuye un 10 % "
              "respecto de la señal que "
              "se desarrolla en la impedancia de entrada (Zin).\n\n"
              "A esa frecuencia la reactancia de cada capacitor es la décima parte de la resistencia que le sigue:\n\n"
              "  Cout = 1 / (2 x ¶ x fo x 0.1 x Rlw )\n\n"
              "Para Cin la cuenta es la misma con Zin en lugar de RLw. Como Zin es baja en este circuito, Cin resulta grande.",
        .en = " In this field you assign a frequency at which the signal of the generator is 10 % less than the signal developed at the "
              "input impedance (Zin).\n\n"
              "At that frequency the reactance of each capacitor is a tenth of the resistance that follows it:\n\n"
              "  Cout = 1 / (2 x ¶ x fo x 0.1 x Rlw )\n\n"
              "For Cin the sum is the same with Zin in the place of RLw. As Zin is low in this circuit, Cin comes out large."}},
    {.field = Text13, .shortName = " Eopp", .page = {
        .es = " En este cuadro UD, asigna el valor de tensión  alterna  que deberá manejar la carga (RLw) a la salida del amplificador.\n\n"
              "Si conoce la señal de entrada en lugar de ésta, pulse Enter y colóquela en su cuadro:\n\n"
              " Vg = Eopp / Einpp\n\n"
              "El transistor necesita como mínimo, entre Colector y Emisor,\n\n"
              "    Eq(min) = Eopp X 0.66 \n\n"
              "y el resistor RL, en reposo, la mitad de Eopp.",
        .en = " In this field you assign the alternating voltage that the load (RLw) must handle at the output of the amplifier.\n\n"
              "If you know the input signal in its place, press Enter and put it in its field:\n\n"
              " Vg = Eopp / Einpp\n\n"
              "The transistor needs at least, between Collector and Emitter,\n\n"
              "    Eq(min) = Eopp X 0.66 \n\n"
              "and the resistor RL, at rest, half of Eopp."}},
    {.field = Text16, .shortName = "Es...", .page = {
        .es = " En este cuadro UD, asigna el valor de tensión  continua  que tiene disponible en su fuente de alimentación.\n\n"
              "La mínima es la suma de lo que necesitan el transistor y el resistor de Colector:\n\n"
              " Es(min) =  EQ + ERL\n\n"
              "Elija una tensión que exista: 6, 9, 12, 18, 24 Volts.",
        .en = " In this field you assign the d.c. voltage that you have at hand in your supply.\n\n"
              "The least is the sum of what the transistor and the Collector resistor need:\n\n"
              " Es(min) =  EQ + ERL\n\n"
              "Choose a voltage that exists: 6, 9, 12, 18, 24 Volts."}},
    {.field = Text2, .shortName = "Beta...", .page = {
        .es = " En este cuadro UD, asigna el valor de Beta (a la corriente continua y a la alterna), que corresponde al transistor "
              "empleado, cuyo dato extraé del Manual de Transistores.\n\n"
              "De Beta dependen la corriente de base y con ella Rb1, que por eso es un preset: dos transistores iguales rara vez tienen el "
              "mismo Beta. También la impedancia de entrada, por Beta x r'e.",
        .en = " In this field you assign the value of Beta (for direct and for alternating current) of the transistor used, as the Manual "
              "of Transistors gives it.\n\n"
              "On Beta hang the base current and with it Rb1, which is why that is a preset: two transistors of a kind seldom have the "
              "same Beta. So does the input impedance, through Beta x r'e."}},
    {.field = Text5, .shortName = "Ec(max)", .page = {
        .es = " En este cuadro UD, asigna el valor de tensión màxima que soporta el transistor entre Colector - Emisor, tomado de los "
              "paràmetros del transistor que provee el Manual de Transistores.\n\n"
              "Trabaje un 20 % por debajo de la del Manual: la fuente sin carga entrega más que su valor nominal.",
        .en = " In this field you assign the highest voltage that the transistor supports between Collector and Emitter, taken from the "
              "parameters that the Manual of Transistors gives.\n\n"
              "Work 20 % below that of the Manual: a supply without a load gives more than its nominal value."}},
    {.field = Text6, .shortName = "Ic(max)", .page = {
        .es = " En este cuadro UD, asigna el valor de corriente màxima que soporta el transistor entre Colector - Emisor, tomado de los "
              "paràmetros del transistor que provee el Manual de Transistores.\n\n"
              "La corriente de reposo no debe superar el 40 % de este valor: con señal sube casi al doble, y los picos quedan en el 80 %.",
        .en = " In this field you assign the highest current that the transistor supports between Collector and Emitter, taken from the "
              "parameters that the Manual of Transistors gives.\n\n"
              "The quiescent current should not pass 40 % of this value: with a signal it rises to nearly twice as "
              "much, and the peaks stay "
              "at 80 %."}},
    {.field = Text7, .shortName = "Si/Ge", .page = {
        .es = " En este cuadro UD, asigna el valor de tensión que corresponde al tipo de juntura del transistor, Silicio ó Germanio\n\n"
              "Silicio: 0.6 Volt. Germanio: 0.2 Volt. Es la tensión de la base respecto del emisor, y por eso sobre Rb1 queda Eq - Vj.",
        .en = " In this field you assign the voltage that belongs to the type of junction of the transistor, Silicon or Germanium\n\n"
              "Silicon: 0.6 Volt. Germanium: 0.2 Volt. It is the voltage of the base against the emitter, and so Eq - "
              "Vj is left for Rb1."}},
    {.field = Text14, .shortName = "Ein", .page = {
        .es = "En este cuadro UD, asigna el valor de la tensión de señal alterna (en valor eficaz) que le provee un equipo o generador el "
              "cual Ud. quiere amplificar\n\n"
              "La juntura sin resistor de emisor admite pocos milivolts antes de deformar la señal. Si la entrada es "
              "mayor, coloque unos 100 "
              "ohm en el emisor: la ganancia baja, y con ella la distorsión.",
        .en = "In this field you assign the alternating signal voltage (r.m.s.) that the equipment or generator gives which you want to "
              "amplify\n\n"
              "The junction without an emitter resistor admits few millivolts before it distorts the signal. If the input is larger, put "
              "some 100 ohm in the emitter: the gain falls, and the distortion with it."}},
    {.field = Text15, .shortName = "Rg..", .page = {
        .es = "En este cuadro UD, asigna el valor de resistencia interna de generador \n\n"
              "Se coloca en Kohm. Generador y entrada forman un divisor: si la impedancia de entrada (Zin) no es mayor que Rg, el circuito "
              "será una carga pesada y buena parte de la señal se perderá. Para elevar Zin haga Bootstrapping.",
        .en = "In this field you assign the value of the internal resistance of the generator \n\n"
              "It is given in Kohm. Generator and input make a divider: if the input impedance (Zin) is not larger than "
              "Rg, the circuit will "
              "be a heavy load and a good part of the signal will be lost. To raise Zin make Bootstrapping."}},
    {.field = Text19, .shortName = "Rb1", .page = {
        .es = "En este cuadro UD, asigna el valor de resistencia que actúa como drenaje de la corriente de bias (corriente de Base).\n\n"
              "Va de Colector a Base, y por él vuelve parte de la señal: si la corriente de Colector sube, la tensión de Colector baja, la "
              "corriente de base disminuye y el circuito se corrige solo.\n\n"
              "Coloque un preset de valor mayor y ajústelo, con la fuente conectada, hasta leer la tensión Eq calculada.",
        .en = "In this field you assign the value of the resistance that acts as drain of the bias current (Base current).\n\n"
              "It goes from Collector to Base, and part of the signal comes back through it: if the Collector current rises, the Collector "
              "voltage falls, the base current becomes smaller and the circuit corrects itself.\n\n"
              "Put a preset of a higher value and turn it, with the supply connected, until you read the voltage Eq worked out."}},
});
// clang-format on

} // namespace velmor::feedback
