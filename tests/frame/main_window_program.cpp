// SPDX-License-Identifier: MIT
// Tables of the stand-ins.
#include "frame/main_window_program.h"

#include <algorithm>
#include <array>
#include <memory>
#include <stdexcept>

namespace velmor::main_window_test {

using host::Kind;
using host::Role;

namespace stand_ins {

constexpr host::ControlRow sheetControls[] = {
    {.id = 0, .name = "Text1", .kind = Kind::field},
};
constexpr host::ControlRow noteControls[] = {
    {.id = 0, .name = "Text1", .kind = Kind::page},
    {.id = 1, .name = "Text2", .kind = Kind::page},
    {.id = 2, .name = "Label1", .kind = Kind::label, .visible = false},
    {.id = 3, .name = "Label2", .kind = Kind::label},
};
const sheets::SheetSpec sheetSpec{.filter = {.es = "Hoja|*.HOJ", .en = "Sheet|*.SHT"}};

constexpr std::array<std::string_view, 15> sheetNames{"Form2",  "desaco", "ParcDesac", "Form8",  "Form18",
                                                      "Form4",  "Form17", "Form9",     "Form3",  "Form13",
                                                      "Form12", "Form15", "form20",    "Form10", "Form11"};
constexpr std::array<std::string_view, 2> editorNames{"frmEdito1", "frmEdito3"};
constexpr std::array<std::string_view, 7> toolNames{"Form7",    "Form14",   "Form19", "Form21",
                                                    "frmAbout", "infoform", "frmDrag"};

host::WindowSpec& specAt(std::size_t index)
{
    static std::array<host::WindowSpec, 15 + 2 + 7> specs;
    return specs[index];
}
template <std::size_t Index>
std::unique_ptr<host::Window> createSheet(host::SheetHost& host)
{
    return std::make_unique<StandInSheet>(host, specAt(Index));
}
template <std::size_t Index>
std::unique_ptr<host::Window> createOther(host::SheetHost& host)
{
    return std::make_unique<host::Window>(host, specAt(Index));
}

template <std::size_t... Index>
void fillSheets(std::index_sequence<Index...>)
{
    ((specAt(Index) = {.name = sheetNames[Index],
                       .role = Role::sheet,
                       .caption = "stored",
                       .controls = sheetControls,
                       .slots = sheets::frameSlots,
                       .create = createSheet<Index>}),
     ...);
}
template <std::size_t... Index>
void fillOthers(std::index_sequence<Index...>)
{
    ((specAt(15 + Index) = {.name = Index < 2 ? editorNames[Index % 2] : toolNames[(Index - 2) % 7],
                            .role = Index < 2 ? Role::editor : Role::tool,
                            .caption = "stored",
                            .controls = noteControls,
                            .create = createOther<15 + Index>}),
     ...);
}

std::vector<const host::WindowSpec*> catalogueWithout(const std::vector<std::string_view>& missing)
{
    fillSheets(std::make_index_sequence<15>());
    fillOthers(std::make_index_sequence<9>());
    std::vector<const host::WindowSpec*> all{&main_window::spec, &palette::spec};
    for (std::size_t i = 0; i < 24; ++i)
        all.push_back(&specAt(i));
    std::erase_if(all, [&](const host::WindowSpec* spec) {
        return std::find(missing.begin(), missing.end(), spec->name) != missing.end();
    });
    return all;
}

} // namespace stand_ins

StandInSheet::StandInSheet(host::SheetHost& host, const host::WindowSpec& spec)
    : sheets::DesignSheet(host, spec, stand_ins::sheetSpec)
{}

void StandInSheet::deed(std::string_view what)
{
    log.push_back(std::string(name()) + " " + std::string(what));
    if (fails)
        throw std::runtime_error("as told");
}

void StandInSheet::CDL_GuardarDatos()
{
    deed("CDL_GuardarDatos");
    DesignSheet::CDL_GuardarDatos();
}

void StandInSheet::CDL_AbrirDatos()
{
    deed("CDL_AbrirDatos");
    DesignSheet::CDL_AbrirDatos();
}

Program::Program(const std::vector<std::string_view>& without)
    : catalogue(stand_ins::catalogueWithout(without)), engine(catalogue, screen, settings)
{
    StandInSheet::log.clear();
    StandInSheet::fails = false;
    engine.loadMainWindow();
}

void Program::show()
{
    engine.userRun([this] {
        engine.host().setChecked("mnuFlotante", true);
        engine.host().Show(main());
        engine.host().SetWindowState(main(), 2);
    });
}

int Program::count(std::string_view name)
{
    const auto open = engine.windows();
    return static_cast<int>(std::count_if(open.begin(), open.end(),
                                          [name](const host::Window* w) { return host::sameName(w->name(), name); }));
}

} // namespace velmor::main_window_test
