// SPDX-License-Identifier: MIT
// The palette by keyboard: the arrows go from design to design, each of which explains itself as under the pointer, and Enter
// opens the one that was explained last, or explains the first.
#pragma once

#include "desktop/canvas/desk.h"
#include "host/window.h"

namespace velmor::desktop {

class PaletteWalk {
public:
    /// Whether the key was one of these.
    bool pressed(host::Window& palette, const Desk& desk, int key);

private:
    void step(host::Window& palette, const Desk& desk, int by);

    host::Handle at_ = host::noControl;
};

} // namespace velmor::desktop
