// SPDX-License-Identifier: MIT
// Table and pictures of the analysis sheet: approved, to be looked at, refused, and the traffic light.
#include "tools/form6.h"

namespace velmor::form6 {

using host::BiText;
using host::GridPoint;
using host::Ink;
using host::Kind;
using host::Look;
using host::Mark;
using host::Symbol;

namespace table {

constexpr BiText heading{.es = "Hoja de Análisis", .en = "Leaf of Analysis"};

// clang-format off
constexpr GridPoint tick[]     = {{22, 42}, {36, 56}, {62, 26}};
constexpr GridPoint triangle[] = {{40, 10}, {74, 68}, {6, 68}, {40, 10}};
constexpr GridPoint crossDown[] = {{24, 24}, {56, 56}};
constexpr GridPoint crossUp[]   = {{56, 24}, {24, 56}};

constexpr Mark approved[] = {
    {.symbol = Symbol::circle, .from = {6, 6}, .to = {74, 74}, .ink = Ink::accent},
    {.symbol = Symbol::polyline, .ink = Ink::accent, .size = 250, .points = tick},
};
constexpr Mark toLookAt[] = {
    {.symbol = Symbol::polyline, .ink = Ink::warning, .size = 160, .points = triangle},
    {.symbol = Symbol::wire, .from = {40, 30}, .to = {40, 50}, .ink = Ink::warning},
    {.symbol = Symbol::node, .from = {40, 59}, .ink = Ink::warning},
};
constexpr Mark refused[] = {
    {.symbol = Symbol::circle, .from = {6, 6}, .to = {74, 74}, .ink = Ink::warning},
    {.symbol = Symbol::polyline, .ink = Ink::warning, .size = 250, .points = crossDown},
    {.symbol = Symbol::polyline, .ink = Ink::warning, .size = 250, .points = crossUp},
};
constexpr Mark trafficLight[] = {
    {.symbol = Symbol::roundFrame, .from = {24, 2}, .to = {56, 78}},
    {.symbol = Symbol::circle, .from = {31, 7}, .to = {49, 25}, .ink = Ink::warning},
    {.symbol = Symbol::circle, .from = {31, 31}, .to = {49, 49}},
    {.symbol = Symbol::circle, .from = {31, 55}, .to = {49, 73}, .ink = Ink::accent},
};

constexpr host::Place picturePlace{300, 960, 1200, 1200};
constexpr host::ControlRow controls[] = {
    {.id = sspanel1, .name = "sspanel1", .kind = Kind::panel, .place = {300, 240, 6000, 480}, .text = "Hoja de Análisis",
     .look = Look::heading},
    {.id = Label1, .name = "Label1", .kind = Kind::label, .place = {1800, 900, 4650, 2700},
     .text = "                Sin datos...", .look = Look::prompt},
    {.id = Label2, .name = "Label2", .kind = Kind::label, .place = {300, 3750, 6150, 900}, .look = Look::note},
    {.id = Image2, .name = "Image2", .kind = Kind::image, .place = picturePlace, .visible = false,
     .meaning = {.es = "Aprobado", .en = "Approved"}, .drawing = approved},
    {.id = Image3, .name = "Image3", .kind = Kind::image, .place = picturePlace, .visible = false,
     .meaning = {.es = "Para revisar", .en = "To be looked at"}, .drawing = toLookAt},
    {.id = Image4, .name = "Image4", .kind = Kind::image, .place = picturePlace, .visible = false,
     .meaning = {.es = "No cumple", .en = "Refused"}, .drawing = refused},
    {.id = Image5, .name = "Image5", .kind = Kind::image, .place = picturePlace, .visible = false,
     .meaning = {.es = "Semáforo", .en = "Traffic light"}, .drawing = trafficLight},
};
static_assert(host::rowsInOrder(controls));

constexpr host::SlotRow slots[] = {
    {host::noControl, host::Event::activate, host::slot<&Form6::activate>},
};
// clang-format on

} // namespace table

Form6::Form6(host::SheetHost& host) : host::Window(host, form6::spec) {}

void Form6::activate()
{
    setText(sspanel1, host().pick(table::heading));
}

const host::WindowSpec spec{
    .name = "Form6",
    .role = host::Role::tool,
    .caption = "Velmor",
    .place = {0, 0, 6750, 4800},
    .controls = table::controls,
    .slots = table::slots,
    .create = create,
};

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form6>(host);
}

} // namespace velmor::form6
