// SPDX-License-Identifier: MIT
// The working numbers of the phase splitter and its own formulas; those that it shares stand in follower_formulas.
// Knows no control.
#pragma once

#include "host/own_values.h"
#include "rules/real.h"

namespace velmor::form9 {

using rules::Real;

/// What one sheet holds between its slots.
struct Quantities {
    Real EQ;  ///< V across the transistor
    Real ERL; ///< V across RL, and across Res alike: the least, the half of what is left, and at last QIc x RL
    Real Rb2; ///< kilohm, as worked out
    Real Rb1; ///< kilohm, as worked out and not rounded
    bool passed = false; ///< the last step of the chain has ended without a warning
};

// clang-format off
inline constexpr auto quantityTable = host::everyMember<Quantities>(
    host::own<&Quantities::EQ>("EQ"),
    host::own<&Quantities::ERL>("ERL"),
    host::own<&Quantities::Rb2>("Rb2"),
    host::own<&Quantities::Rb1>("Rb1"),
    host::own<&Quantities::passed>("passed"));
// clang-format on

/// ERL(min) = 0.5 x Eopp, V from V peak to peak.
Real leastLoadVoltage(Real Eopp);

/// ERL = (Es - EQ) / 2: RL and Res share alike what the transistor leaves of the supply, V.
Real halfOfTheRest(Real Es, Real EQ);

/// RL = ERL / (QIc / 1000), ohm from V and mA. QIc of 0 is a failure.
Real loadResistor(Real ERL, Real QIc);

/// ERL = ((QIc / 1000) x R) x 1000, V from mA and kilohms: also what stands on Res for the preset's divider, in another
/// order of the same product (`emitterVoltage`).
Real loadVoltage(Real QIc, Real RL);

/// VRes = (RL x 1000) x (QIc / 1000), V from kilohms and mA.
Real emitterVoltage(Real RL, Real QIc);

/// Es = ((2 x ERL) + Eopp) + 1, V.
Real supplyFor(Real ERL, Real Eopp);

/// Rb2 = S x (RL // RLw), kilohms.
Real lowerBaseResistor(Real S, Real RL, Real RLw);

/// ZBase = Rb2 // Beta x RL, kilohms. It is Zin as well: Rb1 is left out.
Real baseImpedance(Real Rb2, Real Beta, Real RL);

/// Rb1 = (VRb1 x ZBase) / (ERL + Vj) with VRb1 = (EQ + ERL) + Vj, kilohms from volts and kilohms. The junction's
/// voltage is added where it should be taken away; it stays so.
Real upperBaseResistor(Real EQ, Real ERL, Real Vj, Real ZBase);

} // namespace velmor::form9
