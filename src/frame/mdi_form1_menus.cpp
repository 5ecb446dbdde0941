// SPDX-License-Identifier: MIT
// The menu tables of the main window, Spanish and English side by side, slips and blanks as the program has them.
#include "frame/mdi_form1_menus.h"

#include <algorithm>

#include "sheets/sheet_titles.h"

namespace velmor::main_window {

// clang-format off
constexpr std::array<DesignItem, 15> designItems{{
    {.newItem = uno,    .openItems = {unoB, host::noControl},    .sheet = "Form3",
     .itemCaption   = {.es = "Diferencial &Simple",                          .en = "Long Tail Pairs"},
     .windowCaption = sheets::titleOf("Form3")},
    {.newItem = Dos,    .openItems = {dosB, host::noControl},    .sheet = "Form13",
     .itemCaption   = {.es = "Diferencial &Compuesto",                       .en = "Long Tail Pairs Compound"},
     .windowCaption = sheets::titleOf("Form13")},
    {.newItem = tres,   .openItems = {tresB, host::noControl},   .sheet = "Form4",
     .itemCaption   = {.es = "Base &Común",                                  .en = "Common Base"},
     .windowCaption = sheets::titleOf("Form4")},
    {.newItem = cuatro, .openItems = {cuatroB, host::noControl}, .sheet = "Form12",
     .itemCaption   = {.es = "&Fuente de Corriente",                         .en = "D.C. Source"},
     .windowCaption = sheets::titleOf("Form12")},
    {.newItem = cinco,  .openItems = {cincoB, host::noControl},  .sheet = "Form9",
     .itemCaption   = {.es = "&Parafase",                                    .en = "Paraphase"},
     .windowCaption = sheets::titleOf("Form9")},
    {.newItem = seis,   .openItems = {seisB, host::noControl},   .sheet = "Form17",
     .itemCaption   = {.es = "&Colector Común",                              .en = "Common Collector"},
     .windowCaption = sheets::titleOf("Form17")},
    {.newItem = siete,  .openItems = {ochoB, host::noControl},   .sheet = "form20",
     .itemCaption   = {.es = "Clase A - &Darlington",                        .en = "(Class A Darlington)"},
     .windowCaption = sheets::titleOf("form20")},
    {.newItem = ocho,   .openItems = {sieteB, host::noControl},  .sheet = "Form15",
     .itemCaption   = {.es = "Clase A &Simple",                              .en = "Class A - Simple"},
     .windowCaption = sheets::titleOf("Form15")},
    {.newItem = nueve,  .openItems = {nueveB, host::noControl},  .sheet = "Form10",
     .itemCaption   = {.es = "Clase B &Simple",                              .en = "Class B Simple"},
     .windowCaption = sheets::titleOf("Form10")},
    {.newItem = diez,   .openItems = {diezB, host::noControl},   .sheet = "Form11",
     .itemCaption   = {.es = "Clase B - &Darlington",                        .en = "Class B Darlington"},
     .windowCaption = sheets::titleOf("Form11")},
    {.newItem = once,   .openItems = {onceB, mnuEmisor},         .sheet = "Form2",
     .itemCaption   = {.es = "&Emisor Común",                                .en = "Common Emitter"},
     .windowCaption = sheets::titleOf("Form2")},
    {.newItem = doce,   .openItems = {doceB, host::noControl},   .sheet = "Form8",
     .itemCaption   = {.es = "Circuito &Simple",                             .en = "Circuits Simple"},
     .windowCaption = sheets::titleOf("Form8"),
     .unloadsForm7  = true},
    {.newItem = trece,  .openItems = {treceB, host::noControl},  .sheet = "Form18",
     .itemCaption   = {.es = "Circuito &Estable",                            .en = "Circuits Stable"},
     .windowCaption = sheets::titleOf("Form18"),
     .unloadsForm7  = true},
    {.openItems = {mnuDesac, host::noControl}, .sheet = "desaco"},
    {.openItems = {MnuParc, host::noControl},  .sheet = "ParcDesac",
     .windowCaption = sheets::titleOf("ParcDesac")},
}};

constexpr std::array<ItemCaption, 29> itemCaptions{{
    {mnuArchivo,       {.es = "&Archivo",             .en = "&Archive"}},
    {mnuCirc,          {.es = "&Nuevos",              .en = "New"}},
    {mnuFile0,         {.es = "A&brir",               .en = "Open"}},
    {mnuFile1,         {.es = "&Salvar",              .en = "Save"}},
    {mnuFile2,         {.es = "Sa&lvar como",         .en = "Save as"}},
    {mnuFile3,         {.es = "&Cerrar",              .en = "Close"}},
    {mnuSalir2,        {.es = "&Irse (Sin salvar)",   .en = "&Exit (No save)"}},
    {mnuEdicion,       {.es = "&Edición",             .en = "&Edit"}},
    {mnuDeshacer,      {.es = "&Deshacer",            .en = "&Undo"}},
    {mnuRehacer,       {.es = "&Rehacer",             .en = "&Redo"}},
    {mnuVer,           {.es = "&Ventana",             .en = "&Window"}},
    {mnuCas,           {.es = "&Cascada",             .en = "Cascade"}},
    {mnuHoriz,         {.es = "&Horizontal",          .en = "&Horizontal"}},
    {mnuVert,          {.es = "&Vertical",            .en = "&Vertical"}},
    {mnuTools,         {.es = "&Herramientas",        .en = "&Tools"}},
    {mnuImpor,         {.es = "&Importar",            .en = "Import"}},
    {mnuProy,          {.es = "&Proyecto",            .en = "&Project"}},
    {mnuOp,            {.es = "&Opciones",            .en = "&Options"}},
    {mnuid,            {.es = "&Idioma",              .en = "Language"}},
    {mnuBarra,         {.es = "&Barra de Circuitos",  .en = "Circuit Bar"}},
    {mnuPrederminados, {.es = "&Predeterminar",       .en = "Default"}},
    {mnuPredet0,       {.es = "&Lenguaje",            .en = "Language"}},
    {mnuPredet1,       {.es = "&Pantalla",            .en = "Screen"}},
    {mnuScreen1,       {.es = "&Solo Barra ",         .en = "Only  Bar"}},
    {mnuayu,           {.es = "A&yuda",               .en = "&Help"}},
    {mnuayuda,         {.es = "&Ayuda",               .en = "Help"}},
    {mnuAcerca,        {.es = "&Autor",               .en = "Author"}},
    {mnuActu,          {.es = "&Contactar",           .en = "New design"}},
    {mnuvac,           {.es = "&Acerca de...",        .en = "About..."}},
}};

constexpr std::array<NeededWindow, 8> neededWindows{{
    {mnuEdit,   {"frmEdito1", "frmEdito3"}},
    {mnuProy,   {"frmEdito1", "frmEdito3"}},
    {Image29,   {"frmEdito1", "frmEdito3"}},
    {mnuImpor,  {"frmDrag", ""}},
    {mnuayuda,  {"Form19", ""}},
    {mnuAcerca, {"frmAbout", ""}},
    {mnuvac,    {"frmAbout", ""}},
    {mnuActu,   {"infoform", ""}},
}};
// clang-format on

const DesignItem* designOfNewItem(host::Handle item)
{
    const auto found = std::find_if(designItems.begin(), designItems.end(),
                                    [item](const DesignItem& design) { return design.newItem == item; });
    return found == designItems.end() ? nullptr : &*found;
}

const DesignItem* designOfOpenItem(host::Handle item)
{
    const auto found = std::find_if(designItems.begin(), designItems.end(), [item](const DesignItem& design) {
        return std::find(design.openItems.begin(), design.openItems.end(), item) != design.openItems.end();
    });
    return found == designItems.end() ? nullptr : &*found;
}

const DesignItem* designOfSheet(std::string_view sheet)
{
    const auto found = std::find_if(designItems.begin(), designItems.end(),
                                    [sheet](const DesignItem& design) { return host::sameName(design.sheet, sheet); });
    return found == designItems.end() ? nullptr : &*found;
}

host::BiText captionsOf(host::Handle item)
{
    const auto* const row = std::find_if(itemCaptions.begin(), itemCaptions.end(),
                                         [item](const ItemCaption& caption) { return caption.item == item; });
    return row == itemCaptions.end() ? host::BiText{} : row->caption;
}

} // namespace velmor::main_window
