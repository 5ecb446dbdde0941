// SPDX-License-Identifier: MIT
// Controls, slots and texts of the four editors. The Spanish texts of the text editors in both languages and the crossed
// titles are the program's.
#include <array>

#include "editors/editor.h"

namespace velmor::editors {

using host::BiText;
using host::ControlRow;
using host::Event;
using host::Kind;
using host::noControl;
using host::slot;
using host::SlotRow;

namespace tables {

// Captions that are nowhere given, short, in both languages: written when the window is loaded.
struct MenuRow {
    host::Handle item;
    std::string_view name;
    host::Handle parent;
    BiText caption;
};

// clang-format off
constexpr MenuRow menus[] = {
    {mnuFile,          "mnuFile",          noControl,   {.es = "&Archivo",             .en = "&Archive"}},
    {mnuFilenew,       "mnuFilenew",       mnuFile,     {.es = "&Nuevo",               .en = "&New"}},
    {mnuFileOpen,      "mnuFileOpen",      mnuFile,     {.es = "A&brir...",            .en = "&Open..."}},
    {mnuGuardar,       "mnuGuardar",       mnuFile,     {.es = "&Guardar",             .en = "&Save"}},
    {mnuFileSaveAs,    "mnuFileSaveAs",    mnuFile,     {.es = "Guardar &como...",     .en = "Save &as..."}},
    {mnuImprimir,      "mnuImprimir",      mnuFile,     {.es = "&Imprimir...",         .en = "&Print..."}},
    {mnuFileItem,      "mnuFileItem",      mnuFile,     {.es = "&Otra ventana",        .en = "Another &window"}},
    {mnuFileexit,      "mnuFileexit",      mnuFile,     {.es = "&Salir",               .en = "E&xit"}},
    {mnuEdit,          "mnuEdit",          noControl,   {.es = "&Edición",             .en = "&Edit"}},
    {mnuEditItem0,     "mnuEditItem(0)",   mnuEdit,     {.es = "Cor&tar",              .en = "Cu&t"}},
    {mnuEditItem1,     "mnuEditItem(1)",   mnuEdit,     {.es = "&Copiar",              .en = "&Copy"}},
    {mnuEditItem2,     "mnuEditItem(2)",   mnuEdit,     {.es = "&Pegar",               .en = "&Paste"}},
    {mnuSearch,        "mnuSearch",        noControl,   {.es = "&Buscar",              .en = "&Search"}},
    {mnuBuscar,        "mnuBuscar",        mnuSearch,   {.es = "&Buscar...",           .en = "&Find..."}},
    {mnuBr,            "mnuBr",            mnuSearch,   {.es = "&Reemplazar...",       .en = "&Replace..."}},
    {mnuWindow,        "mnuWindow",        noControl,   {.es = "&Ventana",             .en = "&Window"}},
    {mnuCas,           "mnuCas",           mnuWindow,   {.es = "&Cascada",             .en = "&Cascade"}},
    {mnuHoriz,         "mnuHoriz",         mnuWindow,   {.es = "&Horizontal",          .en = "&Horizontal"}},
    {mnuVert,          "mnuVert",          mnuWindow,   {.es = "&Vertical",            .en = "&Vertical"}},
    {mnuCircuit,       "mnuCircuit",       mnuWindow,   {.es = "&Barra de circuitos",  .en = "Circuit &bar"}},
    {mnuSettings,      "mnuSettings",      noControl,   {.es = "&Formato",             .en = "F&ormat"}},
    {mnuBackColorItem, "mnuBackColorItem", mnuSettings, {.es = "Color de &fondo...",   .en = "&Background colour..."}},
    {mnuForeColorItem, "mnuForeColorItem", mnuSettings, {.es = "Color de &texto...",   .en = "&Text colour..."}},
    {mnuFontSizesItem, "mnuFontSizesItem", mnuSettings, {.es = "&Letra...",            .en = "&Font..."}},
    {mnuHelp,          "mnuHelp",          noControl,   {.es = "A&yuda",               .en = "&Help"}},
    {mnuAbout,         "mnuAbout",         mnuHelp,     {.es = "&Acerca de...",        .en = "&About..."}},
};

constexpr SlotRow slots[] = {
    {noControl,        Event::load,       slot<&Editor::load>},
    {noControl,        Event::resize,     slot<&Editor::resize>},
    {noControl,        Event::queryClose, slot<&Editor::queryClose>},
    {noControl,        Event::shortcut,   slot<&Editor::shortcut>},
    {txtEdit,          Event::change,     slot<&Editor::changed>},
    {mnuFilenew,       Event::click,      slot<&Editor::newDocument>},
    {mnuFileOpen,      Event::click,      slot<&Editor::openDocument>},
    {mnuGuardar,       Event::click,      slot<&Editor::saveDocument>},
    {mnuFileSaveAs,    Event::click,      slot<&Editor::saveDocumentAs>},
    {mnuImprimir,      Event::click,      slot<&Editor::print>},
    {mnuFileItem,      Event::click,      slot<&Editor::newWindow>},
    {mnuFileexit,      Event::click,      slot<&Editor::exit>},
    {mnuEdit,          Event::menuOpen,   slot<&Editor::editMenuOpens>},
    {mnuEditItem0,     Event::click,      slot<&Editor::cut>},
    {mnuEditItem1,     Event::click,      slot<&Editor::copy>},
    {mnuEditItem2,     Event::click,      slot<&Editor::paste>},
    {mnuBuscar,        Event::click,      slot<&Editor::find>},
    {mnuBr,            Event::click,      slot<&Editor::replace>},
    {mnuCas,           Event::click,      slot<&Editor::cascade>},
    {mnuHoriz,         Event::click,      slot<&Editor::tileHorizontally>},
    {mnuVert,          Event::click,      slot<&Editor::tileVertically>},
    {mnuCircuit,       Event::click,      slot<&Editor::bringCircuitsBack>},
    {mnuBackColorItem, Event::click,      slot<&Editor::backColour>},
    {mnuForeColorItem, Event::click,      slot<&Editor::foreColour>},
    {mnuFontSizesItem, Event::click,      slot<&Editor::fonts>},
    {mnuAbout,         Event::click,      slot<&Editor::about>},
};

// In the order that the window's own `shortcut` slot knows; the rest are menu items.
constexpr host::ShortcutRow shortcuts[] = {
    {.keys = "Ctrl+F", .action = host::KeyAction::run, .meaning = {.es = "Buscar", .en = "Find"}},
    {.keys = "Ctrl+H", .action = host::KeyAction::run, .meaning = {.es = "Reemplazar", .en = "Replace"}},
    {.keys = "Ctrl+N", .control = mnuFilenew, .meaning = {.es = "Nuevo", .en = "New"}},
    {.keys = "Ctrl+O", .control = mnuFileOpen, .meaning = {.es = "Abrir", .en = "Open"}},
    {.keys = "Ctrl+S", .control = mnuFileSaveAs, .meaning = {.es = "Guardar como", .en = "Save as"}},
    {.keys = "Ctrl+P", .control = mnuImprimir, .meaning = {.es = "Imprimir", .en = "Print"}},
};

using Rows = std::array<ControlRow, controlCount>;

constexpr Rows rowsWithout(std::initializer_list<host::Handle> absent)
{
    Rows rows{};
    rows[txtEdit] = {.id = txtEdit, .name = "txtEdit", .kind = Kind::editor, .place = {0, 0, 9000, 6000},
                     .meaning = {.es = "Texto", .en = "Text"}};
    for (const MenuRow& menu : menus) {
        bool visible = true;
        for (const host::Handle item : absent)
            visible = visible && item != menu.item;
        rows[menu.item] = {.id = menu.item, .name = menu.name, .kind = Kind::menu, .text = menu.caption.es,
                           .visible = visible, .meaning = menu.caption, .parent = menu.parent};
    }
    return rows;
}

constexpr Rows editorRows  = rowsWithout({mnuImprimir, mnuSearch, mnuBuscar, mnuBr, mnuWindow, mnuCas, mnuHoriz, mnuVert, mnuCircuit});
constexpr Rows edito1Rows  = rowsWithout({mnuGuardar});
constexpr Rows reportRows  = rowsWithout({mnuGuardar, mnuSearch, mnuBuscar, mnuBr});
static_assert(host::rowsInOrder(editorRows) && host::rowsInOrder(edito1Rows) && host::rowsInOrder(reportRows));

constexpr BiText laboratory{.es = "Laboratorio Velmor", .en = "Laboratorio Velmor"};
constexpr Question keepText{
    .text = {.es = "Este documento ha cambiado\n¿Desea guardar los cambios?",
             .en = "Este documento ha cambiado\n¿Desea guardar los cambios?"},
    .title = laboratory, .flags = 35};
constexpr Question keepTextAtExit{
    .text = {.es = "Este documento ha cambiado... \nguarda los cambios ...?",
             .en = "Este documento ha cambiado... \nguarda los cambios ...?"},
    .title = {.es = "Laboratorio Velmor ", .en = "Laboratorio Velmor "}, .flags = 35};
constexpr Question replaceText{
    .text = {.es = "Desea reemplazar el archivo existente?", .en = "Desea reemplazar el archivo existente?"},
    .title = laboratory, .flags = 289};
constexpr Question keepReport{
    .text = {.es = "Este documento ha cambiado\n¿Desea guardar los cambios?", .en = "This document has changed \nkeep the changes ...?"},
    .title = {.es = "Laboratorio Velmor", .en = "Laboratory Velmor "}, .flags = 35};
constexpr Question keepReportAtExit{
    .text = {.es = "Este documento ha cambiado... \nguarda los cambios ...?", .en = "This document has changed \nkeep the changes ...?"},
    .title = {.es = "Laboratorio Velmor ", .en = "Laboratory Velmor "}, .flags = 35};
constexpr Question replaceReport{
    .text = {.es = "Desea reemplazar el archivo existente?", .en = "replace the existent file ?"},
    .title = {.es = "Informes Velmor", .en = " Velmor Report"}, .flags = 289};
constexpr Question confirmReportExit{
    .text = {.es = "Abandona el editor de Informes ?", .en = "abandon the editor ?"},
    .title = {.es = "Informe Velmor ", .en = "Report Velmor "}, .flags = 33};
constexpr std::string_view feedbackGuide = "Emisor Común Realimentado por Corriente.Lab";

constexpr EditorSpec editorSpec{
    .guide = GuidePlace::none, .titlesOnReportEditor = true, .documentTitle = laboratory, .newTitle = laboratory,
    .keep = keepText, .keepAtExit = keepText, .replaceFile = replaceText, .newDocumentByItem = true, .printsFontSize = false};
constexpr EditorSpec edito1Spec{
    .guide = GuidePlace::programFolder, .titlesOnReportEditor = true, .guideTitle = laboratory, .documentTitle = laboratory,
    .newTitle = {.es = "Visor de fuentes - Sin título", .en = "Visor de fuentes - Sin título"},
    .keep = keepText, .keepAtExit = keepTextAtExit, .replaceFile = replaceText,
    .confirmExit = {.text = {.es = "abandona el editor ?", .en = "abandona el editor ?"},
                    .title = {.es = "Laboratorio Velmor ", .en = "Laboratorio Velmor "}, .flags = 33},
    .closeByButton = {.text = {.es = "¿Desea abandonar Editor de Textos?", .en = "¿Do you wish EXIT of Text Editor?"}, .flags = 36},
    .newWindow = {.es = "frmEdito1", .en = "frmEdito3"}, .printsFontSize = false};
constexpr EditorSpec edito2Spec{
    .guide = GuidePlace::archivos, .guideTitle = {.es = "Informe Velmor", .en = " Velmor Report"},
    .documentTitle = {.es = "Informes Velmor", .en = "Report Velmor "},
    .newTitle = {.es = "Visor de fuentes - Sin título", .en = "Velmor Report - Untitle"},
    .keep = keepReport, .keepAtExit = keepReportAtExit, .replaceFile = replaceReport, .confirmExit = confirmReportExit,
    .closeByButton = {.text = {.es = "¿Desea abandonar Informes Velmor?\n Recuerde salvar el Archivo...",
                               .en = "¿Do you wish EXIT of Velmor Reports?\n Remember to Save Archive..."}, .flags = 36},
    .newWindow = {.es = "frmEdito2", .en = "frmEdito2"}, .guideOfNewWindow = feedbackGuide,
    .lessWidthAtStart = 130, .lessHeightAtStart = 340};
constexpr EditorSpec edito3Spec{
    .guide = GuidePlace::archivosByName, .guideTitle = {.es = "Informe Velmor", .en = " Velmor Report"},
    .documentTitle = {.es = "Informes Velmor", .en = "Report Velmor "},
    .newTitle = {.es = "Visor de fuentes - Sin título", .en = "Velmor Report - Untitle"},
    .keep = keepReport, .keepAtExit = keepReportAtExit, .replaceFile = replaceReport, .confirmExit = confirmReportExit,
    .closeByButton = {.text = {.es = "¿Desea abandonar Editor de Informes?\n Remember to Save Archive...",
                               .en = "¿Do you wish EXIT of Report Editor?\n Remember to Save Archive..."}, .flags = 36},
    .newWindow = {.es = "frmEdito3", .en = "frmEdito3"}, .guideOfNewWindow = feedbackGuide};
// clang-format on

template <const EditorSpec& Editing, const host::WindowSpec& Spec>
std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    auto made = std::make_unique<Editor>(host, Spec, Editing);
    for (const MenuRow& menu : menus)
        made->setText(menu.item, host.pick(menu.caption));
    return made;
}

constexpr host::Place window{0, 0, 9600, 6600};

} // namespace tables

const std::span<const SlotRow> editorSlots = tables::slots;
const std::span<const host::ShortcutRow> editorShortcuts = tables::shortcuts;

const host::WindowSpec frmEditor{.name = "frmEditor",
                                 .role = host::Role::editor,
                                 .caption = "Editor de textos Velmor ...doble click ",
                                 .place = tables::window,
                                 .controls = tables::editorRows,
                                 .slots = tables::slots,
                                 .shortcuts = tables::shortcuts,
                                 .create = tables::create<tables::editorSpec, frmEditor>};
const host::WindowSpec frmEdito1{.name = "frmEdito1",
                                 .role = host::Role::editor,
                                 .caption = "Editor de textos Velmor ...doble click ",
                                 .place = tables::window,
                                 .controls = tables::edito1Rows,
                                 .slots = tables::slots,
                                 .shortcuts = tables::shortcuts,
                                 .create = tables::create<tables::edito1Spec, frmEdito1>};
const host::WindowSpec frmEdito2{.name = "frmEdito2",
                                 .role = host::Role::editor,
                                 .caption = "Editor de Informes Velmor ...",
                                 .place = tables::window,
                                 .controls = tables::reportRows,
                                 .slots = tables::slots,
                                 .shortcuts = tables::shortcuts,
                                 .create = tables::create<tables::edito2Spec, frmEdito2>};
const host::WindowSpec frmEdito3{.name = "frmEdito3",
                                 .role = host::Role::editor,
                                 .caption = "Report Editor Velmor ...",
                                 .place = tables::window,
                                 .controls = tables::reportRows,
                                 .slots = tables::slots,
                                 .shortcuts = tables::shortcuts,
                                 .create = tables::create<tables::edito3Spec, frmEdito3>};

} // namespace velmor::editors
