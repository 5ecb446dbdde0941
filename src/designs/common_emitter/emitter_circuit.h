// SPDX-License-Identifier: MIT
// What the circuits of the common-emitter sheets stabilised by current share when a design is checked: the fields, and the
// reasons why course and simulator part. `C` are the controls of one of them.
#pragma once

#include <array>

#include "check/sheet_table.h"

namespace velmor::common_emitter {

using check::kilo;
using check::micro;
using check::milli;
using check::PartKind;
using check::Quantity;
using check::Truth;

/// Node names: cc the supply, ee the negative one, b c e the transistor, m between the parts of Res, out the load.
template <class C>
inline constexpr auto transistors = std::to_array<check::TransistorRow>({
    {.Beta = {C::Text2}, .QIc = {C::Text8, milli}, .Vj = {C::Text7}},
});

/// What these sheets ask for, and what the course says of it; Zin comes beside.
template <class C>
constexpr std::array<check::QuantityRow, 9> quantityRows(check::Figure Zin)
{
    return {{
        {Quantity::QIc, C::Text8, 1, {C::Text8}},
        {Quantity::Vce, host::noControl, 1, {C::statu25}},
        {Quantity::Vg, C::Text11, 1, {C::Text11}},
        {Quantity::Zin, host::noControl, 1, Zin},
        {Quantity::fL, C::Text12, 1, {C::Text12}},
        {Quantity::dBfo, host::noControl, 1, {.scale = check::courseLevelAtFo}},
        {Quantity::Eopp, C::Text13, 1, {C::Text13}},
        {.quantity = Quantity::THD},
        {Quantity::drift, C::Text1, 1, {C::Text1}},
    }};
}

// clang-format off
inline constexpr host::BiText junctionLeftOut{
    "El curso deja afuera r'e: está en serie con Res y quita su parte de la señal.",
    "The course leaves r'e out: it stands in series with Res and takes its part of the signal."};
inline constexpr host::BiText thermalVolts{
    "El curso cuenta 25 mV por juntura; a 27 grados son 25.9 mV.",
    "The course counts 25 mV a junction; at 27 degrees there are 25.9 mV."};
inline constexpr host::BiText trueCurrent{
    "El transistor no lleva justo la QIc del diseño: con la corriente verdadera r'e es otra.",
    "The transistor does not carry exactly the QIc of the design: with the true current r'e is another."};
inline constexpr host::BiText baseCurrentInEmitter{
    "El emisor lleva también la corriente de base: Res ve Beta + 1 partes, no Beta.",
    "The emitter carries the base current too: Res sees Beta + 1 parts, not Beta."};
inline constexpr host::BiText kilohmsAndOhms{
    "El curso mezcla kilohms y ohms, y Beta x Res casi no cuenta; contada, carga la entrada.",
    "The course mixes kilohms and ohms, and Beta x Res hardly counts; counted, it loads the input."};
inline constexpr host::BiText lowerLeftOut{
    "El curso deja afuera Rb2; está en paralelo con la entrada y la baja.",
    "The course leaves Rb2 out here; it lies beside the input and lowers it."};
inline constexpr host::BiText upperMixed{
    "El curso mezcla kilohms y ohms, y Rb1 casi no cuenta; contada, carga la entrada.",
    "The course mixes kilohms and ohms, and Rb1 hardly counts; counted, it loads the input."};
inline constexpr host::BiText idealGenerator{
    "Generador de 0 ohm", "Generator of 0 ohm"};
inline constexpr host::BiText noEarlyEffect{
    "Transistores sin efecto Early ni capacidades: no hay corte superior",
    "Transistors without Early effect and capacitances: no upper corner"};
// clang-format on

inline constexpr auto unbypassedGainRungs = std::to_array<check::RungRow>({
    {Truth::junction, junctionLeftOut},
    {Truth::thermal, thermalVolts},
    {Truth::current, trueCurrent},
    {Truth::alpha, baseCurrentInEmitter},
});

inline constexpr auto bypassedGainRungs = std::to_array<check::RungRow>({
    {Truth::thermal, thermalVolts},
    {Truth::current, trueCurrent},
});
inline constexpr auto bypassedInputRungs = std::to_array<check::RungRow>({
    {Truth::lowerResistor, lowerLeftOut},
    {Truth::thermal, thermalVolts},
    {Truth::current, trueCurrent},
});

inline constexpr host::BiText assumptions[] = {idealGenerator, noEarlyEffect};

} // namespace velmor::common_emitter
