// SPDX-License-Identifier: MIT
// Lists, drop and table of the file browser. Nothing is run that was not dropped, and nothing goes through a shell.
#include "tools/frm_drag.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace velmor::frm_drag {

using host::BiText;
using host::Event;
using host::Kind;
using host::Look;
using host::slot;

namespace texts {

constexpr BiText title{.es = "Arrastre y Ejecute", .en = "Drag and Drop"};
constexpr BiText howTo{.es = "Haga click sobre la fila que ud desea ver ó ejecutar y arrastrela a la P.C.",
                       .en = "Make Click over the file, drag and drop over the P.C."};
constexpr BiText otherType{.es = "Intente uno de estos tipos de fila:\n      .bmp, .exe, .ewb",
                           .en = "Try one of these file types:\n      .bmp, .exe, .ewb"};
constexpr std::string_view applicationTitle = "Velmor";
constexpr std::string_view simulator = "c:\\ewb50\\Wewb32";
constexpr std::string_view parentFolder = "..";
constexpr std::string_view dragIconOverFiles = "Drive1";
constexpr std::string_view dragIconOverComputer = "Dir1";
constexpr int windowWidth = 3525;
constexpr int windowHeight = 6900;

} // namespace texts

namespace files {

std::string lastThree(const std::string& name)
{
    std::string ending = name.size() >= 3 ? name.substr(name.size() - 3) : name;
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return ending;
}

bool matchesPattern(const std::string& name)
{
    const std::string ending = lastThree(name);
    const bool known = ending == "bmp" || ending == "exe" || ending == "ewb";
    return known && name.size() > 3 && name[name.size() - 4] == '.';
}

struct Listing {
    std::vector<std::string> folders;
    std::vector<std::string> files;
};

/// What a folder holds, sorted; empty when it cannot be read.
Listing list(const std::string& folder)
{
    Listing listing;
    std::error_code error;
    for (std::filesystem::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        std::error_code ignored;
        const std::string name = at->path().filename().string();
        if (at->is_directory(ignored))
            listing.folders.push_back(name);
        else if (at->is_regular_file(ignored) && matchesPattern(name))
            listing.files.push_back(name);
    }
    std::sort(listing.folders.begin(), listing.folders.end());
    std::sort(listing.files.begin(), listing.files.end());
    return listing;
}

} // namespace files

FrmDrag::FrmDrag(host::SheetHost& host) : host::Window(host, frm_drag::spec) {}

void FrmDrag::load()
{
    setCaption(host().pick(texts::title));
    setText(Label1, host().pick(texts::howTo));
    list(Drive1).items = {"/"};
    list(Drive1).selected = 0;
    listChanged(Drive1);
    openFolder(host().programFolder());
}

void FrmDrag::activate()
{
    host::Place place = this->place();
    place.width = texts::windowWidth;
    place.height = texts::windowHeight;
    setPlace(place);
}

void FrmDrag::openFolder(const std::string& folder)
{
    files::Listing listing = files::list(folder);
    host::ListState& folders = list(Dir1);
    folders.folder = folder;
    folders.items = std::move(listing.folders);
    folders.items.insert(folders.items.begin(), std::string(texts::parentFolder));
    folders.selected = -1;
    host::ListState& shown = list(File1);
    shown.folder = folder;
    shown.items = std::move(listing.files);
    shown.selected = -1;
    listChanged(Dir1);
    listChanged(File1);
}

void FrmDrag::driveChanged()
{
    const host::ListState& drives = list(Drive1);
    if (drives.selected >= 0)
        openFolder(drives.items[static_cast<std::size_t>(drives.selected)]);
}

// The chosen entry is a folder of the one shown, the one above it, or a whole path.
void FrmDrag::folderChanged()
{
    const host::ListState& folders = list(Dir1);
    if (folders.selected < 0)
        return;
    const std::filesystem::path entry = folders.items[static_cast<std::size_t>(folders.selected)];
    std::error_code error;
    const std::filesystem::path wanted =
        std::filesystem::weakly_canonical(std::filesystem::path(folders.folder) / entry, error);
    if (!error && std::filesystem::is_directory(wanted, error))
        openFolder(wanted.string());
}

std::string FrmDrag::chosenPath()
{
    const host::ListState& shown = list(File1);
    if (shown.selected < 0)
        return {};
    std::string path = shown.folder;
    if (!path.ends_with('/'))
        path += '/';
    return path + shown.items[static_cast<std::size_t>(shown.selected)];
}

void FrmDrag::dragEntersComputer()
{
    setTag(File1, texts::dragIconOverComputer);
}

void FrmDrag::dragLeavesComputer()
{
    setTag(File1, texts::dragIconOverFiles);
}

void FrmDrag::dropped(host::EventArgs& args)
{
    const std::string path = chosenPath();
    if (args.source != File1 || path.empty())
        return;
    setTag(File1, texts::dragIconOverFiles);
    setPicture(Image1, "");
    const std::string ending = files::lastThree(path);
    if (ending == "bmp")
        setPicture(Image1, path);
    else if (ending == "exe")
        host().screen().run(path, "");
    else if (ending == "ewb")
        host().screen().run(std::string(texts::simulator), path);
    else
        host().MsgBox(host().pick(texts::otherType), 0, texts::applicationTitle);
}

namespace table {

// clang-format off
using host::GridPoint;
using host::Mark;
using host::Symbol;
constexpr GridPoint stand[] = {{88, 74}, {80, 88}, {124, 88}, {116, 74}};
constexpr Mark computer[] = {
    {.symbol = Symbol::roundFrame, .from = {52, 10}, .to = {152, 74}},
    {.symbol = Symbol::frame, .from = {60, 17}, .to = {144, 67}},
    {.symbol = Symbol::polyline, .points = stand},
    {.symbol = Symbol::roundFrame, .from = {42, 94}, .to = {162, 106}},
};

constexpr host::ControlRow controls[] = {
    {.id = Drive1, .name = "Drive1", .kind = Kind::list, .place = {150, 1065, 3225, 390},
     .meaning = {.es = "Unidad", .en = "Drive"}},
    {.id = Dir1, .name = "Dir1", .kind = Kind::list, .place = {150, 1545, 3225, 1500},
     .meaning = {.es = "Carpeta", .en = "Folder"}},
    {.id = File1, .name = "File1", .kind = Kind::list, .place = {150, 3135, 3225, 1620},
     .meaning = {.es = "Filas para arrastrar", .en = "Files to drag"}, .tag = "Drive1"},
    {.id = Picture1, .name = "Picture1", .kind = Kind::panel, .place = {150, 4845, 3225, 1900}, .look = Look::group},
    {.id = Image1, .name = "Image1", .kind = Kind::image, .place = {225, 4920, 3075, 1750},
     .meaning = {.es = "Computadora: suelte la fila aquí", .en = "Computer: drop the file here"}, .drawing = computer,
     .parent = Picture1},
    {.id = Label1, .name = "Label1", .kind = Kind::label, .place = {150, 150, 3225, 825}, .look = Look::hint},
};
static_assert(host::rowsInOrder(controls));

constexpr host::SlotRow slots[] = {
    {host::noControl, Event::load,      slot<&FrmDrag::load>},
    {host::noControl, Event::activate,  slot<&FrmDrag::activate>},
    {Drive1,          Event::change,    slot<&FrmDrag::driveChanged>},
    {Dir1,            Event::change,    slot<&FrmDrag::folderChanged>},
    {Image1,          Event::dragEnter, slot<&FrmDrag::dragEntersComputer>},
    {Image1,          Event::dragLeave, slot<&FrmDrag::dragLeavesComputer>},
    {Image1,          Event::drop,      slot<&FrmDrag::dropped>},
};

constexpr host::ShortcutRow shortcuts[] = {
    {.keys = "Ctrl+D", .control = File1, .action = host::KeyAction::dragTo, .target = Image1,
     .meaning = {.es = "Soltar la fila elegida en la computadora", .en = "Drop the chosen file on the computer"}},
};
// clang-format on

} // namespace table

const host::WindowSpec spec{
    .name = "frmDrag",
    .role = host::Role::tool,
    .caption = "Arrastre y Ejecute",
    .place = {0, 0, 3525, 6900},
    .controls = table::controls,
    .slots = table::slots,
    .shortcuts = table::shortcuts,
    .create = create,
};

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<FrmDrag>(host);
}

} // namespace velmor::frm_drag
