// SPDX-License-Identifier: MIT
// The report of `desaco`: exercises, results and questions for the teacher. The gains of the exercises differ between the
// languages, and the Spanish text alone tells of the current obtained.
#include "designs/common_emitter/desaco.h"
#include "designs/common_emitter/emitter_report.h"

namespace velmor::desaco {

using namespace common_emitter; // NOLINT(google-build-using-namespace): the report of the family
using sheets::ReportText;

namespace report_detail {

std::string english(const Desaco& sheet)
{
    ReportText report;
    report.heading(sheet, "Report Design", "  Common Emitter, Feedback for Current, polarized for Emitter, Bypass");
    writeEnglishExercises(report, {.thirdGain = "Vg =  55", .fourthGain = "Vg = 200"});
    report.oneStep("Result of Bypass design: ");
    report.rows(sheet, designRows<Control>("Vg = ")).rows(sheet, englishResults<Control>);
    return report.tabs(englishQuestions).text();
}

std::string spanish(const Desaco& sheet)
{
    ReportText report;
    report.heading(sheet, "Elaboración de Informe Desacoplado",
                   "Emisor Común Realimentado p/ corriente, polarizado p/ Base Totalmente Desacoplado");
    writeSpanishExercises(report, {.thirdGain = "Vg =  200", .fourthGain = "Vg = 350"});
    report.oneStep("Resultados de diseño Desacoplado: ");
    report.tab("Corriente Qic obtenida (calibrando Rb1)= " + sheet.text(Label24));
    if (farFromObtained(sheet.at(Text8), sheet.quantities().QIcCheck))
        askForTheDesignAgain(report, dependsOnCurrentMisprinted);
    report.rows(sheet, designRows<Control>("Vg = ")).rows(sheet, spanishResults<Control>);
    return report.tabs(spanishQuestions).text();
}

} // namespace report_detail

std::string Desaco::reportText() const
{
    return inEnglish() ? report_detail::english(*this) : report_detail::spanish(*this);
}

} // namespace velmor::desaco
