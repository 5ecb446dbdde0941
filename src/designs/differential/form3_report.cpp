// SPDX-License-Identifier: MIT
// The report of `Form3`: its lines in both languages. The English one has exercises, the Spanish one measurements to make.
#include "designs/differential/exercises.h"
#include "designs/differential/form3.h"
#include "sheets/report_text.h"

namespace velmor::form3 {

using sheets::ReportRow;
using sheets::ReportText;

namespace report {

// clang-format off
constexpr std::string_view statement1[] = {"Design the amplifier with the smallest change of the quiescent current",
                                           "and compare -Ebias with the one that 10 % asks for."};
constexpr std::string_view data1[]      = {"% deltaQic = 1", " deltaVbe = 3 mV"};
constexpr std::string_view statement2[] = {"Raise the temperature and explain what happens to -Ebias."};
constexpr std::string_view data2[]      = {"T (ºC) = 190 °"};
constexpr std::string_view statement3[] = {"Design for a heavier load and a higher gain. Which Qic is needed..?"};
constexpr std::string_view data3[]      = {"Rlw = 5 kohm", "S = 1", "Vg = 400"};
constexpr std::string_view statement4[] = {"Find the quiescent current that manages this load."};
constexpr std::string_view data4[]      = {"Rlw (Kohm) = 1 kohm", "Vg = 1000"};
constexpr std::string_view statement5[] = {"Double the output signal and see what Es and Ec(max) must be."};
constexpr std::string_view data5[]      = {"Eopp = 20 Vpp"};

constexpr differential::Exercise exercises[] = {
    {"Exercise N° 1 ", statement1, data1},
    {"Exercise N° 2 ", statement2, data2},
    {"Exercise N° 3 ", statement3, data3},
    {"Exercise N° 4 ", statement4, data4},
    {"Exercise N° 5 ", statement5, data5},
};

constexpr ReportRow transistorEnglish[] = {
    {"Ic(MA) = ",    Text3},
    {"Beta(hFE) = ", Text5},
    {"Si / Ge =",    Text4},
    {"Ec(Max) = ",   Text2},
};
constexpr ReportRow circuitEnglish[] = {
    {"% deltaQic =", Text1},
    {"T(ºC) = ",     Text6},
    {"deltaVbe =",   Text7},
    {"Rlw(kohm) = ", Text10},
    {"S = ",         Text11},
    {"Vg = ",        Text12},
    {"Fo = ",        Text13},
    {"Eopp = ",      Text14},
    {"Ein = ",       Text15, "Volt (r.m.s.)"},
};
constexpr ReportRow valuesEnglish[] = {
    {"Res = ",       Text16, " KOhms"},
    {"RL (kohm) = ", Text17},
    {"",             Label33},
    {"Es = ",        Text18, " Volt"},
    {"- Ebias = ",   Text8},
    {"",             Label28},
    {"",             Label30},
};
constexpr std::string_view questionsEnglish[] = {
    "That parameters define the voltage of stability ERes..?",
    "To that parameters influence the different load values Rlw..?",
    "To that parameters influence to elevate Vg..?",
    "To that parameters influence to rise -Ebias..?",
    "Why does twice the quiescent current flow in Res..?",
    "Which is the phase of each output when the signal enters for a single base..?",
    "Which the advantages are of measuring among the two Collectors..?",
};

constexpr ReportRow transistorSpanish[] = {
    {"Ic(mA) = ",    Text3},
    {"Beta(hFE) = ", Text5},
    {"Si / Ge = ",   Text4},
    {"Ec(Máx) = ",   Text2},
};
constexpr ReportRow circuitSpanish[] = {
    {"%/\\Qic = ",   Text1},
    {"T(ºC) = ",     Text6},
    {"/\\Vbe = ",    Text7},
    {"Rlw(Kohms) = ", Text10},
    {"S = ",         Text11},
    {"Vg = ",        Text12},
    {"Fo = ",        Text13},
    {"Eopp = ",      Text14},
    {"Ein = ",       Text15, " Volts (eficaz)"},
};
constexpr ReportRow valuesSpanish[] = {
    {"QIc = ", Text9, " mA"},
    {"",       Label28},
    {"",       Label32},
    {"",       Label30},
};
constexpr std::string_view questionsSpanish[] = {
    "Que parámetros definen la tensión de estabilidad ERes..?",
    "A que parámetros influye los distintos valores de carga RLw ..?",
    "A que parámetros influye elevar Vg ..?",
    "A que parámetros influye elevar -Ebias ..?",
    "Por qué circula por Res el doble de la corriente de reposo ..?",
    "Que ventajas tiene medir entre los dos colectores ..?",
};
constexpr std::string_view measurements[] = {
    "Impedancia de entrada: ",
    "Impedancia despues del capacitor de entrada: ",
    "Potencia del Generador: ",
    "Potencia a la Salida:  ",
    "Ganancia de Potencia en db: ",
    "Ganancia de Tensión en db: ",
    "Valor de Tensión Pico - Pico en modo Flotante: ",
};
// clang-format on

std::string english(const Form3& sheet)
{
    ReportText text;
    text.heading(sheet, "Report Design", "Design :   Long Tail pair ");
    differential::append(text, exercises);
    text.tabs(differential::englishReminder);
    text.oneStep("Results of the design of Differential Simple: ");
    text.oneStep("Parameters of the Transistor: ").rows(sheet, transistorEnglish);
    text.oneStep("Parameters of the Circuit: ").rows(sheet, circuitEnglish);
    text.oneStep(" Value obtained of the Circuit: ").rows(sheet, valuesEnglish);
    text.tab("Answers the following questionnaire: ").tabs(questionsEnglish);
    return text.text();
}

std::string spanish(const Form3& sheet)
{
    ReportText text;
    text.opening(sheet, "Elaboración de Informe : Diferencial Simple").empty();
    text.oneStep("Resultados del diseño de Diferencial Simple: ");
    text.oneStep("Parámetros del Transistor: ").rows(sheet, transistorSpanish);
    text.oneStep("Parámetros del Circuito: ").rows(sheet, circuitSpanish);
    text.oneStep("Valores obtenidos del Circuito: ").rows(sheet, valuesSpanish);
    text.tab("Conteste el siguiente cuestionario: ").tabs(questionsSpanish);
    text.tab("Realice las mediciones necesarias para completar los Items abajo mencionados: ").tabs(measurements);
    return text.text();
}

} // namespace report

std::string Form3::reportText() const
{
    return inEnglish() ? report::english(*this) : report::spanish(*this);
}

} // namespace velmor::form3
