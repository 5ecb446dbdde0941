// SPDX-License-Identifier: MIT
// Slots and table of the help page. The deeper pages exist in Spanish alone, and so do the two buttons; where they would
// stand, English says that there is nothing deeper.
#include "tools/form21.h"

#include <algorithm>

#include "tools/form21_pages.h"

namespace velmor::form21 {

using host::Event;
using host::Kind;
using host::Look;
using host::slot;

namespace table {

// clang-format off
constexpr host::Place pagePlace{150, 150, 6300, 5550};
constexpr host::ControlRow controls[] = {
    {.id = Label1, .name = "Label1", .kind = Kind::label, .place = {150, 5865, 6300, 390}, .text = "Not available",
     .visible = false, .look = Look::note},
    {.id = Text22, .name = "Text22", .kind = Kind::page, .place = pagePlace,
     .meaning = {.es = "Página de ayuda", .en = "Help page"}, .fontSize = 9},
    {.id = Text23, .name = "Text23", .kind = Kind::page, .place = pagePlace, .visible = false,
     .meaning = {.es = "Página de ayuda", .en = "Help page"}, .fontSize = 9},
    {.id = SSCommand1, .name = "SSCommand1", .kind = Kind::button, .place = {150, 5820, 3000, 480},
     .text = "Para saber mäs...", .meaning = {.es = "Para saber más", .en = "To know more"}},
    {.id = SSCommand2, .name = "SSCommand2", .kind = Kind::button, .place = {3450, 5820, 3000, 480}, .text = "mas...",
     .visible = false, .meaning = {.es = "Volver o salir", .en = "Back or exit"}},
};
static_assert(host::rowsInOrder(controls));

constexpr host::SlotRow slots[] = {
    {host::noControl, Event::load,  slot<&Form21::load>},
    {SSCommand1,      Event::click, slot<&Form21::knowMore>},
    {SSCommand2,      Event::click, slot<&Form21::goBack>},
};
// clang-format on

// The page takes the room that heading and buttons leave.
host::Place shownPlaceOf(const host::Window& window, host::Handle control)
{
    if (control != Text22 && control != Text23)
        return window.placeOf(control);
    const bool buttons = window.visible(SSCommand1) || window.visible(SSCommand2);
    const int top = window.visible(Label1) && !window.text(Label1).empty() ? 600 : 150;
    return {150, top, 6300, (buttons ? 5670 : 6300) - top};
}

} // namespace table

Form21::Form21(host::SheetHost& host) : host::Window(host, form21::spec) {}

void Form21::load()
{
    if (host().values().LanguageIsEnglish == host::trueValue)
        hide(SSCommand1, SSCommand2);
}

// A caption without a deeper page does nothing, but for the one that says "leave".
void Form21::knowMore()
{
    const std::string& caption = text(SSCommand1);
    if (caption == leaveCaption) {
        host().Unload(*this);
        return;
    }
    const auto page = std::find_if(deepPages.begin(), deepPages.end(),
                                   [&caption](const DeepPage& candidate) { return candidate.caption == caption; });
    if (page == deepPages.end())
        return;
    setText(Text22, page->page);
    setText(SSCommand2, page->nextCaption);
    show(SSCommand2);
    host().SetFocus(*this, SSCommand2);
    hide(SSCommand1);
}

void Form21::goBack()
{
    const std::string& caption = text(SSCommand2);
    const auto way = std::find_if(waysBack.begin(), waysBack.end(),
                                  [&caption](const WayBack& candidate) { return candidate.caption == caption; });
    if (way == waysBack.end())
        return;
    if (way->unloads) {
        host().Unload(*this);
        return;
    }
    setText(SSCommand1, way->backTo);
    show(SSCommand1);
    host().SetFocus(*this, SSCommand1);
    hide(SSCommand2);
}

const host::WindowSpec spec{
    .name = "Form21",
    .role = host::Role::tool,
    .caption = "Ayuda",
    .place = {0, 0, 6600, 6450},
    .controls = table::controls,
    .slots = table::slots,
    .create = create,
    .reading = true,
    .shownPlace = table::shownPlaceOf,
};

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form21>(host);
}

} // namespace velmor::form21
