// SPDX-License-Identifier: MIT
// The formulas of the compound differential amplifier. Their order of multiplication and division decides the last digit.
#include "designs/differential/form13_formulas.h"

#include <algorithm>

#include "rules/numbers.h"
#include "sheets/formulas.h"

namespace velmor::form13 {

namespace formulas_detail {

constexpr double Vj = 0.6;
constexpr double Beta = 100.0;
constexpr double ohmsPerKilohm = 1000.0;

} // namespace formulas_detail

using namespace formulas_detail;

Real eResOf(Real T)
{
    return (((T - 20.0) * 0.0025) * 100.0) / 7.0;
}

Real einOf(Real Eopp, Real Vg)
{
    return ((Eopp / Vg) / 2.0) * 0.707;
}

Real eoppOf(Real Vg, Real Ein)
{
    return ((Vg * Ein) * 1.41) * 2.0;
}

Real outputRms(Real Eopp)
{
    return (Eopp / 2.0) * 0.707;
}

Real rl2Start(Real ERes)
{
    return 4.0 * (ERes / 1.0);
}

Real wholeRes(Real ERes, Real current)
{
    return std::max<double>(1.0, rules::RoundToInt16(ERes / current));
}

Real leastEQ34(Real Eopp)
{
    return Eopp + 1.0;
}

Real leastEs(Real ERL2, Real ERes, Real EQ34Min)
{
    return (ERL2 + ERes) + EQ34Min;
}

Real qIc34Of(Real ERes, Real Res)
{
    return (ERes / Res) / 2.0;
}

Real s5Of(Real RL2, Real Res34)
{
    return RL2 / Res34;
}

Real vgQ34Of(Real RL2, Real ReQ34)
{
    return (RL2 * ohmsPerKilohm) / (2.5 * ReQ34);
}

Real inputOfEmitter(Real Res)
{
    return Beta * Res;
}

Real eq12Of(Real ERes)
{
    return ERes + Vj;
}

Real rl1Of(Real Res)
{
    return 5.7 * Res;
}

Real inputOfPair(Real Re)
{
    return (2.0 * Beta) * Re;
}

Real rlac12Of(Real RL1, Real ZinQ34)
{
    return sheets::parallel(RL1 * ohmsPerKilohm, ZinQ34);
}

Real vgQ12Of(Real RLac12, Real ReQ12)
{
    return RLac12 / (1.25 * ReQ12);
}

Real eRes1Of(Real EQ34, Real ERes)
{
    return (EQ34 + ERes) - Vj;
}

Real c1Of(Real Rb1)
{
    return 1.0 / (12.56 * Rb1);
}

} // namespace velmor::form13
