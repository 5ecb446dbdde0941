// SPDX-License-Identifier: MIT
// Slots and table of the window about updates.
#include "tools/infoform.h"

#include <string>

#include "tools/about_texts.h"

namespace velmor::infoform {

using host::Event;
using host::Kind;
using host::Look;
using host::slot;

Infoform::Infoform(host::SheetHost& host) : host::Window(host, infoform::spec)
{
    holds(wings_, butterfly::wingsTable, host::Undo::leaves);
}

// Written at load and at each activation: the language may have changed between the two.
void Infoform::write()
{
    std::string lines;
    for (const host::BiText& line : about::updateLines)
        lines.append(lines.empty() ? "" : "\n").append(host().pick(line));
    setCaption(host().pick(about::updateTitle));
    setText(Label1, lines);
    borrowDrawing(Main, wings_.open ? OpenWings : CloseWings);
}

void Infoform::flap()
{
    butterfly::fly(*this, {.main = Main, .openWings = OpenWings, .closeWings = CloseWings}, wings_);
}

namespace table {

// clang-format off
constexpr host::Place wings{300, 2550, 900, 750};
constexpr host::ControlRow controls[] = {
    {.id = btrfly2, .name = "btrfly2", .kind = Kind::image, .place = {0, 2400, 6600, 1200}, .look = Look::invisible},
    {.id = Timer2, .name = "Timer2", .kind = Kind::timer, .interval = butterfly::interval},
    {.id = Main, .name = "Main", .kind = Kind::image, .place = wings},
    {.id = OpenWings, .name = "OpenWings", .kind = Kind::image, .place = wings, .visible = false, .drawing = butterfly::openWings},
    {.id = CloseWings, .name = "CloseWings", .kind = Kind::image, .place = wings, .visible = false, .drawing = butterfly::closedWings},
    {.id = Label1, .name = "Label1", .kind = Kind::label, .place = {300, 300, 6000, 2100}, .look = Look::prompt},
    {.id = Label2, .name = "Label2", .kind = Kind::label, .place = {300, 300, 6000, 2100}, .visible = false},
};
static_assert(host::rowsInOrder(controls));

constexpr host::SlotRow slots[] = {
    {host::noControl, Event::load,     slot<&Infoform::write>},
    {host::noControl, Event::activate, slot<&Infoform::write>},
    {Timer2,          Event::timer,    slot<&Infoform::flap>},
};
// clang-format on

} // namespace table

const host::WindowSpec spec{
    .name = "infoform",
    .role = host::Role::tool,
    .caption = "Buscando a alguien...",
    .place = {0, 0, 6600, 3600},
    .controls = table::controls,
    .slots = table::slots,
    .create = create,
};

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Infoform>(host);
}

} // namespace velmor::infoform
