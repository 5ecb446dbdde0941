// SPDX-License-Identifier: MIT
// What holds `Form17` together: its tables of the chain, events, files and keys, its life, what the slots of all fields
// share, and the traffic light with its analysis. The chain itself stands in form17_chain and form17_bias.
#include "designs/base_collector/form17.h"

#include <array>
#include <memory>

#include "designs/base_collector/follower_analysis.h"
#include "designs/base_collector/follower_formulas.h"
#include "designs/base_collector/form17_texts.h"
#include "sheets/sheet_slots.h"
#include "sheets/sheet_titles.h"

namespace velmor::form17 {

using host::Handle;
using host::noControl;
using host::slot;
using sheets::FileLine;
using sheets::noLimit;

namespace form17_tables {

using enum host::Event;

// clang-format off
// field, next, Esc, from, to, otherwise. Text5, Text20 and Text17 are corrected at Enter alone.
constexpr auto chain = std::to_array<sheets::ChainRow>({
    {Text12, Text5,     "", 0.000001, noLimit, 20},
    {Text5,  Text6,     "", 0.000001, noLimit, 30},
    {Text6,  Text7,     "", 0.000001, noLimit, 100},
    {Text7,  Text2,     "", 0.2,      0.7,     0.6},
    {Text2,  Text4,     "", 0.000001, noLimit, 100},
    {Text4,  Text9,     "", 1,        noLimit, 10},
    {Text9,  Text13,    "", 0.001,    noLimit, 0.05}, // 50 ohm, not the stored 500
    {Text13, Text14,    "", 0.01,     noLimit, 0.1},
    {Text14, Text8},
    {Text8,  Text15,    "", 0.1,      noLimit, 0.1},
    {Text15, Text16,    "", 0.000001, noLimit, 11},
    {Text20, Text16,    "", 2,        noLimit, 6},
    {Text16, Text17},
    {Text17, noControl},
    {Text10, Text2,     "", 0.000001, noLimit, 10},
    {Text11, Text14},
});

// field in which Enter is pressed, field that it closes
constexpr base_collector::ClosedBehind closedBehind[] = {
    {Text5, Text12}, {Text6, Text5}, {Text7, Text6}, {Text9, Text4}, {Text13, Text9}, {Text14, Text13}, {Text8, Text14}, {Text15, Text8},
};
constexpr base_collector::ClickValue clickValues[] = {
    {Text12, "20"}, {Text5, "30"}, {Text6, "100"}, {Text7, "0.6"}, {Text2, "100"}, {Text4, "10"}, {Text13, "1"}, {Text10, "10"},
    {Text11, "1"},
};
constexpr base_collector::FollowerTables followerTables{clickValues, closedBehind, Text17};
constexpr auto clicked = base_collector::fieldsOf(clickValues);

// Slots of the sheet's own; the frame has the rest.
constexpr auto ownSlots = std::to_array<host::SlotRow>({
    {noControl, load,     slot<&Form17::load>},
    {noControl, activate, slot<&Form17::activate>},
    {noControl, unload,   slot<&Form17::unload>},
    {noControl, click,    slot<&Form17::clickBackground>},
    {noControl, hover,    slot<&Form17::hoverBackground>},
    {Image1,    click,    slot<&Form17::clickBackground>},
    {Image1,    hover,    slot<&Form17::hoverBackground>},
    // the chain: focus, keys, focus lost
    {Text12, focus, slot<&Form17::focusText12>},
                                                  {Text5,  key, slot<&Form17::keyText5>},   {Text5,  lostFocus, nullptr},
                                                                                            {Text7,  lostFocus, slot<&Form17::lostText7>},
                                                  {Text4,  key, slot<&Form17::keyText4>},
                                                  {Text9,  key, slot<&Form17::keyText9>},   {Text9,  lostFocus, slot<&Form17::lostText9>},
    {Text13, focus, slot<&Form17::focusText13>},                                            {Text13, lostFocus, slot<&Form17::lostText13>},
    {Text14, focus, slot<&Form17::focusText14>},                                            {Text14, lostFocus, slot<&Form17::lostText14>},
    {Text8,  focus, slot<&Form17::focusText8>},
    {Text15, focus, slot<&Form17::focusText15>},                                            {Text15, lostFocus, slot<&Form17::lostText15>},
    {Text20, focus, slot<&Form17::focusText20>},  {Text20, key, slot<&Form17::keyText20>},  {Text20, lostFocus, slot<&Form17::lostText20>},
    {Text16, focus, slot<&Form17::focusText16>},                                            {Text16, lostFocus, slot<&Form17::lostText16>},
    {Text17, focus, slot<&Form17::focusText17>},  {Text17, key, slot<&Form17::keyText17>},  {Text17, lostFocus, nullptr},
                                                  {Text11, key, slot<&Form17::keyText11>},  {Text11, lostFocus, slot<&Form17::lostText11>},
    {Text1,  key, slot<&Form17::keySpare>},
    {Text3,  key, slot<&Form17::keySpare>},
    // the mouse
    {Text9,    click, slot<&Form17::clickText9>},
    {Text14,   click, slot<&Form17::clickText14>},
    {Text8,    click, slot<&Form17::clickText8>},
    {Text15,   click, slot<&Form17::clickText15>},
    {Text15,   mouseDown, slot<&Form17::pressResistor>},
    {Text16,   mouseDown, slot<&Form17::pressResistor>},
    {Text17,   mouseDown, slot<&Form17::pressResistor>},
    {Picture2, click, slot<&Form17::clickGreenLight>},
    {Picture1, click, slot<&Form17::clickOpenLight>},
});
constexpr auto named = std::to_array<Handle>({
    Text1, Text3, Text18, Picture1, Picture2, Picture3, Image6, Image5, Image7, Image3, Image4, Image35, Image34,
});
// clang-format on
constexpr auto slots = sheets::sheetSlots<Form17, tools>(
    chain, sheets::joined(sheets::alike(clicked, click, slot<&Form17::clickField>),
                          sheets::alike(named, hover, slot<&Form17::hoverField>), ownSlots));

// clang-format off
constexpr FileLine lines[] = {
    {Text1}, {Text2}, {Text3}, {Text4}, {Text5}, {Text6}, {Text7}, {Text8}, {Text9}, {Text10}, {Text11}, {Text12}, {Text13}, {Text14},
    {Text15, true}, {Text16, true}, {Text17, true}, {Text18, true}, {Text20, true},
    {Label19, true}, {Label20, true}, {Label21, true}, {Label22, true}, {Label23, true}, {Label24, true}, {Label25, true},
    {Label26, true}, {Label28, true}, {Label30, true}, {Label32, true},
};
static_assert(std::size(lines) == 30);

constexpr Handle tabOrder[] = {
    Text12, Text5, Text6, Text7, Text2, Text4, Text9, Text13, Text14, Text8, Text15, Text20, Text16, Text17, Text10, Text11,
    Text1, Text3, Text18, Picture3, Picture2, Picture1, Text22, Text23,
};

using host::KeyAction;
constexpr auto shortcuts = sheets::joined(sheets::toolKeys<tools>(), std::to_array<host::ShortcutRow>({
    {"Shift+F2", Image1,   KeyAction::hover, noControl, {"Borrar las notas", "Take the notes away"}},
    {"Shift+F3", Image1,   KeyAction::click, noControl, {"Quitar el editor de informes", "Put the report editor away"}},
    {"Ctrl+1",   Picture2, KeyAction::click, Picture1,  {"Hoja de Análisis", "Leaf of Analysis"}},
}));
constexpr Handle notes[] = {Label29};
// clang-format on

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form17>(host);
}

// Where the file puts two labels; the screen keeps them where they can be read.
constexpr int archivedWidthOfLabel21 = 4400;
constexpr int archivedTopOfLabel24 = 3680;
constexpr int archivedWidthOfLabel24 = 1300;

const sheets::SheetSpec sheetSpec{.filter = fileFilter,
                                  .written = lines,
                                  .read = lines,
                                  .chain = chain,
                                  .sayings = sayings,
                                  .voice = SSPanel2,
                                  .notes = notes,
                                  .helpPages = helpPages,
                                  .helpBoxes = {Text22, Text23, {10, 0, 3735, 6500}},
                                  .tools = tools,
                                  .guide = guideFile};

} // namespace form17_tables

const host::WindowSpec spec{.name = "Form17",
                            .role = host::Role::sheet,
                            .caption = storedTitle,
                            .place = sheets::sheetPlace,
                            .controls = controls,
                            .slots = form17_tables::slots,
                            .tabOrder = form17_tables::tabOrder,
                            .shortcuts = form17_tables::shortcuts,
                            .create = form17_tables::create,
                            .sheetTitle = sheets::titleOf("Form17"),
                            .growth = growth,
                            .values = values,
                            .shownPlace = shownPlace};

using namespace form17_tables;

Form17::Form17(host::SheetHost& host) : FollowerSheet(host, form17::spec, sheetSpec, followerTables, q_.passed)
{
    holds(q_, quantityTable, host::Undo::takesBack);
}

void Form17::load()
{
    host().setVisible("MDIForm1", "SSPanel1", false);
    setText(Text22, helpText.es);
    setText(Text23, helpText.en);
}

void Form17::activate()
{
    frameActivate();
    write(Label6, base_collector::transistorHeading);
    write(Label11, base_collector::circuitHeading);
    write(Label4, generatorHeading);
}

void Form17::opened()
{
    disable(Text15, Text16, Text17, Text18, Text20);
    setWidth(Label21, archivedWidthOfLabel21);
    setTop(Label24, archivedTopOfLabel24);
    setWidth(Label24, archivedWidthOfLabel24);
    write(SSPanel2, base_collector::archived);
    growWhole();
    q_.passed = false;
}

void Form17::hoverBackground()
{
    hideNotes();
}

// --- every field

void Form17::pressField(host::EventArgs& args)
{
    if (args.button == host::Button::right)
        LimpiarTags();
    DesignSheet::pressField(args);
}

void Form17::pressResistor(host::EventArgs& args)
{
    pressField(args);
    openResistorTable(args);
}

// Fields without use: whatever is typed there passes the filter and goes into the file.
void Form17::keySpare(host::EventArgs& args)
{
    filteredKey(args);
}

// --- the traffic light

void Form17::clickGreenLight()
{
    exchange(Picture2, Picture1);
    const Real output = RLac();
    const Real input = Zin();
    const Real generator = at(Text4);
    if (output == 0 || input == 0 || generator == 0) {
        base_collector::openLeaf(host(), "", {});
        return;
    }
    const auto microwatts = [this](Real R) {
        return shown(base_collector::signalPower(Eopp(), R) * 1000000.0) + " microW";
    };
    const bool light = input * 1000.0 > generator * 1000.0;
    const std::string text = base_collector::verdict(
        *this, {microwatts(output), microwatts(generator), microwatts(input), generatorFormula}, light);
    base_collector::openLeaf(host(), text, {light ? "Image2" : "Image5"});
}

void Form17::clickOpenLight()
{
    exchange(Picture1, Picture2);
    host().Hide("Form6");
    host().setVisible("MDIForm1", "Picture14", false);
}

} // namespace velmor::form17
