// SPDX-License-Identifier: MIT
// The phase splitter's own formulas, operation by operation as the course writes them.
#include "designs/base_collector/form9_formulas.h"

#include "sheets/formulas.h"

namespace velmor::form9 {

Real leastLoadVoltage(Real Eopp)
{
    return 0.5 * Eopp;
}

Real halfOfTheRest(Real Es, Real EQ)
{
    return (Es - EQ) / 2.0;
}

Real loadResistor(Real ERL, Real QIc)
{
    return ERL / (QIc / 1000.0);
}

Real loadVoltage(Real QIc, Real RL)
{
    return ((QIc / 1000.0) * RL) * 1000.0;
}

Real emitterVoltage(Real RL, Real QIc)
{
    return (RL * 1000.0) * (QIc / 1000.0);
}

Real supplyFor(Real ERL, Real Eopp)
{
    return ((2.0 * ERL) + Eopp) + 1.0;
}

Real lowerBaseResistor(Real S, Real RL, Real RLw)
{
    return S * sheets::parallel(RL, RLw);
}

Real baseImpedance(Real Rb2, Real Beta, Real RL)
{
    return sheets::parallel(Rb2, Beta * RL);
}

Real upperBaseResistor(Real EQ, Real ERL, Real Vj, Real ZBase)
{
    const Real VRb1 = (EQ + ERL) + Vj;
    return (VRb1 * ZBase) / (ERL + Vj);
}

} // namespace velmor::form9
