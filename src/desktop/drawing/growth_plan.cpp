// SPDX-License-Identifier: MIT
#include "desktop/drawing/growth_plan.h"

#include <algorithm>
#include <map>

namespace velmor::desktop {

namespace growth_plan_detail {

using host::Handle;
using host::noControl;

void addOnce(std::vector<Handle>& all, Handle control)
{
    if (std::find(all.begin(), all.end(), control) == all.end())
        all.push_back(control);
}

void noteParts(GrowthPlan& plan, const host::WindowSpec& spec)
{
    for (const host::GrowthRow& row : spec.growth) {
        plan.entries[row.part].grows = true;
        for (const Handle switching : {row.when, row.unless, row.norIf})
            if (switching != noControl)
                addOnce(plan.entries[switching].toning, row.part);
        if (!spec.controls[row.part].overlay)
            addOnce(plan.parts, row.part);
    }
    std::sort(plan.parts.begin(), plan.parts.end());
}

/// A value hangs on its part, and on whatever brings the part into the circuit.
void noteValues(GrowthPlan& plan, const host::WindowSpec& spec)
{
    for (const host::ValueRow& row : spec.values) {
        plan.entries[row.value].grows = true;
        for (GrowthPlan::Entry& entry : plan.entries)
            if (std::find(entry.toning.begin(), entry.toning.end(), row.part) != entry.toning.end())
                addOnce(entry.toning, row.value);
        addOnce(plan.entries[row.part].toning, row.value);
    }
}

/// Behind the last paper below the drawing.
Handle groundOf(const GrowthPlan& plan, const host::WindowSpec& spec)
{
    Handle ground = 0;
    for (const host::ControlRow& row : spec.controls) {
        if (!plan.parts.empty() && row.id > plan.parts.front())
            break;
        if (row.look == host::Look::paper && !row.overlay)
            ground = static_cast<Handle>(row.id + 1);
    }
    return ground;
}

} // namespace growth_plan_detail

const GrowthPlan& GrowthPlan::of(const host::WindowSpec& spec)
{
    static std::map<const host::WindowSpec*, GrowthPlan> plans;
    const auto known = plans.find(&spec);
    if (known != plans.end())
        return known->second;
    GrowthPlan& plan = plans[&spec];
    plan.entries.resize(spec.controls.size());
    growth_plan_detail::noteParts(plan, spec);
    growth_plan_detail::noteValues(plan, spec);
    plan.ground = growth_plan_detail::groundOf(plan, spec);
    return plan;
}

host::Tone toneOf(const GrowthPlan& plan, const host::Window& window, host::Handle control)
{
    if (plan.entries[control].grows)
        return host::toneOf(window, control);
    return window.visible(control) ? host::Tone::ink : host::Tone::away;
}

} // namespace velmor::desktop
