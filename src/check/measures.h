// SPDX-License-Identifier: MIT
// What is read off the simulator's plots, in code of our own: gain, corner, input impedance, swing, harmonics, power. It knows
// no sheet. Each gives nothing where the plot lacks what it needs or holds numbers that are none.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "check/raw_file.h"

namespace velmor::check {

using Measured = std::optional<double>;

/// The frequency that stands for the middle of the band, Hz: the transistors have no capacitances, so nothing falls there any more.
inline constexpr double midBand = 1e5;

/// One curve: gain (as a plain ratio) over frequency in Hz, both of the same length, the frequencies growing.
struct Response {
    std::vector<double> frequency{};
    std::vector<double> gain{};
};

/// Share of one voltage in another over frequency. Empty when one is missing.
Response responseOf(const Plot& plot, std::string_view outputNode, std::string_view inputNode);

/// Between two points on straight lines over the logarithms.
Measured gainAt(const Response& response, double frequency);

/// 20 log of the gain at fo (Hz) over that in the middle of the band, dB.
Measured decibelAt(const Response& response, double fo);

/// The highest frequency below the middle of the band at which the gain is 0.707 of that in the middle, Hz.
Measured lowCorner(const Response& response);

/// V / I at a frequency (Hz), ohm, from the node behind the generator's resistance and the current of the generator.
Measured inputImpedanceAt(const Plot& plot, std::string_view inputNode, std::string_view generatorName,
                          double frequency);

/// The value of an operating point: volts of a node, amperes of a current.
Measured pointOf(const Plot& plot, std::string_view column, std::size_t row = 0);

/// A wave in even steps over whole cycles: the last of the plot.
struct Wave {
    double step = 0; ///< s
    int cycles = 0;
    std::vector<double> values{}; ///< V; `cycles` times the same number of values
};

/// Empty when the plot does not hold so many cycles of that frequency (Hz).
Wave waveOf(const Plot& plot, std::string_view column, double frequency, int cycles);

/// Peaks of the harmonics 0 (twice the mean) to 5, in the unit of the wave.
inline constexpr std::size_t harmonicCount = 6;
using Harmonics = std::array<double, harmonicCount>;
Harmonics harmonicsOf(const Wave& wave);

/// Harmonics 2 to 5 as a share of the fundamental, %; nothing where there is no fundamental.
Measured distortion(const Harmonics& harmonics);

double peakToPeak(const Wave& wave);
double mean(const Wave& wave);
/// Mean of the product of two waves of the same length: W from V and A.
double meanProduct(const Wave& one, const Wave& other);

} // namespace velmor::check
