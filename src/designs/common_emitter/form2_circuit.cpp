// SPDX-License-Identifier: MIT
// The circuit of `Form2` for the check of a finished design.
#include "designs/common_emitter/circuits.h"
#include "designs/common_emitter/emitter_circuit.h"
#include "designs/common_emitter/form2.h"

namespace velmor::form2 {

using namespace common_emitter; // NOLINT(google-build-using-namespace): rows and reasons of the family

namespace form2_circuit {

// Polarised by emitter there is a negative supply under Res, and no Rb1; `image2` is the capacitor of the bypass.
// clang-format off
constexpr check::PartRow parts[] = {
    {PartKind::supply,    "Es",    "cc",  "0",   {Text16}},
    {PartKind::supply,    "Ebias", "0",   "ee",  {Text21},          {.when = Text21}},
    {PartKind::generator, "Eg",    "gen",  "0",   {}},
    {PartKind::capacitor, "Cin",   "gen", "b",   {statu32, micro}},
    {PartKind::resistor,  "Rb1",   "cc",  "b",   {Text19, kilo},    {.unless = Text21}},
    {PartKind::resistor,  "Rb2",   "b",   "0",   {Text18, kilo}},
    {PartKind::resistor,  "RL",    "cc",  "c",   {Text17, kilo}},
    {PartKind::resistor,  "Res",   "e",   "0",   {Text15},          {.unless = Text21, .norIf = Image2}},
    {PartKind::resistor,  "RByp",  "e",   "0",   {Text15},          {.when = Image2, .unless = Text21}},
    {PartKind::resistor,  "RByp",  "e",   "ee",  {Text15},          {.when = Text21}},
    {PartKind::capacitor, "Cbp",   "e",   "0",   {Text20, micro},   {.when = Image2}},
    {PartKind::capacitor, "Cout",  "c",   "out", {statu33, micro}},
    {PartKind::resistor,  "RLw",   "out", "0",   {Text9, kilo}},
};

constexpr auto inputRungs = std::to_array<check::RungRow>({
    {Truth::ownInput, kilohmsAndOhms},
    {Truth::junction, junctionInInput},
    {Truth::thermal,  thermalVolts},
    {Truth::current,  trueCurrent},
    {Truth::alpha,    baseCurrentInEmitter},
});
// clang-format on

constexpr auto quantities = quantityRows<Control>({statu31});

} // namespace form2_circuit

const check::SheetTable checkedCircuit{.sheet = "Form2",
                                       .stage = check::StageKind::commonEmitter,
                                       .parts = form2_circuit::parts,
                                       .transistors = transistors<Control>,
                                       .quantities = form2_circuit::quantities,
                                       .Ein = {Text14},
                                       .fo = {Text12},
                                       .temperature = {Text3},
                                       .gainRungs = unbypassedGainRungs,
                                       .inputCounted = {Truth::upperResistor, Truth::lowerResistor},
                                       .inputRungs = form2_circuit::inputRungs,
                                       .assumed = assumptions,
                                       .passed = check::hasPassed<Form2>};

} // namespace velmor::form2
