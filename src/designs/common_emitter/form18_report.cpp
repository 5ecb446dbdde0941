// SPDX-License-Identifier: MIT
// The report of `Form18`. The two languages differ in data, and the questionnaire is Spanish alone.
#include "designs/common_emitter/feedback_report.h"
#include "designs/common_emitter/form18.h"
#include "sheets/report_text.h"

namespace velmor::form18 {

using sheets::ReportRow;
using sheets::ReportText;

namespace report_detail {

// clang-format off
constexpr std::string_view spanishThird[]  = {"Rlw  =  0.4 kohm", "S = 10", "Vg = 140", "Rg = 0.5 K"};
constexpr std::string_view spanishFourth[] = {
    "Rlw (Kohm) = 1 kohm", "Vg = 140", "Rg = 0.5 K",
    "Encuentre la QIc mínima necesaria y aplique desacoplo para elevar la Zin...",
};

constexpr ReportRow firstRows[]      = {{"%/\\Qic = ", Text1}, {"T (ºC) = ", Text3}, {"/\\Vbe = ", Text4}};
constexpr ReportRow spanishCurrent[] = {{"QIc (obtenida) = ", Label26}, {"Qic (asignada en mA) = ", Text8}};
constexpr ReportRow englishCurrent[] = {{"QIc (obtained in A)= ", Label26}, {"Parameters of Qic (mA) = ", Text8}};
constexpr ReportRow designRows[] = {
    {"Rg = ", Text15}, {"Rlw (Kohm) = ", Text9}, {"S = ", Text10}, {"Vg = ", Text11}, {"RL (kohm) = ", Text17},
    {"Es (Volts) = ", Text16}, {"fo = ", Text12}, {"Eopp = ", Text13}, {"Beta (hFE) = ", Text2}, {"Ic (mA)= ", Text6},
    {"Si / Ge = ", Text7}, {"Rb1 (kohm) = ", Text19}, {"", Label23}, {"", statu32}, {"", Label22}, {"Cdp = ", stas},
};

constexpr std::string_view spanishQuestions[] = {
    "Conteste el siguiente cuestionario: ",
    "Que tensión cambia cuando modifica la Fuente de Alimentación..?",
    "Que parámetros definen la  estabilidad S..?",
    "A que parámetros influye los distintos valores de carga Rlw ..?",
    "A que parámetros influye elevar Vg ..?",
    "Por que cambia la corriente QIc al variar Rb2 ..?",
    "Como se obtiene mayor impedancia de entrada..?",
    "Cuales son las ventajas  y desventajas de utilizar circuitos",
    "realimentados por tensión, Estabilizado por base, respecto del No Estabilizado..?",
};
// clang-format on

void writeResults(ReportText& report, const Form18& sheet)
{
    report.rows(sheet, designRows);
    report.tab(sheet.text(Label25) + " = " + sheet.text(Text15) + " K ");
    report.tab(sheet.text(Label32) + " = " + sheet.text(Text18) + " K ").tab(sheet.text(Label21));
}

} // namespace report_detail

using namespace report_detail;

std::string Form18::reportText() const
{
    return inEnglish() ? englishReport() : spanishReport();
}

std::string Form18::englishReport() const
{
    ReportText report;
    report.heading(*this, "Report Design", "  Common Emitter, Feedback for Voltage, polarized for Base");
    writeEnglishStart(report);
    report.oneStep("Exercise N° 3 ").tabs(englishThird);
    report.oneStep("Exercise N° 4 ").tabs(englishFourth);
    report.tabs(englishClosing).oneStep(englishResults).rows(*this, firstRows).rows(*this, englishCurrent);
    writeResults(report, *this);
    return report.text();
}

std::string Form18::spanishReport() const
{
    ReportText report;
    report.heading(*this, "Elaboración de Informe",
                   "Emisor Común Realimentado p/ tensión, polarizado p/ Base, estabilizado");
    writeSpanishStart(report);
    report.oneStep("Ejercicio N° 3 ").tabs(spanishThird);
    report.oneStep("Ejercicio N° 4 ").tabs(spanishFourth);
    report.tabs(spanishClosing).oneStep(spanishResults).rows(*this, firstRows).rows(*this, spanishCurrent);
    writeResults(report, *this);
    return report.tabs(spanishQuestions).text();
}

} // namespace velmor::form18
