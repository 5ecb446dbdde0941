// SPDX-License-Identifier: MIT
// The Spanish questions of the differential amplifier's report. They stand here because another report has always borrowed them.
#pragma once

#include <array>
#include <string_view>

namespace velmor::sheets {

inline constexpr auto differentialQuestions = std::to_array<std::string_view>({
    "Que parámetros definen la tensión de estabilidad ERes..?",
    "A que parámetros influye los distintos valores de carga RLw ..?",
    "A que parámetros influye elevar Vg ..?",
    "A que parámetros influye elevar -Ebias ..?",
    "Por qué circula por Res el doble de la corriente de reposo ..?",
    "Que ventajas tiene medir entre los dos colectores ..?",
});

} // namespace velmor::sheets
