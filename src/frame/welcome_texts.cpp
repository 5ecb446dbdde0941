// SPDX-License-Identifier: MIT
// The welcome labels and the group captions, Spanish and English side by side. Accelerators differ within a menu.
#include "frame/welcome_texts.h"

namespace velmor::main_window {

// clang-format off
constexpr std::array<NamedText, 3> welcomeLabels{{
    {.name = "Label3",
     .text = {.es = "Etapas amplificadoras a transistores, diseñadas paso a paso.",
              .en = "Transistor amplifier stages, designed step by step."}},
    {.name = "Label4",
     .text = {.es = "Pase el mouse sobre un dibujo y le contará para qué sirve;\nun click, y comienza el diseño.",
              .en = "Move the mouse over a drawing and it will tell you what it is for;\none click, and the design begins."}},
    {.name = "Label35", .text = {.es = "VELMOR", .en = "VELMOR"}},
}};

constexpr std::array<NamedText, 24> groupCaptions{{
    {.name = "mnuDif",         .text = {.es = "&Diferenciales",             .en = "&Differential"}},
    {.name = "mnuBasCom",      .text = {.es = "&Base Común",                .en = "Common &Base"}},
    {.name = "mnuColCom",      .text = {.es = "&Colector Común",            .en = "&Common Collector"}},
    {.name = "mnuPota",        .text = {.es = "Potencia, Clase &A",         .en = "Power, Class &A"}},
    {.name = "mnuPotB",        .text = {.es = "&Potencia, Clase B",         .en = "&Power, Class B"}},
    {.name = "mnuEmCom",       .text = {.es = "&Emisor Común",              .en = "Common &Emitter"}},
    {.name = "mnuRealTen",     .text = {.es = "Realimentado por &Tensión",  .en = "&Voltage Feedback"}},
    {.name = "mnudifB",        .text = {.es = "&Diferenciales",             .en = "&Differential"}},
    {.name = "mnuBasComB",     .text = {.es = "&Base Común",                .en = "Common &Base"}},
    {.name = "mnuColComB",     .text = {.es = "&Colector Común",            .en = "&Common Collector"}},
    {.name = "mnuPotaB",       .text = {.es = "Potencia, Clase &A",         .en = "Power, Class &A"}},
    {.name = "mnuPotbB",       .text = {.es = "&Potencia, Clase B",         .en = "&Power, Class B"}},
    {.name = "mnuEmComB",      .text = {.es = "&Emisor Común",              .en = "Common &Emitter"}},
    {.name = "mnuRealTenB",    .text = {.es = "Realimentado por &Tensión",  .en = "&Voltage Feedback"}},
    {.name = "mnuDesac",       .text = {.es = "Totalmente Desacoplado",     .en = "Fully Bypassed"}},
    {.name = "MnuParc",        .text = {.es = "Parcialmente  Desacoplado",  .en = "Partly Bypassed"}},
    {.name = "mnuEdit",        .text = {.es = "&Editor de Textos",          .en = "Text &Editor"}},
    {.name = "mnuIng",         .text = {.es = "&Inglés",                    .en = "&English"}},
    {.name = "mnuEsp",         .text = {.es = "&Español",                   .en = "&Spanish"}},
    {.name = "mnuFija",        .text = {.es = "&Fija",                      .en = "&Fixed"}},
    {.name = "mnuFlotante",    .text = {.es = "F&lotante",                  .en = "F&loating"}},
    {.name = "mnuLenguaje(0)", .text = {.es = "Inglish",                    .en = "Inglish"}},
    {.name = "mnuLenguaje(1)", .text = {.es = "Español",                    .en = "Español"}},
    {.name = "mnudise",        .text = {.es = "Diseños",                    .en = "Designs"}},
}};
// clang-format on

} // namespace velmor::main_window
