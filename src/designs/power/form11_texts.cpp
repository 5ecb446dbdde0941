// SPDX-License-Identifier: MIT
// The help pages of `Form11`.
#include "designs/power/form11_texts.h"

namespace velmor::form11 {

constinit const BiText helpText{
    .es =
        "Clase B mejorada, el diseño paso a paso\n\n"
        "1) Po y RLw fijan la señal de salida, Eopp; la fuente mínima se propone sola.\n\n"
        "2) Cada salida es un par Darlington: casi no pide corriente al excitador, y la ganancia crece.\n\n"
        "3) Ibias fija RL(total), Rd y Res, el resistor de emisor de Q1, que estabiliza.\n\n"
        "4) CLICK sobre Rb1: el cálculo de la realimentación de base; vuelva con el botón de la hoja.\n\n"
        "5) RL se divide en RLb (25 %) y RLa; el capacitor entre ambos realimenta la salida (bootstrapping).\n\n"
        "6) Rs y Zin dicen qué señal debe entregar el generador.\n\n"
        "7) Terminado el diseño, Q8 sustituye a Rd y los diodos, y el botón de armado muestra cómo poner en marcha sin "
        "dañar los transistores.",
    .en =
        "Improved class B, the design step by step\n\n"
        "1) Po and RLw fix the output signal, Eopp; the minimum source is proposed by itself.\n\n"
        "2) Each output is a Darlington pair: it asks the driver for hardly any current, and the gain grows.\n\n"
        "3) Ibias fixes RL(total), Rd and Res, the emitter resistor of Q1, which stabilises.\n\n"
        "4) CLICK over Rb1: the calculation of the base feedback; come back with the button of the page.\n\n"
        "5) RL is divided in RLb (25 %) and RLa; the capacitor between them feeds the output back (bootstrapping).\n\n"
        "6) Rs and Zin tell what signal the generator must give.\n\n"
        "7) When the design is finished, Q8 takes the place of Rd and the diodes, and the button of armed shows how to "
        "start without damage to the transistors."};

} // namespace velmor::form11
