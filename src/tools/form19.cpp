// SPDX-License-Identifier: MIT
// Places and table of the general help.
#include "tools/form19.h"

#include "tools/form19_pages.h"

namespace velmor::form19 {

using host::Event;
using host::Kind;
using host::slot;

namespace table {

constexpr int width = 6400;
constexpr int height = 3735;
constexpr int left = 630;
constexpr int bottomMargin = 100;

// clang-format off
constexpr host::ControlRow controls[] = {
    {.id = Text1, .name = "Text1", .kind = Kind::page, .place = {0, 0, width, height},
     .meaning = {.es = "Ayuda general", .en = "General help"}, .fontSize = 9},
    {.id = Text2, .name = "Text2", .kind = Kind::page, .place = {0, 0, width, height}, .visible = false,
     .meaning = {.es = "Ayuda general en inglés", .en = "General help"}, .fontSize = 9},
};
static_assert(host::rowsInOrder(controls));

constexpr host::SlotRow slots[] = {
    {host::noControl, Event::load,     slot<&Form19::load>},
    {host::noControl, Event::activate, slot<&Form19::activate>},
    {host::noControl, Event::resize,   slot<&Form19::resize>},
};
// clang-format on

} // namespace table

Form19::Form19(host::SheetHost& host) : host::Window(host, form19::spec) {}

void Form19::load()
{
    setText(Text1, generalHelp.es);
    setText(Text2, generalHelp.en);
    host::Place centred = place();
    centred.left = (host().mainWindow().place().width - centred.width) / 2;
    setPlace(centred);
}

void Form19::activate()
{
    const int mainHeight = host().mainWindow().place().height;
    setPlace({table::left, mainHeight - table::height - table::bottomMargin, table::width, table::height});
    resize();
}

void Form19::resize()
{
    setPlaceOf(Text1, {0, 0, place().width, place().height});
    setPlaceOf(Text2, {0, 0, place().width, place().height});
}

const host::WindowSpec spec{
    .name = "Form19",
    .role = host::Role::tool,
    .caption = "Ayuda,(no necesito a nadie..)",
    .place = {table::left, 0, table::width, table::height},
    .controls = table::controls,
    .slots = table::slots,
    .create = create,
    .reading = true,
};

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form19>(host);
}

} // namespace velmor::form19
