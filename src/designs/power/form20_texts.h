// SPDX-License-Identifier: MIT
// What `form20` says in other words than `Form15`. Texts only.
#pragma once

#include "designs/power/form15_texts.h"
#include "designs/power/form20_controls.h"
#include "sheets/rows.h"

namespace velmor::form20::texts {

using namespace form15::texts;

// clang-format off
inline constexpr auto sayings = sheets::withRowsOf(form15::texts::sayings, std::to_array<Saying>({
    {Text10, When::focus, Label15, {"Beta (hFE) del par Darlington: la de Q3, y después la de Q2. Las dos se multiplican.",
                                    "Beta (hFE) of the Darlington pair: that of Q3, and then that of Q2. The two multiply."}},
    {Text10, When::focus, Label16, {"  Zin = (RLw x Beta (Q3)) x Beta (Q2)\n  RL x 10 <= Zin\n  QIc <= 40 % Icmáx",
                                    "  Zin = (RLw x Beta (Q3)) x Beta (Q2)\n  RL x 10 <= Zin\n  QIc <= 40 % Icmax"}},
    {Text10, When::hover, status1, {"Beta (hFE) del transistor de salida, Q3", "Beta (hFE) of the output transistor, Q3"}},
    {Text11, When::hover, status1, {"Beta (hFE) del segundo transistor del par, Q2",
                                    "Beta (hFE) of the second transistor of the pair, Q2"}},
    {Text5, When::focus, Label15, {"Observe el valor recomendado por el programa de RL, diez veces menor que la Zin del par Darlington.",
                                   "Observe the value of RL recommended by the program, "
                                   "ten times smaller than the Zin of the Darlington pair."}},
    {Text5, When::focus, Label16, {"  RL = S x RLw x Beta (Q3)\n  Estabilidad => S = 10",
                                   "  RL = S x RLw x Beta (Q3)\n  Stability => S = 10"}},
    {Text5, When::hover, status1, {"RL = RLa + RLb, resistor de colector de Q1, en ohms",
                                   "RL = RLa + RLb, collector resistor of Q1, in ohms"}},
}));

inline constexpr BiText powerAndLoadWide{
    "                                          Potencia   (W)                                                    Impedancia  (ohm)",
    "                                          Power   (W)                                                       Impedance  (ohm)"};
inline constexpr BiText totalOfRL{" Valor total de RL", " Total value of RL"};
inline constexpr BiText currentForSwing{"La corriente necesaria ( QIc3 ) para obtener Eopp, ( ",
                                         "The necessary current (QIc3) to obtain Eopp, ( "};
inline constexpr BiText leastDriver{"La corriente mínima de Q1 ( QIc1 ), con superBeta = ",
                                     "The minimum current of Q1 (QIc1), with superBeta ="};
inline constexpr BiText ofBothBetas{" (Beta Q2 x Beta Q3), es de :", " (Beta Q2 x Beta Q3), it is :"};
inline constexpr BiText difference{" Aqui vemos la diferencia con el Clase A simple...\n"
                                    "Si desea más estabilidad ' S ' puede disminuir RL",
                                   " Here we do the difference with the Class A simple...\n"
                                    " If you wants more stability ' S ',  RL can diminish"};

inline constexpr Saying fortyPercent{
    .text = {"QIc no debe superar el 40 % de Ic(max)", " QIc should not overcome 40% of Ic(max)"},
    .title = {"Criterio de diseño...", "design Approach..."}, .flags = 48};
inline constexpr Saying clipped{
    .text = {"Tensión ERL debe superar la mitad de Eopp, eleve la Fuente...",
             "Voltage ERL should overcome half of Eopp, elevate the Source..."},
    .title = {"Atención!!, recorte en la parte superior de la onda...", "Attention!!, clip in the upper part of the wave..."}, .flags = 48};
// clang-format on

} // namespace velmor::form20::texts
