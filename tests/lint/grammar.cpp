// SPDX-License-Identifier: MIT
// The rules about places, tools and keys.
#include "lint/grammar.h"

#include <algorithm>
#include <set>

#include "sheets/tools.h"

namespace velmor::lint {

namespace grammar_detail {

using host::ControlRow;
using host::Handle;
using host::Kind;
using host::Look;
using host::noControl;
using host::Place;

constexpr bool meet(const Place& one, const Place& other)
{
    return one.left < other.left + other.width && other.left < one.left + one.width &&
           one.top < other.top + other.height && other.top < one.top + one.height;
}

constexpr bool contains(const Place& outer, const Place& inner)
{
    return inner.left >= outer.left && inner.top >= outer.top && inner.left + inner.width <= outer.left + outer.width &&
           inner.top + inner.height <= outer.top + outer.height;
}

constexpr Place voiceAndStep = sheets::at(0, 0, 1200, 90);
constexpr Place parameters = sheets::at(sheets::zones::left, 94, sheets::zones::width, 518);
constexpr Place toolRow = sheets::at(sheets::zones::right, 94, 172, 182);

/// A paper may leave room at its right for pages that need more than the tools' breadth.
bool isInTheMiddle(const host::Place& place)
{
    constexpr host::Place middle = sheets::zones::paper;
    return place.left == middle.left && place.top == middle.top && place.height == middle.height &&
           place.width <= middle.width;
}

bool isTool(const sheets::Tools& tools, Handle control)
{
    for (const Handle tool : {tools.guide, tools.calculator, tools.report, tools.clone.first, tools.clone.second,
                              tools.help.first, tools.help.second})
        if (tool == control)
            return true;
    return false;
}

/// What a tool's row must be like.
struct Model {
    Handle tool;
    ControlRow row;
    std::string_view what;
};

std::vector<Model> modelsOf(const sheets::Tools& tools)
{
    using namespace sheets;
    return {{tools.guide, guideTool(0, ""), "guide"},
            {tools.calculator, calculatorTool(0, ""), "calculator"},
            {tools.report, reportTool(0, ""), "report"},
            {tools.clone.first, cloneTool(0, ""), "clone"},
            {tools.clone.second, cloneToolAgain(0, ""), "clone's second image"},
            {tools.help.first, helpTool(0, ""), "help"},
            {tools.help.second, helpToolOpen(0, ""), "help's second image"}};
}

bool alike(const ControlRow& row, const ControlRow& model)
{
    return row.place == model.place && row.look == model.look && row.drawing.data() == model.drawing.data() &&
           row.meaning.es == model.meaning.es && row.meaning.en == model.meaning.en && !row.overlay;
}

bool comesLate(const Sheet& sheet, const ControlRow& row, std::span<const Spot> late)
{
    return std::any_of(late.begin(), late.end(), [&](const Spot& spot) {
        return host::sameName(spot.window, sheet.window.name) && host::sameName(spot.control, row.name);
    });
}

/// A tool, the control that stands for it while it is hidden, and its key.
struct ToolKey {
    std::string_view keys;
    Handle tool;
    Handle second;
};

std::vector<ToolKey> toolKeysOf(const sheets::Tools& tools)
{
    return {{sheets::guideKey, tools.guide, noControl},
            {sheets::calculatorKey, tools.calculator, noControl},
            {sheets::reportKey, tools.report, noControl},
            {sheets::cloneKey, tools.clone.first, tools.clone.second},
            {sheets::helpKey, tools.help.first, tools.help.second}};
}

bool sameKeyRow(const host::ShortcutRow& one, const host::ShortcutRow& other)
{
    return one.keys == other.keys && one.control == other.control && one.action == other.action &&
           one.target == other.target;
}

bool isFieldKey(const host::ShortcutRow& row)
{
    return std::any_of(sheets::fieldKeys.begin(), sheets::fieldKeys.end(),
                       [&](const host::ShortcutRow& key) { return sameKeyRow(key, row); });
}

/// Taken by the house: by the fields, by a tool (also one that this sheet lacks), by undo, the windows, the main menu.
bool isKeyOfTheHouse(std::string_view keys, std::span<const host::ShortcutRow> keysOfTheMainWindow)
{
    const auto has = [keys](const auto& row) { return host::sameName(row.keys, keys); };
    const auto is = [keys](std::string_view other) { return host::sameName(other, keys); };
    const std::string_view ofTools[] = {sheets::guideKey, sheets::calculatorKey, sheets::reportKey,
                                        sheets::cloneKey, sheets::helpKey,       sheets::checkKey};
    return std::any_of(sheets::fieldKeys.begin(), sheets::fieldKeys.end(), has) ||
           std::any_of(std::begin(ofTools), std::end(ofTools), is) ||
           std::any_of(sheets::reservedKeys.begin(), sheets::reservedKeys.end(), is) ||
           std::any_of(keysOfTheMainWindow.begin(), keysOfTheMainWindow.end(), has);
}

bool clicks(const host::ShortcutRow& row, Handle control)
{
    return control != noControl && row.action == host::KeyAction::click &&
           (row.control == control || row.target == control);
}

void countDigits(const Sheet& sheet, Complaints& complaints)
{
    std::set<int> digits;
    for (const host::ShortcutRow& row : sheet.window.shortcuts)
        if (row.keys.size() == 6 && row.keys.starts_with("Ctrl+") && row.keys[5] >= '0' && row.keys[5] <= '9')
            digits.insert(row.keys[5] - '0');
    int next = 1;
    for (const int digit : digits)
        if (digit != next++) {
            complaints.push_back("the keys of options do not count from Ctrl+1: Ctrl+" + std::to_string(digit));
            return;
        }
}

} // namespace grammar_detail

using namespace grammar_detail;

bool Sheet::isInChain(Handle field) const
{
    return std::any_of(tables.chain.begin(), tables.chain.end(),
                       [field](const sheets::ChainRow& row) { return row.field == field; });
}

std::string Sheet::named(Handle control) const
{
    return has(control) ? "\"" + std::string(window.controls[control].name) + "\"" : "what does not exist";
}

Complaints zones(const Sheet& sheet)
{
    Complaints complaints;
    const Handle voice = sheet.tables.voice;
    if (!sheet.has(voice))
        complaints.emplace_back("the sheet has no voice");
    else if (!(sheet.window.controls[voice].place == sheets::zones::voice))
        complaints.push_back(sheet.named(voice) + " is the voice and does not stand on top");
    int papers = 0;
    for (const ControlRow& row : sheet.window.controls) {
        const bool placed = row.kind != Kind::menu && row.kind != Kind::timer && row.look != Look::invisible;
        if (row.look == Look::paper && ++papers > 0 && !isInTheMiddle(row.place))
            complaints.push_back(sheet.named(row.id) + " is paper and does not lie in the middle");
        if (!placed || row.overlay)
            continue;
        if (row.id != voice && meet(row.place, voiceAndStep) && !(row.place == sheets::zones::nextStep))
            complaints.push_back(sheet.named(row.id) + " stands where voice and next step stand");
        if (!isTool(sheet.tables.tools, row.id) && meet(row.place, toolRow))
            complaints.push_back(sheet.named(row.id) + " stands where the tools stand");
        const bool besideItsSymbol =
            row.kind == Kind::field && !row.symbol.empty() && row.symbolSide == host::SymbolSide::left;
        if (besideItsSymbol && !contains(parameters, row.place))
            complaints.push_back(sheet.named(row.id) + " does not stand among the parameters");
    }
    if (papers == 0)
        complaints.emplace_back("the sheet has no paper");
    return complaints;
}

Complaints tools(const Sheet& sheet, std::span<const Spot> late)
{
    Complaints complaints;
    for (const Model& model : modelsOf(sheet.tables.tools)) {
        if (model.tool == noControl)
            continue;
        if (!sheet.has(model.tool)) {
            complaints.push_back("the " + std::string(model.what) + " does not exist");
            continue;
        }
        const ControlRow& row = sheet.window.controls[model.tool];
        if (!alike(row, model.row) || row.visible != (model.row.visible && !comesLate(sheet, row, late)))
            complaints.push_back(sheet.named(model.tool) + " is not the " + std::string(model.what) + " of all sheets");
    }
    const sheets::Tools& all = sheet.tables.tools;
    if ((all.clone.first == noControl) != (all.clone.second == noControl))
        complaints.emplace_back("the clone lacks one of its images");
    if ((all.help.first == noControl) != (all.help.second == noControl))
        complaints.emplace_back("the help lacks one of its images");
    return complaints;
}

Complaints sheetKeys(const Sheet& sheet, std::span<const host::ShortcutRow> keysOfTheMainWindow)
{
    Complaints complaints;
    const std::span<const host::ShortcutRow> rows = sheet.window.shortcuts;
    std::set<const host::ShortcutRow*> ofTools;
    for (const ToolKey& key : toolKeysOf(sheet.tables.tools)) {
        if (key.tool == noControl)
            continue;
        const host::ShortcutRow wanted{key.keys, key.tool, host::KeyAction::click, key.second};
        const auto found =
            std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return sameKeyRow(row, wanted); });
        if (found == rows.end())
            complaints.push_back(sheet.named(key.tool) + " does not have the key " + std::string(key.keys));
        else
            ofTools.insert(&*found);
        for (const host::ShortcutRow& row : rows)
            if ((clicks(row, key.tool) || clicks(row, key.second)) && row.keys != key.keys)
                complaints.push_back(sheet.named(key.tool) + " has another key: " + std::string(row.keys));
    }
    for (const host::ShortcutRow& key : sheets::fieldKeys)
        if (std::none_of(rows.begin(), rows.end(), [&](const auto& row) { return sameKeyRow(row, key); }))
            complaints.push_back("the key " + std::string(key.keys) + " of the field in hand is missing");
    for (const host::ShortcutRow& row : rows)
        if (ofTools.count(&row) == 0 && !isFieldKey(row) && isKeyOfTheHouse(row.keys, keysOfTheMainWindow))
            complaints.push_back("the key " + std::string(row.keys) + " is not the sheet's to give");
    countDigits(sheet, complaints);
    return complaints;
}

} // namespace velmor::lint
