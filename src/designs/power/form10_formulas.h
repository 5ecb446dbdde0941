// SPDX-License-Identifier: MIT
// The working numbers of the class B sheets, and the formulas of the simple one, a small function per quantity, in the course's
// symbols. They know no field.
#pragma once

#include "host/own_values.h"
#include "rules/real.h"

namespace velmor::form10 {

using rules::Real;

/// The working numbers of one sheet. Each keeps its last value between events.
struct Quantities {
    Real Eopp;    ///< output, V peak to peak
    Real EqMin;   ///< least voltage of an output transistor, V
    Real EsMin;   ///< least supply, V
    Real Eq;      ///< V
    Real ERl;     ///< voltage across the driver's load, V
    Real RLtotal; ///< kohm
    Real Rd;      ///< ohm
    Real Rb1;     ///< kohm
    Real ERb1;    ///< V
    Real IRb1;    ///< A
    Real Ib;      ///< A
    Real IRb2;    ///< microampere
    Real Rb2Calc; ///< ohm
    Real re;      ///< r'e, ohm
    Real Bre;     ///< B x r'e, ohm
    Real Z1;      ///< ohm
    Real Zin;     ///< ohm
    Real RsCalc;  ///< ohm
    Real Z;       ///< Zin and the calculated Rs, ohm
    Real Cin;     ///< F
    Real Coo;     ///< F
    Real Cbb;     ///< F
    Real Cba;     ///< F
    Real RLac;    ///< ohm
    Real Vg;
    Real Ein;            ///< V peak to peak
    Real EgPP;           ///< of the generator, V peak to peak
    Real EEmitter;       ///< across an emitter resistor at Ic(max), V; takes no part in the peak current
    Real IPeak;          ///< A
    bool passed = false; ///< the design has come to its end without a warning and stands as it was then
};

// clang-format off
inline constexpr auto quantityTable = host::everyMember<Quantities>(
    host::own<&Quantities::Eopp>("Eopp"),
    host::own<&Quantities::EqMin>("EqMin"),
    host::own<&Quantities::EsMin>("EsMin"),
    host::own<&Quantities::Eq>("Eq"),
    host::own<&Quantities::ERl>("ERl"),
    host::own<&Quantities::RLtotal>("RLtotal"),
    host::own<&Quantities::Rd>("Rd"),
    host::own<&Quantities::Rb1>("Rb1"),
    host::own<&Quantities::ERb1>("ERb1"),
    host::own<&Quantities::IRb1>("IRb1"),
    host::own<&Quantities::Ib>("Ib"),
    host::own<&Quantities::IRb2>("IRb2"),
    host::own<&Quantities::Rb2Calc>("Rb2Calc"),
    host::own<&Quantities::re>("re"),
    host::own<&Quantities::Bre>("Bre"),
    host::own<&Quantities::Z1>("Z1"),
    host::own<&Quantities::Zin>("Zin"),
    host::own<&Quantities::RsCalc>("RsCalc"),
    host::own<&Quantities::Z>("Z"),
    host::own<&Quantities::Cin>("Cin"),
    host::own<&Quantities::Coo>("Coo"),
    host::own<&Quantities::Cbb>("Cbb"),
    host::own<&Quantities::Cba>("Cba"),
    host::own<&Quantities::RLac>("RLac"),
    host::own<&Quantities::Vg>("Vg"),
    host::own<&Quantities::Ein>("Ein"),
    host::own<&Quantities::EgPP>("EgPP"),
    host::own<&Quantities::EEmitter>("EEmitter"),
    host::own<&Quantities::IPeak>("IPeak"),
    host::own<&Quantities::passed>("passed"));
// clang-format on

/// V, of the driver's base and emitter.
inline constexpr double junctionVoltage = 0.6;

// --- output and supply

/// Eopp = SQR(Po x RLw) x 1.41 x 2, V peak to peak from W and ohm.
Real outputSwing(Real Po, Real RLw);

/// Eq(min) = 0.66 x Eopp, V.
Real leastEq(Real Eopp);

/// Es(min) = 2 x Eq(min) + 2, V.
Real leastSupply(Real EqMin);

/// ERl = 0.5 x Es - `junctions`, V: what the driver's load has of the supply.
Real driverLoadVoltage(Real Es, Real junctions);

// --- driver

/// RL(total) = ERl / Ibias, kohm from V and mA.
Real driverLoad(Real ERl, Real Ibias);

/// Rd = (6 / Ibias) x 100, ohm from mA: 0.6 V, as the blackboard writes it.
Real biasResistor(Real Ibias);

/// Rb1 = 10 x RL(total), in the unit of RL.
Real upperBaseResistor(Real RLtotal);

/// ERb1 = Eq - `junction`, V: what lies between the driver's base and ground is the junction, and the resistor of its emitter.
Real upperBaseVoltage(Real Eq, Real junction);

/// IRb1 = ERb1 / (Rb1 x 1000), A from V and kohm.
Real upperBaseCurrent(Real ERb1, Real Rb1);

/// Ib = (Ibias / 1000) / 100, A from mA: a Beta of 100 is assumed.
Real baseCurrent(Real Ibias);

/// IRb2 = IRb1 - Ib, microampere from A, to four decimals.
Real lowerBaseCurrent(Real IRb1, Real Ib);

/// Rb2 = `junction` / IRb2, ohm from V and microampere.
Real lowerBaseResistor(Real junction, Real IRb2);

// --- signal

/// Ibias = (Es / 2) / (RLb + RLa), mA from V and kohm: what flows with the resistors put in.
Real biasWithLoad(Real Es, Real RLb, Real RLa);

/// B x r'e, ohm: a Beta of 100.
Real baseImpedance(Real re);

/// Zin = (Z1 x Rb1b x 1000) / (Z1 + Rb1b x 1000), ohm from ohm and kohm.
Real inputImpedance(Real Z1, Real Rb1b);

/// Rs = 20 x Zin, ohm.
Real seriesResistor(Real Zin);

/// C = 1 / ((6.28 x 200) x 0.1 x R), F from ohm: the cut-off of 200 c/s.
Real capacitorFor(Real R);

/// RLac = (RL x 1000 x 50 x RLw) / (RL x 1000 + 50 x RLw), ohm from kohm and ohm: a Beta of 50 for T2.
Real driverLoadAc(Real RLtotal, Real RLw);

/// Eg = (Rs x 1000 / Zin) x Ein, V peak to peak from kohm, ohm and V peak to peak.
Real generatorSwing(Real Rs, Real Zin, Real Ein);

/// Ic(max) x 0.47, V: told beside the peak current, and left out of it on purpose.
Real emitterVoltage(Real IcMax);

/// IPeak = (Eq - `lost`) / RLw, A: Vce(sat) is lost, and what else a sheet counts.
Real peakCurrent(Real Eq, Real lost, Real RLw);

/// Pg = ((Eg / 2 x 0.707) squared / (Rs x 1000 + Zin)) x 1000000, microwatt from V peak to peak, kohm and ohm; 0 for a generator
/// that has no circuit yet.
Real generatorPower(Real EgPP, Real Rs, Real Zin);

} // namespace velmor::form10
