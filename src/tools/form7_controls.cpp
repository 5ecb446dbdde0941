// SPDX-License-Identifier: MIT
// Table, slots and the two circuits of the choosing panel.
#include "tools/butterfly.h"
#include "tools/form7.h"

namespace velmor::form7 {

using host::Event;
using host::GridPoint;
using host::Kind;
using host::Look;
using host::Mark;
using host::Side;
using host::slot;
using host::Symbol;

namespace table {

// clang-format off
constexpr GridPoint baseLead[] = {{130, 110}, {130, 150}, {170, 150}};
constexpr Mark simpleCircuit[] = {
    {.symbol = Symbol::terminal, .from = {200, 30}, .name = "E_s", .side = Side::right},
    {.symbol = Symbol::wire, .from = {200, 30}, .to = {200, 40}},
    {.symbol = Symbol::resistor, .from = {200, 40}, .to = {200, 100}, .name = "R_L", .side = Side::right},
    {.symbol = Symbol::wire, .from = {200, 100}, .to = {200, 120}},
    {.symbol = Symbol::node, .from = {200, 110}},
    {.symbol = Symbol::resistor, .from = {200, 110}, .to = {130, 110}, .name = "R_b", .side = Side::above},
    {.symbol = Symbol::polyline, .points = baseLead},
    {.symbol = Symbol::npn, .from = {170, 150}, .name = "Q_1", .side = Side::right},
    {.symbol = Symbol::wire, .from = {200, 180}, .to = {200, 220}},
    {.symbol = Symbol::ground, .from = {200, 220}},
    {.symbol = Symbol::terminal, .from = {50, 150}},
    {.symbol = Symbol::capacitor, .from = {50, 150}, .to = {130, 150}, .name = "C_in", .side = Side::above},
    {.symbol = Symbol::node, .from = {130, 150}},
    {.symbol = Symbol::capacitor, .from = {200, 110}, .to = {280, 110}, .name = "C_out", .side = Side::below},
    {.symbol = Symbol::terminal, .from = {280, 110}},
};
constexpr Mark stableCircuit[] = {
    {.symbol = Symbol::terminal, .from = {200, 30}, .name = "E_s", .side = Side::right},
    {.symbol = Symbol::wire, .from = {200, 30}, .to = {200, 40}},
    {.symbol = Symbol::resistor, .from = {200, 40}, .to = {200, 100}, .name = "R_L", .side = Side::right},
    {.symbol = Symbol::wire, .from = {200, 100}, .to = {200, 120}},
    {.symbol = Symbol::node, .from = {200, 110}},
    {.symbol = Symbol::resistor, .from = {200, 110}, .to = {130, 110}, .name = "R_b1", .side = Side::above},
    {.symbol = Symbol::polyline, .points = baseLead},
    {.symbol = Symbol::resistor, .from = {130, 150}, .to = {130, 220}, .name = "R_b2", .side = Side::left},
    {.symbol = Symbol::ground, .from = {130, 220}},
    {.symbol = Symbol::npn, .from = {170, 150}, .name = "Q_1", .side = Side::right},
    {.symbol = Symbol::wire, .from = {200, 180}, .to = {200, 220}},
    {.symbol = Symbol::ground, .from = {200, 220}},
    {.symbol = Symbol::terminal, .from = {50, 150}},
    {.symbol = Symbol::capacitor, .from = {50, 150}, .to = {130, 150}, .name = "C_in", .side = Side::above},
    {.symbol = Symbol::node, .from = {130, 150}},
    {.symbol = Symbol::capacitor, .from = {200, 110}, .to = {280, 110}, .name = "C_out", .side = Side::below},
    {.symbol = Symbol::terminal, .from = {280, 110}},
};

constexpr host::Place wings{600, 6960, 900, 750};
constexpr host::ControlRow controls[] = {
    // The butterfly flies behind everything else.
    {.id = Main, .name = "Main", .kind = Kind::image, .place = wings},
    {.id = OpenWings, .name = "OpenWings", .kind = Kind::image, .place = wings, .visible = false, .drawing = butterfly::openWings},
    {.id = CloseWings, .name = "CloseWings", .kind = Kind::image, .place = wings, .visible = false, .drawing = butterfly::closedWings},
    {.id = Picture1, .name = "Picture1", .kind = Kind::picture, .place = {600, 960, 5100, 4320},
     .meaning = {.es = "Circuito simple", .en = "Simple circuit"}, .look = Look::paper, .drawing = simpleCircuit},
    {.id = Picture2, .name = "Picture2", .kind = Kind::picture, .place = {6300, 960, 5100, 4320},
     .meaning = {.es = "Circuito estable", .en = "Stable circuit"}, .look = Look::paper, .drawing = stableCircuit},
    {.id = Command1, .name = "Command1", .kind = Kind::button, .place = {2850, 7830, 2100, 540}, .text = "Empezar", .visible = false},
    {.id = Command2, .name = "Command2", .kind = Kind::button, .place = {2100, 5640, 2100, 540}, .text = "Simple"},
    {.id = Command3, .name = "Command3", .kind = Kind::button, .place = {7800, 5640, 2100, 540}, .text = "Estable"},
    {.id = Command4, .name = "Command4", .kind = Kind::button, .place = {2850, 7830, 2100, 540}, .text = "Empezar", .visible = false},
    {.id = Command5, .name = "Command5", .kind = Kind::button, .place = {600, 7830, 2100, 540}, .text = "Formulas", .visible = false},
    {.id = SSCommand1, .name = "SSCommand1", .kind = Kind::button, .place = {9300, 7830, 2100, 540}, .text = " 'Salir..."},
    {.id = SSCommand2, .name = "SSCommand2", .kind = Kind::button, .place = {7050, 7830, 2100, 540}, .text = "Volver", .visible = false},
    {.id = Label1, .name = "Label1", .kind = Kind::label, .place = {600, 420, 5100, 420}, .look = Look::heading},
    {.id = Label2, .name = "Label2", .kind = Kind::label, .place = {6300, 420, 5100, 420}, .look = Look::heading},
    {.id = Label3, .name = "Label3", .kind = Kind::label, .place = {600, 420, 10800, 6390},
     .visible = false, .look = Look::prompt, .fontSize = 11},
    {.id = Label4, .name = "Label4", .kind = Kind::label, .place = {600, 420, 6900, 7050}, .visible = false, .look = Look::prompt},
    {.id = Label5, .name = "Label5", .kind = Kind::label, .place = {7950, 150, 3760, 8175}, .visible = false, .look = Look::prompt},
    {.id = Timer1, .name = "Timer1", .kind = Kind::timer, .interval = butterfly::interval},
};
static_assert(host::rowsInOrder(controls));

constexpr host::SlotRow slots[] = {
    {host::noControl, Event::load,     slot<&Form7::load>},
    {host::noControl, Event::activate, slot<&Form7::activate>},
    {Command1,        Event::click,    slot<&Form7::startStable>},
    {Command2,        Event::click,    slot<&Form7::chooseSimple>},
    {Command3,        Event::click,    slot<&Form7::chooseStable>},
    {Command4,        Event::click,    slot<&Form7::startSimple>},
    {Command5,        Event::click,    slot<&Form7::showFormulas>},
    {SSCommand1,      Event::click,    slot<&Form7::leave>},
    {SSCommand2,      Event::click,    slot<&Form7::goBack>},
    {Timer1,          Event::timer,    slot<&Form7::flap>},
};

constexpr host::Handle order[] = {Command2, Command3, Command4, Command1, Command5, SSCommand1, SSCommand2};
// clang-format on

// The page on the base resistor is told to be longer than its text, and would lie over the exit.
host::Place shownPlaceOf(const host::Window& window, host::Handle control)
{
    return control == Label5 ? host::Place{7650, 420, 3750, 7050} : window.placeOf(control);
}

} // namespace table

const host::WindowSpec spec{
    .name = "Form7",
    .role = host::Role::tool,
    .caption = "Circuitos Realimentados por Tensión",
    .place = {0, 0, 12000, 8700},
    .controls = table::controls,
    .slots = table::slots,
    .tabOrder = table::order,
    .create = create,
    .shownPlace = table::shownPlaceOf,
};

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form7>(host);
}

} // namespace velmor::form7
