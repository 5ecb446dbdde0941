// SPDX-License-Identifier: MIT
// The help pages of `Form10`.
#include "designs/power/form10_texts.h"

namespace velmor::form10 {

constinit const BiText helpText{
    .es = "Clase B, el diseño paso a paso\n\n"
          "1) Po y RLw fijan la señal de salida, Eopp, y con ella la fuente mínima.\n\n"
          "2) La fuente Es se reparte en partes iguales entre los dos transistores de salida: Eq = Es / 2.\n\n"
          "3) Ibias, la corriente de T1, fija su carga RL(total) y el resistor Rd que separa las bases.\n\n"
          "4) CLICK sobre Rb1: el cálculo de la realimentación de base. Rb1b es un preset con el que se ajusta Eq.\n\n"
          "5) RL se divide en RLb (25 %) y RLa; el capacitor entre ambos realimenta la salida (bootstrapping).\n\n"
          "6) Rs y Zin dicen qué señal debe entregar el generador.\n\n"
          "7) Con Ic(max) y Vce(sat) del manual se conoce la corriente pico de salida.\n\n"
          "Con la flecha sobre un cuadro aparece su fórmula. El botón derecho sobre un resistor muestra los valores "
          "comerciales.",
    .en =
        "Class B, the design step by step\n\n"
        "1) Po and RLw fix the output signal, Eopp, and with it the minimum source.\n\n"
        "2) The source Es is shared in equal parts by both output transistors: Eq = Es / 2.\n\n"
        "3) Ibias, the current of T1, fixes its load RL(total) and the resistor Rd between the bases.\n\n"
        "4) CLICK over Rb1: the calculation of the base feedback. Rb1b is a preset that adjusts Eq.\n\n"
        "5) RL is divided in RLb (25 %) and RLa; the capacitor between them feeds the output back (bootstrapping).\n\n"
        "6) Rs and Zin tell what signal the generator must give.\n\n"
        "7) With Ic(max) and Vce(sat) of the manual the peak output current is known.\n\n"
        "With the pointer over a field its formula appears. The right button over a resistor shows the commercial "
        "values."};

} // namespace velmor::form10
