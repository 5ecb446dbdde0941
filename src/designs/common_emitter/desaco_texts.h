// SPDX-License-Identifier: MIT
// What `desaco` says besides what its family says (emitter_texts.h): its prompts, boxes, captions and help boxes. The rows stand
// in a header because those of `ParcDesac` begin with them. Spanish stands above English; misprints are the course's.
#pragma once

#include <array>

#include "designs/common_emitter/desaco_controls.h"
#include "designs/common_emitter/emitter_texts.h"
#include "sheets/rows.h"
#include "sheets/saying.h"

namespace velmor::desaco {

using host::BiText;
using sheets::Saying;
using sheets::When;

namespace texts_detail {

using common_emitter::emptyFigure;
using common_emitter::emptyGain;
using common_emitter::ofField;

} // namespace texts_detail

// clang-format off
/// Enter in an empty field, and leaving it empty where the sheet does not let it pass.
inline constexpr auto emptyFields = std::to_array<Saying>({
    texts_detail::ofField(host::noControl, common_emitter::emptyLeft),
    texts_detail::ofField(Text1, sheets::placeANumber),
    texts_detail::ofField(Text2, texts_detail::emptyFigure),
    texts_detail::ofField(Text3, texts_detail::emptyFigure),
    texts_detail::ofField(Text4, texts_detail::emptyFigure),
    texts_detail::ofField(Text5, texts_detail::emptyFigure),
    texts_detail::ofField(Text6, texts_detail::emptyFigure),
    texts_detail::ofField(Text7, texts_detail::emptyFigure),
    texts_detail::ofField(Text9, texts_detail::emptyFigure),
    texts_detail::ofField(Text19, texts_detail::emptyFigure),
    texts_detail::ofField(Text11, texts_detail::emptyGain),
    texts_detail::ofField(Text13, texts_detail::emptyGain),
});

// field, moment, place, Spanish, English
inline constexpr auto ownSayings = std::to_array<Saying>({
    {Text1, When::focus, STA70,
     {"Con Enter ó Esc comienza el diseño de un amplificador 'Clase A', realimentado por corriente, polarizado por base. En botones "
      "encontrara otras opciones...",
      "With Enter or Esc the design of an amplifier begins 'Class A', feedback for current, polarized by Base. In bottons you found "
      "other options..."}},
    {Text1, When::enter, STA70,
     {" Colocar cifra superior a 20, sin unidades                     ", "To place value superior at 20, without units"}},
    {Text3, When::enter, STA70,
     {"Para Qic inferior a 10 mA coloque cifra de 2,5 a 3  \n          Para Qic superior a 10 mA coloque la cifra 3",
      "For inferior Qic to 10 MA places value from 2,5 to 3\n              For Qic superior to 10 mA places the value 3"}},
    {Text8, When::enter, STA70,
     {"                                                                                                   Coloque un valor "
      "normalizado...  ",
      "                                                                                                             Put a normalized "
      "value...  "}},
    {Text19, When::enter, STA70, common_emitter::noBootstrapHint},
    {Picture6, When::hover, Boost, {"Desacoplado", "Bypass"}},
    {Picture1, When::hover, Boost, {"Desacoplado", "Bypass"}},
});

inline constexpr auto sayings = sheets::joined(emptyFields, common_emitter::emitterSayings<Control>, ownSayings);
// clang-format on

// Boxes of the test of RL.
inline constexpr Saying smallLoad{.text = common_emitter::raiseGain.text, .title = {.es = "Error ", .en = "Error "}};
inline constexpr Saying tinyLoad{.text = {.es = "Es aconsejable elevar el valor de la ganancia Vg",
                                          .en = "It is advisable to elevate the value of the gain Vg "},
                                 .title = common_emitter::raiseGain.title};

inline constexpr BiText fileFilter{.es = " Totalmente Desacoplado (*.DES)|*.DES",
                                   .en = "Common Emitter Bypass (*.DESI)|*.DESI"};
inline constexpr BiText guideFile{.es = "desac.Lab", .en = "bypass.Lab"};
inline constexpr BiText archived{.es = "Circuito de Archivo : Emisor Común Desacoplado",
                                 .en = "Archive Circuit : Common Emitter, Bypass"};
inline constexpr BiText startPrompt{
    .es = common_emitter::startInSpanish,
    .en = "it enters the maximum variation of quiescent current acceptable  with the changes of work temperature. For "
          "critical circutos (electro medicine) used values of 1 at 3. "};

/// The help boxes.
inline constexpr BiText helpText{
    .es = "           Emisor Común\n\n"
          "El capacitor de desacople Cbp lleva el emisor a masa para la señal. Sin él, la señal que se desarrolla en "
          "Res se opone "
          "a la de entrada: la realimentación baja la ganancia.\n\n"
          "Desacoplado, la señal no se realimenta en Res: sube la ganancia, Vg = RLac / r'e, y disminuye la impedancia "
          "de "
          "entrada, que ya no es Beta x Res sino Beta x r'e.\n\n"
          "Para la corriente continua nada cambia: Res sigue estabilizando la corriente de reposo QIc frente a la "
          "temperatura.\n\n"
          "Recuerde que r'e depende de QIc (25 mV / QIc): con la ganancia a merced de r'e, cada resistor que normaliza "
          "mueve QIc, y con ella Vg.\n\n"
          "El círculo se cierra con el preset: ajuste Rb1 hasta que la corriente obtenida sea la diseñada.",
    .en = "         Common Emitter.\n\n"
          "The capacitor Cbp takes the emitter to ground for the sign: it is not fed back in Res. The gain rises to "
          "Vg = RLac / r'e, and the input impedance falls from Beta x Res to Beta x r'e.\n\n"
          "The \"Boots...\" icon of the sheet without bypass raises the input impedance by feeding the sign back to "
          "the base "
          "divider. It needs a sign at the emitter: with the emitter bypassed there is none, and bootstrapping can not "
          "be "
          "carried out.\n\n"
          "The incidence of RLw on QIc: a small load wants a small RL for the same gain, and the sign Eopp needs at "
          "least "
          "half of itself as continuous voltage on RL. So the smaller RLw, the larger QIc must be; and with QIc the "
          "input "
          "impedance falls once more.\n\n"
          "For direct current nothing changes: Res stabilizes QIc against the temperature as before."};

} // namespace velmor::desaco
