// SPDX-License-Identifier: MIT
// The formulas of the common-emitter sheets stabilised by current, beyond those that all sheets share (sheets/formulas.h). Each
// takes and gives the units that its comment names; they know no control. The order of the operations is the course's: displayed
// digits depend on it.
//
// Constants of the course: 25 mV is the voltage of a junction, 6.28 two pi, 0.1 the tenth of the reactance rule (the
// capacitor's reactance is a tenth of the resistance at the lowest frequency).
#pragma once

#include "rules/numbers.h"

namespace velmor::common_emitter {

using rules::CurrencyValue;
using rules::Real;

/// QIc in mA = ERes / Res x 1000, with ERes in V, Res in ohm: a standard resistor moves QIc, not ERes.
Real quiescentCurrent(Real emitterVoltage, Real Res);

/// RLac in ohm = Vg x r'e, the load of a bypassed stage; QIc in mA.
Real bypassedLoad(Real Vg, Real QIc);

/// RLac in ohm = Vg x 25 / QIc, the same load on a sheet of its own for it; QIc in mA. Multiplied before it is divided, as that
/// sheet writes it: the last digit may differ.
Real fullyBypassedLoad(Real Vg, Real QIc);

/// RLac in ohm = Vg x Res, the load of a stage without bypass; Res in ohm.
Real unbypassedLoad(Real Vg, Real Res);

/// Vg = RLac / Res, with RLac in kilohm, Res in ohm.
Real realGain(Real RLac, Real Res);

/// Vg = RLac / r'e, with RLac in kilohm, QIc in mA.
Real fullyBypassedGain(Real RLac, Real QIc);

/// Es in V = ERes + ERL + Eopp + 1, all in V: the least supply.
Real leastSupply(Real ERes, Real ERL, Real Eopp);

/// Eq in V = Es - (QIc x Res + RL x QIc), with QIc in mA, Res in ohm, RL in kilohm.
Real collectorEmitterVoltage(Real Es, Real QIc, Real Res, Real RL);

/// Eq in V = Es - RL x QIc, the supply of a stage polarised by emitter; QIc in mA, RL in kilohm.
Real collectorEmitterVoltageByEmitter(Real Es, Real QIc, Real RL);

/// Eq in V = Es - (ERes + QIc x RL) of a partly bypassed stage, with QIc in mA, RL in kilohm.
Real partlyBypassedVoltage(Real Es, Real ERes, Real QIc, Real RL);

/// Eq in V = Es - (QIc x Res / 1000 + RL x QIc), with the unbypassed Res (in ohm) alone: what Esc takes; QIc in mA, RL in kilohm.
Real escapedVoltage(Real Es, Real QIc, Real Res, Real RL);

/// Rb2 in ohm = Res x S, to four decimals; Res in ohm.
CurrencyValue lowerBaseResistor(Real Res, Real S);

/// S = Rb2 / Res without its fraction, with Rb2 in kilohm, Res in ohm.
Real stabilityFactor(CurrencyValue Rb2, Real Res);

/// Input resistances of a stage and what they need. Res in ohm, Rb2 and Rb1 in kilohm, QIc in mA.
/// Beta x Res in ohm, or Beta x r'e where the emitter is bypassed.
Real transistorInput(Real Beta, Real emitterResistance);

/// Rin = (Rb2 x BRes) / (Rb2 + BRes), with Rb2 in kilohm and BRes in ohm, unconverted: nearly Rb2 itself, and so the course
/// keeps it.
Real inputWithoutRb1(Real Rb2, Real BRes);

/// Rin in ohm of a partly bypassed stage = (Rb2 x 1000 x BRes) / (Rb2 x 1000 + BRes), with Rb2 in kilohm, BRes in ohm.
Real partlyBypassedInput(Real Rb2, Real BRes);

/// ERb1 in V = Es - (Res x QIc / 1000 + QIc x RL) + QIc x RL - Vj of a partly bypassed stage, Res being the whole resistor in ohm;
/// QIc in mA, RL in kilohm.
Real partlyBypassedUpperVoltage(Real Es, Real Res, Real QIc, Real RL, Real Vj);

/// Rb1 in ohm = ERb1 x Rin / (ERes + Vj), with Rin in ohm, the rest in V.
Real partlyBypassedUpperResistor(Real ERb1, Real Rin, Real ERes, Real Vj);

/// ERb1 in V = Es - (QIc x RL + QIc x Res) + QIc x RL - Vj, with QIc in mA, RL in kilohm, Res in ohm. Both terms with RL are
/// a thousand times too small and cancel each other; they stand as the course writes them.
Real upperBaseVoltage(Real Es, Real QIc, Real RL, Real Res, Real Vj);

/// Rb1 in kilohm = (ERb1 x Rin) / (ERes + Vj), with ERes = Res x QIc; QIc in mA.
Real upperBaseResistor(Real ERb1, Real Rin, Real Res, Real QIc, Real Vj);

/// The same Rb1 in kilohm as a fully bypassed sheet writes it = ERb1 x Rin / (Res x QIc / 1000 + Vj); QIc in mA.
Real fullyBypassedUpperResistor(Real ERb1, Real Rin, Real Res, Real QIc, Real Vj);

/// Zin in kilohm of a stage without bypass = (Rin x Rb1) / (Rin + Rb1).
Real inputImpedance(Real Rin, Real Rb1);

/// Zin in kilohm of a bypassed stage: Rb2, Rb1 and BRes (in ohm) in parallel.
Real inputImpedanceBypassed(Real Rb2, Real Rb1, Real BRes);

/// Zin in kilohm of a partly bypassed stage: Rb2 (in kilohm) beside Rb1 (in ohm), unconverted, and both beside Beta x Res / 1000
/// (Res in ohm). The mixture gives nearly Rb2 for the two, and so the course keeps it.
Real partlyBypassedImpedance(Real Rb2, Real Rb1, Real Beta, Real Res);

/// Zin in ohm of a fully bypassed sheet: Beta x 25 / QIc in parallel with Rb1 (in kilohm); Rb2 is left out.
Real fullyBypassedInput(Real Beta, Real QIc, Real Rb1);

/// Zin in ohm of a stage polarised by emitter: Rb2 (in kilohm) in parallel with Beta x r'e.
Real inputImpedanceByEmitter(Real Rb2, Real Beta, Real QIc);

/// Zin with the first bootstrapping capacitor: Rb1 in parallel with Beta x (Res + Res x (Rb2 / 2) / (Rb2 / 2)). The fraction
/// equals Res and stays as it stands.
Real inputImpedanceFirstBootstrap(Real Beta, Real Res, Real Rb2, Real Rb1);

/// Zin in ohm with both bootstrapping capacitors = Beta x (Res in parallel with the halves of Rb2 and Rb1).
Real inputImpedanceBootstrapped(Real Beta, Real Res, Real Rb2, Real Rb1);

/// C = (1 / (fo x 6.28 x 0.1 x R)) x 1000000: in microfarads for R in ohm, in nanofarads for R in kilohm. fo in Hz.
Real couplingMicrofarads(Real fo, Real R);

/// Cbp1 = (1 / ((Rb2 x fo x 6.28 x 0.1) / 2)) x 1000000 in microfarads, with Rb2 in kilohm.
Real firstBootstrapCapacitor(Real Rb2, Real fo);

/// Cbp2 = (1 / ((fo x 6.28 x 0.1 x Rb1) / 2)) x 1000000 in microfarads, with Rb1 in kilohm.
Real secondBootstrapCapacitor(Real Rb1, Real fo);

/// Cbp in whole microfarads = (1 / (r'e x fo x 6.28)) x 1000000, with r'e = 0.025 V / QIc; QIc in mA.
Real bypassCapacitor(Real QIc, Real fo);

/// Cbp in microfarads = 1 / (fo x 6.28 x 25 / QIc) x 1000000, with its fraction; QIc in mA.
Real bypassMicrofarads(Real QIc, Real fo);

/// What the collector current really becomes with the Rb1 in use.
struct CurrentCheck {
    Real Es;   ///< V
    Real QIc;  ///< mA
    Real ERes; ///< V
    Real RL;   ///< kilohm
    Real Rb1;  ///< kilohm
    Real Rb2;  ///< kilohm
    Real Beta;
    Real Vj = 0.6; ///< V; fixed where the sheet does not read its field here
};

/// QIc in mA = (IRb1 - IRb2) x Beta, with IRb1 = (Eq + RL x QIc - Vj) / Rb1, IRb2 = (ERes + Vj) / Rb2 and
/// Eq = Es - (RL x QIc + ERes).
Real obtainedCurrent(const CurrentCheck& circuit);

} // namespace velmor::common_emitter
