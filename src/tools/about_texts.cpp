// SPDX-License-Identifier: MIT
// Credits and the lines about updates, Spanish and English side by side.
#include "tools/about_texts.h"

namespace velmor::about {

// clang-format off
constexpr AboutTexts aboutTexts{
    .title   = {.es = " gracias...", .en = " thank..."},
    .heading = {.es = "Diseños de VELMOR", .en = "Design of VELMOR "},
    .thanks  = {.es = "A los docentes que prestan el banco después de hora,\n"
                      "y a los alumnos que preguntan por qué.",
                .en = "To the teachers who lend the bench after hours,\n"
                      "and to the students who ask why."},
    .credits = {{
        {.es = "The Velmor authors, 2026", .en = "The Velmor authors, 2026"},
        {.es = "Programa, textos, dibujos y guías de trabajos prácticos",
         .en = "Program, texts, drawings and practical-work guides"},
        {.es = "Se distribuye con la licencia MIT: úselo, estúdielo,\ncámbielo y compártalo.",
         .en = "Distributed under the MIT licence: use it, study it,\nchange it and share it."},
    }},
    .closing = {.es = "Ningún transistor sufrió daños irreparables.\nBueno, casi ninguno.",
                .en = "No transistor was harmed beyond repair.\nWell, hardly any."},
};

constexpr std::array<host::BiText, 4> updateLines{{
    {.es = "Programa didáctico de diseño de VELMOR. ", .en = " Didactic programs of design of VELMOR."},
    {.es = "De cada diseño responde quien lo firma: mida antes de confiar.",
     .en = "For each design answers whoever signs it: measure before you trust."},
    {.es = "Por versiones nuevas pregunte a su docente, ó lea la documentación que vino con el programa.",
     .en = "For new versions ask your teacher, or see the documentation that came with the program."},
    {.es = "Distribución libre y gratuita.", .en = "Free and gratuitous distribution."},
}};

constexpr host::BiText updateTitle{.es = "Buscando a alguien...", .en = "looking for someone..."};
// clang-format on

} // namespace velmor::about
