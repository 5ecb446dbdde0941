// SPDX-License-Identifier: MIT
// The circuit of `Form12` for the check of a finished design: the constant current source, with D1 a transistor like Q1.
#include "designs/differential/circuits.h"
#include "designs/differential/form12.h"

namespace velmor::form12 {

namespace form12_circuit {

using check::heldBy;
using check::kilo;
using check::milli;
using check::PartKind;
using check::Quantity;

constexpr check::Figure Beta{.scale = 100};
constexpr check::Figure QIc{.scale = milli, .held = heldBy<Form12, &Quantities::QIc>};
constexpr check::Figure Vj{.scale = VjFixed};
/// Where the stage that is fed keeps the collector, V below ground.
constexpr double collectorVolts = 0.6;

// clang-format off
constexpr check::PartRow parts[] = {
    {PartKind::supply,   "Ebias", "0", "ee", {.held = heldBy<Form12, &Quantities::Ebias>}},
    {PartKind::supply,   "Ec",    "0", "c",  {.scale = collectorVolts}},
    {PartKind::resistor, "Rb1",   "0", "b",  {.scale = kilo, .held = heldBy<Form12, &Quantities::Rb1>}},
    {PartKind::resistor, "Rb2",   "b", "d",  {.scale = kilo, .held = heldBy<Form12, &Quantities::Rb2>}},
    {PartKind::resistor, "Res",   "e", "ee", {.scale = kilo, .held = heldBy<Form12, &Quantities::Res>}},
};
constexpr check::TransistorRow transistors[] = {
    {.name = "Q1", .Beta = Beta, .QIc = QIc, .Vj = Vj},
    {.name = "D1", .collector = "d", .base = "d", .emitter = "ee", .Beta = Beta, .QIc = QIc, .Vj = Vj},
};
constexpr check::QuantityRow quantities[] = {
    {Quantity::QIc, Text1,           1, {.held = heldBy<Form12, &Quantities::QIcAnalysis>}},
    {Quantity::Vce, host::noControl, 1, {.held = heldBy<Form12, &Quantities::EqAnalysis>}},
};
constexpr host::BiText assumed[] = {
    {"D1, un transistor como Q1; Beta 100, Vj 0.6 V", "D1 a transistor like Q1; Beta 100, Vj 0.6 V"},
    {"Colector a -0.6 V", "Collector at -0.6 V"},
};
// clang-format on

} // namespace form12_circuit

const check::SheetTable checkedCircuit{.sheet = "Form12",
                                       .parts = form12_circuit::parts,
                                       .transistors = form12_circuit::transistors,
                                       .quantities = form12_circuit::quantities,
                                       .assumed = form12_circuit::assumed,
                                       .passed = check::hasPassed<Form12>};

} // namespace velmor::form12
