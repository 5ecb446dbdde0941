// SPDX-License-Identifier: MIT
// The circuit of `Form13` for the check of a finished design: two pairs in cascade and the follower that hands the output on.
#include <array>

#include "designs/differential/circuits.h"
#include "designs/differential/form13.h"

namespace velmor::form13 {

namespace form13_circuit {

using check::heldBy;
using check::kilo;
using check::milli;
using check::PartKind;
using check::Quantity;
using check::Truth;

// What the sheet counts with everywhere.
constexpr check::Figure Beta{.scale = 100};
constexpr check::Figure Vj{.scale = 0.6};
constexpr double lowestFrequency = 20; // Hz

constexpr check::Figure firstQIc{.scale = milli, .held = heldBy<Form13, &Quantities::QIc12>};
constexpr check::Figure secondQIc{.scale = milli, .held = heldBy<Form13, &Quantities::QIc34>};
constexpr check::Figure lastQIc{.scale = milli, .held = heldBy<Form13, &Quantities::QIc5>};
constexpr check::Figure Rb1{.held = heldBy<Form13, &Quantities::Rb1>};
constexpr check::Figure C1{.held = heldBy<Form13, &Quantities::C1>};
constexpr check::Figure RL1{.scale = kilo, .held = heldBy<Form13, &Quantities::RL1>};
constexpr check::Figure RL2{.scale = kilo, .held = heldBy<Form13, &Quantities::RL2>};
constexpr check::Figure Res1{.scale = kilo, .held = heldBy<Form13, &Quantities::Res1>};

/// Both emitters of the input pair, A.
constexpr check::Figure tail{.scale = 2 * milli, .held = heldBy<Form13, &Quantities::QIc12>};

/// Ein = Eopp / VgTotal / 2 x 0.707, V: what the gain in use asks for.
double inputInUse(const host::Window& window)
{
    const double gain = heldBy<Form13, &Quantities::VgTotal>(window);
    return gain > 0 ? heldBy<Form13, &Quantities::Eopp>(window) / gain / 2 * 0.707 : 0;
}

// The field of Res shows what was put in; the number that is held has been the start value again since.
// clang-format off
constexpr check::PartRow parts[] = {
    {PartKind::supply,    "Es",   "cc",  "0",   {.held = heldBy<Form13, &Quantities::Es>}},
    {PartKind::generator, "Eg",   "gen", "0",   {}},
    {PartKind::capacitor, "C1",   "gen", "b",   C1},
    {PartKind::resistor,  "Rb1",  "b",   "0",   Rb1},
    {PartKind::capacitor, "C1x",  "0",   "bx",  C1},
    {PartKind::resistor,  "Rb1x", "bx",  "0",   Rb1},
    {PartKind::sink,      "Tail", "e",   "0",   tail},
    {PartKind::resistor,  "RL",   "cc",  "c",   RL1},
    {PartKind::resistor,  "RLx",  "cc",  "cx",  RL1},
    {PartKind::resistor,  "RL2",  "cc",  "d",   RL2},
    {PartKind::resistor,  "RL2x", "cc",  "dx",  RL2},
    {PartKind::resistor,  "Res",  "f",   "0",   {Text7, kilo}},
    {PartKind::resistor,  "Res1", "out", "0",   Res1},
    {PartKind::resistor,  "RLw",  "out", "0",   {Text11, kilo}, {}, true},
};
constexpr check::TransistorRow transistors[] = {
    {.name = "Q1", .Beta = Beta, .QIc = firstQIc, .Vj = Vj},
    {.name = "Q2", .collector = "cx", .base = "bx", .Beta = Beta, .QIc = firstQIc, .Vj = Vj},
    {.name = "Q3", .collector = "d", .base = "c", .emitter = "f", .Beta = Beta, .QIc = secondQIc, .Vj = Vj},
    {.name = "Q4", .collector = "dx", .base = "cx", .emitter = "f", .Beta = Beta, .QIc = secondQIc, .Vj = Vj},
    {.name = "Q5", .collector = "cc", .base = "dx", .emitter = "out", .Beta = Beta, .QIc = lastQIc, .Vj = Vj},
};

constexpr check::QuantityRow quantities[] = {
    {Quantity::QIc,   host::noControl, 1, {.held = heldBy<Form13, &Quantities::QIc12>}},
    {Quantity::QIc3,  host::noControl, 1, {.held = heldBy<Form13, &Quantities::QIc34>}},
    {Quantity::QIc5,  host::noControl, 1, {.held = heldBy<Form13, &Quantities::QIc5>}},
    {Quantity::Vce,   host::noControl, 1, {.held = heldBy<Form13, &Quantities::EQ12>},
     {"el curso mide el colector desde masa; el emisor está una juntura más abajo, y eso se suma.",
      "the course measures the collector from ground; the emitter lies a junction below, and that is added."}},
    {Quantity::Vg,    Text2,           1, {.held = heldBy<Form13, &Quantities::VgTotal>}},
    {Quantity::Zin,   host::noControl, 1, Rb1},
    {Quantity::fL,    host::noControl, 1, {.scale = lowestFrequency}},
    {Quantity::dBfo,  host::noControl, 1, {.scale = check::courseLevelAtFo}},
    {Quantity::Eopp,  Text3,           1, {.held = heldBy<Form13, &Quantities::Eopp>}},
    {.quantity = Quantity::THD},
    {Quantity::drift, host::noControl, 1, {.scale = 7}},
};

constexpr host::BiText thermalVolts{"el curso cuenta 25 mV por juntura; a 27 grados son 25.9 mV.",
                                    "the course counts 25 mV a junction; at 27 degrees it is 25.9 mV."};
constexpr host::BiText trueCurrent{"los transistores no llevan exactamente la QIc del diseño, y con la corriente verdadera r'e cambia.",
                                   "the transistors do not carry exactly the designed QIc, and with the true current r'e changes."};
constexpr check::RungRow gainRungs[] = {
    {Truth::pairFactor, {"el curso divide por 1.25 y por 2.5 x r'e; si se cuentan las junturas, son 1 y 2.",
                         "the course divides by 1.25 and by 2.5 x r'e; counting the junctions, it is 1 and 2."}},
    {Truth::thermal,    thermalVolts},
    {Truth::current,    trueCurrent},
    {Truth::secondLoad, {"el curso deja afuera Q5, que carga a RL2 y cuya r'e se queda con algo de la salida.",
                         "the course leaves Q5 out; it loads RL2, and its r'e keeps a little of the output."}},
};
constexpr check::RungRow inputRungs[] = {
    {Truth::upperResistor, {"el curso iguala Zin a Rb1, pero Rb1 y la base están en paralelo, y queda la mitad.",
                            "the course sets Zin equal to Rb1, but Rb1 and the base lie in parallel, and half is left."}},
    {Truth::thermal,       thermalVolts},
    {Truth::current,       trueCurrent},
};
constexpr host::BiText assumed[] = {
    {"Generador de 0 ohm; la otra entrada, a masa por su C1", "Generator of 0 ohm; the other input grounded through its C1"},
    {"Fuente de corriente ideal de 2 x QIc(1-2) hacia -Ebias", "Ideal current source of 2 x QIc(1-2) to -Ebias"},
    {"Salida en el emisor de Q5", "Output at the emitter of Q5"},
    {"Beta 100, Vj 0.6 V; transistores sin efecto Early ni capacidades: no hay corte superior",
     "Beta 100, Vj 0.6 V; transistors without Early effect or capacitances: no upper corner"},
};
// clang-format on

} // namespace form13_circuit

const check::SheetTable checkedCircuit{.sheet = "Form13",
                                       .stage = check::StageKind::compound,
                                       .parts = form13_circuit::parts,
                                       .transistors = form13_circuit::transistors,
                                       .quantities = form13_circuit::quantities,
                                       .Ein = {.held = form13_circuit::inputInUse},
                                       .fo = {.scale = form13_circuit::lowestFrequency},
                                       .temperature = {.held = check::heldBy<Form13, &Quantities::T>},
                                       .gainRungs = form13_circuit::gainRungs,
                                       .inputRungs = form13_circuit::inputRungs,
                                       .assumed = form13_circuit::assumed,
                                       .passed = check::hasPassed<Form13>,
                                       .drifting = 3};

} // namespace velmor::form13
