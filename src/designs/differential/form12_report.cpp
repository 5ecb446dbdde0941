// SPDX-License-Identifier: MIT
// The report of `Form12`. Its English text has a Spanish heading, and asks other things than the Spanish one in exercises 2 and 3.
#include "designs/differential/exercises.h"
#include "designs/differential/form12.h"
#include "sheets/report_text.h"

namespace velmor::form12 {

using differential::Exercise;
using sheets::ReportRow;
using sheets::ReportText;

namespace report {

// clang-format off
constexpr std::string_view english1[] = {"Design the source for a differential stage of 5 mA in each transistor."};
constexpr std::string_view given1[]   = {"Qic =  10 mA ", "Eb = 3 V ", "-Ebias = (min.)"};
constexpr std::string_view english2[] = {"Design the source for a large current. What power does Res take..?"};
constexpr std::string_view given2[]   = {"Qic =  100 mA ", "Eb = 10 V "};
constexpr std::string_view english3[] = {"Design the source for the stage that feeds this power amplifier."};
constexpr std::string_view given3[]   = {"Po =  8 W ", "Rlw = 8 Ohm"};
constexpr std::string_view english4[] = {"Explain the question of the program and what can be done about it."};
constexpr std::string_view given4[]   = {"QIc =  0.1 mA"};
constexpr std::string_view english5[] = {"Compare the analysis with K = 0.3 and with K = 1."};
constexpr Exercise english[] = {
    {"Exercise N° 1 ",  english1, given1},
    {"Ejercicio N° 2 ", english2, given2},
    {"Exercise N° 3 ",  english3, given3},
    {"Exercise N° 4 ",  english4, given4},
    {"Exercise N° 5 ",  english5},
};

constexpr std::string_view spanish1[] = {"Diseñe la fuente para un diferencial de 5 mA en cada transistor."};
constexpr std::string_view dados1[]   = {"Qic =  10 mA ", "Eb = 3 V ", "-Ebias = (mínima posible)"};
constexpr std::string_view spanish2[] = {"Diseñe la fuente con un divisor que no supere al 60 % de la corriente.",
                                         " Utilice factor K,(proporción entre corriente de Base y corriente de Colector) necesario..."};
constexpr std::string_view spanish3[] = {"Diseñe la fuente del diferencial que excita a esta etapa de potencia",
                                         "y explique que potencia disipa Res."};
constexpr std::string_view spanish4[] = {"Explique la pregunta del programa y que se puede hacer."};
constexpr std::string_view spanish5[] = {"Compare el análisis con K = 0.3 y con K = 1."};
constexpr Exercise spanish[] = {
    {"Ejercicio N° 1 ", spanish1, dados1},
    {"Ejercicio N° 2 ", spanish2, given2},
    {"Ejercicio N° 3 ", spanish3, given3},
    {"Ejercicio N° 4 ", spanish4, given4},
    {"Ejercicio N° 5 ", spanish5},
};

constexpr ReportRow resistors[] = {
    {"Res= ", Text4},
    {"Rb2= ", Text7},
    {"Rb1= ", Text6},
};
constexpr ReportRow circuit[] = {
    {"QIc = ",    Text1},
    {"Eb = ",     Text2},
    {"ERes = ",   Text8},
    {"-Ebias = ", Text9},
    {"Ibias = ",  Text5},
    {"Eq = ",     Text3},
};
// clang-format on

} // namespace report

std::string Form12::reportText() const
{
    ReportText text;
    if (inEnglish())
        text.heading(*this, "Report Design", "Design :   D.C. Source ", true);
    else
        text.opening(*this, "Elaboración de Informe : Fuente de Corriente Constante", true);
    differential::append(text, inEnglish() ? report::english : report::spanish);
    text.tabs(inEnglish() ? differential::englishReminder : differential::spanishReminder);
    text.oneStep(inEnglish() ? "Results of the design: " : "Resultados del diseño: ").rows(*this, report::resistors);
    text.oneStep(inEnglish() ? " Circuit Parameters: " : " Parámetros del Circuito: ").rows(*this, report::circuit);
    return text.text();
}

} // namespace velmor::form12
