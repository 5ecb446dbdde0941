// SPDX-License-Identifier: MIT
// The follower's own formulas, operation by operation as the course writes them.
#include "designs/base_collector/form17_formulas.h"

#include <algorithm>

#include "rules/numbers.h"
#include "sheets/formulas.h"

namespace velmor::form17 {

Real currentForOutput(Real Eopp, Real R)
{
    return Eopp / (2.0 * R);
}

Real quiescentCurrent(Real Eopp, Real RLw)
{
    return std::max(currentForOutput(Eopp, RLw), Real(0.5));
}

Real largestCurrent(Real IcMax)
{
    return IcMax * 40.0 / 100.0;
}

Real proposedEmitterResistor(Real RLw)
{
    return 20.0 * RLw;
}

Real lowerBaseResistor(Real S, Real Res)
{
    return rules::CurrencyValue(S * Res).toDouble();
}

Real upperBaseResistor(Real ERb1, Real Rb2, Real BetaRes, Real ERes, Real Vbe)
{
    return ERb1 * sheets::parallel(Rb2, BetaRes) / (ERes + Vbe);
}

Real stabilityFactor(Real Rb2, Real Res, Real RLw)
{
    return (Rb2 / (Res * RLw)) / (Res + RLw);
}

Real inputImpedance(Real Rb2, Real Beta, Real RLac)
{
    return sheets::parallel(Rb2, Beta * RLac);
}

Real couplingMicrofarads(Real fo, Real R)
{
    return 1000.0 / ((6.28 * fo * 0.1) * R);
}

} // namespace velmor::form17
