// SPDX-License-Identifier: MIT
// Why course and simulator part on the sheets of common base and common collector: the reasons that two of them share.
#pragma once

#include "host/bitext.h"

namespace velmor::base_collector {

// clang-format off
inline constexpr host::BiText upperLeftOut{
    "El curso deja afuera Rb1; está en paralelo con la entrada y la baja.",
    "The course leaves Rb1 out here; it lies beside the input and lowers it."};
inline constexpr host::BiText junctionInInput{
    "El curso deja afuera r'e; por Beta, sube un poco la impedancia de entrada.",
    "The course leaves r'e out; times Beta it raises the input impedance a little."};
inline constexpr host::BiText junctionInGain{
    "El curso deja afuera r'e: está en serie con la carga del emisor y se queda con una parte de la señal.",
    "The course leaves r'e out: it stands in series with the emitter's load and keeps a part of the signal."};
inline constexpr host::BiText thermalVolts{
    "El curso cuenta 25 mV por juntura; a 27 grados son 25.9 mV.",
    "The course counts 25 mV a junction; at 27 degrees there are 25.9 mV."};
inline constexpr host::BiText trueCurrent{
    "El transistor no lleva justo la QIc del diseño: con la corriente verdadera r'e es otra.",
    "The transistor does not carry exactly the QIc of the design: with the true current r'e is another."};
inline constexpr host::BiText baseCurrentInEmitter{
    "El emisor lleva también la corriente de base: Beta + 1 partes, no Beta.",
    "The emitter carries the base current too: Beta + 1 parts, not Beta."};
inline constexpr host::BiText noEarlyEffect{
    "Transistores sin efecto Early ni capacidades: no hay corte superior",
    "Transistors without Early effect and capacitances: no upper corner"};
// clang-format on

} // namespace velmor::base_collector
