// SPDX-License-Identifier: MIT
// The formulas, operation by operation as the course writes them.
#include "designs/base_collector/form4_formulas.h"

#include <algorithm>

#include "designs/base_collector/follower_formulas.h"
#include "sheets/formulas.h"

namespace velmor::form4 {

namespace formulas_detail {

constexpr double junctionVolts = 0.025;
constexpr double leastEopp = 2.0;
constexpr double leastEs = 4.0;
constexpr double leastEq = 3.0;
constexpr double fixedJunction = 0.6;
constexpr double twoPi = 6.28;
constexpr double tenth = 0.1;

Real atLeast(Real least, Real value)
{
    return value < least ? least : value;
}

Real square(Real value)
{
    return value * value;
}

} // namespace formulas_detail

using namespace formulas_detail;

Real junctionResistance(Real QIc)
{
    return junctionVolts / (QIc / 1000.0);
}

Real quiescentCurrent(Real ERes, Real Res)
{
    return ERes / Res;
}

Real leastLoadVoltage(Real Eopp)
{
    return 0.5 * Eopp;
}

Real leastTransistorVoltage(Real Eopp)
{
    return atLeast(leastEopp, Eopp) + 1.0;
}

Real leastSupply(Real Eopp, Real ERes)
{
    return atLeast(leastEs, (0.5 * Eopp + ERes) + leastTransistorVoltage(Eopp));
}

Real transistorVoltage(Real Eopp)
{
    return Eopp + 1.0;
}

Real workingTransistorVoltage(Real Eopp)
{
    return atLeast(leastEq, transistorVoltage(Eopp));
}

Real signalLoad(Real Vg, Real ReDyn)
{
    return Vg * ReDyn;
}

Real collectorResistor(Real RLw, Real RLac)
{
    const Real kilohms = RLac / 1000.0;
    return RLw == kilohms ? Real(0.0) : sheets::collectorResistor(RLw, kilohms);
}

Real loadVoltage(Real QIc, Real RL)
{
    return ((QIc / 1000.0) * RL) * 1000.0;
}

Real supplyVoltage(Real ERes, Real ERL, Real Eq)
{
    return ERes + ERL + Eq;
}

Real finalGain(Real RLac, Real ReDyn)
{
    return (RLac * 1000.0) / ReDyn;
}

Real lowerBaseResistor(Real S, Real Res)
{
    return rules::CurrencyValue(S * Res).toDouble();
}

Real baseImpedance(Real Beta, Real RL)
{
    return (Beta * RL) * 1000.0;
}

Real upperBaseResistor(const BaseCircuit& circuit)
{
    const Real beside = sheets::parallel(circuit.Rb2 * 1000.0, circuit.baseZ);
    const Real across = (circuit.EqWork + circuit.ERL) - circuit.Vj;
    return (across * beside) / (circuit.ERes + circuit.Vj);
}

Real obtainedCurrent(const CurrentCheck& circuit)
{
    const Real base = (circuit.Res * 1000.0) * (circuit.QIc / 1000.0) + fixedJunction;
    return base_collector::obtainedCurrent(circuit.Es - base, circuit.Rb1, base, circuit.Rb2, circuit.Beta);
}

Real inputCapacitor(Real fo, Real ReDyn)
{
    return 1.0 / ((twoPi * fo) * ReDyn);
}

Real emitterBypass(Real fo, Real Res)
{
    return 1.0 / ((((twoPi * fo) * tenth) * Res) * 1000.0);
}

Real outputPower(Real Eopp, Real RLw)
{
    return base_collector::signalPower(Eopp, RLw);
}

Real generatorPower(Real Eopp, Real Vg, Real Zin)
{
    return square(sheets::inputForOutput(Eopp, Vg)) / Zin;
}

} // namespace velmor::form4
