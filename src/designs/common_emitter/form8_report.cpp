// SPDX-License-Identifier: MIT
// The report of `Form8`. The two languages differ in data and order, as the course's exercises do.
#include "designs/common_emitter/emitter_report.h"
#include "designs/common_emitter/feedback_report.h"
#include "designs/common_emitter/form8.h"
#include "sheets/report_text.h"

namespace velmor::form8 {

using sheets::ReportRow;
using sheets::ReportText;

namespace report_detail {

// clang-format off
constexpr std::string_view spanishAdvice[] = {
    "Es aconsejable para comparar resultados entre ejercicios",
    "abrir el Editor de Informes para un ejercicio y",
    "el Editor de Textos para otro ejercicio...",
};
constexpr std::string_view spanishThird[]  = {"Rlw  =  0.4 kohm", "S = 10", "Vg = 140", "Rg = 0.6 K"};
constexpr std::string_view spanishFourth[] = {"Rlw (Kohm) =  1 kohm", " S = 1", "Vg = 240"};

constexpr ReportRow firstRows[] = {
    {"%/\\Qic = ", Text1}, {"T (ºC) = ", Text3}, {"/\\Vbe = ", Text4}, {"Qic (mA) = ", Text8}, {"Rg = ", Text15},
    {"Rlw (Kohm) = ", Text9}, {"S = ", Text10}, {"Vg = ", Text11},
};
constexpr ReportRow spanishRows[] = {
    {"RL (kohm) = ", Text17}, {"Es (Volts) = ", Text16}, {"fo = ", Text12}, {"Eopp = ", Text13}, {"Beta (hFE) = ", Text2},
    {"Ic (mA)= ", Text6}, {"Si / Ge = ", Text7}, {"Rb1 (kohm) = ", Text19},
};
constexpr ReportRow englishRows[] = {
    {"Rb1 (kohm) = ", Text19}, {"Es (Volt) = ", Text16}, {"fo = ", Text12}, {"Eopp = ", Text13}, {"Beta (hFE) = ", Text2},
    {"Ic (mA)= ", Text6}, {"Si / Ge = ", Text7}, {"RL (kohm) = ", Text17},
};
constexpr ReportRow resultRows[] = {{"", Label23}, {"", statu32}, {"", Label22}, {"Cdp = ", stas}};

constexpr std::string_view spanishQuestions[] = {
    "Conteste el siguiente cuestionario: ",
    "Que parámetros definen la  estabilidad S..?",
    "A que parámetros influye los distintos valores de carga Rlw ..?",
    "A que parámetros influye elevar Vg ..?",
    "Que tensión cambia cuando modifica la Fuente de Alimentación..?",
    "Mencione y justifique cuales son las tensiones que influyen en el recorte de la señal..?",
    "Como se obtiene mayor impedancia de entrada..?",
    "Cuales son las ventajas  y desventajas de utilizar circuitos",
    "realimentados por tensión ..?",
};
// clang-format on

void writeResults(ReportText& report, const Form8& sheet)
{
    report.rows(sheet, resultRows);
    report.tab(sheet.text(Label25) + " = " + sheet.text(Text15) + " K ").tab(sheet.text(Label21));
}

} // namespace report_detail

using namespace report_detail;

std::string Form8::reportText() const
{
    return inEnglish() ? englishReport() : spanishReport();
}

std::string Form8::englishReport() const
{
    ReportText report;
    report.heading(*this, "Report Design", "  Common Emitter, Feedback for Voltage, polarized for Base");
    writeEnglishStart(report);
    report.oneStep("Exercise N° 3 ").tabs(englishThird);
    report.oneStep("Exercise N° 4 ").tabs(englishFourth);
    report.tabs(englishClosing).oneStep(englishResults).rows(*this, firstRows).rows(*this, englishRows);
    writeResults(report, *this);
    // Those of the sheets stabilised by current, as far as they fit: the last one ends in the middle.
    const std::span questions = common_emitter::englishQuestions;
    return report.tabs(questions.first(questions.size() - 1)).text();
}

std::string Form8::spanishReport() const
{
    ReportText report;
    report.heading(*this, "Elaboración de Informe", "Emisor Común Realimentado p/ tensión, polarizado p/ Base");
    report.tabs(spanishAdvice);
    writeSpanishStart(report);
    report.oneStep("Ejercicio N° 3 ").tabs(spanishThird);
    report.oneStep("Ejercicio N° 4 ").tabs(spanishFourth);
    report.tabs(spanishClosing).oneStep(spanishResults).rows(*this, firstRows).rows(*this, spanishRows);
    writeResults(report, *this);
    return report.tabs(spanishQuestions).text();
}

} // namespace velmor::form8
