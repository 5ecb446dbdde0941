// SPDX-License-Identifier: MIT
// What holds `Form15` together: its tables of files and places, its life, and what the slots of all fields share. The chain stands in
// form15_chain and form15_bias.
#include "designs/power/form15.h"

#include <algorithm>

#include "sheets/sheet_titles.h"

namespace velmor::form15 {

using host::Handle;
using sheets::Press;

namespace form15_tables {

/// The pages open inside `Picture1`, in its own twips.
constexpr host::Place openPage{50, 55, 3735, sheets::zones::paper.height - 55 - 50};

/// Places that the description of the sheet fixes where they would cover something: the screen keeps to the table.
host::Place shown(const host::Window& window, Handle control)
{
    switch (control) {
    case Text22:
    case Text23:
    case Image2:
    case Label14:
    case Label17:
    case Label18:
        return window.row(control).place;
    default:
        return window.placeOf(control);
    }
}

} // namespace form15_tables

constinit const sheets::SheetSpec sheetSpec{
    .filter = {.es = "Clase A Simple (*.SAC)|*.SAC", .en = "Class A Simple (*.CAS)|*.CAS"},
    .written = lines,
    .read = lines,
    .chain = chain,
    .sayings = texts::sayings,
    .voice = Label15,
    .notes = notes,
    .helpBoxes = {.spanish = Text22, .english = Text23, .place = form15_tables::openPage},
    .tools = tools,
    .guide = {.es = "Clase A simple.Lab", .en = "Clase A simple.Lab"},
};

constinit const host::WindowSpec spec{
    .name = "Form15",
    .role = host::Role::sheet,
    .caption = "         Amplificador de Potencia . Clase A (Simple)",
    .place = sheets::sheetPlace,
    .controls = controls,
    .slots = slots,
    .tabOrder = tabOrder,
    .shortcuts = shortcuts,
    .create = create,
    .sheetTitle = sheets::titleOf("Form15"),
    .growth = growth,
    .values = values,
    .shownPlace = form15_tables::shown,
};

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form15>(host);
}

Form15::Form15(host::SheetHost& host) : Form15(host, form15::spec, form15::sheetSpec) {}

Form15::Form15(host::SheetHost& host, const host::WindowSpec& window, const sheets::SheetSpec& sheet)
    : DesignSheet(host, window, sheet)
{
    holds(q_, quantityTable, host::Undo::takesBack);
}

void Form15::load()
{
    host().setVisible("MDIForm1", "SSPanel1", false);
    write(Label7, texts::circuitHeading);
    write(Label6, texts::transistorHeading);
    write(Label28, texts::powerAndLoad);
}

// What is read is a record: the working numbers come back only when the chain is walked again. The last results show as far as the
// file has them.
void Form15::opened()
{
    constexpr int widthOfLabel14 = 4600;
    constexpr int widthOfLabel17 = 4940;
    for (const Handle field : {Text3, Text4, Text5, Text6, Text7, Text8, Text9})
        disable(field);
    hide(Text10, Text11, Text12, Label13, Label18);
    for (const Handle last : {Label8, Label20, Label21})
        setVisible(last, !isEmpty(last));
    host::Place place = placeOf(Label14);
    place.width = widthOfLabel14;
    setPlaceOf(Label14, place);
    place = placeOf(Label17);
    place.width = widthOfLabel17;
    setPlaceOf(Label17, place);
    write(Label15, texts::archived);
    enable(Text1);
    growWhole();
    q_.biased = q_.passed = false;
}

void Form15::closeCalculator()
{
    host().Unload("Calculator");
}

void Form15::hoverBackground()
{
    hideNotes();
}

// `Label11` is also the name of the supply and a line of the file: what the pointer wrote last is kept with the design.
void Form15::hoverClone()
{
    write(Label11, texts::cloneHint);
}

void Form15::hoverCalculator()
{
    write(Label11, texts::calculatorHint);
}

// --- every field

void Form15::focusField(host::EventArgs& args)
{
    DesignSheet::focusField(args);
    tellPage(args.control);
}

void Form15::tellPage(Handle field, std::string_view more)
{
    const auto page = std::find_if(texts::pages.begin(), texts::pages.end(),
                                   [field](const texts::Page& row) { return row.field == field; });
    if (page != texts::pages.end() && !pick(page->text).empty())
        setText(inEnglish() ? Text23 : Text22, words(page->text).append(more));
}

// Any key that a field before the last takes: what was finished is so no longer.
Press Form15::pressed(host::EventArgs& args)
{
    const Press press = DesignSheet::pressed(args);
    if (args.control != Text9 && args.key != 0)
        q_.biased = q_.passed = false;
    return press;
}

void Form15::keyField(host::EventArgs& args)
{
    if (pressed(args) == Press::enter)
        goOn(args.control, Press::enter);
}

void Form15::hoverField(host::EventArgs& args)
{
    hideNotes();
    tell(args.control, sheets::When::hover);
    show(status1);
}

void Form15::pressResistor(host::EventArgs& args)
{
    if (args.button == host::Button::right)
        host().Show("Form14");
}

void Form15::correctBelow(Handle field, Real otherwise)
{
    if (at(field) < Real(chainRow(field).from))
        fill(field, otherwise);
}

// Dark red as long as the value is too high; the box says it in words.
void Form15::warn(Handle control, bool tooHigh, const sheets::Saying& box)
{
    constexpr std::int32_t darkRed = 0xC00000;
    constexpr std::int32_t usual = -1;
    if (tooHigh)
        tell(box);
    setForeColor(control, tooHigh ? darkRed : usual);
}

void Form15::restart()
{
    tell(texts::restarted);
    for (const Handle field : {Text3, Text4, Text5, Text6, Text7, Text8, Text9})
        disable(field);
    goTo(Text1);
}

} // namespace velmor::form15
