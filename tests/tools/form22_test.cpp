// SPDX-License-Identifier: MIT
// The four conversions, and what the input boxes are handed. Figures: water freezes at 32 F and boils at 212 F; the
// course takes absolute zero as -273.
#include "tools/form22.h"

#include <gtest/gtest.h>

#include "program_desk.h"

namespace velmor::form22_test {

using test::ProgramDesk;

TEST(Temperature, FollowsTheCoursesFourRules)
{
    EXPECT_DOUBLE_EQ(form22::KelvinACentigrados(300.0).value(), 27.0);
    EXPECT_DOUBLE_EQ(form22::KelvinACentigrados(0.0).value(), -273.0);
    EXPECT_DOUBLE_EQ(form22::CentigradosAKelvin(27.0).value(), 300.0);
    EXPECT_DOUBLE_EQ(form22::CentigradosAFahrenheit(0.0).value(), 32.0);
    EXPECT_DOUBLE_EQ(form22::CentigradosAFahrenheit(100.0).value(), 212.0);
    EXPECT_DOUBLE_EQ(form22::FahrenheitACentigrados(32.0).value(), 0.0);
    EXPECT_DOUBLE_EQ(form22::FahrenheitACentigrados(212.0).value(), 100.0);
    EXPECT_DOUBLE_EQ(form22::FahrenheitACentigrados(-40.0).value(), -40.0);
    EXPECT_DOUBLE_EQ(form22::FahrenheitACentigrados(175.0).value(), 715.0 / 9.0);
}

TEST(Temperature, ThereAndBackIsTheSameTemperature)
{
    for (int celsius = -273; celsius <= 400; ++celsius)
        EXPECT_NEAR(form22::FahrenheitACentigrados(form22::CentigradosAFahrenheit(celsius)).value(), celsius, 1e-10);
}

struct Question {
    const char* button;
    const char* promptEs;
    const char* promptEn;
    const char* proposal;
};
constexpr Question questions[] = {
    {"Command1", "Coloque la temperatura en Fahrenheit", "Put the Temperature in Fahrenheit", "175"},
    {"Command2", "Coloque la temperatura en Kelvin", "Put the Temperature in Kelvin", "300"},
    {"Command3", "Coloque la temperatura en Centigrados", "Put the Temperature in Centigrade", "75"},
};

TEST(Temperature, AsksWithTitlePromptProposalAndPlaceInBothLanguages)
{
    for (const bool english : {false, true})
        for (const Question& question : questions) {
            ProgramDesk desk;
            desk.engine.values().LanguageIsEnglish = english ? host::trueValue : std::int16_t{0};
            host::Window& window = desk.show("Form22");
            EXPECT_EQ(window.caption(), "Temp");
            desk.click(window, question.button);
            ASSERT_EQ(desk.screen.inputs.size(), 1U);
            const host::InputBox& asked = desk.screen.inputs[0];
            EXPECT_EQ(asked.title, english ? "Grade Convert" : "Conversion de Grados");
            EXPECT_EQ(asked.prompt, english ? question.promptEn : question.promptEs);
            EXPECT_EQ(asked.initial, question.proposal);
            EXPECT_EQ(asked.left, 2400);
            EXPECT_EQ(asked.top, 2100);
            EXPECT_FALSE(desk.open("Form22")); // cancelled, and gone all the same
        }
}

TEST(Temperature, StoresWithNoSheetOpenToo)
{
    ProgramDesk desk;
    desk.screen.nextInput = "350";
    desk.click(desk.show("Form22"), "Command2");
    EXPECT_DOUBLE_EQ(desk.engine.values().TemperaturaCompartida, 77.0);
}

} // namespace velmor::form22_test
