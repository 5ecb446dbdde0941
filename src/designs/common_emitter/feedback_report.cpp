// SPDX-License-Identifier: MIT
// The first exercises of the two sheets fed back by voltage.
#include "designs/common_emitter/feedback_report.h"

namespace velmor::feedback {

void writeEnglishStart(sheets::ReportText& report)
{
    report.oneStep("Exercise N° 1 ").twoSteps("Make a design with predetermined data : ");
    report.twoSteps("with Rg higher and lower than Zin, then with Bootstrapping... ");
    report.oneStep("Exercise N° 2 ").twoSteps("Make a design with the following data : ").tabs(englishSecond);
}

void writeSpanishStart(sheets::ReportText& report)
{
    report.oneStep("Ejercicio N° 1 ").twoSteps("Realice un diseño con datos predeterminados: ");
    report.twoSteps("con Rg mayor y menor que Zin, luego con Bootstrapping... ");
    report.oneStep("Ejercicio N° 2 ").twoSteps("Realice un diseño con los siguientes datos : ").tabs(spanishSecond);
}

} // namespace velmor::feedback
