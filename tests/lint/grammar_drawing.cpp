// SPDX-License-Identifier: MIT
// The rules about symbols and about how a drawing grows.
#include <algorithm>

#include "lint/grammar.h"
#include "sheets/notation.h"

namespace velmor::lint {

namespace grammar_drawing_detail {

using host::ControlRow;
using host::Handle;
using host::Kind;
using host::noControl;
namespace notation = sheets::notation;

const sheets::Quantity* quantityOf(std::string_view symbol)
{
    const auto found = std::find_if(notation::all.begin(), notation::all.end(),
                                    [&](const sheets::Quantity& quantity) { return quantity.symbol == symbol; });
    return found == notation::all.end() ? nullptr : &*found;
}

/// "Ω" of "kΩ", "V rms" of "mV rms".
std::string_view withoutPrefix(std::string_view unit)
{
    for (const std::string_view prefix : {"k", "M", "m", "µ", "n", "p"})
        if (unit.starts_with(prefix) && unit.size() > prefix.size())
            return unit.substr(prefix.size());
    return unit;
}

/// A unit may be left out where the value's text bears it.
bool measures(std::string_view unit, const sheets::Quantity& quantity)
{
    return unit.empty() || withoutPrefix(unit) == withoutPrefix(quantity.unit);
}

bool isKnown(std::string_view name)
{
    const auto bare = [](std::string_view symbol) {
        symbol.remove_prefix(symbol.starts_with('-') ? 1 : 0);
        return symbol;
    };
    return std::any_of(notation::all.begin(), notation::all.end(),
                       [&](const sheets::Quantity& quantity) { return bare(quantity.symbol) == bare(name); }) ||
           std::find(notation::partNames.begin(), notation::partNames.end(), name) != notation::partNames.end();
}

std::string folded(std::string_view text)
{
    std::string letters;
    for (const char c : text)
        if (c != '_')
            letters += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return letters;
}

/// "QIc" and "Beta": a quantity of the notation, spelt otherwise.
bool isOtherSpelling(std::string_view name)
{
    return host::sameName(name, "Beta") ||
           std::any_of(notation::all.begin(), notation::all.end(), [&](const sheets::Quantity& quantity) {
               return quantity.symbol.find('_') != std::string_view::npos && name != quantity.symbol &&
                      folded(name) == folded(quantity.symbol);
           });
}

/// The names in what a mark bears: "+E_s" bears E_s, "R_b1/2" and "r'_e =" R_b1 and r'_e.
std::vector<std::string_view> namesIn(std::string_view text)
{
    std::vector<std::string_view> names;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(" =/+"), text.size());
        if (end > 0)
            names.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return names;
}

bool grows(const Sheet& sheet, Handle part)
{
    return std::any_of(sheet.window.growth.begin(), sheet.window.growth.end(),
                       [part](const host::GrowthRow& row) { return row.part == part; });
}

void lookAtPart(const Sheet& sheet, const host::GrowthRow& row, Complaints& complaints)
{
    const ControlRow& part = sheet.window.controls[row.part];
    if (part.visible)
        complaints.push_back(sheet.named(row.part) + " grows and is there from the start");
    if (part.drawing.empty())
        complaints.push_back(sheet.named(row.part) + " grows and draws nothing");
    if (part.overlay)
        complaints.push_back(sheet.named(row.part) + " grows and lies above the drawing");
    if (!sheet.isInChain(row.field))
        complaints.push_back(sheet.named(row.part) + " comes with what is no field of the chain");
    for (const Handle control : {row.when, row.unless, row.norIf})
        if (control != noControl && (!sheet.has(control) || grows(sheet, control)))
            complaints.push_back(sheet.named(row.part) + " hangs on a control that says nothing of the circuit");
}

} // namespace grammar_drawing_detail

using namespace grammar_drawing_detail;

Complaints symbols(const Sheet& sheet)
{
    Complaints complaints;
    for (const ControlRow& row : sheet.window.controls) {
        const sheets::Quantity* quantity = quantityOf(row.symbol);
        if (!row.symbol.empty() && quantity == nullptr)
            complaints.push_back(sheet.named(row.id) + " has the symbol " + std::string(row.symbol) +
                                 ", which is not in the notation");
        else if (quantity != nullptr && !measures(row.unit, *quantity))
            complaints.push_back(sheet.named(row.id) + " measures " + std::string(row.symbol) + " in " +
                                 std::string(row.unit));
        for (const host::Mark& mark : row.drawing)
            for (const std::string_view name : namesIn(mark.symbol == host::Symbol::text ? "" : mark.name)) {
                const bool isSymbol = name.find('_') != std::string_view::npos;
                if ((isSymbol && !isKnown(name)) || (!isSymbol && isOtherSpelling(name)))
                    complaints.push_back("the drawing of " + sheet.named(row.id) + " bears " + std::string(name) +
                                         ", which is not in the notation");
            }
    }
    return complaints;
}

Complaints growth(const Sheet& sheet)
{
    Complaints complaints;
    for (const host::GrowthRow& row : sheet.window.growth)
        if (sheet.has(row.part))
            lookAtPart(sheet, row, complaints);
        else
            complaints.emplace_back("a part that grows does not exist");
    for (const host::ValueRow& row : sheet.window.values) {
        if (!sheet.has(row.value))
            complaints.emplace_back("a value does not exist");
        else if (!grows(sheet, row.part))
            complaints.push_back(sheet.named(row.value) + " is a value on what does not grow");
    }
    for (const ControlRow& row : sheet.window.controls) {
        const bool isNote =
            std::find(sheet.tables.notes.begin(), sheet.tables.notes.end(), row.id) != sheet.tables.notes.end();
        const bool isStroke = (row.kind == Kind::line || row.kind == Kind::shape) && row.look == host::Look::plain &&
                              !row.drawing.empty() && !isNote;
        if (isStroke && !row.visible && !row.overlay && !grows(sheet, row.id))
            complaints.push_back(sheet.named(row.id) + " is neither there from the start nor grows");
    }
    return complaints;
}

} // namespace velmor::lint
