// SPDX-License-Identifier: MIT
// The table of the quantities.
#include "check/quantity.h"

#include "host/window.h"

namespace velmor::check {

namespace quantity_detail {

// clang-format off
constexpr QuantityText table[] = {
    {Quantity::QIc,        "QIc",        "mA",     {"Corriente de reposo", "Quiescent current"},                                          Measure::share},
    {Quantity::QIc2,       "QIc2",       "mA",     {"Corriente de reposo de Q2", "Quiescent current of Q2"},                              Measure::share},
    {Quantity::QIc3,       "QIc3",       "mA",     {"Corriente de reposo de Q3", "Quiescent current of Q3"},                              Measure::share},
    {Quantity::QIc4,       "QIc4",       "mA",     {"Corriente de reposo de Q4", "Quiescent current of Q4"},                              Measure::share},
    {Quantity::QIc5,       "QIc5",       "mA",     {"Corriente de reposo de Q5", "Quiescent current of Q5"},                              Measure::share},
    {Quantity::QIc6,       "QIc6",       "mA",     {"Corriente de reposo de Q6", "Quiescent current of Q6"},                              Measure::share},
    {Quantity::QIc7,       "QIc7",       "mA",     {"Corriente de reposo de Q7", "Quiescent current of Q7"},                              Measure::share},
    {Quantity::Vce,        "Vce",        "V",      {"Tensión colector-emisor", "Collector-emitter voltage"},                              Measure::share},
    {Quantity::Vg,         "Vg",         "",       {"Ganancia de tensión", "Voltage gain"},                                               Measure::decibel},
    {Quantity::Zin,        "Zin",        "ohm",    {"Impedancia de entrada", "Input impedance"},                                          Measure::share},
    {Quantity::fL,         "fL",         "Hz",     {"Frecuencia de corte inferior, a -3 dB", "Lower cut-off frequency, at -3 dB"},        Measure::atMost},
    {Quantity::dBfo,       "dBfo",       "dB",     {"Nivel a la frecuencia fo", "Level at the frequency fo"},                             Measure::difference},
    {Quantity::output,     "output",     "of Eg",  {"Parte de Eg que llega a la salida", "Share of Eg that reaches the output"},          Measure::share},
    {Quantity::Eopp,       "Eopp",       "V",      {"Salida pico a pico", "Output peak to peak"},                                         Measure::atLeast},
    {Quantity::THD,        "THD",        "%",      {"Distorsión armónica de esa salida", "Harmonic distortion of that output"},           Measure::shown},
    {Quantity::drift,      "drift",      "%",      {"Corrimiento de QIc con la temperatura", "Drift of QIc with the temperature"},        Measure::atMost},
    {Quantity::Pout,       "Pout",       "W",      {"Potencia de salida con la entrada del curso", "Output power with the course's input"}, Measure::atLeast},
    {Quantity::Pclean,     "Pclean",     "W",      {"Potencia limpia, con 10 % de distorsión", "Clean power, at 10 % distortion"},        Measure::atLeast},
    {Quantity::efficiency, "efficiency", "%",      {"Rendimiento", "Efficiency"},                                                         Measure::shown},
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

std::optional<Quantity> quantityNamed(std::string_view name)
{
    for (const QuantityText& row : quantity_detail::table)
        if (host::sameName(row.name, name))
            return row.quantity;
    return std::nullopt;
}

} // namespace velmor::check
