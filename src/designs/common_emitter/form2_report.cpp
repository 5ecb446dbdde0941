// SPDX-License-Identifier: MIT
// The report of `Form2`: exercises, results and questions for the teacher. The circuit is read from `Text21` and `image2`, and
// the two languages differ in more than their words.
#include "designs/common_emitter/form2.h"
#include "sheets/report_text.h"

namespace velmor::form2 {

using host::noControl;
using sheets::ReportRow;
using sheets::ReportText;

namespace report_detail {

/// Which circuit a report speaks of.
enum Circuit : std::uint8_t { base, baseBypassed, emitter, unknown };

Circuit circuitOf(const Form2& sheet)
{
    if (sheet.visible(Text21))
        return sheet.visible(Image2) ? emitter : unknown;
    return sheet.visible(Image2) ? baseBypassed : base;
}

/// What differs from circuit to circuit; columns base, base bypassed, emitter.
struct CircuitTexts {
    std::string_view title;
    std::string_view design;
    std::string_view thirdGain;
    std::string_view fourthLoad;
    std::string_view fourthGain;
    std::string_view results;
};

// clang-format off
constexpr CircuitTexts english[] = {
    {"Report Design", "  Common Emitter, Feedback for Current, polarized for Base",
     "Vg =  2",  "Rlw (Kohm) =  1 kohm", "Vg = 200", "Result of polarized by Base design without Bypass: "},
    {"Report Design", "  Common Emitter, Feedback for Current, polarized for Base, Bypass",
     "Vg =  55", "Rlw (Kohm) =  1 kohm", "Vg = 200", "Result of Bypass design: "},
    {"Report Design", "  Common Emitter, Feedback for Current, polarized for Emitter, Bypass",
     "Vg =  55", "Rlw (Kohm) =  1 kohm", "Vg = 200", "Result of  Bypass polarized by Emitter design: "},
};
constexpr CircuitTexts spanish[] = {
    {"Elaboración de Informe", "Emisor Común Realimentado p/ corriente, polarizado p/ Base",
     "Vg =  2",   "Rlw (Kohm) =  1 kohm", "Vg = 10",  "Resultados de diseño polarizado por Base s/desacoplar: "},
    {"Elaboración de Informe Desacoplado", "Emisor Común Realimentado p/ corriente, polarizado p/ Base Totalmente Desacoplado",
     "Vg =  200", "Rlw (Kohm) =  1 kohm", "Vg = 350", "Resultados de diseño Desacoplado: "},
    {"Elaboración de Informe", "Emisor Común Realimentado p/ corriente, polarizado p/ Emisor, totalmente desacoplado",
     "Vg = 300",  "Rlw (Kohm) =  2 kohm", "Vg = 20",  "Resultados de diseño Polarizado por Emisor desacoplado: "},
};

constexpr std::string_view secondData[] = {"%/\\Qic =  1 ", "T (ºC) =  90 °", "/\\Vbe = 3 mV"};

constexpr ReportRow designRows[] = {
    {"%/\\Qic = ", Text1},      {"T (ºC) = ", Text3},     {"/\\Vbe = ", Text4},   {"Qic (mA) = ", Text8}, {"Res = ", Text15},
    {"Rlw (Kohm) = ", Text9},   {"S = ", Text10},         {"Vg) = ", Text11},     {"RL (kohm) = ", Text17}, {"fo = ", Text12},
    {"Eopp = ", Text13},        {"Es = ", Text16},        {"Beta (hFE) = ", Text2}, {"Ic (mA)= ", Text6}, {"Si / Ge = ", Text7},
    {"Rb2 (kohm) = ", Text18},  {"Rb1 (kohm) = ", Text19},
};
constexpr ReportRow englishResults[] = {{"", Text21}, {"Current Qic = ", Label24}, {"", statu25}, {"ERes = ", VRes}, {"ERL = ", ER}};
constexpr ReportRow spanishResults[] = {{"", statu25}, {"ERL = ", ER}};

constexpr std::string_view englishClosing[] = {
    " Arrives at the end of the exercises assigning predetermined  and normalized values.",
    " Remembers to save the results in a file with the Text Editor",
};
constexpr std::string_view spanishClosing[] = {
    "Llegue al final de los ejercicios asignando valores predeterminados y normalizados.",
    "Recuerde salvar los resultados obtenidos para cada diseño en un archivo",
    "con el Editor de Textos",
};
constexpr std::string_view englishQuestions[] = {
    "Answer the following questionnaire : ",
    "That parameters define the voltage of stability, ERes..?",
    "To that parameters influence the different load values Rlw..?",
    "To that parameters influence to elevate Vg..?",
    "To that parameters influence to rise ERes..?",
    "Does you mention and do justify which voltage  influence ",
    "in the cutting off the output sign Eopp..?",
    "Like bigger entrance impedance is obtained..?",
    "Which the advantages and disadvantages are of using ",
    "circuits Bypass..?",
    "Which the advantages and disadvantages are of using circuits",
    "polarized by Emitter..?",
};
constexpr std::string_view spanishQuestions[] = {
    "Conteste el siguiente cuestionario: ",
    "Que parámetros definen la tensión de estabilidad Eres..?",
    "A que parámetros influye los distintos valores de carga Rlw ..?",
    "A que parámetros influye elevar Vg ..?",
    "A que parámetros influye elevar ERes ..?",
    "Mencione y justifique cuales son las tensiones que influyen en el recorte de la señal..?",
    "Como se obtiene mayor impedancia de entrada..?",
    "Cuales son las ventajas  y desventajas de utilizar circuitos desacoplados ..?",
    "Cuales son las ventajas  y desventajas de utilizar circuitos polarizados por Emisor ..?",
    "Aconsejo continuar con el diseño de Inversor de Fase",
};
constexpr std::string_view repeatDesign[] = {
    "El valor de corriente obtenido con el ajuste de Rb1",
    "NO es igual a la Qic deseada, por favor, Realícelo nuevamente ",
};
// clang-format on

void writeEnglishExercises(ReportText& report, Circuit circuit)
{
    report.oneStep("Exercise N° 1 ").twoSteps("Make a design with predetermined data : ");
    if (circuit == base)
        report.twoSteps("Then it varied Rb1 until obtaining the current Qic according to Circuit  Parameters... ");
    report.oneStep("Exercise N° 2 ").twoSteps("Make a design with the following data : ").tabs(secondData);
    report.oneStep("Exercise N° 3 ").tab("Rlw  =  2 kohm").tab("S = 1").tab(english[circuit].thirdGain);
    report.oneStep("Exercise N° 4 ").tab(english[circuit].fourthLoad).tab(" S = 1").tab(english[circuit].fourthGain);
}

void writeSpanishExercises(ReportText& report, Circuit circuit)
{
    report.oneStep("Ejercicio N° 1 ").twoSteps("Realice un diseño con datos predeterminados: ");
    if (circuit == base)
        report.twoSteps("Luego varíe Rb1 hasta obtener la corriente Qic según Parámetros circuitales... ");
    if (circuit == emitter)
        report.twoSteps("Luego Comience otro cambiando valores de fuente de alimentación ó  valores de Res y observe "
                        "resultados ... ");
    report.oneStep("Ejercicio N° 2 ").twoSteps("Realice un diseño con los siguientes datos : ").tabs(secondData);
    report.oneStep("Ejercicio N° 3 ").tab("Rlw  =  2 kohm").tab("S = 1").tab(spanish[circuit].thirdGain);
    report.tab("Copie y Pegue cada uno de los resultados obtenidos en un archivo ...");
    report.oneStep("Ejercicio N° 4 ").tab(spanish[circuit].fourthLoad).tab(" S = 1").tab(spanish[circuit].fourthGain);
}

/// What the Spanish text adds under the heading of the results.
void writeSpanishCurrent(ReportText& report, const Form2& sheet, Circuit circuit, Real obtained)
{
    const Real designed = sheet.at(Text8);
    const Real low = obtained - obtained * 10.0 / 100.0;
    const Real high = obtained + obtained * 10.0 / 100.0;
    if (circuit == emitter) {
        report.tab(sheet.text(Text21));
    } else if (circuit == baseBypassed) {
        report.tab("Corriente Qic obtenida (calibrando Rb1)= " + sheet.text(Label24));
        if (designed > high || designed < low)
            report.tabs(repeatDesign)
                .tab("Tenga en cuenta qu los valores de tensiones y resistencias dependen de Qic... ");
    } else if (circuit == base) {
        report.tab("Corriente Qic = " + sheet.text(Label24)).tab("ERes = " + sheet.text(VRes));
        // The band stands the wrong way round, so that nearly every report asks for the design again.
        if (designed > low || designed < high)
            report.tabs(repeatDesign)
                .tab("Tenga en cuenta que los valores de tensiones y resistencias dependen de Qic... ");
    }
}

} // namespace report_detail

using namespace report_detail;

std::string Form2::reportText() const
{
    return inEnglish() ? englishReport() : spanishReport();
}

std::string Form2::englishReport() const
{
    const Circuit circuit = circuitOf(*this);
    ReportText report;
    if (circuit == unknown) {
        report.opening(*this, english[base].title);
    } else {
        report.heading(*this, english[circuit].title, english[circuit].design);
        writeEnglishExercises(report, circuit);
    }
    report.tabs(englishClosing);
    if (circuit != unknown)
        report.oneStep(english[circuit].results);
    return report.rows(*this, designRows).rows(*this, englishResults).tabs(englishQuestions).text();
}

std::string Form2::spanishReport() const
{
    const Circuit circuit = circuitOf(*this);
    ReportText report;
    if (circuit != unknown) {
        report.heading(*this, spanish[circuit].title, spanish[circuit].design);
        writeSpanishExercises(report, circuit);
    }
    report.tabs(spanishClosing);
    if (circuit != unknown) {
        report.oneStep(spanish[circuit].results);
        writeSpanishCurrent(report, *this, circuit, q_.QIcCheck);
    }
    return report.rows(*this, designRows).rows(*this, spanishResults).tabs(spanishQuestions).text();
}

} // namespace velmor::form2
