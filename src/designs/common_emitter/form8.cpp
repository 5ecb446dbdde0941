// SPDX-License-Identifier: MIT
// What holds `Form8` together: its tables of the chain, events, files and keys, its life, and what the slots of all fields share.
#include "designs/common_emitter/form8.h"

#include <array>
#include <memory>

#include "sheets/sheet_slots.h"
#include "sheets/sheet_titles.h"

namespace velmor::form8 {

using host::Handle;
using host::noControl;
using host::slot;
using sheets::FileLine;
using sheets::noLimit;

namespace form8_tables {

using enum host::Event;

// clang-format off
// field, next, Esc, from, to, otherwise. Esc means nothing on this sheet.
constexpr auto chain = std::to_array<sheets::ChainRow>({
    {Text5,  Text6},
    {Text6,  Text7,  "", 0.000001, noLimit, 100},
    {Text7,  Text8},
    {Text8,  Text9,  "", 0.01,     noLimit, 0.01},
    {Text9,  Text13, "", 0.05,     noLimit, 0.05},
    {Text13, Text11, "", 0.001,    noLimit, 0.001},
    {Text11, Text14, "", 1,        noLimit, 1},
    {Text14, Text10},
    {Text10, Text2,  "", 1,        200,     1},
    {Text2,  Text17, "", 0.000001, noLimit, 100},
    {Text17, Text16},
    {Text16, Text19},
    {Text19, Text15},
    {Text15},
    {Text12, Text5,  "", 0.000001, noLimit, 20},
});

// Slots of the sheet's own; the frame and the family have the rest.
constexpr auto ownSlots = std::to_array<host::SlotRow>({
    {noControl, load,      slot<&Form8::load>},
    {noControl, click,     slot<&Form8::clickBackground>},
    {Image1,    click,     slot<&Form8::clickBackground>},
    {Image6,    click,     slot<&Form8::clickEditor>},
    {Text5,     key,       slot<&Form8::keyText5>},
    {Text7,     key,       slot<&Form8::keyText7>},
    {Text7,     lostFocus, slot<&Form8::lostText7>},
    {Text8,     lostFocus, slot<&Form8::lostText8>},
    {Text9,     lostFocus, slot<&Form8::lostText9>},
    {Text14,    focus,     slot<&Form8::focusText14>},
    {Text14,    lostFocus, slot<&Form8::lostText14>},
    {Text10,    key,       slot<&Form8::keyText10>},
    {Text10,    lostFocus, slot<&Form8::lostText10>},
    {Text2,     focus,     slot<&Form8::focusText2>},
    {Text17,    focus,     slot<&Form8::focusText17>},
    {Text17,    key,       slot<&Form8::keyText17>},
    {Text17,    lostFocus, slot<&Form8::lostText17>},
    {Text17,    mouseDown, slot<&Form8::pressResistor>},
    {Command1,  click,     slot<&Form8::clickCommand1>},
    {Command2,  click,     slot<&Form8::clickCommand2>},
    {Text16,    lostFocus, slot<&Form8::lostText16>},
    {Text19,    focus,     slot<&Form8::focusText19>},
    {Text19,    lostFocus, slot<&Form8::lostText19>},
    {Text19,    mouseDown, slot<&Form8::pressResistor>},
    {Text15,    focus,     slot<&Form8::focusText15>},
    {Text15,    key,       slot<&Form8::keyText15>},
    {Image8,    click,     slot<&Form8::clickImage8>},
    {Image2,    click,     slot<&Form8::clickImage2>},
});
constexpr auto parameters = std::to_array<Handle>({Text5, Text6, Text7, Text8, Text9, Text10, Text11, Text12, Text13});
// clang-format on
constexpr auto slots = sheets::sheetSlots<Form8, tools>(
    chain, sheets::joined(sheets::alike(chain, click, slot<&Form8::clickField>),
                          sheets::alike(parameters, focus, slot<&Form8::focusParameter>), ownSlots));

// clang-format off
// What the file holds, line by line.
constexpr FileLine written[] = {
    {Text1}, {Text2}, {Text3}, {Text4}, {Text5}, {Text6}, {Text7}, {Text8}, {Text9}, {Text10}, {Text11}, {Text12}, {Text13},
    {Text14}, {Text15}, {Text16}, {Text17}, {Text19},
    {Label2}, {Label10}, {Label19}, {Label21}, {Label22}, {Label23}, {Label24}, {Label25}, {Label32}, {Label33},
    {statu32}, {statu33},
};
// A circuit out of a file is a record: its results cannot be changed, and the voice speaks of the capacitors.
constexpr FileLine read[] = {
    {Text1}, {Text2}, {Text3}, {Text4}, {Text5}, {Text6}, {Text7}, {Text8}, {Text9}, {Text10}, {Text11}, {Text12}, {Text13},
    {Text14}, {.control = Text15, .show = true, .disable = true}, {.control = Text16, .show = true, .disable = true},
    {.control = Text17, .show = true, .disable = true}, {.control = Text19, .show = true, .disable = true},
    {.control = Label2, .showFirst = true}, {.control = Label10, .showFirst = true}, {.control = Label19, .showFirst = true},
    {.control = Label21, .showFirst = true}, {.control = Label22, .showFirst = true}, {.control = Label23, .showFirst = true},
    {.control = Label24, .showFirst = true}, {.control = Label25, .showFirst = true}, {.control = Label32, .showFirst = true},
    {noControl}, {.control = statu32, .showFirst = true}, {.control = statu33, .showFirst = true},
};

constexpr Handle tabOrder[] = {
    Text5, Text6, Text7, Text8, Text9, Text13, Text11, Text14, Text10, Text2, Text17, Text16, Text19, Text15, Text12,
    Command1, Command2,
};

using host::KeyAction;
constexpr auto shortcuts = sheets::joined(sheets::toolKeys<tools>(), std::to_array<host::ShortcutRow>({
    {"Ctrl+1", Image8, KeyAction::click, Image2,    {"Bootstrapping, o sin él", "Bootstrapping, or without"}},
    {"Ctrl+2", Image6, KeyAction::click, noControl, {"Editor de textos con el informe", "Text editor with the report"}},
    {"Ctrl+3", Image1, KeyAction::click, noControl, {"Ocultar el editor", "Hide the editor"}},
}));
// clang-format on

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form8>(host);
}

/// `statu18` asks for another supply from the left edge, where the parameters stand: it is shown beside the supply, and beside its
/// load as always when it tells RLac.
host::Place shownPlace(const host::Window& window, Handle control)
{
    if (control != statu18)
        return window.placeOf(control);
    return window.text(statu18) == askForSupply ? sheets::at(852, 121, 160, 18) : window.row(control).place;
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

} // namespace form8_tables

const host::WindowSpec spec{.name = "Form8",
                            .role = host::Role::sheet,
                            .caption = "Circuito Realimentado por Tensión Simple",
                            .place = sheets::sheetPlace,
                            .controls = controls,
                            .slots = form8_tables::slots,
                            .tabOrder = form8_tables::tabOrder,
                            .shortcuts = form8_tables::shortcuts,
                            .create = form8_tables::create,
                            .sheetTitle = sheets::titleOf("Form8"),
                            .growth = growth,
                            .values = values,
                            .shownPlace = form8_tables::shownPlace};

Form8::Form8(host::SheetHost& host) : FeedbackSheet(host, form8::spec, form8_tables::sheetSpec) {}

void Form8::load()
{
    FeedbackSheet::load();
    setText(Text22, helpText.es);
    setText(Text23, helpText.en);
}

void Form8::opened()
{
    write(Label33, aboutCapacitors);
    enable(Shape1);
    growWhole();
    q_.passed = false;
}

// --- fields

// QIc has never had a mark of its own: it makes that of Ic(max).
void Form8::mark(Handle field)
{
    FeedbackSheet::mark(field == Text8 ? Handle{Text6} : field);
}

void Form8::focusField(host::EventArgs& args)
{
    mark(args.control);
    tell(args.control, When::focus);
    grow(args.control);
}

void Form8::clickField(host::EventArgs& args)
{
    mark(args.control);
}

void Form8::pressField(host::EventArgs& args)
{
    if (args.button != host::Button::right)
        return;
    FeedbackSheet::mark(args.control);
    MostrarAyuda();
}

void Form8::pressResistor(host::EventArgs& args)
{
    pressField(args);
    if (args.button == host::Button::right)
        host().Show("Form14");
}

void Form8::focusParameter(host::EventArgs& args)
{
    focusField(args);
    clearResults();
}

void Form8::clearResults()
{
    setText(Text16, "Es");
    hide(statu18, Label22, statu33, stas, Picture4);
    setText(Text19, "");
    setText(Text17, "");
    setText(Label23, "Eq");
    for (const Handle later : {Text2, Text17, Text16, Text19, Text15})
        fade(later);
}

void Form8::focusText14(host::EventArgs& args)
{
    FeedbackSheet::focusText14(args);
    clearResults();
}

void Form8::lostText9(host::EventArgs& args)
{
    leaveField(args);
    setText(Label24, "RLw = " + digits(at(Text9)) + " K");
}

// --- S, which this circuit does not fix: the field says so until it is worked out

void Form8::keyText10(host::EventArgs& args)
{
    const bool untouched = text(Text10) == notAssigned;
    if (pressed(args) != Press::enter)
        return;
    if (untouched)
        setText(Text10, notAssigned);
    goOn(Text10, Press::enter);
}

void Form8::lostText10(host::EventArgs& args)
{
    if (text(Text10) != notAssigned)
        leaveField(args);
}

} // namespace velmor::form8
