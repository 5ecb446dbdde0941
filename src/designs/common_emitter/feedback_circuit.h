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
    {Truth::thermal,      {"el curso cuenta 25 mV por juntura; a 27 grados son 25.9 mV.",
                           "the course counts 25 mV a junction; at 27 degrees it is 25.9 mV."}},
    {Truth::current,      {"el transistor no lleva exactamente la QIc del diseño, y la ganancia sigue a la corriente verdadera.",
                           "the transistor does not carry exactly the designed QIc, and the gain follows the true current."}},
    {Truth::feedbackLoad, {"el curso deja afuera que Rb1 carga también al colector.",
                           "the course leaves out that Rb1 loads the collector too."}},
});
inline constexpr host::BiText thermalInput{"el curso cuenta 25 mV por juntura; con 25.9 mV, Beta x r'e es mayor.",
                                           "the course counts 25 mV a junction; with 25.9 mV, Beta x r'e is larger."};
inline constexpr host::BiText currentInput{"con la corriente verdadera cambian Beta x r'e y la ganancia.",
                                           "with the true current, Beta x r'e and the gain change."};
inline constexpr host::BiText loadInput{"Rb1 carga al colector y baja la ganancia; por eso, desde la entrada, Rb1 se ve mayor.",
                                        "Rb1 loads the collector and lowers the gain, so that from the input Rb1 looks larger."};
inline constexpr host::BiText oneMoreInput{"Rb1 se ve 1 + Vg veces menor, no Vg veces: mientras la base sube, el colector baja.",
                                           "Rb1 looks 1 + Vg times smaller, not Vg times: while the base rises, the collector falls."};
inline constexpr host::BiText assumptions[] = {
    {"Las mitades de Rb1 son iguales", "The halves of Rb1 are equal"},
    {"Transistores sin efecto Early ni capacidades: no hay corte superior",
     "Transistors without Early effect or capacitances: no upper corner"},
};
// clang-format on

} // namespace velmor::feedback
