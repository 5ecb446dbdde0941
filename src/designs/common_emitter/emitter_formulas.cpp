// SPDX-License-Identifier: MIT
// The formulas, operation by operation as the course writes them.
#include "designs/common_emitter/emitter_formulas.h"

#include "sheets/formulas.h"

namespace velmor::common_emitter {

namespace formulas_detail {

constexpr double twoPi = 6.28;
constexpr double tenth = 0.1;
constexpr double million = 1000000.0;
constexpr double junctionMillivolts = 25.0;

} // namespace formulas_detail

using namespace formulas_detail;
using sheets::junctionResistance;
using sheets::parallel;

Real quiescentCurrent(Real emitterVoltage, Real Res)
{
    return (emitterVoltage / Res) * 1000.0;
}

Real bypassedLoad(Real Vg, Real QIc)
{
    return Vg * junctionResistance(QIc);
}

Real fullyBypassedLoad(Real Vg, Real QIc)
{
    return Vg * junctionMillivolts / QIc;
}

Real unbypassedLoad(Real Vg, Real Res)
{
    return Vg * Res;
}

Real realGain(Real RLac, Real Res)
{
    return RLac / (Res / 1000.0);
}

Real fullyBypassedGain(Real RLac, Real QIc)
{
    return RLac / (junctionResistance(QIc) / 1000.0);
}

Real leastSupply(Real ERes, Real ERL, Real Eopp)
{
    return ERes + ERL + Eopp + 1.0;
}

Real collectorEmitterVoltage(Real Es, Real QIc, Real Res, Real RL)
{
    return Es - ((QIc / 1000.0) * Res + RL * QIc);
}

Real collectorEmitterVoltageByEmitter(Real Es, Real QIc, Real RL)
{
    return Es - RL * QIc;
}

Real partlyBypassedVoltage(Real Es, Real ERes, Real QIc, Real RL)
{
    return Es - (ERes + QIc * RL);
}

Real escapedVoltage(Real Es, Real QIc, Real Res, Real RL)
{
    return Es - (QIc * Res / 1000.0 + RL * QIc);
}

CurrencyValue lowerBaseResistor(Real Res, Real S)
{
    return CurrencyValue(Res * S);
}

Real stabilityFactor(CurrencyValue Rb2, Real Res)
{
    return rules::TruncToInteger((1000.0 * Real(Rb2.toDouble())) / Res);
}

Real transistorInput(Real Beta, Real emitterResistance)
{
    return Beta * emitterResistance;
}

Real inputWithoutRb1(Real Rb2, Real BRes)
{
    return parallel(Rb2, BRes);
}

Real partlyBypassedInput(Real Rb2, Real BRes)
{
    return Rb2 * 1000.0 * BRes / (Rb2 * 1000.0 + BRes);
}

Real partlyBypassedUpperVoltage(Real Es, Real Res, Real QIc, Real RL, Real Vj)
{
    return Es - (Res * QIc / 1000.0 + QIc * RL) + QIc * RL - Vj;
}

Real partlyBypassedUpperResistor(Real ERb1, Real Rin, Real ERes, Real Vj)
{
    return ERb1 * Rin / (ERes + Vj);
}

Real upperBaseVoltage(Real Es, Real QIc, Real RL, Real Res, Real Vj)
{
    return Es - (QIc / 1000.0 * RL + QIc * Res / 1000.0) + QIc * (RL / 1000.0) - Vj;
}

Real upperBaseResistor(Real ERb1, Real Rin, Real Res, Real QIc, Real Vj)
{
    return (ERb1 * Rin) / ((((Res / 1000.0) * QIc) / 1000.0) * 1000.0 + Vj);
}

Real fullyBypassedUpperResistor(Real ERb1, Real Rin, Real Res, Real QIc, Real Vj)
{
    return ERb1 * Rin / (Res * QIc / 1000.0 + Vj);
}

Real inputImpedance(Real Rin, Real Rb1)
{
    return parallel(Rin, Rb1);
}

Real inputImpedanceBypassed(Real Rb2, Real Rb1, Real BRes)
{
    const Real divider = parallel(Rb2, Rb1);
    return (divider * BRes / 1000.0) / (divider + BRes / 1000.0);
}

Real partlyBypassedImpedance(Real Rb2, Real Rb1, Real Beta, Real Res)
{
    const Real divider = parallel(Rb2, Rb1);
    return (divider * Beta * Res / 1000.0) / (divider + Beta * Res / 1000.0);
}

Real fullyBypassedInput(Real Beta, Real QIc, Real Rb1)
{
    const Real junction = Beta * junctionMillivolts / QIc;
    return junction * Rb1 * 1000.0 / (junction + Rb1 * 1000.0);
}

Real inputImpedanceByEmitter(Real Rb2, Real Beta, Real QIc)
{
    return parallel(Rb2 * 1000.0, Beta * junctionResistance(QIc));
}

Real inputImpedanceFirstBootstrap(Real Beta, Real Res, Real Rb2, Real Rb1)
{
    const Real transistor = Beta * (Res + (Res * (Rb2 / 2.0)) / (Rb2 / 2.0));
    return parallel(Rb1, transistor);
}

Real inputImpedanceBootstrapped(Real Beta, Real Res, Real Rb2, Real Rb1)
{
    const Real halves = parallel(Rb2 / 2.0, Rb1 / 2.0);
    return Beta * parallel(Res, halves);
}

Real couplingMicrofarads(Real fo, Real R)
{
    return sheets::couplingCapacitor(fo, R) * million;
}

Real firstBootstrapCapacitor(Real Rb2, Real fo)
{
    return (1.0 / (((Rb2 * 1000.0) * (fo * twoPi * tenth)) / 2.0)) * million;
}

Real secondBootstrapCapacitor(Real Rb1, Real fo)
{
    return (1.0 / (((fo * twoPi * tenth) * (Rb1 * 1000.0)) / 2.0)) * million;
}

Real bypassCapacitor(Real QIc, Real fo)
{
    return rules::TruncToInteger((1.0 / ((0.025 / (QIc / 1000.0)) * (fo * twoPi))) * million);
}

Real bypassMicrofarads(Real QIc, Real fo)
{
    return 1.0 / (fo * twoPi * junctionMillivolts / QIc) * million;
}

Real obtainedCurrent(const CurrentCheck& circuit)
{
    const Real Eq = circuit.Es - (circuit.RL * circuit.QIc + circuit.ERes);
    const Real upper = ((Eq + circuit.RL * circuit.QIc) - circuit.Vj) / (circuit.Rb1 * 1000.0);
    const Real lower = (circuit.ERes + circuit.Vj) / (circuit.Rb2 * 1000.0);
    return (upper - lower) * circuit.Beta * 1000.0;
}

} // namespace velmor::common_emitter
