// SPDX-License-Identifier: MIT
#include "desktop/canvas/canvas_plan.h"

#include <algorithm>
#include <map>

#include "desktop/drawing/growth_plan.h"

namespace velmor::desktop {

namespace canvas_plan_detail {

using host::Event;
using host::Handle;

constexpr Event mouseEvents[] = {Event::click, Event::doubleClick, Event::mouseDown, Event::mouseUp,
                                 Event::hover, Event::dragEnter,   Event::dragLeave, Event::drop};

void noteSlots(CanvasPlan& plan, const host::WindowSpec& spec)
{
    for (const host::SlotRow& row : spec.slots) {
        if (row.control == host::noControl)
            continue;
        CanvasPlan::Entry& entry = plan.entries[row.control];
        if (std::find(std::begin(mouseEvents), std::end(mouseEvents), row.event) != std::end(mouseEvents))
            entry.target = true;
        if (row.event == Event::click || row.event == Event::mouseDown)
            entry.clickable = true;
        if (row.event == Event::drop)
            entry.dropTarget = true;
    }
    for (const host::ShortcutRow& row : spec.shortcuts)
        if (row.action == host::KeyAction::dragTo && row.control != host::noControl) {
            plan.entries[row.control].draggable = true;
            plan.entries[row.control].target = true;
        }
}

void noteDrawings(CanvasPlan& plan, const host::WindowSpec& spec)
{
    const auto note = [&plan](Handle seen, Handle by) {
        if (seen == host::noControl || seen >= plan.entries.size())
            return;
        std::vector<Handle>& all = plan.entries[seen].seenBy;
        if (std::find(all.begin(), all.end(), by) == all.end())
            all.push_back(by);
    };
    for (const host::ControlRow& row : spec.controls) {
        note(row.chosenUnless, row.id);
        for (const host::Mark& mark : row.drawing) {
            note(mark.value, row.id);
            note(mark.field, row.id);
        }
    }
    const std::vector<GrowthPlan::Entry>& growth = GrowthPlan::of(spec).entries;
    for (const host::ControlRow& row : spec.controls)
        for (const Handle toned : growth[row.id].toning)
            note(row.id, toned);
}

} // namespace canvas_plan_detail

const CanvasPlan& CanvasPlan::of(const host::WindowSpec& spec)
{
    static std::map<const host::WindowSpec*, CanvasPlan> plans;
    const auto known = plans.find(&spec);
    if (known != plans.end())
        return known->second;
    CanvasPlan& plan = plans[&spec];
    plan.entries.resize(spec.controls.size());
    for (const host::ControlRow& row : spec.controls)
        plan.entries[row.id].target = host::takesFocus(row.kind);
    canvas_plan_detail::noteSlots(plan, spec);
    canvas_plan_detail::noteDrawings(plan, spec);
    return plan;
}

bool hasPlace(host::Kind kind)
{
    return kind != host::Kind::menu && kind != host::Kind::timer;
}

bool isShown(const host::Window& window, host::Handle control)
{
    for (; control != host::noControl; control = window.row(control).parent)
        if (!window.visible(control))
            return false;
    return true;
}

bool liesIn(const host::WindowSpec& spec, host::Handle control, host::Handle panel)
{
    for (; control != host::noControl; control = spec.controls[control].parent)
        if (control == panel)
            return true;
    return false;
}

std::string plainSymbol(std::string_view symbol)
{
    std::string result(symbol);
    result.erase(std::remove(result.begin(), result.end(), '_'), result.end());
    if (result.starts_with("/\\"))
        result.replace(0, 2, "Δ");
    return result;
}

} // namespace velmor::desktop
