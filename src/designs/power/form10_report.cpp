// SPDX-License-Identifier: MIT
// The report of the class B sheets: exercises, results and questions for the teacher. The heading of the second exercise is Spanish
// in both languages.
#include "designs/power/form10.h"
#include "sheets/report_text.h"

namespace velmor::form10 {

using host::BiText;
using sheets::ReportRow;
using sheets::ReportText;

namespace report_detail {

struct Exercise {
    BiText heading{};
    BiText statement{};
    std::span<const std::string_view> data{};
};

// clang-format off
constexpr BiText title{"Elaboración de Informe", "Report Design"};

constexpr std::string_view data1[] = {"Po = 8 W", "Rlw = 16 Ohm", "Ic(máx) = 1 A"};
constexpr std::string_view data2[] = {"Po = 16 W", "Rlw = 32 Ohm", "Rg = 10 K"};
constexpr std::string_view data3[] = {"Po = 8 W", "Rlw = 8 Ohm"};
constexpr std::string_view data4[] = {"Po = 8 W", "Rlw = 4 Ohm"};
constexpr Exercise exercises[] = {
    {{"Ejercicio N° 1 ", "Exercise N° 1 "},
     {"Diseñe el amplificador con los siguientes datos y compare la corriente pico con la máxima del transistor.",
      "Design the amplifier with these data and compare the peak current with the maximum of the transistor."}, data1},
    {{"Ejercicio N° 2 ", "Ejercicio N° 2 "},
     {"Duplique la potencia y la carga. Qué ocurre con la tensión de fuente..?",
      "Double the power and the load. What happens to the source voltage..?"}, data2},
    {{"Ejercicio N° 3 ", "Exercise N° 3 "},
     {"Diseñe para un parlante de 8 Ohm y compare la señal necesaria con la del primer ejercicio.",
      "Design for a loudspeaker of 8 Ohm and compare the needed signal with that of the first exercise."}, data3},
    {{"Ejercicio N° 4 ", "Exercise N° 4 "},
     {"Diseñe para un parlante de 4 Ohm. Qué transistor de salida elige..?",
      "Design for a loudspeaker of 4 Ohm. Which output transistor do you choose..?"}, data4},
    {{"Ejercicio N° 5 ", "Exercise N° 5 "},
     {"Repita el ejercicio 4 con la tensión de fuente mínima y explique los avisos del programa.",
      "Repeat exercise 4 with the minimum source voltage and explain the warnings of the program."}, {}},
};
constexpr std::string_view spanishReminder[] = {
    "Recuerde salvar los resultados obtenidos para cada diseño en un archivo",
    "con el Editor de Textos",
};
constexpr std::string_view englishReminder[] = {
    "Remembers to save the results obtained for each design in a file report",
    "with the Text Editor  ",
};

constexpr BiText results{"Resultados de diseño: ", "Result of design: "};
constexpr ReportRow firstRows[] = {
    {"Icmáx (A)= ", Text13}, {"Ec(máx)) = ", Label3}, {"", Label12}, {"RLw = ", Text2}, {"Po (r.m.s.) = ", Text1},
};
constexpr BiText powerEnd{"  microW,  Valor con circuito activo y completo", "  microW,   Value with complete and active circuit.."};

constexpr BiText questionsHead{"Conteste el siguiente cuestionario: ", "Answers the following questionnaire: "};
constexpr BiText questions[] = {
    {"Qué parámetros definen la tensión mínima de fuente..?", "That parameters define the minimum voltage of source..?"},
    {"Por qué cada transistor de salida conduce medio ciclo..?", "Why does each output transistor conduct half a cycle..?"},
    {"Qué función cumplen Rd y el diodo entre las bases..?", "Which is the function of Rd and the diode between the bases..?"},
    {"Qué ventaja tiene dividir RL en RLa y RLb..?", "Which is the advantage of dividing RL in RLa and RLb..?"},
    {"A qué parámetros influye elevar Ibias..?", "To that parameters influence to elevate Ibias..?"},
    {"Qué corriente pico deben soportar los transistores de salida..?", "Which peak current must the output transistors bear..?"},
    {"Aconsejo continuar con el diseño de Clase B mejorada (Darlington) ",
     "Advise to continue with the design of Class  B (Darlington) "},
};
// clang-format on

} // namespace report_detail

std::string Form10::reportText() const
{
    using namespace report_detail;
    ReportText report;
    report.heading(*this, pick(title), pick(stage_.designName));
    for (const Exercise& exercise : exercises)
        report.oneStep(pick(exercise.heading)).twoSteps(pick(exercise.statement)).tabs(exercise.data);
    report.tabs(inEnglish() ? englishReminder : spanishReminder);
    report.oneStep(pick(results)).rows(*this, firstRows);
    report.tab("Pg = " + whole(generatorPower(q_.EgPP, at(Text9), q_.Zin)) + words(powerEnd));
    report.tab("Vg (Q1)= " + shown(q_.Vg));
    report.tab("fo =  200 Hertz");
    report.tab("Eopp = " + shown(q_.Eopp));
    report.tab(pick(questionsHead));
    for (const BiText& question : questions)
        report.tab(pick(question));
    return report.text();
}

} // namespace velmor::form10
