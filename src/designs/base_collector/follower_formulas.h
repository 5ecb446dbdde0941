// SPDX-License-Identifier: MIT
// Formulas that the emitter follower and the phase splitter share digit for digit, some of them with the common base:
// least supply, room of the transistor, the current that a preset gives, and the powers of the analysis. Knows no sheet.
#pragma once

#include "rules/real.h"

namespace velmor::base_collector {

using rules::Real;

/// EQ = Eopp + 1: room for the whole output and one volt more, V from V peak to peak.
Real transistorRoom(Real Eopp);

/// EsMin = Eopp x 0.5 + Eopp x 0.5 + (Eopp + 1), at least 4: half the output on each side of the transistor's room, V
/// from V peak to peak.
Real leastSupply(Real Eopp);

/// QIc obtained = (ERb1 / (Rb1 x 1000) - ERb2 / (Rb2 x 1000)) x Beta x 1000: what the divider leaves to the base, times
/// Beta; mA from the volts on both resistors and kilohms. Rb1 or Rb2 of 0 is a failure.
Real obtainedCurrent(Real ERb1, Real Rb1, Real ERb2, Real Rb2, Real Beta);

/// Whether the current obtained lies within a tenth of the one wanted, the limits included; both in the same unit.
bool withinATenth(Real obtained, Real wanted);

/// P = ((Eopp / 2) x 0.707)^2 / (R x 1000), W from V peak to peak and kilohms. R of 0 is a failure.
Real signalPower(Real Eopp, Real R);

} // namespace velmor::base_collector
