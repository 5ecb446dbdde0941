// SPDX-License-Identifier: MIT
#include "program/recent_circuits.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "sheets/design_sheet.h"

namespace velmor::program {

namespace recent_detail {

constexpr std::string_view section = "Recientes";

// A stored value is the sheet's name, a blank and the path.
RecentCircuit circuitOf(const std::string& value)
{
    const std::size_t blank = value.find(' ');
    return blank == std::string::npos ? RecentCircuit{}
                                      : RecentCircuit{value.substr(0, blank), value.substr(blank + 1)};
}

std::string keyOf(std::size_t index)
{
    return std::to_string(index + 1);
}

} // namespace recent_detail

RecentCircuits::RecentCircuits(host::Engine& engine) : engine_(engine)
{
    engine_.onWorkSaved = [this](const host::Window& window) { note(window); };
}

RecentCircuits::~RecentCircuits()
{
    engine_.onWorkSaved = nullptr;
}

std::vector<RecentCircuit> RecentCircuits::all() const
{
    std::vector<RecentCircuit> circuits;
    for (std::size_t i = 0; i < most; ++i) {
        RecentCircuit circuit = recent_detail::circuitOf(
            engine_.settings().value(recent_detail::section, recent_detail::keyOf(i)).value_or(""));
        if (!circuit.path.empty() && engine_.specOf(circuit.sheet) != nullptr)
            circuits.push_back(std::move(circuit));
    }
    return circuits;
}

std::vector<RecentCircuit> RecentCircuits::present() const
{
    std::vector<RecentCircuit> circuits = all();
    std::erase_if(circuits, [](const RecentCircuit& circuit) {
        std::error_code error;
        return !std::filesystem::is_regular_file(circuit.path, error);
    });
    return circuits;
}

void RecentCircuits::note(const host::Window& window)
{
    const auto* sheet = dynamic_cast<const sheets::DesignSheet*>(&window);
    if (sheet == nullptr || sheet->NombreArchivo().empty())
        return;
    std::error_code error;
    const std::filesystem::path whole = std::filesystem::absolute(sheet->NombreArchivo(), error);
    if (error)
        return;
    const RecentCircuit noted{std::string(window.name()), whole.lexically_normal().string()};
    std::vector<RecentCircuit> circuits = all();
    if (!circuits.empty() && circuits.front() == noted)
        return;
    std::erase_if(circuits, [&noted](const RecentCircuit& circuit) { return circuit.path == noted.path; });
    circuits.insert(circuits.begin(), noted);
    for (std::size_t i = 0; i < std::min(circuits.size(), most); ++i)
        engine_.settings().setValue(recent_detail::section, recent_detail::keyOf(i),
                                    circuits[i].sheet + " " + circuits[i].path);
}

} // namespace velmor::program
