// SPDX-License-Identifier: MIT
// In what the reports of the class A sheets differ: heads, exercises and the parameters of the transistors. Knows no sheet.
#pragma once

#include <span>
#include <string_view>

#include "host/bitext.h"
#include "sheets/report_text.h"

namespace velmor::form15 {

struct Exercise {
    host::BiText heading{};
    host::BiText statement{};
    std::span<const std::string_view> data{};
};

struct ReportWords {
    std::string_view spanishTitle{};
    std::string_view englishDesign{};
    std::span<const Exercise> exercises{};
    host::BiText results{};
    std::span<const sheets::ReportRow> transistorsSpanish{};
    std::span<const sheets::ReportRow> transistorsEnglish{};
};

// What a student is told in the exercises of both sheets.
inline constexpr host::BiText trySupplies{"Pruebe distintas fuentes Es y observe qué parámetros cambian.",
                                          "Try several supplies Es and observe which parameters change."};
inline constexpr host::BiText withTheseData{"Realice un diseño con los siguientes datos : ",
                                            "Make a design with the following data : "};

} // namespace velmor::form15
