// SPDX-License-Identifier: MIT
// Orders of operations are those of the course: they decide the last digit.
#include "designs/power/form10_formulas.h"

#include <cmath>

#include "rules/numbers.h"
#include "sheets/formulas.h"

namespace velmor::form10 {

namespace constants {

constexpr double Beta = 100.0;
constexpr double outputBeta = 50.0;
constexpr double cutOff = 200.0; // Hz

} // namespace constants

using namespace constants;

Real outputSwing(Real Po, Real RLw)
{
    return Real(std::sqrt((Po * RLw).value())) * 1.41 * 2.0;
}

Real leastEq(Real Eopp)
{
    return 0.66 * Eopp;
}

Real leastSupply(Real EqMin)
{
    return 2.0 * EqMin + 2.0;
}

Real driverLoadVoltage(Real Es, Real junctions)
{
    return 0.5 * Es - junctions;
}

Real driverLoad(Real ERl, Real Ibias)
{
    return ERl / Ibias;
}

Real biasResistor(Real Ibias)
{
    return 6.0 / Ibias * 100.0;
}

Real upperBaseResistor(Real RLtotal)
{
    return 10.0 * RLtotal;
}

Real upperBaseVoltage(Real Eq, Real junction)
{
    return Eq - junction;
}

Real upperBaseCurrent(Real ERb1, Real Rb1)
{
    return ERb1 / (Rb1 * 1000.0);
}

Real baseCurrent(Real Ibias)
{
    return Ibias / 1000.0 / Beta;
}

Real lowerBaseCurrent(Real IRb1, Real Ib)
{
    return rules::CurrencyValue(IRb1 * 1000000.0 - Ib * 1000000.0).toDouble();
}

Real lowerBaseResistor(Real junction, Real IRb2)
{
    return junction / (IRb2 / 1000000.0);
}

Real biasWithLoad(Real Es, Real RLb, Real RLa)
{
    return Es / 2.0 / (RLb + RLa);
}

Real baseImpedance(Real re)
{
    return Beta * re;
}

Real inputImpedance(Real Z1, Real Rb1b)
{
    return (Z1 * Rb1b * 1000.0) / (Z1 + Rb1b * 1000.0);
}

Real seriesResistor(Real Zin)
{
    return 20.0 * Zin;
}

Real capacitorFor(Real R)
{
    return sheets::couplingCapacitor(cutOff, R);
}

Real driverLoadAc(Real RLtotal, Real RLw)
{
    return (RLtotal * 1000.0 * outputBeta * RLw) / (RLtotal * 1000.0 + outputBeta * RLw);
}

Real generatorSwing(Real Rs, Real Zin, Real Ein)
{
    return Rs * 1000.0 / Zin * Ein;
}

Real emitterVoltage(Real IcMax)
{
    return IcMax * 0.47;
}

Real peakCurrent(Real Eq, Real lost, Real RLw)
{
    return (Eq - lost) / RLw;
}

Real generatorPower(Real EgPP, Real Rs, Real Zin)
{
    const Real resistance = Rs * 1000.0 + Zin;
    if (resistance == 0.0)
        return 0.0;
    const Real rms = EgPP / 2.0 * 0.707;
    return rms * rms / resistance * 1000000.0;
}

} // namespace velmor::form10
