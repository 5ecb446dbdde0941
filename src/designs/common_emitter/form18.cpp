// SPDX-License-Identifier: MIT
// What holds `Form18` together: its tables of the chain, events, files and keys, its life, and what the slots of all fields share.
#include "designs/common_emitter/form18.h"

#include <array>
#include <memory>

#include "sheets/sheet_slots.h"
#include "sheets/sheet_titles.h"

namespace velmor::form18 {

using host::Handle;
using host::noControl;
using host::slot;
using sheets::FileLine;
using sheets::noLimit;

namespace form18_tables {

using enum host::Event;

// clang-format off
// field, next, Esc, from, to, otherwise. Esc means nothing on this sheet.
constexpr auto chain = std::to_array<sheets::ChainRow>({
    {Text12, Text5,  "", 0.000001, noLimit, 20},
    {Text5,  Text6},
    {Text6,  Text7,  "", 0.000001, noLimit, 100},
    {Text7,  Text8},
    {Text8,  Text9,  "", 0.01,     noLimit, 0.01},
    {Text9,  Text13, "", 1,        noLimit, 1},
    {Text13, Text11, "", 0.001,    noLimit, 0.001},
    {Text11, Text14, "", 10,       noLimit, 10},
    {Text14, Text10},
    {Text10, Text2,  "", 1,        200,     1},
    {Text2,  Text17, "", 0.000001, noLimit, 100},
    {Text17, Text16},
    {Text16, Text19},
    {Text19, Text18, "", 1,        noLimit, 1},
    {Text18, Text15, "", 0,        noLimit, 0.001},
    {Text15},
});

// Slots of the sheet's own; the frame and the family have the rest.
constexpr auto ownSlots = std::to_array<host::SlotRow>({
    {noControl, load,      slot<&Form18::load>},
    {noControl, activate,  slot<&Form18::activate>},
    {noControl, unload,    slot<&Form18::unload>},
    {noControl, click,     slot<&Form18::clickBackground>},
    {noControl, hover,     slot<&Form18::hoverBackground>},
    {Image1,    click,     slot<&Form18::clickBackground>},
    {Image1,    hover,     slot<&Form18::hoverBackground>},
    {Image6,    click,     slot<&Form18::clickEditor>},
    {Text5,     key,       slot<&Form18::keyText5>},
    {Text7,     key,       slot<&Form18::keyText7>},
    {Text7,     lostFocus, slot<&Form18::lostText7>},
    {Text8,     lostFocus, slot<&Form18::lostText8>},
    {Text9,     lostFocus, slot<&Form18::lostText9>},
    {Text14,    focus,     slot<&Form18::focusText14>},
    {Text14,    lostFocus, slot<&Form18::lostText14>},
    {Text2,     focus,     slot<&Form18::focusText2>},
    {Text17,    focus,     slot<&Form18::focusText17>},
    {Text17,    key,       slot<&Form18::keyText17>},
    {Text17,    lostFocus, slot<&Form18::lostText17>},
    {Text17,    mouseDown, slot<&Form18::pressResistor>},
    {Command1,  click,     slot<&Form18::clickCommand1>},
    {Command2,  click,     slot<&Form18::clickCommand2>},
    {Text16,    lostFocus, slot<&Form18::lostText16>},
    {Text19,    focus,     slot<&Form18::focusText19>},
    {Text19,    lostFocus, slot<&Form18::lostText19>},
    {Text19,    mouseDown, slot<&Form18::pressResistor>},
    {Text18,    focus,     slot<&Form18::focusText18>},
    {Text18,    mouseDown, slot<&Form18::pressResistor>},
    {Text15,    focus,     slot<&Form18::focusText15>},
    {Text15,    key,       slot<&Form18::keyText15>},
    {Image2,    click,     slot<&Form18::clickImage2>},
    {Image8,    click,     slot<&Form18::clickImage8>},
});
constexpr auto unmarked = std::to_array<Handle>({Text6, Text7, Text8, Text9, Text12, Text16});
constexpr auto named = std::to_array<Handle>({Image3, Image4, Image35, Image34, Image5, Image6, Image7, Image2, Image8});
// clang-format on
constexpr auto slots = sheets::sheetSlots<Form18, tools>(
    chain, sheets::joined(sheets::alike(chain, click, slot<&Form18::clickField>),
                          sheets::alike(unmarked, focus, slot<&Form18::focusUnmarked>),
                          sheets::alike(named, hover, slot<&Form18::hoverButton>), ownSlots));

// clang-format off
// What the file holds, line by line.
constexpr FileLine written[] = {
    {Text1}, {Text2}, {Text3}, {Text4}, {Text5}, {Text6}, {Text7}, {Text8}, {Text9}, {Text10}, {Text11}, {Text12}, {Text13},
    {Text14}, {Text15}, {Text16}, {Text17}, {Text18}, {Text19},
    {Label2}, {Label10}, {Label19}, {Label21}, {Label22}, {Label23}, {Label24}, {Label25}, {Label26}, {Label32}, {Label33},
    {statu32}, {statu33},
};
// A circuit out of a file is a record: its results cannot be changed, and the voice speaks of the capacitors.
constexpr FileLine read[] = {
    {Text1}, {.control = Text2, .disable = true}, {Text3}, {Text4}, {Text5}, {Text6}, {Text7}, {Text8}, {Text9}, {Text10}, {Text11},
    {Text12}, {Text13}, {Text14}, {.control = Text15, .show = true, .disable = true},
    {.control = Text16, .show = true, .disable = true}, {.control = Text17, .show = true, .disable = true},
    {.control = Text18, .show = true, .disable = true}, {.control = Text19, .show = true, .disable = true},
    {.control = Label2, .showFirst = true}, {.control = Label10, .showFirst = true}, {.control = Label19, .showFirst = true},
    {.control = Label21, .showFirst = true}, {.control = Label22, .showFirst = true}, {.control = Label23, .showFirst = true},
    {.control = Label24, .showFirst = true}, {.control = Label25, .showFirst = true}, {.control = Label26, .showFirst = true},
    {.control = Label32, .showFirst = true}, {noControl}, {.control = statu32, .showFirst = true},
    {.control = statu33, .showFirst = true},
};

constexpr Handle tabOrder[] = {
    Text12, Text5, Text6, Text7, Text8, Text9, Text13, Text11, Text14, Text10, Text2, Text17, Text16, Text19, Text18, Text15,
    Command1, Command2,
};

using host::KeyAction;
constexpr auto shortcuts = sheets::joined(sheets::toolKeys<tools>(), std::to_array<host::ShortcutRow>({
    {"Ctrl+1",   Image2, KeyAction::click, Image8,    {"Bootstrapping, o sin él", "Bootstrapping, or without"}},
    {"Ctrl+2",   Image6, KeyAction::click, noControl, {"Editor de textos con el informe", "Text editor with the report"}},
    {"Ctrl+3",   Image1, KeyAction::click, noControl, {"Ocultar el editor", "Hide the editor"}},
    {"Shift+F2", Image1, KeyAction::hover, noControl, {"Borrar el nombre", "Take the name away"}},
}));
// clang-format on

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form18>(host);
}

/// `Label32` stands by the emitter as long as it tells r'e; as the name of Rb2 it is shown beside that.
host::Place shownPlace(const host::Window& window, Handle control)
{
    constexpr host::Place besideRb2 = sheets::at(446, 484, 72, 18);
    return control == Label32 && window.text(Label32) == rb2Caption ? besideRb2 : window.placeOf(control);
}

const sheets::SheetSpec sheetSpec{.filter = fileFilter,
                                  .written = written,
                                  .read = read,
                                  .chain = chain,
                                  .sayings = sayings,
                                  .voice = Label33,
                                  .helpPages = helpPages,
                                  .helpBoxes = {Text22, Text23, controls[Text22].place},
                                  .tools = tools};

} // namespace form18_tables

const host::WindowSpec spec{.name = "Form18",
                            .role = host::Role::sheet,
                            .caption = "Circuito Realimentado por Tensión Estable",
                            .place = sheets::sheetPlace,
                            .controls = controls,
                            .slots = form18_tables::slots,
                            .tabOrder = form18_tables::tabOrder,
                            .shortcuts = form18_tables::shortcuts,
                            .create = form18_tables::create,
                            .sheetTitle = sheets::titleOf("Form18"),
                            .growth = growth,
                            .values = values,
                            .shownPlace = form18_tables::shownPlace};

Form18::Form18(host::SheetHost& host) : FeedbackSheet(host, form18::spec, form18_tables::sheetSpec)
{
    holds(divider_, dividerTable, host::Undo::takesBack);
}

void Form18::load()
{
    FeedbackSheet::load();
    setText(Text22, helpText.es);
    setText(Text23, helpText.en);
    host().Unload("Form21");
    write(Label25, generatorCaption);
    enable(Text12);
}

void Form18::activate()
{
    frameActivate();
    host().setVisible("MDIForm1", "mnuVert", true);
}

void Form18::unload()
{
    host().Unload("Form6");
    host().Unload("Form7");
}

void Form18::opened()
{
    write(Label33, aboutCapacitors);
    growWhole();
    enable(Shape2);
    q_.passed = false;
}

void Form18::hoverBackground()
{
    hide(Label28);
}

void Form18::hoverButton(host::EventArgs& args)
{
    tell(args.control, When::hover);
    show(Label28);
}

// --- fields

void Form18::focusUnmarked(host::EventArgs& args)
{
    tell(args.control, When::focus);
    grow(args.control);
}

// Only the marks of the first fields are taken back here: with another field in hand its page may come before the one asked for.
void Form18::pressField(host::EventArgs& args)
{
    if (args.button != host::Button::right)
        return;
    for (const Handle field : {Text12, Text5, Text6, Text7, Text8, Text9})
        setTag(field, "0");
    setTag(args.control, "1");
    MostrarAyuda();
}

void Form18::pressResistor(host::EventArgs& args)
{
    pressField(args);
    if (args.button == host::Button::right)
        host().Show("Form14");
}

void Form18::lostText9(host::EventArgs& args)
{
    leaveField(args);
    setText(Label24, "RLw = \n" + digits(at(Text9)) + " K");
}

} // namespace velmor::form18
