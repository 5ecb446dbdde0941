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
    "el curso deja afuera r'e, que está en serie con Res y se queda con una parte de la señal.",
    "the course leaves r'e out; it stands in series with Res and takes its part of the signal."};
inline constexpr host::BiText junctionInInput{
    "el curso deja afuera r'e, que multiplicada por Beta sube un poco la impedancia de entrada.",
    "the course leaves r'e out; times Beta it raises the input impedance a little."};
inline constexpr host::BiText thermalVolts{
    "el curso cuenta 25 mV por juntura; a 27 grados son 25.9 mV.",
    "the course counts 25 mV a junction; at 27 degrees it is 25.9 mV."};
inline constexpr host::BiText trueCurrent{
    "el transistor no lleva exactamente la QIc del diseño, y con la corriente verdadera r'e cambia.",
    "the transistor does not carry exactly the designed QIc, and with the true current r'e changes."};
inline constexpr host::BiText baseCurrentInEmitter{
    "por el emisor pasa también la corriente de base: Res ve Beta + 1 partes, no Beta.",
    "the emitter carries the base current too: Res sees Beta + 1 parts, not Beta."};
inline constexpr host::BiText kilohmsAndOhms{
    "el curso mezcla kilohms con ohms, y así Beta x Res casi no se nota; en una misma unidad, carga la entrada.",
    "the course mixes kilohms with ohms, so that Beta x Res hardly shows; in one unit it loads the input."};
inline constexpr host::BiText lowerLeftOut{
    "el curso deja afuera Rb2, que está en paralelo con la entrada y baja su impedancia.",
    "the course leaves Rb2 out here; it lies in parallel with the input and lowers its impedance."};
inline constexpr host::BiText upperMixed{
    "el curso mezcla kilohms con ohms, y así Rb1 casi no se nota; en una misma unidad, carga la entrada.",
    "the course mixes kilohms with ohms, so that Rb1 hardly shows; in one unit it loads the input."};
inline constexpr host::BiText idealGenerator{
    "Generador de 0 ohm", "Generator of 0 ohm"};
inline constexpr host::BiText noEarlyEffect{
    "Transistores sin efecto Early ni capacidades: no hay corte superior",
    "Transistors without Early effect or capacitances: no upper corner"};
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
