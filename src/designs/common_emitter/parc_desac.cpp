// SPDX-License-Identifier: MIT
// What holds `ParcDesac` together: its tables of files and keys, its life, its option pictures and tools.
#include "designs/common_emitter/parc_desac.h"

#include <algorithm>
#include <memory>

#include "sheets/sheet_titles.h"

namespace velmor::parc_desac {

using host::Handle;
using host::noControl;

namespace parc_desac_tables {

// clang-format off
constexpr sheets::FileLine written[] = {
    {Text1}, {Text2}, {Text3}, {Text4}, {Text5}, {Text6}, {Text7}, {Text8}, {Text9}, {Text10}, {Text11}, {Text12}, {Text13},
    {Text14}, {Text15}, {Text16}, {Text17}, {Text18}, {Text19}, {Text20}, {Text21},
    {Voltaje}, {statu25}, {statu22}, {VRes}, {ER}, {.control = Image2, .saysVisible = true}, {Label24}, {statu30},
};
constexpr sheets::FileLine read[] = {
    {Text1}, {Text2}, {Text3}, {Text4}, {Text5}, {Text6}, {Text7}, {Text8}, {Text9}, {Text10}, {Text11}, {Text12}, {Text13},
    {Text14}, {Text15, true}, {Text16}, {Text17}, {Text18, true}, {Text19}, {Text20, true}, {Text21},
    {Voltaje}, {statu25, true}, {statu22, true}, {VRes, true}, {ER, true}, {noControl}, {Label24, true}, {statu30, true},
};

constexpr auto tabOrder = sheets::joined(sheets::fieldsOf(chain), std::to_array<Handle>({
    Text20, Picture8, Picture6, Picture1, Picture10, Picture11, Picture2, Picture7, SSCommand3, SSCommand1,
}));

constexpr auto shortcuts = sheets::joined(sheets::toolKeys<tools>(), common_emitter::emitterKeys<Controls>,
                                          std::to_array<host::ShortcutRow>({
    {"Ctrl+1", Picture8,  host::KeyAction::click, noControl, {"Otro circuito igual", "Another circuit of this kind"}},
    {"Ctrl+2", Picture6,  host::KeyAction::click, Picture1,  {"Desacoplado, o volver al comienzo", "Bypass, or back to the beginning"}},
    {"Ctrl+3", Picture11, host::KeyAction::click, Picture10, {"Polarizado p/Emisor, o p/Base", "Polarized by Emitter, or by Base"}},
    {"Ctrl+4", Picture2,  host::KeyAction::click, Picture7,  {"Bootstrapping, o sin él", "Bootstrapping, or without"}},
}));
// clang-format on

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<ParcDesac>(host);
}

/// `Text21` ends as wide as its last text was once set, which is too narrow for it: shown a little wider.
host::Place shownPlace(const host::Window& window, Handle control)
{
    if (control == Text22 || control == Text23)
        return desaco::shownHelpPlace;
    host::Place place = window.placeOf(control);
    if (control == Text21)
        place.width = std::max(place.width, 1860);
    return place;
}

constexpr sheets::SheetSpec tables{.filter = fileFilter,
                                   .written = written,
                                   .read = read,
                                   .temperatureField = Text3,
                                   .chain = chain,
                                   .sayings = sayings,
                                   .voice = SSPanel1,
                                   .notes = common_emitter::emitterNotes<Controls>,
                                   .helpBoxes = {Text22, Text23, desaco::helpPlace},
                                   .tools = tools,
                                   .guide = guideFile};

} // namespace parc_desac_tables

constinit const host::WindowSpec spec{.name = "ParcDesac",
                                      .role = host::Role::sheet,
                                      .place = sheets::sheetPlace,
                                      .controls = controls,
                                      .slots = slots,
                                      .tabOrder = parc_desac_tables::tabOrder,
                                      .shortcuts = parc_desac_tables::shortcuts,
                                      .create = parc_desac_tables::create,
                                      .sheetTitle = sheets::titleOf("ParcDesac"),
                                      .growth = growth,
                                      .values = values,
                                      .shownPlace = parc_desac_tables::shownPlace};

ParcDesac::ParcDesac(host::SheetHost& host) : EmitterModes(host, parc_desac::spec, parc_desac_tables::tables)
{
    holds(held_, heldGainTable, host::Undo::takesBack);
}

void ParcDesac::load()
{
    Desaco::load();
    for (const Saying& caption : captions)
        tell(caption);
    setText(Text22, helpText.es);
    setText(Text23, helpText.en);
}

void ParcDesac::opened()
{
    show(Image2);
    write(SSPanel1, common_emitter::archivedEmitterSheet);
    growWhole();
    q_.passed = false;
}

// The pictures of bootstrapping lie where the notes would. The last three look at one of them alone.
void ParcDesac::hoverField(host::EventArgs& args)
{
    Desaco::hoverField(args);
    const bool offeredOnly = args.control == Text12 || args.control == Text13 || args.control == Text14;
    if (visible(Picture2) || (!offeredOnly && visible(Picture7)))
        hideNotes();
}

// The English report is written and never handed over: the editor keeps the text that it has.
void ParcDesac::clickReport()
{
    showReport(mayWriteReport() && !inEnglish());
}

void ParcDesac::clickPicture8()
{
    openSheet("ParcDesac", sheets::parcDesacFromForm2);
}

void ParcDesac::clickPicture6()
{
    hide(Picture6, Picture2, Picture7, Picture10, Picture11);
    show(Picture1, Image2);
    hide(Text21);
    setText(Text11, "55");
}

void ParcDesac::clickPicture2()
{
    write(Boost, bootstrapName);
    show(Boost);
    writeSecondBootstrap();
    drawBootstrapping(true);
    hide(Image2);
}

void ParcDesac::clickPicture7()
{
    drawBootstrapping(false);
    hide(Boost);
    show(Image2);
}

} // namespace velmor::parc_desac
