// SPDX-License-Identifier: MIT
// In what the report of `form20` differs from that of `Form15`. The English head of the results is that of class B, and the second
// English exercise is headed in Spanish; both stay.
#include "designs/power/form20.h"

namespace velmor::form20 {

namespace report_detail {

// clang-format off
constexpr std::string_view data2[] = {"Po = 8 W", "Rlw = 16 Ohm", "Ic(máx) = 1 A"};
constexpr std::string_view data3[] = {"Po = 16 W", "Rlw = 32 Ohm", "Rg = 10 K"};
constexpr std::string_view data4[] = {"Po = 8 W", "Rlw = 8 Ohm"};
constexpr std::string_view data5[] = {"Po = 8 W", "Rlw = 4 Ohm"};

constexpr form15::Exercise exercises[] = {
    {{"Ejercicio N° 1 ", "Exercise N° 1 "},  form15::trySupplies, {}},
    {{"Ejercicio N° 2 ", "Ejercicio N° 2 "}, form15::withTheseData, data2},
    {{"Ejercicio N° 3 ", "Exercise N° 3 "},  form15::withTheseData, data3},
    {{"Ejercicio N° 4 ", "Exercise N° 4 "},  form15::withTheseData, data4},
    {{"Ejercicio N° 5 ", "Exercise N° 5 "},  form15::withTheseData, data5},
};
constexpr sheets::ReportRow transistorsSpanish[] = {
    {"Beta Q1 = ", Text10}, {"Beta Q2 = ", Text11}, {"Icmáx (A)= ", Text3}, {"Ec(máx)) = ", Label3},
};
constexpr sheets::ReportRow transistorsEnglish[] = {{"Icmáx (A)= ", Text3}, {"Ec(máx)) = ", Label3}};

constexpr form15::ReportWords words{
    .spanishTitle = "Elaboración de Informe : Clase A Compuesto",
    .englishDesign = "Design :   Class A Darlington ",
    .exercises = exercises,
    .results = {"Resultados del diseño de Potencia en Clase A Compuesto: ", "Results of the design of Power in Class B ,Simple : "},
    .transistorsSpanish = transistorsSpanish,
    .transistorsEnglish = transistorsEnglish,
};
// clang-format on

} // namespace report_detail

std::string Form20::reportText() const
{
    return report(report_detail::words);
}

} // namespace velmor::form20
