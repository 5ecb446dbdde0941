// SPDX-License-Identifier: MIT
// The prompts of `Form2`: those of its family and its own. Spanish stands above English.
#include "designs/common_emitter/form2_texts.h"

#include "sheets/rows.h"

namespace velmor::form2 {

namespace texts_detail {

// clang-format off
// field, moment, place, Spanish, English
constexpr auto ownSayings = std::to_array<Saying>({
    common_emitter::emptyField,
    common_emitter::ofField(Text1, sheets::placeANumber),
    {Text1, When::focus, STA70,
     {"Con Enter ó Esc comienza el diseño de un amplificador 'Clase A', realimentado por corriente, polarizado por base. En BOTONES "
      "encontrara otras opciones...",
      "With Enter or Esc the design of an amplifier begins 'Class A', feedback for current, polarized by Base. In bottons you found "
      "other options..."}},
    {Text1, When::enter, STA70, {" Colocar cifra superior a 20, sin unidades", "To place value superior at 20, without units"}},
    {Text3, When::enter, STA70,
     {"Para Qic inferior a 10 mA coloque cifra de 2,5 a 3  ",
      "For inferior Qic to 10 MA places value from 2,5 to 3\n              For Qic superior to 10 mA places the value 3"}},
    {Text8, When::enter, STA70,
     {"Coloque un valor normalizado...  ",
      "                                                                                                             Put a normalized "
      "value...  "}},
});

// Names of the buttons under the pointer.
constexpr auto buttonNames = std::to_array<Saying>({
    {Picture6,   When::hover, Boost, {"Desacoplado", "Bypass"}},
    {Picture4,   When::hover, Boost, {"Parcialmente desacoplado", "Parcial Bypass"}},
    {Picture11,  When::hover, Boost, {"Polarizado p/Emisor", "Polarized by Emitter"}},
    {Picture10,  When::hover, Boost, {"Polarizado p/Base", "Polarized by Base"}},
    {Picture2,   When::hover, Boost, {"Boots...", "Boots..."}},
    {Picture7,   When::hover, Boost, {"Boots...", "Boots..."}},
    {Picture1,   When::hover, Boost, {"Desacoplado", "Bypass"}},
    {Image5,     When::hover, Boost, {"Abrir un nuevo circuito...", "Clon Circuit"}},
    {Image4,     When::hover, Boost, {"Abrir un nuevo circuito...", "Clon Circuit"}},
    {Image3,     When::hover, Boost, {"Calculadora", "Calculator"}},
    {SSCommand3, When::hover, Boost, {"Informe", "Report"}},
    {SSCommand1, When::hover, Boost, {"Guía de trabajos prácticos", "Guide of practical work"}},
    {Image35,    When::hover, Boost, {"Ayuda", "Help"}},
    {Image34,    When::hover, Boost, {"Ayuda", "Help"}},
});
// clang-format on

constexpr auto allSayings = sheets::joined(common_emitter::emitterSayings<Control>,
                                           common_emitter::modeSayings<Control>, ownSayings, buttonNames);

} // namespace texts_detail

const std::span<const Saying> sayings = texts_detail::allSayings;

} // namespace velmor::form2
