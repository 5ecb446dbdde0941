// SPDX-License-Identifier: MIT
// The circuit of `Form4` for the check of a finished design: the generator at the emitter, the base grounded for the signal.
#include <array>

#include "designs/base_collector/circuit_reasons.h"
#include "designs/base_collector/circuits.h"
#include "designs/base_collector/form4.h"

namespace velmor::form4 {

using namespace base_collector; // NOLINT(google-build-using-namespace): reasons of the family

namespace form4_circuit {

using check::kilo;
using check::micro;
using check::milli;
using check::PartKind;
using check::Quantity;
using check::Truth;

/// The sheet has no capacitor for the base, F.
constexpr double baseCapacitor = 31.8e-6;

// clang-format off
constexpr check::PartRow parts[] = {
    {PartKind::supply,    "Es",   "cc",  "0",   {Text20}},
    {PartKind::generator, "Eg",   "gen", "0",   {}},
    {PartKind::capacitor, "Cin",  "gen", "e",   {Label26, micro}},
    {PartKind::resistor,  "Res",  "e",   "0",   {Text18, kilo}},
    {PartKind::resistor,  "Rb1",  "cc",  "b",   {Text17, kilo}},
    {PartKind::resistor,  "Rb2",  "b",   "0",   {Text16, kilo}},
    {PartKind::capacitor, "Cb",   "b",   "0",   {.scale = baseCapacitor}},
    {PartKind::resistor,  "RL",   "cc",  "c",   {Text15, kilo}},
    {PartKind::capacitor, "Cout", "c",   "out", {Label27, micro}},
    {PartKind::resistor,  "RLw",  "out", "0",   {Text9, kilo}},
};
constexpr check::TransistorRow transistors[] = {{.Beta = {Text2}, .QIc = {Text8, milli}, .Vj = {Text7}}};

constexpr check::QuantityRow quantities[] = {
    {Quantity::QIc,   Text8,           1, {Text8}},
    {Quantity::Vce,   host::noControl, 1, {Label23}},
    {Quantity::Vg,    Text11,          1, {Text11}},
    {Quantity::Zin,   host::noControl, 1, {.held = check::heldBy<Form4, &Quantities::ReDyn>}},
    {Quantity::fL,    Text12,          1, {Text12}},
    {Quantity::dBfo,  host::noControl, 1, {.scale = check::courseLevelAtFo}},
    {Quantity::Eopp,  Text13,          1, {Text13}},
    {.quantity = Quantity::THD},
    {Quantity::drift, Text1,           1, {Text1}},
};

constexpr check::RungRow gainRungs[] = {
    {Truth::thermal, thermalVolts},
    {Truth::current, trueCurrent},
};
constexpr check::RungRow inputRungs[] = {
    {Truth::thermal,         thermalVolts},
    {Truth::current,         trueCurrent},
    {Truth::alpha,           baseCurrentInEmitter},
    {Truth::emitterResistor, {"el curso deja afuera Res, que está en paralelo con r'e.",
                              "the course leaves Res out; it lies in parallel with r'e."}},
};
constexpr host::BiText assumed[] = {
    {"Generador de 0 ohm", "Generator of 0 ohm"},
    {"Capacitor de la base a masa: 31.8 microF", "Capacitor from the base to ground: 31.8 microF"},
    noEarlyEffect,
};
// clang-format on

} // namespace form4_circuit

const check::SheetTable checkedCircuit{.sheet = "Form4",
                                       .stage = check::StageKind::commonBase,
                                       .parts = form4_circuit::parts,
                                       .transistors = form4_circuit::transistors,
                                       .quantities = form4_circuit::quantities,
                                       .Ein = {Text14},
                                       .fo = {Text12},
                                       .temperature = {Text3},
                                       .gainRungs = form4_circuit::gainRungs,
                                       .inputRungs = form4_circuit::inputRungs,
                                       .assumed = form4_circuit::assumed,
                                       .passed = check::hasPassed<Form4>};

} // namespace velmor::form4
