// SPDX-License-Identifier: MIT
// The working numbers of the emitter follower and its own formulas; those that it shares stand in follower_formulas.
// Resistors in kilohms and currents in milliamperes, so that volts = mA x kilohm. Knows no control.
#pragma once

#include "host/own_values.h"
#include "rules/real.h"

namespace velmor::form17 {

using rules::Real;

/// What one sheet holds between its slots.
struct Quantities {
    Real RLw;            ///< kilohm, as the field was left
    Real QIc;            ///< mA, as worked out from the load
    Real EQ;             ///< V across the transistor
    Real ERes;           ///< V
    Real Es;             ///< V
    Real Rb1;            ///< kilohm, as worked out
    bool passed = false; ///< the last step of the chain has ended without a warning
};

// clang-format off
inline constexpr auto quantityTable = host::everyMember<Quantities>(
    host::own<&Quantities::RLw>("RLw"),
    host::own<&Quantities::QIc>("QIc"),
    host::own<&Quantities::EQ>("EQ"),
    host::own<&Quantities::ERes>("ERes"),
    host::own<&Quantities::Es>("Es"),
    host::own<&Quantities::Rb1>("Rb1"),
    host::own<&Quantities::passed>("passed"));
// clang-format on

/// QIc = Eopp / (2 x R): the current that can just be taken away at the lower peak, mA from V peak to peak and kilohms.
/// R of 0 is a failure. R is the load alone at first, RLac once Res is known.
Real currentForOutput(Real Eopp, Real R);

/// QIc = Eopp / (2 x RLw), at least 0.5, mA.
Real quiescentCurrent(Real Eopp, Real RLw);

/// 40 % of the largest collector current, in its unit.
Real largestCurrent(Real IcMax);

/// Res = 20 x RLw: takes a twentieth of the signal from the load; kilohms.
Real proposedEmitterResistor(Real RLw);

/// Rb2 = S x Res to four decimals, kilohms.
Real lowerBaseResistor(Real S, Real Res);

/// Rb1 = ERb1 x Rp / (ERes + Vbe) with Rp = Rb2 // Beta x Res, kilohms from volts and kilohms.
Real upperBaseResistor(Real ERb1, Real Rb2, Real BetaRes, Real ERes, Real Vbe);

/// S = (Rb2 / (Res x RLw)) / (Res + RLw), kilohms. The product over the sum is missing its way: the division by the sum
/// should be a multiplication. It stays, and gives way to Rb2 / Res at the next field.
Real stabilityFactor(Real Rb2, Real Res, Real RLw);

/// Zin = Rb2 // Beta x RLac, kilohms.
Real inputImpedance(Real Rb2, Real Beta, Real RLac);

/// C = 1000 / ((6.28 x fo x 0.1) x R), microfarads from Hz and kilohms. R of 0 is a failure.
Real couplingMicrofarads(Real fo, Real R);

} // namespace velmor::form17
