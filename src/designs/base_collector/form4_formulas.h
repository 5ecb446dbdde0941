// SPDX-License-Identifier: MIT
// The formulas of `Form4`, the common-base stage, as far as they are not those of every sheet (sheets/formulas.h), and the
// working numbers of one sheet. Some mix kilohms and ohms; each says what it takes.
#pragma once

#include "host/own_values.h"
#include "rules/numbers.h"
#include "rules/real.h"

namespace velmor::form4 {

using rules::Real;

/// The working numbers of one sheet.
struct Quantities {
    Real QIc;            ///< mA, as it was read last
    Real ERes;           ///< V
    Real ResCalc;        ///< ohm
    Real ReDyn;          ///< r'e, ohm
    Real EsMin;          ///< V
    Real EqWork;         ///< V
    Real ERL;            ///< V
    Real RLCalc;         ///< kilohm
    Real Rb2Calc;        ///< kilohm
    Real Rb1Calc;        ///< ohm
    Real ICheck;         ///< mA
    bool passed = false; ///< the last step of the chain has ended without a warning
};

// clang-format off
inline constexpr auto quantityTable = host::everyMember<Quantities>(
    host::own<&Quantities::QIc>("QIc"),
    host::own<&Quantities::ERes>("ERes"),
    host::own<&Quantities::ResCalc>("ResCalc"),
    host::own<&Quantities::ReDyn>("ReDyn"),
    host::own<&Quantities::EsMin>("EsMin"),
    host::own<&Quantities::EqWork>("EqWork"),
    host::own<&Quantities::ERL>("ERL"),
    host::own<&Quantities::RLCalc>("RLCalc"),
    host::own<&Quantities::Rb2Calc>("Rb2Calc"),
    host::own<&Quantities::Rb1Calc>("Rb1Calc"),
    host::own<&Quantities::ICheck>("ICheck"),
    host::own<&Quantities::passed>("passed"));
// clang-format on

/// r'e = 0.025 / (QIc / 1000), ohm from mA.
Real junctionResistance(Real QIc);

/// Res, kilohm, fixes QIc = ERes / Res, mA: the voltage of stability, V, stays.
Real quiescentCurrent(Real ERes, Real Res);

/// ERL(min) = 0.5 x Eopp, both V: RL must hold half of the swing.
Real leastLoadVoltage(Real Eopp);

/// Eq(min) = Eopp + 1, V, with at least 2 V for Eopp.
Real leastTransistorVoltage(Real Eopp);

/// Es(min) = (0.5 x Eopp + ERes) + Eq(min), V, at least 4.
Real leastSupply(Real Eopp, Real ERes);

/// Eq = Eopp + 1, V.
Real transistorVoltage(Real Eopp);
/// The same, at least 3 V.
Real workingTransistorVoltage(Real Eopp);

/// RLac = Vg x r'e, ohm.
Real signalLoad(Real Vg, Real ReDyn);

/// RL = (RLw x RLac) / (RLw - RLac), kilohm from kilohm and ohm. 0, which is below any resistor, where the load takes all of
/// RLac for itself.
Real collectorResistor(Real RLw, Real RLac);

/// ERL = ((QIc / 1000) x RL) x 1000, V from mA and kilohm.
Real loadVoltage(Real QIc, Real RL);

/// Es = ERes + ERL + Eq, V.
Real supplyVoltage(Real ERes, Real ERL, Real Eq);

/// Vg = (RLac x 1000) / r'e, from kilohm and ohm.
Real finalGain(Real RLac, Real ReDyn);

/// Rb2 = S x Res, kilohm, to four decimals.
Real lowerBaseResistor(Real S, Real Res);

/// (Beta x RL) x 1000, ohm. It takes RL, kilohm, where Res would be expected: so the course has it.
Real baseImpedance(Real Beta, Real RL);

/// What stands beside Rb1 while it is worked out.
struct BaseCircuit {
    Real Rb2;    ///< kilohm
    Real baseZ;  ///< ohm
    Real EqWork; ///< V
    Real ERL;    ///< V
    Real ERes;   ///< V
    Real Vj;     ///< V
};

/// Rb1 = (((Eq + ERL) - Vj) x (Rb2 // baseZ)) / (ERes + Vj), ohm. Neither sum of the two quotients may be 0.
Real upperBaseResistor(const BaseCircuit& circuit);

/// The circuit with the preset that is in use.
struct CurrentCheck {
    Real Es;  ///< V
    Real QIc; ///< mA, as designed
    Real Res; ///< kilohm
    Real Rb1; ///< kilohm, not 0
    Real Rb2; ///< kilohm, not 0
    Real Beta;
};

/// The collector current that this preset gives, mA: ((IRb1 - IRb2) x Beta) x 1000. The junction counts 0.6 V whatever Vj is.
Real obtainedCurrent(const CurrentCheck& circuit);

/// Cin = 1 / ((6.28 x fo) x r'e), F from Hz and ohm. Without the factor 0.1 of the other capacitors: so the course has it.
Real inputCapacitor(Real fo, Real ReDyn);

/// The capacitor that takes the emitter to ground in the comparison: 1 / ((((6.28 x fo) x 0.1) x Res) x 1000), F from Hz and
/// kilohm.
Real emitterBypass(Real fo, Real Res);

/// Power of the output, ((Eopp / 2) x 0.707)^2 / (RLw x 1000), W from V peak to peak and kilohm.
Real outputPower(Real Eopp, Real RLw);

/// Power that the generator gives, (((Eopp / 2) x 0.707) / Vg)^2 / Zin, W from V peak to peak and ohm.
Real generatorPower(Real Eopp, Real Vg, Real Zin);

} // namespace velmor::form4
