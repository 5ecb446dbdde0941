// SPDX-License-Identifier: MIT
// The circuit of `Form18` for the check of a finished design: as that of `Form8`, with Rb2 at the base.
#include "designs/common_emitter/circuits.h"
#include "designs/common_emitter/feedback_circuit.h"
#include "designs/common_emitter/form18.h"

namespace velmor::form18 {

using namespace feedback; // NOLINT(google-build-using-namespace): rows and reasons of the family

namespace form18_circuit {

// With the capacitor Cdp, Rb1 stands in two halves.
// clang-format off
constexpr check::PartRow parts[] = {
    {PartKind::supply,    "Es",   "cc",  "0",   {Text16}},
    {PartKind::generator, "Eg",   "gen", "0",   {}},
    {PartKind::resistor,  "Rg",   "gen", "in",  {Text15, kilo}},
    {PartKind::capacitor, "Cin",  "in",  "b",   {statu32, micro}},
    {PartKind::resistor,  "Rb1",  "c",   "b",   {Text19, kilo},     {.unless = stas}},
    {PartKind::resistor,  "Rb1a", "c",   "m",   {Text19, kilo / 2}, {.when = stas}},
    {PartKind::resistor,  "Rb1b", "m",   "b",   {Text19, kilo / 2}, {.when = stas}},
    {PartKind::capacitor, "Cdp",  "m",   "0",   {stas, micro},      {.when = stas}},
    {PartKind::resistor,  "Rb2",  "b",   "0",   {Text18, kilo}},
    {PartKind::resistor,  "RL",   "cc",  "c",   {Text17, kilo}},
    {PartKind::capacitor, "Cout", "c",   "out", {statu33, micro}},
    {PartKind::resistor,  "RLw",  "out", "0",   {Text9, kilo}},
};
constexpr auto oneTransistor = std::to_array<check::TransistorRow>({
    {.emitter = "0", .Beta = {Text2}, .QIc = {Text8, milli}, .Vj = {Text7}},
});

constexpr auto inputRungs = std::to_array<check::RungRow>({
    {Truth::asMeant,       {"el curso pone fo en el lugar de Beta; con la Beta del transistor, la impedancia de entrada es otra.",
                            "the course puts fo in the place of Beta here; with the transistor's Beta the input impedance is another."}},
    {Truth::lowerResistor, {"el curso deja casi afuera Rb2, que está en paralelo con la entrada y baja su impedancia.",
                            "the course nearly leaves Rb2 out here; it lies in parallel with the input and lowers its impedance."}},
    {Truth::thermal,       thermalInput},
    {Truth::current,       currentInput},
    {Truth::feedbackLoad,  loadInput},
    {Truth::oneMore,       oneMoreInput},
});
// clang-format on

constexpr auto quantities = quantityRows<Form18>();

} // namespace form18_circuit

const check::SheetTable checkedCircuit{.sheet = "Form18",
                                       .stage = check::StageKind::voltageFeedback,
                                       .parts = form18_circuit::parts,
                                       .transistors = form18_circuit::oneTransistor,
                                       .quantities = form18_circuit::quantities,
                                       .Ein = {Text14},
                                       .fo = {Text12},
                                       .gainRungs = gainRungs,
                                       .inputCounted = {Truth::upperResistor},
                                       .inputRungs = form18_circuit::inputRungs,
                                       .assumed = assumptions,
                                       .passed = check::hasPassed<Form18>,
                                       .grounded = stas};

} // namespace velmor::form18
