// SPDX-License-Identifier: MIT
// What a window's tables say about parts that are pale until the chain reaches them, worked out once for all windows of a
// kind, and the order in which a window is painted because of it. The tone itself is the model's.
#pragma once

#include <vector>

#include "host/window.h"

namespace velmor::desktop {

struct GrowthPlan {
    struct Entry {
        bool grows = false;               ///< a part of the drawing, or a value on it: may be pale
        std::vector<host::Handle> toning; ///< controls whose tone hangs on this one being visible
    };
    std::vector<Entry> entries;
    std::vector<host::Handle> parts; ///< of the drawing, in table order
    host::Handle ground = 0;         ///< pale parts are painted before this control: behind the paper, below all ink

    static const GrowthPlan& of(const host::WindowSpec& spec);
};

/// The model's tone, asked only where the tables say that it may differ.
host::Tone toneOf(const GrowthPlan& plan, const host::Window& window, host::Handle control);

/// Calls `paint(control)` for every control of the window's ground, from below: in table order, but pale parts below all that
/// is inked, so that a stroke of ink is never half pale. Overlays are left out.
template <class Paint>
void inOrderOfPainting(const host::Window& window, Paint paint)
{
    const GrowthPlan& plan = GrowthPlan::of(window.spec());
    const auto isPalePart = [&](host::Handle control) { return toneOf(plan, window, control) == host::Tone::pale; };
    const auto paintPaleParts = [&] {
        for (const host::Handle part : plan.parts)
            if (!window.visible(part) && isPalePart(part))
                paint(part);
    };
    for (const host::ControlRow& row : window.spec().controls) {
        if (row.id == plan.ground)
            paintPaleParts();
        if (!row.overlay && (!plan.entries[row.id].grows || window.visible(row.id)))
            paint(row.id);
    }
}

} // namespace velmor::desktop
