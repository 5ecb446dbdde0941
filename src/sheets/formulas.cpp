// SPDX-License-Identifier: MIT
// The shared formulas, operation by operation as the course writes them.
#include "sheets/formulas.h"

namespace velmor::sheets {

namespace formulas_detail {

constexpr double junctionMillivolts = 25.0;
constexpr double twoPi = 6.28;
constexpr double tenth = 0.1;

} // namespace formulas_detail

using namespace formulas_detail;

Real stabilityVoltage(Real T, Real dVbe, Real dQIc)
{
    return ((T - 20.0) * (dVbe / 1000.0) * 100.0) / dQIc;
}

Real emitterResistor(Real ERes, Real QIc)
{
    return ERes / (QIc / 1000.0);
}

Real junctionResistance(Real QIc)
{
    return junctionMillivolts / QIc;
}

Real parallel(Real one, Real other)
{
    return (one * other) / (one + other);
}

Real collectorResistor(Real RLw, Real RLac)
{
    return (RLw * RLac) / (RLw - RLac);
}

Real inputForOutput(Real Eopp, Real Vg)
{
    return (Eopp / 2.0 * 0.707) / Vg;
}

Real outputForInput(Real Ein, Real Vg)
{
    return Ein * 1.41 * 2.0 * Vg;
}

Real couplingCapacitor(Real fo, Real R)
{
    return 1.0 / ((fo * twoPi * tenth) * R);
}

} // namespace velmor::sheets
