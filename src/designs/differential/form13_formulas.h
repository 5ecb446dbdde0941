// SPDX-License-Identifier: MIT
// The formulas of the compound differential amplifier, one small function per quantity, in the course's symbols: Q1-2 the input
// pair, Q3-4 the second pair, Q5 the transistor with Res1. Volts over kilohms give milliamperes without scaling. They know no
// field.
#pragma once

#include "host/own_values.h"
#include "rules/real.h"

namespace velmor::form13 {

using rules::Real;

/// The working numbers of one sheet. Each keeps its last value between events.
struct Quantities {
    Real T;        ///< ambient temperature, degrees Celsius
    Real Vg;       ///< total voltage gain wanted
    Real Eopp;     ///< output peak to peak, V
    Real Ein;      ///< input, V r.m.s.
    Real Es;       ///< supply, V
    Real RL2;      ///< collector resistor of Q3-4, kohm
    Real Res;      ///< emitter resistor of Q3-4, whole kohm; from Res1 on the start value ERes / 1 mA
    Real RL1;      ///< collector resistor of Q1-2, kohm
    Real Res1;     ///< emitter resistor of Q5, kohm
    Real RLw;      ///< load beside Res1, kohm
    Real ERes;     ///< V
    Real QIc34;    ///< mA; 0.5 to begin with
    Real RL2Start; ///< kohm
    Real Res34;    ///< whole kohm
    Real ERL2;     ///< V
    Real EQ34Min;  ///< V
    Real EsMin2;   ///< V
    Real ERL2New;  ///< V
    Real RL2Calc;  ///< kohm
    Real EQ34;     ///< V
    Real ReQ34;    ///< r'e of Q3-4, ohm
    Real VgQ34;
    Real ZinRes;  ///< kohm
    Real EQ12;    ///< V
    Real ERL1;    ///< V
    Real RL1Calc; ///< kohm
    Real QIc12;   ///< mA
    Real ReQ12;   ///< r'e of Q1-2, ohm
    Real ZinQ34;  ///< ohm
    Real ZinAlt;  ///< ohm
    Real RLac12;  ///< ohm
    Real VgQ12;
    Real VgTotal;
    Real ERes1;          ///< V
    Real QIc5;           ///< mA
    Real EQ5;            ///< V
    Real Rb1;            ///< ohm
    Real C1;             ///< F
    Real ZinQ5;          ///< kohm
    Real Res1Par;        ///< kohm
    bool passed = false; ///< the design has come to its end without a warning and stands as it was then
};

// clang-format off
inline constexpr auto quantityTable = host::everyMember<Quantities>(
    host::own<&Quantities::T>("T"),
    host::own<&Quantities::Vg>("Vg"),
    host::own<&Quantities::Eopp>("Eopp"),
    host::own<&Quantities::Ein>("Ein"),
    host::own<&Quantities::Es>("Es"),
    host::own<&Quantities::RL2>("RL2"),
    host::own<&Quantities::Res>("Res"),
    host::own<&Quantities::RL1>("RL1"),
    host::own<&Quantities::Res1>("Res1"),
    host::own<&Quantities::RLw>("RLw"),
    host::own<&Quantities::ERes>("ERes"),
    host::own<&Quantities::QIc34>("QIc34"),
    host::own<&Quantities::RL2Start>("RL2Start"),
    host::own<&Quantities::Res34>("Res34"),
    host::own<&Quantities::ERL2>("ERL2"),
    host::own<&Quantities::EQ34Min>("EQ34Min"),
    host::own<&Quantities::EsMin2>("EsMin2"),
    host::own<&Quantities::ERL2New>("ERL2New"),
    host::own<&Quantities::RL2Calc>("RL2Calc"),
    host::own<&Quantities::EQ34>("EQ34"),
    host::own<&Quantities::ReQ34>("ReQ34"),
    host::own<&Quantities::VgQ34>("VgQ34"),
    host::own<&Quantities::ZinRes>("ZinRes"),
    host::own<&Quantities::EQ12>("EQ12"),
    host::own<&Quantities::ERL1>("ERL1"),
    host::own<&Quantities::RL1Calc>("RL1Calc"),
    host::own<&Quantities::QIc12>("QIc12"),
    host::own<&Quantities::ReQ12>("ReQ12"),
    host::own<&Quantities::ZinQ34>("ZinQ34"),
    host::own<&Quantities::ZinAlt>("ZinAlt"),
    host::own<&Quantities::RLac12>("RLac12"),
    host::own<&Quantities::VgQ12>("VgQ12"),
    host::own<&Quantities::VgTotal>("VgTotal"),
    host::own<&Quantities::ERes1>("ERes1"),
    host::own<&Quantities::QIc5>("QIc5"),
    host::own<&Quantities::EQ5>("EQ5"),
    host::own<&Quantities::Rb1>("Rb1"),
    host::own<&Quantities::C1>("C1"),
    host::own<&Quantities::ZinQ5>("ZinQ5"),
    host::own<&Quantities::Res1Par>("Res1Par"),
    host::own<&Quantities::passed>("passed"));
// clang-format on

// --- what the student gives

/// ERes = (((T - 20) x 0.0025) x 100) / 7, V: 2.5 mV per degree, 7 % of QIc. The sheet's page prints 25 where the formula
/// has 20: the course designs from 20 degrees.
Real eResOf(Real T);

/// Ein = ((Eopp / Vg) / 2) x 0.707, V r.m.s. from V peak to peak. Vg of 0 is a failure.
Real einOf(Real Eopp, Real Vg);

/// Eopp = ((Vg x Ein) x 1.41) x 2, V peak to peak from V r.m.s.
Real eoppOf(Real Vg, Real Ein);

/// Eo = (Eopp / 2) x 0.707, V r.m.s.
Real outputRms(Real Eopp);

// --- the second pair

/// RL2 = 4 x (ERes / 1 mA), kohm: where the design begins from.
Real rl2Start(Real ERes);

/// Res, the whole kohm nearest to ERes / current (ties to the even one), never below 1. V over mA.
Real wholeRes(Real ERes, Real current);

/// EQ(3-4) min = Eopp + 1, V.
Real leastEQ34(Real Eopp);

/// Es(min) = (ERL2 + ERes) + EQ(3-4) min, V.
Real leastEs(Real ERL2, Real ERes, Real EQ34Min);

/// QIc(3-4) = (ERes / Res) / 2, mA from V and kohm: Res carries both currents. Res of 0 is a failure.
Real qIc34Of(Real ERes, Real Res);

/// S(Q5) = RL2 / Res.
Real s5Of(Real RL2, Real Res34);

/// Vg(3-4) = (RL2 x 1000) / (2.5 x r'e), from kohm and ohm.
Real vgQ34Of(Real RL2, Real ReQ34);

/// Zin = 100 x Res, kohm: the sheet counts with a Beta of 100.
Real inputOfEmitter(Real Res);

/// EQ(1-2) = ERes + 0.6, V.
Real eq12Of(Real ERes);

/// RL1 = 5.7 x Res, kohm.
Real rl1Of(Real Res);

// --- the input pair

/// Zin = 2 x B x r'e with B = 100, ohm.
Real inputOfPair(Real Re);

/// RLac(1-2) = RL1 // Zin(3-4), ohm from kohm and ohm.
Real rlac12Of(Real RL1, Real ZinQ34);

/// Vg(1-2) = RLac / (1.25 x r'e): 1.25, since the output is double, between collectors.
Real vgQ12Of(Real RLac12, Real ReQ12);

// --- Q5 and the input

/// ERes1 = (EQ(3-4) + ERes) - Vj, V, with Vj = 0.6.
Real eRes1Of(Real EQ34, Real ERes);

/// C1 = 1 / (12.56 x Rb1), F from ohm: 20 Hz, a tenth of Rb1.
Real c1Of(Real Rb1);

} // namespace velmor::form13
