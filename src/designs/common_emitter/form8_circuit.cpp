// SPDX-License-Identifier: MIT
// The circuit of `Form8` for the check of a finished design: Rb1 from the collector to the base.
#include "designs/common_emitter/circuits.h"
#include "designs/common_emitter/feedback_circuit.h"
#include "designs/common_emitter/form8.h"

namespace velmor::form8 {

using namespace feedback; // NOLINT(google-build-using-namespace): rows and reasons of the family

namespace form8_circuit {

double half(const host::Window& window)
{
    return upperResistor<Form8>(window) / 2;
}

// With the capacitor Cdp, Rb1 stands in two halves.
// clang-format off
constexpr check::PartRow parts[] = {
    {PartKind::supply,    "Es",   "cc",  "0",   {Text16}},
    {PartKind::generator, "Eg",   "gen", "0",   {}},
    {PartKind::resistor,  "Rg",   "gen", "in",  {Text15, kilo}},
    {PartKind::capacitor, "Cin",  "in",  "b",   {statu32, micro}},
    {PartKind::resistor,  "Rb1",  "c",   "b",   {.held = upperResistor<Form8>}, {.unless = stas}},
    {PartKind::resistor,  "Rb1a", "c",   "m",   {.held = half},                 {.when = stas}},
    {PartKind::resistor,  "Rb1b", "m",   "b",   {.held = half},                 {.when = stas}},
    {PartKind::capacitor, "Cdp",  "m",   "0",   {stas, micro},                  {.when = stas}},
    {PartKind::resistor,  "RL",   "cc",  "c",   {Text17, kilo}},
    {PartKind::capacitor, "Cout", "c",   "out", {statu33, micro}},
    {PartKind::resistor,  "RLw",  "out", "0",   {Text9, kilo}},
};
constexpr auto oneTransistor = std::to_array<check::TransistorRow>({
    {.emitter = "0", .Beta = {Text2}, .QIc = {Text8, milli}, .Vj = {Text7}},
});

constexpr auto inputRungs = std::to_array<check::RungRow>({
    {Truth::asMeant,      {"el curso contó con la Rb1 y la ganancia que propuso; aquí van las que quedaron (con Cdp, Rb1 en mitades).",
                           "the course counted with the Rb1 and gain that it proposed; here are those in use (with Cdp, Rb1 in halves)."}},
    {Truth::thermal,      thermalInput},
    {Truth::current,      currentInput},
    {Truth::feedbackLoad, loadInput},
    {Truth::oneMore,      oneMoreInput},
});
// clang-format on

constexpr auto quantities = quantityRows<Form8>();

} // namespace form8_circuit

const check::SheetTable checkedCircuit{.sheet = "Form8",
                                       .stage = check::StageKind::voltageFeedback,
                                       .parts = form8_circuit::parts,
                                       .transistors = form8_circuit::oneTransistor,
                                       .quantities = form8_circuit::quantities,
                                       .Ein = {Text14},
                                       .fo = {Text12},
                                       .gainRungs = gainRungs,
                                       .inputCounted = {Truth::upperResistor},
                                       .inputRungs = form8_circuit::inputRungs,
                                       .assumed = assumptions,
                                       .passed = check::hasPassed<Form8>,
                                       .grounded = stas};

} // namespace velmor::form8
