// SPDX-License-Identifier: MIT
// The report of Form2, line by line: both languages, every circuit, before and after a design.
#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "designs/common_emitter/form2_program.h"

namespace velmor::form2_report_test {

using namespace form2;

constexpr std::int16_t spanish = 0;
constexpr std::int16_t english = host::trueValue;
const std::string one(8, ' ');
const std::string two(16, ' ');

std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n", start)) {
        lines.push_back(text.substr(start, end - start));
        start = end + 2;
    }
    EXPECT_EQ(start, text.size()) << "the last line has no line end";
    return lines;
}

bool has(const std::vector<std::string>& lines, const std::string& line)
{
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

const std::vector<std::string> englishQuestions{
    "\tAnswer the following questionnaire : ",
    "\tThat parameters define the voltage of stability, ERes..?",
    "\tTo that parameters influence the different load values Rlw..?",
    "\tTo that parameters influence to elevate Vg..?",
    "\tTo that parameters influence to rise ERes..?",
    "\tDoes you mention and do justify which voltage  influence ",
    "\tin the cutting off the output sign Eopp..?",
    "\tLike bigger entrance impedance is obtained..?",
    "\tWhich the advantages and disadvantages are of using ",
    "\tcircuits Bypass..?",
    "\tWhich the advantages and disadvantages are of using circuits",
    "\tpolarized by Emitter..?",
};

std::vector<std::string> defaultDataLines()
{
    return {"\t%/\\Qic = 10",    "\tT (ºC) = 75",  "\t/\\Vbe = 2.5",    "\tQic (mA) = 1", "\tRes = ",
            "\tRlw (Kohm) = 10", "\tS = 10",       "\tVg) = 5",         "\tRL (kohm) = ", "\tfo = 20",
            "\tEopp = 1",        "\tEs = ",        "\tBeta (hFE) = 80", "\tIc (mA)= 100", "\tSi / Ge = 0.6",
            "\tRb2 (kohm) = ",   "\tRb1 (kohm) = "};
}

void append(std::vector<std::string>& lines, const std::vector<std::string>& more)
{
    lines.insert(lines.end(), more.begin(), more.end());
}

TEST(Form2Report, InEnglishBeforeTheDesignListsTheDefaults)
{
    test::Form2Program program(english);
    std::vector<std::string> expected{
        two + "Report Design",
        one + "Student: ",
        one + "Course: ",
        one + "Date: 01/02/2026",
        one + "Time: 10:20",
        two + "  Common Emitter, Feedback for Current, polarized for Base",
        "",
        one + "Exercise N° 1 ",
        two + "Make a design with predetermined data : ",
        two + "Then it varied Rb1 until obtaining the current Qic according to Circuit  Parameters... ",
        one + "Exercise N° 2 ",
        two + "Make a design with the following data : ",
        "\t%/\\Qic =  1 ",
        "\tT (ºC) =  90 °",
        "\t/\\Vbe = 3 mV",
        one + "Exercise N° 3 ",
        "\tRlw  =  2 kohm",
        "\tS = 1",
        "\tVg =  2",
        one + "Exercise N° 4 ",
        "\tRlw (Kohm) =  1 kohm",
        "\t S = 1",
        "\tVg = 200",
        "\t Arrives at the end of the exercises assigning predetermined  and normalized values.",
        "\t Remembers to save the results in a file with the Text Editor",
        one + "Result of polarized by Base design without Bypass: ",
    };
    append(expected, defaultDataLines());
    append(expected, {"\t  - Es = 20 V", "\tCurrent Qic = ", "\t", "\tERes = ", "\tERL = "});
    append(expected, englishQuestions);
    EXPECT_EQ(linesOf(program.sheet().reportText()), expected);
}

TEST(Form2Report, InSpanishBeforeTheDesignAsksForItAgain)
{
    test::Form2Program program(spanish);
    std::vector<std::string> expected{
        two + "Elaboración de Informe",
        one + "Alumno: ",
        one + "Curso: ",
        one + "Fecha: 01/02/2026",
        one + "Hora: 10:20",
        two + "Emisor Común Realimentado p/ corriente, polarizado p/ Base",
        "",
        one + "Ejercicio N° 1 ",
        two + "Realice un diseño con datos predeterminados: ",
        two + "Luego varíe Rb1 hasta obtener la corriente Qic según Parámetros circuitales... ",
        one + "Ejercicio N° 2 ",
        two + "Realice un diseño con los siguientes datos : ",
        "\t%/\\Qic =  1 ",
        "\tT (ºC) =  90 °",
        "\t/\\Vbe = 3 mV",
        one + "Ejercicio N° 3 ",
        "\tRlw  =  2 kohm",
        "\tS = 1",
        "\tVg =  2",
        "\tCopie y Pegue cada uno de los resultados obtenidos en un archivo ...",
        one + "Ejercicio N° 4 ",
        "\tRlw (Kohm) =  1 kohm",
        "\t S = 1",
        "\tVg = 10",
        "\tLlegue al final de los ejercicios asignando valores predeterminados y normalizados.",
        "\tRecuerde salvar los resultados obtenidos para cada diseño en un archivo",
        "\tcon el Editor de Textos",
        one + "Resultados de diseño polarizado por Base s/desacoplar: ",
        "\tCorriente Qic = ",
        "\tERes = ",
        "\tEl valor de corriente obtenido con el ajuste de Rb1",
        "\tNO es igual a la Qic deseada, por favor, Realícelo nuevamente ",
        "\tTenga en cuenta que los valores de tensiones y resistencias dependen de Qic... ",
    };
    append(expected, defaultDataLines());
    append(expected, {
                         "\t",
                         "\tERL = ",
                         "\tConteste el siguiente cuestionario: ",
                         "\tQue parámetros definen la tensión de estabilidad Eres..?",
                         "\tA que parámetros influye los distintos valores de carga Rlw ..?",
                         "\tA que parámetros influye elevar Vg ..?",
                         "\tA que parámetros influye elevar ERes ..?",
                         "\tMencione y justifique cuales son las tensiones que influyen en el recorte de la señal..?",
                         "\tComo se obtiene mayor impedancia de entrada..?",
                         "\tCuales son las ventajas  y desventajas de utilizar circuitos desacoplados ..?",
                         "\tCuales son las ventajas  y desventajas de utilizar circuitos polarizados por Emisor ..?",
                         "\tAconsejo continuar con el diseño de Inversor de Fase",
                     });
    EXPECT_EQ(linesOf(program.sheet().reportText()), expected);
}

TEST(Form2Report, AfterACorrectAdjustmentTheBaseReportStillAsksForItAgain)
{
    test::Form2Program program(spanish);
    program.playTo(Text19);
    program.typeAndEnter("186.5");
    const std::vector<std::string> lines = linesOf(program.sheet().reportText());
    EXPECT_TRUE(has(lines, "\tCorriente Qic = 0.9996 mA"));
    EXPECT_TRUE(has(lines, "\tERes = 1.375  Volt"));
    EXPECT_TRUE(has(lines, "\tEl valor de corriente obtenido con el ajuste de Rb1"));
    EXPECT_TRUE(has(lines, "\t Eq=  11.625 Volts"));
    EXPECT_TRUE(has(lines, "\tERL = 22     Volts"));
    EXPECT_TRUE(has(lines, "\tRb1 (kohm) = 186.5"));
}

TEST(Form2Report, InEnglishHoldsTheResultsOfTheDesign)
{
    test::Form2Program program(english);
    program.playTo(Text19);
    program.typeAndEnter("186.5");
    const std::vector<std::string> lines = linesOf(program.sheet().reportText());
    for (const char* line : {"\tCurrent Qic = 0.9996 mA", "\t Eq=  11.625 Volts", "\tERes = 1.375  Volt",
                             "\tERL = 22     Volts", "\tRes = 1375", "\tS = 8", "\tEs = 35"})
        EXPECT_TRUE(has(lines, line)) << line;
}

TEST(Form2Report, BypassedByBaseAsksForTheDesignAgainOutsideTheBandAlone)
{
    test::Form2Program program(spanish);
    program.playTo(Text19);
    program.typeAndEnter("186.5");
    program.sheet().show(Image2);
    std::vector<std::string> lines = linesOf(program.sheet().reportText());
    EXPECT_EQ(lines[0], two + "Elaboración de Informe Desacoplado");
    EXPECT_EQ(lines[5], two + "Emisor Común Realimentado p/ corriente, polarizado p/ Base Totalmente Desacoplado");
    EXPECT_TRUE(has(lines, "\tVg =  200"));
    EXPECT_TRUE(has(lines, "\tVg = 350"));
    EXPECT_TRUE(has(lines, one + "Resultados de diseño Desacoplado: "));
    EXPECT_TRUE(has(lines, "\tCorriente Qic obtenida (calibrando Rb1)= 0.9996 mA"));
    EXPECT_FALSE(has(lines, "\tEl valor de corriente obtenido con el ajuste de Rb1"));
    EXPECT_FALSE(has(lines, two + "Luego varíe Rb1 hasta obtener la corriente Qic según Parámetros circuitales... "));
    program.sheet().setText(Text8, "1.2");
    lines = linesOf(program.sheet().reportText());
    EXPECT_TRUE(has(lines, "\tTenga en cuenta qu los valores de tensiones y resistencias dependen de Qic... "));
}

TEST(Form2Report, BypassedInEnglishNamesItsCircuit)
{
    test::Form2Program program(english);
    program.sheet().show(Image2);
    const std::vector<std::string> lines = linesOf(program.sheet().reportText());
    EXPECT_EQ(lines[5], two + "  Common Emitter, Feedback for Current, polarized for Base, Bypass");
    EXPECT_TRUE(has(lines, "\tVg =  55"));
    EXPECT_TRUE(has(lines, "\tVg = 200"));
    EXPECT_TRUE(has(lines, one + "Result of Bypass design: "));
}

TEST(Form2Report, PolarisedByEmitterHasExercisesOfItsOwn)
{
    test::Form2Program program(spanish);
    program.click(Picture11);
    std::vector<std::string> lines = linesOf(program.sheet().reportText());
    EXPECT_EQ(lines[0], two + "Elaboración de Informe");
    EXPECT_EQ(lines[5], two + "Emisor Común Realimentado p/ corriente, polarizado p/ Emisor, totalmente desacoplado");
    EXPECT_TRUE(has(lines, two + "Luego Comience otro cambiando valores de fuente de alimentación ó  valores de Res y "
                                 "observe resultados ... "));
    EXPECT_TRUE(has(lines, "\tVg = 300"));
    EXPECT_TRUE(has(lines, "\tRlw (Kohm) =  2 kohm"));
    EXPECT_TRUE(has(lines, "\tVg = 20"));
    const auto heading =
        std::find(lines.begin(), lines.end(), one + "Resultados de diseño Polarizado por Emisor desacoplado: ");
    ASSERT_NE(heading, lines.end());
    EXPECT_EQ(heading[1], "\t  - Es = 20 V");
    EXPECT_EQ(heading[2], "\t%/\\Qic = 10");
    program.engine.values().LanguageIsEnglish = english;
    lines = linesOf(program.sheet().reportText());
    EXPECT_EQ(lines[5], two + "  Common Emitter, Feedback for Current, polarized for Emitter, Bypass");
    EXPECT_TRUE(has(lines, one + "Result of  Bypass polarized by Emitter design: "));
    EXPECT_TRUE(has(lines, "\tRlw (Kohm) =  1 kohm"));
}

TEST(Form2Report, WithANegativeSupplyAndNoBypassItHasNoDesign)
{
    test::Form2Program program(english);
    program.sheet().show(Text21);
    program.sheet().hide(Image2);
    std::vector<std::string> lines = linesOf(program.sheet().reportText());
    const std::vector<std::string> head{
        two + "Report Design",
        one + "Student: ",
        one + "Course: ",
        one + "Date: 01/02/2026",
        one + "Time: 10:20",
        "\t Arrives at the end of the exercises assigning predetermined  and normalized values.",
        "\t Remembers to save the results in a file with the Text Editor",
        "\t%/\\Qic = 10"};
    EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.begin() + 8), head);
    program.engine.values().LanguageIsEnglish = spanish;
    lines = linesOf(program.sheet().reportText());
    EXPECT_EQ(lines[0], "\tLlegue al final de los ejercicios asignando valores predeterminados y normalizados.");
    EXPECT_EQ(lines[3], "\t%/\\Qic = 10");
}

} // namespace velmor::form2_report_test
