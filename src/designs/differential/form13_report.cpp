// SPDX-License-Identifier: MIT
// The report of `Form13`: exercises in both languages, then what the sheet shows.
#include "designs/differential/exercises.h"
#include "designs/differential/form13.h"
#include "sheets/report_text.h"

namespace velmor::form13 {

using differential::Exercise;
using sheets::ReportRow;
using sheets::ReportText;

namespace report {

// clang-format off
constexpr std::string_view data1[] = {"T (ºC) = 90 °"};
constexpr std::string_view data2[] = {"Rlw = 5 kohm", "S = 1", "Vg = 1400"};
constexpr std::string_view data3[] = {"T (ºC) = 190 °"};
constexpr std::string_view data4[] = {"Rlw (Kohm) = 10 kohm", "Eopp = 13 Vpp"};
constexpr std::string_view data5[] = {"Vg = 41000"};

constexpr std::string_view english1[] = {"Design the amplifier with the values that the sheet proposes",
                                         "and compare the gain that comes out with the one asked for."};
constexpr std::string_view english2[] = {"Which Res1 does this load allow..?"};
constexpr std::string_view english3[] = {"Raise the temperature and explain what happens to ERes and Es."};
constexpr std::string_view english4[] = {"Design for a larger signal. What must Es be..?"};
constexpr std::string_view english5[] = {"Find the supply and RL2 that give this gain."};
constexpr Exercise english[] = {
    {"Exercise N° 1 ", english1, data1},
    {"Exercise N° 2 ", english2, data2},
    {"Exercise N° 3 ", english3, data3},
    {"Exercise N° 4 ", english4, data4},
    {"Exercise N° 5 ", english5, data5},
};

constexpr std::string_view spanish1[] = {"Diseñe el amplificador con los valores que propone el programa",
                                         "y compare la ganancia obtenida con la pedida."};
constexpr std::string_view spanish2[] = {"Que valor de Res1 permite esta carga..?"};
constexpr std::string_view spanish3[] = {"Eleve la temperatura y explique que ocurre con ERes y con Es."};
constexpr std::string_view spanish4[] = {"Diseñe para una señal mayor. Cuanto debe valer Es..?"};
constexpr std::string_view spanish5[] = {"Encuentre la fuente y el valor de RL2 que dan esta ganancia."};
constexpr Exercise spanish[] = {
    {"Ejercicio N° 1 ", spanish1, data1},
    {"Ejercicio N° 2 ", spanish2, data2},
    {"Ejercicio N° 3 ", spanish3, data3},
    {"Ejercicio N° 4 ", spanish4, data4},
    {"Ejercicio N° 5 ", spanish5, data5},
};

// What the drawing shows twice is told once.
constexpr host::Handle results[] = {
    Label1, Label23, Label19, Label17, Label5, Label9, Label31, Label15, Label14, Label7, Label2, Label3, Label4, Label16,
    Label13, Label32, Label12, Label33, Label21, Label30, Label24, Label22, Label20, Label35,
};
// clang-format on

} // namespace report

std::string Form13::reportText() const
{
    ReportText text;
    if (inEnglish())
        text.heading(*this, "Report Design", "Design :   Long Tail Pair, Compound ");
    else
        text.opening(*this, "Elaboración de Informe : Diferencial Compuesto").empty();
    differential::append(text, inEnglish() ? report::english : report::spanish);
    text.tabs(inEnglish() ? differential::englishReminder : differential::spanishReminder);
    text.oneStep(inEnglish() ? "Results of the design: " : "Resultados del diseño: ");
    for (const host::Handle label : report::results)
        if (visible(label) && !this->text(label).empty())
            text.tab(this->text(label));
    return text.text();
}

} // namespace velmor::form13
