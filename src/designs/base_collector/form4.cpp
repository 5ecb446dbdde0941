// SPDX-License-Identifier: MIT
// What holds `Form4` together: its tables of the chain, events, files and keys, its life, and what the slots of all fields share.
#include "designs/base_collector/form4.h"

#include <array>
#include <memory>

#include "designs/base_collector/click_value.h"
#include "sheets/sheet_slots.h"
#include "sheets/sheet_titles.h"

namespace velmor::form4 {

using host::Handle;
using host::noControl;
using host::slot;
using sheets::FileLine;
using sheets::noLimit;

namespace form4_tables {

using enum host::Event;

constexpr double least = 1E-06;

// clang-format off
// field, next, Esc, from, to, otherwise, tag in hand. The wrong drift becomes 10, which its range would not take: `leaveText4`.
constexpr auto chain = std::to_array<sheets::ChainRow>({
    {Text1,  Text3,  "", 1,     10,      1,   "0"},
    {Text3,  Text4,  "", 25,    200,     25,  "2"},
    {.field = Text4, .next = Text8, .tag = "2"},
    {Text8,  Text9,  "", 0.5,   noLimit, 0.5},
    {Text9,  Text13, "", 1,     noLimit, 10},
    {Text13, Text11, "", least, noLimit, 1},
    {Text11, Text14, "", least, noLimit, 1},
    {Text14, Text10},
    {Text10, Text2,  "", 1,     10,      10},
    {Text2,  Text12, "", least, noLimit, 100},
    {Text12, Text5,  "", least, noLimit, 20},
    {Text5,  Text6,  "", least, noLimit, 30},
    {Text6,  Text7,  "", least, noLimit, 100},
    {Text7,  Text18, "", 0.2,   0.7,     0.6},
    {Text18, Text20},
    {Text20, Text15},
    {Text15, Text16, "", least, noLimit, 11},
    {Text16, Text17},
    {Text17, noControl},
});

// Slots of the sheet's own; the frame has the rest.
constexpr auto ownSlots = std::to_array<host::SlotRow>({
    {noControl, load,      slot<&Form4::load>},
    {noControl, activate,  slot<&Form4::activate>},
    {noControl, unload,    slot<&Form4::unload>},
    {noControl, click,     slot<&Form4::clickBackground>},
    {Image1,    click,     slot<&Form4::clickBackground>},
    // the chain: focus, keys, focus lost
    {Text1,  focus, slot<&Form4::focusText1>},                                          {Text1,  lostFocus, slot<&Form4::leaveText1>},
    {Text3,  focus, slot<&Form4::focusText3>},
                                                                                        {Text4,  lostFocus, slot<&Form4::leaveText4>},
                                                {Text9,  key, slot<&Form4::keyText9>},
    {Text14, focus, slot<&Form4::focusText14>},                                         {Text14, lostFocus, slot<&Form4::leaveText14>},
                                                {Text2,  key, slot<&Form4::keyText2>},
                                                {Text5,  key, slot<&Form4::keyText5>},  {Text5,  lostFocus, nullptr},
                                                {Text6,  key, slot<&Form4::keyText6>},
                                                                                        {Text7,  lostFocus, slot<&Form4::leaveText7>},
    {Text18, focus, slot<&Form4::focusText18>}, {Text18, key, slot<&Form4::keyText18>}, {Text18, lostFocus, slot<&Form4::leaveText18>},
    {Text20, focus, slot<&Form4::focusText20>}, {Text20, key, slot<&Form4::keyText20>}, {Text20, lostFocus, slot<&Form4::leaveText20>},
    {Text15, focus, slot<&Form4::focusText15>},                                         {Text15, lostFocus, slot<&Form4::leaveText15>},
    {Text16, focus, slot<&Form4::focusText16>}, {Text16, key, slot<&Form4::keyText16>}, {Text16, lostFocus, slot<&Form4::leaveText16>},
    {Text17, focus, slot<&Form4::focusText17>}, {Text17, key, slot<&Form4::keyText17>}, {Text17, lostFocus, slot<&Form4::leaveText17>},
    // the right button on what has a table of its own
    {Text3,  mouseDown, slot<&Form4::pressText3>},
    {Text15, mouseDown, slot<&Form4::pressResistor>},
    {Text16, mouseDown, slot<&Form4::pressResistor>},
    {Text17, mouseDown, slot<&Form4::pressResistor>},
    {Text18, mouseDown, slot<&Form4::pressResistor>},
    // the leaf of analysis
    {Picture2, mouseDown, slot<&Form4::openAnalysis>},
    {Picture2, click,     slot<&Form4::openAnalysis>},
    {Picture1, click,     slot<&Form4::clickPicture1>},
    {Image4,   drop,      slot<&Form4::dropOnCapacitor>},
});
// clang-format on
constexpr auto slots = sheets::sheetSlots<Form4, tools>(
    chain, sheets::joined(sheets::alike(chain, click, slot<&Form4::clickField>), ownSlots));

// clang-format off
constexpr FileLine lines[] = {
    {Text1}, {Text2}, {Text3}, {Text4}, {Text5}, {Text6}, {Text7}, {Text8}, {Text9}, {Text10}, {Text11}, {Text12}, {Text13}, {Text14},
    {Text15, true}, {Text16, true}, {Text17, true}, {Text18, true}, {Text20, true},
    {Label2, true}, {Label10, true}, {Label19, true}, {Label21, true}, {Label22, true}, {Label23, true}, {Label24, true},
    {Label25, true}, {Label26, true}, {Label27, true}, {Label28, true}, {Label31, true}, {Label32, true},
};
static_assert(std::size(lines) == 32);

constexpr Handle tabOrder[] = {
    Text1, Text3, Text4, Text8, Text9, Text13, Text11, Text14, Text10, Text2, Text12, Text5, Text6, Text7, Text18, Text20, Text15,
    Text16, Text17, Picture2, Picture1, Text22, Text23,
};

using host::KeyAction;
constexpr auto shortcuts = sheets::joined(sheets::toolKeys<tools>(), std::to_array<host::ShortcutRow>({
    {"Ctrl+1", Picture2, KeyAction::click,  Picture1, {"Hoja de análisis, y volver", "Leaf of analysis, and back"}},
    {"Ctrl+2", image2,   KeyAction::dragTo, Image4,   {"Llevar la señal al capacitor de entrada",
                                                       "Take the signal to the entrance capacitor"}},
    {"Ctrl+3", Image1,   KeyAction::click,  noControl, {"Quitar el editor de informes", "Put the report editor away"}},
}));

constexpr base_collector::ClickValue clickValues[] = {
    {Text1, "10"}, {Text3, "75"}, {Text4, "2.5"}, {Text8, "0.1"}, {Text9, "0.1"}, {Text11, "140"}, {Text10, "1"}, {Text2, "20"},
    {Text12, "20"}, {Text5, "30"}, {Text6, "100"}, {Text7, "0.6"},
};
// clang-format on

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form4>(host);
}

const sheets::SheetSpec sheetSpec{.filter = texts::fileFilter,
                                  .written = lines,
                                  .read = lines,
                                  .temperatureField = Text3,
                                  .chain = chain,
                                  .sayings = texts::sayings,
                                  .voice = Label33,
                                  .helpPages = texts::helpPages,
                                  .helpBoxes = {.spanish = Text22, .english = Text23, .place = {10, 0, 3735, 6500}},
                                  .tools = tools,
                                  .guide = texts::guide};

} // namespace form4_tables

using namespace form4_tables;

const host::WindowSpec spec{.name = "Form4",
                            .role = host::Role::sheet,
                            .place = sheets::sheetPlace,
                            .controls = controls,
                            .slots = form4_tables::slots,
                            .tabOrder = form4_tables::tabOrder,
                            .shortcuts = form4_tables::shortcuts,
                            .create = form4_tables::create,
                            .sheetTitle = sheets::titleOf("Form4"),
                            .growth = growth,
                            .values = values,
                            .shownPlace = shownPlace};

Form4::Form4(host::SheetHost& host) : DesignSheet(host, form4::spec, sheetSpec)
{
    holds(q_, quantityTable, host::Undo::takesBack);
}

void Form4::load()
{
    host().values().TemperaturaCompartida = 75;
    host().setVisible("MDIForm1", "SSPanel1", false);
    host().SetWindowCaption(*this, pick(spec().sheetTitle));
    write(Label6, texts::transistorHeading);
    write(Label11, texts::circuitHeading);
    setPlaceOf(Label19, loadPlace);
    setText(Text22, texts::generalHelp.es);
    setText(Text23, texts::generalHelp.en);
}

// The common-base connection is the one that shows whenever the student comes to the sheet.
void Form4::activate()
{
    frameActivate();
    if (visible(Image5))
        connectCommonBase();
    show(image2, Image3);
    write(Label6, texts::transistorHeading);
    write(Label11, texts::circuitHeading);
}

void Form4::unload()
{
    host().Unload("Calculator");
    host().Unload("Form6");
}

void Form4::clickBackground()
{
    host().Hide("frmEdito3");
}

void Form4::opened()
{
    clearBench();
    hide(Image4);
    disable(Text15, Text16, Text17, Text18, Text20);
    growWhole();
    show(image2, Label33);
    write(Label33, texts::archived);
    q_.passed = false;
}

// --- what all fields share

void Form4::focusField(host::EventArgs& args)
{
    setFontSize(Label33, 8);
    show(Label33);
    DesignSheet::focusField(args);
}

// Any key that a field before the last takes: what was finished is so no longer.
Press Form4::pressed(host::EventArgs& args)
{
    const Press press = DesignSheet::pressed(args);
    if (args.control != Text17 && args.key != 0)
        q_.passed = false;
    return press;
}

void Form4::keyField(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (goesOn(args.control, press))
        goOn(args.control, press);
}

void Form4::hoverField(host::EventArgs& args)
{
    show(Label33);
    DesignSheet::hoverField(args);
}

void Form4::clickField(host::EventArgs& args)
{
    const Handle field = args.control;
    if (field == Text13)
        makeBare(Text13);
    else if (field == Text14 && canTellEin())
        write(Text14, inputVoltage());
    else if (field == Text18)
        proposeRes();
    else if (const base_collector::ClickValue* row = base_collector::clickValueOf(clickValues, field))
        setText(field, row->text);
    if (field != Text17)
        q_.passed = false;
    show(Label33);
    if (!visible(Picture1) && !visible(Picture2))
        return;
    clearBench();
    for (const sheets::Saying& row : texts::sayings)
        if (row.about == field && row.when == sheets::When::focus && row.place == Label5)
            tell(row);
}

// The page is that of the field that is pressed, whichever is in hand.
void Form4::pressField(host::EventArgs& args)
{
    if (args.button == host::Button::right)
        LimpiarTags();
    DesignSheet::pressField(args);
}

void Form4::pressResistor(host::EventArgs& args)
{
    pressField(args);
    if (args.button == host::Button::right)
        host().Show("Form14");
}

} // namespace velmor::form4
