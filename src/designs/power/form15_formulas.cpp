// SPDX-License-Identifier: MIT
// The formulas of the class A stages, operation by operation as the course writes them.
#include "designs/power/form15_formulas.h"

#include <cmath>

#include "rules/numbers.h"

namespace velmor::form15 {

void divide(Real& quantity, Real above, Real below)
{
    if (below != Real(0.0))
        quantity = above / below;
}

Real swingOfPower(Real Po, Real RLw)
{
    return Real(std::sqrt((Po * 8.0 * RLw).value()));
}

Real powerOfSwing(Real Eopp, Real RLw)
{
    const Real effectiveVolts = effective(Eopp);
    return effectiveVolts * effectiveVolts / RLw;
}

Real swingOfCurrent(Real QIc2, Real RLw)
{
    return QIc2 * 2.0 * RLw;
}

Real quiescentVoltage(Real Eopp)
{
    return rules::CurrencyValue(0.66 * Eopp).toDouble();
}

Real lessCurrency(Real Eq, double drop)
{
    using rules::CurrencyValue;
    return CurrencyValue::fromScaled(CurrencyValue(Eq).scaled() - CurrencyValue(drop).scaled()).toDouble();
}

Real proposedCurrent(Real QIcRLw)
{
    return QIcRLw + QIcRLw * 10.0 / 100.0;
}

Real resistanceOfCoil(Real RLw)
{
    return RLw - RLw * 30.0 / 100.0;
}

Real effective(Real EgPP)
{
    return EgPP / 2.0 * 0.707;
}

bool isBeyondTolerance(Real value, Real Rb2)
{
    const Real part = Rb2 * biasTolerance / 100.0;
    return value < Rb2 - part || value > Rb2 + part;
}

Real wholeOhms(Real R)
{
    return std::nearbyint(R.value());
}

} // namespace velmor::form15
