// SPDX-License-Identifier: MIT
// The table of the template sheet's controls: names, kinds, stored texts, places and strokes. Places and strokes are counted
// in units of the drawing grid (15 twips); the sheet is 900 x 460 units.
#include "sheets/template_sheet_controls.h"

namespace velmor::template_sheet {

using host::Kind;
using host::Look;
using host::Mark;
using host::Side;
using host::Symbol;

namespace controls_detail {

constexpr host::Place at(int left, int top, int width, int height)
{
    constexpr int twipsPerUnit = 15;
    return {left * twipsPerUnit, top * twipsPerUnit, width * twipsPerUnit, height * twipsPerUnit};
}

// clang-format off
constexpr Mark titleBlock[] = {
    {.symbol = Symbol::text, .from = {280, 300}, .note = {"Resistor de carga", "Load resistor"}, .ink = host::Ink::quiet, .size = 80},
};
constexpr Mark supplyMarks[] = {
    {.symbol = Symbol::terminal, .from = {60, 4}, .name = "E_s", .side = Side::right, .value = Text1, .unit = "V", .field = Text1},
    {.symbol = Symbol::wire, .from = {60, 7}, .to = {60, 40}},
};
constexpr Mark loadMarks[] = {
    {.symbol = Symbol::resistor, .from = {60, 0}, .to = {60, 80}, .name = "R_L", .value = Text5, .unit = "K", .field = Text5},
    {.symbol = Symbol::arrow, .from = {40, 86}, .to = {40, 116}, .name = "Q_Ic", .side = Side::left, .field = Text3},
    {.symbol = Symbol::wire, .from = {60, 80}, .to = {60, 120}},
};
constexpr Mark cloneMarks[]      = {{.symbol = Symbol::page, .from = {18, 8}, .to = {46, 36}}, {.symbol = Symbol::page, .from = {36, 14}, .to = {64, 42}}};
constexpr Mark cloneAgainMarks[] = {{.symbol = Symbol::page, .from = {36, 8}, .to = {64, 36}}, {.symbol = Symbol::page, .from = {18, 14}, .to = {46, 42}}};
constexpr Mark calculatorMarks[] = {{.symbol = Symbol::calculator, .from = {24, 8}, .to = {58, 42}}};
constexpr Mark reportMarks[]     = {{.symbol = Symbol::page, .from = {24, 8}, .to = {58, 42}}};
constexpr Mark guideMarks[]      = {{.symbol = Symbol::book, .from = {24, 8}, .to = {58, 42}}};
constexpr Mark helpMarks[]       = {{.symbol = Symbol::question, .from = {24, 8}, .to = {58, 42}}};

constexpr host::ControlRow rows[] = {
    {.id = Image1,  .name = "Image1",  .kind = Kind::image, .place = at(236, 60, 470, 390), .look = Look::paper, .drawing = titleBlock},
    {.id = Label11, .name = "Label11", .kind = Kind::label, .place = at(8, 60, 220, 150), .look = Look::group},
    {.id = Label6,  .name = "Label6",  .kind = Kind::label, .place = at(8, 220, 220, 90), .look = Look::group},
    {.id = Line1,   .name = "Line1",   .kind = Kind::line, .place = at(400, 100, 120, 40), .visible = false, .drawing = supplyMarks},
    {.id = Line2,   .name = "Line2",   .kind = Kind::line, .place = at(400, 140, 120, 120), .visible = false, .drawing = loadMarks},
    {.id = Text1,   .name = "Text1",   .kind = Kind::field, .place = at(90, 84, 73, 22), .text = "12", .symbol = "E_s", .unit = "V",
     .meaning = {"Tensión de alimentación", "Supply voltage"}},
    {.id = Text2,   .name = "Text2",   .kind = Kind::field, .place = at(90, 244, 73, 22), .text = "75", .enabled = false, .symbol = "T", .unit = "ºC",
     .meaning = {"Temperatura ambiente", "Ambient temperature"}},
    {.id = Text3,   .name = "Text3",   .kind = Kind::field, .place = at(90, 272, 73, 22), .text = "QIc", .enabled = false, .symbol = "Q_Ic", .unit = "mA",
     .meaning = {"Corriente de reposo", "Quiescent current"}},
    {.id = Text4,   .name = "Text4",   .kind = Kind::field, .place = at(90, 112, 73, 22), .text = "Eq", .enabled = false, .symbol = "E_q", .unit = "V",
     .meaning = {"Tensión sobre el transistor", "Voltage across the transistor"}},
    {.id = Text5,   .name = "Text5",   .kind = Kind::field, .place = at(90, 140, 73, 22), .text = "RL", .enabled = false, .symbol = "R_L", .unit = "K",
     .meaning = {"Resistor de carga", "Load resistor"}},
    {.id = ERL,     .name = "ERL",     .kind = Kind::label, .place = at(540, 160, 150, 22), .look = Look::result},
    {.id = RL,      .name = "RL",      .kind = Kind::label, .place = at(540, 190, 150, 22), .look = Look::result},
    {.id = status1, .name = "status1", .kind = Kind::label, .place = at(8, 320, 220, 60), .visible = false, .look = Look::hint},
    {.id = Image5,  .name = "Image5",  .kind = Kind::image, .place = at(716, 60, 82, 50), .meaning = {"Abrir otro circuito igual, vacío", "Open another blank circuit of this kind"},
     .look = Look::toolButton, .drawing = cloneMarks},
    {.id = Image4,  .name = "Image4",  .kind = Kind::image, .place = at(716, 60, 82, 50), .visible = false,
     .meaning = {"Abrir otro circuito igual, vacío", "Open another blank circuit of this kind"}, .look = Look::toolButton, .drawing = cloneAgainMarks},
    {.id = Image3,  .name = "Image3",  .kind = Kind::image, .place = at(806, 60, 82, 50), .meaning = {"Abrir la calculadora", "Open the calculator"},
     .look = Look::toolButton, .drawing = calculatorMarks},
    {.id = SSCommand3, .name = "SSCommand3", .kind = Kind::button, .place = at(716, 120, 82, 50), .meaning = {"Elaborar el informe", "Write the report"},
     .look = Look::toolButton, .drawing = reportMarks},
    {.id = SSCommand1, .name = "SSCommand1", .kind = Kind::button, .place = at(806, 120, 82, 50), .meaning = {"Abrir la guía de trabajos prácticos", "Open the guide of practical work"},
     .look = Look::toolButton, .drawing = guideMarks},
    {.id = Image35, .name = "Image35", .kind = Kind::image, .place = at(716, 180, 82, 50), .meaning = {"Ver la ayuda", "Show the help"},
     .look = Look::toolButton, .drawing = helpMarks},
    {.id = Image34, .name = "Image34", .kind = Kind::image, .place = at(716, 180, 82, 50), .visible = false, .meaning = {"Quitar la ayuda", "Take the help away"},
     .look = Look::toolButton, .drawing = helpMarks},
    {.id = Text22,  .name = "Text22",  .kind = Kind::page, .place = at(440, 60, 260, 380), .visible = false, .meaning = {"Ayuda en español", "Help in Spanish"}, .overlay = true},
    {.id = Text23,  .name = "Text23",  .kind = Kind::page, .place = at(440, 60, 260, 380), .visible = false, .meaning = {"Ayuda en inglés", "Help in English"}, .overlay = true},
    {.id = SSPanel1, .name = "SSPanel1", .kind = Kind::panel, .place = at(0, 0, 900, 50), .look = Look::prompt},
};
// clang-format on
static_assert(host::rowsInOrder(rows));
static_assert(std::size(rows) == controlCount);

} // namespace controls_detail

const std::span<const host::ControlRow> controls = controls_detail::rows;

} // namespace velmor::template_sheet
