// SPDX-License-Identifier: MIT
// The general help of `Form18`. The Spanish page closes with a verse that the English one does not have.
#include "designs/common_emitter/form18_texts.h"

namespace velmor::form18 {

// clang-format off
const host::BiText helpText{
    .es = "  \n           Realimentado por Tensión \n\n"
          "Valen todas las consideraciones del circuito simple, salvo una: lo que sobra de la fuente no va al resistor RL sino a EQ, la "
          "tensión entre Colector y Emisor.\n\n"
          "Rb2, de base a masa, drena el excedente de la corriente de Rb1 y fija el punto ' Q ':\n\n"
          "     Rb1 = S x RL\n"
          "     IRb1 = (Eq - Vj) / Rb1\n"
          "     IRb2 = IRb1 - Ib\n"
          "     Rb2 = Vj / IRb2\n\n"
          "Coloque valores normalizados y observe la corriente obtenida: al variar Rb2 cambia QIc. Si no alcanza la tensión, Rb2 resulta "
          "muy pequeña ó negativa, y hay que elevar la fuente.\n\n"
          "Para aumentar la impedancia de entrada divida Rb1 en dos mitades y desacople la unión con Cdp (Bootstrapping).\n\n\n"
          "        Un poco de lo que sale\n"
          "        vuelve a la base a contar\n"
          "        cuánto subió la corriente,\n"
          "        y la obliga a no pasar.",
    .en = "  \n           Voltage Feedback \n\n"
          "All the considerations of the simple circuit hold but one: what is left of the supply does not go to the resistor RL but to EQ, "
          "the voltage between Collector and Emitter.\n\n"
          "Rb2, from base to ground, drains what is left of the current of Rb1 and sticks the point ' Q ':\n\n"
          "     Rb1 = S x RL\n"
          "     IRb1 = (Eq - Vj) / Rb1\n"
          "     IRb2 = IRb1 - Ib\n"
          "     Rb2 = Vj / IRb2\n\n"
          "Put standard values and watch the current obtained: as Rb2 varies, QIc changes. If the voltage is not "
          "enough, Rb2 comes out very "
          "small or negative, and the supply has to be raised.\n\n"
          "To raise the input impedance split Rb1 in two halves and decouple their middle with Cdp (Bootstrapping)."};
// clang-format on

} // namespace velmor::form18
