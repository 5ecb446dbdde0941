// SPDX-License-Identifier: MIT
// The general help of `Form8`, Spanish and English.
#include "designs/common_emitter/form8_texts.h"

namespace velmor::form8 {

// clang-format off
const host::BiText helpText{
    .es = "  \n           Realimentado por Tensión Simple\n\n"
          "Un solo resistor de base, Rb1, va de Colector a Base. No hay Rb2 ni resistor de emisor, y toda la ganancia del transistor queda "
          "disponible:\n\n"
          "     Vg = RLac / r'e\n\n"
          "El precio es la impedancia de entrada. Para la señal Rb1 parece Vg veces menor, y en paralelo con Beta x r'e:\n\n"
          "     Zin = Rb1 / Vg  //  Beta x r'e\n\n"
          "Cómo se diseña\n\n"
          "1) Los datos del transistor, QIc y la carga.\n"
          "2) La salida y la ganancia: de ellas sale RL.\n"
          "3) La fuente. La mínima es EQ + ERL; si coloca más, la diferencia va a RL.\n"
          "4) El preset Rb1, hasta un 20 % del calculado.\n"
          "5) La resistencia del generador, para saber si la entrada es una carga pesada.\n\n"
          "Si lo es, divida Rb1 en dos mitades y lleve la unión a masa con el capacitor Cdp: la señal ya no vuelve a la base y Zin aumenta "
          "(Bootstrapping).\n\n"
          "ERL debe ser superior a EQ para conservar la estabilidad S = Rb1 / RL.",
    .en = "  \n           Voltage Feedback, simple\n\n"
          "A single base resistor, Rb1, goes from Collector to Base. There is no Rb2 and no emitter resistor, and all the gain of the "
          "transistor is at hand:\n\n"
          "     Vg = RLac / r'e\n\n"
          "The price is the input impedance. To the signal Rb1 looks Vg times smaller, in parallel with Beta x r'e:\n\n"
          "     Zin = Rb1 / Vg  //  Beta x r'e\n\n"
          "How it is designed\n\n"
          "1) The facts of the transistor, QIc and the load.\n"
          "2) The output and the gain: RL comes from them.\n"
          "3) The supply. The least is EQ + ERL; if you put more, the difference goes to RL.\n"
          "4) The preset Rb1, within 20 % of what was worked out.\n"
          "5) The resistance of the generator, to know whether the input is a heavy load.\n\n"
          "If it is, split Rb1 in two halves and take their middle to ground with the capacitor Cdp: the signal no "
          "longer comes back to the "
          "base and Zin grows (Bootstrapping).\n\n"
          "ERL should be higher than EQ to conserve the stability S = Rb1 / RL."};
// clang-format on

} // namespace velmor::form8
