// SPDX-License-Identifier: MIT
// Exercises as lines of a report, and the reminder that closes them.
#include "designs/differential/exercises.h"

namespace velmor::differential {

namespace exercises_detail {

constexpr std::string_view english[] = {
    "Remembers to save the results obtained for each design in a file report",
    "with the Text Editor  ",
};
constexpr std::string_view spanish[] = {
    "Recuerde salvar los resultados obtenidos para cada diseño en un archivo",
    "con el Editor de Textos",
};

} // namespace exercises_detail

const Lines englishReminder = exercises_detail::english;
const Lines spanishReminder = exercises_detail::spanish;

void append(sheets::ReportText& report, std::span<const Exercise> exercises)
{
    for (const Exercise& exercise : exercises) {
        report.oneStep(exercise.heading);
        for (const std::string_view line : exercise.statement)
            report.twoSteps(line);
        report.tabs(exercise.data);
    }
}

} // namespace velmor::differential
