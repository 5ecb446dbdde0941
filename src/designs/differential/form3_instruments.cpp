// SPDX-License-Identifier: MIT
// The tables of probe and meter. A probe between collectors shows twice one output; with the second input in opposite phase
// the example keeps its 5 V.
#include "designs/differential/form3_instruments.h"

#include <algorithm>
#include <array>

#include "designs/differential/form3_controls.h"

namespace velmor::form3 {

namespace instruments {

using enum Signal;

constexpr InputSignals Aground{A, ground};
constexpr InputSignals Bground{B, ground};
constexpr InputSignals groundA{ground, A};
constexpr InputSignals groundB{ground, B};
constexpr InputSignals AA{A, A};
constexpr InputSignals BB{B, B};
constexpr InputSignals AB{A, B};

// clang-format off
constexpr host::BiText blank{.es = " ", .en = " "};
constexpr host::BiText zeroAtOutput1{.es = " Cero Volts",      .en = " Voltage Zero"};
constexpr host::BiText zeroAtOutput2{.es = "    Cero volts ",  .en = " Zero Voltage"};
constexpr host::BiText zeroForA     {.es = "  Cero volts ",    .en = "  Votage Zero "};
constexpr host::BiText zeroForB     {.es = "  Cero volts ",    .en = "  Voltage Zero "};
constexpr host::BiText zeroAtImage4 {.es = "    Cero volts ",  .en = "  Voltage Zero "};

// Image4 takes the reading of Image24 and shows the other wave. It speaks English alone.
constexpr std::array<ProbeRow, 27> probeTable{{
    // point   inputs     reading               waves              SSPanel3        English only
    {Image22, Aground, " Out 1 = 10 V",     Waves::Image23,   blank},
    {Image22, Bground, " Out 1 = 10 V",     Waves::Image25,   blank},
    {Image22, groundA, " Out 1 = 10 V",     Waves::Image25,   blank},
    {Image22, groundB, " Out 1 = 10 V",     Waves::Image23,   blank},
    {Image22, AA,      " Out 1 = 0 V",      Waves::neither,   zeroAtOutput1},
    {Image22, AB,      " Out 1 = 10 Volts", Waves::Image23,   blank},
    {Image26, Aground, " Out 1 = 10 V",     Waves::Image25,   blank},
    {Image26, Bground, " Out 1 = 10 V",     Waves::Image23,   blank},
    {Image26, groundA, " Out 1 = 10 V",     Waves::Image23,   blank},
    {Image26, groundB, " Out 1 = 10 V",     Waves::asTheyAre, blank},
    {Image26, AA,      " Out 2 = 0 V",      Waves::neither,   zeroAtOutput2},
    {Image26, BB,      " Out 2 = 0 V",      Waves::neither,   zeroAtOutput2},
    {Image26, AB,      " Out 1 = 10 V",     Waves::Image25,   blank},
    {Image24, Aground, " Out 3 = 20 V",     Waves::Image25,   blank},
    {Image24, Bground, " Out 3 = 20 V",     Waves::Image23,   blank},
    {Image24, groundA, "Out 3 = 20 V",      Waves::Image23,   blank},
    {Image24, groundB, "Out 3 = 20 V",      Waves::Image25,   blank},
    {Image24, AA,      " Out 3 = 0 Volts",  Waves::neither,   zeroForA},
    {Image24, BB,      " Out 3 = 0 Volts",  Waves::neither,   zeroForB},
    {Image24, AB,      "Out 3 = 5 V",       Waves::both,      blank},
    {Image4,  Aground, "Out 3 = 20 V",      Waves::Image23,   blank,          true},
    {Image4,  Bground, "Out 3 = 20 V",      Waves::Image25,   blank,          true},
    {Image4,  groundA, "Out 3 = 20 V",      Waves::Image25,   blank,          true},
    {Image4,  groundB, "Out 3 = 20 V",      Waves::Image23,   blank,          true},
    {Image4,  AA,      " Out 3 = 0 Volts",  Waves::neither,   zeroAtImage4,   true},
    {Image4,  BB,      " Out 3 = 0 Volts",  Waves::neither,   zeroAtImage4,   true},
    {Image4,  AB,      "Out 3 = 5 V",       Waves::Image23,   blank,          true},
}};

constexpr MeterUnit volts         {{"   Tensión en Volts ", "   Voltage in V     "}, Shape12};
constexpr MeterUnit current       {{"  Corriente  en mA  ", "  Current in mA     "}, Shape13};
constexpr MeterUnit totalCurrent  {{"  Corriente total en mA  ", "  Current in mA     "}, Shape13};
constexpr MeterUnit power         {{"   Potencia eficaz en Watts   ", "   Power (r.m.s.) in Watts    "}, Shape14};
constexpr MeterUnit milliPower    {{"   Potencia eficaz en mW   ", "   Power (r.m.s.) in mW    "}, Shape15};
constexpr MeterUnit currentOfBase {{" Corriente de base en mA ", " Current Base in mA "}, Shape13};
constexpr MeterUnit entranceVolts {{" Tensión de entrada en valor eficaz ", " Entrance voltage (r.m.s.) "}, Shape12};
constexpr MeterUnit entranceOhms  {{"  Impedancia de entrada en Ohms. ", "  Entrance impedance ( Ohms ). "}, Shape16};
constexpr MeterUnit loadOhms      {{"  Impedancia de carga en Ohms. ", "  Load impedance ( Ohms ). "}, Shape16};
constexpr MeterUnit cutoffOhms    {{"  Impedancia de entrada en Ohms a la frecuencia de corte. ",
                                    "  Impedancia de entrada en Ohms a la frecuencia de corte. "}, Shape16};

constexpr auto dc = Current::dc;
constexpr auto ac = Current::ac;
constexpr auto V = Function::V;
constexpr auto I = Function::A;
constexpr auto W = Function::W;
constexpr auto Z = Function::Z;

constexpr std::array<MeterRow, 31> meterTable{{
    // point, current, function, value, unit, comment, whole, finished only
    {Image4,  dc, V, reading<&Quantities::EQ>,                 volts,         "Guau !",  false, true},
    {Image4,  dc, I, reading<&Quantities::QIc>,                current,       "",        false, true},
    {Image4,  ac, V, vrms,                                     volts},
    {Image4,  ac, W, outputPower,                              power},
    {Image5,  dc, V, reading<&Quantities::Ebias>,              volts},
    {Image5,  dc, I, bothCurrents,                             totalCurrent},
    {Image5,  dc, W, negativePower,                            power},
    {Image6,  dc, V, reading<&Quantities::Es>,                 volts},
    {Image6,  dc, I, bothCurrents,                             totalCurrent},
    {Image6,  dc, W, positivePower,                            power},
    {Image7,  dc, V, reading<&Quantities::Es>,                 volts},
    {Image7,  dc, I, reading<&Quantities::QIc>,                current},
    {Image7,  dc, W, positivePower,                            power},
    {Image8,  dc, V, reading<&Quantities::Vj>,                 volts,         "",        false, true},
    {Image8,  dc, I, reading<&Quantities::QIc>,                current,       "",        false, true},
    {Image9,  dc, V, baseVoltage,                              volts,         "Ah ja.!"},
    {Image9,  dc, I, baseCurrent,                              currentOfBase},
    {Image9,  ac, V, reading<&Quantities::Ein>,                entranceVolts},
    {Image9,  ac, W, inputPower,                               milliPower},
    {Image9,  ac, Z, reading<&Quantities::Zin>,                entranceOhms,  "",        true},
    {Image10, dc, V, baseVoltage,                              volts},
    {Image10, dc, I, baseCurrent,                              currentOfBase},
    {Image11, ac, V, outputAtCutoff<vrms>,                     volts,         "Hmm..."},
    {Image11, ac, W, outputAtCutoff<outputPower>,              power},
    {Image11, ac, Z, loadImpedance,                            loadOhms},
    {Image26, ac, V, outputAtCutoff<vrms>,                     volts,         "Hmm..."},
    {Image26, ac, W, outputAtCutoff<outputPower>,              power},
    {Image26, ac, Z, loadImpedance,                            loadOhms},
    {Image12, ac, V, inputAtCutoff<reading<&Quantities::Ein>>, entranceVolts},
    {Image12, ac, W, inputAtCutoff<inputPower>,                milliPower},
    {Image12, ac, Z, inputAtCutoff<reading<&Quantities::Zin>>, cutoffOhms,    "",        true},
}};
// clang-format on

} // namespace instruments

std::span<const ProbeRow> probeRows()
{
    return instruments::probeTable;
}

const ProbeRow* probeRow(host::Handle point, const InputSignals& inputs)
{
    const auto& table = instruments::probeTable;
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&](const ProbeRow& row) { return row.point == point && row.inputs == inputs; });
    return found == table.end() ? nullptr : &*found;
}

std::span<const MeterRow> meterRows()
{
    return instruments::meterTable;
}

const MeterRow* meterRow(host::Handle point, Current current, Function function)
{
    const auto& table = instruments::meterTable;
    const auto found = std::find_if(table.begin(), table.end(), [&](const MeterRow& row) {
        return row.point == point && row.current == current && row.function == function;
    });
    return found == table.end() ? nullptr : &*found;
}

bool isMeterPoint(host::Handle point)
{
    const auto& table = instruments::meterTable;
    return std::any_of(table.begin(), table.end(), [point](const MeterRow& row) { return row.point == point; });
}

} // namespace velmor::form3
