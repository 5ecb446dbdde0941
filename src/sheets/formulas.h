// SPDX-License-Identifier: MIT
// Formulas of the course that several sheets share digit for digit. One that a sheet works out in another order of operations
// stands beside that sheet, since the order decides the last digit.
#pragma once

#include "rules/real.h"

namespace velmor::sheets {

using rules::Real;

/// ERes = ((T - 20) x (dVbe / 1000) x 100) / dQIc: the voltage across Res that keeps QIc within dQIc per cent, in volts, from
/// degrees Celsius, mV per degree and %.
Real stabilityVoltage(Real T, Real dVbe, Real dQIc);

/// Res = ERes / (QIc / 1000), ohm from V and mA.
Real emitterResistor(Real ERes, Real QIc);

/// r'e = 25 / QIc, ohm from mA.
Real junctionResistance(Real QIc);

/// Two resistors in parallel, in the unit of both.
Real parallel(Real one, Real other);

/// RL = (RLw x RLac) / (RLw - RLac): the collector resistor that makes RLac beside the load. Negative when the load is too
/// heavy, a failure when both are equal.
Real collectorResistor(Real RLw, Real RLac);

/// Ein = (Eopp / 2 x 0.707) / Vg, V r.m.s. from V peak to peak.
Real inputForOutput(Real Eopp, Real Vg);

/// Eopp = Ein x 1.41 x 2 x Vg, V peak to peak from V r.m.s. Not the exact inverse of `inputForOutput`.
Real outputForInput(Real Ein, Real Vg);

/// C = 1 / (fo x 6.28 x 0.1 x R), F from Hz and ohm: the gain falls by 10 % at fo.
Real couplingCapacitor(Real fo, Real R);

} // namespace velmor::sheets
