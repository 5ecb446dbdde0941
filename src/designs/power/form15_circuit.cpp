// SPDX-License-Identifier: MIT
// The circuit of `Form15` for the check of a finished design: a driver, and the output that follows it into the load.
#include "designs/power/circuits.h"
#include "designs/power/form15.h"
#include "designs/power/power_circuit.h"

namespace velmor::form15 {

namespace form15_circuit {

using check::heldBy;
using check::kilo;
using check::PartKind;
using check::Quantity;

// clang-format off
constexpr check::PartRow parts[] = {
    {PartKind::supply,    "Es",   "cc",  "0",   {Text4}},
    {PartKind::generator, "Eg",   "gen", "0",   {}},
    {PartKind::resistor,  "Rs",   "gen", "in",  {Text9}},
    {PartKind::capacitor, "Ccin", "in",  "b",   {.held = heldBy<Form15, &Quantities::Ccin>}},
    {PartKind::resistor,  "RL",   "cc",  "d",   {Text5}},
    {PartKind::resistor,  "Rb1b", "out", "m",   {Text6}},
    {PartKind::capacitor, "Cbp",  "m",   "0",   {.held = heldBy<Form15, &Quantities::Cbp>}},
    {PartKind::resistor,  "Rb1a", "m",   "b",   {Text7}},
    {PartKind::resistor,  "Rb2",  "b",   "0",   {Text8}},
    {PartKind::resistor,  "RLw",  "out", "0",   {Text2}},
};
constexpr check::TransistorRow transistors[] = {
    {.name = "Q1", .collector = "d", .emitter = "0", .Beta = {Text11}, .QIc = {.held = heldBy<Form15, &Quantities::QIc1>}, .Vj = power::Vj},
    {.name = "Q2", .collector = "cc", .base = "d", .emitter = "out", .Beta = {Text10}, .QIc = {Text3}, .Vj = power::Vj},
};

constexpr check::QuantityRow quantities[] = {
    {Quantity::QIc,  host::noControl, 1,    {.scale = kilo, .held = heldBy<Form15, &Quantities::QIc1>}},
    {Quantity::QIc2, Text3,           kilo, {Text3, kilo}},
    {Quantity::Vce,  host::noControl, 1,    {.held = heldBy<Form15, &Quantities::EQ1>}},
    {Quantity::Eopp, host::noControl, 1,    {.held = heldBy<Form15, &Quantities::Eopp>}},
    {.quantity = Quantity::THD},
    {Quantity::Pout,   Text1,         1,    {Text1}},
    {Quantity::Pclean, Text1,         1,    {Text1}},
    {.quantity = Quantity::efficiency},
    {.quantity = Quantity::heat},
};
constexpr host::BiText assumed[] = {{"Rb1 empieza en la salida", "Rb1 starts at the output"}, power::plainTransistors};
// clang-format on

} // namespace form15_circuit

const check::SheetTable checkedCircuit{
    .sheet = "Form15",
    .parts = form15_circuit::parts,
    .transistors = form15_circuit::transistors,
    .quantities = form15_circuit::quantities,
    .Ein = {.scale = power::effective, .held = check::heldBy<Form15, &Quantities::EgPP>},
    .driverRungs = power::driverRungs,
    .assumed = form15_circuit::assumed,
    .passed = check::hasPassed<Form15>};

} // namespace velmor::form15
