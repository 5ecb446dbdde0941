// SPDX-License-Identifier: MIT
// The report of `Form15`: heading, exercises, results and questions in the language of the sheet. What one language has and the other
// lacks is told so on purpose, and so is the Beta of Q2 that the Spanish report calls that of Q1.
#include "designs/power/form15.h"
#include "sheets/report_text.h"

namespace velmor::form15 {

using sheets::ReportRow;
using sheets::ReportText;

namespace report_detail {

// clang-format off
constexpr std::string_view data2[] = {"Po = 4 W", "Rlw = 16 ohm", "Ic(máx) = 1 A"};
constexpr std::string_view data3[] = {"Po = 4 W", "Rlw = 32 ohm", "Rg = 10 K"};
constexpr std::string_view data4[] = {"Po = 4 W", "Rlw = 8 ohm"};
constexpr std::string_view data5[] = {"Po = 4 W", "Rlw = 4 ohm"};

constexpr Exercise exercises[] = {
    {{"Ejercicio N° 1 ", "Exercise N° 1 "}, trySupplies, {}},
    {{"Ejercicio N° 2 ", "Exercise N° 2 "}, withTheseData, data2},
    {{"Ejercicio N° 3 ", "Exercise N° 3 "}, withTheseData, data3},
    {{"Ejercicio N° 4 ", "Exercise N° 4 "}, withTheseData, data4},
    {{"Ejercicio N° 5 ", "Exercise N° 5 "}, withTheseData, data5},
};
constexpr std::string_view reminderSpanish[] = {
    "Recuerde salvar los resultados obtenidos para cada diseño en un archivo",
    "con el Editor de Textos",
};
constexpr std::string_view reminderEnglish[] = {
    "Remembers to save the results obtained for each design in a file report",
    "with the Text Editor  ",
};

constexpr ReportRow transistorsSpanish[] = {{"Beta Q1 = ", Text10}, {"Beta Q2 = ", Text11}};
constexpr ReportRow circuitSpanish[]     = {{"", Label12}, {"RLw = ", Text2}, {"Po (r.m.s.) = ", Text1}};
constexpr ReportRow transistorsEnglish[] = {{"Ec(máx)) = ", Label3}};
constexpr ReportRow circuitEnglish[]     = {{"RLw = ", Text2}, {"Po (r.m.s.) = ", Text1}};

constexpr std::string_view questionsSpanish[] = {
    "Por qué la corriente de reposo es la máxima en Clase A ..?",
    "A que parámetros influye disminuir la carga RLw ..?",
    "A que parámetros influye elevar la fuente Es ..?",
    "Que función cumple el capacitor Cbp ..?",
    "Que rendimiento tiene el circuito a máxima potencia ..?",
    "Cuales son las ventajas  y desventajas de utilizar circuitos diferenciales ..?",
    "Aconsejo continuar con el diseño de Clase B mejorada (Darlington) ",
};
constexpr std::string_view questionsEnglish[] = {
    "Why is the quiescent current the maximum in Class A ..?",
    "To that parameters influence to diminish the load RLw ..?",
    "To that parameters influence to elevate the supply Es ..?",
    "That function completes the capacitor Cbp ..?",
    "That efficiency has the circuit at maximum power ..?",
    "Advise to continue with the design of Class  B (Darlington) ",
};

constexpr host::BiText transistors{"Parámetros de los transistores de salida: ", "Parameters of the output transistors : "};
constexpr host::BiText circuit{"Parámetros del Circuito: ", " Circuit Parameters: "};
constexpr host::BiText gainOf{"   Valor con circuito activo y completo", "   Value with complete and active circuit.. "};
constexpr host::BiText swingOf{"   Valor con circuito activo", "  Value with active circuit "};
constexpr host::BiText questionnaire{"Conteste el siguiente cuestionario: ", "Answers the following questionnaire:  "};

constexpr ReportWords words{
    .spanishTitle = "Elaboración de Informe : Clase A Simple",
    .englishDesign = "Design :   Class A Simple ",
    .exercises = exercises,
    .results = {"Resultados del diseño de Potencia en Clase A Simple: ", "Results of the design of Power in Class A ,Simple : "},
    .transistorsSpanish = transistorsSpanish,
    .transistorsEnglish = transistorsEnglish,
};
using Rows = std::span<const ReportRow>;
using Lines = std::span<const std::string_view>;
// clang-format on

} // namespace report_detail

std::string Form15::reportText() const
{
    return report(report_detail::words);
}

std::string Form15::report(const ReportWords& told) const
{
    using namespace report_detail;
    const bool english = inEnglish();
    ReportText text;
    if (english)
        text.heading(*this, "Report Design", told.englishDesign);
    else
        text.opening(*this, told.spanishTitle).empty();
    for (const Exercise& exercise : told.exercises)
        text.oneStep(pick(exercise.heading)).twoSteps(pick(exercise.statement)).tabs(exercise.data);
    text.tabs(english ? reminderEnglish : reminderSpanish);
    text.oneStep(pick(told.results));
    text.oneStep(pick(transistors)).rows(*this, english ? told.transistorsEnglish : told.transistorsSpanish);
    text.oneStep(pick(circuit)).rows(*this, english ? Rows(circuitEnglish) : Rows(circuitSpanish));
    text.tab("Vg (Q1)= " + whole(q_.Vg) + std::string(pick(gainOf)));
    text.tab("fo =  200 Hertz");
    text.tab("Eopp = " + shown(q_.Eopp) + std::string(pick(swingOf)));
    text.tab(pick(questionnaire)).tabs(english ? Lines(questionsEnglish) : Lines(questionsSpanish));
    return text.text();
}

} // namespace velmor::form15
