// SPDX-License-Identifier: MIT
// One notation for each quantity, on all sheets: symbol (italic letter, upright index behind "_"), unit, meaning. A sheet that
// measures a quantity in another unit says so with `in`.
#pragma once

#include <array>
#include <string_view>

#include "sheets/schematic.h"

namespace velmor::sheets::notation {

// clang-format off
// stability
inline constexpr Quantity dQIc{"ΔQ_Ic", "%",     {"Variación admisible de la corriente de reposo",
                                          "Allowed change of the quiescent current"}};
inline constexpr Quantity T   {"T",     "°C",    {"Temperatura ambiente de trabajo", "Ambient temperature of work"}};
inline constexpr Quantity dVbe{"ΔV_be", "mV/°C", {"Corrimiento de Vbe por grado", "Drift of Vbe per degree"}};
inline constexpr Quantity S   {"S",     "",      {"Factor de estabilidad", "Stability factor"}};
// signal
inline constexpr Quantity Vg  {"V_g",   "",      {"Ganancia de tensión", "Voltage gain"}};
inline constexpr Quantity fo  {"f_o",   "Hz",    {"Menor frecuencia de interés", "Lowest frequency of interest"}};
inline constexpr Quantity Eopp{"E_opp", "Vpp",   {"Tensión de salida, pico a pico", "Output voltage, peak to peak"}};
inline constexpr Quantity Ein {"E_in",  "V rms", {"Tensión eficaz de entrada", "Input voltage, r.m.s."}};
inline constexpr Quantity Po  {"P_o",   "W",     {"Potencia eficaz de salida", "Output power, r.m.s."}};
// transistor
inline constexpr Quantity Beta {"β",        "",   {"Ganancia de corriente del transistor, hFE", "Current gain of the transistor, hFE"}};
inline constexpr Quantity EcMax{"E_c(max)", "V",  {"Tensión máxima Colector - Emisor", "Maximum Collector - Emitter voltage"}};
inline constexpr Quantity IcMax{"I_c(max)", "mA", {"Corriente máxima de colector", "Maximum collector current"}};
inline constexpr Quantity Vj   {"V_j",      "V",  {"Tensión de juntura, Silicio o Germanio", "Junction voltage, Silicon or Germanium"}};
// currents and voltages
inline constexpr Quantity QIc  {"Q_Ic",    "mA", {"Corriente de reposo de colector", "Quiescent collector current"}};
inline constexpr Quantity Es   {"E_s",     "V",  {"Tensión de la fuente de alimentación", "Supply voltage"}};
inline constexpr Quantity Ebias{"-E_bias", "V",  {"Fuente negativa", "Negative supply"}};
inline constexpr Quantity EsNegative{"-E_s", "V", {"Fuente negativa de emisor", "Negative emitter supply"}};
inline constexpr Quantity Eq   {"E_q",     "V",  {"Tensión Colector - Emisor", "Collector - Emitter voltage"}};
inline constexpr Quantity ERes {"E_Res",   "V",  {"Tensión de estabilidad", "Voltage of stability"}};
// parts
inline constexpr Quantity Res{"R_es", "Ω",  {"Resistor de emisor", "Emitter resistor"}};
inline constexpr Quantity RL {"R_L",  "kΩ", {"Resistor de colector", "Collector resistor"}};
inline constexpr Quantity RLw{"R_Lw", "kΩ", {"Resistencia de carga", "Load resistance"}};
inline constexpr Quantity Rb1{"R_b1", "kΩ", {"Preset, resistor superior de base", "Preset, upper base resistor"}};
inline constexpr Quantity Rb2{"R_b2", "kΩ", {"Resistor inferior de base", "Lower base resistor"}};
inline constexpr Quantity Rg {"R_g",  "kΩ", {"Resistencia del generador", "Resistance of the generator"}};
inline constexpr Quantity Cbp{"C_bp", "",   {"Capacitor de desacople de emisor", "Emitter bypass capacitor"}};

/// All of them: what is measured on a sheet is measured under one of these symbols.
inline constexpr auto all = std::to_array<Quantity>({
    dQIc, T, dVbe, S,
    Vg, fo, Eopp, Ein, Po,
    Beta, EcMax, IcMax, Vj,
    QIc, Es, Ebias, EsNegative, Eq, ERes,
    Res, RL, RLw, Rb1, Rb2, Rg, Cbp,
});

/// Names on a drawing that no field measures: parts, and what is worked out beside them.
inline constexpr auto partNames = std::to_array<std::string_view>({
    "Q_1", "Q_2", "C_in", "C_out", "C_dp", "r'_e", "E_RL", "E_Rb1", "E_d",
    "I_b", "I_Rb1", "I_Rb2",
});
// clang-format on

/// The same quantity in another unit.
constexpr Quantity in(Quantity quantity, std::string_view unit)
{
    quantity.unit = unit;
    return quantity;
}
/// The same quantity with its symbol and unit above the field, beside its part on the drawing.
constexpr Quantity above(Quantity quantity)
{
    quantity.side = host::SymbolSide::above;
    return quantity;
}
/// The same quantity of this sheet's own part: another meaning.
constexpr Quantity meaning(Quantity quantity, host::BiText meaning)
{
    quantity.meaning = meaning;
    return quantity;
}

} // namespace velmor::sheets::notation
