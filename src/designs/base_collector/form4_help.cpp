// SPDX-License-Identifier: MIT
// The help pages of `Form4`, Spanish and English side by side. "¶" stands for pi, as on the course's blackboard.
#include "designs/base_collector/form4_texts.h"

namespace velmor::form4::texts {

namespace help_detail {

// clang-format off
constexpr auto pages = std::to_array<sheets::HelpPage>({
    {.field = Text1, .shortName = " Delta QIc...", .page = {
        .es = "              Delta QIc\n\n"
              "Cuánto puede cambiar la corriente de reposo (QIc), en porcentaje, a la máxima temperatura de trabajo.\n\n"
              "Para circuitos electromédicos, de 1 a 3 %; para equipos militares, de 5 a 7; para audio alcanza con 10.\n\n"
              "Cuanto menor sea, más tensión deberá quedar sobre el resistor de emisor (ERes). Se acepta de 1 a 10.",
        .en = "              Delta QIc\n\n"
              "How much the quiescent current (QIc) may change, in per cent, at the maximum temperature of work.\n\n"
              "For electro-medical circuits, 1 to 3 %; for military equipment, 5 to 7; for audio 10 is enough.\n\n"
              "The smaller it is, the more voltage must stay on the emitter resistor (ERes). From 1 to 10 is accepted."}},
    {.field = Text3, .shortName = " Temperatura...", .page = {
        .es = "            Temperatura\n\n"
              "La máxima temperatura ambiente, en grados centígrados, en la que trabajará el equipo: la del gabinete cerrado, no la "
              "de su banco.\n\n"
              "Se acepta de 25 a 200. La ventana de conversión pasa °F y °K a centígrados.\n\n"
              "      ERes = ((T - 20) x Delta Vbe x 100) / Delta QIc",
        .en = "            Temperature\n\n"
              "The maximum ambient temperature, in degrees centigrade, in which the equipment will work: that of its closed case, "
              "not that of your bench.\n\n"
              "From 25 to 200 is accepted. The conversion window turns °F and °K into centigrade.\n\n"
              "      ERes = ((T - 20) x Delta Vbe x 100) / Delta QIc"}},
    {.field = Text4, .shortName = " Delta Vbe...", .page = {
        .es = "              Delta Vbe\n\n"
              "Por cada grado, la tensión Base - Emisor que hace falta para la misma corriente baja de 2 a 3 mV. Si nada lo frena, "
              "la corriente sube, el transistor se calienta y la corriente vuelve a subir (efecto avalancha).\n\n"
              "ERes es el freno. Para QIc inferior a 10 mA, de 2.5 a 3.",
        .en = "              Delta Vbe\n\n"
              "For each degree, the Base - Emitter voltage needed for the same current falls 2 to 3 mV. If nothing holds it back, "
              "the current rises, the transistor heats up, and the current rises again (avalanche effect).\n\n"
              "ERes is the brake. For QIc below 10 mA, 2.5 to 3."}},
    {.field = Text8, .shortName = " QIc...", .page = {
        .es = "                 QIc\n\n"
              "La corriente de reposo fija la resistencia interna de la juntura,\n\n"
              "        r'e = 25 mV / QIc\n\n"
              "que en Base Común es también la impedancia de entrada. Con 1 mA son 25 ohms; con 5 mA, 5 ohms.\n\n"
              "Si la carga (RLw) es pequeña ó la ganancia elevada, elévela. No se aceptan menos de 0.5 mA. El resistor de emisor "
              "comercial la hará cambiar un poco.",
        .en = "                 QIc\n\n"
              "The quiescent current fixes the internal resistance of the junction,\n\n"
              "        r'e = 25 mV / QIc\n\n"
              "which in Common Base is the input impedance too. With 1 mA it is 25 ohms; with 5 mA, 5 ohms.\n\n"
              "With a small load (RLw) or a high gain, raise it. Less than 0.5 mA is not accepted. The standard emitter resistor "
              "will change it a little."}},
    {.field = Text18, .shortName = " Resistor Emisor", .page = {
        .es = "          Resistor de Emisor\n\n"
              "Sobre Res se desarrolla la tensión de estabilidad: Res = ERes / QIc. Coloque el valor comercial más cercano; el "
              "programa vuelve a calcular\n\n"
              "        QIc = ERes / Res\n\n"
              "y conserva ERes. La señal entra por el extremo de arriba: para ella Res está en paralelo con r'e, que es mucho "
              "menor.",
        .en = "           Emitter resistor\n\n"
              "On Res the voltage of stability is developed: Res = ERes / QIc. Put the nearest standard value; the program works "
              "out again\n\n"
              "        QIc = ERes / Res\n\n"
              "and keeps ERes. The signal enters at its upper end: for it Res is in parallel with r'e, which is much smaller."}},
    {.field = Text9, .shortName = " RLw..", .page = {
        .es = "                 RLw\n\n"
              "La carga del amplificador, en Kohm. Para la señal está en paralelo con RL:\n\n"
              "        RLac = (RL x RLw) / (RL + RLw)\n\n"
              "RLac no puede igualar a RLw: si la ganancia pedida lo exige, no queda lugar para RL. Entonces eleve QIc ó disminuya "
              "Vg.",
        .en = "                 RLw\n\n"
              "The load of the amplifier, in Kohm. For the signal it is in parallel with RL:\n\n"
              "        RLac = (RL x RLw) / (RL + RLw)\n\n"
              "RLac cannot reach RLw: if the gain asks for it, there is no room left for RL. Then raise QIc or lower Vg."}},
    {.field = Text10, .shortName = " S..", .page = {
        .es = "          Estabilidad  ( S )\n\n"
              "Fija el resistor de base a masa,\n\n"
              "        Rb2 = S x Res\n\n"
              "Valores bajos, de 1 a 6, dan circuitos muy estables. En Base Común la base está a masa para la señal, de modo que el "
              "divisor no carga al generador: aquí la estabilidad sólo se paga con corriente de fuente.",
        .en = "            Stability  ( S )\n\n"
              "It fixes the base resistor to ground,\n\n"
              "        Rb2 = S x Res\n\n"
              "Low values, 1 to 6, give very stable circuits. In Common Base the base is at ground for the signal, so that the "
              "divider does not load the generator: here stability is paid for in supply current alone."}},
    {.field = Text11, .shortName = " Ganancia Vg..", .page = {
        .es = "         Ganancia de tensión\n\n"
              "Vista desde afuera:\n\n"
              "        Vg = Eopp/Ein.\n\n"
              "Vista desde adentro:\n\n"
              "        Vg = RLac / r'e \n\n"
              "de donde\n\n"
              "        RLac = Vg x r'e \n\n"
              "Valores de Vg superiores a 100 traen problemas: crece RL, crece ERL, y la fuente no alcanza.",
        .en = "            Voltage gain\n\n"
              "Seen from outside:\n\n"
              "        Vg = Eopp/Ein.\n\n"
              "Seen from inside:\n\n"
              "        Vg = RLac / r'e \n\n"
              "and so\n\n"
              "        RLac = Vg x r'e \n\n"
              "Values of Vg above 100 give trouble: RL grows, ERL grows, and the supply does not suffice."}},
    {.field = Text15, .shortName = " más sobre RL..", .page = {
        .es = "         Resistor de Colector\n\n"
              "   RL = (RLw x RLac) / (Rlw - RLac) \n\n"
              "Si RLac es mayor que RLw la fórmula responde con un disparate: con RLw = 10 K y RLac = 20 K,\n\n"
              "   RL = (10 x 20) / (10 - 20) = -20 K\n\n"
              "No hay resistores negativos: eleve QIc (baja r'e, y con él RLac) ó conformese con menos ganancia.\n\n"
              "La tensión continua sobre RL, ERL = QIc x RL, debe ser por lo menos la mitad de Eopp.",
        .en = "          Collector resistor\n\n"
              "   RL = (RLw x RLac) / (Rlw - RLac) \n\n"
              "If RLac is larger than RLw the formula answers with nonsense: with RLw = 10 K and RLac = 20 K,\n\n"
              "   RL = (10 x 20) / (10 - 20) = -20 K\n\n"
              "There are no negative resistors: raise QIc (r'e falls, and RLac with it) or make do with less gain.\n\n"
              "The d.c. voltage on RL, ERL = QIc x RL, must be at least half of Eopp."}},
    {.field = Text12, .shortName = " fo...", .page = {
        .es = "        Frecuencia de corte\n\n"
              "La menor frecuencia de interés, en Hertz. Con ella:\n\n"
              "  Cout = 1 / (2 x ¶ x fo x 0.1 x Rlw )\n\n"
              "y, porque r'e es tan pequeña,\n\n"
              "  Cin = 1 / (2 x ¶ x fo x r'e )\n\n"
              "Aun sin el 0.1, Cin resulta de cientos de microfaradios: es el precio de una entrada de pocos ohms.",
        .en = "          Cut-off frequency\n\n"
              "The lowest frequency of interest, in Hertz. With it:\n\n"
              "  Cout = 1 / (2 x ¶ x fo x 0.1 x Rlw )\n\n"
              "and, because r'e is so small,\n\n"
              "  Cin = 1 / (2 x ¶ x fo x r'e )\n\n"
              "Even without the 0.1, Cin comes to hundreds of microfarads: the price of an input of a few ohms."}},
    {.field = Text13, .shortName = " Eopp...", .page = {
        .es = "          Tensión de salida\n\n"
              "La tensión alterna de salida, de pico a pico. Entre Colector y Emisor debe quedar, además, un volt:\n\n"
              "        Eq(min) = Eopp + 1 Volt\n\n"
              "y sobre RL, en reposo, por lo menos Eopp / 2. Si no posee el dato siga adelante y coloque la tensión de entrada.",
        .en = "            Output voltage\n\n"
              "The alternating output voltage, peak to peak. Between Collector and Emitter one volt more must stay:\n\n"
              "        Eq(min) = Eopp + 1 Volt\n\n"
              "and on RL, at rest, at least Eopp / 2. If you do not have it, go on and put the input voltage."}},
    {.field = Text20, .shortName = "Es...", .page = {
        .es = "         Fuente de alimentación\n\n"
              "      Es(min) = Eopp / 2 + ERes + Eq(min)\n\n"
              "y nunca menos de 4 Volts. Coloque la tensión disponible, igual ó superior: si es menor, la señal se recorta.\n\n"
              "Con RL elegido el programa la vuelve a calcular:\n\n"
              "      Es = ERes + ERL + Eq",
        .en = "            Supply voltage\n\n"
              "      Es(min) = Eopp / 2 + ERes + Eq(min)\n\n"
              "and never less than 4 Volts. Put the voltage you have at hand, the same or higher: if it is lower, the signal is "
              "clipped.\n\n"
              "Once RL is chosen the program works it out again:\n\n"
              "      Es = ERes + ERL + Eq"}},
    {.field = Text2, .shortName = "Beta...", .page = {
        .es = "                Beta\n\n"
              "La ganancia de corriente (hFE), del Manual. En Base Común no interviene en la ganancia ni en la entrada: la corriente "
              "de Colector es casi la de Emisor.\n\n"
              "Sí interviene al llevar la señal a la base: entonces\n\n"
              "        Zin = Beta x r'e",
        .en = "                Beta\n\n"
              "The current gain (hFE), from the Manual. In Common Base it takes no part in gain or input: the Collector current is "
              "nearly that of the Emitter.\n\n"
              "It does when the signal is taken to the base: then\n\n"
              "        Zin = Beta x r'e"}},
    {.field = Text5, .shortName = "Ec(max)", .page = {
        .es = "               Ec(max)\n\n"
              "La tensión máxima Colector - Emisor del Manual. Eopp + 1 Volt no debe superarla.",
        .en = "               Ec(max)\n\n"
              "The maximum Collector - Emitter voltage of the Manual. Eopp + 1 Volt should not pass it."}},
    {.field = Text6, .shortName = "Ic(max)", .page = {
        .es = "               Ic(max)\n\n"
              "La corriente máxima de Colector del Manual. QIc no debe superarla; un buen diseño queda por debajo del 40 %.",
        .en = "               Ic(max)\n\n"
              "The maximum Collector current of the Manual. QIc should not pass it; a good design stays below 40 %."}},
    {.field = Text7, .shortName = "Si/Ge", .page = {
        .es = "           Silicio ó Germanio\n\n"
              "La tensión de la juntura Base - Emisor: Silicio 0.6 V, Germanio 0.2 V. Se acepta de 0.2 a 0.7.\n\n"
              "Interviene en Rb1; el control del preset cuenta siempre con 0.6.",
        .en = "          Silicon or Germanium\n\n"
              "The voltage of the Base - Emitter junction: Silicon 0.6 V, Germanium 0.2 V. From 0.2 to 0.7 is accepted.\n\n"
              "It takes part in Rb1; the check of the preset always counts 0.6."}},
    {.field = Text16, .shortName = "Rb2", .page = {
        .es = "          Resistor Rb2\n\n"
              "De base a masa:\n\n"
              "        Rb2 = S x Res\n\n"
              "Coloque un valor comercial. Al llegar a Rb1 el programa vuelve a calcular S = Rb2 / Res.",
        .en = "          Resistor Rb2\n\n"
              "From base to ground:\n\n"
              "        Rb2 = S x Res\n\n"
              "Put a standard value. When you reach Rb1 the program works out S = Rb2 / Res again."}},
    {.field = Text14, .shortName = "Ein", .page = {
        .es = "          Tensión de entrada\n\n"
              "En valor eficaz: Ein = (Eopp / 2) x 0.707 / Vg. Si coloca otra, el programa calcula la salida:\n\n"
              "        Eopp = Ein x 1.41 x 2 x Vg",
        .en = "            Input voltage\n\n"
              "R.m.s.: Ein = (Eopp / 2) x 0.707 / Vg. If you put another, the program works out the output:\n\n"
              "        Eopp = Ein x 1.41 x 2 x Vg"}},
    {.field = Text17, .shortName = "Rb1", .page = {
        .es = "          Preset Rb1\n\n"
              "El valor calculado es un comienzo. Coloque otros y pulse Enter; al salir del cuadro el programa muestra la corriente que "
              "se obtiene. Debe quedar a menos de un 10 % de QIc.\n\n"
              "Menos Rb1, más corriente.",
        .en = "          Preset Rb1\n\n"
              "The value worked out is a start. Put others and press Enter; when you leave the field the program shows the current "
              "that is obtained. It must be within 10 % of QIc.\n\n"
              "Less Rb1, more current."}},
});
// clang-format on

} // namespace help_detail

const std::span<const sheets::HelpPage> helpPages = help_detail::pages;

} // namespace velmor::form4::texts
