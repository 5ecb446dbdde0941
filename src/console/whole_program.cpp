// SPDX-License-Identifier: MIT
// Binds the walk language to the program.
#include "console/whole_program.h"

#include "program/catalogue.h"

namespace velmor::console {

namespace whole_program_detail {

void newSheet(host::Engine& engine, const host::WindowSpec& sheet)
{
    engine.userRun([&] {
        host::SheetHost& host = engine.host();
        host::Window* made = host.NewInstance(sheet.name);
        host.Show(*made);
        host.SetWindowCaption(*made, host.pick(sheet.sheetTitle));
        host.SetWindowState(host.mainWindow(), 2);
    });
}

} // namespace whole_program_detail

const WalkedProgram& wholeProgram()
{
    static const WalkedProgram program{program::catalogue(), program::start, whole_program_detail::newSheet};
    return program;
}

} // namespace velmor::console
