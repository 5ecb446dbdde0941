// SPDX-License-Identifier: MIT
// The circuit of `Form10` for the check of a finished design: a driver with a bootstrapped load, and the complementary pair.
#include "designs/power/circuits.h"
#include "designs/power/form10.h"
#include "designs/power/power_circuit.h"

namespace velmor::form10 {

namespace form10_circuit {

using check::heldBy;
using check::kilo;
using check::milli;
using check::PartKind;
using check::Quantity;

// What the sheet counts with.
constexpr check::Figure driverBeta{.scale = 100};
constexpr double outputBeta = 50;
constexpr double emitterOhms = 0.47;

constexpr check::Figure Ibias{Text5, milli};

// Rd alone stands between the bases.
// clang-format off
constexpr check::PartRow parts[] = {
    {PartKind::supply,    "Es",   "cc",  "0",   {Text10}},
    {PartKind::generator, "Eg",   "gen", "0",   {}},
    {PartKind::resistor,  "Rs",   "gen", "in",  {Text9, kilo}},
    {PartKind::capacitor, "Cin",  "in",  "b",   {.held = heldBy<Form10, &Quantities::Cin>}},
    {PartKind::resistor,  "RLa",  "cc",  "n",   {Text4, kilo}},
    {PartKind::capacitor, "Cba",  "x",   "n",   {.held = heldBy<Form10, &Quantities::Cba>}},
    {PartKind::resistor,  "RLb",  "n",   "a",   {Text3, kilo}},
    {PartKind::resistor,  "Rd",   "a",   "k",   {.held = heldBy<Form10, &Quantities::Rd>}},
    {PartKind::resistor,  "Re2",  "e2",  "x",   {.scale = emitterOhms}},
    {PartKind::resistor,  "Re3",  "x",   "e3",  {.scale = emitterOhms}},
    {PartKind::resistor,  "Rb1a", "x",   "m",   {Text6, kilo}},
    {PartKind::resistor,  "Rb1b", "m",   "b",   {Text7, kilo}},
    {PartKind::capacitor, "Cbb",  "m",   "0",   {.held = heldBy<Form10, &Quantities::Cbb>}},
    {PartKind::resistor,  "Rb2",  "b",   "0",   {Text8, kilo}},
    {PartKind::capacitor, "Coo",  "x",   "out", {.held = heldBy<Form10, &Quantities::Coo>}},
    {PartKind::resistor,  "RLw",  "out", "0",   {Text2}},
};
constexpr check::TransistorRow transistors[] = {
    {.name = "Q1", .collector = "k", .emitter = "0", .Beta = driverBeta, .QIc = Ibias, .Vj = power::Vj},
    {.name = "Q2", .collector = "cc", .base = "a", .emitter = "e2", .Beta = {.scale = outputBeta}, .QIc = Ibias, .Vj = power::Vj},
    {.name = "Q3", .collector = "0", .base = "k", .emitter = "e3", .Beta = {.scale = outputBeta}, .QIc = Ibias, .Vj = power::Vj,
     .isPnp = true},
};

constexpr check::QuantityRow quantities[] = {
    {Quantity::QIc,    Text5,           1, {Text5}},
    {Quantity::Vg,     host::noControl, 1, {.held = heldBy<Form10, &Quantities::Vg>}},
    {Quantity::Eopp,   host::noControl, 1, {.held = heldBy<Form10, &Quantities::Eopp>}},
    {.quantity = Quantity::THD},
    {Quantity::Pout,   Text1,           1, {Text1}},
    {Quantity::Pclean, Text1,           1, {Text1}},
    {.quantity = Quantity::efficiency},
    {.quantity = Quantity::heat},
};
constexpr host::BiText assumed[] = {{"Betas 100 y 50", "Betas 100 and 50"}, power::plainTransistors};
// clang-format on

} // namespace form10_circuit

const check::SheetTable checkedCircuit{
    .sheet = "Form10",
    .parts = form10_circuit::parts,
    .transistors = form10_circuit::transistors,
    .quantities = form10_circuit::quantities,
    .Ein = {.scale = power::effective, .held = check::heldBy<Form10, &Quantities::EgPP>},
    .assumed = form10_circuit::assumed,
    .passed = check::hasPassed<Form10>,
    .preset = "Rb1b",
    .middle = "x",
    .mostPeak = {Text5, check::milli* form10_circuit::outputBeta}};

} // namespace velmor::form10
