// SPDX-License-Identifier: MIT
// What `Form8` alone says: an empty field, boxes, captions, its help pages. Spanish stands above English.
#pragma once

#include <array>

#include "designs/common_emitter/feedback_help.h"
#include "designs/common_emitter/feedback_texts.h"
#include "designs/common_emitter/form8_controls.h"
#include "sheets/rows.h"

namespace velmor::form8 {

namespace texts_detail {

constexpr Saying about(host::Handle field, Saying row)
{
    row.about = field;
    return row;
}

} // namespace texts_detail

// Two fields have the other sheet's words for an empty field.
inline constexpr auto sayings =
    sheets::joined(std::to_array<Saying>({sheets::placeANumber, texts_detail::about(Text15, placeAValue),
                                          texts_detail::about(Text16, placeAValue)}),
                   feedback::sayings);

// clang-format off
inline constexpr BiText fileFilter{.es = "Realimentado por Tensión Simple(*.RPT)|*.RPT", .en = "Feedback Voltage Simple(*.FVS)|*.FVS"};

inline constexpr Saying loadVoltageTooLow{
    .text  = {.es = "Soluciones: De ser posible elevar o disminuir valor de  QIc.",
              .en = "Solution: Of being possible to elevate or disminishvalue of QIc."},
    .title = loadVoltageTitle,
    .flags = 16};
inline constexpr Saying steadyHand{
    .text  = {.es = "El preset debe ser ajustado dentro de un rango del 20% del valor calculado...",
              .en = "The preset should be adjusted inside a range of 20% of the calculated value..."},
    .title = {.es = "Que no le tiemble el pulso..!", .en = "That doesn't tremble him the pulse..!"},
    .flags = 48};
inline constexpr Saying notStable{
    .text  = {.es = "El valor de tensión en ERl debe ser superior a EQ para conservar la estabilidad S",
              .en = "The value of voltage in ERl should be superior to EQ to conserve the stability S"},
    .title = {.es = "El resultado NO es el esperado, El circuito funcionara incorrecto...",
              .en = "The result is not the prospective one, Bad Circuits..."},
    .flags = 48};
// clang-format on

inline constexpr BiText generatorCaption{.es = "Zin del Generador (Kohm)", .en = "Zin of Generator (Kohm)"};
inline constexpr std::string_view askForSupply = " Asigne un nuevo valor de ES"; ///< in both languages

extern const host::BiText helpText;

} // namespace velmor::form8
