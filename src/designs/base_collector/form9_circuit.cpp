// SPDX-License-Identifier: MIT
// The circuit of `Form9` for the check of a finished design: the phase splitter with a load at each output.
#include <array>

#include "designs/base_collector/circuit_reasons.h"
#include "designs/base_collector/circuits.h"
#include "designs/base_collector/form9.h"

namespace velmor::form9 {

using namespace base_collector; // NOLINT(google-build-using-namespace): reasons of the family

namespace form9_circuit {

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
    if (at(Text15) <= 0 || at(Text16) <= 0 || at(Text2) <= 0)
        return 0;
    return kilo * baseImpedance(at(Text16), at(Text2), at(Text15)).value();
}

// clang-format off
constexpr check::PartRow parts[] = {
    {PartKind::supply,    "Es",    "cc",  "0",    {Text20}},
    {PartKind::generator, "Eg",    "gen", "0",    {}},
    {PartKind::resistor,  "Rg",    "gen", "in",   {Text4, kilo}},
    {PartKind::capacitor, "Cin",   "in",  "b",    {Label26, micro}},
    {PartKind::resistor,  "Rb1",   "cc",  "b",    {Text17, kilo}},
    {PartKind::resistor,  "Rb2",   "b",   "0",    {Text16, kilo}},
    {PartKind::resistor,  "RL",    "cc",  "c",    {Text15, kilo}},
    {PartKind::resistor,  "Res",   "e",   "0",    {Text15, kilo}},
    {PartKind::capacitor, "Cout",  "c",   "out",  {Label28, micro}},
    {PartKind::resistor,  "RLw",   "out", "0",    {Text9, kilo}},
    {PartKind::capacitor, "Coute", "e",   "oute", {Label27, micro}},
    {PartKind::resistor,  "RLwe",  "oute", "0",   {Text9, kilo}},
};
constexpr check::TransistorRow transistors[] = {{.Beta = {Text2}, .QIc = {Text8, milli}, .Vj = {Text7}}};

constexpr check::QuantityRow quantities[] = {
    {Quantity::QIc,  Text8,           1, {Text8}},
    {Quantity::Vce,  host::noControl, 1, {.held = check::heldBy<Form9, &Quantities::EQ>}},
    {Quantity::Vg,   host::noControl, 1, {Text11}},
    {Quantity::Zin,  host::noControl, 1, {.held = courseZin}},
    {Quantity::fL,   Text12,          1, {Text12}},
    {Quantity::dBfo, host::noControl, 1, {.scale = check::courseLevelAtFo}},
    {.quantity = Quantity::output},
    {Quantity::Eopp, Text13,          1, {Text13}},
    {.quantity = Quantity::THD},
};

constexpr check::RungRow gainRungs[] = {
    {Truth::load,     {"el curso pone una ganancia de 1 sin mirar las cargas; como las dos RLw son iguales, sigue en 1.",
                       "the course sets a gain of 1 without looking at the loads; as both RLw are alike, it stays 1."}},
    {Truth::junction, junctionInGain},
    {Truth::thermal,  thermalVolts},
    {Truth::current,  trueCurrent},
    {Truth::alpha,    {"por el emisor pasa también la corriente de base y por el colector no: su salida es un poco menor.",
                       "the emitter carries the base current too and the collector does not: its output is a little smaller."}},
};
constexpr check::RungRow inputRungs[] = {
    {Truth::upperResistor, upperLeftOut},
    {Truth::load,          {"el curso deja afuera la RLw del emisor; con ella, la base ve una resistencia menor.",
                            "the course leaves out the RLw at the emitter; with it the base sees a smaller resistance."}},
    {Truth::junction,      junctionInInput},
    {Truth::thermal,       thermalVolts},
    {Truth::current,       trueCurrent},
    {Truth::alpha,         baseCurrentInEmitter},
};
constexpr host::BiText assumed[] = {{"La salida que se mide es la del colector", "The output that is measured is that of the collector"},
                                    noEarlyEffect};
// clang-format on

} // namespace form9_circuit

const check::SheetTable checkedCircuit{.sheet = "Form9",
                                       .stage = check::StageKind::splitter,
                                       .parts = form9_circuit::parts,
                                       .transistors = form9_circuit::transistors,
                                       .quantities = form9_circuit::quantities,
                                       .Ein = {Text14},
                                       .fo = {Text12},
                                       .gainRungs = form9_circuit::gainRungs,
                                       .inputCounted = {check::Truth::ownInput, check::Truth::lowerResistor},
                                       .inputRungs = form9_circuit::inputRungs,
                                       .assumed = form9_circuit::assumed,
                                       .passed = check::hasPassed<Form9>};

} // namespace velmor::form9
