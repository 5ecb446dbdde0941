// SPDX-License-Identifier: MIT
// The formulas of follower and splitter, operation by operation as the course writes them.
#include "designs/base_collector/follower_formulas.h"

#include <algorithm>

namespace velmor::base_collector {

Real transistorRoom(Real Eopp)
{
    return Eopp + 1.0;
}

Real leastSupply(Real Eopp)
{
    const Real supply = (Eopp * 0.5 + Eopp * 0.5) + transistorRoom(Eopp);
    return std::max(supply, Real(4.0));
}

Real obtainedCurrent(Real ERb1, Real Rb1, Real ERb2, Real Rb2, Real Beta)
{
    const Real IRb1 = ERb1 / (Rb1 * 1000.0);
    const Real IRb2 = ERb2 / (Rb2 * 1000.0);
    return ((IRb1 - IRb2) * Beta) * 1000.0;
}

bool withinATenth(Real obtained, Real wanted)
{
    const Real band = (10.0 / 100.0) * wanted;
    return obtained <= wanted + band && obtained >= wanted - band;
}

Real signalPower(Real Eopp, Real R)
{
    const Real volts = (Eopp / 2.0) * 0.707;
    return (volts * volts) / (R * 1000.0);
}

} // namespace velmor::base_collector
