// SPDX-License-Identifier: MIT
#include "player/checked.h"

#include <sstream>

#include "check/check.h"
#include "check/table_text.h"
#include "designs/circuits.h"

namespace velmor::player {

namespace checked_detail {

/// Takes the deck and gives nothing: a game is no place for a process.
class Deaf final : public check::Simulator {
public:
    check::Simulation run(const std::string& deck) override
    {
        heard = deck;
        return {.end = check::SimulationEnd::failed};
    }
    std::string heard;
};

/// Comments may say what they like.
bool isPlain(const std::string& deck)
{
    std::istringstream lines(deck);
    for (std::string line; std::getline(lines, line);)
        for (const char* word : {"nan", "inf", ","})
            if (!line.starts_with('*') && line.find(word) != std::string::npos)
                return false;
    return deck.ends_with("\n.end\n");
}

std::string faultOf(const host::Window& sheet, const check::SheetTable& table)
{
    const check::Design design = check::designOf(sheet, table);
    Deaf simulator;
    const check::Check check = check::checkDesign(design, simulator);
    const bool isImpossible = check.end == check::CheckEnd::impossible;
    const std::string name(sheet.name());
    if (check.rows.empty() || check.excuse.en.empty())
        return "the check of " + name + " says nothing";
    if (isImpossible != simulator.heard.empty())
        return "the check of " + name + (isImpossible ? " is refused and simulated" : " asks no simulator");
    if (!isImpossible && !isPlain(simulator.heard))
        return "the check of " + name + " writes\n" + simulator.heard;
    return check::textTable(check, design, true).empty() ? "the check of " + name + " has no table" : "";
}

} // namespace checked_detail

std::string checkFault(const host::Engine& engine, int& checked)
{
    for (const host::Window* window : engine.windows()) {
        const check::SheetTable* table = designs::circuitTableOf(window->name());
        if (table == nullptr || !check::isAwake(*window, *table))
            continue;
        ++checked;
        if (const std::string fault = checked_detail::faultOf(*window, *table); !fault.empty())
            return fault;
    }
    return {};
}

} // namespace velmor::player
