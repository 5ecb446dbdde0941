// SPDX-License-Identifier: MIT
// The circuit of `ParcDesac` for the check of a finished design: a part of Res is left without bypass.
#include "designs/common_emitter/circuits.h"
#include "designs/common_emitter/emitter_circuit.h"
#include "designs/common_emitter/parc_desac.h"

namespace velmor::parc_desac {

using namespace common_emitter; // NOLINT(google-build-using-namespace): rows and reasons of the family

namespace parc_desac_circuit {

/// What is bypassed = ERes / QIc - Res, ohm from V, mA and ohm.
double bypassedPart(const host::Window& window)
{
    const double QIc = check::numberIn(window.text(Text8)) * milli;
    return check::heldBy<ParcDesac, &common_emitter::Quantities::ERes>(window) / QIc -
           check::numberIn(window.text(Text15));
}

// Polarised by emitter there is a negative supply under Res, and no Rb1.
// clang-format off
constexpr check::PartRow parts[] = {
    {PartKind::supply,    "Es",    "cc",  "0",   {Text16}},
    {PartKind::supply,    "Ebias", "0",   "ee",  {Text21},               {.when = Text21}},
    {PartKind::generator, "Eg",    "gen", "0",   {}},
    {PartKind::capacitor, "Cin",   "gen", "b",   {statu32, micro}},
    {PartKind::resistor,  "Rb1",   "cc",  "b",   {Text19, kilo},         {.unless = Text21}},
    {PartKind::resistor,  "Rb2",   "b",   "0",   {Text18, kilo}},
    {PartKind::resistor,  "RL",    "cc",  "c",   {Text17, kilo}},
    {PartKind::resistor,  "Res",   "e",   "m",   {Text15}},
    {PartKind::resistor,  "RByp",  "m",   "0",   {.held = bypassedPart}, {.unless = Text21}},
    {PartKind::resistor,  "RByp",  "m",   "ee",  {.held = bypassedPart}, {.when = Text21}},
    {PartKind::capacitor, "Cbp",   "m",   "0",   {sta1, micro}},
    {PartKind::capacitor, "Cout",  "c",   "out", {statu33, micro}},
    {PartKind::resistor,  "RLw",   "out", "0",   {Text9, kilo}},
};

constexpr auto inputRungs = std::to_array<check::RungRow>({
    {Truth::upperResistor, upperMixed},
    {Truth::junction,      junctionInInput},
    {Truth::thermal,       thermalVolts},
    {Truth::current,       trueCurrent},
    {Truth::alpha,         baseCurrentInEmitter},
});
// clang-format on

constexpr auto quantities =
    quantityRows<Controls>({.scale = kilo, .held = check::heldBy<ParcDesac, &common_emitter::Quantities::Zin>});

} // namespace parc_desac_circuit

const check::SheetTable checkedCircuit{.sheet = "ParcDesac",
                                       .stage = check::StageKind::commonEmitter,
                                       .parts = parc_desac_circuit::parts,
                                       .transistors = transistors<Controls>,
                                       .quantities = parc_desac_circuit::quantities,
                                       .Ein = {Text14},
                                       .fo = {Text12},
                                       .temperature = {Text3},
                                       .gainRungs = unbypassedGainRungs,
                                       .inputCounted = {Truth::ownInput, Truth::lowerResistor},
                                       .inputRungs = parc_desac_circuit::inputRungs,
                                       .assumed = assumptions,
                                       .passed = check::hasPassed<ParcDesac>};

} // namespace velmor::parc_desac
