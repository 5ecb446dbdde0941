// SPDX-License-Identifier: MIT
// What holds `Form2` together: its tables of the chain, events, files and keys, its life, and what the slots of all fields share.
// The chain itself stands in form2_chain, form2_signal and form2_closing, the options in form2_options.
#include "designs/common_emitter/form2.h"

#include <algorithm>
#include <array>
#include <memory>

#include "designs/common_emitter/emitter_controls.h"
#include "sheets/sheet_slots.h"
#include "sheets/sheet_titles.h"

namespace velmor::form2 {

using host::Handle;
using host::noControl;
using host::slot;
using sheets::FileLine;
using sheets::noLimit;

namespace form2_tables {

using enum host::Event;

// clang-format off
// field, next, Esc, from, to, otherwise, tag in hand
constexpr auto chain = std::to_array<sheets::ChainRow>({
    {Text1,  Text3,  "10",  1,       10,      10},
    {Text3,  Text4,  "70",  25,      200,     25,  "2"},
    {Text4,  Text8,  "2.5", 2,       3,       2.5, "2"},
    {Text8,  Text15, "1",   0.4,     noLimit, 1},
    {Text21, Text15, "",    1,       noLimit, 20},
    {Text15, Text9,  "",    1E-08,   noLimit, 1},
    {Text9,  Text10, "10",  0.1,     noLimit, 10},
    {Text10, Text11, "10",  1,       20,      10},
    {Text11, Text17, "5",   1,       noLimit, 5},
    {Text17, Text12, "",    0.1,     noLimit, 0.1},
    {Text12, Text13, "20",  1,       noLimit, 20},
    {Text13, Text16, "1",   0.00001, noLimit, 1},
    {Text14, Text13, "",    1E-10,   noLimit, 0.001},
    {Text16, Text2,  "",    0.001,   noLimit, 21,  "0"},
    {Text2,  Text6,  "80",  0.001,   noLimit, 80},
    {Text5,  Text16, "",    1,       noLimit, 25},
    {Text6,  Text7,  "100", 10,      noLimit, 100},
    {Text7,  Text18, "0.6", 0.2,     0.7,     0.6},
    {Text18, Text19, "",    0.001,   noLimit, 12},
    {Text19, noControl, "", 0.001,  noLimit, 120},
});

// Slots of the sheet's own; the frame has the rest.
constexpr auto ownSlots = std::to_array<host::SlotRow>({
    {noControl, load,      slot<&Form2::load>},
    {noControl, activate,  slot<&Form2::activate>},
    {noControl, unload,    slot<&Form2::unload>},
    {noControl, hover,     slot<&Form2::hoverBackground>},
    {Image1,    hover,     slot<&Form2::hoverBackground>},
    {Image1,    mouseDown, slot<&Form2::pressImage1>},
    // the chain: focus, keys, focus lost
    {Text1,  focus, slot<&Form2::focusText1>},    {Text1,  key, slot<&Form2::keyText1>},    {Text1,  lostFocus, slot<&Form2::lostText1>},
    {Text3,  focus, slot<&Form2::focusText3>},    {Text3,  key, slot<&Form2::keyText3>},
                                                  {Text4,  key, slot<&Form2::keyText4>},    {Text4,  lostFocus, slot<&Form2::lostText4>},
    {Text8,  focus, slot<&Form2::focusText8>},    {Text8,  key, slot<&Form2::keyText8>},    {Text8,  lostFocus, slot<&Form2::lostText8>},
                                                  {Text21, key, slot<&Form2::keyText21>},   {Text21, lostFocus, slot<&Form2::lostText21>},
                                                  {Text15, key, slot<&Form2::keyText15>},
    {Text9,  focus, slot<&Form2::focusText9>},                                              {Text9,  lostFocus, slot<&Form2::lostText9>},
                                                                                            {Text10, lostFocus, slot<&Form2::lostText10>},
    {Text11, focus, slot<&Form2::focusText11>},   {Text11, key, slot<&Form2::keyText11>},   {Text11, lostFocus, slot<&Form2::lostText11>},
    {Text17, focus, slot<&Form2::focusText17>},   {Text17, key, slot<&Form2::keyText17>},
    {Text12, focus, slot<&Form2::focusText12>},   {Text12, key, slot<&Form2::keyText12>},
                                                  {Text13, key, slot<&Form2::keyText13>},
                                                  {Text14, key, slot<&Form2::keyText14>},   {Text14, lostFocus, slot<&Form2::lostText14>},
    {Text16, focus, slot<&Form2::focusText16>},   {Text16, key, slot<&Form2::keyText16>},   {Text16, lostFocus, slot<&Form2::lostText16>},
    {Text2,  focus, slot<&Form2::focusText2>},
                                                  {Text5,  key, slot<&Form2::keyText5>},
                                                  {Text6,  key, slot<&Form2::keyText6>},    {Text6,  lostFocus, slot<&Form2::lostText6>},
                                                  {Text7,  key, slot<&Form2::keyText7>},
                                                  {Text18, key, slot<&Form2::keyText18>},   {Text18, lostFocus, slot<&Form2::lostText18>},
    {Text19, focus, slot<&Form2::focusText19>},   {Text19, key, slot<&Form2::keyText19>},   {Text19, lostFocus, slot<&Form2::lostText19>},
    // the mouse on fields and results
    {Text1,   click,     slot<&Form2::clickText1>},
    {Text5,   click,     slot<&Form2::clickField>},
    {Text19,  click,     slot<&Form2::clickField>},
    {Text3,   mouseDown, slot<&Form2::pressTemperature>},
    {Text15,  mouseDown, slot<&Form2::pressResistor>},
    {Text17,  mouseDown, slot<&Form2::pressResistor>},
    {Text14,  mouseDown, nullptr},
    {Text21,  hover,     nullptr},
    {Voltaje, hover,     slot<&Form2::hoverField>},
    {statu17, hover,     slot<&Form2::hoverField>},
    {statu18, hover,     slot<&Form2::hoverField>},
    {statu23, hover,     slot<&Form2::hoverField>},
    // option pictures and tools
    {Picture6,   click, slot<&Form2::clickPicture6>},      {Picture6,   lostFocus, slot<&Form2::lostPicture6>},
    {Picture1,   click, slot<&Form2::clickPicture1>},      {Picture1,   lostFocus, slot<&Form2::lostPicture1>},
    {Picture4,   click, slot<&Form2::clickPicture4>},
    {Picture11,  click, slot<&Form2::clickPicture11>},     {Picture10,  click, slot<&Form2::clickPicture10>},
    {Picture2,   click, slot<&Form2::clickPicture2>},      {Picture7,   click, slot<&Form2::clickPicture7>},
    {SSCommand3, click, slot<&Form2::openReportAsking>},
    {Image34,    click, slot<&Form2::clickImage34>},       {Image35,    click, slot<&Form2::clickImage35>},
    {SSPanel1,   click, slot<&Form2::clickSSPanel1>},      {STA70,      click, slot<&Form2::clickSTA70>},
    {Picture6,   hover, slot<&Form2::hoverButton>},    {Picture4,   hover, slot<&Form2::hoverButton>},
    {Picture11,  hover, slot<&Form2::hoverButton>},    {Picture10,  hover, slot<&Form2::hoverButton>},
    {Picture2,   hover, slot<&Form2::hoverButton>},    {Picture7,   hover, slot<&Form2::hoverButton>},
    {Picture1,   hover, slot<&Form2::hoverButton>},    {Image5,     hover, slot<&Form2::hoverButton>},
    {Image4,     hover, slot<&Form2::hoverButton>},    {Image3,     hover, slot<&Form2::hoverButton>},
    {SSCommand3, hover, slot<&Form2::hoverButton>},    {SSCommand1, hover, slot<&Form2::hoverButton>},
    {Image35,    hover, slot<&Form2::hoverButton>},    {Image34,    hover, slot<&Form2::hoverButton>},
});
// clang-format on
constexpr auto slots = sheets::sheetSlots<Form2, tools>(chain, ownSlots);

// clang-format off
// What the file holds, line by line.
constexpr FileLine written[] = {
    {Text1}, {Text2}, {Text3}, {Text4}, {Voltaje}, {Text5}, {Text6}, {Text7}, {Text8}, {Text9}, {Text10}, {Text11}, {Text12},
    {Text13}, {Text14}, {Text15}, {Text16}, {Text17}, {Text18}, {Text19}, {Text20}, {Text21},
    {statu25}, {statu22}, {VRes}, {ER}, {res}, {noControl}, {Label24}, {statu30},
};

// What is made of the lines when they are read. Behind `Text19` the two orders part on purpose: old files are read as they
// always were, each label taking its neighbour's line.
constexpr FileLine read[] = {
    {Text1}, {Text2}, {Text3}, {Text4}, {Voltaje}, {Text5}, {Text6}, {Text7}, {Text8}, {Text9}, {Text10}, {Text11}, {Text12},
    {Text13}, {Text14}, {Text15, true}, {Text16}, {Text17}, {Text18, true}, {Text19},
    {Text21, true}, {res, true}, {statu25, true}, {statu22, true}, {VRes, true}, {ER, true}, {Label24, true}, {statu32, true},
    {statu33, true}, {statu61, true}, {statu62, true}, {.control = Text20, .showFirst = true},
};

constexpr auto tabOrder = sheets::joined(sheets::fieldsOf(chain), std::to_array<Handle>({
    Text20, Picture6, Picture4, Picture10, Picture11, Picture2, Picture7, Picture1, SSCommand3, SSCommand1,
}));

using host::KeyAction;
constexpr auto shortcuts = sheets::joined(sheets::toolKeys<tools>(), common_emitter::emitterKeys<Control>,
                                          std::to_array<host::ShortcutRow>({
    {"F11",       SSPanel1,  KeyAction::click,      noControl, {"Agrandar el panel de ayuda", "Enlarge the help panel"}},
    {"Ctrl+1",    Picture6,  KeyAction::click,      noControl, {"Desacoplado", "Bypass"}},
    {"Ctrl+2",    Picture4,  KeyAction::click,      noControl, {"Parcialmente desacoplado", "Parcial Bypass"}},
    {"Ctrl+3",    Picture11, KeyAction::click,      Picture10, {"Polarizado p/Emisor, o p/Base", "Polarized by Emitter, or by Base"}},
    {"Ctrl+4",    Picture2,  KeyAction::click,      Picture7,  {"Bootstrapping, o sin él", "Bootstrapping, or without"}},
    {"Ctrl+5",    Picture1,  KeyAction::click,      noControl, {"Volver al comienzo", "Back to the beginning"}},
    {"Ctrl+M",    Image1,    KeyAction::click,      noControl, {"Menú de archivos", "Menu of files"}},
    {"Ctrl+B",    Image1,    KeyAction::rightPress, noControl, {"Barra de circuitos", "Circuit bar"}},
}));
// clang-format on

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form2>(host);
}

/// `Text21` ends as wide as its last text was once set, which is too narrow for it: shown a little wider.
host::Place shownPlace(const host::Window& window, Handle control)
{
    host::Place place = window.placeOf(control);
    if (control == Text21)
        place.width = std::max(place.width, 1860);
    return place;
}

const sheets::SheetSpec sheetSpec{.filter = fileFilter,
                                  .written = written,
                                  .read = read,
                                  .temperatureField = Text3,
                                  .chain = chain,
                                  .sayings = sayings,
                                  .voice = SSPanel1,
                                  .notes = notes,
                                  .helpPages = helpPages,
                                  .tools = tools,
                                  .guide = guideByBase};

} // namespace form2_tables

const host::WindowSpec spec{.name = "Form2",
                            .role = host::Role::sheet,
                            .place = sheets::sheetPlace,
                            .controls = controls,
                            .slots = form2_tables::slots,
                            .tabOrder = form2_tables::tabOrder,
                            .shortcuts = form2_tables::shortcuts,
                            .create = form2_tables::create,
                            .sheetTitle = sheets::titleOf("Form2"),
                            .growth = growth,
                            .values = values,
                            .shownPlace = form2_tables::shownPlace};

Form2::Form2(host::SheetHost& host) : EmitterModes(host, form2::spec, form2_tables::sheetSpec) {}

void Form2::load()
{
    host().SetWindowCaption(*this, pick(spec().sheetTitle));
    host().setVisible("MDIForm1", "SSPanel1", false);
    hide(status1, statu17, statu18);
    for (const sheets::Saying& caption : captions)
        tell(caption);
}

void Form2::activate()
{
    frameActivate();
    hideNotes();
    write(status1, beginHere);
    show(status1);
}

void Form2::unload()
{
    host().Unload("Calculator");
}

void Form2::Abrir()
{
    DesignSheet::Abrir();
    q_.passed = false;
    if (!isEmpty(Text18))
        growWhole();
}

// Reached only by a file that goes on behind the lines that this sheet writes.
void Form2::opened()
{
    const bool byEmitter = !isEmpty(Text20);
    write(SSPanel1, byEmitter ? archivedEmitter : common_emitter::archivedEmitterSheet);
    setVisible(Image2, byEmitter);
    if (!byEmitter)
        hide(Text21);
}

void Form2::CDL_AbrirDatos()
{
    setOperCancelo(0);
    Abrir();
}

// `status3` stays until the next field is under the pointer, as it always has.
void Form2::hoverBackground()
{
    const bool stays = visible(status3);
    hideNotes();
    setVisible(status3, stays);
    hide(Boost);
}

// The pictures of bootstrapping lie where the notes would.
void Form2::hoverField(host::EventArgs& args)
{
    DesignSheet::hoverField(args);
    if (visible(Picture7) || visible(Picture2))
        hideNotes();
}

} // namespace velmor::form2
