// SPDX-License-Identifier: MIT
// Climbs one truth at a time.
#include "check/ladder.h"

#include <algorithm>
#include <cmath>

namespace velmor::check {

double decibel(double value, double reference)
{
    return value > 0 && reference > 0 ? 20 * std::log10(value / reference) : 0;
}

double Ladder::remainder() const
{
    return std::abs(decibel(measured, end()));
}

double Ladder::stepOf(std::size_t rung) const
{
    return decibel(rungs[rung].value, rung == 0 ? start : rungs[rung - 1].value);
}

const Rung* Ladder::highest() const
{
    const Rung* highest = nullptr;
    double most = -1;
    for (std::size_t i = 0; i < rungs.size(); ++i)
        if (std::abs(stepOf(i)) > most) {
            most = std::abs(stepOf(i));
            highest = &rungs[i];
        }
    return highest;
}

Ladder climb(double start, const Stage& stage, double (*formula)(const Stage&, Truths), Truths counted,
             std::span<const RungRow> rows, double measured)
{
    Ladder ladder{.start = start, .measured = measured};
    for (const RungRow& row : rows) {
        counted.add(row.truth);
        ladder.rungs.push_back({formula(stage, counted), row.reason});
    }
    return ladder;
}

} // namespace velmor::check
