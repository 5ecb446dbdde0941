// SPDX-License-Identifier: MIT
// The report of `Form2`: exercises, results and questions for the teacher. The circuit is read from `Text21` and `image2`, and
// the two languages differ in more than their words.
#include "designs/common_emitter/emitter_report.h"
#include "designs/common_emitter/form2.h"

namespace velmor::form2 {

using namespace common_emitter; // NOLINT(google-build-using-namespace): the report of the family
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
    common_emitter::Exercises exercises;
    std::string_view results;
};

// clang-format off
constexpr CircuitTexts english[] = {
    {"Report Design", "  Common Emitter, Feedback for Current, polarized for Base",
     {.first = "Then it varied Rb1 until obtaining the current Qic according to Circuit  Parameters... ",
      .thirdGain = "Vg =  2", .fourthGain = "Vg = 200"},
     "Result of polarized by Base design without Bypass: "},
    {"Report Design", "  Common Emitter, Feedback for Current, polarized for Base, Bypass",
     {.thirdGain = "Vg =  55", .fourthGain = "Vg = 200"}, "Result of Bypass design: "},
    {"Report Design", "  Common Emitter, Feedback for Current, polarized for Emitter, Bypass",
     {.thirdGain = "Vg =  55", .fourthGain = "Vg = 200"}, "Result of  Bypass polarized by Emitter design: "},
};
constexpr CircuitTexts spanish[] = {
    {"Elaboración de Informe", "Emisor Común Realimentado p/ corriente, polarizado p/ Base",
     {.first = "Luego varíe Rb1 hasta obtener la corriente Qic según Parámetros circuitales... ",
      .thirdGain = "Vg =  2", .fourthGain = "Vg = 10"},
     "Resultados de diseño polarizado por Base s/desacoplar: "},
    {"Elaboración de Informe Desacoplado", "Emisor Común Realimentado p/ corriente, polarizado p/ Base Totalmente Desacoplado",
     {.thirdGain = "Vg =  200", .fourthGain = "Vg = 350"}, "Resultados de diseño Desacoplado: "},
    {"Elaboración de Informe", "Emisor Común Realimentado p/ corriente, polarizado p/ Emisor, totalmente desacoplado",
     {.first = "Luego Comience otro cambiando valores de fuente de alimentación ó  valores de Res y observe resultados ... ",
      .thirdGain = "Vg = 300", .fourthLoad = "Rlw (Kohm) =  2 kohm", .fourthGain = "Vg = 20"},
     "Resultados de diseño Polarizado por Emisor desacoplado: "},
};

constexpr std::string_view englishClosing[] = {
    " Arrives at the end of the exercises assigning predetermined  and normalized values.",
    " Remembers to save the results in a file with the Text Editor",
};
constexpr std::string_view spanishClosing[] = {
    "Llegue al final de los ejercicios asignando valores predeterminados y normalizados.",
    "Recuerde salvar los resultados obtenidos para cada diseño en un archivo",
    "con el Editor de Textos",
};
// clang-format on

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
        if (farFromObtained(designed, obtained))
            askForTheDesignAgain(report, dependsOnCurrentMisprinted);
    } else if (circuit == base) {
        report.tab("Corriente Qic = " + sheet.text(Label24)).tab("ERes = " + sheet.text(VRes));
        // The band stands the wrong way round, so that nearly every report asks for the design again.
        if (designed > low || designed < high)
            askForTheDesignAgain(report,
                                 "Tenga en cuenta que los valores de tensiones y resistencias dependen de Qic... ");
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
        writeEnglishExercises(report, english[circuit].exercises);
    }
    report.tabs(englishClosing);
    if (circuit != unknown)
        report.oneStep(english[circuit].results);
    return report.rows(*this, designRows<Control>("Vg) = "))
        .rows(*this, englishResults<Control>)
        .tabs(englishQuestions)
        .text();
}

std::string Form2::spanishReport() const
{
    const Circuit circuit = circuitOf(*this);
    ReportText report;
    if (circuit != unknown) {
        report.heading(*this, spanish[circuit].title, spanish[circuit].design);
        writeSpanishExercises(report, spanish[circuit].exercises);
    }
    report.tabs(spanishClosing);
    if (circuit != unknown) {
        report.oneStep(spanish[circuit].results);
        writeSpanishCurrent(report, *this, circuit, q_.QIcCheck);
    }
    return report.rows(*this, designRows<Control>("Vg) = "))
        .rows(*this, spanishResults<Control>)
        .tabs(spanishQuestions)
        .text();
}

} // namespace velmor::form2
