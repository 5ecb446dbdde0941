// SPDX-License-Identifier: MIT
// What the reports of the common-emitter sheets stabilised by current have alike: exercises, rows of results, questions. `C` are
// the controls of one of them. Knows no sheet.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "rules/real.h"
#include "sheets/report_text.h"

namespace velmor::common_emitter {

/// What differs in the four exercises from circuit to circuit.
struct Exercises {
    std::string_view first{}; ///< a further line of the first one
    std::string_view thirdGain{};
    std::string_view fourthLoad = "Rlw (Kohm) =  1 kohm";
    std::string_view fourthGain{};
};

void writeEnglishExercises(sheets::ReportText& report, const Exercises& exercises);
void writeSpanishExercises(sheets::ReportText& report, const Exercises& exercises);

/// The three lines for a current that is not the one designed; the last is spelt in two ways.
void askForTheDesignAgain(sheets::ReportText& report, std::string_view lastLine);
/// The mirror of the sheet's own test: the designed current lies more than a tenth of the obtained one away from it.
bool farFromObtained(rules::Real designed, rules::Real obtained);

extern const std::span<const std::string_view> secondData;
extern const std::span<const std::string_view> englishQuestions;
extern const std::span<const std::string_view> spanishQuestions;

inline constexpr std::string_view moveOnToParaphase = "Aconsejo continuar con el diseño de Inversor de Fase";
inline constexpr std::string_view dependsOnCurrentMisprinted =
    "Tenga en cuenta qu los valores de tensiones y resistencias dependen de Qic... ";

// clang-format off
/// The fields of the design, the gain under the sheet's own label.
template <class C>
constexpr std::array<sheets::ReportRow, 17> designRows(std::string_view gainLabel)
{
    return {{
        {"%/\\Qic = ", C::Text1},     {"T (ºC) = ", C::Text3},   {"/\\Vbe = ", C::Text4},     {"Qic (mA) = ", C::Text8},
        {"Res = ", C::Text15},        {"Rlw (Kohm) = ", C::Text9}, {"S = ", C::Text10},       {gainLabel, C::Text11},
        {"RL (kohm) = ", C::Text17},  {"fo = ", C::Text12},      {"Eopp = ", C::Text13},      {"Es = ", C::Text16},
        {"Beta (hFE) = ", C::Text2},  {"Ic (mA)= ", C::Text6},   {"Si / Ge = ", C::Text7},    {"Rb2 (kohm) = ", C::Text18},
        {"Rb1 (kohm) = ", C::Text19},
    }};
}
template <class C>
inline constexpr std::array<sheets::ReportRow, 5> englishResults{{
    {"", C::Text21}, {"Current Qic = ", C::Label24}, {"", C::statu25}, {"ERes = ", C::VRes}, {"ERL = ", C::ER},
}};
template <class C>
inline constexpr std::array<sheets::ReportRow, 2> spanishResults{{{"", C::statu25}, {"ERL = ", C::ER}}};
// clang-format on

} // namespace velmor::common_emitter
