// SPDX-License-Identifier: MIT
// Reports line by line: indents, headings in both languages, rows of values, and a whole report of the template sheet.
#include "sheets/report_text.h"

#include <initializer_list>

#include <gtest/gtest.h>

#include "sheets/sheet_program.h"

namespace velmor::template_sheet {

namespace report_text_test {

using sheets::ReportRow;
using sheets::ReportText;

TEST(ReportLines, EveryLineEndsWithCarriageReturnAndLineFeed)
{
    ReportText report;
    report.empty().plain("a").oneStep("b").twoSteps("c").tab("d");
    EXPECT_EQ(report.text(), "\r\na\r\n        b\r\n                c\r\n\td\r\n");
}

TEST(ReportLines, SeveralTabLinesAtOnce)
{
    constexpr std::string_view lines[] = {"one", "two"};
    ReportText report;
    report.tabs(lines);
    EXPECT_EQ(report.text(), "\tone\r\n\ttwo\r\n");
}

TEST(ReportLines, ARowIsItsLabelTheTextAsShownAndItsEnding)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    sheet.setText(Text3, "10 mA");
    constexpr ReportRow rows[] = {{"Qic = ", Text3}, {"Es = ", Text1, " V"}, {"alone", host::noControl}, {"", ERL}};
    ReportText report;
    report.rows(sheet, rows);
    EXPECT_EQ(report.text(), "\tQic = 10 mA\r\n\tEs = 12 V\r\n\talone\r\n\t\r\n");
}

TEST(ReportLines, TheHeadingInSpanish)
{
    SheetProgram program;
    ReportText report;
    report.heading(program.newSheet(), "Título", "Diseño");
    EXPECT_EQ(report.text(), "                Título\r\n"
                             "        Alumno: \r\n"
                             "        Curso: \r\n"
                             "        Fecha: 01/02/2026\r\n"
                             "        Hora: 10:20\r\n"
                             "                Diseño\r\n"
                             "\r\n");
}

TEST(ReportLines, TheAiryHeadingInEnglish)
{
    SheetProgram program;
    program.english(true);
    ReportText report;
    report.heading(program.newSheet(), "Title", "Design", true);
    EXPECT_EQ(report.text(), "                Title\r\n"
                             "\r\n"
                             "        Student: \r\n"
                             "        Course: \r\n"
                             "        Date: 01/02/2026\r\n"
                             "        Time: 10:20\r\n"
                             "\r\n"
                             "                Design\r\n"
                             "\r\n");
}

TEST(Report, BeforeTheDesignIsDoneItListsThePlaceholders)
{
    SheetProgram program;
    EXPECT_EQ(program.newSheet().reportText(),
              "                Elaboración de Informe\r\n"
              "        Alumno: \r\n"
              "        Curso: \r\n"
              "        Fecha: 01/02/2026\r\n"
              "        Hora: 10:20\r\n"
              "                Resistor de carga\r\n"
              "\r\n"
              "        Ejercicio N° 1 \r\n"
              "                Diseñe la carga de un transistor con los siguientes datos:\r\n"
              "\tEs =  12 V \r\n"
              "\tQic =  10 mA \r\n"
              "\tRecuerde salvar los resultados obtenidos para cada diseño en un archivo\r\n"
              "\tcon el Editor de Textos\r\n"
              "        Resultados de diseño: \r\n"
              "\tEs = 12 V\r\n"
              "\tT (ºC) = 75\r\n"
              "\tQic = QIc\r\n"
              "\tEq = Eq\r\n"
              "\tRL = \r\n"
              "\tERL = \r\n"
              "\t¿Qué ocurre con RL cuando aumenta QIc..?\r\n");
}

TEST(Report, AFinishedDesignIsReportedAsShownInEnglish)
{
    SheetProgram program;
    program.english(true);
    TemplateSheet& sheet = program.newSheet();
    for (const std::int16_t key : std::initializer_list<std::int16_t>{27, 27, 27, 13, 13})
        program.press(sheet, key);
    const std::string report = sheet.reportText();
    EXPECT_NE(report.find("\tRemembers to save the results obtained for each design in a file report\r\n"
                          "\twith the Text Editor  \r\n"
                          "        Result of design: \r\n"
                          "\tEs = 12 V\r\n"
                          "\tT (ºC) = 75\r\n"
                          "\tQic = 10 mA\r\n"
                          "\tEq = 6\r\n"
                          "\tRL = 0.6 K\r\n"
                          "\tERL = 6 V\r\n"),
              std::string::npos)
        << report;
}

} // namespace report_text_test

} // namespace velmor::template_sheet
