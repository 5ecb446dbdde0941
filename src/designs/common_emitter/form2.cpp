// SPDX-License-Identifier: MIT
// What holds `Form2` together: its tables of events, files and keys, its life, and what the slots of all fields share.
// The chain itself stands in form2_chain, form2_signal and form2_closing, the buttons in form2_options.
#include "designs/common_emitter/form2.h"

#include <algorithm>
#include <array>

#include "designs/common_emitter/form2_help.h"

namespace velmor::form2 {

using host::Event;
using host::Handle;
using host::noControl;
using host::slot;
using sheets::FileLine;
using sheets::Press;

namespace form2_tables {

// clang-format off
constexpr auto ownSlots = std::to_array<host::SlotRow>({
    {noControl, Event::load,     slot<&Form2::load>},
    {noControl, Event::activate, slot<&Form2::activate>},
    {noControl, Event::unload,   slot<&Form2::unload>},
    {noControl, Event::hover,    slot<&Form2::hoverBackground>},
    {Image1,    Event::hover,    slot<&Form2::hoverBackground>},
    {Image1,    Event::mouseDown, slot<&Form2::pressImage1>},
    // the chain: focus, keys, focus lost
    {Text1,  Event::focus, slot<&Form2::focusText1>},  {Text1,  Event::key, slot<&Form2::keyText1>},  {Text1,  Event::lostFocus, slot<&Form2::lostText1>},
    {Text3,  Event::focus, slot<&Form2::focusText3>},  {Text3,  Event::key, slot<&Form2::keyText3>},  {Text3,  Event::lostFocus, slot<&Form2::lostText3>},
    {Text4,  Event::focus, slot<&Form2::focusText4>},  {Text4,  Event::key, slot<&Form2::keyText4>},  {Text4,  Event::lostFocus, slot<&Form2::lostText4>},
    {Text8,  Event::focus, slot<&Form2::focusText8>},  {Text8,  Event::key, slot<&Form2::keyText8>},  {Text8,  Event::lostFocus, slot<&Form2::lostText8>},
    {Text21, Event::focus, slot<&Form2::focusText21>}, {Text21, Event::key, slot<&Form2::keyText21>}, {Text21, Event::lostFocus, slot<&Form2::lostText21>},
    {Text15, Event::focus, slot<&Form2::focusText15>}, {Text15, Event::key, slot<&Form2::keyText15>}, {Text15, Event::lostFocus, slot<&Form2::lostText15>},
    {Text9,  Event::focus, slot<&Form2::focusText9>},  {Text9,  Event::key, slot<&Form2::keyText9>},  {Text9,  Event::lostFocus, slot<&Form2::lostText9>},
    {Text10, Event::focus, slot<&Form2::focusText10>}, {Text10, Event::key, slot<&Form2::keyText10>}, {Text10, Event::lostFocus, slot<&Form2::lostText10>},
    {Text11, Event::focus, slot<&Form2::focusText11>}, {Text11, Event::key, slot<&Form2::keyText11>}, {Text11, Event::lostFocus, slot<&Form2::lostText11>},
    {Text17, Event::focus, slot<&Form2::focusText17>}, {Text17, Event::key, slot<&Form2::keyText17>}, {Text17, Event::lostFocus, slot<&Form2::lostText17>},
    {Text12, Event::focus, slot<&Form2::focusText12>}, {Text12, Event::key, slot<&Form2::keyText12>}, {Text12, Event::lostFocus, slot<&Form2::lostText12>},
    {Text13, Event::focus, slot<&Form2::focusText13>}, {Text13, Event::key, slot<&Form2::keyText13>}, {Text13, Event::lostFocus, slot<&Form2::lostText13>},
    {Text14, Event::focus, slot<&Form2::focusText14>}, {Text14, Event::key, slot<&Form2::keyText14>}, {Text14, Event::lostFocus, slot<&Form2::lostText14>},
    {Text16, Event::focus, slot<&Form2::focusText16>}, {Text16, Event::key, slot<&Form2::keyText16>}, {Text16, Event::lostFocus, slot<&Form2::lostText16>},
    {Text2,  Event::focus, slot<&Form2::focusText2>},  {Text2,  Event::key, slot<&Form2::keyText2>},  {Text2,  Event::lostFocus, slot<&Form2::lostText2>},
    {Text5,  Event::focus, slot<&Form2::focusText5>},  {Text5,  Event::key, slot<&Form2::keyText5>},  {Text5,  Event::lostFocus, slot<&Form2::lostText5>},
    {Text6,  Event::focus, slot<&Form2::focusText6>},  {Text6,  Event::key, slot<&Form2::keyText6>},  {Text6,  Event::lostFocus, slot<&Form2::lostText6>},
    {Text7,  Event::focus, slot<&Form2::focusText7>},  {Text7,  Event::key, slot<&Form2::keyText7>},  {Text7,  Event::lostFocus, slot<&Form2::lostText7>},
    {Text18, Event::focus, slot<&Form2::focusText18>}, {Text18, Event::key, slot<&Form2::keyText18>}, {Text18, Event::lostFocus, slot<&Form2::lostText18>},
    {Text19, Event::focus, slot<&Form2::focusText19>}, {Text19, Event::key, slot<&Form2::keyText19>}, {Text19, Event::lostFocus, slot<&Form2::lostText19>},
    // fields that listen to the mouse's own click
    {Text1,  Event::click, slot<&Form2::clickText1>},
    {Text5,  Event::click, slot<&Form2::clickText5>},
    {Text19, Event::click, slot<&Form2::clickText19>},
    // the help page of a field
    {Text1,  Event::mouseDown, slot<&Form2::pressField>}, {Text2,  Event::mouseDown, slot<&Form2::pressField>},
    {Text3,  Event::mouseDown, slot<&Form2::pressField>}, {Text4,  Event::mouseDown, slot<&Form2::pressField>},
    {Text5,  Event::mouseDown, slot<&Form2::pressField>}, {Text6,  Event::mouseDown, slot<&Form2::pressField>},
    {Text7,  Event::mouseDown, slot<&Form2::pressField>}, {Text8,  Event::mouseDown, slot<&Form2::pressField>},
    {Text9,  Event::mouseDown, slot<&Form2::pressField>}, {Text10, Event::mouseDown, slot<&Form2::pressField>},
    {Text11, Event::mouseDown, slot<&Form2::pressField>}, {Text12, Event::mouseDown, slot<&Form2::pressField>},
    {Text13, Event::mouseDown, slot<&Form2::pressField>}, {Text15, Event::mouseDown, slot<&Form2::pressField>},
    {Text16, Event::mouseDown, slot<&Form2::pressField>}, {Text17, Event::mouseDown, slot<&Form2::pressField>},
    {Text18, Event::mouseDown, slot<&Form2::pressField>}, {Text19, Event::mouseDown, slot<&Form2::pressField>},
    {Text21, Event::mouseDown, slot<&Form2::pressField>},
    // notes and prompts under the pointer
    {Text1,  Event::hover, slot<&Form2::hoverField>}, {Text2,  Event::hover, slot<&Form2::hoverField>},
    {Text3,  Event::hover, slot<&Form2::hoverField>}, {Text4,  Event::hover, slot<&Form2::hoverField>},
    {Text5,  Event::hover, slot<&Form2::hoverField>}, {Text6,  Event::hover, slot<&Form2::hoverField>},
    {Text7,  Event::hover, slot<&Form2::hoverField>}, {Text8,  Event::hover, slot<&Form2::hoverField>},
    {Text9,  Event::hover, slot<&Form2::hoverField>}, {Text10, Event::hover, slot<&Form2::hoverField>},
    {Text11, Event::hover, slot<&Form2::hoverField>}, {Text12, Event::hover, slot<&Form2::hoverField>},
    {Text13, Event::hover, slot<&Form2::hoverField>}, {Text14, Event::hover, slot<&Form2::hoverField>},
    {Text15, Event::hover, slot<&Form2::hoverField>}, {Text16, Event::hover, slot<&Form2::hoverField>},
    {Text17, Event::hover, slot<&Form2::hoverField>}, {Text18, Event::hover, slot<&Form2::hoverField>},
    {Text19, Event::hover, slot<&Form2::hoverField>}, {Voltaje, Event::hover, slot<&Form2::hoverField>},
    {statu17, Event::hover, slot<&Form2::hoverField>}, {statu18, Event::hover, slot<&Form2::hoverField>},
    {statu23, Event::hover, slot<&Form2::hoverField>},
    // option pictures and buttons
    {Picture6,   Event::click, slot<&Form2::clickPicture6>},  {Picture6,   Event::lostFocus, slot<&Form2::lostPicture6>},
    {Picture1,   Event::click, slot<&Form2::clickPicture1>},  {Picture1,   Event::lostFocus, slot<&Form2::lostPicture1>},
    {Picture4,   Event::click, slot<&Form2::clickPicture4>},  {Picture11,  Event::click, slot<&Form2::clickPicture11>},
    {Picture10,  Event::click, slot<&Form2::clickPicture10>}, {Picture2,   Event::click, slot<&Form2::clickPicture2>},
    {Picture7,   Event::click, slot<&Form2::clickPicture7>},
    {Image5,     Event::click, slot<&Form2::clickClone>},     {Image4,     Event::click, slot<&Form2::clickClone>},
    {Image3,     Event::click, slot<&Form2::clickImage3>},
    {Image34,    Event::click, slot<&Form2::clickImage34>},   {Image35,    Event::click, slot<&Form2::clickImage35>},
    {SSCommand1, Event::click, slot<&Form2::clickSSCommand1>}, {SSCommand3, Event::click, slot<&Form2::clickSSCommand3>},
    {SSPanel1,   Event::click, slot<&Form2::clickSSPanel1>},  {STA70,      Event::click, slot<&Form2::clickSTA70>},
    {Picture6,   Event::hover, slot<&Form2::hoverButton>},    {Picture4,   Event::hover, slot<&Form2::hoverButton>},
    {Picture11,  Event::hover, slot<&Form2::hoverButton>},    {Picture10,  Event::hover, slot<&Form2::hoverButton>},
    {Picture2,   Event::hover, slot<&Form2::hoverButton>},    {Picture7,   Event::hover, slot<&Form2::hoverButton>},
    {Picture1,   Event::hover, slot<&Form2::hoverButton>},    {Image5,     Event::hover, slot<&Form2::hoverButton>},
    {Image4,     Event::hover, slot<&Form2::hoverButton>},    {Image3,     Event::hover, slot<&Form2::hoverButton>},
    {SSCommand3, Event::hover, slot<&Form2::hoverButton>},    {SSCommand1, Event::hover, slot<&Form2::hoverButton>},
    {Image35,    Event::hover, slot<&Form2::hoverButton>},    {Image34,    Event::hover, slot<&Form2::hoverButton>},
});

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

constexpr Handle tabOrder[] = {
    Text1, Text3, Text4, Text8, Text21, Text15, Text9, Text10, Text11, Text17, Text12, Text13, Text14, Text16,
    Text2, Text5, Text6, Text7, Text18, Text19, Text20,
    Picture6, Picture4, Picture10, Picture11, Picture2, Picture7, Picture1, SSCommand3, SSCommand1,
};

using host::KeyAction;
constexpr host::ShortcutRow shortcuts[] = {
    {"F1",       noControl, KeyAction::rightPress, noControl, {"Ayuda del cuadro", "Help on the field"}},
    {"F2",       noControl, KeyAction::hover,      noControl, {"Nota del cuadro", "Note on the field"}},
    {"F3",       noControl, KeyAction::click,      noControl, {"Click en el cuadro", "Click on the field"}},
    {"Shift+F2", Image1,    KeyAction::hover,      noControl, {"Borrar las notas", "Take the notes away"}},
    {"F5",       Voltaje,   KeyAction::hover,      noControl, {"Fórmula de ERes", "Formula of ERes"}},
    {"F6",       statu17,   KeyAction::hover,      noControl, {"Nota de r'e", "Note on r'e"}},
    {"F7",       statu18,   KeyAction::hover,      noControl, {"Nota de RLac", "Note on RLac"}},
    {"F8",       statu23,   KeyAction::hover,      noControl, {"Nota de Rin", "Note on Rin"}},
    {"F9",       SSPanel1,  KeyAction::click,      noControl, {"Agrandar el panel de ayuda", "Enlarge the help panel"}},
    {"Shift+F9", STA70,     KeyAction::click,      noControl, {"Ocultar el próximo paso", "Hide the next step"}},
    {"Ctrl+1",   Picture6,  KeyAction::click,      noControl, {"Desacoplado", "Bypass"}},
    {"Ctrl+2",   Picture4,  KeyAction::click,      noControl, {"Parcialmente desacoplado", "Parcial Bypass"}},
    {"Ctrl+3",   Picture11, KeyAction::click,      noControl, {"Polarizado p/Emisor", "Polarized by Emitter"}},
    {"Ctrl+4",   Picture10, KeyAction::click,      noControl, {"Polarizado p/Base", "Polarized by Base"}},
    {"Ctrl+5",   Picture2,  KeyAction::click,      noControl, {"Bootstrapping", "Bootstrapping"}},
    {"Ctrl+6",   Picture7,  KeyAction::click,      noControl, {"Sin Bootstrapping", "No Bootstrapping"}},
    {"Ctrl+7",   Picture1,  KeyAction::click,      noControl, {"Volver al comienzo", "Back to the beginning"}},
    {"Ctrl+8",   Image5,    KeyAction::click,      noControl, {"Nuevo circuito", "Clon Circuit"}},
    {"Ctrl+9",   Image4,    KeyAction::click,      noControl, {"Nuevo circuito", "Clon Circuit"}},
    {"Ctrl+K",   Image3,    KeyAction::click,      noControl, {"Calculadora", "Calculator"}},
    {"Ctrl+I",   SSCommand3, KeyAction::click,     noControl, {"Informe", "Report"}},
    {"Ctrl+G",   SSCommand1, KeyAction::click,     noControl, {"Guía", "Guide"}},
    {"Shift+F1", Image35,   KeyAction::click,      noControl, {"Ayuda general", "General help"}},
    {"Ctrl+F1",  Image34,   KeyAction::click,      noControl, {"Cambiar el dibujo de la ayuda", "Exchange the drawing of the help"}},
    {"Ctrl+M",   Image1,    KeyAction::click,      noControl, {"Menú de archivos", "Menu of files"}},
    {"Ctrl+Shift+M", Image1, KeyAction::rightPress, noControl, {"Barra de circuitos", "Circuit bar"}},
};
// clang-format on

constexpr auto slots = sheets::withSheetFrame(ownSlots);

// Resistor fields whose right press also shows the table of standard values.
constexpr std::array resistorFields{Text15, Text17};

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

const sheets::SheetSpec sheetSpec{.filter = fileFilter, .written = written, .read = read, .temperatureField = Text3};

} // namespace form2_tables

const host::WindowSpec spec{.name = "Form2",
                            .role = host::Role::sheet,
                            .place = {0, 0, 18000, 9300},
                            .controls = controls,
                            .slots = form2_tables::slots,
                            .tabOrder = form2_tables::tabOrder,
                            .shortcuts = form2_tables::shortcuts,
                            .create = form2_tables::create,
                            .sheetTitle = sheetTitle,
                            .shownPlace = form2_tables::shownPlace,
                            .helpPair = {Image35, Image34}};

Form2::Form2(host::SheetHost& host) : DesignSheet(host, form2::spec, form2_tables::sheetSpec) {}

void Form2::load()
{
    host().SetWindowCaption(*this, pick(sheetTitle));
    host().setVisible("MDIForm1", "SSPanel1", false);
    hide(status1, statu17, statu18);
    write(Label6, headingTransistor);
    write(Label11, headingCircuit);
    write(Label19, captionLabel19);
    write(Label20, captionLabel20);
    write(sta4, captionSta4);
    for (const ButtonName& button : buttonNames)
        write(button.button, button.caption);
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
    if (!text(Text18).empty())
        showWholeDrawing();
}

// Reached only by a file that goes on behind the lines that this sheet writes.
void Form2::opened()
{
    if (text(Text20).empty()) {
        write(SSPanel1, archivedBase);
        hide(Image2, Text21);
    } else {
        write(SSPanel1, archivedEmitter);
        show(Image2);
    }
}

void Form2::CDL_AbrirDatos()
{
    setOperCancelo(0);
    Abrir();
}

void Form2::LimpiarTags()
{
    for (Handle field = Text1; field <= Text21; ++field)
        setTag(field, "0");
}

// What the focus of every field of the chain begins with.
void Form2::takeInHand(Handle field, std::string_view tag)
{
    LimpiarTags();
    setTag(field, tag);
    prompt(field, Trigger::focus);
    grow(field);
}

void Form2::prompt(Handle field, Trigger trigger)
{
    for (const Prompt& row : prompts)
        if (row.field == field && row.trigger == trigger && !pick(row.text).empty())
            write(row.place, row.text);
}

// True when the chain goes on: Enter in a filled field, or Esc, which takes the default.
bool Form2::goesOn(host::EventArgs& args, std::string_view byDefault)
{
    const Press press = sheets::pressed(*this, args, emptyField);
    if (press == Press::escape)
        setText(args.control, byDefault);
    return press != Press::nothing;
}

void Form2::hideNotes()
{
    for (const Handle note : notes)
        hide(note);
}

// `status3` stays until the next field is under the pointer, as it always has.
void Form2::hoverBackground()
{
    for (const Handle note : notes)
        if (note != status3)
            hide(note);
    hide(Boost);
}

void Form2::hoverField(host::EventArgs& args)
{
    hideNotes();
    prompt(args.control, Trigger::hover);
    bool speaks = false;
    for (const Prompt& row : prompts) {
        if (row.field != args.control || row.trigger != Trigger::hover)
            continue;
        speaks = speaks || row.place == SSPanel1;
        if (std::find(notes.begin(), notes.end(), row.place) != notes.end())
            show(row.place);
    }
    for (const Prompt& row : prompts)
        if (!speaks && row.field == args.control && row.trigger == Trigger::focus && row.place == SSPanel1)
            write(SSPanel1, row.text);
    // The pictures of bootstrapping lie where the notes would.
    if (visible(Picture7) || visible(Picture2))
        hideNotes();
}

void Form2::pressField(host::EventArgs& args)
{
    if (args.button != host::Button::right)
        return;
    const Handle field = args.control;
    setTag(field, "1");
    MostrarAyuda();
    if (field == Text3)
        host().Show("Form22");
    if (std::find(form2_tables::resistorFields.begin(), form2_tables::resistorFields.end(), field) !=
        form2_tables::resistorFields.end())
        host().Show("Form14");
}

// The first field in the order of the pages whose tag is 1 gets its page.
void Form2::MostrarAyuda()
{
    const bool inEnglish = host().values().LanguageIsEnglish == host::trueValue;
    host::Window* panel = host().Show("Form21");
    if (panel != nullptr)
        host().SetWindowCaption(*panel, inEnglish ? " Help" : " Ayuda");
    host().setVisible("Form21", "Label1", inEnglish);
    host().setVisible("Form21", "Text22", !inEnglish);
    for (const HelpPage& page : helpPages) {
        if (rules::ParseLeadingNumber(tag(named(page.field))) != 1.0)
            continue;
        host().setText("Form21", "SSCommand1", page.shortName);
        host().setText("Form21", "Text22", pick(page.page));
        if (inEnglish)
            host().setText("Form21", "Text23", page.page.en);
        break;
    }
    host().setVisible("Form21", "Text23", inEnglish);
}

void Form2::grow(Handle field)
{
    for (const Growth& growth : growths)
        if (growth.field == field)
            for (const Handle part : growth.parts)
                show(part);
    if (field == Text21 || field == Text15) {
        setVisible(Line3, !visible(Text21));
        setVisible(Line4, visible(Text21));
    }
    if (field == Text19 && polarisedByEmitter())
        hide(Line16);
}

void Form2::clearDrawing()
{
    for (const Handle part : growingParts)
        hide(part);
}

void Form2::showWholeDrawing()
{
    for (const Growth& growth : growths)
        grow(growth.field);
}

// Bootstrapping divides both resistors of the base: their plain drawings give way to the halves.
void Form2::drawBootstrapping(bool drawn)
{
    setVisible(Line20, drawn);
    setVisible(Picture3, drawn);
    setVisible(Picture5, drawn);
    setVisible(Line15, !drawn);
    setVisible(Line16, !drawn);
}

} // namespace velmor::form2
