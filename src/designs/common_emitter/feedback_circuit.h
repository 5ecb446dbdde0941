// SPDX-License-Identifier: MIT
// What the circuits of the two sheets fed back by voltage share when a design is checked.
#pragma once

#include <array>

#include "check/sheet_table.h"
#include "designs/common_emitter/feedback_sheet.h"

namespace velmor::feedback {

using check::kilo;
using check::micro;
using check::milli;
using check::PartKind;
using check::Quantity;
using check::Truth;

/// Rb1 in ohm: the simple sheet's field holds kilohms, but ohms right after its own proposal.
template <class Sheet>
double upperResistor(const host::Window& window)
{
    const double inField = check::numberIn(window.text(Text19));
    const double proposed = check::heldBy<Sheet, &Quantities::Rb1Calc>(window);
    constexpr double outOfAllRange = 50;
    const bool isInOhms = proposed > 0 && inField > outOfAllRange * proposed / kilo && inField > outOfAllRange;
    return isInOhms ? inField : inField * kilo;
}

template <class Sheet>
constexpr std::array<check::QuantityRow, 8> quantityRows()
{
    return {{
        {Quantity::QIc, Text8, 1, {Text8}},
        {Quantity::Vce, host::noControl, 1, {.held = check::heldBy<Sheet, &Quantities::Eq>}},
        {Quantity::Vg, Text11, 1, {Text11}},
        {Quantity::Zin, host::noControl, 1, {.held = check::heldBy<Sheet, &Quantities::Zin>}},
        {Quantity::fL, Text12, 1, {Text12}},
        {Quantity::dBfo, host::noControl, 1, {.scale = check::courseLevelAtFo}},
        {Quantity::Eopp, Text13, 1, {Text13}},
        {.quantity = Quantity::THD},
    }};
}

// clang-format off
inline constexpr auto gainRungs = std::to_array<check::RungRow>({
    {Truth::thermal,      {"El curso cuenta 25 mV por juntura; a 27 grados son 25.9 mV.",
                           "The course counts 25 mV a junction; at 27 degrees there are 25.9 mV."}},
    {Truth::current,      {"El transistor no lleva justo la QIc del diseño; la ganancia va con la corriente verdadera.",
                           "The transistor does not carry exactly the QIc of the design; the gain goes with the true current."}},
    {Truth::feedbackLoad, {"El curso deja afuera que Rb1 también carga al colector.",
                           "The course leaves out that Rb1 loads the collector too."}},
});
inline constexpr host::BiText thermalInput{"El curso cuenta 25 mV por juntura; con 25.9 mV, Beta x r'e es mayor.",
                                           "The course counts 25 mV a junction; with 25.9 mV Beta x r'e is larger."};
inline constexpr host::BiText currentInput{"Con la corriente verdadera, Beta x r'e y la ganancia son otras.",
                                           "With the true current, Beta x r'e and the gain are others."};
inline constexpr host::BiText loadInput{"Rb1 carga al colector y baja la ganancia, y con ella lo que la entrada ve de Rb1.",
                                        "Rb1 loads the collector and lowers the gain, and with it what the input sees of Rb1."};
inline constexpr host::BiText oneMoreInput{"Rb1 se ve 1 + Vg veces menor, no Vg veces: el colector baja mientras la base sube.",
                                           "Rb1 looks 1 + Vg times smaller, not Vg times: the collector falls while the base rises."};
inline constexpr host::BiText assumptions[] = {
    {"Las mitades de Rb1 son iguales", "The halves of Rb1 are equal"},
    {"Transistores sin efecto Early ni capacidades: no hay corte superior",
     "Transistors without Early effect and capacitances: no upper corner"},
};
// clang-format on

} // namespace velmor::feedback
