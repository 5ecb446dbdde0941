// SPDX-License-Identifier: MIT
// The circuit of `form20` for the check of a finished design: as that of `Form15`, with a Darlington pair and a bootstrapped RL.
#include "designs/power/circuits.h"
#include "designs/power/form20.h"
#include "designs/power/power_circuit.h"

namespace velmor::form20 {

namespace form20_circuit {

using check::heldBy;
using check::kilo;
using check::PartKind;
using check::Quantity;
using form15::Quantities;

/// Cbp1 = 1 / (125.6 x RLa), F from ohm, as the sheet works it out; 0 while it shows no RLa.
double bootstrapCapacitor(const host::Window& window)
{
    const double RLa = check::numberIn(window.text(Label22));
    return RLa > 0 ? 1 / (form15::capacitorFactor * RLa) : 0;
}

/// The current of the pair's first transistor = QIc / Beta of the second, A.
double firstCurrent(const host::Window& window)
{
    const double Beta = check::numberIn(window.text(Text10));
    return Beta > 0 ? check::numberIn(window.text(Text3)) / Beta : 0;
}

// clang-format off
constexpr check::PartRow parts[] = {
    {PartKind::supply,    "Es",   "cc",  "0",   {Text4}},
    {PartKind::generator, "Eg",   "gen", "0",   {}},
    {PartKind::resistor,  "Rs",   "gen", "in",  {Text9}},
    {PartKind::capacitor, "Ccin", "in",  "b",   {.held = heldBy<Form20, &Quantities::Ccin>}},
    {PartKind::resistor,  "RLa",  "cc",  "n",   {Label22}},
    {PartKind::capacitor, "Cbp1", "out", "n",   {.held = bootstrapCapacitor}},
    {PartKind::resistor,  "RLb",  "n",   "d",   {Label9}},
    {PartKind::resistor,  "Rb1b", "out", "m",   {Text6}},
    {PartKind::capacitor, "Cbp",  "m",   "0",   {.held = heldBy<Form20, &Quantities::Cbp>}},
    {PartKind::resistor,  "Rb1a", "m",   "b",   {Text7}},
    {PartKind::resistor,  "Rb2",  "b",   "0",   {Text8}},
    {PartKind::resistor,  "RLw",  "out", "0",   {Text2}},
};
constexpr check::TransistorRow transistors[] = {
    {.name = "Q1", .collector = "d", .emitter = "0", .Beta = {Text11}, .QIc = {.held = heldBy<Form20, &Quantities::QIc1>}, .Vj = power::Vj},
    {.name = "Q2", .collector = "cc", .base = "d", .emitter = "e2", .Beta = {Text11}, .QIc = {.held = firstCurrent}, .Vj = power::Vj},
    {.name = "Q3", .collector = "cc", .base = "e2", .emitter = "out", .Beta = {Text10}, .QIc = {Text3}, .Vj = power::Vj},
};

constexpr check::QuantityRow quantities[] = {
    {Quantity::QIc,  host::noControl, 1,    {.scale = kilo, .held = heldBy<Form20, &Quantities::QIc1>}},
    {Quantity::QIc3, Text3,           kilo, {Text3, kilo}},
    {Quantity::Vce,  host::noControl, 1,    {.held = heldBy<Form20, &Quantities::EQ1>},
     {"entre Q1 y la salida hay dos junturas y el curso cuenta una; además, la salida descansa más arriba que Es / 2.",
      "there are two junctions between Q1 and the output, and the course counts one; the output also rests higher than Es / 2."}},
    {Quantity::Eopp, host::noControl, 1,    {.held = heldBy<Form20, &Quantities::Eopp>}},
    {.quantity = Quantity::THD},
    {Quantity::Pout,   Text1,         1,    {Text1}},
    {Quantity::Pclean, Text1,         1,    {Text1}},
    {.quantity = Quantity::efficiency},
    {.quantity = Quantity::heat},
};
constexpr host::BiText assumed[] = {{"Rb1 empieza en la salida", "Rb1 starts at the output"}, power::plainTransistors};
// clang-format on

} // namespace form20_circuit

const check::SheetTable checkedCircuit{
    .sheet = "form20",
    .parts = form20_circuit::parts,
    .transistors = form20_circuit::transistors,
    .quantities = form20_circuit::quantities,
    .Ein = {.scale = power::effective, .held = check::heldBy<Form20, &form15::Quantities::EgPP>},
    .driverRungs = power::driverRungs,
    .assumed = form20_circuit::assumed,
    .passed = check::hasPassed<Form20>};

} // namespace velmor::form20
