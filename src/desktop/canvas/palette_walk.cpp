// SPDX-License-Identifier: MIT
#include "desktop/canvas/palette_walk.h"

#include <algorithm>
#include <vector>

#include <Qt>

namespace velmor::desktop {

using host::Handle;
using host::noControl;

namespace palette_walk_detail {

std::vector<Handle> stops(const host::Window& palette)
{
    std::vector<Handle> stops;
    for (Handle control = 0; control < palette.controlCount(); ++control)
        if (palette.visible(control) && palette.hasSlot(control, host::Event::hover))
            stops.push_back(control);
    return stops;
}

} // namespace palette_walk_detail

bool PaletteWalk::pressed(host::Window& palette, const Desk& desk, int key)
{
    switch (key) {
    case Qt::Key_Right:
    case Qt::Key_Down:
    case Qt::Key_Tab:
        step(palette, desk, 1);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Backtab:
        step(palette, desk, -1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (at_ == noControl)
            step(palette, desk, 1); // nobody opens what nothing has marked
        else
            desk.engine->userClick(palette, at_);
        return true;
    default:
        return false;
    }
}

void PaletteWalk::step(host::Window& palette, const Desk& desk, int by)
{
    const std::vector<Handle> stops = palette_walk_detail::stops(palette);
    if (stops.empty())
        return;
    const auto count = static_cast<int>(stops.size());
    const auto found = std::find(stops.begin(), stops.end(), at_);
    const int now = found == stops.end() ? (by > 0 ? -1 : 0) : static_cast<int>(found - stops.begin());
    at_ = stops[static_cast<std::size_t>((now + by + count) % count)];
    desk.engine->userHover(palette, at_);
    if (desk.hovered && desk.idle())
        desk.hovered(palette, at_);
}

} // namespace velmor::desktop
