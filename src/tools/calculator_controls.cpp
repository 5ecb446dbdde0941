// SPDX-License-Identifier: MIT
// Controls and slot table of the calculator.
#include "tools/calculator.h"

namespace velmor::calculator {

using host::ControlRow;
using host::Event;
using host::Kind;
using host::Look;
using host::noControl;
using host::slot;
using host::SlotRow;

namespace table {

// clang-format off
// What the window shows until a path is begun: the labels are empty then, and no field is there.
constexpr host::Mark invitation[] = {
    {.symbol = host::Symbol::text, .from = {150, 7}, .note = {"¿Qué ganancia quiere calcular?", "Which gain shall be worked out?"},
     .side = host::Side::below},
    {.symbol = host::Symbol::text, .from = {150, 26}, .note = {"Zi igual a Zo: el primer botón.\nZi diferente de Zo: Po / Pi.",
                                                              "Zi equal to Zo: the first button.\nZi different from Zo: Po / Pi."},
     .side = host::Side::below, .ink = host::Ink::quiet},
};
constexpr host::Place fieldPlace{300, 1230, 4500, 450};
constexpr ControlRow controls[] = {
    {.id = Text1, .name = "Text1", .kind = Kind::field, .place = fieldPlace, .visible = false, .enabled = false,
     .meaning = {.es = "Tensión de salida Eo", .en = "Output voltage Eo"}},
    {.id = Text2, .name = "Text2", .kind = Kind::field, .place = fieldPlace, .visible = false, .enabled = false,
     .meaning = {.es = "Tensión de entrada Ei", .en = "Input voltage Ei"}},
    {.id = Text3, .name = "Text3", .kind = Kind::field, .place = fieldPlace, .visible = false, .enabled = false,
     .meaning = {.es = "Tensión de salida Eo", .en = "Output voltage Eo"}},
    {.id = Text4, .name = "Text4", .kind = Kind::field, .place = fieldPlace, .visible = false, .enabled = false,
     .meaning = {.es = "Tensión de entrada Ei", .en = "Input voltage Ei"}},
    {.id = Text5, .name = "Text5", .kind = Kind::field, .place = fieldPlace, .visible = false, .enabled = false,
     .meaning = {.es = "Impedancia de carga Zo", .en = "Load impedance Zo"}},
    {.id = Text6, .name = "Text6", .kind = Kind::field, .place = fieldPlace, .visible = false, .enabled = false,
     .meaning = {.es = "Impedancia de entrada Zi", .en = "Input impedance Zi"}},
    {.id = Command3, .name = "Command3", .kind = Kind::button, .place = {300, 1890, 1560, 480}, .text = "Decibeles",
     .meaning = {.es = "Ganancia de tensión", .en = "Voltage gain"}},
    {.id = Command4, .name = "Command4", .kind = Kind::button, .place = {1980, 1890, 1560, 480}, .text = "Po / Pi",
     .meaning = {.es = "Ganancia de potencia", .en = "Power gain"}},
    {.id = Command5, .name = "Command5", .kind = Kind::button, .place = {3660, 1890, 1140, 480}, .text = "Off",
     .meaning = {.es = "Ocultar la calculadora", .en = "Hide the calculator"}},
    {.id = Label1, .name = "Label1", .kind = Kind::label, .place = {300, 2520, 4500, 840}, .look = Look::hint},
    {.id = Label2, .name = "Label2", .kind = Kind::label, .place = {300, 300, 4500, 840}, .look = Look::paper, .fontSize = 9},
    {.id = Shape1, .name = "Shape1", .kind = Kind::shape, .place = {300, 300, 4500, 1380}, .drawing = invitation},
};
static_assert(host::rowsInOrder(controls));

constexpr SlotRow slots[] = {
    {noControl, Event::load,      slot<&Calculator::load>},
    {noControl, Event::activate,  slot<&Calculator::activate>},
    {noControl, Event::hover,     slot<&Calculator::hoverWindow>},
    {Command3,  Event::click,     slot<&Calculator::startVoltageGain>},
    {Command4,  Event::click,     slot<&Calculator::startPowerGain>},
    {Command5,  Event::click,     slot<&Calculator::off>},
    {Command3,  Event::hover,     slot<&Calculator::hint>},
    {Command4,  Event::hover,     slot<&Calculator::hint>},
    {Command5,  Event::hover,     slot<&Calculator::hint>},
    {Text1,     Event::key,       slot<&Calculator::key>},
    {Text2,     Event::key,       slot<&Calculator::key>},
    {Text3,     Event::key,       slot<&Calculator::key>},
    {Text4,     Event::key,       slot<&Calculator::key>},
    {Text5,     Event::key,       slot<&Calculator::key>},
    {Text6,     Event::key,       slot<&Calculator::key>},
    {Text1,     Event::lostFocus, slot<&Calculator::leave>},
    {Text2,     Event::lostFocus, slot<&Calculator::leave>},
    {Text3,     Event::lostFocus, slot<&Calculator::leave>},
    {Text4,     Event::lostFocus, slot<&Calculator::leave>},
    {Text5,     Event::lostFocus, slot<&Calculator::leave>},
    {Text6,     Event::lostFocus, slot<&Calculator::leave>},
};

constexpr host::Handle order[] = {Text1, Text2, Text3, Text4, Text5, Text6, Command3, Command4, Command5};
// clang-format on

} // namespace table

const host::WindowSpec spec{
    .name = "Calculator",
    .role = host::Role::tool,
    .caption = " Calculadora Velmor.",
    .place = {0, 0, 5100, 3660},
    .controls = table::controls,
    .slots = table::slots,
    .tabOrder = table::order,
    .create = create,
};

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Calculator>(host);
}

} // namespace velmor::calculator
