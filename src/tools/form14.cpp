// SPDX-License-Identifier: MIT
// The standard values by tolerance: the series E6, E12 and E24, and the multipliers.
#include "tools/form14.h"

namespace velmor::form14 {

using host::BiText;
using host::Kind;
using host::Look;

namespace table {

constexpr BiText title{.es = "  Resistores", .en = "   Resistor"};
constexpr BiText normalized{.es = "Normalizado", .en = "Normalized"};
constexpr std::string_view values = " 20, 10  \n y  5 %  \n1\n1.5\n2.2\n3.3\n4.7\n6.8\n10\n"
                                    "  10  y 5 %\n1.2\n1.8\n2.7\n3.9\n5.6\n8.2\n"
                                    "      5 %\n1.1\n1.3\n1.6\n2\n2.4\n3\n3.6\n4.3\n5.1\n6.2\n7.5\n9.1\n"
                                    "Mult :\nx 10\nx 100\nx 1000\nx 10000\nx 1 mega\nx 10 mega";

// clang-format off
constexpr host::ControlRow controls[] = {
    {.id = Frame1, .name = "Frame1", .kind = Kind::panel, .place = {150, 150, 2400, 8250}, .text = "Normalizado",
     .look = Look::group},
    {.id = Text1, .name = "Text1", .kind = Kind::page, .place = {300, 600, 2100, 7650}, .text = values,
     .meaning = {.es = "Valores normalizados de resistores", .en = "Standard resistor values"}, .parent = Frame1},
};
static_assert(host::rowsInOrder(controls));

constexpr host::SlotRow slots[] = {
    {host::noControl, host::Event::activate, host::slot<&Form14::activate>},
};
// clang-format on

} // namespace table

Form14::Form14(host::SheetHost& host) : host::Window(host, form14::spec) {}

// The main window hides it rather than closing it: when it comes back the language may be another.
void Form14::activate()
{
    setCaption(host().pick(table::title));
    setText(Frame1, host().pick(table::normalized));
    setBackColor(Frame1, -1);
}

const host::WindowSpec spec{
    .name = "Form14",
    .role = host::Role::tool,
    .caption = "  Resistores",
    .place = {0, 0, 2700, 8550},
    .controls = table::controls,
    .slots = table::slots,
    .create = create,
    .reading = true,
};

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form14>(host);
}

} // namespace velmor::form14
