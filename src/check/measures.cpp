// SPDX-License-Identifier: MIT
// Interpolation over logarithms, resampling to even steps, sums over whole cycles.
#include "check/measures.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>

namespace velmor::check {

namespace measures_detail {

constexpr std::size_t valuesPerCycle = 400;

std::string voltageName(std::string_view node)
{
    return "v(" + std::string(node) + ")";
}

/// The share of the way from one to the other, both above 0.
double logShare(double from, double to, double at)
{
    return std::log(at / from) / std::log(to / from);
}

/// A node that the simulator calls 0 has no column.
bool isNumber(double value)
{
    return std::isfinite(value);
}

/// Reads a real column at any moment between its ends.
class Track {
public:
    Track(const Column& time, const Column& value) : time_(time.values), value_(value.values) {}

    double at(double moment)
    {
        while (next_ + 1 < time_.size() && time_[next_].real() < moment)
            ++next_;
        const double from = time_[next_ - 1].real();
        const double to = time_[next_].real();
        const double share = to > from ? (moment - from) / (to - from) : 1.0;
        return value_[next_ - 1].real() + share * (value_[next_].real() - value_[next_ - 1].real());
    }

private:
    const std::vector<std::complex<double>>& time_;
    const std::vector<std::complex<double>>& value_;
    std::size_t next_ = 1;
};

} // namespace measures_detail

using namespace measures_detail;

Response responseOf(const Plot& plot, std::string_view outputNode, std::string_view inputNode)
{
    const Column* frequency = plot.column("frequency");
    const Column* out = plot.column(voltageName(outputNode));
    const Column* in = plot.column(voltageName(inputNode));
    Response response;
    if (frequency == nullptr || out == nullptr || in == nullptr)
        return response;
    for (std::size_t i = 0; i < plot.length(); ++i) {
        // The imaginary part of the frequency is memory that nobody has set.
        const double hertz = frequency->values[i].real();
        const double gain = std::abs(out->values[i] / in->values[i]);
        if (!isNumber(gain) || gain <= 0 || !isNumber(hertz) || hertz <= 0)
            return {};
        response.frequency.push_back(hertz);
        response.gain.push_back(gain);
    }
    return response;
}

Measured gainAt(const Response& response, double frequency)
{
    for (std::size_t i = 1; i < response.frequency.size(); ++i) {
        if (response.frequency[i] < frequency || response.frequency[i - 1] > frequency)
            continue;
        const double share = logShare(response.frequency[i - 1], response.frequency[i], frequency);
        return response.gain[i - 1] * std::pow(response.gain[i] / response.gain[i - 1], share);
    }
    return std::nullopt;
}

Measured decibelAt(const Response& response, double fo)
{
    const Measured middle = gainAt(response, midBand);
    const Measured low = gainAt(response, fo);
    if (!middle || !low)
        return std::nullopt;
    return 20 * std::log10(*low / *middle);
}

Measured lowCorner(const Response& response)
{
    const Measured middle = gainAt(response, midBand);
    if (!middle)
        return std::nullopt;
    const double wanted = *middle / std::numbers::sqrt2;
    for (std::size_t i = response.frequency.size(); i-- > 1;) {
        if (response.frequency[i] > midBand || response.gain[i - 1] > wanted)
            continue;
        const double share = logShare(response.gain[i - 1], response.gain[i], wanted);
        return response.frequency[i - 1] * std::pow(response.frequency[i] / response.frequency[i - 1], share);
    }
    return std::nullopt;
}

Measured inputImpedanceAt(const Plot& plot, std::string_view inputNode, std::string_view generatorName,
                          double frequency)
{
    const Column* hertz = plot.column("frequency");
    const Column* volts = plot.column(voltageName(inputNode));
    const Column* amperes = plot.column("i(" + std::string(generatorName) + ")");
    if (hertz == nullptr || volts == nullptr || amperes == nullptr)
        return std::nullopt;
    for (std::size_t i = 0; i < plot.length(); ++i)
        if (hertz->values[i].real() >= frequency * 0.999) {
            const double ohms = std::abs(volts->values[i] / amperes->values[i]);
            return isNumber(ohms) ? Measured(ohms) : std::nullopt;
        }
    return std::nullopt;
}

Measured pointOf(const Plot& plot, std::string_view column, std::size_t row)
{
    const Column* found = plot.column(column);
    if (found == nullptr || row >= found->values.size() || !isNumber(found->values[row].real()))
        return std::nullopt;
    return found->values[row].real();
}

Wave waveOf(const Plot& plot, std::string_view column, double frequency, int cycles)
{
    const Column* time = plot.column("time");
    const Column* value = plot.column(column);
    if (time == nullptr || value == nullptr || plot.length() < 2)
        return {};
    const double end = time->values.back().real();
    const double begin = end - cycles / frequency;
    const double slack = 1e-9 + 1e-6 * cycles / frequency;
    if (!isNumber(end) || begin < time->values.front().real() - slack)
        return {};
    Wave wave{.step = 1 / frequency / static_cast<double>(valuesPerCycle), .cycles = cycles};
    Track track(*time, *value);
    const std::size_t count = valuesPerCycle * static_cast<std::size_t>(cycles);
    for (std::size_t i = 0; i < count; ++i)
        wave.values.push_back(track.at(begin + wave.step * static_cast<double>(i)));
    const bool allNumbers = std::all_of(wave.values.begin(), wave.values.end(), isNumber);
    return allNumbers ? wave : Wave{};
}

Harmonics harmonicsOf(const Wave& wave)
{
    Harmonics harmonics{};
    if (wave.values.empty())
        return harmonics;
    const double turn = 2 * std::numbers::pi * wave.cycles / static_cast<double>(wave.values.size());
    for (std::size_t order = 0; order < harmonicCount; ++order) {
        std::complex<double> sum;
        for (std::size_t i = 0; i < wave.values.size(); ++i)
            sum += wave.values[i] * std::polar(1.0, -turn * static_cast<double>(order * i));
        harmonics[order] = 2 * std::abs(sum) / static_cast<double>(wave.values.size());
    }
    return harmonics;
}

Measured distortion(const Harmonics& harmonics)
{
    double squares = 0;
    for (std::size_t order = 2; order < harmonicCount; ++order)
        squares += harmonics[order] * harmonics[order];
    if (harmonics[1] <= 1e-12)
        return std::nullopt;
    return 100 * std::sqrt(squares) / harmonics[1];
}

double peakToPeak(const Wave& wave)
{
    if (wave.values.empty())
        return 0;
    const auto [least, most] = std::minmax_element(wave.values.begin(), wave.values.end());
    return *most - *least;
}

double mean(const Wave& wave)
{
    return meanProduct(wave, {.values = std::vector<double>(wave.values.size(), 1.0)});
}

double meanProduct(const Wave& one, const Wave& other)
{
    const std::size_t count = std::min(one.values.size(), other.values.size());
    double sum = 0;
    for (std::size_t i = 0; i < count; ++i)
        sum += one.values[i] * other.values[i];
    return count == 0 ? 0 : sum / static_cast<double>(count);
}

} // namespace velmor::check
