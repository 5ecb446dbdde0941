// SPDX-License-Identifier: MIT
// The formulas of the long-tailed pair. Their order of multiplication and division decides the last digit.
#include "designs/differential/form3_formulas.h"

#include "rules/numbers.h"
#include "sheets/formulas.h"

namespace velmor::form3 {

Real leastERes(Real T, Real dVbe, Real dQic)
{
    return ((T - 20.0) * dVbe * 100.0 * 0.001) / dQic;
}

Real resOf(Real Ebias, Real QIc)
{
    return Ebias / (QIc * 2.0);
}

Real rlacOf(Real Vg, Real ReDyn)
{
    return (Vg * 2.5) * ReDyn;
}

bool loadEqualsRlac(Real RLw, Real RLac)
{
    return RLw * 1000.0 - RLac == Real(0.0);
}

Real rlForEopp(Real Eopp, Real QIc)
{
    return rules::TruncToInteger(((Eopp / 2.0) + 1.0) / QIc);
}

Real zinOf(Real Beta, Real ReDyn)
{
    return (Beta * 2.0) * ReDyn;
}

Real ccoOf(Real fo, Real RLw)
{
    return Real(1.0) / ((((Real(6.28) * fo) * 0.1) * RLw) * 1000.0);
}

Real vgOf(Real RL, Real RLw, Real ReDyn)
{
    return sheets::parallel(RL * 1000.0, RLw * 1000.0) / (2.5 * ReDyn);
}

Real benchEopp(Real Eopp)
{
    constexpr double least = 3.0;
    return Eopp < least ? Real(least) : Eopp;
}

Real vrms(const Quantities& q)
{
    return (q.Eopp / 2.0) * 0.707;
}

Real outputPower(const Quantities& q)
{
    return vrms(q) * vrms(q) / q.RLac;
}

Real inputPower(const Quantities& q)
{
    return ((q.Ein * q.Ein) / q.Zin) * 1000.0;
}

Real bothCurrents(const Quantities& q)
{
    return q.QIc * 2.0;
}

Real negativePower(const Quantities& q)
{
    return (q.Ebias * q.QIc * 2.0) / 1000.0;
}

Real positivePower(const Quantities& q)
{
    return (q.Es * q.QIc * 2.0) / 1000.0;
}

Real baseVoltage(const Quantities& q)
{
    return q.Rb2 * (q.QIc / q.Beta);
}

Real baseCurrent(const Quantities& q)
{
    return q.QIc / q.Beta;
}

Real loadImpedance(const Quantities& q)
{
    return q.RLw * 1000.0;
}

} // namespace velmor::form3
