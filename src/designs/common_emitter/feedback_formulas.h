// SPDX-License-Identifier: MIT
// The formulas of the two sheets fed back by voltage, beyond those that all sheets share (sheets/formulas.h). Each takes and gives
// the units that its comment names; they know no control. The order of the operations is the course's: displayed digits depend
// on it.
#pragma once

#include "rules/numbers.h"

namespace velmor::feedback {

using rules::CurrencyValue;
using rules::Real;

/// RLac in ohm = Vg x r'e, with r'e in ohm.
Real alternatingLoad(Real Vg, Real rE);

/// ERL in V = QIc x RL, with QIc in mA, RL in kilohm.
Real loadVoltage(Real QIc, Real RL);

/// Eq in V = 0.66 x Eopp; below 1 V a volt is added, so that a small swing is lifted by 1 V, not to 1 V.
Real leastEq(Real Eopp);

/// True when a value lies outside what was worked out plus or minus so many per cent. Around a negative one everything does.
bool isBeyond(Real value, Real workedOut, double percent);

/// Ib in A = (QIc / 1000) / Beta, with QIc in mA.
Real baseCurrent(Real QIc, Real Beta);

/// Rb1 in ohm = (Eq - Vj) / Ib, with Ib = (QIc / 1000) / Beta; V, mA.
Real feedbackResistor(Real Eq, Real Vj, Real QIc, Real Beta);

/// Vg = RLac x 1000 / r'e, with RLac in kilohm, r'e in ohm: what the RL in use gives.
Real gainOfLoad(Real RLac, Real rE);

/// Zin in ohm = (Rb1 / Vg) x Beta x r'e / (Rb1 / Vg + Beta x r'e): Rb1, in ohm, counts as Vg times smaller.
Real inputImpedance(Real Rb1, Real Vg, Real Beta, Real rE);

/// Zin in ohm with the capacitor Cdp = ((Rb1 / 2 x Beta x r'e) / (Rb1 / 2)) + Beta x r'e, with Rb1 in ohm. It equals
/// 2 x Beta x r'e and stays in the form of the course.
Real inputImpedanceBootstrapped(Real Rb1, Real Beta, Real rE);

/// The same on the stabilised sheet = (Rb1 / 2 x 1000) x (Beta x r'e) / (Rb1 / 2 x 1000 + Beta x r'e), with Rb1 in kilohm.
Real halfResistorInput(Real Rb1, Real Beta, Real rE);

/// Zin in ohm of a stage with Rb2 = Z1 x (1000 x Rb2) / (Z1 + 1000 x Rb2), with Z1 in ohm. Rb2 is meant in kilohm; while it is
/// held in ohm it comes out a thousand times too large, and so the course keeps it.
Real inputBesideRb2(Real Z1, Real Rb2);

/// Cout in F = 1 / (6.28 x fo x 0.1 x RLw x 1000), with fo in Hz, RLw in kilohm.
Real outputCapacitor(Real fo, Real RLw);

/// S = Rb1 / RL without its fraction, both in kilohm.
Real stabilityFactor(Real Rb1, Real RL);

/// IRb1 in A = (Eq - Vj) / (Rb1 x 1000), with V and kilohm.
Real feedbackCurrent(Real Eq, Real Vj, Real Rb1);

/// Rb2 in ohm = Vj / IRb2 to four decimals, with IRb2 = IRb1 - Ib in A.
CurrencyValue lowerBaseResistor(Real Vj, Real IRb2);

/// QIc in A = (IRb1 - Vj / (1000 x Rb2)) x Beta, with IRb1 in A, Rb2 in kilohm: what the Rb2 in use gives.
Real obtainedCurrent(Real IRb1, Real Vj, Real Rb2, Real Beta);

/// P in W = (Eopp / 2 x 0.707)^2 / R, with V peak to peak and ohm.
Real powerOfSwing(Real Eopp, Real R);

} // namespace velmor::feedback
