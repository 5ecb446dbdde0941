// SPDX-License-Identifier: MIT
// The public operations of a design sheet under the names that a walk uses.
#pragma once

#include <string>
#include <string_view>

#include "host/engine.h"

namespace velmor::console {

/// `modificado`, `OperCancelo` or `NombreArchivo` as text. Throws WalkError when the window is no sheet or the sheet
/// has no such value.
std::string sheetProperty(host::Window& window, std::string_view property);

/// Gives the sheet a file name, as only a program can. Throws WalkError when the window is no sheet.
void setSheetFile(host::Window& window, std::string_view path);

/// Calls `Abrir`, `Guardar`, `CDL_GuardarDatos` or `CDL_AbrirDatos`. Throws WalkError when there is no such operation.
void callSheet(host::Engine& engine, host::Window& window, std::string_view operation);

} // namespace velmor::console
