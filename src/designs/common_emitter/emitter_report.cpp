// SPDX-License-Identifier: MIT
// The exercises and questions; misprints are the course's, and the two languages differ in more than their words.
#include "designs/common_emitter/emitter_report.h"

namespace velmor::common_emitter {

using sheets::ReportText;

namespace report_detail {

// clang-format off
constexpr std::string_view dataOfTheSecond[] = {"%/\\Qic =  1 ", "T (ºC) =  90 °", "/\\Vbe = 3 mV"};

constexpr std::string_view questionsInEnglish[] = {
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
constexpr std::string_view questionsInSpanish[] = {
    "Conteste el siguiente cuestionario: ",
    "Que parámetros definen la tensión de estabilidad Eres..?",
    "A que parámetros influye los distintos valores de carga Rlw ..?",
    "A que parámetros influye elevar Vg ..?",
    "A que parámetros influye elevar ERes ..?",
    "Mencione y justifique cuales son las tensiones que influyen en el recorte de la señal..?",
    "Como se obtiene mayor impedancia de entrada..?",
    "Cuales son las ventajas  y desventajas de utilizar circuitos desacoplados ..?",
    "Cuales son las ventajas  y desventajas de utilizar circuitos polarizados por Emisor ..?",
    moveOnToParaphase,
};
constexpr std::string_view repeatDesign[] = {
    "El valor de corriente obtenido con el ajuste de Rb1",
    "NO es igual a la Qic deseada, por favor, Realícelo nuevamente ",
};
// clang-format on

} // namespace report_detail

using namespace report_detail;

const std::span<const std::string_view> secondData = dataOfTheSecond;
const std::span<const std::string_view> englishQuestions = questionsInEnglish;
const std::span<const std::string_view> spanishQuestions = questionsInSpanish;

void writeEnglishExercises(ReportText& report, const Exercises& exercises)
{
    report.oneStep("Exercise N° 1 ").twoSteps("Make a design with predetermined data : ");
    if (!exercises.first.empty())
        report.twoSteps(exercises.first);
    report.oneStep("Exercise N° 2 ").twoSteps("Make a design with the following data : ").tabs(secondData);
    report.oneStep("Exercise N° 3 ").tab("Rlw  =  2 kohm").tab("S = 1").tab(exercises.thirdGain);
    report.oneStep("Exercise N° 4 ").tab(exercises.fourthLoad).tab(" S = 1").tab(exercises.fourthGain);
}

void writeSpanishExercises(ReportText& report, const Exercises& exercises)
{
    report.oneStep("Ejercicio N° 1 ").twoSteps("Realice un diseño con datos predeterminados: ");
    if (!exercises.first.empty())
        report.twoSteps(exercises.first);
    report.oneStep("Ejercicio N° 2 ").twoSteps("Realice un diseño con los siguientes datos : ").tabs(secondData);
    report.oneStep("Ejercicio N° 3 ").tab("Rlw  =  2 kohm").tab("S = 1").tab(exercises.thirdGain);
    report.tab("Copie y Pegue cada uno de los resultados obtenidos en un archivo ...");
    report.oneStep("Ejercicio N° 4 ").tab(exercises.fourthLoad).tab(" S = 1").tab(exercises.fourthGain);
}

void askForTheDesignAgain(ReportText& report, std::string_view lastLine)
{
    report.tabs(repeatDesign).tab(lastLine);
}

bool farFromObtained(rules::Real designed, rules::Real obtained)
{
    const rules::Real band = obtained * 10.0 / 100.0;
    return designed > obtained + band || designed < obtained - band;
}

} // namespace velmor::common_emitter
