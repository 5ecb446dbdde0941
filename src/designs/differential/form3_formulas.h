// SPDX-License-Identifier: MIT
// The formulas of the long-tailed pair that no other sheet shares, one small function per quantity, in the course's symbols. Volts
// over kilohms give milliamperes without scaling. They know no field.
#pragma once

#include "host/own_values.h"
#include "rules/real.h"

namespace velmor::form3 {

using rules::Real;

/// The working numbers of one sheet. Each keeps its last value between events.
struct Quantities {
    Real dQic;        ///< allowed change of the quiescent current, %
    Real T;           ///< ambient temperature, degrees Celsius
    Real dVbe;        ///< change of Vbe, mV per degree
    Real QIc;         ///< quiescent collector current of one transistor, mA
    Real RLw;         ///< load of one output, kohm
    Real S;           ///< stability factor
    Real Vg;          ///< voltage gain
    Real fo;          ///< lower cut-off frequency, Hz
    Real Eopp;        ///< output peak to peak, V; at least 3 for the bench
    Real Ein;         ///< input, V r.m.s.
    Real Beta;        ///< hFE
    Real EcMax;       ///< V
    Real IcMax;       ///< mA
    Real Vj;          ///< junction voltage, V
    Real Ebias;       ///< negative supply, V, as a positive number
    Real Res;         ///< common emitter resistor, kohm
    Real RL;          ///< collector resistor, kohm
    Real Es;          ///< positive supply, V
    Real EResMin;     ///< least voltage over Res, V
    Real ResCalc;     ///< kohm
    Real TailCurrent; ///< mA
    Real ReDyn;       ///< r'e, ohm
    Real ERes;        ///< V
    Real RLac;        ///< ohm
    Real RLcalc;      ///< ohm
    Real ERL;         ///< V
    Real EQMin;       ///< V
    Real EsMin;       ///< V
    Real EQ;          ///< V
    Real Rb2;         ///< kohm
    Real Zin;         ///< ohm
    Real Cci;         ///< F
    Real Cco;         ///< F
    Real VgFinal;
    bool passed = false; ///< the design has come to its end without a warning and stands as it was then
};

// clang-format off
inline constexpr auto quantityTable = host::everyMember<Quantities>(
    host::own<&Quantities::dQic>("dQic"),
    host::own<&Quantities::T>("T"),
    host::own<&Quantities::dVbe>("dVbe"),
    host::own<&Quantities::QIc>("QIc"),
    host::own<&Quantities::RLw>("RLw"),
    host::own<&Quantities::S>("S"),
    host::own<&Quantities::Vg>("Vg"),
    host::own<&Quantities::fo>("fo"),
    host::own<&Quantities::Eopp>("Eopp"),
    host::own<&Quantities::Ein>("Ein"),
    host::own<&Quantities::Beta>("Beta"),
    host::own<&Quantities::EcMax>("EcMax"),
    host::own<&Quantities::IcMax>("IcMax"),
    host::own<&Quantities::Vj>("Vj"),
    host::own<&Quantities::Ebias>("Ebias"),
    host::own<&Quantities::Res>("Res"),
    host::own<&Quantities::RL>("RL"),
    host::own<&Quantities::Es>("Es"),
    host::own<&Quantities::EResMin>("EResMin"),
    host::own<&Quantities::ResCalc>("ResCalc"),
    host::own<&Quantities::TailCurrent>("TailCurrent"),
    host::own<&Quantities::ReDyn>("ReDyn"),
    host::own<&Quantities::ERes>("ERes"),
    host::own<&Quantities::RLac>("RLac"),
    host::own<&Quantities::RLcalc>("RLcalc"),
    host::own<&Quantities::ERL>("ERL"),
    host::own<&Quantities::EQMin>("EQMin"),
    host::own<&Quantities::EsMin>("EsMin"),
    host::own<&Quantities::EQ>("EQ"),
    host::own<&Quantities::Rb2>("Rb2"),
    host::own<&Quantities::Zin>("Zin"),
    host::own<&Quantities::Cci>("Cci"),
    host::own<&Quantities::Cco>("Cco"),
    host::own<&Quantities::VgFinal>("VgFinal"),
    host::own<&Quantities::passed>("passed"));
// clang-format on

/// ERes(min) = ((T - 20) x dVbe x 100) / dQic, in volts from degrees, mV and %. The constant is 20 although the help of the
/// sheet prints 25: the course designs from 20 degrees.
Real leastERes(Real T, Real dVbe, Real dQic);

/// Res = Ebias / (2 x QIc), kohm from V and mA: both transistors' currents flow in it.
Real resOf(Real Ebias, Real QIc);

/// RLac = Vg x 2.5 x r'e, ohm.
Real rlacOf(Real Vg, Real ReDyn);

/// True when RLw = RLac, where no collector resistor can be worked out.
bool loadEqualsRlac(Real RLw, Real RLac);

/// The collector resistor that develops half of Eopp and 1 V more, whole kohm from V and mA.
Real rlForEopp(Real Eopp, Real QIc);

/// Zin = Beta x 2 x r'e, ohm.
Real zinOf(Real Beta, Real ReDyn);

/// Cco = 1 / (6.28 x fo x 0.1 x RLw), F from Hz and kohm.
Real ccoOf(Real fo, Real RLw);

/// Vg = (RL // RLw) / (2.5 x r'e), from kohm and ohm.
Real vgOf(Real RL, Real RLw, Real ReDyn);

/// The share of the transistor's largest current that may flow at rest.
inline constexpr double stabilityShare = 0.4;

/// The working Eopp, V: never below 3 V for the bench. What the design asks of the supply is worked out before.
Real benchEopp(Real Eopp);

// Readings of the meter, each in the unit that its row names.

/// A quantity as it is held.
template <Real Quantities::*held>
Real reading(const Quantities& q)
{
    return q.*held;
}
Real vrms(const Quantities& q);          ///< (Eopp / 2) x 0.707, V
Real outputPower(const Quantities& q);   ///< Vrms^2 / RLac, W
Real inputPower(const Quantities& q);    ///< (Ein^2 / Zin) x 1000, mW
Real bothCurrents(const Quantities& q);  ///< QIc x 2, mA
Real negativePower(const Quantities& q); ///< (Ebias x QIc x 2) / 1000, W
Real positivePower(const Quantities& q); ///< (Es x QIc x 2) / 1000, W
Real baseVoltage(const Quantities& q);   ///< Rb2 x (QIc / Beta), V
Real baseCurrent(const Quantities& q);   ///< QIc / Beta, mA
Real loadImpedance(const Quantities& q); ///< RLw x 1000, ohm
// At the cut-off frequency: 10 % less at the output, 10 % more at the input, in the unit of the reading.
template <Real (*midBand)(const Quantities&)>
Real outputAtCutoff(const Quantities& q)
{
    return midBand(q) - midBand(q) / 10.0;
}
template <Real (*midBand)(const Quantities&)>
Real inputAtCutoff(const Quantities& q)
{
    return midBand(q) + midBand(q) / 10.0;
}

} // namespace velmor::form3
