// SPDX-License-Identifier: MIT
// Raw files as the simulator writes them, and as it does not.
#include "check/raw_file.h"

#include <cstring>

#include <gtest/gtest.h>

namespace velmor::check::test {

namespace raw_file_test {

std::string bytesOf(const std::vector<double>& numbers)
{
    std::string bytes(numbers.size() * sizeof(double), '\0');
    std::memcpy(bytes.data(), numbers.data(), bytes.size());
    return bytes;
}

std::string realPlot()
{
    return "Title: t\nDate: d\nPlotname: Operating Point\nFlags: real\nNo. Variables: 2\nNo. Points: 1\n"
           "Variables:\n\t0\tV(c)\tvoltage\n\t1\ti(@q1[ic])\tcurrent\nBinary:\n" +
           bytesOf({6.5, 1e-3});
}

std::string complexPlot()
{
    return "Title: t\nPlotname: AC Analysis\nFlags: complex\nNo. Variables: 2\nNo. Points: 2\n"
           "Variables:\n\t0\tfrequency\tfrequency grid=3\n\t1\tv(out)\tvoltage\nBinary:\n" +
           bytesOf({1, 0, 3, 4, 10, 0, -3, 0.5});
}

} // namespace raw_file_test

using namespace raw_file_test;

TEST(RawFile, holdsPlotsOfRealAndComplexNumbers)
{
    const std::vector<Plot> plots = readRaw(complexPlot() + realPlot());
    ASSERT_EQ(plots.size(), 2U);
    EXPECT_EQ(plotOf(plots, "Operating"), &plots[1]);
    EXPECT_EQ(plotOf(plots, "Transient"), nullptr);
    EXPECT_EQ(plots[0].column("v(out)")->values[1], std::complex<double>(-3, 0.5));
    EXPECT_EQ(plots[1].column("v(c)")->values[0].real(), 6.5);
    EXPECT_EQ(plots[1].column("@q1[ic]")->values[0].real(), 1e-3);
    EXPECT_EQ(plots[1].column("v(x)"), nullptr);
}

TEST(RawFile, cutAtEachByteGivesThePlotsThatAreWhole)
{
    const std::string first = complexPlot();
    const std::string whole = first + realPlot();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::vector<Plot> plots = readRaw(std::string_view(whole).substr(0, length));
        EXPECT_EQ(plots.size(), length < first.size() ? 0U : 1U) << length;
    }
}

TEST(RawFile, claimsThatItsBytesDoNotHoldAreNotBelieved)
{
    std::string claims = realPlot();
    claims.replace(claims.find("Points: 1"), 9, "Points: 9");
    EXPECT_TRUE(readRaw(claims).empty());
    claims.replace(claims.find("Points: 9"), 9, "Points: 18446744073709551615");
    EXPECT_TRUE(readRaw(claims).empty());
    claims = realPlot();
    claims.replace(claims.find("Variables: 2"), 12, "Variables: 3");
    EXPECT_TRUE(readRaw(claims).empty());
    EXPECT_TRUE(readRaw("").empty());
    EXPECT_TRUE(readRaw("Binary:\n").empty());
}

TEST(RawFile, anAnalysisThatFailedLeavesTheOthers)
{
    std::string empty = complexPlot();
    empty = empty.substr(0, empty.find("Binary:\n") + 8);
    empty.replace(empty.find("Points: 2"), 9, "Points: 0");
    const std::vector<Plot> plots = readRaw(empty + realPlot());
    ASSERT_EQ(plots.size(), 1U);
    EXPECT_EQ(plots[0].name, "Operating Point");
}

} // namespace velmor::check::test
