// SPDX-License-Identifier: MIT
// The report of `Form17`. The English one has the head of the differential amplifier and its questions, and is in
// Spanish but for the head; both advise to go on with another circuit.
#include "designs/base_collector/form17.h"
#include "sheets/differential_questions.h"
#include "sheets/report_text.h"

namespace velmor::form17 {

using sheets::ReportRow;
using sheets::ReportText;

namespace report_detail {

using Lines = std::span<const std::string_view>;

struct Exercise {
    std::string_view heading{};
    Lines statement{};
    Lines data{};
};

// clang-format off
constexpr std::string_view statement1[] = {"Varíe el valor de Res y observe que ocurre con QIc, con la fuente Es y con la Zin."};
constexpr std::string_view statement2[] = {"Realice el diseño para un equipo que trabaja a alta temperatura:"};
constexpr std::string_view data2[]      = {"T (ºC) =  190 °"};
constexpr std::string_view statement3[] = {"Realice un diseño con los siguientes datos:"};
constexpr std::string_view data3[]      = {"Rlw =  5K ", "Rg = 10 K"};
constexpr std::string_view statement4[] = {"Cambie el generador y compare la Hoja de Análisis:"};
constexpr std::string_view data4[]      = {"Rg = 100"};
constexpr std::string_view statement5[] = {"Repita con un generador de baja resistencia:"};
constexpr std::string_view data5[]      = {"Rg = 1"};

constexpr Exercise exercises[] = {
    {"Ejercicio N° 1 ", statement1, {}},
    {"Ejercicio N° 2 ", statement2, data2},
    {"Ejercicio N° 3 ", statement3, data3},
    {"Ejercicio N° 4 ", statement4, data4},
    {"Ejercicio N° 5 ", statement5, data5},
};
constexpr std::string_view reminder[] = {
    "Recuerde salvar los resultados obtenidos para cada diseño en un archivo",
    "con el Editor de Textos",
};
constexpr ReportRow results[] = {
    {"Ic (mA)= ",      Text6},
    {"Beta (hFE) = ",  Text2},
    {"Si / Ge = ",     Text7},
    {"Ec (máx) = ",    Text5},
    {"Rg = ",          Text4},
    {"Rlw (Kohm) = ",  Text9},
    {"S = ",           Text10},
    {"Vg = ",          Text11},
    {"fo = ",          Text12},
    {"Eopp = ",        Text13},
    {"Ein = ",         Text14, " Volt (r.m.s.)"},
    {"Res = ",         Text15},
    {"Rb2 (kohm) = ",  Text16},
    {"Rb1 (kohm) = ",  Text17},
    {"QIc  = ",        Text18},
    {"Cin = ",         Label26},
};
constexpr std::string_view questions[] = {
    "Por qué la ganancia de tensión es unitaria ..?",
    "Que es lo que amplifica un Colector Común ..?",
    "A que parámetros influye los distintos valores de carga RLw ..?",
    "A que parámetros influye disminuir Res ..?",
    "Que relación debe existir entre Zin y Rg ..?",
};
constexpr std::string_view adviceSpanish = "Aconsejo continuar con el diseño de Diferencial Compuesto ";
constexpr std::string_view adviceEnglish = "Aconsejo continuar con el diseño de Base a Masa ";
// clang-format on

void body(ReportText& report, const Form17& sheet, Lines questionsOfTheLanguage, std::string_view advice)
{
    for (const Exercise& exercise : exercises) {
        report.oneStep(exercise.heading);
        for (const std::string_view line : exercise.statement)
            report.twoSteps(line);
        report.tabs(exercise.data);
    }
    report.tabs(reminder);
    report.oneStep("Resultados del diseño de Colector Común: ").rows(sheet, results);
    report.tab("Conteste el siguiente cuestionario: ").tabs(questionsOfTheLanguage);
    report.tab(advice);
}

} // namespace report_detail

std::string Form17::reportText() const
{
    using namespace report_detail;
    ReportText report;
    if (inEnglish()) {
        report.heading(*this, "Report Design", "Design :   Long Tail pair ");
        body(report, *this, sheets::differentialQuestions, adviceEnglish);
    } else {
        report.opening(*this, "Elaboración de Informe : Colector Común").empty();
        body(report, *this, questions, adviceSpanish);
    }
    return report.text();
}

} // namespace velmor::form17
