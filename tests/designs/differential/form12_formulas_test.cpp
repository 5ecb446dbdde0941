// SPDX-License-Identifier: MIT
// The formulas of the current source against figures worked out by hand, with the calculation beside each.
#include "designs/differential/form12_formulas.h"

#include <gtest/gtest.h>

namespace velmor::form12_formulas_test {

using namespace form12;

TEST(Form12Formulas, TheSupplyCarriesTwoJunctions)
{
    EXPECT_DOUBLE_EQ(eBiasOf(2.0, 2.0).value(), 5.2);
    EXPECT_DOUBLE_EQ(eBiasOf(4.0, 4.0).value(), 9.2);
}

TEST(Form12Formulas, TheCollectorNeverHasLessThanThreeVolts)
{
    EXPECT_DOUBLE_EQ(eqFromEbias(5.2, 2.0).value(), 3.0); // 2 V
    EXPECT_DOUBLE_EQ(eqFromEbias(6.25, 2.0).value(), 3.05);
    EXPECT_DOUBLE_EQ(eqFromEbias(0.0, 2.0).value(), 3.0);
}

TEST(Form12Formulas, WhatStandsOverResAndRb2)
{
    EXPECT_NEAR(lowerDrop(5.2, 2.0).value(), 2.6, 1e-15);
    EXPECT_NEAR(lowerDrop(2.5, 2.0).value(), -0.1, 1e-15);
    // 3 + 1 x 2.6 + 0.6
    EXPECT_DOUBLE_EQ(eBiasFromRes(3.0, 1.0, 2.6).value(), 6.2);
}

TEST(Form12Formulas, TheDropsOfTheAnalysisMakeUpTheSupply)
{
    // 9.2 - (4.783 + 0.6)
    EXPECT_DOUBLE_EQ(eqOfAnalysis(9.2, 4.783).value(), 3.817);
}

} // namespace velmor::form12_formulas_test
