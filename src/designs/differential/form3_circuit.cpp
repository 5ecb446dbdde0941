// SPDX-License-Identifier: MIT
// The circuit of `Form3` for the check of a finished design: the pair driven at one base.
#include <array>

#include "designs/differential/circuits.h"
#include "designs/differential/form3.h"

namespace velmor::form3 {

namespace form3_circuit {

using check::heldBy;
using check::kilo;
using check::milli;
using check::PartKind;
using check::Quantity;
using check::Truth;

constexpr check::Figure Beta{.held = heldBy<Form3, &Quantities::Beta>};
constexpr check::Figure QIc{.scale = milli, .held = heldBy<Form3, &Quantities::QIc>};
constexpr check::Figure Vj{.held = heldBy<Form3, &Quantities::Vj>};
constexpr check::Figure RL{.scale = kilo, .held = heldBy<Form3, &Quantities::RL>};
constexpr check::Figure RLw{.scale = kilo, .held = heldBy<Form3, &Quantities::RLw>};
constexpr check::Figure Rb2{.scale = kilo, .held = heldBy<Form3, &Quantities::Rb2>};
constexpr check::Figure Cci{.held = heldBy<Form3, &Quantities::Cci>};
constexpr check::Figure Cco{.held = heldBy<Form3, &Quantities::Cco>};

// clang-format off
constexpr check::PartRow parts[] = {
    {PartKind::supply,    "Es",     "cc",   "0",    {.held = heldBy<Form3, &Quantities::Es>}},
    {PartKind::supply,    "Ebias",  "0",    "ee",   {.held = heldBy<Form3, &Quantities::Ebias>}},
    {PartKind::generator, "Eg",     "gen",  "0",    {}},
    {PartKind::capacitor, "Cci",    "gen",  "b",    Cci},
    {PartKind::resistor,  "Rb2",    "b",    "0",    Rb2},
    {PartKind::capacitor, "Ccix",   "0",    "bx",   Cci},
    {PartKind::resistor,  "Rb2x",   "bx",   "0",    Rb2},
    {PartKind::resistor,  "Res",    "e",    "ee",   {.scale = kilo, .held = heldBy<Form3, &Quantities::Res>}},
    {PartKind::resistor,  "RL",     "cc",   "c",    RL},
    {PartKind::resistor,  "RLx",    "cc",   "cx",   RL},
    {PartKind::capacitor, "Cco",    "c",    "out",  Cco},
    {PartKind::resistor,  "RLw",    "out",  "0",    RLw},
    {PartKind::capacitor, "Ccox",   "cx",   "outx", Cco},
    {PartKind::resistor,  "RLwx",   "outx", "0",    RLw},
};
constexpr check::TransistorRow transistors[] = {
    {.Beta = Beta, .QIc = QIc, .Vj = Vj},
    {.name = "Q2", .collector = "cx", .base = "bx", .Beta = Beta, .QIc = QIc, .Vj = Vj},
};

constexpr check::QuantityRow quantities[] = {
    {Quantity::QIc,   Text9,           1, {.held = heldBy<Form3, &Quantities::QIc>}},
    {Quantity::QIc2,  Text9,           1, {.held = heldBy<Form3, &Quantities::QIc>}},
    {Quantity::Vce,   host::noControl, 1, {.held = heldBy<Form3, &Quantities::EQ>}},
    {Quantity::Vg,    Text12,          1, {.held = heldBy<Form3, &Quantities::VgFinal>}},
    {Quantity::Zin,   host::noControl, 1, {.held = heldBy<Form3, &Quantities::Zin>}},
    {Quantity::fL,    Text13,          1, {.held = heldBy<Form3, &Quantities::fo>}},
    {Quantity::dBfo,  host::noControl, 1, {.scale = check::courseLevelAtFo}},
    {Quantity::Eopp,  Text14,          1, {.held = heldBy<Form3, &Quantities::Eopp>}},
    {.quantity = Quantity::THD},
    {Quantity::drift, Text1,           1, {.held = heldBy<Form3, &Quantities::dQic>}},
};

constexpr host::BiText thermalVolts{"el curso cuenta 25 mV por juntura; a 27 grados son 25.9 mV.",
                                    "the course counts 25 mV a junction; at 27 degrees it is 25.9 mV."};
constexpr host::BiText trueCurrent{
    "los transistores no llevan exactamente la QIc del diseño, y con la corriente verdadera r'e cambia.",
                                   "the transistors do not carry exactly the designed QIc, and with the true current r'e changes."};
constexpr host::BiText tailResistor{
    "Res no es una fuente de corriente perfecta: los emisores siguen a la entrada en algo menos de la mitad.",
                                    "Res is no perfect current source: the emitters follow the input by a little less than half."};
constexpr check::RungRow gainRungs[] = {
    {Truth::pairFactor, {"el curso divide por 2.5 x r'e, pero la señal pasa por dos junturas, que son 2 x r'e.",
                         "the course divides by 2.5 x r'e, but the signal passes two junctions, which are 2 x r'e."}},
    {Truth::thermal,    thermalVolts},
    {Truth::current,    trueCurrent},
    {Truth::tail,       tailResistor},
    {Truth::alpha,      {"una parte de la corriente de emisor es de base, y no llega a RL.",
                         "part of the emitter's current is the base's, and does not reach RL."}},
};
constexpr check::RungRow inputRungs[] = {
    {Truth::lowerResistor, {"el curso deja afuera Rb2, que está en paralelo con la entrada y baja su impedancia.",
                            "the course leaves Rb2 out here; it lies in parallel with the input and lowers its impedance."}},
    {Truth::thermal,       thermalVolts},
    {Truth::current,       trueCurrent},
    {Truth::tail,          tailResistor},
    {Truth::alpha,         {"por los emisores pasa también la corriente de base.", "the emitters carry the base current too."}},
};
constexpr host::BiText assumed[] = {
    {"Generador de 0 ohm", "Generator of 0 ohm"},
    {"La otra entrada, a masa por su Cci", "The other input grounded through its Cci"},
    {"La salida que se mide es la del transistor excitado", "The output that is measured is that of the driven transistor"},
    {"Transistores sin efecto Early ni capacidades: no hay corte superior",
     "Transistors without Early effect or capacitances: no upper corner"},
};
// clang-format on

} // namespace form3_circuit

const check::SheetTable checkedCircuit{.sheet = "Form3",
                                       .stage = check::StageKind::pair,
                                       .parts = form3_circuit::parts,
                                       .transistors = form3_circuit::transistors,
                                       .quantities = form3_circuit::quantities,
                                       .Ein = {.held = check::heldBy<Form3, &Quantities::Ein>},
                                       .fo = {.held = check::heldBy<Form3, &Quantities::fo>},
                                       .temperature = {.held = check::heldBy<Form3, &Quantities::T>},
                                       .gainRungs = form3_circuit::gainRungs,
                                       .inputRungs = form3_circuit::inputRungs,
                                       .assumed = form3_circuit::assumed,
                                       .passed = check::hasPassed<Form3>};

} // namespace velmor::form3
