// SPDX-License-Identifier: MIT
// The formulas of the class A stages, one small function a quantity, in the course's symbols; amperes, volts and ohms throughout. They
// know no field.
#pragma once

#include "host/own_values.h"
#include "rules/real.h"

namespace velmor::form15 {

using rules::Real;

/// Vbe of each transistor, V.
inline constexpr double junction = 0.6;
// What the course asks for, and the limits of the transistors.
inline constexpr double loadStability = 10;   ///< S of RL and Rb1: ten times the resistor they feed
inline constexpr double generatorShare = 20;  ///< Rs is so many times Zin
inline constexpr double icMax = 1;            ///< A, of Q2
inline constexpr double ecMax = 30;           ///< V
inline constexpr double driverCurrent = 0.04; ///< A, told to the student as 40 % of Ic(max)
inline constexpr double biasTolerance = 20;   ///< %, by which a standard Rb2 may differ
inline constexpr double presetShare = 25;     ///< %, of Rb1

/// The working numbers of one sheet. Each keeps its last value between events.
struct Quantities {
    Real Eopp;            ///< output peak to peak, V
    Real Eq;              ///< V, four decimals
    Real QIc2;            ///< A: the least one until Text3 is left, then that of the field
    Real ERLw;            ///< V
    Real QIcRLw;          ///< A
    Real EQ2;             ///< V
    Real EQ1;             ///< V
    Real Es;              ///< V
    Real ERL;             ///< V
    Real ZinQ2;           ///< ohm
    Real QIc1Min;         ///< A
    Real QIc1;            ///< A
    Real Rb1;             ///< ohm
    Real Rb1b;            ///< ohm
    Real ERb1;            ///< V
    Real IRb1;            ///< A
    Real Ib;              ///< A
    Real IRb2;            ///< A
    Real IRb2Calc;        ///< A, as worked out when Text7 was left
    Real Rb2Calc;         ///< ohm, likewise
    Real Cbp;             ///< F
    Real ReDyn;           ///< r'e, ohm
    Real Zb;              ///< ohm
    Real Rp;              ///< ohm
    Real Zin;             ///< ohm
    Real Ccin;            ///< F
    Real Vg;              ///< gain of Q1
    Real EinPP;           ///< V
    Real EgPP;            ///< V
    Real EgEff;           ///< V
    bool noSwing = false; ///< the box about a supply that leaves nothing for RL has been shown
    bool biased = false;  ///< Rb2 was left without a warning and nothing has changed since
    bool passed = false;  ///< the last step of the chain has ended without a warning
};

// clang-format off
inline constexpr auto quantityTable = host::everyMember<Quantities>(
    host::own<&Quantities::Eopp>("Eopp"),
    host::own<&Quantities::Eq>("Eq"),
    host::own<&Quantities::QIc2>("QIc2"),
    host::own<&Quantities::ERLw>("ERLw"),
    host::own<&Quantities::QIcRLw>("QIcRLw"),
    host::own<&Quantities::EQ2>("EQ2"),
    host::own<&Quantities::EQ1>("EQ1"),
    host::own<&Quantities::Es>("Es"),
    host::own<&Quantities::ERL>("ERL"),
    host::own<&Quantities::ZinQ2>("ZinQ2"),
    host::own<&Quantities::QIc1Min>("QIc1Min"),
    host::own<&Quantities::QIc1>("QIc1"),
    host::own<&Quantities::Rb1>("Rb1"),
    host::own<&Quantities::Rb1b>("Rb1b"),
    host::own<&Quantities::ERb1>("ERb1"),
    host::own<&Quantities::IRb1>("IRb1"),
    host::own<&Quantities::Ib>("Ib"),
    host::own<&Quantities::IRb2>("IRb2"),
    host::own<&Quantities::IRb2Calc>("IRb2Calc"),
    host::own<&Quantities::Rb2Calc>("Rb2Calc"),
    host::own<&Quantities::Cbp>("Cbp"),
    host::own<&Quantities::ReDyn>("ReDyn"),
    host::own<&Quantities::Zb>("Zb"),
    host::own<&Quantities::Rp>("Rp"),
    host::own<&Quantities::Zin>("Zin"),
    host::own<&Quantities::Ccin>("Ccin"),
    host::own<&Quantities::Vg>("Vg"),
    host::own<&Quantities::EinPP>("EinPP"),
    host::own<&Quantities::EgPP>("EgPP"),
    host::own<&Quantities::EgEff>("EgEff"),
    host::own<&Quantities::noSwing>("noSwing"),
    host::own<&Quantities::biased>("biased"),
    host::own<&Quantities::passed>("passed"));
// clang-format on

/// quantity = above / below. A divisor of zero leaves the quantity as it was: an odd file brings one, and a driver whose base
/// takes just what the divider gives.
void divide(Real& quantity, Real above, Real below);

/// Eopp = Sqr(Po x 8 x RLw), V peak to peak from W r.m.s. and ohm. What would be negative is a failure.
Real swingOfPower(Real Po, Real RLw);
/// Po = (Eopp / 2 x 0.707) squared / RLw, W r.m.s. from V peak to peak and ohm. Not the exact inverse of `swingOfPower`.
Real powerOfSwing(Real Eopp, Real RLw);
/// Eopp = QIc2 x 2 x RLw, V peak to peak: what the quiescent current swings over the load. A and ohm.
Real swingOfCurrent(Real QIc2, Real RLw);
/// Eq = 0.66 x Eopp to four decimals, V.
Real quiescentVoltage(Real Eopp);
/// Eq less a voltage of four decimals, in numbers of four decimals: no digit is lost or won. V.
Real lessCurrency(Real Eq, double drop);
/// QIc2 = QIcRLw + QIcRLw x 10 / 100, A.
Real proposedCurrent(Real QIcRLw);
/// RLw less 30 %, ohm: a coil's impedance stands to its resistance the other way round from what the page says.
Real resistanceOfCoil(Real RLw);
/// The volts of r'e = 0.025 / QIc, ohm from A.
inline constexpr double junctionVolts = 0.025;
/// C = 1 / (125.6 x R), F from ohm: 125.6 is 2 x 3.14 x 20, so the reactance is R at 20 Hz, whatever the label says.
inline constexpr double capacitorFactor = 125.6;
/// EgEff = EgPP / 2 x 0.707, V r.m.s. from V peak to peak.
Real effective(Real EgPP);
/// True for a resistor beyond Rb2 less or plus 20 %, ohm.
bool isBeyondTolerance(Real value, Real Rb2);
/// To whole ohms, the nearest, ties to the even one.
Real wholeOhms(Real R);

} // namespace velmor::form15
