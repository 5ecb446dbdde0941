// SPDX-License-Identifier: MIT
// Finds the design sheet behind a window and calls it.
#include "console/sheet_access.h"

#include <span>

#include "console/walk_text.h"
#include "sheets/design_sheet.h"

namespace velmor::console {

namespace sheet_access_detail {

using Sheet = sheets::DesignSheet;

Sheet& sheetOf(host::Window& window)
{
    if (auto* sheet = dynamic_cast<Sheet*>(&window))
        return *sheet;
    throw WalkError(std::string(window.name()) + " is no sheet");
}

void abrir(Sheet& sheet)
{
    sheet.Abrir();
}
void guardar(Sheet& sheet)
{
    sheet.Guardar();
}
void cdlGuardarDatos(Sheet& sheet)
{
    sheet.CDL_GuardarDatos();
}
void cdlAbrirDatos(Sheet& sheet)
{
    sheet.CDL_AbrirDatos();
}

std::string modificado(const Sheet& sheet)
{
    return std::to_string(sheet.modificado());
}
std::string operCancelo(const Sheet& sheet)
{
    return std::to_string(sheet.OperCancelo());
}
std::string nombreArchivo(const Sheet& sheet)
{
    return sheet.NombreArchivo();
}

struct OperationRow {
    std::string_view name;
    void (*run)(Sheet&);
};

struct ValueRow {
    std::string_view name;
    std::string (*read)(const Sheet&);
};

// clang-format off
constexpr OperationRow operations[] = {
    {"Abrir",            abrir},
    {"Guardar",          guardar},
    {"CDL_GuardarDatos", cdlGuardarDatos},
    {"CDL_AbrirDatos",   cdlAbrirDatos},
};

constexpr ValueRow values[] = {
    {"modificado",    modificado},
    {"OperCancelo",   operCancelo},
    {"NombreArchivo", nombreArchivo},
};
// clang-format on

template <class Row>
const Row& rowOf(std::span<const Row> rows, std::string_view name)
{
    for (const Row& row : rows)
        if (host::sameName(row.name, name))
            return row;
    throw WalkError("a sheet has no " + inQuotes(name));
}

} // namespace sheet_access_detail

std::string sheetProperty(host::Window& window, std::string_view property)
{
    using namespace sheet_access_detail;
    return rowOf<ValueRow>(values, property).read(sheetOf(window));
}

void setSheetFile(host::Window& window, std::string_view path)
{
    sheet_access_detail::sheetOf(window).setNombreArchivo(path);
}

void callSheet(host::Engine& engine, host::Window& window, std::string_view operation)
{
    using namespace sheet_access_detail;
    const OperationRow& row = rowOf<OperationRow>(operations, operation);
    Sheet& sheet = sheetOf(window);
    engine.trace("call " + std::string(row.name));
    engine.userRun([&row, &sheet] { row.run(sheet); });
}

} // namespace velmor::console
