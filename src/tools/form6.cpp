// SPDX-License-Identifier: MIT
// Table and pictures of the analysis sheet: a clean signal, one clipped by its load or by the supply, one made smaller.
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
constexpr GridPoint clean[] = {
    {8, 40}, {12, 31}, {15, 23}, {19, 17}, {22, 14}, {26, 14}, {29, 17}, {33, 23}, {36, 31}, {40, 40}, {44, 49},
    {47, 57}, {51, 63}, {54, 66}, {58, 66}, {61, 63}, {65, 57}, {68, 49}, {72, 40}};
constexpr GridPoint flatTops[] = {
    {8, 40}, {12, 30}, {15, 25}, {19, 25}, {22, 25}, {26, 25}, {29, 25}, {33, 25}, {36, 30}, {40, 40}, {44, 50},
    {47, 59}, {51, 66}, {54, 70}, {58, 70}, {61, 66}, {65, 59}, {68, 50}, {72, 40}};
constexpr GridPoint flatBoth[] = {
    {8, 40}, {12, 28}, {15, 26}, {19, 26}, {22, 26}, {26, 26}, {29, 26}, {33, 26}, {36, 28}, {40, 40}, {44, 52},
    {47, 54}, {51, 54}, {54, 54}, {58, 54}, {61, 54}, {65, 54}, {68, 52}, {72, 40}};
constexpr GridPoint weak[] = {
    {8, 40}, {12, 37}, {15, 34}, {19, 31}, {22, 30}, {26, 30}, {29, 31}, {33, 34}, {36, 37}, {40, 40}, {44, 43},
    {47, 46}, {51, 49}, {54, 50}, {58, 50}, {61, 49}, {65, 46}, {68, 43}, {72, 40}};

constexpr Mark cleanSignal[] = {
    {.symbol = Symbol::roundFrame, .from = {2, 4}, .to = {78, 76}},
    {.symbol = Symbol::wire, .from = {6, 40}, .to = {74, 40}, .ink = Ink::quiet},
    {.symbol = Symbol::polyline, .ink = Ink::accent, .points = clean},
};
constexpr Mark clippedByTheLoad[] = {
    {.symbol = Symbol::roundFrame, .from = {2, 4}, .to = {78, 76}},
    {.symbol = Symbol::wire, .from = {6, 40}, .to = {74, 40}, .ink = Ink::quiet},
    {.symbol = Symbol::dashedFrame, .from = {6, 25}, .to = {74, 25}, .ink = Ink::quiet},
    {.symbol = Symbol::polyline, .ink = Ink::warning, .points = flatTops},
};
constexpr Mark clippedByTheSupply[] = {
    {.symbol = Symbol::roundFrame, .from = {2, 4}, .to = {78, 76}},
    {.symbol = Symbol::dashedFrame, .from = {6, 26}, .to = {74, 26}, .ink = Ink::quiet},
    {.symbol = Symbol::dashedFrame, .from = {6, 54}, .to = {74, 54}, .ink = Ink::quiet},
    {.symbol = Symbol::polyline, .ink = Ink::warning, .points = flatBoth},
};
constexpr Mark weakSignal[] = {
    {.symbol = Symbol::roundFrame, .from = {2, 4}, .to = {78, 76}},
    {.symbol = Symbol::polyline, .ink = Ink::quiet, .points = clean},
    {.symbol = Symbol::polyline, .ink = Ink::warning, .points = weak},
};

constexpr host::Place picturePlace{300, 960, 1200, 1200};
constexpr host::ControlRow controls[] = {
    {.id = sspanel1, .name = "sspanel1", .kind = Kind::panel, .place = {300, 240, 6000, 480}, .text = "Hoja de Análisis",
     .look = Look::heading},
    {.id = Label1, .name = "Label1", .kind = Kind::label, .place = {1800, 900, 4650, 2700},
     .text = "                Sin datos...", .look = Look::prompt},
    {.id = Label2, .name = "Label2", .kind = Kind::label, .place = {300, 3750, 6150, 900}, .look = Look::note},
    {.id = Image2, .name = "Image2", .kind = Kind::image, .place = picturePlace, .visible = false,
     .meaning = {.es = "Señal sin deformar", .en = "Undistorted signal"}, .drawing = cleanSignal},
    {.id = Image3, .name = "Image3", .kind = Kind::image, .place = picturePlace, .visible = false,
     .meaning = {.es = "Señal recortada: ERL no alcanza", .en = "Clipped signal: ERL does not suffice"}, .drawing = clippedByTheLoad},
    {.id = Image4, .name = "Image4", .kind = Kind::image, .place = picturePlace, .visible = false,
     .meaning = {.es = "Señal recortada: la fuente no alcanza", .en = "Clipped signal: the supply does not suffice"},
     .drawing = clippedByTheSupply},
    {.id = Image5, .name = "Image5", .kind = Kind::image, .place = picturePlace, .visible = false,
     .meaning = {.es = "Señal que la carga disminuye", .en = "Signal that the load makes smaller"}, .drawing = weakSignal},
};
static_assert(host::rowsInOrder(controls));

constexpr host::SlotRow slots[] = {
    {host::noControl, host::Event::activate, host::slot<&Form6::activate>},
};
// clang-format on

// Two pictures at a time stand one below the other.
host::Place shownPlaceOf(const host::Window& window, host::Handle control)
{
    host::Place place = window.placeOf(control);
    if ((control == Image3 || control == Image5) && place == picturePlace && window.visible(Image2))
        place.top += place.height + 150;
    return place;
}

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
    .reading = true,
    .shownPlace = table::shownPlaceOf,
};

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form6>(host);
}

} // namespace velmor::form6
