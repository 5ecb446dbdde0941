// SPDX-License-Identifier: MIT
// Lint over the help pages of Form2: order, names and the formulas that the course demands on each page.
#include "designs/common_emitter/form2_texts.h"

#include <gtest/gtest.h>

#include <array>
#include <string_view>
#include <utility>

namespace velmor::form2_help_test {

using form2::controls;
using form2::helpPages;

TEST(Form2Help, PagesStandInTheOrderOfTheTagsWithTheirShortNames)
{
    constexpr std::array<std::pair<std::string_view, std::string_view>, 19> order{{
        {"Text1", " Delta QIc..."}, {"Text3", " Temperatura..."}, {"Text4", " Delta Vbe..."},
        {"Text8", " QIc..."},       {"Text15", " Res"},           {"Text9", " RLw.."},
        {"Text10", " S.."},         {"Text11", "...Vg"},          {"Text17", "RL.."},
        {"Text12", " fo..."},       {"Text13", " Eopp..."},       {"Text16", "Es..."},
        {"Text21", "-Es..."},       {"Text2", "Beta..."},         {"Text5", "Ec(max)"},
        {"Text6", "Ic(max)"},       {"Text7", "Si/Ge"},           {"Text18", "Rb2"},
        {"Text19", "Rb1"},
    }};
    ASSERT_EQ(helpPages.size(), order.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        EXPECT_EQ(controls[helpPages[i].field].name, order[i].first);
        EXPECT_EQ(helpPages[i].shortName, order[i].second);
    }
}

TEST(Form2Help, EveryPageExplainsInBothLanguages)
{
    for (const auto& row : helpPages) {
        EXPECT_GT(row.page.es.size(), 250U) << row.shortName;
        EXPECT_GT(row.page.en.size(), 250U) << row.shortName;
        EXPECT_NE(row.page.es, row.page.en) << row.shortName;
    }
}

TEST(Form2Help, EveryFormulaStandsOnThePageOfItsFieldInBothLanguages)
{
    constexpr std::array<std::pair<std::string_view, std::string_view>, 9> formulas{{
        {"Text8", "r'e = 25 mV / QIc"},
        {"Text11", "Vg = Eopp/Ein"},
        {"Text11", "Vg = RLac / r'e"},
        {"Text11", "Vg = RLac / Res"},
        {"Text17", "RL = (RLw x RLac) / (Rlw - RLac)"},
        {"Text12", "Cout = 1 / (2 x ¶ x fo x 0.1 x Rlw )"},
        {"Text13", "Eq(min) = Eopp + 1 Volt"},
        {"Text16", "Es(min) = ERes + EQ + ERL"},
        {"Text18", "Rb2 = S x Res"},
    }};
    for (const auto& [field, formula] : formulas) {
        bool found = false;
        for (const auto& row : helpPages) {
            if (controls[row.field].name != field)
                continue;
            found = true;
            EXPECT_NE(row.page.es.find(formula), std::string_view::npos) << formula;
            EXPECT_NE(row.page.en.find(formula), std::string_view::npos) << formula;
        }
        EXPECT_TRUE(found) << field;
    }
}

} // namespace velmor::form2_help_test
