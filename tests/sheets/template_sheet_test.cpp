// SPDX-License-Identifier: MIT
// The template sheet as a design: its chain, formulas, corrections, boxes, help and report, in both languages.
#include "sheets/template_sheet.h"

#include <gtest/gtest.h>

#include "host/failure.h"
#include "sheets/template_program.h"

namespace velmor::template_sheet {

namespace template_sheet_test {

TEST(TemplateSheetFormulas, TheLoadTakesWhatTheTransistorLeaves)
{
    // (12 V - 6 V) / 10 mA = 0.6 K; 10 mA x 0.6 K = 6 V
    EXPECT_DOUBLE_EQ(loadResistor(12, 6, 0, 10).value(), 0.6);
    // with the lamp, (12 V - 6 V - 2 V) / 10 mA = 0.4 K
    EXPECT_DOUBLE_EQ(loadResistor(12, 6, 2, 10).value(), 0.4);
    EXPECT_DOUBLE_EQ(loadVoltage(10, 0.6).value(), 6);
    EXPECT_THROW(loadResistor(12, 6, 0, 0), host::ProgramFailure);
}

TEST(TemplateSheetDesign, AWholeDesignInSpanish)
{
    EXPECT_EQ(faultsOf(R"(new TemplateSheet
expect ..caption "  Resistor de carga"
expect-focus Text1
expect Label11.caption "Parámetros del Circuito"
expect SSPanel1.caption "Coloque la tensión de alimentación, de 3 a 30 Volts."
expect Line1.visible false
fill Text1 9
enter
expect-focus Text2
expect Line1.visible true
expect Text2.text 75
enter
expect-focus Text3
fill Text3 2
enter
expect-focus Text4
expect Text3.text "2 mA"
expect Text4.text "4.5 V"
enter
expect-focus Text5
expect Text4.text 4.5
expect Text5.text 2.25
expect Line2.visible true
clear
type 2.2
enter
expect-focus Text5
expect RL.caption "2.2 K"
expect ERL.caption "4.4 V"
)"),
              "");
}

TEST(TemplateSheetDesign, AWholeDesignInEnglishWithTheDefaults)
{
    EXPECT_EQ(faultsOf(R"(language english
new TemplateSheet
expect ..caption "  Load resistor"
expect Label6.caption "Transistor Parameters"
esc
esc
esc
expect-focus Text4
expect SSPanel1.caption "Half of Es leaves room for the largest signal."
esc
expect-focus Text4
enter
enter
expect RL.caption "0.6 K"
expect ERL.caption "6 V"
expect-no-box
)"),
              "");
}

TEST(TemplateSheetDesign, ValuesOutOfRangeAreCorrectedSilentlyOrWithABox)
{
    EXPECT_EQ(faultsOf(R"(new TemplateSheet
fill Text1 2.9
enter
expect Text1.text 12
focus Text1
fill Text1 3
enter
expect Text1.text 3
focus Text1
fill Text1 30
enter
expect Text1.text 30
focus Text1
fill Text1 30.1
enter
expect Text1.text 12
fill Text2 201
enter
expect Text2.text 25
expect-no-box
fill Text3 0.09
enter
expect-box "Con menos de 0,1 mA el transistor no conduce." "Criterio de diseño..." 48
expect Text3.text "10 mA"
focus Text3
fill Text3 0.1
enter
expect Text3.text "0.1 mA"
expect-no-box
)"),
              "");
}

TEST(TemplateSheetDesign, AnEmptyFieldKeepsTheFocusAtEnterAndSendsItBackWhenLeft)
{
    EXPECT_EQ(faultsOf(R"(language english
new TemplateSheet
clear
enter
expect-box " Place a number..." "Error" 48
expect-focus Text1
esc
esc
esc
clear
focus Text5
expect-focus Text4
clear
focus SSCommand1
expect-box "It should place a value" "Error of data" 0
expect-focus Text3
expect-no-box
)"),
              "");
}

TEST(TemplateSheetDesign, AVoltageThatCannotBeSendsTheStudentBackToTheSupply)
{
    EXPECT_EQ(faultsOf(R"(new TemplateSheet
esc
esc
esc
fill Text4 12
enter
expect-box "Eq no puede alcanzar a Es. Aumente Es." "Criterio de diseño..." 48
expect-focus Text1
expect Text4.enabled false
fill Text1 12.1
enter
enter
enter
fill Text4 12
enter
expect-focus Text5
expect-near Text5.text 0.01
)"),
              "");
}

TEST(TemplateSheetDesign, NotesPagesAndTheTableOfValuesComeAndGo)
{
    EXPECT_EQ(faultsOf(R"(new TemplateSheet
hover Text5
expect status1.caption "RL, resistor de carga"
expect status1.visible true
hover .
expect status1.visible false
click Image35
expect Text22.visible true
expect Text23.visible false
expect Image35.visible false
click Image34
expect Text22.visible false
expect Image34.visible false
language english
click Image35
expect Text23.visible true
expect Text22.visible false
press Text5 right
expect-window Form14
)"),
              "");
}

// 212 degrees Fahrenheit are 100 degrees Celsius.
TEST(TemplateSheetDesign, AConvertedTemperatureReachesTheTemperatureFieldInHandAtOnce)
{
    EXPECT_EQ(faultsOf(R"(new TemplateSheet
esc
expect-focus Text2
press Text2 right
expect-active Form22
input 212
click Command1
expect-active TemplateSheet
expect program.TemperaturaCompartida 100
expect Text2.text 100
)"),
              "");
}

TEST(TemplateSheetDesign, AConvertedTemperatureWaitsForATemperatureFieldThatIsNotInHand)
{
    EXPECT_EQ(faultsOf(R"(new TemplateSheet
press Text2 right
input 212
click Command1
expect Text2.text 75
expect-focus Text1
esc
expect Text2.text 100
)"),
              "");
}

} // namespace template_sheet_test

} // namespace velmor::template_sheet
