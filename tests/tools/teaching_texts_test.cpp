// SPDX-License-Identifier: MIT
// Lint over the prose of the tools: general help, credits, lines about updates, and the pages of Form7.
#include "tools/about_texts.h"
#include "tools/form19_pages.h"
#include "tools/form7_texts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

namespace velmor::teaching_texts_test {

bool holds(std::string_view text, std::string_view line)
{
    return text.find(line) != std::string_view::npos;
}

TEST(TeachingTexts, TheGeneralHelpHasTheSameParagraphsInBothLanguages)
{
    const auto lines = [](std::string_view text) { return std::count(text.begin(), text.end(), '\n'); };
    EXPECT_EQ(lines(form19::generalHelp.es), lines(form19::generalHelp.en));
    EXPECT_GT(lines(form19::generalHelp.es), 40);
}

TEST(TeachingTexts, TheGeneralHelpTellsTheKeysAndTheModes)
{
    for (const auto text : {form19::generalHelp.es, form19::generalHelp.en})
        for (const auto word : {"Enter", "Esc", "Tab", "Ctrl+F", "Bootstrapping", "VELMOR"})
            EXPECT_TRUE(holds(text, word)) << word;
}

TEST(TeachingTexts, CreditsNameTheAuthorsInBothLanguagesAndNoAddress)
{
    EXPECT_TRUE(holds(about::aboutTexts.credits[0].es, "The Velmor authors"));
    EXPECT_TRUE(holds(about::aboutTexts.credits[0].en, "The Velmor authors"));
    for (const auto& line : about::updateLines) {
        EXPECT_FALSE(line.es.empty());
        EXPECT_FALSE(line.en.empty());
        EXPECT_FALSE(holds(line.es, "@") || holds(line.en, "@") || holds(line.es, "http") || holds(line.en, "http"));
    }
    EXPECT_EQ(about::updateLines.front().es, "Programa didáctico de diseño de VELMOR. ");
    EXPECT_EQ(about::updateLines.front().en, " Didactic programs of design of VELMOR.");
    EXPECT_EQ(about::updateLines.back().es, "Distribución libre y gratuita.");
    EXPECT_EQ(about::updateLines.back().en, "Free and gratuitous distribution.");
}

TEST(TeachingTexts, TheFlowOfDesignHasFiveStepsAndEndsOnTheCircuitChosen)
{
    for (const auto* page : {&form7::flowOfSimple, &form7::flowOfStable}) {
        EXPECT_TRUE(page->es.starts_with("Criterios y Formulas... "));
        EXPECT_TRUE(holds(page->es, " Cuando se dispone de fuente de alimentacion de muy"));
        EXPECT_TRUE(holds(page->es, "  1)   Asignar Qic, (mínima del manual) "));
        EXPECT_TRUE(holds(page->es, "  5)   Asignar tensión de fuente disponible Es para"));
        EXPECT_TRUE(holds(page->en, "50 % greater"));
        EXPECT_TRUE(holds(page->en, "  5)   "));
    }
    EXPECT_TRUE(holds(form7::flowOfSimple.es, "\n         el circuito simple\n"));
    EXPECT_TRUE(holds(form7::flowOfStable.es, "\n         el circuito estable\n"));
}

TEST(TeachingTexts, TheFormulasOfForm7StandInBothLanguages)
{
    for (const auto text : {form7::formulas.es, form7::formulas.en})
        for (const auto line : {"    r'e = 25mV/QIc\n", "    RLac = Vg x r'e\n", "    RL= (RLw x RLac)/(RLw-RLac)\n",
                                "    EQ = 0.66 x Eopp\n", "Ib =QIc / B\n", "Rb1 = (EQ - Vj)/ Ib\n"})
            EXPECT_TRUE(holds(text, line)) << line;
    EXPECT_TRUE(form7::baseResistors.es.starts_with("   Cálculo del resistor de Base del Circuito Estabilizado : "));
    for (const auto text : {form7::baseResistors.es, form7::baseResistors.en})
        for (const auto line :
             {"                          Rb1 = S x RL\n", "                          ERb1 = Eq - Vj\n",
              "                          IRb1 = ERb1 / Rb1\n", "                          Ib = QIc / B\n",
              "                          IRb2 = IRb1 - Ib\n", "                          Rb2 = Vj / IRb2\n"})
            EXPECT_TRUE(holds(text, line)) << line;
}

} // namespace velmor::teaching_texts_test
