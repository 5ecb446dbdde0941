// SPDX-License-Identifier: MIT
// What holds `Form9` together: its tables of the chain, events, files and keys, its life, and the analysis page. The
// chain itself stands in form9_chain and form9_bias.
#include "designs/base_collector/form9.h"

#include <array>
#include <memory>

#include "designs/base_collector/follower_analysis.h"
#include "designs/base_collector/follower_formulas.h"
#include "designs/base_collector/form9_texts.h"
#include "sheets/sheet_slots.h"
#include "sheets/sheet_titles.h"

namespace velmor::form9 {

using host::Handle;
using host::noControl;
using host::slot;
using sheets::FileLine;
using sheets::noLimit;

namespace form9_tables {

using enum host::Event;

// clang-format off
// field, next, Esc, from, to, otherwise. Text5, Text20 and Text17 are corrected at Enter alone.
constexpr auto chain = std::to_array<sheets::ChainRow>({
    {Text4,  Text8,     "", 1,        noLimit, 10},
    {Text8,  Text9,     "", 0.5,      noLimit, 0.5},
    {Text9,  Text13,    "", 0.1,      noLimit, 10},
    {Text13, Text14,    "", 1,        noLimit, 1},
    {Text14, Text10},
    {Text10, Text2,     "", 1,        1000,    10},
    {Text2,  Text12,    "", 0.000001, noLimit, 100},
    {Text12, Text5,     "", 0.000001, noLimit, 20},
    {Text5,  Text6,     "", 0.000001, noLimit, 30},
    {Text6,  Text7,     "", 0.000001, noLimit, 100},
    {Text7,  Text20},
    {Text20, Text15,    "", 0.000001, noLimit, 4},
    {Text15, Text16,    "", 0.000001, noLimit, 11},
    {Text16, Text17},
    {Text17, noControl},
    {Text11, Text14},
});

constexpr base_collector::ClickValue clickValues[] = {
    {Text4, "10"}, {Text8, "1"}, {Text9, "10"}, {Text13, "5"}, {Text10, "10"}, {Text2, "100"}, {Text12, "20"}, {Text5, "30"},
    {Text6, "100"}, {Text7, "0.6"}, {Text11, "1"},
};
constexpr base_collector::FollowerTables followerTables{clickValues, {}, Text17};

// Slots of the sheet's own; the frame has the rest.
constexpr auto ownSlots = std::to_array<host::SlotRow>({
    {noControl, load,     slot<&Form9::load>},
    {noControl, activate, slot<&Form9::activate>},
    {noControl, unload,   slot<&Form9::unload>},
    {noControl, click,    slot<&Form9::clickBackground>},
    {noControl, hover,    slot<&Form9::hoverBackground>},
    {Image1,    click,    slot<&Form9::clickBackground>},
    {Image1,    hover,    slot<&Form9::hoverBackground>},
    // the chain: focus, keys, focus lost
    {Text4,  focus, slot<&Form9::focusText4>},    {Text4,  key, slot<&Form9::keyText4>},
                                                  {Text9,  key, slot<&Form9::keyText9>},
                                                                                            {Text13, lostFocus, slot<&Form9::lostText13>},
    {Text14, focus, slot<&Form9::focusText14>},                                             {Text14, lostFocus, slot<&Form9::lostText14>},
                                                  {Text5,  key, slot<&Form9::keyText5>},    {Text5,  lostFocus, nullptr},
                                                  {Text6,  key, slot<&Form9::keyText6>},
                                                                                            {Text7,  lostFocus, slot<&Form9::lostText7>},
    {Text20, focus, slot<&Form9::focusText20>},   {Text20, key, slot<&Form9::keyText20>},   {Text20, lostFocus, slot<&Form9::lostText20>},
    {Text15, focus, slot<&Form9::focusText15>},   {Text15, key, slot<&Form9::keyText15>},   {Text15, lostFocus, slot<&Form9::lostText15>},
    {Text16, focus, slot<&Form9::focusText16>},   {Text16, key, slot<&Form9::keyText16>},   {Text16, lostFocus, slot<&Form9::lostText16>},
    {Text17, focus, slot<&Form9::focusText17>},   {Text17, key, slot<&Form9::keyText17>},   {Text17, lostFocus, nullptr},
                                                  {Text11, key, slot<&Form9::keyText11>},   {Text11, lostFocus, nullptr},
    // the mouse
    {Text14,   click,     slot<&Form9::clickText14>},
    {Text15,   mouseDown, slot<&Form9::pressResistor>},
    {Text16,   mouseDown, slot<&Form9::pressResistor>},
    {Text17,   mouseDown, slot<&Form9::pressResistor>},
    {Command1, click,     slot<&Form9::clickCommand1>},
    {Command2, click,     slot<&Form9::clickCommand2>},
    {Picture2, click,     slot<&Form9::clickLeaf>},
    {Picture1, click,     slot<&Form9::clickOpenLeaf>},
});
constexpr auto clicked = base_collector::fieldsOf(clickValues);
constexpr auto named = std::to_array<Handle>({
    Text1, Text3, Text18, Picture1, Picture2, Image6, Image10, Image7, Image8, Image9, Image35, Image34,
});
// clang-format on
constexpr auto slots = sheets::sheetSlots<Form9, tools>(
    chain, sheets::joined(sheets::alike(clicked, click, slot<&Form9::clickField>),
                          sheets::alike(named, hover, slot<&Form9::hoverField>), ownSlots));

// clang-format off
constexpr FileLine lines[] = {
    {Text1}, {Text2}, {Text3}, {Text4}, {Text5}, {Text6}, {Text7}, {Text8}, {Text9}, {Text10}, {Text11}, {Text12}, {Text13}, {Text14},
    {Text15, true}, {Text16, true}, {Text17, true}, {Text18, true}, {Text20, true},
    {Label19, true}, {Label21, true}, {Label22, true}, {Label23, true}, {Label24, true}, {Label25, true}, {Label26, true},
    {Label27, true}, {Label28, true}, {Label31, true}, {Label32, true},
};
static_assert(std::size(lines) == 30);

constexpr Handle tabOrder[] = {
    Text4, Text8, Text9, Text13, Text14, Text10, Text2, Text12, Text5, Text6, Text7, Text20, Text15, Text16, Text17, Text11,
    Text1, Text3, Text18, Command1, Command2, Picture2, Picture1, Text22, Text23,
};

using host::KeyAction;
constexpr auto shortcuts = sheets::joined(sheets::toolKeys<tools>(), std::to_array<host::ShortcutRow>({
    {"Shift+F2", Image1,   KeyAction::hover, noControl, {"Borrar las notas", "Take the notes away"}},
    {"Shift+F3", Image1,   KeyAction::click, noControl, {"Quitar el editor de informes", "Put the report editor away"}},
    {"Ctrl+1",   Picture2, KeyAction::click, Picture1,  {"Hoja de Análisis", "Leaf of Analysis"}},
    {"Ctrl+2",   Command1, KeyAction::click, noControl, {"Continuar", "Follow"}},
    {"Ctrl+3",   Command2, KeyAction::click, noControl, {"Cambiar Eopp", "Change Eopp"}},
}));
constexpr Handle notes[] = {Label29};
// clang-format on

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form9>(host);
}

const sheets::SheetSpec sheetSpec{.filter = fileFilter,
                                  .written = lines,
                                  .read = lines,
                                  .chain = chain,
                                  .sayings = sayings,
                                  .voice = SSPanel2,
                                  .notes = notes,
                                  .helpBoxes = {Text22, Text23, {10, 0, 3735, 6500}},
                                  .tools = tools,
                                  .guide = guideFile};

} // namespace form9_tables

const host::WindowSpec spec{.name = "Form9",
                            .role = host::Role::sheet,
                            .caption = sheets::titleOf("Form9").es,
                            .place = sheets::sheetPlace,
                            .controls = controls,
                            .slots = form9_tables::slots,
                            .tabOrder = form9_tables::tabOrder,
                            .shortcuts = form9_tables::shortcuts,
                            .create = form9_tables::create,
                            .sheetTitle = sheets::titleOf("Form9"),
                            .growth = growth,
                            .values = values,
                            .shownPlace = shownPlace};

Form9::Form9(host::SheetHost& host)
    : FollowerSheet(host, form9::spec, form9_tables::sheetSpec, form9_tables::followerTables, q_.passed)
{
    holds(q_, quantityTable, host::Undo::takesBack);
}

void Form9::load()
{
    host().setVisible("MDIForm1", "SSPanel1", false);
    write(Label6, base_collector::transistorHeading);
    write(Label11, base_collector::circuitHeading);
    write(Label4, generatorHeading);
    setText(Text22, helpText.es);
    setText(Text23, helpText.en);
}

// The comma stays in the person's settings until the next key of any field puts the point back.
void Form9::activate()
{
    host().values().DecimalSeparator = ",";
    host().values().MeasurementSystem = "0";
    frameActivate();
    host().Hide("Form16");
}

void Form9::opened()
{
    write(SSPanel2, base_collector::archived);
    growWhole();
    q_.passed = false;
}

void Form9::hoverBackground()
{
    hideNotes();
    write(SSPanel2, minimiseHint);
}

void Form9::pressResistor(host::EventArgs& args)
{
    openResistorTable(args);
}

// --- the analysis

void Form9::clickLeaf()
{
    exchange(Picture2, Picture1);
    const Real load = at(Text9);
    const Real input = Zin();
    const Real generator = at(Text4);
    if (load == 0 || input == 0 || generator == 0) {
        base_collector::openLeaf(host(), "", {});
        return;
    }
    const auto microwatts = [this](Real R) { return base_collector::signalPower(Eopp(), R) * 1000000.0; };
    const bool light = input * 1000.0 > generator * 1000.0;
    const std::string text =
        base_collector::verdict(*this,
                                {whole(microwatts(load)) + " microW ", shown(microwatts(generator)) + " microW",
                                 whole(microwatts(input)) + " microW ", generatorFormula},
                                light);
    if (light)
        base_collector::openLeaf(host(), text, {});
    else
        base_collector::openLeaf(host(), text, {"Image2", "Image5"});
}

void Form9::clickOpenLeaf()
{
    exchange(Picture1, Picture2);
    host().Unload("Form6");
}

} // namespace velmor::form9
