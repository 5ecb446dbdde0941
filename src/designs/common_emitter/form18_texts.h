// SPDX-License-Identifier: MIT
// What `Form18` alone says, and where it says other than the simple sheet. Spanish stands above English.
#pragma once

#include <array>

#include "designs/common_emitter/feedback_help.h"
#include "designs/common_emitter/feedback_texts.h"
#include "designs/common_emitter/form18_controls.h"
#include "sheets/rows.h"

namespace velmor::form18 {

// clang-format off
inline constexpr auto sayings = sheets::joined(
    sheets::withRowsOf(feedback::sayings, std::to_array<Saying>({
        {Text13, When::focus, Label33, highGain},
        {Text10, When::focus, Label33,
         {" El valor de estabilidad (S) se asigna entre 1 a 10 y fijará el valor del resistor Rb1.",
          "The value of stability (S) it is assigned among 1 at 10 and it will fix the value of the resistor Rb1."}},
        {Text2, When::focus, Label33,
         {" Si utiliza transistor BC548 es aconsejable un valor de Beta = 80 ",
          " If it uses transistor BC548 it is advisable a value of Beta = 80"}},
    })),
    std::to_array<Saying>({
        placeAValue,
        // names of what the pointer is on
        {Image3,  When::hover, Label28, {"  Clonar Circuito ",    "  Clon Circuits "}},
        {Image4,  When::hover, Label28, {"  Clonar Circuitos ",   "  Clon Circuts... "}},
        {Image35, When::hover, Label28, {"  Ayuda..? ",           "  Help..? "}},
        {Image34, When::hover, Label28, {"  Quitar Ayuda ",       "  Help Off "}},
        {Image5,  When::hover, Label28, {"  Calculadora",         "  Calculator "}},
        {Image6,  When::hover, Label28, {"  Editor de Textos ",   "  Text Editor "}},
        {Image7,  When::hover, Label28, {"  Editor de Informes ", "  Report Edit"}},
        {Image2,  When::hover, Label28, {"  Desacople ",          "  Bootstrapping "}},
        {Image8,  When::hover, Label28, {"  Desacople ",          "  Bootstrapping "}},
    }));

inline constexpr BiText fileFilter{.es = "Realimentado por Tensión Estable(*.RTE)|*.RTE", .en = "Feedback Voltage Stable(*.FVS)|*.FVS"};

// Boxes, in the order in which a student may meet them.
inline constexpr Saying loadVoltageTooLow{
    .text  = {.es = "Soluciones: De ser posible elevar valor de  QIc.", .en = "Solution: Of being possible to elevate value of QIc."},
    .title = loadVoltageTitle,
    .flags = 16};
inline constexpr Saying supplyTooLow{
    .text  = {.es = "Cambiar el valor de fuente..! ", .en = "To change the source value..! "},
    .title = {.es = "    El valor de Es asignado no es posible...", .en = "    The value of Es assigned it is not possible..."}};
inline constexpr Saying noBaseResistor{
    .text  = {.es = "La tensión de fuente no es suficiente, pruebe cambiarla...",
              .en = "The source voltage is not enough, prove to change it..."},
    .title = {.es = "Error", .en = "Error"},
    .flags = 48};
inline constexpr Saying overTransistor{
    .text  = {.es = "El valor de tensión en ERl debe ser superior a Ecmáx...",
              .en = "The value of voltage in Eq should be superior to Ecmax..."},
    .title = {.es = "El resultado NO es el esperado...", .en = "The result is not the prospective one..."},
    .flags = 48};

// Captions.
inline constexpr BiText generatorCaption{.es = "Rg del Generador (kohms)", .en = "Rg Generator (kohm)"};
inline constexpr BiText tryValues{.es = "Al variar el valor de Rb2 cambiara la corriente QIc. Pruebe valores",
                                  .en = "If varied Rb2 changed quiescent current"};
inline constexpr BiText otherCurrent{.es = "El valor de QIc es distinto al calculado...", .en = "It's not QIc value..."};
inline constexpr std::string_view rb2Caption = "Rb2(Kohm)=";

/// The simple sheet's analysis, with its accent.
inline constexpr AnalysisWords accentedAnalysis = [] {
    AnalysisWords words = spanishAnalysis;
    words.heavy = " La Zin de entrada es mas pequeña que la del generador, este necesitará suministrar una potencia de :";
    return words;
}();

inline constexpr auto helpPages = sheets::joined(
    sheets::withRowsOf(feedback::helpPages, std::to_array<sheets::HelpPage>({
        {.field = Text10, .shortName = " S...", .page = {
            .es = " En este cuadro UD, puede asignar un valor  de estabilidad (S).\n\n"
                  "S fija el valor del resistor que va de Colector a Base:\n\n"
                  "     Rb1 = S x RL\n\n"
                  "Asigne de 1 a 10. Con S pequeña Rb1 es pequeño, la corriente por el divisor es grande frente a la de base y el punto de "
                  "trabajo queda firme, pero la impedancia de entrada es muy baja. Con S elevada sucede lo contrario.",
            .en = " In this field you can assign a value of stability (S).\n\n"
                  "S fixes the value of the resistor that goes from Collector to Base:\n\n"
                  "     Rb1 = S x RL\n\n"
                  "Assign 1 to 10. With a small S, Rb1 is small, the current through the divider is large against that of the base and the "
                  "working point stays firm, but the input impedance is very low. With a high S it is the other way round."}},
        {.field = Text17, .shortName = " más sobre RL..", .page = feedback::helpPages[4].page},
        {.field = Text13, .shortName = " Eopp..", .page = feedback::helpPages[6].page},
    })),
    std::to_array<sheets::HelpPage>({
        {.field = Text18, .shortName = "Rb2", .page = {
            .es = "En este cuadro UD, asigna el valor de resistencia que drena a masa el excedente de la corriente de Rb1.\n\n"
                  "     IRb2 = IRb1 - Ib\n"
                  "     Rb2 = Vj / IRb2\n\n"
                  "Sobre ella está siempre la tensión de juntura. Si la disminuye, se lleva más corriente y QIc baja; si la aumenta, QIc "
                  "sube. Entre un punto de trabajo firme y una impedancia de entrada elevada hay que elegir.\n\n"
                  " Es aquí donde entra en juego el criterio del diseñador",
            .en = "In this field you assign the value of the resistance that drains to ground what is left of the current of Rb1.\n\n"
                  "     IRb2 = IRb1 - Ib\n"
                  "     Rb2 = Vj / IRb2\n\n"
                  "The junction voltage is always across it. If you make it smaller it takes more current and QIc falls; if you make it "
                  "larger, QIc rises. Between a firm working point and a high input impedance one has to choose.\n\n"
                  " It is here that the judgement of the designer comes in"}},
    }));
// clang-format on
static_assert(feedback::helpPages[4].field == Text17 && feedback::helpPages[6].field == Text13);

extern const host::BiText helpText;

} // namespace velmor::form18
