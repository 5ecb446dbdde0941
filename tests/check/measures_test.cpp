// SPDX-License-Identifier: MIT
// Measures against curves whose answers are known by formula.
#include "check/measures.h"

#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

namespace velmor::check::test {

namespace measures_test {

/// A high pass of one capacitor with its corner at 10 Hz, 50 points a decade, with a gain of 5 in the middle; the input
/// draws 2 milliamperes a volt.
Plot highPass()
{
    Plot plot{.name = "AC Analysis"};
    Column frequency{.name = "frequency"}, in{.name = "v(in)"}, out{.name = "v(out)"}, current{.name = "i(veg)"};
    for (int i = 0; i <= 400; ++i) {
        const double hertz = std::pow(10.0, -2 + i / 50.0);
        // What stands in the imaginary part of a frequency is nobody's.
        frequency.values.emplace_back(hertz, 1e30);
        in.values.emplace_back(1.0, 0.0);
        out.values.push_back(-5.0 / (1.0 - std::complex<double>(0, 1) * 10.0 / hertz));
        current.values.emplace_back(-2e-3, 0.0);
    }
    plot.columns = {frequency, in, out, current};
    return plot;
}

/// Uneven steps, two harmonics and a mean.
Plot wave(double second)
{
    Plot plot{.name = "Transient Analysis"};
    Column time{.name = "time"}, out{.name = "v(out)"};
    double t = 0.0199;
    for (int i = 0; t < 0.03; ++i) {
        t = std::min(t + (i % 3 == 0 ? 1e-6 : 2.3e-6), 0.03);
        const double turn = 2 * std::numbers::pi * 1000 * t;
        time.values.emplace_back(t, 0);
        out.values.emplace_back(0.7 + 2 * std::sin(turn) + second * std::cos(2 * turn), 0);
    }
    plot.columns = {time, out};
    return plot;
}

} // namespace measures_test

using namespace measures_test;

TEST(Measures, findTheCornerAndTheLevelOfAHighPass)
{
    const Response response = responseOf(highPass(), "out", "in");
    EXPECT_NEAR(*gainAt(response, midBand), 5, 1e-6);
    EXPECT_NEAR(*lowCorner(response), 10, 0.01);
    // 1 / sqrt(1 + (10 / 20)^2) = 0.8944: -0.969 dB
    EXPECT_NEAR(*decibelAt(response, 20), -0.969, 0.001);
    EXPECT_NEAR(*inputImpedanceAt(highPass(), "in", "veg", midBand), 500, 1e-9);
}

TEST(Measures, giveNothingWhereThePlotLacksWhatTheyNeed)
{
    Plot plot = highPass();
    EXPECT_FALSE(gainAt(responseOf(plot, "elsewhere", "in"), midBand));
    EXPECT_FALSE(gainAt(responseOf(plot, "out", "in"), 1e9));
    EXPECT_FALSE(inputImpedanceAt(plot, "in", "vother", midBand));
    plot.columns[2].values[17] = std::nan("");
    EXPECT_FALSE(lowCorner(responseOf(plot, "out", "in")));
    EXPECT_TRUE(waveOf(plot, "v(out)", 1000, 10).values.empty());
    EXPECT_TRUE(waveOf(wave(0), "v(out)", 1000, 11).values.empty()) << "there are ten cycles only";
}

TEST(Measures, takeAWaveApartWhateverItsSteps)
{
    const Wave found = waveOf(wave(0.2), "v(out)", 1000, 10);
    const Harmonics harmonics = harmonicsOf(found);
    EXPECT_NEAR(harmonics[0], 1.4, 1e-3);
    EXPECT_NEAR(harmonics[1], 2, 1e-3);
    EXPECT_NEAR(harmonics[2], 0.2, 1e-3);
    EXPECT_NEAR(*distortion(harmonics), 10, 0.05);
    EXPECT_NEAR(mean(found), 0.7, 1e-3);
    // Mean of the square: 0.7^2 + 2^2 / 2 + 0.2^2 / 2
    EXPECT_NEAR(meanProduct(found, found), 2.51, 0.005);
    EXPECT_NEAR(peakToPeak(waveOf(wave(0), "v(out)", 1000, 10)), 4, 1e-3);
}

TEST(Measures, sayNothingOfTheDistortionOfSilence)
{
    EXPECT_FALSE(distortion(Harmonics{}));
}

} // namespace velmor::check::test
