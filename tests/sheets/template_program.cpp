// SPDX-License-Identifier: MIT
// The catalogue with the template and its twin, and playing walks on it.
#include "sheets/template_program.h"

#include <sstream>
#include <vector>

#include "program/catalogue.h"
#include "sheets/template_sheet.h"
#include "sheets/twin_sheet.h"

namespace velmor::template_sheet {

host::Catalogue catalogue()
{
    static const std::vector<const host::WindowSpec*> windows = [] {
        std::vector<const host::WindowSpec*> all(program::catalogue().begin(), program::catalogue().end());
        all.push_back(&spec);
        all.push_back(&twin_sheet::spec);
        return all;
    }();
    return windows;
}

const console::WalkedProgram& walkedProgram()
{
    static const console::WalkedProgram program{catalogue(), program::start, program::newSheet};
    return program;
}

std::string faultsOf(const std::string& walk)
{
    int asked = 0;
    std::istringstream lines(walk);
    for (std::string line; std::getline(lines, line);)
        asked += line.starts_with("expect") ? 1 : 0;
    if (asked == 0)
        return "the walk asks nothing";
    std::istringstream text(walk);
    std::ostringstream out;
    const console::WalkResult result = console::playWalk(walkedProgram(), text, "walk", out, false);
    if (result.exitStatus() == 0 && result.passed == asked)
        return {};
    return std::to_string(result.passed) + " of " + std::to_string(asked) + " held\n" + out.str();
}

} // namespace velmor::template_sheet
