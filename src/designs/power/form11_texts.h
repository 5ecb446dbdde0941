// SPDX-License-Identifier: MIT
// What `Form11` says otherwise than `Form10`, and beside it. Slips are the program's own. Texts only.
#pragma once

#include <array>

#include "designs/power/form10_texts.h"
#include "designs/power/form11_drawing.h"
#include "sheets/rows.h"

namespace velmor::form11 {

using namespace form10; // the words and tables that this sheet begins with

// clang-format off
// field, moment, place, Spanish, English
inline constexpr auto sayings = sheets::joined(
    sheets::withRowsOf(form10::sayings, std::to_array<Saying>({
        {Text2,  When::hover, Label7, {"Eopp = SQR(Po x 8 x RLw)\nEq(min) = 0.66 x Eopp\nEs(min) = 2 x Eq(min) + 2",
                                       "Eopp = SQR(Po x 8 x RLw)\nEq(min) = 0.66 x Eopp\nEs(min) = 2 x Eq(min) + 2"}},
        {Text10, When::hover, Label7, {"Eq = Es / 2\nERl = 0.5 x Es - 2.4", "Eq = Es / 2\nERl = 0.5 x Es - 2.4"}},
        {Text5,  When::hover, Label7, {"RL(total) = ERl / Ibias\nRes = Rd = 0.3 V / Ibias",
                                       "RL(total) = ERl / Ibias\nRes = Rd = 0.3 V / Ibias"}},
        {Text7,  When::hover, Label7, {"Rb1b = Rb1 - Rb1 / 10", "Rb1b = Rb1 - Rb1 / 10"}},
        {Text8,  When::hover, Label7, {"IRb2 = IRb1 - Ib\nRb2 = (0.6 V + ERes) / IRb2",
                                       "IRb2 = IRb1 - Ib\nRb2 = (0.6 V + ERes) / IRb2"}},
        {Text12, When::hover, Label7, {"Ex = Vce - ERes\nIp = Ex / RLw", "Ex = Vce - ERes\nIp = Ex / RLw"}},
    })),
    std::to_array<Saying>({
        {Text12, When::focus, Label30,
         {" Si disminuye el valor de la frecuencia de corte, aumente en la misma proporción el valor de los capacitores",
          " If disminished cut frecuency then elevated the capacitor's valuen in the sam proportions"}},
        // the name of what is under the pointer
        {SSCommand1, When::hover, Label29, {"Guía de trabajos prácticos", "Guide of practical work"}},
        {SSCommand3, When::hover, Label29, {"Calculadora", "Calculator"}},
        {Image6,     When::hover, Label29, {"Informe", "Report"}},
        {Image7,     When::hover, Label29, {"Clon del circuito", "Clon Circuit"}},
        {Image5,     When::hover, Label29, {"Clon del circuito", "Clon Circuit"}},
        {Image35,    When::hover, Label29, {"Ayuda", "Help"}},
        {Image34,    When::hover, Label29, {"Quitar la ayuda", "Take the help away"}},
        {image2,     When::hover, Label29, {"Criterios de Armado", "Approaches of Armed"}},
        {Image3,     When::hover, Label29, {"Sustituto de Rd y Diodos", "Substitute of Rd and Diodes"}},
    }));

// Captions and prompts around a number, and prompts of steps.
inline constexpr BiText presetOfRb1{"El valor de Rb1a debe ser igual al valor de el Preset : ",
                                    "The value of Rb1a should be similar to the value of the Preset:          Rb1a = "};
inline constexpr BiText clickOnRb1{
    " Paso 5: RL(total) = ERl / Ibias     Paso 6: Res = Rd = 0.3 V / Ibias     Paso 7: la estabilidad, S = Rb1 / RL = 10\n"
    " Haga CLICK sobre Rb1 para continuar...",
    " Step 5: RL(total) = ERl / Ibias     Step 6: Res = Rd = 0.3 V / Ibias     Step 7: the stability, S = Rb1 / RL = 10\n"
    " Make CLICK over Rb1 to continue..."};
inline constexpr BiText effective{"  Volts (r.ms.)", "  Volts (r.ms.)"};
inline constexpr BiText verse{" libero remordimientos\n abriendo la jaula \nde su cabeza...",
                              "Condemned for the birds of your conscience,\nliberate remorses opening up\nthe cage of your head..."};
inline constexpr BiText substitute{"Circuito sustituto de Rd y Diodos, para mejor control de corriente de reposo",
                                   "Circuit substitute of Rd and Diodes, for better control of quiescent current "};
inline constexpr BiText clickForSteps{"Click ... : \nCriterios de Armado", "Click ... : \nApproaches of Armed"};

// Captions that belong to no single field.
inline constexpr BiText fileFilter{"Clase B Compuesto (*.CBC)|*.CBC", "Class B Darlington (*.CBD)|*.CBD"};
inline constexpr BiText guideFile{"lc7.Lab", "lc7.Lab"};

// The calculation pages: rows of the other sheet's, and what is worked out otherwise.
inline constexpr auto basePage = [] {
    auto page = form10::basePage;
    page[3].before = {"    ERb1 = Eq - (0.6 + ERes) =  ", "    ERb1 = Eq - (0.6 + ERes) =  "};
    page[7].before = {"    Rb2 = (0.6 + ERes) / IRb2", "    Rb2 = (0.6 + ERes) / IRb2"};
    return page;
}();
inline constexpr auto signalPage = [] {
    const auto& other = form10::signalPage;
    std::array page{other[0], other[1], other[2], other[3], other[4], other[5], other[6], other[7], other[9]};
    page[2].before = {"                      Zin = B x (r' e + Res) // Rb2 // Rb1b / Vg = ",
                      "                      Zin = B x (r' e + Res) // Rb2 // Rb1b / Vg = "};
    page[5].before = {"                      Vg(T1) = RLac / (r' e + Res)", "                      Vg(T1) = RLac / (r' e + Res)"};
    page[6].before = {"                      RLac = RLa // B(Super) x  Rlw ", "                      RLac = RLa // B(Super) x  Rlw "};
    return page;
}();
// clang-format on

/// The help pages.
extern const BiText helpText;

} // namespace velmor::form11
