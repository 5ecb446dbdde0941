// SPDX-License-Identifier: MIT
// The formulas of the constant current source. Their order of operations decides the last digit.
#include "designs/differential/form12_formulas.h"

namespace velmor::form12 {

namespace formulas_detail {

constexpr double twoJunctions = 1.2;
constexpr double lowestEq = 3.0;

} // namespace formulas_detail

using namespace formulas_detail;

Real eBiasOf(Real Eq, Real Eb)
{
    return (Eq + Eb) + twoJunctions;
}

Real eqFromEbias(Real Ebias, Real Eb)
{
    const Real Eq = Ebias - (twoJunctions + Eb);
    return Eq < lowestEq ? Real(lowestEq) : Eq;
}

Real lowerDrop(Real Ebias, Real Eb)
{
    return Ebias - (Eb + VjFixed);
}

Real eBiasFromRes(Real Eq, Real QIc, Real Res)
{
    return (Eq + (QIc * Res)) + VjFixed;
}

Real eqOfAnalysis(Real Ebias, Real ERes)
{
    return Ebias - (ERes + VjFixed);
}

} // namespace velmor::form12
