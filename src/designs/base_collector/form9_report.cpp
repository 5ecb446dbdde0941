// SPDX-License-Identifier: MIT
// The report of `Form9`: heading, four exercises, the reminder and the results, the two fields without use among them.
#include "designs/base_collector/form9.h"
#include "sheets/report_text.h"

namespace velmor::form9 {

using host::BiText;
using sheets::ReportRow;
using sheets::ReportText;

namespace report_detail {

struct Exercise {
    BiText heading{};
    BiText statement{};
    std::span<const std::string_view> data{};
};

// clang-format off
constexpr BiText title{"Elaboración de Informe", "Report Design"};
constexpr BiText design{"Parafase", "  Paraphase"};

constexpr std::string_view data1[] = {"S =  10 "};
constexpr std::string_view data2[] = {"Rg =  100 k °", "RLw = 1 K"};
constexpr std::string_view data3[] = {"Rlw  = 10 kohm"};
constexpr std::string_view data4[] = {"Rlw (Kohm) =  .1 kohm"};
constexpr Exercise exercises[] = {
    {{"Ejercicio N° 1 ", "Exercise N° 1 "},
     {"Realice un diseño con valores predeterminados y:", "Make a design with the predetermined values and:"}, data1},
    {{"Ejercicio N° 2 ", "Exercise N° 2 "},
     {"Compare la Hoja de Análisis con estos valores:", "Compare the Leaf of Analysis with these values:"}, data2},
    {{"Ejercicio N° 3 ", "Exercise N° 3 "},
     {"Eleve la tensión de fuente y observe la Zin:", "Elevate the source voltage and observe Zin:"}, data3},
    {{"Ejercicio N° 4 ", "Exercise N° 4 "},
     {"Explique que ocurre con una carga tan pequeña:", "Explain what happens with so small a load:"}, data4},
};
constexpr std::string_view spanishReminder[] = {
    "Recuerde salvar los resultados obtenidos para cada diseño en un archivo",
    "con el Editor de Textos",
};
constexpr std::string_view englishReminder[] = {
    "Remembers to save the results obtained for each design in a file report",
    "with the Text Editor  ",
};
constexpr BiText resultsHeading{"Resultados de diseño Parafase: ", "Result of Paraphase design: "};
constexpr ReportRow results[] = {
    {"%/\\Qic = ",     Text1},
    {"T (ºC) = ",      Text3},
    {"Qic (mA) = ",    Text18},
    {"RL = ",          Text15},
    {"Rlw (Kohm) = ",  Text9},
    {"Vg) = ",         Text11},
    {"Rb1 (kohm) = ",  Text17},
};
// clang-format on

} // namespace report_detail

std::string Form9::reportText() const
{
    using namespace report_detail;
    ReportText report;
    report.heading(*this, pick(title), pick(design));
    for (const Exercise& exercise : exercises)
        report.oneStep(pick(exercise.heading)).twoSteps(pick(exercise.statement)).tabs(exercise.data);
    report.tabs(inEnglish() ? std::span<const std::string_view>(englishReminder) : spanishReminder);
    report.oneStep(pick(resultsHeading)).rows(*this, results);
    return report.text();
}

} // namespace velmor::form9
