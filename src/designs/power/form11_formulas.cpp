// SPDX-License-Identifier: MIT
// Orders of operations are those of the course: they decide the last digit.
#include "designs/power/form11_formulas.h"

#include <cmath>

namespace velmor::form11 {

namespace constants {

constexpr double emitterDrop = 0.3; // V
constexpr double Beta = 100.0;
constexpr double superBeta = 400.0;

} // namespace constants

using namespace constants;

Real outputSwing(Real Po, Real RLw)
{
    return std::sqrt((Po * 8.0 * RLw).value());
}

Real emitterResistor(Real Ibias)
{
    return emitterDrop / (Ibias / 1000.0);
}

Real emitterVoltage(Real Res, Real Ibias)
{
    return Res * (Ibias / 1000.0);
}

Real capacitorOfRb1a(Real Rb1a)
{
    return 1.0 / (125.6 * Rb1a * 1000.0) * 1000000.0;
}

Real baseImpedance(Real re, Real Res)
{
    return Beta * (re + Res);
}

Real driverLoadAc(Real RLa, Real RLw)
{
    return (RLa * 1000.0 * superBeta * RLw) / (RLa * 1000.0 + superBeta * RLw);
}

Real driverGain(Real RLac, Real re, Real Res)
{
    return RLac / (re + Res);
}

Real inputImpedance(Real Z1, Real Rb1b, Real Vg)
{
    return (Z1 * (Rb1b / Vg) * 1000.0) / (Z1 + Rb1b / Vg * 1000.0);
}

Real generatorSwing(Real Rs, Real Zin, Real Ein)
{
    const Real ratio = Rs * 1000.0 / Zin;
    return ratio < 2.0 ? Ein * 2.0 : ratio * Ein;
}

Real effectiveInput(Real EgPP)
{
    return EgPP * 0.707 / 2.0;
}

} // namespace velmor::form11
