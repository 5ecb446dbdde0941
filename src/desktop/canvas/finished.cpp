// SPDX-License-Identifier: MIT
#include "desktop/canvas/finished.h"

#include "host/state_attributes.h"

namespace velmor::desktop {

namespace finished_detail {

constexpr std::string_view flag = "passed";
constexpr std::string_view keyOfReport = "Ctrl+R"; ///< the same on every sheet

} // namespace finished_detail

bool hasPassed(const host::Window& window)
{
    for (const host::OwnView& view : host::StateAccess::own(window))
        for (const host::OwnRow& row : view.rows)
            if (row.kind == host::OwnKind::flag && row.name == finished_detail::flag)
                return row.number(view.record) != 0.0;
    return false;
}

host::Handle reportTool(const host::WindowSpec& spec)
{
    for (const host::ShortcutRow& row : spec.shortcuts)
        if (row.keys == finished_detail::keyOfReport && row.control != host::noControl &&
            spec.controls[row.control].look == host::Look::toolButton)
            return row.control;
    return host::noControl;
}

} // namespace velmor::desktop
