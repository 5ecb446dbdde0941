// SPDX-License-Identifier: MIT
#include "player/checked.h"

#include <algorithm>
#include <memory>
#include <sstream>
#include <utility>

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

std::string faultOf(std::string_view sheet, const check::Design& design)
{
    Deaf simulator;
    const check::Check check = check::checkDesign(design, simulator);
    const bool isImpossible = check.end == check::CheckEnd::impossible;
    const std::string name(sheet);
    if (check.rows.empty() || check.excuse.en.empty())
        return "the check of " + name + " says nothing";
    if (isImpossible != simulator.heard.empty())
        return "the check of " + name + (isImpossible ? " is refused and simulated" : " asks no simulator");
    if (!isImpossible && !isPlain(simulator.heard))
        return "the check of " + name + " writes\n" + simulator.heard;
    return check::textTable(check, design, true).empty() ? "the check of " + name + " has no table" : "";
}

} // namespace checked_detail

std::string DesignChecks::faultOf(const host::Window& sheet, const check::SheetTable& table)
{
    const auto [found, isNew] = seen_.try_emplace(sheet.serial());
    Seen& seen = found->second;
    if (!isNew && seen.stirrings == sheet.stirrings())
        return {};
    seen.stirrings = sheet.stirrings();
    check::Design design = check::designOf(sheet, table);
    if (!isNew && seen.design == design)
        return {};
    seen.design = std::move(design);
    ++worked_;
    return checked_detail::faultOf(sheet.name(), seen.design);
}

std::string DesignChecks::faultOf(const host::Engine& engine)
{
    std::erase_if(seen_, [&](const auto& seen) {
        return std::none_of(engine.held().begin(), engine.held().end(),
                            [&](const auto& window) { return window->serial() == seen.first; });
    });
    for (const std::unique_ptr<host::Window>& window : engine.held()) {
        if (window->role() != host::Role::sheet)
            continue;
        const check::SheetTable* table = designs::circuitTableOf(window->name());
        if (table == nullptr || !check::isAwake(*window, *table))
            continue;
        if (std::string fault = faultOf(*window, *table); !fault.empty())
            return fault;
    }
    return {};
}

} // namespace velmor::player
