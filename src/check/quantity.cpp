// SPDX-License-Identifier: MIT
// The table of the quantities.
#include "check/quantity.h"

#include "host/window.h"

namespace velmor::check {

namespace quantity_detail {

// clang-format off
constexpr QuantityText table[] = {
    {Quantity::QIc,       "QIc",        "mA",    Measure::share,
     {"Corriente de reposo", "Quiescent current"}},
    {Quantity::QIc2,      "QIc2",       "mA",    Measure::share,
     {"Corriente de reposo de Q2", "Quiescent current of Q2"}},
    {Quantity::QIc3,      "QIc3",       "mA",    Measure::share,
     {"Corriente de reposo de Q3", "Quiescent current of Q3"}},
    {Quantity::QIc4,      "QIc4",       "mA",    Measure::share,
     {"Corriente de reposo de Q4", "Quiescent current of Q4"}},
    {Quantity::QIc5,      "QIc5",       "mA",    Measure::share,
     {"Corriente de reposo de Q5", "Quiescent current of Q5"}},
    {Quantity::QIc6,      "QIc6",       "mA",    Measure::share,
     {"Corriente de reposo de Q6", "Quiescent current of Q6"}},
    {Quantity::QIc7,      "QIc7",       "mA",    Measure::share,
     {"Corriente de reposo de Q7", "Quiescent current of Q7"}},
    {Quantity::Vce,       "Vce",        "V",     Measure::share,
     {"Tensión colector-emisor", "Collector-emitter voltage"}},
    {Quantity::Vg,        "Vg",         "",      Measure::decibel,
     {"Ganancia de tensión", "Voltage gain"}},
    {Quantity::Zin,       "Zin",        "ohm",   Measure::share,
     {"Impedancia de entrada", "Input impedance"}},
    {Quantity::fL,        "fL",         "Hz",    Measure::atMost,
     {"Corte inferior, a -3 dB", "Lower corner, at -3 dB"}},
    {Quantity::dBfo,      "dBfo",       "dB",    Measure::difference,
     {"Nivel a la frecuencia fo", "Level at frequency fo"}},
    {Quantity::output,    "output",     "Eg",    Measure::share,
     {"Parte de Eg que llega", "Share of Eg that arrives"}},
    {Quantity::Eopp,      "Eopp",       "V",     Measure::atLeast,
     {"Salida pico a pico", "Output peak to peak"}},
    {Quantity::THD,       "THD",        "%",     Measure::shown,
     {"Distorsión de esa salida", "Distortion of that output"}},
    {Quantity::drift,     "drift",      "%",     Measure::atMost,
     {"Corrimiento por temperatura", "Drift with the temperature"}},
    {Quantity::Pout,      "Pout",       "W",     Measure::atLeast,
     {"Potencia con esa entrada", "Power at the course's input"}},
    {Quantity::Pclean,    "Pclean",     "W",     Measure::atLeast,
     {"Limpia: 10 % de distorsión", "Clean: 10 % distortion"}},
    {Quantity::efficiency,"efficiency", "%",     Measure::shown,
     {"Rendimiento de la limpia", "Efficiency of the clean one"}},
    {Quantity::heat,      "heat",       "W",     Measure::shown,
     {"Calor con esa entrada", "Heat at the course's input"}},
};
// clang-format on
static_assert(std::size(table) == static_cast<std::size_t>(Quantity::count));

} // namespace quantity_detail

std::span<const QuantityText> quantityTexts()
{
    return quantity_detail::table;
}

const QuantityText& textOf(Quantity quantity)
{
    return quantity_detail::table[static_cast<std::size_t>(quantity)];
}

std::string_view reportedSignOf(Quantity quantity)
{
    switch (quantity) {
    case Quantity::output:
        return "Eo/Eg";
    case Quantity::drift:
        return "/\\QIc";
    case Quantity::Pout:
        return "Po";
    case Quantity::Pclean:
        return "P10";
    case Quantity::efficiency:
        return "P10/P";
    case Quantity::heat:
        return "PQ";
    default:
        return textOf(quantity).name;
    }
}

std::optional<Quantity> quantityNamed(std::string_view name)
{
    for (const QuantityText& row : quantity_detail::table)
        if (host::sameName(row.name, name))
            return row.quantity;
    return std::nullopt;
}

} // namespace velmor::check
