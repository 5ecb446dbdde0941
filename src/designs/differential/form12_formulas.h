// SPDX-License-Identifier: MIT
// The formulas of the constant current source, one small function per quantity, in the course's symbols. Volts over kilohms give
// milliamperes without scaling. They know no field.
#pragma once

#include "host/own_values.h"
#include "rules/real.h"

namespace velmor::form12 {

using rules::Real;

/// The working numbers of one sheet. Each keeps its last value between events.
struct Quantities {
    Real QIc;                  ///< current wanted, then the one that Res gives, mA
    Real Eb;                   ///< voltage over Rb1, V
    Real Eq;                   ///< collector voltage of the source, V
    Real Ebias;                ///< negative supply, V, as a positive number
    Real Res;                  ///< kohm
    Real K;                    ///< Ibias as a part of QIc
    Real Rb1;                  ///< kohm
    Real Rb2;                  ///< kohm
    Real EbiasCalc;            ///< V
    Real ResCalc;              ///< kohm
    Real S;                    ///< stability, 1 / K
    Real Ibias;                ///< mA
    Real Rb1Calc;              ///< kohm
    Real Rb2Calc;              ///< kohm
    Real IbiasRb1;             ///< mA
    Real IbiasRb2;             ///< mA
    Real QIcRef;               ///< mA
    Real EbAnalysis;           ///< what the commercial values really give, V
    Real QIcAnalysis;          ///< mA
    Real EResAnalysis;         ///< V
    Real EqAnalysis;           ///< V
    bool biasAccepted = false; ///< Rb2 was left without a warning
    bool passed = false;       ///< the design has come to its end without a warning and stands as it was then
};

// clang-format off
inline constexpr auto quantityTable = host::everyMember<Quantities>(
    host::own<&Quantities::QIc>("QIc"),
    host::own<&Quantities::Eb>("Eb"),
    host::own<&Quantities::Eq>("Eq"),
    host::own<&Quantities::Ebias>("Ebias"),
    host::own<&Quantities::Res>("Res"),
    host::own<&Quantities::K>("K"),
    host::own<&Quantities::Rb1>("Rb1"),
    host::own<&Quantities::Rb2>("Rb2"),
    host::own<&Quantities::EbiasCalc>("EbiasCalc"),
    host::own<&Quantities::ResCalc>("ResCalc"),
    host::own<&Quantities::S>("S"),
    host::own<&Quantities::Ibias>("Ibias"),
    host::own<&Quantities::Rb1Calc>("Rb1Calc"),
    host::own<&Quantities::Rb2Calc>("Rb2Calc"),
    host::own<&Quantities::IbiasRb1>("IbiasRb1"),
    host::own<&Quantities::IbiasRb2>("IbiasRb2"),
    host::own<&Quantities::QIcRef>("QIcRef"),
    host::own<&Quantities::EbAnalysis>("EbAnalysis"),
    host::own<&Quantities::QIcAnalysis>("QIcAnalysis"),
    host::own<&Quantities::EResAnalysis>("EResAnalysis"),
    host::own<&Quantities::EqAnalysis>("EqAnalysis"),
    host::own<&Quantities::biasAccepted>("biasAccepted"),
    host::own<&Quantities::passed>("passed"));
// clang-format on

/// Vj, the same on the whole sheet, V.
inline constexpr double VjFixed = 0.6;

/// Ebias = (Eq + Eb) + 1.2, V: two junctions, that of the source and that of the stage it feeds.
Real eBiasOf(Real Eq, Real Eb);

/// Eq = Ebias - (1.2 + Eb), V, never below 3.
Real eqFromEbias(Real Ebias, Real Eb);

/// What stands over Res and over Rb2: Ebias - (Eb + Vj), V.
Real lowerDrop(Real Ebias, Real Eb);

/// Ebias = (Eq + (QIc x Res)) + Vj, V from mA and kohm.
Real eBiasFromRes(Real Eq, Real QIc, Real Res);

/// Eq = Ebias - (ERes + Vj), V: what is left to the transistor.
Real eqOfAnalysis(Real Ebias, Real ERes);

/// The least part of the collector current that may flow in the divider.
inline constexpr double leastShare = 0.3;

} // namespace velmor::form12
