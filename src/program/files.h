// SPDX-License-Identifier: MIT
// Files that come from outside: named when the program is started, or dropped on it. A circuit opens in a new sheet of its
// kind, any other text in an editor; what cannot be read is said in one sentence.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/engine.h"

namespace velmor::program {

/// One ending of circuit files, without its point and as the sheet's own dialog shows it.
struct CircuitEnding {
    std::string_view sheet;
    std::string ending;
    bool english = false;
};

/// All endings of all sheets in both languages, as their file dialogs ask for them.
std::vector<CircuitEnding> circuitEndings(host::Engine& engine);

/// The sheets whose circuits end as this path does, whatever the capitals; none for any other file.
std::vector<std::string_view> sheetsOf(host::Engine& engine, std::string_view path);

/// Opens the file in front of what is open. Where several sheets share its ending, the person is asked which; giving that up
/// opens nothing.
void openFile(host::Engine& engine, const std::string& path);

/// Opens a circuit file in a new sheet of that name, without asking which.
void openCircuit(host::Engine& engine, std::string_view sheet, const std::string& path);

} // namespace velmor::program
