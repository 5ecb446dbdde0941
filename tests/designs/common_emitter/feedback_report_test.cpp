// SPDX-License-Identifier: MIT
// The reports of the sheets fed back by voltage, line by line: both languages, before and after a design.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "designs/common_emitter/feedback_program.h"

namespace velmor::feedback_report_test {

constexpr std::int16_t spanish = 0;
constexpr std::int16_t english = host::trueValue;

/// The lines of a report, "|" for an indent of eight blanks and "-" for a tab.
std::string drawn(const std::string& report)
{
    std::string text;
    std::size_t start = 0;
    for (std::size_t end = report.find("\r\n"); end != std::string::npos; end = report.find("\r\n", start)) {
        std::string line = report.substr(start, end - start);
        while (line.starts_with("        ")) {
            text += '|';
            line.erase(0, 8);
        }
        if (line.starts_with('\t'))
            line.replace(0, 1, "-");
        text.append(line).append("\n");
        start = end + 2;
    }
    EXPECT_EQ(start, report.size()) << "the last line has no line end";
    return text;
}

const std::string spanishHeading = "||Elaboración de Informe\n|Alumno: \n|Curso: \n|Fecha: 01/02/2026\n|Hora: 10:20\n";
const std::string englishHeading = "||Report Design\n|Student: \n|Course: \n|Date: 01/02/2026\n|Time: 10:20\n"
                                   "||  Common Emitter, Feedback for Voltage, polarized for Base\n\n";
const std::string spanishStart = "|Ejercicio N° 1 \n||Realice un diseño con datos predeterminados: \n"
                                 "||con Rg mayor y menor que Zin, luego con Bootstrapping... \n"
                                 "|Ejercicio N° 2 \n||Realice un diseño con los siguientes datos : \n"
                                 "-fo =  400 \n-RLw =  0.4 K\n-Eopp = 12.5 V\n-Rg = 0.2 K\n-S = 10\n|Ejercicio N° 3 \n";
const std::string englishExercises =
    "|Exercise N° 1 \n||Make a design with predetermined data : \n"
    "||with Rg higher and lower than Zin, then with Bootstrapping... \n"
    "|Exercise N° 2 \n||Make a design with the following data : \n"
    "-fo =  420 \n-RLw =  0.4 °\n-Eopp =  12.5 V\n-S =  10\n-Rg =  0.2 k\n|Exercise N° 3 \n"
    "-Rlw  =  2 kohm\n-S = 1\n-Vg =  140\n-Rg = 0.4 k\n|Exercise N° 4 \n"
    "-Rlw (Kohm) =  1 kohm\n- S = 1\n-Vg = 240\n-Rg = 0.8 k\n"
    "-Remembers to save the results obtained for each design in a file report\n-with the Text Editor  \n|Result of "
    "design: \n";
const std::string spanishClosing = "-Recuerde salvar los resultados obtenidos para cada diseño en un archivo\n"
                                   "-con el Editor de Textos\n|Resultados de diseño: \n";

TEST(FeedbackReport, OfTheSimpleSheetInSpanishBeforeTheDesign)
{
    test::Form8Program program(spanish);
    EXPECT_EQ(
        drawn(program.sheet().reportText()),
        spanishHeading +
            "||Emisor Común Realimentado p/ tensión, polarizado p/ Base\n\n"
            "-Es aconsejable para comparar resultados entre ejercicios\n"
            "-abrir el Editor de Informes para un ejercicio y\n"
            "-el Editor de Textos para otro ejercicio...\n" +
            spanishStart +
            "-Rlw  =  0.4 kohm\n-S = 10\n-Vg = 140\n-Rg = 0.6 K\n|Ejercicio N° 4 \n"
            "-Rlw (Kohm) =  1 kohm\n- S = 1\n-Vg = 240\n" +
            spanishClosing +
            "-%/\\Qic = S/uso\n-T (ºC) = S/uso\n-/\\Vbe = S/uso\n-Qic (mA) = 1\n-Rg = \n-Rlw (Kohm) = 4\n-S = s/uso\n"
            "-Vg = 100\n-RL (kohm) = \n-Es (Volts) = Es\n-fo = 20\n-Eopp = 2.5\n-Beta (hFE) = 100\n-Ic (mA)= 100\n"
            "-Si / Ge = .6\n-Rb1 (kohm) = \n-Eq\n-\n-\n-Cdp = \n- =  K \n-\n"
            "-Conteste el siguiente cuestionario: \n-Que parámetros definen la  estabilidad S..?\n"
            "-A que parámetros influye los distintos valores de carga Rlw ..?\n"
            "-A que parámetros influye elevar Vg ..?\n"
            "-Que tensión cambia cuando modifica la Fuente de Alimentación..?\n"
            "-Mencione y justifique cuales son las tensiones que influyen en el recorte de la señal..?\n"
            "-Como se obtiene mayor impedancia de entrada..?\n"
            "-Cuales son las ventajas  y desventajas de utilizar circuitos\n-realimentados por tensión ..?\n");
}

TEST(FeedbackReport, OfTheSimpleSheetInEnglishAfterTheDesign)
{
    test::Form8Program program(english);
    program.playToPreset("12");
    program.enter();
    program.click(feedback::Image8);
    program.enter(feedback::Text15, "4");
    // Eq 1.65, RL and ERL 10.35, Rb1 105 K, Vg 115, S 10; with Cdp Zin is 5000 and Cin 15.9236, Cdp 1.5165
    EXPECT_EQ(
        drawn(program.sheet().reportText()),
        englishHeading + englishExercises +
            "-%/\\Qic = S/uso\n-T (ºC) = S/uso\n-/\\Vbe = S/uso\n-Qic (mA) = 1\n-Rg = 4\n-Rlw (Kohm) = 4\n-S = 10\n"
            "-Vg = 115\n-Rb1 (kohm) = 105\n-Es (Volt) = 12\n-fo = 20\n-Eopp = 2.5\n-Beta (hFE) = 100\n-Ic (mA)= 100\n"
            "-Si / Ge = .6\n-RL (kohm) = 10.35\n-Eq =1.65 Volt\n-Cin= 15.9236 mF\n-ERl = 10.35 Volts\n-Cdp = 1.5165 "
            "mF\n"
            "-Zin of Generator (Kohm) = 4 K \n-Zin= 5000 ohms\n"
            "-Answer the following questionnaire : \n-That parameters define the voltage of stability, ERes..?\n"
            "-To that parameters influence the different load values Rlw..?\n-To that parameters influence to elevate "
            "Vg..?\n"
            "-To that parameters influence to rise ERes..?\n-Does you mention and do justify which voltage  influence "
            "\n"
            "-in the cutting off the output sign Eopp..?\n-Like bigger entrance impedance is obtained..?\n"
            "-Which the advantages and disadvantages are of using \n-circuits Bypass..?\n"
            "-Which the advantages and disadvantages are of using circuits\n");
}

TEST(FeedbackReport, OfTheStabilisedSheetInSpanishAfterTheDesign)
{
    test::Form18Program program(spanish);
    program.playToPreset("25");
    program.enter(feedback::Text19, "110");
    program.enter();
    program.enter(feedback::Text15, "1");
    // Eq 18.3333, Rb2 5.3951 K, 5 mA obtained; Zin beside Rb2 in ohm is 343.7281, Cin 1 / (12.56 x 343.7281)
    EXPECT_EQ(
        drawn(program.sheet().reportText()),
        spanishHeading + "||Emisor Común Realimentado p/ tensión, polarizado p/ Base, estabilizado\n\n" + spanishStart +
            "-Rlw  =  0.4 kohm\n-S = 10\n-Vg = 140\n-Rg = 0.5 K\n|Ejercicio N° 4 \n"
            "-Rlw (Kohm) = 1 kohm\n-Vg = 140\n-Rg = 0.5 K\n"
            "-Encuentre la QIc mínima necesaria y aplique desacoplo para elevar la Zin...\n" +
            spanishClosing +
            "-%/\\Qic = S/uso\n-T (ºC) = S/uso\n-/\\Vbe = S/uso\n-QIc (obtenida) = 0.005A\n-Qic (asignada en mA) = "
            "1\n-Rg = 1\n"
            "-Rlw (Kohm) = 4\n-S = 16.6\n-Vg = 100\n-RL (kohm) = 6.66666666666667\n-Es (Volts) = 25\n-fo = 20\n"
            "-Eopp = 2.5\n-Beta (hFE) = 100\n-Ic (mA)= 100\n-Si / Ge = .6\n-Rb1 (kohm) = 110\n-Eq= 18.3333 Volt\n"
            "-Cin= 231.6303 mF\n-ERl= 6.66666666666667 Volt\n-Cdp = \n-Rg del Generador (kohms) = 1 K \n"
            "-Rb2(Kohm)= = 5.3951 K \n-Zin= 343.7281 ohms\n"
            "-Conteste el siguiente cuestionario: \n-Que tensión cambia cuando modifica la Fuente de Alimentación..?\n"
            "-Que parámetros definen la  estabilidad S..?\n"
            "-A que parámetros influye los distintos valores de carga Rlw ..?\n-A que parámetros influye elevar Vg "
            "..?\n"
            "-Por que cambia la corriente QIc al variar Rb2 ..?\n-Como se obtiene mayor impedancia de entrada..?\n"
            "-Cuales son las ventajas  y desventajas de utilizar circuitos\n"
            "-realimentados por tensión, Estabilizado por base, respecto del No Estabilizado..?\n");
}

TEST(FeedbackReport, OfTheStabilisedSheetInEnglishHasNoQuestions)
{
    test::Form18Program program(english);
    EXPECT_EQ(
        drawn(program.sheet().reportText()),
        englishHeading + englishExercises +
            "-%/\\Qic = S/uso\n-T (ºC) = S/uso\n-/\\Vbe = S/uso\n-QIc (obtained in A)= \n-Parameters of Qic (mA) = "
            "1\n-Rg = \n"
            "-Rlw (Kohm) = 4\n-S = 16.6\n-Vg = 100\n-RL (kohm) = \n-Es (Volts) =        Es\n-fo = 20\n-Eopp = 2.5\n"
            "-Beta (hFE) = 100\n-Ic (mA)= 100\n-Si / Ge = .6\n-Rb1 (kohm) = \n-\n-\n-\n-Cdp = \n"
            "-Rg Generator (kohm) =  K \n- =  K \n-\n");
}

} // namespace velmor::feedback_report_test
