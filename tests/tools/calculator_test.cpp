// SPDX-License-Identifier: MIT
// The calculator's figures over many ratios. Powers of ten are known without computing: 20 decibels for each in the
// voltage path and in the power path with equal impedances.
#include "tools/calculator.h"

#include <gtest/gtest.h>

#include "program_desk.h"

namespace velmor::calculator_test {

using test::ProgramDesk;

constexpr std::int16_t enterKey = 13;

struct Bench : ProgramDesk {
    host::Window& window = show("Calculator");

    void enter(std::string_view field, std::string_view text)
    {
        write(window, field, text);
        engine.userKey(window, enterKey);
    }
    std::string voltageGain(const std::string& output, const std::string& input)
    {
        click(window, "Command3");
        enter("Text1", output);
        enter("Text2", input);
        return text(window, "Text2");
    }
    std::string powerGain(const std::string& output, const std::string& input, const std::string& load,
                          const std::string& entrance)
    {
        click(window, "Command4");
        enter("Text3", output);
        enter("Text4", input);
        enter("Text5", load);
        enter("Text6", entrance);
        return text(window, "Text6");
    }
};

std::string powerOfTen(int exponent)
{
    return exponent < 0 ? "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + "1"
                        : "1" + std::string(static_cast<std::size_t>(exponent), '0');
}

TEST(Calculator, EveryPowerOfTenIsTwentyDecibelsToTheLetter)
{
    Bench bench;
    for (int output = -8; output <= 8; ++output)
        for (int input = -8; input <= 8; ++input) {
            const std::string decibels = std::to_string(20 * (output - input)) + " db";
            EXPECT_EQ(bench.voltageGain(powerOfTen(output), powerOfTen(input)), "Ganancia: " + decibels);
            EXPECT_EQ(bench.powerGain(powerOfTen(output), powerOfTen(input), "8", "8"),
                      "Ganancia en Potencia: " + decibels);
        }
}

TEST(Calculator, TheImpedanceTypedLastChangesNoPowerGain)
{
    Bench bench;
    for (const auto entrance : {"8", "0", "0.001", "1000000", "x"})
        EXPECT_EQ(bench.powerGain("50", "2", "8", entrance), "Ganancia en Potencia: 27 db"); // 10 log10(625) = 27.96
}

TEST(Calculator, ShowsItsStoredCaptionsBeforeItIsLoadedAndTheOthersAfter)
{
    ProgramDesk desk;
    const host::WindowSpec& spec = calculator::spec;
    EXPECT_EQ(spec.controls[calculator::Command3].text, "Decibeles");
    EXPECT_EQ(spec.controls[calculator::Command4].text, "Po / Pi");
    EXPECT_EQ(spec.controls[calculator::Command5].text, "Off");
    desk.engine.userRun([&] { desk.engine.host().Load("Calculator"); });
    host::Window& window = *desk.engine.defaultInstance("Calculator");
    EXPECT_EQ(desk.text(window, "Command3"), "Eo/Ei Po/Pi");
    desk.show("Calculator");
    EXPECT_EQ(desk.text(window, "Command3"), " Eo/Ei Po/Pi");
}

TEST(Calculator, ARatioBeyondAllNumbersEndsTheProgramWithAMessageAndNoInfinity)
{
    Bench bench;
    const std::string found = bench.voltageGain("1E308", "0");
    EXPECT_TRUE(bench.engine.ended());
    EXPECT_EQ(bench.screen.failures.size(), 1U);
    EXPECT_EQ(found.find("inf"), std::string::npos);
}

} // namespace velmor::calculator_test
