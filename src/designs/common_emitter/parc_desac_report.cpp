// SPDX-License-Identifier: MIT
// The report of `ParcDesac`. The Spanish exercises are partly English and mistyped; the English text is written and never handed
// over (see `ParcDesac::clickReport`).
#include "designs/common_emitter/emitter_report.h"
#include "designs/common_emitter/parc_desac.h"

namespace velmor::parc_desac {

using namespace common_emitter; // NOLINT(google-build-using-namespace): the report of the family
using sheets::ReportText;

namespace report_detail {

constexpr std::string_view questions[] = {
    "Conteste el siguiente cuestionario: ",
    "A que parámetros influye elevar Res sin desacoplar..?",
    "Cuales son las ventajas  y desventajas de utilizar circuitos parcialmente desacoplados ..?",
    moveOnToParaphase,
};

std::string english(const ParcDesac& sheet)
{
    ReportText report;
    report.heading(sheet, "Report Design", "  Common Emitter, Feedback for Current, polarized for Base, Bypass");
    writeEnglishExercises(
        report, {.first = "Then it varied Rb1 until obtaining the current Qic according to Circuit  Parameters... ",
                 .thirdGain = "Vg =  55",
                 .fourthGain = "Vg = 200"});
    report.oneStep("Result of Bypass design: ");
    report.rows(sheet, designRows<Controls>("Vg = ")).rows(sheet, englishResults<Controls>);
    return report.tabs(englishQuestions).text();
}

void writeMistypedExercises(ReportText& report)
{
    report.oneStep("Ejercicio N° 1 ").twoSteps("Realice un ejercicio con valores predeterminados: ");
    report.twoSteps("Then it varied Rb1 until obtaining the current Qic according to Circuit  Parameteri... ");
    report.oneStep("Exerciie N° 2 ").twoSteps("Make a deiign with the following data : ").tabs(secondData);
    report.oneStep("Exerciie N° 3 ").tab("Rlw  =  2 kohm").tab("S = 1").tab("Vg =  55");
    report.oneStep("Exercise N° 4 ").tab("Rlw (Kohm) =  1 kohm").tab(" S = 1").tab("Vg = 200");
}

std::string spanish(const ParcDesac& sheet)
{
    ReportText report;
    report.opening(sheet, "Elaboración de Informe Parcialmente Desacoplado");
    if (farFromObtained(sheet.at(Text8), sheet.quantities().QIcCheck))
        askForTheDesignAgain(report, dependsOnCurrentMisprinted);
    writeMistypedExercises(report);
    report.oneStep("Resultados de diseño Desacoplado: ");
    report.tab("Corriente Qic obtenida (calibrando Rb1)= " + sheet.text(Label24));
    report.rows(sheet, designRows<Controls>("Vg = ")).rows(sheet, spanishResults<Controls>);
    return report.tabs(questions).text();
}

} // namespace report_detail

std::string ParcDesac::reportText() const
{
    return inEnglish() ? report_detail::english(*this) : report_detail::spanish(*this);
}

} // namespace velmor::parc_desac
