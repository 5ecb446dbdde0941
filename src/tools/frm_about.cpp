// SPDX-License-Identifier: MIT
// Slots and table of the thank-you window.
#include "tools/frm_about.h"

#include "tools/about_texts.h"

namespace velmor::frm_about {

using host::Event;
using host::Kind;
using host::Look;
using host::slot;

FrmAbout::FrmAbout(host::SheetHost& host) : host::Window(host, frm_about::spec)
{
    holds(wings_, butterfly::wingsTable, host::Undo::leaves);
}

void FrmAbout::load()
{
    setCaption(host().pick(about::aboutTexts.title));
    show(Image1);
    hide(Label1_0, Label1_1, Label1_2, Label2);
    borrowDrawing(Main, OpenWings);
}

void FrmAbout::activate()
{
    const about::AboutTexts& words = about::aboutTexts;
    setText(Label3, host().pick(words.heading));
    setText(Label4, host().pick(words.thanks));
    setText(Label1_0, host().pick(words.credits[0]));
    setText(Label1_1, host().pick(words.credits[1]));
    setText(Label1_2, host().pick(words.credits[2]));
    setText(Label2, host().pick(words.closing));
}

void FrmAbout::flap()
{
    butterfly::fly(*this, {.main = Main, .openWings = OpenWings, .closeWings = CloseWings}, wings_);
}

void FrmAbout::showCredits()
{
    disable(Timer1, Main);
    hide(Image1, Command1, Label3, Label4);
    show(Command2, Label1_0, Label1_1, Label1_2, Label2);
    host().SetFocus(*this, Command2);
}

void FrmAbout::leave()
{
    host().Unload(*this);
}

namespace table {

// clang-format off
using host::Ink;
using host::Mark;
using host::Symbol;
constexpr Mark emblem[] = {
    {.symbol = Symbol::sine, .from = {24, 85}, .to = {72, 121}, .ink = Ink::accent},
    {.symbol = Symbol::terminal, .from = {92, 103}},
    {.symbol = Symbol::capacitor, .from = {92, 103}, .to = {142, 103}},
    {.symbol = Symbol::wire, .from = {142, 103}, .to = {160, 103}},
    {.symbol = Symbol::npn, .from = {160, 103}},
    {.symbol = Symbol::supplyUp, .from = {190, 9}},
    {.symbol = Symbol::resistor, .from = {190, 19}, .to = {190, 73}},
    {.symbol = Symbol::node, .from = {190, 73}},
    {.symbol = Symbol::capacitor, .from = {190, 73}, .to = {250, 73}},
    {.symbol = Symbol::terminal, .from = {250, 73}},
    {.symbol = Symbol::ground, .from = {190, 133}},
    {.symbol = Symbol::sineInverted, .from = {270, 23}, .to = {350, 123}, .ink = Ink::accent},
};

constexpr host::Place wings{450, 4350, 900, 750};
constexpr host::ControlRow controls[] = {
    // The butterfly flies behind everything else.
    {.id = Main, .name = "Main", .kind = Kind::image, .place = wings},
    {.id = OpenWings, .name = "OpenWings", .kind = Kind::image, .place = wings, .visible = false, .drawing = butterfly::openWings},
    {.id = CloseWings, .name = "CloseWings", .kind = Kind::image, .place = wings, .visible = false, .drawing = butterfly::closedWings},
    {.id = Timer1, .name = "Timer1", .kind = Kind::timer, .interval = butterfly::interval},
    {.id = Command1, .name = "Command1", .kind = Kind::button, .place = {4650, 4530, 1500, 480}, .text = "Click",
     .meaning = {.es = "Ver los agradecimientos", .en = "See the credits"}},
    {.id = Command2, .name = "Command2", .kind = Kind::button, .place = {4650, 4530, 1500, 480}, .text = "OK", .visible = false},
    {.id = Image1, .name = "Image1", .kind = Kind::image, .place = {450, 960, 5700, 2490}, .look = Look::paper, .drawing = emblem},
    {.id = Label1_0, .name = "Label1(0)", .kind = Kind::label, .place = {450, 450, 5700, 540}, .visible = false, .look = Look::title},
    {.id = Label1_1, .name = "Label1(1)", .kind = Kind::label, .place = {450, 1200, 5700, 600}, .visible = false, .fontSize = 9},
    {.id = Label1_2, .name = "Label1(2)", .kind = Kind::label, .place = {450, 1950, 5700, 780}, .visible = false, .fontSize = 9},
    {.id = Label2, .name = "Label2", .kind = Kind::label, .place = {450, 2880, 5700, 780},
     .visible = false, .look = Look::note, .fontSize = 9},
    {.id = Label3, .name = "Label3", .kind = Kind::label, .place = {450, 300, 5700, 540}, .look = Look::title},
    {.id = Label4, .name = "Label4", .kind = Kind::label, .place = {450, 3600, 5700, 600}, .fontSize = 9},
};
static_assert(host::rowsInOrder(controls));

constexpr host::SlotRow slots[] = {
    {host::noControl, Event::load,     slot<&FrmAbout::load>},
    {host::noControl, Event::activate, slot<&FrmAbout::activate>},
    {Timer1,          Event::timer,    slot<&FrmAbout::flap>},
    {Command1,        Event::click,    slot<&FrmAbout::showCredits>},
    {Command2,        Event::click,    slot<&FrmAbout::leave>},
};
// clang-format on

} // namespace table

const host::WindowSpec spec{
    .name = "frmAbout",
    .role = host::Role::tool,
    .caption = " gracias...",
    .place = {0, 0, 6600, 5250},
    .controls = table::controls,
    .slots = table::slots,
    .create = create,
    .modal = true,
};

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<FrmAbout>(host);
}

} // namespace velmor::frm_about
