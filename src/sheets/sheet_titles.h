// SPDX-License-Identifier: MIT
// The titles of the fifteen sheets, once: menus, palette, clones and sheets that open another one take them from here. Knows no
// sheet.
#pragma once

#include <array>
#include <string_view>

#include "host/bitext.h"

namespace velmor::sheets {

struct SheetTitle {
    std::string_view sheet{};
    host::BiText title{}; ///< given by menus, palette and clones; empty: the sheet keeps its stored title
};

// clang-format off
inline constexpr auto sheetTitles = std::to_array<SheetTitle>({
    {"Form2",     {.es = "  Emisor Común Realimentado por Corriente",   .en = "  Common Emitter, Feedback for Current"}},
    {"desaco",    {}},
    {"ParcDesac", {.es = "  Emisor Común Parcialmente Desacoplado",     .en = "  Common Emitter, Bypass"}},
    {"Form8",     {.es = "  Circuito Realimentado por Tensión Simple",  .en = "  Feedback  Voltage Circuits Simple"}},
    {"Form18",    {.es = "  Circuito Realimentado por Tensión Estable", .en = "  Feedback  Voltage Circuits Stable"}},
    {"Form4",     {.es = "  Base Común",                                .en = "  Common Base"}},
    {"Form17",    {.es = "  Colector Común",                            .en = "  Common Collector"}},
    {"Form9",     {.es = "  Parafase",                                  .en = "  Paraphase"}},
    {"Form3",     {.es = "  Diferencial Simple",                        .en = "  Long Tail Pairs  -  Differential Amplifier"}},
    {"Form13",    {.es = "  Diferencial Compuesto ó Cascode",           .en = "Long Tail Pairs Compound"}},
    {"Form12",    {.es = "  Fuente de Corriente Constante",             .en = "  D.C. source"}},
    {"Form15",    {.es = "  Amplificador Clase A Simple",               .en = "  Power Amplifier Class A Simple"}},
    {"form20",    {.es = "  Clase A mejorada...",                       .en = "  Power Amplifier. (Class A - Darlington)"}},
    {"Form10",    {.es = "  Amplificador de Potencia Clase B",          .en = "  Power Amplifier Class B"}},
    {"Form11",    {.es = "  Amplificador de Potencia Clase B Mejorado", .en = "  Power Amplifier Class B Darlington"}},
});

// Titles by the way in which a sheet was opened.
inline constexpr host::BiText desacoFromForm2{.es = "  Emisor Común Realimentado por Corriente, Desacoplado",
                                              .en = "  Common Emitter, Feedback for Current, Bypass"};
inline constexpr host::BiText desacoCloned{.es = "  Emisor Común Desacoplado", .en = "  Common Emitter, Bypass"};
inline constexpr host::BiText parcDesacFromForm2{.es = "  Emisor Común Realimentado por Corriente, Parcialmente Desacoplado",
                                                 .en = "  Common Emitter, Feedback for Current, Parcial Bypass"};
// clang-format on

/// The title of a sheet of the table; a name that is not there does not compile.
consteval host::BiText titleOf(std::string_view sheet)
{
    for (const SheetTitle& row : sheetTitles)
        if (row.sheet == sheet)
            return row.title;
    throw "no sheet of that name";
}

} // namespace velmor::sheets
