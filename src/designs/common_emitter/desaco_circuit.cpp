// SPDX-License-Identifier: MIT
// The circuit of `desaco` for the check of a finished design: Res is bypassed whole.
#include "designs/common_emitter/circuits.h"
#include "designs/common_emitter/desaco.h"
#include "designs/common_emitter/emitter_circuit.h"

namespace velmor::desaco {

using namespace common_emitter; // NOLINT(google-build-using-namespace): rows and reasons of the family

namespace desaco_circuit {

// clang-format off
constexpr check::PartRow parts[] = {
    {PartKind::supply,    "Es",    "cc",  "0",   {Text16}},
    {PartKind::generator, "Eg",    "gen", "0",   {}},
    {PartKind::capacitor, "Cin",   "gen", "b",   {statu32, micro}},
    {PartKind::resistor,  "Rb1",   "cc",  "b",   {Text19, kilo}},
    {PartKind::resistor,  "Rb2",   "b",   "0",   {Text18, kilo}},
    {PartKind::resistor,  "RL",    "cc",  "c",   {Text17, kilo}},
    {PartKind::resistor,  "RByp",  "e",   "0",   {Text15}},
    {PartKind::capacitor, "Cbp",   "e",   "0",   {Text20, micro}},
    {PartKind::capacitor, "Cout",  "c",   "out", {statu33, micro}},
    {PartKind::resistor,  "RLw",   "out", "0",   {Text9, kilo}},
};
// clang-format on

constexpr auto quantities = quantityRows<Control>({.held = check::heldBy<Desaco, &Quantities::Zin>});

} // namespace desaco_circuit

const check::SheetTable checkedCircuit{.sheet = "desaco",
                                       .stage = check::StageKind::commonEmitter,
                                       .parts = desaco_circuit::parts,
                                       .transistors = transistors<Control>,
                                       .quantities = desaco_circuit::quantities,
                                       .Ein = {Text14},
                                       .fo = {Text12},
                                       .temperature = {Text3},
                                       .gainRungs = bypassedGainRungs,
                                       .inputCounted = {Truth::ownInput, Truth::upperResistor},
                                       .inputRungs = bypassedInputRungs,
                                       .assumed = assumptions,
                                       .passed = check::hasPassed<Desaco>};

} // namespace velmor::desaco
