// SPDX-License-Identifier: MIT
// What holds `desaco` together: its tables of files and keys, its life, the toggle of the bypass, and the tools that it has
// otherwise than other sheets. The chain stands in desaco_chain and desaco_closing.
#include "designs/common_emitter/desaco.h"

#include <memory>

#include "sheets/sheet_titles.h"

namespace velmor::desaco {

using host::Handle;
using host::noControl;

namespace desaco_tables {

constexpr int helpMargin = 5000; // from the right edge of the main window to the left one of the boxes

// clang-format off
constexpr sheets::FileLine written[] = {
    {Text1}, {Text2}, {Text3}, {Text4}, {Text5}, {Text6}, {Text7}, {Text8}, {Text9}, {Text10}, {Text11}, {Text12}, {Text13},
    {Text14}, {Text15}, {Text16}, {Text17}, {Text18}, {Text19}, {Voltaje}, {Text20}, {statu25},
};
constexpr sheets::FileLine read[] = {
    {Text1}, {Text2}, {Text3}, {Text4}, {Text5}, {Text6}, {Text7}, {Text8}, {Text9}, {Text10}, {Text11}, {Text12}, {Text13},
    {Text14}, {Text15, true}, {Text16}, {Text17}, {Text18, true}, {Text19}, {Voltaje},
    {.control = Text20, .showFirst = true}, {.control = statu25, .showFirst = true},
};

constexpr auto tabOrder = sheets::joined(sheets::fieldsOf(chain), std::to_array<Handle>({
    Text20, Text21, Picture6, Picture1, SSCommand3, SSCommand1,
}));

constexpr auto shortcuts = sheets::joined(sheets::toolKeys<tools>(), common_emitter::emitterKeys<Control>,
                                          std::to_array<host::ShortcutRow>({
    {"Ctrl+1", Picture6, host::KeyAction::click, noControl, {"Desacoplado", "Bypass"}},
    {"Ctrl+2", Picture1, host::KeyAction::click, noControl, {"Volver al comienzo", "Back to the beginning"}},
}));
// clang-format on

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Desaco>(host);
}

host::Place shownPlace(const host::Window& window, Handle control)
{
    return control == Text22 || control == Text23 ? shownHelpPlace : window.placeOf(control);
}

} // namespace desaco_tables

constinit const sheets::SheetSpec sheetSpec{.filter = fileFilter,
                                            .written = desaco_tables::written,
                                            .read = desaco_tables::read,
                                            .temperatureField = Text3,
                                            .chain = chain,
                                            .sayings = sayings,
                                            .voice = SSPanel1,
                                            .notes = common_emitter::emitterNotes<Control>,
                                            .helpBoxes = {Text22, Text23, helpPlace},
                                            .tools = tools,
                                            .guide = guideFile};

constinit const host::WindowSpec spec{.name = "desaco",
                                      .role = host::Role::sheet,
                                      .place = sheets::sheetPlace,
                                      .controls = controls,
                                      .slots = slots,
                                      .tabOrder = desaco_tables::tabOrder,
                                      .shortcuts = desaco_tables::shortcuts,
                                      .create = desaco_tables::create,
                                      .sheetTitle = sheets::desacoCloned,
                                      .growth = growth,
                                      .values = common_emitter::emitterValues<Control>,
                                      .shownPlace = desaco_tables::shownPlace};

Desaco::Desaco(host::SheetHost& host) : Desaco(host, desaco::spec, sheetSpec) {}

Desaco::Desaco(host::SheetHost& host, const host::WindowSpec& window, const sheets::SheetSpec& sheet)
    : EmitterSheet(host, window, sheet)
{}

// The title is given by whoever opens the sheet.
void Desaco::load()
{
    host().setVisible("MDIForm1", "SSPanel1", false);
    write(Label6, common_emitter::headingTransistor);
    write(Label11, common_emitter::headingCircuit);
    write(sta4, common_emitter::capacitorsInMicrofarads);
    write(Picture6, common_emitter::bypassName);
    write(Picture1, common_emitter::bypassName);
    setText(Text22, helpText.es);
    setText(Text23, helpText.en);
    host().values().TemperaturaCompartida = 75;
}

void Desaco::opened()
{
    write(SSPanel1, archived);
    show(sta2, sta4, sta3, sta1);
    growWhole();
    q_.passed = false;
}

void Desaco::hoverBackground()
{
    hideNotes();
    hide(Boost);
}

// Left of the right edge of the main window, whatever the size of the sheet.
void Desaco::openHelpBoxes()
{
    DesignSheet::openHelpBoxes();
    host::Place place = helpPlace;
    place.left = host().clientArea().width - desaco_tables::helpMargin;
    setPlaceOf(Text22, place);
    setPlaceOf(Text23, place);
}

// The pair changes places here; its second image leads back to the sheet without bypass.
void Desaco::clickClone(host::EventArgs& args)
{
    const bool first = args.control == Image5;
    show(first ? Image4 : Image5);
    hide(args.control);
    if (!first) {
        openSheet("Form2", sheets::titleOf("Form2"));
    } else if (host::Window* opened = openSheet("desaco", sheets::desacoCloned)) {
        opened->show(Image4);
        opened->hide(Image5);
    }
}

// The field's own box, and the way back to the field that has to be filled again.
bool Desaco::sentBack(Handle emptyField, Handle target)
{
    if (!isEmpty(emptyField))
        return false;
    tell(emptyField, When::empty);
    goTo(target);
    return true;
}

// --- the toggle: what is drawn, and nothing that is worked out

void Desaco::pressPicture6()
{
    show(Image2);
    goTo(Text1);
}

void Desaco::clickPicture6()
{
    hide(Picture6);
    show(Picture1, Image2);
    hide(Text21);
    setText(Text11, "55");
}

void Desaco::pressPicture1()
{
    hide(Image2);
    goTo(Text1);
}

void Desaco::clickPicture1()
{
    if (visible(Picture1)) {
        goTo(Text1);
        write(STA70, common_emitter::bypassHint);
    }
    show(Picture6);
    hide(Picture1);
}

} // namespace velmor::desaco
