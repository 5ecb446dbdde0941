// SPDX-License-Identifier: MIT
// The report of the template sheet: heading, one exercise, the reminder, the results and a question.
#include "sheets/report_text.h"
#include "sheets/template_sheet.h"

namespace velmor::template_sheet {

using host::BiText;
using sheets::ReportRow;
using sheets::ReportText;

namespace report_detail {

// clang-format off
constexpr BiText title{"Elaboración de Informe", "Report Design"};
constexpr BiText design{"Resistor de carga", "  Load resistor"};
constexpr BiText exercise{"Ejercicio N° 1 ", "Exercise N° 1 "};
constexpr BiText statement{"Diseñe la carga de un transistor con los siguientes datos:",
                           "Design the load of a transistor with these data:"};
constexpr std::string_view data[] = {"Es =  12 V ", "Qic =  10 mA "};
constexpr std::string_view spanishReminder[] = {
    "Recuerde salvar los resultados obtenidos para cada diseño en un archivo",
    "con el Editor de Textos",
};
constexpr std::string_view englishReminder[] = {
    "Remembers to save the results obtained for each design in a file report",
    "with the Text Editor  ",
};
constexpr BiText results{"Resultados de diseño: ", "Result of design: "};
constexpr ReportRow rows[] = {
    {"Es = ", Text1, " V"}, {"T (ºC) = ", Text2}, {"Qic = ", Text3}, {"Eq = ", Text4}, {"RL = ", RL}, {"ERL = ", ERL},
};
constexpr BiText question{"¿Qué ocurre con RL cuando aumenta QIc..?", "What happens to RL when QIc grows..?"};
// clang-format on

} // namespace report_detail

std::string TemplateSheet::reportText() const
{
    using namespace report_detail;
    const bool english = host().values().LanguageIsEnglish == host::trueValue;
    ReportText report;
    report.heading(*this, pick(title), pick(design));
    report.oneStep(pick(exercise)).twoSteps(pick(statement)).tabs(data);
    report.tabs(english ? englishReminder : spanishReminder);
    report.oneStep(pick(results)).rows(*this, rows);
    report.tab(pick(question));
    return report.text();
}

} // namespace velmor::template_sheet
