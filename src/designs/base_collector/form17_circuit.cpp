// SPDX-License-Identifier: MIT
// The circuit of `Form17` for the check of a finished design: the emitter follower behind a generator with a resistance.
#include <array>

#include "designs/base_collector/circuit_reasons.h"
#include "designs/base_collector/circuits.h"
#include "designs/base_collector/form17.h"
#include "sheets/formulas.h"

namespace velmor::form17 {

using namespace base_collector; // NOLINT(google-build-using-namespace): reasons of the family

namespace form17_circuit {

using check::kilo;
using check::micro;
using check::milli;
using check::PartKind;
using check::Quantity;
using check::Truth;

/// Zin as the sheet works it out before it shows whole kilohms, ohm; 0 where its fields hold nothing to divide by.
double courseZin(const host::Window& window)
{
    const auto at = [&window](host::Handle field) { return check::numberIn(window.text(field)); };
    if (at(Text15) <= 0 || at(Text9) <= 0 || at(Text16) <= 0 || at(Text2) <= 0)
        return 0;
    return kilo * inputImpedance(at(Text16), at(Text2), sheets::parallel(at(Text15), at(Text9))).value();
}

// clang-format off
constexpr check::PartRow parts[] = {
    {PartKind::supply,    "Es",   "cc",  "0",   {Text20}},
    {PartKind::generator, "Eg",   "gen", "0",   {}},
    {PartKind::resistor,  "Rg",   "gen", "in",  {Text4, kilo}},
    {PartKind::capacitor, "Cin",  "in",  "b",   {Label26, micro}},
    {PartKind::resistor,  "Rb1",  "cc",  "b",   {Text17, kilo}},
    {PartKind::resistor,  "Rb2",  "b",   "0",   {Text16, kilo}},
    {PartKind::resistor,  "Res",  "e",   "0",   {Text15, kilo}},
    {PartKind::capacitor, "Cout", "e",   "out", {Label28, micro}},
    {PartKind::resistor,  "RLw",  "out", "0",   {Text9, kilo}},
};
constexpr check::TransistorRow transistors[] = {{.collector = "cc", .Beta = {Text2}, .QIc = {Text8, milli}, .Vj = {Text7}}};

constexpr check::QuantityRow quantities[] = {
    {Quantity::QIc,  Text8,           1, {Text8}},
    {Quantity::Vce,  host::noControl, 1, {.held = check::heldBy<Form17, &Quantities::EQ>}},
    {Quantity::Vg,   host::noControl, 1, {Text11}},
    {Quantity::Zin,  host::noControl, 1, {.held = courseZin}},
    {Quantity::fL,   Text12,          1, {Text12}},
    {Quantity::dBfo, host::noControl, 1, {.scale = check::courseLevelAtFo}},
    {.quantity = Quantity::output},
    {Quantity::Eopp, Text13,          1, {Text13}},
    {.quantity = Quantity::THD},
};

constexpr check::RungRow gainRungs[] = {
    {Truth::junction, junctionInGain},
    {Truth::thermal,  thermalVolts},
    {Truth::current,  trueCurrent},
    {Truth::alpha,    baseCurrentInEmitter},
};
constexpr check::RungRow inputRungs[] = {
    {Truth::upperResistor, upperLeftOut},
    {Truth::junction,      junctionInInput},
    {Truth::thermal,       thermalVolts},
    {Truth::current,       trueCurrent},
    {Truth::alpha,         baseCurrentInEmitter},
};
constexpr host::BiText assumed[] = {noEarlyEffect};
// clang-format on

} // namespace form17_circuit

const check::SheetTable checkedCircuit{
    .sheet = "Form17",
    .stage = check::StageKind::follower,
    .parts = form17_circuit::parts,
    .transistors = form17_circuit::transistors,
    .quantities = form17_circuit::quantities,
    .Ein = {Text14},
    .fo = {Text12},
    .gainCounted = {check::Truth::load},
    .gainRungs = form17_circuit::gainRungs,
    .inputCounted = {check::Truth::ownInput, check::Truth::lowerResistor, check::Truth::load},
    .inputRungs = form17_circuit::inputRungs,
    .assumed = form17_circuit::assumed,
    .passed = check::hasPassed<Form17>};

} // namespace velmor::form17
