// SPDX-License-Identifier: MIT
// The report of `Form4`: exercises, results and questions for the teacher. The English text gives the current as designed, the
// Spanish one as it was obtained with the preset.
#include "designs/base_collector/form4.h"
#include "sheets/report_text.h"

namespace velmor::form4 {

using host::BiText;
using sheets::ReportRow;
using sheets::ReportText;

namespace report_detail {

// clang-format off
constexpr BiText title{"Elaboración de Informe", "Report Design"};
constexpr BiText design{"Base Común Realimentado p/ corriente, polarizado p/ Base",
                        "  Common Base, Feedback for Current, polarized for Base"};
constexpr BiText exercise[] = {
    {"Ejercicio N° 1 ", "Exercise N° 1 "},
    {"Ejercicio N° 2 ", "Exercise N° 2 "},
    {"Ejercicio N° 3 ", "Exercise N° 3 "},
    {"Ejercicio N° 4 ", "Exercise N° 4 "},
};
constexpr BiText predetermined{"Realice un diseño con datos predeterminados: ", "Make a design with predetermined data : "};
constexpr BiText varyRb1{"Luego varíe Rb1 hasta obtener la corriente Qic según Parámetros circuitales... ",
                         "Then it varied Rb1 until obtaining the current Qic according to Circuit  Parameters... "};
constexpr BiText following{"Realice un diseño con los siguientes datos : ", "Make a design with the following data : "};
constexpr std::string_view secondData[] = {"%/\\Qic =  1 ", "T (ºC) =  90 °", "/\\Vbe = 3 mV"};
constexpr std::string_view thirdData[]  = {"Rlw  =  2 kohm", "S = 1", "Vg =  140"};
constexpr std::string_view fourthData[] = {"Rlw  =  2 kohm", "S = 1", "Vg = 240"};
constexpr std::string_view spanishReminder[] = {
    "Recuerde salvar los resultados obtenidos para cada diseño en un archivo",
    "con el Editor de Textos",
};
constexpr std::string_view englishReminder[] = {
    "Remembers to save the results obtained for each design in a file report",
    "with the Text Editor  ",
};
constexpr BiText results{"Resultados obtenidos", "Results of design: "};
constexpr ReportRow currentDesigned[] = {{"Qic (mA) = ", Text8}};
constexpr ReportRow currentObtained[] = {{"QIc = ", Label2}};
constexpr ReportRow rows[] = {
    {"Rl = ", Text15},           {"Rlw (Kohm) = ", Text9}, {"S = ", Text10},     {"Vg) = ", Text11},    {"Rb1 (kohm) = ", Text17},
    {"Rb2 (kohm) = ", Text16},   {"fo = ", Text12},        {"Eopp = ", Text13},  {"Es = ", Text20},
    {"Beta (hFE) = ", Text2},    {"Ic (mA)= ", Text6},     {"Si / Ge = ", Text7}, {"Res (kohm) = ", Text18},
    {"", Label23},               {"", Label20},            {"", Label22},
};
constexpr std::string_view englishQuestions[] = {
    "Answer the following questionnaire : ",
    "That parameters define the voltage of stability, ERes..?",
    "To that parameters influence the different load values Rlw..?",
    "To that parameters influence to elevate Vg..?",
    "To that parameters influence to rise ERes..?",
    "Does you mention and do justify which voltage  influence in the cutting off the output sign Eopp..?",
    "On what does the entrance impedance of the Common Base depend..?",
    "How many times bigger is the entrance impedance of the circuit Emitter Bypass..?",
    "That happens with the phase of the output sign in each of both connections..?",
    "Which the advantages and disadvantages are of using circuits Common Base..?",
};
constexpr std::string_view spanishQuestions[] = {
    "Conteste el siguiente cuestionario: ",
    "Que parámetros definen la tensión de estabilidad Eres..?",
    "A que parámetros influye los distintos valores de carga Rlw ..?",
    "A que parámetros influye elevar Vg ..?",
    "A que parámetros influye elevar ERes ..?",
    "Mencione y justifique cuales son las tensiones que influyen en el recorte de la señal..?",
    "De que depende la impedancia de entrada en Base Común..?",
    "Cuantas veces mayor es la impedancia de entrada con Emisor Desacoplado..?",
    "Que sucede con la fase de la señal de salida en cada una de las conexiones..?",
    "Cuales son las ventajas  y desventajas de utilizar circuitos Base Común ..?",
};
// clang-format on

} // namespace report_detail

std::string Form4::reportText() const
{
    using namespace report_detail;
    ReportText report;
    report.heading(*this, pick(title), pick(design));
    report.oneStep(pick(exercise[0])).twoSteps(pick(predetermined)).twoSteps(pick(varyRb1));
    report.oneStep(pick(exercise[1])).twoSteps(pick(following)).tabs(secondData);
    report.oneStep(pick(exercise[2])).tabs(thirdData);
    report.oneStep(pick(exercise[3])).tabs(fourthData);
    report.tabs(inEnglish() ? englishReminder : spanishReminder);
    report.oneStep(pick(results));
    report.rows(*this, inEnglish() ? currentDesigned : currentObtained).rows(*this, rows);
    report.tabs(inEnglish() ? englishQuestions : spanishQuestions);
    return report.text();
}

} // namespace velmor::form4
