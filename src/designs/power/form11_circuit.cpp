// SPDX-License-Identifier: MIT
// The circuit of `Form11` for the check of a finished design: as that of `Form10`, with Darlington outputs, an emitter resistor in the
// driver, and a fixed voltage in the place of Q8.
#include "designs/power/circuits.h"
#include "designs/power/form11.h"
#include "designs/power/power_circuit.h"

namespace velmor::form11 {

namespace form11_circuit {

using namespace form10; // NOLINT(google-build-using-namespace): the fields and numbers of the sheet that this one is told as
using check::heldBy;
using check::kilo;
using check::milli;
using check::PartKind;
using check::Quantity;

// What the sheet counts with, and the voltage at which the outputs rest at some 5 mA.
constexpr check::Figure driverBeta{.scale = 100};
constexpr check::Figure outputBeta{.scale = 20};
constexpr double superBeta = 400;
constexpr double emitterOhms = 0.47;
constexpr double leakOhms = 470;
constexpr double volts = 2.35;

constexpr check::Figure Ibias{Text5, milli};

// clang-format off
constexpr check::PartRow parts[] = {
    {PartKind::supply,    "Es",   "cc",  "0",   {Text10}},
    {PartKind::generator, "Eg",   "gen", "0",   {}},
    {PartKind::resistor,  "Rs",   "gen", "in",  {Text9, kilo}},
    {PartKind::capacitor, "Cin",  "in",  "b",   {.held = heldBy<Form11, &Quantities::Cin>}},
    {PartKind::resistor,  "RLa",  "cc",  "n",   {Text4, kilo}},
    {PartKind::capacitor, "Cba",  "x",   "n",   {.held = heldBy<Form11, &Quantities::Cba>}},
    {PartKind::resistor,  "RLb",  "n",   "a",   {Text3, kilo}},
    {PartKind::supply,    "Q8",   "a",   "k",   {.scale = volts}},
    {PartKind::resistor,  "Res",  "e1",  "0",   {Label13}},
    {PartKind::resistor,  "Re2",  "e2",  "x",   {.scale = leakOhms}},
    {PartKind::resistor,  "Re3",  "x",   "e3",  {.scale = leakOhms}},
    {PartKind::resistor,  "Re4",  "e4",  "x",   {.scale = emitterOhms}},
    {PartKind::resistor,  "Re5",  "x",   "e5",  {.scale = emitterOhms}},
    {PartKind::resistor,  "Rb1a", "x",   "m",   {Text6, kilo}},
    {PartKind::resistor,  "Rb1b", "m",   "b",   {Text7, kilo}},
    {PartKind::capacitor, "Cbb",  "m",   "0",   {.held = heldBy<Form11, &Quantities::Cbb>}},
    {PartKind::resistor,  "Rb2",  "b",   "0",   {Text8, kilo}},
    {PartKind::capacitor, "Coo",  "x",   "out", {.held = heldBy<Form11, &Quantities::Coo>}},
    {PartKind::resistor,  "RLw",  "out", "0",   {Text2}},
};
constexpr check::TransistorRow transistors[] = {
    {.name = "Q1", .collector = "k", .emitter = "e1", .Beta = driverBeta, .QIc = Ibias, .Vj = power::Vj},
    {.name = "Q2", .collector = "cc", .base = "a", .emitter = "e2", .Beta = outputBeta, .QIc = Ibias, .Vj = power::Vj},
    {.name = "Q3", .collector = "0", .base = "k", .emitter = "e3", .Beta = outputBeta, .QIc = Ibias, .Vj = power::Vj,
     .isPnp = true},
    {.name = "Q4", .collector = "cc", .base = "e2", .emitter = "e4", .Beta = outputBeta, .QIc = Ibias, .Vj = power::Vj},
    {.name = "Q5", .collector = "0", .base = "e3", .emitter = "e5", .Beta = outputBeta, .QIc = Ibias, .Vj = power::Vj,
     .isPnp = true},
};

constexpr check::QuantityRow quantities[] = {
    {Quantity::QIc,    Text5,           1, {Text5}},
    {Quantity::Vg,     host::noControl, 1, {.held = heldBy<Form11, &Quantities::Vg>}},
    {Quantity::Eopp,   host::noControl, 1, {.held = heldBy<Form11, &Quantities::Eopp>}},
    {.quantity = Quantity::THD},
    {Quantity::Pout,   Text1,           1, {Text1}},
    {Quantity::Pclean, Text1,           1, {Text1}},
    {.quantity = Quantity::efficiency},
    {.quantity = Quantity::heat},
};
constexpr host::BiText assumed[] = {
    {"Q8: una fuente de 2.35 V; Betas 100 y 20 x 20", "Q8: a source of 2.35 V; Betas 100 and 20 x 20"},
    power::plainTransistors};
// clang-format on

} // namespace form11_circuit

const check::SheetTable checkedCircuit{
    .sheet = "Form11",
    .parts = form11_circuit::parts,
    .transistors = form11_circuit::transistors,
    .quantities = form11_circuit::quantities,
    .Ein = {.scale = power::effective, .held = check::heldBy<Form11, &form10::Quantities::EgPP>},
    .assumed = form11_circuit::assumed,
    .passed = check::hasPassed<Form11>,
    .preset = "Rb1b",
    .middle = "x",
    .mostPeak = {form10::Text5, check::milli* form11_circuit::superBeta}};

} // namespace velmor::form11
