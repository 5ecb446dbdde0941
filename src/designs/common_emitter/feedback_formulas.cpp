// SPDX-License-Identifier: MIT
// The formulas, operation by operation as the course writes them.
#include "designs/common_emitter/feedback_formulas.h"

namespace velmor::feedback {

namespace formulas_detail {

constexpr double twoPi = 6.28;
constexpr double tenth = 0.1;

} // namespace formulas_detail

using namespace formulas_detail;

Real alternatingLoad(Real Vg, Real rE)
{
    return Vg * rE;
}

Real loadVoltage(Real QIc, Real RL)
{
    return QIc * RL;
}

Real leastEq(Real Eopp)
{
    const Real Eq = 0.66 * Eopp;
    return Eq < 1 ? Eq + 1.0 : Eq;
}

bool isBeyond(Real value, Real workedOut, double percent)
{
    const Real band = workedOut * percent / 100.0;
    return value < workedOut - band || value > workedOut + band;
}

Real baseCurrent(Real QIc, Real Beta)
{
    return (QIc / 1000.0) / Beta;
}

Real feedbackResistor(Real Eq, Real Vj, Real QIc, Real Beta)
{
    return (Eq - Vj) / baseCurrent(QIc, Beta);
}

Real gainOfLoad(Real RLac, Real rE)
{
    return RLac * 1000.0 / rE;
}

Real inputImpedance(Real Rb1, Real Vg, Real Beta, Real rE)
{
    return (Rb1 / Vg) * Beta * rE / (Rb1 / Vg + Beta * rE);
}

Real inputImpedanceBootstrapped(Real Rb1, Real Beta, Real rE)
{
    return ((Rb1 / 2.0 * Beta * rE) / (Rb1 / 2.0)) + Beta * rE;
}

Real halfResistorInput(Real Rb1, Real Beta, Real rE)
{
    const Real half = Rb1 / 2.0 * 1000.0;
    return half * (Beta * rE) / (half + Beta * rE);
}

Real inputBesideRb2(Real Z1, Real Rb2)
{
    return Z1 * (1000.0 * Rb2) / (Z1 + 1000.0 * Rb2);
}

Real outputCapacitor(Real fo, Real RLw)
{
    return 1.0 / (twoPi * fo * tenth * RLw * 1000.0);
}

Real stabilityFactor(Real Rb1, Real RL)
{
    return rules::TruncToInteger(Rb1 / RL);
}

Real feedbackCurrent(Real Eq, Real Vj, Real Rb1)
{
    return (Eq - Vj) / (Rb1 * 1000.0);
}

CurrencyValue lowerBaseResistor(Real Vj, Real IRb2)
{
    return CurrencyValue(Vj / IRb2);
}

Real obtainedCurrent(Real IRb1, Real Vj, Real Rb2, Real Beta)
{
    return (IRb1 - Vj / (1000.0 * Rb2)) * Beta;
}

Real powerOfSwing(Real Eopp, Real R)
{
    const Real rms = Eopp / 2.0 * 0.707;
    return rms * rms / R;
}

} // namespace velmor::feedback
