// SPDX-License-Identifier: MIT
// Why course and simulator part on the sheets of common base and common collector: the reasons that two of them share.
#pragma once

#include "host/bitext.h"

namespace velmor::base_collector {

// clang-format off
inline constexpr host::BiText upperLeftOut{
    "el curso deja afuera Rb1, que está en paralelo con la entrada y baja su impedancia.",
    "the course leaves Rb1 out here; it lies in parallel with the input and lowers its impedance."};
inline constexpr host::BiText junctionInInput{
    "el curso deja afuera r'e, que multiplicada por Beta sube un poco la impedancia de entrada.",
    "the course leaves r'e out; times Beta it raises the input impedance a little."};
inline constexpr host::BiText junctionInGain{
    "el curso deja afuera r'e, que está en serie con la carga del emisor y se queda con una parte de la señal.",
    "the course leaves r'e out; it stands in series with the emitter's load and keeps a part of the signal."};
inline constexpr host::BiText thermalVolts{
    "el curso cuenta 25 mV por juntura; a 27 grados son 25.9 mV.",
    "the course counts 25 mV a junction; at 27 degrees it is 25.9 mV."};
inline constexpr host::BiText trueCurrent{
    "el transistor no lleva exactamente la QIc del diseño, y con la corriente verdadera r'e cambia.",
    "the transistor does not carry exactly the designed QIc, and with the true current r'e changes."};
inline constexpr host::BiText baseCurrentInEmitter{
    "por el emisor pasa también la corriente de base: Beta + 1 partes, no Beta.",
    "the emitter carries the base current too: Beta + 1 parts, not Beta."};
inline constexpr host::BiText noEarlyEffect{
    "Transistores sin efecto Early ni capacidades: no hay corte superior",
    "Transistors without Early effect or capacitances: no upper corner"};
// clang-format on

} // namespace velmor::base_collector
