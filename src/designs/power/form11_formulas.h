// SPDX-License-Identifier: MIT
// What `Form11` works out otherwise than `Form10`: a driver with an emitter resistor, Darlington outputs. In the course's symbols;
// knows no field.
#pragma once

#include "designs/power/form10_formulas.h"

namespace velmor::form11 {

using rules::Real;

/// The working numbers that only this sheet has. Each keeps its last value between events.
struct Driver {
    Real Res;           ///< of the driver's emitter, ohm
    Real ERes;          ///< V
    Real CbaOfRb1a;     ///< as told beside Rb2, microfarad
    Real EinEff;        ///< V r.m.s.
    bool split = false; ///< Enter in RLa has divided the load: leaving the field does not do it again
};

// clang-format off
inline constexpr auto driverTable = host::everyMember<Driver>(
    host::own<&Driver::Res>("Res"),
    host::own<&Driver::ERes>("ERes"),
    host::own<&Driver::CbaOfRb1a>("CbaOfRb1a"),
    host::own<&Driver::EinEff>("EinEff"),
    host::own<&Driver::split>("split"));
// clang-format on

/// Eopp = SQR(Po x 8 x RLw), V peak to peak from W and ohm.
Real outputSwing(Real Po, Real RLw);

/// Res = 0.3 / (Ibias / 1000), ohm from mA; Rd is the same.
Real emitterResistor(Real Ibias);

/// ERes = Res x (Ibias / 1000), V from ohm and mA.
Real emitterVoltage(Real Res, Real Ibias);

/// Cba = (1 / (125.6 x Rb1a x 1000)) x 1000000, microfarad from kohm.
Real capacitorOfRb1a(Real Rb1a);

/// B x (r'e + Res), ohm: a Beta of 100.
Real baseImpedance(Real re, Real Res);

/// RLac = (RLa x 1000 x 400 x RLw) / (RLa x 1000 + 400 x RLw), ohm from kohm and ohm: a super beta of 400, and RLa alone.
Real driverLoadAc(Real RLa, Real RLw);

/// Vg = RLac / (r'e + Res), from ohm.
Real driverGain(Real RLac, Real re, Real Res);

/// Zin = (Z1 x (Rb1b / Vg) x 1000) / (Z1 + (Rb1b / Vg) x 1000), ohm from ohm and kohm: the feedback resistor is divided by the
/// gain.
Real inputImpedance(Real Z1, Real Rb1b, Real Vg);

/// Eg = Ein x 2 while Rs x 1000 / Zin is less than 2, otherwise (Rs x 1000 / Zin) x Ein; V peak to peak.
Real generatorSwing(Real Rs, Real Zin, Real Ein);

/// Ein = Eg x 0.707 / 2, V r.m.s. from V peak to peak.
Real effectiveInput(Real EgPP);

} // namespace velmor::form11
