// SPDX-License-Identifier: MIT
// What the reports of the two sheets fed back by voltage have in common: exercises, advice, closing lines. Texts only.
#pragma once

#include <array>
#include <string_view>

#include "sheets/report_text.h"

namespace velmor::feedback {

// clang-format off
inline constexpr std::string_view spanishSecond[] = {"fo =  400 ", "RLw =  0.4 K", "Eopp = 12.5 V", "Rg = 0.2 K", "S = 10"};
inline constexpr std::string_view englishSecond[] = {"fo =  420 ", "RLw =  0.4 °", "Eopp =  12.5 V", "S =  10", "Rg =  0.2 k"};
inline constexpr std::string_view englishThird[]  = {"Rlw  =  2 kohm", "S = 1", "Vg =  140", "Rg = 0.4 k"};
inline constexpr std::string_view englishFourth[] = {"Rlw (Kohm) =  1 kohm", " S = 1", "Vg = 240", "Rg = 0.8 k"};
inline constexpr std::string_view spanishClosing[] = {
    "Recuerde salvar los resultados obtenidos para cada diseño en un archivo",
    "con el Editor de Textos",
};
inline constexpr std::string_view englishClosing[] = {
    "Remembers to save the results obtained for each design in a file report",
    "with the Text Editor  ",
};
inline constexpr std::string_view englishResults = "Result of design: ";
inline constexpr std::string_view spanishResults = "Resultados de diseño: ";
// clang-format on

/// Exercises 1 and 2 with their data.
void writeEnglishStart(sheets::ReportText& report);
void writeSpanishStart(sheets::ReportText& report);

} // namespace velmor::feedback
